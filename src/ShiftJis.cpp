#include "ShiftJis.h"

#include <cstdint>
#include <memory>
#include <vector>

#include "CharsetConverter.h"

namespace {

constexpr std::size_t UNIT_COUNT = 0x10000;
constexpr std::uint32_t NO_IMAGE = 0x10000;

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
    std::uint32_t Unit(unsigned nCode) const { return m_vecUnit[nCode]; }
    /// The canonical code of a unit, or NO_IMAGE.
    std::uint32_t Code(char16_t cUnit) const { return m_vecCode[cUnit]; }

private:
    CodePage() : m_vecUnit(UNIT_COUNT, NO_IMAGE), m_vecCode(UNIT_COUNT, NO_IMAGE)
    {
        CharsetConverter decoder("UTF-16LE", "CP932");
        CharsetConverter encoder("CP932", "UTF-16LE");
        for (unsigned nCode = 0; nCode < 0x100; ++nCode)
            Learn(decoder, encoder, nCode, std::string(1, static_cast<char>(nCode)));
        for (unsigned nCode = 0x8140; nCode < 0xFD00; ++nCode) {
            // Only two-byte codes: a lead byte of 0xA1 to 0xDF is a character by itself.
            const unsigned nLead = nCode >> 8U;
            const unsigned nTrail = nCode & 0xFFU;
            if ((nLead >= 0xA0 && nLead <= 0xDF) || nTrail < 0x40 || nTrail > 0xFC)
                continue;
            Learn(decoder, encoder, nCode, {static_cast<char>(nLead), static_cast<char>(nTrail)});
        }
    }

    void Learn(CharsetConverter& decoder,
               CharsetConverter& encoder,
               unsigned nCode,
               const std::string& strCode)
    {
        const auto strUnit = decoder.Convert(strCode);
        if (!strUnit || strUnit->size() != 2)
            return;
        const unsigned nUnit = static_cast<unsigned char>((*strUnit)[0]) |
                               static_cast<unsigned>(static_cast<unsigned char>((*strUnit)[1]))
                                   << 8U;
        m_vecUnit[nCode] = nUnit;
        const auto strCanonical = encoder.Convert(*strUnit);
        std::uint32_t nCanonical = 0;
        for (const char cByte : strCanonical.value_or(strCode))
            nCanonical = nCanonical << 8U | static_cast<unsigned char>(cByte);
        m_vecCode[nUnit] = nCanonical;
    }

    std::vector<std::uint32_t> m_vecUnit;
    std::vector<std::uint32_t> m_vecCode;
};

/// Calls use(unit) for each character; false at the first invalid sequence.
template <class Use>
bool ForEachUnit(std::string_view strText, Use use)
{
    const CodePage& codePage = CodePage::Get();
    for (std::size_t nByte = 0; nByte < strText.size(); ++nByte) {
        const unsigned nLead = static_cast<unsigned char>(strText[nByte]);
        std::uint32_t nUnit = codePage.Unit(nLead);
        if (nUnit == NO_IMAGE) {
            if (++nByte == strText.size())
                return false;
            nUnit = codePage.Unit(nLead << 8U | static_cast<unsigned char>(strText[nByte]));
            if (nUnit == NO_IMAGE)
                return false;
        }
        use(static_cast<char16_t>(nUnit));
    }
    return true;
}

/// Appends the canonical code of a unit; false if it has none.
bool AppendCode(std::string& strOut, char16_t cUnit)
{
    const std::uint32_t nCode = CodePage::Get().Code(cUnit);
    if (nCode == NO_IMAGE)
        return false;
    if (nCode > 0xFF)
        strOut += static_cast<char>(nCode >> 8U);
    strOut += static_cast<char>(nCode & 0xFFU);
    return true;
}

}  // namespace

namespace ShiftJis {

std::optional<std::u16string> Decode(std::string_view strText)
{
    std::u16string strUnits;
    strUnits.reserve(strText.size());
    if (!ForEachUnit(strText, [&](char16_t cUnit) { strUnits += cUnit; }))
        return std::nullopt;
    return strUnits;
}

std::optional<std::string> Encode(std::u16string_view strText)
{
    std::string strOut;
    strOut.reserve(strText.size() * 2);
    for (const char16_t cUnit : strText)
        if (!AppendCode(strOut, cUnit))
            return std::nullopt;
    return strOut;
}

std::optional<std::string> Canonical(std::string_view strText)
{
    std::string strOut;
    strOut.reserve(strText.size());
    if (!ForEachUnit(strText, [&](char16_t cUnit) { AppendCode(strOut, cUnit); }))
        return std::nullopt;
    return strOut;
}

std::optional<std::string> ToUtf8(std::string_view strText)
{
    std::string strOut;
    strOut.reserve(strText.size() * 3 / 2);
    if (!ForEachUnit(strText, [&](char16_t cUnit) { Utf8::AppendUnit(strOut, cUnit); }))
        return std::nullopt;
    return strOut;
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

void AppendCharacter(std::string& strOut, std::uint32_t nCharacter)
{
    strOut += static_cast<char>(0xF0U | nCharacter >> 18U);
    strOut += static_cast<char>(0x80U | (nCharacter >> 12U & 0x3FU));
    strOut += static_cast<char>(0x80U | (nCharacter >> 6U & 0x3FU));
    strOut += static_cast<char>(0x80U | (nCharacter & 0x3FU));
}

}  // namespace

std::optional<std::u16string> Decode(std::string_view strText)
{
    std::u16string strUnits;
    strUnits.reserve(strText.size());
    for (std::size_t nByte = 0; nByte < strText.size();) {
        const auto lead = ReadLead(static_cast<unsigned char>(strText[nByte++]));
        if (!lead || strText.size() - nByte < lead->nTrail)
            return std::nullopt;
        std::uint32_t nCharacter = lead->nBits;
        for (std::size_t nTrail = 0; nTrail < lead->nTrail; ++nTrail) {
            const unsigned cByte = static_cast<unsigned char>(strText[nByte++]);
            if ((cByte & 0xC0U) != 0x80U)
                return std::nullopt;
            nCharacter = nCharacter << 6U | (cByte & 0x3FU);
        }
        if (nCharacter < lead->nSmallest || nCharacter > 0x10FFFF ||
            (nCharacter < 0x10000 && IsSurrogate(static_cast<char16_t>(nCharacter))))
            return std::nullopt;
        if (nCharacter < 0x10000) {
            strUnits += static_cast<char16_t>(nCharacter);
            continue;
        }
        strUnits += static_cast<char16_t>(0xD800U + ((nCharacter - 0x10000U) >> 10U));
        strUnits += static_cast<char16_t>(0xDC00U + ((nCharacter - 0x10000U) & 0x3FFU));
    }
    return strUnits;
}

std::optional<std::string> Encode(std::u16string_view strText)
{
    std::string strOut;
    strOut.reserve(strText.size() * 3);
    for (std::size_t nUnit = 0; nUnit < strText.size(); ++nUnit) {
        const char16_t cUnit = strText[nUnit];
        if (!IsSurrogate(cUnit)) {
            AppendUnit(strOut, cUnit);
            continue;
        }
        if (!IsHighSurrogate(cUnit) || ++nUnit == strText.size() || !IsLowSurrogate(strText[nUnit]))
            return std::nullopt;
        AppendCharacter(strOut, 0x10000U + ((cUnit - 0xD800U) << 10U) + (strText[nUnit] - 0xDC00U));
    }
    return strOut;
}

void AppendUnit(std::string& strOut, char16_t cUnit)
{
    if (cUnit < 0x80) {
        strOut += static_cast<char>(cUnit);
        return;
    }
    if (cUnit < 0x800) {
        strOut += static_cast<char>(0xC0U | cUnit >> 6U);
    } else {
        strOut += static_cast<char>(0xE0U | cUnit >> 12U);
        strOut += static_cast<char>(0x80U | (cUnit >> 6U & 0x3FU));
    }
    strOut += static_cast<char>(0x80U | (cUnit & 0x3FU));
}

}  // namespace Utf8
