#pragma once

#include "ColumnPair.h"
#include "KZCEkaValidItem.h"

/// Passes if the item's cell and another one of the record agree.
class KZCEkaValidContainColumn final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    /// \param szValue       The other column, from 1.
    /// \param szMin, szMax  Taken away from and added to the item's cell.
    void SetParam(const char* szValue, const char* szMin, const char* szMax);

    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;
    using KZCEkaValidItem::ValidateOuter;
    int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;

private:
    ColumnPair m_pair;
};
