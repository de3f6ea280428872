#include "KZCEkaValidCheckDigit.h"

#include "ByteClass.h"
#include "CText.h"
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
        return Refuse(HE70004E, FUNCTION);

    const std::string_view strNumber = CText::OrEmpty(szValue);
    KZCEkaMessage_t eVerdict = MSG_NONE;
    if (m_strValue == CheckDigit::PERSONAL)
        eVerdict = CheckDijit_Kojin(strNumber);
    else if (m_strValue == CheckDigit::PERSONAL_BEHIND_ONE)
        eVerdict = strNumber.empty()
                       ? HE70008E
                       : CheckDijit_Kojin(strNumber.substr(1).substr(0, SCRATCH_SIZE - 1));
    else if (m_strValue == CheckDigit::CORPORATE)
        eVerdict = CheckDijit_Hojin(strNumber);
    else if (m_strValue == CheckDigit::REFERENCE)
        eVerdict = CheckDijit_Seiri(strNumber);
    else
        RaiseParameterFault(FUNCTION);
    return eVerdict == MSG_NONE ? MSG_NONE : Refuse(eVerdict, FUNCTION);
}
