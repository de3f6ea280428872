#pragma once

#include "KZCEkaValidItem.h"

/// Passes a tax office's name that belongs to the code in the next column.
class KZCEkaValidTaxofficenm final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;
    using KZCEkaValidItem::ValidateOuter;
    int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;

private:
    using KZCEkaValidItem::_validate;
    static KZCEkaMessage_t _validate(const char* szCode, const char* szName);
};
