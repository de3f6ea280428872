// Memory that runs out when a test wants it. A program that links AllocationFault.cpp has all its
// operators new replaced, those that its shared libraries call too. For programs of one thread.
#pragma once

#include <cstddef>

namespace AllocationFault {

enum class Kind
{
    Once,       ///< that allocation alone
    FromThere,  ///< that one and all behind it
};

/// Lets allocations fail from now on.
/// \param nNumber     Which one fails, from 1; 0 for none, which are counted all the same.
/// \param nLeastSize  Bytes; smaller ones aren't counted and don't fail.
void Arm(std::size_t nNumber, Kind eKind, std::size_t nLeastSize = 0);

/// All allocations succeed again. \return how many were counted since Arm.
std::size_t Disarm();

/// Pieces of memory that are allocated and not yet freed.
std::size_t LivePieces();

/// Counts from now on how much memory is taken at one time.
void StartPeak();

/// Bytes that were taken at most at one time since then, beside those that were taken before.
std::size_t PeakBytes();

}  // namespace AllocationFault
