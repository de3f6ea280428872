#include "TokenList.h"

#include <algorithm>

#include "KZCEkaCommon.h"
#include "KZCMacOSNative.h"
#include "text/CText.h"

void TokenList::Set(const char* szParameter)
{
    m_strText = CText::OrEmpty(szParameter);
    m_vecToken = CText::SplitTokens(m_strText);
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
