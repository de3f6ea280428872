#pragma once

#include "KZCEkaValidDate.h"

/// Passes a date in at least one of a list of ranges. A pair of bounds that begin with "****" is a
/// range within the value's own year.
class KZCEkaValidRangedate final : public KZCEkaValidDate
{
public:
    using KZCEkaValidDate::KZCEkaValidDate;
    /// \param szMin, szMax  Dates as YYYYMMDD, paired by position.
    void SetParam(const char* szMin, const char* szMax);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    std::vector<std::string> m_vecMin;
    std::vector<std::string> m_vecMax;
};
