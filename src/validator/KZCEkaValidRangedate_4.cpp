#include "KZCEkaValidRangedate_4.h"

#include "DateLiteral.h"
#include "text/CText.h"

void KZCEkaValidRangedate_4::SetParam(const char* szMin, const char* szMax)
{
    m_strMin = CText::OrEmpty(szMin);
    m_strMax = CText::OrEmpty(szMax);
    m_vecMin = CText::SplitTokens(m_strMin);
    m_vecMax = CText::SplitTokens(m_strMax);
}

KZCEkaMessage_t KZCEkaValidRangedate_4::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidRangedate_4::_validate";
    if (*CText::OrEmpty(szValue) == '\0')
        return HE70010E;
    const auto lPlace = Guarded(FUNCTION, [&] { return Place(szValue); });
    if (!lPlace || *lPlace < -2)
        RaiseParameterFault(FUNCTION);
    if (*lPlace >= 0)
        return MSG_NONE;
    const KZCEkaMessage_t eVerdict = *lPlace == -2 ? Refuse(HE70012E, FUNCTION) : HE70010E;
    return Refuse(eVerdict, FUNCTION, "すべてのチェック範囲で範囲外です。");
}

std::optional<long> KZCEkaValidRangedate_4::Place(const char* szValue)
{
    if (m_vecMin.empty() || m_vecMax.empty())
        return -1;
    const auto strFirst = DateLiteral::WithSlashes(m_vecMin.front());
    const auto strLast = DateLiteral::WithSlashes(m_vecMax.front());
    if (!strFirst || !strLast)
        return std::nullopt;
    return _rangeDate(szValue, strFirst->c_str(), strLast->c_str(), true);
}
