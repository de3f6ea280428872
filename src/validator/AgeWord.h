// The words that an age check's value holds, with blanks between them.
#pragma once

#include <cstddef>

/// Places of the words.
namespace AgeWord {

inline constexpr std::size_t BIRTH_COLUMN = 0;  ///< the first of the four of the birth date
inline constexpr std::size_t YEAR_COLUMN = 1;   ///< era of the reference year
inline constexpr std::size_t ADDED_YEARS = 2;   ///< to the reference year
inline constexpr std::size_t MONTH = 3;         ///< of the reference day
inline constexpr std::size_t DAY = 4;
inline constexpr std::size_t WIDENING = 5;  ///< need not be there
inline constexpr std::size_t LEAST = WIDENING;
inline constexpr const char* WIDENING_WORD = "days";  ///< an error covers four columns

}  // namespace AgeWord
