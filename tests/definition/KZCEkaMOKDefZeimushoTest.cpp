#include "definition/KZCEkaMOKDefZeimusho.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/GenerationCsv.h"
#include "support/LogMessages.h"
#include "support/NodeTree.h"
#include "support/Raised.h"
#include "support/ResetState.h"

namespace {

using Records = std::vector<KZCEkaCsvFile::Record>;

class DefZeimushoTest : public ResetState
{
protected:
    DefZeimushoTest() { KZCEkaTaxOffices::instance()->Initialize(); }

    static std::string Check(KZCEkaMOKDefineNode& node, const KZCEkaCsvFile& csv)
    {
        return Told([&] { return node.ValidateCsv(&csv, 0); });
    }

    Bundle m_bundle;
};

TEST_F(DefZeimushoTest, NullCsvRaises)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZeimusho>(R"(<item type="Zeimusho" id="Z"/>)");
    EXPECT_EQ(Raised([&] { static_cast<void>(pNode->ValidateCsv(nullptr, 0)); }), FAULT);
    EXPECT_EQ(Raised([&] { static_cast<void>(pNode->WriteNode(nullptr, 0)); }), FAULT);
}

// ---- writing -----------------------------------------------------------------------------------

TEST_F(DefZeimushoTest, ChildrenAreWrittenFromTheLastToTheFirst)
{
    const GenerationCsv csv(Records{{"003", "青葉", "00101"}});
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZeimusho>(R"(<item type="Zeimusho" id="Z"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="gen:zeimusho_NM" parent="Z" column="2"/>)",
                     R"(<item type="Normal" id="gen:zeimusho_CD" parent="Z" column="3"/>)"});
    EXPECT_EQ(pNode->WriteNode(&csv, 0),
              "<Z><gen:zeimusho_CD>00101</gen:zeimusho_CD>"
              "<gen:zeimusho_NM>青葉</gen:zeimusho_NM></Z>");
}

TEST_F(DefZeimushoTest, ChildrenThatWriteNothingGiveNoTag)
{
    const GenerationCsv csv(Records{{"003", ""}});
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZeimusho>(R"(<item type="Zeimusho" id="Z"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="Z" column="2"/>)"});
    EXPECT_EQ(pNode->WriteNode(&csv, 0), "");
}

TEST_F(DefZeimushoTest, OwnColumnIsNotWritten)
{
    const GenerationCsv csv(Records{{"003", "x", "y"}});
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefZeimusho>(R"(<item type="Zeimusho" id="Z" column="2"/>)");
    EXPECT_EQ(pNode->WriteNode(&csv, 0), "");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="Z" column="3"/>)"});
    EXPECT_EQ(pNode->WriteNode(&csv, 0), "<Z><A>y</A></Z>");
}

TEST_F(DefZeimushoTest, ChildrenAreWrittenWhateverTheirGeneration)
{
    const GenerationCsv csv(Records{{"003", "x"}}, {{0, "senior"}});
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZeimusho>(R"(<item type="Zeimusho" id="Z"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="Z" column="2" generation="junior"/>)"});
    EXPECT_EQ(pNode->WriteNode(&csv, 0), "<Z><A>x</A></Z>");
}

TEST_F(DefZeimushoTest, OwnRowRangeIsNotAsked)
{
    const GenerationCsv csv(Records{{"003", "x"}});
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZeimusho>(
        R"(<item type="Zeimusho" id="Z" startRow="5" endRow="6"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="Z" column="2"/>)"});
    EXPECT_EQ(pNode->WriteNode(&csv, 0), "<Z><A>x</A></Z>");
}

// ---- checking ----------------------------------------------------------------------------------

TEST_F(DefZeimushoTest, GroupIsCheckedAtTheColumnOfItsFirstChild)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZeimusho>(
        R"(<item type="Zeimusho" id="Z"><valid id="taxofficenm"/></item>)", true);
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="Z" column="3"/>)",
                     R"(<item type="Normal" id="B" parent="Z" column="4"/>)"});
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", "", "紅葉", "00103"}})), PASSES);
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", "", "紅葉", "00101"}})),
              "refuses 0001-03:04-HE70002E");
}

TEST_F(DefZeimushoTest, GroupIsCheckedAtTheFirstColumnToo)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZeimusho>(
        R"(<item type="Zeimusho" id="D"><valid id="taxofficenm"/></item>)", true);
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="D" column="1"/>)"});
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"青葉", "00101"}})), PASSES);
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"紅葉", "00101"}})),
              "refuses 0001-01:02-HE70002E");
}

TEST_F(DefZeimushoTest, FailedChildKeepsTheGroupFromItsCheck)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZeimusho>(
        R"(<item type="Zeimusho" id="Z"><valid id="exist" column="9"/></item>)", true);
    HangAll(*pNode,
            {R"(<item type="Normal" id="A" parent="Z" column="2"><valid id="exist"/></item>)",
             R"(<item type="Normal" id="B" parent="Z" column="3"><valid id="exist"/></item>)"},
            true);
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", "", ""}})),
              "refuses 0001-00002-HE70001E,0001-00003-HE70001E");
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", "x", "y"}})),
              "refuses 0001-00009-HE70001E");
}

TEST_F(DefZeimushoTest, ChildrenAreCheckedWhateverTheirGeneration)
{
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefZeimusho>(R"(<item type="Zeimusho" id="Z"/>)", true);
    HangAll(
        *pNode,
        {R"(<item type="Normal" id="A" parent="Z" column="2" generation="junior"><valid id="exist"/></item>)"},
        true);
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", ""}}, {{0, "senior"}})),
              "refuses 0001-00002-HE70001E");
}

TEST_F(DefZeimushoTest, GroupWithoutChildrenIsNotChecked)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZeimusho>(
        R"(<item type="Zeimusho" id="Z"><valid id="exist" column="9"/></item>)", true);
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003"}})), PASSES);
}

TEST_F(DefZeimushoTest, GroupWhoseFirstChildHasNoColumnIsNotChecked)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZeimusho>(
        R"(<item type="Zeimusho" id="Z"><valid id="exist" column="9"/></item>)", true);
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="Z"/>)"});
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003"}})), PASSES);
}

TEST_F(DefZeimushoTest, FailedChildIsNotLoggedByTheGroup)
{
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefZeimusho>(R"(<item type="Zeimusho" id="Z"/>)", true);
    HangAll(*pNode,
            {R"(<item type="Normal" id="A" parent="Z" column="2"><valid id="exist"/></item>)"},
            true);
    const DebugLog log;
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", ""}})), "refuses 0001-00002-HE70001E");
    EXPECT_THAT(log.Text(), testing::Not(testing::HasSubstr("KZCEkaMOKDefZeimusho")));
}

}  // namespace
