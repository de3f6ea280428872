#include "validator/KZCEkaValidRangedate_4.h"

#include "support/RecordCase.h"

namespace {

constexpr const char* OUT_OF_RANGE = "refuses 0001-02:05-HE70010E";
constexpr const char* NO_DATE = "refuses 0001-02:05-HE70012E";

class ValidRangedate_4Test : public RecordCaseTest
{};

TEST_P(ValidRangedate_4Test, PassesADateInTheFirstRange)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

TEST_P(ValidRangedate_4Test, HoldsAsAConditionInTheFirstRange)
{
    EXPECT_EQ(ToldAsCondition(), ConditionTold());
}

constexpr ItemText YEAR_2018 = {"rangedate_4", "", "20180101", "20181231"};
constexpr ItemText TWO_RANGES = {"rangedate_4", "", "20170101 20180401", "20170131 20180430"};

const RecordCase CASES[] = {
    {"BeforeTheRange", YEAR_2018, {"001", "4", "29", "12", "31"}, OUT_OF_RANGE},
    {"FirstDay", YEAR_2018, {"001", "4", "30", "1", "1"}, PASSES},
    {"Inside", YEAR_2018, {"001", "4", "30", "6", "15"}, PASSES},
    {"LastDay", YEAR_2018, {"001", "4", "30", "12", "31"}, PASSES},
    {"BehindTheRange", YEAR_2018, {"001", "4", "31", "1", "1"}, OUT_OF_RANGE},
    {"InTheFirstOfTwo", TWO_RANGES, {"001", "4", "29", "1", "31"}, PASSES},
    {"OnlyInTheSecondOfTwo", TWO_RANGES, {"001", "4", "30", "4", "1"}, OUT_OF_RANGE},
    {"LaterTokensAreNotRead",
     {"rangedate_4", "", "20180101 x", "20181231 x y"},
     {"001", "4", "30", "4", "1"},
     PASSES},
    {"ImpossibleDate", YEAR_2018, {"001", "4", "30", "2", "29"}, NO_DATE},
    {"EmptyDay", YEAR_2018, {"001", "4", "30", "9", ""}, NO_DATE},
    {"EraEmpty", YEAR_2018, {"001", "", "30", "9", "1"}, NO_DATE},
    {"AsterisksAreNoYear",
     {"rangedate_4", "", "****0101", "****1231"},
     {"001", "4", "30", "4", "1"},
     RAISES},
    {"ImpossibleDateBeforeABadBound",
     {"rangedate_4", "", "20181301", "20181231"},
     {"001", "4", "30", "2", "29"},
     NO_DATE},
    {"NoMin", {"rangedate_4", "", "", "20181231"}, {"001", "4", "30", "1", "1"}, OUT_OF_RANGE},
    {"NoMax", {"rangedate_4", "", "20180101", ""}, {"001", "4", "30", "1", "1"}, OUT_OF_RANGE},
    {"Neither", {"rangedate_4"}, {"001", "4", "30", "1", "1"}, OUT_OF_RANGE},
    {"BadMin", {"rangedate_4", "", "20181301", "20181231"}, {"001", "4", "30", "1", "1"}, RAISES},
    {"BadMax", {"rangedate_4", "", "20180101", "20180230"}, {"001", "4", "30", "1", "1"}, RAISES},
    {"TooShortForTheSlashes",
     {"rangedate_4", "", "101", "331"},
     {"001", "4", "30", "2", "1"},
     RAISES},
};

INSTANTIATE_TEST_SUITE_P(Dates, ValidRangedate_4Test, testing::ValuesIn(CASES), CaseName());

using ValidRangedate_4TextTest = ResetState;

TEST_F(ValidRangedate_4TextTest, AnEmptyTextIsOutOfRange)
{
    EXPECT_EQ(OnValue(*MakeItem(YEAR_2018), ""), Verdict(HE70010E));
}

}  // namespace
