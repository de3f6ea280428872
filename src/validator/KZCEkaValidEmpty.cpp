#include "KZCEkaValidEmpty.h"

KZCEkaMessage_t KZCEkaValidEmpty::_validate(const char* szValue)
{
    return szValue == nullptr || *szValue == '\0' ? MSG_NONE : HE70005E;
}
