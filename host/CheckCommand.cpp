#include "CheckCommand.h"

#include <KZEkaMok/KZEkaMok.h>

#include <CLI/CLI.hpp>

#include "CheckFile.h"
#include "ReportRun.h"

namespace host {
namespace {

constexpr const char* EXAMPLES = R"(Examples:
  kzekamok check accounts.csv
  kzekamok check --limit 20 accounts.csv
  kzekamok check --format json *.csv > report.json)";

}  // namespace

CLI::App* CheckCommand::AddTo(CLI::App& app)
{
    CLI::App* pCommand = app.add_subcommand("check", "Checks CSV files and tells their errors");
    pCommand->add_option("FILE", m_vecFile, "CSV files (.csv, .CSV, .txt, .TXT)")
        ->type_name("")
        ->required();
    AddReportOptions(*pCommand, m_report);
    pCommand->footer(EXAMPLES);
    return pCommand;
}

ExitStatus CheckCommand::Run()
{
    const Definitions definitions;
    ReportRun run("check", m_report);
    for (const std::string& strFile : m_vecFile) {
        KZICsvConvMokEka library;
        run.Add(FileCheck(library, definitions, strFile).Run());
        library.Terminate();
    }
    return run.Finish();
}

}  // namespace host
