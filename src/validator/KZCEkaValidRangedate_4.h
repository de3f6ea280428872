#pragma once

#include "KZCEkaValidDate.h"

/// Passes a date in the first of a list of ranges; the others are never tried.
class KZCEkaValidRangedate_4 final : public KZCEkaValidDate
{
public:
    using KZCEkaValidDate::KZCEkaValidDate;
    /// \param szMin, szMax  Dates as YYYYMMDD, paired by position.
    void SetParam(const char* szMin, const char* szMax);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    /// Where the date lies in the first range, as _rangeDate tells it: out of range if there is
    /// none, nothing if a bound is too short for a date.
    std::optional<long> Place(const char* szValue);

    std::string m_strMin;
    std::string m_strMax;
    std::vector<std::string> m_vecMin;  ///< of m_strMin
    std::vector<std::string> m_vecMax;
};
