#include "KZCEkaValidAnyExist.h"

#include <algorithm>

#include "CText.h"
#include "Fault.h"
#include "KZCEkaCsvFile.h"

void KZCEkaValidAnyExist::SetParam(const char* szValue)
{
    m_bGiven = *CText::OrEmpty(szValue) != '\0';
    m_vecColumn = CText::SplitNumbers(CText::OrEmpty(szValue));
}

KZCEkaMessage_t KZCEkaValidAnyExist::_validate(const char* /*szValue*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidAnyExist::_validate";
    if (!m_bGiven)
        RaiseParameterFault(FUNCTION);
    if (m_pCsv == nullptr)
        RaiseFault(FUNCTION, nullptr);
    return std::ranges::any_of(
               m_vecColumn,
               [this](long lColumn) { return *m_pCsv->GetItem(m_lRow, lColumn - 1) != '\0'; })
               ? MSG_NONE
               : Refuse(HE70001E, FUNCTION);
}
