#include "form/DetailTable.h"

#include <gtest/gtest.h>

namespace host {
namespace {

TEST(DetailTableTest, EmptyTextHasNoEntry)
{
    EXPECT_TRUE(ParseDetailTable("").empty());
}

TEST(DetailTableTest, SingleColumnHasNoEndColumn)
{
    EXPECT_EQ(ParseDetailTable("0003-00012-HE70001E"),
              (std::vector<DetailEntry>{{3, 12, SINGLE_COLUMN, "HE70001E", HE70001E}}));
}

TEST(DetailTableTest, RangeHasItsEndColumn)
{
    EXPECT_EQ(ParseDetailTable("0003-14:17-HE70025E"),
              (std::vector<DetailEntry>{{3, 14, 17, "HE70025E", HE70025E}}));
}

TEST(DetailTableTest, EntriesKeepTheirOrderAndTheirRepetitions)
{
    EXPECT_EQ(ParseDetailTable("0009-00001-HE70004E,0002-00001-HE70001E,0009-00001-HE70004E"),
              (std::vector<DetailEntry>{{9, 1, SINGLE_COLUMN, "HE70004E", HE70004E},
                                        {2, 1, SINGLE_COLUMN, "HE70001E", HE70001E},
                                        {9, 1, SINGLE_COLUMN, "HE70004E", HE70004E}}));
}

TEST(DetailTableTest, RecordOfFiveDigitsIsReadWhole)
{
    EXPECT_EQ(ParseDetailTable("12345-00001-HE70001E"),
              (std::vector<DetailEntry>{{12345, 1, SINGLE_COLUMN, "HE70001E", HE70001E}}));
}

TEST(DetailTableTest, NegativeColumnIsReadWithItsSign)
{
    EXPECT_EQ(ParseDetailTable("0003--0001-HE70001E"),
              (std::vector<DetailEntry>{{3, -1, SINGLE_COLUMN, "HE70001E", HE70001E}}));
}

TEST(DetailTableTest, RangeEndOfZeroIsARange)
{
    EXPECT_EQ(ParseDetailTable("0003-14:00-HE70001E"),
              (std::vector<DetailEntry>{{3, 14, 0, "HE70001E", HE70001E}}));
}

TEST(DetailTableTest, UnknownCodeIsKeptWithoutAMessage)
{
    EXPECT_EQ(ParseDetailTable("0003-00012-HE79999E"),
              (std::vector<DetailEntry>{{3, 12, SINGLE_COLUMN, "HE79999E", MSG_NONE}}));
}

class MalformedEntryTest : public testing::TestWithParam<const char*>
{};

TEST_P(MalformedEntryTest, BecomesAnErrorOfTheFileWithItsWholeText)
{
    EXPECT_EQ(ParseDetailTable(GetParam()),
              (std::vector<DetailEntry>{{0, 0, SINGLE_COLUMN, GetParam(), MSG_NONE}}));
}

INSTANTIATE_TEST_SUITE_P(Forms,
                         MalformedEntryTest,
                         testing::Values("HE70001E",
                                         "0003",
                                         "0003-",
                                         "0003-00012",
                                         "0003-00012-",
                                         "0003-14:-HE70001E",
                                         "x003-00012-HE70001E",
                                         "0003-00012xHE70001E",
                                         "99999999999999999999-00001-HE70001E"));

TEST(DetailTableTest, EntryAfterAMalformedOneIsRead)
{
    EXPECT_EQ(ParseDetailTable("??,0003-00012-HE70001E"),
              (std::vector<DetailEntry>{{0, 0, SINGLE_COLUMN, "??", MSG_NONE},
                                        {3, 12, SINGLE_COLUMN, "HE70001E", HE70001E}}));
}

}  // namespace
}  // namespace host
