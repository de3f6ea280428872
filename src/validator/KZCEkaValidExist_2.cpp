#include "KZCEkaValidExist_2.h"

#include "CText.h"
#include "Fault.h"
#include "KZCEkaCsvFile.h"
#include "validator/DateGroup.h"

KZCEkaMessage_t KZCEkaValidExist_2::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidExist_2::_validate";
    if (m_pCsv == nullptr)
        RaiseFault(FUNCTION, nullptr);
    const long lColumns = DateGroupColumns(m_pCsv->GetItem(m_lRow, 0));
    if (lColumns == 0)
        return Refuse(HE70012E, FUNCTION);  // left to the base class to record

    const bool bFilled = *CText::OrEmpty(szValue) != '\0';
    bool bWhole = true;
    for (long lColumn = m_lColumn + 1; lColumn < m_lColumn + lColumns; ++lColumn)
        bWhole = bWhole && (*m_pCsv->GetItem(m_lRow, lColumn) != '\0') == bFilled;
    if (bWhole)
        return MSG_NONE;
    Record(HE70012E, m_lRow + 1, m_lColumn + 1, m_lColumn + lColumns, szValue, true);
    // For good: the base class records nothing more for this item.
    m_bErrOutput = false;
    return HE70012E;
}
