#include "KZCEkaValidNumber.h"

#include "text/ByteClass.h"

KZCEkaMessage_t KZCEkaValidNumber::_validate(const char* szValue)
{
    if (ByteClass::AllOf(szValue, ByteClass::IsDigit))
        return MSG_NONE;
    return Refuse(HE70004E, "KZCEkaValidNumber::_validate");
}
