// Numbers at the ends of the range in the parameters of check items: they wrap around, read as the
// empty text, and are told by their low 32 bits.
#include <limits>
#include <ostream>
#include <string>

#include "KZCEkaTaxOffices.h"
#include "support/Bundle.h"
#include "support/RecordCase.h"
#include "validator/KZCEkaValidDate.h"
#include "validator/Wrapping.h"

namespace {

constexpr long LOWEST = std::numeric_limits<long>::min();
constexpr long HIGHEST = std::numeric_limits<long>::max();

static_assert(WrappingSum(HIGHEST, 1) == LOWEST);
static_assert(WrappingSum(LOWEST, -1) == HIGHEST);
static_assert(WrappingSum(HIGHEST, 4) == LOWEST + 3);
static_assert(WrappingSum(-1, 1) == 0);

// --- parameters ---

class ExtremeParameterTest : public RecordCaseTest
{};

TEST_P(ExtremeParameterTest, IsAColumnBehindTheEnd)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

const KZCEkaCsvFile::Record PERSON = {"001", "", "4", "10", "1", "1", "4", "30"};
const KZCEkaCsvFile::Record DAY = {"001", "4", "30", "9", "1", "4", "29"};
constexpr const char* MAX_TEXT = "9223372036854775807";
constexpr const char* MIN_TEXT = "-9223372036854775808";

const RecordCase CASES[] = {
    {"AnyExistLowest", {"anyexist", MIN_TEXT}, DAY, "refuses 0001-00002-HE70001E"},
    {"AnyExistHighest", {"anyexist", MAX_TEXT}, DAY, "refuses 0001-00002-HE70001E"},
    {"AnyContainLowest", {"anycontain", MIN_TEXT, "1", "5"}, DAY, "refuses 0001-00002-HE70009E"},
    {"AnyContainHighest", {"anycontain", MAX_TEXT, "1", "5"}, DAY, "refuses 0001-00002-HE70009E"},
    {"ContainColumnHighest", {"containcolumn", MAX_TEXT}, DAY, "refuses 0001-00002-HE70025E"},
    {"ContainColumnLowest", {"containcolumn", MIN_TEXT}, DAY, RAISES},
    // 1 + (2^31 - 1) + 2^31 is 2^32, whose low 32 bits are 0.
    {"ContainColumnOffset",
     {"containcolumn", "3", "-2147483648", "2147483647"},
     {"001", "1", "0"},
     PASSES},
    {"NonerrBoth", {"nonerr", "9223372036854775807 -9223372036854775808", MIN_TEXT}, DAY, PASSES},
    {"DigitEqualityLowest",
     {"digitequality", MIN_TEXT, "", "4"},
     DAY,
     "refuses 0001-00002-HE70010E"},
    {"DigitEqualityHighest",
     {"digitequality", MAX_TEXT, "", "4"},
     DAY,
     "refuses 0001-00002-HE70010E"},
    {"LengthHighest", {"length", MAX_TEXT}, DAY, "refuses 0001-00002-HE70008E"},
    {"CharlengthLowest", {"charlength", "", "", MIN_TEXT}, DAY, "refuses 0001-00002-HE70007E"},
    {"RangeWhole", {"range", "", MIN_TEXT, MAX_TEXT}, {"001", MIN_TEXT}, PASSES},
    {"AgeBirthColumnLowest",
     {"age", "-9223372036854775808 7 0 1 1"},
     PERSON,
     "refuses 0001-00002-HE70010E"},
    {"AgeYearColumnHighest",
     {"age", "3 9223372036854775807 0 1 1"},
     PERSON,
     "refuses 0001-00002-HE70010E"},
    // Years have 16 bits without a sign: 2018 + 2^31 - 1 is 2017 there, and 2018 - 2^31 is 2018.
    {"AgeYearsAddedHighest", {"age", "3 7 2147483647 1 1", "19", "19"}, PERSON, PASSES},
    {"AgeYearsAddedLowest", {"age", "3 7 -2147483648 1 1", "20", "20"}, PERSON, PASSES},
    // 2018 - 2019 is 65535 there, not -1.
    {"AgeReferenceYearHasNoSign", {"age", "3 7 -2019 1 1", "63537", "63537"}, PERSON, PASSES},
    {"AgeLimits", {"age", "3 7 0 1 1", "-2147483648", "2147483647"}, PERSON, PASSES},
    {"RangebasedateReferenceLowest",
     {"rangebasedate", "-9223372036854775808_-9223372036854775808", "2019/01/01"},
     DAY,
     PASSES},
    {"RangebasedateReferenceHighest",
     {"rangebasedate", "1_9223372036854775807", "2019/01/01"},
     DAY,
     PASSES},
    {"RangebasedateReferenceRowLowest",
     {"rangebasedate", "-9223372036854775808_2", "2019/01/01"},
     DAY,
     PASSES},
    {"Rangebasedate_2ColumnHighest",
     {"rangebasedate_2", "", MAX_TEXT},
     DAY,
     "refuses 0001-02:05-HE99999E"},
    {"Rangebasedate_2ReferenceHighest",
     {"rangebasedate_2", "", "1_9223372036854775807"},
     DAY,
     PASSES},
    {"Rangedate_2YearHighest", {"rangedate_2", "", "20170401", MAX_TEXT}, DAY, PASSES},
    {"Rangedate_2YearLowest", {"rangedate_2", "", "20170401", MIN_TEXT}, DAY, RAISES},
    {"Rangedate_3YearHighest", {"rangedate_3", MAX_TEXT}, DAY, PASSES},
    {"EqualyearHighest", {"equalyear", MAX_TEXT}, DAY, PASSES},
    {"EqualyearOffset",
     {"equalyear", "6", "-2147483648", "2147483647"},
     DAY,
     "refuses 0001-02:03-HE70025E"},
    {"ExistDateYYYYMMDDYearHighest",
     {"existdateYYYYMMDD", "9223372036854775807 2 3"},
     DAY,
     "refuses 0001--1:03-HE70012E"},
    {"ExistDateYYYYMMDDYearLowest",
     {"existdateYYYYMMDD", "-9223372036854775808 2 3"},
     DAY,
     "refuses 0001-00:03-HE70012E"},
    {"ExistDateYYYYMMDDAllLowest",
     {"existdateYYYYMMDD", "-9223372036854775808 -9223372036854775808 -9223372036854775808"},
     DAY,
     PASSES},
};

INSTANTIATE_TEST_SUITE_P(Items, ExtremeParameterTest, testing::ValuesIn(CASES), CaseName());

using ExtremeConditionTest = ResetState;

TEST_F(ExtremeConditionTest, YearColumnOfRangedate_2IsNoYear)
{
    const TableCsv csv{DAY};
    const auto pItem = MakeItem({"rangedate_2", "", "20170401", MIN_TEXT}, CASE_COLUMN);
    EXPECT_EQ(AsCondition(*pItem, csv), PASSES);
}

TEST_F(ExtremeConditionTest, ColumnsOfRangebasedate_2AreNoBounds)
{
    const TableCsv csv{DAY};
    const auto pItem = MakeItem({"rangebasedate_2", "", MIN_TEXT, MAX_TEXT}, CASE_COLUMN);
    EXPECT_EQ(AsCondition(*pItem, csv), REFUSES);
}

// --- the item's own column ---

struct OwnColumnCase
{
    const char* szName;
    ItemText text;
    const char* szTold;  ///< at the highest column there is
};

void PrintTo(const OwnColumnCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ExtremeColumnTest : public ResetState, public testing::WithParamInterface<OwnColumnCase>
{
protected:
    ExtremeColumnTest() { KZCEkaTaxOffices::instance()->Initialize(); }

    const Bundle m_bundle;
    const TableCsv m_csv{{"003", "4", "30", "9", "1", "4", "29"}};
};

TEST_P(ExtremeColumnTest, WrapsAround)
{
    EXPECT_EQ(OnRecord(*MakeItem(GetParam().text, HIGHEST), m_csv), GetParam().szTold);
}

TEST_P(ExtremeColumnTest, CanServeAsACondition)
{
    const std::string strTold = GetParam().szTold;
    EXPECT_EQ(AsCondition(*MakeItem(GetParam().text, HIGHEST), m_csv),
              strTold.substr(0, strTold.find(' ')));
}

constexpr OwnColumnCase OWN_COLUMNS[] = {
    {"Exist", {"exist"}, "refuses 0001-00000-HE70001E"},
    {"Exist_2", {"exist_2"}, "passes"},
    {"ContainColumn", {"containcolumn", "1"}, "refuses 0001-00000-HE70025E"},
    {"ExceptColumn", {"exceptcolumn", "9"}, "refuses 0001-00000-HE70010E"},
    {"Taxofficenm", {"taxofficenm"}, "refuses 0001-00:01-HE70002E"},
    {"Existdate", {"existdate"}, "refuses 0001-00:03-HE70012E"},
    {"Rangedate_3", {"rangedate_3", "6"}, "passes"},
    {"RangebasedateBadReference", {"rangebasedate", "1"}, "refuses 0001-00:03-HE70025E"},
    {"Rangebasedate", {"rangebasedate", "", "2"}, "refuses 0001-00:03-HE70012E"},
    {"Rangebasedate_2", {"rangebasedate_2", "", "2"}, "refuses 0001-00:03-HE70025E"},
    {"Equalyear", {"equalyear", "6"}, "passes"},
    {"ContainYear", {"containyear", "2018"}, "refuses 0001-00:01-HE70025E"},
    {"Age", {"age", "2 6 1 9 1", "1"}, "refuses 0001-00000-HE70010E"},
    {"AgeOfDays", {"age", "2 6 1 9 1 days", "1"}, "refuses 0001-00:03-HE70010E"},
};

INSTANTIATE_TEST_SUITE_P(Items, ExtremeColumnTest, testing::ValuesIn(OWN_COLUMNS), CaseName());

// --- errcolumn, errrow, the record ---

class ExtremeErrorPlaceTest : public ResetState
{
protected:
    const TableCsv m_csv{DAY};
};

TEST_F(ExtremeErrorPlaceTest, ErrColumnWrapsAround)
{
    const auto pItem = MakeItem({"containyear", "2017"}, CASE_COLUMN);
    pItem->SetErrColumn(MAX_TEXT);
    EXPECT_EQ(OnRecord(*pItem, m_csv), "refuses 0001--1:02-HE70025E");
    pItem->SetErrColumn(MIN_TEXT);
    EXPECT_EQ(OnRecord(*pItem, m_csv), "refuses 0001-00:03-HE70025E");
}

TEST_F(ExtremeErrorPlaceTest, ErrRowIsToldByItsLowBits)
{
    const auto pItem = MakeItem({"rangebasedate", "1_2", "2019/01/01"}, CASE_COLUMN);
    pItem->SetErrRow(MAX_TEXT);
    EXPECT_EQ(OnRecord(*pItem, m_csv), "refuses -001-02:05-HE70025E");
    pItem->SetErrRow(MIN_TEXT);
    EXPECT_EQ(OnRecord(*pItem, m_csv), "refuses 0000-02:05-HE70025E");
}

TEST_F(ExtremeErrorPlaceTest, TheRecordWrapsAround)
{
    const auto told = [&](const ItemText& text) {
        return OnRecord(*MakeItem(text, CASE_COLUMN), m_csv, HIGHEST);
    };
    EXPECT_EQ(told({"exist"}), "refuses 0000-00002-HE70001E");
    EXPECT_EQ(told({"exceptcolumn", "3"}), "refuses 0000-00002-HE70010E");
    EXPECT_EQ(told({"exist_2"}), "refuses 0000-00002-HE70012E");
    EXPECT_EQ(told({"existdate"}), "refuses 0000-02:05-HE70012E");
    EXPECT_EQ(told({"containyear", "2017"}), "refuses 0000-02:03-HE70025E");
    EXPECT_EQ(told({"rangebasedate", "", "6"}), "refuses 0000-02:05-HE70012E");
    EXPECT_EQ(told({"rangebasedate", "1"}), "refuses 0000-02:05-HE70025E");
    EXPECT_EQ(told({"rangebasedate_2", "", "6"}), "refuses 0000-02:05-HE70025E");
    EXPECT_EQ(told({"age", "2 6 1 9 1"}), "refuses 0000-00002-HE70010E");
    EXPECT_EQ(told({"nonerr", "1"}), PASSES);
}

// --- the readers ---

TEST_F(ExtremeErrorPlaceTest, TheReadersFindNothingAtTheEndsOfTheRange)
{
    KZCEkaValidDate item(CASE_COLUMN, MSG_NONE);
    for (const long lColumn : {LOWEST, HIGHEST, HIGHEST - 2}) {
        EXPECT_EQ(item.GetDateString(&m_csv, 0, lColumn), "") << lColumn;
        EXPECT_EQ(item.GetDateString2(&m_csv, 0, lColumn), "") << lColumn;
        EXPECT_EQ(item.GetYearString(&m_csv, 0, lColumn), "") << lColumn;
        EXPECT_TRUE(item.CheckCalulationConfig(&m_csv, 0, lColumn, "003")) << lColumn;
    }
}

TEST_F(ExtremeErrorPlaceTest, ListsOfColumnsWrapAround)
{
    std::vector<long> vecColumn;
    KZCEkaValidItem::SplitValue("-9223372036854775808 9223372036854775807", vecColumn, " ");
    EXPECT_EQ(vecColumn, (std::vector<long>{HIGHEST, HIGHEST - 1}));
}

}  // namespace
