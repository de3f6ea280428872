#include "KZCEkaValidMultibyte.h"

#include <string_view>

#include "KZCEkaCommon.h"
#include "KZCMacOSNative.h"
#include "text/CText.h"

KZCEkaMessage_t KZCEkaValidMultibyte::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidMultibyte::_validate";
    const std::size_t nBytes = std::string_view(CText::OrEmpty(szValue)).size();
    // An odd length alone refuses a value of wide characters only at the end of the walk.
    const KZCEkaMessage_t eNoted = nBytes % 2 == 1 ? Refuse(HE99999E, FUNCTION) : MSG_NONE;
    std::size_t nTotal = 0;
    const auto vecLength = Guarded(FUNCTION, [szValue] {
        return KZCMacOSNative::getStringLengths(szValue, !KZCEkaCommon::GetCsvCheckFlag());
    });
    for (const unsigned char nLength : vecLength) {
        if (nLength < 2)
            return Refuse(HE99999E, FUNCTION);
        nTotal += nLength;
    }
    // A value that can't be decoded has no characters to walk over.
    return nTotal == nBytes ? eNoted : Refuse(HE99999E, FUNCTION);
}
