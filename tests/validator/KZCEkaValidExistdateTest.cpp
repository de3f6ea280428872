#include "validator/KZCEkaValidExistdate.h"

#include "support/LogText.h"
#include "support/RecordCase.h"

namespace {

constexpr const char* REFUSED = "refuses 0001-02:05-HE70012E";

class ValidExistdateTest : public RecordCaseTest
{};

TEST_P(ValidExistdateTest, PassesADateOfItsEra)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

TEST_P(ValidExistdateTest, HoldsAsAConditionForADateOfItsEra)
{
    EXPECT_EQ(ToldAsCondition(), ConditionTold());
}

const RecordCase CASES[] = {
    // The ends of the eras.
    {"MeijiBeforeItsSpan", {"existdate"}, {"001", "1", "22", "12", "31"}, REFUSED},
    {"MeijiFirst", {"existdate"}, {"001", "1", "23", "1", "1"}, PASSES},
    {"MeijiLast", {"existdate"}, {"001", "1", "45", "7", "29"}, PASSES},
    {"MeijiBehindItsEnd", {"existdate"}, {"001", "1", "45", "7", "30"}, REFUSED},
    {"TaishoBeforeItsStart", {"existdate"}, {"001", "2", "1", "7", "29"}, REFUSED},
    {"TaishoFirst", {"existdate"}, {"001", "2", "1", "7", "30"}, PASSES},
    {"TaishoLast", {"existdate"}, {"001", "2", "15", "12", "24"}, PASSES},
    {"TaishoBehindItsEnd", {"existdate"}, {"001", "2", "15", "12", "25"}, REFUSED},
    {"ShowaBeforeItsStart", {"existdate"}, {"001", "3", "1", "12", "24"}, REFUSED},
    {"ShowaFirst", {"existdate"}, {"001", "3", "1", "12", "25"}, PASSES},
    {"ShowaLast", {"existdate"}, {"001", "3", "64", "1", "7"}, PASSES},
    {"ShowaBehindItsEnd", {"existdate"}, {"001", "3", "64", "1", "8"}, REFUSED},
    {"Showa65", {"existdate"}, {"001", "3", "65", "1", "1"}, REFUSED},
    {"HeiseiBeforeItsStart", {"existdate"}, {"001", "4", "1", "1", "7"}, REFUSED},
    {"HeiseiFirst", {"existdate"}, {"001", "4", "1", "1", "8"}, PASSES},
    {"HeiseiLast", {"existdate"}, {"001", "4", "31", "4", "30"}, PASSES},
    {"NewEraBeforeItsStart", {"existdate"}, {"001", "5", "1", "4", "30"}, REFUSED},
    {"NewEraFirst", {"existdate"}, {"001", "5", "1", "5", "1"}, PASSES},
    {"NewEraIsOpen", {"existdate"}, {"001", "5", "99", "12", "31"}, PASSES},
    // The change of era.
    {"Heisei31MayMovesOn", {"existdate"}, {"001", "4", "31", "5", "1"}, PASSES},
    {"Heisei31DecemberMovesOn", {"existdate"}, {"001", "4", "31", "12", "31"}, PASSES},
    {"Heisei32JanuaryMovesOn", {"existdate"}, {"001", "4", "32", "1", "1"}, PASSES},
    {"Heisei32MarchMovesOn", {"existdate"}, {"001", "4", "32", "3", "31"}, PASSES},
    {"Heisei32April", {"existdate"}, {"001", "4", "32", "4", "1"}, REFUSED},
    {"Heisei32December", {"existdate"}, {"001", "4", "32", "12", "31"}, REFUSED},
    {"Heisei33", {"existdate"}, {"001", "4", "33", "1", "1"}, REFUSED},
    {"Heisei99", {"existdate"}, {"001", "4", "99", "12", "31"}, REFUSED},
    // Days that don't exist in any era.
    {"MeijiFebruary30", {"existdate"}, {"001", "1", "40", "2", "30"}, REFUSED},
    {"TaishoFebruary30", {"existdate"}, {"001", "2", "10", "2", "30"}, REFUSED},
    {"ShowaFebruary30", {"existdate"}, {"001", "3", "50", "2", "30"}, REFUSED},
    {"HeiseiFebruary30", {"existdate"}, {"001", "4", "20", "2", "30"}, REFUSED},
    {"NewEraFebruary30", {"existdate"}, {"001", "5", "2", "2", "30"}, REFUSED},
    {"LeapDay", {"existdate"}, {"001", "5", "2", "2", "29"}, PASSES},
    {"LeapDayOfACommonYear", {"existdate"}, {"001", "4", "30", "2", "29"}, REFUSED},
    {"June31MovesOnAndIsRefused", {"existdate"}, {"001", "4", "31", "6", "31"}, REFUSED},
    {"Month13", {"existdate"}, {"001", "4", "30", "13", "1"}, REFUSED},
    {"EmptyDay", {"existdate"}, {"001", "4", "30", "9", ""}, REFUSED},
    {"LetterInTheDay", {"existdate"}, {"001", "4", "30", "9", "x"}, REFUSED},
    {"LetterInTheYearIsYear0", {"existdate"}, {"001", "4", "x", "9", "1"}, REFUSED},
    {"LetterBehindTheYearVanishes", {"existdate"}, {"001", "4", "3x", "9", "1"}, PASSES},
    {"Year0", {"existdate"}, {"001", "4", "0", "9", "1"}, REFUSED},
    // No date.
    {"EraEmpty", {"existdate"}, {"001", "", "30", "9", "1"}, REFUSED},
    {"Era0", {"existdate"}, {"001", "0", "30", "9", "1"}, REFUSED},
    {"Era6", {"existdate"}, {"001", "6", "30", "9", "1"}, REFUSED},
};

INSTANTIATE_TEST_SUITE_P(Dates, ValidExistdateTest, testing::ValuesIn(CASES), CaseName());

class ValidExistdateTextTest : public ResetState, public testing::WithParamInterface<ValueCase>
{};

TEST_P(ValidExistdateTextTest, IsTestedByTheSpanOfTheEraThatItNames)
{
    EXPECT_EQ(OnValue(*MakeItem({"existdate"}), GetParam().szValue), Verdict(GetParam().eRefusal));
}

constexpr ValueCase TEXTS[] = {
    {"Null", nullptr, MSG_NONE},
    {"Empty", "", HE70012E},
    {"WesternWithoutBounds", "1800/01/01", MSG_NONE},
    {"WesternThatIsNoDate", "2019/02/29", HE70012E},
    {"NoDate", "x", HE70012E},
    {"EraText", "昭和64/ 1/ 7", MSG_NONE},
    {"EraTextBehindItsEnd", "昭和64/ 1/ 8", HE70012E},
    {"Heisei31MayIsNotMovedHere", "平成31/ 5/ 1", MSG_NONE},
    {"Heisei32March", "平成32/ 3/31", MSG_NONE},
    {"Heisei32April", "平成32/ 4/ 1", HE70012E},
    {"Heisei33", "平成33/ 1/ 1", HE70012E},
};

INSTANTIATE_TEST_SUITE_P(Texts, ValidExistdateTextTest, testing::ValuesIn(TEXTS), CaseName());

using ValidExistdateLogTest = ResetState;

TEST_F(ValidExistdateLogTest, YearsBehindTheFourthEraAreWrittenToTheLog)
{
    for (const char* szText : {"平成32/ 4/ 1", "平成33/ 1/ 1"}) {
        EXPECT_NE(LogOf([&] {
                      EXPECT_EQ(OnValue(*MakeItem({"existdate"}), szText), Verdict(HE70012E));
                  }).find("[File:"),
                  std::string::npos)
            << szText;
    }
}

}  // namespace
