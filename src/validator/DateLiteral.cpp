#include "DateLiteral.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "text/CText.h"

namespace DateLiteral {

std::optional<std::string> WithSlashes(std::string strLiteral)
{
    constexpr std::size_t MONTH_AND_DAY = 4;
    constexpr std::size_t DAY = 2;
    if (strLiteral.size() < MONTH_AND_DAY)
        return std::nullopt;
    strLiteral.insert(strLiteral.size() - MONTH_AND_DAY, "/");
    strLiteral.insert(strLiteral.size() - DAY, "/");
    return strLiteral;
}

std::string OfEightCharacters(const char* szLiteral)
{
    constexpr std::size_t LENGTH = 8;
    const std::string strLiteral = CText::OrEmpty(szLiteral);
    if (strLiteral.size() != LENGTH)
        return {};
    return WithSlashes(strLiteral).value_or(std::string());
}

std::optional<CellReference> ReadReference(const char* szParameter)
{
    std::string strParameter = CText::OrEmpty(szParameter);
    // Split as strtok does: a run of underscores is one. A blank inside a piece ends its number, so
    // it must not become a separator.
    std::vector<std::string> vecPiece;
    for (std::size_t nStart = 0;
         (nStart = strParameter.find_first_not_of('_', nStart)) != std::string::npos;) {
        const std::size_t nEnd = std::min(strParameter.find('_', nStart), strParameter.size());
        vecPiece.push_back(strParameter.substr(nStart, nEnd - nStart));
        nStart = nEnd;
    }
    if (vecPiece.size() != 2)
        return std::nullopt;
    return CellReference{CText::ReadLong(vecPiece[0].c_str()),
                         CText::ReadLong(vecPiece[1].c_str())};
}

}  // namespace DateLiteral
