#pragma once

#include "KZCEkaValidItem.h"

/// Passes three Western cells of year, month and day that are a real date, or all empty. Records
/// what it refuses by itself, also as a condition; from then on the base class records nothing
/// more.
class KZCEkaValidExistDateYYYYMMDD final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    /// \param szValue  The three columns, from 1.
    void SetParam(const char* szValue);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
    /// Columns of year, month and day, from 0.
    struct Columns
    {
        long lYear;
        long lMonth;
        long lDay;
    };

    Columns ReadColumns() const;
    /// The three cells are a real date.
    bool IsReal(const std::string& strDate, const Columns& columns) const;

    std::string m_strValue;
};
