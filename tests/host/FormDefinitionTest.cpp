#include "FormDefinition.h"

#include <gtest/gtest.h>

#include "DetailTable.h"
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
    FormDefinitionTest()
        : m_forms(FormDefinitions::Read(m_folder.Write("define.xml", DEFINITION)).value())
    {
    }

    std::string Label(long lColumn, long lColumnEnd = SINGLE_COLUMN) const
    {
        return m_forms.Find("002")->labels.Find(lColumn, lColumnEnd);
    }

    TempFolder m_folder;
    FormDefinitions m_forms;
};

TEST_F(FormDefinitionTest, FirstReportOfATypeIdCounts)
{
    ASSERT_NE(m_forms.Find("002"), nullptr);
    EXPECT_EQ(m_forms.Find("002")->strProcId, "PGE5020");
    EXPECT_EQ(m_forms.Find("002")->lColumnNum, 9);
}

TEST_F(FormDefinitionTest, UnknownTypeIdIsNotFound)
{
    EXPECT_EQ(m_forms.Find("003"), nullptr);
}

TEST_F(FormDefinitionTest, TypeIdsStandOnceInTheOrderOfTheFile)
{
    EXPECT_EQ(m_forms.TypeIds(), "002, 008");
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

TEST_F(FormDefinitionTest, RangeWithoutSuchAnItemHasTheLabelsOfItsEnds)
{
    EXPECT_EQ(Label(4, 8), "年～電話");
    EXPECT_EQ(Label(2, 7), "区分");
}

TEST_F(FormDefinitionTest, MissingOrTornFileGivesNothing)
{
    EXPECT_FALSE(FormDefinitions::Read(m_folder.Path("absent.xml")));
    EXPECT_FALSE(FormDefinitions::Read(m_folder.Write("torn.xml", "<define><report>")));
}

TEST(FormDefinitionBundleTest, FileIsFoundInTheResourceFolder)
{
    const Bundle bundle;
    const auto forms = FormDefinitions::Read();
    ASSERT_TRUE(forms);
    EXPECT_EQ(forms->TypeIds(), "003");
}

TEST(FormDefinitionBundleTest, FolderWithoutTheFileGivesNothing)
{
    const Bundle bundle(std::nullopt);
    EXPECT_FALSE(FormDefinitions::Read());
}

}  // namespace
}  // namespace host
