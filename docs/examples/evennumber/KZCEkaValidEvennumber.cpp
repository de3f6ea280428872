#include "KZCEkaValidEvennumber.h"

#include "text/ByteClass.h"
#include "text/CText.h"

KZCEkaMessage_t KZCEkaValidEvennumber::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidEvennumber::_validate";
    const std::string_view strValue = CText::OrEmpty(szValue);
    if (!ByteClass::AllOf(szValue, ByteClass::IsDigit))
        return Refuse(HE70004E, FUNCTION);
    const bool bEven = strValue.empty() || (strValue.back() - '0') % 2 == 0;
    return bEven ? MSG_NONE : Refuse(HE70010E, FUNCTION);
}
