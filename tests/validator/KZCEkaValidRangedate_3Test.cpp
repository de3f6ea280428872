#include "validator/KZCEkaValidRangedate_3.h"

#include "support/LogText.h"
#include "support/RecordCase.h"

namespace {

// The date stands in columns 2 to 5, the year in 6 and 7.
constexpr const char* REFUSED = "refuses 0001-02:05-HE70025E";

class ValidRangedate_3Test : public RecordCaseTest
{};

TEST_P(ValidRangedate_3Test, PassesADateOfTheBusinessYear)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

TEST_P(ValidRangedate_3Test, HoldsAsAConditionForADateOfTheBusinessYear)
{
    EXPECT_EQ(ToldAsCondition(), ConditionTold());
}

constexpr ItemText YEAR_IN_6 = {"rangedate_3", "6"};

const RecordCase CASES[] = {
    {"September30OfTheYearBefore", YEAR_IN_6, {"001", "4", "29", "9", "30", "4", "30"}, REFUSED},
    {"October1OfTheYearBefore", YEAR_IN_6, {"001", "4", "29", "10", "1", "4", "30"}, PASSES},
    {"Inside", YEAR_IN_6, {"001", "4", "30", "2", "28", "4", "30"}, PASSES},
    {"September30", YEAR_IN_6, {"001", "4", "30", "9", "30", "4", "30"}, PASSES},
    {"October1", YEAR_IN_6, {"001", "4", "30", "10", "1", "4", "30"}, REFUSED},
    {"FirstYearOfTheNewEra", YEAR_IN_6, {"001", "4", "30", "10", "1", "5", "1"}, PASSES},
    {"FirstYearOfTheNewEraOctober", YEAR_IN_6, {"001", "5", "1", "10", "1", "5", "1"}, REFUSED},
    {"YearStaysInItsEra", YEAR_IN_6, {"001", "5", "2", "9", "30", "4", "32"}, PASSES},
    {"LetterInTheYearIsYear0", YEAR_IN_6, {"001", "3", "63", "9", "30", "4", "x"}, PASSES},
    // Left to other checks.
    {"ImpossibleDate", YEAR_IN_6, {"001", "4", "30", "2", "30", "4", "30"}, PASSES},
    {"EraEmpty", YEAR_IN_6, {"001", "", "30", "2", "1", "4", "30"}, PASSES},
    {"YearsEraEmpty", YEAR_IN_6, {"001", "4", "20", "2", "1", "", "30"}, PASSES},
    {"YearMissing", YEAR_IN_6, {"001", "4", "20", "2", "1"}, PASSES},
};

INSTANTIATE_TEST_SUITE_P(Dates, ValidRangedate_3Test, testing::ValuesIn(CASES), CaseName());

class ValidRangedate_3ColumnTest : public ResetState,
                                   public testing::WithParamInterface<const char*>
{
protected:
    const TableCsv m_csv{{"001", "4", "29", "3", "31", "4", "30"}};
};

TEST_P(ValidRangedate_3ColumnTest, BelowOneRaises)
{
    const auto pItem = MakeItem({"rangedate_3", GetParam()}, CASE_COLUMN);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnRecord(*pItem, m_csv), RAISES); }),
              "定義体パラメータ指定エラー。\n");
}

TEST_P(ValidRangedate_3ColumnTest, BelowOneRaisesAsAConditionToo)
{
    EXPECT_EQ(AsCondition(*MakeItem({"rangedate_3", GetParam()}, CASE_COLUMN), m_csv), RAISES);
}

TEST_P(ValidRangedate_3ColumnTest, BelowOneIsNotTestedIfAConditionDoesNotHold)
{
    const auto pItem = MakeItem({"rangedate_3", GetParam()}, CASE_COLUMN);
    pItem->AddOuterItem(MakeItem({"empty"}, 0).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv), PASSES);
}

INSTANTIATE_TEST_SUITE_P(Columns, ValidRangedate_3ColumnTest, testing::Values("", "0", "-1", "x"));

using ValidRangedate_3LogTest = ResetState;

TEST_F(ValidRangedate_3LogTest, AYearThatIsNoneIsWrittenToTheLog)
{
    const TableCsv csv{{"001", "4", "30", "2", "1", "", "30"}};
    const auto pItem = MakeItem(YEAR_IN_6, CASE_COLUMN);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnRecord(*pItem, csv), PASSES); }),
              "元号の指定が不正です。\n日付の変換に失敗しました。:szValue=/09/30\n"
              "日付の変換に失敗しました。\n");
}

}  // namespace
