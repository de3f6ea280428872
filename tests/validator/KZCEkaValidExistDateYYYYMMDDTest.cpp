#include "validator/KZCEkaValidExistDateYYYYMMDD.h"

#include "support/LogText.h"
#include "support/RecordCase.h"

namespace {

// Year, month and day stand in columns 2 to 4 of most of these records.
constexpr const char* REFUSED = "refuses 0001-02:04-HE70012E";

class ValidExistDateYYYYMMDDTest : public RecordCaseTest
{};

TEST_P(ValidExistDateYYYYMMDDTest, PassesThreeCellsThatAreADateOrEmpty)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

// Wanted: it records for itself wherever it runs.
TEST_P(ValidExistDateYYYYMMDDTest, RecordsAsAConditionToo)
{
    EXPECT_EQ(ToldAsCondition(), GetParam().strTold);
}

constexpr ItemText FROM_2 = {"existdateYYYYMMDD", "2 3 4"};

const RecordCase CASES[] = {
    {"Date", FROM_2, {"001", "2019", "4", "30"}, PASSES},
    {"ZerosInFront", FROM_2, {"001", "2019", "04", "03"}, PASSES},
    {"AllEmpty", FROM_2, {"001", "", "", ""}, PASSES},
    {"LetterAloneInTheYear", FROM_2, {"001", "x"}, REFUSED},
    {"RecordTooShort", FROM_2, {"001"}, PASSES},
    {"LeapDay", FROM_2, {"001", "2020", "2", "29"}, PASSES},
    {"LeapDayOfACommonYear", FROM_2, {"001", "2019", "2", "29"}, REFUSED},
    {"LeapDayOfACentury", FROM_2, {"001", "1900", "2", "29"}, REFUSED},
    {"LeapDayOfAFourthCentury", FROM_2, {"001", "2000", "2", "29"}, PASSES},
    {"Month13", FROM_2, {"001", "2019", "13", "1"}, REFUSED},
    {"Day0", FROM_2, {"001", "2019", "4", "0"}, REFUSED},
    {"YearEmpty", FROM_2, {"001", "", "4", "30"}, REFUSED},
    {"MonthEmpty", FROM_2, {"001", "2019", "", "30"}, REFUSED},
    {"DayEmpty", FROM_2, {"001", "2019", "4", ""}, REFUSED},
    {"Year99", FROM_2, {"001", "99", "4", "30"}, REFUSED},
    {"Year100", FROM_2, {"001", "100", "4", "30"}, PASSES},
    {"Year9999", FROM_2, {"001", "9999", "12", "31"}, PASSES},
    {"Year10000", FROM_2, {"001", "10000", "1", "1"}, REFUSED},
    {"NegativeYear", FROM_2, {"001", "-2019", "4", "30"}, REFUSED},
    {"LetterInTheYear", FROM_2, {"001", "x", "4", "30"}, REFUSED},
    {"TrailingLettersVanish", FROM_2, {"001", "2019y", "4m", "30d"}, PASSES},
    {"TheItemsOwnCellDoesNotCount",
     {"existdateYYYYMMDD", "3 4 5"},
     {"001", "x", "2019", "4", "30"},
     PASSES},
    {"RecordsFromYearToDay",
     {"existdateYYYYMMDD", "3 5 9"},
     {"001", "", "2019", "", "4", "", "", "", "31"},
     "refuses 0001-03:09-HE70012E"},
    {"ColumnsInAnotherOrder",
     {"existdateYYYYMMDD", "4 3 2"},
     {"001", "31", "4", "2019"},
     "refuses 0001-04:02-HE70012E"},
    // Parameters that can't serve.
    {"NoColumns", {"existdateYYYYMMDD"}, {"001", "2019", "4", "30"}, RAISES},
    {"TwoColumns", {"existdateYYYYMMDD", "2 3"}, {"001", "2019", "4", "30"}, RAISES},
    {"FourColumns", {"existdateYYYYMMDD", "2 3 4 5"}, {"001", "2019", "4", "30"}, RAISES},
    {"NoNumber", {"existdateYYYYMMDD", "2 x 4"}, {"001", "2019", "4", "30"}, RAISES},
    {"TwoBlanks", {"existdateYYYYMMDD", "2  3 4"}, {"001", "2019", "4", "30"}, RAISES},
    {"BlankAtTheEnd", {"existdateYYYYMMDD", "2 3 4 "}, {"001", "2019", "4", "30"}, RAISES},
};

INSTANTIATE_TEST_SUITE_P(Dates, ValidExistDateYYYYMMDDTest, testing::ValuesIn(CASES), CaseName());

class ValidExistDateYYYYMMDDRecordTest : public ResetState
{
protected:
    const TableCsv m_csv{{"001", "2019", "4", "30"}, {"001", "2019", "4", "31"}};
};

TEST_F(ValidExistDateYYYYMMDDRecordTest, RefusesAgainAndAgain)
{
    const auto pItem = MakeItem(FROM_2, CASE_COLUMN);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-02:04-HE70012E");
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0), PASSES);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-02:04-HE70012E");
}

TEST_F(ValidExistDateYYYYMMDDRecordTest, WithoutAFileRaises)
{
    EXPECT_EQ(OnValue(*MakeItem(FROM_2), "2019"), RAISES);
}

TEST_F(ValidExistDateYYYYMMDDRecordTest, ABareValueIsIgnoredForTheLastRecord)
{
    const auto pItem = MakeItem(FROM_2, CASE_COLUMN);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0), PASSES);
    EXPECT_EQ(OnValue(*pItem, "x"), PASSES);
}

struct FaultCase
{
    const char* szName;
    const char* szColumns;
    const char* szLogged;
};

void PrintTo(const FaultCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidExistDateYYYYMMDDFaultTest : public ResetState,
                                        public testing::WithParamInterface<FaultCase>
{};

TEST_P(ValidExistDateYYYYMMDDFaultTest, IsLogged)
{
    const TableCsv csv{{"001", "2019", "4", "30"}};
    const auto pItem = MakeItem({"existdateYYYYMMDD", GetParam().szColumns}, CASE_COLUMN);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnRecord(*pItem, csv), RAISES); }), GetParam().szLogged);
}

constexpr FaultCase FAULTS[] = {
    {"NoColumns", "", "定義体パラメータ指定エラー。\n"},
    {"TwoColumns", "2 3", "定義体パラメータ不足。\n"},
    {"FourColumns", "2 3 4 5", "定義体パラメータ不足。\n"},
};

INSTANTIATE_TEST_SUITE_P(Parameters,
                         ValidExistDateYYYYMMDDFaultTest,
                         testing::ValuesIn(FAULTS),
                         CaseName());

}  // namespace
