#include "file/PendingFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "base/Language.h"

namespace host {
namespace {

constexpr mode_t EVERYONES_FILE = 0666;

}  // namespace

int PendingFile::Open()
{
    if (const int nError = m_folder.Make(m_place.folder.Get()); nError != 0)
        return nError;
    // A file without a name can only get one by its link in /proc.
    if (faccessat(AT_FDCWD, PathOfDescriptor(m_folder.Get()).c_str(), F_OK, 0) == 0)
        m_file =
            Descriptor(openat(m_folder.Get(), ".", O_TMPFILE | O_RDWR | O_CLOEXEC, OWNERS_FILE));
    if (m_file.IsOpen())
        return 0;
    m_file = Descriptor(openat(m_folder.Get(), PrivateFolder::FILE_NAME,
                               O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, OWNERS_FILE));
    m_bNamed = m_file.IsOpen();
    return m_bNamed ? 0 : errno;
}

std::uintmax_t PendingFile::Size() const
{
    struct stat info = {};
    return fstat(m_file.Get(), &info) == 0 ? static_cast<std::uintmax_t>(info.st_size) : 0;
}

std::string PendingFile::Keep(mode_t mode, Existing eExisting)
{
    // On the disk first: a name that survives a power failure must not belong to an empty file.
    if (fchmod(m_file.Get(), mode) != 0 || fsync(m_file.Get()) != 0 || Name() != 0 ||
        MoveToPlace(eExisting) != 0)
        return std::strerror(errno);
    if (!IsInPlace())
        return Say({"somebody else has put another file in its place",
                    "ほかのユーザーが別のファイルに置き換えました"});
    m_folder.Remove();
    return {};
}

int PendingFile::Name() const
{
    return m_bNamed ? 0
                    : linkat(AT_FDCWD, PathOfDescriptor(m_file.Get()).c_str(), m_folder.Get(),
                             PrivateFolder::FILE_NAME, AT_SYMLINK_FOLLOW);
}

int PendingFile::MoveToPlace(Existing eExisting) const
{
    const int nTo = m_place.folder.Get();
    const char* szTo = m_place.strName.c_str();
    if (eExisting == Existing::Replaced)
        return renameat(m_folder.Get(), PrivateFolder::FILE_NAME, nTo, szTo);
    const int nMoved =
        renameat2(m_folder.Get(), PrivateFolder::FILE_NAME, nTo, szTo, RENAME_NOREPLACE);
    // A file system that can't do that has links.
    return nMoved != 0 && (errno == EINVAL || errno == ENOSYS)
               ? linkat(m_folder.Get(), PrivateFolder::FILE_NAME, nTo, szTo, 0)
               : nMoved;
}

/// Whether the name leads to the file that was written.
bool PendingFile::IsInPlace() const
{
    struct stat named = {};
    struct stat written = {};
    return fstatat(m_place.folder.Get(), m_place.strName.c_str(), &named, AT_SYMLINK_NOFOLLOW) ==
               0 &&
           fstat(m_file.Get(), &written) == 0 && named.st_dev == written.st_dev &&
           named.st_ino == written.st_ino && named.st_size == written.st_size;
}

mode_t ModeOfNewFile()
{
    const mode_t mask = umask(0);
    umask(mask);
    return EVERYONES_FILE & ~mask;
}

}  // namespace host
