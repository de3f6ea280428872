#include "base/Outcome.h"

#include <gtest/gtest.h>

#include <sstream>

#include "batch/BatchPage.h"
#include "batch/BatchTotals.h"
#include "report/Report.h"

namespace host {
namespace {

class OutcomeTest : public testing::Test
{
protected:
    ~OutcomeTest() override { SetLanguage(Language::English); }

    static std::string Headline(Outcome eOutcome)
    {
        FileReport report;
        report.strFile = "a.csv";
        report.eOutcome = eOutcome;
        std::ostringstream out;
        ReportStyle style;
        style.bColour = true;
        WriteText(out, report, style);
        return out.str().substr(0, out.str().find('\n'));
    }
    static std::string BatchLine(Outcome eOutcome)
    {
        BatchTotals totals;
        totals.Add(eOutcome, ExitStatus::Refused);
        return totals.Line();
    }
    static std::string BatchRow(const std::string& strName)
    {
        BatchPage page(1);
        page.Add(R"({"file":"a.csv","result":")" + strName +
                 R"(","status":1,"procedure":null,"counts":{"errors":0,"moreErrors":false,)"
                 R"("byCode":{}},"errors":[],"problem":null,)"
                 R"("batch":{"seconds":0.5,"document":null}})");
        const std::string strHtml = page.Html();
        const std::size_t nAt = strHtml.find("<td class=\"o ");
        return strHtml.substr(nAt, strHtml.find("</td>", nAt) - nAt);
    }
};

TEST_F(OutcomeTest, RefusedFileHasOneWordInEveryReport)
{
    SetLanguage(Language::Japanese);
    EXPECT_EQ(Headline(Outcome::Refused),
              "\x1b[1ma.csv\x1b[0m: \x1b[31m不合格\x1b[0m、0件のエラー");
    EXPECT_EQ(BatchLine(Outcome::Refused), "1ファイル：不合格 1件");
    EXPECT_EQ(BatchRow("refused"), "<td class=\"o bad\">不合格");
}

TEST_F(OutcomeTest, FileThatWasNotCheckedHasOneWordInEveryReport)
{
    SetLanguage(Language::Japanese);
    EXPECT_EQ(Headline(Outcome::NotChecked), "\x1b[1ma.csv\x1b[0m: \x1b[33mチェックできず\x1b[0m");
    EXPECT_EQ(BatchLine(Outcome::NotChecked), "1ファイル：チェックできず 1件");
    EXPECT_EQ(BatchRow("not_checked"), "<td class=\"o doubt\">チェックできず");
}

TEST_F(OutcomeTest, FileThatWasNotConvertedIsRedEverywhere)
{
    EXPECT_EQ(Headline(Outcome::NotConverted), "\x1b[1ma.csv\x1b[0m: \x1b[31mNOT CONVERTED\x1b[0m");
    EXPECT_EQ(BatchRow("not_converted"), "<td class=\"o bad\">not converted");
}

TEST_F(OutcomeTest, NameLeadsBackToItsOutcome)
{
    for (const Outcome eOutcome :
         {Outcome::Passed, Outcome::Refused, Outcome::NotChecked, Outcome::Converted,
          Outcome::Convertible, Outcome::NotConverted, Outcome::NotWritten})
        EXPECT_EQ(OutcomeOfName(OutcomeName(eOutcome)), eOutcome);
    EXPECT_EQ(OutcomeOfName("Passed"), std::nullopt);
}

}  // namespace
}  // namespace host
