#include "command/SplitCommand.h"

#include <KZEkaMok/KZEkaMok.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <vector>

#include "base/Complain.h"
#include "base/Language.h"
#include "base/SafeText.h"
#include "base/UsageError.h"
#include "file/RawRecords.h"
#include "file/SourceFile.h"
#include "file/Split.h"
#include "file/WholeFile.h"
#include "form/FormDefinition.h"
#include "form/Installation.h"
#include "report/ReportRun.h"
#include "request/CheckFile.h"

namespace fs = std::filesystem;

namespace host {
namespace {

constexpr std::size_t RECORDS_MAX = 5000;
constexpr std::size_t NUMBER_WIDTH = 3;  ///< digits in the names of the parts, or more

constexpr Text SUMMARY = {"Parts a file with too many records into files that the check takes",
                          "レコードの多すぎるファイルを、チェックできる大きさに分けます"};
constexpr Text FILE_HELP = {"CSV file (.csv, .CSV, .txt, .TXT)",
                            "CSVファイル（.csv、.CSV、.txt、.TXT）"};
constexpr Text OUTPUT_HELP = {"Folder for the parts, which is made if it isn't there",
                              "分けたファイルを置くフォルダー（なければ作ります）"};
constexpr Text RECORDS_HELP = {"Most records of a part; default: what its type id allows",
                               "1ファイルの最大レコード数（省略時は申請区分の上限）"};
constexpr Text REPEAT_HELP = {
    "Repeat the records of the file's head and end in every part, where a form has such",
    "先頭や末尾に専用のレコードがある様式で、それらをすべてのファイルに入れます"};
constexpr Text FOOTER = {
    R"(The parts are named FILE-001.csv and so on and hold the records byte for byte, in their order,
without blank lines. Each part is checked as `kzekamok check` does. An existing file is kept: then
nothing is written.

Examples:
  kzekamok split year.csv -o parts
  kzekamok split year.csv -o parts --records 1000)",
    R"(ファイル名はFILE-001.csvのようになり、レコードは元の順に1バイトも変えずに入ります（空行は除きます）。
分けたファイルは`kzekamok check`と同じようにチェックします。同じ名前のファイルがあれば何も書きません。

例：
  kzekamok split year.csv -o parts
  kzekamok split year.csv -o parts --records 1000)"};

constexpr Text NOT_READ = {"{1} can't be split: {2}.", "{1}を分けられません：{2}。"};
constexpr Text UNKNOWN_TYPE_ID = {
    "{1} can't be split: its first record begins with \"{2}\", which is no type id.",
    "{1}を分けられません。先頭の「{2}」は申請区分ではありません。"};
constexpr Text HAS_FIXED_RECORDS = {
    "{1} can't be split as it is: records at its head or end are forms of their own (totals, for "
    "example). With --repeat every part gets them; correct their values in each part then.",
    "{1}はそのままでは分けられません。先頭や末尾のレコードが（合計表などの）別の様式です。"
    "--repeatを付けるとすべてのファイルに入るので、その値をファイルごとに直してください。"};
constexpr Text REPEATED = {
    "Note: the records at the head or end stand in every part as they were. Totals in them have to "
    "be corrected by hand.",
    "注意：先頭や末尾のレコードは元のまますべてのファイルに入っています。合計などの値は手で直し"
    "てください。"};
constexpr Text TOO_SMALL = {"--records has to be {1} or more for type {2}.",
                            "申請区分{2}では--recordsに{1}以上を指定してください。"};
constexpr Text FILE_EXISTS = {"{1} exists. Name another folder, or remove the file first.",
                              "{1}は既にあります。別のフォルダーを指定するか、先に削除してくださ"
                              "い。"};
constexpr Text NOT_WRITTEN = {"{1} could not be written: {2}.",
                              "{1}に書き込めませんでした（{2}）。"};

ExitStatus Refuse(const std::string& strWhat, ExitStatus eStatus)
{
    Complain(strWhat);
    return eStatus;
}

std::string PartPath(const std::string& strFolder, const fs::path& file, std::size_t nPart)
{
    std::string strNumber = std::to_string(nPart);
    if (strNumber.size() < NUMBER_WIDTH)
        strNumber.insert(0, NUMBER_WIDTH - strNumber.size(), '0');
    const std::string strName = file.stem().string() + "-" + strNumber + file.extension().string();
    return (fs::path(strFolder) / strName).string();
}

/// Removes what has been written if the rest couldn't be.
ExitStatus WriteParts(const std::vector<std::string>& vecPath,
                      const std::vector<std::string>& vecPart)
{
    for (std::size_t n = 0; n < vecPart.size(); ++n) {
        const std::string strWhy = WriteWhole(vecPath[n], vecPart[n], Existing::Kept);
        if (strWhy.empty())
            continue;
        std::error_code error;
        for (std::size_t nWritten = 0; nWritten < n; ++nWritten)
            fs::remove(vecPath[nWritten], error);
        return Refuse(Say(NOT_WRITTEN, {MakeSafe(vecPath[n]), strWhy}), ExitStatus::NotWritten);
    }
    return ExitStatus::Passed;
}

}  // namespace

CLI::App* SplitCommand::AddTo(CLI::App& app)
{
    CLI::App* pCommand = app.add_subcommand("split", Say(SUMMARY));
    pCommand->add_option("FILE", m_strFile, Say(FILE_HELP))->type_name("")->required();
    pCommand->add_option("-o,--output", m_strFolder, Say(OUTPUT_HELP))
        ->type_name("DIR")
        ->required();
    pCommand->add_option("-n,--records", m_records, Say(RECORDS_HELP))
        ->type_name("N")
        ->check(CLI::Range(std::size_t{1}, RECORDS_MAX).description(""));
    pCommand->add_flag("--repeat", m_bRepeat, Say(REPEAT_HELP));
    pCommand->footer(Say(FOOTER));
    return pCommand;
}

ExitStatus SplitCommand::Run()
{
    if (const std::string strProblem = InstallationProblem(); !strProblem.empty())
        return Refuse(strProblem, ExitStatus::NotChecked);
    const SourceFile source(m_strFile);
    if (const auto strProblem = source.TextProblem())
        return Refuse(Say(NOT_READ, {MakeSafe(m_strFile), *strProblem}), ExitStatus::NotChecked);
    if (const auto strProblem = source.NulProblem())
        return Refuse(Say(NOT_READ, {MakeSafe(m_strFile), *strProblem}), ExitStatus::NotChecked);

    const Definitions definitions;
    const std::string strTypeId = source.Cells().TypeId();
    const ProcedureDefinition* pProcedure = definitions.Find(source.OfFamily(), strTypeId);
    if (pProcedure == nullptr)
        return Refuse(Say(UNKNOWN_TYPE_ID, {MakeSafe(m_strFile), MakeSafeAndShort(strTypeId, 40)}),
                      ExitStatus::Refused);
    const auto vecRecord = RawRecords(source.Bytes(), pProcedure->eFamily);
    const FixedRecords fixed = FixedRecordsOf(*pProcedure);
    const auto nAllowed = static_cast<std::size_t>(pProcedure->lMaxRecord);
    const std::size_t nMost = std::min(m_records.value_or(nAllowed), nAllowed);
    const bool bFixed = fixed.nHead + fixed.nTail > 0;
    if (nMost <= fixed.nHead + fixed.nTail)
        throw UsageError(
            Say(TOO_SMALL, {std::to_string(fixed.nHead + fixed.nTail + 1), MakeSafe(strTypeId)}));

    const std::vector<std::string> vecPart = SplitRecords(vecRecord, fixed, nMost);
    if (bFixed && vecPart.size() > 1 && !m_bRepeat)
        return Refuse(Say(HAS_FIXED_RECORDS, {MakeSafe(m_strFile)}), ExitStatus::Refused);

    std::error_code error;
    fs::create_directories(m_strFolder, error);
    if (error)
        return Refuse(Say(NOT_WRITTEN, {MakeSafe(m_strFolder), error.message()}),
                      ExitStatus::NotWritten);
    std::vector<std::string> vecPath;
    for (std::size_t n = 1; n <= vecPart.size(); ++n) {
        vecPath.push_back(PartPath(m_strFolder, m_strFile, n));
        if (fs::exists(fs::symlink_status(vecPath.back(), error)))
            throw UsageError(Say(FILE_EXISTS, {MakeSafe(vecPath.back())}));
    }
    if (const ExitStatus eStatus = WriteParts(vecPath, vecPart); eStatus != ExitStatus::Passed)
        return eStatus;

    ReportRun run("split", ReportOptions());
    for (const std::string& strPath : vecPath) {
        KZICsvConvMokEka library;
        run.Add(FileCheck(library, definitions, strPath).Run());
        library.Terminate();
    }
    if (bFixed && vecPart.size() > 1)
        std::cerr << Say(REPEATED) << '\n';
    return run.Finish();
}

}  // namespace host
