// A file that appears under its name whole or not at all.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>

#include "file/Descriptor.h"
#include "file/FilePlace.h"
#include "file/PrivateFolder.h"

namespace host {

enum class Existing
{
    Replaced,
    Kept,  ///< and the new file fails with "File exists"
};

/// A file without a name where the file system has such (O_TMPFILE), else one in a private folder,
/// for its owner alone. It gets its name when it is whole. All is done through descriptors, so that
/// nobody who may write in the folder can have something else written to or named.
class PendingFile
{
public:
    /// \param place  Looked at until destruction.
    explicit PendingFile(const FilePlace& place) : m_place(place) {}

    /// \return 0 or an error number.
    int Open();
    /// Open for reading and writing; negative before Open and behind Take.
    int Get() const { return m_file.Get(); }
    /// In the folder of the place.
    const PrivateFolder& Folder() const { return m_folder; }
    std::uintmax_t Size() const;

    /// Puts the file on the disk and gives it its name. A link that has the name is replaced
    /// itself. \param mode  The file's rights from now on. \return The empty text, or why that
    /// failed.
    std::string Keep(mode_t mode, Existing eExisting = Existing::Replaced);
    /// Hands the file over, which stays open under the name that Keep gave it.
    Descriptor Take() { return std::move(m_file); }

private:
    int Name() const;
    int MoveToPlace(Existing eExisting) const;
    bool IsInPlace() const;

    const FilePlace& m_place;
    PrivateFolder m_folder;
    Descriptor m_file;
    bool m_bNamed = false;  ///< stands in the private folder
};

/// The rights of a file that is made anew, as the umask leaves them.
mode_t ModeOfNewFile();
/// Those of a file that nobody else may read.
inline constexpr mode_t OWNERS_FILE = 0600;

}  // namespace host
