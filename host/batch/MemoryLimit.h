// How much memory a worker process of a batch may take, and how many workers that allows.
#pragma once

#include <cstddef>
#include <cstdint>

namespace host {

constexpr std::uint64_t MEBIBYTE = std::uint64_t{1024} * 1024;

/// For all of a process that began so: any more memory fails, by std::bad_alloc where it is asked
/// for by new. What the process has already doesn't count. \param nBytes  0 for no limit. \param
/// pHit  Set to true at the first request that fails; has to live as long as the process, and may
/// be seen by another one. Null if nobody asks.
void LimitMemory(std::uint64_t nBytes, volatile bool* pHit);

/// Bytes that processes can still take without others being swapped out, as the system and the
/// process's control group tell it; the highest number if they don't.
std::uint64_t FreeMemory();

/// As many workers as there are processors, but no more than have room beside each other, and one
/// in any case.
/// \param nLimit  Most bytes of a worker; 0 for no limit, where room isn't looked at.
std::size_t WorkersFor(std::size_t nProcessors, std::uint64_t nFree, std::uint64_t nLimit);

}  // namespace host
