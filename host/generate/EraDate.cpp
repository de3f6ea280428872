#include "generate/EraDate.h"

#include <array>
#include <cstdio>
#include <limits>
#include <string>

#include "calendar/EraTable.h"

namespace host {
namespace {

/// "YYYY/MM/DD", as the table of eras writes days: their order is that of the texts.
std::string Western(std::chrono::sys_days day)
{
    const std::chrono::year_month_day date{day};
    std::array<char, 32> szText{};
    std::snprintf(szText.data(), szText.size(), "%04d/%02u/%02u", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    return szText.data();
}

EraYears EraOfCode(int nCode)
{
    return {nCode, EraTable::Base(EraTable::Name(nCode))};
}

}  // namespace

EraYears EraOf(std::chrono::sys_days day)
{
    const std::string strDay = Western(day);
    int nCode = 1;
    while (EraTable::IsEra(nCode + 1) &&
           EraTable::RealSpans()[static_cast<std::size_t>(nCode)].szFirst <= strDay)
        ++nCode;
    return EraOfCode(nCode);
}

std::optional<EraYears> EraBefore(std::chrono::sys_days day)
{
    const int nCode = EraOf(day).nCode;
    if (nCode == 1)
        return std::nullopt;
    const auto nBefore = static_cast<std::size_t>(nCode - 2);
    if (Western(day) > EraTable::LongSpans()[nBefore].szLast)
        return std::nullopt;
    return EraOfCode(nCode - 1);
}

std::optional<int> WesternYear(long lEra, long lYear)
{
    if (lEra < 1 || lEra > std::numeric_limits<int>::max() ||
        !EraTable::IsEra(static_cast<int>(lEra)))
        return std::nullopt;
    return EraOfCode(static_cast<int>(lEra)).nYearBase + static_cast<int>(lYear);
}

std::optional<std::chrono::sys_days> DayOf(int nYear, long lMonth, long lDay)
{
    const std::chrono::year_month_day date{std::chrono::year{nYear},
                                           std::chrono::month{static_cast<unsigned>(lMonth)},
                                           std::chrono::day{static_cast<unsigned>(lDay)}};
    if (!date.ok())
        return std::nullopt;
    return std::chrono::sys_days{date};
}

}  // namespace host
