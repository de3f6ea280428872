#include "Sha256.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace host {
namespace {

constexpr std::size_t BLOCK = 64;
constexpr std::size_t LENGTH_BYTES = 8;

using State = std::array<std::uint32_t, 8>;
using Schedule = std::array<std::uint32_t, 64>;

/// Fractional parts of the square roots of the first eight primes.
constexpr State START = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                         0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};

/// Fractional parts of the cube roots of the first 64 primes.
constexpr Schedule ROUND = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

std::uint32_t BigEndian(std::string_view strBytes, std::size_t nAt)
{
    std::uint32_t nWord = 0;
    for (std::size_t n = 0; n < 4; ++n)
        nWord = (nWord << 8) | static_cast<unsigned char>(strBytes[nAt + n]);
    return nWord;
}

Schedule ScheduleOf(std::string_view strBlock)
{
    Schedule w{};
    for (std::size_t n = 0; n < 16; ++n)
        w[n] = BigEndian(strBlock, 4 * n);
    for (std::size_t n = 16; n < w.size(); ++n) {
        const std::uint32_t n0 =
            std::rotr(w[n - 15], 7) ^ std::rotr(w[n - 15], 18) ^ (w[n - 15] >> 3);
        const std::uint32_t n1 =
            std::rotr(w[n - 2], 17) ^ std::rotr(w[n - 2], 19) ^ (w[n - 2] >> 10);
        w[n] = w[n - 16] + n0 + w[n - 7] + n1;
    }
    return w;
}

void AddBlock(State& state, std::string_view strBlock)
{
    const Schedule schedule = ScheduleOf(strBlock);
    auto [a, b, c, d, e, f, g, h] = state;
    for (std::size_t n = 0; n < schedule.size(); ++n) {
        const std::uint32_t n1 = h + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) +
                                 ((e & f) ^ (~e & g)) + ROUND[n] + schedule[n];
        const std::uint32_t n2 =
            (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
        h = g;
        g = f;
        f = e;
        e = d + n1;
        d = c;
        c = b;
        b = a;
        a = n1 + n2;
    }
    const State added = {a, b, c, d, e, f, g, h};
    for (std::size_t n = 0; n < state.size(); ++n)
        state[n] += added[n];
}

/// The bytes with a one bit, zeros and their number of bits behind them, in whole blocks.
std::string Padded(std::string_view strBytes)
{
    std::string strPadded(strBytes);
    strPadded += '\x80';
    while (strPadded.size() % BLOCK != BLOCK - LENGTH_BYTES)
        strPadded += '\0';
    const std::uint64_t nBits = std::uint64_t{strBytes.size()} * 8;
    for (std::size_t n = LENGTH_BYTES; n-- > 0;)
        strPadded += static_cast<char>((nBits >> (8 * n)) & 0xff);
    return strPadded;
}

std::string Base64(std::string_view strBytes)
{
    static constexpr char DIGITS[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string strText;
    for (std::size_t n = 0; n < strBytes.size(); n += 3) {
        const std::string_view strGroup = strBytes.substr(n, 3);
        std::uint32_t nGroup = 0;
        for (std::size_t m = 0; m < 3; ++m)
            nGroup = (nGroup << 8) |
                     (m < strGroup.size() ? static_cast<unsigned char>(strGroup[m]) : 0u);
        for (std::size_t m = 0; m < 4; ++m)
            strText += m <= strGroup.size() ? DIGITS[(nGroup >> (18 - 6 * m)) & 0x3f] : '=';
    }
    return strText;
}

}  // namespace

std::string Sha256Base64(std::string_view strBytes)
{
    const std::string strPadded = Padded(strBytes);
    State state = START;
    for (std::size_t n = 0; n < strPadded.size(); n += BLOCK)
        AddBlock(state, std::string_view(strPadded).substr(n, BLOCK));
    std::string strDigest;
    for (const std::uint32_t nWord : state)
        for (int nShift = 24; nShift >= 0; nShift -= 8)
            strDigest += static_cast<char>((nWord >> nShift) & 0xff);
    return Base64(strDigest);
}

}  // namespace host
