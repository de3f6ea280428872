// Check digits of the numbers that filings carry.
#pragma once

#include <cstddef>
#include <string_view>

/// Each takes so many digits, without the check digit, and gives that as a number from 0 to 9.
namespace CheckDigit {

/// Words of the kinds.
inline constexpr const char* PERSONAL = "kojin";
inline constexpr const char* PERSONAL_BEHIND_ONE = "kojin2";  ///< with one character in front
inline constexpr const char* CORPORATE = "hojin";
inline constexpr const char* REFERENCE = "seiri";

inline constexpr std::size_t PERSONAL_DIGITS = 11;
inline constexpr std::size_t CORPORATE_DIGITS = 12;
inline constexpr std::size_t REFERENCE_DIGITS = 13;

/// Stands behind the digits.
int OfPersonal(std::string_view strDigits);
/// Stands before the digits.
int OfCorporate(std::string_view strDigits);
/// Stands behind the digits.
int OfReference(std::string_view strDigits);

}  // namespace CheckDigit
