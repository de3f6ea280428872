// The command line.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "ExitStatus.h"
#include "FilerFields.h"

namespace host {

enum class Command
{
    Check,
    Convert,
};

enum class Format
{
    Text,
    Json,
};

struct Options
{
    Command eCommand = Command::Check;
    Format eFormat = Format::Text;
    std::vector<std::string> vecFile;
    std::string strOutput;             ///< of a conversion
    FilerFields fields;                ///< of a conversion: options over profile, else empty
    std::optional<std::size_t> limit;  ///< most errors shown of one file; nothing for all
};

/// Reads the command line and the profile that it names.
/// \return The options, or the status to end with when nothing is left to do: help and version have
/// been written to standard output, or a mistake to standard error.
std::variant<Options, ExitStatus> ReadOptions(int nCount, const char* const* pArguments);

/// The fields of a conversion: each as an option gives it, else as the profile does, else empty.
FilerFields MergeFields(const GivenFilerFields& options, const GivenFilerFields& profile);

}  // namespace host
