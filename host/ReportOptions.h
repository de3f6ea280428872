// The options that say how the results of files are told.
#pragma once

#include <cstddef>
#include <optional>

namespace CLI {
class App;
}

namespace host {

enum class Format
{
    Text,
    Json,
    Sarif,
    Html,
};

struct ReportOptions
{
    Format eFormat = Format::Text;
    std::optional<std::size_t> limit;  ///< most errors shown of one file; nothing for all
};

/// \param options  Filled when the command line is parsed; has to live until then.
void AddReportOptions(CLI::App& command, ReportOptions& options);

}  // namespace host
