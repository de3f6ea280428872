#include "validator/CheckDigit.h"

#include <array>
#include <span>

namespace CheckDigit {
namespace {

constexpr std::array<int, PERSONAL_DIGITS> PERSONAL_WEIGHTS = {6, 5, 4, 3, 2, 7, 6, 5, 4, 3, 2};
constexpr std::array<int, CORPORATE_DIGITS> CORPORATE_WEIGHTS = {2, 1, 2, 1, 2, 1,
                                                                 2, 1, 2, 1, 2, 1};
constexpr std::array<int, REFERENCE_DIGITS> REFERENCE_WEIGHTS = {14, 13, 12, 11, 10, 9, 8,
                                                                 7,  6,  5,  4,  3,  2};

constexpr int NINE = 9;
constexpr int TEN = 10;
constexpr int ELEVEN = 11;

int WeightedSum(std::string_view strDigits, std::span<const int> weights)
{
    int nSum = 0;
    for (std::size_t nDigit = 0; nDigit < weights.size(); ++nDigit)
        nSum += (strDigits[nDigit] - '0') * weights[nDigit];
    return nSum;
}

}  // namespace

int OfPersonal(std::string_view strDigits)
{
    const int nRest = WeightedSum(strDigits, PERSONAL_WEIGHTS) % ELEVEN;
    return nRest < 2 ? 0 : ELEVEN - nRest;
}

int OfCorporate(std::string_view strDigits)
{
    return NINE - WeightedSum(strDigits, CORPORATE_WEIGHTS) % NINE;
}

int OfReference(std::string_view strDigits)
{
    return (ELEVEN - WeightedSum(strDigits, REFERENCE_WEIGHTS) % ELEVEN) % TEN;
}

}  // namespace CheckDigit
