#include "command/RulesCommand.h"

#include <CLI/CLI.hpp>

#include <nlohmann/json.hpp>

#include <iostream>

#include "base/Complain.h"
#include "base/Language.h"
#include "form/Installation.h"
#include "form/WantedProcedures.h"
#include "report/JsonReport.h"
#include "rules/ItemCatalogueText.h"
#include "rules/RulesJson.h"

namespace host {
namespace {

constexpr int INDENT = 2;

constexpr Text SUMMARY = {"Writes check items, messages and procedures for other tools",
                          "チェック項目・メッセージ・手続の一覧を、他のツール向けに出力します"};
constexpr Text TYPE_ID_HELP = {"Only the procedures of these type ids; default: all",
                               "手続を絞る申請区分（省略時はすべて）"};
constexpr Text FORMAT_HELP = {"json (default): everything; markdown: the check items for people",
                              "json（既定）はすべて、markdownはチェック項目の説明"};
constexpr Text FOOTER = {R"(Examples:
  kzekamok rules > rules.json
  kzekamok rules 002 101 | jq '.procedures[].forms[].items[] | {column, label}'
  kzekamok rules --format markdown --lang ja)",
                         R"(例：
  kzekamok rules > rules.json
  kzekamok rules 002 101 | jq '.procedures[].forms[].items[] | {column, label}'
  kzekamok rules --format markdown --lang ja)"};

}  // namespace

CLI::App* RulesCommand::AddTo(CLI::App& app)
{
    CLI::App* pCommand = app.add_subcommand("rules", Say(SUMMARY));
    pCommand->add_option("TYPEID", m_vecTypeId, Say(TYPE_ID_HELP))->type_name("");
    AddFormatOption(*pCommand, m_eFormat, {Format::Json, Format::Markdown}, FORMAT_HELP);
    pCommand->footer(Say(FOOTER));
    return pCommand;
}

ExitStatus RulesCommand::Run()
{
    if (m_eFormat == Format::Markdown) {
        WriteItemCatalogue(std::cout);
        return ExitStatus::Passed;
    }
    const Definitions definitions;
    if (definitions.Bundle().empty()) {
        Complain(InstallationProblem());
        return ExitStatus::NotChecked;
    }
    std::vector<std::string> vecProblem;
    nlohmann::ordered_json procedures = nlohmann::ordered_json::array();
    for (const ProcedureDefinition* pProcedure :
         WantedProcedures(definitions, m_vecTypeId, vecProblem))
        procedures.push_back(ProcedureToJson(*pProcedure));
    const nlohmann::ordered_json document = {
        {"tool", "kzekamok"},
        {"version", KZEKAMOK_VERSION},
        {"checkItems", CheckItemsToJson()},
        {"messages", MessagesToJson()},
        {"procedures", std::move(procedures)},
    };
    std::cout << JsonText(document, INDENT) << '\n';
    for (const std::string& strProblem : vecProblem)
        Complain(strProblem);
    return vecProblem.empty() ? ExitStatus::Passed : ExitStatus::NotChecked;
}

}  // namespace host
