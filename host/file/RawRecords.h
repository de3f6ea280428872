// A CSV file as the bytes of its records.
#pragma once

#include <string_view>
#include <vector>

#include "form/Family.h"

namespace host {

/// The records with their line ends, without the blank lines between them, which hold no record.
/// In the CrossBorder family a value that begins with a double quote may hold line ends.
/// \param strBytes  Shift_JIS, in which no byte of a character looks like a quote, comma or line
/// end.
std::vector<std::string_view> RawRecords(std::string_view strBytes, Family eFamily);

}  // namespace host
