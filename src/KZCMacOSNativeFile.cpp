// File services.
#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>

#include "KZCLoadResource.h"
#include "KZCMacOSNative.h"
#include "text/CText.h"
#include "text/ShiftJis.h"

namespace {

constexpr mode_t OWNER_ONLY = 0600;
constexpr mode_t ALL_RIGHTS = 07777;
constexpr mode_t EVERYONE = 0666;  // less the process's mask
constexpr std::size_t READ_CHUNK = 65536;
/// Bytes of something that has no size, and how long it may take to give them.
constexpr std::size_t STREAM_SIZE = 67108864;
constexpr std::chrono::milliseconds STREAM_TIME(5000);

/// Owns an open file.
class FileHandle
{
public:
    FileHandle(const char* szPath, int nFlags, mode_t nMode = 0)
        : m_nFile(open(szPath, nFlags | O_CLOEXEC, nMode))
    {
    }
    ~FileHandle()
    {
        if (m_nFile >= 0)
            close(m_nFile);
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    bool IsOpen() const { return m_nFile >= 0; }

    bool IsRegular() const
    {
        struct stat info = {};
        return fstat(m_nFile, &info) == 0 && S_ISREG(info.st_mode);
    }

    bool ReadAll(std::string& strBytes) const
    {
        struct stat info = {};
        if (fstat(m_nFile, &info) == 0 && info.st_size > 0)
            strBytes.reserve(static_cast<std::size_t>(info.st_size) + 1);
        std::array<char, READ_CHUNK> chunk;
        for (;;) {
            const ssize_t nRead = read(m_nFile, chunk.data(), chunk.size());
            if (nRead == 0)
                return true;
            if (nRead > 0)
                strBytes.append(chunk.data(), static_cast<std::size_t>(nRead));
            else if (errno != EINTR)
                return false;
        }
    }

    bool ReadPieces(const KZCMacOSNative::PieceUse& use) const
    {
        std::array<char, READ_CHUNK> chunk;
        for (;;) {
            const ssize_t nRead = read(m_nFile, chunk.data(), chunk.size());
            if (nRead == 0)
                return true;
            if (nRead < 0 && errno != EINTR)
                return false;
            if (nRead > 0 && !use({chunk.data(), static_cast<std::size_t>(nRead)}))
                return true;
        }
    }

    /// The same of something that may end late or never. Opened with O_NONBLOCK.
    bool ReadStream(std::string& strBytes) const
    {
        using Clock = std::chrono::steady_clock;
        const Clock::time_point end = Clock::now() + STREAM_TIME;
        std::array<char, READ_CHUNK> chunk;
        while (strBytes.size() <= STREAM_SIZE) {
            // The end of a pipe that nobody has opened to write yet isn't its end: wait first.
            const auto rest =
                std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
            pollfd wait = {m_nFile, POLLIN, 0};
            const int nReady =
                rest.count() > 0 ? poll(&wait, 1, static_cast<int>(rest.count())) : 0;
            if (nReady < 0 && errno == EINTR)
                continue;
            if (nReady <= 0)
                return false;
            const ssize_t nRead = read(m_nFile, chunk.data(), chunk.size());
            if (nRead == 0)
                return true;
            if (nRead > 0)
                strBytes.append(chunk.data(), static_cast<std::size_t>(nRead));
            else if (errno != EINTR && errno != EAGAIN)
                return false;
        }
        return false;
    }

    /// A regular file of the current user with no second name, readable by him alone.
    bool MakePrivate() const
    {
        struct stat info = {};
        return fstat(m_nFile, &info) == 0 && S_ISREG(info.st_mode) && info.st_uid == geteuid() &&
               info.st_nlink == 1 &&
               ((info.st_mode & ALL_RIGHTS) == OWNER_ONLY || fchmod(m_nFile, OWNER_ONLY) == 0);
    }

    bool WriteAll(std::string_view strBytes) const
    {
        while (!strBytes.empty()) {
            const ssize_t nWritten = write(m_nFile, strBytes.data(), strBytes.size());
            if (nWritten >= 0)
                strBytes.remove_prefix(static_cast<std::size_t>(nWritten));
            else if (errno != EINTR)
                return false;
        }
        return true;
    }

    /// Devices and pipes have no disk to flush to, which is no failure.
    bool Flush() const { return fsync(m_nFile) == 0 || errno == EINVAL || errno == EROFS; }

    /// Back from O_NONBLOCK.
    bool WaitOnWrite() const { return fcntl(m_nFile, F_SETFL, O_WRONLY) == 0; }

    bool Truncate() const { return !IsRegular() || ftruncate(m_nFile, 0) == 0; }

    /// Closes at once, as a late write error may show only here.
    bool Close()
    {
        const int nFile = m_nFile;
        m_nFile = -1;
        return close(nFile) == 0;
    }

private:
    int m_nFile;
};

std::optional<struct stat> GetInfo(const char* szPath)
{
    struct stat info = {};
    if (stat(CText::OrEmpty(szPath), &info) != 0)
        return std::nullopt;
    return info;
}

/// The path without trailing separators; "/" stays.
std::string_view WithoutTrailingSlash(std::string_view strPath)
{
    while (strPath.size() > 1 && strPath.back() == '/')
        strPath.remove_suffix(1);
    return strPath;
}

/// The folder part of a path: empty if it has none.
std::string_view FolderOf(std::string_view strPath)
{
    strPath = WithoutTrailingSlash(strPath);
    const std::size_t nSlash = strPath.rfind('/');
    if (nSlash == std::string_view::npos)
        return {};
    return WithoutTrailingSlash(strPath.substr(0, std::max<std::size_t>(nSlash, 1)));
}

/// Removes the file that a link leads to.
void RemoveLinkTarget(const char* szLink)
{
    std::error_code error;
    const auto target = std::filesystem::canonical(szLink, error);
    if (!error)
        unlink(target.c_str());
}

struct FolderClose
{
    void operator()(DIR* pFolder) const { closedir(pFolder); }
};

}  // namespace

bool KZCMacOSNative::readFile(const char* szPath, std::string& strBytes)
{
    strBytes.clear();
    // A pipe without a writer would block in open; what isn't a regular file is refused right
    // after.
    const FileHandle file(CText::OrEmpty(szPath), O_RDONLY | O_NONBLOCK);
    return file.IsOpen() && file.IsRegular() && file.ReadAll(strBytes);
}

bool KZCMacOSNative::readFile(const char* szPath, const PieceUse& use)
{
    const FileHandle file(CText::OrEmpty(szPath), O_RDONLY | O_NONBLOCK);
    return file.IsOpen() && file.IsRegular() && file.ReadPieces(use);
}

KZCMacOSNative::ReadResult KZCMacOSNative::readStream(const char* szPath, std::string& strBytes)
{
    strBytes.clear();
    const FileHandle file(CText::OrEmpty(szPath), O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (!file.IsOpen())
        return ReadResult::NOT_OPENED;
    const bool bRead = file.IsRegular() ? file.ReadAll(strBytes) : file.ReadStream(strBytes);
    return bRead ? ReadResult::READ : ReadResult::NOT_READ;
}

KZCMacOSNative::WriteResult KZCMacOSNative::writeFile(const char* szPath,
                                                      std::string_view strBytes,
                                                      WriteMode eMode)
{
    const char* szFile = CText::OrEmpty(szPath);
    const auto write = [&](const FileHandle& file) {
        return file.WriteAll(strBytes) && (eMode != WriteMode::FLUSHED || file.Flush());
    };

    // Made or found in one step each, so that the call knows whether the file is its own.
    FileHandle madeFile(szFile, O_WRONLY | O_CREAT | O_EXCL, EVERYONE);
    if (madeFile.IsOpen()) {
        const bool bWritten = write(madeFile);
        if (madeFile.Close() && bWritten)
            return WriteResult::WRITTEN;
        unlink(szFile);
        return WriteResult::NOT_WRITTEN;
    }
    // O_CREAT once more: a link to a file that isn't there yet gets here too. A pipe that nobody
    // reads is refused instead of waited for.
    const bool bThrough = !GetInfo(szFile);
    FileHandle file(szFile, O_WRONLY | O_CREAT | O_NONBLOCK, EVERYONE);
    if (!file.IsOpen() || !file.WaitOnWrite() || !file.Truncate())
        return WriteResult::NOT_OPENED;
    if (write(file))
        return file.Close() ? WriteResult::WRITTEN : WriteResult::NOT_WRITTEN;
    // The old content is gone; half of the new one must not pass for the whole.
    static_cast<void>(file.Truncate());
    if (bThrough)
        RemoveLinkTarget(szFile);
    return WriteResult::NOT_WRITTEN;
}

bool KZCMacOSNative::writeSJISFile(const char* szPath, const char* szText, bool bUtf8)
{
    const std::string_view strText = CText::OrEmpty(szText);
    const auto strUnits = bUtf8 ? Utf8::Decode(strText) : ShiftJis::Decode(strText);
    const auto strBytes = strUnits ? ShiftJis::Encode(*strUnits) : std::nullopt;
    return strBytes && writeFile(szPath, *strBytes, WriteMode::FLUSHED) == WriteResult::WRITTEN;
}

bool KZCMacOSNative::appendToLog(const char* szPath, std::string_view strBytes)
{
    // Whatever stands under the name may have been put there by somebody else: a link would lead
    // the values elsewhere, a pipe would make the request wait.
    const FileHandle file(CText::OrEmpty(szPath),
                          O_WRONLY | O_CREAT | O_APPEND | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY,
                          OWNER_ONLY);
    if (!file.IsOpen() || !file.MakePrivate())
        return false;
    if (file.WriteAll(strBytes))
        static_cast<void>(file.Flush());
    return true;
}

bool KZCMacOSNative::pathFileExists(const char* szPath)
{
    const auto info = GetInfo(szPath);
    return info && !S_ISDIR(info->st_mode);
}

bool KZCMacOSNative::pathFileIsRead(const char* szPath)
{
    return faccessat(AT_FDCWD, CText::OrEmpty(szPath), R_OK, AT_EACCESS) == 0;
}

bool KZCMacOSNative::pathDirectoryExists(const char* szPath)
{
    const std::string strFolder(FolderOf(CText::OrEmpty(szPath)));
    const auto info = GetInfo(strFolder.c_str());
    return info && S_ISDIR(info->st_mode);
}

long KZCMacOSNative::getFileSize(const char* szPath)
{
    const auto info = GetInfo(szPath);
    return info ? static_cast<long>(info->st_size) : -1;
}

std::string KZCMacOSNative::appendFilePath(const char* szBase, const char* szComponent)
{
    if (szBase == nullptr)
        return {};
    std::string strPath(WithoutTrailingSlash(szBase));
    std::string_view strComponent = CText::OrEmpty(szComponent);
    while (strComponent.starts_with('/'))
        strComponent.remove_prefix(1);
    if (strComponent.empty())
        return strPath;
    if (!strPath.empty() && strPath.back() != '/')
        strPath += '/';
    strPath += WithoutTrailingSlash(strComponent);
    return strPath;
}

bool KZCMacOSNative::getFilesUnderFolder(const char* szFolder, std::vector<std::string>& vecFiles)
{
    vecFiles.clear();
    const std::unique_ptr<DIR, FolderClose> pFolder(opendir(CText::OrEmpty(szFolder)));
    if (!pFolder)
        return false;
    for (;;) {
        errno = 0;  // the only way to tell the end of the listing from a failure
        const dirent* pEntry = readdir(pFolder.get());
        if (pEntry == nullptr)
            break;
        const std::string_view strName = pEntry->d_name;
        if (strName == "." || strName == ".." || strName == ".DS_Store")
            continue;
        std::string strPath = appendFilePath(szFolder, pEntry->d_name);
        const auto info = GetInfo(strPath.c_str());
        if (!info || !S_ISDIR(info->st_mode))
            vecFiles.push_back(std::move(strPath));
    }
    const bool bListed = errno == 0;
    std::ranges::sort(vecFiles);
    return bListed;
}

const char* KZCMacOSNative::homeDirectory()
{
    static std::string strHome;
    const char* szHome = secure_getenv("HOME");
    if (szHome == nullptr || *szHome == '\0') {
        const passwd* pUser = getpwuid(getuid());
        szHome = pUser != nullptr ? pUser->pw_dir : nullptr;
    }
    strHome = CText::OrEmpty(szHome);
    return strHome.c_str();
}

std::string KZCMacOSNative::getBundlePath()
{
    return KZCLoadResource::getBundlePath();
}

std::string KZCMacOSNative::getBundlePathName(const char* szName)
{
    return KZCLoadResource::getPathName(CText::OrEmpty(szName));
}
