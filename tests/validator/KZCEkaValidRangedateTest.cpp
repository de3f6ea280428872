#include "validator/KZCEkaValidRangedate.h"

#include "support/LogText.h"
#include "support/RecordCase.h"

namespace {

constexpr const char* OUT_OF_RANGE = "refuses 0001-02:05-HE70010E";
constexpr const char* NO_DATE = "refuses 0001-02:05-HE70012E";

class ValidRangedateTest : public RecordCaseTest
{};

TEST_P(ValidRangedateTest, PassesADateInOneOfTheRanges)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

TEST_P(ValidRangedateTest, HoldsAsAConditionInOneOfTheRanges)
{
    EXPECT_EQ(ToldAsCondition(), ConditionTold());
}

constexpr ItemText YEAR_2018 = {"rangedate", "", "20180101", "20181231"};
constexpr ItemText TWO_RANGES = {"rangedate", "", "20170101 20180401", "20170131 20180430"};
constexpr ItemText FIRST_QUARTER = {"rangedate", "", "****0101", "****0331"};
constexpr ItemText LAST_NINE_MONTHS = {"rangedate", "", "****0401", "****1231"};
constexpr ItemText NO_PAIR = {"rangedate", "", "20180101", ""};

const RecordCase CASES[] = {
    {"BeforeTheRange", YEAR_2018, {"001", "4", "29", "12", "31"}, OUT_OF_RANGE},
    {"FirstDay", YEAR_2018, {"001", "4", "30", "1", "1"}, PASSES},
    {"Inside", YEAR_2018, {"001", "4", "30", "6", "15"}, PASSES},
    {"LastDay", YEAR_2018, {"001", "4", "30", "12", "31"}, PASSES},
    {"BehindTheRange", YEAR_2018, {"001", "4", "31", "1", "1"}, OUT_OF_RANGE},
    {"InTheFirstOfTwo", TWO_RANGES, {"001", "4", "29", "1", "31"}, PASSES},
    {"InTheSecondOfTwo", TWO_RANGES, {"001", "4", "30", "4", "1"}, PASSES},
    {"BetweenTheTwo", TWO_RANGES, {"001", "4", "29", "2", "1"}, OUT_OF_RANGE},
    {"BehindTheTwo", TWO_RANGES, {"001", "4", "30", "5", "1"}, OUT_OF_RANGE},
    {"PairingStopsWithTheShorterMax",
     {"rangedate", "", "20170101 20180401", "20170131"},
     {"001", "4", "30", "4", "1"},
     OUT_OF_RANGE},
    {"PairingStopsWithTheShorterMin",
     {"rangedate", "", "20170101", "20170131 20180430"},
     {"001", "4", "30", "4", "1"},
     OUT_OF_RANGE},
    {"RunsOfBlanksSeparate",
     {"rangedate", "", " 20170101  20180401 ", "20170131 20180430"},
     {"001", "4", "30", "4", "1"},
     PASSES},
    // A range within the value's own year.
    {"OwnYearFirstDay", FIRST_QUARTER, {"001", "3", "50", "1", "1"}, PASSES},
    {"OwnYear3March", FIRST_QUARTER, {"001", "4", "30", "3", "3"}, PASSES},
    {"OwnYear3MarchOfAnotherYear", FIRST_QUARTER, {"001", "3", "64", "3", "3"}, PASSES},
    {"OwnYearLastDay", FIRST_QUARTER, {"001", "4", "30", "3", "31"}, PASSES},
    {"OwnYear1April", FIRST_QUARTER, {"001", "4", "30", "4", "1"}, OUT_OF_RANGE},
    {"OwnYear31March", LAST_NINE_MONTHS, {"001", "4", "30", "3", "31"}, OUT_OF_RANGE},
    {"OwnYearFrom1April", LAST_NINE_MONTHS, {"001", "4", "30", "4", "1"}, PASSES},
    {"OwnYearTo31December", LAST_NINE_MONTHS, {"001", "4", "30", "12", "31"}, PASSES},
    {"OwnYearMakesNoWrap",
     {"rangedate", "", "****1001", "****0331"},
     {"001", "4", "30", "12", "1"},
     OUT_OF_RANGE},
    {"OwnYearCrossesTheChangeOfEra", LAST_NINE_MONTHS, {"001", "4", "31", "5", "1"}, PASSES},
    {"OwnYearBehindAFixedRange",
     {"rangedate", "", "20100101 ****0101", "20100131 ****0331"},
     {"001", "4", "30", "2", "1"},
     PASSES},
    {"LeapDayOfALeapYear",
     {"rangedate", "", "****0101", "****0229"},
     {"001", "4", "28", "2", "29"},
     PASSES},
    {"LeapDayOfACommonYearRaises",
     {"rangedate", "", "****0101", "****0229"},
     {"001", "4", "29", "2", "28"},
     RAISES},
    // No date.
    {"ImpossibleDate", YEAR_2018, {"001", "4", "30", "2", "29"}, NO_DATE},
    {"ImpossibleDateEndsTheScan", TWO_RANGES, {"001", "4", "30", "4", "31"}, NO_DATE},
    {"ImpossibleDateBeforeABadBound",
     {"rangedate", "", "20181301", "20181231"},
     {"001", "4", "30", "2", "29"},
     NO_DATE},
    {"ImpossibleDateInItsOwnYear", FIRST_QUARTER, {"001", "4", "30", "2", "29"}, NO_DATE},
    {"EmptyDay", YEAR_2018, {"001", "4", "30", "9", ""}, NO_DATE},
    {"EraEmpty", YEAR_2018, {"001", "", "30", "9", "1"}, NO_DATE},
    // Parameters that can't serve.
    {"NoMax", NO_PAIR, {"001", "4", "30", "1", "1"}, OUT_OF_RANGE},
    {"NoMin", {"rangedate", "", "", "20181231"}, {"001", "4", "30", "1", "1"}, OUT_OF_RANGE},
    {"Neither", {"rangedate"}, {"001", "4", "30", "1", "1"}, OUT_OF_RANGE},
    {"BlanksOnly", {"rangedate", "", " ", " "}, {"001", "4", "30", "1", "1"}, OUT_OF_RANGE},
    {"BadMin", {"rangedate", "", "20181301", "20181231"}, {"001", "4", "30", "1", "1"}, RAISES},
    {"BadMax", {"rangedate", "", "20180101", "20180230"}, {"001", "4", "30", "1", "1"}, RAISES},
    {"BadSecondPair",
     {"rangedate", "", "20170101 x2018401", "20170131 20180430"},
     {"001", "4", "30", "4", "1"},
     RAISES},
    {"BadSecondPairIsNotReached",
     {"rangedate", "", "20180101 x", "20181231 x"},
     {"001", "4", "30", "4", "1"},
     PASSES},
    {"TooShortForTheSlashes",
     {"rangedate", "", "101", "331"},
     {"001", "4", "30", "2", "1"},
     RAISES},
    {"FourCharactersAreNoDate",
     {"rangedate", "", "0101", "0331"},
     {"001", "4", "30", "2", "1"},
     RAISES},
    {"OnlyMinWithOwnYear",
     {"rangedate", "", "****0101", "20181231"},
     {"001", "4", "30", "2", "1"},
     RAISES},
    {"OnlyMaxWithOwnYear",
     {"rangedate", "", "20180101", "****1231"},
     {"001", "4", "30", "2", "1"},
     RAISES},
};

INSTANTIATE_TEST_SUITE_P(Dates, ValidRangedateTest, testing::ValuesIn(CASES), CaseName());

using ValidRangedateTextTest = ResetState;

TEST_F(ValidRangedateTextTest, AnEmptyTextIsNoDate)
{
    EXPECT_EQ(OnValue(*MakeItem(YEAR_2018), ""), Verdict(HE70012E));
}

TEST_F(ValidRangedateTextTest, ATextWithoutASlashKeepsTheAsterisks)
{
    EXPECT_EQ(OnValue(*MakeItem(FIRST_QUARTER), "2018-03-03"), RAISES);
}

TEST_F(ValidRangedateTextTest, ARefusalIsLogged)
{
    const auto pItem = MakeItem(TWO_RANGES);
    pItem->SetErrOutput(false);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnValue(*pItem, "2018/05/01"), REFUSES); }),
              "szValueの値が範囲外です。\nszValueの値が範囲外です。\n"
              "すべてのチェック範囲で範囲外です。\n");
}

}  // namespace
