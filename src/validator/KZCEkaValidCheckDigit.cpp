#include "KZCEkaValidCheckDigit.h"

#include "text/ByteClass.h"
#include "text/CText.h"
#include "validator/CheckDigit.h"

namespace {

KZCEkaMessage_t CompareDigit(char cDigit, int nExpected)
{
    return cDigit - '0' == nExpected ? MSG_NONE : HE70010E;
}

}  // namespace

void KZCEkaValidCheckDigit::SetParam(const char* szValue)
{
    m_strValue = CText::OrEmpty(szValue);
}

KZCEkaMessage_t KZCEkaValidCheckDigit::CheckDijit_Kojin(std::string_view strNumber)
{
    if (strNumber.size() != CheckDigit::PERSONAL_DIGITS + 1)
        return HE70008E;
    return CompareDigit(strNumber.back(), CheckDigit::OfPersonal(strNumber));
}

KZCEkaMessage_t KZCEkaValidCheckDigit::CheckDijit_Hojin(std::string_view strNumber)
{
    if (strNumber.size() != CheckDigit::CORPORATE_DIGITS + 1)
        return HE70008E;
    return CompareDigit(strNumber.front(), CheckDigit::OfCorporate(strNumber.substr(1)));
}

KZCEkaMessage_t KZCEkaValidCheckDigit::CheckDijit_Seiri(std::string_view strNumber)
{
    if (strNumber.size() != CheckDigit::REFERENCE_DIGITS + 1)
        return HE70008E;
    return CompareDigit(strNumber.back(), CheckDigit::OfReference(strNumber));
}

KZCEkaMessage_t KZCEkaValidCheckDigit::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidCheckDigit::_validate";
    constexpr std::size_t SCRATCH_SIZE = 32;
    if (m_strValue.empty())
        RaiseParameterFault(FUNCTION);
    if (!ByteClass::AllOf(szValue, ByteClass::IsDigit))
        return HE70004E;

    const std::string_view strNumber = CText::OrEmpty(szValue);
    if (m_strValue == CheckDigit::PERSONAL)
        return CheckDijit_Kojin(strNumber);
    if (m_strValue == CheckDigit::PERSONAL_BEHIND_ONE)
        return strNumber.empty()
                   ? HE70008E
                   : CheckDijit_Kojin(strNumber.substr(1).substr(0, SCRATCH_SIZE - 1));
    if (m_strValue == CheckDigit::CORPORATE)
        return CheckDijit_Hojin(strNumber);
    if (m_strValue == CheckDigit::REFERENCE)
        return CheckDijit_Seiri(strNumber);
    RaiseParameterFault(FUNCTION);
}
