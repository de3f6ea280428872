// Finds the mistakes of a resource folder.
#pragma once

#include <string>
#include <vector>

#include "lint/LintFinding.h"

namespace host {

/// All findings by file and line, in the current language.
/// \param strBundle  A folder that exists. \param vecTypeId  Only the definitions of these type ids
/// are looked at, beside what all need; empty for all.
std::vector<LintFinding> LintFolder(const std::string& strBundle,
                                    const std::vector<std::string>& vecTypeId = {});

}  // namespace host
