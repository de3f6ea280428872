#include "command/CheckCommand.h"

#include <KZEkaMok/KZEkaMok.h>

#include <CLI/CLI.hpp>

#include <filesystem>

#include "base/Language.h"
#include "base/SafeText.h"
#include "base/UsageError.h"
#include "command/FamilyOption.h"
#include "report/ReportRun.h"
#include "request/CheckFile.h"

namespace host {
namespace {

constexpr Text SUMMARY = {"Checks CSV files and tells their errors",
                          "CSVファイルをチェックしてエラーを示します"};
constexpr Text FILE_HELP = {"CSV files (.csv, .CSV, .txt, .TXT)",
                            "CSVファイル（.csv、.CSV、.txt、.TXT）"};
constexpr Text EXAMPLES = {R"(Examples:
  kzekamok check accounts.csv
  kzekamok check --limit 20 accounts.csv
  kzekamok check --format json *.csv > report.json
  kzekamok check --format html -o report.html *.csv)",
                           R"(例：
  kzekamok check accounts.csv
  kzekamok check --limit 20 accounts.csv
  kzekamok check --format json *.csv > report.json
  kzekamok check --format html -o report.html *.csv)"};
constexpr Text OVER_INPUT = {"--output {1}: the report would take the place of a file to check",
                             "--output {1}：チェックするファイルには結果を書き込めません"};

}  // namespace

CLI::App* CheckCommand::AddTo(CLI::App& app)
{
    CLI::App* pCommand = app.add_subcommand("check", Say(SUMMARY));
    pCommand->add_option("FILE", m_vecFile, Say(FILE_HELP))->type_name("")->required();
    AddFamilyOption(*pCommand, m_family);
    AddReportOptions(*pCommand, m_report);
    AddReportOutput(*pCommand, m_report);
    pCommand->footer(Say(EXAMPLES));
    return pCommand;
}

void CheckCommand::Finish()
{
    for (const std::string& strFile : m_vecFile) {
        std::error_code error;  // a file that isn't there is another one
        if (std::filesystem::equivalent(strFile, m_report.strOutput, error))
            throw UsageError(Say(OVER_INPUT, {MakeSafe(m_report.strOutput)}));
    }
}

ExitStatus CheckCommand::Run()
{
    const Definitions definitions;
    ReportRun run("check", m_report);
    for (const std::string& strFile : m_vecFile) {
        KZICsvConvMokEka library;
        run.Add(FileCheck(library, definitions, strFile, m_family).Run());
        library.Terminate();
    }
    return run.Finish();
}

}  // namespace host
