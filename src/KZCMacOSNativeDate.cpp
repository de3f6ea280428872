// Calendar services.
#include <ctime>
#include <optional>

#include "KZCMacOSNative.h"
#include "calendar/Clock.h"
#include "calendar/DatePattern.h"
#include "calendar/DateReader.h"
#include "text/CText.h"

namespace {

constexpr long LOWER_ABSENT = 15;
constexpr long UPPER_ABSENT = 240;
constexpr long UPPER_FACTOR = 16;

bool IsGiven(const char* szText)
{
    return szText != nullptr && *szText != '\0';
}

std::optional<DateTime> ReadDateOrNull(const char* szDate)
{
    return szDate != nullptr ? ReadDate(szDate) : std::nullopt;
}

/// 0 equal, 1 first is later, 2 first is earlier.
long Compare(const DateTime& first, const DateTime& second)
{
    if (first == second)
        return 0;
    return first > second ? 1 : 2;
}

}  // namespace

std::string KZCMacOSNative::dateTimeNow(const char* szDatePattern, const char* szTimePattern)
{
    std::string strPattern = CText::OrEmpty(szDatePattern);
    if (!strPattern.empty() && IsGiven(szTimePattern))
        strPattern += ' ';
    strPattern += CText::OrEmpty(szTimePattern);
    if (strPattern.empty())
        return {};
    const std::time_t now = Clock::Now();
    std::tm time = {};
    localtime_r(&now, &time);
    return RenderDate(strPattern, time, now);
}

bool KZCMacOSNative::dateTimeChange(const char* szDate)
{
    return ReadDateOrNull(szDate).has_value();
}

bool KZCMacOSNative::dateTimeChange(const char* szDate, long& lYear, long& lMonth, long& lDay)
{
    const auto date = ReadDateOrNull(szDate);
    if (!date)
        return false;
    lYear = date->nYear;
    lMonth = date->nMonth;
    lDay = date->nDay;
    return true;
}

long KZCMacOSNative::dateTimeComp(const char* szFirst, const char* szSecond)
{
    const auto first = ReadDateOrNull(szFirst);
    if (!first)
        return -1;
    const auto second = ReadDateOrNull(szSecond);
    if (!second)
        return -2;
    return Compare(*first, *second);
}

long KZCMacOSNative::rangeDate(const char* szDate,
                               const char* szLower,
                               const char* szUpper,
                               bool bRequired)
{
    const auto date = ReadDateOrNull(szDate);
    if (!date)
        return -2;
    const auto lower = ReadDateOrNull(szLower);
    if (!lower && (bRequired || IsGiven(szLower)))
        return -3;
    const auto upper = ReadDateOrNull(szUpper);
    if (!upper && (bRequired || IsGiven(szUpper)))
        return -4;
    if (!lower && !upper)
        return -5;
    return (lower ? Compare(*date, *lower) : LOWER_ABSENT) +
           (upper ? Compare(*date, *upper) * UPPER_FACTOR : UPPER_ABSENT);
}
