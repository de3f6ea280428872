// Files that appear whole or not at all.
#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>

#include "file/FilePlace.h"
#include "file/PendingFile.h"

namespace host {

/// Writes a file that has no name until it is whole, so that whoever looks sees the file before or
/// the whole file after.
/// \param strPath  Replaced if it exists, keeping its rights. A link stays, and what it leads to is
/// replaced; a device, or a pipe that somebody reads, is written to itself.
/// \return The empty text, or why it could not be written, as the system puts it; then nothing is
/// left behind and what stood there stays.
std::string WriteWhole(const std::string& strPath,
                       std::string_view strBytes,
                       Existing eExisting = Existing::Replaced);

/// The same at a place, where no link is followed and nothing but a regular file is written.
/// \param mode  The file's rights, also if it replaces another.
std::string WriteWhole(const FilePlace& place, std::string_view strBytes, mode_t mode);

/// \return The empty text, or why not all could be written.
std::string WriteAll(int nFile, std::string_view strBytes);

}  // namespace host
