#include "validator/KZCEkaValidExist_2.h"

#include <string>

#include "support/CheckItem.h"
#include "support/DebugLog.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"

namespace {

// The item watches column 3 (2 from 0) of these records.
constexpr long COLUMN = 2;

struct GroupCase
{
    const char* szName;
    KZCEkaCsvFile::Record record;
    const char* szTold;
};

void PrintTo(const GroupCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidExist_2Test : public ResetState, public testing::WithParamInterface<GroupCase>
{};

constexpr const char* FOUR = "refuses 0001-03:06-HE70012E";
constexpr const char* TWO = "refuses 0001-03:04-HE70012E";
constexpr const char* OTHER_KIND = "refuses 0001-00003-HE70012E";

const GroupCase CASES[] = {
    {"Kind003Filled", {"003", "x", "5", "1", "2", "3"}, PASSES},
    {"Kind003Empty", {"003", "x", "", "", "", ""}, PASSES},
    {"Kind003DayEmpty", {"003", "x", "5", "1", "2", ""}, FOUR},
    {"Kind003MonthEmpty", {"003", "x", "5", "1", "", "3"}, FOUR},
    {"Kind003YearEmpty", {"003", "x", "5", "", "2", "3"}, FOUR},
    {"Kind003EraEmpty", {"003", "x", "", "1", "2", "3"}, FOUR},
    {"Kind003OnlyTheDayFilled", {"003", "x", "", "", "", "3"}, FOUR},
    {"Kind003OnlyTheEraFilled", {"003", "x", "5", "", "", ""}, FOUR},
    {"Kind003RecordTooShort", {"003", "x", "5", "1", "2"}, FOUR},
    {"Kind003LooksNoFurther", {"003", "x", "", "", "", "", "9"}, PASSES},
    {"Kind004Filled", {"004", "x", "5", "1", "2", "3"}, PASSES},
    {"Kind004DayEmpty", {"004", "x", "5", "1", "2", ""}, FOUR},
    {"Kind005Empty", {"005", "x", "", "", "", ""}, PASSES},
    {"Kind005DayEmpty", {"005", "x", "5", "1", "2", ""}, FOUR},
    {"Kind006Filled", {"006", "x", "5", "1"}, PASSES},
    {"Kind006Empty", {"006", "x", "", "", "2", "3"}, PASSES},
    {"Kind006FilledLooksNoFurther", {"006", "x", "5", "1", "", ""}, PASSES},
    {"Kind006SecondEmpty", {"006", "x", "5", "", "2", "3"}, TWO},
    {"Kind006FirstEmpty", {"006", "x", "", "1", "2", "3"}, TWO},
    {"Kind007SecondEmpty", {"007", "x", "5", ""}, TWO},
    {"Kind007Filled", {"007", "x", "5", "1"}, PASSES},
    {"Kind009FirstEmpty", {"009", "x", "", "1"}, TWO},
    {"Kind009Empty", {"009", "x", "", ""}, PASSES},
    {"Kind008NeverPasses", {"008", "x", "5", "1", "2", "3"}, OTHER_KIND},
    {"Kind001NeverPasses", {"001", "x", "", "", "", ""}, OTHER_KIND},
    {"KindWithoutZerosNeverPasses", {"3", "x", "5", "1", "2", "3"}, OTHER_KIND},
    {"EmptyKindNeverPasses", {"", "x", "5", "1", "2", "3"}, OTHER_KIND},
};

TEST_P(ValidExist_2Test, TiesTheGroupTogetherByTheKind)
{
    const TableCsv csv{GetParam().record};
    const auto pItem = MakeItem({"exist_2"}, COLUMN);
    EXPECT_EQ(OnRecord(*pItem, csv), GetParam().szTold);
}

INSTANTIATE_TEST_SUITE_P(Records, ValidExist_2Test, testing::ValuesIn(CASES), CaseName());

class ValidExist_2RecordTest : public ResetState
{
protected:
    const TableCsv m_csv{{"003", "x", "5", "1", "2", "3"},
                         {"003", "x", "5", "1", "2", ""},
                         {"008", "x", "5", "1", "2", "3"},
                         {"006", "x", "5", ""}};
};

TEST_F(ValidExist_2RecordTest, CountsTheRecordFromOne)
{
    const auto pItem = MakeItem({"exist_2"}, COLUMN);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-03:06-HE70012E");
}

TEST_F(ValidExist_2RecordTest, OverrideHasNoEffectOnAGroup)
{
    const auto pItem = MakeItem({"exist_2"}, COLUMN, HE70010E);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-03:06-HE70012E");
}

TEST_F(ValidExist_2RecordTest, OverrideReplacesTheCodeOfAnotherKind)
{
    const auto pItem = MakeItem({"exist_2"}, COLUMN, HE70010E);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 2), "refuses 0003-00003-HE70010E");
}

TEST_F(ValidExist_2RecordTest, AnotherKindIsRecordedEachTimeBeforeTheFirstGroup)
{
    const auto pItem = MakeItem({"exist_2"}, COLUMN);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 2), "refuses 0003-00003-HE70012E");
    EXPECT_EQ(OnRecord(*pItem, m_csv, 2), "refuses 0003-00003-HE70012E");
}

TEST_F(ValidExist_2RecordTest, AnotherKindBehindARefusedGroupIsRefusedWithoutARecord)
{
    const auto pItem = MakeItem({"exist_2"}, COLUMN);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-03:06-HE70012E");
    EXPECT_EQ(OnRecord(*pItem, m_csv, 2), REFUSES);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0), PASSES);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 2), REFUSES);
}

// The flag stops what the base records, never what the item records by itself.
TEST_F(ValidExist_2RecordTest, EveryRefusedGroupIsRecorded)
{
    const auto pItem = MakeItem({"exist_2"}, COLUMN);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-03:06-HE70012E");
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-03:06-HE70012E");
    EXPECT_EQ(OnRecord(*pItem, m_csv, 3), "refuses 0004-03:04-HE70012E");
}

TEST_F(ValidExist_2RecordTest, AGroupIsRecordedWithErrorOutputOff)
{
    const auto pItem = MakeItem({"exist_2"}, COLUMN);
    pItem->SetErrOutput(false);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-03:06-HE70012E");
    EXPECT_EQ(OnRecord(*pItem, m_csv, 2), REFUSES);
}

TEST_F(ValidExist_2RecordTest, RecordsAsAConditionToo)
{
    const auto pItem = MakeItem({"exist_2"}, COLUMN);
    EXPECT_EQ(AsCondition(*pItem, m_csv, 0), PASSES);
    EXPECT_EQ(AsCondition(*pItem, m_csv, 1), "refuses 0002-03:06-HE70012E");
    EXPECT_EQ(AsCondition(*pItem, m_csv, 2), REFUSES);
    EXPECT_EQ(AsCondition(*pItem, m_csv, 3), "refuses 0004-03:04-HE70012E");
}

TEST_F(ValidExist_2RecordTest, AnotherKindAsAConditionRecordsNothing)
{
    const auto pItem = MakeItem({"exist_2"}, COLUMN);
    EXPECT_EQ(AsCondition(*pItem, m_csv, 2), REFUSES);
}

TEST_F(ValidExist_2RecordTest, AsTheConditionOfAnotherItLeavesItsOwnRecord)
{
    const auto pItem = MakeItem({"empty"}, 1);
    pItem->AddOuterItem(MakeItem({"exist_2"}, COLUMN).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "passes 0002-03:06-HE70012E");
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0), "refuses 0001-00002-HE70005E");
}

TEST_F(ValidExist_2RecordTest, TracesTheRefusedGroupOnce)
{
    const DebugLog log;
    const auto pItem = MakeItem({"exist_2"}, COLUMN);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-03:06-HE70012E");
    const std::string strLine = "record=0002 column=00003 value=5\n";
    const std::string strText = log.Text();
    const std::size_t nFirst = strText.find(strLine);
    ASSERT_NE(nFirst, std::string::npos) << strText;
    EXPECT_EQ(strText.find(strLine, nFirst + 1), std::string::npos) << strText;
}

}  // namespace
