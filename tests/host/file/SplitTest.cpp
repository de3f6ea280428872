#include "file/Split.h"

#include <gtest/gtest.h>

namespace host {
namespace {

using Parts = std::vector<std::string>;

const std::vector<std::string_view> FIVE = {"a\r\n", "b\r\n", "c\n", "d\r\n", "e"};

FixedRecords Fixed(const char* szTypeId)
{
    const Definitions definitions(KZEKAMOK_SOURCE_BUNDLE);
    return FixedRecordsOf(*definitions.Find(szTypeId));
}

TEST(SplitTest, RecordsAreDealtOutInTheirOrderAndTheLastGetsItsLineEnd)
{
    EXPECT_EQ(SplitRecords(FIVE, {}, 2), (Parts{"a\r\nb\r\n", "c\nd\r\n", "e\r\n"}));
}

TEST(SplitTest, FileThatFitsIsOnePart)
{
    EXPECT_EQ(SplitRecords(FIVE, {}, 5), (Parts{"a\r\nb\r\nc\nd\r\ne\r\n"}));
}

TEST(SplitTest, EveryPartHasTheFixedRecords)
{
    EXPECT_EQ(SplitRecords(FIVE, {1, 1}, 4), (Parts{"a\r\nb\r\nc\ne\r\n", "a\r\nd\r\ne\r\n"}));
}

TEST(SplitTest, FileOfFixedRecordsAloneIsOnePart)
{
    EXPECT_EQ(SplitRecords({"a\n", "b\n"}, {1, 1}, 3), (Parts{"a\nb\n"}));
    EXPECT_EQ(SplitRecords({"a\n"}, {2, 1}, 4), (Parts{"a\n"}));
    EXPECT_EQ(SplitRecords({}, {}, 4), (Parts{""}));
}

TEST(FixedRecordsTest, ProcedureOfOneFormHasNone)
{
    EXPECT_EQ(Fixed("002").nHead, 0U);
    EXPECT_EQ(Fixed("101").nHead, 0U);
    EXPECT_EQ(Fixed("101").nTail, 0U);
    EXPECT_EQ(Fixed("301").nHead, 0U);
}

TEST(FixedRecordsTest, FormsWithARangeStandAtTheHead)
{
    EXPECT_EQ(Fixed("103").nHead, 2U);
    EXPECT_EQ(Fixed("103").nTail, 0U);
    EXPECT_EQ(Fixed("111").nHead, 2U);
}

TEST(FixedRecordsTest, FormOfTheLastRecordStandsAtTheEnd)
{
    EXPECT_EQ(Fixed("202").nTail, 1U);
}

}  // namespace
}  // namespace host
