// Text services: encodings, characters, trimming, numbers.
#include <algorithm>
#include <array>
#include <utility>

#include "KZCMacOSNative.h"
#include "text/ByteClass.h"
#include "text/CText.h"
#include "text/ShiftJis.h"

namespace {

/// The characters of general category Z above ASCII, beside U+2000 to U+200A.
constexpr std::array<char16_t, 9> SEPARATORS = {0x0085, 0x00A0, 0x1680, 0x2028, 0x2029,
                                                0x202F, 0x205F, 0x3000, 0x0020};

/// A file up to this size, in bytes, is read in one piece.
constexpr long WHOLE_FILE = 4'194'304;

/// The file is valid Shift_JIS and doesn't begin with its end.
bool IsShiftJisFile(const char* szPath)
{
    ShiftJis::Pieces pieces;
    bool bValid = true;
    bool bFirst = true;
    bool bText = false;
    const bool bRead = KZCMacOSNative::readFile(szPath, [&](std::string_view strPiece) {
        if (std::exchange(bFirst, false))
            bText = strPiece.front() != '\0';
        bValid = ShiftJis::IsValid(pieces.Take(strPiece));
        return bValid;
    });
    return bRead && bText && bValid && pieces.IsWhole();
}

constexpr bool IsAsciiWhiteSpace(char cByte)
{
    return cByte == ' ' || (cByte >= '\t' && cByte <= '\r');
}

constexpr bool IsWhiteSpace(char16_t cUnit)
{
    constexpr char16_t LAST = 0x3000;
    if (cUnit > LAST)
        return false;
    return (cUnit >= 0x0009 && cUnit <= 0x000D) || (cUnit >= 0x2000 && cUnit <= 0x200A) ||
           std::ranges::find(SEPARATORS, cUnit) != SEPARATORS.end();
}

/// The part of an ASCII text between white space at both ends.
std::string_view TrimAscii(std::string_view strText)
{
    while (!strText.empty() && IsAsciiWhiteSpace(strText.front()))
        strText.remove_prefix(1);
    while (!strText.empty() && IsAsciiWhiteSpace(strText.back()))
        strText.remove_suffix(1);
    return strText;
}

std::optional<std::u16string> Decode(std::string_view strText, bool bUtf8)
{
    return bUtf8 ? Utf8::Decode(strText) : ShiftJis::Decode(strText);
}

/// Bytes of one UTF-16 unit in the encoding: 0 for half of a surrogate pair, which has no form of
/// its own.
unsigned char UnitLength(char16_t cUnit, bool bUtf8)
{
    if (!bUtf8)
        return cUnit < 0x80 || (cUnit >= 0xFF61 && cUnit <= 0xFF9F) ? 1 : 2;
    if (cUnit < 0x80)
        return 1;
    if (cUnit < 0x800)
        return 2;
    return cUnit >= 0xD800 && cUnit <= 0xDFFF ? 0 : 3;
}

}  // namespace

std::string KZCMacOSNative::readSJISFile(const char* szPath, bool bUtf8)
try {
    std::string strBytes;
    if (!readFile(szPath, strBytes))
        return {};
    auto strText = bUtf8 ? ShiftJis::ToUtf8(strBytes) : ShiftJis::Canonical(strBytes);
    if (!strText)
        return {};
    if (const std::size_t nEnd = strText->find('\0'); nEnd != std::string::npos)
        strText->resize(nEnd);
    return *std::move(strText);
} catch (...) {
    return {};  // no memory for it: a file that can't be read
}

bool KZCMacOSNative::readSJISPieces(const char* szPath, bool bUtf8, const PieceUse& use)
{
    if (getFileSize(szPath) <= WHOLE_FILE) {
        const std::string strText = readSJISFile(szPath, bUtf8);
        if (!strText.empty())
            static_cast<void>(use(strText));
        return !strText.empty();
    }
    if (!IsShiftJisFile(szPath))
        return false;
    ShiftJis::Pieces pieces;
    bool bValid = true;
    const bool bRead = readFile(szPath, [&](std::string_view strPiece) {
        const std::string_view strBytes = pieces.Take(strPiece);
        const std::size_t nEnd = strBytes.find('\0');
        const std::string_view strWhole = strBytes.substr(0, nEnd);
        const auto strText = bUtf8 ? ShiftJis::ToUtf8(strWhole) : ShiftJis::Canonical(strWhole);
        bValid = strText.has_value();
        return bValid && use(*strText) && nEnd == std::string_view::npos;
    });
    return bRead && bValid;
}

std::string KZCMacOSNative::convertUTF8fromShiftJIS(const char* szText)
{
    return ShiftJis::ToUtf8(CText::OrEmpty(szText)).value_or(std::string());
}

std::u16string KZCMacOSNative::convertUTF16fromShiftJIS(const char* szText)
{
    return ShiftJis::Decode(CText::OrEmpty(szText)).value_or(std::u16string());
}

unsigned long KZCMacOSNative::getStringLength(const char* szText, unsigned long nIndex, bool bUtf8)
{
    const auto strUnits = Decode(CText::OrEmpty(szText), bUtf8);
    return strUnits && nIndex < strUnits->size() ? UnitLength((*strUnits)[nIndex], bUtf8) : 0;
}

std::vector<unsigned char> KZCMacOSNative::getStringLengths(const char* szText, bool bUtf8)
{
    const auto strUnits = Decode(CText::OrEmpty(szText), bUtf8);
    if (!strUnits)
        return {};
    std::vector<unsigned char> vecLength(strUnits->size());
    std::ranges::transform(*strUnits, vecLength.begin(),
                           [bUtf8](char16_t cUnit) { return UnitLength(cUnit, bUtf8); });
    return vecLength;
}

unsigned long KZCMacOSNative::getCharacterLength(const char* szText)
{
    const auto strUnits = Utf8::Decode(CText::OrEmpty(szText));
    return strUnits ? strUnits->size() : 0;
}

std::string KZCMacOSNative::subStringWithCharacterLength(const std::string& strText,
                                                         unsigned long nStart,
                                                         unsigned long nLength)
{
    const auto strUnits = Utf8::Decode(strText);
    if (!strUnits || strUnits->size() <= nStart)
        return strText;
    return Utf8::Encode(std::u16string_view(*strUnits).substr(nStart, nLength))
        .value_or(std::string());
}

std::string KZCMacOSNative::stringByTrimming(const std::string& strText, bool bUtf8)
{
    if (ByteClass::IsAscii(strText))
        return std::string(TrimAscii(strText));
    const auto strTrimmed =
        bUtf8 ? Utf8::Trim(strText, IsWhiteSpace) : ShiftJis::Trim(strText, IsWhiteSpace);
    return strTrimmed.value_or(std::string());
}

bool KZCMacOSNative::isIntegerString(const char* szText, bool /*bUtf8*/)
{
    const std::string_view strText = CText::OrEmpty(szText);
    // In either encoding a byte above ASCII belongs to a character of several bytes in UTF-8, or to
    // a text that can't be read: both are no number.
    if (!ByteClass::IsAscii(strText))
        return false;
    bool bDigitSeen = false;
    bool bSignOpen = false;
    bool bPointSeen = false;
    for (std::size_t nIndex = 0; nIndex < strText.size(); ++nIndex) {
        const char cByte = strText[nIndex];
        if (cByte >= '0' && cByte <= '9') {
            bDigitSeen = true;
            bSignOpen = false;
        } else if ((cByte == '+' || cByte == '-') && nIndex == 0 && strText.size() > 1) {
            bSignOpen = true;
        } else if (cByte == '.' && nIndex != 0 && !bPointSeen && !bSignOpen) {
            bPointSeen = true;
        } else {
            return false;
        }
    }
    return bDigitSeen;
}
