// The command line.
#pragma once

#include "base/ExitStatus.h"

namespace host {

/// Parses the command line and does what it asks for. Help and version go to standard output, a
/// mistake to standard error.
ExitStatus RunCommandLine(int nCount, const char* const* pArguments);

}  // namespace host
