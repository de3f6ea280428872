#pragma once

#include "KZCEkaValidItem.h"

/// Passes if one of the listed cells of the record is filled. The item's own cell isn't looked at.
class KZCEkaValidAnyExist final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    /// \param szValue  Columns from 1.
    void SetParam(const char* szValue);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    std::string m_strValue;
    std::vector<long> m_vecColumn;  ///< of m_strValue, from 1
};
