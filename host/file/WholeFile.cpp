#include "file/WholeFile.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "file/PendingDocument.h"
#include "file/SourceFile.h"

namespace host {

std::string WriteAll(int nFile, std::string_view strBytes)
{
    while (!strBytes.empty()) {
        const ssize_t nWritten = write(nFile, strBytes.data(), strBytes.size());
        if (nWritten < 0 && errno != EINTR)
            return std::strerror(errno);
        if (nWritten > 0)
            strBytes.remove_prefix(static_cast<std::size_t>(nWritten));
    }
    return {};
}

std::string WriteWhole(const std::string& strPath, std::string_view strBytes, Existing eExisting)
{
    PendingDocument document(AbsolutePath(strPath));
    if (std::string strWhy = document.Open(); !strWhy.empty())
        return strWhy;
    if (document.Get() < 0)
        return std::strerror(ENOENT);
    if (std::string strWhy = WriteAll(document.Get(), strBytes); !strWhy.empty())
        return strWhy;
    return document.Keep(eExisting);
}

std::string WriteWhole(const FilePlace& place, std::string_view strBytes, mode_t mode)
{
    PendingFile file(place);
    if (const int nError = file.Open(); nError != 0)
        return std::strerror(nError);
    if (std::string strWhy = WriteAll(file.Get(), strBytes); !strWhy.empty())
        return strWhy;
    return file.Keep(mode);
}

}  // namespace host
