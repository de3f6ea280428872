#include "validator/KZCEkaValidRangebasedate.h"

#include "support/LogText.h"
#include "support/RecordCase.h"

namespace {

constexpr const char* OUT_OF_RANGE = "refuses 0001-02:05-HE70025E";
constexpr const char* NO_DATE = "refuses 0001-02:05-HE70012E";

// --- the record's own date between columns of the record ---

// The date stands in columns 2 to 5, the minimum in 6 to 9, the maximum in 10 to 13.
KZCEkaCsvFile::Record Dates(const std::vector<std::string>& vecDate)
{
    KZCEkaCsvFile::Record record = {"001"};
    record.insert(record.end(), vecDate.begin(), vecDate.end());
    for (const char* szCell : {"4", "30", "4", "1", "5", "1", "5", "31"})
        record.emplace_back(szCell);
    return record;
}

class ValidRangebasedateTest : public RecordCaseTest
{};

TEST_P(ValidRangebasedateTest, PassesADateBetweenTheColumns)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

TEST_P(ValidRangebasedateTest, HoldsAsAConditionBetweenTheColumns)
{
    EXPECT_EQ(ToldAsCondition(), ConditionTold());
}

constexpr ItemText BOTH = {"rangebasedate", "", "6", "10"};
constexpr ItemText MIN_ONLY = {"rangebasedate", "", "6", ""};
constexpr ItemText MAX_ONLY = {"rangebasedate", "", "", "10"};
constexpr ItemText NEITHER = {"rangebasedate"};

const RecordCase CASES[] = {
    {"BeforeTheMinimum", BOTH, Dates({"4", "30", "3", "31"}), OUT_OF_RANGE},
    {"TheMinimum", BOTH, Dates({"4", "30", "4", "1"}), PASSES},
    {"Inside", BOTH, Dates({"4", "31", "4", "30"}), PASSES},
    {"TheMaximum", BOTH, Dates({"5", "1", "5", "31"}), PASSES},
    {"TheMaximumInTheOldEra", BOTH, Dates({"4", "31", "5", "31"}), PASSES},
    {"BehindTheMaximum", BOTH, Dates({"5", "1", "6", "1"}), OUT_OF_RANGE},
    {"MinimumAlone", MIN_ONLY, Dates({"4", "30", "3", "31"}), OUT_OF_RANGE},
    {"MinimumAloneHasNoEnd", MIN_ONLY, Dates({"5", "50", "1", "1"}), PASSES},
    {"MaximumAlone", MAX_ONLY, Dates({"5", "1", "6", "1"}), OUT_OF_RANGE},
    {"MaximumAloneHasNoStart", MAX_ONLY, Dates({"3", "1", "12", "25"}), PASSES},
    {"NoBounds", NEITHER, Dates({"4", "30", "3", "31"}), PASSES},
    {"ColumnsBelowOneAreNoBounds",
     {"rangebasedate", "", "0", "-1"},
     Dates({"4", "30", "3", "31"}),
     PASSES},
    {"NoNumbersAreNoBounds",
     {"rangebasedate", "", "x", "y"},
     Dates({"4", "30", "3", "31"}),
     PASSES},
    {"ColumnOfAnEmptyDateIsNoBound",
     {"rangebasedate", "", "14", "10"},
     Dates({"4", "1", "3", "31"}),
     PASSES},
    {"ColumnOfADateThatIsNone",
     {"rangebasedate", "", "7", "10"},
     {"001", "4", "30", "4", "1", "", "4", "30", "2", "31"},
     NO_DATE},
    {"ImpossibleDate", BOTH, Dates({"4", "30", "4", "31"}), NO_DATE},
    {"ImpossibleDateWithoutBounds", NEITHER, Dates({"4", "30", "4", "31"}), NO_DATE},
    {"EraEmpty", BOTH, Dates({"", "30", "5", "1"}), NO_DATE},
    {"EraEmptyWithoutBounds", NEITHER, Dates({"", "30", "5", "1"}), NO_DATE},
};

INSTANTIATE_TEST_SUITE_P(Columns, ValidRangebasedateTest, testing::ValuesIn(CASES), CaseName());

// --- the date of another record between literal bounds ---

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

class ValidRangebasedateReferenceTest : public ResetState,
                                        public testing::WithParamInterface<ReferenceCase>
{
protected:
    // The item runs in the third record, whose own cells don't count.
    const TableCsv m_csv{{"001", "x", "4", "30", "9", "1"},
                         {"001", "x", "4", "30", "9", ""},
                         {"002", "y", "4", "30", "2", "31"}};
};

TEST_P(ValidRangebasedateReferenceTest, DecidesByTheCellThatItNames)
{
    EXPECT_EQ(OnRecord(*MakeItem(GetParam().text, CASE_COLUMN), m_csv, 2), GetParam().strTold);
}

TEST_P(ValidRangebasedateReferenceTest, DecidesAsAConditionWithoutARecord)
{
    const std::string& strTold = GetParam().strTold;
    EXPECT_EQ(AsCondition(*MakeItem(GetParam().text, CASE_COLUMN), m_csv, 2),
              strTold.substr(0, strTold.find(' ')));
}

constexpr const char* REFERRED_25 = "refuses 0003-02:05-HE70025E";
constexpr const char* REFERRED_12 = "refuses 0003-02:05-HE70012E";

const ReferenceCase REFERENCES[] = {
    {"Inside", {"rangebasedate", "1_3", "2018/01/01", "2018/12/31"}, PASSES},
    {"TheMinimum", {"rangebasedate", "1_3", "2018/09/01", "2018/12/31"}, PASSES},
    {"TheMaximum", {"rangebasedate", "1_3", "2018/01/01", "2018/09/01"}, PASSES},
    {"BeforeTheMinimum", {"rangebasedate", "1_3", "2018/09/02", "2018/12/31"}, REFERRED_25},
    {"BehindTheMaximum", {"rangebasedate", "1_3", "2018/01/01", "2018/08/31"}, REFERRED_25},
    {"MinimumAlone", {"rangebasedate", "1_3", "2018/09/02", ""}, REFERRED_25},
    {"MaximumAlone", {"rangebasedate", "1_3", "", "2018/08/31"}, REFERRED_25},
    {"BoundsAreTakenAsTheyStand", {"rangebasedate", "1_3", "20180101", "20181231"}, REFERRED_12},
    {"BadMaximum", {"rangebasedate", "1_3", "2018/01/01", "2018/02/30"}, REFERRED_12},
    {"BoundInAnEra", {"rangebasedate", "1_3", "平成30/01/01", "平成30/12/31"}, PASSES},
    {"EmptyDayCell", {"rangebasedate", "2_3", "2000/01/01", "2000/12/31"}, PASSES},
    {"NoDate", {"rangebasedate", "3_3", "2000/01/01", "2000/12/31"}, PASSES},
    {"NoSuchRecord", {"rangebasedate", "9_3", "2000/01/01", "2000/12/31"}, PASSES},
    {"NoSuchColumn", {"rangebasedate", "1_9", "2000/01/01", "2000/12/31"}, PASSES},
    {"RunOfUnderscoresIsOne", {"rangebasedate", "1__3", "2019/01/01", ""}, REFERRED_25},
    {"NoBounds", {"rangebasedate", "1_3"}, REFERRED_25},
    {"NoBoundsForAnEmptyDate", {"rangebasedate", "2_3"}, REFERRED_25},
    {"OnePiece", {"rangebasedate", "3", "2018/01/01", "2018/12/31"}, REFERRED_25},
    {"ThreePieces", {"rangebasedate", "1_3_5", "2018/01/01", "2018/12/31"}, REFERRED_25},
    {"UnderscoreOnly", {"rangebasedate", "_", "2018/01/01", "2018/12/31"}, REFERRED_25},
};

INSTANTIATE_TEST_SUITE_P(References,
                         ValidRangebasedateReferenceTest,
                         testing::ValuesIn(REFERENCES),
                         CaseName());

// --- recording ---

class ValidRangebasedateRecordTest : public ResetState
{
protected:
    const TableCsv m_csv{{"001", "4", "30", "3", "31", "4", "30", "4", "1"},
                         {"001", "4", "30", "3", "31", "4", "30", "4", "1"}};
};

TEST_F(ValidRangebasedateRecordTest, ErrRowReplacesTheRecord)
{
    const auto pItem = MakeItem(MIN_ONLY, CASE_COLUMN);
    pItem->SetErrRow("7");
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0007-02:05-HE70025E");
}

TEST_F(ValidRangebasedateRecordTest, ErrRowAndErrColumnTogether)
{
    const auto pItem = MakeItem({"rangebasedate", "1_2", "2019/01/01"}, CASE_COLUMN);
    pItem->SetErrRow("1");
    pItem->SetErrColumn("12");
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0001-12:15-HE70025E");
}

class ValidRangebasedateBadParameterTest : public ValidRangebasedateRecordTest,
                                           public testing::WithParamInterface<ItemText>
{};

constexpr const char* AT_THE_ITEM = "refuses 0002-02:05-HE70025E";

// Wanted: this record knows none of the item's settings.
TEST_P(ValidRangebasedateBadParameterTest, IsRecordedEvenWithErrorOutputOff)
{
    const auto pItem = MakeItem(GetParam(), CASE_COLUMN);
    pItem->SetErrOutput(false);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), AT_THE_ITEM);
}

TEST_P(ValidRangebasedateBadParameterTest, IsRecordedWithItsOwnCode)
{
    EXPECT_EQ(OnRecord(*MakeItem(GetParam(), CASE_COLUMN, HE70031E), m_csv, 1), AT_THE_ITEM);
}

TEST_P(ValidRangebasedateBadParameterTest, IsRecordedAtTheItemsOwnPlace)
{
    const auto pItem = MakeItem(GetParam(), CASE_COLUMN);
    pItem->SetErrRow("7");
    pItem->SetErrColumn("12");
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), AT_THE_ITEM);
}

TEST_P(ValidRangebasedateBadParameterTest, IsRecordedAtTheFallbackColumnWithoutOne)
{
    EXPECT_EQ(OnRecord(*MakeItem(GetParam(), -1), m_csv, 1, 5), "refuses 0002-06:09-HE70025E");
}

TEST_P(ValidRangebasedateBadParameterTest, IsNotLookedAtIfAConditionDoesNotHold)
{
    const auto pItem = MakeItem(GetParam(), CASE_COLUMN);
    pItem->AddOuterItem(MakeItem({"empty"}, 0).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), PASSES);
}

constexpr ItemText BAD_PARAMETERS[] = {
    {"rangebasedate", "1_2"},
    {"rangebasedate", "2", "2018/01/01", "2018/12/31"},
    {"rangebasedate", "1_2_3", "2018/01/01", "2018/12/31"},
};

INSTANTIATE_TEST_SUITE_P(Parameters,
                         ValidRangebasedateBadParameterTest,
                         testing::ValuesIn(BAD_PARAMETERS));

TEST_F(ValidRangebasedateRecordTest, PassesEveryBareValue)
{
    EXPECT_EQ(OnValue(*MakeItem(BOTH, CASE_COLUMN), "x"), PASSES);
    EXPECT_EQ(AsCondition(*MakeItem(BOTH, CASE_COLUMN), "x"), PASSES);
}

}  // namespace
