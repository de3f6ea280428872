#include "KZCEkaValidIstring.h"

#include <optional>
#include <string_view>

#include "IstringTable.h"
#include "KZCEkaCommon.h"
#include "KZCMacOSNative.h"
#include "text/CText.h"

namespace {

constexpr const char* FUNCTION = "KZCEkaValidIstring::_validate";

/// The character's first two bytes as one code, or its one byte.
unsigned LeadCode(std::string_view strCharacter)
{
    unsigned nCode = 0;
    for (const char cByte : strCharacter.substr(0, 2))
        nCode = nCode << 8U | static_cast<unsigned char>(cByte);
    return nCode;
}

/// The first code or unit that is in no range, or nothing.
std::optional<unsigned> FirstRefused(const char* szValue)
{
    const std::string_view strValue = CText::OrEmpty(szValue);
    std::size_t nByte = 0;
    for (const unsigned char nLength :
         KZCMacOSNative::getStringLengths(szValue, !KZCEkaCommon::GetCsvCheckFlag())) {
        const unsigned nCode = LeadCode(strValue.substr(nByte, nLength));
        if (!IstringTable::ContainsCode(nCode))
            return nCode;
        nByte += nLength;
    }
    if (nByte < strValue.size())  // it can't be decoded
        return LeadCode(strValue);
    for (const char16_t cUnit : KZCEkaCommon::ConvertSPChar(szValue))
        if (!IstringTable::ContainsUnit(cUnit))
            return cUnit;
    return std::nullopt;
}

}  // namespace

KZCEkaMessage_t KZCEkaValidIstring::_validate(const char* szValue)
{
    const auto nRefused = Guarded(FUNCTION, [szValue] { return FirstRefused(szValue); });
    if (!nRefused)
        return MSG_NONE;
    return Guarded(FUNCTION,
                   [&] { return Refuse(HE70006E, FUNCTION, std::to_string(*nRefused).c_str()); });
}
