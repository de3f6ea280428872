// Files that appear whole or not at all.
#pragma once

#include <string>
#include <string_view>

namespace host {

/// Writes a file under a name of its own in the same folder and gives it its name at the end, so
/// that whoever looks sees the file before or the whole file after.
/// \param strPath  Replaced if it exists, keeping its rights. A link stays, and what it leads to is
/// replaced; a device or a pipe is written to itself.
/// \return The empty text, or why it could not be written, as the system puts it; then nothing is
/// left behind and what stood there stays.
std::string WriteWhole(const std::string& strPath, std::string_view strBytes);

}  // namespace host
