#pragma once

#include <optional>

#include "DateLiteral.h"
#include "KZCEkaValidDate.h"

/// Passes a date between two others, each from a column of the record or from a cell of another
/// record. The interval is open; the parameter "include" closes both ends.
class KZCEkaValidRangebasedate_2 final : public KZCEkaValidDate
{
public:
    using KZCEkaValidDate::KZCEkaValidDate;
    /// \param szValue  "include" or empty. \param szMin, szMax  Column from 1, "row_col", or empty.
    void SetParam(const char* szValue, const char* szMin, const char* szMax);

    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;
    using KZCEkaValidItem::ValidateOuter;
    int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;

private:
    /// Where a bound comes from.
    struct Bound
    {
        std::string strParameter;
        std::optional<DateLiteral::CellReference> reference;
        long lColumn = 0;  ///< from 1; below 1 for no bound

        explicit Bound(const char* szParameter = nullptr);
    };

    /// The date of a bound, empty for no bound; nothing if the check doesn't apply.
    std::optional<std::string> Resolve(const KZCEkaCsvFile* pCsv, long lRow, const Bound& bound);
    /// The date of a bound as a plain column.
    std::string ReadColumn(const KZCEkaCsvFile* pCsv, long lRow, const Bound& bound);

    using KZCEkaValidDate::_validate;
    KZCEkaMessage_t _validate(const std::string& strDate,
                              const std::string& strMin,
                              const std::string& strMax) const;

    std::string m_strValue;
    bool m_bInclude = false;
    Bound m_min;
    Bound m_max;
};
