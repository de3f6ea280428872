#include "file/PendingDocument.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

namespace fs = std::filesystem;

namespace host {
namespace {

constexpr mode_t MODE_BITS = 0777;
/// In a folder that isn't there and that nobody can make.
constexpr const char* NO_FOLDER = "/proc/self/kzekamok-absent/link.mok";

bool IsMissing(int nError)
{
    return nError == ENOENT || nError == ENOTDIR;
}

}  // namespace

PendingDocument::PendingDocument(const std::string& strPath)
    : m_nError(FindPlace(strPath, m_place)), m_strPath(NO_FOLDER)
{
}

PendingDocument::PendingDocument(FilePlace place)
    : m_place(std::move(place)), m_bFilesAlone(true), m_strPath(NO_FOLDER)
{
}

std::string PendingDocument::Open()
{
    if (m_nError != 0)
        return IsMissing(m_nError) ? std::string() : std::strerror(m_nError);
    struct stat info = {};
    if (fstatat(m_place.folder.Get(), m_place.strName.c_str(), &info,
                m_place.bOpenFile ? 0 : AT_SYMLINK_NOFOLLOW) != 0)
        return errno == ENOENT ? OpenFile(ModeOfNewFile()) : std::strerror(errno);
    if (S_ISDIR(info.st_mode))
        return std::strerror(EISDIR);
    if (S_ISLNK(info.st_mode) && m_bFilesAlone)
        return OpenFile(ModeOfNewFile());
    if (!S_ISREG(info.st_mode))
        return m_bFilesAlone ? std::strerror(EEXIST) : OpenDevice(info);
    if (faccessat(m_place.folder.Get(), m_place.strName.c_str(), W_OK, AT_EACCESS) != 0)
        return std::strerror(errno);
    const mode_t mode = info.st_mode & MODE_BITS;
    return OpenFile(info.st_uid == geteuid() ? mode : mode & ModeOfNewFile());
}

std::string PendingDocument::OpenFile(mode_t mode)
{
    m_mode = mode;
    m_file.emplace(m_place);
    const int nError = m_file->Open();
    if (nError != 0) {
        m_file.reset();
        return std::strerror(nError);
    }
    return MakePath(m_file->Folder());
}

/// The private folder stands where temporary files do: beside a device nothing can be made.
std::string PendingDocument::OpenDevice(const struct stat& info)
{
    if (!m_place.bOpenFile && IsStrangersInSharedFolder(m_place.folder.Get(), info))
        return std::strerror(EACCES);
    const int nFlags = O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    Descriptor device(openat(m_place.folder.Get(), m_place.strName.c_str(),
                             m_place.bOpenFile ? nFlags : nFlags | O_NOFOLLOW));
    if (!device.IsOpen() || fcntl(device.Get(), F_SETFL, O_WRONLY) != 0)
        return std::strerror(errno);
    struct stat opened = {};
    if (fstat(device.Get(), &opened) != 0 || S_ISREG(opened.st_mode))
        return std::strerror(EEXIST);
    std::error_code error;
    const fs::path folder = fs::temp_directory_path(error);
    if (error)
        return error.message();
    Descriptor temporary;
    int nError = FindFolder(folder.string(), Missing::Fails, temporary);
    if (nError == 0)
        nError = m_deviceFolder.Make(temporary.Get());
    if (nError != 0)
        return std::strerror(nError);
    m_device = std::move(device);
    return MakePath(m_deviceFolder);
}

std::string PendingDocument::MakePath(const PrivateFolder& folder)
{
    if (symlinkat(PathOfDescriptor(Get()).c_str(), folder.Get(), PrivateFolder::LINK_NAME) != 0)
        return std::strerror(errno);
    m_strPath = PathOfDescriptor(folder.Get()) + "/" + PrivateFolder::LINK_NAME;
    return {};
}

std::string PendingDocument::Keep(Existing eExisting)
{
    return m_file ? m_file->Keep(m_mode, eExisting) : std::string();
}

}  // namespace host
