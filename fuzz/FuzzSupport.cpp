#include "FuzzSupport.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace FuzzSupport {

void Require(bool bHolds, const char* szWhat)
{
    if (bHolds)
        return;
    std::fprintf(stderr, "doesn't hold: %s\n", szWhat);
    std::abort();
}

Bundle::Bundle(std::initializer_list<std::pair<const char*, std::string_view>> listFile)
{
    std::string strTemplate =
        (std::filesystem::temp_directory_path() / "kzekamok-fuzz-XXXXXX").string();
    Require(mkdtemp(strTemplate.data()) != nullptr, "a temporary folder can be made");
    m_path = strTemplate;
    setenv("KZEKAMOK_BUNDLE", m_path.c_str(), 1);
    for (const auto& [szName, strBytes] : listFile)
        Write(szName, strBytes);
}

Bundle::~Bundle()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

void Bundle::Write(const std::string& strName, std::string_view strBytes) const
{
    std::ofstream file(m_path / strName, std::ios::binary);
    file.write(strBytes.data(), static_cast<std::streamsize>(strBytes.size()));
    file.close();
    Require(static_cast<bool>(file), "a file of the resource folder can be written");
}

}  // namespace FuzzSupport
