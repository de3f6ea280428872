#include "KZCValidResult.h"

#include <gmock/gmock.h>

#include <climits>
#include <numeric>
#include <random>

#include "support/ResetState.h"

namespace {

using testing::ElementsAre;

class KZCValidResultTest : public ResetState
{
protected:
    static KZCValidResult& Store() { return *KZCValidResult::instance(); }

    static std::string TableOf(KZCEkaMessage_t eMessage, long lRecord, long lColumn, long lEnd)
    {
        Store().SetResult(eMessage, lRecord, lColumn, lEnd);
        return Store().MakeResult();
    }

    static void Fill(long lCount)
    {
        for (long lRecord = 1; lRecord <= lCount; ++lRecord)
            Store().SetResult(HE70001E, lRecord, 1, SINGLE_COLUMN);
    }

    static std::vector<long> Drain(long lCount)
    {
        std::vector<long> vecNumber;
        for (long lAt = 0; lAt < lCount; ++lAt)
            vecNumber.push_back(Store().PopFrontRandomNumber());
        return vecNumber;
    }
};

TEST_F(KZCValidResultTest, InstanceIsTheSameObjectUntilItIsDestroyed)
{
    KZCValidResult* pFirst = KZCValidResult::instance();
    EXPECT_EQ(KZCValidResult::instance(), pFirst);
}

TEST_F(KZCValidResultTest, DestroyDropsTheErrors)
{
    Store().SetResult(HE70001E, 1, 1, SINGLE_COLUMN);
    KZCValidResult::destroy();
    EXPECT_TRUE(Store().IsEmpty());
}

TEST_F(KZCValidResultTest, DestroyDropsItTextAndPool)
{
    Store().SetITData("<A ID=\"A\">");
    Store().ResetRundomNumber(5);
    KZCValidResult::destroy();
    EXPECT_FALSE(Store().ExistID("A"));
    EXPECT_EQ(Store().PopFrontRandomNumber(), 0);
}

TEST_F(KZCValidResultTest, DestroyWithoutAnObjectIsAllowed)
{
    KZCValidResult::destroy();
    KZCValidResult::destroy();
    EXPECT_TRUE(Store().IsEmpty());
}

TEST_F(KZCValidResultTest, IsEmptyUntilTheFirstError)
{
    EXPECT_TRUE(Store().IsEmpty());
    Store().SetResult(HE70001E, 1, 1, SINGLE_COLUMN);
    EXPECT_FALSE(Store().IsEmpty());
}

TEST_F(KZCValidResultTest, ClearResultEmptiesTheErrors)
{
    Store().SetResult(HE70001E, 1, 1, SINGLE_COLUMN);
    Store().ClearResult();
    EXPECT_TRUE(Store().IsEmpty());
}

TEST_F(KZCValidResultTest, ClearResultLeavesItTextAndPoolAlone)
{
    Store().SetITData("<A ID=\"A\">");
    Store().ResetRundomNumber(5);
    Store().ClearResult();
    EXPECT_TRUE(Store().ExistID("A"));
    EXPECT_EQ(Store().PopFrontRandomNumber(), 4);
}

// --- the detail table ---

TEST_F(KZCValidResultTest, AnEmptyStoreRendersTheMessageThatThereIsNone)
{
    EXPECT_EQ(Store().MakeResult(), "0000-00000-HE70017E");
}

TEST_F(KZCValidResultTest, AnEmptyStoreIsEmptyAgainBehindItsTable)
{
    static_cast<void>(Store().MakeResult());
    EXPECT_TRUE(Store().IsEmpty());
}

TEST_F(KZCValidResultTest, MakeResultEmptiesTheStore)
{
    EXPECT_EQ(TableOf(HE70001E, 3, 12, SINGLE_COLUMN), "0003-00012-HE70001E");
    EXPECT_EQ(Store().MakeResult(), "0000-00000-HE70017E");
}

TEST_F(KZCValidResultTest, MakeResultLeavesItTextAndPoolAlone)
{
    Store().SetITData("<A ID=\"A\">");
    Store().ResetRundomNumber(5);
    static_cast<void>(Store().MakeResult());
    EXPECT_TRUE(Store().ExistID("A"));
    EXPECT_EQ(Store().PopFrontRandomNumber(), 4);
}

TEST_F(KZCValidResultTest, EntriesStandInTheOrderOfArrivalJoinedByCommas)
{
    Store().SetResult(HE70013E, ARGUMENT_RECORD, 1, SINGLE_COLUMN);
    Store().SetResult(HE70001E, 3, 12, SINGLE_COLUMN);
    Store().SetResult(HE70025E, 3, 14, 17);
    Store().SetResult(HE70021E, 0, 1, SINGLE_COLUMN);
    EXPECT_EQ(Store().MakeResult(),
              "9999-00001-HE70013E,0003-00012-HE70001E,0003-14:17-HE70025E,0000-00001-HE70021E");
}

TEST_F(KZCValidResultTest, RepeatedErrorsStayInTheTable)
{
    Store().SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
    Store().SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
    EXPECT_EQ(Store().MakeResult(), "0001-00002-HE70001E,0001-00002-HE70001E");
}

struct EntryCase
{
    const char* szName;
    KZCEkaMessage_t eMessage;
    long lRecord;
    long lColumn;
    long lColumnEnd;
    const char* szExpected;
};

class KZCValidResultEntryTest : public ResetState, public testing::WithParamInterface<EntryCase>
{};

TEST_P(KZCValidResultEntryTest, RendersAsItsFormHasIt)
{
    const EntryCase& entry = GetParam();
    KZCValidResult::instance()->SetResult(entry.eMessage, entry.lRecord, entry.lColumn,
                                          entry.lColumnEnd);
    EXPECT_EQ(KZCValidResult::instance()->MakeResult(), entry.szExpected);
}

constexpr long TWO_POWER_32 = 4294967296;

constexpr EntryCase ENTRY_CASES[] = {
    {"SingleColumn", HE70001E, 7, 12, -1, "0007-00012-HE70001E"},
    {"WholeFile", HE70024E, 0, 0, -1, "0000-00000-HE70024E"},
    {"Argument", HE70013E, 9999, 1, -1, "9999-00001-HE70013E"},
    {"RecordOfFiveDigits", HE70001E, 12345, 1, -1, "12345-00001-HE70001E"},
    {"ColumnOfSixDigits", HE70001E, 1, 123456, -1, "0001-123456-HE70001E"},
    {"Range", HE70025E, 7, 3, 6, "0007-03:06-HE70025E"},
    {"RangeOfThreeDigits", HE70025E, 7, 123, 125, "0007-123:125-HE70025E"},
    {"EndZeroIsARange", HE70001E, 7, 12, 0, "0007-12:00-HE70001E"},
    {"OtherNegativeEndIsARange", HE70001E, 7, 12, -2, "0007-12:-2-HE70001E"},
    {"NegativeRecord", HE70001E, -1, 1, -1, "-001-00001-HE70001E"},
    {"NegativeColumn", HE70001E, 1, -5, -1, "0001--0005-HE70001E"},
    {"ColumnIsCutAtNineCharacters", HE70001E, 1, 1234567890, -1, "0001-123456789-HE70001E"},
    {"RangeIsCutAtNineCharacters", HE70001E, 1, 12345, 67890, "0001-12345:678-HE70001E"},
    {"NoMessage", MSG_NONE, 1, 1, -1, "0001-00001-"},
    {"LastMessage", HE99999E, 1, 1, -1, "0001-00001-HE99999E"},
    {"RecordOfItsLow32Bits", HE70001E, TWO_POWER_32 + 3, 1, -1, "0003-00001-HE70001E"},
    {"ColumnOfItsLow32Bits", HE70001E, 1, TWO_POWER_32 + 3, -1, "0001-00003-HE70001E"},
    {"Low32BitsAreSigned", HE70001E, TWO_POWER_32 - 1, 1, -1, "-001-00001-HE70001E"},
    {"EndIsComparedWithAllItsBits", HE70001E, 1, 3, TWO_POWER_32 - 1, "0001-03:-1-HE70001E"},
};

INSTANTIATE_TEST_SUITE_P(Entries,
                         KZCValidResultEntryTest,
                         testing::ValuesIn(ENTRY_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

/// "0001-00001-HE70001E,0002-00001-HE70001E,..." up to a record number.
std::string ExpectedTable(long lCount)
{
    std::string strTable;
    for (long lRecord = 1; lRecord <= lCount; ++lRecord) {
        std::string strRecord = std::to_string(lRecord);
        if (strRecord.size() < 4)
            strRecord.insert(0, 4 - strRecord.size(), '0');
        strTable += (lRecord == 1 ? "" : ",") + strRecord + "-00001-HE70001E";
    }
    return strTable;
}

TEST_F(KZCValidResultTest, AHundredThousandErrorsAreAllRendered)
{
    Fill(100000);
    EXPECT_TRUE(Store().MakeResult() == ExpectedTable(100000));
}

TEST_F(KZCValidResultTest, TheErrorBehindAHundredThousandGivesWayToTheMessageThatTheyAreTooMany)
{
    Fill(100001);
    EXPECT_TRUE(Store().MakeResult() == ExpectedTable(100000) + ",0000-00000-HE70022E");
}

TEST_F(KZCValidResultTest, FarTooManyErrorsEndInOneMessageOnly)
{
    Fill(150000);
    EXPECT_TRUE(Store().MakeResult() == ExpectedTable(100000) + ",0000-00000-HE70022E");
}

// --- the fatal error ---

TEST_F(KZCValidResultTest, SetFatalErrorReplacesAllErrors)
{
    Fill(50);
    Store().SetFatalError();
    EXPECT_EQ(Store().MakeResult(), "0000-00000-HE70018E");
}

TEST_F(KZCValidResultTest, SetFatalErrorOnAnEmptyStoreRecordsIt)
{
    Store().SetFatalError();
    EXPECT_FALSE(Store().IsEmpty());
}

TEST_F(KZCValidResultTest, SetFatalErrorTwiceLeavesOneEntry)
{
    Store().SetFatalError();
    Store().SetFatalError();
    EXPECT_EQ(Store().MakeResult(), "0000-00000-HE70018E");
}

TEST_F(KZCValidResultTest, ErrorsBehindAFatalErrorAreAppended)
{
    Store().SetFatalError();
    Store().SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
    EXPECT_EQ(Store().MakeResult(), "0000-00000-HE70018E,0001-00002-HE70001E");
}

TEST_F(KZCValidResultTest, SetFatalErrorLeavesItTextAndPoolAlone)
{
    Store().SetITData("<A ID=\"A\">");
    Store().ResetRundomNumber(5);
    Store().SetFatalError();
    EXPECT_TRUE(Store().ExistID("A"));
    EXPECT_EQ(Store().PopFrontRandomNumber(), 4);
}

// --- repeated errors ---

TEST_F(KZCValidResultTest, AlignErrCodeKeepsTheFirstOfThreeEqualErrors)
{
    Store().SetResult(HE70001E, 2, 1, SINGLE_COLUMN);
    Store().SetResult(HE70004E, 1, 1, SINGLE_COLUMN);
    Store().SetResult(HE70001E, 2, 1, SINGLE_COLUMN);
    Store().SetResult(HE70001E, 1, 1, SINGLE_COLUMN);
    Store().SetResult(HE70001E, 2, 1, SINGLE_COLUMN);
    Store().AlignErrCode();
    EXPECT_EQ(Store().MakeResult(), "0002-00001-HE70001E,0001-00001-HE70004E,0001-00001-HE70001E");
}

struct DifferenceCase
{
    const char* szName;
    _ResultTable second;
};

class KZCValidResultDifferenceTest : public ResetState,
                                     public testing::WithParamInterface<DifferenceCase>
{};

TEST_P(KZCValidResultDifferenceTest, AlignErrCodeKeepsErrorsThatDifferInOneField)
{
    KZCValidResult& store = *KZCValidResult::instance();
    const _ResultTable& second = GetParam().second;
    const auto record = [&] {
        store.SetResult(HE70001E, 1, 2, 3);
        store.SetResult(second.eMessage, second.nRecord, second.nColumn, second.nColumnEnd);
    };
    record();
    const std::string strExpected = store.MakeResult();
    record();
    store.AlignErrCode();
    EXPECT_EQ(store.MakeResult(), strExpected);
}

constexpr DifferenceCase DIFFERENCE_CASES[] = {
    {"Record", {2, 2, 3, HE70001E}},
    {"Column", {1, 1, 3, HE70001E}},
    {"EndColumn", {1, 2, 4, HE70001E}},
    {"Message", {1, 2, 3, HE70004E}},
};

INSTANTIATE_TEST_SUITE_P(Fields,
                         KZCValidResultDifferenceTest,
                         testing::ValuesIn(DIFFERENCE_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST_F(KZCValidResultTest, AlignErrCodeOfAnEmptyStoreDoesNothing)
{
    Store().AlignErrCode();
    EXPECT_TRUE(Store().IsEmpty());
}

TEST_F(KZCValidResultTest, AlignErrCodeOfOneErrorKeepsIt)
{
    Store().SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
    Store().AlignErrCode();
    EXPECT_EQ(Store().MakeResult(), "0001-00002-HE70001E");
}

TEST_F(KZCValidResultTest, AlignErrCodeOfAHundredThousandDistinctErrorsKeepsAll)
{
    Fill(100000);
    Store().AlignErrCode();
    EXPECT_TRUE(Store().MakeResult() == ExpectedTable(100000));
}

// --- is a cell in error ---

struct ExistCase
{
    const char* szName;
    _ResultTable entry;
    long lRecord;
    long lColumn;
    bool bExpected;
};

class KZCValidResultExistTest : public ResetState, public testing::WithParamInterface<ExistCase>
{};

TEST_P(KZCValidResultExistTest, IsExistErrLooksAtRecordAndColumns)
{
    const ExistCase& testCase = GetParam();
    KZCValidResult::instance()->SetResult(testCase.entry.eMessage, testCase.entry.nRecord,
                                          testCase.entry.nColumn, testCase.entry.nColumnEnd);
    EXPECT_EQ(KZCValidResult::instance()->IsExistErr(testCase.lRecord, testCase.lColumn),
              testCase.bExpected);
}

constexpr _ResultTable RANGE = {7, 3, 6, HE70025E};
constexpr _ResultTable SINGLE = {7, 5, -1, HE70001E};

constexpr ExistCase EXIST_CASES[] = {
    {"InsideTheRange", RANGE, 7, 5, true},
    {"FirstOfTheRange", RANGE, 7, 3, true},
    {"LastOfTheRange", RANGE, 7, 6, true},
    {"BeforeTheRange", RANGE, 7, 2, false},
    {"BehindTheRange", RANGE, 7, 7, false},
    {"RangeOfAnotherRecord", RANGE, 8, 5, false},
    {"SingleColumn", SINGLE, 7, 5, true},
    {"BehindASingleColumn", SINGLE, 7, 6, false},
    {"BeforeASingleColumn", SINGLE, 7, 4, false},
    {"SingleColumnOfAnotherRecord", SINGLE, 8, 5, false},
    {"EndZeroIsNoRange", {7, 5, 0, HE70001E}, 7, 4, false},
    {"FirstColumnOfEndZero", {7, 5, 0, HE70001E}, 7, 5, true},
    {"FirstColumnOfATurnedRange", {7, 5, 2, HE70001E}, 7, 5, true},
    {"InsideATurnedRange", {7, 5, 2, HE70001E}, 7, 3, false},
    {"WholeFile", {0, 0, -1, HE70024E}, 0, 0, true},
    {"RangeFromZero", {7, 0, 4, HE70001E}, 7, 4, true},
    {"WithoutAMessage", {7, 5, -1, MSG_NONE}, 7, 5, true},
    {"Argument", {9999, 2, -1, HE70013E}, 9999, 2, true},
};

INSTANTIATE_TEST_SUITE_P(Cells,
                         KZCValidResultExistTest,
                         testing::ValuesIn(EXIST_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST_F(KZCValidResultTest, IsExistErrIsFalseOnAnEmptyStore)
{
    EXPECT_FALSE(Store().IsExistErr(0, 0));
}

TEST_F(KZCValidResultTest, IsExistErrSeesErrorsThatCameBehindAnEarlierQuestion)
{
    Store().SetResult(HE70001E, 1, 1, SINGLE_COLUMN);
    EXPECT_FALSE(Store().IsExistErr(2, 2));
    Store().SetResult(HE70001E, 2, 2, SINGLE_COLUMN);
    EXPECT_TRUE(Store().IsExistErr(2, 2));
}

TEST_F(KZCValidResultTest, IsExistErrForgetsWhatClearResultRemoved)
{
    Store().SetResult(HE70001E, 1, 1, SINGLE_COLUMN);
    EXPECT_TRUE(Store().IsExistErr(1, 1));
    Store().ClearResult();
    EXPECT_FALSE(Store().IsExistErr(1, 1));
}

TEST_F(KZCValidResultTest, IsExistErrForgetsWhatMakeResultRendered)
{
    Store().SetResult(HE70001E, 1, 1, SINGLE_COLUMN);
    EXPECT_TRUE(Store().IsExistErr(1, 1));
    static_cast<void>(Store().MakeResult());
    EXPECT_FALSE(Store().IsExistErr(1, 1));
}

TEST_F(KZCValidResultTest, IsExistErrForgetsWhatAFatalErrorReplaced)
{
    Store().SetResult(HE70001E, 1, 1, SINGLE_COLUMN);
    EXPECT_TRUE(Store().IsExistErr(1, 1));
    Store().SetFatalError();
    EXPECT_FALSE(Store().IsExistErr(1, 1));
    EXPECT_TRUE(Store().IsExistErr(0, 0));
}

TEST_F(KZCValidResultTest, IsExistErrStillSeesWhatAlignErrCodeKept)
{
    Store().SetResult(HE70001E, 1, 1, SINGLE_COLUMN);
    Store().SetResult(HE70001E, 1, 1, SINGLE_COLUMN);
    EXPECT_TRUE(Store().IsExistErr(1, 1));
    Store().AlignErrCode();
    EXPECT_TRUE(Store().IsExistErr(1, 1));
    Store().SetResult(HE70001E, 2, 3, 5);
    EXPECT_TRUE(Store().IsExistErr(2, 4));
}

// --- references to the IT section ---

struct IdCase
{
    const char* szName;
    const char* szITData;
    const char* szId;
    bool bExpected;
};

class KZCValidResultIdTest : public ResetState, public testing::WithParamInterface<IdCase>
{};

TEST_P(KZCValidResultIdTest, ExistIDLooksForTheStartTagAsText)
{
    KZCValidResult::instance()->SetITData(GetParam().szITData);
    EXPECT_EQ(KZCValidResult::instance()->ExistID(GetParam().szId), GetParam().bExpected);
}

constexpr IdCase ID_CASES[] = {
    {"Defined", "<IT><A ID=\"A\">x</A></IT>", "A", true},
    {"OtherValue", "<A ID=\"B\">", "A", false},
    {"OtherName", "<B ID=\"A\">", "A", false},
    {"SingleQuotes", "<A ID='A'>", "A", false},
    {"FurtherAttribute", "<A ID=\"A\" x=\"1\">", "A", false},
    {"EmptyElement", "<A ID=\"A\"/>", "A", false},
    {"AnotherCase", "<A id=\"A\">", "A", false},
    {"PartOfALongerName", "<AB ID=\"AB\">", "A", false},
    {"EmptyText", "", "A", false},
    {"InsideAComment", "<!--<A ID=\"A\">-->", "A", true},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCValidResultIdTest,
                         testing::ValuesIn(ID_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST_F(KZCValidResultTest, ExistIDIsFalseBeforeAnyText)
{
    EXPECT_FALSE(Store().ExistID("A"));
}

TEST_F(KZCValidResultTest, SetITDataReplacesTheText)
{
    Store().SetITData("<A ID=\"A\">");
    Store().SetITData("<B ID=\"B\">");
    EXPECT_FALSE(Store().ExistID("A"));
    EXPECT_TRUE(Store().ExistID("B"));
}

// --- the pool of numbers ---

TEST_F(KZCValidResultTest, AnEmptyPoolGivesZero)
{
    EXPECT_THAT(Drain(3), ElementsAre(0, 0, 0));
}

// The generator's first numbers are 3499211612, 581869302, 3890346734, 3586334585. Positions 0 to 3
// draw 3, 2, 2 and 1 bits: 4, 2, 2, 1.
TEST_F(KZCValidResultTest, FiveNumbersComeInTheirFixedOrder)
{
    Store().ResetRundomNumber(5);
    EXPECT_THAT(Drain(5), ElementsAre(4, 3, 0, 2, 1));
}

// Position 1 of six draws 3 bits for 0 to 4 and refuses 6 twice; position 3 refuses 3 once.
TEST_F(KZCValidResultTest, ValuesBeyondTheRangeAreDrawnAgain)
{
    Store().ResetRundomNumber(6);
    EXPECT_THAT(Drain(6), ElementsAre(4, 2, 1, 0, 5, 3));
}

/// The same shuffle written down a second time, by counting bits instead of masking.
std::vector<long> ShuffledNumbers(long lCount)
{
    std::vector<long> vecNumber(static_cast<std::size_t>(lCount));
    std::iota(vecNumber.begin(), vecNumber.end(), 0);
    std::mt19937 generator(5489);
    for (std::size_t nAt = 0; nAt + 1 < vecNumber.size(); ++nAt) {
        const std::uint64_t nChoices = vecNumber.size() - nAt;
        std::uint64_t nPower = 1;
        while (nPower < nChoices)
            nPower *= 2;
        std::uint64_t nStep = generator() % nPower;
        while (nStep >= nChoices)
            nStep = generator() % nPower;
        std::swap(vecNumber[nAt], vecNumber[nAt + nStep]);
    }
    return vecNumber;
}

TEST_F(KZCValidResultTest, AThousandNumbersComeInTheirFixedOrder)
{
    Store().ResetRundomNumber(1000);
    EXPECT_EQ(Drain(1000), ShuffledNumbers(1000));
}

TEST_F(KZCValidResultTest, EveryResetGivesTheSameOrder)
{
    Store().ResetRundomNumber(5);
    static_cast<void>(Drain(2));
    Store().ResetRundomNumber(5);
    EXPECT_THAT(Drain(5), ElementsAre(4, 3, 0, 2, 1));
}

TEST_F(KZCValidResultTest, APoolThatRanOutGivesZero)
{
    Store().ResetRundomNumber(2);
    EXPECT_THAT(Drain(4), ElementsAre(0, 1, 0, 0));
}

TEST_F(KZCValidResultTest, APoolOfOneHoldsZero)
{
    Store().ResetRundomNumber(1);
    EXPECT_EQ(Store().PopFrontRandomNumber(), 0);
}

TEST_F(KZCValidResultTest, ACountOfZeroEmptiesThePool)
{
    Store().ResetRundomNumber(5);
    Store().ResetRundomNumber(0);
    EXPECT_EQ(Store().PopFrontRandomNumber(), 0);
}

TEST_F(KZCValidResultTest, ANegativeCountEmptiesThePool)
{
    Store().ResetRundomNumber(5);
    Store().ResetRundomNumber(-3);
    EXPECT_EQ(Store().PopFrontRandomNumber(), 0);
}

}  // namespace
