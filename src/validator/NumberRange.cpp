#include "NumberRange.h"

#include "KZCEkaCommon.h"
#include "KZCMacOSNative.h"
#include "text/CText.h"

void NumberRange::Set(const char* szMin, const char* szMax)
{
    const auto isUsable = [](const char* szLimit) {
        return *CText::OrEmpty(szLimit) == '\0' || IsNumber(szLimit);
    };
    m_strMin = CText::OrEmpty(szMin);
    m_strMax = CText::OrEmpty(szMax);
    m_bNumbers = isUsable(szMin) && isUsable(szMax);
    m_lMin = CText::ReadLong(szMin);
    m_lMax = CText::ReadLong(szMax);
}

bool NumberRange::IsNumber(const char* szText)
{
    return KZCMacOSNative::isIntegerString(szText, !KZCEkaCommon::GetCsvCheckFlag());
}
