#pragma once

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

    std::string m_strValue;
    std::string m_strMin;
    long m_lRecord = 0;             ///< of m_strMin, from 1
    std::vector<long> m_vecColumn;  ///< of m_strValue, from 1
};
