#include "KZCEkaValidOnward.h"

#include "DateLiteral.h"
#include "Fault.h"
#include "KZCMacOSNative.h"
#include "RangeVerdict.h"

void KZCEkaValidOnward::SetParam(const char* szValue)
{
    m_strBound = DateLiteral::OfEightCharacters(szValue);
}

KZCEkaMessage_t KZCEkaValidOnward::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidOnward::_validate";
    const RangeVerdict verdict(
        KZCMacOSNative::rangeDate(szValue, m_strBound.c_str(), nullptr, false));
    if (verdict.Code() == -2)
        return Refuse(HE70012E, FUNCTION);
    if (verdict.Code() == -1 || verdict.IsBeforeMin())
        return Refuse(HE70010E, FUNCTION);
    if (!verdict.IsPlaced())
        RaiseFault(FUNCTION, nullptr);
    return MSG_NONE;
}
