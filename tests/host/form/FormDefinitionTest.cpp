#include "form/FormDefinition.h"

#include <gtest/gtest.h>

#include "form/DetailTable.h"
#include "support/Bundle.h"
#include "support/TempFolder.h"

namespace host {
namespace {

constexpr const char* DEFINITION = R"(<?xml version="1.0" encoding="UTF-8"?>
<define>
  <report id="002" columnNum="9" procId="PGE5020">
    <item type="Normal" id="A" column="2" label="区分"/>
    <item type="Date" id="B" label="生年月日">
      <valid id="existdate" column="3"/>
    </item>
    <item type="Normal" id="B1" column="3" label="元号"/>
    <item type="Normal" id="B2" column="4" label="年"/>
    <item type="Normal" id="C" column="5" label="氏名" generation="junior"/>
    <item type="Normal" id="C" column="5" label="名称" generation="senior"/>
    <item type="Normal" id="C" column="5" label="氏名"/>
    <item type="TAG" id="D" label="合計">
      <valid id="exist" column="6"/>
    </item>
    <item type="Normal" id="E" column="7"/>
    <item type="Normal" id="F" column="8" label="電話">
      <valid id="exist" column="9"/>
    </item>
  </report>
  <report id="008" columnNum="4" procId="PGE5080"/>
  <report id="002" columnNum="1" procId="PGE9999"/>
</define>
)";

class FormDefinitionTest : public testing::Test
{
protected:
    FormDefinitionTest() { m_folder.Write("KZEkaDefine.xml", DEFINITION); }

    std::string Label(long lColumn, long lColumnEnd = SINGLE_COLUMN) const
    {
        return m_definitions.Find("002")->vecForm.front().labels.Find(lColumn, lColumnEnd);
    }

    TempFolder m_folder;
    Definitions m_definitions{m_folder.Path()};
};

TEST_F(FormDefinitionTest, FirstReportOfATypeIdCounts)
{
    ASSERT_NE(m_definitions.Find("002"), nullptr);
    EXPECT_EQ(m_definitions.Find("002")->strProcId, "PGE5020");
    EXPECT_EQ(m_definitions.Find("002")->vecForm.front().lColumnNum, 9);
}

TEST_F(FormDefinitionTest, UnknownTypeIdIsNotFound)
{
    EXPECT_EQ(m_definitions.Find("003"), nullptr);
}

TEST_F(FormDefinitionTest, TypeIdsStandOnceInTheOrderOfTheFile)
{
    EXPECT_EQ(m_definitions.TypeIds(Family::Base), (std::vector<std::string>{"002", "008"}));
}

TEST_F(FormDefinitionTest, ColumnHasTheLabelOfItsItem)
{
    EXPECT_EQ(Label(2), "区分");
}

TEST_F(FormDefinitionTest, ColumnsOwnLabelComesBeforeThatOfACheckOverIt)
{
    EXPECT_EQ(Label(3), "元号");
}

TEST_F(FormDefinitionTest, ColumnThatIsOnlyCheckedHasTheCheckingItemsLabel)
{
    EXPECT_EQ(Label(6), "合計");
    EXPECT_EQ(Label(9), "電話");
}

TEST_F(FormDefinitionTest, DifferentLabelsOfOneColumnAreAllShownOnce)
{
    EXPECT_EQ(Label(5), "氏名 / 名称");
}

TEST_F(FormDefinitionTest, ColumnWithoutLabelHasNone)
{
    EXPECT_EQ(Label(7), "");
    EXPECT_EQ(Label(99), "");
}

TEST_F(FormDefinitionTest, RangeHasTheLabelOfTheItemOverIt)
{
    EXPECT_EQ(Label(3, 4), "生年月日");
}

TEST_F(FormDefinitionTest, ItemWithAColumnOfItsOwnIsNotOverTheRangeThatItChecks)
{
    EXPECT_EQ(Label(9, 10), "電話") << "that of the range's only known end";
    m_folder.Write("KZEkaDefine.xml", R"(<define>
  <report id="001" columnNum="4">
    <item type="Normal" id="A" column="1" label="金額"><valid id="exist" column="2"/></item>
    <item type="Normal" id="B" column="2" label="銘柄"/>
    <item type="Normal" id="C" column="3" label="数量"/>
  </report>
</define>
)");
    const Definitions definitions(m_folder.Path());
    EXPECT_EQ(definitions.Find("001")->vecForm.front().labels.Find(2, 3), "銘柄～数量");
}

TEST_F(FormDefinitionTest, RangeWithoutSuchAnItemHasTheLabelsOfItsEnds)
{
    EXPECT_EQ(Label(4, 8), "年～電話");
    EXPECT_EQ(Label(2, 7), "区分");
}

TEST_F(FormDefinitionTest, CheckHasItsParametersConditionsAndLine)
{
    m_folder.Write("KZEkaDefine.xml", R"(<define>
  <report id="001" columnNum="7">
    <item type="Date" id="D">
      <valid id="age" value="1 2" min="3" max="4" message="HE70010E" errcolumn="5" errrow="6">
        <outer id="exist" column="7"/>
      </valid>
    </item>
    <item type="Normal" id="E" parent="D" column="2"/>
  </report>
</define>
)");
    const Definitions definitions(m_folder.Path());
    const ItemDefinition& item = definitions.Find("001")->vecForm.front().vecItem.front();
    ASSERT_EQ(item.vecCheck.size(), 1U);
    const CheckDefinition& check = item.vecCheck.front();
    EXPECT_EQ(item.lLine, 3);
    EXPECT_EQ(check.lLine, 4);
    EXPECT_EQ(check.strKeyword, "age");
    EXPECT_EQ(check.strValue, "1 2");
    EXPECT_EQ(check.strMin, "3");
    EXPECT_EQ(check.strMax, "4");
    EXPECT_EQ(check.strMessage, "HE70010E");
    EXPECT_EQ(check.strErrColumn, "5");
    EXPECT_EQ(check.strErrRow, "6");
    EXPECT_EQ(check.lColumn, 2) << "that of the group's first child";
    ASSERT_EQ(check.vecCondition.size(), 1U);
    EXPECT_EQ(check.vecCondition.front().strKeyword, "exist");
    EXPECT_EQ(check.vecCondition.front().lColumn, 7);
    EXPECT_EQ(check.vecCondition.front().lLine, 5);
}

TEST_F(FormDefinitionTest, MissingOrTornFileGivesNothing)
{
    const Definitions absent(m_folder.Path("absent"));
    EXPECT_FALSE(absent.HasBase());
    EXPECT_EQ(absent.Find("002"), nullptr);
    EXPECT_EQ(absent.Find("101"), nullptr);
    m_folder.Write("KZEkaDefine.xml", "<define><report>");
    const Definitions torn(m_folder.Path());
    EXPECT_FALSE(torn.HasBase());
    EXPECT_EQ(torn.TypeIds(Family::Base), std::vector<std::string>());
}

TEST(FormDefinitionBundleTest, EveryProcedureOfTheShippedFolderIsFound)
{
    const Definitions definitions(KZEKAMOK_SOURCE_BUNDLE);
    std::string strFound;
    for (const Family eFamily : {Family::Base, Family::Finance, Family::CrossBorder})
        for (const std::string& strTypeId : definitions.TypeIds(eFamily)) {
            const ProcedureDefinition* pProcedure = definitions.Find(strTypeId);
            ASSERT_NE(pProcedure, nullptr) << strTypeId;
            EXPECT_EQ(pProcedure->eFamily, eFamily);
            EXPECT_FALSE(pProcedure->strTemplatePath.empty()) << strTypeId;
            strFound += strTypeId + " ";
        }
    EXPECT_EQ(strFound,
              "001 002 003 004 005 006 007 008 009 101 102 103 104 105 106 107 108 109 110 111 "
              "112 113 114 115 116 201 202 301 302 ");
}

TEST(FormDefinitionBundleTest, RecordsOfARangeHaveTheRangesForm)
{
    const Definitions definitions(KZEKAMOK_SOURCE_BUNDLE);
    const ProcedureDefinition* pProcedure = definitions.Find("103");
    ASSERT_NE(pProcedure, nullptr);
    ASSERT_EQ(pProcedure->vecForm.size(), 3U);
    EXPECT_EQ(pProcedure->FormAt(1, 5), &pProcedure->vecForm[0]);
    EXPECT_EQ(pProcedure->FormAt(2, 5), &pProcedure->vecForm[1]);
    EXPECT_EQ(pProcedure->FormAt(3, 5), &pProcedure->vecForm[2]);
    EXPECT_EQ(pProcedure->FormAt(5, 5), &pProcedure->vecForm[2]);
}

TEST(FormDefinitionBundleTest, FolderIsTheOneThatTheLibraryFinds)
{
    const Bundle bundle;
    const Definitions definitions;
    EXPECT_EQ(definitions.TypeIds(Family::Base), std::vector<std::string>({"003"}));
}

struct ColumnsCase
{
    const char* szName;
    const char* szGiven;
    long lTaken;
};

class ColumnNumberTest : public testing::TestWithParam<ColumnsCase>
{};

TEST_P(ColumnNumberTest, IsOneThatMemoryHolds)
{
    const TempFolder folder;
    folder.Write("KZEkaDefine.xml", std::string("<define><report id=\"001\" columnNum=\"") +
                                        GetParam().szGiven + "\"/></define>");
    EXPECT_EQ(Definitions(folder.Path()).Find("001")->vecForm.front().lColumnNum,
              GetParam().lTaken);
}

INSTANTIATE_TEST_SUITE_P(Numbers,
                         ColumnNumberTest,
                         testing::Values(ColumnsCase{"None", "0", 0},
                                         ColumnsCase{"Negative", "-1", 0},
                                         ColumnsCase{"Most", "10000", 10000},
                                         ColumnsCase{"OneTooMany", "10001", 10000},
                                         ColumnsCase{"Huge", "2000000000", 10000}),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST(HugeColumnTest, ColumnsOfItemsAndChecksStayWithinWhatAFormMayHave)
{
    const TempFolder folder;
    folder.Write("KZEkaDefine.xml",
                 "<define><report id=\"001\" columnNum=\"1\"><item column=\"9223372036854775807\">"
                 "<valid id=\"exist\" column=\"9223372036854775807\"/></item></report></define>");
    const Definitions definitions(folder.Path());
    const ItemDefinition& item = definitions.Find("001")->vecForm.front().vecItem.front();
    EXPECT_EQ(item.lColumn, 10000);
    EXPECT_EQ(item.vecCheck.front().lColumn, 10000);
}

TEST(DeepDefinitionTest, ElementsNestedTooDeepAreToldWithTheLine)
{
    const TempFolder folder;
    std::string strText = "<define>\n";
    for (int n = 0; n < 100'000; ++n)
        strText += "<item>\n";
    folder.Write("KZEkaDefine.xml", strText);
    const XmlFile file = ReadXmlFile(folder.Path("KZEkaDefine.xml"));
    EXPECT_FALSE(file.root.has_value());
    EXPECT_EQ(file.problem.strMessage, "elements are nested too deep");
    EXPECT_EQ(file.problem.lLine, 101);
}

}  // namespace
}  // namespace host
