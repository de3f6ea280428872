// The formats in which a run is told.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "request/FileReport.h"

namespace host {

struct ReportStyle
{
    bool bColour = false;
    std::optional<std::size_t> limit;  ///< most errors that are shown of one file; nothing for all
};

/// The report of one file as text for people, in UTF-8.
void WriteText(std::ostream& out, const FileReport& report, const ReportStyle& style);

/// A line of counts over several files.
void WriteTextTotals(std::ostream& out, const std::vector<FileReport>& vecReport);

/// One JSON document over all files, in UTF-8 whatever the files' names and values are.
/// \param szCommand  "check" or "convert".
void WriteJson(std::ostream& out,
               const char* szCommand,
               const std::vector<FileReport>& vecReport,
               const ReportStyle& style);

}  // namespace host
