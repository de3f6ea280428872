#include "csv/CsvTable.h"

#include <gmock/gmock.h>

#include <climits>
#include <string>
#include <vector>

namespace {

using Record = CsvTable::Record;
using Records = std::vector<Record>;

CsvTable Table(const Records& vecRecord)
{
    CsvTable table;
    table.Assign(vecRecord);
    return table;
}

const Records MIXED = {{"a", "", "b"}, {""}, {""}, {"", "c"}, {"", ""}, {"d"}};

TEST(CsvTableTest, NewTableIsEmpty)
{
    const CsvTable table;
    EXPECT_EQ(table.RecordCount(), 0);
    EXPECT_EQ(table.FilledCount(), 0);
    EXPECT_EQ(table.HeldBytes(), 0u);
    EXPECT_EQ(table.Records(), Records{});
    EXPECT_STREQ(table.Cell(0, 0), "");
    EXPECT_EQ(table.ColumnCount(0), 0);
}

TEST(CsvTableTest, GivesBackWhatItWasGiven)
{
    const CsvTable table = Table(MIXED);
    EXPECT_EQ(table.Records(), MIXED);
    EXPECT_EQ(table.RecordCount(), 6);
    EXPECT_EQ(table.FilledCount(), 2);
}

TEST(CsvTableTest, CellsAreFoundInAnyOrder)
{
    const CsvTable table = Table(MIXED);
    EXPECT_STREQ(table.Cell(5, 0), "d");
    EXPECT_STREQ(table.Cell(0, 2), "b");
    EXPECT_STREQ(table.Cell(3, 1), "c");
    EXPECT_STREQ(table.Cell(0, 0), "a");
    EXPECT_STREQ(table.Cell(2, 0), "");
    EXPECT_STREQ(table.Cell(3, 1), "c");
}

TEST(CsvTableTest, CellOutOfRangeIsEmpty)
{
    const CsvTable table = Table(MIXED);
    for (const long lRecord : {-1L, 6L, LONG_MIN, LONG_MAX})
        EXPECT_STREQ(table.Cell(lRecord, 0), "") << lRecord;
    for (const long lColumn : {-1L, 3L, LONG_MIN, LONG_MAX})
        EXPECT_STREQ(table.Cell(0, lColumn), "") << lColumn;
    EXPECT_STREQ(table.Cell(-1, -1), "");
}

TEST(CsvTableTest, ColumnsAreCountedWhetherFilledOrNot)
{
    const CsvTable table = Table(MIXED);
    std::vector<std::int64_t> vecCount;
    for (long lRecord = -1; lRecord <= 6; ++lRecord)
        vecCount.push_back(table.ColumnCount(lRecord));
    EXPECT_THAT(vecCount, testing::ElementsAre(0, 3, 1, 1, 2, 2, 1, 0));
}

TEST(CsvTableTest, TellsWhetherARecordBeginsFilledAndWhetherItHasText)
{
    const CsvTable table = Table(MIXED);
    EXPECT_TRUE(table.IsFilled(0));
    EXPECT_FALSE(table.IsFilled(1));
    EXPECT_FALSE(table.IsFilled(3));
    EXPECT_FALSE(table.IsFilled(6));
    EXPECT_FALSE(table.IsFilled(-1));
    EXPECT_TRUE(table.HasText(0));
    EXPECT_FALSE(table.HasText(1));
    EXPECT_TRUE(table.HasText(3));
    EXPECT_FALSE(table.HasText(4));
    EXPECT_FALSE(table.HasText(6));
}

TEST(CsvTableTest, TextsStayWhereTheyAreWhileTheTableGrows)
{
    CsvTable table = Table({{"first", "second"}});
    const char* szSecond = table.Cell(0, 1);
    for (int n = 0; n < 10'000; ++n)
        table.Append({"another record", std::to_string(n)});
    EXPECT_STREQ(szSecond, "second");
    EXPECT_EQ(table.Cell(0, 1), szSecond);
    EXPECT_STREQ(table.Cell(9'999, 1), "9998");
}

TEST(CsvTableTest, RecordLargerThanAPieceOfMemoryIsHeld)
{
    const std::string strLong(200'000, 'x');
    const CsvTable table = Table({{"a"}, {strLong, "b"}, {"c"}});
    EXPECT_EQ(table.Records(), (Records{{"a"}, {strLong, "b"}, {"c"}}));
}

TEST(CsvTableTest, ManyRecordsWithoutTextTakeTheMemoryOfOne)
{
    CsvTable table = Table({{"a"}, {"", ""}});
    const std::size_t nBytes = table.HeldBytes();
    for (int n = 0; n < 100'000; ++n)
        table.Append({"", ""});
    EXPECT_EQ(table.HeldBytes(), nBytes);
    EXPECT_EQ(table.RecordCount(), 100'002);
    EXPECT_EQ(table.ColumnCount(100'001), 2);
    EXPECT_EQ(table.ColumnCount(100'002), 0);
    table.Append({"", "", ""});
    EXPECT_EQ(table.ColumnCount(100'002), 3);
}

TEST(CsvTableTest, ColumnsThatAreNotHeldAreCountedAndEmpty)
{
    CsvTable table;
    Record record(CsvTable::MAX_HELD_COLUMNS, "x");
    table.Append(record, static_cast<std::int64_t>(record.size()) + 5);
    table.Append({"next"});
    EXPECT_EQ(table.ColumnCount(0), 262'149);
    EXPECT_STREQ(table.Cell(0, 262'143), "x");
    EXPECT_STREQ(table.Cell(0, 262'144), "");
    EXPECT_STREQ(table.Cell(1, 0), "next");
}

// ---- records that are only counted -------------------------------------------------------------

TEST(CsvTableTest, CountedRecordHasNeitherCellsNorColumns)
{
    CsvTable table = Table({{"a", "b"}});
    const std::size_t nBytes = table.HeldBytes();
    table.Count({"c", "d"});
    table.Count({"", "e"});
    EXPECT_EQ(table.RecordCount(), 3);
    EXPECT_EQ(table.FilledCount(), 2);
    EXPECT_EQ(table.HeldBytes(), nBytes);
    EXPECT_STREQ(table.Cell(1, 0), "");
    EXPECT_EQ(table.ColumnCount(1), -1);
    EXPECT_EQ(table.ColumnCount(2), -1);
    EXPECT_EQ(table.ColumnCount(3), 0);
    EXPECT_FALSE(table.IsFilled(1));
    EXPECT_FALSE(table.HasText(1));
    EXPECT_EQ(table.Records(), (Records{{"a", "b"}}));
}

TEST(CsvTableTest, ClearedTableForgetsCountedRecordsToo)
{
    CsvTable table = Table({{"a", "b"}});
    EXPECT_STREQ(table.Cell(0, 0), "a");
    table.Count({"c"});
    table.Clear();
    EXPECT_EQ(table.RecordCount(), 0);
    EXPECT_EQ(table.FilledCount(), 0);
    EXPECT_EQ(table.HeldBytes(), 0u);
    EXPECT_STREQ(table.Cell(0, 0), "");
}

// ---- change ------------------------------------------------------------------------------------

TEST(CsvTableTest, RecordIsReplaced)
{
    CsvTable table = Table({{"a"}, {"b", "c"}, {"d"}});
    EXPECT_STREQ(table.Cell(1, 1), "c");
    table.Replace(1, {"", "longer than before", "e"});
    EXPECT_EQ(table.Records(), (Records{{"a"}, {"", "longer than before", "e"}, {"d"}}));
    EXPECT_EQ(table.FilledCount(), 2);
    table.Replace(1, {"f"});
    EXPECT_EQ(table.Records(), (Records{{"a"}, {"f"}, {"d"}}));
    EXPECT_EQ(table.FilledCount(), 3);
}

TEST(CsvTableTest, RecordAmongEqualOnesWithoutTextIsReplaced)
{
    for (std::int64_t nRecord = 0; nRecord < 4; ++nRecord) {
        CsvTable table = Table({{""}, {""}, {""}, {""}});
        table.Replace(nRecord, {"x", "y"});
        Records vecExpected = {{""}, {""}, {""}, {""}};
        vecExpected[static_cast<std::size_t>(nRecord)] = {"x", "y"};
        EXPECT_EQ(table.Records(), vecExpected) << nRecord;
        EXPECT_EQ(table.FilledCount(), 1);
        table.Replace(nRecord, {""});
        EXPECT_EQ(table.Records(), (Records{{""}, {""}, {""}, {""}})) << nRecord;
    }
}

TEST(CsvTableTest, RecordsThatDoNotBeginFilledAreRemoved)
{
    CsvTable table = Table(MIXED);
    EXPECT_STREQ(table.Cell(3, 1), "c");
    table.Remove([](bool bFilled, std::int64_t) { return !bFilled; });
    EXPECT_EQ(table.Records(), (Records{{"a", "", "b"}, {"d"}}));
    EXPECT_EQ(table.FilledCount(), 2);
    EXPECT_STREQ(table.Cell(1, 0), "d");
    EXPECT_STREQ(table.Cell(3, 1), "");
}

TEST(CsvTableTest, RecordsAreRemovedByTheirNumberOfColumns)
{
    CsvTable table = Table(MIXED);
    table.Remove([](bool, std::int64_t nColumns) { return nColumns == 2; });
    EXPECT_EQ(table.Records(), (Records{{"a", "", "b"}, {""}, {""}, {"d"}}));
    EXPECT_EQ(table.FilledCount(), 2);
    table.Append({"e"});
    EXPECT_STREQ(table.Cell(4, 0), "e");
}

TEST(CsvTableTest, CountedRecordsAreRemovedIfTheyDoNotBeginFilled)
{
    CsvTable table = Table({{"a"}});
    table.Count({"b"});
    table.Count({""});
    table.Remove([](bool, std::int64_t nColumns) { return nColumns == 0; });
    EXPECT_EQ(table.RecordCount(), 3);
    table.Remove([](bool bFilled, std::int64_t) { return !bFilled; });
    EXPECT_EQ(table.RecordCount(), 2);
    EXPECT_EQ(table.FilledCount(), 2);
}

}  // namespace
