#include "KZCEkaValidRangedate_3.h"

#include "KZCDebugDump.h"
#include "Wrapping.h"
#include "fault/Fault.h"
#include "text/CText.h"

void KZCEkaValidRangedate_3::SetParam(const char* szValue)
{
    m_strValue = CText::OrEmpty(szValue);
    m_lYearColumn = CText::ReadLong(szValue);
}

int KZCEkaValidRangedate_3::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    constexpr const char* FUNCTION = "KZCEkaValidRangedate_3::ValidateCsv";
    RequireCsv(pCsv, FUNCTION);
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    const std::string strYear = ReadYear(pCsv, lRow, FUNCTION);
    const long lDateColumn = CheckedColumn(lColumn);
    const std::string strDate = GetDateString(pCsv, lRow, lDateColumn);
    const KZCEkaMessage_t eRefusal = _validate(strDate, strYear);
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    return RecordDate(eRefusal, WrappingSum(lRow, 1), ColumnsFrom(lDateColumn, DATE_LAST_CELL),
                      strDate);
}

int KZCEkaValidRangedate_3::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidRangedate_3::ValidateOuter";
    RequireCsv(pCsv, FUNCTION);
    const std::string strYear = ReadYear(pCsv, lRow, FUNCTION);
    return _validate(GetDateString(pCsv, lRow, m_lColumn), strYear) == MSG_NONE ? STATUS_OK
                                                                                : OuterRefused();
}

std::string KZCEkaValidRangedate_3::ReadYear(const KZCEkaCsvFile* pCsv,
                                             long lRow,
                                             const char* szFunction)
{
    if (m_lYearColumn < 1)
        RaiseParameterFault(szFunction);
    return GetYearString(pCsv, lRow, m_lYearColumn - 1);
}

KZCEkaMessage_t KZCEkaValidRangedate_3::_validate(const std::string& strDate,
                                                  const std::string& strYear)
{
    constexpr const char* FUNCTION = "KZCEkaValidRangedate_3::_validate";
    const auto lPlace = Guarded(FUNCTION, [&] { return Place(strDate, strYear); });
    if (!lPlace)
        KZCDebugDump::Log(FUNCTION, "日付の変換に失敗しました。");
    return lPlace == -1 ? HE70025E : MSG_NONE;
}

std::optional<long> KZCEkaValidRangedate_3::Place(const std::string& strDate,
                                                  const std::string& strYear)
{
    constexpr int YEAR_WIDTH = 4;
    const std::string strLast = strYear + "/09/30";
    stSYSTEMTIME last = {};
    if (!StringToSystemTime(strLast.c_str(), last))
        return std::nullopt;
    std::string strFirst;
    CText::AppendNumber(strFirst, last.wYear - 1, YEAR_WIDTH);
    strFirst += "/10/01";
    return _rangeDate(strDate.c_str(), strFirst.c_str(), strLast.c_str(), true);
}
