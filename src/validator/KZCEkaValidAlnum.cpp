#include "KZCEkaValidAlnum.h"

#include "text/ByteClass.h"

KZCEkaMessage_t KZCEkaValidAlnum::_validate(const char* szValue)
{
    // Blank and hyphen belong to it, whatever the keyword suggests.
    const auto isAccepted = [](char cByte) {
        return cByte == ' ' || cByte == '-' || ByteClass::IsDigit(cByte) ||
               ByteClass::IsLetter(cByte);
    };
    if (ByteClass::AllOf(szValue, isAccepted))
        return MSG_NONE;
    return Refuse(HE70006E, "KZCEkaValidAlnum::_validate");
}
