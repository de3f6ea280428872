// A CSV file without a file, whose cells can be changed.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "KZCEkaCsvFile.h"

namespace host {

/// Holds records whose generations, if the family has them, follow their cells. Records count from
/// 0, columns from 1.
class RecordTable final : public KZCEkaCsvFile
{
public:
    explicit RecordTable(bool bHasGenerations = true) : m_bHasGenerations(bHasGenerations) {}

    void Clear() override
    {
        KZCEkaCsvFile::Clear();
        m_vecRecord.clear();
        m_nFilled = 0;
    }
    /// Replaces the record, or adds one behind the last.
    void Put(long lRow, Record record)
    {
        const auto nRow = static_cast<std::size_t>(lRow);
        if (nRow == m_vecRecord.size()) {
            m_vecRecord.emplace_back();
            m_table.Append({});
        }
        m_vecRecord.at(nRow) = std::move(record);
        Take(lRow);
    }
    void PutCell(long lRow, long lColumn, std::string strCell)
    {
        m_vecRecord.at(static_cast<std::size_t>(lRow)).at(static_cast<std::size_t>(lColumn - 1)) =
            std::move(strCell);
        Take(lRow);
    }
    const Record& At(long lRow) const { return m_vecRecord.at(static_cast<std::size_t>(lRow)); }
    const std::vector<Record>& Records() const { return m_vecRecord; }
    std::string Cell(long lRow, long lColumn) const { return GetItem(lRow, lColumn - 1); }

private:
    /// Brings up to date what depends on the record.
    void Take(long lRow)
    {
        constexpr std::size_t MAX_WASTE = 1'048'576;
        m_table.Replace(lRow, At(lRow));
        // What was replaced stays in the table's memory until it is filled anew.
        if (m_table.HeldBytes() > 2 * m_nFilled + MAX_WASTE) {
            m_table.Assign(m_vecRecord);
            m_nFilled = m_table.HeldBytes();
        }
        m_mapGeneration.erase(lRow);
        if (m_bHasGenerations)
            checkGeneration(lRow);
    }

    bool m_bHasGenerations;
    std::vector<Record> m_vecRecord;
    std::size_t m_nFilled = 0;  ///< bytes that the records take by themselves
};

}  // namespace host
