// Dates of the Japanese calendar.
#pragma once

#include <chrono>
#include <optional>

namespace host {

/// An era's code, and the year before its first.
struct EraYears
{
    int nCode;
    int nYearBase;
};

/// The era of a day; the first one for days before all.
EraYears EraOf(std::chrono::sys_days day);
/// The era in which a day of the last one may still be written, if that is so.
std::optional<EraYears> EraBefore(std::chrono::sys_days day);

/// The Western year of an era code and a year, or nothing for an unknown code.
std::optional<int> WesternYear(long lEra, long lYear);

/// The day, or nothing if it doesn't exist.
std::optional<std::chrono::sys_days> DayOf(int nYear, long lMonth, long lDay);

}  // namespace host
