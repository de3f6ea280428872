// Tells the results of a run, file by file, in the format that was asked for.
#pragma once

#include <vector>

#include "FileReport.h"
#include "ReportOptions.h"

namespace host {

/// Writes to standard output; a result that may be overlooked there to standard error, too.
class ReportRun
{
public:
    /// \param szCommand  Name of the subcommand, a literal.
    ReportRun(const char* szCommand, const ReportOptions& options);

    /// As text the file is told at once; other formats are written by Finish.
    void Add(FileReport report);
    /// \return The worst status of all files.
    ExitStatus Finish();

private:
    void WriteAll() const;

    const char* m_szCommand;
    ReportOptions m_options;
    std::vector<FileReport> m_vecReport;
};

}  // namespace host
