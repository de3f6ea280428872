// The command-line host of the library.
#include <KZEkaMok/KZEkaMok.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <iostream>

#include "CheckFile.h"
#include "ConvertFile.h"
#include "Options.h"
#include "Report.h"
#include "SafeText.h"

namespace {

using namespace host;

bool WantsColour()
{
    const char* szNoColour = std::getenv("NO_COLOR");
    const char* szTerminal = std::getenv("TERM");
    const bool bDumb = szTerminal != nullptr && std::strcmp(szTerminal, "dumb") == 0;
    return isatty(STDOUT_FILENO) == 1 && (szNoColour == nullptr || *szNoColour == '\0') && !bDumb;
}

/// A result that may be overlooked on standard output is told on standard error too.
void Warn(const FileReport& report)
{
    const bool bSeen = isatty(STDOUT_FILENO) == 1 && isatty(STDERR_FILENO) == 1;
    if (report.eStatus < ExitStatus::Usage || bSeen)
        return;
    std::cout.flush();
    std::cerr << "kzekamok: " << MakeSafe(report.strFile) << ": " << report.strProblem << ' '
              << report.strAdvice << '\n';
}

FileReport RunFile(const Options& options,
                   const std::string& strFile,
                   const FormDefinitions* pForms)
{
    KZICsvConvMokEka library;
    FileReport report =
        options.eCommand == Command::Check
            ? FileCheck(library, pForms, strFile).Run()
            : FileConversion(library, pForms, strFile, options.strOutput, options.fields).Run();
    library.Terminate();
    return report;
}

ExitStatus Run(const Options& options)
{
    const ReportStyle style = {options.eFormat == Format::Text && WantsColour(), options.limit};
    const auto forms = FormDefinitions::Read();

    std::vector<FileReport> vecReport;
    auto eStatus = ExitStatus::Passed;
    for (const std::string& strFile : options.vecFile) {
        FileReport report = RunFile(options, strFile, forms ? &*forms : nullptr);
        eStatus = Worse(eStatus, report.eStatus);
        if (options.eFormat == Format::Text) {
            WriteText(std::cout, report, style);
            Warn(report);
            report.vecError.clear();  // it has been told
        }
        vecReport.push_back(std::move(report));
    }

    if (options.eFormat == Format::Json) {
        WriteJson(std::cout, options.eCommand == Command::Check ? "check" : "convert", vecReport,
                  style);
        for (const FileReport& report : vecReport)
            Warn(report);
    } else if (vecReport.size() > 1) {
        WriteTextTotals(std::cout, vecReport);
    }
    return eStatus;
}

/// Results that nobody got are no results.
ExitStatus FinishOutput(ExitStatus eStatus)
{
    std::cout.flush();
    if (std::cout)
        return eStatus;
    const int nError = errno;
    std::cerr << "kzekamok: standard output could not be written";
    if (nError != 0)
        std::cerr << ": " << std::strerror(nError);
    std::cerr << ". The results above are not complete.\n";
    return Worse(eStatus, ExitStatus::NotWritten);
}

}  // namespace

int main(int nCount, char** pArguments)
{
    // A reader that leaves shows as a failed write, which has a status of its own.
    std::signal(SIGPIPE, SIG_IGN);
    try {
        const auto options = ReadOptions(nCount, pArguments);
        const auto* pOptions = std::get_if<Options>(&options);
        return static_cast<int>(
            FinishOutput(pOptions != nullptr ? Run(*pOptions) : std::get<ExitStatus>(options)));
    } catch (const std::exception& error) {
        std::cerr << "kzekamok: unexpected fault: " << error.what()
                  << ". No file counts as checked.\n";
    }
    return static_cast<int>(ExitStatus::NotChecked);
}
