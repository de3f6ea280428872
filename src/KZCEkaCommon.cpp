#include "KZCEkaCommon.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "KZCMacOSNative.h"
#include "family/BundleFiles.h"
#include "text/CText.h"
#include "text/LostText.h"

namespace {

struct ResourceFile
{
    unsigned short nId;
    const char* szName;
};

constexpr std::array<ResourceFile, 2> RESOURCE_FILES = {{
    {202, BundleFiles::BASE_DEFINITION},
    {203, BundleFiles::TAX_OFFICES},
}};

/// Start and end of a block that is copied as it stands.
struct BlockTokens
{
    std::string_view strStart;
    std::string_view strEnd;
};

constexpr std::array<BlockTokens, 3> BLOCKS = {{
    {"<![CDATA[", "]]>"},
    {"<!--", "-->"},
    {"<?", "?>"},
}};

/// Finds the blocks of one kind from the front. The end is looked for from the start token itself,
/// so that the two may overlap ("<?>" is a block). Both positions only move forward: the whole text
/// is searched once, however many blocks it holds.
class BlockSearch
{
public:
    explicit BlockSearch(const BlockTokens& tokens) : m_tokens(tokens) {}

    /// The first block at or behind nFrom as start and end; npos as start if there is none.
    std::pair<std::size_t, std::size_t> Next(std::string_view strText, std::size_t nFrom)
    {
        constexpr std::size_t NONE = std::string_view::npos;
        if (m_nStart != NONE && (!m_bSearched || m_nStart < nFrom))
            m_nStart = strText.find(m_tokens.strStart, nFrom);
        if (m_nStart != NONE && (!m_bSearched || m_nEnd < m_nStart))
            m_nEnd = strText.find(m_tokens.strEnd, m_nStart);
        m_bSearched = true;
        if (m_nStart == NONE || m_nEnd == NONE) {
            m_nStart = NONE;  // no end token from here on: no block behind this place either
            return {NONE, NONE};
        }
        return {m_nStart, m_nEnd + m_tokens.strEnd.size()};
    }

private:
    const BlockTokens& m_tokens;
    std::size_t m_nStart = 0;
    std::size_t m_nEnd = 0;
    bool m_bSearched = false;
};

/// What the step gives, or the empty text if there is no memory for it.
template <class Step>
std::string TextOrLost(Step step)
try {
    return step();
} catch (...) {
    LostText::Note();
    return {};
}

/// Bytes without which a text is its own escaped form: no block begins without one of them.
constexpr bool IsSpecial(char cByte)
{
    return cByte == '"' || cByte == '&' || cByte == '\'' || cByte == '<' || cByte == '>' ||
           cByte == '\0';
}

/// Appends the text with the five XML characters escaped.
void SpecialEncodingWork(std::string& strOut, std::string_view strText)
{
    constexpr std::string_view SPECIAL = "\"&'<>";
    std::size_t nStart = 0;
    for (std::size_t nAt = 0; (nAt = strText.find_first_of(SPECIAL, nStart)) != std::string::npos;
         nStart = nAt + 1) {
        strOut += strText.substr(nStart, nAt - nStart);
        switch (strText[nAt]) {
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
            default:
                strOut += "&gt;";
                break;
        }
    }
    strOut += strText.substr(nStart);
}

/// SpecialEncoding. Throws if memory runs out.
std::string Escape(const std::string& strText)
{
    if (std::ranges::none_of(strText, IsSpecial))
        return strText;
    const std::string_view strRest = std::string_view(strText).substr(0, strText.find('\0'));
    std::string strOut;
    strOut.reserve(strRest.size());
    std::array<BlockSearch, BLOCKS.size()> searches = {
        BlockSearch(BLOCKS[0]), BlockSearch(BLOCKS[1]), BlockSearch(BLOCKS[2])};
    for (std::size_t nAt = 0; nAt < strRest.size();) {
        // No two kinds can begin at one place.
        std::pair<std::size_t, std::size_t> block = {std::string::npos, std::string::npos};
        for (BlockSearch& search : searches)
            block = std::min(block, search.Next(strRest, nAt));
        const auto [nStart, nEnd] = block;
        SpecialEncodingWork(strOut, strRest.substr(nAt, nStart - nAt));
        if (nStart == std::string::npos)
            break;
        strOut += strRest.substr(nStart, nEnd - nStart);
        nAt = nEnd;
    }
    return strOut;
}

}  // namespace

std::string KZCEkaCommon::Now(const char* szDatePattern, const char* szTimePattern)
{
    return KZCMacOSNative::dateTimeNow(szDatePattern, szTimePattern);
}

std::string KZCEkaCommon::StringTrim(const char* szText)
{
    return TextOrLost([szText] {
        return KZCMacOSNative::stringByTrimming(CText::OrEmpty(szText), !m_bDuringCsvCheck);
    });
}

std::string KZCEkaCommon::StringTrim(const std::string& strText)
{
    return TextOrLost(
        [&strText] { return KZCMacOSNative::stringByTrimming(strText, !m_bDuringCsvCheck); });
}

std::string KZCEkaCommon::SpecialEncoding(const std::string& strText)
{
    return TextOrLost([&strText] { return Escape(strText); });
}

std::string KZCEkaCommon::LoadResoucePath(unsigned short nId, const char* /*szType*/)
{
    const auto* pFile = std::ranges::find(RESOURCE_FILES, nId, &ResourceFile::nId);
    return pFile != RESOURCE_FILES.end() ? KZCMacOSNative::getBundlePathName(pFile->szName)
                                         : std::string();
}

std::string KZCEkaCommon::searchProperties(const std::string& strFolder,
                                           const std::string& strFirst,
                                           const std::string& strSecond)
{
    return TextOrLost([&] {
        std::vector<std::string> vecFiles;
        if (!KZCMacOSNative::getFilesUnderFolder(strFolder.c_str(), vecFiles))
            return std::string();
        const auto pFile = std::ranges::find_if(vecFiles, [&](const std::string& strPath) {
            return strPath.find(strFirst) != std::string::npos &&
                   strPath.find(strSecond) != std::string::npos;
        });
        return pFile != vecFiles.end() ? *pFile : std::string();
    });
}
