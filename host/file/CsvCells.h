// The cells of a CSV file for display, split as the library of the file's family splits them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "form/Family.h"

namespace host {

/// Records end at LF, CR or CR LF, columns at a comma; values are trimmed. Records and columns
/// count from 1, as the library reports them. In the base family blank records count; the others
/// don't store them, so they have no number. Double quotes mean something in the CrossBorder family
/// alone: a value that begins with one may hold commas and line ends, and "" in it is one quote.
///
/// A record is split when it is first asked for and kept until another one is: a loop over all
/// cells is linear. Not thread-safe.
class CsvCells
{
public:
    /// \param strText  The whole file in UTF-8, with any line ends.
    explicit CsvCells(std::string strText, Family eFamily = Family::Base);
    CsvCells(const CsvCells&) = delete;
    CsvCells& operator=(const CsvCells&) = delete;

    Family FamilyOfCells() const { return m_eFamily; }
    /// In the base family a line end at the very end of the file leaves one more, blank, record.
    std::size_t RecordCount() const { return m_vecRecord.size(); }
    /// Records that hold something: in the base family those whose first column is filled, in the
    /// others all that are stored.
    std::size_t FilledRecordCount() const;
    /// The records by which the library limits a file: those whose first column is filled; all of a
    /// procedure that spreads one form over many records.
    std::size_t LimitedRecordCount() const;
    /// 0 for a record that isn't there.
    std::size_t ColumnCount(std::size_t nRecord) const;
    /// One column that is empty after trimming, or no record at all.
    bool IsBlank(std::size_t nRecord) const;
    /// The trimmed value; empty for a cell that isn't there.
    std::string Cell(std::size_t nRecord, std::size_t nColumn) const;
    /// The trimmed values of a range of columns, joined by commas. Stops at the record's end.
    std::string Cells(std::size_t nRecord, std::size_t nColumn, std::size_t nColumnEnd) const;
    /// The line of the file (from 1) in which the record begins; 0 for one that isn't there. A line
    /// end inside quotes is one, too.
    std::size_t Line(std::size_t nRecord) const;
    /// The first record that isn't blank, or nothing.
    std::optional<std::size_t> FirstRecord() const;
    /// First column of that record, or empty.
    std::string TypeId() const;

private:
    struct Record
    {
        std::string_view strText;  ///< into m_strText, without its line end
        std::size_t nLine;
    };

    bool HasFilledFirstColumn(std::size_t nRecord) const;
    const std::vector<std::string>& Split(std::size_t nRecord) const;

    Family m_eFamily;
    std::string m_strText;
    std::vector<Record> m_vecRecord;
    mutable std::size_t m_nSplit = 0;  ///< the record that m_vecCell holds; 0 for none
    mutable std::vector<std::string> m_vecCell;
    mutable std::size_t m_nSurplus = 0;  ///< columns of that record that aren't held
};

/// The family whose library operations take the file: that of its first record's type id, which in
/// the CrossBorder family may stand in double quotes. Base if no family knows it.
/// \param strText  The whole file, in any charset that leaves ASCII as it is.
Family FamilyOfText(std::string_view strText);

}  // namespace host
