#include "KZCEkaValidCheckDigit.h"

#include <array>
#include <span>

#include "ByteClass.h"
#include "CText.h"

namespace {

constexpr std::array<int, 11> WEIGHTS_KOJIN = {6, 5, 4, 3, 2, 7, 6, 5, 4, 3, 2};
constexpr std::array<int, 12> WEIGHTS_HOJIN = {2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1};
constexpr std::array<int, 13> WEIGHTS_SEIRI = {14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2};

constexpr int ELEVEN = 11;

int Digit(char cByte)
{
    return cByte - '0';
}

int WeightedSum(std::string_view strDigits, std::span<const int> weights)
{
    int nSum = 0;
    for (std::size_t nDigit = 0; nDigit < weights.size(); ++nDigit)
        nSum += Digit(strDigits[nDigit]) * weights[nDigit];
    return nSum;
}

KZCEkaMessage_t CompareDigit(char cDigit, int nExpected)
{
    return Digit(cDigit) == nExpected ? MSG_NONE : HE70010E;
}

}  // namespace

void KZCEkaValidCheckDigit::SetParam(const char* szValue)
{
    m_strValue = CText::OrEmpty(szValue);
}

KZCEkaMessage_t KZCEkaValidCheckDigit::CheckDijit_Kojin(std::string_view strNumber)
{
    if (strNumber.size() != WEIGHTS_KOJIN.size() + 1)
        return HE70008E;
    const int nRest = WeightedSum(strNumber, WEIGHTS_KOJIN) % ELEVEN;
    return CompareDigit(strNumber.back(), nRest < 2 ? 0 : ELEVEN - nRest);
}

KZCEkaMessage_t KZCEkaValidCheckDigit::CheckDijit_Hojin(std::string_view strNumber)
{
    constexpr int NINE = 9;
    if (strNumber.size() != WEIGHTS_HOJIN.size() + 1)
        return HE70008E;
    return CompareDigit(strNumber.front(),
                        NINE - WeightedSum(strNumber.substr(1), WEIGHTS_HOJIN) % NINE);
}

KZCEkaMessage_t KZCEkaValidCheckDigit::CheckDijit_Seiri(std::string_view strNumber)
{
    constexpr int TEN = 10;
    if (strNumber.size() != WEIGHTS_SEIRI.size() + 1)
        return HE70008E;
    const int nRest = WeightedSum(strNumber, WEIGHTS_SEIRI) % ELEVEN;
    return CompareDigit(strNumber.back(), (ELEVEN - nRest) % TEN);
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
    if (m_strValue == "kojin")
        eVerdict = CheckDijit_Kojin(strNumber);
    else if (m_strValue == "kojin2")
        eVerdict = strNumber.empty()
                       ? HE70008E
                       : CheckDijit_Kojin(strNumber.substr(1).substr(0, SCRATCH_SIZE - 1));
    else if (m_strValue == "hojin")
        eVerdict = CheckDijit_Hojin(strNumber);
    else if (m_strValue == "seiri")
        eVerdict = CheckDijit_Seiri(strNumber);
    else
        RaiseParameterFault(FUNCTION);
    return eVerdict == MSG_NONE ? MSG_NONE : Refuse(eVerdict, FUNCTION);
}
