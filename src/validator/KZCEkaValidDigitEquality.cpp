#include "KZCEkaValidDigitEquality.h"

#include "text/CText.h"

namespace {

/// The first bytes of a list's tokens.
std::string FirstBytes(const std::string& strList)
{
    std::string strBytes;
    for (const std::string& strToken : CText::SplitTokens(strList))
        strBytes += strToken.front();
    return strBytes;
}

}  // namespace

void KZCEkaValidDigitEquality::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
    m_strValue = CText::OrEmpty(szValue);
    m_strMax = CText::OrEmpty(szMax);
    m_strMin = CText::OrEmpty(szMin);
    m_vecPosition = CText::SplitNumbers(m_strValue);
    m_strAllowed = FirstBytes(m_strMax);
    m_strForbidden = FirstBytes(m_strMin);
}

KZCEkaMessage_t KZCEkaValidDigitEquality::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidDigitEquality::_validate";
    if (m_strValue.empty())
        RaiseParameterFault(FUNCTION);
    const std::string_view strValue = CText::OrEmpty(szValue);
    for (const long lPosition : m_vecPosition) {
        if (lPosition < 1 || static_cast<std::size_t>(lPosition) > strValue.size())
            return Refuse(HE70010E, FUNCTION);
        if (m_strAllowed.empty() && m_strForbidden.empty())
            RaiseParameterFault(FUNCTION);
        const char cByte = strValue[static_cast<std::size_t>(lPosition) - 1];
        const bool bPasses = m_strAllowed.empty() ? m_strForbidden.find(cByte) == std::string::npos
                                                  : m_strAllowed.find(cByte) != std::string::npos;
        if (!bPasses)
            return HE70010E;
    }
    return MSG_NONE;
}
