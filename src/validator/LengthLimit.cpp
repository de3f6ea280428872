#include "LengthLimit.h"

#include "CText.h"

void LengthLimit::Set(const char* szValue, const char* szMax)
{
    m_lExact.reset();
    m_lMax.reset();
    if (*CText::OrEmpty(szValue) != '\0')
        m_lExact = CText::ReadLong(szValue);
    if (*CText::OrEmpty(szMax) != '\0')
        m_lMax = CText::ReadLong(szMax);
}

std::optional<bool> LengthLimit::Allows(long lLength) const
{
    if (m_lExact)
        return lLength == *m_lExact;
    if (m_lMax)
        return lLength <= *m_lMax;
    return std::nullopt;
}
