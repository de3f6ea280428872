#include "KZCEkaValidContainColumn.h"

KZCEkaMessage_t KZCEkaValidContainColumn::Verdict(bool bAgree) const
{
    return bAgree ? MSG_NONE : Refuse(HE70025E, "KZCEkaValidContainColumn::Verdict");
}
