#include "KZCEkaValidColumnPair.h"

#include <cstdint>
#include <string_view>

#include "CText.h"
#include "Fault.h"
#include "KZCEkaCommon.h"
#include "KZCEkaCsvFile.h"
#include "KZCValidResult.h"

void KZCEkaValidColumnPair::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
    m_lOtherColumn = CText::ReadLong(szValue);
    m_bNumeric = *CText::OrEmpty(szMin) != '\0' || *CText::OrEmpty(szMax) != '\0';
    m_lOffset = static_cast<long>(CText::ReadInt(szMax)) - CText::ReadInt(szMin);
}

int KZCEkaValidColumnPair::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidColumnPair::ValidateCsv");
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    const KZCEkaMessage_t eRefusal = Compare(*pCsv, lRow);
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    if (m_bErrOutput)
        Record(ReportedCode(eRefusal), lRow + 1, m_lColumn + 1, SINGLE_COLUMN,
               pCsv->GetItem(lRow, m_lColumn), true);
    return STATUS_NG;
}

int KZCEkaValidColumnPair::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidColumnPair::ValidateOuter");
    return Compare(*pCsv, lRow) == MSG_NONE ? STATUS_OK : OuterRefused();
}

KZCEkaMessage_t KZCEkaValidColumnPair::Compare(const KZCEkaCsvFile& csv, long lRow) const
{
    if (m_lOtherColumn <= 0)
        RaiseParameterFault("KZCEkaValidColumnPair::Compare");
    const char* szCell = csv.GetItem(lRow, m_lColumn);
    const char* szOther = csv.GetItem(lRow, m_lOtherColumn - 1);
    // In 64 bits and back to 32: the sum wraps instead of overflowing.
    const bool bAgree = m_bNumeric
                            ? static_cast<std::int32_t>(CText::ReadInt(szCell) + m_lOffset) ==
                                  CText::ReadInt(szOther)
                            : std::string_view(szCell) == szOther;
    return Verdict(bAgree);
}
