#include "CommandLine.h"

#include <KZEkaMok/KZEkaMok.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "Commands.h"
#include "HelpFormatter.h"
#include "Language.h"
#include "ParserComplaint.h"
#include "UsageError.h"

namespace host {
namespace {

constexpr const char* LANGUAGE_OPTION = "--lang";

constexpr Text DESCRIPTION = {
    "Checks tax filing CSV files (Shift_JIS) and turns them into MOK documents.",
    "税務申告用のCSVファイル（Shift_JIS）をチェックし、MOK文書に変換します。"};

constexpr Text EXAMPLES = {R"(Examples:
  kzekamok check accounts.csv
      Shows each wrong cell with its record, column, label, value, code and message.
  kzekamok check --format json *.csv > report.json
      The same for several files as one JSON document.
  kzekamok convert accounts.csv --profile filer.toml -o accounts.mok
      Checks the file and, if it passes, writes the document.
  kzekamok convert accounts.csv --profile filer.toml --zeimusho-cd 01234 -o accounts.mok
      An option wins over the profile.

Exit status (with several files the highest):
  0  passed, or converted
  1  a file was refused: it has errors
  2  the command line, the profile or a field of the filer is wrong
  3  a file could not be checked to its end (missing, unreadable, not Shift_JIS), or the
     installation is faulty
  4  the document, or standard output, could not be written

Environment:
  KZEKAMOK_BUNDLE  the resource folder, in place of the installed one
  LANG             Japanese if it begins with "ja", else English; --lang wins
  NO_COLOR         no colour, if set and not empty)",
                           R"(例：
  kzekamok check accounts.csv
      エラーのある値を、レコード、項目、項目名、値、コード、説明とともに示します。
  kzekamok check --format json *.csv > report.json
      複数のファイルの結果を1つのJSONにまとめます。
  kzekamok convert accounts.csv --profile filer.toml -o accounts.mok
      ファイルをチェックし、合格すれば文書を書き出します。
  kzekamok convert accounts.csv --profile filer.toml --zeimusho-cd 01234 -o accounts.mok
      オプションはプロファイルより優先されます。

終了ステータス（複数のファイルでは最も大きいもの）：
  0  合格した、または変換した
  1  エラーのあるファイルがあった
  2  コマンドライン、プロファイル、納税者の項目のどれかが誤っている
  3  最後までチェックできないファイルがあった（ファイルがない、読み取れない、Shift_JISではない）、
     またはインストールに問題がある
  4  文書または標準出力に書き込めなかった

環境変数：
  KZEKAMOK_BUNDLE  インストールされたものの代わりに使うリソースフォルダー
  LANG             "ja" で始まれば日本語、それ以外は英語。--lang が優先されます
  NO_COLOR         空でなければ色を付けません)"};
constexpr Text SEE_HELP = {"kzekamok: {1}\nRun `kzekamok --help` to see how it is used.\n",
                           "kzekamok：{1}\n使い方は `kzekamok --help` で見られます。\n"};
constexpr Text VERSION_HELP = {"Print the version and exit", "バージョンを表示して終わります"};
constexpr Text HELP_HELP = {"Print this help and exit", "この説明を表示して終わります"};
constexpr Text LANGUAGE_HELP = {"Language of all texts: en or ja",
                                "表示する言語：en（英語）または ja（日本語）"};

std::string Version()
{
    std::ostringstream out;
    out << "kzekamok " KZEKAMOK_VERSION ", library KZEkaMok " << std::fixed << std::setprecision(1)
        << KZEkaMokVersionNumber;
    return out.str();
}

/// The arguments behind the program's name. The parser would take `--option=` for one whose value
/// follows; here it gives the empty text.
std::vector<std::string> Arguments(int nCount, const char* const* pArguments)
{
    std::vector<std::string> vecArgument;
    bool bOptions = true;
    for (int n = 1; n < nCount; ++n) {
        std::string strArgument = pArguments[n];
        bOptions = bOptions && strArgument != "--";
        const bool bEmptyValue = bOptions && strArgument.starts_with("--") &&
                                 strArgument.find('=') == strArgument.size() - 1;
        if (bEmptyValue)
            strArgument.pop_back();
        vecArgument.push_back(std::move(strArgument));
        if (bEmptyValue)
            vecArgument.emplace_back();
    }
    return vecArgument;
}

/// Looked for before the parser is made, as its texts are in the language. Another value than the
/// two is the parser's to refuse.
Language WantedLanguage(const std::vector<std::string>& vecArgument)
{
    Language eLanguage = LanguageOfLocale();
    for (std::size_t n = 0; n < vecArgument.size() && vecArgument[n] != "--"; ++n) {
        std::string_view strValue = vecArgument[n];
        if (strValue == LANGUAGE_OPTION && n + 1 < vecArgument.size())
            strValue = vecArgument[n + 1];
        else if (strValue.starts_with("--lang="))
            strValue.remove_prefix(std::string_view("--lang=").size());
        else
            continue;
        if (strValue == "ja")
            eLanguage = Language::Japanese;
        else if (strValue == "en")
            eLanguage = Language::English;
    }
    return eLanguage;
}

std::string Complaint(const std::string& strWhat)
{
    return Say(SEE_HELP, {strWhat});
}

struct Subcommand
{
    std::unique_ptr<Command> pCommand;
    const CLI::App* pParsed;
};

}  // namespace

ExitStatus RunCommandLine(int nCount, const char* const* pArguments)
{
    std::vector<std::string> vecArgument = Arguments(nCount, pArguments);
    SetLanguage(WantedLanguage(vecArgument));
    std::ranges::reverse(vecArgument);  // as the parser wants them

    CLI::App app(Say(DESCRIPTION), "kzekamok");
    app.formatter(MakeHelpFormatter());
    app.option_defaults()->group(OptionsTitle());
    app.set_version_flag("--version", Version, Say(VERSION_HELP));
    app.set_help_flag("-h,--help", Say(HELP_HELP));
    app.footer(Say(EXAMPLES));
    app.require_subcommand(1);
    std::string strLanguage;  // read by WantedLanguage
    const auto addLanguage = [&strLanguage](CLI::App& to) {
        to.add_option(LANGUAGE_OPTION, strLanguage, Say(LANGUAGE_HELP))
            ->type_name("LANG")
            ->check(CLI::IsMember({"en", "ja"}).description(""));
    };
    addLanguage(app);

    std::vector<Subcommand> vecSubcommand;
    for (auto& pCommand : MakeCommands()) {
        CLI::App* pParsed = pCommand->AddTo(app);
        addLanguage(*pParsed);
        pParsed->group(SubcommandsTitle());
        pParsed->get_help_ptr()->group(OptionsTitle());
        vecSubcommand.push_back({std::move(pCommand), pParsed});
    }

    try {
        app.parse(std::move(vecArgument));
        const auto given = std::ranges::find_if(
            vecSubcommand, [](const Subcommand& each) { return each.pParsed->parsed(); });
        given->pCommand->Finish();
        return given->pCommand->Run();
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) {
            app.exit(error);  // writes the help or the version
            return ExitStatus::Passed;
        }
        std::cerr << Complaint(ComplaintOf(app, error));
        return ExitStatus::Usage;
    } catch (const UsageError& error) {
        std::cerr << Complaint(error.what());
        return ExitStatus::Usage;
    }
}

}  // namespace host
