#include "report/SarifReport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "host/ReportCases.h"

namespace host {
namespace {

using nlohmann::json;

json Sarif(const std::vector<FileReport>& vecReport, const ReportStyle& style = {})
{
    std::ostringstream out;
    WriteSarif(out, vecReport, style);
    return json::parse(out.str());
}

/// The one run of a document over one file.
json RunOf(const FileReport& report, const ReportStyle& style = {})
{
    return Sarif({report}, style)["runs"][0];
}

json Artifact(const std::string& strFile)
{
    FileReport report = RefusedReport();
    report.strFile = strFile;
    return RunOf(report)["artifacts"][0]["location"]["uri"];
}

TEST(SarifReportTest, DocumentNamesItsVersion)
{
    EXPECT_EQ(Sarif({RefusedReport()})["version"], "2.1.0");
}

TEST(SarifReportTest, RulesAreTheCodesThatOccurWithTextAndAdvice)
{
    const json rules = RunOf(RefusedReport())["tool"]["driver"]["rules"];
    ASSERT_EQ(rules.size(), 2u);
    EXPECT_EQ(rules[0], json::parse(R"({"id": "HE70001E",
        "shortDescription": {"text": "値が入力されていません。"},
        "defaultConfiguration": {"level": "error"},
        "help": {"text": "No value is given where one is needed. Fill it in."}})"));
    EXPECT_EQ(rules[1]["id"], "HE70003E");
}

TEST(SarifReportTest, ResultHasRulePlaceAndProperties)
{
    FileReport report = RefusedReport();
    report.vecError[0].strRule = "5桁以内";
    EXPECT_EQ(RunOf(report)["results"][0], json::parse(R"({"ruleId": "HE70003E", "ruleIndex": 1,
        "level": "error",
        "message": {"text":
            "全角カタカナ以外の文字が含まれています。 Rule: 5桁以内. Value: \"abc\"."},
        "locations": [{
            "physicalLocation": {
                "artifactLocation": {"uri": "a.csv", "index": 0}, "region": {"startLine": 4}},
            "logicalLocations": [{"name": "氏名", "fullyQualifiedName": "record 3/column 5",
                "kind": "value"}]}],
        "properties": {"record": 3, "column": 5, "label": "氏名", "value": "abc",
            "rule": "5桁以内"}})"));
}

TEST(SarifReportTest, RangeHasBothColumns)
{
    FileReport report = RefusedReport();
    report.vecError[0].entry.lColumnEnd = 8;
    const json result = RunOf(report)["results"][0];
    EXPECT_EQ(result["locations"][0]["logicalLocations"][0]["fullyQualifiedName"],
              "record 3/columns 5-8");
    EXPECT_EQ(result["properties"]["columnEnd"], 8);
}

TEST(SarifReportTest, ErrorOfTheFileHasNoRegion)
{
    FileReport report = RefusedReport();
    report.vecError[0].eScope = ErrorScope::File;
    report.vecError[0].nLine = 0;
    report.vecError[0].strHint = "It has 2 lines.";
    const json result = RunOf(report)["results"][0];
    EXPECT_EQ(result["locations"], json::parse(R"([{"physicalLocation":
        {"artifactLocation": {"uri": "a.csv", "index": 0}}}])"));
    EXPECT_EQ(result["properties"]["hint"], "It has 2 lines.");
}

TEST(SarifReportTest, RecordAndArgumentAreNamed)
{
    FileReport report = RefusedReport();
    report.vecError[0].eScope = ErrorScope::Record;
    report.vecError[1].eScope = ErrorScope::Argument;
    report.vecError[1].strName = "--dairi-id";
    const json results = RunOf(report)["results"];
    EXPECT_EQ(results[0]["locations"][0]["logicalLocations"][0]["name"], "record 3");
    EXPECT_EQ(results[1]["locations"][0]["logicalLocations"][0]["name"], "--dairi-id");
    EXPECT_EQ(results[1]["properties"]["argument"], "--dairi-id");
}

TEST(SarifReportTest, EmptyValueIsTold)
{
    FileReport report = RefusedReport();
    report.vecError[0].value = "";
    EXPECT_EQ(RunOf(report)["results"][0]["message"]["text"],
              "全角カタカナ以外の文字が含まれています。 The value is empty.");
}

TEST(SarifReportTest, ValueIsNeitherPlaceholderNorLinkNorControl)
{
    FileReport report = RefusedReport();
    report.vecError[0].value = "{0}[a](b)\x1b";
    EXPECT_EQ(RunOf(report)["results"][0]["message"]["text"],
              "全角カタカナ以外の文字が含まれています。 Value: "
              "\"{{0}}\\[a\\](b)\\u{{1b}}\".");
}

TEST(SarifReportTest, RelativePathIsAnEncodedReference)
{
    EXPECT_EQ(Artifact("a b/c:d.csv"), "a%20b/c%3Ad.csv");
}

TEST(SarifReportTest, PathFromTheRootIsAFileUri)
{
    EXPECT_EQ(Artifact("/tmp/a.csv"), "file:///tmp/a.csv");
}

TEST(SarifReportTest, NameThatIsntUtf8IsEncodedByteByByte)
{
    EXPECT_EQ(Artifact("\x82\xa0.csv"), "%82%A0.csv");
}

TEST(SarifReportTest, ArtifactTellsCharsetAndResult)
{
    const json artifact = RunOf(RefusedReport())["artifacts"][0];
    EXPECT_EQ(artifact["encoding"], "Shift_JIS");
    EXPECT_EQ(artifact["properties"]["result"], "refused");
    EXPECT_EQ(artifact["properties"]["errors"], 3);
}

TEST(SarifReportTest, RefusedFileIsNoFailureOfTheRun)
{
    EXPECT_EQ(RunOf(RefusedReport())["invocations"], json::parse(R"([{"executionSuccessful": true,
        "exitCode": 1, "toolExecutionNotifications": []}])"));
}

TEST(SarifReportTest, FileNotCheckedIsAFailureOfTheRunAndNotified)
{
    FileReport report;
    report.strFile = "b.csv";
    report.strProblem = "The file was not checked.";
    report.strAdvice = "Rename it.";
    EXPECT_EQ(Sarif({RefusedReport(), report})["runs"][0]["invocations"],
              json::parse(R"([{"executionSuccessful": false, "exitCode": 3,
        "toolExecutionNotifications": [{"descriptor": {"id": "not_checked"}, "level": "error",
            "message": {"text": "The file was not checked. Rename it."},
            "locations": [{"physicalLocation":
                {"artifactLocation": {"uri": "b.csv", "index": 1}}}]}]}])"));
}

TEST(SarifReportTest, TableCutByTheLibraryIsNotified)
{
    FileReport report = RefusedReport();
    report.bMoreErrors = true;
    const json notice = RunOf(report)["invocations"][0]["toolExecutionNotifications"][0];
    EXPECT_EQ(notice["descriptor"]["id"], "HE70022E");
    EXPECT_EQ(notice["level"], "warning");
}

TEST(SarifReportTest, LimitCutsTheResultsAndSaysSo)
{
    const json run = RunOf(RefusedReport(), {.bColour = false, .limit = 1});
    EXPECT_EQ(run["results"].size(), 1u);
    EXPECT_EQ(run["artifacts"][0]["properties"]["errors"], 3);
    EXPECT_EQ(run["invocations"][0]["toolExecutionNotifications"][0]["message"]["text"],
              "2 of 3 errors are not listed (--limit).");
}

TEST(SarifReportTest, LanguageIsTheOneThatIsSpoken)
{
    EXPECT_EQ(RunOf(RefusedReport())["language"], "en");
    const InJapanese inJapanese;
    const json run = RunOf(RefusedReport());
    EXPECT_EQ(run["language"], "ja");
    EXPECT_EQ(run["results"][0]["message"]["text"],
              "全角カタカナ以外の文字が含まれています。値：「abc」。");
}

}  // namespace
}  // namespace host
