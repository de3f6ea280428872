// Records as the bytes of a CSV file.
#pragma once

#include <string>
#include <vector>

namespace host {

/// Each record as a line that ends in CR LF.
/// \param bQuoted  The family knows quotes: cells that need them get them. Otherwise cells stand as
/// they are and must hold no comma and no line end.
std::string CsvText(const std::vector<std::vector<std::string>>& vecRecord, bool bQuoted);

}  // namespace host
