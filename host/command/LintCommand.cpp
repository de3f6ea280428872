#include "command/LintCommand.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>

#include "KZCLoadResource.h"
#include "base/Complain.h"
#include "base/Language.h"
#include "base/SafeText.h"
#include "base/UsageError.h"
#include "lint/Lint.h"
#include "lint/LintOutput.h"
#include "lint/LintRules.h"

namespace host {
namespace {

constexpr Text SUMMARY = {"Finds the mistakes of a resource folder's definition files",
                          "リソースフォルダーの定義ファイルの誤りを見つけます"};
constexpr Text BUNDLE_HELP = {"The resource folder (KZEkaMok.bundle); by default the installed one",
                              "リソースフォルダー（KZEkaMok.bundle）。既定は導入済みのもの"};
constexpr Text TYPE_HELP = {"Look only at the definition of this type id; may be repeated",
                            "この申請区分の定義だけを調べます（繰り返し可）"};
constexpr Text FORMAT_HELP = {"How the findings are written: text (default) or json",
                              "結果の形式：text（既定）またはjson"};
constexpr Text STRICT_HELP = {"Warnings count for the exit status, too",
                              "警告も終了ステータスに数えます"};
constexpr Text RULES_HELP = {"List all rules as a Markdown table and exit",
                             "すべての規則をMarkdownの表で示して終わります"};
constexpr Text EXAMPLES = {R"(Examples:
  kzekamok lint
  kzekamok lint --type 202 my/KZEkaMok.bundle
  kzekamok lint --strict --format json my/KZEkaMok.bundle > findings.json

Exit status: 0 without errors, 1 with errors, 3 if the folder can't be read)",
                           R"(例：
  kzekamok lint
  kzekamok lint --type 202 my/KZEkaMok.bundle
  kzekamok lint --strict --format json my/KZEkaMok.bundle > findings.json

終了ステータス：エラーなし0、エラーあり1、フォルダーを読めないとき3)"};

constexpr Text UNKNOWN_TYPE_ID = {"--type {1}: a type id has three digits, such as 002 or 101",
                                  "--type {1}：申請区分は002や101のような3桁の数字です"};
constexpr Text NO_FOLDER = {
    "The folder {1} can't be read. Give the path of a resource "
    "folder.",
    "フォルダー{1}を読めません。"
    "リソースフォルダーのパスを指定してください。"};
constexpr Text NO_BUNDLE = {
    "The resource folder KZEkaMok.bundle was not found. Give its "
    "path.",
    "リソースフォルダーKZEkaMok.bundleが見つかりません。"
    "パスを指定してください。"};

bool IsReadableFolder(const std::string& strPath)
{
    std::error_code error;
    const std::filesystem::directory_iterator entries(strPath, error);
    return !error;
}

}  // namespace

CLI::App* LintCommand::AddTo(CLI::App& app)
{
    CLI::App* pCommand = app.add_subcommand("lint", Say(SUMMARY));
    pCommand->add_option("BUNDLE", m_strBundle, Say(BUNDLE_HELP))->type_name("");
    pCommand->add_option("--type", m_vecTypeId, Say(TYPE_HELP))
        ->type_name("TYPEID")
        ->take_all()
        ->allow_extra_args(false);
    AddFormatOption(*pCommand, m_eFormat, {Format::Json, Format::Text}, FORMAT_HELP);
    pCommand->add_flag("--strict", m_bStrict, Say(STRICT_HELP));
    pCommand->add_flag("--rules", m_bRules, Say(RULES_HELP));
    pCommand->footer(Say(EXAMPLES));
    return pCommand;
}

void LintCommand::Finish()
{
    for (const std::string& strTypeId : m_vecTypeId)
        if (strTypeId.size() != 3 || strTypeId.find_first_not_of("0123456789") != std::string::npos)
            throw UsageError(Say(UNKNOWN_TYPE_ID, {MakeSafe(strTypeId)}));
}

ExitStatus LintCommand::Run()
{
    if (m_bRules) {
        WriteLintRules(std::cout);
        return ExitStatus::Passed;
    }
    const std::string strBundle =
        m_strBundle.empty() ? KZCLoadResource::getBundlePath() : m_strBundle;
    if (strBundle.empty()) {
        Complain(Say(NO_BUNDLE));
        return ExitStatus::NotChecked;
    }
    if (!IsReadableFolder(strBundle)) {
        Complain(Say(NO_FOLDER, {MakeSafe(strBundle)}));
        return ExitStatus::NotChecked;
    }
    const auto vecFinding = LintFolder(strBundle, m_vecTypeId);
    const LintCounts counts = CountFindings(vecFinding);
    const bool bRefused = counts.nErrors > 0 || (m_bStrict && counts.nWarnings > 0);
    const ExitStatus eStatus = bRefused ? ExitStatus::Refused : ExitStatus::Passed;
    if (m_eFormat == Format::Json)
        WriteLintJson(std::cout, strBundle, vecFinding, eStatus);
    else
        WriteLintText(std::cout, strBundle, vecFinding);
    return eStatus;
}

}  // namespace host
