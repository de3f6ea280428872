#include "KZCEkaValidLength.h"

#include <string_view>

#include "text/CText.h"

void KZCEkaValidLength::SetParam(const char* szValue, const char* szMax)
{
    m_limit.Set(szValue, szMax);
}

KZCEkaMessage_t KZCEkaValidLength::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidLength::_validate";
    const std::string_view strValue = CText::OrEmpty(szValue);
    const auto bAllowed = m_limit.Allows(static_cast<long>(strValue.size()));
    if (!bAllowed)
        RaiseParameterFault(FUNCTION);
    return *bAllowed ? MSG_NONE : Refuse(HE70008E, FUNCTION);
}
