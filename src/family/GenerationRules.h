// The base family's type ids, and how a record of each shows its generation.
#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace GenerationRules {

inline constexpr const char* JUNIOR = "junior";
inline constexpr const char* SENIOR = "senior";

enum class Kind
{
    ALWAYS_SENIOR,
    DATE,       ///< senior up to the end of the old era, with two columns filled
    REFERENCE,  ///< junior with a reference number of the new form, other columns empty
};

/// Columns count from 1.
struct Rule
{
    std::string_view strTypeId;
    Kind eKind;
    long lReferenceColumn = 0;
    std::span<const long> emptyColumns = {};

    constexpr bool HasBoth() const { return eKind != Kind::ALWAYS_SENIOR; }
};

/// Of the kind DATE: the first of the date's four columns, and the two that senior records fill.
inline constexpr long DATE_COLUMN = 2;
inline constexpr std::array<long, 2> SENIOR_COLUMNS = {23, 24};

inline constexpr std::array<long, 7> EMPTY_OF_007 = {7, 19, 20, 21, 22, 28, 29};
inline constexpr std::array<long, 5> EMPTY_OF_008 = {2, 14, 15, 16, 17};

/// Every type id of the family once.
inline constexpr std::array<Rule, 9> RULES = {{
    {"001", Kind::DATE},
    {"002", Kind::REFERENCE, 19},
    {"003", Kind::ALWAYS_SENIOR},
    {"004", Kind::ALWAYS_SENIOR},
    {"005", Kind::ALWAYS_SENIOR},
    {"006", Kind::ALWAYS_SENIOR},
    {"007", Kind::REFERENCE, 24, EMPTY_OF_007},
    {"008", Kind::REFERENCE, 19, EMPTY_OF_008},
    {"009", Kind::ALWAYS_SENIOR},
}};

/// Null for an unknown type id.
constexpr const Rule* Find(std::string_view strTypeId)
{
    const auto* pRule = std::ranges::find(RULES, strTypeId, &Rule::strTypeId);
    return pRule != RULES.end() ? pRule : nullptr;
}

}  // namespace GenerationRules
