#include "LengthLimit.h"

#include "text/CText.h"

void LengthLimit::Set(const char* szValue, const char* szMax)
{
    m_strValue = CText::OrEmpty(szValue);
    m_strMax = CText::OrEmpty(szMax);
    m_lExact = CText::ReadLong(szValue);
    m_lMax = CText::ReadLong(szMax);
}

std::optional<bool> LengthLimit::Allows(long lLength) const
{
    if (!m_strValue.empty())
        return lLength == m_lExact;
    if (!m_strMax.empty())
        return lLength <= m_lMax;
    return std::nullopt;
}
