#include "validator/KZCEkaValidExistdate_2.h"

#include "support/RecordCase.h"

namespace {

constexpr const char* REFUSED = "refuses 0001-02:05-HE70012E";

class ValidExistdate_2Test : public RecordCaseTest
{};

TEST_P(ValidExistdate_2Test, PassesADateOfTheEraThatTheRecordStates)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

TEST_P(ValidExistdate_2Test, HoldsAsAConditionForADateOfTheStatedEra)
{
    EXPECT_EQ(ToldAsCondition(), ConditionTold());
}

const RecordCase CASES[] = {
    {"MeijiBeforeItsSpan", {"existdate_2"}, {"001", "1", "22", "12", "31"}, REFUSED},
    {"MeijiFirst", {"existdate_2"}, {"001", "1", "23", "1", "1"}, PASSES},
    {"MeijiLast", {"existdate_2"}, {"001", "1", "45", "7", "29"}, PASSES},
    {"MeijiBehindItsEnd", {"existdate_2"}, {"001", "1", "45", "7", "30"}, REFUSED},
    {"TaishoBeforeItsStart", {"existdate_2"}, {"001", "2", "1", "7", "29"}, REFUSED},
    {"TaishoFirst", {"existdate_2"}, {"001", "2", "1", "7", "30"}, PASSES},
    {"TaishoLast", {"existdate_2"}, {"001", "2", "15", "12", "24"}, PASSES},
    {"TaishoBehindItsEnd", {"existdate_2"}, {"001", "2", "15", "12", "25"}, REFUSED},
    {"ShowaBeforeItsStart", {"existdate_2"}, {"001", "3", "1", "12", "24"}, REFUSED},
    {"ShowaFirst", {"existdate_2"}, {"001", "3", "1", "12", "25"}, PASSES},
    {"ShowaLast", {"existdate_2"}, {"001", "3", "64", "1", "7"}, PASSES},
    {"ShowaBehindItsEnd", {"existdate_2"}, {"001", "3", "64", "1", "8"}, REFUSED},
    {"HeiseiBeforeItsStart", {"existdate_2"}, {"001", "4", "1", "1", "7"}, REFUSED},
    {"HeiseiFirst", {"existdate_2"}, {"001", "4", "1", "1", "8"}, PASSES},
    {"HeiseiLast", {"existdate_2"}, {"001", "4", "31", "4", "30"}, PASSES},
    {"Heisei31MayIsNotMoved", {"existdate_2"}, {"001", "4", "31", "5", "1"}, REFUSED},
    {"Heisei32MarchIsNotMoved", {"existdate_2"}, {"001", "4", "32", "3", "31"}, REFUSED},
    {"Heisei32April", {"existdate_2"}, {"001", "4", "32", "4", "1"}, REFUSED},
    {"NewEraBeforeItsStart", {"existdate_2"}, {"001", "5", "1", "4", "30"}, REFUSED},
    {"NewEraFirst", {"existdate_2"}, {"001", "5", "1", "5", "1"}, PASSES},
    {"NewEraIsOpen", {"existdate_2"}, {"001", "5", "99", "12", "31"}, PASSES},
    {"February30", {"existdate_2"}, {"001", "3", "50", "2", "30"}, REFUSED},
    {"EmptyDay", {"existdate_2"}, {"001", "4", "30", "9", ""}, REFUSED},
    {"EraEmpty", {"existdate_2"}, {"001", "", "30", "9", "1"}, REFUSED},
    {"Era6", {"existdate_2"}, {"001", "6", "30", "9", "1"}, REFUSED},
};

INSTANTIATE_TEST_SUITE_P(Dates, ValidExistdate_2Test, testing::ValuesIn(CASES), CaseName());

class ValidExistdate_2TextTest : public ResetState, public testing::WithParamInterface<ValueCase>
{};

TEST_P(ValidExistdate_2TextTest, IsTestedByTheSpanOfTheEraThatItNames)
{
    EXPECT_EQ(OnValue(*MakeItem({"existdate_2"}), GetParam().szValue),
              Verdict(GetParam().eRefusal));
}

constexpr ValueCase TEXTS[] = {
    {"Null", nullptr, MSG_NONE},
    {"Empty", "", HE70012E},
    {"WesternWithoutBounds", "1800/01/01", MSG_NONE},
    {"WesternThatIsNoDate", "2019/02/29", HE70012E},
    {"Heisei31April", "平成31/ 4/30", MSG_NONE},
    {"Heisei31May", "平成31/ 5/ 1", HE70012E},
    {"Heisei32March", "平成32/ 3/31", HE70012E},
};

INSTANTIATE_TEST_SUITE_P(Texts, ValidExistdate_2TextTest, testing::ValuesIn(TEXTS), CaseName());

}  // namespace
