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

    /// Where the date lies in a range of the lists, as _rangeDate tells it; nothing if a bound of
    /// it is too short for a date.
    std::optional<long> Place(const char* szValue, std::size_t nPair);

    std::string m_strMin;
    std::string m_strMax;
    std::vector<std::string> m_vecMin;  ///< of m_strMin
    std::vector<std::string> m_vecMax;
};
