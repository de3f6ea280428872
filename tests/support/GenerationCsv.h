// A CSV file without a file, whose records have generations.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "KZCEkaCsvFile.h"

/// Holds what a test gives, unchecked, and shows all that the class keeps.
class GenerationCsv final : public KZCEkaCsvFile
{
public:
    using GenerationMap = std::map<std::int64_t, std::string>;

    /// \param strTypeId  Of the file as a whole; the records aren't looked at.
    explicit GenerationCsv(const std::vector<Record>& vecRecord,
                           GenerationMap mapGeneration = {},
                           std::string strTypeId = {})
    {
        m_table.Assign(vecRecord);
        m_mapGeneration = std::move(mapGeneration);
        m_strTypeId = std::move(strTypeId);
    }

    std::vector<Record> GetRecords() const { return m_table.Records(); }
    const GenerationMap& GetGenerations() const { return m_mapGeneration; }
};
