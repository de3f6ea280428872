#include "command/CommandLine.h"

#include <KZEkaMok/KZEkaMok.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "base/Language.h"
#include "base/UsageError.h"
#include "command/Commands.h"
#include "command/HelpFormatter.h"
#include "command/ParserComplaint.h"

namespace host {
namespace {

constexpr const char* LANGUAGE_OPTION = "--lang";

constexpr Text DESCRIPTION = {
    "Checks tax filing CSV files (Shift_JIS) and turns them into MOK documents.",
    "税務申告用のCSVファイル（Shift_JIS）をチェックし、MOK文書に変換します。"};

constexpr Text EXAMPLES = {R"(Check files and convert them:
  kzekamok check accounts.csv
      Shows each wrong cell with its record, column, label, value, rule, code and message.
  kzekamok check --format html accounts.csv > accounts.html
      The same as a page with the wrong cells marked; json and sarif are for programs.
  kzekamok convert accounts.csv --profile filer.toml -o accounts.mok
      Checks the file and, if it passes, writes the document.
  kzekamok batch inbox -o outbox --profile filer.toml
      The same for every CSV file below a folder. Given again it goes on where it was.
  kzekamok split year.csv -o parts
      Parts a file with too many records.

Know what a form asks for:
  kzekamok explain HE70012E
      What a code means and what to do.
  kzekamok layout 002
      What stands in which column; without a type id all of them.
  kzekamok new 002 -o example.csv
      An example file that passes.
  kzekamok rules > rules.json
      Check items, messages and all procedures for other tools.

Write definition files, set up the shell:
  kzekamok lint my/KZEkaMok.bundle
      Finds what is wrong in them, with line and remedy.
  source <(kzekamok completion bash)
      Completes commands, options, files and type ids.

Each command has more examples in its own help: kzekamok check --help

Exit status (with several files the highest):
  0  passed, or converted
  1  a file was refused: it has errors
  2  the command line, the profile or a field of the filer is wrong
  3  a file could not be checked to its end (missing, unreadable, not Shift_JIS), or the
     installation is faulty
  4  the document, or standard output, could not be written

Environment:
  KZEKAMOK_BUNDLE  the resource folder, in place of the installed one
  LANG             Japanese if it begins with "ja", else English; LC_ALL and LC_MESSAGES
                   come first, and --lang wins
  NO_COLOR         no colour, if set and not empty)",
                           R"(チェックと変換の例：
  kzekamok check accounts.csv
      エラーのある値を、レコード、項目、項目名、値、規則、コード、説明とともに示します。
  kzekamok check --format html accounts.csv > accounts.html
      エラーのセルに印を付けたページにします。プログラム向けには json と sarif があります。
  kzekamok convert accounts.csv --profile filer.toml -o accounts.mok
      ファイルをチェックし、合格すれば文書を書き出します。
  kzekamok batch inbox -o outbox --profile filer.toml
      フォルダー以下のすべてのCSVファイルを処理します。同じコマンドで続きから再開します。
  kzekamok split year.csv -o parts
      レコードの多すぎるファイルを分けます。

様式を調べる例：
  kzekamok explain HE70012E
      エラーコードの意味と対処を示します。
  kzekamok layout 002
      各項目の内容を示します。申請区分を省略すると一覧を示します。
  kzekamok new 002 -o example.csv
      合格する見本のファイルを作ります。
  kzekamok rules > rules.json
      チェック項目、メッセージ、すべての手続を、他のツール向けに出力します。

定義ファイルの作成とシェルの設定の例：
  kzekamok lint my/KZEkaMok.bundle
      定義ファイルの誤りを、行と直し方とともに示します。
  source <(kzekamok completion bash)
      コマンド、オプション、ファイル、申請区分を補完します。

ほかの例は、各コマンドの説明にあります：kzekamok check --help

終了ステータス（複数のファイルでは最も大きいもの）：
  0  合格した、または変換した
  1  エラーのあるファイルがあった
  2  コマンドライン、プロファイル、納税者の項目のどれかが誤っている
  3  最後までチェックできないファイルがあった（ファイルがない、読み取れない、Shift_JISではない）、
     またはインストールに問題がある
  4  文書または標準出力に書き込めなかった

環境変数：
  KZEKAMOK_BUNDLE  インストールされたものの代わりに使うリソースフォルダー
  LANG             "ja" で始まれば日本語、それ以外は英語。LC_ALL と LC_MESSAGES が先に、
                   --lang が最優先で使われます
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
