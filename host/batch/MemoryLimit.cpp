#include "batch/MemoryLimit.h"

#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <limits>
#include <new>
#include <string>

namespace host {
namespace {

constexpr std::uint64_t UNKNOWN = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t KIBIBYTE = 1024;

volatile bool* g_pHit = nullptr;

void NoMemory()
{
    if (g_pHit != nullptr)
        *g_pHit = true;
    throw std::bad_alloc();
}

/// Bytes of the process that RLIMIT_DATA counts.
std::uint64_t DataOfProcess()
{
    std::ifstream in("/proc/self/statm");
    std::uint64_t nPages = 0;
    // Size, resident, shared, text, an unused one, data.
    for (int n = 0; n < 6; ++n)
        in >> nPages;
    return in ? nPages * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE)) : 0;
}

std::uint64_t AvailableInSystem()
{
    std::ifstream in("/proc/meminfo");
    std::string strName;
    for (std::uint64_t nValue = 0; in >> strName >> nValue;) {
        if (strName == "MemAvailable:")
            return nValue * KIBIBYTE;
        in.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    return UNKNOWN;
}

/// The number in a file of a control group; UNKNOWN for "max" and for a missing file.
std::uint64_t NumberIn(const std::string& strPath)
{
    std::uint64_t nValue = 0;
    std::ifstream in(strPath);
    return in >> nValue ? nValue : UNKNOWN;
}

/// Of the process's control group and of those that it lies in.
std::uint64_t AvailableInGroups()
{
    std::ifstream in("/proc/self/cgroup");
    std::string strLine;
    while (std::getline(in, strLine) && !strLine.starts_with("0::"))
        strLine.clear();
    std::uint64_t nLeast = UNKNOWN;
    std::string strGroup = strLine.empty() ? strLine : strLine.substr(3);
    while (strGroup.size() > 1) {
        const std::string strFolder = "/sys/fs/cgroup" + strGroup;
        const std::uint64_t nMost = NumberIn(strFolder + "/memory.max");
        const std::uint64_t nUsed = NumberIn(strFolder + "/memory.current");
        if (nMost != UNKNOWN && nUsed != UNKNOWN)
            nLeast = std::min(nLeast, nMost - std::min(nUsed, nMost));
        strGroup.resize(strGroup.rfind('/'));
    }
    return nLeast;
}

}  // namespace

void LimitMemory(std::uint64_t nBytes, volatile bool* pHit)
{
    if (nBytes == 0)
        return;
    g_pHit = pHit;
    std::set_new_handler(NoMemory);
    malloc_trim(0);  // what the process has given back to its heap would be room beyond the limit
    struct rlimit limit = {};
    getrlimit(RLIMIT_DATA, &limit);
    limit.rlim_cur = std::min<rlim_t>(DataOfProcess() + nBytes, limit.rlim_max);
    setrlimit(RLIMIT_DATA, &limit);
}

std::uint64_t FreeMemory()
{
    return std::min(AvailableInSystem(), AvailableInGroups());
}

std::size_t WorkersFor(std::size_t nProcessors, std::uint64_t nFree, std::uint64_t nLimit)
{
    const std::uint64_t nRoom = nLimit == 0 ? UNKNOWN : std::max<std::uint64_t>(nFree / nLimit, 1);
    return static_cast<std::size_t>(std::min<std::uint64_t>(nProcessors, nRoom));
}

}  // namespace host
