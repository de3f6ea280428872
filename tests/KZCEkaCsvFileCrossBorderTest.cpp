#include "KZCEkaCsvFileCrossBorder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "fault/Fault.h"
#include "support/LogEntries.h"
#include "support/LogMessages.h"
#include "support/OpenFinanceCsv.h"
#include "support/ShiftJisText.h"

namespace {

using Record = OpenCrossBorderCsv::Record;
using Records = std::vector<Record>;
using ColInfo = OpenCrossBorderCsv::ColInfo;
using ColInfos = std::vector<ColInfo>;

constexpr const char* EMPTY_FILE = "refuses 0000-00000-HE70024E";
constexpr const char* WRONG_COLUMNS = "refuses 0000-00000-HE70019E";
constexpr const char* WRONG_TYPE_ID = "refuses 0000-00001-HE70021E";
constexpr const char* TOO_MANY = "refuses 0000-00000-HE70029E";
constexpr const char* TOO_FEW = "refuses 0002-00000-HE70033E";

/// One report of three columns for type id 301; two reports of three for 302.
class CrossBorderCsvTest : public FinanceCsvFixture
{
protected:
    CrossBorderCsvTest()
    {
        m_bundle.Write("CrossBorder/PGE1650vld.xml", ReportFile({R"(columnNum="3")"}));
        m_bundle.Write("CrossBorder/PGE1660vld.xml",
                       ReportFile({R"(startRow="1" endRow="1" columnNum="3")",
                                   R"(startRow="2" endRow="0" columnNum="3")"}));
    }
};

// ---- quotes ------------------------------------------------------------------------------------

struct QuoteCase
{
    const char* szName;
    const char* szText;   ///< behind the line "302,," of a file of several reports
    Records vecExpected;  ///< behind that line's record
};

void PrintTo(const QuoteCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CrossBorderCsvQuoteTest : public CrossBorderCsvTest,
                                public testing::WithParamInterface<QuoteCase>
{};

TEST_P(CrossBorderCsvQuoteTest, GivesTheseRecords)
{
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, std::string("302,,\n") + GetParam().szText), PASSES);
    Records vecExpected = GetParam().vecExpected;
    vecExpected.insert(vecExpected.begin(), {"302", "", ""});
    EXPECT_EQ(csv.GetRecords(), vecExpected);
}

const QuoteCase QUOTE_CASES[] = {
    {"NothingQuoted", "a,b,c", {{"a", "b", "c"}}},
    {"CommaInQuotesGivesThreeColumns", "101,\"a,b\",c", {{"101", "a,b", "c"}}},
    {"DoubledQuoteIsOneQuote", "\"a\"\"b\"", {{"a\"b"}}},
    {"LineFeedInQuotesStays", "\"a\nb\",c", {{"a\nb", "c"}}},
    {"CarriageReturnInQuotesStays", "\"a\rb\"", {{"a\rb"}}},
    {"BothLineEndsInQuotesStay", "\"a\r\nb\"", {{"a\r\nb"}}},
    {"LineEndsAtTheEdgesOfQuotesGo", "\"\r\na\nb\n\",\"\n\"", {{"a\nb", ""}}},
    {"BlankLineInQuotesStays", "\"a\n\nb\",c\n\nd", {{"a\n\nb", "c"}, {"d"}}},
    {"LineOfAnEmptyPairOfQuotesIsBlank", "a\n\"\"\nb", {{"a"}, {"b"}}},
    {"LineOfABlankInQuotesIsBlank", "a\n\" \"\nb", {{"a"}, {"b"}}},
    {"QuoteInTheMiddleIsACharacter", "a\"b,c\",d", {{"a\"b", "c\"", "d"}}},
    {"QuoteBehindABlankIsACharacter", " \"a,b\"", {{"\"a", "b\""}}},
    {"TextBehindTheClosingQuoteBelongsToTheValue", "\"a\"b,c", {{"ab", "c"}}},
    {"OpenQuoteEndsWithTheFile", "a,\"b,c\nd", {{"a", "b,c\nd"}}},
    {"OnlyQuotedColumns", "\"a\",\"\",\"b,\"", {{"a", "", "b,"}}},
};

INSTANTIATE_TEST_SUITE_P(Files,
                         CrossBorderCsvQuoteTest,
                         testing::ValuesIn(QUOTE_CASES),
                         CaseName());

TEST_F(CrossBorderCsvTest, TypeIdMayBeQuoted)
{
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "\"301\",\"a,b\",c\r\n301,\"\",\"\"\r\n"), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"301", "a,b", "c"}, {"301", "", ""}}));
    EXPECT_STREQ(csv.GetTypeId(), "301");
}

TEST_F(CrossBorderCsvTest, TrailBytesInQuotesAreNoQuotesOrCommas)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, ToShiftJis("301,\"表,ソ\",能")), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"301", "\x95\x5c,\x83\x5c", "\x94\x5c"}}));
}

TEST_F(CrossBorderCsvTest, CellsAreUtf8OutsideACheck)
{
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, ToShiftJis("301,\"　青葉　\",表ソ")), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"301", "青葉", "表ソ"}}));
}

// ---- reading -----------------------------------------------------------------------------------

TEST_F(CrossBorderCsvTest, NewFileIsEmpty)
{
    const OpenCrossBorderCsv csv;
    EXPECT_STREQ(csv.GetTypeId(), "");
    EXPECT_EQ(csv.GetRecords(), Records{});
    EXPECT_EQ(csv.GetColInfo(), ColInfos{});
    EXPECT_EQ(csv.GetEmptyCheckMode(), 0);
}

TEST_F(CrossBorderCsvTest, ReadsRecordsTypeIdAndReport)
{
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "301,1,a\r\n\r\n301,2,b\r\n"), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"301", "1", "a"}, {"301", "2", "b"}}));
    EXPECT_STREQ(csv.GetTypeId(), "301");
    EXPECT_EQ(csv.GetColInfo(), (ColInfos{{0, 0, 3, 0}}));
    EXPECT_FALSE(csv.HasGenerations());
}

TEST_F(CrossBorderCsvTest, FileOfBlankLinesIsReadAndRefusedByTheCheck)
{
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "\n\"\"\n"), PASSES);
    EXPECT_EQ(Check(csv), EMPTY_FILE);
}

TEST_F(CrossBorderCsvTest, SecondReadingReplacesTheFirst)
{
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "302,1,a\n5,b,c"), PASSES);
    EXPECT_EQ(Read(csv, "301,x,y"), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"301", "x", "y"}}));
    EXPECT_EQ(csv.GetColInfo(), (ColInfos{{0, 0, 3, 0}}));
}

// ---- refused records ---------------------------------------------------------------------------

TEST_F(CrossBorderCsvTest, RefusedRecordLeavesNoRecords)
{
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "301,1,a\n301,2,b\n302,3,c\n301,4,d"), WRONG_TYPE_ID);
    EXPECT_EQ(csv.GetRecordCount(), 0);
    EXPECT_EQ(csv.GetRecords(), Records{});
}

TEST_F(CrossBorderCsvTest, RefusedRecordTakesTheRecordsAlone)
{
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "301,1,a\n302,3,c"), WRONG_TYPE_ID);
    EXPECT_STREQ(csv.GetTypeId(), "301");
    EXPECT_EQ(csv.GetColInfo(), (ColInfos{{0, 0, 3, 0}}));
}

TEST_F(CrossBorderCsvTest, RefusedRecordInTheMiddleOfATextLeavesTheRecordsOfTheParserAlone)
{
    OpenCrossBorderCsv csv;
    EXPECT_EQ(csv.Parse("301,1,a\n302,3,c", true), STATUS_NG);
    EXPECT_EQ(csv.GetRecords(), (Records{{"301", "1", "a"}}));
}

TEST_F(CrossBorderCsvTest, FileCanBeReadAfterARefusedOne)
{
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "301,1,a\n302,3,c"), WRONG_TYPE_ID);
    EXPECT_EQ(Read(csv, "301,1,a"), PASSES);
    EXPECT_EQ(csv.GetRecords(), (Records{{"301", "1", "a"}}));
}

TEST_F(CrossBorderCsvTest, TypeIdOfFinanceIsRefused)
{
    m_bundle.Write("CrossBorder/PGE2015vld.xml", ReportFile({R"(columnNum="3")"}));
    const DebugLog log;
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "101,1,a"), WRONG_TYPE_ID);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre(
                    "手続情報が見つかりません。（HE70021E）",
                    "Valid Message[HE70021E]  CSVファイルに異なる申請区分の情報が含まれています。",
                    "record=0000 column=00001 value="));
}

TEST_F(CrossBorderCsvTest, DifferentTypeIdIsLoggedWithItsValue)
{
    const DebugLog log;
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "301,1,a\n\"30,2\",1,a"), WRONG_TYPE_ID);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre(
                    "CSV内で申請番号が統一されていません。（HE70021E）",
                    "Valid Message[HE70021E]  CSVファイルに異なる申請区分の情報が含まれています。",
                    "record=0000 column=00001 value=30,2"));
}

TEST_F(CrossBorderCsvTest, ValidationFileWithoutReportIsRefused)
{
    m_bundle.Write("CrossBorder/PGE1650vld.xml", "<define/>");
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "301,1,a"), WRONG_TYPE_ID);
    EXPECT_EQ(csv.GetRecordCount(), 0);
}

// ---- what can't be read ------------------------------------------------------------------------

TEST_F(CrossBorderCsvTest, EmptyFileRaisesAndRecordsNothing)
{
    const DebugLog log;
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, ""), RAISES);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("CSVファイルリードエラーが発生しました。",
                                                       "想定外エラーが発生しました。"));
}

TEST_F(CrossBorderCsvTest, MissingFileRaisesAndEmptiesWhatWasReadBefore)
{
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "301,1,a"), PASSES);
    EXPECT_EQ(Told([&] { return csv.ReadFile(m_folder.Path("missing.csv")); }), RAISES);
    EXPECT_EQ(csv.GetRecords(), Records{});
    EXPECT_STREQ(csv.GetTypeId(), "");
}

TEST_F(CrossBorderCsvTest, FileThatIsNotShiftJisRaises)
{
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "301,\"あ\n"), RAISES);
}

TEST_F(CrossBorderCsvTest, MalformedValidationFileRaisesAndRecordsNothing)
{
    m_bundle.Write("CrossBorder/PGE1650vld.xml", "<define>");
    const DebugLog log;
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "301,1,a"), RAISES);
    EXPECT_THAT(LastLogMessages(log, 2),
                testing::ElementsAre("定義体の読み込みでエラーが発生しました。",
                                     "想定外エラーが発生しました。"));
}

TEST_F(CrossBorderCsvTest, ValidationFileInTheFolderOfFinanceDoesNotServe)
{
    m_bundle.Write("Finance/PGE1650vld.xml", ReportFile({R"(columnNum="3")"}));
    std::filesystem::remove(m_bundle.Path("CrossBorder/PGE1650vld.xml"));
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "301,1,a"), RAISES);
}

// ---- names in the log --------------------------------------------------------------------------

TEST_F(CrossBorderCsvTest, UnreadableFileIsLoggedTwiceUnderTheReader)
{
    const DebugLog log;
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, ""), RAISES);
    EXPECT_THAT(LogEntries(log),
                testing::ElementsAre(LogEntry{"KZCEkaCsvFileCrossBorder::ReadFile",
                                              "CSVファイルリードエラーが発生しました。"},
                                     LogEntry{"KZCEkaCsvFileCrossBorder::ReadFile",
                                              "想定外エラーが発生しました。"}));
}

TEST_F(CrossBorderCsvTest, InheritedOperationsLogUnderTheClassThatDefinesThem)
{
    const DebugLog log;
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, "999,1,a"), WRONG_TYPE_ID);
    EXPECT_EQ(Read(csv, RepeatText("301,1,a\n", 1001)), PASSES);
    EXPECT_EQ(Check(csv), TOO_MANY);
    EXPECT_EQ(Read(csv, "301,1"), PASSES);
    EXPECT_EQ(Check(csv), WRONG_COLUMNS);
    EXPECT_THAT(LogEntries(log),
                testing::ElementsAre(LogEntry{"KZCEkaCsvFileFinance::ValidateRecordFinance",
                                              "手続情報が見つかりません。（HE70021E）"},
                                     LogEntry{"KZCEkaCsvFileFinance::checkMaxRecord",
                                              "CSVレコードの総件数エラーです。（HE70029E）"},
                                     LogEntry{"KZCEkaCsvFileFinance::checkColumnCount",
                                              "CSVのカラム数が不正です。（HE70019E）"}));
}

// ---- the check ---------------------------------------------------------------------------------

struct CheckCase
{
    const char* szName;
    std::string strText;
    const char* szTold;
};

void PrintTo(const CheckCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CrossBorderCsvCheckTest : public CrossBorderCsvTest,
                                public testing::WithParamInterface<CheckCase>
{};

TEST_P(CrossBorderCsvCheckTest, EndsSo)
{
    OpenCrossBorderCsv csv;
    EXPECT_EQ(Read(csv, GetParam().strText), PASSES);
    EXPECT_EQ(Check(csv), GetParam().szTold);
}

const CheckCase CHECK_CASES[] = {
    {"QuotedCommaIsNoColumnBreak", "301,\"a,b\",c", PASSES},
    {"UnquotedCommaIsOne", "301,a,b,c", WRONG_COLUMNS},
    {"QuotedLineEndIsNoRecordBreak", "301,\"a\n301\",c", PASSES},
    {"ThousandOfTypeId301", RepeatText("301,1,a\n", 1000), PASSES},
    {"OneMoreOfTypeId301", RepeatText("301,1,a\n", 1001), TOO_MANY},
    {"ThousandOfTypeId302", RepeatText("302,1,a\n", 1000), PASSES},
    {"OneMoreOfTypeId302", RepeatText("302,1,a\n", 1001), TOO_MANY},
    {"QuotedLineEndsDoNotCount", "301,\"" + RepeatText("x\n", 1001) + "\",a", PASSES},
    {"OneRecordForTwoReports", "302,1,a", TOO_FEW},
    {"TwoRecordsForTwoReports", "302,1,a\nx,\"y\nz\",w", PASSES},
    {"SecondRecordOfCommasAlone", "302,1,a\n,,", TOO_FEW},
    {"SecondRecordTooShort", "302,1,a\nx,\"y,z\"", WRONG_COLUMNS},
    {"TypeIdInQuotes", "\"301\",1,a", PASSES},
};

INSTANTIATE_TEST_SUITE_P(Files,
                         CrossBorderCsvCheckTest,
                         testing::ValuesIn(CHECK_CASES),
                         CaseName());

TEST_F(CrossBorderCsvTest, TypeIdOfFinanceIsRefusedByTheCheckToo)
{
    const OpenCrossBorderCsv csv(Records{{"101", "a"}}, "101", ColInfos{{0, 0, 2, 0}});
    EXPECT_EQ(Check(csv), WRONG_TYPE_ID);
}

}  // namespace
