#include "KZCEkaValidExtension.h"

#include "text/CText.h"

void KZCEkaValidExtension::SetParam(const char* szValue)
{
    m_list.Set(szValue);
}

KZCEkaMessage_t KZCEkaValidExtension::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidExtension::_validate";
    if (!m_list.IsGiven())
        RaiseParameterFault(FUNCTION);
    const std::string_view strPath = CText::OrEmpty(szValue);
    const std::size_t nDot = strPath.rfind('.');
    return nDot != std::string_view::npos && m_list.Contains(strPath.substr(nDot)) ? MSG_NONE
                                                                                   : HE70015E;
}
