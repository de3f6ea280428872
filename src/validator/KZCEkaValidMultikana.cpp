#include "KZCEkaValidMultikana.h"

#include <string_view>

#include "CText.h"
#include "Katakana.h"

KZCEkaMessage_t KZCEkaValidMultikana::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidMultikana::_validate";
    const std::string_view strValue = CText::OrEmpty(szValue);
    // The stray last byte of an odd length matches no code, so an odd length always refuses.
    if (strValue.size() % 2 == 1)
        return Refuse(HE70003E, FUNCTION);
    // In steps of two bytes, wherever the characters begin: wanted.
    for (std::size_t nByte = 0; nByte < strValue.size(); nByte += 2)
        if (!Katakana::IsAccepted(Katakana::Code(strValue[nByte], strValue[nByte + 1])))
            return Refuse(HE70003E, FUNCTION);
    return MSG_NONE;
}
