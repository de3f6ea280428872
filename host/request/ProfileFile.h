// The bytes of a profile, and whether they may be trusted.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace host {

/// Bytes that a profile may have: its 18 fields of at most 100 characters take a tenth of it.
inline constexpr std::size_t PROFILE_MAX_BYTES = std::size_t{64} * 1024;

/// The bytes of a profile that the user named, whatever kind of file it is: a pipe, too.
/// Throws UsageError if it can't be read or is too long.
std::string ReadNamedProfile(const std::string& strPath);

/// The bytes of a profile that lies beside a CSV file, where others may have put it. What its keys
/// and values are reaches messages and documents, so it has to be a regular file of this user or of
/// root, under this name alone and no link, which nobody else can write.
/// \return Nothing if there is none. Throws UsageError for one that isn't so, can't be read or is
/// too long.
std::optional<std::string> ReadFoundProfile(const std::string& strPath);

/// Throws UsageError: what is wrong with the profile.
[[noreturn]] void RefuseProfile(const std::string& strPath, const std::string& strWhat);

}  // namespace host
