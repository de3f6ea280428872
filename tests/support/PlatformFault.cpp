#include "PlatformFault.h"

#include <dirent.h>
#include <dlfcn.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <optional>

namespace {

std::size_t g_nFlushes = 0;
/// Entries that a listing still gives.
std::optional<std::size_t> g_nEntries;

}  // namespace

namespace PlatformFault {

std::size_t Flushes()
{
    return g_nFlushes;
}

Listing::Listing(std::size_t nEntries)
{
    g_nEntries = nEntries;
}

Listing::~Listing()
{
    g_nEntries.reset();
}

}  // namespace PlatformFault

extern "C" int fsync(int nFile)
{
    ++g_nFlushes;
    return static_cast<int>(::syscall(SYS_fsync, nFile));
}

extern "C" dirent* readdir(DIR* pFolder)
{
    static const auto pReal = reinterpret_cast<dirent* (*)(DIR*)>(::dlsym(RTLD_NEXT, "readdir"));
    if (g_nEntries && *g_nEntries == 0) {
        errno = EIO;
        return nullptr;
    }
    if (g_nEntries)
        --*g_nEntries;
    return pReal(pFolder);
}
