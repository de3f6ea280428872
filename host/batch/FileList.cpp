#include "batch/FileList.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <istream>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "file/FilePlace.h"
#include "file/SourceFile.h"

namespace fs = std::filesystem;

namespace host {
namespace {

constexpr std::string_view CSV_ENDING = ".csv";
constexpr std::string_view TEXT_ENDING = ".txt";
constexpr const char* DOCUMENT_ENDING = ".mok";
constexpr std::string_view BYTE_ORDER_MARK = "\xef\xbb\xbf";

struct CloseFolder
{
    void operator()(DIR* pFolder) const { closedir(pFolder); }
};

std::string Key(const std::string& strPath)
{
    return fs::path(AbsolutePath(strPath)).lexically_normal().string();
}

bool EndsWith(std::string_view strName, std::string_view strEnding)
{
    const auto toLower = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    return strName.size() >= strEnding.size() &&
           std::ranges::equal(strName.substr(strName.size() - strEnding.size()), strEnding, {},
                              toLower);
}

/// "/" behind a folder, and "./" not in front of a name.
std::string Join(const std::string& strFolder, const std::string& strName)
{
    if (strFolder.empty() || strFolder == ".")
        return strName;
    return strFolder.ends_with('/') ? strFolder + strName : strFolder + "/" + strName;
}

/// Walks a tree without recursion, as its depth is the user's.
class Walk
{
public:
    Walk(const std::string& strOutput, TextFiles eTexts) : m_eTexts(eTexts)
    {
        struct stat status = {};
        if (stat(strOutput.c_str(), &status) == 0)
            m_output = {status.st_dev, status.st_ino};
    }

    FileList Run(const std::string& strFolder)
    {
        m_vecFolder.push_back({strFolder, {}});
        while (!m_vecFolder.empty()) {
            const Folder folder = std::move(m_vecFolder.back());
            m_vecFolder.pop_back();
            Read(folder);
        }
        std::ranges::sort(m_list.vecFile, {}, &BatchFile::strPath);
        return std::move(m_list);
    }

private:
    struct Folder
    {
        std::string strPath;
        std::string strRelative;  ///< empty for the one that the walk began with
    };

    void Read(const Folder& folder)
    {
        const std::unique_ptr<DIR, CloseFolder> pFolder(opendir(folder.strPath.c_str()));
        if (!pFolder)
            return AddProblem(folder, errno);
        struct stat status = {};
        if (!folder.strRelative.empty() && fstat(dirfd(pFolder.get()), &status) == 0 &&
            m_output == std::pair(status.st_dev, status.st_ino))
            return;
        for (;;) {
            errno = 0;
            const dirent* pEntry = readdir(pFolder.get());
            if (pEntry == nullptr) {
                if (errno != 0)
                    AddProblem(folder, errno);
                return;
            }
            Take(folder, dirfd(pFolder.get()), pEntry->d_name);
        }
    }

    void Take(const Folder& folder, int nFolder, const std::string& strName)
    {
        if (strName == "." || strName == "..")
            return;
        struct stat status = {};
        // What has gone since it was listed is no more below the folder.
        if (fstatat(nFolder, strName.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
            return;
        if (S_ISDIR(status.st_mode)) {
            m_vecFolder.push_back(
                {Join(folder.strPath, strName), Join(folder.strRelative, strName)});
            return;
        }
        struct stat target = {};
        if (S_ISLNK(status.st_mode) && fstatat(nFolder, strName.c_str(), &target, 0) == 0 &&
            S_ISDIR(target.st_mode)) {
            ++m_list.nLinks;
            return;
        }
        const bool bText = EndsWith(strName, TEXT_ENDING);
        if (bText && m_eTexts == TextFiles::LeftAside)
            ++m_list.nTexts;
        else if (bText || EndsWith(strName, CSV_ENDING))
            Add(folder, strName,
                S_ISLNK(status.st_mode) && IsStrangersInSharedFolder(nFolder, status));
    }

    void Add(const Folder& folder, const std::string& strName, bool bStrangersLink)
    {
        BatchFile file;
        file.strPath = Join(folder.strPath, strName);
        file.strKey = Key(file.strPath);
        file.strRelative = Join(folder.strRelative, strName);
        file.bStrangersLink = bStrangersLink;
        m_list.vecFile.push_back(std::move(file));
    }

    void AddProblem(const Folder& folder, int nError)
    {
        BatchFile file;
        file.strPath = folder.strPath;
        file.strKey = Key(folder.strPath);
        file.strProblem = std::strerror(nError);
        m_list.vecFile.push_back(std::move(file));
    }

    TextFiles m_eTexts;
    std::optional<std::pair<dev_t, ino_t>> m_output;
    std::vector<Folder> m_vecFolder;  ///< still to be read
    FileList m_list;
};

/// \return false at the end of the list.
bool ReadEntry(std::istream& in, ListForm eForm, std::string& strEntry)
{
    if (!std::getline(in, strEntry, eForm == ListForm::Nul ? '\0' : '\n'))
        return false;
    if (eForm == ListForm::Lines && strEntry.ends_with('\r'))
        strEntry.pop_back();
    return true;
}

/// \param strHere  Key of the present folder.
std::string RelativeToHere(const std::string& strKey, const std::string& strHere)
{
    const std::string strPrefix = strHere.ends_with('/') ? strHere : strHere + "/";
    if (strKey.starts_with(strPrefix))
        return strKey.substr(strPrefix.size());
    return OUTSIDE_FOLDER + strKey;
}

std::string PlainName(const std::string& strRelative)
{
    // An ending in another place than at the end of the name is none.
    for (const std::string_view strEnding : {CSV_ENDING, TEXT_ENDING})
        if (EndsWith(strRelative, strEnding))
            return strRelative.substr(0, strRelative.size() - strEnding.size()) + DOCUMENT_ENDING;
    return strRelative + DOCUMENT_ENDING;
}

}  // namespace

FileList FilesBelow(const std::string& strFolder, const std::string& strOutput, TextFiles eTexts)
{
    return Walk(strOutput, eTexts).Run(strFolder);
}

FileList FilesOfList(std::istream& in, ListForm eForm)
{
    FileList list;
    std::unordered_set<std::string> setKey;
    const std::string strHere = Key(".");
    std::string strEntry;
    for (bool bFirst = true; ReadEntry(in, eForm, strEntry); bFirst = false) {
        if (bFirst && eForm == ListForm::Lines && strEntry.starts_with(BYTE_ORDER_MARK))
            strEntry.erase(0, BYTE_ORDER_MARK.size());
        if (strEntry.empty())
            continue;
        BatchFile file;
        file.strPath = strEntry;
        file.strKey = Key(strEntry);
        if (!setKey.insert(file.strKey).second) {
            ++list.nRepeated;
            continue;
        }
        file.strRelative = RelativeToHere(file.strKey, strHere);
        list.vecFile.push_back(std::move(file));
    }
    std::ranges::sort(list.vecFile, {}, &BatchFile::strPath);
    return list;
}

std::unordered_set<std::string> NameDocuments(std::vector<BatchFile>& vecFile)
{
    const auto isFile = [](const BatchFile& file) { return file.strProblem.empty(); };
    for (BatchFile& file : vecFile)
        if (isFile(file))
            file.strDocument = PlainName(file.strRelative);

    // A name that keeps its ending may be another file's plain one, which then keeps its own.
    for (bool bAgain = true; bAgain;) {
        bAgain = false;
        std::unordered_map<std::string, std::size_t> mapOwners;
        for (const BatchFile& file : vecFile)
            ++mapOwners[file.strDocument];
        for (BatchFile& file : vecFile) {
            std::string strLong = file.strRelative + DOCUMENT_ENDING;
            if (!isFile(file) || mapOwners[file.strDocument] < 2 || file.strDocument == strLong)
                continue;
            file.strDocument = std::move(strLong);
            bAgain = true;
        }
    }

    // Only files in and outside of the present folder can still meet.
    std::unordered_set<std::string> setName;
    for (BatchFile& file : vecFile) {
        const std::string strName = file.strDocument;
        for (std::size_t n = 2; isFile(file) && !setName.insert(file.strDocument).second; ++n)
            file.strDocument = strName.substr(0, strName.size() - std::strlen(DOCUMENT_ENDING)) +
                               "." + std::to_string(n) + DOCUMENT_ENDING;
    }
    return setName;
}

}  // namespace host
