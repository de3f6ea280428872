#include "report/ReportRun.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <string_view>
#include <utility>

#include "base/Complain.h"
#include "base/Language.h"
#include "base/SafeText.h"
#include "file/Leftovers.h"
#include "file/WholeFile.h"
#include "report/HtmlReport.h"
#include "report/Report.h"
#include "report/ReportWords.h"
#include "report/SarifReport.h"

namespace host {
namespace {

constexpr Text NOT_WRITTEN = {"The report could not be written to {1}: {2}.",
                              "結果を{1}に書き込めませんでした：{2}。"};

bool WantsColour()
{
    const char* szNoColour = std::getenv("NO_COLOR");
    const char* szTerminal = std::getenv("TERM");
    const bool bDumb = szTerminal != nullptr && std::string_view(szTerminal) == "dumb";
    return isatty(STDOUT_FILENO) == 1 && (szNoColour == nullptr || *szNoColour == '\0') && !bDumb;
}

/// \param bOutput  The results go to standard output.
void Warn(const FileReport& report, bool bOutput)
{
    const bool bSeen = bOutput && isatty(STDOUT_FILENO) == 1 && isatty(STDERR_FILENO) == 1;
    if (report.eStatus < ExitStatus::Usage || bSeen)
        return;
    Complain(MakeSafe(report.strFile) + ": " + Sentences(report.strProblem, report.strAdvice));
}

}  // namespace

ReportRun::ReportRun(const char* szCommand, const ReportOptions& options)
    : m_szCommand(szCommand), m_options(options)
{
}

void ReportRun::Add(FileReport report)
{
    if (m_options.eFormat == Format::Text) {
        WriteText(Out(), report, Style());
        Warn(report, m_options.strOutput.empty());
        report.vecError.clear();  // they have been told
    }
    if (m_options.eFormat != Format::Html)
        report.pCells.reset();
    m_vecReport.push_back(std::move(report));
}

std::ostream& ReportRun::Out()
{
    return m_options.strOutput.empty() ? std::cout : m_file;
}

ReportStyle ReportRun::Style() const
{
    const bool bColour =
        m_options.eFormat == Format::Text && m_options.strOutput.empty() && WantsColour();
    return {bColour, m_options.limit};
}

void ReportRun::WriteAll()
{
    const ReportStyle style = Style();
    switch (m_options.eFormat) {
        case Format::Text:
            if (m_vecReport.size() > 1)
                WriteTextTotals(Out(), m_vecReport);
            return;
        case Format::Json:
            WriteJson(Out(), m_szCommand, m_vecReport, style);
            return;
        case Format::Sarif:
            WriteSarif(Out(), m_vecReport, style);
            return;
        case Format::Html:
            WriteHtml(Out(), m_szCommand, m_vecReport, style);
            return;
        case Format::Markdown:
        case Format::Csv:
            return;  // no report of files has them
    }
}

ExitStatus ReportRun::Finish()
{
    WriteAll();
    if (m_options.eFormat != Format::Text)
        for (const FileReport& report : m_vecReport)
            Warn(report, m_options.strOutput.empty());
    auto eStatus = ExitStatus::Passed;
    for (const FileReport& report : m_vecReport)
        eStatus = Worse(eStatus, report.eStatus);
    if (m_options.strOutput.empty())
        return eStatus;
    RemoveLeftoversBeside(m_options.strOutput);
    const std::string strProblem = WriteWhole(m_options.strOutput, m_file.str());
    if (strProblem.empty())
        return eStatus;
    Complain(Say(NOT_WRITTEN, {MakeSafe(m_options.strOutput), MakeSafe(strProblem)}));
    return ExitStatus::NotWritten;
}

}  // namespace host
