#include "CsvCells.h"

#include <gtest/gtest.h>

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

TEST(CsvCellsTest, QuotedTypeIdOfAnotherFamilyIsUnquoted)
{
    EXPECT_EQ(UnquotedTypeId(CsvCells("\"101\",x")), "101");
    EXPECT_EQ(UnquotedTypeId(CsvCells("101,x")), "101");
    EXPECT_EQ(UnquotedTypeId(CsvCells("\",x")), "\"");
}

}  // namespace
}  // namespace host
