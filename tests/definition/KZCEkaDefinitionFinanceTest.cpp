#include "definition/KZCEkaDefinitionFinance.h"

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

#include "KZCEkaITDataFinance.h"
#include "calendar/Clock.h"
#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/FamilyDefinition.h"
#include "support/GenerationCsv.h"
#include "support/LogEntries.h"
#include "support/LogMessages.h"
#include "support/PagingModel.h"
#include "support/Raised.h"
#include "support/ResetState.h"

namespace {

using Records = std::vector<KZCEkaCsvFile::Record>;
using testing::ElementsAre;

constexpr const char* LOAD_MISSING = "引数エラー。定義情報作成に必要な情報が準備されていません。";
constexpr const char* CHECK_MISSING = "引数エラー。CSVチェックに必要な情報が準備されていません。";
constexpr const char* WRITE_MISSING = "引数エラー。MOK作成に必要な情報が準備されていません。";
constexpr const char* READ_ERROR = "定義体の読み込みでエラーが発生しました。";
constexpr const char* TREE_ERROR = "定義体の帳票タグ階層定義が不正です。";
constexpr const char* START_ERROR = "開始レコードの値が不正です。";
constexpr const char* RUN_OUT = "構文エラー。MOK作成に必要な情報が準備されていません。";

/// A report of procedure PGE2030 with more attributes and these items.
std::string Report(const std::string& strId,
                   const std::string& strRows,
                   const std::string& strItems,
                   const std::string& strProcId = "PGE2030")
{
    return "<report procId=\"" + strProcId + "\" procVR=\"231.0\" reportId=\"" + strId +
           "\" reportVR=\"5.0\" " + strRows + ">" + strItems + "</report>";
}

/// A node that writes the second column.
std::string Cell(const std::string& strReportId, const std::string& strRows = "")
{
    return R"(<item type="Normal" id="A" column="2" parent=")" + strReportId + "\" " + strRows +
           "/>";
}

/// A node that refuses everything but a number in a column.
std::string NumberCheck(const std::string& strReportId, int nColumn)
{
    return R"(<item type="Normal" id="A" column=")" + std::to_string(nColumn) + R"(" parent=")" +
           strReportId + R"("><valid id="number"/></item>)";
}

/// Record n is the type id, "rn" and "x".
GenerationCsv Csv(long nCount)
{
    Records vecRecord;
    for (long n = 1; n <= nCount; ++n)
        vecRecord.push_back({"103", "r" + std::to_string(n), "x"});
    return GenerationCsv(std::move(vecRecord));
}

class DefinitionFinanceTest : public ResetState
{
protected:
    DefinitionFinanceTest()
    {
        Clock::Set(1709553600);  // 4 March 2024, noon in Greenwich
        m_it.Initialize(true);
    }

    ~DefinitionFinanceTest() override { KZCEkaMOKDefReportFinance::clearReportIDList(); }

    int LoadText(const std::string& strText, bool bValidate, const char* szTypeId = "103")
    {
        const std::string strProcId = szTypeId == std::string("202") ? "PGE1640" : "PGE2030";
        m_bundle.Write("Finance/" + strProcId + (bValidate ? "_vld.xml" : "_tpl.xml"), strText);
        return m_definition.CreateDefinition(szTypeId, bValidate);
    }
    int LoadTemplate(const std::string& strReports)
    {
        return LoadText(DefinitionFile(strReports), false);
    }
    int LoadChecks(const std::string& strReports)
    {
        return LoadText(DefinitionFile(strReports), true);
    }
    /// The template of the procedure whose one report spreads over all records.
    int LoadMulti(
        const std::string& strRows,
        const std::string& strItems = R"(<item type="Normal" id="A" column="2" parent="GEZ750"/>)")
    {
        return LoadText(DefinitionFile(Report("GEZ750", strRows, strItems, "PGE1640")), false,
                        "202");
    }

    /// Report id of the loaded report that covers a record.
    std::string IdAt(int nRow) { return m_definition.GetReportIdW_Index(nRow); }

    std::string Written(const KZCEkaCsvFile& csv)
    {
        return m_definition.MakeReportToCsvFinance(&csv, &m_it);
    }
    /// The pages of that, cells without their tags.
    std::string Pages(long nCount) { return Plain(Written(Csv(nCount))); }
    std::string MultiPages(long nCount)
    {
        GenerationCsv csv = Csv(nCount);
        return Plain(m_definition.MakeSingleTypeReportFromCsvMultiRecord(&csv, &m_it));
    }
    static std::string Plain(const std::string& strText)
    {
        std::string strPages = PagesOf(strText);
        for (const char* szTag : {"<A>r", "</A>"})
            for (std::size_t nAt; (nAt = strPages.find(szTag)) != std::string::npos;)
                strPages.replace(nAt, std::string(szTag).size(), *(szTag + 1) == 'A' ? " " : "");
        return strPages;
    }

    std::string Check(const KZCEkaCsvFile& csv)
    {
        return Told([&] { return m_definition.ValidateCsv(&csv); });
    }
    /// Which records were checked, as "record.column" of their refusals; every cell is refused.
    std::string Checked(long nCount)
    {
        std::string strTold = Check(Csv(nCount));
        if (strTold == PASSES)
            return "";
        std::string strChecked;
        strTold = strTold.substr(std::string("refuses ").size()) + ",";
        for (std::size_t nAt = 0; nAt < strTold.size(); nAt = strTold.find(',', nAt) + 1)
            strChecked += (nAt > 0 ? " " : "") + std::to_string(std::stol(strTold.substr(nAt, 4))) +
                          "." + std::to_string(std::stol(strTold.substr(nAt + 5, 5)));
        return strChecked;
    }

    Bundle m_bundle{std::nullopt, std::nullopt};
    KZCEkaITDataFinance m_it;
    KZCEkaDefinitionFinance m_definition;
};

// ---- loading -----------------------------------------------------------------------------------

TEST_F(DefinitionFinanceTest, NewDefinitionIsEmpty)
{
    EXPECT_STREQ(m_definition.GetProcId(), "");
    EXPECT_STREQ(m_definition.GetProcVR(), "");
    EXPECT_EQ(IdAt(1), "");
    EXPECT_EQ(m_definition.getCsvRecordType(), KZCEkaDefinitionFinance::CSV_RECORD_SINGLE);
}

TEST_F(DefinitionFinanceTest, LoadsAllReportsInOrder)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", R"(startRow="1" endRow="2")", Cell("GEZ050")) +
                           Report("GEZ051", R"(startRow="3" endRow="-1")", Cell("GEZ051"))),
              STATUS_OK);
    EXPECT_STREQ(m_definition.GetProcId(), "PGE2030");
    EXPECT_STREQ(m_definition.GetProcVR(), "231.0");
    EXPECT_EQ(IdAt(2), "GEZ050");
    EXPECT_EQ(IdAt(3), "GEZ051");
}

TEST_F(DefinitionFinanceTest, ReportIdOfTheBaseFamilyStaysEmpty)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", "", Cell("GEZ050"))), STATUS_OK);
    EXPECT_STREQ(m_definition.GetReportId(), "");
}

TEST_F(DefinitionFinanceTest, ProcedureOfTheLastReportStays)
{
    EXPECT_EQ(LoadTemplate(R"(<report procId="P1" procVR="1"><item type="TAG" parent=""/></report>
                              <report procId="P2" procVR="2"/>)"),
              STATUS_OK);
    EXPECT_STREQ(m_definition.GetProcId(), "P2");
    EXPECT_STREQ(m_definition.GetProcVR(), "2");
}

TEST_F(DefinitionFinanceTest, ChecksComeFromOneFileAndTheDocumentFromTheOther)
{
    EXPECT_EQ(LoadChecks(Report("GEZ050", "", NumberCheck("GEZ050", 2))), STATUS_OK);
    EXPECT_EQ(Checked(1), "1.2");
    EXPECT_EQ(LoadTemplate(Report("GEZ051", "", Cell("GEZ051"))), STATUS_OK);
    EXPECT_EQ(Checked(1), "");
    EXPECT_EQ(IdAt(1), "GEZ051");
    EXPECT_EQ(m_definition.CreateDefinition("103", true), STATUS_OK);
    EXPECT_EQ(IdAt(1), "GEZ050");
}

TEST_F(DefinitionFinanceTest, ElementsOfOtherNamesAreSkipped)
{
    EXPECT_EQ(LoadTemplate("<note/>" +
                           Report("GEZ050", "",
                                  "<!-- c --><note/>" + Cell("GEZ050") + R"(<Item type="none"/>)") +
                           R"(<Report procId="x"/>)" + Report("GEZ051", R"(startRow="9")", "<n/>")),
              STATUS_OK);
    EXPECT_EQ(IdAt(1), "GEZ050");
    EXPECT_EQ(Pages(2), "[ 1][ 2]");
}

TEST_F(DefinitionFinanceTest, ReportWithoutAnyElementEndsTheReading)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", R"(startRow="1" endRow="2")", "") +
                           Report("GEZ051", R"(startRow="3" endRow="-1")", Cell("GEZ051"))),
              STATUS_OK);
    EXPECT_EQ(IdAt(2), "GEZ050");
    EXPECT_EQ(IdAt(3), "");
}

TEST_F(DefinitionFinanceTest, BlanksAndCommentsAreNoElementsOfAReport)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", R"(endRow="2")", "\n  <!-- none -->\n  text") +
                           Report("GEZ051", "", Cell("GEZ051"))),
              STATUS_OK);
    EXPECT_EQ(IdAt(2), "GEZ050");
    EXPECT_EQ(IdAt(3), "");
}

TEST_F(DefinitionFinanceTest, ReportWithElementsButWithoutItemsDoesNotEndTheReading)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", R"(endRow="2")", "<note/>") +
                           Report("GEZ051", "", Cell("GEZ051"))),
              STATUS_OK);
    EXPECT_EQ(IdAt(3), "GEZ051");
}

TEST_F(DefinitionFinanceTest, FileWithoutAReportLoadsAndHoldsNothing)
{
    EXPECT_EQ(LoadTemplate(""), STATUS_OK);
    EXPECT_EQ(IdAt(1), "");
    EXPECT_STREQ(m_definition.GetProcId(), "");
    EXPECT_EQ(Raised([&] { static_cast<void>(Written(Csv(1))); }), FAULT);
}

TEST_F(DefinitionFinanceTest, ItemWithoutAParentHangsUnderItsReportInAValidationFileAlone)
{
    const std::string strReport =
        Report("GEZ050", "", R"(<item type="Normal" column="2"><valid id="number"/></item>)");
    EXPECT_EQ(LoadChecks(strReport), STATUS_OK);
    EXPECT_EQ(Checked(1), "1.2");
    EXPECT_EQ(LoadTemplate(strReport), STATUS_NG);
}

TEST_F(DefinitionFinanceTest, ParentIsFoundWhateverTheGenerations)
{
    EXPECT_EQ(LoadTemplate(Report(
                  "GEZ050", "",
                  R"(<item type="TAG" id="T" parent="GEZ050" generation="junior"/>)"
                  R"(<item type="Normal" id="A" column="2" parent="T" generation="senior"/>)")),
              STATUS_OK);
    EXPECT_EQ(Pages(1), "[<T> 1</T>]");
}

TEST_F(DefinitionFinanceTest, LoadingAgainReplacesTheReports)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", R"(endRow="3")", Cell("GEZ050"))), STATUS_OK);
    EXPECT_EQ(LoadTemplate(Report("GEZ051", "", Cell("GEZ051"))), STATUS_OK);
    EXPECT_EQ(IdAt(1), "GEZ051");
    EXPECT_EQ(Pages(5), "[ 1][ 2][ 3][ 4][ 5]");
}

TEST_F(DefinitionFinanceTest, ClearEmptiesIt)
{
    EXPECT_EQ(LoadMulti(""), STATUS_OK);
    m_definition.Clear();
    EXPECT_STREQ(m_definition.GetProcId(), "");
    EXPECT_STREQ(m_definition.GetProcVR(), "");
    EXPECT_EQ(IdAt(1), "");
    EXPECT_EQ(m_definition.getCsvRecordType(), KZCEkaDefinitionFinance::CSV_RECORD_SINGLE);
}

TEST_F(DefinitionFinanceTest, OneProcedureSpreadsOverAllRecords)
{
    EXPECT_EQ(LoadMulti(""), STATUS_OK);
    EXPECT_EQ(m_definition.getCsvRecordType(), KZCEkaDefinitionFinance::CSV_RECORD_MULTI);
    EXPECT_EQ(LoadTemplate(Report("GEZ050", "", Cell("GEZ050"))), STATUS_OK);
    EXPECT_EQ(m_definition.getCsvRecordType(), KZCEkaDefinitionFinance::CSV_RECORD_SINGLE);
    EXPECT_EQ(LoadTemplate(Report("GEZ050", "", Cell("GEZ050"), "pge1640")), STATUS_OK);
    EXPECT_EQ(m_definition.getCsvRecordType(), KZCEkaDefinitionFinance::CSV_RECORD_SINGLE);
}

TEST_F(DefinitionFinanceTest, ReportOfARowIsTheFirstThatCoversIt)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ1", R"(startRow="2" endRow="3")", "<n/>") +
                           Report("GEZ2", R"(startRow="3" endRow="4")", "<n/>") +
                           Report("GEZ3", R"(startRow="6" endRow="0")", "<n/>") +
                           Report("GEZ4", R"(startRow="8" endRow="-1")", "<n/>")),
              STATUS_OK);
    std::string strIds;
    for (int nRow = 0; nRow <= 9; ++nRow)
        strIds += IdAt(nRow) + ",";
    EXPECT_EQ(strIds, ",,GEZ1,GEZ1,GEZ2,,GEZ3,GEZ3,GEZ3,GEZ3,");
}

TEST_F(DefinitionFinanceTest, ReportThatStartsAtZeroCoversRowsUpToItsEnd)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ1", R"(startRow="0" endRow="2")", "<n/>") +
                           Report("GEZ2", R"(startRow="4" endRow="-1")", "<n/>")),
              STATUS_OK);
    EXPECT_EQ(IdAt(1) + IdAt(2) + "," + IdAt(3) + "," + IdAt(4), "GEZ1GEZ1,,GEZ2");
}

TEST_F(DefinitionFinanceTest, NegativeRowCountsFromTheLastRecord)
{
    const GenerationCsv csv = Csv(10);
    EXPECT_EQ(KZCEkaDefinitionFinance::convRecordRow(&csv, 3), 3);
    EXPECT_EQ(KZCEkaDefinitionFinance::convRecordRow(&csv, 0), 0);
    EXPECT_EQ(KZCEkaDefinitionFinance::convRecordRow(&csv, -1), 10);
    EXPECT_EQ(KZCEkaDefinitionFinance::convRecordRow(&csv, -2), 9);
    EXPECT_EQ(KZCEkaDefinitionFinance::convRecordRow(&csv, -20), -9);
}

// ---- faults of a file --------------------------------------------------------------------------

TEST_F(DefinitionFinanceTest, NullTypeIdIsLoggedAndKeepsTheEarlierLoading)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", "", Cell("GEZ050"))), STATUS_OK);
    const DebugLog log;
    EXPECT_EQ(m_definition.CreateDefinition(nullptr, true), STATUS_NG);
    EXPECT_THAT(LogEntries(log),
                ElementsAre(LogEntry{"KZCEkaDefinitionFinance::CreateDefinition", LOAD_MISSING}));
    EXPECT_EQ(IdAt(1), "GEZ050");
}

TEST_F(DefinitionFinanceTest, UnknownTypeIdIsLoggedAndLeavesNothing)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", "", Cell("GEZ050"))), STATUS_OK);
    for (const char* szTypeId : {"", "003", "1030", "301"}) {
        const DebugLog log;
        EXPECT_EQ(m_definition.CreateDefinition(szTypeId, true), STATUS_NG);
        EXPECT_THAT(LogMessages(log),
                    ElementsAre(std::string("定義体に対象の申請番号が存在しません。：") + szTypeId,
                                UNEXPECTED_ERROR));
        EXPECT_EQ(IdAt(1), "");
    }
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(DefinitionFinanceTest, LongTypeIdIsCutInTheLog)
{
    const DebugLog log;
    EXPECT_EQ(m_definition.CreateDefinition(std::string(60, '9').c_str(), true), STATUS_NG);
    // 20 characters of 3 bytes leave 39 of the 99 bytes.
    EXPECT_THAT(LogMessages(log),
                ElementsAre("定義体に対象の申請番号が存在しません。：" + std::string(39, '9'),
                            UNEXPECTED_ERROR));
}

TEST_F(DefinitionFinanceTest, EmptyProcedureIsLikeAnUnknownTypeId)
{
    for (const char* szReport : {R"(<report reportId="GEZ050"/>)", R"(<report procId=""/>)"}) {
        const DebugLog log;
        EXPECT_EQ(LoadTemplate(szReport), STATUS_NG);
        EXPECT_THAT(LogMessages(log),
                    ElementsAre("定義体に対象の申請番号が存在しません。：103", UNEXPECTED_ERROR));
    }
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(DefinitionFinanceTest, MissingFileFails)
{
    m_bundle.Write("Finance/PGE2030_vld.xml", DefinitionFile(Report("GEZ050", "", Cell("GEZ050"))));
    const DebugLog log;
    EXPECT_EQ(m_definition.CreateDefinition("103", false), STATUS_NG);
    EXPECT_THAT(LastLogMessages(log, 2), ElementsAre(READ_ERROR, UNEXPECTED_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(DefinitionFinanceTest, MissingFolderFails)
{
    const DebugLog log;
    EXPECT_EQ(m_definition.CreateDefinition("103", true), STATUS_NG);
    EXPECT_THAT(LastLogMessages(log, 2), ElementsAre(READ_ERROR, UNEXPECTED_ERROR));
}

TEST_F(DefinitionFinanceTest, FileOfAnotherFolderIsNotTaken)
{
    m_bundle.Write("CrossBorder/PGE2030_tpl.xml",
                   DefinitionFile(Report("GEZ050", "", Cell("GEZ050"))));
    m_bundle.Write("PGE2030_tpl.xml", DefinitionFile(Report("GEZ050", "", Cell("GEZ050"))));
    EXPECT_EQ(m_definition.CreateDefinition("103", false), STATUS_NG);
}

TEST_F(DefinitionFinanceTest, MalformedFileFails)
{
    const DebugLog log;
    EXPECT_EQ(LoadText("<definitions><report></definitions>", false), STATUS_NG);
    EXPECT_THAT(LastLogMessages(log, 2), ElementsAre(READ_ERROR, UNEXPECTED_ERROR));
}

/// An item that can't be made or placed.
struct BadItemCase
{
    const char* szName;
    const char* szItem;
    bool bValidate;
};

void PrintTo(const BadItemCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class BadItemTest : public DefinitionFinanceTest, public testing::WithParamInterface<BadItemCase>
{};

TEST_P(BadItemTest, StopsItsReportAndTheNextReportIsReadAllTheSame)
{
    const std::string strFirst = Report("GEZ050", R"(startRow="1" endRow="2")",
                                        Cell("GEZ050") + GetParam().szItem + Cell("GEZ050"));
    const std::string strSecond = Report("GEZ051", R"(startRow="3" endRow="-1")", Cell("GEZ051"));
    const DebugLog log;
    EXPECT_EQ(LoadText(DefinitionFile(strFirst + strSecond), GetParam().bValidate), STATUS_NG);
    EXPECT_THAT(LastLogMessages(log, 1), ElementsAre(TREE_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
    EXPECT_EQ(IdAt(1), "GEZ050");
    EXPECT_EQ(IdAt(3), "GEZ051");
    // The nodes up to the failure stay, those behind it are missing.
    EXPECT_EQ(Pages(3), "[ 1 2][ 3]");
}

const BadItemCase BAD_ITEMS[] = {
    {"UnknownKind", R"(<item type="Table" id="B" parent="GEZ050"/>)", false},
    {"UnknownParent", R"(<item type="Normal" id="B" parent="NONE"/>)", false},
    {"EmptyParentInATemplate", R"(<item type="Normal" id="B"/>)", false},
    {"UnknownParentInAValidationFile", R"(<item type="Normal" id="B" parent="NONE"/>)", true},
    {"UnknownCheck",
     R"(<item type="Normal" id="B" parent="GEZ050"><valid id="exist"/><valid id="none"/></item>)",
     true},
    {"UnknownCondition",
     R"(<item type="Normal" id="B" parent="GEZ050"><valid id="exist"><outer id="none" column="1"/></valid></item>)",
     true},
};

INSTANTIATE_TEST_SUITE_P(Items, BadItemTest, testing::ValuesIn(BAD_ITEMS), CaseName());

TEST_F(DefinitionFinanceTest, TooDeepATreeFailsWithNothingRecorded)
{
    std::string strItems;
    std::string strParent = "GEZ050";
    for (int n = 0; n < 600; ++n) {
        const std::string strName = "N" + std::to_string(n);
        strItems += R"(<item type="TAG" id=")" + strName + R"(" parent=")" + strParent + "\"/>";
        strParent = strName;
    }
    const DebugLog log;
    EXPECT_EQ(LoadTemplate(Report("GEZ050", "", strItems)), STATUS_NG);
    EXPECT_THAT(LogMessages(log), ElementsAre(TREE_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

// ---- pages without a step ----------------------------------------------------------------------

/// Rows of the one report that spreads over all records, and whether its template loads.
struct StepCase
{
    const char* szName;
    const char* szRows;
    bool bLoads;
};

void PrintTo(const StepCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class StepTest : public DefinitionFinanceTest, public testing::WithParamInterface<StepCase>
{};

TEST_P(StepTest, TemplateThatCannotBeDividedIntoPagesIsRefused)
{
    const DebugLog log;
    EXPECT_EQ(LoadMulti(GetParam().szRows), GetParam().bLoads ? STATUS_OK : STATUS_NG);
    std::vector<LogEntry> vecExpected;
    if (!GetParam().bLoads)
        vecExpected.push_back({"KZCEkaDefinitionFinance::CreateDefinition", TREE_ERROR});
    EXPECT_EQ(LogEntries(log), vecExpected);
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_P(StepTest, ValidationFileNeedsNoStep)
{
    EXPECT_EQ(LoadText(DefinitionFile(Report("GEZ750", GetParam().szRows, NumberCheck("GEZ750", 2),
                                             "PGE1640")),
                       true, "202"),
              STATUS_OK);
}

TEST_P(StepTest, ReportThatTakesItsTurnNeedsNoStep)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", GetParam().szRows, Cell("GEZ050"))), STATUS_OK);
}

const StepCase STEPS[] = {
    {"BothRowsAndNoStep", R"(startRow="1" endRow="-1")", false},
    {"BothRowsAndStepZero", R"(startRow="1" endRow="7" stepRow="0")", false},
    {"StepThatIsNoNumber", R"(startRow="1" endRow="7" stepRow="x3")", false},
    {"NegativeStart", R"(startRow="-3" endRow="-1" stepRow="")", false},
    {"BothRowsAndAStep", R"(startRow="1" endRow="-1" stepRow="3")", true},
    {"NegativeStep", R"(startRow="1" endRow="7" stepRow="-2")", true},
    {"StartAlone", R"(startRow="1" endRow="0" stepRow="0")", true},
    {"EndAlone", R"(endRow="-1")", true},
    {"NoRows", "", true},
};

INSTANTIATE_TEST_SUITE_P(Rows, StepTest, testing::ValuesIn(STEPS), CaseName());

// ---- checking ----------------------------------------------------------------------------------

TEST_F(DefinitionFinanceTest, CheckWithoutACsvIsLoggedAndRaises)
{
    EXPECT_EQ(LoadChecks(Report("GEZ050", "", NumberCheck("GEZ050", 2))), STATUS_OK);
    const DebugLog log;
    EXPECT_EQ(Raised([&] { static_cast<void>(m_definition.ValidateCsv(nullptr)); }), FAULT);
    EXPECT_THAT(LogMessages(log), ElementsAre(CHECK_MISSING));
}

TEST_F(DefinitionFinanceTest, WithoutAReportEverythingPasses)
{
    EXPECT_EQ(Checked(3), "");
}

/// Rows of two reports, the first checking column 2 and the second column 3, and what is checked.
struct CheckCase
{
    const char* szName;
    const char* szFirst;
    const char* szSecond;  ///< null for one report
    long nCount;
    const char* szChecked;
};

void PrintTo(const CheckCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CheckRangeTest : public DefinitionFinanceTest, public testing::WithParamInterface<CheckCase>
{};

TEST_P(CheckRangeTest, EachReportChecksItsRecords)
{
    const CheckCase& testCase = GetParam();
    std::string strReports = Report("GEZ050", testCase.szFirst, NumberCheck("GEZ050", 2));
    if (testCase.szSecond != nullptr)
        strReports += Report("GEZ051", testCase.szSecond, NumberCheck("GEZ051", 3));
    EXPECT_EQ(LoadChecks(strReports), STATUS_OK);
    EXPECT_EQ(Checked(testCase.nCount), testCase.szChecked);
}

const CheckCase CHECKS[] = {
    {"NoRows", "", nullptr, 3, "1.2 2.2 3.2"},
    {"RowsOfZero", R"(startRow="0" endRow="0")", nullptr, 2, "1.2 2.2"},
    {"OpenEnd", R"(startRow="2" endRow="-1")", nullptr, 3, "2.2 3.2"},
    {"EndZeroIsOpenToo", R"(startRow="2" endRow="0")", nullptr, 3, "2.2 3.2"},
    {"Range", R"(startRow="2" endRow="3")", nullptr, 4, "2.2 3.2"},
    {"StartZero", R"(startRow="0" endRow="2")", nullptr, 3, "1.2 2.2"},
    {"EndOfOne", R"(startRow="1" endRow="1")", nullptr, 3, "1.2"},
    {"RangeBeyondTheLastRecord", R"(startRow="2" endRow="40")", nullptr, 3, "2.2 3.2"},
    {"RangeBehindTheLastRecord", R"(startRow="4" endRow="40")", nullptr, 3, ""},
    {"EndBeforeStart", R"(startRow="3" endRow="2")", nullptr, 3, ""},
    {"EndOfMinusTwoIsNoEnd", R"(startRow="1" endRow="-2")", nullptr, 3, ""},
    {"LargestRows", R"(startRow="9223372036854775807" endRow="9223372036854775807")", nullptr, 3,
     ""},
    {"EndBeyondEveryNumber", R"(startRow="3" endRow="99999999999999999999")", nullptr, 3, "3.2"},
    {"SmallestEnd", R"(startRow="1" endRow="-99999999999999999999")", nullptr, 3, ""},
    {"TwoReports", R"(startRow="1" endRow="2")", R"(startRow="3" endRow="-1")", 4,
     "1.2 2.2 3.3 4.3"},
    {"ReportsMayOverlap", R"(startRow="1" endRow="2")", R"(startRow="2" endRow="3")", 3,
     "1.2 2.2 2.3 3.3"},
    {"RecordsBetweenReportsAreNotChecked", R"(startRow="1" endRow="1")",
     R"(startRow="3" endRow="3")", 4, "1.2 3.3"},
    {"TrailerTakesTheLastRecord", R"(startRow="1" endRow="-1")", R"(lastRecord="1")", 3,
     "1.2 2.2 3.3"},
    {"TrailerTakesItFromAnEndOfZeroToo", R"(startRow="2" endRow="0")", R"(lastRecord="1")", 3,
     "2.2 3.3"},
    {"TrailerTakesNothingFromARange", R"(startRow="1" endRow="3")", R"(lastRecord="1")", 3,
     "1.2 2.2 3.2 3.3"},
    {"AnyNumberMakesATrailer", "", R"(lastRecord="-7")", 2, "1.2 2.3"},
    {"NumberZeroMakesNoTrailer", "", R"(lastRecord="0")", 2, "1.2 2.2 1.3 2.3"},
    {"RowsOfATrailerAreNotLookedAt", "", R"(startRow="-5" endRow="1" lastRecord="1")", 3,
     "1.2 2.2 3.3"},
    {"OnlyTheLastReportShortensTheOthers", R"(lastRecord="1")", "", 3, "3.2 1.3 2.3 3.3"},
    {"TrailerAlone", R"(lastRecord="1")", nullptr, 3, "3.2"},
    {"OneRecordIsTheTrailers", "", R"(lastRecord="1")", 1, "1.3"},
    {"NoRecord", "", R"(lastRecord="1")", 0, ""},
};

INSTANTIATE_TEST_SUITE_P(Rows, CheckRangeTest, testing::ValuesIn(CHECKS), CaseName());

TEST_F(DefinitionFinanceTest, NegativeStartRowIsLoggedAndRaises)
{
    for (const char* szRows : {R"(startRow="-1")", R"(startRow="-1" endRow="-1")",
                               R"(startRow="-99999999999999999999")"}) {
        EXPECT_EQ(LoadChecks(Report("GEZ050", szRows, NumberCheck("GEZ050", 2))), STATUS_OK);
        const DebugLog log;
        EXPECT_EQ(Check(Csv(2)), RAISES) << szRows;
        EXPECT_THAT(LogMessages(log), ElementsAre(START_ERROR, UNEXPECTED_ERROR)) << szRows;
    }
}

TEST_F(DefinitionFinanceTest, NegativeStartRowOfALaterReportRaisesBehindTheEarlierChecks)
{
    EXPECT_EQ(LoadChecks(Report("GEZ050", R"(endRow="1")", NumberCheck("GEZ050", 2)) +
                         Report("GEZ051", R"(startRow="-1")", NumberCheck("GEZ051", 3))),
              STATUS_OK);
    EXPECT_EQ(Check(Csv(2)), "raises 0001-00002-HE70004E");
}

TEST_F(DefinitionFinanceTest, BlankRecordsAreNotChecked)
{
    EXPECT_EQ(
        LoadChecks(Report(
            "GEZ050", "",
            R"(<item type="Normal" id="A" parent="GEZ050" column="2"><valid id="exist"/></item>)")),
        STATUS_OK);
    EXPECT_EQ(Check(GenerationCsv(Records{{"", ""}, {"103", ""}, {""}})),
              "refuses 0002-00002-HE70001E");
}

TEST_F(DefinitionFinanceTest, CleanRecordBehindARefusedOneDoesNotMendTheResult)
{
    EXPECT_EQ(LoadChecks(Report("GEZ050", "", NumberCheck("GEZ050", 2))), STATUS_OK);
    EXPECT_EQ(Check(GenerationCsv(Records{{"103", "x"}, {"103", "1"}})),
              "refuses 0001-00002-HE70004E");
    EXPECT_EQ(Check(GenerationCsv(Records{{"103", "2"}, {"103", "1"}})), PASSES);
}

TEST_F(DefinitionFinanceTest, ItemOfAGenerationIsNotChecked)
{
    EXPECT_EQ(
        LoadChecks(Report(
            "GEZ050", "",
            R"(<item type="Normal" id="A" parent="GEZ050" column="2" generation="junior"><valid id="number"/></item>)"
            R"(<item type="Normal" id="B" parent="GEZ050" column="3"><valid id="number"/></item>)")),
        STATUS_OK);
    EXPECT_EQ(Checked(1), "1.3");
}

TEST_F(DefinitionFinanceTest, CheckUsesNothingUp)
{
    EXPECT_EQ(LoadChecks(Report("GEZ050", R"(startRow="1" endRow="1")", NumberCheck("GEZ050", 2)) +
                         Report("GEZ051", R"(startRow="2")", NumberCheck("GEZ051", 3))),
              STATUS_OK);
    EXPECT_EQ(Checked(2), "1.2 2.3");
    EXPECT_EQ(Checked(2), "1.2 2.3");
}

TEST_F(DefinitionFinanceTest, FaultOfACheckRaises)
{
    EXPECT_EQ(
        LoadChecks(Report(
            "GEZ050", "",
            R"(<item type="Normal" id="A" parent="GEZ050" column="2"><valid id="contain"/></item>)")),
        STATUS_OK);
    const DebugLog log;
    EXPECT_EQ(Check(Csv(1)), RAISES);
    EXPECT_EQ(LogEntries(log).back(),
              (LogEntry{"KZCEkaDefinitionFinance::ValidateCsv", UNEXPECTED_ERROR}));
}

// ---- reports in turn ---------------------------------------------------------------------------

TEST_F(DefinitionFinanceTest, WritingNeedsACsvAnItSectionAndAReport)
{
    const GenerationCsv csv = Csv(1);
    const DebugLog log;
    const auto raised = [&](const KZCEkaCsvFile* pCsv, KZCEkaITDataFinance* pIT) {
        return Raised([&] { static_cast<void>(m_definition.MakeReportToCsvFinance(pCsv, pIT)); });
    };
    EXPECT_EQ(raised(&csv, &m_it), FAULT);
    EXPECT_EQ(LoadTemplate(Report("GEZ050", "", Cell("GEZ050"))), STATUS_OK);
    EXPECT_EQ(raised(nullptr, &m_it), FAULT);
    EXPECT_EQ(raised(&csv, nullptr), FAULT);
    EXPECT_THAT(
        LogEntries(log),
        testing::AllOf(testing::SizeIs(3),
                       testing::Each(LogEntry{"KZCEkaDefinitionFinance::MakeReportToCsvFinance",
                                              WRITE_MISSING})));
}

TEST_F(DefinitionFinanceTest, WholeDocumentOfTwoReports)
{
    EXPECT_EQ(
        LoadTemplate(Report("GEZ050", R"(startRow="1" endRow="3" stepRow="2")", Cell("GEZ050")) +
                     Report("GEZ051", R"(startRow="4" endRow="-1")", Cell("GEZ051"))),
        STATUS_OK);
    EXPECT_EQ(m_it.SetITDataFinance(KZCEkaITDataFinance_t::IT_NOZEISHA_NM, "青葉商会"), STATUS_OK);
    EXPECT_EQ(Written(Csv(5)), R"(<GEZ050 VR="5.0" id="GEZ050-1" page="1" sakuseiDay="2024-03-04")"
                               R"( sakuseiNM="青葉商会" softNM=""><A>r1</A><A>r2</A></GEZ050>)"
                               R"(<GEZ050 VR="5.0" id="GEZ050-2" page="2" sakuseiDay="2024-03-04")"
                               R"( sakuseiNM="青葉商会" softNM=""><A>r3</A></GEZ050>)"
                               R"(<GEZ051 VR="5.0" id="GEZ051-1" page="1" sakuseiDay="2024-03-04")"
                               R"( sakuseiNM="青葉商会" softNM=""><A>r4</A><A>r5</A></GEZ051>)");
    EXPECT_THAT(m_definition.GetReportIDList(), ElementsAre("GEZ050-1", "GEZ050-2", "GEZ051-1"));
}

TEST_F(DefinitionFinanceTest, ReportsOfOneIdRunOnInNumberAndCountTheirOwnPages)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", R"(startRow="1" endRow="2")", Cell("GEZ050")) +
                           Report("GEZ051", R"(startRow="3" endRow="3")", Cell("GEZ051")) +
                           Report("GEZ050", R"(startRow="4" endRow="-1")", Cell("GEZ050"))),
              STATUS_OK);
    const std::string strText = Written(Csv(4));
    EXPECT_EQ(Plain(strText), "[ 1 2][ 3][ 4]");
    EXPECT_NE(strText.find(R"(id="GEZ050-2" page="1")"), std::string::npos);
    EXPECT_THAT(m_definition.GetReportIDList(), ElementsAre("GEZ050-1", "GEZ051-1", "GEZ050-2"));
}

/// Rows of up to three reports and the pages of their document.
struct TurnCase
{
    const char* szName;
    std::vector<const char*> vecRows;
    long nCount;
    const char* szPages;
};

void PrintTo(const TurnCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class TurnTest : public DefinitionFinanceTest, public testing::WithParamInterface<TurnCase>
{
protected:
    void LoadCase()
    {
        std::string strReports;
        for (const char* szRows : GetParam().vecRows)
            strReports += Report("GEZ050", szRows, Cell("GEZ050"));
        EXPECT_EQ(LoadTemplate(strReports), STATUS_OK);
    }
};

TEST_P(TurnTest, ReportsTakeTheRecordsInTurn)
{
    LoadCase();
    EXPECT_EQ(Pages(GetParam().nCount), GetParam().szPages);
}

const TurnCase TURNS[] = {
    {"HandOver",
     {R"(startRow="1" endRow="3")", R"(startRow="4" endRow="-1")"},
     6,
     "[ 1 2 3][ 4 5 6]"},
    {"NoRowsTakeAllRecords", {"", R"(startRow="2" endRow="-1")"}, 3, "[ 1][ 2][ 3]"},
    {"OpenEndTakesAllRecordsFromTheFirst", {R"(startRow="3" endRow="-1")"}, 4, " 1 2[ 3 4]"},
    {"EndOfOneNeverHandsOver",
     {R"(startRow="1" endRow="1")", R"(startRow="2" endRow="-1")"},
     3,
     "[ 1]"},
    {"EndOfTwoHandsOver",
     {R"(startRow="1" endRow="2")", R"(startRow="3" endRow="-1")"},
     3,
     "[ 1 2][ 3]"},
    {"StartWithoutAnEndWritesNothingAndNeverHandsOver",
     {R"(startRow="1" endRow="0")", R"(startRow="2" endRow="-1")"},
     3,
     ""},
    {"EndOfMinusTwoWritesNothing",
     {R"(startRow="1" endRow="-2")", R"(startRow="2" endRow="-1")"},
     3,
     ""},
    {"RecordsBeforeTheStartOfTheNextFallThrough",
     {R"(startRow="1" endRow="2")", R"(startRow="4" endRow="5")"},
     5,
     "[ 1 2][ 4 5]"},
    {"OneHandOverARecord",
     {R"(startRow="1" endRow="3")", R"(startRow="1" endRow="2")", R"(startRow="5" endRow="9")"},
     6,
     "[ 1 2 3][ 5 6]"},
    {"TrailerFollowsTheEndOfTheReportBeforeIt",
     {R"(startRow="1" endRow="2")", R"(startRow="3" endRow="3" lastRecord="1")"},
     3,
     "[ 1 2][ 3]"},
    {"LastRecordPlaysNoPart", {R"(lastRecord="1")"}, 2, "[ 1][ 2]"},
    {"FileEndsWithinTheFirstReport",
     {R"(startRow="1" endRow="3")", R"(startRow="4" endRow="-1")"},
     2,
     "[ 1 2]"},
    {"FileEndsWithTheLastReport", {R"(startRow="1" endRow="3")"}, 3, "[ 1 2 3]"},
    {"FileWithoutRecords", {R"(startRow="1" endRow="3")"}, 0, ""},
    {"LargestRows", {R"(startRow="9223372036854775807" endRow="9223372036854775807")"}, 2, ""},
    {"RowsBeyondEveryNumber",
     {R"(startRow="-99999999999999999999" endRow="99999999999999999999")"},
     2,
     " 1 2]"},
    {"StepBeyondEveryNumber",
     {R"(startRow="1" endRow="2" stepRow="99999999999999999999")"},
     2,
     "[ 1 2]"},
};

INSTANTIATE_TEST_SUITE_P(Rows, TurnTest, testing::ValuesIn(TURNS), CaseName());

TEST_F(DefinitionFinanceTest, ReportsThatRunOutAreLoggedAndRaise)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", R"(startRow="1" endRow="2")", Cell("GEZ050")) +
                           Report("GEZ051", R"(startRow="3" endRow="4")", Cell("GEZ051"))),
              STATUS_OK);
    const DebugLog log;
    EXPECT_EQ(Raised([&] { static_cast<void>(Written(Csv(5))); }), FAULT);
    EXPECT_THAT(LogMessages(log), ElementsAre(RUN_OUT, UNEXPECTED_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(DefinitionFinanceTest, ConversionUsesTheReportsUpToTheLast)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", R"(startRow="1" endRow="2")", Cell("GEZ050")) +
                           Report("GEZ051", R"(startRow="3" endRow="-1")", Cell("GEZ051"))),
              STATUS_OK);
    EXPECT_EQ(Pages(4), "[ 1 2][ 3 4]");
    EXPECT_EQ(Pages(4), " 1 2[ 3 4]");
    EXPECT_EQ(m_definition.CreateDefinition("103", false), STATUS_OK);
    EXPECT_EQ(Pages(4), "[ 1 2][ 3 4]");
}

TEST_F(DefinitionFinanceTest, EachConversionNumbersFromOne)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", "", Cell("GEZ050"))), STATUS_OK);
    const std::string strFirst = Written(Csv(2));
    EXPECT_EQ(Written(Csv(2)), strFirst);
    EXPECT_THAT(m_definition.GetReportIDList(), ElementsAre("GEZ050-1", "GEZ050-2"));
}

TEST_F(DefinitionFinanceTest, IdsStayUntilTheNextConversion)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", "", Cell("GEZ050"))), STATUS_OK);
    static_cast<void>(Written(Csv(2)));
    m_definition.Clear();
    EXPECT_EQ(LoadTemplate(Report("GEZ051", "", Cell("GEZ051"))), STATUS_OK);
    EXPECT_THAT(m_definition.GetReportIDList(), ElementsAre("GEZ050-1", "GEZ050-2"));
    static_cast<void>(Written(Csv(1)));
    EXPECT_THAT(m_definition.GetReportIDList(), ElementsAre("GEZ051-1"));
}

TEST_F(DefinitionFinanceTest, ConversionDrawsFromAThousandNumbers)
{
    EXPECT_EQ(LoadTemplate(Report("GEZ050", "", Cell("GEZ050"))), STATUS_OK);
    KZCValidResult& result = *KZCValidResult::instance();
    result.ResetRundomNumber(1000);
    std::vector<long> vecNumber;
    for (int n = 0; n < 1000; ++n)
        vecNumber.push_back(result.PopFrontRandomNumber());
    static_cast<void>(Written(Csv(3)));
    std::vector<long> vecLeft;
    for (int n = 3; n < 1000; ++n)
        vecLeft.push_back(result.PopFrontRandomNumber());
    vecNumber.erase(vecNumber.begin(), vecNumber.begin() + 3);
    EXPECT_EQ(vecLeft, vecNumber);
    EXPECT_EQ(result.PopFrontRandomNumber(), 0);
}

TEST_F(DefinitionFinanceTest, ItemOfAGenerationIsWrittenUnderAGroupOrAReportOnly)
{
    EXPECT_EQ(LoadTemplate(Report(
                  "GEZ050", "",
                  R"(<item type="Normal" id="B" parent="GEZ050" column="2" generation="junior"/>)"
                  R"(<item type="TAG" id="T" parent="GEZ050"/>)"
                  R"(<item type="Normal" id="C" parent="T" column="2" generation="senior"/>)"
                  R"(<item type="Normal" id="N" parent="GEZ050" column="3"/>)"
                  R"(<item type="Normal" id="D" parent="N" column="2" generation="junior"/>)")),
              STATUS_OK);
    EXPECT_EQ(PagesOf(Written(Csv(1))), "[<B>r1</B><T><C>r1</C></T><N>x</N>]");
}

// ---- one report over all records ---------------------------------------------------------------

TEST_F(DefinitionFinanceTest, MultiRecordFormNeedsACsvAnItSectionAndAReport)
{
    GenerationCsv csv = Csv(1);
    const DebugLog log;
    const auto raised = [&](KZCEkaCsvFile* pCsv, KZCEkaITDataFinance* pIT) {
        return Raised([&] {
            static_cast<void>(m_definition.MakeSingleTypeReportFromCsvMultiRecord(pCsv, pIT));
        });
    };
    EXPECT_EQ(raised(&csv, &m_it), FAULT);
    EXPECT_EQ(LoadMulti(""), STATUS_OK);
    EXPECT_EQ(raised(nullptr, &m_it), FAULT);
    EXPECT_EQ(raised(&csv, nullptr), FAULT);
    EXPECT_THAT(
        LogEntries(log),
        testing::AllOf(testing::SizeIs(3),
                       testing::Each(LogEntry{
                           "KZCEkaDefinitionFinance::MakeSingleTypeReportFromCsvMultiRecord",
                           WRITE_MISSING})));
}

TEST_F(DefinitionFinanceTest, FaultWhileWritingOverAllRecordsIsLoggedAndRaises)
{
    EXPECT_EQ(
        LoadMulti(
            "",
            R"(<item type="Normal" id="A" column="2" parent="GEZ750" startRow="-1000001" endRow="1" repeatTopTag="1"/>)"
            R"(<item type="Normal" id="B" column="2" parent="GEZ750"/>)"),
        STATUS_OK);
    const DebugLog log;
    EXPECT_EQ(Raised([&] { static_cast<void>(MultiPages(2)); }), FAULT);
    EXPECT_THAT(
        LogEntries(log),
        ElementsAre(LogEntry{"KZCEkaMOKDefReportFinance::WriteNodeFromCSVMultiRecord", TREE_ERROR},
                    LogEntry{"KZCEkaDefinitionFinance::MakeSingleTypeReportFromCsvMultiRecord",
                             UNEXPECTED_ERROR}));
}

/// Rows of the one report and the pages of its document.
struct MultiCase
{
    const char* szName;
    const char* szRows;
    long nCount;
    const char* szPages;
};

void PrintTo(const MultiCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class MultiRecordTest : public DefinitionFinanceTest, public testing::WithParamInterface<MultiCase>
{};

TEST_P(MultiRecordTest, OneReportSpreadsOverTheRecords)
{
    EXPECT_EQ(LoadMulti(GetParam().szRows), STATUS_OK);
    EXPECT_EQ(MultiPages(GetParam().nCount), GetParam().szPages);
}

const MultiCase MULTI[] = {
    {"NoRows", "", 3, "[ 1][ 2][ 3]"},
    {"AllRecordsInPagesOfThree", R"(startRow="1" endRow="-1" stepRow="3")", 7,
     "[ 1 2 3][ 4 5 6][ 7]"},
    {"StartOfMinusOneMeansTheLastRecord", R"(startRow="-1" endRow="-1" stepRow="1")", 4, "[ 4]"},
    {"NegativeRows", R"(startRow="2" endRow="-2" stepRow="2")", 5, "[ 2 3][ 4]"},
    {"StartWithoutAnEndWritesNothing", R"(startRow="1" stepRow="3")", 3, ""},
    {"EndWithoutAStartOpensAtEachRecord", R"(endRow="-2" stepRow="3")", 4, "[ 1[ 2[ 3]"},
    {"RangeBeyondTheLastRecord", R"(startRow="1" endRow="40" stepRow="3")", 4, "[ 1 2 3][ 4]"},
    {"RowsBeyondEveryNumber",
     R"(startRow="99999999999999999999" endRow="-99999999999999999999" stepRow="1")", 3, ""},
    {"StepBeyondEveryNumber", R"(startRow="1" endRow="-1" stepRow="99999999999999999999")", 3,
     "[ 1 2 3]"},
    {"FileWithoutRecords", R"(startRow="1" endRow="-1" stepRow="3")", 0, ""},
};

INSTANTIATE_TEST_SUITE_P(Rows, MultiRecordTest, testing::ValuesIn(MULTI), CaseName());

TEST_F(DefinitionFinanceTest, TrailerOfTheTemplateBeginsTheGivenRowsBeforeTheEnd)
{
    EXPECT_EQ(
        LoadMulti(
            R"(startRow="1" endRow="-1" stepRow="3")",
            Cell("GEZ750") +
                R"(<item type="Normal" id="C" parent="GEZ750" startRow="-2" lastRecord="1"/>)"),
        STATUS_OK);
    EXPECT_EQ(MultiPages(8), "[ 1 2 3][ 4 5 6 7 8]");
    EXPECT_EQ(MultiPages(10), "[ 1 2 3][ 4 5 6][ 7 8 9 10]");
}

TEST_F(DefinitionFinanceTest, LowestRowOfSeveralTrailersCounts)
{
    EXPECT_EQ(
        LoadMulti(
            R"(startRow="1" endRow="-1" stepRow="2")",
            Cell("GEZ750") +
                R"(<item type="Normal" id="C" parent="GEZ750" startRow="-1" lastRecord="1"/>)"
                R"(<item type="Normal" id="D" parent="C" startRow="-3" lastRecord="1"/>)"
                R"(<item type="Normal" id="E" parent="GEZ750" startRow="-2" lastRecord="1"/>)"),
        STATUS_OK);
    EXPECT_EQ(MultiPages(5), "[ 1 2 3 4 5]");
    EXPECT_EQ(MultiPages(6), "[ 1 2][ 3 4 5 6]");
}

TEST_F(DefinitionFinanceTest, OnlyALastRecordOfOneBelowZeroMakesATrailer)
{
    EXPECT_EQ(
        LoadMulti(R"(startRow="1" endRow="-1" stepRow="2")",
                  Cell("GEZ750") +
                      R"(<item type="Normal" id="C" parent="GEZ750" startRow="3" lastRecord="1"/>)"
                      R"(<item type="Normal" id="D" parent="GEZ750" startRow="-3" lastRecord="2"/>)"
                      R"(<item type="Normal" id="E" parent="GEZ750" startRow="-3"/>)"),
        STATUS_OK);
    EXPECT_EQ(MultiPages(5), "[ 1 2][ 3 4][ 5]");
}

TEST_F(DefinitionFinanceTest, TrailerOfTheSmallestRowLeavesOnePage)
{
    EXPECT_EQ(
        LoadMulti(
            R"(startRow="1" endRow="-1" stepRow="2")",
            Cell("GEZ750") +
                R"(<item type="Normal" id="C" parent="GEZ750" startRow="-99999999999999999999" lastRecord="1"/>)"),
        STATUS_OK);
    EXPECT_EQ(MultiPages(5), "[ 1 2 3 4 5]");
}

TEST_F(DefinitionFinanceTest, MultiRecordFormWritesTheFirstReportAloneAndUsesNothingUp)
{
    EXPECT_EQ(LoadText(DefinitionFile(Report("GEZ750", R"(startRow="1" endRow="2" stepRow="2")",
                                             Cell("GEZ750"), "PGE1640") +
                                      Report("GEZ751", R"(startRow="3" endRow="-1" stepRow="2")",
                                             Cell("GEZ751"), "PGE1640")),
                       false, "202"),
              STATUS_OK);
    GenerationCsv csv = Csv(4);
    const std::string strFirst = m_definition.MakeSingleTypeReportFromCsvMultiRecord(&csv, &m_it);
    EXPECT_EQ(strFirst, R"(<GEZ750 VR="5.0" id="GEZ750-1" page="1" sakuseiDay="2024-03-04")"
                        R"( sakuseiNM="" softNM=""><A>r1</A><A>r2</A></GEZ750>)");
    EXPECT_EQ(m_definition.MakeSingleTypeReportFromCsvMultiRecord(&csv, &m_it), strFirst);
    EXPECT_THAT(m_definition.GetReportIDList(), ElementsAre("GEZ750-1"));
}

TEST_F(DefinitionFinanceTest, HeadDetailAndTrailerMakeOneDocument)
{
    EXPECT_EQ(
        LoadMulti(
            R"(startRow="2" endRow="-1" stepRow="2")",
            R"(<item type="TAG" id="T" parent="GEZ750" startRow="1" endRow="1" repeatTopTag="1"/>)"
            R"(<item type="Normal" id="H" parent="T" column="2"/>)"
            R"(<item type="TAG" id="U" parent="T" startRow="2" endRow="-2"/>)"
            R"(<item type="Normal" id="B" parent="U" column="2"/>)"
            R"(<item type="TAG" id="E" parent="GEZ750" startRow="-1" endRow="-1" lastRecord="1"/>)"
            R"(<item type="Normal" id="C" parent="E" column="2"/>)"),
        STATUS_OK);
    EXPECT_EQ(MultiPages(6),
              "[<T><H>r1</H><U><B>r2</B></U><U><B>r3</B></U></T>]"
              "[<T><H>r1</H><U><B>r4</B></U><U><B>r5</B></U><E><C>r6</C></E></T>]");
}

}  // namespace
