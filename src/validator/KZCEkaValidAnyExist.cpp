#include "KZCEkaValidAnyExist.h"

#include <algorithm>

#include "KZCEkaCsvFile.h"
#include "Wrapping.h"
#include "fault/Fault.h"
#include "text/CText.h"

void KZCEkaValidAnyExist::SetParam(const char* szValue)
{
    m_strValue = CText::OrEmpty(szValue);
    m_vecColumn = CText::SplitNumbers(m_strValue);
}

KZCEkaMessage_t KZCEkaValidAnyExist::_validate(const char* /*szValue*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidAnyExist::_validate";
    if (m_strValue.empty())
        RaiseParameterFault(FUNCTION);
    if (m_pCsv == nullptr)
        RaiseFault(FUNCTION, nullptr);
    const auto isFilled = [this](long lColumn) {
        return *m_pCsv->GetItem(m_lRow, WrappingSum(lColumn, -1)) != '\0';
    };
    return std::ranges::any_of(m_vecColumn, isFilled) ? MSG_NONE : HE70001E;
}
