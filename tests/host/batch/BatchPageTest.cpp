#include "batch/BatchPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

TEST(BatchPageTest, OwnPageIsRecognised)
{
    const TempFolder folder;
    const std::string strOwn = folder.Write("own.html", BatchPage(0).Html());
    EXPECT_TRUE(BatchPage::IsOwnOrAbsent(strOwn));
    EXPECT_TRUE(BatchPage::IsOwnOrAbsent(folder.Path("absent.html")));
    EXPECT_FALSE(BatchPage::IsOwnOrAbsent(folder.Write("other.html", "<html>mine</html>")));
}

}  // namespace
}  // namespace host
