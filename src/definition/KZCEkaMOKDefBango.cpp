#include "KZCEkaMOKDefBango.h"

#include <string_view>

#include "KZCEkaCsvFile.h"

std::string KZCEkaMOKDefBango::WriteNode(const KZCEkaCsvFile* pCsv, long lRow)
{
    constexpr std::size_t KOJIN_LENGTH = 12;
    constexpr std::size_t HOJIN_LENGTH = 13;
    RequireCsvQuietly(pCsv);
    std::string_view strNumber = pCsv->GetItem(lRow, m_nColumn);
    // A personal number may come with a leading 0 to fill the corporate number's length.
    if (strNumber.size() == HOJIN_LENGTH && strNumber.front() == '0')
        strNumber.remove_prefix(1);
    if (strNumber.size() != KOJIN_LENGTH && strNumber.size() != HOJIN_LENGTH)
        return {};
    const std::string strTag =
        strNumber.size() == KOJIN_LENGTH ? "gen:kojinbango" : "gen:hojinbango";
    return OpenTag(m_strName) + "<" + strTag + ">" + std::string(strNumber) + "</" + strTag + ">" +
           CloseTag(m_strName);
}
