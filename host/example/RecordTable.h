// A CSV file without a file, whose cells can be changed.
#pragma once

#include <string>
#include <utility>

#include "KZCEkaCsvFile.h"

namespace host {

/// Holds records whose generations, if the family has them, follow their cells. Records count from
/// 0, columns from 1.
class RecordTable final : public KZCEkaCsvFile
{
public:
    explicit RecordTable(bool bHasGenerations = true) : m_bHasGenerations(bHasGenerations) {}

    /// Replaces the record, or adds one behind the last.
    void Put(long lRow, Record record)
    {
        const auto nRow = static_cast<std::size_t>(lRow);
        if (nRow == m_vecRecord.size())
            m_vecRecord.emplace_back();
        m_vecRecord.at(nRow) = std::move(record);
        FindGeneration(lRow);
    }
    void PutCell(long lRow, long lColumn, std::string strCell)
    {
        m_vecRecord.at(static_cast<std::size_t>(lRow)).at(static_cast<std::size_t>(lColumn - 1)) =
            std::move(strCell);
        FindGeneration(lRow);
    }
    const Record& At(long lRow) const { return m_vecRecord.at(static_cast<std::size_t>(lRow)); }
    const std::vector<Record>& Records() const { return m_vecRecord; }
    std::string Cell(long lRow, long lColumn) const { return GetItem(lRow, lColumn - 1); }

private:
    void FindGeneration(long lRow)
    {
        m_mapGeneration.erase(lRow);
        if (m_bHasGenerations)
            checkGeneration(lRow);
    }

    bool m_bHasGenerations;
};

}  // namespace host
