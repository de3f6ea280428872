// A profile: the filer's fields kept in a file.
#pragma once

#include <string>

#include "FilerFields.h"

namespace host {

/// Reads a TOML file of lines `key = "value"` in UTF-8; the keys are those of FILER_FIELDS.
/// Throws UsageError for a file that can't be read, an unknown or repeated key, a section, or a
/// value that isn't one text.
GivenFilerFields ReadProfile(const std::string& strPath);

}  // namespace host
