#include "KZCEkaValidAnyContain.h"

#include "KZCEkaCsvFile.h"
#include "Wrapping.h"
#include "fault/Fault.h"
#include "text/CText.h"

void KZCEkaValidAnyContain::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
    m_strValue = CText::OrEmpty(szValue);
    m_vecColumn = CText::SplitNumbers(m_strValue);
    m_range.Set(szMin, szMax);
}

KZCEkaMessage_t KZCEkaValidAnyContain::_validate(const char* /*szValue*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidAnyContain::_validate";
    if (m_strValue.empty() || !m_range.HasNumbers())
        RaiseParameterFault(FUNCTION);
    if (m_pCsv == nullptr)
        RaiseFault(FUNCTION, nullptr);
    for (const long lColumn : m_vecColumn) {
        const char* szCell = m_pCsv->GetItem(m_lRow, WrappingSum(lColumn, -1));
        if (*szCell == '\0')
            continue;
        if (!NumberRange::IsNumber(szCell))
            return Refuse(HE70009E, FUNCTION);
        // Only a filled cell brings a range in the wrong order to light.
        if (!m_range.IsOrdered())
            RaiseParameterFault(FUNCTION);
        if (m_range.Contains(CText::ReadLong(szCell)))
            return MSG_NONE;
    }
    return Refuse(HE70009E, FUNCTION);
}
