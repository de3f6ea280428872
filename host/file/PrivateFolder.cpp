#include "file/PrivateFolder.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cinttypes>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string_view>

namespace host {
namespace {

constexpr std::string_view PREFIX = ".kzekamok-";
constexpr std::size_t DIGITS = 16;
constexpr mode_t OWNER_ONLY = 0700;
constexpr mode_t OTHERS = 077;
constexpr int FOLDER_FLAGS = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr int TRIES = 100;
constexpr std::array INTERRUPTIONS = {SIGHUP, SIGINT, SIGTERM};

struct CloseFolder
{
    void operator()(DIR* pFolder) const { closedir(pFolder); }
};

/// What the handler of an interruption has to remove. A signal finds it whole: the flag is set last
/// and cleared first.
struct Pending
{
    int nParent;
    int nFolder;
    std::array<char, PREFIX.size() + DIGITS + 1> szName;
};
Pending g_pending;
volatile std::sig_atomic_t g_bPending = 0;

void RemoveFolder(int nParent, int nFolder, const char* szName)
{
    unlinkat(nFolder, PrivateFolder::FILE_NAME, 0);
    unlinkat(nFolder, PrivateFolder::LINK_NAME, 0);
    unlinkat(nParent, szName, AT_REMOVEDIR);
}

extern "C" void RemovePending(int nSignal)
{
    if (g_bPending != 0)
        RemoveFolder(g_pending.nParent, g_pending.nFolder, g_pending.szName.data());
    std::signal(nSignal, SIG_DFL);
    std::raise(nSignal);
}

bool HasDefaultAction(int nSignal)
{
    struct sigaction action = {};
    return sigaction(nSignal, nullptr, &action) == 0 && action.sa_handler == SIG_DFL;
}

/// A caller that handles a signal by itself, or ignores it, keeps that.
void RemoveOnInterruption(int nParent, int nFolder, const std::string& strName)
{
    if (g_bPending != 0)
        return;
    g_pending = {nParent, nFolder, {}};
    std::ranges::copy(strName, g_pending.szName.begin());
    g_bPending = 1;
    for (const int nSignal : INTERRUPTIONS)
        if (HasDefaultAction(nSignal))
            std::signal(nSignal, RemovePending);
}

void KeepOnInterruption(int nFolder)
{
    if (g_bPending == 0 || g_pending.nFolder != nFolder)
        return;
    g_bPending = 0;
    for (const int nSignal : INTERRUPTIONS) {
        struct sigaction action = {};
        if (sigaction(nSignal, nullptr, &action) == 0 && action.sa_handler == RemovePending)
            std::signal(nSignal, SIG_DFL);
    }
}

bool IsFoldersName(std::string_view strName)
{
    return strName.size() == PREFIX.size() + DIGITS && strName.starts_with(PREFIX) &&
           strName.find_first_not_of("0123456789abcdef", PREFIX.size()) == std::string_view::npos;
}

std::string RandomName()
{
    std::uint64_t nNumber = 0;
    if (getrandom(&nNumber, sizeof nNumber, 0) != sizeof nNumber)
        return {};
    std::array<char, DIGITS + 1> szDigits{};
    std::snprintf(szDigits.data(), szDigits.size(), "%016" PRIx64, nNumber);
    return std::string(PREFIX) + szDigits.data();
}

/// Whether the folder belongs to this process's user, who alone may do something in it.
bool IsOwnersAlone(int nFolder)
{
    struct stat info = {};
    return fstat(nFolder, &info) == 0 && info.st_uid == geteuid() && (info.st_mode & OTHERS) == 0;
}

/// \return false if another process holds the folder. Where folders can't be locked, nobody does.
bool Lock(int nFolder)
{
    return flock(nFolder, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

}  // namespace

PrivateFolder::~PrivateFolder()
{
    Remove();
}

void PrivateFolder::Remove()
{
    if (!m_folder.IsOpen())
        return;
    RemoveFolder(m_parent.Get(), m_folder.Get(), m_strName.c_str());
    KeepOnInterruption(m_folder.Get());
    m_folder.Close();
}

int PrivateFolder::Make(int nParent)
{
    m_parent = Descriptor(openat(nParent, ".", O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!m_parent.IsOpen())
        return errno;
    int nError = EEXIST;
    for (int n = 0; n < TRIES && nError == EEXIST; ++n)
        nError = TryToMake();
    if (nError == 0)
        RemoveOnInterruption(m_parent.Get(), m_folder.Get(), m_strName);
    return nError;
}

/// \return EEXIST if another name has to be tried.
int PrivateFolder::TryToMake()
{
    m_strName = RandomName();
    if (m_strName.empty() || mkdirat(m_parent.Get(), m_strName.c_str(), OWNER_ONLY) != 0)
        return errno;
    m_folder = Descriptor(openat(m_parent.Get(), m_strName.c_str(), FOLDER_FLAGS));
    if (!m_folder.IsOpen() && errno != ENOENT && errno != ELOOP && errno != ENOTDIR) {
        const int nError = errno;
        unlinkat(m_parent.Get(), m_strName.c_str(), AT_REMOVEDIR);
        return nError;
    }
    // Whoever looks for what the dead left behind may have been quicker, and so may somebody else
    // with a folder of that name.
    if (m_folder.IsOpen() && IsOwnersAlone(m_folder.Get()) && Lock(m_folder.Get()) && IsOurs())
        return 0;
    m_folder.Close();
    return EEXIST;
}

/// Whether the name still leads to the folder.
bool PrivateFolder::IsOurs() const
{
    struct stat named = {};
    struct stat opened = {};
    return fstatat(m_parent.Get(), m_strName.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
           fstat(m_folder.Get(), &opened) == 0 && named.st_dev == opened.st_dev &&
           named.st_ino == opened.st_ino;
}

std::size_t RemoveDeadFolders(int nFolder)
{
    const int nListed = openat(nFolder, ".", FOLDER_FLAGS);
    if (nListed < 0)
        return 0;
    const std::unique_ptr<DIR, CloseFolder> pFolder(fdopendir(nListed));
    if (!pFolder) {
        close(nListed);
        return 0;
    }
    std::size_t nRemoved = 0;
    while (const dirent* pEntry = readdir(pFolder.get())) {
        const char* szName = pEntry->d_name;
        if (!IsFoldersName(szName))
            continue;
        const Descriptor dead(openat(nFolder, szName, FOLDER_FLAGS));
        if (!dead.IsOpen() || !IsOwnersAlone(dead.Get()) ||
            flock(dead.Get(), LOCK_EX | LOCK_NB) != 0)
            continue;
        unlinkat(dead.Get(), PrivateFolder::FILE_NAME, 0);
        unlinkat(dead.Get(), PrivateFolder::LINK_NAME, 0);
        if (unlinkat(nFolder, szName, AT_REMOVEDIR) == 0)
            ++nRemoved;
    }
    return nRemoved;
}

}  // namespace host
