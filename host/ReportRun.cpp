#include "ReportRun.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <string_view>
#include <utility>

#include "Report.h"
#include "SafeText.h"

namespace host {
namespace {

bool WantsColour()
{
    const char* szNoColour = std::getenv("NO_COLOR");
    const char* szTerminal = std::getenv("TERM");
    const bool bDumb = szTerminal != nullptr && std::string_view(szTerminal) == "dumb";
    return isatty(STDOUT_FILENO) == 1 && (szNoColour == nullptr || *szNoColour == '\0') && !bDumb;
}

ReportStyle StyleOf(const ReportOptions& options)
{
    return {options.eFormat == Format::Text && WantsColour(), options.limit};
}

void Warn(const FileReport& report)
{
    const bool bSeen = isatty(STDOUT_FILENO) == 1 && isatty(STDERR_FILENO) == 1;
    if (report.eStatus < ExitStatus::Usage || bSeen)
        return;
    std::cout.flush();
    std::cerr << "kzekamok: " << MakeSafe(report.strFile) << ": " << report.strProblem << ' '
              << report.strAdvice << '\n';
}

}  // namespace

ReportRun::ReportRun(const char* szCommand, const ReportOptions& options)
    : m_szCommand(szCommand), m_options(options)
{
}

void ReportRun::Add(FileReport report)
{
    if (m_options.eFormat == Format::Text) {
        WriteText(std::cout, report, StyleOf(m_options));
        Warn(report);
        report.vecError.clear();  // they have been told
    }
    m_vecReport.push_back(std::move(report));
}

ExitStatus ReportRun::Finish()
{
    if (m_options.eFormat == Format::Json) {
        WriteJson(std::cout, m_szCommand, m_vecReport, StyleOf(m_options));
        for (const FileReport& report : m_vecReport)
            Warn(report);
    } else if (m_vecReport.size() > 1) {
        WriteTextTotals(std::cout, m_vecReport);
    }
    auto eStatus = ExitStatus::Passed;
    for (const FileReport& report : m_vecReport)
        eStatus = Worse(eStatus, report.eStatus);
    return eStatus;
}

}  // namespace host
