#include "file/FilePlace.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/vfs.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <deque>
#include <utility>

namespace host {
namespace {

constexpr int LINKS_MAX = 40;  // as the system itself
constexpr mode_t NEW_FOLDER_MODE = 0777;
constexpr uid_t ROOT = 0;
constexpr int FOLDER_FLAGS = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

/// The names of a path; an empty one, as behind a trailing slash, is ".".
std::deque<std::string> NamesOf(std::string_view strPath)
{
    std::deque<std::string> listName;
    std::size_t nBegin = 0;
    while (nBegin <= strPath.size()) {
        const std::size_t nEnd = std::min(strPath.find('/', nBegin), strPath.size());
        const std::string_view strName = strPath.substr(nBegin, nEnd - nBegin);
        if (!strName.empty())
            listName.emplace_back(strName);
        else if (nEnd == strPath.size() && !listName.empty())
            listName.emplace_back(".");
        nBegin = nEnd + 1;
    }
    return listName;
}

/// Whether the folder shows open files as links whose texts are no paths.
bool IsOfProcesses(int nFolder)
{
    struct statfs info = {};
    return fstatfs(nFolder, &info) == 0 && info.f_type == PROC_SUPER_MAGIC;
}

class Walk
{
public:
    Walk(std::deque<std::string> listName, Missing eMissing)
        : m_listName(std::move(listName)), m_eMissing(eMissing)
    {
    }

    int Start()
    {
        m_folder = Descriptor(open("/", FOLDER_FLAGS));
        return m_folder.IsOpen() ? 0 : errno;
    }

    /// \param nKept  Names at the end that are left for the caller: 1 for a file, 0 for a folder.
    int GoOn(std::size_t nKept)
    {
        while (m_listName.size() > nKept)
            if (const int nError = Enter(); nError != 0)
                return nError;
        return 0;
    }

    /// Puts the target of a link in its place if the last name is one.
    /// \param bLink  Set if it was: then there is more to go.
    int LookAtLast(bool& bLink, bool& bOpenFile)
    {
        bLink = false;
        if (m_listName.empty())
            return 0;
        const std::string& strName = m_listName.front();
        struct stat info = {};
        if (fstatat(m_folder.Get(), strName.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0)
            return errno == ENOENT ? 0 : errno;
        if (!S_ISLNK(info.st_mode))
            return 0;
        struct stat target = {};
        bOpenFile = IsOfProcesses(m_folder.Get()) &&
                    fstatat(m_folder.Get(), strName.c_str(), &target, 0) == 0 &&
                    !S_ISREG(target.st_mode) && !S_ISDIR(target.st_mode);
        if (bOpenFile)
            return 0;
        bLink = true;
        return Resolve(info);
    }

    Descriptor TakeFolder() { return std::move(m_folder); }
    std::string TakeName() { return m_listName.empty() ? "." : std::move(m_listName.front()); }

private:
    /// Into the first name, or into what it is a link to.
    int Enter()
    {
        const char* szName = m_listName.front().c_str();
        int nNext = openat(m_folder.Get(), szName, FOLDER_FLAGS);
        if (nNext < 0 && errno == ENOENT && m_eMissing == Missing::Made) {
            if (mkdirat(m_folder.Get(), szName, NEW_FOLDER_MODE) != 0 && errno != EEXIST)
                return errno;
            nNext = openat(m_folder.Get(), szName, FOLDER_FLAGS);
        }
        if (nNext >= 0) {
            m_folder = Descriptor(nNext);
            m_listName.pop_front();
            return 0;
        }
        const int nError = errno;
        struct stat info = {};
        if (fstatat(m_folder.Get(), szName, &info, AT_SYMLINK_NOFOLLOW) != 0 ||
            !S_ISLNK(info.st_mode))
            return nError;
        return Resolve(info);
    }

    /// Puts the target of the link that the first name is in its place.
    int Resolve(const struct stat& info)
    {
        if (IsStrangersInSharedFolder(m_folder.Get(), info))
            return EACCES;
        if (++m_nLinks > LINKS_MAX)
            return ELOOP;
        std::array<char, PATH_MAX> szTarget{};
        const ssize_t nLength = readlinkat(m_folder.Get(), m_listName.front().c_str(),
                                           szTarget.data(), szTarget.size());
        if (nLength < 0)
            return errno;
        const std::string_view strTarget(szTarget.data(), static_cast<std::size_t>(nLength));
        std::deque<std::string> listTarget = NamesOf(strTarget);
        m_listName.pop_front();
        m_listName.insert(m_listName.begin(), listTarget.begin(), listTarget.end());
        return strTarget.starts_with('/') ? Start() : 0;
    }

    Descriptor m_folder;
    std::deque<std::string> m_listName;  ///< still to be gone
    Missing m_eMissing;
    int m_nLinks = 0;
};

}  // namespace

int FindPlace(const std::string& strPath, FilePlace& place)
{
    Walk walk(NamesOf(strPath), Missing::Fails);
    int nError = walk.Start();
    for (bool bLink = true; nError == 0 && bLink;) {
        nError = walk.GoOn(1);
        if (nError == 0)
            nError = walk.LookAtLast(bLink, place.bOpenFile);
    }
    if (nError != 0)
        return nError;
    place.folder = walk.TakeFolder();
    place.strName = walk.TakeName();
    return 0;
}

int FindFolder(const std::string& strPath, Missing eMissing, Descriptor& folder)
{
    Walk walk(NamesOf(strPath), eMissing);
    int nError = walk.Start();
    if (nError == 0)
        nError = walk.GoOn(0);
    if (nError == 0)
        folder = walk.TakeFolder();
    return nError;
}

bool LeadsBelow(std::string_view strRelative)
{
    while (true) {
        const std::size_t nEnd = strRelative.find('/');
        const std::string_view strName = strRelative.substr(0, nEnd);
        if (strName.empty() || strName == "." || strName == ".." ||
            strName.find('\0') != std::string_view::npos)
            return false;
        if (nEnd == std::string_view::npos)
            return true;
        strRelative.remove_prefix(nEnd + 1);
    }
}

int FindPlaceBelow(int nFolder, const std::string& strRelative, Missing eMissing, FilePlace& place)
{
    if (!LeadsBelow(strRelative))
        return EINVAL;
    Descriptor folder(openat(nFolder, ".", FOLDER_FLAGS));
    if (!folder.IsOpen())
        return errno;
    std::deque<std::string> listName = NamesOf(strRelative);
    for (; listName.size() > 1; listName.pop_front()) {
        const char* szName = listName.front().c_str();
        if (eMissing == Missing::Made && mkdirat(folder.Get(), szName, NEW_FOLDER_MODE) != 0 &&
            errno != EEXIST)
            return errno;
        folder = Descriptor(openat(folder.Get(), szName, FOLDER_FLAGS));
        if (!folder.IsOpen())
            return errno;
    }
    place.folder = std::move(folder);
    place.strName = std::move(listName.front());
    place.bOpenFile = false;
    return 0;
}

bool IsStrangersInSharedFolder(int nFolder, const struct stat& info)
{
    struct stat folder = {};
    return fstat(nFolder, &folder) == 0 && (folder.st_mode & (S_IWGRP | S_IWOTH)) != 0 &&
           info.st_uid != geteuid() && info.st_uid != ROOT && info.st_uid != folder.st_uid;
}

int OpenRegularFile(int nFolder, const char* szName, Descriptor& file)
{
    Descriptor opened(openat(nFolder, szName, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!opened.IsOpen())
        return errno;
    struct stat info = {};
    if (fstat(opened.Get(), &info) != 0)
        return errno;
    if (!S_ISREG(info.st_mode))
        return S_ISDIR(info.st_mode) ? EISDIR : EINVAL;
    file = std::move(opened);
    return 0;
}

std::string PathOfDescriptor(int nFile)
{
    return "/proc/self/fd/" + std::to_string(nFile);
}

}  // namespace host
