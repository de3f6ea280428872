#include "KZCEkaValidRangedate.h"

#include <algorithm>

#include "CText.h"
#include "DateLiteral.h"
#include "Fault.h"

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
    m_vecMin = CText::SplitTokens(CText::OrEmpty(szMin));
    m_vecMax = CText::SplitTokens(CText::OrEmpty(szMax));
}

KZCEkaMessage_t KZCEkaValidRangedate::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidRangedate::_validate";
    const std::string strValue = CText::OrEmpty(szValue);
    const std::size_t nSlash = strValue.find('/');
    KZCEkaMessage_t eVerdict = HE70010E;
    for (std::size_t nPair = 0; nPair < std::min(m_vecMin.size(), m_vecMax.size()); ++nPair) {
        std::string strMin = m_vecMin[nPair];
        std::string strMax = m_vecMax[nPair];
        if (nSlash != std::string::npos && strMin.starts_with(OWN_YEAR) &&
            strMax.starts_with(OWN_YEAR)) {
            strMin = WithYear(strMin, strValue.substr(0, nSlash));
            strMax = WithYear(strMax, strValue.substr(0, nSlash));
        }
        const long lPlace = _rangeDate(szValue, DateLiteral::WithSlashes(strMin).c_str(),
                                       DateLiteral::WithSlashes(strMax).c_str(), true);
        if (lPlace >= 0)
            return MSG_NONE;
        if (lPlace == -2) {
            eVerdict = HE70012E;
            break;
        }
        if (lPlace != -1)
            RaiseFault(FUNCTION, nullptr);
    }
    return Refuse(eVerdict, FUNCTION, "すべてのチェック範囲で範囲外です。");
}
