// Texts of unknown origin in a form that can't harm a terminal, a reader or a spreadsheet: the one
// home of what is escaped.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace host {

/// The text with everything escaped that could move a cursor, hide or reorder what stands around
/// it: control characters, directional and invisible characters as \u{hex}, bytes that aren't UTF-8
/// as \xHH, and the backslash itself. The result is well-formed UTF-8.
std::string MakeSafe(std::string_view strText);

/// MakeSafe of at most nLimit characters from the front, followed by a note of how many bytes the
/// whole text has if something was left out.
std::string MakeSafeAndShort(std::string_view strText, std::size_t nLimit);

/// A JSON text that a parser reads the same, in which the characters that MakeSafe shows as \u{hex}
/// stand as \uHHHH. Below delete it leaves everything as it is: the writer of JSON escapes that.
/// \param strJson  JSON in UTF-8.
std::string MakeSafeJson(std::string_view strJson);

/// Begins what a spreadsheet takes for text, whatever follows.
inline constexpr char CELL_OF_TEXT = '\'';

/// A cell of a CSV file in double quotes. A text that a spreadsheet would take for a formula, as it
/// begins with =, +, -, @, a tab or a carriage return, or one of the signs in full width, gets
/// CELL_OF_TEXT in front. What the cell's lines hold has to be made safe before.
std::string CsvCell(std::string_view strText);

}  // namespace host
