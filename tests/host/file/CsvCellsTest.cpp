#include "file/CsvCells.h"

#include <gtest/gtest.h>

#include <string>

namespace host {
namespace {

TEST(CsvCellsTest, EmptyTextIsOneBlankRecord)
{
    const CsvCells cells("");
    EXPECT_EQ(cells.RecordCount(), 1u);
    EXPECT_TRUE(cells.IsBlank(1));
    EXPECT_EQ(cells.FilledRecordCount(), 0u);
    EXPECT_EQ(cells.FirstRecord(), std::nullopt);
    EXPECT_EQ(cells.TypeId(), "");
}

TEST(CsvCellsTest, ColumnsBehindThoseThatAreHeldAreCountedAndEmpty)
{
    const CsvCells cells("003" + std::string(262'142, ',') + ",held,beyond,\nnext,line");
    EXPECT_EQ(cells.ColumnCount(1), 262'146u);
    EXPECT_EQ(cells.Cell(1, 262'144), "held");
    EXPECT_EQ(cells.Cell(1, 262'145), "");
    EXPECT_EQ(cells.ColumnCount(2), 2u);
    EXPECT_EQ(cells.Cell(2, 2), "line");
}

struct LineEndCase
{
    const char* szName;
    const char* szText;
    std::size_t nRecords;
};

class CsvLineEndTest : public testing::TestWithParam<LineEndCase>
{};

TEST_P(CsvLineEndTest, SplitsIntoRecords)
{
    EXPECT_EQ(CsvCells(GetParam().szText).RecordCount(), GetParam().nRecords);
}

INSTANTIATE_TEST_SUITE_P(Ends,
                         CsvLineEndTest,
                         testing::Values(LineEndCase{"NoEnd", "a", 1},
                                         LineEndCase{"Lf", "a\nb", 2},
                                         LineEndCase{"Cr", "a\rb", 2},
                                         LineEndCase{"CrLf", "a\r\nb", 2},
                                         LineEndCase{"LfCrIsTwo", "a\n\rb", 3},
                                         LineEndCase{"CrCrLfIsTwo", "a\r\r\nb", 3},
                                         LineEndCase{"ClosingEndLeavesABlankRecord", "a\r\n", 2}),
                         [](const auto& testCase) { return testCase.param.szName; });

TEST(CsvCellsTest, CellsAreTrimmedAtBothEnds)
{
    const CsvCells cells("002, 　a b\t ,");
    EXPECT_EQ(cells.Cell(1, 2), "a b");
}

TEST(CsvCellsTest, QuoteIsAnOrdinaryCharacter)
{
    const CsvCells cells("002,\"a,b\"");
    EXPECT_EQ(cells.ColumnCount(1), 3u);
    EXPECT_EQ(cells.Cell(1, 2), "\"a");
}

TEST(CsvCellsTest, CellBeyondTheRecordIsEmpty)
{
    const CsvCells cells("002,a");
    EXPECT_EQ(cells.Cell(1, 3), "");
    EXPECT_EQ(cells.Cell(2, 1), "");
    EXPECT_EQ(cells.Cell(0, 1), "");
    EXPECT_EQ(cells.Cell(1, 0), "");
    EXPECT_EQ(cells.ColumnCount(2), 0u);
}

TEST(CsvCellsTest, RangeIsJoinedByCommasAndEndsWithTheRecord)
{
    const CsvCells cells("002, a ,b,c");
    EXPECT_EQ(cells.Cells(1, 2, 3), "a,b");
    EXPECT_EQ(cells.Cells(1, 3, 99), "b,c");
}

TEST(CsvCellsTest, RangeOfEmptyColumnsKeepsItsCommas)
{
    EXPECT_EQ(CsvCells("002,,,x").Cells(1, 2, 3), ",");
}

TEST(CsvCellsTest, LineOfCommasIsNotBlankButNotFilled)
{
    const CsvCells cells(",,\n002,a");
    EXPECT_FALSE(cells.IsBlank(1));
    EXPECT_EQ(cells.FilledRecordCount(), 1u);
    EXPECT_EQ(cells.FirstRecord(), 1u);
}

TEST(CsvCellsTest, BlankRecordsCountAsRecordsButNotAsFilled)
{
    const CsvCells cells("\n  \n002,a\n002,b\n");
    EXPECT_EQ(cells.RecordCount(), 5u);
    EXPECT_EQ(cells.FilledRecordCount(), 2u);
    EXPECT_EQ(cells.FirstRecord(), 3u);
    EXPECT_EQ(cells.TypeId(), "002");
}

TEST(CsvCellsTest, CellsCanBeAskedForInAnyOrder)
{
    const CsvCells cells("002,a\n002,b\n");
    EXPECT_EQ(cells.Cell(2, 2), "b");
    EXPECT_EQ(cells.Cell(1, 2), "a");
    EXPECT_EQ(cells.Cell(9, 2), "");
    EXPECT_EQ(cells.Cell(1, 1), "002");
}

TEST(CsvCellsTest, RecordBeginsAtItsLineWhateverTheLineEnds)
{
    const CsvCells cells("002,a\r\n002,b\r002,c\n\r002,d");
    EXPECT_EQ(cells.Line(1), 1u);
    EXPECT_EQ(cells.Line(2), 2u);
    EXPECT_EQ(cells.Line(3), 3u);
    EXPECT_EQ(cells.Line(4), 4u) << "a blank record";
    EXPECT_EQ(cells.Line(5), 5u);
    EXPECT_EQ(cells.Line(0), 0u);
    EXPECT_EQ(cells.Line(6), 0u);
}

class CsvOtherFamilyTest : public testing::TestWithParam<Family>
{};

TEST_P(CsvOtherFamilyTest, BlankLinesAreNoRecords)
{
    const CsvCells cells("\n  \nid,a\n\n\nid,b\n", GetParam());
    EXPECT_EQ(cells.RecordCount(), 2u);
    EXPECT_EQ(cells.Cell(2, 2), "b");
    EXPECT_EQ(cells.Line(1), 3u);
    EXPECT_EQ(cells.Line(2), 6u);
    EXPECT_EQ(cells.FirstRecord(), 1u);
}

TEST_P(CsvOtherFamilyTest, TextOfBlankLinesHasNoRecord)
{
    const CsvCells cells("\n \n", GetParam());
    EXPECT_EQ(cells.RecordCount(), 0u);
    EXPECT_EQ(cells.FirstRecord(), std::nullopt);
    EXPECT_EQ(cells.TypeId(), "");
}

TEST_P(CsvOtherFamilyTest, LineOfCommasIsARecord)
{
    const CsvCells cells("id,a\n,\n", GetParam());
    EXPECT_EQ(cells.RecordCount(), 2u);
    EXPECT_EQ(cells.FilledRecordCount(), 2u);
    EXPECT_EQ(cells.LimitedRecordCount(), 1u) << "its first column is empty";
}

INSTANTIATE_TEST_SUITE_P(Families,
                         CsvOtherFamilyTest,
                         testing::Values(Family::Finance, Family::CrossBorder),
                         [](const auto& testCase) { return FamilyName(testCase.param); });

TEST(CsvFinanceTest, EveryRecordOfASpreadFormCountsAgainstTheLimit)
{
    EXPECT_EQ(CsvCells("202,a\n,b\n,\n", Family::Finance).LimitedRecordCount(), 3u);
}

TEST(CsvFinanceTest, QuoteIsAnOrdinaryCharacter)
{
    const CsvCells cells("101,\"a,b\"\n", Family::Finance);
    EXPECT_EQ(cells.ColumnCount(1), 3u);
    EXPECT_EQ(cells.Cell(1, 2), "\"a");
}

struct QuoteCase
{
    const char* szName;
    const char* szText;
    std::size_t nRecords;
    std::size_t nColumns;  ///< of the first record
    const char* szCell;    ///< its second column
};

class CsvQuoteTest : public testing::TestWithParam<QuoteCase>
{};

TEST_P(CsvQuoteTest, IsReadAsTheCrossBorderLibraryDoes)
{
    const CsvCells cells(GetParam().szText, Family::CrossBorder);
    EXPECT_EQ(cells.RecordCount(), GetParam().nRecords);
    EXPECT_EQ(cells.ColumnCount(1), GetParam().nColumns);
    EXPECT_EQ(cells.Cell(1, 2), GetParam().szCell);
}

constexpr QuoteCase QUOTES[] = {
    {"CommaInside", "301,\"a,b\",c", 1, 3, "a,b"},
    {"DoubledQuoteIsOne", "301,\"a\"\"b\"", 1, 2, "a\"b"},
    {"QuotesAlone", "301,\"\"\"\"", 1, 2, "\""},
    {"EmptyQuotes", "301,\"\",c", 1, 3, ""},
    {"LineEndInside", "301,\"a\r\nb\"\n301,c", 2, 2, "a\r\nb"},
    {"LineEndAtTheEdgeIsTrimmed", "301,\"\na\n\"\n", 1, 2, "a"},
    {"QuoteInTheMiddleIsOrdinary", "301,a\"b,c\"\n", 1, 3, "a\"b"},
    {"BlankBeforeTheQuoteMakesItOrdinary", "301, \"a,b\"\n", 1, 3, "\"a"},
    {"TextBehindTheQuotesBelongsToTheValue", "301,\"a\"b\"c,d", 1, 3, "ab\"c"},
    {"OpenQuoteTakesTheRest", "301,\"a\n301,b\n", 1, 2, "a\n301,b"},
    {"QuoteAsLastByte", "301,\"", 1, 2, ""},
};

INSTANTIATE_TEST_SUITE_P(Quotes, CsvQuoteTest, testing::ValuesIn(QUOTES), [](const auto& testCase) {
    return testCase.param.szName;
});

TEST(CsvCrossBorderTest, LineEndsInQuotesCountAsLinesOfTheFile)
{
    const CsvCells cells("301,\"a\r\nb\nc\"\r\n\n301,d\n", Family::CrossBorder);
    EXPECT_EQ(cells.Line(1), 1u);
    EXPECT_EQ(cells.Line(2), 5u);
    EXPECT_EQ(cells.Cell(2, 2), "d");
}

TEST(CsvCrossBorderTest, LineOfEmptyQuotesIsBlank)
{
    EXPECT_EQ(CsvCells("301,a\n\"\"\n\" \n \"\n301,b", Family::CrossBorder).RecordCount(), 2u);
}

struct FamilyCase
{
    const char* szName;
    const char* szText;
    Family eFamily;
};

class FamilyOfTextTest : public testing::TestWithParam<FamilyCase>
{};

TEST_P(FamilyOfTextTest, IsThatOfTheFirstRecordsTypeId)
{
    EXPECT_EQ(FamilyOfText(GetParam().szText), GetParam().eFamily);
}

constexpr FamilyCase FAMILIES[] = {
    {"Base", "002,a", Family::Base},
    {"Finance", "101,a", Family::Finance},
    {"CrossBorder", "301,a", Family::CrossBorder},
    {"QuotedCrossBorder", "\"302\",a", Family::CrossBorder},
    {"QuotedFinanceIsUnknown", "\"101\",a", Family::Base},
    {"BehindBlankLines", "\r\n \n\n 202 ,a", Family::Finance},
    {"QuotedBehindBlankLines", "\n\"301\"\n", Family::CrossBorder},
    {"OnlyTheFirstRecordCounts", "002,a\n301,a", Family::Base},
    {"LineOfCommasIsARecord", ",,\n101,a", Family::Base},
    {"Unknown", "XYZ", Family::Base},
    {"LongerId", "1011,a", Family::Base},
    {"Empty", "", Family::Base},
    {"OpenQuote", "\"301,a\n", Family::Base},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         FamilyOfTextTest,
                         testing::ValuesIn(FAMILIES),
                         [](const auto& testCase) { return testCase.param.szName; });

}  // namespace
}  // namespace host
