#include "csv/CsvSplitter.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "KZCEkaCsvFile.h"
#include "fault/Fault.h"
#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

/// Takes every record but one whose first column is "stop".
class UncheckedCsv final : public KZCEkaCsvFile
{
public:
    bool ValidateRecord(const Record& record) override { return record.front() != "stop"; }
    std::vector<Record> GetRecords() const { return m_table.Records(); }
};

struct PieceCase
{
    const char* szName;
    const char* szText;
    bool bQuote;
    std::vector<KZCEkaCsvFile::Record> vecExpected;
};

void PrintTo(const PieceCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CsvSplitterTest : public ResetState, public testing::WithParamInterface<PieceCase>
{};

TEST_P(CsvSplitterTest, GivesTheSameRecordsWhereverAPieceEnds)
{
    const std::string_view strText = GetParam().szText;
    for (std::size_t nCut = 0; nCut <= strText.size(); ++nCut) {
        UncheckedCsv csv;
        CsvSplitter splitter(csv, GetParam().bQuote);
        EXPECT_EQ(splitter.Take(strText.substr(0, nCut)), STATUS_OK);
        EXPECT_EQ(splitter.Take(strText.substr(nCut)), STATUS_OK);
        EXPECT_EQ(splitter.Finish(), STATUS_OK);
        EXPECT_EQ(csv.GetRecords(), GetParam().vecExpected) << nCut;
    }
}

TEST_P(CsvSplitterTest, GivesTheSameRecordsByteByByte)
{
    UncheckedCsv csv;
    CsvSplitter splitter(csv, GetParam().bQuote);
    for (const char cByte : std::string_view(GetParam().szText))
        EXPECT_EQ(splitter.Take({&cByte, 1}), STATUS_OK);
    EXPECT_EQ(splitter.Finish(), STATUS_OK);
    EXPECT_EQ(csv.GetRecords(), GetParam().vecExpected);
}

const PieceCase PIECE_CASES[] = {
    {"Nothing", "", false, {{""}}},
    {"Plain", "ab,cd\nef", false, {{"ab", "cd"}, {"ef"}}},
    {"ReturnAndLineFeed", "a\r\nb\r\n", false, {{"a"}, {"b"}, {""}}},
    {"TwoReturnsAndLineFeed", "a\r\r\nb", false, {{"a"}, {""}, {"b"}}},
    {"LineFeedAndReturn", "a\n\rb", false, {{"a"}, {""}, {"b"}}},
    {"Blanks", "  a b  , \t ,c", false, {{"a b", "", "c"}}},
    {"FullWidth", "　あ　,い", false, {{"あ", "い"}}},
    {"QuotesWithoutMeaning", "\"a,b\"", false, {{"\"a", "b\""}}},
    {"Quoted", "\"a,\r\nb\"\"c\"d,\"\"\n\"e\"", true, {{"a,\r\nb\"cd", ""}, {"e"}}},
    {"QuoteBehindABlank", " \"a,b\"", true, {{"\"a", "b\""}}},
    {"BlanksInQuotes", "\"  a\",\"  \"", true, {{"a", ""}}},
    {"QuoteBehindABlankInQuotes", "\" \"\"a\"", true, {{"\"a"}}},
    {"OpenQuote", "a,\"b\nc", true, {{"a", "b\nc"}}},
};

INSTANTIATE_TEST_SUITE_P(Texts, CsvSplitterTest, testing::ValuesIn(PIECE_CASES), CaseName());

TEST(CsvSplitterRefusalTest, RefusedRecordEndsThePiece)
{
    UncheckedCsv csv;
    CsvSplitter splitter(csv, false);
    EXPECT_EQ(splitter.Take("a\nsto"), STATUS_OK);
    EXPECT_EQ(splitter.Take("p\nb\n"), STATUS_NG);
    EXPECT_EQ(csv.GetRecords(), (std::vector<KZCEkaCsvFile::Record>{{"a"}}));
}

TEST(CsvSplitterRefusalTest, RefusedLastRecordShowsAtTheEnd)
{
    UncheckedCsv csv;
    CsvSplitter splitter(csv, false);
    EXPECT_EQ(splitter.Take("stop"), STATUS_OK);
    EXPECT_EQ(splitter.Finish(), STATUS_NG);
}

}  // namespace
