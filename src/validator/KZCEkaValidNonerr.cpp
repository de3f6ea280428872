#include "KZCEkaValidNonerr.h"

#include <algorithm>

#include "CText.h"
#include "Fault.h"
#include "KZCDebugDump.h"
#include "KZCValidResult.h"

void KZCEkaValidNonerr::SetParam(const char* szValue, const char* szMin)
{
    m_bGiven = *CText::OrEmpty(szValue) != '\0';
    m_vecColumn = CText::SplitNumbers(CText::OrEmpty(szValue));
    m_lRecord.reset();
    if (*CText::OrEmpty(szMin) != '\0')
        m_lRecord = CText::ReadLong(szMin);
}

int KZCEkaValidNonerr::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidNonerr::ValidateCsv";
    RequireCsv(pCsv, FUNCTION);
    if (!OuterItemsHold(pCsv, lRow) || _validate(lRow + 1) == MSG_NONE)
        return STATUS_OK;
    // The chain of checks stops here without an error of its own.
    KZCDebugDump::Log(FUNCTION, "他カラムでエラーが発生しています。");
    return STATUS_NG;
}

int KZCEkaValidNonerr::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidNonerr::ValidateOuter");
    return _validate(lRow + 1) == MSG_NONE ? STATUS_OK : OuterRefused();
}

KZCEkaMessage_t KZCEkaValidNonerr::_validate(long lRecord) const
{
    if (!m_bGiven)
        RaiseParameterFault("KZCEkaValidNonerr::_validate");
    const long lAsked = m_lRecord.value_or(lRecord);
    return std::ranges::any_of(m_vecColumn,
                               [lAsked](long lColumn) {
                                   return KZCValidResult::instance()->IsExistErr(lAsked, lColumn);
                               })
               ? HE99999E
               : MSG_NONE;
}
