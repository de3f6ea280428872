#include "command/NewCommand.h"

#include <KZEkaMok/KZEkaMok.h>

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <limits>
#include <stdexcept>
#include <vector>

#include "base/Complain.h"
#include "base/Language.h"
#include "base/SafeText.h"
#include "base/UsageError.h"
#include "family/BundleFiles.h"
#include "file/WholeFile.h"
#include "form/FormDefinition.h"
#include "form/Installation.h"
#include "generate/CsvText.h"
#include "generate/FileGenerator.h"
#include "generate/ProcedureRules.h"
#include "request/CheckFile.h"

namespace fs = std::filesystem;

namespace host {
namespace {

constexpr std::size_t RECORDS_MAX = 5000;

constexpr Text SUMMARY = {"Writes an example file that passes the check",
                          "チェックに合格する見本のCSVファイルを作ります"};
constexpr Text TYPE_ID_HELP = {"Type id, such as 002 or 101", "申請区分（例：002、101）"};
constexpr Text RECORDS_HELP = {"Number of records; default: the fewest that the form takes",
                               "レコード数（省略時はその様式で最少の数）"};
constexpr Text OUTPUT_HELP = {"File to write; default: standard output. An existing file is kept",
                              "出力ファイル（省略時は標準出力）。既存のファイルは上書きしません"};
constexpr Text SEED_HELP = {"Another number gives other values; default: 1",
                            "番号を変えると別の値になります（省略時は1）"};
constexpr Text FOOTER = {
    R"(The values are made up; the text is Shift_JIS. Before it is written the file is checked.

Examples:
  kzekamok new 002 -o example.csv
  kzekamok new 101 --records 50 --seed 7 -o example.csv)",
    R"(値はすべて架空のもので、文字コードはShift_JISです。書き出す前にチェックします。

例：
  kzekamok new 002 -o example.csv
  kzekamok new 101 --records 50 --seed 7 -o example.csv)"};

constexpr Text UNKNOWN_TYPE_ID = {
    "\"{1}\" is no type id of the definition files. `kzekamok layout` lists them.",
    "「{1}」は定義ファイルにない申請区分です。一覧は`kzekamok layout`で見られます。"};
constexpr Text TOO_FEW = {"A file of type {1} has at least {2} records.",
                          "申請区分{1}のファイルには{2}レコード以上が必要です。"};
constexpr Text TOO_MANY = {"A file of type {1} has at most {2} records.",
                           "申請区分{1}のファイルは{2}レコードまでです。"};
constexpr Text FILE_EXISTS = {"{1} exists. Name another file, or remove it first.",
                              "{1}は既にあります。別の名前を指定するか、先に削除してください。"};
constexpr Text NO_EXAMPLE = {
    "No example was found for type {1}: its checks may contradict each other.",
    "申請区分{1}の見本を作れませんでした。定義ファイルのチェックが矛盾している可能性があります。"};
constexpr Text NOT_WRITTEN = {"{1} could not be written: {2}.",
                              "{1}に書き込めませんでした（{2}）。"};
constexpr Text NO_WORK_FOLDER = {"No folder for temporary files could be made in {1}. Set TMPDIR.",
                                 "{1}に作業フォルダーを作れません。TMPDIRを設定してください。"};

/// A folder for files that nobody keeps.
class WorkFolder
{
public:
    WorkFolder()
    {
        std::error_code error;
        fs::path folder = fs::temp_directory_path(error);
        if (error && std::getenv("TMPDIR") != nullptr)
            folder = std::getenv("TMPDIR");
        m_strPath = (folder / "kzekamok-XXXXXX").string();
        if (error || mkdtemp(m_strPath.data()) == nullptr)
            throw UsageError(Say(NO_WORK_FOLDER, {MakeSafe(folder.string())}));
    }
    ~WorkFolder()
    {
        std::error_code error;
        fs::remove_all(m_strPath, error);
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    const std::string& Path() const { return m_strPath; }

private:
    std::string m_strPath;
};

/// The bytes of a file of so many records. Throws std::runtime_error if none was found.
std::string MakeExample(const ProcedureRules& rules,
                        const std::string& strBundle,
                        const std::string& strFolder,
                        std::size_t nRecords,
                        unsigned nSeed)
{
    const CheckPhase phase(rules.eFamily == Family::Base ? KZCEkaCommon::EXEC_MODE_ZEKA
                                                         : KZCEkaCommon::EXEC_MODE_OTHER);
    FileGenerator generator(rules, ReadTaxOffices(strBundle + "/" + BundleFiles::TAX_OFFICES),
                            strFolder, nSeed);
    return CsvText(generator.Make(nRecords), rules.eFamily == Family::CrossBorder);
}

/// What is written is checked as any file is.
bool PassesCheck(const Definitions& definitions, const std::string& strPath)
{
    KZICsvConvMokEka library;
    const FileReport report = FileCheck(library, definitions, strPath).Run();
    library.Terminate();
    return report.eOutcome == Outcome::Passed;
}

}  // namespace

CLI::App* NewCommand::AddTo(CLI::App& app)
{
    CLI::App* pCommand = app.add_subcommand("new", Say(SUMMARY));
    pCommand->add_option("TYPEID", m_strTypeId, Say(TYPE_ID_HELP))->type_name("")->required();
    pCommand->add_option("-n,--records", m_records, Say(RECORDS_HELP))
        ->type_name("N")
        ->check(CLI::Range(std::size_t{1}, RECORDS_MAX).description(""));
    pCommand->add_option("-o,--output", m_strOutput, Say(OUTPUT_HELP))->type_name("FILE");
    pCommand->add_option("--seed", m_nSeed, Say(SEED_HELP))->type_name("N");
    pCommand->footer(Say(FOOTER));
    return pCommand;
}

ExitStatus NewCommand::Run()
{
    if (const std::string strProblem = InstallationProblem(); !strProblem.empty()) {
        Complain(strProblem);
        return ExitStatus::NotChecked;
    }
    const Definitions definitions;
    const ProcedureDefinition* pProcedure = definitions.Find(m_strTypeId);
    if (pProcedure == nullptr)
        throw UsageError(Say(UNKNOWN_TYPE_ID, {MakeSafe(m_strTypeId)}));
    std::error_code error;
    if (!m_strOutput.empty() && fs::exists(fs::symlink_status(m_strOutput, error)))
        throw UsageError(Say(FILE_EXISTS, {MakeSafe(m_strOutput)}));

    const WorkFolder folder;
    std::string strBytes;
    try {
        const ProcedureRules rules = MakeProcedureRules(*pProcedure);
        const std::size_t nFewest = rules.ShortestFile();
        const std::size_t nRecords = m_records.value_or(nFewest);
        if (nRecords < nFewest)
            throw UsageError(Say(TOO_FEW, {MakeSafe(m_strTypeId), std::to_string(nFewest)}));
        if (nRecords > rules.nMaxRecords)
            throw UsageError(
                Say(TOO_MANY, {MakeSafe(m_strTypeId), std::to_string(rules.nMaxRecords)}));
        strBytes = MakeExample(rules, definitions.Bundle(), folder.Path(), nRecords, m_nSeed);
    } catch (const UsageError&) {
        throw;
    } catch (const std::runtime_error& fault) {
        Complain(Say(NO_EXAMPLE, {MakeSafe(m_strTypeId)}));
        std::cerr << MakeSafe(fault.what()) << '\n';
        return ExitStatus::NotChecked;
    }

    const std::string strDraft = folder.Path() + "/example.csv";
    if (const std::string strWhy = WriteWhole(strDraft, strBytes); !strWhy.empty()) {
        Complain(Say(NOT_WRITTEN, {MakeSafe(strDraft), strWhy}));
        return ExitStatus::NotWritten;
    }
    if (!PassesCheck(definitions, strDraft)) {
        Complain(Say(NO_EXAMPLE, {MakeSafe(m_strTypeId)}));
        return ExitStatus::NotChecked;
    }
    if (m_strOutput.empty()) {
        std::cout << strBytes;
        return ExitStatus::Passed;
    }
    if (const std::string strWhy = WriteWhole(m_strOutput, strBytes, Existing::Kept);
        !strWhy.empty()) {
        Complain(Say(NOT_WRITTEN, {MakeSafe(m_strOutput), strWhy}));
        return ExitStatus::NotWritten;
    }
    return ExitStatus::Passed;
}

}  // namespace host
