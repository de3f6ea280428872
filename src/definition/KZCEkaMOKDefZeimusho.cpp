#include "KZCEkaMOKDefZeimusho.h"

#include "fault/Fault.h"

int KZCEkaMOKDefZeimusho::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow)
{
    RequireCsvQuietly(pCsv);
    bool bPassed = true;
    for (const Share& pChild : m_vecChild)
        bPassed = pChild->ValidateCsv(pCsv, lRow) == STATUS_OK && bPassed;
    return bPassed ? ValidateGroup(pCsv, lRow) : STATUS_NG;
}

std::string KZCEkaMOKDefZeimusho::WriteNode(const KZCEkaCsvFile* pCsv, long lRow)
{
    RequireCsvQuietly(pCsv);
    std::string strBody;
    for (auto pChild = m_vecChild.rbegin(); pChild != m_vecChild.rend(); ++pChild)
        strBody += (*pChild)->WriteNode(pCsv, lRow);
    return strBody.empty() ? std::string() : Element(m_strName, "", strBody);
}
