#include "KZCEkaValidExist.h"

KZCEkaMessage_t KZCEkaValidExist::_validate(const char* szValue)
{
    return szValue == nullptr || *szValue == '\0' ? HE70001E : MSG_NONE;
}
