// What the program has to say beside its results.
#pragma once

#include <string>

namespace host {

/// Writes "kzekamok: ", the text and a line end to standard error, behind all that has been written
/// to standard output.
void Complain(const std::string& strWhat);

}  // namespace host
