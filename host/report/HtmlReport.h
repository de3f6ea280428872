// The report as one page for a browser.
#pragma once

#include <iosfwd>
#include <vector>

#include "report/Report.h"

namespace host {

/// A page that needs nothing beside itself and can be read without its script: a summary, for each
/// file its errors grouped and counted, and its cells with the wrong ones marked. What comes from
/// the files is text in it, never markup.
void WriteHtml(std::ostream& out,
               const char* szCommand,
               const std::vector<FileReport>& vecReport,
               const ReportStyle& style);

}  // namespace host
