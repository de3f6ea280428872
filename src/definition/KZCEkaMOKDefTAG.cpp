#include "KZCEkaMOKDefTAG.h"

#include <typeinfo>

#include "KZCEkaCsvFile.h"

std::string KZCEkaMOKDefTAG::WriteNode(const KZCEkaCsvFile* pCsv, long lRow)
{
    return WriteNodeTag(pCsv, lRow, WRITE_NORMAL);
}

std::string KZCEkaMOKDefTAG::WriteNodeTag(const KZCEkaCsvFile* pCsv, long lRow, eWriteMode eMode)
{
    RequireCsv(pCsv, "KZCEkaMOKDefTAG::WriteNodeTag");
    if (m_nLastRecord == 1 && !pCsv->isLastRecord(lRow))
        return {};
    const bool bOpen =
        isSettingRecordRange() ? isWithInRecordRange(pCsv, lRow) : eMode == WRITE_NORMAL;
    if (bOpen)
        return WriteNodeChild(pCsv, lRow);

    // A group inside this one may have begun later: it is reached without opening this one again.
    std::string strResult;
    for (const Share& pChild : m_vecChild)
        if (const KZCEkaMOKDefineNode& child = *pChild; typeid(child) == typeid(KZCEkaMOKDefTAG))
            strResult += pChild->WriteNodeTag(pCsv, lRow, WRITE_DESCEND);
    return strResult;
}

std::string KZCEkaMOKDefTAG::WriteNodeChild(const KZCEkaCsvFile* pCsv, long lRow)
{
    std::string strBody;
    bool bCloseNow = true;
    for (const Share& pChild : m_vecChild) {
        strBody += pChild->WriteNode(pCsv, lRow);
        bCloseNow = pChild->isWithInRecordRange(pCsv, lRow);
        if (!bCloseNow)
            break;
    }
    if (strBody.empty())
        return {};
    if (bCloseNow)
        return Element(m_strName, "", strBody);
    m_listCloseTag.push_back(m_strName);
    return OpenTag(m_strName) + strBody;
}
