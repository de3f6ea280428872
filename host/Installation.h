// Finds out what of the installation is missing.
#pragma once

#include <string>

namespace host {

/// A sentence that says what is wrong with the resource folder and what to do, or the empty text if
/// nothing is found to be wrong.
std::string InstallationProblem();

/// How to get at the library's log, for a fault without a visible reason.
inline constexpr const char* LOG_ADVICE =
    "Run it again as `env KZLuviaZEKA.DebugOutput=1 kzekamok ...` and read the log that the "
    "library "
    "then writes in your home folder.";

}  // namespace host
