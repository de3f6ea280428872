#include "KZCEkaValidCharlength.h"

#include <algorithm>

#include "KZCEkaCommon.h"
#include "KZCMacOSNative.h"

void KZCEkaValidCharlength::SetParam(const char* szValue, const char* szMax)
{
    m_limit.Set(szValue, szMax);
}

long KZCEkaValidCharlength::CountCharacters(const char* szValue)
{
    const std::vector<unsigned char> vecLength =
        KZCMacOSNative::getStringLengths(szValue, !KZCEkaCommon::GetCsvCheckFlag());
    return std::ranges::find(vecLength, 0) - vecLength.begin();
}

KZCEkaMessage_t KZCEkaValidCharlength::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidCharlength::_validate";
    const auto bAllowed =
        m_limit.Allows(Guarded(FUNCTION, [szValue] { return CountCharacters(szValue); }));
    if (!bAllowed)
        RaiseParameterFault(FUNCTION);
    return *bAllowed ? MSG_NONE : Refuse(HE70007E, FUNCTION);
}
