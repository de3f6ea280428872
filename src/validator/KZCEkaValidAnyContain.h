#pragma once

#include "KZCEkaValidItem.h"
#include "NumberRange.h"

/// Passes if one of the listed cells of the record is a number from min to max.
class KZCEkaValidAnyContain final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    /// \param szValue  Columns from 1.
    void SetParam(const char* szValue, const char* szMin, const char* szMax);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    std::string m_strValue;
    NumberRange m_range;
    std::vector<long> m_vecColumn;  ///< of m_strValue, from 1
};
