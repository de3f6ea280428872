// A profile: the filer's fields kept in a file.
#pragma once

#include <string>

#include "request/FilerFields.h"

namespace host {

/// Reads a profile that the user named: a TOML file of lines `key = "value"` in UTF-8; the keys are
/// those of FILER_FIELDS. A whole number may stand without quotes. Throws UsageError for a file
/// that can't be read or is too long, an unknown or repeated key, a section, or a value that isn't
/// one text on one line.
GivenFilerFields ReadProfile(const std::string& strPath);

/// The same of the profile that lies beside a CSV file, where others may have put it. Nothing is
/// given if there is none; UsageError, too, for one that others could have written.
GivenFilerFields ReadProfileBeside(const std::string& strPath);

}  // namespace host
