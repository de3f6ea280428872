#include "KZCEkaValidAlphabet.h"

#include "text/ByteClass.h"

KZCEkaMessage_t KZCEkaValidAlphabet::_validate(const char* szValue)
{
    if (ByteClass::AllOf(szValue, ByteClass::IsLetter))
        return MSG_NONE;
    return Refuse(HE70006E, "KZCEkaValidAlphabet::_validate");
}
