#pragma once

#include <optional>

#include "KZCEkaValidItem.h"

/// Passes if none of the listed columns is in error so far. Records nothing when it refuses.
class KZCEkaValidNonerr final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    /// \param szValue  Columns from 1. \param szMin  Record from 1, or empty for the current one.
    void SetParam(const char* szValue, const char* szMin);

    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;
    using KZCEkaValidItem::ValidateOuter;
    int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;

private:
    using KZCEkaValidItem::_validate;
    KZCEkaMessage_t _validate(long lRecord) const;

    bool m_bGiven = false;
    std::optional<long> m_lRecord;  ///< from 1
    std::vector<long> m_vecColumn;  ///< from 1
};
