// The cells of a file as a table with the wrong ones marked.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>

#include "request/FileReport.h"

namespace host {

/// The id by which the page reaches an error in the list. \param nError  Into FileReport::vecError.
std::string HtmlErrorId(std::size_t nFile, std::size_t nError);

/// The id of the cell or the record in the table that an error is about; empty for errors that are
/// about neither, and if the table doesn't show it.
std::string HtmlCellId(std::size_t nFile, const FileReport& report, const ReportedError& error);

/// Writes the table of a report with cells. Records come in pieces of their own, so that a browser
/// lays out only those that are seen.
/// \param nFile    Number of the file in the page; part of every id.
/// \param nListed  Errors from the front that the page lists; the others are marked without a link.
void WriteHtmlGrid(std::ostream& out,
                   const FileReport& report,
                   std::size_t nFile,
                   std::size_t nListed);

}  // namespace host
