// The characters that the check of the filing service's character set accepts.
#pragma once

#include <cstdint>
#include <span>

namespace IstringTable {

struct Range
{
    std::uint16_t nFirst;
    std::uint16_t nLast;
};

/// The Unicode units: the images of JIS X 0208 in the standard's own mapping, with the additions
/// and omissions of the filing service. 4118 ranges in ascending order.
std::span<const Range> UnitRanges();

/// \param nCode  Big-endian code of the character's first two bytes, or its one byte.
bool ContainsCode(unsigned nCode);
bool ContainsUnit(char16_t cUnit);

}  // namespace IstringTable
