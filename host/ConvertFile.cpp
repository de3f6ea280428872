#include "ConvertFile.h"

#include <KZEkaMok/KZEkaMok.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <limits>
#include <utility>

#include "Advice.h"
#include "Installation.h"
#include "SafeText.h"

namespace fs = std::filesystem;

namespace host {
namespace {

constexpr const char* SOFT_NAME_DEFAULT = "kzekamok " KZEKAMOK_VERSION_SHORT;
constexpr long NO_ARGUMENT = std::numeric_limits<long>::max();
constexpr std::int64_t PROBE_KEY = 1;

/// Why a document can't be written to the path, as the system puts it.
std::string WriteProblem(const std::string& strPath)
{
    const int nFile = open(strPath.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (nFile >= 0)
        close(nFile);
    const bool bMissing = nFile < 0 && errno == ENOENT;
    if (nFile < 0 && !bMissing)
        return std::strerror(errno);
    if (bMissing && access(fs::path(strPath).parent_path().c_str(), W_OK | X_OK) != 0)
        return std::strerror(errno);
    return "the disk may be full";
}

/// What a cell may hold that has a meaning of its own in XML, where it isn't escaped.
bool IsHarmfulInXml(const std::string& strValue)
{
    for (const char* szMark : {"<![CDATA[", "<!--", "<?"})
        if (strValue.find(szMark) != std::string::npos)
            return true;
    return std::ranges::any_of(strValue, [](char c) {
        const auto n = static_cast<unsigned char>(c);
        return n < 0x20 && c != '\t';
    });
}

/// "record 3, column 5" of the first harmful cell, or the empty text.
std::string FindHarmfulCell(const CsvCells& cells)
{
    for (std::size_t nRecord = 1; nRecord <= cells.RecordCount(); ++nRecord)
        for (std::size_t nColumn = 1; nColumn <= cells.ColumnCount(nRecord); ++nColumn)
            if (IsHarmfulInXml(cells.Cell(nRecord, nColumn)))
                return "record " + std::to_string(nRecord) + ", column " + std::to_string(nColumn);
    return {};
}

/// Why a field is refused that is not wrong by itself.
std::string FieldHint(FilerField eField, const std::string& strProcedure)
{
    if (eField == KOJIN_BANGO || eField == HOJIN_BANGO)
        return "Give --kojin-bango or --hojin-bango, not both.";
    if (eField == TETSUZUKI)
        return "The file is of procedure " + strProcedure + ".";
    return {};
}

bool Passed(const std::shared_ptr<KZIConvertResultEka>& pResult)
{
    return pResult && pResult->GetResult() == PROCESS_OK;
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
    const std::string strCell = FindHarmfulCell(cells);
    const std::string strProblem =
        "The file passed the check, but no document could be made from it.";
    if (strCell.empty())
        Settle(report, Outcome::NotChecked, ExitStatus::NotChecked, strProblem,
               std::string("The definition of its form may be faulty. ") + LOG_ADVICE);
    else
        Settle(report, Outcome::NotConverted, ExitStatus::Refused, strProblem,
               "The value at " + strCell +
                   " holds a control character or one of <![CDATA[, <!-- and <?, which mean "
                   "something in XML. Correct it.");
}

}  // namespace

FileConversion::FileConversion(KZICsvConvMokEka& library,
                               const Definitions& definitions,
                               const std::string& strFile,
                               const std::string& strOutput,
                               FilerFields fields)
    : m_library(library),
      m_check(library, definitions, strFile),
      m_strOutput(strOutput),
      m_strOutputPath(AbsolutePath(strOutput)),
      m_fields(std::move(fields))
{
}

FileReport FileConversion::Run()
{
    FileReport report = m_check.Run();
    if (report.eOutcome != Outcome::Passed)
        return report;
    if (m_fields[TETSUZUKI].empty())
        m_fields[TETSUZUKI] = report.strProcedure;
    if (m_fields[SOFT_NAME].empty())
        m_fields[SOFT_NAME] = SOFT_NAME_DEFAULT;
    return Convert(std::move(report));
}

FileReport FileConversion::Convert(FileReport report)
{
    const auto pResult = m_library.CsvConvMok(
        m_check.Source().LibraryPath().c_str(), m_strOutputPath.c_str(),
        m_fields[ZEIMUSHO_CD].c_str(), m_fields[NOZEISHA_ID].c_str(), m_fields[KOJIN_BANGO].c_str(),
        m_fields[HOJIN_BANGO].c_str(), m_fields[NOZEISHA_NM].c_str(),
        m_fields[NOZEISHA_ADR].c_str(), m_fields[DAIHYO_NM].c_str(), m_fields[DAIRI_ID].c_str(),
        m_fields[DAIRI_NM].c_str(), m_fields[DAIRI_ADR].c_str(), m_fields[TETSUZUKI].c_str(),
        m_fields[SOFT_NAME].c_str());
    if (!Passed(pResult))
        return Judge(std::move(report),
                     ParseDetailTable(pResult ? pResult->GetDetailErrorInfo() : std::string()));

    std::error_code error;
    const auto nBytes = fs::file_size(m_strOutputPath, error);
    // A device has no size, and what it did with the document can't be seen.
    if (error && fs::exists(m_strOutputPath))
        error.clear();
    if (error)
        return NotWritten(std::move(report));
    report.eOutcome = Outcome::Converted;
    report.document = WrittenDocument{m_strOutput, nBytes};
    return report;
}

FileReport FileConversion::Judge(FileReport report, const std::vector<DetailEntry>& vecEntry)
{
    report.vecError = m_check.Explain(vecEntry);
    ExplainArguments(report);

    const long lArgument = FirstArgument(vecEntry);
    if (lArgument == CSV_PATH_ARGUMENT)
        Settle(report, Outcome::NotChecked, ExitStatus::NotChecked,
               "The file passed the check, but could not be read a second time.",
               "Leave it in place while it is converted.");
    else if (lArgument == MOK_PATH_ARGUMENT)
        Settle(report, Outcome::NotWritten, ExitStatus::NotWritten,
               "The document could not be written to " + MakeSafe(m_strOutput) + ".",
               "Name an output in a folder that exists.");
    else if (lArgument != NO_ARGUMENT)
        Settle(report, Outcome::NotConverted, ExitStatus::Usage,
               "The file passed the check, but fields of the filer are not valid.",
               "Correct the options named above, or the keys of the same name in the profile.");
    else if (Holds(vecEntry, HE70023E))
        Settle(report, Outcome::NotConverted, ExitStatus::Refused,
               "The file passed the check, but its document would be too large.",
               AdviceFor(HE70023E));
    else if (Holds(vecEntry, HE70016E))
        SettleUnmade(report, m_check.Source().Cells());
    else if (Holds(vecEntry, HE70018E) && CanMakeDocument())
        return NotWritten(std::move(report));
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

FileReport FileConversion::NotWritten(FileReport report) const
{
    report.eOutcome = Outcome::NotWritten;
    report.eStatus = ExitStatus::NotWritten;
    report.strProblem = "The document was made, but could not be written to " +
                        MakeSafe(m_strOutput) + ": " + WriteProblem(m_strOutputPath) + ".";
    report.strAdvice =
        "Free some space, or name another output. Whatever stands there now is no "
        "document to file.";
    return report;
}

void FileConversion::ExplainArguments(FileReport& report) const
{
    for (ReportedError& error : report.vecError) {
        const long lField = error.entry.lColumn - FIRST_FILER_ARGUMENT;
        if (error.eScope != ErrorScope::Argument)
            continue;
        if (error.entry.lColumn == MOK_PATH_ARGUMENT) {
            error.value = m_strOutput;
            error.strHint = "The folder of the output does not exist.";
        } else if (lField >= 0 && lField < static_cast<long>(m_fields.size())) {
            const auto eField = static_cast<FilerField>(lField);
            error.value = m_fields[eField];
            if (error.entry.eMessage == HE70010E)
                error.strHint = FieldHint(eField, report.strProcedure);
        }
    }
}

/// Makes the same document in memory: if that works, it was the writing that failed.
bool FileConversion::CanMakeDocument()
{
    const bool bMade =
        Passed(m_library.ELCsvCheck(m_check.Source().LibraryPath().c_str(), PROBE_KEY)) &&
        Passed(m_library.ELCsvConvMok(PROBE_KEY, m_fields[ZEIMUSHO_CD].c_str(),
                                      m_fields[NOZEISHA_ID].c_str(), m_fields[KOJIN_BANGO].c_str(),
                                      m_fields[HOJIN_BANGO].c_str(), m_fields[NOZEISHA_NM].c_str(),
                                      m_fields[NOZEISHA_ADR].c_str(), m_fields[DAIHYO_NM].c_str(),
                                      m_fields[DAIRI_ID].c_str(), m_fields[DAIRI_NM].c_str(),
                                      m_fields[DAIRI_ADR].c_str(), m_fields[TETSUZUKI].c_str()));
    m_library.Terminate();
    return bMade;
}

}  // namespace host
