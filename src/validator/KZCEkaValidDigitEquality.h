#pragma once

#include "KZCEkaValidItem.h"

/// Passes a value whose characters at given positions are among the allowed ones or, if none are
/// given, not among the forbidden ones.
class KZCEkaValidDigitEquality final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    /// \param szValue  Positions from 1. \param szMin  Forbidden. \param szMax  Allowed characters.
    void SetParam(const char* szValue, const char* szMin, const char* szMax);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    std::string m_strValue;
    std::string m_strMax;
    std::string m_strMin;
    std::vector<long> m_vecPosition;  ///< of m_strValue, from 1
    std::string m_strAllowed;         ///< first bytes of the tokens of m_strMax
    std::string m_strForbidden;       ///< the same of m_strMin
};
