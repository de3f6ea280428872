#include "KZCEkaValidRangedate_3.h"

#include "CText.h"
#include "Fault.h"
#include "KZCDebugDump.h"

void KZCEkaValidRangedate_3::SetParam(const char* szValue)
{
    m_lYearColumn = CText::ReadLong(szValue);
}

int KZCEkaValidRangedate_3::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    RequireCsv(pCsv, "KZCEkaValidRangedate_3::ValidateCsv");
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    const std::string strYear = ReadYear(pCsv, lRow);
    const long lDateColumn = CheckedColumn(lColumn);
    const std::string strDate = GetDateString(pCsv, lRow, lDateColumn);
    const KZCEkaMessage_t eRefusal = _validate(strDate, strYear);
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    return RecordDate(eRefusal, lRow + 1, {lDateColumn + 1, lDateColumn + 1 + DATE_LAST_CELL},
                      strDate);
}

int KZCEkaValidRangedate_3::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidRangedate_3::ValidateOuter");
    const std::string strYear = ReadYear(pCsv, lRow);
    return _validate(GetDateString(pCsv, lRow, m_lColumn), strYear) == MSG_NONE ? STATUS_OK
                                                                                : OuterRefused();
}

std::string KZCEkaValidRangedate_3::ReadYear(const KZCEkaCsvFile* pCsv, long lRow)
{
    if (m_lYearColumn < 1)
        RaiseParameterFault("KZCEkaValidRangedate_3::ReadYear");
    return GetYearString(pCsv, lRow, m_lYearColumn - 1);
}

KZCEkaMessage_t KZCEkaValidRangedate_3::_validate(const std::string& strDate,
                                                  const std::string& strYear)
{
    constexpr const char* FUNCTION = "KZCEkaValidRangedate_3::_validate";
    constexpr int YEAR_WIDTH = 4;
    const std::string strLast = strYear + "/09/30";
    stSYSTEMTIME last = {};
    if (!StringToSystemTime(strLast.c_str(), last)) {
        KZCDebugDump::Log(FUNCTION, "日付の変換に失敗しました。");
        return MSG_NONE;
    }
    std::string strFirst;
    CText::AppendNumber(strFirst, last.wYear - 1, YEAR_WIDTH);
    strFirst += "/10/01";
    return _rangeDate(strDate.c_str(), strFirst.c_str(), strLast.c_str(), true) == -1
               ? Refuse(HE70025E, FUNCTION)
               : MSG_NONE;
}
