// What runs of the program that were killed have left beside a file.
#pragma once

#include <string>

namespace host {

/// Removes it, and tells that on standard error. What a process is still at work on stays.
/// \param strPath  Of a file, whether or not it exists; what stands beside it is looked at.
void RemoveLeftoversBeside(const std::string& strPath);

}  // namespace host
