// Dates and cell references in the parameters of the date checks.
#pragma once

#include <optional>
#include <string>

namespace DateLiteral {

/// "20190430" as "2019/04/30": slashes before the last four and the last two characters.
/// Nothing for fewer than four characters.
std::optional<std::string> WithSlashes(std::string strLiteral);
/// The same for a literal of exactly eight characters; the empty text for any other.
std::string OfEightCharacters(const char* szLiteral);

/// A cell in another record: "row_col", both from 1.
struct CellReference
{
    long lRow;
    long lColumn;
};

/// Nothing if the parameter does not split at underscores into exactly two pieces.
std::optional<CellReference> ReadReference(const char* szParameter);

}  // namespace DateLiteral
