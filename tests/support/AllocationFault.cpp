#include "AllocationFault.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

bool g_bArmed = false;
AllocationFault::Kind g_eKind = AllocationFault::Kind::Once;
std::size_t g_nNumber = 0;
std::size_t g_nLeastSize = 0;
std::size_t g_nCount = 0;
std::size_t g_nLive = 0;
std::size_t g_nLiveBytes = 0;
std::size_t g_nBytesBefore = 0;
std::size_t g_nPeakBytes = 0;

bool Fails(std::size_t nSize)
{
    if (!g_bArmed || nSize < g_nLeastSize)
        return false;
    ++g_nCount;
    if (g_nNumber == 0)
        return false;
    return g_nCount == g_nNumber ||
           (g_nCount > g_nNumber && g_eKind == AllocationFault::Kind::FromThere);
}

/// Null if it fails. Memory comes from malloc and goes to free, so that the sanitizers watch it and
/// see a pair that matches.
void* Allocate(std::size_t nSize, std::size_t nAlignment = 0) noexcept
{
    if (Fails(nSize))
        return nullptr;
    const std::size_t nBytes = nSize == 0 ? 1 : nSize;
    void* pMemory = nullptr;
    if (nAlignment == 0)
        pMemory = std::malloc(nBytes);
    else if (::posix_memalign(&pMemory, nAlignment, nBytes) != 0)
        return nullptr;
    if (pMemory != nullptr) {
        ++g_nLive;
        g_nLiveBytes += ::malloc_usable_size(pMemory);
        g_nPeakBytes = std::max(g_nPeakBytes, g_nLiveBytes);
    }
    return pMemory;
}

void* AllocateOrThrow(std::size_t nSize, std::size_t nAlignment = 0)
{
    if (void* pMemory = Allocate(nSize, nAlignment))
        return pMemory;
    throw std::bad_alloc();
}

void Free(void* pMemory) noexcept
{
    if (pMemory == nullptr)
        return;
    --g_nLive;
    g_nLiveBytes -= ::malloc_usable_size(pMemory);
    std::free(pMemory);
}

}  // namespace

namespace AllocationFault {

void Arm(std::size_t nNumber, Kind eKind, std::size_t nLeastSize)
{
    g_nNumber = nNumber;
    g_eKind = eKind;
    g_nLeastSize = nLeastSize;
    g_nCount = 0;
    g_bArmed = true;
}

std::size_t Disarm()
{
    g_bArmed = false;
    return g_nCount;
}

std::size_t LivePieces()
{
    return g_nLive;
}

void StartPeak()
{
    g_nBytesBefore = g_nPeakBytes = g_nLiveBytes;
}

std::size_t PeakBytes()
{
    return g_nPeakBytes - g_nBytesBefore;
}

}  // namespace AllocationFault

void* operator new(std::size_t nSize)
{
    return AllocateOrThrow(nSize);
}
void* operator new[](std::size_t nSize)
{
    return AllocateOrThrow(nSize);
}
void* operator new(std::size_t nSize, const std::nothrow_t& /*tag*/) noexcept
{
    return Allocate(nSize);
}
void* operator new[](std::size_t nSize, const std::nothrow_t& /*tag*/) noexcept
{
    return Allocate(nSize);
}
void* operator new(std::size_t nSize, std::align_val_t eAlignment)
{
    return AllocateOrThrow(nSize, static_cast<std::size_t>(eAlignment));
}
void* operator new[](std::size_t nSize, std::align_val_t eAlignment)
{
    return AllocateOrThrow(nSize, static_cast<std::size_t>(eAlignment));
}
void* operator new(std::size_t nSize,
                   std::align_val_t eAlignment,
                   const std::nothrow_t& /*tag*/) noexcept
{
    return Allocate(nSize, static_cast<std::size_t>(eAlignment));
}
void* operator new[](std::size_t nSize,
                     std::align_val_t eAlignment,
                     const std::nothrow_t& /*tag*/) noexcept
{
    return Allocate(nSize, static_cast<std::size_t>(eAlignment));
}

void operator delete(void* pMemory) noexcept
{
    Free(pMemory);
}
void operator delete[](void* pMemory) noexcept
{
    Free(pMemory);
}
void operator delete(void* pMemory, std::size_t /*nSize*/) noexcept
{
    Free(pMemory);
}
void operator delete[](void* pMemory, std::size_t /*nSize*/) noexcept
{
    Free(pMemory);
}
void operator delete(void* pMemory, const std::nothrow_t& /*tag*/) noexcept
{
    Free(pMemory);
}
void operator delete[](void* pMemory, const std::nothrow_t& /*tag*/) noexcept
{
    Free(pMemory);
}
void operator delete(void* pMemory, std::align_val_t /*eAlignment*/) noexcept
{
    Free(pMemory);
}
void operator delete[](void* pMemory, std::align_val_t /*eAlignment*/) noexcept
{
    Free(pMemory);
}
void operator delete(void* pMemory, std::size_t /*nSize*/, std::align_val_t /*eAlignment*/) noexcept
{
    Free(pMemory);
}
void operator delete[](void* pMemory,
                       std::size_t /*nSize*/,
                       std::align_val_t /*eAlignment*/) noexcept
{
    Free(pMemory);
}
void operator delete(void* pMemory,
                     std::align_val_t /*eAlignment*/,
                     const std::nothrow_t& /*tag*/) noexcept
{
    Free(pMemory);
}
void operator delete[](void* pMemory,
                       std::align_val_t /*eAlignment*/,
                       const std::nothrow_t& /*tag*/) noexcept
{
    Free(pMemory);
}
