// Texts of unknown origin in a form that can't harm a terminal.
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

}  // namespace host
