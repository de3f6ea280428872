// A folder of a test's own.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// Made empty on construction and removed with all that is in it on destruction.
class TempFolder
{
public:
    TempFolder()
    {
        std::string strPattern =
            (std::filesystem::temp_directory_path() / "kzekamok-XXXXXX").string();
        if (::mkdtemp(strPattern.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        m_strPath = strPattern;
    }
    ~TempFolder()
    {
        // A test may have taken away the right to look into a folder.
        std::error_code error;
        std::filesystem::permissions(m_strPath, std::filesystem::perms::owner_all, error);
        std::filesystem::remove_all(m_strPath, error);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// The folder itself, without a trailing slash.
    const std::string& Path() const { return m_strPath; }
    /// The full path of something in the folder, whether or not it exists.
    std::string Path(const std::string& strName) const { return m_strPath + "/" + strName; }
    bool Has(const std::string& strName) const { return std::filesystem::exists(Path(strName)); }

    /// Makes or replaces a file, and the folders that it needs. \return Its full path.
    std::string Write(const std::string& strName, std::string_view strBytes) const
    {
        const std::filesystem::path path = Path(strName);
        std::filesystem::create_directories(path.parent_path());
        std::ofstream file(path, std::ios::binary | std::ios::trunc);
        file.write(strBytes.data(), static_cast<std::streamsize>(strBytes.size()));
        file.close();
        if (!file)
            throw std::runtime_error("can't write " + path.string());
        return path.string();
    }

    /// The bytes of a file in the folder. Throws if there is none, so that a missing file can't
    /// pass for an empty one.
    std::string Read(const std::string& strName) const { return ReadPath(Path(strName)); }
    static std::string ReadPath(const std::string& strPath)
    {
        std::ifstream file(strPath, std::ios::binary);
        if (!file)
            throw std::runtime_error("can't read " + strPath);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    /// Makes a folder in the folder. \return Its full path.
    std::string MakeFolder(const std::string& strName) const
    {
        std::filesystem::create_directories(Path(strName));
        return Path(strName);
    }

    /// Names of all that is directly in the folder, sorted.
    std::vector<std::string> Names() const
    {
        std::vector<std::string> vecName;
        for (const auto& entry : std::filesystem::directory_iterator(m_strPath))
            vecName.push_back(entry.path().filename().string());
        std::sort(vecName.begin(), vecName.end());
        return vecName;
    }

private:
    std::string m_strPath;
};
