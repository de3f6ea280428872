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

    std::vector<std::string> m_vecMin;
    std::vector<std::string> m_vecMax;
};
