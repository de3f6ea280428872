// The options that say how the results of files are told.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "report/FormatOption.h"

namespace CLI {
class App;
}

namespace host {

struct ReportOptions
{
    Format eFormat = Format::Text;
    std::optional<std::size_t> limit;  ///< most errors shown of one file; nothing for all
    std::string strOutput;             ///< file for the report; empty: standard output
};

/// \param options  Filled when the command line is parsed; has to live until then.
void AddReportOptions(CLI::App& command, ReportOptions& options);

/// Adds the option that names a file for the report. \param options  As above.
void AddReportOutput(CLI::App& command, ReportOptions& options);

}  // namespace host
