#include "batch/BatchLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace host {
namespace {

constexpr mode_t OWNER_ONLY = 0600;
constexpr int TRIES = 100;

}  // namespace

BatchLock::~BatchLock()
{
    if (m_file.IsOpen())
        unlinkat(m_nFolder, FILE_NAME, 0);
}

int BatchLock::Lock(int nFolder)
{
    m_nFolder = nFolder;
    int nError = ESTALE;
    for (int n = 0; n < TRIES && nError == ESTALE; ++n)
        nError = TryToLock();
    if (nError != 0)
        m_file.Close();
    return nError;
}

/// \return ESTALE if the file has been removed by the batch that had it.
int BatchLock::TryToLock()
{
    m_file = Descriptor(openat(m_nFolder, FILE_NAME,
                               O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, OWNER_ONLY));
    if (!m_file.IsOpen())
        return errno == EACCES || errno == ELOOP ? EPERM : errno;
    struct stat opened = {};
    if (fstat(m_file.Get(), &opened) != 0)
        return errno;
    if (!S_ISREG(opened.st_mode) || opened.st_uid != geteuid())
        return EPERM;
    if (flock(m_file.Get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return EWOULDBLOCK;
    struct stat named = {};
    const bool bInPlace = fstatat(m_nFolder, FILE_NAME, &named, AT_SYMLINK_NOFOLLOW) == 0 &&
                          named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
    return bInPlace && fchmod(m_file.Get(), OWNER_ONLY) == 0 ? 0 : ESTALE;
}

void BatchLock::CloseInChild() const
{
    close(m_file.Get());
}

}  // namespace host
