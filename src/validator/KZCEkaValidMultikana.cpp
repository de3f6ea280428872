#include "KZCEkaValidMultikana.h"

#include <string_view>

#include "Katakana.h"
#include "text/CText.h"

KZCEkaMessage_t KZCEkaValidMultikana::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidMultikana::_validate";
    const std::string_view strValue = CText::OrEmpty(szValue);
    const KZCEkaMessage_t eNoted = strValue.size() % 2 == 1 ? Refuse(HE70003E, FUNCTION) : MSG_NONE;
    // In steps of two bytes, wherever the characters begin: wanted. The stray last byte of an odd
    // length makes a pair with the terminator, which matches no code.
    for (std::size_t nByte = 0; nByte < strValue.size(); nByte += 2) {
        const char cSecond = nByte + 1 < strValue.size() ? strValue[nByte + 1] : '\0';
        if (!Katakana::IsAccepted(Katakana::Code(strValue[nByte], cSecond)))
            return Refuse(HE70003E, FUNCTION);
    }
    return eNoted;
}
