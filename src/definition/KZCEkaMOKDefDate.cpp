#include "KZCEkaMOKDefDate.h"

#include "KZCDebugDump.h"
#include "fault/Fault.h"

int KZCEkaMOKDefDate::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow)
{
    constexpr const char* FUNCTION = "KZCEkaMOKDefDate::ValidateCsv";
    RequireCsv(pCsv, FUNCTION);
    bool bPassed = true;
    for (const Share& pChild : m_vecChild) {
        if (pChild->ValidateCsv(pCsv, lRow) == STATUS_OK)
            continue;
        KZCDebugDump::Log(FUNCTION);
        bPassed = false;
    }
    return bPassed ? ValidateGroup(pCsv, lRow) : STATUS_NG;
}
