// Escaping of cell texts. The whole input is the text.
#include <string>
#include <string_view>

#include "FuzzSupport.h"
#include "KZCEkaCommon.h"

namespace {

using FuzzSupport::Require;

struct Block
{
    std::size_t nStart = std::string_view::npos;
    std::size_t nLength = 0;
};

struct Tokens
{
    std::string_view strStart;
    std::string_view strEnd;
};

constexpr Tokens BLOCKS[] = {{"<![CDATA[", "]]>"}, {"<!--", "-->"}, {"<?", "?>"}};

/// The first block of any kind at or behind nFrom. The end token may lie over the start token.
Block FindBlock(std::string_view strText, std::size_t nFrom)
{
    Block first;
    for (const Tokens& tokens : BLOCKS) {
        const std::size_t nStart = strText.find(tokens.strStart, nFrom);
        if (nStart == std::string_view::npos || nStart >= first.nStart)
            continue;
        const std::size_t nEnd = strText.find(tokens.strEnd, nStart);
        if (nEnd != std::string_view::npos)
            first = {nStart, nEnd + tokens.strEnd.size() - nStart};
    }
    return first;
}

std::string Escape(std::string_view strText)
{
    std::string strOut;
    for (const char cByte : strText) {
        switch (cByte) {
            case '"':
                strOut += "&quot;";
                break;
            case '&':
                strOut += "&amp;";
                break;
            case '\'':
                strOut += "&apos;";
                break;
            case '<':
                strOut += "&lt;";
                break;
            case '>':
                strOut += "&gt;";
                break;
            default:
                strOut += cByte;
                break;
        }
    }
    return strOut;
}

/// The rule in its plainest form, whatever it costs.
std::string Reference(std::string_view strText)
{
    std::string strOut;
    std::size_t nPosition = 0;
    while (nPosition < strText.size()) {
        const Block block = FindBlock(strText, nPosition);
        if (block.nStart == std::string_view::npos)
            return strOut + Escape(strText.substr(nPosition));
        strOut += Escape(strText.substr(nPosition, block.nStart - nPosition));
        strOut += strText.substr(block.nStart, block.nLength);
        nPosition = block.nStart + block.nLength;
    }
    return strOut;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    constexpr std::size_t LONGEST_ESCAPE = 6;
    const std::string strText(FuzzSupport::AsText(pData, nSize));
    const std::string_view strCounted(strText.c_str());
    const std::string strResult = KZCEkaCommon::SpecialEncoding(strText);
    Require(strResult.size() >= strCounted.size(), "nothing of the text is lost");
    Require(strResult.size() <= strCounted.size() * LONGEST_ESCAPE, "a byte becomes six at most");
    Require(strResult == Reference(strCounted), "the result is the one that the plain rule gives");
    return 0;
}
