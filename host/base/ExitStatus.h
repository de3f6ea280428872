// What the program tells its caller when it ends.
#pragma once

#include <algorithm>

namespace host {

/// A higher value is worse; with several files the worst counts. A count is never a status.
enum class ExitStatus : int
{
    Passed = 0,
    Refused = 1,     ///< the file was checked to its end and has errors
    Usage = 2,       ///< an option, a profile or a filer's field is wrong
    NotChecked = 3,  ///< a fault of the installation, or a file that wasn't checked to its end
    NotWritten = 4,  ///< the document or standard output could not be written
};

inline ExitStatus Worse(ExitStatus eFirst, ExitStatus eSecond)
{
    return std::max(eFirst, eSecond);
}

}  // namespace host
