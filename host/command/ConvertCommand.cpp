#include "command/ConvertCommand.h"

#include <KZEkaMok/KZEkaMok.h>

#include <CLI/CLI.hpp>

#include <filesystem>
#include <system_error>

#include "base/Language.h"
#include "base/SafeText.h"
#include "base/UsageError.h"
#include "command/FamilyOption.h"
#include "file/Leftovers.h"
#include "report/ReportRun.h"
#include "text/ShiftJis.h"

namespace host {
namespace {

constexpr Text OUTPUT_IS_INPUT = {
    "--output {1} is the CSV file itself. Name another file.",
    "--output {1}はCSVファイル自身です。別のファイルを指定してください。"};
constexpr Text SUMMARY = {"Checks a CSV file and writes its MOK document",
                          "CSVファイルをチェックし、MOK文書を書き出します"};
constexpr Text FILE_HELP = {"CSV file (.csv, .CSV, .txt, .TXT)",
                            "CSVファイル（.csv、.CSV、.txt、.TXT）"};
constexpr Text OUTPUT_HELP = {
    "Document to write (.mok or .MOK); an existing file is replaced, once the new one is whole",
    "書き出す文書（.mok または .MOK）。既存のファイルは、新しい文書が完成してから置き換えます"};
constexpr Text DRY_RUN_HELP = {"Do everything, but leave no file",
                               "すべて行いますが、ファイルは残しません"};
constexpr Text FOOTER = {
    R"(The day of filing is needed by the Finance and CrossBorder families, the postal code may be given
there; the base family takes neither. An option that the file's family doesn't take is refused, a
key of the profile is passed over.

Profile: a UTF-8 file of lines
  zeimusho_cd = "01234"          # as --zeimusho-cd, and so on with _ for -
  nozeisha_nm = "株式会社見本"
Keys: {1}

Examples:
  kzekamok convert accounts.csv --profile filer.toml -o accounts.mok
  kzekamok convert funds.csv --profile filer.toml --teishutsu-date 2026-11-20 -o funds.mok)",
    R"(提出日は、Finance系列とCrossBorder系列で必須です。郵便番号もこの2系列でだけ指定できます。
ファイルの系列にない項目をオプションで指定するとエラーになり、プロファイルにある場合は無視されます。

プロファイル：次のような行を並べたUTF-8のファイルです。
  zeimusho_cd = "01234"          # --zeimusho-cd と同じ。ほかも - を _ に変えた名前です
  nozeisha_nm = "株式会社見本"
キー：{1}

例：
  kzekamok convert accounts.csv --profile filer.toml -o accounts.mok
  kzekamok convert funds.csv --profile filer.toml --teishutsu-date 2026-11-20 -o funds.mok)"};
constexpr Text WRONG_ENDING = {"--output {1}: the name of the document has to end in .mok or .MOK",
                               "--output {1}：文書の名前は .mok または .MOK で終わらせてください"};
constexpr Text PATH_NO_UTF8 = {"--output {1}: the path has to be UTF-8",
                               "--output {1}：パスはUTF-8にしてください"};

constexpr std::size_t LINE_LENGTH = 96;

/// All keys of a profile, in lines.
std::string Keys()
{
    std::string strKeys;
    std::size_t nLine = 0;
    for (const FilerFieldRow& row : FILER_FIELDS) {
        const std::string strKey = row.szKey;
        if (nLine > 0 && nLine + strKey.size() >= LINE_LENGTH) {
            strKeys += '\n';
            nLine = 0;
        }
        strKeys += (nLine > 0 ? " " : "") + strKey;
        nLine += strKey.size() + 1;
    }
    return strKeys;
}

void RequireMokEnding(const std::string& strOutput)
{
    if (!strOutput.ends_with(".mok") && !strOutput.ends_with(".MOK"))
        throw UsageError(Say(WRONG_ENDING, {MakeSafe(strOutput)}));
    if (!Utf8::Decode(strOutput))
        throw UsageError(Say(PATH_NO_UTF8, {MakeSafe(strOutput)}));
}

}  // namespace

CLI::App* ConvertCommand::AddTo(CLI::App& app)
{
    CLI::App* pCommand = app.add_subcommand("convert", Say(SUMMARY));
    pCommand->add_option("FILE", m_strFile, Say(FILE_HELP))->type_name("")->required();
    pCommand->add_option("-o,--output", m_strOutput, Say(OUTPUT_HELP))
        ->type_name("OUT.mok")
        ->required();
    pCommand->add_flag("--dry-run", m_options.bDryRun, Say(DRY_RUN_HELP));
    AddFamilyOption(*pCommand, m_options.family);
    m_filer.AddTo(*pCommand);
    AddReportOptions(*pCommand, m_report);
    pCommand->footer(Say(FOOTER, {Keys()}));
    return pCommand;
}

void ConvertCommand::Finish()
{
    RequireMokEnding(m_strOutput);
    // A link may lead to the file that is read.
    std::error_code error;
    if (std::filesystem::equivalent(m_strFile, m_strOutput, error))
        throw UsageError(Say(OUTPUT_IS_INPUT, {MakeSafe(m_strOutput)}));
    m_fields = m_filer.Read();
    m_options.bRefuseForeignOptions = true;
}

ExitStatus ConvertCommand::Run()
{
    RemoveLeftoversBeside(m_strOutput);
    const Definitions definitions;
    ReportRun run("convert", m_report);
    KZICsvConvMokEka library;
    run.Add(
        FileConversion(library, definitions, m_strFile, m_strOutput, m_fields, m_options).Run());
    library.Terminate();
    return run.Finish();
}

}  // namespace host
