// Where a file stands: a folder that is open, and a name in it.
#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>

#include "file/Descriptor.h"

namespace host {

/// A path is looked up anew at each use, and others who may write in one of its folders can change
/// between two uses where it leads. A place stays where it was found.
struct FilePlace
{
    Descriptor folder;  ///< open for looking things up in it (O_PATH), not for listing
    std::string strName;
    /// The name is one of the links by which the system shows open files (/dev/fd/3); it has to be
    /// followed, and what it leads to is no regular file. Every other link is resolved, or is to be
    /// replaced itself.
    bool bOpenFile = false;
};

enum class Missing
{
    Fails,
    Made,  ///< folders are made, with the rights that the umask leaves
};

/// Finds a path step by step. Links are followed, also one that the last name is, except for a
/// stranger's link in a folder that others may write in: there everybody could lead the program to
/// a file of its user (EACCES, see IsStrangersInSharedFolder). \param strPath  Absolute. What it
/// names needn't exist, its folder has to. \return 0 or an error number.
int FindPlace(const std::string& strPath, FilePlace& place);

/// The same for a folder.
int FindFolder(const std::string& strPath, Missing eMissing, Descriptor& folder);

/// Whether a path leads from a folder to something below it: relative, without "." and "..",
/// without empty names.
bool LeadsBelow(std::string_view strRelative);

/// Finds a path below a folder without following any link (ELOOP or ENOTDIR). The last name isn't
/// looked at.
/// \param nFolder  Open folder. \param strRelative  EINVAL unless it LeadsBelow.
int FindPlaceBelow(int nFolder, const std::string& strRelative, Missing eMissing, FilePlace& place);

/// Whether a stranger may have put something into a folder for this process to find: others than
/// the folder's owner may write in it, and neither its owner nor this process's user nor root owns
/// what stands there. \param info  Of what stands in the folder.
bool IsStrangersInSharedFolder(int nFolder, const struct stat& info);

/// Opens a regular file for reading, without following a link at its name and without waiting for
/// the writer of a pipe.
/// \return 0 or an error number; ELOOP for a link, EINVAL for what is no regular file.
int OpenRegularFile(int nFolder, const char* szName, Descriptor& file);

/// A path by which other parts of this process reach an open file or folder, and no other.
std::string PathOfDescriptor(int nFile);

}  // namespace host
