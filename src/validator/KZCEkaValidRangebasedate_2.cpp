#include "KZCEkaValidRangebasedate_2.h"

#include "KZCMacOSNative.h"
#include "RangeVerdict.h"
#include "Wrapping.h"
#include "fault/Fault.h"
#include "text/CText.h"

KZCEkaValidRangebasedate_2::Bound::Bound(const char* szParameter)
    : strParameter(CText::OrEmpty(szParameter)),
      reference(DateLiteral::ReadReference(szParameter)),
      lColumn(CText::ReadLong(szParameter))
{
}

void KZCEkaValidRangebasedate_2::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
    m_strValue = CText::OrEmpty(szValue);
    m_bInclude = m_strValue == "include";
    m_min = Bound(szMin);
    m_max = Bound(szMax);
}

int KZCEkaValidRangebasedate_2::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    RequireCsv(pCsv, "KZCEkaValidRangebasedate_2::ValidateCsv");
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    const long lDateColumn = CheckedColumn(lColumn);
    const std::string strDate = GetDateString(pCsv, lRow, lDateColumn);
    const auto strMin = Resolve(pCsv, lRow, m_min);
    if (!strMin)
        return STATUS_OK;
    const auto strMax = Resolve(pCsv, lRow, m_max);
    if (!strMax)
        return STATUS_OK;
    const KZCEkaMessage_t eRefusal = _validate(strDate, *strMin, *strMax);
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    return RecordDate(eRefusal, WrappingSum(lRow, 1), ReportedColumns(lDateColumn, DATE_LAST_CELL),
                      strDate);
}

int KZCEkaValidRangebasedate_2::ValidateOuter(const KZCEkaCsvFile* pCsv,
                                              long lRow,
                                              long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidRangebasedate_2::ValidateOuter");
    // As a condition it knows no other records.
    return _validate(GetDateString(pCsv, lRow, m_lColumn), ReadColumn(pCsv, lRow, m_min),
                     ReadColumn(pCsv, lRow, m_max)) == MSG_NONE
               ? STATUS_OK
               : OuterRefused();
}

std::optional<std::string> KZCEkaValidRangebasedate_2::Resolve(const KZCEkaCsvFile* pCsv,
                                                               long lRow,
                                                               const Bound& bound)
{
    return bound.reference ? ReadReferred(pCsv, *bound.reference) : ReadColumn(pCsv, lRow, bound);
}

std::string KZCEkaValidRangebasedate_2::ReadColumn(const KZCEkaCsvFile* pCsv,
                                                   long lRow,
                                                   const Bound& bound)
{
    return bound.lColumn > 0 ? GetDateString(pCsv, lRow, bound.lColumn - 1) : std::string();
}

KZCEkaMessage_t KZCEkaValidRangebasedate_2::_validate(const std::string& strDate,
                                                      const std::string& strMin,
                                                      const std::string& strMax) const
{
    constexpr const char* FUNCTION = "KZCEkaValidRangebasedate_2::_validate";
    const RangeVerdict verdict(Guarded(FUNCTION, [&] {
        return KZCMacOSNative::rangeDate(strDate.c_str(), strMin.c_str(), strMax.c_str(), false);
    }));
    if (verdict.HasNoBound())
        return Refuse(HE99999E, FUNCTION, "チェック範囲が指定されていません。");
    const bool bOnOpenEnd = !m_bInclude && (verdict.IsAtMin() || verdict.IsAtMax());
    if (verdict.IsPlaced() && !verdict.IsBeforeMin() && !verdict.IsAfterMax() && !bOnOpenEnd)
        return MSG_NONE;
    if (verdict.IsPlaced())
        return Refuse(HE70025E, FUNCTION, "szValueの値が範囲外です。");
    verdict.LogFailure(FUNCTION);
    return HE70025E;
}
