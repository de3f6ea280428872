// Findings as text for people and as JSON for programs.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <span>
#include <string>

#include "base/ExitStatus.h"
#include "lint/LintFinding.h"

namespace host {

struct LintCounts
{
    std::size_t nErrors = 0;
    std::size_t nWarnings = 0;
};

LintCounts CountFindings(std::span<const LintFinding> findings);

/// One finding: FILE:LINE: error: message [rule], and below it what to do. The counts at the end.
void WriteLintText(std::ostream& out,
                   const std::string& strBundle,
                   std::span<const LintFinding> findings);

/// \param eStatus  As the program ends.
void WriteLintJson(std::ostream& out,
                   const std::string& strBundle,
                   std::span<const LintFinding> findings,
                   ExitStatus eStatus);

}  // namespace host
