// Arithmetic on the numbers of definition files, which may be anything that a long holds.
#pragma once

/// The sum, wrapping around at the ends of the range. A column or row that has wrapped lies outside
/// every file and reads as the empty text.
constexpr long WrappingSum(long lNumber, long lAdded)
{
    return static_cast<long>(static_cast<unsigned long>(lNumber) +
                             static_cast<unsigned long>(lAdded));
}
