#include "KZCEkaValidRangedate.h"

#include <algorithm>

#include "DateLiteral.h"
#include "text/CText.h"

namespace {

constexpr std::string_view OWN_YEAR = "****";

/// Puts the value's year in place of the four asterisks.
std::string WithYear(const std::string& strBound, const std::string& strYear)
{
    return strYear + strBound.substr(OWN_YEAR.size());
}

}  // namespace

void KZCEkaValidRangedate::SetParam(const char* szMin, const char* szMax)
{
    m_strMin = CText::OrEmpty(szMin);
    m_strMax = CText::OrEmpty(szMax);
    m_vecMin = CText::SplitTokens(m_strMin);
    m_vecMax = CText::SplitTokens(m_strMax);
}

KZCEkaMessage_t KZCEkaValidRangedate::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidRangedate::_validate";
    const std::size_t nPairs = std::min(m_vecMin.size(), m_vecMax.size());
    KZCEkaMessage_t eVerdict = HE70010E;
    for (std::size_t nPair = 0; nPair < nPairs && eVerdict == HE70010E; ++nPair) {
        const auto lPlace = Guarded(FUNCTION, [&] { return Place(szValue, nPair); });
        if (!lPlace || *lPlace < -2)
            RaiseParameterFault(FUNCTION);
        if (*lPlace >= 0)
            return MSG_NONE;
        if (*lPlace == -2)
            eVerdict = Refuse(HE70012E, FUNCTION);
    }
    return Refuse(eVerdict, FUNCTION, "すべてのチェック範囲で範囲外です。");
}

std::optional<long> KZCEkaValidRangedate::Place(const char* szValue, std::size_t nPair)
{
    const std::string strValue = CText::OrEmpty(szValue);
    const std::size_t nSlash = strValue.find('/');
    std::string strMin = m_vecMin[nPair];
    std::string strMax = m_vecMax[nPair];
    if (nSlash != std::string::npos && strMin.starts_with(OWN_YEAR) &&
        strMax.starts_with(OWN_YEAR)) {
        strMin = WithYear(strMin, strValue.substr(0, nSlash));
        strMax = WithYear(strMax, strValue.substr(0, nSlash));
    }
    const auto strFirst = DateLiteral::WithSlashes(strMin);
    const auto strLast = DateLiteral::WithSlashes(strMax);
    if (!strFirst || !strLast)
        return std::nullopt;
    return _rangeDate(szValue, strFirst->c_str(), strLast->c_str(), true);
}
