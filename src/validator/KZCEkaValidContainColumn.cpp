#include "KZCEkaValidContainColumn.h"

#include "KZCEkaCsvFile.h"
#include "fault/Fault.h"

void KZCEkaValidContainColumn::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
    m_pair.Set(szValue, szMin, szMax);
}

int KZCEkaValidContainColumn::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidContainColumn::ValidateCsv";
    RequireCsv(pCsv, FUNCTION);
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    if (!m_pair.HasOtherColumn())
        RaiseParameterFault(FUNCTION);
    if (m_pair.Agrees(*pCsv, lRow, m_lColumn))
        return STATUS_OK;
    // The cell is traced in its own encoding: wanted.
    return RecordCell(HE70025E, lRow, pCsv->GetItem(lRow, m_lColumn), true);
}

int KZCEkaValidContainColumn::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidContainColumn::ValidateOuter";
    RequireCsv(pCsv, FUNCTION);
    if (!m_pair.HasOtherColumn())
        RaiseParameterFault(FUNCTION);
    return m_pair.Agrees(*pCsv, lRow, m_lColumn) ? STATUS_OK : OuterRefused();
}
