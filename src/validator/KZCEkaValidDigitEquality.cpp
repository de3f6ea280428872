#include "KZCEkaValidDigitEquality.h"

#include "CText.h"

namespace {

/// The first bytes of a list's tokens.
std::string FirstBytes(const char* szList)
{
    std::string strBytes;
    for (const std::string& strToken : CText::SplitTokens(CText::OrEmpty(szList)))
        strBytes += strToken.front();
    return strBytes;
}

}  // namespace

void KZCEkaValidDigitEquality::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
    m_bGiven = *CText::OrEmpty(szValue) != '\0';
    m_vecPosition = CText::SplitNumbers(CText::OrEmpty(szValue));
    m_strForbidden = FirstBytes(szMin);
    m_strAllowed = FirstBytes(szMax);
}

KZCEkaMessage_t KZCEkaValidDigitEquality::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidDigitEquality::_validate";
    if (!m_bGiven)
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
            return Refuse(HE70010E, FUNCTION);
    }
    return MSG_NONE;
}
