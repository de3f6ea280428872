// Shift_JIS (code page 932) and UTF-8 against UTF-16, strict in both directions.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ShiftJis {

/// The UTF-16 units of a Shift_JIS text, or nothing if one byte sequence is invalid.
std::optional<std::u16string> Decode(std::string_view strText);

/// The Shift_JIS text of UTF-16 units in its canonical form (duplicate codes of the code page come
/// back as one of them), or nothing if a character has no place in Shift_JIS.
std::optional<std::string> Encode(std::u16string_view strText);

/// The Shift_JIS text in canonical form, or nothing if one byte sequence is invalid.
std::optional<std::string> Canonical(std::string_view strText);

/// The text in canonical form without white space at both ends, or nothing if one byte sequence is
/// invalid.
std::optional<std::string> Trim(std::string_view strText, bool (*isWhiteSpace)(char16_t cUnit));

/// The same text as UTF-8, or nothing if one byte sequence is invalid.
std::optional<std::string> ToUtf8(std::string_view strText);

/// The same with U+FFFD for each byte that is no part of a character.
std::string ToUtf8Anyway(std::string_view strText);

/// No byte sequence is invalid.
bool IsValid(std::string_view strText);

/// A text that comes in pieces, cut where a character ends.
class Pieces
{
public:
    /// \param strPiece  The next bytes, which may end inside a character.
    /// \return What can be decoded by now. Valid until the next call.
    std::string_view Take(std::string_view strPiece);
    /// The text doesn't end inside a character.
    bool IsWhole() const { return m_nTaken == m_strBytes.size(); }

private:
    std::string m_strBytes;
    std::size_t m_nTaken = 0;  ///< of them in whole characters
};

}  // namespace ShiftJis

namespace Utf8 {

/// The UTF-16 units of a UTF-8 text, or nothing if it is not well-formed.
std::optional<std::u16string> Decode(std::string_view strText);

/// The UTF-8 text of UTF-16 units, or nothing if a surrogate stands alone.
std::optional<std::string> Encode(std::u16string_view strText);

/// The text without white space at both ends, or nothing if it is not well-formed.
std::optional<std::string> Trim(std::string_view strText, bool (*isWhiteSpace)(char16_t cUnit));

/// The text with U+FFFD for each sequence that is not well-formed; one for a character that breaks
/// off.
std::string Repair(std::string_view strText);

/// Appends one character of the Basic Multilingual Plane that is no surrogate.
void AppendUnit(std::string& strOut, char16_t cUnit);

}  // namespace Utf8
