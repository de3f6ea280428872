// Tells whether a result would be the same again: a hash of all that it depends on.
#pragma once

#include <optional>
#include <string>

#include "batch/FileState.h"
#include "batch/FileWork.h"

namespace host {

/// Of the program, the resource folder, the language and the options that results depend on. 16
/// hexadecimal digits. No secret is safe in it.
std::string HashOfOptions(const BatchSettings& settings);

/// The same with the state of one more file; nothing for one that isn't there.
std::string HashWithState(const std::string& strHash, const std::optional<FileState>& state);

}  // namespace host
