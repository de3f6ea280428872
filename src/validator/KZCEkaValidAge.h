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
    Dates ReadDates(const KZCEkaCsvFile* pCsv, long lRow);

    using KZCEkaValidDate::_validate;
    KZCEkaMessage_t _validate(const char* szBirthDate, const char* szYear);

    std::vector<std::string> m_vecToken;
    bool m_bGiven = false;
    std::optional<int> m_nMin;
    std::optional<int> m_nMax;
};
