#include "validator/KZCEkaValidRangebasedate_2.h"

#include "support/LogText.h"
#include "support/RecordCase.h"

namespace {

constexpr const char* REFUSED = "refuses 0001-02:05-HE70025E";
constexpr const char* NO_BOUND = "refuses 0001-02:05-HE99999E";

// The date stands in columns 2 to 5, the minimum in 6 to 9, the maximum in 10 to 13.
KZCEkaCsvFile::Record Dates(const std::vector<std::string>& vecDate)
{
    KZCEkaCsvFile::Record record = {"001"};
    record.insert(record.end(), vecDate.begin(), vecDate.end());
    for (const char* szCell : {"4", "30", "4", "1", "5", "1", "5", "31"})
        record.emplace_back(szCell);
    return record;
}

class ValidRangebasedate_2Test : public RecordCaseTest
{};

TEST_P(ValidRangebasedate_2Test, PassesADateBetweenTheColumns)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

TEST_P(ValidRangebasedate_2Test, HoldsAsAConditionBetweenTheColumns)
{
    EXPECT_EQ(ToldAsCondition(), ConditionTold());
}

constexpr ItemText OPEN = {"rangebasedate_2", "", "6", "10"};
constexpr ItemText CLOSED = {"rangebasedate_2", "include", "6", "10"};
constexpr ItemText OPEN_MIN = {"rangebasedate_2", "", "6", ""};
constexpr ItemText OPEN_MAX = {"rangebasedate_2", "", "", "10"};
constexpr ItemText CLOSED_MIN = {"rangebasedate_2", "include", "6", ""};
constexpr ItemText CLOSED_MAX = {"rangebasedate_2", "include", "", "10"};
constexpr ItemText OPEN_POINT = {"rangebasedate_2", "", "6", "6"};
constexpr ItemText CLOSED_POINT = {"rangebasedate_2", "include", "6", "6"};

const RecordCase CASES[] = {
    {"OpenBeforeTheMinimum", OPEN, Dates({"4", "30", "3", "31"}), REFUSED},
    {"OpenTheMinimum", OPEN, Dates({"4", "30", "4", "1"}), REFUSED},
    {"OpenDayBehindTheMinimum", OPEN, Dates({"4", "30", "4", "2"}), PASSES},
    {"OpenDayBeforeTheMaximum", OPEN, Dates({"5", "1", "5", "30"}), PASSES},
    {"OpenTheMaximum", OPEN, Dates({"5", "1", "5", "31"}), REFUSED},
    {"OpenTheMaximumInTheOldEra", OPEN, Dates({"4", "31", "5", "31"}), REFUSED},
    {"OpenBehindTheMaximum", OPEN, Dates({"5", "1", "6", "1"}), REFUSED},
    {"ClosedBeforeTheMinimum", CLOSED, Dates({"4", "30", "3", "31"}), REFUSED},
    {"ClosedTheMinimum", CLOSED, Dates({"4", "30", "4", "1"}), PASSES},
    {"ClosedInside", CLOSED, Dates({"4", "31", "4", "30"}), PASSES},
    {"ClosedTheMaximum", CLOSED, Dates({"5", "1", "5", "31"}), PASSES},
    {"ClosedBehindTheMaximum", CLOSED, Dates({"5", "1", "6", "1"}), REFUSED},
    {"OpenMinimumAlone", OPEN_MIN, Dates({"4", "30", "4", "1"}), REFUSED},
    {"OpenMinimumAloneHasNoEnd", OPEN_MIN, Dates({"5", "50", "1", "1"}), PASSES},
    {"OpenMaximumAlone", OPEN_MAX, Dates({"5", "1", "5", "31"}), REFUSED},
    {"OpenMaximumAloneHasNoStart", OPEN_MAX, Dates({"3", "1", "12", "25"}), PASSES},
    {"ClosedMinimumAlone", CLOSED_MIN, Dates({"4", "30", "4", "1"}), PASSES},
    {"ClosedMinimumAloneBeforeIt", CLOSED_MIN, Dates({"4", "30", "3", "31"}), REFUSED},
    {"ClosedMaximumAlone", CLOSED_MAX, Dates({"5", "1", "5", "31"}), PASSES},
    {"ClosedMaximumAloneBehindIt", CLOSED_MAX, Dates({"5", "1", "6", "1"}), REFUSED},
    {"OpenRangeOfADay", OPEN_POINT, Dates({"4", "30", "4", "1"}), REFUSED},
    {"ClosedRangeOfADay", CLOSED_POINT, Dates({"4", "30", "4", "1"}), PASSES},
    {"AnotherWordDoesNotClose",
     {"rangebasedate_2", "Include", "6", "10"},
     Dates({"4", "30", "4", "1"}),
     REFUSED},
    {"LongerWordDoesNotClose",
     {"rangebasedate_2", "include ", "6", "10"},
     Dates({"4", "30", "4", "1"}),
     REFUSED},
    // Bounds that are none.
    {"NoBounds", {"rangebasedate_2"}, Dates({"4", "30", "4", "2"}), NO_BOUND},
    {"NoBoundsIncluded", {"rangebasedate_2", "include"}, Dates({"4", "30", "4", "2"}), NO_BOUND},
    {"ColumnsBelowOneAreNoBounds",
     {"rangebasedate_2", "", "0", "-1"},
     Dates({"4", "30", "4", "2"}),
     NO_BOUND},
    {"NoNumbersAreNoBounds",
     {"rangebasedate_2", "", "x", "_"},
     Dates({"4", "30", "4", "2"}),
     NO_BOUND},
    {"ColumnOfAnEmptyDateIsNoBound",
     {"rangebasedate_2", "", "14", "14"},
     Dates({"4", "30", "4", "2"}),
     NO_BOUND},
    {"MinimumThatIsNoDate",
     {"rangebasedate_2", "", "6", ""},
     {"001", "4", "30", "4", "2", "4", "30", "2", "31"},
     REFUSED},
    {"MaximumThatIsNoDate",
     {"rangebasedate_2", "", "", "6"},
     {"001", "4", "30", "4", "2", "4", "30", "2", "31"},
     REFUSED},
    {"ThreePiecesAreAColumn",
     {"rangebasedate_2", "", "6_1_1", "10"},
     Dates({"4", "30", "3", "31"}),
     REFUSED},
    {"OnePieceBeforeAnUnderscoreIsAColumn",
     {"rangebasedate_2", "", "6_", "10"},
     Dates({"4", "30", "3", "31"}),
     REFUSED},
    // Dates that are none.
    {"ImpossibleDate", OPEN, Dates({"4", "30", "4", "31"}), REFUSED},
    {"ImpossibleDateWithoutBounds", {"rangebasedate_2"}, Dates({"4", "30", "4", "31"}), REFUSED},
    {"EraEmpty", OPEN, Dates({"", "30", "5", "1"}), REFUSED},
};

INSTANTIATE_TEST_SUITE_P(Columns, ValidRangebasedate_2Test, testing::ValuesIn(CASES), CaseName());

// --- cells of other records ---

struct ReferenceCase
{
    const char* szName;
    ItemText text;
    std::string strTold;
};

void PrintTo(const ReferenceCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

// The item runs in the last record, on 2018/9/1.
const TableCsv& ReferenceCsv()
{
    static const TableCsv csv{{"001", "4", "30", "8", "31"}, {"001", "4", "30", "9", "1"},
                              {"001", "4", "30", "9", "2"},  {"001", "4", "30", "9", ""},
                              {"001", "4", "30", "2", "31"}, {"002", "4", "30", "9", "1"}};
    return csv;
}

constexpr long LAST_RECORD = 5;

class ValidRangebasedate_2ReferenceTest : public ResetState,
                                          public testing::WithParamInterface<ReferenceCase>
{};

TEST_P(ValidRangebasedate_2ReferenceTest, GivesTheBound)
{
    EXPECT_EQ(OnRecord(*MakeItem(GetParam().text, CASE_COLUMN), ReferenceCsv(), LAST_RECORD),
              GetParam().strTold);
}

constexpr const char* REFERRED_25 = "refuses 0006-02:05-HE70025E";

const ReferenceCase REFERENCES[] = {
    {"Inside", {"rangebasedate_2", "", "1_2", "3_2"}, PASSES},
    {"TheMinimum", {"rangebasedate_2", "", "2_2", "3_2"}, REFERRED_25},
    {"TheMinimumIncluded", {"rangebasedate_2", "include", "2_2", "3_2"}, PASSES},
    {"TheMaximum", {"rangebasedate_2", "", "1_2", "2_2"}, REFERRED_25},
    {"TheMaximumIncluded", {"rangebasedate_2", "include", "1_2", "2_2"}, PASSES},
    {"BeforeTheMinimum", {"rangebasedate_2", "include", "3_2", ""}, REFERRED_25},
    {"BehindTheMaximum", {"rangebasedate_2", "include", "", "1_2"}, REFERRED_25},
    {"ReferenceAndColumn", {"rangebasedate_2", "include", "1_2", "2"}, PASSES},
    {"RunOfUnderscoresIsOne", {"rangebasedate_2", "", "_3__2_", ""}, REFERRED_25},
    {"EmptyDayCellOfTheMinimum", {"rangebasedate_2", "", "4_2", "1_2"}, PASSES},
    {"EmptyDayCellOfTheMaximum", {"rangebasedate_2", "", "3_2", "4_2"}, PASSES},
    {"MinimumThatIsNoDate", {"rangebasedate_2", "", "5_2", "1_2"}, PASSES},
    {"MaximumThatIsNoDate", {"rangebasedate_2", "", "3_2", "5_2"}, PASSES},
    {"NoSuchRecord", {"rangebasedate_2", "", "9_2", "1_2"}, PASSES},
    {"RecordZero", {"rangebasedate_2", "", "0_2", "1_2"}, PASSES},
    {"NoSuchColumn", {"rangebasedate_2", "", "1_9", "1_2"}, PASSES},
};

INSTANTIATE_TEST_SUITE_P(References,
                         ValidRangebasedate_2ReferenceTest,
                         testing::ValuesIn(REFERENCES),
                         CaseName());

using ValidRangebasedate_2RuleTest = ResetState;

// A condition reads "6_2" as column 6 of its own record.
TEST_F(ValidRangebasedate_2RuleTest, AConditionKnowsColumnsOnly)
{
    const TableCsv csv{{"001", "4", "30", "9", "1", "4", "30", "9", "2"}};
    EXPECT_EQ(AsCondition(*MakeItem({"rangebasedate_2", "", "", "6_2"}, CASE_COLUMN), csv), PASSES);
    EXPECT_EQ(AsCondition(*MakeItem({"rangebasedate_2", "", "6_2", ""}, CASE_COLUMN), csv),
              REFUSES);
}

TEST_F(ValidRangebasedate_2RuleTest, PassesEveryBareValue)
{
    EXPECT_EQ(OnValue(*MakeItem(OPEN, CASE_COLUMN), "x"), PASSES);
    EXPECT_EQ(AsCondition(*MakeItem(OPEN, CASE_COLUMN), "x"), PASSES);
}

struct LogCase
{
    const char* szName;
    ItemText text;
    KZCEkaCsvFile::Record record;
    const char* szLogged;
};

void PrintTo(const LogCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidRangebasedate_2LogTest : public ResetState, public testing::WithParamInterface<LogCase>
{};

TEST_P(ValidRangebasedate_2LogTest, TellsWhatKeepsTheDateOut)
{
    const TableCsv csv{GetParam().record};
    const auto pItem = MakeItem(GetParam().text, CASE_COLUMN);
    pItem->SetErrOutput(false);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnRecord(*pItem, csv), REFUSES); }), GetParam().szLogged);
}

const LogCase LOGS[] = {
    {"OnTheOpenEnd", OPEN, Dates({"4", "30", "4", "1"}), "szValueの値が範囲外です。\n"},
    {"Before", CLOSED, Dates({"4", "30", "3", "1"}), "szValueの値が範囲外です。\n"},
    {"Behind", CLOSED, Dates({"5", "2", "3", "1"}), "szValueの値が範囲外です。\n"},
    {"NoDate", OPEN, Dates({"4", "30", "4", "31"}), "szValueが実在しない日です。\n"},
    {"NoMinimum",
     {"rangebasedate_2", "", "6", ""},
     {"001", "4", "30", "4", "2", "4", "30", "2", "31"},
     "szMinが実在しない日です。\n"},
    {"NoMaximum",
     {"rangebasedate_2", "", "", "6"},
     {"001", "4", "30", "4", "2", "4", "30", "2", "31"},
     "szMaxが実在しない日です。\n"},
    {"NoBounds",
     {"rangebasedate_2"},
     Dates({"4", "30", "4", "2"}),
     "チェック範囲が指定されていません。\n"},
};

INSTANTIATE_TEST_SUITE_P(Refusals,
                         ValidRangebasedate_2LogTest,
                         testing::ValuesIn(LOGS),
                         CaseName());

}  // namespace
