#include "rules/CheckShape.h"

#include <gtest/gtest.h>

#include <ostream>

namespace host {
namespace {

/// A check in column 5 of form 006, and what it looks at and reports. Spans are written
/// "column+cells", in another record "record:column+cells".
struct ShapeCase
{
    const char* szName;
    const char* szKeyword;
    const char* szValue;
    const char* szMin;
    const char* szMax;
    const char* szRead;
    const char* szReported;
};

void PrintTo(const ShapeCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

std::string Written(const std::vector<CellSpan>& vecSpan)
{
    std::string strText;
    for (const CellSpan& span : vecSpan) {
        strText += strText.empty() ? "" : " ";
        if (span.lRecord != 0)
            strText += std::to_string(span.lRecord) + ":";
        strText += std::to_string(span.lColumn) + "+" + std::to_string(span.lCells);
    }
    return strText;
}

CheckDefinition MakeCheck(const ShapeCase& testCase)
{
    CheckDefinition check;
    check.strKeyword = testCase.szKeyword;
    check.strValue = testCase.szValue;
    check.strMin = testCase.szMin;
    check.strMax = testCase.szMax;
    check.lColumn = 5;
    return check;
}

class CheckShapeTest : public testing::TestWithParam<ShapeCase>
{
protected:
    const CheckDefinition m_check = MakeCheck(GetParam());
    const CatalogueItem& m_item = *FindCatalogueItem(GetParam().szKeyword);
};

TEST_P(CheckShapeTest, LooksAtItsCells)
{
    EXPECT_EQ(Written(CellsRead(m_item, m_check, "006")), GetParam().szRead);
}

TEST_P(CheckShapeTest, ReportsItsColumns)
{
    EXPECT_EQ(Written(CellsReported(m_item, m_check, "006")), GetParam().szReported);
}

const ShapeCase SHAPES[] = {
    {"OneCell", "number", "", "", "", "5+1", "5+1"},
    {"OneCellWithNumbers", "range", "", "1", "9", "5+1", "5+1"},
    {"Date", "existdate", "", "", "", "5+4", "5+4"},
    {"Year", "containyear", "2020", "", "", "5+2", "5+2"},
    {"OfficeName", "taxofficenm", "", "", "", "5+2", "5+2"},
    {"GroupOfKind", "exist_2", "", "", "", "5+2", "5+2"},
    {"Errors", "nonerr", "7 8", "2", "", "", ""},
    {"EqualColumn", "containcolumn", "7", "", "1", "7+1 5+1", "5+1"},
    {"UnequalColumn", "exceptcolumn", "7", "", "", "7+1 5+1", "5+1"},
    {"AnyColumn", "anyexist", "7 9", "", "", "7+1 9+1", "5+1"},
    {"AnyColumnInRange", "anycontain", "7 9", "1", "2", "7+1 9+1", "5+1"},
    {"WesternDate", "existdateYYYYMMDD", "7 8 9", "", "", "7+1 8+1 9+1", "7+3"},
    {"EqualYear", "equalyear", "9", "", "", "9+2 5+2", "5+2"},
    {"YearUpToSeptember", "rangedate_3", "9", "", "", "9+2 5+4", "5+4"},
    {"DateUpToSeptember", "rangedate_2", "", "20130401", "9", "9+2 5+4", "9+2"},
    {"BaseDates", "rangebasedate", "", "9", "13", "9+4 13+4 5+4", "5+4"},
    {"DateOfAnotherRecord", "rangebasedate", "2_9", "2013/04/01", "", "2:9+4 5+4", "5+4"},
    {"BaseDatesOfAnyRecord", "rangebasedate_2", "include", "2_9", "13", "2:9+4 13+4 5+4", "5+4"},
    {"Age", "age", "9 13 0 4 1", "20", "", "9+4 13+2", "5+1"},
    {"AgeOverFourColumns", "age", "9 13 0 4 1 days", "20", "", "9+4 13+2", "5+4"},
    {"AgeOfOneWord", "age", "9", "20", "", "", "5+1"},
    {"ColumnThatIsNone", "containcolumn", "x", "", "", "5+1", "5+1"},
};
INSTANTIATE_TEST_SUITE_P(Items,
                         CheckShapeTest,
                         testing::ValuesIn(SHAPES),
                         [](const auto& testCase) { return testCase.param.szName; });

TEST(CheckShapePlaceTest, ErrColumnMovesTheErrorOfThoseThatReadIt)
{
    CheckDefinition check;
    check.lColumn = 5;
    check.strErrColumn = "9";
    EXPECT_EQ(Written(CellsReported(*FindCatalogueItem("containyear"), check, "006")), "9+4");
    EXPECT_EQ(Written(CellsReported(*FindCatalogueItem("equalyear"), check, "006")), "5+2");
}

TEST(CheckShapePlaceTest, GroupOfAnUnknownKindMayReportEachWidth)
{
    CheckDefinition check;
    check.lColumn = 5;
    EXPECT_EQ(Written(CellsReported(*FindCatalogueItem("exist_2"), check, "")), "5+4 5+2 5+1");
    EXPECT_EQ(Written(CellsReported(*FindCatalogueItem("exist_2"), check, "003")), "5+4");
}

TEST(ReferredDateTest, HasOneLineBetweenRecordAndColumn)
{
    EXPECT_EQ(Written({ReferredDate("12_34")}), "12:34+4");
    EXPECT_EQ(Written({ReferredDate("1_2_3")}), "0+4");
    EXPECT_EQ(Written({ReferredDate("12")}), "0+4");
}

}  // namespace
}  // namespace host
