#pragma once

#include "KZCEkaValidDate.h"

/// Passes a date between a fixed one and 30 September of the year in another column. A refusal
/// covers the two columns of that year, and is recorded even with recording switched off.
class KZCEkaValidRangedate_2 final : public KZCEkaValidDate
{
public:
    using KZCEkaValidDate::KZCEkaValidDate;
    /// \param szMin  Date as YYYYMMDD. \param szMax  Column of the year's era, from 1.
    void SetParam(const char* szMin, const char* szMax);

    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;
    using KZCEkaValidItem::ValidateOuter;
    int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;

private:
    using KZCEkaValidDate::_validate;
    KZCEkaMessage_t _validate(const std::string& strDate, const std::string& strYear);

    std::string m_strMin;
    std::string m_strMax;
    std::string m_strFirst;  ///< the date of m_strMin, with slashes
    long m_lYearColumn = 0;  ///< of m_strMax, from 1
};
