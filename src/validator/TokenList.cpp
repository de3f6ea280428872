#include "TokenList.h"

#include <algorithm>

#include "CText.h"
#include "KZCEkaCommon.h"
#include "KZCMacOSNative.h"

void TokenList::Set(const char* szParameter)
{
    m_bGiven = *CText::OrEmpty(szParameter) != '\0';
    m_vecToken = CText::SplitTokens(CText::OrEmpty(szParameter));
}

bool TokenList::Contains(std::string_view strText) const
{
    return std::ranges::find(m_vecToken, strText) != m_vecToken.end();
}

bool TokenList::ContainsCell(const char* szCell) const
{
    return KZCEkaCommon::GetCsvCheckFlag()
               ? Contains(KZCMacOSNative::convertUTF8fromShiftJIS(szCell))
               : Contains(szCell);
}
