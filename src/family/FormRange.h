// Which records of a file a report of a definition file is for.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

/// The rows of a report element as they stand there. Records count from 1.
struct FormRange
{
    std::int64_t nStartRow = 0;  ///< 0: the first record
    std::int64_t nEndRow = 0;    ///< 0 and -1: up to the file's end
    bool bTrailer = false;       ///< the file's last record alone

    constexpr bool HasOpenEnd() const { return nEndRow == 0 || nEndRow == -1; }
};

/// Neighbouring records, from 1; none if the last stands before the first.
struct RecordSpan
{
    std::int64_t nFirst;
    std::int64_t nLast;

    constexpr bool Has(std::int64_t nRecord) const { return nFirst <= nRecord && nRecord <= nLast; }
};

/// The records of a report in a file of so many.
/// \param bTrailer  The file's last report is a trailer, which keeps its record out of an open end.
constexpr RecordSpan RecordsOf(const FormRange& range, bool bTrailer, std::int64_t nCount)
{
    if (range.bTrailer)
        return {nCount, nCount};
    const std::int64_t nFirst = std::max<std::int64_t>(range.nStartRow, 1);
    if (!range.HasOpenEnd())
        return {nFirst, std::min(range.nEndRow, nCount)};
    return {nFirst, bTrailer ? nCount - 1 : nCount};
}

/// Place of the report that a record (from 1) of a file of so many belongs to, or nothing. A report
/// that stands alone is for all records.
/// \param forms  In the order of the file, with an operation Range().
template <class Forms>
std::optional<std::size_t> FormOfRecord(const Forms& forms,
                                        std::int64_t nRecord,
                                        std::int64_t nCount)
{
    if (forms.size() == 1)
        return 0;
    if (forms.empty())
        return std::nullopt;
    const bool bTrailer = forms.back().Range().bTrailer;
    if (bTrailer && nRecord == nCount)
        return forms.size() - 1;
    for (std::size_t nForm = 0; nForm < forms.size(); ++nForm)
        if (const FormRange range = forms[nForm].Range();
            !range.bTrailer && RecordsOf(range, bTrailer, nCount).Has(nRecord))
            return nForm;
    return std::nullopt;
}
