#include "validator/KZCEkaValidOnward.h"

#include "support/RecordCase.h"

namespace {

constexpr const char* TOO_EARLY = "refuses 0001-02:05-HE70010E";
constexpr const char* NO_DATE = "refuses 0001-02:05-HE70012E";

class ValidOnwardTest : public RecordCaseTest
{};

TEST_P(ValidOnwardTest, PassesTheDateAndLaterOnes)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

TEST_P(ValidOnwardTest, HoldsAsAConditionFromTheDateOn)
{
    EXPECT_EQ(ToldAsCondition(), ConditionTold());
}

constexpr ItemText FROM_MAY_2019 = {"onward", "20190501"};

const RecordCase CASES[] = {
    {"DayBefore", FROM_MAY_2019, {"001", "4", "31", "4", "30"}, TOO_EARLY},
    {"TheDay", FROM_MAY_2019, {"001", "5", "1", "5", "1"}, PASSES},
    {"TheDayInTheOldEra", FROM_MAY_2019, {"001", "4", "31", "5", "1"}, PASSES},
    {"DayBehind", FROM_MAY_2019, {"001", "5", "1", "5", "2"}, PASSES},
    {"DecadesBehind", FROM_MAY_2019, {"001", "5", "99", "12", "31"}, PASSES},
    {"LongBefore", FROM_MAY_2019, {"001", "1", "1", "1", "1"}, TOO_EARLY},
    {"ImpossibleDate", FROM_MAY_2019, {"001", "5", "1", "6", "31"}, NO_DATE},
    {"EmptyDay", FROM_MAY_2019, {"001", "5", "1", "6", ""}, NO_DATE},
    {"EraEmpty", FROM_MAY_2019, {"001", "", "1", "6", "1"}, NO_DATE},
    {"ImpossibleDateBeforeABadBound", {"onward"}, {"001", "5", "1", "6", "31"}, NO_DATE},
    {"NoBound", {"onward"}, {"001", "5", "1", "6", "1"}, RAISES},
    {"BoundOfSevenCharacters", {"onward", "2019501"}, {"001", "5", "1", "6", "1"}, RAISES},
    {"BoundOfTenCharacters", {"onward", "2019/05/01"}, {"001", "5", "1", "6", "1"}, RAISES},
    {"BoundThatIsNoDate", {"onward", "20190431"}, {"001", "5", "1", "6", "1"}, RAISES},
};

INSTANTIATE_TEST_SUITE_P(Dates, ValidOnwardTest, testing::ValuesIn(CASES), CaseName());

using ValidOnwardTextTest = ResetState;

TEST_F(ValidOnwardTextTest, NullAndTheEmptyTextAreNoDate)
{
    EXPECT_EQ(OnValue(*MakeItem(FROM_MAY_2019), ""), Verdict(HE70012E));
    EXPECT_EQ(
        Told([] {
            return MakeItem(FROM_MAY_2019)->Validate(nullptr, ARGUMENT_RECORD, ARGUMENT_NUMBER);
        }),
        Verdict(HE70012E));
}

}  // namespace
