#include "command/LayoutCommand.h"

#include <CLI/CLI.hpp>

#include <iostream>

#include "base/Complain.h"
#include "base/Language.h"
#include "form/Installation.h"
#include "form/WantedProcedures.h"
#include "rules/Layout.h"

namespace host {
namespace {

constexpr Text SUMMARY = {"Tells what stands in which column of a file, and what is asked of it",
                          "ファイルの各項目の内容とチェックを示します"};
constexpr Text TYPE_ID_HELP = {"Type ids such as 002; none lists them all",
                               "申請区分（例：002）。省略時は一覧を表示します"};
constexpr Text FORMAT_HELP = {"markdown (default), html or csv (UTF-8)",
                              "markdown（既定）、html、csv（UTF-8）"};
constexpr Text FOOTER = {R"(Examples:
  kzekamok layout
  kzekamok layout 002
  kzekamok layout 101 --format html > salaries.html)",
                         R"(例：
  kzekamok layout
  kzekamok layout 002
  kzekamok layout 101 --format html > salaries.html)"};

}  // namespace

CLI::App* LayoutCommand::AddTo(CLI::App& app)
{
    CLI::App* pCommand = app.add_subcommand("layout", Say(SUMMARY));
    pCommand->add_option("TYPEID", m_vecTypeId, Say(TYPE_ID_HELP))->type_name("");
    AddFormatOption(*pCommand, m_eFormat, {Format::Markdown, Format::Html, Format::Csv},
                    FORMAT_HELP);
    pCommand->footer(Say(FOOTER));
    return pCommand;
}

ExitStatus LayoutCommand::Run()
{
    const Definitions definitions;
    if (definitions.Bundle().empty()) {
        Complain(InstallationProblem());
        return ExitStatus::NotChecked;
    }
    std::vector<std::string> vecProblem;
    const auto vecProcedure = WantedProcedures(definitions, m_vecTypeId, vecProblem);
    if (m_vecTypeId.empty())
        WriteProcedureList(std::cout, vecProcedure);
    else if (m_eFormat == Format::Html)
        WriteLayoutHtml(std::cout, vecProcedure);
    else if (m_eFormat == Format::Csv)
        WriteLayoutCsv(std::cout, vecProcedure);
    else
        WriteLayoutMarkdown(std::cout, vecProcedure);
    for (const std::string& strProblem : vecProblem)
        Complain(strProblem);
    return vecProblem.empty() ? ExitStatus::Passed : ExitStatus::NotChecked;
}

}  // namespace host
