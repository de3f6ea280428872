#include "KZCEkaValidCompDate.h"

#include "DateLiteral.h"
#include "Fault.h"
#include "KZCMacOSNative.h"

void KZCEkaValidCompDate::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
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
        RaiseFault(FUNCTION, nullptr);
    switch (KZCMacOSNative::dateTimeComp(szValue, m_strBound.c_str())) {
        case EQUAL:
            return MSG_NONE;
        case LATER:
            return m_bLaterPasses ? MSG_NONE : Refuse(HE70010E, FUNCTION);
        case EARLIER:
            return m_bEarlierPasses ? MSG_NONE : Refuse(HE70010E, FUNCTION);
        case NO_DATE:
            return Refuse(HE70012E, FUNCTION);
        default:
            RaiseFault(FUNCTION, nullptr);
    }
}
