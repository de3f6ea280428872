#include "base/SafeText.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <limits>

namespace host {
namespace {

struct CodeRange
{
    char32_t cFirst;
    char32_t cLast;
};

constexpr CodeRange ESCAPED[] = {
    {0x00, 0x1f},        // control characters
    {'\\', '\\'},        // the escape character
    {0x7f, 0x9f},        // delete and the second set of control characters
    {0xad, 0xad},        // soft hyphen
    {0x61c, 0x61c},      // Arabic letter mark
    {0x180e, 0x180e},    // Mongolian vowel separator
    {0x200b, 0x200f},    // zero width, directional marks
    {0x2028, 0x202e},    // line and paragraph separators, directional embeddings
    {0x2060, 0x206f},    // invisible operators, directional isolates
    {0xfeff, 0xfeff},    // byte order mark
    {0xfff9, 0xfffb},    // interlinear annotation
    {0xe0000, 0xe0fff},  // tags, variation selectors
};

struct Character
{
    char32_t cCode = 0;
    std::size_t nBytes = 0;  ///< 0 if no well-formed character stands there
};

bool IsContinuation(char cByte)
{
    return (static_cast<unsigned char>(cByte) & 0xc0) == 0x80;
}

/// The character at the front of a text that isn't empty.
Character ReadCharacter(std::string_view strText)
{
    struct Form
    {
        unsigned char nMask, nLead;
        std::size_t nBytes;
        char32_t cLowest;  ///< a lower code in this form is overlong
    };
    static constexpr Form FORMS[] = {
        {0x80, 0x00, 1, 0},
        {0xe0, 0xc0, 2, 0x80},
        {0xf0, 0xe0, 3, 0x800},
        {0xf8, 0xf0, 4, 0x10000},
    };

    const auto nLead = static_cast<unsigned char>(strText.front());
    for (const Form& form : FORMS) {
        if ((nLead & form.nMask) != form.nLead)
            continue;
        if (strText.size() < form.nBytes ||
            !std::ranges::all_of(strText.substr(1, form.nBytes - 1), IsContinuation))
            return {};
        auto cCode = static_cast<char32_t>(nLead & static_cast<unsigned char>(~form.nMask));
        for (const char cByte : strText.substr(1, form.nBytes - 1))
            cCode = (cCode << 6) | (static_cast<unsigned char>(cByte) & 0x3fu);
        const bool bSurrogate = cCode >= 0xd800 && cCode <= 0xdfff;
        if (cCode < form.cLowest || bSurrogate || cCode > 0x10ffff)
            return {};
        return {cCode, form.nBytes};
    }
    return {};
}

void AppendFormatted(std::string& strOut, const char* szFormat, unsigned long nValue)
{
    std::array<char, 24> buffer{};
    std::snprintf(buffer.data(), buffer.size(), szFormat, nValue);
    strOut += buffer.data();
}

void AppendEscape(std::string& strOut, char32_t cCode)
{
    switch (cCode) {
        case '\\':
            strOut += "\\\\";
            return;
        case '\t':
            strOut += "\\t";
            return;
        case '\n':
            strOut += "\\n";
            return;
        case '\r':
            strOut += "\\r";
            return;
        default:
            AppendFormatted(strOut, "\\u{%lx}", cCode);
    }
}

bool IsEscaped(char32_t cCode)
{
    return std::ranges::any_of(ESCAPED, [cCode](const CodeRange& range) {
        return cCode >= range.cFirst && cCode <= range.cLast;
    });
}

/// As JSON writes it: two surrogates beyond the first plane.
void AppendJsonEscape(std::string& strOut, char32_t cCode)
{
    constexpr char32_t PLANE = 0x10000;
    if (cCode < PLANE) {
        AppendFormatted(strOut, "\\u%04lx", cCode);
        return;
    }
    AppendFormatted(strOut, "\\u%04lx", 0xd800 + ((cCode - PLANE) >> 10));
    AppendFormatted(strOut, "\\u%04lx", 0xdc00 + ((cCode - PLANE) & 0x3ff));
}

/// \return Bytes of strText that went into strOut.
std::size_t AppendSafe(std::string& strOut, std::string_view strText, std::size_t nLimit)
{
    const std::size_t nAll = strText.size();
    for (; !strText.empty() && nLimit > 0; --nLimit) {
        const Character character = ReadCharacter(strText);
        if (character.nBytes == 0)
            AppendFormatted(strOut, "\\x%02lx", static_cast<unsigned char>(strText.front()));
        else if (IsEscaped(character.cCode))
            AppendEscape(strOut, character.cCode);
        else
            strOut += strText.substr(0, character.nBytes);
        strText.remove_prefix(std::max<std::size_t>(character.nBytes, 1));
    }
    return nAll - strText.size();
}

}  // namespace

std::string MakeSafe(std::string_view strText)
{
    std::string strOut;
    AppendSafe(strOut, strText, std::numeric_limits<std::size_t>::max());
    return strOut;
}

std::string MakeSafeAndShort(std::string_view strText, std::size_t nLimit)
{
    std::string strOut;
    if (AppendSafe(strOut, strText, nLimit) < strText.size())
        strOut += "… (" + std::to_string(strText.size()) + " bytes in all)";
    return strOut;
}

std::string MakeSafeJson(std::string_view strJson)
{
    constexpr char32_t DELETE = 0x7f;
    std::string strOut;
    strOut.reserve(strJson.size());
    while (!strJson.empty()) {
        const Character character = ReadCharacter(strJson);
        if (character.cCode >= DELETE && IsEscaped(character.cCode))
            AppendJsonEscape(strOut, character.cCode);
        else
            strOut += strJson.substr(0, std::max<std::size_t>(character.nBytes, 1));
        strJson.remove_prefix(std::max<std::size_t>(character.nBytes, 1));
    }
    return strOut;
}

std::string CsvCell(std::string_view strText)
{
    static constexpr std::string_view FORMULA_STARTS[] = {"=",  "+",  "-",  "@",  "\t",
                                                          "\r", "＝", "＋", "－", "＠"};
    std::string strCell = "\"";
    if (std::ranges::any_of(FORMULA_STARTS, [strText](std::string_view strStart) {
            return strText.starts_with(strStart);
        }))
        strCell += CELL_OF_TEXT;
    for (const char c : strText) {
        if (c == '"')
            strCell += '"';
        strCell += c;
    }
    return strCell + '"';
}

}  // namespace host
