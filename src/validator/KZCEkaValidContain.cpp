#include "KZCEkaValidContain.h"

void KZCEkaValidContain::SetParam(const char* szValue)
{
    m_list.Set(szValue);
}

KZCEkaMessage_t KZCEkaValidContain::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidContain::_validate";
    if (!m_list.IsGiven())
        RaiseParameterFault(FUNCTION);
    return szValue != nullptr && Guarded(FUNCTION, [&] { return m_list.ContainsCell(szValue); })
               ? MSG_NONE
               : HE70009E;
}
