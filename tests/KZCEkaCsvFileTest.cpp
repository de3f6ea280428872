#include "KZCEkaCsvFile.h"

#include <gmock/gmock.h>

#include <climits>
#include <cstdint>
#include <filesystem>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/GenerationCsv.h"
#include "support/LogEntries.h"
#include "support/LogMessages.h"
#include "support/Raised.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"
#include "support/TempFolder.h"

namespace {

using Record = KZCEkaCsvFile::Record;
using Records = std::vector<Record>;

/// Shows what the class keeps to itself.
class OpenCsv : public KZCEkaCsvFile
{
public:
    Records GetRecords() const { return m_table.Records(); }
    const std::map<std::int64_t, std::string>& GetGenerations() const { return m_mapGeneration; }
    std::int64_t GetColumnNum() const { return m_nColumnNum; }
};

/// Takes every record but one whose first column is "stop".
class UncheckedCsv final : public OpenCsv
{
public:
    bool ValidateRecord(const Record& record) override { return record.front() != "stop"; }
};

std::string Repeat(const std::string& strText, int nTimes)
{
    std::string strAll;
    for (int n = 0; n < nTimes; ++n)
        strAll += strText;
    return strAll;
}

// ---- splitting ---------------------------------------------------------------------------------

struct SplitCase
{
    const char* szName;
    const char* szText;
    Records vecExpected;
};

void PrintTo(const SplitCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CsvSplitTest : public ResetState, public testing::WithParamInterface<SplitCase>
{};

TEST_P(CsvSplitTest, GivesTheseRecords)
{
    UncheckedCsv csv;
    EXPECT_EQ(csv.Parse(GetParam().szText, false), STATUS_OK);
    EXPECT_EQ(csv.GetRecords(), GetParam().vecExpected);
}

const SplitCase SPLIT_CASES[] = {
    {"EmptyTextIsOneBlankRecord", "", {{""}}},
    {"OneRecordWithoutLineEnd", "a,b,c", {{"a", "b", "c"}}},
    {"LineFeed", "a,b\nc,d", {{"a", "b"}, {"c", "d"}}},
    {"CarriageReturn", "a,b\rc,d", {{"a", "b"}, {"c", "d"}}},
    {"CarriageReturnLineFeed", "a,b\r\nc,d", {{"a", "b"}, {"c", "d"}}},
    {"LineFeedCarriageReturnIsTwoLineEnds", "a\n\rb", {{"a"}, {""}, {"b"}}},
    {"TwoCarriageReturnsAndALineFeedAreTwoLineEnds", "a\r\r\nb", {{"a"}, {""}, {"b"}}},
    {"ClosingLineFeedGivesAFinalBlankRecord", "a\n", {{"a"}, {""}}},
    {"ClosingCarriageReturnGivesAFinalBlankRecord", "a\r", {{"a"}, {""}}},
    {"ClosingPairGivesOneFinalBlankRecord", "a\r\n", {{"a"}, {""}}},
    {"OnlyLineFeed", "\n", {{""}, {""}}},
    {"LineOfSpacesIsBlank", "a\n   \nb", {{"a"}, {""}, {"b"}}},
    {"LineOfCommasIsNot", "a\n,,\nb", {{"a"}, {"", "", ""}, {"b"}}},
    {"TrailingComma", "a,", {{"a", ""}}},
    {"LeadingComma", ",a", {{"", "a"}}},
    {"BlanksAroundAValueGo", " a , b\t,\v\f", {{"a", "b", ""}}},
    {"FullWidthSpacesGo", "　a　,　", {{"a", ""}}},
    {"NextLineAndNoBreakSpaceGo",
     "\xc2\x85"
     "a"
     "\xc2\xa0,b",
     {{"a", "b"}}},
    {"BlanksInsideAValueStay", "a b　c", {{"a b　c"}}},
    {"QuotesAroundThreeLettersAreFiveBytes", "\"abc\"", {{"\"abc\""}}},
    {"QuotesDoNotHoldACommaTogether", "\"a,b\"", {{"\"a", "b\""}}},
    {"QuotesDoNotHoldALineEndTogether", "\"a\nb\"", {{"\"a"}, {"b\""}}},
    {"ThereAreNoComments", "#a\n//b", {{"#a"}, {"//b"}}},
    {"SemicolonsAndTabsInsideDoNotSplit", "a;b\tc", {{"a;b\tc"}}},
};

INSTANTIATE_TEST_SUITE_P(Texts, CsvSplitTest, testing::ValuesIn(SPLIT_CASES), CaseName());

class CsvQuotedSplitTest : public ResetState, public testing::WithParamInterface<SplitCase>
{};

TEST_P(CsvQuotedSplitTest, GivesTheseRecords)
{
    UncheckedCsv csv;
    EXPECT_EQ(csv.Parse(GetParam().szText, true), STATUS_OK);
    EXPECT_EQ(csv.GetRecords(), GetParam().vecExpected);
}

const SplitCase QUOTED_SPLIT_CASES[] = {
    {"NothingQuoted", "a,b\nc", {{"a", "b"}, {"c"}}},
    {"QuotesAreTakenOff", "\"abc\",d", {{"abc", "d"}}},
    {"Comma", "\"a,b\",c", {{"a,b", "c"}}},
    {"LineFeed", "\"a\nb\",c", {{"a\nb", "c"}}},
    {"CarriageReturnLineFeed", "\"a\r\nb\",c", {{"a\r\nb", "c"}}},
    {"DoubledQuote", "\"a\"\"b\"", {{"a\"b"}}},
    {"OnlyADoubledQuote", "\"\"\"\"", {{"\""}}},
    {"TwoDoubledQuotes", "\"\"\"\"\"\"", {{"\"\""}}},
    {"Empty", "\"\",a", {{"", "a"}}},
    {"BlanksInsideGo", "\" a \"", {{"a"}}},
    {"OpenAtTheEnd", "\"a,b", {{"a,b"}}},
    {"OpenAtTheEndOverLineEnds", "x\n\"a\nb\n", {{"x"}, {"a\nb"}}},
    {"OpenAtTheEndBehindADoubledQuote", "\"a\"\"", {{"a\""}}},
    {"OpeningQuoteAlone", "\"", {{""}}},
    {"TextBehindAClosingQuote", "\"a\"b,c", {{"ab", "c"}}},
    {"BlankBehindAClosingQuote", "\"a\" ,c", {{"a", "c"}}},
    {"QuoteBehindTextBehindAClosingQuote", "\"a\"b\"c\",d", {{"ab\"c\"", "d"}}},
    {"CommaBehindAClosedQuoteSplits", "\"a\"b,\"c\"", {{"ab", "c"}}},
    {"QuoteInsideAValueIsACharacter", "a\"b,c\"", {{"a\"b", "c\""}}},
    {"QuoteBehindABlankIsACharacter", " \"a,b\"", {{"\"a", "b\""}}},
    {"SecondColumn", "a,\"b,c\"", {{"a", "b,c"}}},
    {"SecondRecordBehindALineFeed", "a\n\"b,c\"", {{"a"}, {"b,c"}}},
    {"SecondRecordBehindACarriageReturn", "a\r\"b,c\"", {{"a"}, {"b,c"}}},
    {"SecondRecordBehindBoth", "a\r\n\"b,c\"", {{"a"}, {"b,c"}}},
    {"LineEndBehindAClosingQuote", "\"a\"\r\n\"b\"\n", {{"a"}, {"b"}, {""}}},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         CsvQuotedSplitTest,
                         testing::ValuesIn(QUOTED_SPLIT_CASES),
                         CaseName());

class CsvFileTest : public ResetState
{
protected:
    std::string Write(std::string_view strBytes) { return m_folder.Write("in.csv", strBytes); }

    /// Reads a file of these bytes. \return What Told tells.
    std::string Read(KZCEkaCsvFile& csv, std::string_view strBytes)
    {
        const std::string strPath = Write(strBytes);
        return Told([&] { return csv.ReadFile(strPath); });
    }

    TempFolder m_folder;
    Bundle m_bundle;
};

TEST_F(CsvFileTest, NullTextRaises)
{
    const DebugLog log;
    UncheckedCsv csv;
    EXPECT_EQ(Raised([&] { static_cast<void>(csv.Parse(nullptr, false)); }), FAULT);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("引数のポインタが不正です。"));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(CsvFileTest, RefusedRecordEndsTheSplittingAndIsNotStored)
{
    UncheckedCsv csv;
    EXPECT_EQ(csv.Parse("a\nstop,b\nc", false), STATUS_NG);
    EXPECT_EQ(csv.GetRecords(), (Records{{"a"}}));
}

TEST_F(CsvFileTest, RefusedLastRecordIsNotStored)
{
    UncheckedCsv csv;
    EXPECT_EQ(csv.Parse("a\nstop", false), STATUS_NG);
    EXPECT_EQ(csv.GetRecords(), (Records{{"a"}}));
}

// ---- ending a column ---------------------------------------------------------------------------

TEST_F(CsvFileTest, EndOfColumnTrimsIntoTheRecordAndEmptiesTheBuffer)
{
    UncheckedCsv csv;
    std::string strBuffer = " stop ";
    Record record;
    EXPECT_EQ(csv.ColumnTerm(strBuffer, record, false), STATUS_OK);
    EXPECT_EQ(strBuffer, "");
    EXPECT_EQ(record, Record{"stop"});
    EXPECT_EQ(csv.GetRecords(), Records{});
}

TEST_F(CsvFileTest, EndOfRecordStoresAndEmptiesTheRecord)
{
    UncheckedCsv csv;
    std::string strBuffer = "b";
    Record record = {"a"};
    EXPECT_EQ(csv.ColumnTerm(strBuffer, record, true), STATUS_OK);
    EXPECT_EQ(record, Record{});
    EXPECT_EQ(csv.GetRecords(), (Records{{"a", "b"}}));
}

TEST_F(CsvFileTest, EndOfARefusedRecordStoresNothingAndLeavesItInPlace)
{
    UncheckedCsv csv;
    std::string strBuffer = " b ";
    Record record = {"stop"};
    EXPECT_EQ(csv.ColumnTerm(strBuffer, record, true), STATUS_NG);
    EXPECT_EQ(strBuffer, "");
    EXPECT_EQ(record, (Record{"stop", "b"}));
    EXPECT_EQ(csv.GetRecords(), Records{});
}

TEST_F(CsvFileTest, EndOfAColumnNeverAsksAboutTheRecord)
{
    UncheckedCsv csv;
    std::string strBuffer = "b";
    Record record = {"stop"};
    EXPECT_EQ(csv.ColumnTerm(strBuffer, record, false), STATUS_OK);
    EXPECT_EQ(record, (Record{"stop", "b"}));
}

// ---- reading -----------------------------------------------------------------------------------

/// Removes the definition index behind its first data record.
class IndexRemovingCsv final : public OpenCsv
{
public:
    explicit IndexRemovingCsv(std::string strIndex) : m_strIndex(std::move(strIndex)) {}

    bool ValidateRecord(const Record& record) override
    {
        const bool bValid = KZCEkaCsvFile::ValidateRecord(record);
        if (record.size() > 1)
            std::filesystem::remove(m_strIndex);
        return bValid;
    }

private:
    std::string m_strIndex;
};

TEST_F(CsvFileTest, OnlyTheFirstRecordOpensTheIndex)
{
    const Bundle bundle;
    IndexRemovingCsv csv(bundle.Path("KZEkaDefine.xml"));
    EXPECT_EQ(csv.ReadFile(Write("\n003,1,a\n\n003,2,b\n")), STATUS_OK);
    EXPECT_FALSE(std::filesystem::exists(bundle.Path("KZEkaDefine.xml")));
    EXPECT_EQ(csv.GetRecords(), (Records{{""}, {"003", "1", "a"}, {""}, {"003", "2", "b"}, {""}}));
}

TEST_F(CsvFileTest, NewFileIsEmpty)
{
    const OpenCsv csv;
    EXPECT_STREQ(csv.GetTypeId(), "");
    EXPECT_EQ(csv.GetRecords(), Records{});
    EXPECT_EQ(csv.GetColumnNum(), 0);
    EXPECT_TRUE(csv.GetGenerations().empty());
}

TEST_F(CsvFileTest, ReadsRecordsTypeIdColumnCountAndGenerations)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a\r\n\r\n003,2,b\r\n"), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "1", "a"}, {""}, {"003", "2", "b"}, {""}}));
    EXPECT_STREQ(csv.GetTypeId(), "003");
    EXPECT_EQ(csv.GetColumnNum(), 3);
    EXPECT_EQ(csv.GetGenerations(),
              (std::map<std::int64_t, std::string>{{0, "senior"}, {2, "senior"}}));
}

TEST_F(CsvFileTest, CellsAreUtf8OutsideACheck)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, ToShiftJis("003,　青葉　,表ソ")), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "青葉", "表ソ"}}));
}

TEST_F(CsvFileTest, CellsAreShiftJisDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    OpenCsv csv;
    EXPECT_EQ(Read(csv, ToShiftJis("003,　青葉　,表ソ")), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "\x90\xc2\x97\x74", "\x95\x5c\x83\x5c"}}));
}

TEST_F(CsvFileTest, QuotesHaveNoMeaningInAFile)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,\"abc\",\"\"\""), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "\"abc\"", "\"\"\""}}));
}

TEST_F(CsvFileTest, LineFeedCarriageReturnLeavesABlankRecordBetweenTwoRecords)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a\n\r003,2,b"), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "1", "a"}, {""}, {"003", "2", "b"}}));
}

TEST_F(CsvFileTest, BlankRecordsInFrontAreAccepted)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "\n  \n003,1,a"), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{""}, {""}, {"003", "1", "a"}}));
    EXPECT_STREQ(csv.GetTypeId(), "003");
}

TEST_F(CsvFileTest, TypeIdIsTrimmedBeforeItIsLookedUp)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, ToShiftJis("　003 ,1,a")), PASSES);
    EXPECT_STREQ(csv.GetTypeId(), "003");
}

TEST_F(CsvFileTest, TextBehindANulIsLost)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, std::string_view("003,1,a\0b\n099,1\n", 16)), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "1", "a"}}));
}

TEST_F(CsvFileTest, SecondReadingReplacesTheFirst)
{
    m_bundle.Write(
        "KZEkaDefine.xml",
        R"(<define><report id="003" columnNum="3"/><report id="004" columnNum="2"/></define>)");
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a\n003,2,b"), PASSES);
    EXPECT_EQ(Read(csv, "004,x"), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"004", "x"}}));
    EXPECT_STREQ(csv.GetTypeId(), "004");
    EXPECT_EQ(csv.GetColumnNum(), 2);
    EXPECT_EQ(csv.GetGenerations(), (std::map<std::int64_t, std::string>{{0, "senior"}}));
}

TEST_F(CsvFileTest, FailedReadingLeavesTheRecordsReadSoFar)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a\n003,2\n003,3,c"), "refuses 0000-00000-HE70019E");
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "1", "a"}}));
    EXPECT_TRUE(csv.GetGenerations().empty());
}

TEST_F(CsvFileTest, ClearEmptiesAll)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a"), PASSES);
    csv.Clear();
    EXPECT_EQ(csv.GetRecords(), Records{});
    EXPECT_STREQ(csv.GetTypeId(), "");
    EXPECT_EQ(csv.GetColumnNum(), 0);
    EXPECT_TRUE(csv.GetGenerations().empty());
}

// ---- files that can't be read ------------------------------------------------------------------

struct UnreadableCase
{
    const char* szName;
    std::string strBytes;
};

void PrintTo(const UnreadableCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CsvUnreadableTest : public CsvFileTest, public testing::WithParamInterface<UnreadableCase>
{};

TEST_P(CsvUnreadableTest, RaisesAndRecordsNothing)
{
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Read(csv, GetParam().strBytes), RAISES);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("CSVファイルリードエラーが発生しました。",
                                                       "想定外エラーが発生しました。"));
    EXPECT_EQ(csv.GetRecords(), Records{});
}

const UnreadableCase UNREADABLE_CASES[] = {
    {"EmptyFile", ""},
    {"NulAtTheStart", std::string("\0"
                                  "003,1,a",
                                  8)},
    {"LoneLeadByteAtTheEnd", "003,1,\x82"},
    {"InvalidByteInTheMiddle", "003,1,a\n003,\xff,b\n"},
    {"Utf8Text", "003,1,あ\n"},
};

INSTANTIATE_TEST_SUITE_P(Files, CsvUnreadableTest, testing::ValuesIn(UNREADABLE_CASES), CaseName());

TEST_F(CsvFileTest, MissingFileRaisesAndRecordsNothing)
{
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Told([&] { return csv.ReadFile(m_folder.Path("missing.csv")); }), RAISES);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("CSVファイルリードエラーが発生しました。",
                                                       "想定外エラーが発生しました。"));
}

TEST_F(CsvFileTest, FolderRaisesAndRecordsNothing)
{
    OpenCsv csv;
    EXPECT_EQ(Told([&] { return csv.ReadFile(m_folder.Path()); }), RAISES);
}

TEST_F(CsvFileTest, EmptyPathRaisesAndRecordsNothing)
{
    OpenCsv csv;
    EXPECT_EQ(Told([&] { return csv.ReadFile(""); }), RAISES);
}

TEST_F(CsvFileTest, UnreadableFileEmptiesWhatWasReadBefore)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a"), PASSES);
    EXPECT_EQ(Read(csv, ""), RAISES);
    EXPECT_EQ(csv.GetRecords(), Records{});
    EXPECT_STREQ(csv.GetTypeId(), "");
}

// ---- definition index --------------------------------------------------------------------------

struct IndexCase
{
    const char* szName;
    std::optional<std::string> definition;
};

void PrintTo(const IndexCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CsvBadIndexTest : public ResetState, public testing::WithParamInterface<IndexCase>
{};

TEST_P(CsvBadIndexTest, RaisesAndRecordsNothing)
{
    const TempFolder folder;
    const Bundle bundle(GetParam().definition);
    const DebugLog log;
    OpenCsv csv;
    const std::string strPath = folder.Write("in.csv", "003,1,a");
    EXPECT_EQ(Told([&] { return csv.ReadFile(strPath); }), RAISES);
    EXPECT_THAT(LastLogMessages(log, 2),
                testing::ElementsAre("定義体の読み込みでエラーが発生しました。",
                                     "想定外エラーが発生しました。"));
    EXPECT_EQ(csv.GetRecords(), Records{});
}

const IndexCase BAD_INDEX_CASES[] = {
    {"Missing", std::nullopt},
    {"Empty", ""},
    {"Truncated", R"(<define><report id="003" columnNum="3"/>)"},
    {"NoXml", "003,3"},
    {"UndeclaredEntity", "<define>&none;</define>"},
};

INSTANTIATE_TEST_SUITE_P(Files, CsvBadIndexTest, testing::ValuesIn(BAD_INDEX_CASES), CaseName());

TEST_F(CsvFileTest, BlankRecordsAloneNeverOpenTheIndex)
{
    m_bundle.Write("KZEkaDefine.xml", "broken");
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "\n\n"), "refuses 0000-00000-HE70024E");
}

TEST_F(CsvFileTest, FirstOfTwoReportsWithOneIdWins)
{
    m_bundle.Write(
        "KZEkaDefine.xml",
        R"(<define><report id="003" columnNum="2"/><report id="003" columnNum="3"/></define>)");
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,x"), PASSES);
    EXPECT_EQ(csv.GetColumnNum(), 2);
}

TEST_F(CsvFileTest, OnlyChildrenOfTheRootNamedReportCount)
{
    m_bundle.Write(
        "KZEkaDefine.xml",
        R"(<define><Report id="003" columnNum="1"/><form><report id="003" columnNum="2"/></form>)"
        R"(<!-- c --><report id="003" columnNum="3"/></define>)");
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,x,y"), PASSES);
    EXPECT_EQ(csv.GetColumnNum(), 3);
}

TEST_F(CsvFileTest, ColumnCountIsReadUpToTheFirstCharacterThatIsNoDigit)
{
    m_bundle.Write("KZEkaDefine.xml", R"(<x><report id="003" columnNum=" 2x"/></x>)");
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,x"), PASSES);
    EXPECT_EQ(csv.GetColumnNum(), 2);
}

TEST_F(CsvFileTest, MissingColumnCountRefusesEveryRecord)
{
    m_bundle.Write("KZEkaDefine.xml", R"(<x><report id="003"/></x>)");
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003"), "refuses 0000-00000-HE70019E");
}

TEST_F(CsvFileTest, CommentInFrontOfTheRootOfTheIndexHidesEveryReport)
{
    m_bundle.Write("KZEkaDefine.xml", R"(<!-- c --><x><report id="003" columnNum="3"/></x>)");
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a"), "refuses 0000-00001-HE70021E");
}

TEST_F(CsvFileTest, SecondReadingReadsTheIndexAgain)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a"), PASSES);
    m_bundle.Write("KZEkaDefine.xml", R"(<x><report id="003" columnNum="2"/></x>)");
    EXPECT_EQ(Read(csv, "003,1,a"), "refuses 0000-00000-HE70019E");
    EXPECT_EQ(Read(csv, "003,1"), PASSES);
}

// ---- names in the log --------------------------------------------------------------------------

constexpr const char* READ_FILE = "KZCEkaCsvFile::ReadFile";
constexpr const char* VALIDATE_RECORD = "KZCEkaCsvFile::ValidateRecord";

TEST_F(CsvFileTest, UnreadableFileIsLoggedTwiceUnderTheReader)
{
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Read(csv, ""), RAISES);
    EXPECT_THAT(LogEntries(log),
                testing::ElementsAre(LogEntry{READ_FILE, "CSVファイルリードエラーが発生しました。"},
                                     LogEntry{READ_FILE, "想定外エラーが発生しました。"}));
}

TEST_F(CsvFileTest, NullTextIsLoggedUnderTheParser)
{
    const DebugLog log;
    UncheckedCsv csv;
    EXPECT_EQ(Raised([&] { static_cast<void>(csv.Parse(nullptr, true)); }), FAULT);
    EXPECT_THAT(LogEntries(log), testing::ElementsAre(LogEntry{"KZCEkaCsvFile::Parse",
                                                               "引数のポインタが不正です。"}));
}

TEST_F(CsvFileTest, BrokenIndexIsLoggedUnderTheRecordAndThenUnderTheReader)
{
    m_bundle.Write("KZEkaDefine.xml", "broken");
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a"), RAISES);
    const std::vector<LogEntry> vecEntry = LogEntries(log);
    ASSERT_GE(vecEntry.size(), 2u);
    EXPECT_EQ(vecEntry[vecEntry.size() - 2],
              (LogEntry{VALIDATE_RECORD, "定義体の読み込みでエラーが発生しました。"}));
    EXPECT_EQ(vecEntry.back(), (LogEntry{READ_FILE, "想定外エラーが発生しました。"}));
}

struct NameCase
{
    const char* szName;
    std::string strText;
    LogEntry entry;
};

void PrintTo(const NameCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CsvLogNameTest : public CsvFileTest, public testing::WithParamInterface<NameCase>
{};

TEST_P(CsvLogNameTest, RefusalIsLoggedOnceUnderItsOperation)
{
    const DebugLog log;
    OpenCsv csv;
    EXPECT_THAT(Read(csv, GetParam().strText), testing::StartsWith(REFUSES));
    EXPECT_THAT(LogEntries(log), testing::ElementsAre(GetParam().entry));
}

const NameCase NAME_CASES[] = {
    {"UnknownTypeId",
     "099,1,a",
     {VALIDATE_RECORD, "定義体から対応する申請番号種別が見つかりません（HE70021E）"}},
    {"SecondTypeId",
     "003,1,a\n004,1,a",
     {VALIDATE_RECORD, "CSV内で申請番号が統一されていません。（HE70021E）"}},
    {"WrongColumns", "003,1", {VALIDATE_RECORD, "CSVのカラム数が不正です。（HE70019E）"}},
    {"TooManyRecords",
     Repeat("003,1,a\n", 5001),
     {READ_FILE, "CSVレコードの総件数エラーです。（HE70020E）"}},
    {"OnlyBlankRecords",
     "\n",
     {READ_FILE, "CSVデータに有効なレコードが存在しません。（HE70024E）"}},
};

INSTANTIATE_TEST_SUITE_P(Files, CsvLogNameTest, testing::ValuesIn(NAME_CASES), CaseName());

// ---- refused records ---------------------------------------------------------------------------

TEST_F(CsvFileTest, TypeIdThatTheIndexLacksIsRefused)
{
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "099,1,a"), "refuses 0000-00001-HE70021E");
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre(
                    "定義体から対応する申請番号種別が見つかりません（HE70021E）",
                    "Valid Message[HE70021E]  CSVファイルに異なる申請区分の情報が含まれています。",
                    "record=0000 column=00001 value=099"));
    EXPECT_STREQ(csv.GetTypeId(), "");
}

TEST_F(CsvFileTest, LogShowsATypeIdInShiftJisReadably)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Read(csv, ToShiftJis("青葉,1,a")), "refuses 0000-00001-HE70021E");
    EXPECT_TRUE(log.HasLine("record=0000 column=00001 value=青葉"));
}

TEST_F(CsvFileTest, TypeIdIsComparedExactly)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "3,1,a"), "refuses 0000-00001-HE70021E");
    EXPECT_EQ(Read(csv, "0030,1,a"), "refuses 0000-00001-HE70021E");
}

TEST_F(CsvFileTest, SecondTypeIdIsRefused)
{
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a\n004,1,a\n005,1,a"), "refuses 0000-00001-HE70021E");
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre(
                    "CSV内で申請番号が統一されていません。（HE70021E）",
                    "Valid Message[HE70021E]  CSVファイルに異なる申請区分の情報が含まれています。",
                    "record=0000 column=00001 value=004"));
}

TEST_F(CsvFileTest, TooFewColumnsAreRefused)
{
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a\n003,1"), "refuses 0000-00000-HE70019E");
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("CSVのカラム数が不正です。（HE70019E）",
                                     "Valid Message[HE70019E]  "
                                     "申請区分に対するCSVのフォーマットが正しくありません。",
                                     "record=0000 column=00000 value=2"));
}

TEST_F(CsvFileTest, TooManyColumnsAreRefused)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a,"), "refuses 0000-00000-HE70019E");
}

TEST_F(CsvFileTest, LineOfCommasIsRefusedAsAnotherTypeId)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a\n,,\n"), "refuses 0000-00001-HE70021E");
}

TEST_F(CsvFileTest, LineOfCommasInFrontIsRefusedAsUnknownTypeId)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, ",,\n003,1,a\n"), "refuses 0000-00001-HE70021E");
}

TEST_F(CsvFileTest, OnlyTheFirstBadRecordIsRecorded)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1\n004,1,a\n003"), "refuses 0000-00000-HE70019E");
}

TEST_F(CsvFileTest, RecordIsCheckedForItsTypeIdBeforeItsColumns)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a\n004,1"), "refuses 0000-00001-HE70021E");
}

TEST_F(CsvFileTest, OnlyBlankRecordsAreRefused)
{
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Read(csv, ToShiftJis("\n  \r\n　\n")), "refuses 0000-00000-HE70024E");
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("CSVデータに有効なレコードが存在しません。（HE70024E）",
                                     "Valid Message[HE70024E]  空のCSVファイルです。",
                                     "record=0000 column=00000 value="));
}

// ---- limits ------------------------------------------------------------------------------------

struct LimitCase
{
    const char* szName;
    std::string strText;
    const char* szTold;
    std::int64_t nRecords;
};

void PrintTo(const LimitCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CsvLimitTest : public CsvFileTest, public testing::WithParamInterface<LimitCase>
{};

TEST_P(CsvLimitTest, EndsSo)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, GetParam().strText), GetParam().szTold);
    EXPECT_EQ(csv.GetRecordCount(), GetParam().nRecords);
}

constexpr const char* TOO_MANY = "refuses 0000-00000-HE70020E";
constexpr const char* LAST_RECORD = "003,9,z";

std::string Lines(int nCount, const char* szLineEnd = "\n")
{
    return Repeat(std::string("003,1,a") + szLineEnd, nCount);
}

const LimitCase LIMIT_CASES[] = {
    {"FiveThousandWithoutClosingLineEnd", Lines(4999) + LAST_RECORD, PASSES, 5000},
    {"FiveThousandWithClosingLineFeed", Lines(5000), PASSES, 5001},
    {"FiveThousandWithClosingCarriageReturn", Lines(5000, "\r"), PASSES, 5001},
    {"FiveThousandWithClosingPair", Lines(5000, "\r\n"), PASSES, 5001},
    {"FiveThousandAndALastLineOfSpaces", Lines(5000) + "  \t", PASSES, 5001},
    {"FiveThousandAndTwoClosingLineEnds", Lines(5000) + "\n", TOO_MANY, 5002},
    {"FiveThousandAndALastLineOfSpacesWithLineEnd", Lines(5000) + "  \n", TOO_MANY, 5002},
    {"OneMoreWithoutClosingLineEnd", Lines(5000) + LAST_RECORD, TOO_MANY, 5001},
    {"OneMoreWithClosingLineFeed", Lines(5001), TOO_MANY, 5002},
    {"OneMoreWithClosingPair", Lines(5001, "\r\n"), TOO_MANY, 5002},
    {"BlankInTheMiddleOf4999", Lines(2000) + "\n" + Lines(2999), PASSES, 5001},
    {"BlankInTheMiddleOf4999WithoutClosingLineEnd", Lines(2000) + "\n" + Lines(2998) + LAST_RECORD,
     PASSES, 5000},
    {"BlankInTheMiddleOfFiveThousand", Lines(2000) + "\n" + Lines(3000), TOO_MANY, 5002},
    {"BlankInTheMiddleOfFiveThousandWithoutClosingLineEnd",
     Lines(2000) + "\n" + Lines(2999) + LAST_RECORD, TOO_MANY, 5001},
    {"BlankInFrontOfFiveThousand", "\n" + Lines(4999) + LAST_RECORD, TOO_MANY, 5001},
    {"LineFeedCarriageReturnCountsDouble", Lines(2500, "\n\r") + LAST_RECORD, TOO_MANY, 5001},
    {"FiveThousandLineEnds", Repeat("\n", 5000), "refuses 0000-00000-HE70024E", 5001},
    {"OneMoreLineEnd", Repeat("\n", 5001), TOO_MANY, 5002},
    {"BadRecordBehindTheLimitComesFirst", Lines(5001) + "003,1", "refuses 0000-00000-HE70019E",
     5001},
};

INSTANTIATE_TEST_SUITE_P(Files, CsvLimitTest, testing::ValuesIn(LIMIT_CASES), CaseName());

TEST_F(CsvFileTest, TooManyRecordsAreLoggedWithTheirCount)
{
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Read(csv, Lines(5003)), TOO_MANY);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("CSVレコードの総件数エラーです。（HE70020E）",
                                     "Valid Message[HE70020E]  "
                                     "作成可能なデータ数(5000件)を超えてしまうため、"
                                     "読み込むことができません。",
                                     "record=0000 column=00000 value=5004"));
}

TEST_F(CsvFileTest, TooLongFileGetsNoGenerations)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, Lines(5001)), TOO_MANY);
    EXPECT_TRUE(csv.GetGenerations().empty());
}

TEST_F(CsvFileTest, EveryOneOfFiveThousandRecordsGetsAGeneration)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, Lines(5000)), PASSES);
    EXPECT_EQ(csv.GetGenerations().size(), 5000u);
    EXPECT_EQ(csv.GetRecordGeneration(4999), "senior");
}

// ---- files that are too large ------------------------------------------------------------------

TEST_F(CsvFileTest, ColumnsOfARecordAreCountedToItsEndHoweverManyThereAre)
{
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003" + std::string(300'000, ',') + "\n004"),
              "refuses 0000-00000-HE70019E");
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("CSVのカラム数が不正です。（HE70019E）",
                                     "Valid Message[HE70019E]  "
                                     "申請区分に対するCSVのフォーマットが正しくありません。",
                                     "record=0000 column=00000 value=300001"));
}

TEST_F(CsvFileTest, RecordOfCommasAloneIsRefusedForItsTypeIdHoweverManyThereAre)
{
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Read(csv, std::string(300'000, ',')), "refuses 0000-00001-HE70021E");
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre(
                    "定義体から対応する申請番号種別が見つかりません（HE70021E）",
                    "Valid Message[HE70021E]  CSVファイルに異なる申請区分の情報が含まれています。",
                    "record=0000 column=00001 value="));
}

TEST_F(CsvFileTest, RecordMayHaveMoreColumnsThanAreHeldIfTheIndexSaysSo)
{
    m_bundle.Write("KZEkaDefine.xml", R"(<x><report id="003" columnNum="262146"/></x>)");
    OpenCsv csv;
    const std::string strLine = "003" + std::string(262'142, ',') + ",held,beyond,";
    EXPECT_EQ(Read(csv, strLine + "\n" + strLine), PASSES);
    EXPECT_STREQ(csv.GetItem(1, 262'143), "held");
    EXPECT_STREQ(csv.GetItem(1, 262'144), "");
    EXPECT_EQ(Read(csv, strLine + "\n" + strLine + ","), "refuses 0000-00000-HE70019E");
}

/// Records of which 4,000 take ten mebibytes.
std::string WideLines(int nCount)
{
    return Repeat("003,1," + std::string(2'600, 'x') + "\n", nCount);
}

TEST_F(CsvFileTest, LargeFileOfTooManyRecordsIsCountedToItsEndAndHeldToTheLimit)
{
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Read(csv, WideLines(5'300)), TOO_MANY);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("CSVレコードの総件数エラーです。（HE70020E）",
                                     "Valid Message[HE70020E]  "
                                     "作成可能なデータ数(5000件)を超えてしまうため、"
                                     "読み込むことができません。",
                                     "record=0000 column=00000 value=5301"));
    EXPECT_EQ(csv.GetRecordCount(), 5'301);
    EXPECT_EQ(csv.GetNonCRLFRecordCount(), 5'300);
    EXPECT_STREQ(csv.GetItem(5'000, 1), "1");
    EXPECT_STREQ(csv.GetItem(5'001, 0), "");
    EXPECT_FALSE(csv.IsValidRecord(5'001));
}

TEST_F(CsvFileTest, LargeFileWithinTheLimitIsHeldWhole)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, WideLines(5'000)), PASSES);
    EXPECT_EQ(csv.GetRecordCount(), 5'001);
    EXPECT_STREQ(csv.GetItem(4'999, 2), std::string(2'600, 'x').c_str());
    EXPECT_EQ(csv.GetRecordGeneration(4'999), "senior");
}

TEST_F(CsvFileTest, RecordsBeyondTheLimitOfALargeFileAreStillChecked)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, WideLines(5'300) + "003,1"), "refuses 0000-00000-HE70019E");
    EXPECT_EQ(Read(csv, WideLines(5'300) + "003,1,a,b"), "refuses 0000-00000-HE70019E");
    EXPECT_EQ(Read(csv, WideLines(5'300) + "004,1,a"), "refuses 0000-00001-HE70021E");
    EXPECT_EQ(Read(csv, WideLines(5'300) + ",1,a"), "refuses 0000-00001-HE70021E");
    EXPECT_EQ(Read(csv, WideLines(5'300) + " \n 003 ,1,a"), TOO_MANY);
    EXPECT_EQ(csv.GetRecordCount(), 5'302);
}

TEST_F(CsvFileTest, FileAfterALargeOneIsHeldAgain)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, WideLines(5'300)), TOO_MANY);
    EXPECT_EQ(Read(csv, "003,1,a"), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "1", "a"}}));
}

TEST_F(CsvFileTest, InvalidByteAtTheEndOfALargeFileComesBeforeItsRefusedRecords)
{
    const DebugLog log;
    OpenCsv csv;
    EXPECT_EQ(Read(csv, WideLines(2'000) + "099,1\n\x82"), RAISES);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("CSVファイルリードエラーが発生しました。",
                                                       "想定外エラーが発生しました。"));
    EXPECT_EQ(csv.GetRecordCount(), 0);
}

TEST_F(CsvFileTest, TextBehindANulOfALargeFileIsLost)
{
    OpenCsv csv;
    std::string strBytes = "003,1,a\n003,2,b";
    strBytes.append(5'000'000, '\0').append("\n099,1\n");
    EXPECT_EQ(Read(csv, strBytes), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "1", "a"}, {"003", "2", "b"}}));
    EXPECT_EQ(Read(csv, strBytes + "\x82"), RAISES);
    EXPECT_EQ(Read(csv, std::string(5'000'000, '\0') + "003,1,a"), RAISES);
}

// ---- cells and records -------------------------------------------------------------------------

const Records FOUR_RECORDS = {{"003", "1"}, {""}, {"", "2", "x"}, {"003"}};

TEST_F(CsvFileTest, ItemCountsBothFromZero)
{
    const GenerationCsv csv(FOUR_RECORDS);
    EXPECT_STREQ(csv.GetItem(0, 0), "003");
    EXPECT_STREQ(csv.GetItem(2, 2), "x");
}

struct ItemCase
{
    const char* szName;
    long lRecord;
    long lColumn;
};

void PrintTo(const ItemCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CsvItemOutOfRangeTest : public ResetState, public testing::WithParamInterface<ItemCase>
{};

TEST_P(CsvItemOutOfRangeTest, GivesTheEmptyText)
{
    const GenerationCsv csv(FOUR_RECORDS);
    EXPECT_STREQ(csv.GetItem(GetParam().lRecord, GetParam().lColumn), "");
}

constexpr ItemCase OUT_OF_RANGE_CASES[] = {
    {"NegativeRecord", -1, 0},      {"RecordBehindTheLast", 4, 0},
    {"LargestRecord", LONG_MAX, 0}, {"SmallestRecord", LONG_MIN, 0},
    {"NegativeColumn", 0, -1},      {"ColumnBehindTheLast", 0, 2},
    {"LargestColumn", 0, LONG_MAX}, {"SmallestColumn", 0, LONG_MIN},
};

INSTANTIATE_TEST_SUITE_P(Cells,
                         CsvItemOutOfRangeTest,
                         testing::ValuesIn(OUT_OF_RANGE_CASES),
                         CaseName());

TEST_F(CsvFileTest, CountsRecordsWithAndWithoutBlankOnes)
{
    const GenerationCsv csv(FOUR_RECORDS);
    EXPECT_EQ(csv.GetRecordCount(), 4);
    EXPECT_EQ(csv.GetNonCRLFRecordCount(), 2);
}

TEST_F(CsvFileTest, ValidRecordHasAFilledFirstColumnAndTwoColumns)
{
    const GenerationCsv csv(FOUR_RECORDS);
    EXPECT_TRUE(csv.IsValidRecord(0));
    EXPECT_FALSE(csv.IsValidRecord(1));
    EXPECT_FALSE(csv.IsValidRecord(2));
    EXPECT_FALSE(csv.IsValidRecord(3));
}

TEST_F(CsvFileTest, RecordOutOfRangeIsNotValid)
{
    const GenerationCsv csv(Records{{"003", "1"}});
    EXPECT_FALSE(csv.IsValidRecord(-1));
    EXPECT_FALSE(csv.IsValidRecord(1));
}

TEST_F(CsvFileTest, LastRecordIsTheLastOneBlankOnesIncluded)
{
    const GenerationCsv csv(Records{{"003", "1"}, {""}});
    EXPECT_FALSE(csv.isLastRecord(0));
    EXPECT_TRUE(csv.isLastRecord(1));
    EXPECT_FALSE(csv.isLastRecord(2));
}

TEST_F(CsvFileTest, EmptyFileHasNoLastRecordButTheOneBeforeTheFirst)
{
    const GenerationCsv csv(Records{});
    EXPECT_TRUE(csv.isLastRecord(-1));
    EXPECT_FALSE(csv.isLastRecord(0));
}

TEST_F(CsvFileTest, CellIsAskedForByItsColumnFromOne)
{
    const GenerationCsv csv(Records{{"003", "", "x"}});
    EXPECT_FALSE(csv.checkEmpty(0, 1));
    EXPECT_TRUE(csv.checkEmpty(0, 2));
    EXPECT_FALSE(csv.checkEmpty(0, 3));
    EXPECT_TRUE(csv.checkEmpty(0, 4));
    EXPECT_TRUE(csv.checkEmpty(1, 1));
}

TEST_F(CsvFileTest, RecordWithoutGenerationGivesTheEmptyText)
{
    const GenerationCsv csv(Records{{"003", "1"}, {""}}, {{0, "junior"}});
    EXPECT_EQ(csv.GetRecordGeneration(0), "junior");
    EXPECT_EQ(csv.GetRecordGeneration(1), "");
    EXPECT_EQ(csv.GetRecordGeneration(-1), "");
}

// ---- blank records removed ---------------------------------------------------------------------

TEST_F(CsvFileTest, BlankRecordsGoAndGenerationsMoveUp)
{
    GenerationCsv csv({{""}, {"003", "1"}, {""}, {"003", "2"}, {""}},
                      {{1, "junior"}, {3, "senior"}});
    csv.DeleteEmptyRecord();
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "1"}, {"003", "2"}}));
    EXPECT_EQ(csv.GetGenerations(), (GenerationCsv::GenerationMap{{0, "junior"}, {1, "senior"}}));
    EXPECT_EQ(csv.GetRecordCount(), csv.GetNonCRLFRecordCount());
}

TEST_F(CsvFileTest, RecordWithAnEmptyFirstColumnGoesToo)
{
    GenerationCsv csv(Records{{"", "x"}, {"003", "1"}}, {{1, "junior"}});
    csv.DeleteEmptyRecord();
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "1"}}));
    EXPECT_EQ(csv.GetGenerations(), (GenerationCsv::GenerationMap{{0, "junior"}}));
}

TEST_F(CsvFileTest, KeptRecordWithoutGenerationShiftsThoseBehindItUntilNoneAreLeft)
{
    GenerationCsv csv(Records{{"003", "1"}, {"003", "2"}, {"003", "3"}},
                      {{0, "junior"}, {2, "senior"}});
    csv.DeleteEmptyRecord();
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "1"}, {"003", "2"}, {"003", "3"}}));
    EXPECT_EQ(csv.GetGenerations(), (GenerationCsv::GenerationMap{{0, "junior"}, {1, "senior"}}));
}

TEST_F(CsvFileTest, RecordsWithoutAnyGenerationStayWithout)
{
    GenerationCsv csv(Records{{"003", "1"}, {""}, {"003", "2"}});
    csv.DeleteEmptyRecord();
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "1"}, {"003", "2"}}));
    EXPECT_TRUE(csv.GetGenerations().empty());
}

TEST_F(CsvFileTest, GenerationsLeftOverAreDropped)
{
    GenerationCsv csv(Records{{"003", "1"}, {""}}, {{0, "junior"}, {1, "senior"}});
    csv.DeleteEmptyRecord();
    EXPECT_EQ(csv.GetGenerations(), (GenerationCsv::GenerationMap{{0, "junior"}}));
}

TEST_F(CsvFileTest, FileOfBlankRecordsEndsEmpty)
{
    GenerationCsv csv(Records{{""}, {""}});
    csv.DeleteEmptyRecord();
    EXPECT_EQ(csv.GetRecordCount(), 0);
}

TEST_F(CsvFileTest, RemovingTwiceChangesNothingMore)
{
    OpenCsv csv;
    EXPECT_EQ(Read(csv, "003,1,a\n\n003,2,b\n"), PASSES);
    csv.DeleteEmptyRecord();
    csv.DeleteEmptyRecord();
    EXPECT_EQ(csv.GetRecords(), (Records{{"003", "1", "a"}, {"003", "2", "b"}}));
    EXPECT_EQ(csv.GetGenerations(),
              (std::map<std::int64_t, std::string>{{0, "senior"}, {1, "senior"}}));
    EXPECT_STREQ(csv.GetTypeId(), "003");
}

}  // namespace
