#include "KZCEkaValidContainYear.h"

#include "Wrapping.h"
#include "fault/Fault.h"
#include "text/CText.h"

void KZCEkaValidContainYear::SetParam(const char* szValue)
{
    m_years.Set(szValue);
}

int KZCEkaValidContainYear::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    RequireCsv(pCsv, "KZCEkaValidContainYear::ValidateCsv");
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    const long lYearColumn = CheckedColumn(lColumn);
    const std::string strYear = GetYearString(pCsv, lRow, lYearColumn);
    const KZCEkaMessage_t eRefusal = _validate(strYear.c_str());
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    return RecordDate(eRefusal, WrappingSum(lRow, 1), ReportedColumns(lYearColumn, YEAR_LAST_CELL),
                      strYear);
}

int KZCEkaValidContainYear::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidContainYear::ValidateOuter");
    return _validate(GetYearString(pCsv, lRow, m_lColumn).c_str()) == MSG_NONE ? STATUS_OK
                                                                               : OuterRefused();
}

KZCEkaMessage_t KZCEkaValidContainYear::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidContainYear::_validate";
    constexpr int YEAR_WIDTH = 4;
    stSYSTEMTIME year = {};
    if (!Guarded(FUNCTION, [&] {
            return StringToSystemTime((std::string(CText::OrEmpty(szValue)) + "/01/01").c_str(),
                                      year);
        }))
        return Refuse(HE70025E, FUNCTION, "日付の変換に失敗しました。");
    if (!m_years.IsGiven())
        RaiseParameterFault(FUNCTION);
    std::string strYear;
    CText::AppendNumber(strYear, year.wYear, YEAR_WIDTH);
    return m_years.Contains(strYear) ? MSG_NONE : HE70025E;
}
