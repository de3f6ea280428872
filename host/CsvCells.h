// The cells of a CSV file for display, split as the library splits them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// Records end at LF, CR or CR LF, columns at a comma; quotes mean nothing; values are trimmed.
/// Records and columns count from 1, as the library reports them; blank records count.
class CsvCells
{
public:
    /// \param strText  The whole file in UTF-8, with any line ends.
    explicit CsvCells(std::string strText);
    CsvCells(const CsvCells&) = delete;
    CsvCells& operator=(const CsvCells&) = delete;

    /// A line end at the very end of the file leaves one more, blank, record.
    std::size_t RecordCount() const { return m_vecRecord.size(); }
    /// Records whose first column is filled.
    std::size_t FilledRecordCount() const;
    /// 0 for a record that isn't there.
    std::size_t ColumnCount(std::size_t nRecord) const;
    /// One column that is empty after trimming, or no record at all.
    bool IsBlank(std::size_t nRecord) const;
    /// The trimmed value; empty for a cell that isn't there.
    std::string Cell(std::size_t nRecord, std::size_t nColumn) const;
    /// The trimmed values of a range of columns, joined by commas. Stops at the record's end.
    std::string Cells(std::size_t nRecord, std::size_t nColumn, std::size_t nColumnEnd) const;
    /// The first record that isn't blank, or nothing.
    std::optional<std::size_t> FirstRecord() const;
    /// First column of that record, or empty.
    std::string TypeId() const;

private:
    std::vector<std::string_view> Split(std::size_t nRecord) const;

    std::string m_strText;
    std::vector<std::string_view> m_vecRecord;  ///< into m_strText, without line ends
};

/// The type id in a CSV text, even where the value stands in double quotes as other families' files
/// may have it. Used to tell the family before the library reads the file.
std::string UnquotedTypeId(const CsvCells& cells);

}  // namespace host
