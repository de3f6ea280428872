// Tells the results of a run, file by file, in the format that was asked for.
#pragma once

#include <sstream>
#include <vector>

#include "report/Report.h"
#include "report/ReportOptions.h"
#include "request/FileReport.h"

namespace host {

/// Writes to standard output, or to the file that the options name; a result that may be overlooked
/// there to standard error, too.
class ReportRun
{
public:
    /// \param szCommand  Name of the subcommand, a literal.
    ReportRun(const char* szCommand, const ReportOptions& options);

    /// As text the file is told at once; other formats are written by Finish.
    void Add(FileReport report);
    /// \return The worst status of all files, or NotWritten if the file can't be written.
    ExitStatus Finish();

private:
    void WriteAll();
    std::ostream& Out();
    ReportStyle Style() const;

    const char* m_szCommand;
    ReportOptions m_options;
    std::vector<FileReport> m_vecReport;
    std::ostringstream m_file;  ///< what goes to the file
};

}  // namespace host
