// Which records open and close a page, close open tags, hand over to the next report or fall
// through: every combination of rows, against a model that lives in the tests.
#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

#include "KZCEkaITDataCrossBorder.h"
#include "calendar/Clock.h"
#include "definition/KZCEkaDefinitionCrossBorder.h"
#include "definition/KZCEkaMOKDefReportCrossBorder.h"
#include "fault/Fault.h"
#include "support/CheckItem.h"
#include "support/GenerationCsv.h"
#include "support/NodeTree.h"
#include "support/PagingModel.h"
#include "support/ResetState.h"

namespace {

constexpr long STARTS[] = {0, 1, 2, 3, -1};
constexpr long ENDS[] = {0, 1, 2, 5, 10, -1, 40};
constexpr long STEPS[] = {0, 1, 2, 3, 10};
constexpr long TRAILERS[] = {0, -1, -2, -5};
constexpr long MOST_RECORDS = 30;

/// Report id of the documents.
constexpr const char* ID = "GEZ750";

std::string TextOf(const PageRows& rows)
{
    return "start " + std::to_string(rows.nStart) + ", end " + std::to_string(rows.nEnd) +
           ", step " + std::to_string(rows.nStep) + ", trailer " + std::to_string(rows.nTrailer);
}

/// Which records have no body.
struct BodyCase
{
    const char* szName;
    bool (*pIsBlank)(long nNumber, long nCount);
};

constexpr BodyCase BODIES[] = {
    {"EveryRecordHasABody", [](long, long) { return false; }},
    {"LastRecordHasNoBody", [](long nNumber, long nCount) { return nNumber == nCount; }},
    {"EvenRecordsHaveNoBody", [](long nNumber, long) { return nNumber % 2 == 0; }},
    {"RecordsOneAndFourHaveNoBody",
     [](long nNumber, long) { return nNumber == 1 || nNumber == 4; }},
};

RecordBody BodyOf(const BodyCase& bodyCase, long nCount)
{
    return [&bodyCase, nCount](long nNumber) {
        return bodyCase.pIsBlank(nNumber, nCount) ? std::string() : NumberOf(nNumber);
    };
}

enum class Writer
{
    FINANCE,
    CROSSBORDER,
    MULTI_RECORD,
};

class PagingTest : public ResetState
{
protected:
    PagingTest()
    {
        Clock::Set(1709553600);  // 4 March 2024, noon in Greenwich
        m_it.Initialize(true);
    }

    static GenerationCsv Csv(long nCount)
    {
        return GenerationCsv(std::vector<KZCEkaCsvFile::Record>(static_cast<std::size_t>(nCount),
                                                                KZCEkaCsvFile::Record{"1", "2"}));
    }

    static std::unique_ptr<KZCEkaMOKDefReportCrossBorder> Report(const PageRows& rows,
                                                                 RecordBody body)
    {
        auto pReport = std::make_unique<KZCEkaMOKDefReportCrossBorder>();
        EXPECT_EQ(pReport->Initialize(ID, "1.0"), STATUS_OK);
        pReport->setControlRows(rows.nStart, rows.nEnd, rows.nStep);
        pReport->setControlRows("LAST_RECORD_ROW", std::to_string(rows.nTrailer));
        EXPECT_EQ(Hang(*pReport, std::make_unique<RecordNode>(ID, std::move(body))), 0);
        return pReport;
    }

    std::string Record(Writer eWriter,
                       KZCEkaMOKDefReportCrossBorder& report,
                       const KZCEkaCsvFile& csv,
                       long lRow)
    {
        switch (eWriter) {
            case Writer::FINANCE:
                return report.WriteNodeFinance(&csv, lRow, &m_it, "");
            case Writer::CROSSBORDER:
                return report.WriteNodeCrossBorder(&csv, lRow, &m_it, "");
            case Writer::MULTI_RECORD:
                return report.WriteNodeFromCSVMultiRecord(&csv, lRow, &m_it);
        }
        return "no such writer";
    }

    /// What the node writes for all records of a file.
    std::string Written(Writer eWriter, const PageRows& rows, long nCount, RecordBody body)
    {
        KZCEkaMOKDefReportFinance::clearReportIDList();
        const auto pReport = Report(rows, std::move(body));
        const GenerationCsv csv = Csv(nCount);
        std::string strText;
        for (long lRow = 0; lRow < nCount; ++lRow)
            strText += Record(eWriter, *pReport, csv, lRow);
        return strText;
    }

    /// The same by the model.
    static std::string Expected(Writer eWriter,
                                const PageRows& rows,
                                PagingModel& model,
                                long nCount)
    {
        ModelReport report = {ID, rows};
        std::string strText;
        for (long nNumber = 1; nNumber <= nCount; ++nNumber)
            strText += eWriter == Writer::MULTI_RECORD ? model.WriteMultiRecord(report, nNumber)
                                                       : model.WriteRecord(report, nNumber);
        return strText;
    }

    template <class Use>
    static void ForEachRows(Use use)
    {
        for (const long nStart : STARTS)
            for (const long nEnd : ENDS)
                for (const long nStep : STEPS)
                    for (const long nTrailer : TRAILERS)
                        use(PageRows{nStart, nEnd, nStep, nTrailer});
    }

    KZCEkaITDataCrossBorder m_it;
};

// ---- worked by hand ----------------------------------------------------------------------------

struct PagesCase
{
    const char* szName;
    Writer eWriter;
    PageRows rows;
    long nCount;
    std::vector<long> vecBlank;  ///< records without a body
    const char* szPages;
};

void PrintTo(const PagesCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class PagesByHandTest : public PagingTest, public testing::WithParamInterface<PagesCase>
{};

TEST_P(PagesByHandTest, PagesStandAsWorkedOut)
{
    const PagesCase& testCase = GetParam();
    const std::string strText =
        Written(testCase.eWriter, testCase.rows, testCase.nCount, [&](long nNumber) {
            for (const long nBlank : testCase.vecBlank)
                if (nBlank == nNumber)
                    return std::string();
            return NumberOf(nNumber);
        });
    EXPECT_EQ(PagesOf(strText), testCase.szPages);
}

const PagesCase REPORT_IN_TURN[] = {
    {"SevenByThree", Writer::FINANCE, {1, 7, 3}, 7, {}, "[ 1 2 3][ 4 5 6][ 7]"},
    {"WithoutRowsEachRecordIsAPage", Writer::FINANCE, {0, 0, 0}, 3, {}, "[ 1][ 2][ 3]"},
    {"WithoutStepOnePage", Writer::FINANCE, {1, 4, 0}, 4, {}, "[ 1 2 3 4]"},
    {"OpenEndClosesAtTheLastRecord", Writer::FINANCE, {1, -1, 0}, 4, {}, "[ 1 2 3 4]"},
    {"OpenEndBySteps", Writer::FINANCE, {1, -1, 5}, 12, {}, "[ 1 2 3 4 5][ 6 7 8 9 10][ 11 12]"},
    {"StepBeyondTheFile", Writer::FINANCE, {1, 5, 10}, 5, {}, "[ 1 2 3 4 5]"},
    {"FileShorterThanTheRange", Writer::FINANCE, {1, 10, 0}, 3, {}, "[ 1 2 3]"},
    {"RangeIsNotLookedAt", Writer::FINANCE, {2, 4, 2}, 5, {}, " 1[ 2 3][ 4] 5]"},
    {"RecordsBehindTheEndFollow", Writer::FINANCE, {1, 2, 0}, 4, {}, "[ 1 2] 3 4]"},
    {"StartAloneOpensOnceAndEachRecordCloses", Writer::FINANCE, {1, 0, 0}, 3, {}, "[ 1] 2] 3]"},
    {"EndAloneOpensAtEachRecord", Writer::FINANCE, {0, 3, 0}, 4, {}, "[ 1[ 2[ 3][ 4]"},
    {"StepWithoutStartClosesNothing", Writer::FINANCE, {0, 9, 2}, 3, {}, "[ 1[ 2[ 3]"},
    {"FirstPageOfOneRecordStaysOpen", Writer::FINANCE, {1, 3, 1}, 3, {}, "[ 1[ 2][ 3]"},
    {"OneRecord", Writer::FINANCE, {1, 1, 1}, 1, {}, "[ 1]"},
    {"NegativeStartIsTakenRaw", Writer::FINANCE, {-1, -1, 3}, 4, {}, " 1][ 2 3 4]"},
    {"NegativeStepOpensAndNeverCloses", Writer::FINANCE, {1, 4, -2}, 4, {}, "[ 1 2[ 3 4]"},
    {"LastRecordWithoutABodyLeavesThePageOpen", Writer::FINANCE, {1, 4, 0}, 4, {4}, "[ 1 2 3"},
    {"FirstRecordWithoutABodyOpensNoPage", Writer::FINANCE, {1, 3, 0}, 3, {1}, " 2 3]"},
    {"StepRecordWithoutABodyClosesNoPage", Writer::FINANCE, {1, 6, 3}, 6, {3}, "[ 1 2[ 4 5 6]"},
    {"TrailerPlaysNoPart", Writer::FINANCE, {1, 6, 3, -2}, 6, {}, "[ 1 2 3][ 4 5 6]"},
    {"CrossBorderSevenByThree", Writer::CROSSBORDER, {1, 7, 3}, 7, {}, "[ 1 2 3][ 4 5 6][ 7]"},
};

const PagesCase MULTI_RECORD[] = {
    {"SevenByThree", Writer::MULTI_RECORD, {1, 7, 3}, 7, {}, "[ 1 2 3][ 4 5 6][ 7]"},
    {"OpenEnd", Writer::MULTI_RECORD, {1, -1, 3}, 7, {}, "[ 1 2 3][ 4 5 6][ 7]"},
    {"WithoutRowsEachRecordIsAPage", Writer::MULTI_RECORD, {0, 0, 0}, 3, {}, "[ 1][ 2][ 3]"},
    {"RangeNarrowsTheRecords", Writer::MULTI_RECORD, {2, -2, 2}, 6, {}, "[ 2 3][ 4 5]"},
    {"RecordsBehindTheEndAreNotWritten", Writer::MULTI_RECORD, {1, 3, 3}, 5, {}, "[ 1 2 3]"},
    {"RangeBeyondTheFile", Writer::MULTI_RECORD, {1, 40, 5}, 7, {}, "[ 1 2 3 4 5][ 6 7]"},
    {"RangeBehindTheFileWritesNothing", Writer::MULTI_RECORD, {8, 9, 1}, 7, {}, ""},
    {"StartAloneOpensOnceAndEachRecordCloses",
     Writer::MULTI_RECORD,
     {1, 0, 3},
     3,
     {},
     "[ 1] 2] 3]"},
    {"EndAloneOpensAtEachRecord", Writer::MULTI_RECORD, {0, 3, 3}, 4, {}, "[ 1[ 2[ 3][ 4]"},
    {"NegativeEndAloneCountsFromTheLastRecord",
     Writer::MULTI_RECORD,
     {0, -2, 3},
     4,
     {},
     "[ 1[ 2[ 3][ 4]"},
    {"FirstPageOfOneRecordStaysOpen", Writer::MULTI_RECORD, {1, 3, 1}, 3, {}, "[ 1[ 2][ 3]"},
    {"NegativeStartStepsFromTheRawNumber", Writer::MULTI_RECORD, {-3, -1, 3}, 5, {}, "[ 3 4 5]"},
    {"TrailerOfTwoStaysOnTheLastPage",
     Writer::MULTI_RECORD,
     {1, -1, 3, -2},
     10,
     {},
     "[ 1 2 3][ 4 5 6][ 7 8 9 10]"},
    {"PageThatATrailerWouldBeginStaysOnTheOneBefore",
     Writer::MULTI_RECORD,
     {1, -1, 3, -2},
     8,
     {},
     "[ 1 2 3][ 4 5 6 7 8]"},
    {"TrailerOfOneStaysOnTheLastPage",
     Writer::MULTI_RECORD,
     {1, -1, 3, -1},
     7,
     {},
     "[ 1 2 3][ 4 5 6 7]"},
    {"TrailerInsideTheLastPage", Writer::MULTI_RECORD, {1, -1, 3, -1}, 6, {}, "[ 1 2 3][ 4 5 6]"},
    {"TrailerBeforeTheFileLeavesOnePage",
     Writer::MULTI_RECORD,
     {1, -1, 2, -20},
     5,
     {},
     "[ 1 2 3 4 5]"},
    {"LastRecordWithoutABodyClosesThePage",
     Writer::MULTI_RECORD,
     {1, -1, 3},
     5,
     {5},
     "[ 1 2 3][ 4]"},
    {"LastRecordWithoutABodyOpensAndClosesAPage",
     Writer::MULTI_RECORD,
     {1, -1, 3},
     4,
     {4},
     "[ 1 2 3][]"},
    {"StepRecordWithoutABodyOpensNoPage",
     Writer::MULTI_RECORD,
     {1, -1, 3},
     6,
     {4},
     "[ 1 2 3] 5 6]"},
    {"StepRecordWithoutABodyClosesNoPage",
     Writer::MULTI_RECORD,
     {1, -1, 3},
     6,
     {3},
     "[ 1 2[ 4 5 6]"},
    {"FileWithoutAnyBodyIsOneEmptyEnd", Writer::MULTI_RECORD, {1, -1, 3}, 2, {1, 2}, "]"},
};

INSTANTIATE_TEST_SUITE_P(InTurn, PagesByHandTest, testing::ValuesIn(REPORT_IN_TURN), CaseName());
INSTANTIATE_TEST_SUITE_P(MultiRecord, PagesByHandTest, testing::ValuesIn(MULTI_RECORD), CaseName());

// ---- every combination -------------------------------------------------------------------------

class EveryPagingTest : public PagingTest, public testing::WithParamInterface<BodyCase>
{
protected:
    void CompareAll(Writer eWriter)
    {
        ForEachRows([&](const PageRows& rows) {
            for (long nCount = 1; nCount <= MOST_RECORDS && !HasFailure(); ++nCount) {
                const RecordBody body = BodyOf(GetParam(), nCount);
                PagingModel model(nCount, body);
                const std::string strExpected = Expected(eWriter, rows, model, nCount);
                EXPECT_EQ(Written(eWriter, rows, nCount, body), strExpected)
                    << TextOf(rows) << ", records " << nCount;
                EXPECT_EQ(KZCEkaMOKDefReportFinance::GetReportIDList(), model.vecId)
                    << TextOf(rows) << ", records " << nCount;
            }
        });
    }
};

TEST_P(EveryPagingTest, FinanceNodeOpensAndClosesPagesAsTheModelDoes)
{
    CompareAll(Writer::FINANCE);
}

TEST_P(EveryPagingTest, CrossBorderNodeOpensAndClosesPagesAsTheModelDoes)
{
    CompareAll(Writer::CROSSBORDER);
}

TEST_P(EveryPagingTest, MultiRecordNodeOpensAndClosesPagesAsTheModelDoes)
{
    CompareAll(Writer::MULTI_RECORD);
}

INSTANTIATE_TEST_SUITE_P(Bodies,
                         EveryPagingTest,
                         testing::ValuesIn(BODIES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

// ---- tags left open ----------------------------------------------------------------------------

/// The cells of record n are "an" and "bn".
GenerationCsv CellCsv(long nCount)
{
    std::vector<KZCEkaCsvFile::Record> vecRecord;
    for (long n = 1; n <= nCount; ++n)
        vecRecord.push_back({"202", "a" + std::to_string(n), "b" + std::to_string(n)});
    return GenerationCsv(std::move(vecRecord));
}

TEST_F(PagingTest, TagsLeftOpenAreClosedInOrderWhereverAPageCloses)
{
    long nWellFormed = 0;
    ForEachRows([&](const PageRows& rows) {
        // Records 1 and 2 leave the outer group open, records 3 and 4 the inner one.
        KZCEkaMOKDefReportFinance report;
        EXPECT_EQ(report.Initialize(ID, "1.0"), STATUS_OK);
        report.setControlRows(rows.nStart, rows.nEnd, rows.nStep);
        report.setControlRows("LAST_RECORD_ROW", std::to_string(rows.nTrailer));
        HangAll(report,
                {R"(<item type="TAG" id="T" parent="GEZ750" startRow="1" endRow="2"/>)",
                 R"(<item type="Normal" id="A" parent="T" column="2"/>)",
                 R"(<item type="TAG" id="U" parent="T" startRow="3" endRow="40"/>)",
                 R"(<item type="Normal" id="B" parent="U" column="3"/>)",
                 R"(<item type="Normal" id="C" parent="U" startRow="5" endRow="40" column="2"/>)"});
        for (long nCount = 1; nCount <= MOST_RECORDS && !HasFailure(); ++nCount) {
            const GenerationCsv csv = CellCsv(nCount);
            report.setPageNum(0);
            KZCEkaMOKDefReportFinance::clearReportIDList();
            KZCEkaMOKDefineNode::clearCloseTags();
            std::string strText;
            for (long lRow = 0; lRow < nCount; ++lRow)
                strText += report.WriteNodeFromCSVMultiRecord(&csv, lRow, &m_it);

            std::vector<std::string> vecOpen;
            const auto body = [&vecOpen](long nNumber) {
                const std::string strNumber = std::to_string(nNumber);
                if (nNumber <= 4)
                    vecOpen.push_back(nNumber <= 2 ? "T" : "U");
                if (nNumber <= 2)
                    return "<T><A>a" + strNumber + "</A>";
                return "<U><B>b" + strNumber + "</B>" +
                       (nNumber <= 4 ? "" : "<C>a" + strNumber + "</C></U>");
            };
            PagingModel model(nCount, body, &vecOpen);
            EXPECT_EQ(strText, Expected(Writer::MULTI_RECORD, rows, model, nCount))
                << TextOf(rows) << ", records " << nCount;

            PagingModel plain(nCount, NumberOf);
            if (PagesFollow(PagesOf(Expected(Writer::MULTI_RECORD, rows, plain, nCount)))) {
                ++nWellFormed;
                EXPECT_TRUE(TagsMatch(strText)) << strText;
            }
        }
    });
    EXPECT_GT(nWellFormed, 1000);
}

// ---- numbers that nobody means -----------------------------------------------------------------

TEST_F(PagingTest, AbsurdRowsLoseNoRecordOfAReportInTurn)
{
    constexpr long ABSURD[] = {LONG_MIN, LONG_MIN + 1, -1, 0, 1, LONG_MAX - 1, LONG_MAX};
    for (const long nStart : ABSURD)
        for (const long nEnd : ABSURD)
            for (const long nStep : ABSURD)
                for (const long nTrailer : ABSURD) {
                    const PageRows rows = {nStart, nEnd, nStep, nTrailer};
                    std::string strPages = PagesOf(Written(Writer::FINANCE, rows, 3, NumberOf));
                    std::erase_if(strPages, [](char c) { return c == '[' || c == ']'; });
                    ASSERT_EQ(strPages, " 1 2 3") << TextOf(rows);
                }
}

TEST_F(PagingTest, AbsurdRowsOfAMultiRecordReportStayInTheirRange)
{
    // A start far before the file reaches into it, an end far behind covers it; the last record
    // always closes a page that it is on.
    constexpr long ABSURD_STEPS[] = {LONG_MIN, -1, 0, 1, LONG_MAX};
    constexpr long ABSURD_TRAILERS[] = {LONG_MIN, LONG_MIN + 1, 0, LONG_MAX};
    for (const long nStep : ABSURD_STEPS)
        for (const long nTrailer : ABSURD_TRAILERS) {
            const auto written = [&](long nStart, long nEnd) {
                std::string strPages = PagesOf(
                    Written(Writer::MULTI_RECORD, {nStart, nEnd, nStep, nTrailer}, 3, NumberOf));
                std::erase_if(strPages, [](char c) { return c == '[' || c == ']'; });
                return strPages;
            };
            EXPECT_EQ(written(LONG_MIN, LONG_MAX), " 1 2 3");
            EXPECT_EQ(written(LONG_MIN, -2), " 1 2");
            EXPECT_EQ(written(2, LONG_MAX), " 2 3");
            EXPECT_EQ(written(LONG_MAX, LONG_MAX), "");
            EXPECT_EQ(written(LONG_MAX, LONG_MIN), "");
            EXPECT_EQ(written(1, LONG_MIN), "");
            EXPECT_EQ(written(0, LONG_MIN), " 1 2 3");
        }
}

TEST_F(PagingTest, StepOfTheLargestNumberLeavesOnePage)
{
    EXPECT_EQ(PagesOf(Written(Writer::FINANCE, {1, 3, LONG_MAX}, 3, NumberOf)), "[ 1 2 3]");
    EXPECT_EQ(PagesOf(Written(Writer::MULTI_RECORD, {1, 3, LONG_MAX}, 3, NumberOf)), "[ 1 2 3]");
}

TEST_F(PagingTest, TrailerOfTheSmallestNumberLeavesOnePage)
{
    EXPECT_EQ(PagesOf(Written(Writer::MULTI_RECORD, {1, 5, 2, LONG_MIN}, 5, NumberOf)),
              "[ 1 2 3 4 5]");
}

// ---- whole definitions -------------------------------------------------------------------------

/// A definition whose reports a test puts together.
template <class Definition, class ReportNode>
class ReportList : public Definition
{
public:
    void Add(const ModelReport& report, const RecordBody& body)
    {
        const PageRows& rows = report.rows;
        auto pReport = std::make_unique<ReportNode>();
        EXPECT_EQ(pReport->Initialize(report.strId.c_str(), "1.0"), STATUS_OK);
        pReport->setControlRows(rows.nStart, rows.nEnd, rows.nStep);
        pReport->setControlRows("LAST_RECORD_ROW", std::to_string(rows.nTrailer));
        EXPECT_EQ(Hang(*pReport, std::make_unique<RecordNode>(report.strId, body)), 0);
        this->m_listReport.push_back({report.strId, "1.0", std::to_string(rows.nStart),
                                      std::to_string(rows.nEnd), std::to_string(rows.nStep), "",
                                      std::move(pReport)});
    }

    std::size_t CountReports() const { return this->m_listReport.size(); }
};

using FinanceList = ReportList<KZCEkaDefinitionFinance, KZCEkaMOKDefReportFinance>;
using CrossBorderList = ReportList<KZCEkaDefinitionCrossBorder, KZCEkaMOKDefReportCrossBorder>;

/// Rows of a report among others, with and without an end, a start inside and behind the file, with
/// steps that fit and that don't.
constexpr PageRows ROWS_IN_TURN[] = {
    {0, 0, 0},  {1, -1, 3}, {1, 1, 0}, {1, 2, 2},  {1, 3, 0},   {2, 0, 0},   {3, 5, 2},  {4, -1, 2},
    {4, 10, 3}, {5, 5, 1},  {0, 4, 0}, {-1, 7, 0}, {11, 20, 4}, {21, 40, 0}, {1, -2, 0}, {9, 2, 0},
};

class ReportsInTurnTest : public PagingTest
{
protected:
    template <class List>
    std::optional<std::string> Written(List& list, const KZCEkaCsvFile& csv)
    {
        try {
            if constexpr (std::is_same_v<List, CrossBorderList>)
                return list.MakeReportToCsvCrossBorder(&csv, &m_it);
            else
                return list.MakeReportToCsvFinance(&csv, &m_it);
        } catch (int nThrown) {
            EXPECT_EQ(nThrown, FAULT);
            return std::nullopt;
        }
    }

    /// Compares the document of a list of reports with the model's.
    template <class List>
    void Compare(const std::vector<ModelReport>& vecReport, long nCount)
    {
        List list;
        std::string strTold;
        for (const ModelReport& report : vecReport) {
            list.Add(report, NumberOf);
            strTold += report.strId + ": " + TextOf(report.rows) + "; ";
        }
        PagingModel model(nCount, NumberOf);
        const GenerationCsv csv = Csv(nCount);
        ASSERT_EQ(Written(list, csv), model.WriteReports(vecReport))
            << strTold << nCount << " records";
        EXPECT_EQ(list.GetReportIDList(), model.vecId) << strTold << nCount << " records";
    }
};

TEST_F(ReportsInTurnTest, OneReportIsWrittenAsTheModelDoes)
{
    ForEachRows([&](const PageRows& rows) {
        for (long nCount = 1; nCount <= MOST_RECORDS && !HasFailure(); ++nCount)
            if (rows.nTrailer == 0)
                Compare<FinanceList>({{"GEZ100", rows}}, nCount);
    });
}

TEST_F(ReportsInTurnTest, TwoReportsAreWrittenAsTheModelDoes)
{
    for (const PageRows& first : ROWS_IN_TURN)
        for (const PageRows& second : ROWS_IN_TURN)
            for (long nCount = 1; nCount <= MOST_RECORDS && !HasFailure(); ++nCount)
                Compare<FinanceList>({{"GEZ100", first}, {"GEZ200", second}}, nCount);
}

TEST_F(ReportsInTurnTest, ThreeReportsOfTwoIdsAreWrittenAsTheModelDoes)
{
    for (const PageRows& first : ROWS_IN_TURN)
        for (const PageRows& second : ROWS_IN_TURN)
            for (const PageRows& third : ROWS_IN_TURN)
                for (const long nCount : {1, 2, 3, 4, 5, 10, 11, 12, 30})
                    if (!HasFailure())
                        Compare<FinanceList>(
                            {{"GEZ100", first}, {"GEZ200", second}, {"GEZ100", third}}, nCount);
}

TEST_F(ReportsInTurnTest, CrossBorderReportsAreWrittenAsTheModelDoes)
{
    for (const PageRows& first : ROWS_IN_TURN)
        for (const PageRows& second : ROWS_IN_TURN)
            for (const long nCount : {1, 2, 3, 4, 5, 10, 11, 30})
                if (!HasFailure())
                    Compare<CrossBorderList>({{"GEZ850", first}, {"GEZ860", second}}, nCount);
}

TEST_F(ReportsInTurnTest, ReportThatSpreadsOverAllRecordsIsWrittenAsTheModelDoes)
{
    ForEachRows([&](const PageRows& rows) {
        FinanceList list;
        list.Add({ID, rows}, NumberOf);
        for (long nCount = 1; nCount <= MOST_RECORDS && !HasFailure(); ++nCount) {
            PagingModel model(nCount, NumberOf);
            GenerationCsv csv = Csv(nCount);
            EXPECT_EQ(list.MakeSingleTypeReportFromCsvMultiRecord(&csv, &m_it),
                      model.WriteMultiReport({ID, rows}))
                << TextOf(rows) << ", records " << nCount;
            EXPECT_EQ(list.GetReportIDList(), model.vecId);
        }
    });
}

TEST_F(ReportsInTurnTest, ReportsThatAreUsedUpAreGone)
{
    FinanceList list;
    for (const PageRows& rows : {PageRows{1, 2, 0}, PageRows{3, 4, 0}, PageRows{5, -1, 0}})
        list.Add({"GEZ100", rows}, NumberOf);
    EXPECT_TRUE(Written(list, Csv(2)).has_value());
    EXPECT_EQ(list.CountReports(), 3u);
    EXPECT_TRUE(Written(list, Csv(3)).has_value());
    EXPECT_EQ(list.CountReports(), 2u);
}

TEST_F(ReportsInTurnTest, NoReportIsLeftWhenTheyRunOut)
{
    FinanceList list;
    list.Add({"GEZ100", {1, 2, 0}}, NumberOf);
    EXPECT_EQ(Written(list, Csv(3)), std::nullopt);
    EXPECT_EQ(list.CountReports(), 0u);
}

}  // namespace
