#include "ReportRun.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <string_view>
#include <utility>

#include "HtmlReport.h"
#include "Report.h"
#include "SafeText.h"
#include "SarifReport.h"

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
    if (m_options.eFormat != Format::Html)
        report.pCells.reset();
    m_vecReport.push_back(std::move(report));
}

void ReportRun::WriteAll() const
{
    const ReportStyle style = StyleOf(m_options);
    switch (m_options.eFormat) {
        case Format::Text:
            if (m_vecReport.size() > 1)
                WriteTextTotals(std::cout, m_vecReport);
            return;
        case Format::Json:
            WriteJson(std::cout, m_szCommand, m_vecReport, style);
            return;
        case Format::Sarif:
            WriteSarif(std::cout, m_vecReport, style);
            return;
        case Format::Html:
            WriteHtml(std::cout, m_szCommand, m_vecReport, style);
            return;
    }
}

ExitStatus ReportRun::Finish()
{
    WriteAll();
    if (m_options.eFormat != Format::Text)
        for (const FileReport& report : m_vecReport)
            Warn(report);
    auto eStatus = ExitStatus::Passed;
    for (const FileReport& report : m_vecReport)
        eStatus = Worse(eStatus, report.eStatus);
    return eStatus;
}

}  // namespace host
