#include "WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace host {
namespace {

constexpr mode_t NEW_FILE_MODE = 0666;

/// Rights that a new file gets, as the process is set.
mode_t ModeOfNewFile()
{
    const mode_t mask = umask(0);
    umask(mask);
    return NEW_FILE_MODE & ~mask;
}

bool WriteAll(int nFile, std::string_view strBytes)
{
    while (!strBytes.empty()) {
        const ssize_t nWritten = write(nFile, strBytes.data(), strBytes.size());
        if (nWritten < 0 && errno != EINTR)
            return false;
        if (nWritten > 0)
            strBytes.remove_prefix(static_cast<std::size_t>(nWritten));
    }
    return true;
}

}  // namespace

std::string WriteWhole(const std::string& strPath, std::string_view strBytes)
{
    std::string strTemporary = strPath + ".XXXXXX";
    const int nFile = mkstemp(strTemporary.data());
    if (nFile < 0)
        return std::strerror(errno);
    const bool bWritten = WriteAll(nFile, strBytes) && fchmod(nFile, ModeOfNewFile()) == 0;
    int nError = bWritten ? 0 : errno;
    // A full disk may show only here.
    if (close(nFile) != 0 && nError == 0)
        nError = errno;
    if (nError == 0 && std::rename(strTemporary.c_str(), strPath.c_str()) != 0)
        nError = errno;
    if (nError == 0)
        return {};
    unlink(strTemporary.c_str());
    return std::strerror(nError);
}

}  // namespace host
