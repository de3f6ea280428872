#include "text/CText.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>

namespace CText {

namespace {

constexpr int DECIMAL = 10;

/// Calls use(piece) for each piece between blanks.
template <class Use>
void ForEachToken(std::string_view strText, Use use)
{
    std::size_t nStart = 0;
    while ((nStart = strText.find_first_not_of(' ', nStart)) != std::string_view::npos) {
        const std::size_t nEnd = std::min(strText.find(' ', nStart), strText.size());
        use(strText.substr(nStart, nEnd - nStart));
        nStart = nEnd;
    }
}

}  // namespace

long ReadLong(const char* szText)
{
    return std::strtol(OrEmpty(szText), nullptr, DECIMAL);
}

int ReadInt(const char* szText)
{
    return static_cast<std::int32_t>(ReadLong(szText));
}

std::vector<std::string> SplitTokens(std::string_view strText)
{
    std::vector<std::string> vecToken;
    ForEachToken(strText, [&](std::string_view strToken) { vecToken.emplace_back(strToken); });
    return vecToken;
}

std::vector<long> SplitNumbers(std::string_view strText)
{
    std::vector<long> vecNumber;
    ForEachToken(strText, [&](std::string_view strToken) {
        vecNumber.push_back(ReadLong(std::string(strToken).c_str()));
    });
    return vecNumber;
}

std::string CutToBuffer(std::string strText, std::size_t nSize)
{
    if (strText.size() >= nSize)
        strText.resize(nSize - 1);
    return strText;
}

void AppendNumber(std::string& strOut, long lNumber, int nWidth)
{
    constexpr std::size_t LONGEST = 24;
    char szDigits[LONGEST];
    const bool bNegative = lNumber < 0;
    const unsigned long nAbsolute =
        bNegative ? 0UL - static_cast<unsigned long>(lNumber) : static_cast<unsigned long>(lNumber);
    const auto end = std::to_chars(szDigits, szDigits + LONGEST, nAbsolute).ptr;
    const int nDigits = static_cast<int>(end - szDigits);
    if (bNegative)
        strOut += '-';
    const int nPadding = nWidth - nDigits - (bNegative ? 1 : 0);
    if (nPadding > 0)
        strOut.append(static_cast<std::size_t>(nPadding), '0');
    strOut.append(szDigits, end);
}

}  // namespace CText
