// Reads date texts in two calendars, strictly.
#pragma once

#include <compare>
#include <optional>
#include <string_view>

/// A local time of the Gregorian calendar.
struct DateTime
{
    int nYear;
    int nMonth;
    int nDay;
    int nHour;
    int nMinute;
    int nSecond;

    auto operator<=>(const DateTime&) const = default;
};

/// The instant of a text, or nothing if it is no real date.
///
/// A text of the characters "1234567890/:.- " is Western ("2019/04/30", "2019-4-30"), with a year
/// of four digits. Any other is Japanese ("平成31/04/30", "平成元年5月1日"), and the date has to
/// lie within its era. Either may carry a time ("2019/04/30 09:30:00"). Blanks may stand before
/// each number and at both ends.
std::optional<DateTime> ReadDate(std::string_view strText);
