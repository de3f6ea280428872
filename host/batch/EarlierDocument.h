// Documents that an earlier run of a batch has written.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace host {

/// Size of a regular file below a folder, found without following a link, or nothing.
/// \param nFolder  Open. \param strName  See LeadsBelow.
std::optional<std::uintmax_t> SizeBelow(int nFolder, const std::string& strName);

enum class Removal
{
    Done,
    Gone,     ///< there is no such file, or one of another size: not the one that was written
    NotOurs,  ///< it is another user's, or no document of this program, and stays
};

/// Removes a document below a folder, found without following a link.
/// \param nBytes  Its size when it was written.
Removal RemoveDocument(int nFolder, const std::string& strName, std::uintmax_t nBytes);

}  // namespace host
