#include "KZCEkaValidExistdate.h"

#include "ByteClass.h"
#include "CText.h"
#include "KZCMacOSNative.h"

KZCEkaValidExistdate::KZCEkaValidExistdate(long lColumn, KZCEkaMessage_t eMessage)
    : KZCEkaValidEraSpan(lColumn, eMessage, EraTable::LongSpans())
{
}

KZCEkaMessage_t KZCEkaValidExistdate::_validate(const char* szValue)
{
    constexpr int LAST_YEAR = 32;
    constexpr int LAST_MONTH = 3;
    const std::string strDate = CText::OrEmpty(szValue);
    const auto part = [&strDate](unsigned long nStart) {
        return KZCMacOSNative::subStringWithCharacterLength(strDate, nStart, 2);
    };
    if (!strDate.empty() && !ByteClass::IsDigit(strDate.front()) && part(0) == "平成") {
        const int nYear = CText::ReadInt(part(2).c_str());
        const int nMonth = CText::ReadInt(part(5).c_str());
        if (nYear > LAST_YEAR || (nYear == LAST_YEAR && nMonth > LAST_MONTH))
            return Refuse(HE70012E, "KZCEkaValidExistdate::_validate");
    }
    return KZCEkaValidEraSpan::_validate(szValue);
}
