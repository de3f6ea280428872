#include "report/Report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "host/ReportCases.h"
#include "rules/Advice.h"

namespace host {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

std::string Text(const FileReport& report, const ReportStyle& style = {})
{
    std::ostringstream out;
    WriteText(out, report, style);
    return out.str();
}

json Json(const FileReport& report, const ReportStyle& style = {})
{
    std::ostringstream out;
    WriteJson(out, "check", {report}, style);
    return json::parse(out.str());
}

TEST(TextReportTest, PassedFileTellsProcedureAndRecords)
{
    FileReport report;
    report.strFile = "a.csv";
    report.eOutcome = Outcome::Passed;
    report.eStatus = ExitStatus::Passed;
    report.strProcedure = "PGE5020";
    report.records = 20;
    EXPECT_EQ(Text(report), "a.csv: passed, 20 records (procedure PGE5020)\n");
}

TEST(TextReportTest, RefusedFileTellsEachErrorAndTheCounts)
{
    EXPECT_EQ(Text(RefusedReport()),
              "a.csv: REFUSED, 3 errors in 2 of 20 records (procedure PGE5020)\n"
              "  record 3, column 5 (氏名): \"abc\"\n"
              "    HE70003E 全角カタカナ以外の文字が含まれています。\n"
              "    Only full-width katakana may stand here. Replace every other character.\n"
              "  record 3, column 6 (氏名): \"abc\"\n"
              "    HE70001E 値が入力されていません。\n"
              "    No value is given where one is needed. Fill it in.\n"
              "  record 4, column 5 (氏名): \"abc\"\n"
              "    HE70003E 全角カタカナ以外の文字が含まれています。\n"
              "    Only full-width katakana may stand here. Replace every other character.\n"
              "  Errors by column: 5 氏名 × 2, 6 氏名 × 1\n"
              "  Errors by code: HE70001E × 1, HE70003E × 2\n"
              "  To do: correct the file as told above and check it again.\n");
}

TEST(TextReportTest, JapaneseTellsTheSame)
{
    const InJapanese inJapanese;
    FileReport report = RefusedReport();
    report.vecError.resize(2);
    report.vecError[0].strRule = "全角カタカナ・全角空白";
    report.vecError[1].value = "";
    EXPECT_EQ(Text(report),
              "a.csv: 不合格、20レコード中1レコードに2件のエラー（手続PGE5020）\n"
              "  レコード3、項目5（氏名）：「abc」\n"
              "    HE70003E 全角カタカナ以外の文字が含まれています。\n"
              "    規則：全角カタカナ・全角空白\n"
              "    " +
                  std::string(AdviceFor(HE70003E)) +
                  "\n"
                  "  レコード3、項目6（氏名）：空\n"
                  "    HE70001E 値が入力されていません。\n"
                  "    " +
                  AdviceFor(HE70001E) +
                  "\n"
                  "  項目別：5 氏名 × 1、6 氏名 × 1\n"
                  "  コード別：HE70001E × 1、HE70003E × 1\n"
                  "  対処：上のエラーを直して、もう一度チェックしてください。\n");
}

TEST(TextReportTest, RuleIsToldIfItIsKnown)
{
    FileReport report = RefusedReport();
    EXPECT_THAT(Text(report), Not(HasSubstr("Rule:")));
    report.vecError.front().strRule = "up to 5 digits";
    EXPECT_THAT(Text(report), HasSubstr("含まれています。\n    Rule: up to 5 digits\n    Only"));
}

TEST(TextReportTest, ColumnsWithMostErrorsAreCountedFirstAndTheRestTogether)
{
    FileReport report = RefusedReport();
    report.vecError.clear();
    for (long lColumn = 1; lColumn <= 10; ++lColumn)
        report.vecError.push_back(CellError(1, lColumn, HE70001E));
    report.vecError.push_back(CellError(2, 10, HE70001E));
    for (ReportedError& error : report.vecError)
        error.strName.clear();
    EXPECT_THAT(Text(report), HasSubstr("  Errors by column: 10 × 2, 1 × 1, 2 × 1, 3 × 1, 4 × 1, "
                                        "5 × 1, 6 × 1, 7 × 1; 2 other columns have fewer\n"));
}

TEST(TextReportTest, CutListSaysSoAndCountsAll)
{
    const std::string strText = Text(RefusedReport(), {.bColour = false, .limit = 1});
    EXPECT_THAT(strText, HasSubstr("REFUSED, 3 errors in 2 of 20 records"));
    EXPECT_THAT(strText, HasSubstr("... 2 of 3 errors not shown here (--limit 1)"));
    EXPECT_THAT(strText, HasSubstr("HE70001E × 1, HE70003E × 2"));
    EXPECT_THAT(strText, Not(HasSubstr("column 6")));
}

TEST(TextReportTest, TableCutByTheLibraryTellsOfMoreErrors)
{
    FileReport report = RefusedReport();
    report.bMoreErrors = true;
    const std::string strText = Text(report);
    EXPECT_THAT(strText, HasSubstr("REFUSED, more than 3 errors in 2 records or more"));
    EXPECT_THAT(strText, HasSubstr("HE70022E 詳細エラー情報が100,000件を超えています。"));
}

TEST(TextReportTest, RangeTellsBothColumns)
{
    FileReport report = RefusedReport();
    report.vecError.front().entry.lColumnEnd = 8;
    EXPECT_THAT(Text(report), HasSubstr("record 3, columns 5 to 8 (氏名)"));
}

TEST(TextReportTest, EmptyValueIsNamedEmpty)
{
    FileReport report = RefusedReport();
    report.vecError.front().value = "";
    EXPECT_THAT(Text(report), HasSubstr("column 5 (氏名): empty\n"));
}

TEST(TextReportTest, ErrorOfTheFileHasNoRecordNumber)
{
    FileReport report = RefusedReport();
    report.vecError.front().eScope = ErrorScope::File;
    report.vecError.front().entry.lRecord = 0;
    report.vecError.front().entry.lColumn = 0;
    EXPECT_THAT(Text(report), HasSubstr("  the file as a whole (氏名)"));
}

TEST(TextReportTest, RecordWithoutColumnIsNamedAsAWhole)
{
    FileReport report = RefusedReport();
    report.vecError.front().eScope = ErrorScope::Record;
    report.vecError.front().entry.lColumn = 0;
    EXPECT_THAT(Text(report), HasSubstr("  record 3 as a whole"));
}

TEST(TextReportTest, HostileNamesAndValuesAreEscaped)
{
    FileReport report = RefusedReport();
    report.strFile = "\x1b[2J.csv";
    report.vecError.front().value = "\x1b]0;x\x07";
    EXPECT_THAT(Text(report), Not(HasSubstr("\x1b")));
}

TEST(TextReportTest, ColourIsUsedOnlyWhenAskedFor)
{
    EXPECT_THAT(Text(RefusedReport(), {.bColour = true, .limit = {}}),
                HasSubstr("\x1b[31mREFUSED\x1b[0m"));
    EXPECT_THAT(Text(RefusedReport()), Not(HasSubstr("\x1b")));
}

TEST(TextReportTest, FileNotCheckedTellsWhyAndWhatToDo)
{
    FileReport report;
    report.strFile = "a.csv";
    report.strProblem = "The file was not checked.";
    report.strAdvice = "Rename it.";
    EXPECT_EQ(Text(report),
              "a.csv: NOT CHECKED\n  The file was not checked.\n  To do: Rename it.\n");
}

TEST(TextReportTest, WrittenDocumentIsAccountedFor)
{
    FileReport report;
    report.strFile = "a.csv";
    report.eOutcome = Outcome::Converted;
    report.strProcedure = "PGE5020";
    report.records = 1;
    report.document = WrittenDocument{"out.mok", 12345};
    EXPECT_EQ(Text(report),
              "a.csv: converted, 1 record (procedure PGE5020)\n"
              "  document: out.mok, 12,345 bytes, base family\n");
}

TEST(TextReportTest, TotalsCountEachOutcome)
{
    FileReport passed = RefusedReport();
    passed.eOutcome = Outcome::Passed;
    std::ostringstream out;
    WriteTextTotals(out, {RefusedReport(), passed, FileReport()});
    EXPECT_EQ(out.str(), "3 files: 1 passed, 1 refused, 1 not checked to the end\n");
}

TEST(JsonReportTest, RefusedFileHasResultProcedureAndCounts)
{
    const json document = Json(RefusedReport());
    EXPECT_EQ(document["command"], "check");
    EXPECT_EQ(document["status"], 1);
    const json& file = document["files"][0];
    EXPECT_EQ(file["file"], "a.csv");
    EXPECT_EQ(file["result"], "refused");
    EXPECT_EQ(file["procedure"], "PGE5020");
    EXPECT_EQ(file["counts"],
              json::parse(R"({"records": 20, "recordsWithErrors": 2, "errors": 3, "listed": 3,
                              "moreErrors": false, "byCode": {"HE70001E": 1, "HE70003E": 2},
                              "byColumn": [
                                {"column": 5, "columnEnd": null, "label": "氏名", "errors": 2},
                                {"column": 6, "columnEnd": null, "label": "氏名", "errors": 1}]})"));
}

TEST(JsonReportTest, ErrorHasPlaceLabelValueCodeAndText)
{
    json error = Json(RefusedReport())["files"][0]["errors"][0];
    error.erase("advice");
    EXPECT_EQ(
        error,
        json::parse(R"({"scope": "cell", "record": 3, "line": 4, "column": 5, "columnEnd": null,
                              "argument": null, "label": "氏名", "value": "abc", "code": "HE70003E",
                              "message": "全角カタカナ以外の文字が含まれています。", "rule": null,
                              "hint": null})"));
}

TEST(JsonReportTest, LimitCutsTheListAndNotTheCounts)
{
    const json file = Json(RefusedReport(), {.bColour = false, .limit = 2})["files"][0];
    EXPECT_EQ(file["errors"].size(), 2u);
    EXPECT_EQ(file["counts"]["errors"], 3);
    EXPECT_EQ(file["counts"]["listed"], 2);
}

TEST(JsonReportTest, TableCutByTheLibraryIsNoticed)
{
    FileReport report = RefusedReport();
    report.bMoreErrors = true;
    const json file = Json(report)["files"][0];
    EXPECT_EQ(file["counts"]["moreErrors"], true);
    EXPECT_EQ(file["notices"][0]["code"], "HE70022E");
}

TEST(JsonReportTest, TextsThatArentUtf8DontBreakTheDocument)
{
    FileReport report = RefusedReport();
    report.strFile = "\x82\xa0.csv";
    report.vecError.front().value = "\xff\x1b";
    const json file = Json(report)["files"][0];
    EXPECT_EQ(file["file"], "\xef\xbf\xbd\xef\xbf\xbd.csv");
    EXPECT_EQ(file["errors"][0]["value"], "\xef\xbf\xbd\x1b");
}

TEST(JsonReportTest, FileNotCheckedNeverLooksPassed)
{
    const json document = Json(FileReport());
    EXPECT_EQ(document["status"], 3);
    EXPECT_EQ(document["files"][0]["result"], "not_checked");
}

TEST(JsonReportTest, HighestStatusOfTheFilesIsTheDocuments)
{
    std::ostringstream out;
    WriteJson(out, "check", {FileReport(), RefusedReport()}, {});
    EXPECT_EQ(json::parse(out.str())["status"], 3);
}

}  // namespace
}  // namespace host
