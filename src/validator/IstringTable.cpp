#include "IstringTable.h"

#include <algorithm>
#include <array>
#include <bitset>

namespace IstringTable {

namespace {

constexpr auto CODES = std::to_array<Range>({
    {0x8140, 0x817E}, {0x8180, 0x81AC}, {0x81B8, 0x81BF}, {0x81C8, 0x81CE}, {0x81DA, 0x81E8},
    {0x81F0, 0x81F7}, {0x81FC, 0x81FC}, {0x824F, 0x8258}, {0x8260, 0x8279}, {0x8281, 0x829A},
    {0x829F, 0x82F1}, {0x8340, 0x837E}, {0x8380, 0x8396}, {0x839F, 0x83B6}, {0x83BF, 0x83D6},
    {0x8440, 0x8460}, {0x8470, 0x847E}, {0x8480, 0x8491}, {0x849F, 0x84BE}, {0x889F, 0x9872},
    {0x989F, 0x9FFC}, {0xE040, 0xEAA4},
});

/// Made by scripts/make-istring-units.
constexpr auto UNITS = std::to_array<Range>({
#include "IstringUnits.inc"
});

/// A set of 16-bit numbers that is asked for each character of a cell.
class NumberSet
{
public:
    explicit NumberSet(std::span<const Range> ranges)
    {
        for (const Range& range : ranges)
            for (unsigned nNumber = range.nFirst; nNumber <= range.nLast; ++nNumber)
                m_bits.set(nNumber);
    }

    bool Contains(unsigned nNumber) const { return nNumber < m_bits.size() && m_bits[nNumber]; }

private:
    std::bitset<0x10000> m_bits;
};

}  // namespace

std::span<const Range> UnitRanges()
{
    return UNITS;
}

bool ContainsCode(unsigned nCode)
{
    static const NumberSet codes(CODES);
    return codes.Contains(nCode);
}

bool ContainsUnit(char16_t cUnit)
{
    static const NumberSet units(UNITS);
    return units.Contains(cUnit);
}

}  // namespace IstringTable
