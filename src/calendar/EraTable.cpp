#include "calendar/EraTable.h"

#include <algorithm>
#include <array>

namespace EraTable {

namespace {

/// By code, from 1. The fifth era's name stays a placeholder.
constexpr std::array<Era, 5> ERAS = {{
    {"明治", 1867},
    {"大正", 1911},
    {"昭和", 1925},
    {"平成", 1988},
    {"新号", 2018},
}};

/// The two differ in one cell, and the difference is wanted.
constexpr std::array<Span, 5> LONG_SPANS = {{
    {"明治", "1890/01/01", "1912/07/29"},
    {"大正", "1912/07/30", "1926/12/24"},
    {"昭和", "1926/12/25", "1989/01/07"},
    {"平成", "1989/01/08", "2020/03/31"},
    {"新号", "2019/05/01", ""},
}};
constexpr std::array<Span, 5> REAL_SPANS = {{
    {"明治", "1890/01/01", "1912/07/29"},
    {"大正", "1912/07/30", "1926/12/24"},
    {"昭和", "1926/12/25", "1989/01/07"},
    {"平成", "1989/01/08", "2019/04/30"},
    {"新号", "2019/05/01", ""},
}};

}  // namespace

const Era* FindPrefix(std::string_view strText)
{
    const auto* pEra = std::ranges::find_if(
        ERAS, [strText](const Era& era) { return strText.starts_with(era.strName); });
    return pEra != ERAS.end() ? pEra : nullptr;
}

bool IsEra(int nCode)
{
    return nCode >= 1 && nCode <= static_cast<int>(ERAS.size());
}

std::string Name(int nCode)
{
    return std::string(ERAS[static_cast<std::size_t>(nCode - 1)].strName);
}

int Base(std::string_view strName)
{
    const auto* pEra = std::ranges::find(ERAS, strName, &Era::strName);
    return pEra != ERAS.end() ? pEra->nBase : 0;
}

std::span<const Span> LongSpans()
{
    return LONG_SPANS;
}

std::span<const Span> RealSpans()
{
    return REAL_SPANS;
}

}  // namespace EraTable
