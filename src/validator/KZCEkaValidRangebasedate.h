#pragma once

#include <optional>

#include "DateLiteral.h"
#include "KZCEkaValidDate.h"

/// Passes a date between two bounds, both inclusive: the record's own date between columns of the
/// record or, with a reference, the date of another record's cell between literal bounds.
class KZCEkaValidRangebasedate final : public KZCEkaValidDate
{
public:
    using KZCEkaValidDate::KZCEkaValidDate;
    /// \param szValue       "row_col" of the date under test, or empty.
    /// \param szMin, szMax  Western dates with a reference, otherwise columns from 1.
    void SetParam(const char* szValue, const char* szMin, const char* szMax);

    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;
    using KZCEkaValidItem::ValidateOuter;
    int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;

private:
    /// The date under test and its bounds.
    struct Dates
    {
        std::string strDate;
        std::string strMin;
        std::string strMax;
    };

    /// The parameters can't serve: neither bound is given, or the reference is none.
    bool HasBadReference() const;
    /// Nothing if the check doesn't apply.
    std::optional<Dates> Resolve(const KZCEkaCsvFile* pCsv, long lRow, long lDateColumn);
    std::string ReadColumn(const KZCEkaCsvFile* pCsv, long lRow, const std::string& strColumn);

    using KZCEkaValidDate::_validate;
    KZCEkaMessage_t _validate(const Dates& dates);

    std::string m_strValue;
    std::string m_strMin;
    std::string m_strMax;
    std::optional<DateLiteral::CellReference> m_reference;  ///< of m_strValue
};
