#include "batch/FileState.h"

#include <sys/stat.h>

#include <array>
#include <ctime>

namespace host {
namespace {

/// UTC without a mark of the zone.
std::string Moment(std::time_t nSeconds)
{
    std::tm moment = {};
    gmtime_r(&nSeconds, &moment);
    std::array<char, sizeof "-2147483648-12-31T23:59:59"> szText{};
    std::strftime(szText.data(), szText.size(), "%Y-%m-%dT%H:%M:%S", &moment);
    return szText.data();
}

}  // namespace

std::optional<FileState> StateOf(const std::string& strPath)
{
    struct stat status = {};
    if (stat(strPath.c_str(), &status) != 0)
        return std::nullopt;
    // The 1 in front keeps the zeros of the nanoseconds.
    const std::string strDigits = std::to_string(1'000'000'000L + status.st_mtim.tv_nsec);
    return FileState{static_cast<std::uintmax_t>(status.st_size),
                     Moment(status.st_mtim.tv_sec) + "." + strDigits.substr(1) + "Z"};
}

std::string TimeStamp()
{
    return Moment(std::time(nullptr)) + "Z";
}

}  // namespace host
