#include "KZCEkaValidCharlength.h"

#include "KZCEkaCommon.h"
#include "KZCMacOSNative.h"

namespace {

/// Characters of a value. Half of a surrogate pair has no length and ends the count.
long CountCharacters(const char* szValue)
{
    long lCount = 0;
    for (const unsigned char nLength :
         KZCMacOSNative::getStringLengths(szValue, !KZCEkaCommon::GetCsvCheckFlag())) {
        if (nLength == 0)
            break;
        ++lCount;
    }
    return lCount;
}

}  // namespace

void KZCEkaValidCharlength::SetParam(const char* szValue, const char* szMax)
{
    m_limit.Set(szValue, szMax);
}

KZCEkaMessage_t KZCEkaValidCharlength::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidCharlength::_validate";
    const auto bAllowed = m_limit.Allows(CountCharacters(szValue));
    if (!bAllowed)
        RaiseParameterFault(FUNCTION);
    return *bAllowed ? MSG_NONE : Refuse(HE70007E, FUNCTION);
}
