#include "calendar/DatePattern.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "text/CText.h"

namespace {

constexpr int TM_BASE_YEAR = 1900;
constexpr int DAYS_OF_WEEK = 7;
constexpr int HALF_DAY = 12;
constexpr int MINUTE = 60;
constexpr int HOUR = 3600;
constexpr int DAY = 86400;
/// Days from the first Julian day to the first of the epoch.
constexpr long EPOCH_DAY = 2440588;

constexpr std::array<std::string_view, DAYS_OF_WEEK> WEEKDAYS = {"日", "月", "火", "水",
                                                                 "木", "金", "土"};

/// Weeks begin on Sunday, and the first one may be a single day long.
/// \param nDay  From 0, in a year or month. \param nWeekday  Of that day, from 0 for Sunday.
constexpr long Week(int nDay, int nWeekday)
{
    const int nFirst = ((nWeekday - nDay) % DAYS_OF_WEEK + DAYS_OF_WEEK) % DAYS_OF_WEEK;
    return (nDay + nFirst) / DAYS_OF_WEEK + 1;
}

constexpr bool IsLeapYear(int nYear)
{
    return (nYear % 4 == 0 && nYear % 100 != 0) || nYear % 400 == 0;
}

/// The last days of December are in the next year's first week if that year begins in it.
bool IsInNextYearsWeek(const std::tm& time)
{
    const int nLast = IsLeapYear(time.tm_year + TM_BASE_YEAR) ? 365 : 364;
    const int nUntilSaturday = DAYS_OF_WEEK - 1 - time.tm_wday;
    return time.tm_yday + nUntilSaturday > nLast;
}

/// Renders one time.
class Renderer
{
public:
    Renderer(std::string& strOut, const std::tm& time, std::time_t nSeconds)
        : m_strOut(strOut), m_time(time), m_nSeconds(nSeconds)
    {
    }

    /// Appends a field. \return false if the letter has no meaning here.
    bool Append(char cLetter, int nCount)
    {
        return AppendDate(cLetter, nCount) || AppendNumberedDate(cLetter, nCount) ||
               AppendTime(cLetter, nCount) || AppendZone(cLetter, nCount);
    }

private:
    bool Number(long lNumber, int nWidth)
    {
        CText::AppendNumber(m_strOut, lNumber, nWidth);
        return true;
    }

    bool Text(std::string_view strText)
    {
        m_strOut += strText;
        return true;
    }

    bool Year(long lYear, int nCount)
    {
        constexpr long CENTURY = 100;
        return Number(nCount == 2 ? lYear % CENTURY : lYear, nCount);
    }

    bool Weekday(int nCount)
    {
        constexpr int FULL = 4;
        Text(WEEKDAYS[static_cast<std::size_t>(m_time.tm_wday)]);
        return Text(nCount == FULL ? "曜日" : "");
    }

    bool Month(int nCount)
    {
        if (nCount <= 2)
            return Number(m_time.tm_mon + 1, nCount);
        return Number(m_time.tm_mon + 1, 1) && Text("月");
    }

    bool Quarter(int nCount)
    {
        constexpr int SHORT = 3;
        constexpr int FULL = 4;
        const int nQuarter = m_time.tm_mon / 3 + 1;
        if (nCount == SHORT)
            return Text("Q") && Number(nQuarter, 1);
        if (nCount == FULL)
            return Text("第") && Number(nQuarter, 1) && Text("四半期");
        return Number(nQuarter, std::min(nCount, 2));
    }

    /// Fields with names, and years.
    bool AppendDate(char cLetter, int nCount)
    {
        constexpr int NARROW = 5;
        const int nYear = m_time.tm_year + TM_BASE_YEAR;
        switch (cLetter) {
            case 'G':
                return Text(nCount == NARROW ? "AD" : "西暦");
            case 'y':
                return Year(nYear, nCount);
            case 'Y':
                return Year(nYear + (IsInNextYearsWeek(m_time) ? 1 : 0), nCount);
            case 'u':
            case 'r':
                return Number(nYear, nCount);
            case 'Q':
            case 'q':
                return Quarter(nCount);
            case 'M':
            case 'L':
                return Month(nCount);
            case 'E':
                return Weekday(nCount);
            case 'e':
            case 'c':
                return nCount <= 2 ? Number(m_time.tm_wday + 1, cLetter == 'c' ? 1 : nCount)
                                   : Weekday(nCount);
            case 'a':
                return Text(m_time.tm_hour < HALF_DAY ? "午前" : "午後");
            default:
                return false;
        }
    }

    bool AppendNumberedDate(char cLetter, int nCount)
    {
        switch (cLetter) {
            case 'w':
                return Number(IsInNextYearsWeek(m_time) ? 1 : Week(m_time.tm_yday, m_time.tm_wday),
                              nCount);
            case 'W':
                return Number(Week(m_time.tm_mday - 1, m_time.tm_wday), nCount);
            case 'd':
                return Number(m_time.tm_mday, nCount);
            case 'D':
                return Number(m_time.tm_yday + 1, nCount);
            case 'F':
                return Number((m_time.tm_mday - 1) / DAYS_OF_WEEK + 1, nCount);
            case 'g':
                return Number((m_nSeconds + m_time.tm_gmtoff - SecondsOfDay()) / DAY + EPOCH_DAY,
                              nCount);
            default:
                return false;
        }
    }

    long SecondsOfDay() const
    {
        return m_time.tm_hour * HOUR + m_time.tm_min * MINUTE + m_time.tm_sec;
    }

    bool AppendTime(char cLetter, int nCount)
    {
        constexpr long MILLISECONDS = 1000;
        const int nHour = m_time.tm_hour;
        switch (cLetter) {
            case 'H':
                return Number(nHour, nCount);
            case 'k':
                return Number(nHour == 0 ? 2 * HALF_DAY : nHour, nCount);
            case 'K':
                return Number(nHour % HALF_DAY, nCount);
            case 'h':
                return Number((nHour + HALF_DAY - 1) % HALF_DAY + 1, nCount);
            case 'm':
                return Number(m_time.tm_min, nCount);
            case 's':
                return Number(m_time.tm_sec, nCount);
            case 'S':  // the clock counts whole seconds
                return Number(0, nCount);
            case 'A':
                return Number(SecondsOfDay() * MILLISECONDS, nCount);
            default:
                return false;
        }
    }

    /// "+0900", "+09:00"; without zero minutes "+09".
    bool Offset(const char* szColon, bool bMinutes)
    {
        const long lMinutes = std::labs(m_time.tm_gmtoff) / MINUTE;
        Text(m_time.tm_gmtoff < 0 ? "-" : "+");
        Number(lMinutes / MINUTE, 2);
        if (!bMinutes && lMinutes % MINUTE == 0)
            return true;
        return Text(szColon) && Number(lMinutes % MINUTE, 2);
    }

    /// "GMT+9", "GMT+09:00".
    bool GmtOffset(bool bLong)
    {
        Text("GMT");
        if (m_time.tm_gmtoff == 0)
            return true;
        if (bLong)
            return Offset(":", true);
        const long lMinutes = std::labs(m_time.tm_gmtoff) / MINUTE;
        Text(m_time.tm_gmtoff < 0 ? "-" : "+");
        Number(lMinutes / MINUTE, 1);
        return lMinutes % MINUTE == 0 || (Text(":") && Number(lMinutes % MINUTE, 2));
    }

    bool IsoOffset(int nCount)
    {
        constexpr int WITH_COLON = 3;
        return Offset(nCount == WITH_COLON || nCount > WITH_COLON + 1 ? ":" : "", nCount > 1);
    }

    bool AppendZone(char cLetter, int nCount)
    {
        constexpr int FULL = 4;
        const bool bUtc = m_time.tm_gmtoff == 0;
        switch (cLetter) {
            case 'z':
                if (nCount < FULL)
                    return Text(m_time.tm_zone);
                return std::string_view(m_time.tm_zone) == "JST" ? Text("日本標準時")
                                                                 : GmtOffset(true);
            case 'v':
            case 'V':
            case 'O':
                return GmtOffset(nCount >= FULL);
            case 'Z':
                if (nCount == FULL)
                    return GmtOffset(true);
                if (nCount < FULL)
                    return Offset("", true);
                return bUtc ? Text("Z") : Offset(":", true);
            case 'X':
                return bUtc ? Text("Z") : IsoOffset(nCount);
            case 'x':
                return IsoOffset(nCount);
            default:
                return false;
        }
    }

    std::string& m_strOut;
    const std::tm& m_time;
    std::time_t m_nSeconds;
};

}  // namespace

std::string RenderDate(std::string_view strPattern, const std::tm& time, std::time_t nSeconds)
{
    std::string strOut;
    Renderer renderer(strOut, time, nSeconds);
    bool bQuoted = false;
    for (std::size_t nAt = 0; nAt < strPattern.size();) {
        const char cLetter = strPattern[nAt];
        std::size_t nCount = 1;
        if (cLetter == '\'') {
            // Two quotes in a row are a quote.
            if (strPattern.substr(nAt).starts_with("''"))
                strOut += strPattern[nAt++];
            else
                bQuoted = !bQuoted;
        } else if (bQuoted) {
            strOut += cLetter;
        } else {
            while (nAt + nCount < strPattern.size() && strPattern[nAt + nCount] == cLetter)
                ++nCount;
            if (!renderer.Append(cLetter, static_cast<int>(nCount)))
                strOut.append(nCount, cLetter);
        }
        nAt += nCount;
    }
    return strOut;
}
