#pragma once

#include "KZCEkaValidDate.h"

/// Passes if the year of this column is the year of another one plus a constant.
class KZCEkaValidEqualyear final : public KZCEkaValidDate
{
public:
    using KZCEkaValidDate::KZCEkaValidDate;
    /// \param szValue  Column of the other year's era, from 1. \param szMin  Taken away from it.
    /// \param szMax    Added to it.
    void SetParam(const char* szValue, const char* szMin, const char* szMax);

    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;
    using KZCEkaValidItem::ValidateOuter;
    int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;

private:
    using KZCEkaValidDate::_validate;
    KZCEkaMessage_t _validate(const std::string& strYear, const std::string& strOther);
    /// \param szFunction  The operation that asks, for the log.
    std::string ReadOtherYear(const KZCEkaCsvFile* pCsv, long lRow, const char* szFunction);

    std::string m_strValue;
    std::string m_strMin;
    std::string m_strMax;
    long m_lOtherColumn = 0;  ///< from 1
    long m_lOffset = 0;       ///< years
};
