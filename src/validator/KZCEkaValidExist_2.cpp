#include "KZCEkaValidExist_2.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "CText.h"
#include "Fault.h"
#include "KZCEkaCsvFile.h"

namespace {

/// How many columns a date group has in records of a kind.
struct GroupWidth
{
    std::string_view strKind;
    long lColumns;
};

constexpr std::array<GroupWidth, 6> GROUP_WIDTHS = {{
    {"003", 4},
    {"004", 4},
    {"005", 4},
    {"006", 2},
    {"007", 2},
    {"009", 2},
}};

}  // namespace

KZCEkaMessage_t KZCEkaValidExist_2::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidExist_2::_validate";
    if (m_pCsv == nullptr)
        RaiseFault(FUNCTION, nullptr);
    const auto* pWidth =
        std::ranges::find(GROUP_WIDTHS, m_pCsv->GetItem(m_lRow, 0), &GroupWidth::strKind);
    if (pWidth == GROUP_WIDTHS.end())
        return Refuse(HE70012E, FUNCTION);  // left to the base class to record

    const bool bFilled = *CText::OrEmpty(szValue) != '\0';
    bool bWhole = true;
    for (long lColumn = m_lColumn + 1; lColumn < m_lColumn + pWidth->lColumns; ++lColumn)
        bWhole = bWhole && (*m_pCsv->GetItem(m_lRow, lColumn) != '\0') == bFilled;
    if (bWhole)
        return MSG_NONE;
    Record(HE70012E, m_lRow + 1, m_lColumn + 1, m_lColumn + pWidth->lColumns, szValue, true);
    // For good: the base class records nothing more for this item.
    m_bErrOutput = false;
    return HE70012E;
}
