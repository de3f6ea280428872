#include "KZCEkaValidEqualyear.h"

#include "CText.h"
#include "Fault.h"
#include "KZCDebugDump.h"

void KZCEkaValidEqualyear::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
    m_lOtherColumn = CText::ReadLong(szValue);
    m_lOffset = static_cast<long>(CText::ReadInt(szMax)) - CText::ReadInt(szMin);
}

int KZCEkaValidEqualyear::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    RequireCsv(pCsv, "KZCEkaValidEqualyear::ValidateCsv");
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    const std::string strOther = ReadOtherYear(pCsv, lRow);
    const long lYearColumn = CheckedColumn(lColumn);
    const std::string strYear = GetYearString(pCsv, lRow, lYearColumn);
    const KZCEkaMessage_t eRefusal = _validate(strYear, strOther);
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    return RecordDate(eRefusal, lRow + 1, {lYearColumn + 1, lYearColumn + 1 + YEAR_LAST_CELL},
                      strYear);
}

int KZCEkaValidEqualyear::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidEqualyear::ValidateOuter");
    const std::string strOther = ReadOtherYear(pCsv, lRow);
    return _validate(GetYearString(pCsv, lRow, m_lColumn), strOther) == MSG_NONE ? STATUS_OK
                                                                                 : OuterRefused();
}

std::string KZCEkaValidEqualyear::ReadOtherYear(const KZCEkaCsvFile* pCsv, long lRow)
{
    if (m_lOtherColumn < 1)
        RaiseParameterFault("KZCEkaValidEqualyear::ReadOtherYear");
    return GetYearString(pCsv, lRow, m_lOtherColumn - 1);
}

KZCEkaMessage_t KZCEkaValidEqualyear::_validate(const std::string& strYear,
                                                const std::string& strOther)
{
    constexpr const char* FUNCTION = "KZCEkaValidEqualyear::_validate";
    stSYSTEMTIME year = {};
    stSYSTEMTIME other = {};
    if (!StringToSystemTime((strYear + "/01/01").c_str(), year) ||
        !StringToSystemTime((strOther + "/01/01").c_str(), other)) {
        KZCDebugDump::Log(FUNCTION, "日付の変換に失敗しました。");
        return MSG_NONE;
    }
    return year.wYear == other.wYear + m_lOffset ? MSG_NONE : Refuse(HE70025E, FUNCTION);
}
