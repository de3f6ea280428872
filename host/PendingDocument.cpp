#include "PendingDocument.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace fs = std::filesystem;

namespace host {
namespace {

constexpr mode_t NEW_FILE_MODE = 0666;
constexpr mode_t MODE_BITS = 0777;
constexpr const char* TEMPORARY_NAME = ".kzekamok-XXXXXX.mok";
constexpr int SUFFIX_LENGTH = 4;
constexpr int LINKS_MAX = 40;
constexpr std::array INTERRUPTIONS = {SIGHUP, SIGINT, SIGTERM};

// What the handler of an interruption has to remove. A signal finds it whole: the flag is set last
// and cleared first.
std::array<char, PATH_MAX> g_szPending;
volatile std::sig_atomic_t g_bPending = 0;

extern "C" void RemovePending(int nSignal)
{
    if (g_bPending != 0)
        unlink(g_szPending.data());
    std::signal(nSignal, SIG_DFL);
    std::raise(nSignal);
}

bool HasDefaultAction(int nSignal)
{
    struct sigaction action = {};
    return sigaction(nSignal, nullptr, &action) == 0 && action.sa_handler == SIG_DFL;
}

/// A caller that handles a signal by itself, or ignores it, keeps that.
void RemoveOnInterruption(const std::string& strPath)
{
    if (strPath.size() >= g_szPending.size())
        return;
    std::ranges::copy(strPath, g_szPending.begin());
    g_szPending[strPath.size()] = '\0';
    g_bPending = 1;
    for (const int nSignal : INTERRUPTIONS)
        if (HasDefaultAction(nSignal))
            std::signal(nSignal, RemovePending);
}

void KeepOnInterruption()
{
    g_bPending = 0;
    for (const int nSignal : INTERRUPTIONS) {
        struct sigaction action = {};
        if (sigaction(nSignal, nullptr, &action) == 0 && action.sa_handler == RemovePending)
            std::signal(nSignal, SIG_DFL);
    }
}

/// What the path leads to, whether that exists or not. A device or a pipe keeps the path: the links
/// by which the system shows open files have texts for targets and no paths.
fs::path FollowLinks(fs::path path)
{
    std::error_code error;
    if (fs::is_other(path, error))
        return path;
    for (int n = 0; n < LINKS_MAX && fs::is_symlink(fs::symlink_status(path, error)); ++n) {
        const fs::path target = fs::read_symlink(path, error);
        if (error)
            break;
        path = path.parent_path() / target;  // an absolute target stays as it is
    }
    return path;
}

mode_t ModeOfNewFile()
{
    const mode_t mask = umask(0);
    umask(mask);
    return NEW_FILE_MODE & ~mask;
}

}  // namespace

PendingDocument::PendingDocument(const std::string& strPath)
    : m_strPath(FollowLinks(strPath).string()), m_strTemporary(m_strPath)
{
}

PendingDocument::~PendingDocument()
{
    if (m_nFile < 0)
        return;
    unlink(m_strTemporary.c_str());
    KeepOnInterruption();
    close(m_nFile);
}

std::string PendingDocument::Open()
{
    struct stat info = {};
    if (stat(m_strPath.c_str(), &info) != 0)
        return errno == ENOENT || errno == ENOTDIR ? OpenTemporary(ModeOfNewFile())
                                                   : std::strerror(errno);
    if (S_ISDIR(info.st_mode))
        return std::strerror(EISDIR);
    if (!S_ISREG(info.st_mode))
        return {};
    if (access(m_strPath.c_str(), W_OK) != 0)
        return std::strerror(errno);
    return OpenTemporary(info.st_mode & MODE_BITS);
}

std::string PendingDocument::OpenTemporary(mode_t mode)
{
    m_mode = mode;
    m_strTemporary = (fs::path(m_strPath).parent_path() / TEMPORARY_NAME).string();
    m_nFile = mkostemps(m_strTemporary.data(), SUFFIX_LENGTH, O_CLOEXEC);
    if (m_nFile < 0)
        return errno == ENOENT || errno == ENOTDIR ? std::string() : std::strerror(errno);
    RemoveOnInterruption(m_strTemporary);
    return {};
}

std::uintmax_t PendingDocument::Size() const
{
    struct stat info = {};
    return m_nFile >= 0 && fstat(m_nFile, &info) == 0 ? static_cast<std::uintmax_t>(info.st_size)
                                                      : 0;
}

std::string PendingDocument::Keep()
{
    if (m_nFile < 0)
        return {};
    // On the disk first: a name that survives a power failure must not belong to an empty file.
    if (fchmod(m_nFile, m_mode) != 0 || fsync(m_nFile) != 0 ||
        std::rename(m_strTemporary.c_str(), m_strPath.c_str()) != 0)
        return std::strerror(errno);
    KeepOnInterruption();
    close(m_nFile);
    m_nFile = -1;
    return {};
}

}  // namespace host
