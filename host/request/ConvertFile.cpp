#include "request/ConvertFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <limits>
#include <utility>

#include "base/Language.h"
#include "base/SafeText.h"
#include "form/Installation.h"
#include "rules/Advice.h"

namespace fs = std::filesystem;

namespace host {
namespace {

constexpr const char* SOFT_NAME_DEFAULT = "kzekamok " KZEKAMOK_VERSION_SHORT;
constexpr long NO_ARGUMENT = std::numeric_limits<long>::max();

constexpr Text DRY_RUN = {"Dry run: the document was made, but no file was written.",
                          "試行（--dry-run）です。文書は作成できましたが、書き込んでいません。"};
constexpr Text DISK_FULL = {"the disk may be full", "ディスクがいっぱいかもしれません"};
constexpr Text NOT_READ_AGAIN = {"The file passed the check, but could not be read a second time.",
                                 "チェックには合格しましたが、再度の読み取りに失敗しました。"};
constexpr Text LEAVE_IN_PLACE = {"Leave it in place while it is converted.",
                                 "変換が終わるまでファイルを動かさないでください。"};
constexpr Text NO_FOLDER = {"The document could not be written to {1}.",
                            "文書を {1} に書き込めませんでした。"};
constexpr Text NAME_A_FOLDER = {"Name an output in a folder that exists.",
                                "存在するフォルダーを出力先にしてください。"};
constexpr Text NO_SUCH_FOLDER = {"The folder of the output does not exist.",
                                 "出力先のフォルダーがありません。"};
constexpr Text WRONG_FIELDS = {"The file passed the check, but fields of the filer are not valid.",
                               "チェックには合格しましたが、納税者の項目に誤りがあります。"};
constexpr Text CORRECT_FIELDS = {
    "Correct the options named above, or the keys of the same name in the profile.",
    "上に挙げたオプション、またはプロファイルの同じ名前のキーを直してください。"};
constexpr Text FOREIGN_FIELD = {
    "The file passed the check, but {1} is no field of its family ({2}).",
    "チェックには合格しましたが、{1} はこのファイルの系列（{2}）にない項目です。"};
constexpr Text LEAVE_OUT_FIELD = {
    "Leave the option out. A profile may hold the field: it is passed over where it isn't needed.",
    "このオプションを外してください。"
    "プロファイルにあるだけなら、不要な系列では無視されます。"};
constexpr Text TOO_LARGE = {"The file passed the check, but its document would be too large.",
                            "チェックには合格しましたが、文書が大きくなりすぎます。"};
constexpr Text UNMADE = {"The file passed the check, but no document could be made from it.",
                         "チェックには合格しましたが、文書を作成できませんでした。"};
constexpr Text FAULTY_DEFINITION = {"The definition of its form may be faulty.",
                                    "帳票の定義ファイルが誤っているかもしれません。"};
constexpr Text HARMFUL_CELL = {
    "The value at record {1}, column {2} holds a control character or one of <![CDATA[, <!-- and "
    "<?, which mean something in XML. Correct it.",
    "レコード{1}の項目{2}の値に、制御文字か、XMLで特別な意味をもつ <![CDATA[、<!--、<? の"
    "いずれかがあります。直してください。"};
constexpr Text NOT_WRITTEN = {"The document was made, but could not be written to {1}: {2}.",
                              "文書は作成できましたが、{1} に書き込めませんでした：{2}。"};
constexpr Text NOT_OPENED = {"The document could not be written to {1}: {2}.",
                             "文書を {1} に書き込めませんでした：{2}。"};
constexpr Text NAME_ANOTHER = {
    "Free some space, or name another output. Nothing was left there; a document that stood there "
    "before is unchanged.",
    "空きを増やすか、ほかの出力先にしてください。書きかけの文書は残っていません。"
    "以前からの文書があれば、そのまま残っています。"};
constexpr Text HALF_WRITTEN = {
    "Free some space, or name another output. Whatever stands there now is no document to file.",
    "空きを増やすか、ほかの出力先にしてください。"
    "いま出力先にあるものは提出できる文書ではありません。"};
constexpr Text NOTHING_ARRIVED = {"nothing arrived there", "何も書き込まれませんでした"};
constexpr Text NOT_BOTH_NUMBERS = {
    "Give --kojin-bango or --hojin-bango, not both.",
    "--kojin-bango と --hojin-bango は、どちらか一方だけを指定してください。"};
constexpr Text OTHER_PROCEDURE = {"The file is of procedure {1}.", "ファイルの手続は{1}です。"};
constexpr Text DAY_NEEDED = {
    "Files of this family need the day of filing; --teishutsu-date YYYY-MM-DD gives all of it.",
    "この系列のファイルには提出日が必要です。--teishutsu-date YYYY-MM-DD でまとめて指定できます。"};
constexpr Text HALF_ZIP = {
    "Give both parts of the postal code, or neither.",
    "郵便番号は、上3桁と下4桁の両方を指定するか、どちらも指定しないでください。"};

/// Why the library couldn't write to the path, as the system puts it.
std::string WriteProblem(const std::string& strPath)
{
    const int nFile = open(strPath.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (nFile >= 0)
        close(nFile);
    return nFile < 0 ? std::strerror(errno) : Say(DISK_FULL);
}

bool IsDeviceOrPipe(const std::string& strPath)
{
    struct stat info = {};
    return stat(strPath.c_str(), &info) == 0 && !S_ISREG(info.st_mode) && !S_ISDIR(info.st_mode);
}

/// What a cell may hold that has a meaning of its own in XML, where it isn't escaped.
bool IsHarmfulInXml(const std::string& strValue, bool bLineEnds)
{
    for (const char* szMark : {"<![CDATA[", "<!--", "<?"})
        if (strValue.find(szMark) != std::string::npos)
            return true;
    return std::ranges::any_of(strValue, [bLineEnds](char c) {
        const bool bHarmless = c == '\t' || (bLineEnds && (c == '\r' || c == '\n'));
        return static_cast<unsigned char>(c) < 0x20 && !bHarmless;
    });
}

/// Advice about the first harmful cell, or the empty text.
std::string HarmfulCellAdvice(const CsvCells& cells)
{
    const bool bLineEnds = cells.FamilyOfCells() == Family::CrossBorder;  // inside quotes
    for (std::size_t nRecord = 1; nRecord <= cells.RecordCount(); ++nRecord)
        for (std::size_t nColumn = 1; nColumn <= cells.ColumnCount(nRecord); ++nColumn)
            if (IsHarmfulInXml(cells.Cell(nRecord, nColumn), bLineEnds))
                return Say(HARMFUL_CELL, {std::to_string(nRecord), std::to_string(nColumn)});
    return {};
}

/// Why a field is refused that is not wrong by itself.
std::string FieldHint(FilerField eField, KZCEkaMessage_t eMessage, const FileReport& report)
{
    switch (eField) {
        case KOJIN_BANGO:
        case HOJIN_BANGO:
            return eMessage == HE70010E ? Say(NOT_BOTH_NUMBERS) : std::string();
        case TETSUZUKI:
            return eMessage == HE70010E ? Say(OTHER_PROCEDURE, {report.strProcedure})
                                        : std::string();
        case TEISHUTSU_ERA:
        case TEISHUTSU_YEAR:
        case TEISHUTSU_MONTH:
        case TEISHUTSU_DAY:
            return eMessage == HE70001E ? Say(DAY_NEEDED) : std::string();
        case NOZEISHA_ZIP1:
        case NOZEISHA_ZIP2:
            return eMessage == HE70001E ? Say(HALF_ZIP) : std::string();
        default:
            return {};
    }
}

bool Holds(const std::vector<DetailEntry>& vecEntry, KZCEkaMessage_t eMessage)
{
    return std::ranges::find(vecEntry, eMessage, &DetailEntry::eMessage) != vecEntry.end();
}

/// The lowest number of an argument with an error, or NO_ARGUMENT.
long FirstArgument(const std::vector<DetailEntry>& vecEntry)
{
    long lFirst = NO_ARGUMENT;
    for (const DetailEntry& entry : vecEntry)
        if (entry.lRecord == ARGUMENT_RECORD)
            lFirst = std::min(lFirst, entry.lColumn);
    return lFirst;
}

void Settle(FileReport& report,
            Outcome eOutcome,
            ExitStatus eStatus,
            const std::string& strProblem,
            const std::string& strAdvice)
{
    report.eOutcome = eOutcome;
    report.eStatus = eStatus;
    report.strProblem = strProblem;
    report.strAdvice = strAdvice;
}

/// Values and tags together are no XML: the file's fault if a value can do that, else a fault of
/// the definition.
void SettleUnmade(FileReport& report, const CsvCells& cells)
{
    const std::string strAdvice = HarmfulCellAdvice(cells);
    if (strAdvice.empty())
        Settle(report, Outcome::NotChecked, ExitStatus::NotChecked, Say(UNMADE),
               std::string(Say(FAULTY_DEFINITION)) + ' ' + Say(LOG_ADVICE));
    else
        Settle(report, Outcome::NotConverted, ExitStatus::Refused, Say(UNMADE), strAdvice);
}

}  // namespace

FileConversion::FileConversion(KZICsvConvMokEka& library,
                               const Definitions& definitions,
                               const std::string& strFile,
                               const std::string& strOutput,
                               FilerFields fields,
                               const ConversionOptions& options)
    : m_check(library, definitions, strFile, options.family),
      m_strOutput(strOutput),
      m_fields(std::move(fields)),
      m_options(options)
{
}

FileReport FileConversion::Run()
{
    FileReport report = m_check.Run();
    if (report.eOutcome != Outcome::Passed)
        return report;
    if (const std::string strOption = ForeignOption(); !strOption.empty()) {
        Settle(report, Outcome::NotConverted, ExitStatus::Usage,
               Say(FOREIGN_FIELD, {strOption, FamilyName(report.eFamily)}), Say(LEAVE_OUT_FIELD));
        return report;
    }
    if (m_fields[TETSUZUKI].empty())
        m_fields[TETSUZUKI] = report.strProcedure;
    if (m_fields[SOFT_NAME].empty())
        m_fields[SOFT_NAME] = SOFT_NAME_DEFAULT;
    return Convert(std::move(report));
}

/// Where the document goes: for a dry run never to a device or a pipe.
std::string FileConversion::OutputPath() const
{
    std::string strPath = AbsolutePath(m_strOutput);
    std::error_code error;
    return m_options.bDryRun && IsDeviceOrPipe(strPath)
               ? (fs::temp_directory_path(error) / fs::path(strPath).filename()).string()
               : strPath;
}

FileReport FileConversion::Convert(FileReport report)
{
    if (m_place) {
        PendingDocument document(std::move(*m_place));
        return Write(std::move(report), document);
    }
    PendingDocument document(OutputPath());
    return Write(std::move(report), document);
}

FileReport FileConversion::Write(FileReport report, PendingDocument& document)
{
    if (const std::string strReason = document.Open(); !strReason.empty()) {
        Settle(report, Outcome::NotWritten, ExitStatus::NotWritten,
               Say(NOT_OPENED, {MakeSafe(m_strOutput), strReason}), Say(NAME_ANOTHER));
        return report;
    }
    const auto pResult =
        m_check.Operations().Convert(m_check.Source().LibraryPath(), document.Path(), m_fields);
    if (!Passed(pResult))
        return Judge(std::move(report),
                     ParseDetailTable(pResult ? pResult->GetDetailErrorInfo() : std::string()),
                     document);
    return Keep(std::move(report), document);
}

FileReport FileConversion::Keep(FileReport report, PendingDocument& document)
{
    report.document = WrittenDocument{m_strOutput, document.Size()};
    if (m_options.bDryRun) {
        report.eOutcome = Outcome::Convertible;
        report.strNote = Say(DRY_RUN);
        return report;
    }
    // A document is never empty: if nothing has arrived, it went somewhere else.
    const std::string strReason =
        document.Size() > 0 || document.IsDevice() ? document.Keep() : Say(NOTHING_ARRIVED);
    if (!strReason.empty()) {
        report.document.reset();
        return NotWritten(std::move(report), document, strReason);
    }
    report.eOutcome = Outcome::Converted;
    return report;
}

FileReport FileConversion::Judge(FileReport report,
                                 const std::vector<DetailEntry>& vecEntry,
                                 const PendingDocument& document)
{
    report.vecError = m_check.Explain(vecEntry);
    ExplainArguments(report);

    const long lArgument = FirstArgument(vecEntry);
    if (lArgument == CSV_PATH_ARGUMENT)
        Settle(report, Outcome::NotChecked, ExitStatus::NotChecked, Say(NOT_READ_AGAIN),
               Say(LEAVE_IN_PLACE));
    else if (lArgument == MOK_PATH_ARGUMENT)
        Settle(report, Outcome::NotWritten, ExitStatus::NotWritten,
               Say(NO_FOLDER, {MakeSafe(m_strOutput)}), Say(NAME_A_FOLDER));
    else if (lArgument != NO_ARGUMENT)
        Settle(report, Outcome::NotConverted, ExitStatus::Usage, Say(WRONG_FIELDS),
               Say(CORRECT_FIELDS));
    else if (Holds(vecEntry, HE70023E))
        Settle(report, Outcome::NotConverted, ExitStatus::Refused, Say(TOO_LARGE),
               AdviceFor(HE70023E));
    else if (Holds(vecEntry, HE70016E))
        SettleUnmade(report, m_check.Source().Cells());
    // What can be made in memory failed in the writing. A CrossBorder operation tells a fault by an
    // empty table.
    else if ((Holds(vecEntry, HE70018E) || vecEntry.empty()) &&
             m_check.Operations().CanMakeDocument(m_check.Source().LibraryPath(), m_fields))
        return NotWritten(std::move(report), document, WriteProblem(document.Path()));
    else
        return Broken(std::move(report));
    return report;
}

FileReport FileConversion::Broken(FileReport report) const
{
    FileReport broken = m_check.Broken();
    broken.vecError = std::move(report.vecError);
    return broken;
}

FileReport FileConversion::NotWritten(FileReport report,
                                      const PendingDocument& document,
                                      const std::string& strReason) const
{
    Settle(report, Outcome::NotWritten, ExitStatus::NotWritten,
           Say(NOT_WRITTEN, {MakeSafe(m_strOutput), strReason}),
           Say(document.IsDevice() ? HALF_WRITTEN : NAME_ANOTHER));
    return report;
}

/// The first field of an option that the file's family doesn't take, or the empty text.
std::string FileConversion::ForeignOption() const
{
    const Family eFamily = m_check.Source().OfFamily();
    for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n)
        if (m_options.bRefuseForeignOptions && m_fields.szOption[n] != nullptr &&
            !m_fields[n].empty() && !Takes(eFamily, static_cast<FilerField>(n)))
            return m_fields.szOption[n];
    return {};
}

void FileConversion::ExplainArguments(FileReport& report) const
{
    for (ReportedError& error : report.vecError) {
        if (error.eScope != ErrorScope::Argument)
            continue;
        if (error.entry.lColumn == MOK_PATH_ARGUMENT) {
            error.value = m_strOutput;
            error.strHint = Say(NO_SUCH_FOLDER);
        } else if (const auto field = FieldOfArgument(report.eFamily, error.entry.lColumn)) {
            error.value = m_fields[*field];
            error.strHint = FieldHint(*field, error.entry.eMessage, report);
        }
    }
}

}  // namespace host
