#include "KZCEkaValidExceptColumn.h"

#include "KZCEkaCsvFile.h"
#include "fault/Fault.h"

void KZCEkaValidExceptColumn::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
    m_pair.Set(szValue, szMin, szMax);
}

int KZCEkaValidExceptColumn::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidExceptColumn::ValidateCsv";
    RequireCsv(pCsv, FUNCTION);
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    if (!m_pair.HasOtherColumn())
        RaiseParameterFault(FUNCTION);
    if (!m_pair.Agrees(*pCsv, lRow, m_lColumn))
        return STATUS_OK;
    // The cell is traced in its own encoding: wanted.
    return RecordCell(HE70010E, lRow, pCsv->GetItem(lRow, m_lColumn), true);
}

int KZCEkaValidExceptColumn::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidExceptColumn::ValidateOuter";
    RequireCsv(pCsv, FUNCTION);
    if (!m_pair.HasOtherColumn())
        RaiseParameterFault(FUNCTION);
    return !m_pair.Agrees(*pCsv, lRow, m_lColumn) ? STATUS_OK : OuterRefused();
}
