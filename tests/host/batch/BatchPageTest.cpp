#include "batch/BatchPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "file/Descriptor.h"
#include "file/FilePlace.h"
#include "report/HtmlAssets.h"
#include "support/TempFolder.h"

namespace host {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string Line(const std::string& strFile, const std::string& strOutcome, int nErrors)
{
    const std::string strErrors = std::to_string(nErrors);
    return R"({"file":")" + strFile + R"(","result":")" + strOutcome +
           R"(","status":1,"procedure":"PGE5020","counts":{"errors":)" + strErrors +
           R"(,"moreErrors":false,"byCode":{"HE70001E":)" + strErrors +
           R"(}},"errors":[{"scope":"cell","record":3,"column":5,"label":"<b>","value":"a&b",)"
           R"("code":"HE70001E","message":"text"}],"problem":null,)"
           R"("batch":{"seconds":0.5,"document":"x y.mok"}})";
}

TEST(BatchPageTest, NothingFromOutsideIsMarkup)
{
    BatchPage page(1);
    page.Add(Line("<script>'.csv", "refused", 2));
    const std::string strHtml = page.Html();
    EXPECT_THAT(strHtml, HasSubstr("<td>&lt;script&gt;&#39;.csv</td>"));
    EXPECT_THAT(strHtml, HasSubstr("record 3, column 5 &lt;b&gt; <code>a&amp;b</code>: HE70001E"));
    EXPECT_THAT(strHtml, Not(HasSubstr("<script>'")));
}

TEST(BatchPageTest, DocumentOfAConvertedFileIsLinked)
{
    BatchPage page(1);
    page.Add(Line("a.csv", "converted", 0));
    EXPECT_THAT(page.Html(), HasSubstr("<a href=\"x%20y.mok\">x y.mok</a>"));
}

TEST(BatchPageTest, RefusedFileLinksNoDocument)
{
    BatchPage page(1);
    page.Add(Line("a.csv", "refused", 1));
    EXPECT_THAT(page.Html(), Not(HasSubstr("href=")));
}

TEST(BatchPageTest, FilesWithProblemsComeFirst)
{
    BatchPage page(4);
    page.Add(Line("a.csv", "converted", 0));
    page.Add(Line("b.csv", "refused", 1));
    page.Add(Line("c.csv", "not_written", 0));
    page.Add(Line("d.csv", "not_checked", 0));
    std::string strHtml = page.Html();
    strHtml.erase(0, strHtml.find("<table id=\"files\">"));
    EXPECT_LT(strHtml.find("c.csv"), strHtml.find("d.csv"));
    EXPECT_LT(strHtml.find("d.csv"), strHtml.find("b.csv"));
    EXPECT_LT(strHtml.find("b.csv"), strHtml.find("a.csv"));
}

TEST(BatchPageTest, CodesAreCountedOverErrorsAndFiles)
{
    BatchPage page(2);
    page.Add(Line("a.csv", "refused", 3));
    page.Add(Line("b.csv", "refused", 4));
    EXPECT_THAT(
        page.Html(),
        HasSubstr("<tr><td class=\"k\">HE70001E</td><td lang=\"ja\">値が入力されていません。</td>"
                  "<td class=\"n\">7</td><td class=\"n\">2</td></tr>"));
}

TEST(BatchPageTest, ProceduresAreCountedByResult)
{
    BatchPage page(3);
    page.Add(Line("a.csv", "refused", 3));
    page.Add(Line("b.csv", "converted", 0));
    page.Add(Line("c.csv", "converted", 0));
    EXPECT_THAT(page.Html(), HasSubstr("<tr><td class=\"k\">PGE5020</td><td class=\"n\">3</td>"
                                       "<td class=\"n\">2</td><td class=\"n\">1</td></tr>"));
}

TEST(BatchPageTest, PageOfABatchThatWasBrokenOffSaysSo)
{
    BatchPage page(5);
    page.Add(Line("a.csv", "refused", 3));
    EXPECT_THAT(page.Html(), HasSubstr("Broken off: 1 of 5 files are done."));
}

TEST(BatchPageTest, LinesOfAnotherKindAreLeftOut)
{
    BatchPage page(1);
    page.Add("torn");
    page.Add("{\"file\":1}");
    EXPECT_THAT(page.Html(), Not(HasSubstr("data-outcome=\"")));
}

TEST(BatchPageTest, TableIsCutAndSaysSo)
{
    BatchPage page(BatchPage::ROWS_MAX + 1);
    for (std::size_t n = 0; n <= BatchPage::ROWS_MAX; ++n)
        page.Add(Line(std::to_string(n), "converted", 0));
    const std::string strHtml = page.Html();
    EXPECT_THAT(strHtml, HasSubstr("The first 20000 of 20001 files are shown"));
    EXPECT_THAT(strHtml, HasSubstr("<b>20001</b>files"));
}

TEST(BatchPageTest, PolicyLetsNothingThroughButTheStyleAndTheScriptOfThePage)
{
    BatchPage page(2);
    page.Add(Line("a.csv", "converted", 0));
    page.Add(Line("b.csv", "refused", 1));
    const std::string strHtml = page.Html();
    EXPECT_THAT(strHtml, HasSubstr("content=\"default-src 'none'; style-src 'sha256-" +
                                   std::string(BATCH_STYLE_DIGEST) + "'; script-src 'sha256-" +
                                   std::string(BATCH_SCRIPT_DIGEST) +
                                   "'; base-uri 'none'; form-action 'none'\""));
    EXPECT_THAT(strHtml, HasSubstr("<style>" + std::string(BATCH_STYLE) + "</style>"));
    EXPECT_THAT(strHtml, HasSubstr("<script>" + std::string(BATCH_SCRIPT) + "</script>"));
    EXPECT_THAT(strHtml, Not(HasSubstr("unsafe")));
    EXPECT_THAT(strHtml, Not(HasSubstr(" style="))) << "which the policy lets no more through";
}

TEST(BatchPageTest, BarShowsTheShareOfEachResult)
{
    BatchPage page(3);
    page.Add(Line("a.csv", "converted", 0));
    page.Add(Line("b.csv", "refused", 1));
    page.Add(Line("c.csv", "refused", 1));
    EXPECT_THAT(page.Html(), HasSubstr(R"(viewBox="0 0 3 1"><rect class="good" x="0" width="1" )"
                                       R"(height="1"/><rect class="bad" x="1" width="2" )"
                                       R"(height="1"/></svg>)"));
}

TEST(BatchPageTest, LineThatNestsTooDeepIsLeftOut)
{
    BatchPage page(1);
    std::string strLine = Line("a.csv", "refused", 1);
    strLine.insert(1, "\"x\":" + std::string(200'000, '[') + std::string(200'000, ']') + ",");
    page.Add(strLine);
    EXPECT_THAT(page.Html(), Not(HasSubstr("data-outcome=\"")));
}

TEST(BatchPageTest, OwnPageIsRecognised)
{
    const TempFolder folder;
    folder.Write("own.html", BatchPage(0).Html());
    folder.Write("other.html", "<html>mine</html>");
    ASSERT_EQ(mkfifo(folder.Path("pipe.html").c_str(), 0600), 0);
    std::filesystem::create_symlink("own.html", folder.Path("link.html"));
    Descriptor opened;
    ASSERT_EQ(FindFolder(folder.Path(), Missing::Fails, opened), 0);
    EXPECT_EQ(BatchPage::ProblemOf(opened.Get(), "own.html"), "");
    EXPECT_EQ(BatchPage::ProblemOf(opened.Get(), "absent.html"), "");
    for (const char* szName : {"other.html", "pipe.html", "link.html"})
        EXPECT_EQ(BatchPage::ProblemOf(opened.Get(), szName), "it wasn't written by a batch")
            << szName;
}

}  // namespace
}  // namespace host
