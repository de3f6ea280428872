#include "KZCEkaValidOnward.h"

#include "DateLiteral.h"
#include "KZCMacOSNative.h"
#include "RangeVerdict.h"
#include "text/CText.h"

void KZCEkaValidOnward::SetParam(const char* szValue)
{
    m_strValue = CText::OrEmpty(szValue);
    m_strBound = DateLiteral::OfEightCharacters(szValue);
}

KZCEkaMessage_t KZCEkaValidOnward::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidOnward::_validate";
    const RangeVerdict verdict(Guarded(FUNCTION, [&] {
        return KZCMacOSNative::rangeDate(szValue, m_strBound.c_str(), nullptr, false);
    }));
    if (verdict.Code() == -2)
        return HE70012E;
    if (verdict.Code() == -1 || verdict.IsBeforeMin())
        return HE70010E;
    if (!verdict.IsPlaced())
        RaiseParameterFault(FUNCTION);
    return MSG_NONE;
}
