// What a file looked like when it was worked on, so that a change is noticed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace host {

struct FileState
{
    std::uintmax_t nBytes = 0;
    std::string strModified;  ///< UTC with nanoseconds, such as "2026-11-21T15:52:00.123456789Z"

    bool operator==(const FileState&) const = default;
};

/// Nothing if there is nothing at the path, or it can't be looked at. Follows links.
std::optional<FileState> StateOf(const std::string& strPath);

/// The present time in seconds, such as "2026-11-21T15:52:00Z".
std::string TimeStamp();

}  // namespace host
