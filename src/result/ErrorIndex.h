// Answers "is this cell in error" without walking the list of errors.
#pragma once

#include <cstdint>
#include <set>
#include <unordered_map>
#include <utility>

class ErrorIndex
{
public:
    void Clear() { m_mapRecord.clear(); }
    void Add(std::int64_t nRecord, std::int64_t nColumn, std::int64_t nColumnEnd);
    bool Covers(std::int64_t nRecord, std::int64_t nColumn) const;

private:
    /// Distinct (column, end column) pairs by record.
    std::unordered_map<std::int64_t, std::set<std::pair<std::int64_t, std::int64_t>>> m_mapRecord;
};
