#include "KZCEkaValidExceptColumn.h"

KZCEkaMessage_t KZCEkaValidExceptColumn::Verdict(bool bAgree) const
{
    return bAgree ? Refuse(HE70010E, "KZCEkaValidExceptColumn::Verdict") : MSG_NONE;
}
