#include "KZCEkaValidExistdate.h"

#include "EraSpan.h"
#include "KZCMacOSNative.h"
#include "text/ByteClass.h"
#include "text/CText.h"

namespace {

/// The fourth era's name with a month that lies behind its last one.
bool IsBehindHeisei(const std::string& strDate)
{
    constexpr int LAST_YEAR = 32;
    constexpr int LAST_MONTH = 3;
    const auto part = [&strDate](unsigned long nStart) {
        return KZCMacOSNative::subStringWithCharacterLength(strDate, nStart, 2);
    };
    if (strDate.empty() || ByteClass::IsDigit(strDate.front()) || part(0) != "平成")
        return false;
    const int nYear = CText::ReadInt(part(2).c_str());
    return nYear > LAST_YEAR ||
           (nYear == LAST_YEAR && CText::ReadInt(part(5).c_str()) > LAST_MONTH);
}

}  // namespace

KZCEkaValidExistdate::KZCEkaValidExistdate(long lColumn, KZCEkaMessage_t eMessage)
    : KZCEkaValidDate(lColumn, eMessage)
{
    m_bKeepEra = true;
}

KZCEkaMessage_t KZCEkaValidExistdate::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidExistdate::_validate";
    if (szValue == nullptr)
        return MSG_NONE;
    return Guarded(FUNCTION, [&] {
        const std::string strDate = szValue;
        if (IsBehindHeisei(strDate))
            return Refuse(HE70012E, FUNCTION);
        return EraSpan::Holds(strDate, WarekiToSeireki(strDate), EraTable::LongSpans()) ? MSG_NONE
                                                                                        : HE70012E;
    });
}
