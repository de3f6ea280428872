#include "report/ErrorCounts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/ReportCases.h"

namespace host {
namespace {

using testing::ElementsAre;
using testing::FieldsAre;
using testing::IsEmpty;

std::vector<std::vector<std::size_t>> Groups(const FileReport& report, std::size_t nErrors)
{
    std::vector<std::vector<std::size_t>> vecGroup;
    for (const ErrorGroup& group : GroupErrors(report, nErrors))
        vecGroup.push_back(group.vecError);
    return vecGroup;
}

TEST(ErrorCountsTest, CodesAreCountedInTheirOrder)
{
    EXPECT_THAT(CountByCode(RefusedReport()),
                ElementsAre(FieldsAre("HE70001E", 1u), FieldsAre("HE70003E", 2u)));
}

TEST(ErrorCountsTest, ColumnsAreCountedInTheirOrder)
{
    EXPECT_THAT(CountByColumn(RefusedReport()),
                ElementsAre(FieldsAre(5, SINGLE_COLUMN, "氏名", 2u),
                            FieldsAre(6, SINGLE_COLUMN, "氏名", 1u)));
}

TEST(ErrorCountsTest, RangeIsNoSingleColumn)
{
    FileReport report = RefusedReport();
    report.vecError[2].entry.lColumnEnd = 7;
    EXPECT_THAT(CountByColumn(report),
                ElementsAre(FieldsAre(5, SINGLE_COLUMN, "氏名", 1u), FieldsAre(5, 7, "氏名", 1u),
                            FieldsAre(6, SINGLE_COLUMN, "氏名", 1u)));
}

TEST(ErrorCountsTest, SameColumnOfAnotherFormIsAnotherColumn)
{
    FileReport report = RefusedReport();
    report.vecError[2].strName = "金額";
    EXPECT_EQ(CountByColumn(report).size(), 3u);
}

TEST(ErrorCountsTest, ErrorsWithoutACellBelongToNoColumn)
{
    FileReport report = RefusedReport();
    for (ReportedError& error : report.vecError)
        error.eScope = ErrorScope::File;
    EXPECT_THAT(CountByColumn(report), IsEmpty());
}

TEST(ErrorCountsTest, SameColumnCodeAndRuleMakeAGroup)
{
    EXPECT_THAT(Groups(RefusedReport(), 3), ElementsAre(ElementsAre(0u, 2u), ElementsAre(1u)));
}

TEST(ErrorCountsTest, AnotherRuleMakesAnotherGroup)
{
    FileReport report = RefusedReport();
    report.vecError[2].strRule = "10桁以内";
    EXPECT_THAT(Groups(report, 3), ElementsAre(ElementsAre(0u), ElementsAre(2u), ElementsAre(1u)));
}

TEST(ErrorCountsTest, GroupsHoldNoMoreThanTheErrorsThatCount)
{
    EXPECT_THAT(Groups(RefusedReport(), 1), ElementsAre(ElementsAre(0u)));
}

TEST(ErrorCountsTest, ErrorsOfTheFileStandBeforeThoseOfCells)
{
    FileReport report = RefusedReport();
    report.vecError[2].eScope = ErrorScope::File;
    EXPECT_THAT(Groups(report, 3), ElementsAre(ElementsAre(2u), ElementsAre(0u), ElementsAre(1u)));
}

TEST(ErrorCountsTest, WholeRecordsOfOneCodeMakeAGroup)
{
    FileReport report = RefusedReport();
    for (ReportedError& error : report.vecError)
        error.eScope = ErrorScope::Record;
    EXPECT_THAT(Groups(report, 3), ElementsAre(ElementsAre(1u), ElementsAre(0u, 2u)));
}

}  // namespace
}  // namespace host
