#include "report/SarifReport.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <string_view>

#include "base/Language.h"
#include "base/SafeText.h"
#include "report/JsonReport.h"
#include "report/ReportWords.h"
#include "rules/Advice.h"

namespace host {
namespace {

using Json = nlohmann::ordered_json;

constexpr int INDENT = 2;
constexpr std::size_t SHOWN_CHARACTERS = 80;
constexpr const char* SCHEMA = "https://json.schemastore.org/sarif-2.1.0.json";

constexpr Text RULE = {" Rule: {1}.", "規則：{1}。"};
constexpr Text VALUE = {" Value: \"{1}\".", "値：「{1}」。"};
constexpr Text EMPTY = {" The value is empty.", "値は空です。"};
constexpr Text LIMITED = {"{1} of {2} errors are not listed (--limit).",
                          "{2}件のエラーのうち{1}件は表示していません（--limit）。"};

/// Codes that occur, each with its place among the rules.
using RuleIndex = std::map<std::string, std::size_t>;

std::size_t Listed(const FileReport& report, const ReportStyle& style)
{
    const std::size_t nAll = report.vecError.size();
    return std::min(style.limit.value_or(nAll), nAll);
}

bool IsUnreserved(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("-._~/").find(c) != std::string_view::npos;
}

/// A relative reference, or a URI with scheme for a path from the root. Bytes that may not stand in
/// one are percent-encoded, whatever their charset.
std::string UriOf(const std::string& strPath)
{
    static constexpr char DIGITS[] = "0123456789ABCDEF";
    std::string strUri = strPath.starts_with('/') ? "file://" : "";
    for (const char c : strPath) {
        if (IsUnreserved(c)) {
            strUri += c;
            continue;
        }
        const auto nByte = static_cast<unsigned char>(c);
        strUri += {'%', DIGITS[nByte >> 4], DIGITS[nByte & 0xf]};
    }
    return strUri;
}

/// Braces and brackets mean placeholders and links in a message.
std::string Literal(std::string_view strText)
{
    std::string strOut;
    for (const char c : strText) {
        if (c == '{' || c == '}')
            strOut += c;
        else if (c == '[' || c == ']')
            strOut += '\\';
        strOut += c;
    }
    return strOut;
}

Json MessageOf(const std::string& strText)
{
    return {{"text", Literal(strText)}};
}

Json RulesOf(const std::vector<FileReport>& vecReport, const ReportStyle& style, RuleIndex& mapRule)
{
    std::map<std::string, KZCEkaMessage_t> mapMessage;
    std::map<std::string, std::string> mapText;
    for (const FileReport& report : vecReport)
        for (std::size_t n = 0; n < Listed(report, style); ++n) {
            const ReportedError& error = report.vecError[n];
            mapMessage[error.entry.strCode] = error.entry.eMessage;
            mapText[error.entry.strCode] = MessageText(error);
        }
    Json rules = Json::array();
    for (const auto& [strCode, eMessage] : mapMessage) {
        mapRule[strCode] = rules.size();
        rules.push_back({{"id", strCode},
                         {"shortDescription", MessageOf(mapText[strCode])},
                         {"defaultConfiguration", {{"level", "error"}}},
                         {"help", MessageOf(AdviceFor(eMessage))}});
    }
    return rules;
}

Json ArtifactOf(const FileReport& report, const ReportStyle& style)
{
    return {
        {"location", {{"uri", UriOf(report.strFile)}}},
        {"roles", {"analysisTarget"}},
        {"mimeType", "text/csv"},
        {"encoding", "Shift_JIS"},
        {"properties",
         {{"result", OutcomeName(report.eOutcome)},
          {"status", static_cast<int>(report.eStatus)},
          {"family", FamilyName(report.eFamily)},
          {"procedure", report.strProcedure},
          {"records", report.records ? Json(*report.records) : Json()},
          {"errors", report.vecError.size()},
          {"listed", Listed(report, style)},
          {"moreErrors", report.bMoreErrors}}},
    };
}

Json PhysicalLocation(const FileReport& report, std::size_t nFile, std::size_t nLine)
{
    Json location = {{"artifactLocation", {{"uri", UriOf(report.strFile)}, {"index", nFile}}}};
    if (nLine > 0)
        location["region"] = {{"startLine", nLine}};
    return location;
}

Json CellLocation(const ReportedError& error)
{
    const DetailEntry& entry = error.entry;
    std::string strPlace = "column " + std::to_string(entry.lColumn);
    if (entry.lColumnEnd != SINGLE_COLUMN)
        strPlace =
            "columns " + std::to_string(entry.lColumn) + "-" + std::to_string(entry.lColumnEnd);
    return {
        {"name", error.strName.empty() ? strPlace : error.strName},
        {"fullyQualifiedName", "record " + std::to_string(entry.lRecord) + "/" + strPlace},
        {"kind", "value"},
    };
}

/// Where in the contents; null for the file as a whole.
Json LogicalLocation(const ReportedError& error)
{
    switch (error.eScope) {
        case ErrorScope::Cell:
            return CellLocation(error);
        case ErrorScope::Record: {
            const std::string strRecord = "record " + std::to_string(error.entry.lRecord);
            return {{"name", strRecord}, {"fullyQualifiedName", strRecord}, {"kind", "object"}};
        }
        case ErrorScope::Argument:
            return {{"name", error.strName},
                    {"fullyQualifiedName", error.strName},
                    {"kind", "parameter"}};
        case ErrorScope::File:
            return nullptr;
    }
    return nullptr;
}

std::string ResultText(const ReportedError& error)
{
    std::string strText = MessageText(error);
    if (!error.strRule.empty())
        strText += Say(RULE, {MakeSafe(error.strRule)});
    if (error.value && error.value->empty())
        strText += Say(EMPTY);
    else if (error.value)
        strText += Say(VALUE, {MakeSafeAndShort(*error.value, SHOWN_CHARACTERS)});
    if (!error.strHint.empty())
        strText = Sentences(strText, error.strHint);
    return strText;
}

/// What the places don't tell. Left out is what isn't known.
Json PropertiesOf(const ReportedError& error)
{
    Json properties = Json::object();
    if (error.eScope == ErrorScope::Cell || error.eScope == ErrorScope::Record)
        properties["record"] = error.entry.lRecord;
    if (error.entry.lColumn > 0 && error.eScope != ErrorScope::Argument)
        properties["column"] = error.entry.lColumn;
    if (error.entry.lColumnEnd != SINGLE_COLUMN)
        properties["columnEnd"] = error.entry.lColumnEnd;
    const auto addText = [&properties](const char* szName, const std::string& strText) {
        if (!strText.empty())
            properties[szName] = strText;
    };
    addText(error.eScope == ErrorScope::Argument ? "argument" : "label", error.strName);
    if (error.value)
        properties["value"] = *error.value;
    addText("rule", error.strRule);
    addText("hint", error.strHint);
    return properties;
}

Json ResultOf(const FileReport& report,
              std::size_t nFile,
              const ReportedError& error,
              const RuleIndex& mapRule)
{
    Json location = {{"physicalLocation", PhysicalLocation(report, nFile, error.nLine)}};
    if (Json logical = LogicalLocation(error); !logical.is_null())
        location["logicalLocations"] = Json::array({std::move(logical)});
    return {
        {"ruleId", error.entry.strCode},
        {"ruleIndex", mapRule.at(error.entry.strCode)},
        {"level", "error"},
        {"message", MessageOf(ResultText(error))},
        {"locations", Json::array({std::move(location)})},
        {"properties", PropertiesOf(error)},
    };
}

Json Notification(const FileReport& report,
                  std::size_t nFile,
                  const char* szId,
                  const char* szLevel,
                  const std::string& strText)
{
    return {
        {"descriptor", {{"id", szId}}},
        {"level", szLevel},
        {"message", MessageOf(strText)},
        {"locations",
         Json::array({{{"physicalLocation", PhysicalLocation(report, nFile, /*nLine=*/0)}}})},
    };
}

void AddNotifications(Json& notifications,
                      const FileReport& report,
                      std::size_t nFile,
                      const ReportStyle& style)
{
    const auto add = [&](const char* szId, const char* szLevel, const std::string& strText) {
        notifications.push_back(Notification(report, nFile, szId, szLevel, strText));
    };
    if (!report.strProblem.empty())
        add(OutcomeName(report.eOutcome), "error", Sentences(report.strProblem, report.strAdvice));
    if (report.bMoreErrors)
        add(EkaMsgTable[HE70022E].szCode, "warning",
            std::string(EkaMsgTable[HE70022E].szText) + " " + AdviceFor(HE70022E));
    if (!report.strNote.empty())
        add("note", "note", report.strNote);
    const std::size_t nAll = report.vecError.size();
    if (const std::size_t nListed = Listed(report, style); nListed < nAll)
        add("limit", "note", Say(LIMITED, {std::to_string(nAll - nListed), std::to_string(nAll)}));
}

const char* LanguageName()
{
    return CurrentLanguage() == Language::Japanese ? "ja" : "en";
}

}  // namespace

nlohmann::ordered_json SarifOf(const std::vector<FileReport>& vecReport, const ReportStyle& style)
{
    RuleIndex mapRule;
    Json rules = RulesOf(vecReport, style, mapRule);
    Json artifacts = Json::array();
    Json results = Json::array();
    Json notifications = Json::array();
    auto eStatus = ExitStatus::Passed;
    for (std::size_t nFile = 0; nFile < vecReport.size(); ++nFile) {
        const FileReport& report = vecReport[nFile];
        eStatus = Worse(eStatus, report.eStatus);
        artifacts.push_back(ArtifactOf(report, style));
        for (std::size_t n = 0; n < Listed(report, style); ++n)
            results.push_back(ResultOf(report, nFile, report.vecError[n], mapRule));
        AddNotifications(notifications, report, nFile, style);
    }

    const bool bDone = eStatus == ExitStatus::Passed || eStatus == ExitStatus::Refused;
    Json run = {
        {"tool",
         {{"driver",
           {{"name", "kzekamok"},
            {"version", KZEKAMOK_VERSION},
            {"semanticVersion", KZEKAMOK_VERSION},
            {"language", LanguageName()},
            {"rules", std::move(rules)}}}}},
        {"language", LanguageName()},
        {"invocations", Json::array({{{"executionSuccessful", bDone},
                                      {"exitCode", static_cast<int>(eStatus)},
                                      {"toolExecutionNotifications", std::move(notifications)}}})},
        {"newlineSequences", {"\r\n", "\n", "\r"}},
        {"artifacts", std::move(artifacts)},
        {"results", std::move(results)},
    };
    return {{"$schema", SCHEMA}, {"version", "2.1.0"}, {"runs", Json::array({std::move(run)})}};
}

void WriteSarif(std::ostream& out,
                const std::vector<FileReport>& vecReport,
                const ReportStyle& style)
{
    out << JsonText(SarifOf(vecReport, style), INDENT) << '\n';
}

}  // namespace host
