#include "batch/FileWork.h"

#include <KZEkaMok/KZEkaMok.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <exception>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <utility>

#include "base/Language.h"
#include "base/SafeText.h"
#include "base/UsageError.h"
#include "batch/Journal.h"
#include "file/FilePlace.h"
#include "form/FormDefinition.h"
#include "report/JsonReport.h"
#include "request/CheckFile.h"
#include "request/ConvertFile.h"
#include "request/Profile.h"
#include "xml/XercesGuards.h"

namespace fs = std::filesystem;

namespace host {
namespace {

constexpr const char* PROFILE_ENDING = ".toml";
/// The rest of a line are names: that of the file and of its document.
constexpr std::size_t REPORT_LONGEST = Journal::LINE_LONGEST - std::size_t{1024} * 1024;
constexpr std::size_t PACKED_HEAD = 2;  // outcome and status

class FileWork final : public Work
{
public:
    FileWork(const BatchSettings& settings, const std::vector<BatchFile>& vecFile, int nOutput)
        : m_settings(settings), m_vecFile(vecFile), m_nOutput(nOutput)
    {
    }

    std::string Do(std::size_t nJob) override
    {
        return Pack(MakeAnswer(Report(m_vecFile[nJob]), m_settings.style));
    }

private:
    FileReport Report(const BatchFile& file)
    {
        try {
            return m_settings.bCheckOnly ? Check(file) : Convert(file);
        } catch (const std::exception& error) {
            FileReport report;
            report.strFile = file.strPath;
            report.strProblem = Say(
                {"The file was not checked: {1}.", "ファイルをチェックできませんでした（{1}）。"},
                {error.what()});
            report.strAdvice =
                Say({"Make sure that enough memory is free.", "メモリの空きを確認してください。"});
            return report;
        }
    }

    FileReport Check(const BatchFile& file)
    {
        KZICsvConvMokEka library;
        FileReport report =
            FileCheck(library, m_definitions, file.strPath, m_settings.family).Run();
        library.Terminate();
        return report;
    }

    FileReport Convert(const BatchFile& file)
    {
        FilerFields fields;
        try {
            fields = FieldsOf(file);
        } catch (const UsageError& error) {
            return CheckOnly(file, Outcome::NotConverted, ExitStatus::Usage,
                             Say({"The file passed the check, but its own profile is wrong: {1}",
                                  "チェックには合格しましたが、このファイルのプロファイルに誤りが"
                                  "あります：{1}"},
                                 {error.what()}),
                             Say({"Correct the profile.", "プロファイルを修正してください。"}));
        }
        const fs::path path = fs::path(m_settings.strOutput) / file.strDocument;
        FilePlace place;
        if (const int nError = FindPlaceBelow(m_nOutput, file.strDocument, Missing::Made, place);
            nError != 0)
            return CheckOnly(file, Outcome::NotWritten, ExitStatus::NotWritten,
                             Say({"The folder {1} of the document could not be made: {2}.",
                                  "文書のフォルダー {1} を作成できませんでした（{2}）。"},
                                 {MakeSafe(path.parent_path().string()), std::strerror(nError)}),
                             Say({"Make sure that the output folder can be written to.",
                                  "出力フォルダーに書き込めることを確認してください。"}));
        KZICsvConvMokEka library;
        FileConversion conversion(library, m_definitions, file.strPath, path.string(), fields,
                                  {.family = m_settings.family});
        conversion.WriteTo(std::move(place));
        FileReport report = conversion.Run();
        library.Terminate();
        return report;
    }

    /// A file that passes the check has the outcome all the same.
    FileReport CheckOnly(const BatchFile& file,
                         Outcome eOutcome,
                         ExitStatus eStatus,
                         const std::string& strProblem,
                         const std::string& strAdvice)
    {
        FileReport report = Check(file);
        if (report.eOutcome != Outcome::Passed)
            return report;
        report.eOutcome = eOutcome;
        report.eStatus = eStatus;
        report.strProblem = strProblem;
        report.strAdvice = strAdvice;
        return report;
    }

    /// Those of the batch, but for what the file's own profile says. An option wins over both.
    FilerFields FieldsOf(const BatchFile& file) const
    {
        FilerFields fields = m_settings.fields;
        const GivenFilerFields given = ReadProfileBeside(ProfileBeside(file.strPath));
        for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n)
            if (given[n] && fields.szOption[n] == nullptr)
                fields[n] = *given[n];
        return fields;
    }

    const BatchSettings& m_settings;
    const std::vector<BatchFile>& m_vecFile;
    int m_nOutput;
    XercesSession m_xml;  ///< running from file to file: its start takes longer than a small file
    Definitions m_definitions;
};

}  // namespace

FileAnswer MakeAnswer(const FileReport& report, const ReportStyle& style)
{
    ReportStyle shorter = style;
    std::string strReport = JsonText(FileToJson(report, shorter));
    while (strReport.size() > REPORT_LONGEST && shorter.limit.value_or(1) > 0) {
        shorter.limit = std::min(shorter.limit.value_or(SIZE_MAX), report.vecError.size()) / 2;
        strReport = JsonText(FileToJson(report, shorter));
    }
    return {report.eOutcome, report.eStatus, report.strProblem + " " + report.strAdvice,
            std::move(strReport)};
}

std::string Pack(const FileAnswer& answer)
{
    std::string strPacked = {static_cast<char>(answer.eOutcome), static_cast<char>(answer.eStatus)};
    return strPacked + answer.strProblem + '\0' + answer.strReport;
}

FileAnswer Unpack(const std::string& strPacked)
{
    const std::size_t nEnd = strPacked.find('\0', PACKED_HEAD);
    return {static_cast<Outcome>(strPacked[0]), static_cast<ExitStatus>(strPacked[1]),
            strPacked.substr(PACKED_HEAD, nEnd - PACKED_HEAD), strPacked.substr(nEnd + 1)};
}

std::string ProfileBeside(const std::string& strFile)
{
    return fs::path(strFile).replace_extension(PROFILE_ENDING).string();
}

std::unique_ptr<Work> MakeFileWork(const BatchSettings& settings,
                                   const std::vector<BatchFile>& vecFile,
                                   int nOutput)
{
    return std::make_unique<FileWork>(settings, vecFile, nOutput);
}

}  // namespace host
