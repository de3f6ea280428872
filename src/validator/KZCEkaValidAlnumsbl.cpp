#include "KZCEkaValidAlnumsbl.h"

#include "text/ByteClass.h"

KZCEkaMessage_t KZCEkaValidAlnumsbl::_validate(const char* szValue)
{
    const auto isAccepted = [](char cByte) {
        return cByte == '\n' || cByte == '\r' || (cByte >= ' ' && cByte <= '~');
    };
    if (ByteClass::AllOf(szValue, isAccepted))
        return MSG_NONE;
    return Refuse(HE70035E, "KZCEkaValidAlnumsbl::_validate");
}
