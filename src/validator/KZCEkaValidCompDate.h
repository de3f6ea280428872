#pragma once

#include "KZCEkaValidDate.h"

/// Passes a date that equals a given one, doesn't lie before it, or doesn't lie behind it: the
/// first of the three parameters with eight characters counts.
class KZCEkaValidCompDate final : public KZCEkaValidDate
{
public:
    using KZCEkaValidDate::KZCEkaValidDate;
    /// \param szValue, szMin, szMax  Dates as YYYYMMDD.
    void SetParam(const char* szValue, const char* szMin, const char* szMax);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    std::string m_strValue;
    std::string m_strMin;
    std::string m_strMax;
    std::string m_strBound;  ///< with slashes; empty if no parameter is usable
    bool m_bLaterPasses = false;
    bool m_bEarlierPasses = false;
};
