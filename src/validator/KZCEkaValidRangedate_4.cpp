#include "KZCEkaValidRangedate_4.h"

#include "CText.h"
#include "DateLiteral.h"
#include "Fault.h"

void KZCEkaValidRangedate_4::SetParam(const char* szMin, const char* szMax)
{
    m_vecMin = CText::SplitTokens(CText::OrEmpty(szMin));
    m_vecMax = CText::SplitTokens(CText::OrEmpty(szMax));
}

KZCEkaMessage_t KZCEkaValidRangedate_4::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidRangedate_4::_validate";
    if (*CText::OrEmpty(szValue) == '\0' || m_vecMin.empty() || m_vecMax.empty())
        return Refuse(HE70010E, FUNCTION);
    const long lPlace = _rangeDate(szValue, DateLiteral::WithSlashes(m_vecMin.front()).c_str(),
                                   DateLiteral::WithSlashes(m_vecMax.front()).c_str(), true);
    if (lPlace >= 0)
        return MSG_NONE;
    if (lPlace < -2)
        RaiseFault(FUNCTION, nullptr);
    return Refuse(lPlace == -1 ? HE70010E : HE70012E, FUNCTION);
}
