#include "validator/KZCEkaValidEqualyear.h"

#include "support/LogText.h"
#include "support/RecordCase.h"

namespace {

// The item's year stands in columns 2 and 3, the other one in 4 and 5.
constexpr const char* REFUSED = "refuses 0001-02:03-HE70025E";

class ValidEqualyearTest : public RecordCaseTest
{};

TEST_P(ValidEqualyearTest, PassesTheOtherYearPlusMaxLessMin)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

TEST_P(ValidEqualyearTest, HoldsAsAConditionForTheSameYears)
{
    EXPECT_EQ(ToldAsCondition(), ConditionTold());
}

constexpr ItemText SAME = {"equalyear", "4"};
constexpr ItemText ONE_ABOVE = {"equalyear", "4", "0", "1"};
constexpr ItemText ONE_BELOW = {"equalyear", "4", "1"};

const RecordCase CASES[] = {
    {"SameYear", SAME, {"001", "4", "30", "4", "30"}, PASSES},
    {"AnotherYear", SAME, {"001", "4", "30", "4", "29"}, REFUSED},
    {"SameYearInTwoEras", SAME, {"001", "4", "31", "5", "1"}, PASSES},
    {"SameNumberInTwoEras", SAME, {"001", "4", "1", "5", "1"}, REFUSED},
    {"YearBehindItsEra", SAME, {"001", "4", "32", "5", "2"}, PASSES},
    {"OneAbove", ONE_ABOVE, {"001", "4", "30", "4", "29"}, PASSES},
    {"OneAboveIsTheSame", ONE_ABOVE, {"001", "4", "30", "4", "30"}, REFUSED},
    {"OneAboveTheOtherWayRound", ONE_ABOVE, {"001", "4", "29", "4", "30"}, REFUSED},
    {"OneBelow", ONE_BELOW, {"001", "4", "29", "4", "30"}, PASSES},
    {"OneBelowIsTheSame", ONE_BELOW, {"001", "4", "30", "4", "30"}, REFUSED},
    {"MinAndMaxTogether", {"equalyear", "4", "2", "5"}, {"001", "4", "30", "4", "27"}, PASSES},
    {"NegativeMax", {"equalyear", "4", "", "-3"}, {"001", "4", "27", "4", "30"}, PASSES},
    {"NoNumberIsZero", {"equalyear", "4", "x", "y"}, {"001", "4", "30", "4", "30"}, PASSES},
    {"YearsOfOneDigit", SAME, {"001", "5", "2", "5", "2"}, PASSES},
    {"LetterInTheYearIsYear0", ONE_BELOW, {"001", "4", "x", "4", "1"}, PASSES},
    // Left to other checks.
    {"EraEmpty", SAME, {"001", "", "30", "4", "29"}, PASSES},
    {"OtherEraEmpty", SAME, {"001", "4", "30", "", "29"}, PASSES},
    {"Era6", SAME, {"001", "6", "30", "4", "29"}, PASSES},
    {"OtherMissing", SAME, {"001", "4", "30"}, PASSES},
};

INSTANTIATE_TEST_SUITE_P(Years, ValidEqualyearTest, testing::ValuesIn(CASES), CaseName());

class ValidEqualyearColumnTest : public ResetState, public testing::WithParamInterface<const char*>
{
protected:
    const TableCsv m_csv{{"001", "4", "29", "4", "30"}};
};

TEST_P(ValidEqualyearColumnTest, BelowOneRaises)
{
    const auto pItem = MakeItem({"equalyear", GetParam()}, CASE_COLUMN);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnRecord(*pItem, m_csv), RAISES); }),
              "定義体パラメータ指定エラー。\n");
}

TEST_P(ValidEqualyearColumnTest, BelowOneRaisesAsAConditionToo)
{
    EXPECT_EQ(AsCondition(*MakeItem({"equalyear", GetParam()}, CASE_COLUMN), m_csv), RAISES);
}

TEST_P(ValidEqualyearColumnTest, BelowOneIsNotTestedIfAConditionDoesNotHold)
{
    const auto pItem = MakeItem({"equalyear", GetParam()}, CASE_COLUMN);
    pItem->AddOuterItem(MakeItem({"empty"}, 0).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv), PASSES);
}

INSTANTIATE_TEST_SUITE_P(Columns, ValidEqualyearColumnTest, testing::Values("", "0", "-1", "x"));

using ValidEqualyearLogTest = ResetState;

TEST_F(ValidEqualyearLogTest, AYearThatIsNoneIsWrittenToTheLog)
{
    const TableCsv csv{{"001", "", "30", "4", "30"}};
    const auto pItem = MakeItem(SAME, CASE_COLUMN);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnRecord(*pItem, csv), PASSES); }),
              "元号の指定が不正です。\n日付の変換に失敗しました。:szValue=/01/01\n"
              "日付の変換に失敗しました。\n");
}

}  // namespace
