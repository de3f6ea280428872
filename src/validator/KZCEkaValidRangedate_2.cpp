#include "KZCEkaValidRangedate_2.h"

#include "Wrapping.h"
#include "fault/Fault.h"
#include "text/CText.h"

void KZCEkaValidRangedate_2::SetParam(const char* szMin, const char* szMax)
{
    constexpr std::size_t BUFFER_SIZE = 11;
    // Cut at 4, 2 and 2 characters, however many there are: a bad date shows when the check runs.
    m_strMin = CText::OrEmpty(szMin);
    m_strMax = CText::OrEmpty(szMax);
    std::string strMin = m_strMin;
    strMin.resize(8, ' ');
    m_strFirst = CText::CutToBuffer(
        strMin.substr(0, 4) + "/" + strMin.substr(4, 2) + "/" + strMin.substr(6, 2), BUFFER_SIZE);
    m_lYearColumn = CText::ReadLong(szMax);
}

int KZCEkaValidRangedate_2::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    constexpr const char* FUNCTION = "KZCEkaValidRangedate_2::ValidateCsv";
    RequireCsv(pCsv, FUNCTION);
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    if (m_lYearColumn < 1)
        RaiseParameterFault(FUNCTION);
    const std::string strYear = GetYearString(pCsv, lRow, m_lYearColumn - 1);
    const KZCEkaMessage_t eRefusal =
        _validate(GetDateString(pCsv, lRow, CheckedColumn(lColumn)), strYear);
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    Record(ReportedCode(eRefusal), WrappingSum(lRow, 1), m_lYearColumn,
           WrappingSum(m_lYearColumn, YEAR_LAST_CELL), strYear.c_str(), true);
    return STATUS_NG;
}

int KZCEkaValidRangedate_2::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidRangedate_2::ValidateOuter");
    // As a condition it doesn't test its parameter: wanted.
    return _validate(GetDateString(pCsv, lRow, m_lColumn),
                     GetYearString(pCsv, lRow, WrappingSum(m_lYearColumn, -1))) == MSG_NONE
               ? STATUS_OK
               : OuterRefused();
}

KZCEkaMessage_t KZCEkaValidRangedate_2::_validate(const std::string& strDate,
                                                  const std::string& strYear)
{
    constexpr const char* FUNCTION = "KZCEkaValidRangedate_2::_validate";
    const long lPlace = Guarded(FUNCTION, [&] {
        return _rangeDate(strDate.c_str(), m_strFirst.c_str(), (strYear + "/09/30").c_str(), true);
    });
    if (lPlace == -3)
        RaiseParameterFault(FUNCTION);
    // An impossible date or year is left to other checks.
    return lPlace == -1 ? Refuse(HE70025E, FUNCTION) : MSG_NONE;
}
