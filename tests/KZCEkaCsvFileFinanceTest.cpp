#include "KZCEkaCsvFileFinance.h"

#include <gmock/gmock.h>

#include <climits>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "fault/Fault.h"
#include "support/LogEntries.h"
#include "support/LogMessages.h"
#include "support/OpenFinanceCsv.h"
#include "support/ShiftJisText.h"

namespace {

using Record = OpenFinanceCsv::Record;
using Records = std::vector<Record>;
using ColInfo = OpenFinanceCsv::ColInfo;
using ColInfos = std::vector<ColInfo>;

constexpr const char* EMPTY_FILE = "refuses 0000-00000-HE70024E";
constexpr const char* WRONG_COLUMNS = "refuses 0000-00000-HE70019E";
constexpr const char* WRONG_TYPE_ID = "refuses 0000-00001-HE70021E";
constexpr const char* TOO_MANY = "refuses 0000-00000-HE70029E";
constexpr const char* TOO_FEW = "refuses 0002-00000-HE70033E";

/// One report of three columns for type id 101, header and detail for 103.
class FinanceCsvTest : public FinanceCsvFixture
{
protected:
    FinanceCsvTest()
    {
        m_bundle.Write("Finance/PGE2015vld.xml", ReportFile({R"(columnNum="3")"}));
        m_bundle.Write("Finance/PGE2030vld.xml",
                       ReportFile({R"(startRow="1" endRow="1" columnNum="3")",
                                   R"(startRow="2" endRow="0" columnNum="2")"}));
    }
};

// ---- reading -----------------------------------------------------------------------------------

TEST_F(FinanceCsvTest, NewFileIsEmpty)
{
    const OpenFinanceCsv csv;
    EXPECT_STREQ(csv.GetTypeId(), "");
    EXPECT_EQ(csv.GetRecords(), Records{});
    EXPECT_EQ(csv.GetColInfo(), ColInfos{});
    EXPECT_EQ(csv.GetEmptyCheckMode(), 0);
    EXPECT_EQ(csv.GetNonCRLFRecordCount(), 0);
}

/// Removes its definition file behind the first data record.
class FileRemovingCsv final : public KZCEkaCsvFileFinance
{
public:
    explicit FileRemovingCsv(std::string strFile) : m_strFile(std::move(strFile)) {}

    int ColumnTerm(std::string& strBuffer, Record& record, bool bEndOfRecord) override
    {
        const int nStatus = KZCEkaCsvFileFinance::ColumnTerm(strBuffer, record, bEndOfRecord);
        if (GetRecordCount() != 0)
            std::filesystem::remove(m_strFile);
        return nStatus;
    }

private:
    std::string m_strFile;
};

TEST_F(FinanceCsvTest, OnlyTheFirstRecordReadsTheDefinitionFile)
{
    const std::string strFile = m_bundle.Path("Finance/PGE2015vld.xml");
    FileRemovingCsv csv(strFile);
    EXPECT_EQ(csv.ReadFile(Write("\n101,1,a\n\n101,2,b\n")), STATUS_OK);
    EXPECT_FALSE(std::filesystem::exists(strFile));
    EXPECT_EQ(csv.GetRecordCount(), 2);
}

TEST_F(FinanceCsvTest, ReadsRecordsTypeIdAndReport)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a\r\n101,2,b\r\n"), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"101", "1", "a"}, {"101", "2", "b"}}));
    EXPECT_STREQ(csv.GetTypeId(), "101");
    EXPECT_EQ(csv.GetColInfo(), (ColInfos{{0, 0, 3, 0}}));
}

TEST_F(FinanceCsvTest, ReadsRecordsOfSeveralReports)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "103,1,a\n5,b\n,c"), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"103", "1", "a"}, {"5", "b"}, {"", "c"}}));
    EXPECT_STREQ(csv.GetTypeId(), "103");
    EXPECT_EQ(csv.GetColInfo(), (ColInfos{{1, 1, 3, 0}, {2, 0, 2, 0}}));
}

TEST_F(FinanceCsvTest, BlankLinesAreNotStored)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, ToShiftJis("\n  \r\n101,1,a\n\n　\n\n\r101,2,b\n\t\n")), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"101", "1", "a"}, {"101", "2", "b"}}));
}

TEST_F(FinanceCsvTest, ValuesAreTrimmed)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, ToShiftJis(" 101　,　青 葉\t, ")), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"101", "青 葉", ""}}));
    EXPECT_STREQ(csv.GetTypeId(), "101");
}

TEST_F(FinanceCsvTest, QuotesHaveNoMeaning)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,\"a,b\",\"\"\""), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"101", "\"a", "b\"", "\"\"\""}}));
}

TEST_F(FinanceCsvTest, CellsAreUtf8OutsideACheck)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, ToShiftJis("101,青葉,表ソ")), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"101", "青葉", "表ソ"}}));
}

TEST_F(FinanceCsvTest, CellsAreShiftJisDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, ToShiftJis("101,青葉,表ソ")), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"101", "\x90\xc2\x97\x74", "\x95\x5c\x83\x5c"}}));
}

TEST_F(FinanceCsvTest, RecordsHaveNoGeneration)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a"), PASSES);
    EXPECT_FALSE(csv.HasGenerations());
    EXPECT_EQ(csv.GetRecordGeneration(0), "");
}

TEST_F(FinanceCsvTest, ColumnsAreNotCountedWhileReading)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101\n101,1,a,b,c"), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"101"}, {"101", "1", "a", "b", "c"}}));
}

TEST_F(FinanceCsvTest, RecordsAreNotCountedWhileReading)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, RepeatText("101,1,a\n", 5001)), PASSES);
    EXPECT_EQ(csv.GetRecordCount(), 5001);
}

TEST_F(FinanceCsvTest, FileOfBlankLinesIsReadAndRefusedByTheCheck)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "\n  \r\n"), PASSES);
    EXPECT_STREQ(csv.GetTypeId(), "");
    EXPECT_EQ(csv.GetRecords(), Records{});
    EXPECT_EQ(Check(csv), EMPTY_FILE);
}

TEST_F(FinanceCsvTest, SecondReadingReplacesTheFirst)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "103,1,a\n5,b"), PASSES);
    EXPECT_EQ(Read(csv, "101,x,y"), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"101", "x", "y"}}));
    EXPECT_STREQ(csv.GetTypeId(), "101");
    EXPECT_EQ(csv.GetColInfo(), (ColInfos{{0, 0, 3, 0}}));
}

TEST_F(FinanceCsvTest, SecondReadingReadsTheValidationFileAgain)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a"), PASSES);
    m_bundle.Write("Finance/PGE2015vld.xml", ReportFile({R"(columnNum="7")"}));
    EXPECT_EQ(Read(csv, "101,1,a"), PASSES);
    EXPECT_EQ(csv.GetColInfo(), (ColInfos{{0, 0, 7, 0}}));
}

TEST_F(FinanceCsvTest, OnlyTheFirstRecordReadsTheValidationFile)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(csv.Parse("101,1,a", false), STATUS_OK);
    m_bundle.Write("Finance/PGE2015vld.xml", "broken");
    EXPECT_EQ(csv.Parse("101,2,b", false), STATUS_OK);
    EXPECT_EQ(csv.GetRecords(), (Records{{"101", "1", "a"}, {"101", "2", "b"}}));
}

TEST_F(FinanceCsvTest, RefusedRecordLeavesTheRecordsReadSoFar)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a\n102,2,b\n101,3,c"), WRONG_TYPE_ID);
    EXPECT_EQ(csv.GetRecords(), (Records{{"101", "1", "a"}}));
}

TEST_F(FinanceCsvTest, ClearEmptiesAllButTheModeOfEmptyRecords)
{
    OpenFinanceCsv csv(Records{{"202", "a"}}, "202", ColInfos{{1, 2, 3, 4}});
    csv.Clear();
    EXPECT_STREQ(csv.GetTypeId(), "");
    EXPECT_EQ(csv.GetRecords(), Records{});
    EXPECT_EQ(csv.GetColInfo(), ColInfos{});
    EXPECT_EQ(csv.GetEmptyCheckMode(), 1);
}

TEST_F(FinanceCsvTest, ClearedFileStillBelongsToItsFamily)
{
    OpenFinanceCsv csv;
    csv.Clear();
    EXPECT_EQ(Read(csv, "101,1,a"), PASSES);
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

class FinanceCsvUnreadableTest : public FinanceCsvTest,
                                 public testing::WithParamInterface<UnreadableCase>
{};

TEST_P(FinanceCsvUnreadableTest, RaisesAndRecordsNothing)
{
    const DebugLog log;
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, GetParam().strBytes), RAISES);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("CSVファイルリードエラーが発生しました。",
                                                       "想定外エラーが発生しました。"));
    EXPECT_EQ(csv.GetRecords(), Records{});
}

const UnreadableCase UNREADABLE_CASES[] = {
    {"EmptyFile", ""},
    {"NulAtTheStart", std::string("\0"
                                  "101,1,a",
                                  8)},
    {"LoneLeadByteAtTheEnd", "101,1,\x82"},
    {"Utf8Text", "101,1,あ\n"},
};

INSTANTIATE_TEST_SUITE_P(Files,
                         FinanceCsvUnreadableTest,
                         testing::ValuesIn(UNREADABLE_CASES),
                         CaseName());

TEST_F(FinanceCsvTest, MissingFileRaisesUnderTheNameOfThisReader)
{
    const DebugLog log;
    OpenFinanceCsv csv;
    EXPECT_EQ(Told([&] { return csv.ReadFile(m_folder.Path("missing.csv")); }), RAISES);
    EXPECT_THAT(log.Text(), testing::HasSubstr(" KZCEkaCsvFileFinance::ReadFile--\n"
                                               "CSVファイルリードエラーが発生しました。\n"));
    EXPECT_THAT(log.Text(), testing::HasSubstr(" KZCEkaCsvFileFinance::ReadFile--\n"
                                               "想定外エラーが発生しました。\n"));
}

TEST_F(FinanceCsvTest, UnreadableFileEmptiesWhatWasReadBefore)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a"), PASSES);
    EXPECT_EQ(Read(csv, ""), RAISES);
    EXPECT_EQ(csv.GetRecords(), Records{});
    EXPECT_STREQ(csv.GetTypeId(), "");
    EXPECT_EQ(csv.GetColInfo(), ColInfos{});
}

// ---- ending a column ---------------------------------------------------------------------------

TEST_F(FinanceCsvTest, EndOfColumnTrimsIntoTheRecordAndEmptiesTheBuffer)
{
    OpenFinanceCsv csv;
    std::string strBuffer = " 999 ";
    Record record;
    EXPECT_EQ(csv.ColumnTerm(strBuffer, record, false), STATUS_OK);
    EXPECT_EQ(strBuffer, "");
    EXPECT_EQ(record, Record{"999"});
    EXPECT_EQ(csv.GetRecords(), Records{});
}

TEST_F(FinanceCsvTest, EndOfRecordStoresAndEmptiesTheRecord)
{
    OpenFinanceCsv csv;
    std::string strBuffer = "b";
    Record record = {"101"};
    EXPECT_EQ(csv.ColumnTerm(strBuffer, record, true), STATUS_OK);
    EXPECT_EQ(strBuffer, "");
    EXPECT_EQ(record, Record{});
    EXPECT_EQ(csv.GetRecords(), (Records{{"101", "b"}}));
}

TEST_F(FinanceCsvTest, EndOfABlankRecordEmptiesItAndStoresNothing)
{
    OpenFinanceCsv csv;
    std::string strBuffer = "  ";
    Record record;
    EXPECT_EQ(csv.ColumnTerm(strBuffer, record, true), STATUS_OK);
    EXPECT_EQ(record, Record{});
    EXPECT_EQ(csv.GetRecords(), Records{});
}

TEST_F(FinanceCsvTest, EndOfARefusedRecordLeavesItInPlace)
{
    OpenFinanceCsv csv;
    std::string strBuffer = "b";
    Record record = {"999"};
    EXPECT_EQ(Told([&] { return csv.ColumnTerm(strBuffer, record, true); }), WRONG_TYPE_ID);
    EXPECT_EQ(strBuffer, "");
    EXPECT_EQ(record, (Record{"999", "b"}));
    EXPECT_EQ(csv.GetRecords(), Records{});
}

// ---- one record --------------------------------------------------------------------------------

TEST_F(FinanceCsvTest, BlankRecordIsDroppedSilently)
{
    const DebugLog log;
    OpenFinanceCsv csv;
    EXPECT_EQ(csv.ValidateRecordFinance({""}), -1);
    EXPECT_EQ(log.Text(), "");
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(FinanceCsvTest, FirstRecordOfACatalogueIdIsToBeStored)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(csv.ValidateRecordFinance({"101"}), 1);
    EXPECT_STREQ(csv.GetTypeId(), "101");
}

TEST_F(FinanceCsvTest, UnknownFirstRecordStopsTheReading)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(csv.ValidateRecordFinance({"999"}), 0);
    EXPECT_STREQ(csv.GetTypeId(), "");
}

TEST_F(FinanceCsvTest, OtherTypeIdIsComparedOnlyBehindAStoredRecord)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(csv.ValidateRecordFinance({"101"}), 1);
    EXPECT_EQ(csv.ValidateRecordFinance({"102"}), 1);
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(FinanceCsvTest, OtherTypeIdBehindAStoredRecordStopsTheReading)
{
    OpenFinanceCsv csv(Records{{"101", "a"}}, "101", ColInfos{{0, 0, 2, 0}});
    EXPECT_EQ(csv.ValidateRecordFinance({"102", "b"}), 0);
    EXPECT_EQ(KZCValidResult::instance()->MakeResult(), "0000-00001-HE70021E");
}

TEST_F(FinanceCsvTest, BlankRecordIsDroppedBehindAStoredRecordToo)
{
    OpenFinanceCsv csv(Records{{"101", "a"}}, "101", ColInfos{{0, 0, 2, 0}});
    EXPECT_EQ(csv.ValidateRecordFinance({""}), -1);
    EXPECT_EQ(csv.ValidateRecordFinance({"101"}), 1);
}

// ---- type ids ----------------------------------------------------------------------------------

struct TypeIdCase
{
    const char* szName;
    const char* szText;
    const char* szTold;
};

void PrintTo(const TypeIdCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class FinanceCsvTypeIdTest : public FinanceCsvTest, public testing::WithParamInterface<TypeIdCase>
{};

TEST_P(FinanceCsvTypeIdTest, EndsSo)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, ToShiftJis(GetParam().szText)), GetParam().szTold);
}

constexpr TypeIdCase TYPE_ID_CASES[] = {
    {"Known", "101,1", PASSES},
    {"KnownBetweenBlanks", " 101 ,1", PASSES},
    {"Unknown", "999,1", WRONG_TYPE_ID},
    {"OfCrossBorder", "301,1", WRONG_TYPE_ID},
    {"OfTheBaseFamily", "001,1", WRONG_TYPE_ID},
    {"LeadingZero", "0101,1", WRONG_TYPE_ID},
    {"FullWidth", "１０１,1", WRONG_TYPE_ID},
    {"Quoted", "\"101\",1", WRONG_TYPE_ID},
    {"LineOfCommasInFront", ",,\n101,1", WRONG_TYPE_ID},
    {"LineOfCommasBehindInOneReport", "101,1\n,,", WRONG_TYPE_ID},
    {"EmptyFirstColumnBehindInOneReport", "101,1\n,1", WRONG_TYPE_ID},
    {"AnotherBehindInOneReport", "101,1\n103,1", WRONG_TYPE_ID},
    {"AnotherAtTheVeryEndInOneReport", "101,1\n101,2\n101,3\n1", WRONG_TYPE_ID},
    {"BlankLineBehindInOneReport", "101,1\n  \n101,1", PASSES},
    {"AnotherBehindInSeveralReports", "103,1\n101,1", PASSES},
    {"NoneBehindInSeveralReports", "103,1\n999,1\n,,\nx", PASSES},
};

INSTANTIATE_TEST_SUITE_P(Files, FinanceCsvTypeIdTest, testing::ValuesIn(TYPE_ID_CASES), CaseName());

TEST_F(FinanceCsvTest, UnknownTypeIdIsLoggedWithoutAValue)
{
    const DebugLog log;
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "999,1"), WRONG_TYPE_ID);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre(
                    "手続情報が見つかりません。（HE70021E）",
                    "Valid Message[HE70021E]  CSVファイルに異なる申請区分の情報が含まれています。",
                    "record=0000 column=00001 value="));
    EXPECT_STREQ(csv.GetTypeId(), "");
    EXPECT_EQ(csv.GetRecords(), Records{});
}

TEST_F(FinanceCsvTest, DifferentTypeIdIsLoggedWithItsValue)
{
    const DebugLog log;
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1\n102,1"), WRONG_TYPE_ID);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre(
                    "CSV内で申請番号が統一されていません。（HE70021E）",
                    "Valid Message[HE70021E]  CSVファイルに異なる申請区分の情報が含まれています。",
                    "record=0000 column=00001 value=102"));
}

TEST_F(FinanceCsvTest, LogShowsATypeIdInShiftJisReadably)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const DebugLog log;
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, ToShiftJis("101,1\n青葉,1")), WRONG_TYPE_ID);
    EXPECT_TRUE(log.HasLine("record=0000 column=00001 value=青葉"));
}

// ---- names in the log --------------------------------------------------------------------------

constexpr const char* READ_FILE = "KZCEkaCsvFileFinance::ReadFile";
constexpr const char* VALIDATE_RECORD = "KZCEkaCsvFileFinance::ValidateRecordFinance";
constexpr const char* CHECK_MAX_RECORD = "KZCEkaCsvFileFinance::checkMaxRecord";
constexpr const char* CHECK_COLUMN_COUNT = "KZCEkaCsvFileFinance::checkColumnCount";

TEST_F(FinanceCsvTest, UnreadableFileIsLoggedTwiceUnderTheReader)
{
    const DebugLog log;
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, ""), RAISES);
    EXPECT_THAT(LogEntries(log),
                testing::ElementsAre(LogEntry{READ_FILE, "CSVファイルリードエラーが発生しました。"},
                                     LogEntry{READ_FILE, "想定外エラーが発生しました。"}));
}

TEST_F(FinanceCsvTest, BrokenValidationFileIsLoggedUnderTheRecordAndThenUnderTheReader)
{
    m_bundle.Write("Finance/PGE2015vld.xml", "broken");
    const DebugLog log;
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a"), RAISES);
    const std::vector<LogEntry> vecEntry = LogEntries(log);
    ASSERT_GE(vecEntry.size(), 2u);
    EXPECT_EQ(vecEntry[vecEntry.size() - 2],
              (LogEntry{VALIDATE_RECORD, "定義体の読み込みでエラーが発生しました。"}));
    EXPECT_EQ(vecEntry.back(), (LogEntry{READ_FILE, "想定外エラーが発生しました。"}));
}

TEST_F(FinanceCsvTest, OtherCallTypeIsLoggedUnderTheCatalogueAndThenUnderTheReader)
{
    const DebugLog log;
    OpenFinanceCsv csv(static_cast<CALL_TYPE>(3));
    EXPECT_EQ(Read(csv, "101,1,a"), RAISES);
    EXPECT_THAT(LogEntries(log),
                testing::ElementsAre(LogEntry{"getProcInfo", "想定外動作モード"},
                                     LogEntry{READ_FILE, "想定外エラーが発生しました。"}));
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

class FinanceCsvLogNameTest : public FinanceCsvTest, public testing::WithParamInterface<NameCase>
{};

TEST_P(FinanceCsvLogNameTest, RefusalIsLoggedOnceUnderItsOperation)
{
    m_bundle.Write("Finance/PGE2025vld.xml", "<define/>");
    m_bundle.Write("Finance/PGE2040vld.xml", ReportFile({""}));
    const DebugLog log;
    OpenFinanceCsv csv;
    if (Read(csv, GetParam().strText) == PASSES) {
        EXPECT_THAT(Check(csv), testing::StartsWith(REFUSES));
    }
    EXPECT_THAT(LogEntries(log), testing::ElementsAre(GetParam().entry));
}

const NameCase NAME_CASES[] = {
    {"UnknownTypeId", "999,1", {VALIDATE_RECORD, "手続情報が見つかりません。（HE70021E）"}},
    {"NoReport",
     "102,1",
     {VALIDATE_RECORD, "定義体から対応する申請番号種別が見つかりません（HE70021E）"}},
    {"SecondTypeId",
     "101,1,a\n102,1,a",
     {VALIDATE_RECORD, "CSV内で申請番号が統一されていません。（HE70021E）"}},
    {"OnlyBlankRecords",
     "\n",
     {CHECK_MAX_RECORD, "CSVデータに有効なレコードが存在しません。（HE70024E）"}},
    {"TooManyRecords",
     RepeatText("101,1,a\n", 1001),
     {CHECK_MAX_RECORD, "CSVレコードの総件数エラーです。（HE70029E）"}},
    {"TooFewRecords",
     "103,1,a",
     {CHECK_MAX_RECORD, "2レコード目以降の入力が必要です。（HE70033E）"}},
    {"WrongColumns", "101,1", {CHECK_COLUMN_COUNT, "CSVのカラム数が不正です。（HE70019E）"}},
    {"NoColumnCount",
     "104,1",
     {CHECK_COLUMN_COUNT, "定義体の内容が不正です。CSVのカラム数を取得できません。（HE70019E）"}},
};

INSTANTIATE_TEST_SUITE_P(Files, FinanceCsvLogNameTest, testing::ValuesIn(NAME_CASES), CaseName());

// ---- other families ----------------------------------------------------------------------------

class FinanceCsvOtherCallTypeTest : public FinanceCsvTest, public testing::WithParamInterface<int>
{};

TEST_P(FinanceCsvOtherCallTypeTest, ReadingRaisesAndRecordsNothing)
{
    const DebugLog log;
    OpenFinanceCsv csv(static_cast<CALL_TYPE>(GetParam()));
    EXPECT_EQ(Read(csv, "101,1,a"), RAISES);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("想定外動作モード", "想定外エラーが発生しました。"));
}

INSTANTIATE_TEST_SUITE_P(Numbers, FinanceCsvOtherCallTypeTest, testing::Values(-1, 0, 3));

// ---- validation file ---------------------------------------------------------------------------

struct DefinitionCase
{
    const char* szName;
    std::optional<std::string> definition;
};

void PrintTo(const DefinitionCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class FinanceCsvBadDefinitionTest : public FinanceCsvFixture,
                                    public testing::WithParamInterface<DefinitionCase>
{};

TEST_P(FinanceCsvBadDefinitionTest, RaisesAndRecordsNothing)
{
    if (GetParam().definition)
        m_bundle.Write("Finance/PGE2015vld.xml", *GetParam().definition);
    const DebugLog log;
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a"), RAISES);
    EXPECT_THAT(LastLogMessages(log, 2),
                testing::ElementsAre("定義体の読み込みでエラーが発生しました。",
                                     "想定外エラーが発生しました。"));
    EXPECT_EQ(csv.GetRecords(), Records{});
    EXPECT_STREQ(csv.GetTypeId(), "");
}

const DefinitionCase BAD_DEFINITION_CASES[] = {
    {"Missing", std::nullopt},
    {"Empty", ""},
    {"Truncated", R"(<define><report columnNum="3"/>)"},
    {"NoXml", "101,3"},
    {"UndeclaredEntity", "<define>&none;</define>"},
};

INSTANTIATE_TEST_SUITE_P(Files,
                         FinanceCsvBadDefinitionTest,
                         testing::ValuesIn(BAD_DEFINITION_CASES),
                         CaseName());

TEST_F(FinanceCsvTest, MissingResourceFolderRaises)
{
    const Environment environment("KZEKAMOK_BUNDLE", m_bundle.Path("none"));
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a"), RAISES);
}

TEST_F(FinanceCsvTest, ValidationFileOfAnotherProcedureDoesNotServe)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "102,1,a"), RAISES);
}

TEST_F(FinanceCsvTest, TemplateFileAndTheOtherFamilysFolderDoNotServe)
{
    m_bundle.Write("Finance/PGE2025tpl.xml", ReportFile({R"(columnNum="3")"}));
    m_bundle.Write("CrossBorder/PGE2025vld.xml", ReportFile({R"(columnNum="3")"}));
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "102,1,a"), RAISES);
}

TEST_F(FinanceCsvTest, FirstValidationFileByNameIsRead)
{
    m_bundle.Write("Finance/z_PGE2025_vld.xml", ReportFile({R"(columnNum="9")"}));
    m_bundle.Write("Finance/a_PGE2025_vld.xml", ReportFile({R"(columnNum="4")"}));
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "102,1,a"), PASSES);
    EXPECT_EQ(csv.GetColInfo(), (ColInfos{{0, 0, 4, 0}}));
}

TEST_F(FinanceCsvTest, BlankLinesAloneNeverReadAValidationFile)
{
    std::filesystem::remove_all(m_bundle.Path("Finance"));
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "\n\n"), PASSES);
}

struct ReportCase
{
    const char* szName;
    std::string strDefinition;
    ColInfos vecExpected;
};

void PrintTo(const ReportCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class FinanceCsvReportTest : public FinanceCsvFixture,
                             public testing::WithParamInterface<ReportCase>
{};

TEST_P(FinanceCsvReportTest, GivesTheseReports)
{
    m_bundle.Write("Finance/PGE2015vld.xml", GetParam().strDefinition);
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a"), PASSES);
    EXPECT_EQ(csv.GetColInfo(), GetParam().vecExpected);
}

const ReportCase REPORT_CASES[] = {
    {"AllAttributes",
     ReportFile({R"(startRow="1" endRow="2" columnNum="3" lastRecord="4")"}),
     {{1, 2, 3, 4}}},
    {"NoAttributes", ReportFile({""}), {{0, 0, 0, 0}}},
    {"EmptyAttributes",
     ReportFile({R"(startRow="" endRow="" columnNum="" lastRecord="")"}),
     {{0, 0, 0, 0}}},
    {"NegativeNumbers",
     ReportFile({R"(startRow="-2" endRow="-1" columnNum="-3" lastRecord="-4")"}),
     {{-2, -1, -3, -4}}},
    {"NumbersUpToTheFirstOtherCharacter",
     ReportFile({R"(startRow=" 1x" endRow="x1" columnNum="3.9" lastRecord="+1")"}),
     {{1, 0, 3, 1}}},
    {"SixtyFourBits",
     ReportFile({R"(startRow="4294967297" endRow="9223372036854775807" columnNum="3")"}),
     {{4294967297, INT64_MAX, 3, 0}}},
    {"InOrderOfTheFile",
     ReportFile({R"(columnNum="3")", R"(columnNum="1")", R"(columnNum="2")"}),
     {{0, 0, 3, 0}, {0, 0, 1, 0}, {0, 0, 2, 0}}},
    {"IdIsNotRead",
     ReportFile({R"(id="999" columnNum="3")", R"(id="101" columnNum="4")"}),
     {{0, 0, 3, 0}, {0, 0, 4, 0}}},
    {"EqualReportsBothCount",
     ReportFile({R"(columnNum="3")", R"(columnNum="3")"}),
     {{0, 0, 3, 0}, {0, 0, 3, 0}}},
    {"OtherElementsAndNestedReportsDoNotCount",
     R"(<x><Report columnNum="1"/><form><report columnNum="2"/></form><!-- c -->text)"
     R"(<report columnNum="3"><report columnNum="4"/></report><reports columnNum="5"/></x>)",
     {{0, 0, 3, 0}}},
    {"RootMayBeAReportItself",
     R"(<report columnNum="1"><report columnNum="2"/></report>)",
     {{0, 0, 2, 0}}},
};

INSTANTIATE_TEST_SUITE_P(Files, FinanceCsvReportTest, testing::ValuesIn(REPORT_CASES), CaseName());

class FinanceCsvNoReportTest : public FinanceCsvFixture,
                               public testing::WithParamInterface<DefinitionCase>
{};

TEST_P(FinanceCsvNoReportTest, IsRefusedOnceWithTheTypeIdInTheLog)
{
    m_bundle.Write("Finance/PGE2015vld.xml", *GetParam().definition);
    const DebugLog log;
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a\n101,2,b"), WRONG_TYPE_ID);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre(
                    "定義体から対応する申請番号種別が見つかりません（HE70021E）",
                    "Valid Message[HE70021E]  CSVファイルに異なる申請区分の情報が含まれています。",
                    "record=0000 column=00001 value=101"));
    EXPECT_STREQ(csv.GetTypeId(), "");
    EXPECT_EQ(csv.GetRecords(), Records{});
}

const DefinitionCase NO_REPORT_CASES[] = {
    {"EmptyRoot", "<define/>"},
    {"OtherElementsAlone", R"(<define><Report columnNum="3"/><item/></define>)"},
    {"NestedAlone", R"(<define><form><report columnNum="3"/></form></define>)"},
    {"CommentInFrontOfTheRoot", R"(<!-- c --><define><report columnNum="3"/></define>)"},
};

INSTANTIATE_TEST_SUITE_P(Files,
                         FinanceCsvNoReportTest,
                         testing::ValuesIn(NO_REPORT_CASES),
                         CaseName());

TEST_F(FinanceCsvTest, RecordWithoutReportsStopsTheReading)
{
    m_bundle.Write("Finance/PGE2015vld.xml", "<define/>");
    OpenFinanceCsv csv;
    EXPECT_EQ(csv.ValidateRecordFinance({"101", "1"}), 0);
}

// ---- empty records -----------------------------------------------------------------------------

struct ModeCase
{
    const char* szName;
    const char* szTypeId;
    int nMode;
};

void PrintTo(const ModeCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class FinanceCsvModeTest : public ResetState, public testing::WithParamInterface<ModeCase>
{};

TEST_P(FinanceCsvModeTest, FollowsTheTypeId)
{
    OpenFinanceCsv csv;
    csv.setEmptyCheckMode(GetParam().nMode == 0 ? "202" : "101");
    csv.setEmptyCheckMode(GetParam().szTypeId);
    EXPECT_EQ(csv.GetEmptyCheckMode(), GetParam().nMode);
}

constexpr ModeCase MODE_CASES[] = {
    {"TypeId202", "202", 1},
    {"TypeId101", "101", 0},
    {"TypeId201", "201", 0},
    {"TypeId302", "302", 0},
    {"Empty", "", 0},
    {"LeadingBlank", " 202", 0},
    {"TrailingBlank", "202 ", 0},
    {"ProcedureId", "PGE1640", 0},
};

INSTANTIATE_TEST_SUITE_P(TypeIds, FinanceCsvModeTest, testing::ValuesIn(MODE_CASES), CaseName());

TEST_F(FinanceCsvTest, ReadingTakesTheModeFromTheTypeId)
{
    m_bundle.Write("Finance/PGE1640vld.xml", ReportFile({R"(columnNum="2")", R"(columnNum="2")"}));
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "202,1"), PASSES);
    EXPECT_EQ(csv.GetEmptyCheckMode(), OpenFinanceCsv::EMPTYCHECK_COLUMN_COUNT);
    EXPECT_EQ(Read(csv, "101,1"), PASSES);
    EXPECT_EQ(csv.GetEmptyCheckMode(), OpenFinanceCsv::EMPTYCHECK_FIRST_COLUMN);
}

TEST_F(FinanceCsvTest, ModesHaveTheirFixedValues)
{
    EXPECT_EQ(static_cast<int>(OpenFinanceCsv::EMPTYCHECK_FIRST_COLUMN), 0);
    EXPECT_EQ(static_cast<int>(OpenFinanceCsv::EMPTYCHECK_COLUMN_COUNT), 1);
}

struct EmptyCase
{
    const char* szName;
    Record record;
    bool bEmpty;
    bool bEmptyIn202;
    bool bValid;
    bool bValidIn202;
};

void PrintTo(const EmptyCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class FinanceCsvEmptyRecordTest : public ResetState, public testing::WithParamInterface<EmptyCase>
{
protected:
    const OpenFinanceCsv m_csv{Records{GetParam().record}, "101"};
    const OpenFinanceCsv m_csv202{Records{GetParam().record}, "202"};
};

TEST_P(FinanceCsvEmptyRecordTest, IsEmptySo)
{
    EXPECT_EQ(m_csv.isEmptyRecord(0), GetParam().bEmpty);
    EXPECT_EQ(m_csv202.isEmptyRecord(0), GetParam().bEmptyIn202);
}

TEST_P(FinanceCsvEmptyRecordTest, CountsUnlessItIsEmpty)
{
    EXPECT_EQ(m_csv.GetNonCRLFRecordCount(), GetParam().bEmpty ? 0 : 1);
    EXPECT_EQ(m_csv202.GetNonCRLFRecordCount(), GetParam().bEmptyIn202 ? 0 : 1);
}

TEST_P(FinanceCsvEmptyRecordTest, IsDeletedIfItIsEmpty)
{
    const Records vecRecord = {{"x"}, GetParam().record, {"y"}};
    const Records vecWithout = {{"x"}, {"y"}};
    OpenFinanceCsv csv(vecRecord, "101");
    csv.DeleteEmptyRecord();
    EXPECT_EQ(csv.GetRecords(), GetParam().bEmpty ? vecWithout : vecRecord);
    OpenFinanceCsv csv202(vecRecord, "202");
    csv202.DeleteEmptyRecord();
    EXPECT_EQ(csv202.GetRecords(), GetParam().bEmptyIn202 ? vecWithout : vecRecord);
}

TEST_P(FinanceCsvEmptyRecordTest, IsValidSo)
{
    EXPECT_EQ(m_csv.IsValidRecord(0), GetParam().bValid);
    EXPECT_EQ(m_csv202.IsValidRecord(0), GetParam().bValidIn202);
}

const EmptyCase EMPTY_CASES[] = {
    {"AllFilled", {"101", "a"}, false, false, true, true},
    {"OneFilledColumn", {"101"}, false, false, true, true},
    {"OnlyTheFirstFilled", {"101", ""}, false, false, true, true},
    {"OnlyTheLastFilled", {"", "", "a"}, true, false, true, true},
    {"OnlyCommas", {"", "", ""}, true, false, false, true},
    {"OneEmptyColumn", {""}, true, false, false, true},
    {"NoColumns", {}, true, true, false, false},
};

INSTANTIATE_TEST_SUITE_P(Records,
                         FinanceCsvEmptyRecordTest,
                         testing::ValuesIn(EMPTY_CASES),
                         CaseName());

TEST_F(FinanceCsvTest, RecordOutOfRangeIsNotValid)
{
    for (const char* szTypeId : {"101", "202"}) {
        const OpenFinanceCsv csv(Records{{"101", "a"}}, szTypeId);
        EXPECT_TRUE(csv.IsValidRecord(0));
        EXPECT_FALSE(csv.IsValidRecord(1));
        EXPECT_FALSE(csv.IsValidRecord(-1));
        EXPECT_FALSE(csv.IsValidRecord(LONG_MAX));
        EXPECT_FALSE(csv.IsValidRecord(LONG_MIN));
    }
}

TEST_F(FinanceCsvTest, DeletingFromAnEmptyFileLeavesItEmpty)
{
    OpenFinanceCsv csv;
    csv.DeleteEmptyRecord();
    EXPECT_EQ(csv.GetRecords(), Records{});
}

TEST_F(FinanceCsvTest, LineOfCommasDoesNotCountButIsStored)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "103,1,a\n,\n5,b"), PASSES);
    EXPECT_EQ(csv.GetRecordCount(), 3);
    EXPECT_EQ(csv.GetNonCRLFRecordCount(), 2);
}

TEST_F(FinanceCsvTest, LineOfCommasCountsWithTypeId202)
{
    m_bundle.Write("Finance/PGE1640vld.xml", ReportFile({R"(columnNum="2")", R"(columnNum="2")"}));
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "202,1\n,\n5,b"), PASSES);
    EXPECT_EQ(csv.GetNonCRLFRecordCount(), 3);
}

TEST_F(FinanceCsvTest, BlankLineDoesNotCountWithTypeId202Either)
{
    m_bundle.Write("Finance/PGE1640vld.xml", ReportFile({R"(columnNum="2")", R"(columnNum="2")"}));
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "202,1\n\n5,b\n"), PASSES);
    EXPECT_EQ(csv.GetNonCRLFRecordCount(), 2);
}

// ---- check: what is there at all ---------------------------------------------------------------

TEST_F(FinanceCsvTest, FileThatWasNeverReadIsRefusedAsEmpty)
{
    const DebugLog log;
    const OpenFinanceCsv csv;
    EXPECT_EQ(Check(csv), EMPTY_FILE);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("CSVデータに有効なレコードが存在しません。（HE70024E）",
                                     "Valid Message[HE70024E]  空のCSVファイルです。",
                                     "record=0000 column=00000 value="));
}

TEST_F(FinanceCsvTest, TypeIdThatLeftTheCatalogueIsRefused)
{
    const DebugLog log;
    const OpenFinanceCsv csv(Records{{"301", "a"}}, "301", ColInfos{{0, 0, 2, 0}});
    EXPECT_EQ(Check(csv), WRONG_TYPE_ID);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre(
                    "手続情報が見つかりません。（HE70021E）",
                    "Valid Message[HE70021E]  CSVファイルに異なる申請区分の情報が含まれています。",
                    "record=0000 column=00001 value="));
}

TEST_F(FinanceCsvTest, FileWithoutReportsPassesTheCheckOfItsColumns)
{
    const OpenFinanceCsv csv(Records{{"101", "a"}}, "101");
    EXPECT_EQ(Check(csv), PASSES);
}

// ---- check: the limit of records ---------------------------------------------------------------

struct LimitCase
{
    const char* szTypeId;
    int nMaxRecord;
};

void PrintTo(const LimitCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szTypeId;
}

class FinanceCsvLimitTest : public ResetState, public testing::WithParamInterface<LimitCase>
{
protected:
    static std::string CheckRecords(int nRecords)
    {
        const char* szTypeId = GetParam().szTypeId;
        const Records vecRecord(static_cast<std::size_t>(nRecords), Record{szTypeId, "a"});
        const OpenFinanceCsv csv(vecRecord, szTypeId, ColInfos{{0, 0, 2, 0}});
        return Told([&] { return csv.checkMaxRecord(); });
    }
};

TEST_P(FinanceCsvLimitTest, AsManyPass)
{
    EXPECT_EQ(CheckRecords(GetParam().nMaxRecord), PASSES);
}

TEST_P(FinanceCsvLimitTest, OneMoreIsRefused)
{
    EXPECT_EQ(CheckRecords(GetParam().nMaxRecord + 1), TOO_MANY);
}

constexpr LimitCase LIMIT_CASES[] = {
    {"101", 1000}, {"102", 1000}, {"103", 1000}, {"104", 1000}, {"105", 1000}, {"106", 1000},
    {"107", 1000}, {"108", 1},    {"109", 1000}, {"110", 1000}, {"111", 1000}, {"112", 1000},
    {"113", 1000}, {"114", 1000}, {"115", 1000}, {"116", 1},    {"201", 1},    {"202", 1000},
};

INSTANTIATE_TEST_SUITE_P(TypeIds,
                         FinanceCsvLimitTest,
                         testing::ValuesIn(LIMIT_CASES),
                         [](const auto& testCase) {
                             return std::string("TypeId") + testCase.param.szTypeId;
                         });

TEST_F(FinanceCsvTest, AThousandRecordsInAFilePass)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, RepeatText("101,1,a\n", 1000)), PASSES);
    EXPECT_EQ(Check(csv), PASSES);
}

TEST_F(FinanceCsvTest, OneRecordMoreThanAThousandIsLoggedWithTheCount)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, RepeatText("101,1,a\n", 1001)), PASSES);
    const DebugLog log;
    EXPECT_EQ(Check(csv), TOO_MANY);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre(
                    "CSVレコードの総件数エラーです。（HE70029E）",
                    "Valid Message[HE70029E]  "
                    "作成可能なCSVレコード数を超えてしまうため、読み込むことができません。",
                    "record=0000 column=00000 value=1001"));
}

TEST_F(FinanceCsvTest, BlankLinesDoNotCountAgainstTheLimit)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, RepeatText("101,1,a\n\n", 1000)), PASSES);
    EXPECT_EQ(Check(csv), PASSES);
}

TEST_F(FinanceCsvTest, SecondRecordOfAOneRecordProcedureIsRefused)
{
    m_bundle.Write("Finance/PGE2080vld.xml", ReportFile({R"(columnNum="2")"}));
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "108,a\n\n"), PASSES);
    EXPECT_EQ(Check(csv), PASSES);
    EXPECT_EQ(Read(csv, "108,a\n108,b"), PASSES);
    EXPECT_EQ(Check(csv), TOO_MANY);
}

TEST_F(FinanceCsvTest, SecondRecordThatIsEmptyPassesTheLimitOfOne)
{
    const ColInfos vecColInfo = {{1, 1, 2, 0}, {2, 2, 2, 0}};
    EXPECT_EQ(Check(OpenFinanceCsv(Records{{"108", "a"}, {"", "b"}}, "108", vecColInfo)), PASSES);
    EXPECT_EQ(Check(OpenFinanceCsv(Records{{"108", "a"}, {"x", "b"}}, "108", vecColInfo)),
              TOO_MANY);
}

TEST_F(FinanceCsvTest, EmptyRecordsCountAgainstTheLimitWithTypeId202)
{
    Records vecRecord(1000, Record{"", ""});
    vecRecord.front() = {"202", "a"};
    const ColInfos vecColInfo = {{1, 1, 2, 0}, {2, 0, 2, 0}};
    EXPECT_EQ(Check(OpenFinanceCsv(vecRecord, "202", vecColInfo)), PASSES);
    vecRecord.push_back({"", ""});
    EXPECT_EQ(Check(OpenFinanceCsv(vecRecord, "202", vecColInfo)), TOO_MANY);
}

TEST_F(FinanceCsvTest, EmptyRecordsDoNotCountAgainstTheLimitWithAnotherTypeId)
{
    Records vecRecord(1001, Record{"", ""});
    vecRecord[0] = {"103", "a"};
    vecRecord[1] = {"1", "a"};
    EXPECT_EQ(Check(OpenFinanceCsv(vecRecord, "103", ColInfos{{1, 1, 2, 0}, {2, 0, 2, 0}})),
              PASSES);
}

TEST_F(FinanceCsvTest, LimitIsTestedBeforeAllElse)
{
    const Records vecRecord = {{"108", "a"}, {"108", "b", "c"}};
    EXPECT_EQ(Check(OpenFinanceCsv(vecRecord, "108", ColInfos{{0, 0, 2, 0}})), TOO_MANY);
    EXPECT_EQ(
        Check(OpenFinanceCsv(vecRecord, "108", ColInfos{{0, 0, 2, 0}, {0, 0, 2, 0}, {0, 0, 2, 0}})),
        TOO_MANY);
}

TEST_F(FinanceCsvTest, RecordsOfCommasCountAgainstTheLimitOfAFileWithTypeId202)
{
    m_bundle.Write("Finance/PGE1640vld.xml",
                   ReportFile({R"(startRow="1" endRow="1" columnNum="2")",
                               R"(startRow="2" endRow="0" columnNum="2")"}));
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "202,1\n" + RepeatText(",\n", 999)), PASSES);
    EXPECT_EQ(csv.GetNonCRLFRecordCount(), 1000);
    EXPECT_EQ(Check(csv), PASSES);
    EXPECT_EQ(Read(csv, "202,1\n" + RepeatText(",\n", 1000)), PASSES);
    const DebugLog log;
    EXPECT_EQ(Check(csv), TOO_MANY);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre(
                    "CSVレコードの総件数エラーです。（HE70029E）",
                    "Valid Message[HE70029E]  "
                    "作成可能なCSVレコード数を超えてしまうため、読み込むことができません。",
                    "record=0000 column=00000 value=1001"));
}

TEST_F(FinanceCsvTest, RecordsOfCommasOfAFileWithTypeId202AreKeptForTheDocument)
{
    m_bundle.Write("Finance/PGE1640vld.xml", ReportFile({R"(columnNum="2")", R"(columnNum="2")"}));
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "202,1\n,\n,x\n"), PASSES);
    csv.DeleteEmptyRecord();
    EXPECT_EQ(csv.GetRecords(), (Records{{"202", "1"}, {"", ""}, {"", "x"}}));
    EXPECT_TRUE(csv.IsValidRecord(1));
}

TEST_F(FinanceCsvTest, SameRecordsWithAnotherTypeIdAreNot)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "103,1\n,\n,x\n"), PASSES);
    EXPECT_FALSE(csv.IsValidRecord(1));
    EXPECT_TRUE(csv.IsValidRecord(2));
    csv.DeleteEmptyRecord();
    EXPECT_EQ(csv.GetRecords(), (Records{{"103", "1"}}));
}

// ---- check: files that are too large -----------------------------------------------------------

/// Records of which 1,000 take more than ten mebibytes.
std::string WideLines(const char* szTypeId, int nCount)
{
    return RepeatText(std::string(szTypeId) + ",1," + std::string(11'000, 'x') + "\n", nCount);
}

TEST_F(FinanceCsvTest, LargeFileOfTooManyRecordsIsCountedToItsEnd)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, WideLines("101", 1'003) + "\n101,1\n101,1,a,b"), PASSES);
    EXPECT_EQ(csv.GetRecordCount(), 1'005);
    EXPECT_STREQ(csv.GetItem(1'000, 1), "1");
    EXPECT_STREQ(csv.GetItem(1'001, 1), "");
    const DebugLog log;
    EXPECT_EQ(Check(csv), TOO_MANY);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre(
                    "CSVレコードの総件数エラーです。（HE70029E）",
                    "Valid Message[HE70029E]  "
                    "作成可能なCSVレコード数を超えてしまうため、読み込むことができません。",
                    "record=0000 column=00000 value=1005"));
}

TEST_F(FinanceCsvTest, RecordsBeyondTheLimitOfALargeFileAreStillCompared)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, WideLines("101", 1'003) + "102,1,a"), WRONG_TYPE_ID);
    EXPECT_EQ(Read(csv, WideLines("101", 1'003) + ",,"), WRONG_TYPE_ID);
}

TEST_F(FinanceCsvTest, RecordsOfALargeFileThatDoNotCountAreHeld)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "103,1,a\n" + WideLines("", 1'003) + "5,b"), PASSES);
    EXPECT_EQ(csv.GetRecordCount(), 1'005);
    EXPECT_EQ(csv.GetNonCRLFRecordCount(), 2);
    EXPECT_STREQ(csv.GetItem(1'003, 1), "1");
    EXPECT_STREQ(csv.GetItem(1'004, 1), "b");
}

TEST_F(FinanceCsvTest, LimitOfALargeFileIsThatOfItsProcedure)
{
    m_bundle.Write("Finance/PGE2080vld.xml", ReportFile({R"(columnNum="3")", R"(columnNum="3")"}));
    OpenFinanceCsv csv;
    const std::string strWide = "108,1," + std::string(11'000'000, 'x') + "\n";
    EXPECT_EQ(Read(csv, strWide + ",,x\n" + strWide + "a,b,c\n,,y"), PASSES);
    EXPECT_EQ(csv.GetRecordCount(), 5);
    EXPECT_EQ(csv.GetNonCRLFRecordCount(), 3);
    EXPECT_STREQ(csv.GetItem(2, 1), "1");
    EXPECT_STREQ(csv.GetItem(3, 1), "");
    EXPECT_EQ(Check(csv), TOO_MANY);
}

TEST_F(FinanceCsvTest, RecordsBeyondTheLimitOfALargeFileWithTypeId202AllCount)
{
    m_bundle.Write("Finance/PGE1640vld.xml", ReportFile({R"(columnNum="3")", R"(columnNum="3")"}));
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "202,1,a\n" + WideLines("", 1'003) + RepeatText(",,\n", 7)), PASSES);
    EXPECT_EQ(csv.GetNonCRLFRecordCount(), 1'011);
    EXPECT_STREQ(csv.GetItem(1'001, 1), "");
    const DebugLog log;
    EXPECT_EQ(Check(csv), TOO_MANY);
    EXPECT_TRUE(log.HasLine("record=0000 column=00000 value=1011"));
}

TEST_F(FinanceCsvTest, ColumnsOfARecordAreCountedToItsEndHoweverManyThereAre)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101" + std::string(300'000, ',')), PASSES);
    const DebugLog log;
    EXPECT_EQ(Check(csv), WRONG_COLUMNS);
    EXPECT_TRUE(log.HasLine("record=0000 column=00000 value=300001"));
}

// ---- check: a record for each report -----------------------------------------------------------

struct ReportCountCase
{
    const char* szName;
    const char* szTypeId;
    Records vecRecord;
    const char* szTold;
};

void PrintTo(const ReportCountCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class FinanceCsvReportCountTest : public ResetState,
                                  public testing::WithParamInterface<ReportCountCase>
{};

TEST_P(FinanceCsvReportCountTest, EndsSoWithTwoReports)
{
    const OpenFinanceCsv csv(GetParam().vecRecord, GetParam().szTypeId,
                             ColInfos{{1, 1, 2, 0}, {2, 0, 2, 0}});
    EXPECT_EQ(Told([&] { return csv.checkMaxRecord(); }), GetParam().szTold);
}

const ReportCountCase REPORT_COUNT_CASES[] = {
    {"OneRecord", "103", {{"103", "a"}}, TOO_FEW},
    {"TwoRecords", "103", {{"103", "a"}, {"x", "b"}}, PASSES},
    {"ThreeRecords", "103", {{"103", "a"}, {"x", "b"}, {"y", "c"}}, PASSES},
    {"SecondOfCommasAlone", "103", {{"103", "a"}, {"", ""}}, TOO_FEW},
    {"SecondWithoutFirstColumn", "103", {{"103", "a"}, {"", "b"}}, PASSES},
    {"SecondOfCommasAloneWithTypeId202", "202", {{"202", "a"}, {"", ""}}, PASSES},
    {"OneRecordWithTypeId202", "202", {{"202", "a"}}, TOO_FEW},
    {"MissingRecordComesBeforeWrongColumns", "103", {{"103"}}, TOO_FEW},
};

INSTANTIATE_TEST_SUITE_P(Files,
                         FinanceCsvReportCountTest,
                         testing::ValuesIn(REPORT_COUNT_CASES),
                         CaseName());

TEST_F(FinanceCsvTest, MissingSecondRecordIsLoggedWithTheCount)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "103,1,a\n\n"), PASSES);
    const DebugLog log;
    EXPECT_EQ(Check(csv), TOO_FEW);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("2レコード目以降の入力が必要です。（HE70033E）",
                                     "Valid Message[HE70033E]  2レコード目以降の入力が必要です。",
                                     "record=0002 column=00000 value=1"));
}

TEST_F(FinanceCsvTest, ThirdMissingRecordIsToldAtRecordTwoToo)
{
    const OpenFinanceCsv csv(Records{{"103", "a"}, {"x", "b"}}, "103",
                             ColInfos{{1, 1, 2, 0}, {2, 2, 2, 0}, {3, 3, 2, 0}});
    EXPECT_EQ(Check(csv), TOO_FEW);
}

// ---- check: columns of a file of one report ----------------------------------------------------

struct SingleCase
{
    const char* szName;
    Records vecRecord;
    ColInfo info;
    const char* szTold;
};

void PrintTo(const SingleCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class FinanceCsvSingleTest : public ResetState, public testing::WithParamInterface<SingleCase>
{};

TEST_P(FinanceCsvSingleTest, EndsSo)
{
    const OpenFinanceCsv csv(GetParam().vecRecord, "101", ColInfos{GetParam().info});
    EXPECT_EQ(Told([&] { return csv.checkMaxRecord(); }), GetParam().szTold);
}

const SingleCase SINGLE_CASES[] = {
    {"AllRight", {{"101", "a"}, {"101", "b"}}, {0, 0, 2, 0}, PASSES},
    {"FirstTooShort", {{"101"}, {"101", "b"}}, {0, 0, 2, 0}, WRONG_COLUMNS},
    {"FirstTooLong", {{"101", "a", ""}, {"101", "b"}}, {0, 0, 2, 0}, WRONG_COLUMNS},
    {"LastTooShort", {{"101", "a"}, {"101"}}, {0, 0, 2, 0}, WRONG_COLUMNS},
    {"SeveralWrongAreToldOnce", {{"101"}, {"101"}, {"101"}}, {0, 0, 2, 0}, WRONG_COLUMNS},
    {"RecordOfCommasAloneIsSkipped", {{"101", "a"}, {"", "", ""}}, {0, 0, 2, 0}, PASSES},
    {"RecordWithoutFirstColumnIsNot", {{"101", "a"}, {"", "", "x"}}, {0, 0, 2, 0}, WRONG_COLUMNS},
    {"RowsHaveNoMeaning", {{"101"}, {"101", "b"}}, {2, 2, 2, 0}, WRONG_COLUMNS},
    {"RowsBelowOneHaveNoMeaning", {{"101", "a"}}, {-1, -5, 2, 0}, PASSES},
    {"LastRecordHasNoMeaning", {{"101"}, {"101", "b"}}, {0, 0, 2, 1}, WRONG_COLUMNS},
    {"NoColumnCount", {{"101", "a"}}, {0, 0, 0, 0}, WRONG_COLUMNS},
    {"NegativeColumnCount", {{"101", "a"}}, {0, 0, -1, 0}, WRONG_COLUMNS},
    {"OneColumn", {{"101"}}, {0, 0, 1, 0}, PASSES},
    {"NoColumnCountButNothingToTest", {{"", ""}}, {0, 0, 0, 0}, PASSES},
};

INSTANTIATE_TEST_SUITE_P(Files, FinanceCsvSingleTest, testing::ValuesIn(SINGLE_CASES), CaseName());

TEST_F(FinanceCsvTest, RecordOfCommasAloneIsTestedWithTypeId202)
{
    const OpenFinanceCsv csv(Records{{"202", "a"}, {"", "", ""}}, "202", ColInfos{{0, 0, 2, 0}});
    EXPECT_EQ(Check(csv), WRONG_COLUMNS);
}

TEST_F(FinanceCsvTest, WrongColumnsAreLoggedWithTheCountOfTheFirstWrongRecord)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a\n101,2,b,c,d\n101"), PASSES);
    const DebugLog log;
    EXPECT_EQ(Check(csv), WRONG_COLUMNS);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("CSVのカラム数が不正です。（HE70019E）",
                                     "Valid Message[HE70019E]  "
                                     "申請区分に対するCSVのフォーマットが正しくありません。",
                                     "record=0000 column=00000 value=5"));
}

TEST_F(FinanceCsvTest, MissingColumnCountIsLoggedAsAFaultOfTheDefinition)
{
    m_bundle.Write("Finance/PGE2015vld.xml", ReportFile({""}));
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a"), PASSES);
    const DebugLog log;
    EXPECT_EQ(Check(csv), WRONG_COLUMNS);
    EXPECT_THAT(
        LogMessages(log),
        testing::ElementsAre(
            "定義体の内容が不正です。CSVのカラム数を取得できません。（HE70019E）",
            "Valid Message[HE70019E]  申請区分に対するCSVのフォーマットが正しくありません。",
            "record=0000 column=00000 value=0"));
}

// ---- check: columns of a file of several reports -----------------------------------------------

/// A file whose records differ in nothing but their numbers of columns.
struct RangeCase
{
    const char* szName;
    std::vector<int> vecColumns;
    ColInfos vecColInfo;
    const char* szTold;
};

void PrintTo(const RangeCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class FinanceCsvRangeTest : public ResetState, public testing::WithParamInterface<RangeCase>
{};

TEST_P(FinanceCsvRangeTest, EndsSo)
{
    Records vecRecord;
    for (const int nColumns : GetParam().vecColumns)
        vecRecord.emplace_back(static_cast<std::size_t>(nColumns), "x");
    const OpenFinanceCsv csv(vecRecord, "103", GetParam().vecColInfo);
    EXPECT_EQ(Told([&] { return csv.checkMaxRecord(); }), GetParam().szTold);
}

// Start row, end row, columns, last record.
constexpr ColInfo HEADER = {1, 1, 3, 0};
constexpr ColInfo OPEN_DETAIL = {2, 0, 2, 0};
constexpr ColInfo TRAILER = {0, 0, 4, 1};

const RangeCase RANGE_CASES[] = {
    {"HeaderAndDetail", {3, 2, 2, 2}, {HEADER, OPEN_DETAIL}, PASSES},
    {"HeaderAndDetailUpToMinusOne", {3, 2, 2, 2}, {HEADER, {2, -1, 2, 0}}, PASSES},
    {"WrongHeader", {2, 2, 2}, {HEADER, OPEN_DETAIL}, WRONG_COLUMNS},
    {"WrongFirstDetail", {3, 3, 2}, {HEADER, OPEN_DETAIL}, WRONG_COLUMNS},
    {"WrongMiddleDetail", {3, 2, 1, 2}, {HEADER, OPEN_DETAIL}, WRONG_COLUMNS},
    {"WrongLastDetail", {3, 2, 2, 3}, {HEADER, OPEN_DETAIL}, WRONG_COLUMNS},
    {"WrongLastDetailUpToMinusOne", {3, 2, 2, 3}, {HEADER, {2, -1, 2, 0}}, WRONG_COLUMNS},
    {"AllWrongIsToldOnce", {1, 1, 1}, {HEADER, OPEN_DETAIL}, WRONG_COLUMNS},

    {"HeaderDetailAndTrailer", {3, 2, 2, 4}, {HEADER, OPEN_DETAIL, TRAILER}, PASSES},
    {"TrailerKeepsItsRecordOutOfMinusOneToo",
     {3, 2, 2, 4},
     {HEADER, {2, -1, 2, 0}, TRAILER},
     PASSES},
    {"WrongTrailer", {3, 2, 2, 2}, {HEADER, OPEN_DETAIL, TRAILER}, WRONG_COLUMNS},
    {"WrongDetailBeforeTheTrailer", {3, 2, 4, 4}, {HEADER, OPEN_DETAIL, TRAILER}, WRONG_COLUMNS},
    {"DetailAndTrailerAlone", {2, 4}, {{1, 0, 2, 0}, TRAILER}, PASSES},
    {"TrailerLeavesNothingToTheDetail", {3, 4}, {{1, 1, 3, 0}, TRAILER}, PASSES},
    {"OpenDetailFromTheTrailerOnIsEmpty", {3, 3, 4}, {{1, 2, 3, 0}, {3, 0, 9, 0}, TRAILER}, PASSES},
    {"ClosedRangeMayReachTheTrailersRecord", {4, 4}, {{1, 2, 4, 0}, TRAILER}, PASSES},
    {"ClosedRangeOverTheTrailersRecordIsTestedThere",
     {3, 4},
     {{1, 2, 3, 0}, TRAILER},
     WRONG_COLUMNS},
    {"TrailerBeforeTheLastReportKeepsNothingOut",
     {3, 2, 4},
     {HEADER, TRAILER, OPEN_DETAIL},
     WRONG_COLUMNS},
    {"TrailerBeforeTheLastReportIsTheLastRecord",
     {3, 2, 2},
     {HEADER, {0, 0, 2, 1}, OPEN_DETAIL},
     PASSES},
    {"TrailerTestsTheLastRecordWhateverItsStartRow", {3, 4}, {HEADER, {1, 1, 4, 1}}, PASSES},
    {"TrailerWithAStartRowBelowOne", {3, 4}, {HEADER, {-7, 0, 4, 1}}, PASSES},
    {"TrailerByAnyNumberButZero", {3, 4}, {HEADER, {1, 1, 4, -1}}, PASSES},
    {"TrailerByAnyNumberButZeroKeepsItsRecordOut",
     {3, 2, 4},
     {HEADER, OPEN_DETAIL, {0, 0, 4, 9}},
     PASSES},
    {"WrongTrailerWhateverItsStartRow", {3, 3, 2}, {HEADER, {1, 2, 3, 1}}, WRONG_COLUMNS},

    {"EndRowBeyondTheLastRecordStopsThere", {3, 2, 2}, {HEADER, {2, 1000, 2, 0}}, PASSES},
    {"EndRowJustBeyondTheLastRecordStopsThere", {3, 2, 2}, {HEADER, {2, 4, 2, 0}}, PASSES},
    {"EndRowFarBeyondTheLastRecordStopsThere", {3, 2, 2}, {HEADER, {2, INT64_MAX, 2, 0}}, PASSES},
    {"WrongRecordInARangeBeyondTheLast", {3, 2, 3}, {HEADER, {2, 1000, 2, 0}}, WRONG_COLUMNS},
    {"StartRowBeyondTheLastRecordTestsNothing", {3, 3}, {{1, 2, 3, 0}, {3, 9, 2, 0}}, PASSES},
    {"StartRowFarBeyondTestsNothing", {3, 3}, {{1, 2, 3, 0}, {INT64_MAX, 0, 2, 0}}, PASSES},
    {"EndRowBeforeStartRowTestsNothing", {3, 1, 1}, {HEADER, {3, 2, 2, 0}}, PASSES},
    {"EndRowBelowMinusOneTestsNothing", {3, 1, 1}, {HEADER, {2, -2, 2, 0}}, PASSES},
    {"RecordInNoRangeIsNotTested", {3, 9, 2}, {HEADER, {3, 3, 2, 0}}, PASSES},
    {"RecordInTwoRangesIsTestedForBoth", {3, 2}, {HEADER, {1, 2, 2, 0}}, WRONG_COLUMNS},
    {"OneRowRangesInAnyOrder", {3, 2}, {{2, 2, 2, 0}, {1, 1, 3, 0}}, PASSES},

    {"NoColumnCountButAnEmptyRange", {3, 3}, {{1, 2, 3, 0}, {3, 9, 0, 0}}, PASSES},
    {"NoColumnCount", {3, 3}, {HEADER, {2, 2, 0, 0}}, WRONG_COLUMNS},
    {"NoColumnCountAtTheTrailer", {3, 3}, {HEADER, {0, 0, 0, 1}}, WRONG_COLUMNS},

    {"StartRowZeroFailsWithNothingRecorded", {3, 2}, {HEADER, {0, 0, 2, 0}}, REFUSES},
    {"StartRowMinusOneFailsWithNothingRecorded", {3, 2}, {HEADER, {-1, 0, 2, 0}}, REFUSES},
    {"SmallestStartRowFailsWithNothingRecorded", {3, 2}, {HEADER, {INT64_MIN, 2, 2, 0}}, REFUSES},
    {"StartRowZeroOfTheFirstComesFirst", {1, 1}, {{0, 0, 3, 0}, OPEN_DETAIL}, REFUSES},
    {"WrongHeaderComesBeforeTheNextStartRow", {1, 1}, {HEADER, {0, 0, 2, 0}}, WRONG_COLUMNS},
    {"StartRowZeroComesBeforeAMissingColumnCount", {3, 2}, {HEADER, {0, 0, 0, 0}}, REFUSES},
    {"MissingRecordComesBeforeTheStartRow", {3}, {{0, 0, 3, 0}, {0, 0, 2, 0}}, TOO_FEW},
};

INSTANTIATE_TEST_SUITE_P(Files, FinanceCsvRangeTest, testing::ValuesIn(RANGE_CASES), CaseName());

TEST_F(FinanceCsvTest, EmptyRecordsInARangeAreTested)
{
    const ColInfos vecColInfo = {{1, 1, 2, 0}, {2, 0, 2, 0}};
    const Record first = {"103", "a"};
    const Record filled = {"x", "b"};
    EXPECT_EQ(Check(OpenFinanceCsv(Records{first, {"", ""}, filled}, "103", vecColInfo)), PASSES);
    EXPECT_EQ(Check(OpenFinanceCsv(Records{first, {"", "", ""}, filled}, "103", vecColInfo)),
              WRONG_COLUMNS);
}

TEST_F(FinanceCsvTest, RowsCountTheLinesThatAreNotBlank)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "\n103,1,a\n\n\n5,b\n\n6,c\n"), PASSES);
    EXPECT_EQ(Check(csv), PASSES);
}

TEST_F(FinanceCsvTest, TrailerOfAFileIsItsLastLineThatIsNotBlank)
{
    m_bundle.Write("Finance/PGE2030vld.xml", ReportFile({R"(startRow="1" endRow="0" columnNum="2")",
                                                         R"(lastRecord="1" columnNum="3")"}));
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "103,a\n4,b\n9,8,7\n\n \n"), PASSES);
    EXPECT_EQ(Check(csv), PASSES);
}

TEST_F(FinanceCsvTest, StartRowBelowOneIsLoggedWithoutAText)
{
    const OpenFinanceCsv csv(Records{{"103", "a"}, {"x", "b"}}, "103",
                             ColInfos{{1, 1, 2, 0}, {0, 0, 2, 0}});
    const DebugLog log;
    EXPECT_EQ(Check(csv), REFUSES);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre(""));
    EXPECT_THAT(log.Text(), testing::HasSubstr(" KZCEkaCsvFileFinance::checkMaxRecord--\n[File:"));
}

TEST_F(FinanceCsvTest, StartRowBelowOneInAFileOfOneReportPasses)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a"), PASSES);
    EXPECT_EQ(csv.GetColInfo().front().nStartRow, 0);
    EXPECT_EQ(Check(csv), PASSES);
}

TEST_F(FinanceCsvTest, WrongColumnsOfAReportAreLoggedWithTheCount)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "103,1,a\n5,b,c,d\n6"), PASSES);
    const DebugLog log;
    EXPECT_EQ(Check(csv), WRONG_COLUMNS);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("CSVのカラム数が不正です。（HE70019E）",
                                     "Valid Message[HE70019E]  "
                                     "申請区分に対するCSVのフォーマットが正しくありません。",
                                     "record=0000 column=00000 value=4"));
}

TEST_F(FinanceCsvTest, CheckChangesNothing)
{
    OpenFinanceCsv csv;
    EXPECT_EQ(Read(csv, "103,1,a\n5,b"), PASSES);
    EXPECT_EQ(Check(csv), PASSES);
    EXPECT_EQ(Check(csv), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"103", "1", "a"}, {"5", "b"}}));
}

// ---- columns of one record ---------------------------------------------------------------------

TEST_F(FinanceCsvTest, ColumnCountOfARecordIsCompared)
{
    const OpenFinanceCsv csv(Records{{"101"}, {"101", "a"}});
    EXPECT_EQ(Told([&] { return csv.checkColumnCount(1, 2); }), PASSES);
    EXPECT_EQ(Told([&] { return csv.checkColumnCount(0, 2); }), WRONG_COLUMNS);
    EXPECT_EQ(Told([&] { return csv.checkColumnCount(1, 1); }), WRONG_COLUMNS);
}

TEST_F(FinanceCsvTest, ExpectedCountBelowOneIsLoggedAsItIs)
{
    const OpenFinanceCsv csv(Records{{"101"}});
    const DebugLog log;
    EXPECT_EQ(Told([&] { return csv.checkColumnCount(0, -2); }), WRONG_COLUMNS);
    EXPECT_THAT(
        LogMessages(log),
        testing::ElementsAre(
            "定義体の内容が不正です。CSVのカラム数を取得できません。（HE70019E）",
            "Valid Message[HE70019E]  申請区分に対するCSVのフォーマットが正しくありません。",
            "record=0000 column=00000 value=-2"));
}

TEST_F(FinanceCsvTest, RecordBeyondTheTableHasNoColumns)
{
    const OpenFinanceCsv csv(Records{{"101"}});
    EXPECT_EQ(Told([&] { return csv.checkColumnCount(1, 1); }), WRONG_COLUMNS);
    EXPECT_EQ(Told([&] { return csv.checkColumnCount(-1, 1); }), WRONG_COLUMNS);
    EXPECT_EQ(Told([&] { return csv.checkColumnCount(INT_MAX, 1); }), WRONG_COLUMNS);
}

}  // namespace
