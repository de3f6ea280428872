#include "KZCEkaMOKDefZip.h"

#include "KZCEkaCommon.h"
#include "KZCEkaCsvFile.h"

std::string KZCEkaMOKDefZip::WriteNode(const KZCEkaCsvFile* pCsv, long lRow)
{
    constexpr std::size_t FIRST_PART = 3;   // bytes
    constexpr std::size_t SECOND_PART = 4;  // bytes
    RequireCsvQuietly(pCsv);
    const std::string strCode = m_nColumn >= 0
                                    ? KZCEkaCommon::SpecialEncoding(pCsv->GetItem(lRow, m_nColumn))
                                    : std::string();
    if (strCode.size() < FIRST_PART + SECOND_PART)
        return {};
    return OpenTag(m_strName) + "<gen:zip1>" + strCode.substr(0, FIRST_PART) +
           "</gen:zip1><gen:zip2>" + strCode.substr(FIRST_PART, SECOND_PART) + "</gen:zip2>" +
           CloseTag(m_strName);
}
