#include "validator/KZCEkaValidAge.h"

#include <stdexcept>

#include "support/DebugLog.h"
#include "support/LogText.h"
#include "support/RecordCase.h"

namespace {

// The item stands in column 2, the birth date in columns 3 to 6, the year in 7 and 8.
constexpr const char* REFUSED = "refuses 0001-00002-HE70010E";

class ValidAgeTest : public RecordCaseTest
{};

TEST_P(ValidAgeTest, PassesAnAgeBetweenTheLimits)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

TEST_P(ValidAgeTest, HoldsAsAConditionBetweenTheLimits)
{
    EXPECT_EQ(ToldAsCondition(), ConditionTold());
}

/// Exactly this age on the reference date.
constexpr ItemText Aged(const char* szTokens, const char* szAge)
{
    return {"age", szTokens, szAge, szAge};
}

constexpr const char* JANUARY_1 = "3 7 0 1 1";

const RecordCase CASES[] = {
    // Age on 1 January of 2018.
    {"BornOn1January", Aged(JANUARY_1, "20"), {"001", "", "4", "10", "1", "1", "4", "30"}, PASSES},
    {"BornOn2January", Aged(JANUARY_1, "19"), {"001", "", "4", "10", "1", "2", "4", "30"}, PASSES},
    {"BornOn31December",
     Aged(JANUARY_1, "20"),
     {"001", "", "4", "9", "12", "31", "4", "30"},
     PASSES},
    {"BornInFebruary", Aged(JANUARY_1, "19"), {"001", "", "4", "10", "2", "1", "4", "30"}, PASSES},
    {"OneYearAdded", Aged("3 7 1 1 1", "21"), {"001", "", "4", "10", "1", "1", "4", "30"}, PASSES},
    {"OneYearTakenAway",
     Aged("3 7 -1 1 1", "19"),
     {"001", "", "4", "10", "1", "1", "4", "30"},
     PASSES},
    {"ManyYearsAdded",
     Aged("3 7 100 1 1", "120"),
     {"001", "", "4", "10", "1", "1", "4", "30"},
     PASSES},
    {"NoNumberAddsNothing",
     Aged("3 7 x 1 1", "20"),
     {"001", "", "4", "10", "1", "1", "4", "30"},
     PASSES},
    {"AnotherReferenceDay",
     Aged("3 7 0 4 1", "20"),
     {"001", "", "4", "10", "4", "1", "4", "30"},
     PASSES},
    {"DayBehindTheReferenceDay",
     Aged("3 7 0 4 1", "19"),
     {"001", "", "4", "10", "4", "2", "4", "30"},
     PASSES},
    {"MonthBeforeTheReferenceMonth",
     Aged("3 7 0 4 1", "20"),
     {"001", "", "4", "10", "3", "31", "4", "30"},
     PASSES},
    {"ReferenceWithZeros",
     Aged("3 7 0 04 01", "20"),
     {"001", "", "4", "10", "4", "1", "4", "30"},
     PASSES},
    {"BornOnALeapDay",
     Aged("3 7 0 2 28", "1"),
     {"001", "", "4", "28", "2", "29", "4", "30"},
     PASSES},
    {"BornOnALeapDayInMarch",
     Aged("3 7 0 3 1", "2"),
     {"001", "", "4", "28", "2", "29", "4", "30"},
     PASSES},
    {"BornInMeiji", Aged(JANUARY_1, "118"), {"001", "", "1", "33", "1", "1", "4", "30"}, PASSES},
    {"NotYetBorn", Aged(JANUARY_1, "-2"), {"001", "", "5", "2", "1", "1", "4", "30"}, PASSES},
    {"BirthDateMovedToTheNewEra",
     Aged(JANUARY_1, "0"),
     {"001", "", "4", "31", "5", "1", "5", "2"},
     PASSES},
    // Read by its base, though the old era had ended before the reference day.
    {"ReferenceYearBehindTheEndOfItsEra",
     Aged("3 7 0 12 31", "20"),
     {"001", "", "4", "12", "12", "31", "4", "32"},
     PASSES},
    // Limits.
    {"AtMin", {"age", JANUARY_1, "20"}, {"001", "", "4", "10", "1", "1", "4", "30"}, PASSES},
    {"AboveMin", {"age", JANUARY_1, "20"}, {"001", "", "4", "1", "2", "1", "4", "30"}, PASSES},
    {"BelowMin", {"age", JANUARY_1, "20"}, {"001", "", "4", "10", "1", "2", "4", "30"}, REFUSED},
    {"AtMax", {"age", JANUARY_1, "", "20"}, {"001", "", "4", "10", "1", "1", "4", "30"}, PASSES},
    {"BelowMax", {"age", JANUARY_1, "", "20"}, {"001", "", "4", "10", "1", "2", "4", "30"}, PASSES},
    {"AboveMax", {"age", JANUARY_1, "", "20"}, {"001", "", "4", "9", "1", "1", "4", "30"}, REFUSED},
    {"BetweenMinAndMax",
     {"age", JANUARY_1, "18", "22"},
     {"001", "", "4", "10", "1", "1", "4", "30"},
     PASSES},
    {"NoLimits", {"age", JANUARY_1}, {"001", "", "1", "23", "1", "1", "4", "30"}, PASSES},
    {"MinThatIsNoNumberIsZero",
     {"age", JANUARY_1, "x"},
     {"001", "", "5", "2", "1", "1", "4", "30"},
     REFUSED},
    {"MaxThatIsNoNumberIsZero",
     {"age", JANUARY_1, "", "x"},
     {"001", "", "4", "29", "1", "1", "4", "30"},
     REFUSED},
    // Dates that can't be converted: refused even without limits.
    {"BornOn30February", {"age", JANUARY_1}, {"001", "", "4", "10", "2", "30", "4", "30"}, REFUSED},
    {"BirthEraEmpty", {"age", JANUARY_1}, {"001", "", "", "10", "1", "1", "4", "30"}, REFUSED},
    {"BirthDateEmpty", {"age", JANUARY_1}, {"001", "", "", "", "", "", "4", "30"}, REFUSED},
    {"BirthDayEmpty", {"age", JANUARY_1}, {"001", "", "4", "10", "1", "", "4", "30"}, REFUSED},
    {"YearsEraEmpty", {"age", JANUARY_1}, {"001", "", "4", "10", "1", "1", "", "30"}, REFUSED},
    {"YearMissing", {"age", JANUARY_1}, {"001", "", "4", "10", "1", "1"}, REFUSED},
    {"ReferenceOn30February",
     {"age", "3 7 0 2 30"},
     {"001", "", "4", "10", "1", "1", "4", "30"},
     REFUSED},
    {"ReferenceMonth13",
     {"age", "3 7 0 13 1"},
     {"001", "", "4", "10", "1", "1", "4", "30"},
     REFUSED},
    {"ReferenceIsADateBeforeYearsAreAdded",
     {"age", "3 7 1 2 29"},
     {"001", "", "4", "10", "1", "1", "4", "28"},
     PASSES},
    {"BirthColumn0", {"age", "0 7 0 1 1"}, {"001", "", "4", "10", "1", "1", "4", "30"}, REFUSED},
    {"BirthColumnThatIsNoNumber",
     {"age", "x 7 0 1 1"},
     {"001", "", "4", "10", "1", "1", "4", "30"},
     REFUSED},
    // Too few tokens.
    {"TwoTokens", {"age", "3 7"}, {"001", "", "4", "10", "1", "1", "4", "30"}, REFUSED},
    {"ThreeTokens", {"age", "3 7 0"}, {"001", "", "4", "10", "1", "1", "4", "30"}, REFUSED},
    {"FourTokens", {"age", "3 7 0 1"}, {"001", "", "4", "10", "1", "1", "4", "30"}, REFUSED},
    {"RunsOfBlanksSeparate",
     Aged(" 3  7 0 1   1 ", "20"),
     {"001", "", "4", "10", "1", "1", "4", "30"},
     PASSES},
    {"NoTokens", {"age"}, {"001", "", "4", "10", "1", "1", "4", "30"}, RAISES},
    {"YearColumn0", {"age", "3 0 0 1 1"}, {"001", "", "4", "10", "1", "1", "4", "30"}, RAISES},
    {"YearColumnThatIsNoNumber",
     {"age", "3 x 0 1 1"},
     {"001", "", "4", "10", "1", "1", "4", "30"},
     RAISES},
    // The width of the record.
    {"DaysWidensTheRecord",
     {"age", "3 7 0 1 1 days", "21"},
     {"001", "", "4", "10", "1", "1", "4", "30"},
     "refuses 0001-02:05-HE70010E"},
    {"DaysCountsAsTheSixthOfMore",
     {"age", "3 7 0 1 1 days x", "21"},
     {"001", "", "4", "10", "1", "1", "4", "30"},
     "refuses 0001-02:05-HE70010E"},
    {"AnotherSixthToken",
     {"age", "3 7 0 1 1 Days", "21"},
     {"001", "", "4", "10", "1", "1", "4", "30"},
     REFUSED},
    {"LongerSixthToken",
     {"age", "3 7 0 1 1 daysx", "21"},
     {"001", "", "4", "10", "1", "1", "4", "30"},
     REFUSED},
    {"DaysAsTheSeventh",
     {"age", "3 7 0 1 1 x days", "21"},
     {"001", "", "4", "10", "1", "1", "4", "30"},
     REFUSED},
};

INSTANTIATE_TEST_SUITE_P(Ages, ValidAgeTest, testing::ValuesIn(CASES), CaseName());

class ValidAgeTokenTest : public ResetState, public testing::WithParamInterface<const char*>
{
protected:
    const TableCsv m_csv{{"001", "", "4", "10", "1", "1", "4", "30"}};
};

TEST_P(ValidAgeTokenTest, FewerThanTwoRaiseTheRangeError)
{
    const auto pItem = MakeItem({"age", GetParam()}, CASE_COLUMN);
    EXPECT_THROW(pItem->ValidateCsv(&m_csv, 0, -1), std::out_of_range);
    EXPECT_THROW(pItem->ValidateOuter(&m_csv, 0, -1), std::out_of_range);
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_P(ValidAgeTokenTest, AreNotCountedIfAConditionDoesNotHold)
{
    const auto pItem = MakeItem({"age", GetParam()}, CASE_COLUMN);
    pItem->AddOuterItem(MakeItem({"empty"}, 0).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv), PASSES);
}

INSTANTIATE_TEST_SUITE_P(Parameters, ValidAgeTokenTest, testing::Values("3", "x", " ", "  "));

class ValidAgeLogTest : public ResetState
{
protected:
    const TableCsv m_csv{{"001", "", "4", "10", "1", "1", "4", "30"}};
};

TEST_F(ValidAgeLogTest, LogsAParameterThatIsMissing)
{
    const auto pItem = MakeItem({"age"}, CASE_COLUMN);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnRecord(*pItem, m_csv), RAISES); }),
              "定義体パラメータ指定エラー。\n");
}

TEST_F(ValidAgeLogTest, LogsAYearColumnBelowOne)
{
    const auto pItem = MakeItem({"age", "3 0 0 1 1"}, CASE_COLUMN);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnRecord(*pItem, m_csv), RAISES); }),
              "定義体パラメータ指定エラー。\n");
}

TEST_F(ValidAgeLogTest, LogsTooFewTokensAsAFailedConversion)
{
    const auto pItem = MakeItem({"age", "3 7 0 1"}, CASE_COLUMN);
    pItem->SetErrOutput(false);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnRecord(*pItem, m_csv), REFUSES); }),
              "日付の変換に失敗しました。\n");
}

TEST_F(ValidAgeLogTest, LogsADateThatIsNone)
{
    const auto pItem = MakeItem({"age", "3 7 0 2 30"}, CASE_COLUMN);
    pItem->SetErrOutput(false);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnRecord(*pItem, m_csv), REFUSES); }),
              "日付の変換に失敗しました。:szValue=平成30/2/30\n日付の変換に失敗しました。\n");
}

// A date of that month would be moved to the new era (新号02), where it stood in four cells.
TEST_F(ValidAgeLogTest, TheReferenceYearKeepsTheEraThatItsCellStates)
{
    const TableCsv csv{{"001", "", "4", "10", "1", "1", "4", "32"}};
    const auto pItem = MakeItem({"age", "3 7 0 2 30"}, CASE_COLUMN);
    pItem->SetErrOutput(false);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnRecord(*pItem, csv), REFUSES); }),
              "日付の変換に失敗しました。:szValue=平成32/2/30\n日付の変換に失敗しました。\n");
}

TEST_F(ValidAgeLogTest, LogsAnAgeOutsideTheLimits)
{
    for (const auto& [szMin, szMax] : {std::pair("21", ""), std::pair("", "19")}) {
        const auto pItem = MakeItem({"age", "3 7 0 1 1", szMin, szMax}, CASE_COLUMN);
        pItem->SetErrOutput(false);
        EXPECT_NE(LogOf([&] { EXPECT_EQ(OnRecord(*pItem, m_csv), REFUSES); }).find("[File:"),
                  std::string::npos);
    }
}

TEST_F(ValidAgeLogTest, TracesTheBirthDateAtTheItemsColumn)
{
    const DebugLog log;
    EXPECT_EQ(OnRecord(*MakeItem({"age", "3 7 0 1 1", "21"}, CASE_COLUMN), m_csv), REFUSED);
    EXPECT_TRUE(log.HasLine("record=0001 column=00002 value=1998/ 1/ 1")) << log.Text();
}

}  // namespace
