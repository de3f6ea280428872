#include "KZCEkaValidEqualyear.h"

#include "KZCDebugDump.h"
#include "Wrapping.h"
#include "fault/Fault.h"
#include "text/CText.h"

void KZCEkaValidEqualyear::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
    m_strValue = CText::OrEmpty(szValue);
    m_strMin = CText::OrEmpty(szMin);
    m_strMax = CText::OrEmpty(szMax);
    m_lOtherColumn = CText::ReadLong(szValue);
    m_lOffset = static_cast<long>(CText::ReadInt(szMax)) - CText::ReadInt(szMin);
}

int KZCEkaValidEqualyear::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    constexpr const char* FUNCTION = "KZCEkaValidEqualyear::ValidateCsv";
    RequireCsv(pCsv, FUNCTION);
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    const std::string strOther = ReadOtherYear(pCsv, lRow, FUNCTION);
    const long lYearColumn = CheckedColumn(lColumn);
    const std::string strYear = GetYearString(pCsv, lRow, lYearColumn);
    const KZCEkaMessage_t eRefusal = _validate(strYear, strOther);
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    return RecordDate(eRefusal, WrappingSum(lRow, 1), ColumnsFrom(lYearColumn, YEAR_LAST_CELL),
                      strYear);
}

int KZCEkaValidEqualyear::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidEqualyear::ValidateOuter";
    RequireCsv(pCsv, FUNCTION);
    const std::string strOther = ReadOtherYear(pCsv, lRow, FUNCTION);
    return _validate(GetYearString(pCsv, lRow, m_lColumn), strOther) == MSG_NONE ? STATUS_OK
                                                                                 : OuterRefused();
}

std::string KZCEkaValidEqualyear::ReadOtherYear(const KZCEkaCsvFile* pCsv,
                                                long lRow,
                                                const char* szFunction)
{
    if (m_lOtherColumn < 1)
        RaiseParameterFault(szFunction);
    return GetYearString(pCsv, lRow, m_lOtherColumn - 1);
}

KZCEkaMessage_t KZCEkaValidEqualyear::_validate(const std::string& strYear,
                                                const std::string& strOther)
{
    constexpr const char* FUNCTION = "KZCEkaValidEqualyear::_validate";
    stSYSTEMTIME year = {};
    stSYSTEMTIME other = {};
    const bool bReal = Guarded(FUNCTION, [&] {
        // Both are read whatever the first one gives: the log tells about each.
        const bool bYear = StringToSystemTime((strYear + "/01/01").c_str(), year);
        const bool bOther = StringToSystemTime((strOther + "/01/01").c_str(), other);
        return bYear && bOther;
    });
    if (!bReal) {
        KZCDebugDump::Log(FUNCTION, "日付の変換に失敗しました。");
        return MSG_NONE;
    }
    return year.wYear == other.wYear + m_lOffset ? MSG_NONE : Refuse(HE70025E, FUNCTION);
}
