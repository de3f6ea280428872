// The report as SARIF 2.1.0, which editors and code review services read.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include <iosfwd>
#include <vector>

#include "report/Report.h"

namespace host {

/// One run over all files: its rules are the codes that occur, its results are the errors. What
/// kept a file from being checked, converted or written is a notification, and the run then didn't
/// succeed. Names and values may not be UTF-8: write it by JsonText.
nlohmann::ordered_json SarifOf(const std::vector<FileReport>& vecReport, const ReportStyle& style);

/// The same as text in UTF-8.
void WriteSarif(std::ostream& out,
                const std::vector<FileReport>& vecReport,
                const ReportStyle& style);

}  // namespace host
