// Dates of the Japanese calendar.
#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <string>

namespace host {

/// Codes of the eras and the years before their first.
struct EraSpan
{
    int nCode;
    int nYearBase;
    std::chrono::sys_days firstDay;
};

inline constexpr std::array<EraSpan, 5> ERA_SPANS = {{
    {1, 1867, std::chrono::year{1890} / 1 / 1},
    {2, 1911, std::chrono::year{1912} / 7 / 30},
    {3, 1925, std::chrono::year{1926} / 12 / 25},
    {4, 1988, std::chrono::year{1989} / 1 / 8},
    {5, 2018, std::chrono::year{2019} / 5 / 1},
}};

/// The era of a day; the first one for days before all.
inline const EraSpan& EraOf(std::chrono::sys_days day)
{
    const EraSpan* pEra = &ERA_SPANS.front();
    for (const EraSpan& era : ERA_SPANS)
        if (era.firstDay <= day)
            pEra = &era;
    return *pEra;
}

/// The Western year of an era code and a year, or nothing for an unknown code.
inline std::optional<int> WesternYear(long lEra, long lYear)
{
    for (const EraSpan& era : ERA_SPANS)
        if (era.nCode == lEra)
            return era.nYearBase + static_cast<int>(lYear);
    return std::nullopt;
}

/// The day, or nothing if it doesn't exist.
inline std::optional<std::chrono::sys_days> DayOf(int nYear, long lMonth, long lDay)
{
    const std::chrono::year_month_day date{std::chrono::year{nYear},
                                           std::chrono::month{static_cast<unsigned>(lMonth)},
                                           std::chrono::day{static_cast<unsigned>(lDay)}};
    if (!date.ok())
        return std::nullopt;
    return std::chrono::sys_days{date};
}

}  // namespace host
