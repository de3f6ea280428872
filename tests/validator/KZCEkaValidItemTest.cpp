#include "validator/KZCEkaValidItem.h"

#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "support/CheckItem.h"
#include "support/DebugLog.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"
#include "support/TableCsv.h"
#include "support/WholeLog.h"

namespace {

/// What a probe was asked, in the order of the calls, shared by several probes.
using Calls = std::vector<std::string>;

/// An item whose rule is set by the test. It notes what it is asked and when it ends.
class Probe final : public KZCEkaValidItem
{
public:
    Probe(std::string strName, Calls& calls, KZCEkaMessage_t eRefusal, long lColumn = 1)
        : KZCEkaValidItem(lColumn, MSG_NONE),
          m_strName(std::move(strName)),
          m_calls(calls),
          m_eRefusal(eRefusal)
    {
    }
    ~Probe() override { m_calls.push_back("~" + m_strName); }

    int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override
    {
        m_calls.push_back(m_strName + " as condition of row " + std::to_string(lRow) + ", column " +
                          std::to_string(lColumn));
        return KZCEkaValidItem::ValidateOuter(pCsv, lRow, lColumn);
    }
    int ValidateOuter(const char* szValue) override
    {
        return KZCEkaValidItem::ValidateOuter(szValue);
    }

    const KZCEkaCsvFile* Csv() const { return m_pCsv; }
    long Row() const { return m_lRow; }

private:
    KZCEkaMessage_t _validate(const char* szValue) override
    {
        m_calls.push_back(m_strName + " sees " + szValue);
        return m_eRefusal;
    }

    const std::string m_strName;
    Calls& m_calls;
    const KZCEkaMessage_t m_eRefusal;
};

class ValidItemTest : public ResetState
{
protected:
    const TableCsv m_csv{{"001", "a", "b"}, {"001", "c", "d"}, {"001", "", "f"}};
    Calls m_calls;
};

// --- the plain form ---

TEST_F(ValidItemTest, WithoutARuleOfItsOwnPassesEverything)
{
    KZCEkaValidItem item(1, MSG_NONE);
    EXPECT_EQ(OnRecord(item, m_csv, 0), PASSES);
    EXPECT_EQ(OnRecord(item, m_csv, 2), PASSES);
    EXPECT_EQ(AsCondition(item, m_csv, 2), PASSES);
    EXPECT_EQ(OnValue(item, ""), PASSES);
    EXPECT_EQ(AsCondition(item, ""), PASSES);
}

TEST_F(ValidItemTest, ReadsTheCellOfItsColumnInTheRecordGiven)
{
    Probe probe("item", m_calls, MSG_NONE, 2);
    EXPECT_EQ(OnRecord(probe, m_csv, 1), PASSES);
    EXPECT_EQ(m_calls, (Calls{"item sees d"}));
}

TEST_F(ValidItemTest, RecordsRecordAndColumnFromOne)
{
    Probe probe("item", m_calls, HE70004E, 2);
    EXPECT_EQ(OnRecord(probe, m_csv, 1), "refuses 0002-00003-HE70004E");
}

TEST_F(ValidItemTest, RecordsTheNumbersOfABareValueAsTheyStand)
{
    Probe probe("item", m_calls, HE70004E, 2);
    EXPECT_EQ(Told([&] { return probe.Validate("x", 0, 0); }), "refuses 0000-00000-HE70004E");
    EXPECT_EQ(Told([&] { return probe.Validate("x", 9999, 17); }), "refuses 9999-00017-HE70004E");
}

TEST_F(ValidItemTest, AsAConditionRecordsNothing)
{
    Probe probe("item", m_calls, HE70004E);
    EXPECT_EQ(AsCondition(probe, m_csv, 1), REFUSES);
    EXPECT_EQ(AsCondition(probe, "x"), REFUSES);
}

TEST_F(ValidItemTest, StaysUsableAfterARefusal)
{
    const auto pItem = MakeItem({"exist"}, 1);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 2), "refuses 0003-00002-HE70001E");
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0), PASSES);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 2), "refuses 0003-00002-HE70001E");
}

TEST_F(ValidItemTest, IgnoresTheFallbackColumn)
{
    const auto pItem = MakeItem({"exist"}, -1);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0, 0), "refuses 0001-00000-HE70001E");
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0, 1), "refuses 0001-00000-HE70001E");
    EXPECT_EQ(AsCondition(*pItem, m_csv, 0, 1), REFUSES);
}

TEST_F(ValidItemTest, ARecordBehindTheEndReadsTheEmptyText)
{
    const auto pItem = MakeItem({"exist"}, 1);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 3), "refuses 0004-00002-HE70001E");
}

// --- null instead of a file ---

TEST_F(ValidItemTest, NullInsteadOfAFileRaises)
{
    Probe probe("item", m_calls, MSG_NONE);
    EXPECT_EQ(Told([&] { return probe.ValidateCsv(nullptr, 0, -1); }), RAISES);
    EXPECT_EQ(Told([&] { return probe.ValidateOuter(nullptr, 0, -1); }), RAISES);
}

TEST_F(ValidItemTest, NullInsteadOfAFileRaisesBeforeAnyConditionRuns)
{
    const auto pItem = MakeItem({"exist"}, 1);
    pItem->AddOuterItem(new Probe("outer", m_calls, HE70004E));
    EXPECT_EQ(Told([&] { return pItem->ValidateCsv(nullptr, 0, -1); }), RAISES);
    EXPECT_EQ(m_calls, Calls());
}

TEST_F(ValidItemTest, NullInsteadOfAFileIsLogged)
{
    const DebugLog log;
    const auto pItem = MakeItem({"exist"}, 1);
    EXPECT_EQ(Told([&] { return pItem->ValidateCsv(nullptr, 0, -1); }), RAISES);
    EXPECT_TRUE(log.HasLine("引数エラー。CSV格納情報が不正です。")) << log.Text();
}

TEST_F(ValidItemTest, NullInsteadOfAFileIsLoggedForAConditionToo)
{
    const DebugLog log;
    const auto pItem = MakeItem({"exist"}, 1);
    EXPECT_EQ(Told([&] { return pItem->ValidateOuter(nullptr, 0, -1); }), RAISES);
    EXPECT_TRUE(log.HasLine("引数エラー。CSV格納情報が不正です。")) << log.Text();
}

TEST_F(ValidItemTest, UnusableParametersAreLogged)
{
    const DebugLog log;
    const auto pItem = MakeItem({"length"});
    EXPECT_EQ(OnValue(*pItem, "x"), RAISES);
    EXPECT_TRUE(log.HasLine("定義体パラメータ指定エラー。")) << log.Text();
}

// --- override, error output ---

TEST_F(ValidItemTest, OverrideReplacesTheRecordedCode)
{
    const auto pItem = MakeItem({"exist"}, 1, HE70010E);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 2), "refuses 0003-00002-HE70010E");
    EXPECT_EQ(OnValue(*pItem, ""), Verdict(HE70010E));
}

TEST_F(ValidItemTest, OverrideDoesNotChangeTheVerdict)
{
    const auto pItem = MakeItem({"exist"}, 1, HE70010E);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0), PASSES);
    EXPECT_EQ(OnValue(*pItem, "x"), PASSES);
}

TEST_F(ValidItemTest, WithErrorOutputOffRefusesWithoutARecord)
{
    const auto pItem = MakeItem({"exist"}, 1);
    pItem->SetErrOutput(false);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 2), REFUSES);
    EXPECT_EQ(OnValue(*pItem, ""), REFUSES);
    EXPECT_EQ(OnValue(*pItem, "x"), PASSES);
}

TEST_F(ValidItemTest, WithErrorOutputOnAgainRecords)
{
    const auto pItem = MakeItem({"exist"}, 1);
    pItem->SetErrOutput(false);
    pItem->SetErrOutput(true);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 2), "refuses 0003-00002-HE70001E");
}

TEST_F(ValidItemTest, ErrorOutputOfAConditionDoesNotMatter)
{
    for (const bool bErrOutput : {true, false}) {
        const auto pItem = MakeItem({"empty"}, 1);
        auto pHolds = MakeItem({"exist"}, 2);
        pHolds->SetErrOutput(bErrOutput);
        pItem->AddOuterItem(pHolds.release());
        EXPECT_EQ(OnRecord(*pItem, m_csv, 0), "refuses 0001-00002-HE70005E") << bErrOutput;
        auto pDoesNotHold = MakeItem({"empty"}, 2);
        pDoesNotHold->SetErrOutput(bErrOutput);
        pItem->AddOuterItem(pDoesNotHold.release());
        EXPECT_EQ(OnRecord(*pItem, m_csv, 0), PASSES) << bErrOutput;
    }
}

// --- conditions ---

TEST_F(ValidItemTest, AnEmptyCellUnderANumberIfFilledPasses)
{
    const auto pItem = MakeItem({"number"}, 1);
    pItem->AddOuterItem(MakeItem({"exist"}, 1).release());
    {
        // The rule lets an empty cell pass too: the log tells that it was the condition.
        const DebugLog log;
        EXPECT_EQ(OnRecord(*pItem, m_csv, 2), PASSES);
        EXPECT_EQ(WholeLog(log), "外部条件チェックアウトです。\n");
    }
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0), "refuses 0001-00002-HE70004E");
}

TEST_F(ValidItemTest, ACheckThatWouldRefuseIsSkippedIfItsConditionDoesNotHold)
{
    const auto pItem = MakeItem({"length", "5"}, 1);
    pItem->AddOuterItem(MakeItem({"exist"}, 1).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv, 2), PASSES);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0), "refuses 0001-00002-HE70008E");
}

TEST_F(ValidItemTest, ABareValueIsGatedByConditionsOnTheSameValue)
{
    const auto pItem = MakeItem({"length", "5"});
    pItem->AddOuterItem(MakeItem({"exist"}).release());
    EXPECT_EQ(OnValue(*pItem, ""), PASSES);
    EXPECT_EQ(OnValue(*pItem, "ab"), Verdict(HE70008E));
}

TEST_F(ValidItemTest, IfTheSecondConditionFailsTheFirstHasRunAndTheCheckDoesNot)
{
    Probe probe("item", m_calls, HE70004E);
    probe.AddOuterItem(new Probe("first", m_calls, MSG_NONE, 0));
    probe.AddOuterItem(new Probe("second", m_calls, HE70001E, 2));
    EXPECT_EQ(OnRecord(probe, m_csv, 1), PASSES);
    EXPECT_EQ(m_calls, (Calls{"first as condition of row 1, column -1", "first sees 001",
                              "second as condition of row 1, column -1", "second sees d"}));
}

TEST_F(ValidItemTest, IfTheFirstConditionFailsTheSecondDoesNotRun)
{
    Probe probe("item", m_calls, HE70004E);
    probe.AddOuterItem(new Probe("first", m_calls, HE70001E, 0));
    probe.AddOuterItem(new Probe("second", m_calls, MSG_NONE, 2));
    EXPECT_EQ(OnRecord(probe, m_csv, 1), PASSES);
    EXPECT_EQ(m_calls, (Calls{"first as condition of row 1, column -1", "first sees 001"}));
}

TEST_F(ValidItemTest, IfEveryConditionHoldsTheCheckRuns)
{
    Probe probe("item", m_calls, HE70004E);
    probe.AddOuterItem(new Probe("first", m_calls, MSG_NONE, 0));
    probe.AddOuterItem(new Probe("second", m_calls, MSG_NONE, 2));
    EXPECT_EQ(OnRecord(probe, m_csv, 1), "refuses 0002-00002-HE70004E");
    EXPECT_EQ(m_calls.back(), "item sees c");
}

TEST_F(ValidItemTest, ABareValueStopsAtTheFirstConditionThatFails)
{
    Probe probe("item", m_calls, HE70004E);
    probe.AddOuterItem(new Probe("first", m_calls, MSG_NONE));
    probe.AddOuterItem(new Probe("second", m_calls, HE70001E));
    probe.AddOuterItem(new Probe("third", m_calls, MSG_NONE));
    EXPECT_EQ(OnValue(probe, "v"), PASSES);
    EXPECT_EQ(m_calls, (Calls{"first sees v", "second sees v"}));
}

TEST_F(ValidItemTest, AConditionDoesNotConsultConditionsOfItsOwn)
{
    Probe probe("item", m_calls, HE70004E);
    auto pOuter = std::make_unique<Probe>("outer", m_calls, MSG_NONE);
    pOuter->AddOuterItem(new Probe("inner", m_calls, HE70001E));
    probe.AddOuterItem(pOuter.release());
    EXPECT_EQ(OnRecord(probe, m_csv, 0), "refuses 0001-00002-HE70004E");
    EXPECT_EQ(OnValue(probe, "v"), Verdict(HE70004E));
    EXPECT_EQ(m_calls, (Calls{"outer as condition of row 0, column -1", "outer sees a",
                              "item sees a", "outer sees v", "item sees v"}));
}

TEST_F(ValidItemTest, EndsItsConditionsFromTheLastToTheFirst)
{
    {
        Probe probe("item", m_calls, MSG_NONE);
        probe.AddOuterItem(new Probe("first", m_calls, MSG_NONE));
        probe.AddOuterItem(new Probe("second", m_calls, MSG_NONE));
        probe.AddOuterItem(new Probe("third", m_calls, MSG_NONE));
    }
    EXPECT_EQ(m_calls, (Calls{"~item", "~third", "~second", "~first"}));
}

// --- state ---

TEST_F(ValidItemTest, HoldsNoFileBeforeTheFirstCheck)
{
    const Probe probe("item", m_calls, MSG_NONE);
    EXPECT_EQ(probe.Csv(), nullptr);
}

TEST_F(ValidItemTest, KeepsFileAndRowOfTheLastCheck)
{
    Probe probe("item", m_calls, MSG_NONE);
    EXPECT_EQ(OnRecord(probe, m_csv, 2), PASSES);
    EXPECT_EQ(probe.Csv(), &m_csv);
    EXPECT_EQ(probe.Row(), 2);
}

TEST_F(ValidItemTest, KeepsFileAndRowOfTheLastCondition)
{
    Probe probe("item", m_calls, MSG_NONE);
    EXPECT_EQ(AsCondition(probe, m_csv, 1), PASSES);
    EXPECT_EQ(probe.Csv(), &m_csv);
    EXPECT_EQ(probe.Row(), 1);
}

TEST_F(ValidItemTest, ABareValueLeavesFileAndRowAlone)
{
    Probe probe("item", m_calls, MSG_NONE);
    EXPECT_EQ(OnRecord(probe, m_csv, 2), PASSES);
    EXPECT_EQ(OnValue(probe, "x"), PASSES);
    EXPECT_EQ(AsCondition(probe, "x"), PASSES);
    EXPECT_EQ(probe.Csv(), &m_csv);
    EXPECT_EQ(probe.Row(), 2);
}

TEST_F(ValidItemTest, ASkippedCheckKeepsTheFileButNotTheRow)
{
    Probe probe("item", m_calls, MSG_NONE);
    probe.AddOuterItem(MakeItem({"exist"}, 1).release());
    EXPECT_EQ(OnRecord(probe, m_csv, 1), PASSES);
    EXPECT_EQ(OnRecord(probe, m_csv, 2), PASSES);
    EXPECT_EQ(probe.Csv(), &m_csv);
    EXPECT_EQ(probe.Row(), 1);
}

// --- the trail ---

TEST_F(ValidItemTest, TracesTheRefusedCell)
{
    const DebugLog log;
    Probe probe("item", m_calls, HE70004E);
    EXPECT_EQ(OnRecord(probe, m_csv, 1), "refuses 0002-00002-HE70004E");
    EXPECT_EQ(log.Text(),
              "Valid Message[HE70004E]  半角数字以外の文字が含まれています。\n"
              "record=0002 column=00002 value=c\n\n");
}

TEST_F(ValidItemTest, TracesTheOverride)
{
    const DebugLog log;
    const auto pItem = MakeItem({"number"}, 1, HE70010E);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-00002-HE70010E");
    EXPECT_TRUE(log.HasLine("Valid Message[HE70010E]  入力内容が正しくありません。")) << log.Text();
}

TEST_F(ValidItemTest, TracesAShiftJisCellAsUtf8)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const DebugLog log;
    const TableCsv csv{{"001", ToShiftJis("東京")}};
    Probe probe("item", m_calls, HE70004E);
    EXPECT_EQ(OnRecord(probe, csv), "refuses 0001-00002-HE70004E");
    EXPECT_TRUE(log.HasLine("record=0001 column=00002 value=東京")) << log.Text();
}

TEST_F(ValidItemTest, TracesAUtf8ValueAsItIs)
{
    const DebugLog log;
    Probe probe("item", m_calls, HE70004E);
    EXPECT_EQ(OnValue(probe, "東京"), Verdict(HE70004E));
    EXPECT_TRUE(log.HasLine("record=9999 column=00003 value=東京")) << log.Text();
}

TEST_F(ValidItemTest, TracesAConditionThatDoesNotHold)
{
    const DebugLog log;
    Probe probe("item", m_calls, HE70004E);
    EXPECT_EQ(AsCondition(probe, m_csv, 1), REFUSES);
    EXPECT_EQ(log.Text(), "外部条件チェックアウトです。\n");
}

TEST_F(ValidItemTest, TracesNothingWithErrorOutputOff)
{
    const DebugLog log;
    Probe probe("item", m_calls, HE70004E);
    probe.SetErrOutput(false);
    EXPECT_EQ(OnRecord(probe, m_csv, 1), REFUSES);
    EXPECT_EQ(log.Text(), "");
}

// --- what every item does, whatever its rule ---

struct RefusalCase
{
    const char* szName;
    ItemText text;
    KZCEkaCsvFile::Record record;  ///< refused; the item stands in column 2
    const char* szColumns;
    KZCEkaMessage_t eMessage;
};

void PrintTo(const RefusalCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class EveryItemTest : public ResetState, public testing::WithParamInterface<RefusalCase>
{
protected:
    EveryItemTest() { KZCEkaCommon::SetCsvCheckFlag(true); }

    std::string Refusal(KZCEkaMessage_t eMessage) const
    {
        return std::string("refuses 0001-") + GetParam().szColumns + "-" + CodeOf(eMessage);
    }

    const TableCsv m_csv{GetParam().record};
};

TEST_P(EveryItemTest, RecordsItsOwnCode)
{
    const auto pItem = MakeItem(GetParam().text, 1);
    EXPECT_EQ(OnRecord(*pItem, m_csv), Refusal(GetParam().eMessage));
}

TEST_P(EveryItemTest, RecordsTheOverrideInPlaceOfItsCode)
{
    const auto pItem = MakeItem(GetParam().text, 1, HE70030E);
    EXPECT_EQ(OnRecord(*pItem, m_csv), Refusal(HE70030E));
}

TEST_P(EveryItemTest, IgnoresErrColumnAndErrRow)
{
    const auto pItem = MakeItem(GetParam().text, 1);
    pItem->SetErrColumn("7");
    pItem->SetErrRow("9");
    EXPECT_EQ(OnRecord(*pItem, m_csv), Refusal(GetParam().eMessage));
}

TEST_P(EveryItemTest, RecordsNothingWithErrorOutputOff)
{
    const auto pItem = MakeItem(GetParam().text, 1);
    pItem->SetErrOutput(false);
    EXPECT_EQ(OnRecord(*pItem, m_csv), REFUSES);
}

TEST_P(EveryItemTest, RecordsNothingAsACondition)
{
    const auto pItem = MakeItem(GetParam().text, 1);
    EXPECT_EQ(AsCondition(*pItem, m_csv), REFUSES);
}

TEST_P(EveryItemTest, IsSkippedIfItsConditionDoesNotHold)
{
    const auto pItem = MakeItem(GetParam().text, 1);
    pItem->AddOuterItem(MakeItem({"empty"}, 0).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv), PASSES);
}

TEST_P(EveryItemTest, RunsIfItsConditionHolds)
{
    const auto pItem = MakeItem(GetParam().text, 1);
    pItem->AddOuterItem(MakeItem({"exist"}, 0).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv), Refusal(GetParam().eMessage));
}

const RefusalCase REFUSALS[] = {
    {"Alnum", {"alnum"}, {"001", "_"}, "00002", HE70006E},
    {"Alnumsbl", {"alnumsbl"}, {"001", "\t"}, "00002", HE70035E},
    {"Alphabet", {"alphabet"}, {"001", "1"}, "00002", HE70006E},
    {"Multibyte", {"multibyte"}, {"001", "ab"}, "00002", HE99999E},
    {"Multikana", {"multikana"}, {"001", "ab"}, "00002", HE70003E},
    {"Multikana_2", {"multikana_2"}, {"001", ","}, "00002", HE70034E},
    {"Lvystring", {"lvystring"}, {"001", "\xb1"}, "00002", HE70006E},
    {"Istring", {"istring"}, {"001", "a"}, "00002", HE70006E},
    {"Charlength", {"charlength", "2"}, {"001", "a"}, "00002", HE70007E},
    {"Length", {"length", "2"}, {"001", "a"}, "00002", HE70008E},
    {"Number", {"number"}, {"001", "a"}, "00002", HE70004E},
    {"Exist", {"exist"}, {"001", ""}, "00002", HE70001E},
    {"Empty", {"empty"}, {"001", "a"}, "00002", HE70005E},
    {"Exist_2OfAnotherKind", {"exist_2"}, {"001", "a"}, "00002", HE70012E},
    {"Range", {"range", "", "1", "5"}, {"001", "6"}, "00002", HE70009E},
    {"Contain", {"contain", "1 2"}, {"001", "3"}, "00002", HE70009E},
    {"Except", {"except", "1 2"}, {"001", "1"}, "00002", HE99999E},
    {"ContainColumn", {"containcolumn", "3"}, {"001", "a", "b"}, "00002", HE70025E},
    {"ExceptColumn", {"exceptcolumn", "3"}, {"001", "a", "a"}, "00002", HE70010E},
    {"AnyExist", {"anyexist", "3 4"}, {"001", "a", "", ""}, "00002", HE70001E},
    {"AnyContain", {"anycontain", "3", "1", "5"}, {"001", "a", "6"}, "00002", HE70009E},
    {"CheckDigit", {"checkdigit", "kojin"}, {"001", "1"}, "00002", HE70008E},
    {"DigitEquality", {"digitequality", "1", "", "9"}, {"001", "8"}, "00002", HE70010E},
    {"Extension", {"extension", ".txt"}, {"001", "a.csv"}, "00002", HE70015E},
    {"Existpath", {"existpath", "file"}, {"001", ""}, "00002", HE70001E},
};

INSTANTIATE_TEST_SUITE_P(Keywords, EveryItemTest, testing::ValuesIn(REFUSALS), CaseName());

// --- GetYYYYMMDDStr ---

struct DateTextCase
{
    const char* szName;
    const char* szYear;
    const char* szMonth;
    const char* szDay;
    const char* szText;
};

void PrintTo(const DateTextCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class DateTextTest : public ResetState, public testing::WithParamInterface<DateTextCase>
{};

TEST_P(DateTextTest, IsMadeOfThreeCells)
{
    const TableCsv csv{{"001", GetParam().szYear, GetParam().szMonth, GetParam().szDay}};
    KZCEkaValidItem item(0, MSG_NONE);
    EXPECT_EQ(item.GetYYYYMMDDStr(&csv, 1, 2, 3), GetParam().szText);
}

constexpr DateTextCase DATE_TEXTS[] = {
    {"Date", "2020", "3", "1", "2020/03/01"},
    {"TwoDigitMonthAndDay", "2020", "12", "31", "2020/12/31"},
    {"AllEmpty", "", "", "", ""},
    {"OnlyAYear", "2020", "", "", "2020/00/00"},
    {"OnlyAMonth", "", "3", "", "0000/03/00"},
    {"OnlyADay", "", "", "1", "0000/00/01"},
    {"NoNumberIsZero", "abc", "x", "-", "0000/00/00"},
    {"ShortYearIsPadded", "31", "4", "30", "0031/04/30"},
    {"LongNumbersStayWhole", "12345", "123", "456", "12345/123/456"},
    {"LeadingZerosAreDropped", "002020", "003", "001", "2020/03/01"},
    {"BlankAndSignAreRead", " 2020", "+3", "1x", "2020/03/01"},
    {"NegativeNumbersKeepTheWidth", "-5", "-3", "1", "-005/-3/01"},
    {"OnlyTheLow32BitsCount", "4294969316", "3", "1", "2020/03/01"},
    {"Beyond64BitsReadsMinusOne", "99999999999999999999", "3", "1", "-001/03/01"},
    {"LongestTextFits", "-2147483648", "-2147483648", "-2147483648",
     "-2147483648/-2147483648/-2147483648"},
};

INSTANTIATE_TEST_SUITE_P(Cells, DateTextTest, testing::ValuesIn(DATE_TEXTS), CaseName());

TEST_F(ValidItemTest, DateTextIsReadFromTheRecordOfTheLastCheck)
{
    const TableCsv csv{{"001", "2019", "1", "2"}, {"001", "2020", "3", "4"}};
    KZCEkaValidItem item(0, MSG_NONE);
    EXPECT_EQ(OnRecord(item, csv, 1), PASSES);
    EXPECT_EQ(item.GetYYYYMMDDStr(&csv, 1, 2, 3), "2020/03/04");
}

TEST_F(ValidItemTest, DateTextTakesColumnsInAnyOrder)
{
    const TableCsv csv{{"31", "12", "2019"}};
    KZCEkaValidItem item(0, MSG_NONE);
    EXPECT_EQ(item.GetYYYYMMDDStr(&csv, 2, 1, 0), "2019/12/31");
}

TEST_F(ValidItemTest, DateTextWithoutAFileRaisesAndIsLogged)
{
    KZCEkaValidItem item(0, MSG_NONE);
    const DebugLog log;
    EXPECT_EQ(Told([&] {
                  item.GetYYYYMMDDStr(nullptr, 1, 2, 3);
                  return STATUS_OK;
              }),
              RAISES);
    EXPECT_EQ(WholeLog(log),
              "[KZCEkaValidItem::GetYYYYMMDDStr]\n想定しないエラーが発生しました。\n");
}

TEST_F(ValidItemTest, DateTextOfColumnsBehindTheEndIsEmpty)
{
    const TableCsv csv{{"001"}};
    KZCEkaValidItem item(0, MSG_NONE);
    EXPECT_EQ(item.GetYYYYMMDDStr(&csv, 1, 2, 3), "");
}

// --- SplitValue ---

struct SplitCase
{
    const char* szName;
    const char* szValue;
    const char* szDelimiter;
    std::vector<long> vecColumn;
};

void PrintTo(const SplitCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class SplitValueTest : public ResetState, public testing::WithParamInterface<SplitCase>
{};

TEST_P(SplitValueTest, GivesColumnsFromZero)
{
    std::vector<long> vecColumn = {7, 8, 9};
    KZCEkaValidItem::SplitValue(GetParam().szValue, vecColumn, GetParam().szDelimiter);
    EXPECT_EQ(vecColumn, GetParam().vecColumn);
}

const SplitCase SPLITS[] = {
    {"Empty", "", " ", {}},
    {"One", "3", " ", {2}},
    {"Several", "3 5 12", " ", {2, 4, 11}},
    {"AnotherDelimiter", "3,5", ",", {2, 4}},
    {"Zero", "0", " ", {-1}},
    {"Negative", "-2", " ", {-3}},
    {"PrefixOfAPiece", "5a 6", " ", {4, 5}},
    {"WholeTextBeforeAForeignDelimiter", "3;5", ",", {2}},
};

INSTANTIATE_TEST_SUITE_P(Texts, SplitValueTest, testing::ValuesIn(SPLITS), CaseName());

class SplitValueFaultTest : public ResetState, public testing::WithParamInterface<SplitCase>
{};

TEST_P(SplitValueFaultTest, RaisesTheExceptionOfTheConversion)
{
    std::vector<long> vecColumn;
    EXPECT_THROW(KZCEkaValidItem::SplitValue(GetParam().szValue, vecColumn, GetParam().szDelimiter),
                 std::exception);
}

const SplitCase SPLIT_FAULTS[] = {
    {"NoNumber", "x", " ", {}},
    {"NoNumberBehindANumber", "3 x", " ", {}},
    {"EmptyPieceInTheMiddle", "3  5", " ", {}},
    {"EmptyPieceAtTheFront", " 3", " ", {}},
    {"EmptyPieceAtTheEnd", "3 ", " ", {}},
    {"BlanksOnly", "  ", " ", {}},
};

INSTANTIATE_TEST_SUITE_P(Texts, SplitValueFaultTest, testing::ValuesIn(SPLIT_FAULTS), CaseName());

}  // namespace
