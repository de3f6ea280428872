#include "KZCEkaValidCompDate.h"

#include "DateLiteral.h"
#include "KZCMacOSNative.h"
#include "text/CText.h"

void KZCEkaValidCompDate::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
    m_strValue = CText::OrEmpty(szValue);
    m_strMin = CText::OrEmpty(szMin);
    m_strMax = CText::OrEmpty(szMax);
    m_strBound = DateLiteral::OfEightCharacters(szValue);
    if (!m_strBound.empty())
        return;
    m_strBound = DateLiteral::OfEightCharacters(szMin);
    m_bLaterPasses = !m_strBound.empty();
    if (m_bLaterPasses)
        return;
    m_strBound = DateLiteral::OfEightCharacters(szMax);
    m_bEarlierPasses = !m_strBound.empty();
}

KZCEkaMessage_t KZCEkaValidCompDate::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidCompDate::_validate";
    enum Comparison : long
    {
        NO_DATE = -1,
        NO_BOUND = -2,
        EQUAL = 0,
        LATER = 1,
        EARLIER = 2,
    };
    if (m_strBound.empty())
        RaiseParameterFault(FUNCTION);
    switch (Guarded(FUNCTION,
                    [&] { return KZCMacOSNative::dateTimeComp(szValue, m_strBound.c_str()); })) {
        case EQUAL:
            return MSG_NONE;
        case LATER:
            return m_bLaterPasses ? MSG_NONE : HE70010E;
        case EARLIER:
            return m_bEarlierPasses ? MSG_NONE : HE70010E;
        case NO_DATE:
            return HE70012E;
        default:
            RaiseParameterFault(FUNCTION);
    }
}
