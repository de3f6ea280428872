// Reports as JSON values, for every format that is made of them.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include <string>

#include "report/Report.h"
#include "request/FileReport.h"

namespace host {

/// The report of one file as it stands in the `files` of the JSON report. Names and values come
/// from outside and may not be UTF-8: write it by JsonText.
nlohmann::ordered_json FileToJson(const FileReport& report, const ReportStyle& style);

/// The value as UTF-8 text without a line end; what isn't UTF-8 becomes U+FFFD, and what is hidden
/// or would reorder its surroundings stands escaped.
/// \param nIndent  Blanks for each level; -1 for all on one line.
std::string JsonText(const nlohmann::ordered_json& value, int nIndent = -1);

}  // namespace host
