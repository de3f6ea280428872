#include "report/JsonReport.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

#include "base/SafeText.h"
#include "report/ErrorCounts.h"
#include "rules/Advice.h"

namespace host {
namespace {

using Json = nlohmann::ordered_json;

constexpr int INDENT = 2;

/// Null for the empty text.
Json TextOrNull(const std::string& strText)
{
    return strText.empty() ? Json() : Json(strText);
}

/// Null for SINGLE_COLUMN.
Json ColumnOrNull(long lColumnEnd)
{
    return lColumnEnd != SINGLE_COLUMN ? Json(lColumnEnd) : Json();
}

const char* ScopeName(ErrorScope eScope)
{
    switch (eScope) {
        case ErrorScope::Cell:
            return "cell";
        case ErrorScope::Record:
            return "record";
        case ErrorScope::File:
            return "file";
        case ErrorScope::Argument:
            return "argument";
    }
    return "file";
}

Json ErrorToJson(const ReportedError& error)
{
    const bool bArgument = error.eScope == ErrorScope::Argument;
    return {
        {"scope", ScopeName(error.eScope)},
        {"record", error.entry.lRecord},
        {"line", error.nLine > 0 ? Json(error.nLine) : Json()},
        {"column", error.entry.lColumn},
        {"columnEnd", ColumnOrNull(error.entry.lColumnEnd)},
        {"argument", bArgument ? Json(error.strName) : Json()},
        {"label", bArgument ? Json() : TextOrNull(error.strName)},
        {"value", error.value ? Json(*error.value) : Json()},
        {"code", error.entry.strCode},
        {"message", MessageText(error)},
        {"rule", TextOrNull(error.strRule)},
        {"hint", TextOrNull(error.strHint)},
        {"advice", AdviceFor(error.entry.eMessage)},
    };
}

Json CountsToJson(const FileReport& report, std::size_t nListed)
{
    Json byCode = Json::object();
    for (const CodeCount& count : CountByCode(report))
        byCode[count.strCode] = count.nErrors;
    Json byColumn = Json::array();
    for (const ColumnCount& count : CountByColumn(report))
        byColumn.push_back({{"column", count.lColumn},
                            {"columnEnd", ColumnOrNull(count.lColumnEnd)},
                            {"label", TextOrNull(count.strLabel)},
                            {"errors", count.nErrors}});
    return {
        {"records", report.records ? Json(*report.records) : Json()},
        {"recordsWithErrors", report.RecordsWithErrors()},
        {"errors", report.vecError.size()},
        {"listed", nListed},
        {"moreErrors", report.bMoreErrors},
        {"byCode", std::move(byCode)},
        {"byColumn", std::move(byColumn)},
    };
}

Json DocumentToJson(const std::optional<WrittenDocument>& document)
{
    if (!document)
        return nullptr;
    return {{"path", document->strPath}, {"bytes", document->nBytes}};
}

}  // namespace

nlohmann::ordered_json FileToJson(const FileReport& report, const ReportStyle& style)
{
    const std::size_t nAll = report.vecError.size();
    const std::size_t nListed = std::min(style.limit.value_or(nAll), nAll);
    Json errors = Json::array();
    for (std::size_t n = 0; n < nListed; ++n)
        errors.push_back(ErrorToJson(report.vecError[n]));

    Json notices = Json::array();
    if (report.bMoreErrors)
        notices.push_back({{"code", EkaMsgTable[HE70022E].szCode},
                           {"message", EkaMsgTable[HE70022E].szText},
                           {"advice", AdviceFor(HE70022E)}});
    return {
        {"file", report.strFile},
        {"result", OutcomeName(report.eOutcome)},
        {"status", static_cast<int>(report.eStatus)},
        {"family", FamilyName(report.eFamily)},
        {"procedure", TextOrNull(report.strProcedure)},
        {"document", DocumentToJson(report.document)},
        {"counts", CountsToJson(report, nListed)},
        {"errors", std::move(errors)},
        {"notices", std::move(notices)},
        {"note", TextOrNull(report.strNote)},
        {"problem", TextOrNull(report.strProblem)},
        {"advice", TextOrNull(report.strAdvice)},
    };
}

std::string JsonText(const nlohmann::ordered_json& value, int nIndent)
{
    return MakeSafeJson(
        value.dump(nIndent, ' ', /*ensure_ascii=*/false, Json::error_handler_t::replace));
}

void WriteJson(std::ostream& out,
               const char* szCommand,
               const std::vector<FileReport>& vecReport,
               const ReportStyle& style)
{
    auto eStatus = ExitStatus::Passed;
    Json files = Json::array();
    for (const FileReport& report : vecReport) {
        eStatus = Worse(eStatus, report.eStatus);
        files.push_back(FileToJson(report, style));
    }
    const Json document = {
        {"tool", "kzekamok"},        {"version", KZEKAMOK_VERSION},
        {"command", szCommand},      {"status", static_cast<int>(eStatus)},
        {"files", std::move(files)},
    };
    out << JsonText(document, INDENT) << '\n';
}

}  // namespace host
