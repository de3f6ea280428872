#include "KZCEkaValidRangebasedate.h"

#include "Wrapping.h"
#include "fault/Fault.h"
#include "text/CText.h"

void KZCEkaValidRangebasedate::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
    m_strValue = CText::OrEmpty(szValue);
    m_reference = DateLiteral::ReadReference(szValue);
    m_strMin = CText::OrEmpty(szMin);
    m_strMax = CText::OrEmpty(szMax);
}

int KZCEkaValidRangebasedate::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    RequireCsv(pCsv, "KZCEkaValidRangebasedate::ValidateCsv");
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    const long lDateColumn = CheckedColumn(lColumn);
    if (HasBadReference()) {
        // Recorded whatever the item's settings are: wanted.
        const ErrorColumns columns = ColumnsFrom(lDateColumn, DATE_LAST_CELL);
        Record(HE70025E, WrappingSum(lRow, 1), columns.lFirst, columns.lLast, "", true);
        return STATUS_NG;
    }
    const auto dates = Resolve(pCsv, lRow, lDateColumn);
    const KZCEkaMessage_t eRefusal = dates ? _validate(*dates) : MSG_NONE;
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    const long lRecord =
        m_strErrRow.empty() ? WrappingSum(lRow, 1) : CText::ReadLong(m_strErrRow.c_str());
    return RecordDate(eRefusal, lRecord, ReportedColumns(lDateColumn, DATE_LAST_CELL),
                      dates->strDate);
}

int KZCEkaValidRangebasedate::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidRangebasedate::ValidateOuter");
    if (HasBadReference())
        return OuterRefused();
    const auto dates = Resolve(pCsv, lRow, m_lColumn);
    return !dates || _validate(*dates) == MSG_NONE ? STATUS_OK : OuterRefused();
}

bool KZCEkaValidRangebasedate::HasBadReference() const
{
    return !m_strValue.empty() && ((m_strMin.empty() && m_strMax.empty()) || !m_reference);
}

std::optional<KZCEkaValidRangebasedate::Dates> KZCEkaValidRangebasedate::Resolve(
    const KZCEkaCsvFile* pCsv, long lRow, long lDateColumn)
{
    if (m_strValue.empty())
        return Dates{GetDateString(pCsv, lRow, lDateColumn), ReadColumn(pCsv, lRow, m_strMin),
                     ReadColumn(pCsv, lRow, m_strMax)};
    const auto strDate = ReadReferred(pCsv, *m_reference);
    if (!strDate)
        return std::nullopt;
    return Dates{*strDate, m_strMin, m_strMax};
}

std::string KZCEkaValidRangebasedate::ReadColumn(const KZCEkaCsvFile* pCsv,
                                                 long lRow,
                                                 const std::string& strColumn)
{
    const long lColumn = CText::ReadLong(strColumn.c_str());
    return lColumn > 0 ? GetDateString(pCsv, lRow, lColumn - 1) : std::string();
}

KZCEkaMessage_t KZCEkaValidRangebasedate::_validate(const Dates& dates)
{
    constexpr const char* FUNCTION = "KZCEkaValidRangebasedate::_validate";
    const long lPlace = Guarded(FUNCTION, [&] {
        return _rangeDate(dates.strDate.c_str(), dates.strMin.c_str(), dates.strMax.c_str(), false);
    });
    if (lPlace >= 0)
        return MSG_NONE;
    return lPlace == -1 ? HE70025E : HE70012E;
}
