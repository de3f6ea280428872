#include "rules/Layout.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/Language.h"
#include "support/TempFolder.h"

namespace host {
namespace {

constexpr const char* DEFINITION = R"(<define>
  <report id="001" columnNum="5" procId="PGE5010" procVR="1.0" reportId="GEZ010" label="見本&lt;表&gt;">
    <item type="Normal" id="TYPE" column="1" label="申請区分"/>
    <item type="Date" id="DAY" parent="GEZ010" label="契約日">
      <valid id="containyear" value="2024"/>
    </item>
    <item type="Kubun" id="gen:era" parent="DAY" column="2" label="元号">
      <valid id="exist"/>
      <valid id="exist"/>
    </item>
    <item type="Normal" id="gen:yy" parent="DAY" column="3" label="年">
      <valid id="length" max="2"/>
    </item>
    <item type="Normal" id="J" parent="GEZ010" column="5" label="A|B" generation="junior">
      <valid id="number"/>
    </item>
    <item type="Normal" id="S" parent="GEZ010" column="5" label="A|B" generation="senior"/>
    <item type="Normal" id="OUT" parent="GEZ010" column="6" label="外">
      <valid id="exist"/>
    </item>
  </report>
</define>
)";

class LayoutTest : public testing::Test
{
protected:
    LayoutTest() { m_folder.Write("KZEkaDefine.xml", DEFINITION); }
    ~LayoutTest() override { SetLanguage(Language::English); }

    std::vector<const ProcedureDefinition*> Procedures() const
    {
        return {m_definitions.Find("001")};
    }

private:
    TempFolder m_folder;
    Definitions m_definitions{m_folder.Path()};
};

TEST_F(LayoutTest, ColumnHasTagsAndChecksEachOnceAndTheGroupsLast)
{
    const auto vecColumn = LayoutOf(Procedures().front()->vecForm.front());
    ASSERT_EQ(vecColumn.size(), 5U);
    EXPECT_EQ(vecColumn[0].strLabel, "申請区分");
    EXPECT_EQ(vecColumn[0].vecCheck, std::vector<std::string>());
    EXPECT_EQ(vecColumn[1].vecTag, std::vector<std::string>{"gen:era"});
    EXPECT_EQ(vecColumn[1].vecCheck,
              (std::vector<std::string>{"required", "契約日: Western year 2024"}));
    EXPECT_EQ(vecColumn[3].strLabel, "") << "a column without an item";
    EXPECT_EQ(vecColumn[3].lColumn, 4);
    EXPECT_EQ(vecColumn[4].vecTag, (std::vector<std::string>{"J", "S"}));
    EXPECT_EQ(vecColumn[4].vecCheck, std::vector<std::string>{"junior records: half-width digits"});
}

TEST_F(LayoutTest, MarkdownIsATableForEachForm)
{
    std::ostringstream out;
    WriteLayoutMarkdown(out, Procedures());
    EXPECT_EQ(out.str(), R"(# Type 001: 見本&lt;表&gt;

Procedure PGE5010 (version 1.0), at most 5000 records.

## 見本&lt;表&gt; (GEZ010), all records, 5 columns

| Column | Label | Tag | Checks |
|---:|---|---|---|
| 1 | 申請区分 | TYPE |  |
| 2 | 元号 | gen:era | required<br>契約日: Western year 2024 |
| 3 | 年 | gen:yy | up to 2 digits |
| 4 |  |  |  |
| 5 | A&#124;B | J<br>S | junior records: half-width digits |
)");
}

TEST_F(LayoutTest, CsvHasOneTableInTheCurrentLanguage)
{
    SetLanguage(Language::Japanese);
    std::ostringstream out;
    WriteLayoutCsv(out, Procedures());
    EXPECT_EQ(out.str(),
              "\"申請区分\",\"様式\",\"項目\",\"名称\",\"タグ\",\"チェック\"\r\n"
              "\"001\",\"GEZ010\",\"1\",\"申請区分\",\"TYPE\",\"\"\r\n"
              "\"001\",\"GEZ010\",\"2\",\"元号\",\"gen:era\",\"必須\n契約日: 西暦2024年\"\r\n"
              "\"001\",\"GEZ010\",\"3\",\"年\",\"gen:yy\",\"2桁以内\"\r\n"
              "\"001\",\"GEZ010\",\"4\",\"\",\"\",\"\"\r\n"
              "\"001\",\"GEZ010\",\"5\",\"A|B\",\"J\nS\",\"juniorのレコード：半角数字\"\r\n");
}

TEST_F(LayoutTest, HtmlIsOnePageWithEscapedTexts)
{
    std::ostringstream out;
    WriteLayoutHtml(out, Procedures());
    const std::string strPage = out.str();
    EXPECT_TRUE(strPage.starts_with("<!DOCTYPE html>\n<html lang=\"en\">\n")) << strPage;
    EXPECT_NE(strPage.find("<h1>Type 001: 見本&lt;表&gt;</h1>"), std::string::npos);
    EXPECT_NE(strPage.find("<tr><td>2</td><td>元号</td><td>gen:era</td><td>required<br>契約日: "
                           "Western year 2024</td></tr>"),
              std::string::npos)
        << strPage;
    EXPECT_EQ(strPage.find("表>"), std::string::npos);
}

TEST(LayoutBundleTest, EveryColumnOfTheShippedFormsHasALabel)
{
    const Definitions definitions(KZEKAMOK_SOURCE_BUNDLE);
    for (const Family eFamily : {Family::Base, Family::Finance, Family::CrossBorder})
        for (const std::string& strTypeId : definitions.TypeIds(eFamily))
            for (const FormDefinition& form : definitions.Find(strTypeId)->vecForm)
                for (const LayoutColumn& column : LayoutOf(form))
                    EXPECT_NE(column.strLabel, "") << strTypeId << " column " << column.lColumn;
}

class HostileLabelTest : public testing::Test
{
protected:
    HostileLabelTest()
    {
        m_folder.Write("KZEkaDefine.xml",
                       "<define><report id=\"001\" columnNum=\"1\" procId=\"PGE5010\" "
                       "label=\"&lt;/title&gt;&lt;script&gt;&#10;&#x9b;31m&#x202e;\"/></define>");
    }

    std::vector<const ProcedureDefinition*> Procedures() const
    {
        return {m_definitions.Find("001")};
    }

private:
    TempFolder m_folder;
    Definitions m_definitions{m_folder.Path()};
};

TEST_F(HostileLabelTest, PageAndTableShowItAndDoNotObeyIt)
{
    for (const auto pWrite : {WriteLayoutHtml, WriteLayoutMarkdown}) {
        std::ostringstream out;
        pWrite(out, Procedures());
        EXPECT_NE(out.str().find("Type 001: &lt;/title&gt;&lt;script&gt;\\n\\u{9b}31m\\u{202e}"),
                  std::string::npos)
            << out.str();
        EXPECT_EQ(out.str().find("<script"), std::string::npos);
        EXPECT_EQ(out.str().find("\xc2\x9b"), std::string::npos);
    }
}

TEST(HostileCellTest, SpreadsheetTakesNoTextForAFormulaAndNothingIsHidden)
{
    const TempFolder folder;
    folder.Write("KZEkaDefine.xml",
                 "<define><report id=\"=1\" columnNum=\"1\" procId=\"PGE5010\" reportId=\"+1\">"
                 "<item type=\"Normal\" id=\"@T\" parent=\"+1\" column=\"1\" "
                 "label=\"=HYPERLINK(&quot;x&quot;)&#x9b;&#x202e;&#9;&#13;\">"
                 "<valid id=\"-1+cmd\"/></item></report></define>");
    const Definitions definitions(folder.Path());
    std::ostringstream out;
    WriteLayoutCsv(out, {definitions.Find("=1")});
    EXPECT_EQ(out.str(),
              "\"Type id\",\"Report\",\"Column\",\"Label\",\"Tag\",\"Checks\"\r\n"
              "\"'=1\",\"'+1\",\"1\",\"'=HYPERLINK(\"\"x\"\")\\u{9b}\\u{202e}\\t\\r\",\"'@T\","
              "\"'-1+cmd\"\r\n");
}

TEST_F(HostileLabelTest, ListShowsItInItsLine)
{
    std::ostringstream out;
    WriteProcedureList(out, Procedures());
    EXPECT_EQ(out.str(), "001  PGE5010  base  </title><script>\\n\\u{9b}31m\\u{202e}\n");
}

}  // namespace
}  // namespace host
