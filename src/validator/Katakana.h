// The double-byte Shift_JIS codes that both katakana checks accept.
#pragma once

namespace Katakana {

/// First and second byte of a text as one big-endian code.
constexpr unsigned Code(char cFirst, char cSecond)
{
    return static_cast<unsigned>(static_cast<unsigned char>(cFirst)) << 8U |
           static_cast<unsigned char>(cSecond);
}

/// Katakana, the full-width blank, the two voicing marks and the prolonged sound mark.
constexpr bool IsAccepted(unsigned nCode)
{
    return nCode == 0x8140 || (nCode >= 0x8340 && nCode <= 0x837E) ||
           (nCode >= 0x8380 && nCode <= 0x8396) || nCode == 0x814A || nCode == 0x814B ||
           nCode == 0x815B;
}

}  // namespace Katakana
