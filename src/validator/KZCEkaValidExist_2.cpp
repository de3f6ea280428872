#include "KZCEkaValidExist_2.h"

#include "KZCEkaCsvFile.h"
#include "Wrapping.h"
#include "fault/Fault.h"
#include "text/CText.h"
#include "validator/DateGroup.h"

KZCEkaMessage_t KZCEkaValidExist_2::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidExist_2::_validate";
    if (m_pCsv == nullptr)
        RaiseFault(FUNCTION, nullptr);
    const long lColumns = DateGroupColumns(m_pCsv->GetItem(m_lRow, 0));
    if (lColumns == 0)
        return HE70012E;  // left to the base class to record

    const bool bFilled = *CText::OrEmpty(szValue) != '\0';
    bool bWhole = true;
    for (long lOffset = 1; lOffset < lColumns; ++lOffset) {
        const char* szCell = m_pCsv->GetItem(m_lRow, WrappingSum(m_lColumn, lOffset));
        bWhole = bWhole && (*szCell != '\0') == bFilled;
    }
    if (bWhole)
        return MSG_NONE;
    Guarded(FUNCTION, [&] {
        Record(HE70012E, WrappingSum(m_lRow, 1), WrappingSum(m_lColumn, 1),
               WrappingSum(m_lColumn, lColumns), szValue, true);
    });
    // For good: the base class records nothing more for this item.
    m_bErrOutput = false;
    return HE70012E;
}
