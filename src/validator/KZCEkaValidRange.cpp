#include "KZCEkaValidRange.h"

#include "text/CText.h"

void KZCEkaValidRange::SetParam(const char* szMin, const char* szMax)
{
    m_range.Set(szMin, szMax);
}

KZCEkaMessage_t KZCEkaValidRange::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidRange::_validate";
    if (!NumberRange::IsNumber(szValue))
        return Refuse(HE70009E, FUNCTION);
    if (!m_range.HasNumbers() || !m_range.IsOrdered())
        RaiseParameterFault(FUNCTION);
    return m_range.Contains(CText::ReadLong(szValue)) ? MSG_NONE : Refuse(HE70009E, FUNCTION);
}
