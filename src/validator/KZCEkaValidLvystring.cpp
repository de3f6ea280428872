#include "KZCEkaValidLvystring.h"

#include <algorithm>
#include <array>
#include <functional>

#include "KZCEkaCommon.h"
#include "text/CText.h"

namespace {

struct UnitRange
{
    char16_t cFirst;
    char16_t cLast;
};

constexpr auto ACCEPTED = std::to_array<UnitRange>({
    {0x0009, 0x0009},
    {0x000D, 0x000D},
    {0x0020, 0x007E},
    {0x00A0, 0x00FF},  // Latin-1
    {0x0370, 0x04FF},  // Greek and Cyrillic
    {0x2000, 0x206F},  // general punctuation
    {0x2150, 0x22FF},  // number forms, arrows, mathematical operators
    {0x2460, 0x257F},  // enclosed alphanumerics, box drawing
    {0x25A0, 0x25FF},  // geometric shapes
    {0x3000, 0x30FF},  // CJK symbols, hiragana, katakana
    {0x3200, 0x33FF},  // enclosed CJK letters, CJK compatibility
    {0x4E00, 0x9FFF},  // CJK unified ideographs
    {0xF900, 0xFAFF},  // CJK compatibility ideographs
    {0xFF00, 0xFF65},  // full-width forms; half-width katakana stay out
    {0xFFA0, 0xFFEF},
});

constexpr bool IsAccepted(char16_t cUnit)
{
    // The first range that does not end before the unit.
    const auto* pRange =
        std::ranges::lower_bound(ACCEPTED, cUnit, std::less<>(), &UnitRange::cLast);
    return pRange != ACCEPTED.end() && pRange->cFirst <= cUnit;
}

}  // namespace

void KZCEkaValidLvystring::SetParam(const char* szValue)
{
    m_strValue = CText::OrEmpty(szValue);
    m_bAllowLineFeed = m_strValue == "allow_LF";
}

KZCEkaMessage_t KZCEkaValidLvystring::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidLvystring::_validate";
    const std::u16string strUnits =
        Guarded(FUNCTION, [szValue] { return KZCEkaCommon::ConvertSPChar(szValue); });
    const auto isAccepted = [this](char16_t cUnit) {
        return cUnit == u'\n' ? m_bAllowLineFeed : IsAccepted(cUnit);
    };
    return std::ranges::all_of(strUnits, isAccepted) ? MSG_NONE : Refuse(HE70006E, FUNCTION);
}
