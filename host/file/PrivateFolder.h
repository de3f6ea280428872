// A hidden folder in which nobody else can do anything, for as long as something is unfinished.
#pragma once

#include <cstddef>
#include <string>

#include "file/Descriptor.h"

namespace host {

/// The folder ".kzekamok-" and 16 hexadecimal digits, for its owner alone. It is locked as long as
/// its process lives, and removed when the object ends and when the process is interrupted (one at
/// a time). What a kill leaves behind is told by the lock: a folder that can be locked is nobody's.
class PrivateFolder
{
public:
    /// The two names that may stand in the folder, both its own: neither can be taken for a
    /// document that is whole.
    static constexpr const char* FILE_NAME = "unfinished";
    static constexpr const char* LINK_NAME = "link.mok";

    PrivateFolder() = default;
    ~PrivateFolder();
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;

    /// Makes it in another folder, which needn't stay open.
    /// \return 0 or an error number.
    int Make(int nParent);
    /// Removes it before the object ends.
    void Remove();
    /// Of the folder; negative before Make.
    int Get() const { return m_folder.Get(); }
    const std::string& Name() const { return m_strName; }

private:
    int TryToMake();
    bool IsOurs() const;

    Descriptor m_parent;
    Descriptor m_folder;
    std::string m_strName;
};

/// Removes the folders of this kind that this process's user made and that no process works in.
/// \param nFolder  Where to look.
/// \return How many there were.
std::size_t RemoveDeadFolders(int nFolder);

}  // namespace host
