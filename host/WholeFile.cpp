#include "WholeFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "PendingDocument.h"
#include "SourceFile.h"

namespace host {
namespace {

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
    PendingDocument document(AbsolutePath(strPath));
    if (std::string strWhy = document.Open(); !strWhy.empty())
        return strWhy;
    const int nFile = open(document.Path().c_str(), O_WRONLY | O_CLOEXEC);
    if (nFile < 0)
        return std::strerror(errno);
    int nError = WriteAll(nFile, strBytes) ? 0 : errno;
    // A full disk may show only here.
    if (close(nFile) != 0 && nError == 0)
        nError = errno;
    return nError == 0 ? document.Keep() : std::strerror(nError);
}

}  // namespace host
