// Dates whose width hangs on the kind of the record.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

/// How many columns a date group has in records of a kind.
struct DateGroupWidth
{
    std::string_view strTypeId;
    long lColumns;
};

inline constexpr std::array<DateGroupWidth, 6> DATE_GROUP_WIDTHS = {{
    {"003", 4},
    {"004", 4},
    {"005", 4},
    {"006", 2},
    {"007", 2},
    {"009", 2},
}};

/// 0 for a kind without date groups.
constexpr long DateGroupColumns(std::string_view strTypeId)
{
    const auto* pWidth =
        std::ranges::find(DATE_GROUP_WIDTHS, strTypeId, &DateGroupWidth::strTypeId);
    return pWidth != DATE_GROUP_WIDTHS.end() ? pWidth->lColumns : 0;
}
