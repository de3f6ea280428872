// The cells of a CSV file, held in few large pieces of memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

/// Records of cells, both counted from 0. A cell takes its bytes and a terminator, a record 32
/// bytes beside; records without any text that follow each other take those 32 bytes together.
/// Copies nothing and moves nothing once it is held: a text handed out stays valid until its record
/// is replaced or all is cleared.
class CsvTable
{
public:
    using Record = std::vector<std::string>;

    /// A wider record is counted to its end, but its cells behind this many aren't held.
    static constexpr std::size_t MAX_HELD_COLUMNS = 262'144;

    /// Takes a copy of the record. \param nColumns  What ColumnCount tells of it: its cells and
    /// those that weren't held while it was read. After an exception nothing has changed.
    void Append(const Record& record, std::int64_t nColumns);
    void Append(const Record& record) { Append(record, static_cast<std::int64_t>(record.size())); }
    /// Counts a record behind the others without holding its cells, which are empty from then on.
    /// All records behind it must be counted too.
    void Count(const Record& record);
    /// Puts another record in a held one's place.
    void Replace(std::int64_t nRecord, const Record& record);
    /// These records instead of all.
    void Assign(const std::vector<Record>& vecRecord);
    /// Whether a record is empty. \param bFilled  Its first column isn't empty.
    using IsEmpty = bool (*)(bool bFilled, std::int64_t nColumns);
    /// Removes the empty records. Needs no memory.
    void Remove(IsEmpty isEmpty);
    void Clear();

    std::int64_t RecordCount() const { return m_nHeld + m_nCounted; }
    /// Records whose first column isn't empty.
    std::int64_t FilledCount() const { return m_nHeldFilled + m_nCountedFilled; }
    /// 0 out of range, -1 for a record that is only counted.
    std::int64_t ColumnCount(std::int64_t nRecord) const;
    /// The empty text out of range.
    const char* Cell(std::int64_t nRecord, std::int64_t nColumn) const;
    /// The first column isn't empty.
    bool IsFilled(std::int64_t nRecord) const;
    /// Any column isn't empty.
    bool HasText(std::int64_t nRecord) const;
    /// Bytes of memory that the held records take.
    std::size_t HeldBytes() const;
    /// Copies of the held records.
    std::vector<Record> Records() const;

private:
    /// Records that follow each other and are equal: one with text, or any number without.
    struct Run
    {
        std::int64_t nFirst;
        const char*
            szCells;  ///< one behind the other with their terminators; null if all are empty
        std::int64_t nColumns;
    };
    using Runs = std::deque<Run>;

    static bool BeginsFilled(const Run& run);
    Run Hold(const Record& record, std::int64_t nColumns);
    char* Reserve(std::size_t nBytes);
    /// The run of a held record.
    Runs::iterator Find(std::int64_t nRecord);
    const Run* Find(std::int64_t nRecord) const;
    void Open(std::int64_t nRecord, const Run& run) const;

    Runs m_listRun;
    std::deque<std::unique_ptr<char[]>> m_listBlock;
    char* m_pFree = nullptr;
    std::size_t m_nFree = 0;
    std::size_t m_nBlockBytes = 0;
    std::int64_t m_nHeld = 0;
    std::int64_t m_nHeldFilled = 0;
    std::int64_t m_nCounted = 0;
    std::int64_t m_nCountedFilled = 0;

    /// Where the cells of the record that was asked for last begin: cells are asked for record by
    /// record. Its memory is taken when a record is appended, so that asking needs none.
    mutable std::vector<const char*> m_vecOpen;
    mutable std::int64_t m_nOpen = -1;
};
