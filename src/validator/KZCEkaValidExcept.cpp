#include "KZCEkaValidExcept.h"

void KZCEkaValidExcept::SetParam(const char* szValue)
{
    m_list.Set(szValue);
}

KZCEkaMessage_t KZCEkaValidExcept::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidExcept::_validate";
    if (!m_list.IsGiven())
        RaiseParameterFault(FUNCTION);
    return szValue != nullptr && Guarded(FUNCTION, [&] { return m_list.ContainsCell(szValue); })
               ? HE99999E
               : MSG_NONE;
}
