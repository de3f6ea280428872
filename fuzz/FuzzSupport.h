// What the fuzz targets share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "KZCEkaCsvFile.h"

/// A target: libFuzzer calls it with every input that it makes, a replay with every seed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize);

namespace FuzzSupport {

/// Ends the process with a message if the condition doesn't hold.
void Require(bool bHolds, const char* szWhat);

inline std::string_view AsText(const std::uint8_t* pData, std::size_t nSize)
{
    return {reinterpret_cast<const char*>(pData), nSize};
}

/// A resource folder of this process. Files in it can be replaced while the library runs.
class Bundle
{
public:
    /// Makes the folder with its files and has the library use it.
    explicit Bundle(std::initializer_list<std::pair<const char*, std::string_view>> listFile);
    ~Bundle();
    Bundle(const Bundle&) = delete;
    Bundle& operator=(const Bundle&) = delete;

    void Write(const std::string& strName, std::string_view strBytes) const;
    std::string Path() const { return m_path.string(); }

private:
    std::filesystem::path m_path;
};

/// A CSV file that takes every record, without asking the definition index.
class UncheckedCsvFile : public KZCEkaCsvFile
{
public:
    bool ValidateRecord(const Record& /*record*/) override { return true; }
    std::vector<Record> Records() const { return m_table.Records(); }
};

}  // namespace FuzzSupport
