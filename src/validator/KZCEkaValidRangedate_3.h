#pragma once

#include "KZCEkaValidDate.h"

/// Passes a date in the business year that ends on 30 September of the year in another column.
class KZCEkaValidRangedate_3 final : public KZCEkaValidDate
{
public:
    using KZCEkaValidDate::KZCEkaValidDate;
    /// \param szValue  Column of the year's era, from 1.
    void SetParam(const char* szValue);

    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;
    using KZCEkaValidItem::ValidateOuter;
    int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;

private:
    using KZCEkaValidDate::_validate;
    KZCEkaMessage_t _validate(const std::string& strDate, const std::string& strYear);
    /// \param szFunction  The operation that asks, for the log.
    std::string ReadYear(const KZCEkaCsvFile* pCsv, long lRow, const char* szFunction);
    /// Where the date lies in the business year, as _rangeDate tells it; nothing if the year is
    /// none.
    std::optional<long> Place(const std::string& strDate, const std::string& strYear);

    std::string m_strValue;
    long m_lYearColumn = 0;  ///< from 1
};
