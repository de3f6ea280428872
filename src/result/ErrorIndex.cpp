#include "result/ErrorIndex.h"

#include <algorithm>

void ErrorIndex::Add(std::int64_t nRecord, std::int64_t nColumn, std::int64_t nColumnEnd)
{
    m_mapRecord[nRecord].emplace(nColumn, nColumnEnd);
}

bool ErrorIndex::Covers(std::int64_t nRecord, std::int64_t nColumn) const
{
    const auto pRecord = m_mapRecord.find(nRecord);
    if (pRecord == m_mapRecord.end())
        return false;
    return std::ranges::any_of(pRecord->second, [nColumn](const auto& columns) {
        const auto& [nFirst, nLast] = columns;
        return nFirst == nColumn || (nLast > 0 && nFirst <= nColumn && nColumn <= nLast);
    });
}
