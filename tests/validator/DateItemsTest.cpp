// What the checks of dates and ages do alike, whatever their rule.
#include <ostream>
#include <string>

#include "support/CheckItem.h"
#include "support/LogText.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"

namespace {

constexpr long COLUMN = 1;

/// What a condition makes of an item that has no column.
enum class WithoutColumn
{
    HOLDS,          ///< no date, no verdict
    DOES_NOT_HOLD,  ///< no date, no pass
    SAME,           ///< the item reads other columns
};

struct DateItemCase
{
    const char* szName;
    ItemText text;
    KZCEkaCsvFile::Record passed;
    KZCEkaCsvFile::Record refused;
    const char* szColumns;
    KZCEkaMessage_t eMessage;
    WithoutColumn eWithoutColumn;
    const char* szErrColumns = nullptr;  ///< with an errcolumn of 7; null if it is ignored
    bool bReadsErrRow = false;
    bool bAlwaysRecords = false;
    bool bRecordsAsCondition = false;
};

void PrintTo(const DateItemCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class EveryDateItemTest : public ResetState, public testing::WithParamInterface<DateItemCase>
{
protected:
    std::string Refusal(KZCEkaMessage_t eMessage, const char* szRecord = "0002") const
    {
        return std::string("refuses ") + szRecord + "-" + GetParam().szColumns + "-" +
               CodeOf(eMessage);
    }

    static constexpr long PASSED = 0;
    static constexpr long REFUSED = 1;
    const TableCsv m_csv{GetParam().passed, GetParam().refused};
};

TEST_P(EveryDateItemTest, RecordsItsOwnCodeAndColumns)
{
    const auto pItem = MakeItem(GetParam().text, COLUMN);
    EXPECT_EQ(OnRecord(*pItem, m_csv, PASSED), PASSES);
    EXPECT_EQ(OnRecord(*pItem, m_csv, REFUSED), Refusal(GetParam().eMessage));
    EXPECT_EQ(OnRecord(*pItem, m_csv, PASSED), PASSES);
}

TEST_P(EveryDateItemTest, RecordsTheOverrideInPlaceOfItsCode)
{
    const auto pItem = MakeItem(GetParam().text, COLUMN, HE70031E);
    EXPECT_EQ(OnRecord(*pItem, m_csv, REFUSED), Refusal(HE70031E));
}

TEST_P(EveryDateItemTest, RecordsAtErrColumnIfItReadsIt)
{
    const auto pItem = MakeItem(GetParam().text, COLUMN);
    pItem->SetErrColumn("7");
    EXPECT_EQ(OnRecord(*pItem, m_csv, REFUSED), GetParam().szErrColumns != nullptr
                                                    ? std::string("refuses 0002-") +
                                                          GetParam().szErrColumns + "-" +
                                                          CodeOf(GetParam().eMessage)
                                                    : Refusal(GetParam().eMessage));
}

TEST_P(EveryDateItemTest, RecordsAtErrRowIfItReadsIt)
{
    const auto pItem = MakeItem(GetParam().text, COLUMN);
    pItem->SetErrRow("9");
    EXPECT_EQ(OnRecord(*pItem, m_csv, REFUSED),
              Refusal(GetParam().eMessage, GetParam().bReadsErrRow ? "0009" : "0002"));
}

TEST_P(EveryDateItemTest, WithErrorOutputOffRecordsOnlyIfItAlwaysDoes)
{
    const auto pItem = MakeItem(GetParam().text, COLUMN);
    pItem->SetErrOutput(false);
    EXPECT_EQ(OnRecord(*pItem, m_csv, REFUSED),
              GetParam().bAlwaysRecords ? Refusal(GetParam().eMessage) : REFUSES);
}

TEST_P(EveryDateItemTest, TakesTheFallbackColumnIfItHasNone)
{
    const auto pItem = MakeItem(GetParam().text, -1);
    EXPECT_EQ(OnRecord(*pItem, m_csv, PASSED, COLUMN), PASSES);
    EXPECT_EQ(OnRecord(*pItem, m_csv, REFUSED, COLUMN), Refusal(GetParam().eMessage));
}

TEST_P(EveryDateItemTest, PrefersItsOwnColumn)
{
    const auto pItem = MakeItem(GetParam().text, COLUMN);
    EXPECT_EQ(OnRecord(*pItem, m_csv, PASSED, 30), PASSES);
    EXPECT_EQ(OnRecord(*pItem, m_csv, REFUSED, 30), Refusal(GetParam().eMessage));
}

TEST_P(EveryDateItemTest, HoldsAsAConditionIfItPasses)
{
    const auto pItem = MakeItem(GetParam().text, COLUMN);
    EXPECT_EQ(AsCondition(*pItem, m_csv, PASSED), PASSES);
    EXPECT_EQ(AsCondition(*pItem, m_csv, REFUSED),
              GetParam().bRecordsAsCondition ? Refusal(GetParam().eMessage) : REFUSES);
}

TEST_P(EveryDateItemTest, IsTracedAsAConditionThatDoesNotHold)
{
    const auto pItem = MakeItem(GetParam().text, COLUMN);
    EXPECT_TRUE(MessagesOf([&] {
                    pItem->ValidateOuter(&m_csv, REFUSED, -1);
                }).ends_with("外部条件チェックアウトです。\n"));
}

TEST_P(EveryDateItemTest, TakesNoFallbackColumnAsACondition)
{
    const auto pItem = MakeItem(GetParam().text, -1);
    pItem->SetErrOutput(false);
    const int nPassed = pItem->ValidateOuter(&m_csv, PASSED, COLUMN);
    const int nRefused = pItem->ValidateOuter(&m_csv, REFUSED, COLUMN);
    const WithoutColumn eExpected = GetParam().eWithoutColumn;
    EXPECT_EQ(nPassed, eExpected == WithoutColumn::DOES_NOT_HOLD ? STATUS_NG : STATUS_OK);
    EXPECT_EQ(nRefused, eExpected == WithoutColumn::HOLDS ? STATUS_OK : STATUS_NG);
}

TEST_P(EveryDateItemTest, IsSkippedIfItsConditionDoesNotHold)
{
    const auto pItem = MakeItem(GetParam().text, COLUMN);
    pItem->AddOuterItem(MakeItem({"exist"}, 0).release());
    pItem->AddOuterItem(MakeItem({"empty"}, 0).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv, REFUSED), PASSES);
}

TEST_P(EveryDateItemTest, RunsIfItsConditionsHold)
{
    const auto pItem = MakeItem(GetParam().text, COLUMN);
    pItem->AddOuterItem(MakeItem({"exist"}, 0).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv, REFUSED), Refusal(GetParam().eMessage));
}

TEST_P(EveryDateItemTest, GatesAnotherItem)
{
    const auto pItem = MakeItem({"empty"}, 0);
    pItem->AddOuterItem(MakeItem(GetParam().text, COLUMN).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv, PASSED), "refuses 0001-00001-HE70005E");
    const std::string strSkipped = OnRecord(*pItem, m_csv, REFUSED);
    EXPECT_TRUE(strSkipped.starts_with(PASSES)) << strSkipped;
}

TEST_P(EveryDateItemTest, RaisesForNullInsteadOfAFile)
{
    constexpr const char* NO_FILE = "引数エラー。CSV格納情報が不正です。\n";
    const auto pItem = MakeItem(GetParam().text, COLUMN);
    EXPECT_EQ(MessagesOf([&] {
                  EXPECT_EQ(Told([&] { return pItem->ValidateCsv(nullptr, 0, -1); }), RAISES);
              }),
              NO_FILE);
    EXPECT_EQ(MessagesOf([&] {
                  EXPECT_EQ(Told([&] { return pItem->ValidateOuter(nullptr, 0, -1); }), RAISES);
              }),
              NO_FILE);
}

// Columns 2 to 5 hold the date under test, 6 to 9 another one.
const KZCEkaCsvFile::Record NORMAL = {"001", "4", "30", "9", "1", "4", "30", "1", "1"};
const KZCEkaCsvFile::Record TOO_LATE = {"001", "5", "3", "9", "1", "4", "30", "1", "1"};
const KZCEkaCsvFile::Record TOO_EARLY = {"001", "4", "29", "9", "1", "4", "30", "1", "1"};
const KZCEkaCsvFile::Record NO_SUCH_DAY = {"001", "4", "30", "2", "31", "4", "30", "1", "1"};

const DateItemCase ITEMS[] = {
    {"Existdate",
     {"existdate"},
     NORMAL,
     NO_SUCH_DAY,
     "02:05",
     HE70012E,
     WithoutColumn::DOES_NOT_HOLD},
    {"Existdate_2",
     {"existdate_2"},
     NORMAL,
     NO_SUCH_DAY,
     "02:05",
     HE70012E,
     WithoutColumn::DOES_NOT_HOLD},
    {.szName = "ExistDateYYYYMMDD",
     .text = {"existdateYYYYMMDD", "3 4 5"},
     .passed = {"001", "", "2018", "9", "1"},
     .refused = {"001", "", "2018", "2", "31"},
     .szColumns = "03:05",
     .eMessage = HE70012E,
     .eWithoutColumn = WithoutColumn::SAME,
     .bAlwaysRecords = true,
     .bRecordsAsCondition = true},
    {"Rangedate",
     {"rangedate", "", "20180101", "20181231"},
     NORMAL,
     TOO_LATE,
     "02:05",
     HE70010E,
     WithoutColumn::DOES_NOT_HOLD},
    {.szName = "Rangedate_2",
     .text = {"rangedate_2", "", "20180101", "6"},
     .passed = NORMAL,
     .refused = TOO_LATE,
     .szColumns = "06:07",
     .eMessage = HE70025E,
     .eWithoutColumn = WithoutColumn::HOLDS,
     .bAlwaysRecords = true},
    {"Rangedate_3",
     {"rangedate_3", "6"},
     NORMAL,
     TOO_LATE,
     "02:05",
     HE70025E,
     WithoutColumn::HOLDS},
    {"Rangedate_4",
     {"rangedate_4", "", "20180101", "20181231"},
     NORMAL,
     TOO_LATE,
     "02:05",
     HE70010E,
     WithoutColumn::DOES_NOT_HOLD},
    {.szName = "Rangebasedate",
     .text = {"rangebasedate", "", "6", ""},
     .passed = NORMAL,
     .refused = TOO_EARLY,
     .szColumns = "02:05",
     .eMessage = HE70025E,
     .eWithoutColumn = WithoutColumn::DOES_NOT_HOLD,
     .szErrColumns = "07:10",
     .bReadsErrRow = true},
    {.szName = "Rangebasedate_2",
     .text = {"rangebasedate_2", "", "6", ""},
     .passed = NORMAL,
     .refused = TOO_EARLY,
     .szColumns = "02:05",
     .eMessage = HE70025E,
     .eWithoutColumn = WithoutColumn::DOES_NOT_HOLD,
     .szErrColumns = "07:10"},
    {"Equalyear", {"equalyear", "6"}, NORMAL, TOO_LATE, "02:03", HE70025E, WithoutColumn::HOLDS},
    {.szName = "ContainYear",
     .text = {"containyear", "2018"},
     .passed = NORMAL,
     .refused = TOO_LATE,
     .szColumns = "02:03",
     .eMessage = HE70025E,
     .eWithoutColumn = WithoutColumn::DOES_NOT_HOLD,
     .szErrColumns = "07:10"},
    {"Onward",
     {"onward", "20180101"},
     NORMAL,
     TOO_EARLY,
     "02:05",
     HE70010E,
     WithoutColumn::DOES_NOT_HOLD},
    {"CompDate",
     {"compdate", "20180901"},
     NORMAL,
     TOO_LATE,
     "02:05",
     HE70010E,
     WithoutColumn::DOES_NOT_HOLD},
    {"Age", {"age", "2 6 1 9 1", "1"}, NORMAL, TOO_LATE, "00002", HE70010E, WithoutColumn::SAME},
};

INSTANTIATE_TEST_SUITE_P(Keywords, EveryDateItemTest, testing::ValuesIn(ITEMS), CaseName());

}  // namespace
