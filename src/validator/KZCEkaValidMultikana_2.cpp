#include "KZCEkaValidMultikana_2.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "Katakana.h"
#include "text/CText.h"

namespace {

struct CodeRange
{
    unsigned nFirst;
    unsigned nLast;
};

/// The full-width counterparts of printable ASCII, 96 codes.
constexpr auto FULL_WIDTH_ASCII = std::to_array<CodeRange>({
    {0x8143, 0x8144},
    {0x8146, 0x8149},
    {0x814D, 0x814D},
    {0x814F, 0x814F},
    {0x8151, 0x8151},
    {0x815E, 0x8160},
    {0x8162, 0x8162},
    {0x8165, 0x816A},
    {0x816D, 0x8170},
    {0x817B, 0x817C},
    {0x8181, 0x8181},
    {0x8183, 0x8184},
    {0x8190, 0x8190},
    {0x8193, 0x8197},
    {0x824F, 0x8258},
    {0x8260, 0x8279},
    {0x8281, 0x829A},
});

static_assert([] {
    unsigned nCount = 0;
    for (const CodeRange& range : FULL_WIDTH_ASCII)
        nCount += range.nLast - range.nFirst + 1;
    return nCount;
}() == 96);

constexpr bool IsFullWidthAscii(unsigned nCode)
{
    return std::ranges::any_of(FULL_WIDTH_ASCII, [nCode](const CodeRange& range) {
        return range.nFirst <= nCode && nCode <= range.nLast;
    });
}

constexpr bool IsLeadByte(char cByte)
{
    const unsigned nByte = static_cast<unsigned char>(cByte);
    return (nByte >= 0x81 && nByte <= 0x9F) || (nByte >= 0xE0 && nByte <= 0xEF);
}

/// Printable ASCII but the comma, which is left out on purpose.
constexpr bool IsAcceptedByte(char cByte)
{
    return cByte >= ' ' && cByte <= '~' && cByte != ',';
}

}  // namespace

KZCEkaMessage_t KZCEkaValidMultikana_2::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidMultikana_2::_validate";
    const std::string_view strValue = CText::OrEmpty(szValue);
    for (std::size_t nByte = 0; nByte < strValue.size(); ++nByte) {
        if (!IsLeadByte(strValue[nByte])) {
            if (!IsAcceptedByte(strValue[nByte]))
                return Refuse(HE70034E, FUNCTION);
            continue;
        }
        const char cLead = strValue[nByte++];
        const unsigned nCode =
            Katakana::Code(cLead, nByte < strValue.size() ? strValue[nByte] : '\0');
        if (!Katakana::IsAccepted(nCode) && !IsFullWidthAscii(nCode))
            return Refuse(HE70034E, FUNCTION);
    }
    return MSG_NONE;
}
