#include "KZCEkaValidNonerr.h"

#include <algorithm>

#include "KZCDebugDump.h"
#include "KZCValidResult.h"
#include "Wrapping.h"
#include "fault/Fault.h"
#include "text/CText.h"

void KZCEkaValidNonerr::SetParam(const char* szValue, const char* szMin)
{
    m_strValue = CText::OrEmpty(szValue);
    m_strMin = CText::OrEmpty(szMin);
    m_vecColumn = CText::SplitNumbers(m_strValue);
    m_lRecord = CText::ReadLong(szMin);
}

int KZCEkaValidNonerr::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidNonerr::ValidateCsv";
    RequireCsv(pCsv, FUNCTION);
    if (!OuterItemsHold(pCsv, lRow) || _validate(WrappingSum(lRow, 1)) == MSG_NONE)
        return STATUS_OK;
    // The chain of checks stops here without an error of its own.
    KZCDebugDump::Log(FUNCTION, "他カラムでエラーが発生しています。");
    return STATUS_NG;
}

int KZCEkaValidNonerr::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidNonerr::ValidateOuter");
    return _validate(WrappingSum(lRow, 1)) == MSG_NONE ? STATUS_OK : OuterRefused();
}

KZCEkaMessage_t KZCEkaValidNonerr::_validate(long lRecord) const
{
    constexpr const char* FUNCTION = "KZCEkaValidNonerr::_validate";
    if (m_strValue.empty())
        RaiseParameterFault(FUNCTION);
    const long lAsked = m_strMin.empty() ? lRecord : m_lRecord;
    const auto isInError = [lAsked](long lColumn) {
        return KZCValidResult::instance()->IsExistErr(lAsked, lColumn);
    };
    return Guarded(FUNCTION, [&] { return std::ranges::any_of(m_vecColumn, isInError); })
               ? HE99999E
               : MSG_NONE;
}
