#pragma once

#include "KZCEkaValidDate.h"
#include "TokenList.h"

/// Passes if the Western year of the item's column is in a list.
class KZCEkaValidContainYear final : public KZCEkaValidDate
{
public:
    using KZCEkaValidDate::KZCEkaValidDate;
    /// \param szValue  Years of four digits.
    void SetParam(const char* szValue);

    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;
    using KZCEkaValidItem::ValidateOuter;
    int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    TokenList m_years;
};
