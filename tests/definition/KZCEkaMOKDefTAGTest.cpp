#include "definition/KZCEkaMOKDefTAG.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fault/Fault.h"
#include "support/CheckItem.h"
#include "support/GenerationCsv.h"
#include "support/NodeTree.h"
#include "support/Raised.h"
#include "support/ResetState.h"

namespace {

using Records = std::vector<KZCEkaCsvFile::Record>;

class DefTagTest : public ResetState
{
protected:
    /// Four records; columns 2 and 3 hold "a1" and "b1" and so on.
    DefTagTest()
        : m_csv(Records{
              {"003", "a1", "b1"}, {"003", "a2", "b2"}, {"003", "a3", "b3"}, {"003", "a4", "b4"}})
    {
    }

    /// What the node writes for each record, a bar between them.
    std::string WriteAll(KZCEkaMOKDefineNode& node, eWriteMode eMode = WRITE_NORMAL)
    {
        std::string strAll;
        for (long lRow = 0; lRow < m_csv.GetRecordCount(); ++lRow)
            strAll += (lRow > 0 ? "|" : "") + node.WriteNodeTag(&m_csv, lRow, eMode);
        return strAll;
    }

    GenerationCsv m_csv;
};

TEST_F(DefTagTest, NullCsvRaises)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T"/>)");
    EXPECT_EQ(Raised([&] { static_cast<void>(pNode->WriteNode(nullptr, 0)); }), FAULT);
    EXPECT_EQ(Raised([&] { static_cast<void>(pNode->WriteNodeTag(nullptr, 0, WRITE_DESCEND)); }),
              FAULT);
}

TEST_F(DefTagTest, WritesItsChildrenInOrder)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="B" parent="T" column="3"/>)",
                     R"(<item type="Normal" id="A" parent="T" column="2"/>)"});
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<T><B>b1</B><A>a1</A></T>");
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "");
}

TEST_F(DefTagTest, WriteNodeIsWriteNodeTagInNormalMode)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="T" column="2"/>)"});
    EXPECT_EQ(pNode->WriteNode(&m_csv, 1), pNode->WriteNodeTag(&m_csv, 1, WRITE_NORMAL));
}

TEST_F(DefTagTest, OwnColumnIsNotWritten)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T" column="2"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "");
    HangAll(*pNode, {R"(<item type="Normal" id="B" parent="T" column="3"/>)"});
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<T><B>b1</B></T>");
}

TEST_F(DefTagTest, ChildrenThatWriteNothingGiveNoTag)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="T" column="9"/>)"});
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "");
}

TEST_F(DefTagTest, ChildrenAreWrittenWhateverTheirGeneration)
{
    const GenerationCsv csv(Records{{"003", "a"}}, {{0, "senior"}});
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="T" column="2" generation="junior"/>)"});
    EXPECT_EQ(pNode->WriteNode(&csv, 0), "<T><A>a</A></T>");
}

TEST_F(DefTagTest, ChildrenAreCheckedByTheirGenerationAllTheSame)
{
    const GenerationCsv csv(Records{{"003", ""}}, {{0, "senior"}});
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T"/>)", true);
    HangAll(
        *pNode,
        {R"(<item type="Normal" id="A" parent="T" column="2" generation="junior"><valid id="exist"/></item>)"},
        true);
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&csv, 0); }), PASSES);
}

// ---- own row range -----------------------------------------------------------------------------

TEST_F(DefTagTest, RowRangeNarrowsTheRecords)
{
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T" startRow="2" endRow="3"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="T" column="2"/>)"});
    EXPECT_EQ(WriteAll(*pNode), "|<T><A>a2</A></T>|<T><A>a3</A></T>|");
}

TEST_F(DefTagTest, NegativeEndRowMeansUpToTheLastRecord)
{
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T" startRow="3" endRow="-1"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="T" column="2"/>)"});
    EXPECT_EQ(WriteAll(*pNode), "||<T><A>a3</A></T>|<T><A>a4</A></T>");
}

TEST_F(DefTagTest, RangeInForceIsWrittenInBothModes)
{
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T" startRow="2" endRow="2"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="T" column="2"/>)"});
    EXPECT_EQ(WriteAll(*pNode, WRITE_DESCEND), "|<T><A>a2</A></T>||");
}

TEST_F(DefTagTest, WithoutRangeDescendingDoesNotOpenIt)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="T" column="2"/>)"});
    EXPECT_EQ(WriteAll(*pNode, WRITE_DESCEND), "|||");
}

// ---- last record -------------------------------------------------------------------------------

TEST_F(DefTagTest, LastRecordGroupIsWrittenAtTheLastRecordAlone)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T" lastRecord="1"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="T" column="2"/>)"});
    EXPECT_EQ(WriteAll(*pNode), "|||<T><A>a4</A></T>");
}

TEST_F(DefTagTest, LastRecordGroupIsNotSearchedAtOtherRecords)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T" lastRecord="1"/>)");
    HangAll(*pNode, {R"(<item type="TAG" id="U" parent="T" startRow="1" endRow="-1"/>)",
                     R"(<item type="Normal" id="A" parent="U" column="2"/>)"});
    EXPECT_EQ(WriteAll(*pNode, WRITE_DESCEND), "|||<U><A>a4</A></U>");
}

TEST_F(DefTagTest, OneWithABlankOrALetterMeansTheLastRecordToo)
{
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T" lastRecord=" 1x"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="T" column="2"/>)"});
    EXPECT_EQ(WriteAll(*pNode), "|||<T><A>a4</A></T>");
}

TEST_F(DefTagTest, OnlyOneMeansTheLastRecord)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T" lastRecord="2"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="T" column="1"/>)"});
    EXPECT_EQ(WriteAll(*pNode),
              "<T><A>003</A></T>|<T><A>003</A></T>|<T><A>003</A></T>|<T><A>003</A></T>");
}

// ---- groups below ------------------------------------------------------------------------------

TEST_F(DefTagTest, GroupBelowIsReachedAtRecordsOutsideTheRange)
{
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="H" startRow="1" endRow="1"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="H" column="2"/>)",
                     R"(<item type="TAG" id="D" parent="H" startRow="2" endRow="-1"/>)",
                     R"(<item type="Normal" id="B" parent="D" column="3"/>)"});
    EXPECT_EQ(WriteAll(*pNode), "<H><A>a1</A>|<D><B>b2</B></D>|<D><B>b3</B></D>|<D><B>b4</B></D>");
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "</H>");
}

TEST_F(DefTagTest, ChildThatIsNoGroupIsNotVisitedOutsideTheRange)
{
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="H" startRow="9" endRow="9"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="H" column="2"/>)",
                     R"(<item type="Kubun" id="K" parent="H"/>)",
                     R"(<item type="TAG" id="D" parent="K" startRow="1" endRow="-1"/>)",
                     R"(<item type="Normal" id="B" parent="D" column="3"/>)"});
    EXPECT_EQ(WriteAll(*pNode), "|||");
}

TEST_F(DefTagTest, SearchGoesDownThroughGroupsToTheFirstInRange)
{
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="H" startRow="9" endRow="9"/>)");
    HangAll(*pNode, {R"(<item type="TAG" id="M" parent="H"/>)",
                     R"(<item type="TAG" id="D" parent="M" startRow="2" endRow="3"/>)",
                     R"(<item type="TAG" id="E" parent="D"/>)",
                     R"(<item type="Normal" id="B" parent="E" column="3"/>)"});
    EXPECT_EQ(WriteAll(*pNode), "|<D><E><B>b2</B></E></D>|<D><E><B>b3</B></E></D>|");
}

TEST_F(DefTagTest, AllGroupsInRangeAreFoundInOrder)
{
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="H" startRow="9" endRow="9"/>)");
    HangAll(*pNode, {R"(<item type="TAG" id="D" parent="H" startRow="1" endRow="2"/>)",
                     R"(<item type="TAG" id="E" parent="H" startRow="2" endRow="3"/>)",
                     R"(<item type="Normal" id="A" parent="D" column="2"/>)",
                     R"(<item type="Normal" id="B" parent="E" column="3"/>)"});
    EXPECT_EQ(WriteAll(*pNode),
              "<D><A>a1</A></D>|<D><A>a2</A></D><E><B>b2</B></E>|<E><B>b3</B></E>|");
}

// ---- tags left open ----------------------------------------------------------------------------

TEST_F(DefTagTest, GroupWhoseChildrenAreAllOutOfRangeWritesNothingAndLeavesNothingOpen)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T"/>)");
    HangAll(*pNode,
            {R"(<item type="Normal" id="A" parent="T" column="2" startRow="2" endRow="2"/>)",
             R"(<item type="Normal" id="B" parent="T" column="3" startRow="3" endRow="3"/>)"});
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "");
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "");
}

TEST_F(DefTagTest, ChildOutOfRangeEndsTheGroupForNowAndLeavesItOpen)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T"/>)");
    HangAll(*pNode,
            {R"(<item type="Normal" id="A" parent="T" column="2"/>)",
             R"(<item type="Normal" id="B" parent="T" column="3" startRow="2" endRow="-1"/>)",
             R"(<item type="Normal" id="C" parent="T" column="1"/>)"});
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<T><A>a1</A>");
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "</T>");
}

TEST_F(DefTagTest, FirstChildOutOfRangeHidesThoseBehindIt)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T"/>)");
    HangAll(*pNode,
            {R"(<item type="Normal" id="A" parent="T" column="2" startRow="2" endRow="2"/>)",
             R"(<item type="Normal" id="B" parent="T" column="3"/>)"});
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 1), "<T><A>a2</A><B>b2</B></T>");
}

TEST_F(DefTagTest, ChildOutOfRangeThatIsWrittenAllTheSameStays)
{
    // A postal code asks for no row range, but the group does.
    const GenerationCsv csv(Records{{"003", "1234567"}});
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T"/>)");
    HangAll(*pNode, {R"(<item type="Zip" id="Z" parent="T" column="2" startRow="2" endRow="2"/>)",
                     R"(<item type="Normal" id="A" parent="T" column="1"/>)"});
    EXPECT_EQ(pNode->WriteNode(&csv, 0),
              "<T><Z><gen:zip1>123</gen:zip1><gen:zip2>4567</gen:zip2></Z>");
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "</T>");
}

TEST_F(DefTagTest, NegativeEndRowOfAPlainChildKeepsItsGroupClosed)
{
    // The child writes nothing, as it takes its numbers raw; the group takes it for in range.
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T"/>)");
    HangAll(*pNode,
            {R"(<item type="Normal" id="A" parent="T" column="2" startRow="1" endRow="-1"/>)",
             R"(<item type="Normal" id="B" parent="T" column="3"/>)"});
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<T><B>b1</B></T>");
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "");
}

TEST_F(DefTagTest, OuterGroupIsClosedOverAnInnerOneLeftOpen)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefTAG>(R"(<item type="TAG" id="T"/>)");
    HangAll(*pNode,
            {R"(<item type="TAG" id="U" parent="T"/>)",
             R"(<item type="Normal" id="A" parent="U" column="2"/>)",
             R"(<item type="Normal" id="B" parent="U" column="3" startRow="2" endRow="2"/>)"});
    // The inner group has no range of its own, so the outer one is closed on top of it.
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<T><U><A>a1</A></T>");
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "</U>");
}

}  // namespace
