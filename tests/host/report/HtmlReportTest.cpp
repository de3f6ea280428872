#include "report/HtmlReport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "host/ReportCases.h"
#include "report/HtmlAssets.h"
#include "report/HtmlText.h"

namespace host {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string Page(const std::vector<FileReport>& vecReport, const ReportStyle& style = {})
{
    std::ostringstream out;
    WriteHtml(out, "check", vecReport, style);
    return out.str();
}

/// The page without its style and its script.
std::string Body(const FileReport& report, const ReportStyle& style = {})
{
    const std::string strPage = Page({report}, style);
    const std::size_t nStart = strPage.find("<body>");
    return strPage.substr(nStart, strPage.find("<script>") - nStart);
}

std::size_t CountOf(const std::string& strText, std::string_view strPart)
{
    std::size_t nCount = 0;
    for (std::size_t n = strText.find(strPart); n != std::string::npos;
         n = strText.find(strPart, n + strPart.size()))
        ++nCount;
    return nCount;
}

TEST(HtmlTextTest, MarkupBecomesText)
{
    EXPECT_EQ(HtmlText("<a href='x' title=\"y\">&amp;</a>"),
              "&lt;a href=&#39;x&#39; title=&quot;y&quot;&gt;&amp;amp;&lt;/a&gt;");
}

TEST(HtmlTextTest, InvisibleCharactersBecomeVisible)
{
    EXPECT_EQ(HtmlText("a\x1b\n\xe2\x80\xae"), "a\\u{1b}\\n\\u{202e}");
}

TEST(HtmlTextTest, LineEndsOfTheProgramsOwnTextsStay)
{
    EXPECT_EQ(HtmlOwnText("a\nb"), "a&#10;b");
}

TEST(HtmlReportTest, PolicyAllowsTheOneStyleAndTheOneScriptAlone)
{
    const std::string strPage = Page({RefusedReport()});
    EXPECT_THAT(strPage, HasSubstr("content=\"default-src 'none'; style-src 'sha256-" +
                                   std::string(REPORT_STYLE_DIGEST) + "'; script-src 'sha256-" +
                                   std::string(REPORT_SCRIPT_DIGEST) +
                                   "'; base-uri 'none'; form-action 'none'\""));
    EXPECT_THAT(strPage, HasSubstr("<style>" + std::string(REPORT_STYLE) + "</style>"));
    EXPECT_THAT(strPage, HasSubstr("<script>" + std::string(REPORT_SCRIPT) + "</script>"));
}

TEST(HtmlReportTest, PageNeedsNothingFromElsewhere)
{
    const std::string strPage = Page({RefusedReportWithCells()});
    for (const char* szPart : {"http:", "https:", "src=", "url(", "@import", "<link"})
        EXPECT_THAT(strPage, Not(HasSubstr(szPart))) << szPart;
}

TEST(HtmlReportTest, LanguageIsTheOneThatIsSpoken)
{
    EXPECT_THAT(Page({RefusedReport()}), HasSubstr("<html lang=\"en\">"));
    const InJapanese inJapanese;
    const std::string strPage = Page({RefusedReport()});
    EXPECT_THAT(strPage, HasSubstr("<html lang=\"ja\">"));
    EXPECT_THAT(strPage, HasSubstr("<h1>チェック結果</h1>"));
}

TEST(HtmlReportTest, TitleTellsTheOneFilesResult)
{
    EXPECT_THAT(Page({RefusedReport()}), HasSubstr("<title>a.csv – REFUSED</title>"));
    EXPECT_THAT(Page({RefusedReport(), RefusedReport()}),
                HasSubstr("<title>Check report – 2 files</title>"));
}

TEST(HtmlReportTest, FileHasItsFacts)
{
    const std::string strBody = Body(RefusedReport());
    EXPECT_THAT(strBody, HasSubstr("<dt>Procedure</dt><dd>PGE5020</dd>"));
    EXPECT_THAT(strBody, HasSubstr("<dt>Records</dt><dd>20</dd>"));
    EXPECT_THAT(strBody, HasSubstr("<dt>Errors</dt><dd>3</dd>"));
    EXPECT_THAT(strBody, HasSubstr("<dt>Records with errors</dt><dd>2</dd>"));
}

TEST(HtmlReportTest, GroupTellsColumnCodeTextRuleAndAdvice)
{
    FileReport report = RefusedReport();
    report.vecError[0].strRule = report.vecError[2].strRule = "katakana";
    EXPECT_THAT(
        Body(report),
        HasSubstr(
            "<section class=\"group\" id=\"g1-1\" data-code=\"HE70003E\" data-column=\"0\">\n"
            "<h4>column 5 <span lang=\"ja\">氏名</span> <code>HE70003E</code> "
            "<span lang=\"ja\">全角カタカナ以外の文字が含まれています。</span> "
            "<span class=\"n\">× 2</span></h4>\n"
            "<p>Rule: katakana</p>\n"
            "<p>Only full-width katakana may stand here. Replace every other character.</p>\n"));
}

TEST(HtmlReportTest, RuleThatIsntKnownIsLeftOut)
{
    EXPECT_THAT(Body(RefusedReport()), Not(HasSubstr("Rule")));
}

TEST(HtmlReportTest, ErrorLeadsToItsCellAndBack)
{
    const std::string strBody = Body(RefusedReportWithCells());
    EXPECT_THAT(strBody, HasSubstr("<li id=\"e1-1\"><a href=\"#c1-3-5\">record 3</a> "
                                   "<samp lang=\"ja\">abc</samp></li>"));
    EXPECT_THAT(strBody, HasSubstr("<td class=\"e\" id=\"c1-3-5\"><a href=\"#e1-1\" "
                                   "data-at=\"record 3, column 5 氏名\" title=\"HE70003E "
                                   "全角カタカナ以外の文字が含まれています。&#10;Only full-width "
                                   "katakana may stand here. Replace every other character.\">"
                                   "abc</a>"));
}

TEST(HtmlReportTest, EmptyWrongCellCanBeReached)
{
    EXPECT_THAT(Body(RefusedReportWithCells()), HasSubstr(">(empty)</a>"));
}

TEST(HtmlReportTest, EachRecordIsARowAndTheLastLineEndIsNone)
{
    const std::string strBody = Body(RefusedReportWithCells());
    EXPECT_EQ(CountOf(strBody, "<th scope=\"row\">"), 4u);
    EXPECT_THAT(strBody, HasSubstr("<tr><th scope=\"row\">1<td>002<td>1<td>2<td>3<td>4<td>5<td>6"
                                   "</tr>"));
}

TEST(HtmlReportTest, RangeMarksEachOfItsCells)
{
    FileReport report = RefusedReportWithCells();
    report.vecError.resize(1);
    report.vecError[0].entry.lColumnEnd = 7;
    const std::string strBody = Body(report);
    for (const char* szId : {"c1-3-5", "c1-3-6", "c1-3-7"})
        EXPECT_THAT(strBody, HasSubstr("<td class=\"e\" id=\"" + std::string(szId) +
                                       "\"><a href=\"#e1-1\""));
}

TEST(HtmlReportTest, CellWithSeveralErrorsTellsThemAll)
{
    FileReport report = RefusedReportWithCells();
    report.vecError[1].entry.lColumn = 5;
    const std::string strBody = Body(report);
    EXPECT_THAT(strBody, HasSubstr("id=\"c1-3-5\" data-e=\"e1-1 e1-2\"><a href=\"#e1-1\""));
    EXPECT_THAT(strBody, HasSubstr("&#10;HE70001E 値が入力されていません。"));
}

TEST(HtmlReportTest, WrongCellBehindTheEndOfItsRecordIsMade)
{
    FileReport report = RefusedReportWithCells();
    report.vecError[0].entry.lColumn = 9;
    EXPECT_THAT(Body(report), HasSubstr("<td>6<td><td class=\"e\" id=\"c1-3-9\">"));
}

TEST(HtmlReportTest, ErrorOfARecordMarksItsNumber)
{
    FileReport report = RefusedReportWithCells();
    report.vecError[0].eScope = ErrorScope::Record;
    EXPECT_THAT(Body(report), HasSubstr("<tr id=\"r1-3\" class=\"x\"><th scope=\"row\">"
                                        "<a href=\"#e1-1\""));
}

TEST(HtmlReportTest, ValuesAndLabelsAreText)
{
    FileReport report = RefusedReportWithCells();
    report.strFile = "<i>.csv";
    report.strProcedure = "<i>";
    report.vecError[2].value = "<i>";
    report.vecError[2].strRule = "<i>";
    const std::string strBody = Body(report);
    EXPECT_THAT(strBody, Not(HasSubstr("<i>")));
    EXPECT_THAT(strBody, Not(HasSubstr("<b>")));
    EXPECT_THAT(strBody, HasSubstr("7<br>&lt;b&gt;"));
}

TEST(HtmlReportTest, LongValueIsCutInItsCellAndWholeInItsTitle)
{
    FileReport report = RefusedReportWithCells();
    report.vecError.clear();
    const std::string strLong(300, 'x');
    report.pCells = std::make_shared<CsvCells>("002," + strLong);
    EXPECT_THAT(Body(report), HasSubstr("<td class=\"l\" title=\"" + strLong + "\">" +
                                        std::string(200, 'x') + "… (300 bytes in all)"));
}

TEST(HtmlReportTest, LimitCutsTheListAndLeavesTheMarks)
{
    const std::string strBody = Body(RefusedReportWithCells(), {.bColour = false, .limit = 1});
    EXPECT_EQ(CountOf(strBody, "<li "), 1u);
    EXPECT_EQ(CountOf(strBody, "<td class=\"e\""), 3u);
    EXPECT_THAT(strBody, HasSubstr("<p class=\"notice\" id=\"more1\">2 of 3 errors not listed "
                                   "here (--limit 1)</p>"));
    EXPECT_THAT(strBody, HasSubstr("id=\"c1-4-5\"><a href=\"#more1\""));
}

TEST(HtmlReportTest, FormsHaveHeadsOfTheirOwn)
{
    FileReport report = RefusedReportWithCells();
    report.vecForm = {{1, 1, "表紙", {"申請区分"}}, {2, 4, "明細", {"申請区分"}}};
    const std::string strBody = Body(report);
    EXPECT_THAT(strBody, HasSubstr("<h4>表紙</h4>"));
    EXPECT_THAT(strBody, HasSubstr("<h4>明細</h4>"));
    EXPECT_EQ(CountOf(strBody, "<table class=\"heads\">"), 2u);
}

TEST(HtmlReportTest, NeighbouringFormsThatLookAlikeShareAHead)
{
    FileReport report = RefusedReportWithCells();
    report.vecForm = {{1, 1, "明細", {"申請区分"}}, {2, 4, "明細", {"申請区分"}}};
    EXPECT_EQ(CountOf(Body(report), "<table class=\"heads\">"), 1u);
}

TEST(HtmlReportTest, RecordsOfNoFormAreShownAllTheSame)
{
    FileReport report = RefusedReportWithCells();
    report.vecForm = {{2, 2, "明細", {"申請区分"}}};
    EXPECT_EQ(CountOf(Body(report), "<th scope=\"row\">"), 4u);
}

TEST(HtmlReportTest, FileThatPassedHasItsContentsFolded)
{
    FileReport report = RefusedReportWithCells();
    report.vecError.clear();
    report.eOutcome = Outcome::Passed;
    const std::string strBody = Body(report);
    EXPECT_THAT(strBody, HasSubstr("<details><summary>Contents</summary>"));
    EXPECT_THAT(strBody, Not(HasSubstr("<h3>Errors</h3>")));
}

TEST(HtmlReportTest, FileWithoutCellsHasNoGrid)
{
    EXPECT_THAT(Body(RefusedReport()), Not(HasSubstr("class=\"grid\"")));
}

TEST(HtmlReportTest, ProblemAndAdviceAreTold)
{
    FileReport report;
    report.strProblem = "The file was not checked.";
    report.strAdvice = "Rename it.";
    EXPECT_THAT(Body(report),
                HasSubstr("<p class=\"notice\">The file was not checked. Rename it.</p>"));
}

TEST(HtmlReportTest, SeveralFilesHaveATable)
{
    EXPECT_THAT(Page({RefusedReport(), FileReport()}),
                HasSubstr("<a href=\"#f1\">a.csv</a></th><td><span class=\"badge bad\">REFUSED"
                          "</span></td><td>PGE5020</td><td class=\"n\">20</td>"
                          "<td class=\"n\">3</td></tr>"));
    EXPECT_THAT(Page({RefusedReport()}), Not(HasSubstr("<a href=\"#f1\">")));
}

}  // namespace
}  // namespace host
