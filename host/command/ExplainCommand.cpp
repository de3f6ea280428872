#include "command/ExplainCommand.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <iterator>

#include "EkaMsgTable.h"
#include "base/Complain.h"
#include "base/Language.h"
#include "base/SafeText.h"
#include "rules/Advice.h"
#include "rules/CatalogueText.h"

namespace host {
namespace {

constexpr std::size_t SHOWN_CHARACTERS = 40;

constexpr Text SUMMARY = {"Tells what an error code means and what to do about it",
                          "エラーコードの意味と対処を示します"};
constexpr Text CODE_HELP = {"Code such as HE70012E, or 12 for short; none for all codes",
                            "HE70012Eのようなコード（12のような略記も可）。省略時はすべてのコード"};
constexpr Text FOOTER = {R"(Examples:
  kzekamok explain HE70012E
  kzekamok explain 12 25)",
                         R"(例：
  kzekamok explain HE70012E
  kzekamok explain 12 25)"};
constexpr Text REPORTED_BY = {"Reported by the check items: {1}",
                              "このコードを出すチェック項目：{1}"};
constexpr Text UNKNOWN = {
    "\"{1}\" is no code of the catalogue. `kzekamok explain` alone lists all of them.",
    "「{1}」というコードはありません。`kzekamok explain`だけで一覧を表示します。"};

/// The message of a code, or of the digits in it before the last: "HE70012E", "70012", "12".
KZCEkaMessage_t FindMessage(const std::string& strCode)
{
    if (const auto eMessage = FindEkaMessage(strCode); eMessage != MSG_NONE)
        return eMessage;
    const bool bDigits = !strCode.empty() &&
                         std::ranges::all_of(strCode, [](char c) { return c >= '0' && c <= '9'; });
    if (!bDigits || strCode.size() > 5)
        return MSG_NONE;
    const std::string strBegin = "HE70000E";
    const std::size_t nDigits = strBegin.size() - 1 - strCode.size();
    return FindEkaMessage(strBegin.substr(0, nDigits) + strCode + "E");
}

void Explain(KZCEkaMessage_t eMessage)
{
    std::cout << EkaMsgTable[eMessage].szCode << ' ' << EkaMsgTable[eMessage].szText << "\n  "
              << AdviceFor(eMessage) << '\n';
    if (const std::string strKeywords = KeywordsThatReport(eMessage); !strKeywords.empty())
        std::cout << "  " << Say(REPORTED_BY, {strKeywords}) << '\n';
}

}  // namespace

CLI::App* ExplainCommand::AddTo(CLI::App& app)
{
    CLI::App* pCommand = app.add_subcommand("explain", Say(SUMMARY));
    pCommand->add_option("CODE", m_vecCode, Say(CODE_HELP))->type_name("");
    pCommand->footer(Say(FOOTER));
    return pCommand;
}

ExitStatus ExplainCommand::Run()
{
    auto eStatus = ExitStatus::Passed;
    for (const std::string& strCode : m_vecCode) {
        const KZCEkaMessage_t eMessage = FindMessage(strCode);
        if (eMessage != MSG_NONE) {
            Explain(eMessage);
            continue;
        }
        eStatus = ExitStatus::Usage;
        Complain(Say(UNKNOWN, {MakeSafeAndShort(strCode, SHOWN_CHARACTERS)}));
    }
    if (m_vecCode.empty())
        for (const EkaMsgRow& row : EkaMsgTable)
            if (row.eMessage != MSG_NONE)
                Explain(row.eMessage);
    return eStatus;
}

}  // namespace host
