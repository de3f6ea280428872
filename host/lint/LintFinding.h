// What lint finds in a resource folder.
#pragma once

#include <string>

namespace host {

enum class LintSeverity
{
    Warning,
    Error,
};

struct LintFinding
{
    std::string strRule;  ///< id of the rule, such as "unknown-keyword"
    LintSeverity eSeverity = LintSeverity::Error;
    std::string strFile;  ///< below the resource folder
    long lLine = 0;       ///< from 1; 0 for the file or folder as a whole
    std::string strMessage;
    std::string strAdvice;

    bool operator==(const LintFinding&) const = default;
};

/// "error" or "warning".
const char* SeverityName(LintSeverity eSeverity);

}  // namespace host
