#include "validator/KZCEkaValidCompDate.h"

#include "support/RecordCase.h"

namespace {

constexpr const char* MISMATCH = "refuses 0001-02:05-HE70010E";
constexpr const char* NO_DATE = "refuses 0001-02:05-HE70012E";

class ValidCompDateTest : public RecordCaseTest
{};

TEST_P(ValidCompDateTest, ComparesInTheSenseOfTheFirstUsableParameter)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

TEST_P(ValidCompDateTest, HoldsAsAConditionInTheSameSense)
{
    EXPECT_EQ(ToldAsCondition(), ConditionTold());
}

constexpr ItemText EQUAL = {"compdate", "20190501"};
constexpr ItemText NOT_BEFORE = {"compdate", "", "20190501"};
constexpr ItemText NOT_AFTER = {"compdate", "", "", "20190501"};

const KZCEkaCsvFile::Record DAY_BEFORE = {"001", "4", "31", "4", "30"};
const KZCEkaCsvFile::Record THE_DAY = {"001", "5", "1", "5", "1"};
const KZCEkaCsvFile::Record DAY_AFTER = {"001", "5", "1", "5", "2"};

const RecordCase CASES[] = {
    {"EqualDayBefore", EQUAL, DAY_BEFORE, MISMATCH},
    {"EqualTheDay", EQUAL, THE_DAY, PASSES},
    {"EqualTheDayInTheOldEra", EQUAL, {"001", "4", "31", "5", "1"}, PASSES},
    {"EqualDayAfter", EQUAL, DAY_AFTER, MISMATCH},
    {"NotBeforeDayBefore", NOT_BEFORE, DAY_BEFORE, MISMATCH},
    {"NotBeforeTheDay", NOT_BEFORE, THE_DAY, PASSES},
    {"NotBeforeDayAfter", NOT_BEFORE, DAY_AFTER, PASSES},
    {"NotAfterDayBefore", NOT_AFTER, DAY_BEFORE, PASSES},
    {"NotAfterTheDay", NOT_AFTER, THE_DAY, PASSES},
    {"NotAfterDayAfter", NOT_AFTER, DAY_AFTER, MISMATCH},
    // The order of the parameters.
    {"ValueBeforeMin", {"compdate", "20190501", "20180101", ""}, DAY_AFTER, MISMATCH},
    {"ValueBeforeMax", {"compdate", "20190501", "", "20200101"}, DAY_AFTER, MISMATCH},
    {"MinBeforeMax", {"compdate", "", "20190501", "20190501"}, DAY_AFTER, PASSES},
    {"ValueOfSevenCharactersLeavesItToMin", {"compdate", "2019501", "20190501"}, DAY_AFTER, PASSES},
    {"ValueOfSevenCharactersLeavesItToMinToo",
     {"compdate", "2019501", "20190501"},
     DAY_BEFORE,
     MISMATCH},
    {"MinOfNineCharactersLeavesItToMax",
     {"compdate", "", "201905010", "20190501"},
     DAY_BEFORE,
     PASSES},
    // Dates and bounds that are none.
    {"ImpossibleDate", EQUAL, {"001", "5", "1", "6", "31"}, NO_DATE},
    {"ImpossibleDateBeforeABadBound",
     {"compdate", "20191301"},
     {"001", "5", "1", "6", "31"},
     NO_DATE},
    {"EraEmpty", NOT_BEFORE, {"001", "", "1", "6", "1"}, NO_DATE},
    {"BadBound", {"compdate", "20190431"}, THE_DAY, RAISES},
    {"BadBoundIsNotPassedOver", {"compdate", "20190431", "20190501", "20190501"}, THE_DAY, RAISES},
    {"NoParameter", {"compdate"}, THE_DAY, RAISES},
    {"NoneOfEightCharacters", {"compdate", "1", "2019501", "2019/05/01"}, THE_DAY, RAISES},
    {"NoParameterBeforeAnImpossibleDate", {"compdate"}, {"001", "5", "1", "6", "31"}, RAISES},
};

INSTANTIATE_TEST_SUITE_P(Dates, ValidCompDateTest, testing::ValuesIn(CASES), CaseName());

using ValidCompDateOrderTest = ResetState;

TEST_F(ValidCompDateOrderTest, AnEmptyDateIsRefusedBeforeTheParametersAreLookedAt)
{
    const TableCsv csv{{"001", "", "1", "6", "1"}};
    EXPECT_EQ(OnRecord(*MakeItem({"compdate"}, CASE_COLUMN), csv), NO_DATE);
    EXPECT_EQ(AsCondition(*MakeItem({"compdate"}, CASE_COLUMN), csv), RAISES);
}

}  // namespace
