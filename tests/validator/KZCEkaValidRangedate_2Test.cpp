#include "validator/KZCEkaValidRangedate_2.h"

#include "support/DebugLog.h"
#include "support/LogText.h"
#include "support/RecordCase.h"

namespace {

// The date stands in columns 2 to 5, the year in 6 and 7.
constexpr const char* REFUSED = "refuses 0001-06:07-HE70025E";

class ValidRangedate_2Test : public RecordCaseTest
{};

TEST_P(ValidRangedate_2Test, PassesFromTheDateTo30SeptemberOfTheYear)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

TEST_P(ValidRangedate_2Test, HoldsAsAConditionFromTheDateTo30SeptemberOfTheYear)
{
    EXPECT_EQ(ToldAsCondition(), ConditionTold());
}

constexpr ItemText FROM_2017 = {"rangedate_2", "", "20170401", "6"};

const RecordCase CASES[] = {
    {"DayBeforeTheFixedDate", FROM_2017, {"001", "4", "29", "3", "31", "4", "30"}, REFUSED},
    {"TheFixedDate", FROM_2017, {"001", "4", "29", "4", "1", "4", "30"}, PASSES},
    {"Inside", FROM_2017, {"001", "4", "30", "1", "1", "4", "30"}, PASSES},
    {"Last30September", FROM_2017, {"001", "4", "30", "9", "30", "4", "30"}, PASSES},
    {"First1October", FROM_2017, {"001", "4", "30", "10", "1", "4", "30"}, REFUSED},
    {"YearOfOneDigit", FROM_2017, {"001", "5", "1", "9", "30", "5", "1"}, PASSES},
    {"YearOfOneDigitOctober", FROM_2017, {"001", "5", "1", "10", "1", "5", "1"}, REFUSED},
    {"YearStaysInItsEra", FROM_2017, {"001", "5", "2", "9", "30", "4", "32"}, PASSES},
    {"YearStaysInItsEraOctober", FROM_2017, {"001", "5", "2", "10", "1", "4", "32"}, REFUSED},
    {"YearBeforeTheFixedDate", FROM_2017, {"001", "4", "29", "4", "1", "4", "20"}, REFUSED},
    // Left to other checks.
    {"ImpossibleDate", FROM_2017, {"001", "4", "30", "2", "30", "4", "30"}, PASSES},
    {"EraEmpty", FROM_2017, {"001", "", "30", "2", "1", "4", "30"}, PASSES},
    {"YearsEraEmpty", FROM_2017, {"001", "4", "30", "2", "1", "", "30"}, PASSES},
    {"YearMissing", FROM_2017, {"001", "4", "30", "2", "1"}, PASSES},
    {"LetterInTheYearIsYear0", FROM_2017, {"001", "4", "29", "4", "1", "4", "x"}, REFUSED},
    // The fixed date.
    {"ImpossibleFixedDate",
     {"rangedate_2", "", "20170431", "6"},
     {"001", "4", "30", "2", "1", "4", "30"},
     RAISES},
    {"NoFixedDate", {"rangedate_2", "", "", "6"}, {"001", "4", "30", "2", "1", "4", "30"}, RAISES},
    {"FixedDateTooShort",
     {"rangedate_2", "", "201704", "6"},
     {"001", "4", "30", "2", "1", "4", "30"},
     RAISES},
    {"FixedDateWithMoreBehind",
     {"rangedate_2", "", "201704019", "6"},
     {"001", "4", "29", "4", "1", "4", "30"},
     PASSES},
    {"FixedDateOfOneDigitDay",
     {"rangedate_2", "", "2017041", "6"},
     {"001", "4", "29", "4", "1", "4", "30"},
     PASSES},
    {"ImpossibleDateBeforeABadFixedDate",
     {"rangedate_2", "", "x", "6"},
     {"001", "4", "30", "2", "30", "4", "30"},
     PASSES},
};

INSTANTIATE_TEST_SUITE_P(Dates, ValidRangedate_2Test, testing::ValuesIn(CASES), CaseName());

class ValidRangedate_2ColumnTest : public ResetState,
                                   public testing::WithParamInterface<const char*>
{};

TEST_P(ValidRangedate_2ColumnTest, BelowOneRaisesAsACheckAlone)
{
    const TableCsv csv{{"001", "4", "29", "3", "31", "4", "30"}};
    const auto pItem = MakeItem({"rangedate_2", "", "20170401", GetParam()}, CASE_COLUMN);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnRecord(*pItem, csv), RAISES); }),
              "定義体パラメータ指定エラー。\n");
}

// A condition doesn't test its parameter: without a year there is no maximum, and that passes.
TEST_P(ValidRangedate_2ColumnTest, BelowOneHoldsAsACondition)
{
    const TableCsv csv{{"001", "4", "29", "3", "31", "4", "30"}};
    const auto pItem = MakeItem({"rangedate_2", "", "20160401", GetParam()}, CASE_COLUMN);
    EXPECT_EQ(AsCondition(*pItem, csv), PASSES);
}

TEST_P(ValidRangedate_2ColumnTest, BelowOneIsNotTestedIfAConditionDoesNotHold)
{
    const TableCsv csv{{"001", "4", "29", "3", "31", "4", "30"}};
    const auto pItem = MakeItem({"rangedate_2", "", "20170401", GetParam()}, CASE_COLUMN);
    pItem->AddOuterItem(MakeItem({"empty"}, 0).release());
    EXPECT_EQ(OnRecord(*pItem, csv), PASSES);
}

INSTANTIATE_TEST_SUITE_P(Columns, ValidRangedate_2ColumnTest, testing::Values("", "0", "-1", "x"));

using ValidRangedate_2TraceTest = ResetState;

TEST_F(ValidRangedate_2TraceTest, TracesTheYear)
{
    const TableCsv csv{{"001", "4", "29", "3", "31", "4", "30"}};
    const DebugLog log;
    EXPECT_EQ(OnRecord(*MakeItem(FROM_2017, CASE_COLUMN), csv), REFUSED);
    EXPECT_TRUE(log.HasLine("record=0001 column=00006 value=平成30")) << log.Text();
}

}  // namespace
