#pragma once

#include "KZCEkaValidDate.h"

/// Passes if the age at a reference date lies between two limits, both inclusive.
class KZCEkaValidAge final : public KZCEkaValidDate
{
public:
    using KZCEkaValidDate::KZCEkaValidDate;
    /// \param szValue  Columns (from 1) of the birth date's and of the reference year's era cells,
    ///     years to add, reference month, reference day; a sixth word "days" makes an error cover
    ///     four columns.
    /// \param szMin, szMax  Ages in years; empty for no limit.
    void SetParam(const char* szValue, const char* szMin, const char* szMax);

    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;
    using KZCEkaValidItem::ValidateOuter;
    int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;

private:
    /// Birth date and reference year of the record.
    struct Dates
    {
        std::string strBirthDate;
        std::string strYear;
    };

    /// Throws std::out_of_range with fewer than two words in the parameter.
    /// \param szFunction  The operation that asks, for the log.
    Dates ReadDates(const KZCEkaCsvFile* pCsv, long lRow, const char* szFunction);

    using KZCEkaValidDate::_validate;
    KZCEkaMessage_t _validate(const char* szBirthDate, const char* szYear);
    /// The age on the reference date, or nothing if either date can't be converted.
    std::optional<int> Age(const char* szBirthDate, const char* szYear);

    std::string m_strValue;
    std::string m_strMin;
    std::string m_strMax;
    std::vector<std::string> m_vecToken;  ///< of m_strValue
    int m_nMin = 0;                       ///< years
    int m_nMax = 0;
};
