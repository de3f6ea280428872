#include "text/ShiftJis.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <vector>

#include "text/ByteClass.h"
#include "text/CharsetConverter.h"

namespace {

constexpr std::size_t UNIT_COUNT = 0x10000;
/// Stands for a missing code or unit; neither U+FFFF nor the code 0xFFFF is in the code page.
constexpr std::uint16_t NO_IMAGE = 0xFFFF;

constexpr bool IsSurrogate(char16_t cUnit)
{
    return cUnit >= 0xD800 && cUnit <= 0xDFFF;
}

constexpr bool IsHighSurrogate(char16_t cUnit)
{
    return cUnit >= 0xD800 && cUnit <= 0xDBFF;
}

constexpr bool IsLowSurrogate(char16_t cUnit)
{
    return cUnit >= 0xDC00 && cUnit <= 0xDFFF;
}

/// Code page 932 as two arrays, asked from the converter once: cells are decoded by the hundred
/// thousand. A character that the converter accepts only on the way back (such as U+00A5 for 0x5C)
/// has no code here.
class CodePage
{
public:
    static const CodePage& Get()
    {
        static const CodePage codePage;
        return codePage;
    }

    /// The unit of a one- or two-byte code, or NO_IMAGE.
    std::uint16_t Unit(unsigned nCode) const { return m_vecUnit[nCode]; }
    /// The canonical code of a unit, or NO_IMAGE. It has as many bytes as every other code of the
    /// unit.
    std::uint16_t Code(char16_t cUnit) const { return m_vecCode[cUnit]; }

private:
    CodePage() : m_vecUnit(UNIT_COUNT, NO_IMAGE), m_vecCode(UNIT_COUNT, NO_IMAGE)
    {
        CharsetConverter decoder("UTF-16LE", "CP932");
        CharsetConverter encoder("CP932", "UTF-16LE");
        for (unsigned nCode = 0; nCode < 0x100; ++nCode)
            Learn(decoder, encoder, nCode, nCode + 1);
        for (unsigned nLead = 0x81; nLead < 0xFD; ++nLead) {
            // A lead byte of 0xA0 to 0xDF is a character by itself.
            if (nLead >= 0xA0 && nLead <= 0xDF)
                continue;
            Learn(decoder, encoder, nLead << 8U | 0x40U, nLead << 8U | 0x7FU);
            Learn(decoder, encoder, nLead << 8U | 0x80U, nLead << 8U | 0xFDU);
        }
    }

    /// Learns the codes from nFirst to before nEnd, all of one lead byte. The converter takes them
    /// in one piece, or in halves where one of them is no character.
    void Learn(CharsetConverter& decoder, CharsetConverter& encoder, unsigned nFirst, unsigned nEnd)
    {
        const std::size_t nCount = nEnd - nFirst;
        const std::size_t nWidth = nFirst > 0xFF ? 2 : 1;
        std::string strCodes;
        for (unsigned nCode = nFirst; nCode < nEnd; ++nCode) {
            if (nWidth == 2)
                strCodes += static_cast<char>(nCode >> 8U);
            strCodes += static_cast<char>(nCode & 0xFFU);
        }
        const auto strUnits = decoder.Convert(strCodes);
        const auto strCanonical = strUnits ? encoder.Convert(*strUnits) : std::nullopt;
        const bool bDecoded = strUnits && strUnits->size() == nCount * 2;
        const bool bEncoded = strCanonical && strCanonical->size() == nCount * nWidth;
        if (bDecoded && (bEncoded || nCount == 1)) {
            for (std::size_t nAt = 0; nAt < nCount; ++nAt) {
                const unsigned nUnit = BigEndian({(*strUnits)[nAt * 2 + 1], (*strUnits)[nAt * 2]});
                m_vecUnit[nFirst + nAt] = static_cast<std::uint16_t>(nUnit);
                m_vecCode[nUnit] = static_cast<std::uint16_t>(
                    BigEndian(std::string_view(bEncoded ? *strCanonical : strCodes)
                                  .substr(nAt * nWidth, nWidth)));
            }
        } else if (nCount > 1) {
            const unsigned nMiddle = nFirst + static_cast<unsigned>(nCount / 2);
            Learn(decoder, encoder, nFirst, nMiddle);
            Learn(decoder, encoder, nMiddle, nEnd);
        }
    }

    static unsigned BigEndian(std::string_view strBytes)
    {
        unsigned nNumber = 0;
        for (const char cByte : strBytes)
            nNumber = nNumber << 8U | static_cast<unsigned char>(cByte);
        return nNumber;
    }
    static unsigned BigEndian(std::initializer_list<char> bytes)
    {
        return BigEndian(std::string_view(bytes.begin(), bytes.size()));
    }

    std::vector<std::uint16_t> m_vecUnit;
    std::vector<std::uint16_t> m_vecCode;
};

/// What stands for something that can't be decoded, U+FFFD in UTF-8.
constexpr std::string_view REPLACEMENT = "\xEF\xBF\xBD";

/// Calls use(unit, code) for each character; false at the first invalid sequence.
template <class Use>
bool ForEachUnit(std::string_view strText, Use use)
{
    const CodePage& codePage = CodePage::Get();
    for (std::size_t nByte = 0; nByte < strText.size(); ++nByte) {
        unsigned nCode = static_cast<unsigned char>(strText[nByte]);
        std::uint16_t nUnit = codePage.Unit(nCode);
        if (nUnit == NO_IMAGE) {
            if (++nByte == strText.size())
                return false;
            nCode = nCode << 8U | static_cast<unsigned char>(strText[nByte]);
            nUnit = codePage.Unit(nCode);
            if (nUnit == NO_IMAGE)
                return false;
        }
        use(static_cast<char16_t>(nUnit), nCode);
    }
    return true;
}

/// Writes a code at pOut. \return Behind it.
char* PutCode(char* pOut, unsigned nCode)
{
    if (nCode > 0xFF)
        *pOut++ = static_cast<char>(nCode >> 8U);
    *pOut++ = static_cast<char>(nCode & 0xFFU);
    return pOut;
}

/// Writes the UTF-8 form of a unit that is no surrogate at pOut. \return Behind it.
char* PutUtf8(char* pOut, char16_t cUnit)
{
    if (cUnit < 0x80) {
        *pOut++ = static_cast<char>(cUnit);
        return pOut;
    }
    if (cUnit < 0x800) {
        *pOut++ = static_cast<char>(0xC0U | cUnit >> 6U);
    } else {
        *pOut++ = static_cast<char>(0xE0U | cUnit >> 12U);
        *pOut++ = static_cast<char>(0x80U | (cUnit >> 6U & 0x3FU));
    }
    *pOut++ = static_cast<char>(0x80U | (cUnit & 0x3FU));
    return pOut;
}

/// Most bytes of a unit in UTF-8.
constexpr std::size_t MAX_UTF8 = 3;

}  // namespace

namespace ShiftJis {

std::optional<std::u16string> Decode(std::string_view strText)
{
    std::u16string strUnits(strText.size(), u'\0');
    char16_t* pOut = strUnits.data();
    if (!ForEachUnit(strText, [&](char16_t cUnit, unsigned /*nCode*/) { *pOut++ = cUnit; }))
        return std::nullopt;
    strUnits.resize(static_cast<std::size_t>(pOut - strUnits.data()));
    return strUnits;
}

std::optional<std::string> Encode(std::u16string_view strText)
{
    const CodePage& codePage = CodePage::Get();
    std::string strOut(strText.size() * 2, '\0');
    char* pOut = strOut.data();
    for (const char16_t cUnit : strText) {
        const unsigned nCode = codePage.Code(cUnit);
        if (nCode == NO_IMAGE)
            return std::nullopt;
        pOut = PutCode(pOut, nCode);
    }
    strOut.resize(static_cast<std::size_t>(pOut - strOut.data()));
    return strOut;
}

std::optional<std::string> Canonical(std::string_view strText)
{
    const CodePage& codePage = CodePage::Get();
    std::string strOut(strText.size(), '\0');
    char* pOut = strOut.data();
    if (!ForEachUnit(strText, [&](char16_t cUnit, unsigned /*nCode*/) {
            pOut = PutCode(pOut, codePage.Code(cUnit));
        }))
        return std::nullopt;
    return strOut;
}

std::optional<std::string> Trim(std::string_view strText, bool (*isWhiteSpace)(char16_t cUnit))
{
    const CodePage& codePage = CodePage::Get();
    bool bCanonical = true;
    std::size_t nAt = 0;
    std::size_t nStart = std::string_view::npos;
    std::size_t nEnd = 0;
    if (!ForEachUnit(strText, [&](char16_t cUnit, unsigned nCode) {
            const std::size_t nCharacter = nAt;
            nAt += nCode > 0xFF ? 2 : 1;
            bCanonical = bCanonical && codePage.Code(cUnit) == nCode;
            if (isWhiteSpace(cUnit))
                return;
            nStart = std::min(nStart, nCharacter);
            nEnd = nAt;
        }))
        return std::nullopt;
    if (nEnd == 0)
        return std::string();
    const std::string_view strTrimmed = strText.substr(nStart, nEnd - nStart);
    return bCanonical ? std::string(strTrimmed) : Canonical(strTrimmed);
}

std::optional<std::string> ToUtf8(std::string_view strText)
{
    std::array<char, 4096> chunk;
    char* pOut = chunk.data();
    std::string strOut;
    strOut.reserve(strText.size() * 3 / 2);
    const auto flush = [&] {
        strOut.append(chunk.data(), pOut);
        pOut = chunk.data();
    };
    if (!ForEachUnit(strText, [&](char16_t cUnit, unsigned /*nCode*/) {
            if (pOut > chunk.data() + chunk.size() - MAX_UTF8)
                flush();
            pOut = PutUtf8(pOut, cUnit);
        }))
        return std::nullopt;
    flush();
    return strOut;
}

std::string ToUtf8Anyway(std::string_view strText)
{
    const CodePage& codePage = CodePage::Get();
    std::string strOut;
    for (std::size_t nByte = 0; nByte < strText.size(); ++nByte) {
        const unsigned nFirst = static_cast<unsigned char>(strText[nByte]);
        std::uint16_t nUnit = codePage.Unit(nFirst);
        if (nUnit == NO_IMAGE && nByte + 1 < strText.size()) {
            nUnit = codePage.Unit(nFirst << 8U | static_cast<unsigned char>(strText[nByte + 1]));
            nByte += nUnit == NO_IMAGE ? 0 : 1;
        }
        if (nUnit == NO_IMAGE)
            strOut += REPLACEMENT;
        else
            Utf8::AppendUnit(strOut, static_cast<char16_t>(nUnit));
    }
    return strOut;
}

bool IsValid(std::string_view strText)
{
    return ByteClass::IsAscii(strText) ||
           ForEachUnit(strText, [](char16_t /*cUnit*/, unsigned /*nCode*/) {});
}

std::string_view Pieces::Take(std::string_view strPiece)
{
    constexpr unsigned char FIRST_TRAIL = 0x40;
    const CodePage& codePage = CodePage::Get();
    m_strBytes.erase(0, m_nTaken);
    m_strBytes.append(strPiece);
    // A byte below those that can be the second of two is a character's last one.
    const auto pBelow = std::ranges::find_if(
        m_strBytes.rbegin(), m_strBytes.rend(),
        [](char cByte) { return static_cast<unsigned char>(cByte) < FIRST_TRAIL; });
    auto nAt = static_cast<std::size_t>(m_strBytes.rend() - pBelow);
    while (nAt < m_strBytes.size())
        nAt += codePage.Unit(static_cast<unsigned char>(m_strBytes[nAt])) == NO_IMAGE ? 2U : 1U;
    m_nTaken = nAt == m_strBytes.size() ? nAt : m_strBytes.size() - 1;
    return std::string_view(m_strBytes).substr(0, m_nTaken);
}

}  // namespace ShiftJis

namespace Utf8 {

namespace {

/// What a lead byte announces.
struct Lead
{
    std::size_t nTrail;       ///< continuation bytes
    std::uint32_t nBits;      ///< bits that the lead byte itself carries
    std::uint32_t nSmallest;  ///< anything below is an overlong form
};

std::optional<Lead> ReadLead(unsigned char cByte)
{
    if (cByte < 0x80)
        return Lead{0, cByte, 0};
    if (cByte >= 0xC2 && cByte < 0xE0)
        return Lead{1, cByte & 0x1FU, 0x80};
    if (cByte >= 0xE0 && cByte < 0xF0)
        return Lead{2, cByte & 0x0FU, 0x800};
    if (cByte >= 0xF0 && cByte < 0xF5)
        return Lead{3, cByte & 0x07U, 0x10000};
    return std::nullopt;
}

/// Calls use(character, bytes) for each character of a UTF-8 text; false at the first sequence that
/// is not well-formed.
template <class Use>
bool ForEachCharacter(std::string_view strText, Use use)
{
    for (std::size_t nByte = 0; nByte < strText.size();) {
        const std::size_t nStart = nByte;
        const auto lead = ReadLead(static_cast<unsigned char>(strText[nByte++]));
        if (!lead || strText.size() - nByte < lead->nTrail)
            return false;
        std::uint32_t nCharacter = lead->nBits;
        for (std::size_t nTrail = 0; nTrail < lead->nTrail; ++nTrail) {
            const unsigned cByte = static_cast<unsigned char>(strText[nByte++]);
            if ((cByte & 0xC0U) != 0x80U)
                return false;
            nCharacter = nCharacter << 6U | (cByte & 0x3FU);
        }
        if (nCharacter < lead->nSmallest || nCharacter > 0x10FFFF ||
            (nCharacter < 0x10000 && IsSurrogate(static_cast<char16_t>(nCharacter))))
            return false;
        use(nCharacter, nByte - nStart);
    }
    return true;
}

/// Behind the character at nByte, or behind as much of one as stands there, one byte at least.
std::size_t EndOfCharacter(std::string_view strText, std::size_t nByte)
{
    const unsigned nFirst = static_cast<unsigned char>(strText[nByte++]);
    const auto lead = ReadLead(static_cast<unsigned char>(nFirst));
    if (!lead)
        return nByte;
    for (std::size_t nTrail = 0; nTrail < lead->nTrail && nByte < strText.size(); ++nTrail) {
        // The first of them must not make an overlong form, a surrogate or more than U+10FFFF.
        unsigned nLow = 0x80;
        unsigned nHigh = 0xBF;
        if (nTrail == 0) {
            nLow = nFirst == 0xE0 ? 0xA0 : nFirst == 0xF0 ? 0x90 : nLow;
            nHigh = nFirst == 0xED ? 0x9F : nFirst == 0xF4 ? 0x8F : nHigh;
        }
        const unsigned nNext = static_cast<unsigned char>(strText[nByte]);
        if (nNext < nLow || nNext > nHigh)
            break;
        ++nByte;
    }
    return nByte;
}

/// Writes the UTF-8 form of a character beyond U+FFFF at pOut. \return Behind it.
char* PutCharacter(char* pOut, std::uint32_t nCharacter)
{
    *pOut++ = static_cast<char>(0xF0U | nCharacter >> 18U);
    *pOut++ = static_cast<char>(0x80U | (nCharacter >> 12U & 0x3FU));
    *pOut++ = static_cast<char>(0x80U | (nCharacter >> 6U & 0x3FU));
    *pOut++ = static_cast<char>(0x80U | (nCharacter & 0x3FU));
    return pOut;
}

}  // namespace

std::optional<std::u16string> Decode(std::string_view strText)
{
    std::u16string strUnits(strText.size(), u'\0');
    char16_t* pOut = strUnits.data();
    if (!ForEachCharacter(strText, [&](std::uint32_t nCharacter, std::size_t /*nBytes*/) {
            if (nCharacter < 0x10000) {
                *pOut++ = static_cast<char16_t>(nCharacter);
                return;
            }
            *pOut++ = static_cast<char16_t>(0xD800U + ((nCharacter - 0x10000U) >> 10U));
            *pOut++ = static_cast<char16_t>(0xDC00U + ((nCharacter - 0x10000U) & 0x3FFU));
        }))
        return std::nullopt;
    strUnits.resize(static_cast<std::size_t>(pOut - strUnits.data()));
    return strUnits;
}

std::optional<std::string> Encode(std::u16string_view strText)
{
    std::string strOut(strText.size() * MAX_UTF8, '\0');
    char* pOut = strOut.data();
    for (std::size_t nUnit = 0; nUnit < strText.size(); ++nUnit) {
        const char16_t cUnit = strText[nUnit];
        if (!IsSurrogate(cUnit)) {
            pOut = PutUtf8(pOut, cUnit);
            continue;
        }
        if (!IsHighSurrogate(cUnit) || ++nUnit == strText.size() || !IsLowSurrogate(strText[nUnit]))
            return std::nullopt;
        pOut =
            PutCharacter(pOut, 0x10000U + ((cUnit - 0xD800U) << 10U) + (strText[nUnit] - 0xDC00U));
    }
    strOut.resize(static_cast<std::size_t>(pOut - strOut.data()));
    return strOut;
}

std::optional<std::string> Trim(std::string_view strText, bool (*isWhiteSpace)(char16_t cUnit))
{
    std::size_t nAt = 0;
    std::size_t nStart = std::string_view::npos;
    std::size_t nEnd = 0;
    if (!ForEachCharacter(strText, [&](std::uint32_t nCharacter, std::size_t nBytes) {
            const std::size_t nFirst = nAt;
            nAt += nBytes;
            if (nCharacter < 0x10000 && isWhiteSpace(static_cast<char16_t>(nCharacter)))
                return;
            nStart = std::min(nStart, nFirst);
            nEnd = nAt;
        }))
        return std::nullopt;
    return nEnd == 0 ? std::string() : std::string(strText.substr(nStart, nEnd - nStart));
}

std::string Repair(std::string_view strText)
{
    std::string strOut;
    strOut.reserve(strText.size());
    for (std::size_t nByte = 0; nByte < strText.size();) {
        const std::size_t nEnd = EndOfCharacter(strText, nByte);
        const std::string_view strCharacter = strText.substr(nByte, nEnd - nByte);
        const bool bWhole = ForEachCharacter(strCharacter, [](auto, auto) {});
        strOut += bWhole ? strCharacter : REPLACEMENT;
        nByte = nEnd;
    }
    return strOut;
}

void AppendUnit(std::string& strOut, char16_t cUnit)
{
    std::array<char, MAX_UTF8> bytes;
    strOut.append(bytes.data(), PutUtf8(bytes.data(), cUnit));
}

}  // namespace Utf8
