#include "definition/KZCEkaMOKDefDate.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/GenerationCsv.h"
#include "support/NodeTree.h"
#include "support/Raised.h"
#include "support/ResetState.h"

namespace {

using Records = std::vector<KZCEkaCsvFile::Record>;

/// The tax office names serve as a group check, as that check reads the column it is given: a name
/// and its code in two columns side by side.
class DefDateTest : public ResetState
{
protected:
    DefDateTest() { KZCEkaTaxOffices::instance()->Initialize(); }

    static std::string Check(KZCEkaMOKDefineNode& node, const KZCEkaCsvFile& csv)
    {
        return Told([&] { return node.ValidateCsv(&csv, 0); });
    }

    Bundle m_bundle;
};

TEST_F(DefDateTest, NullCsvRaises)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefDate>(R"(<item type="Date" id="D"/>)");
    EXPECT_EQ(Raised([&] { static_cast<void>(pNode->ValidateCsv(nullptr, 0)); }), FAULT);
}

TEST_F(DefDateTest, GroupIsCheckedAtTheColumnOfItsFirstChild)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefDate>(
        R"(<item type="Date" id="D"><valid id="taxofficenm"/></item>)", true);
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="D" column="3"/>)",
                     R"(<item type="Normal" id="B" parent="D" column="1"/>)"});
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", "", "青葉", "00101"}})), PASSES);
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", "", "紅葉", "00101"}})),
              "refuses 0001-03:04-HE70002E");
}

TEST_F(DefDateTest, GroupIsCheckedAtTheFirstColumnToo)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefDate>(
        R"(<item type="Date" id="D"><valid id="taxofficenm"/></item>)", true);
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="D" column="1"/>)"});
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"青葉", "00101"}})), PASSES);
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"紅葉", "00101"}})),
              "refuses 0001-01:02-HE70002E");
}

TEST_F(DefDateTest, FailedChildKeepsTheGroupFromItsCheck)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefDate>(
        R"(<item type="Date" id="D"><valid id="exist" column="9"/></item>)", true);
    HangAll(*pNode,
            {R"(<item type="Normal" id="A" parent="D" column="2"><valid id="exist"/></item>)"},
            true);
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", ""}})), "refuses 0001-00002-HE70001E");
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", "x"}})), "refuses 0001-00009-HE70001E");
}

TEST_F(DefDateTest, AllChildrenAreCheckedEvenIfOneFails)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefDate>(R"(<item type="Date" id="D"/>)", true);
    HangAll(*pNode,
            {R"(<item type="Normal" id="A" parent="D" column="3"><valid id="exist"/></item>)",
             R"(<item type="Normal" id="B" parent="D" column="2"><valid id="exist"/></item>)"},
            true);
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", "", ""}})),
              "refuses 0001-00003-HE70001E,0001-00002-HE70001E");
}

TEST_F(DefDateTest, ChildrenAreCheckedWhateverTheirGeneration)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefDate>(R"(<item type="Date" id="D"/>)", true);
    HangAll(
        *pNode,
        {R"(<item type="Normal" id="A" parent="D" column="2" generation="junior"><valid id="exist"/></item>)"},
        true);
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", ""}}, {{0, "senior"}})),
              "refuses 0001-00002-HE70001E");
}

TEST_F(DefDateTest, GroupWithoutChildrenIsNotChecked)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefDate>(
        R"(<item type="Date" id="D" column="2"><valid id="exist"/></item>)", true);
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", ""}})), PASSES);
}

TEST_F(DefDateTest, GroupWhoseFirstChildHasNoColumnIsNotChecked)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefDate>(
        R"(<item type="Date" id="D"><valid id="exist" column="9"/></item>)", true);
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="D"/>)",
                     R"(<item type="Normal" id="B" parent="D" column="2"/>)"});
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", "x"}})), PASSES);
}

TEST_F(DefDateTest, GroupWithoutChecksPassesWithItsChildren)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefDate>(R"(<item type="Date" id="D"/>)", true);
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="D" column="2"/>)"});
    EXPECT_EQ(Check(*pNode, GenerationCsv(Records{{"003", ""}})), PASSES);
}

TEST_F(DefDateTest, WritingFiltersChildrenByGeneration)
{
    const GenerationCsv csv(Records{{"003", "5", "31"}}, {{0, "senior"}});
    const auto pNode = CreateNodeOf<KZCEkaMOKDefDate>(R"(<item type="Date" id="D"/>)");
    HangAll(*pNode,
            {R"(<item type="Normal" id="gen:era" parent="D" column="2"/>)",
             R"(<item type="Normal" id="gen:yy" parent="D" column="3" generation="junior"/>)"});
    EXPECT_EQ(pNode->WriteNode(&csv, 0), "<D><gen:era>5</gen:era></D>");
}

}  // namespace
