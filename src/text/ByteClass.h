// Sets of single bytes for the checks that walk a value byte by byte.
#pragma once

#include <algorithm>
#include <string_view>

namespace ByteClass {

constexpr bool IsDigit(char cByte)
{
    return cByte >= '0' && cByte <= '9';
}

constexpr bool IsLetter(char cByte)
{
    return (cByte >= 'A' && cByte <= 'Z') || (cByte >= 'a' && cByte <= 'z');
}

constexpr bool IsAscii(std::string_view strText)
{
    return std::ranges::all_of(strText,
                               [](char cByte) { return static_cast<unsigned char>(cByte) < 0x80; });
}

/// Every byte of the text is in the set; true for null and for the empty text.
template <class Predicate>
constexpr bool AllOf(const char* szText, Predicate isInSet)
{
    return szText == nullptr || std::ranges::all_of(std::string_view(szText), isInSet);
}

}  // namespace ByteClass
