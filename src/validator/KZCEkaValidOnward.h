#pragma once

#include "KZCEkaValidDate.h"

/// Passes a given date and any later one.
class KZCEkaValidOnward final : public KZCEkaValidDate
{
public:
    using KZCEkaValidDate::KZCEkaValidDate;
    /// \param szValue  Date as YYYYMMDD.
    void SetParam(const char* szValue);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    std::string m_strValue;
    std::string m_strBound;  ///< with slashes; empty for a parameter of another length
};
