#include "definition/KZCEkaDefinition.h"

#include <gmock/gmock.h>

#include <chrono>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "KZCEkaITData.h"
#include "calendar/Clock.h"
#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/GenerationCsv.h"
#include "support/LogMessages.h"
#include "support/Raised.h"
#include "support/ResetState.h"

namespace {

using Records = std::vector<KZCEkaCsvFile::Record>;

constexpr const char* READ_ERROR = "定義体の読み込みでエラーが発生しました。";
constexpr const char* TREE_ERROR = "定義体の帳票タグ階層定義が不正です。";

/// An index of one report, type id "003", with these items.
std::string Index(const std::string& strItems)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<define><report id="003" columnNum="3" procId="PGE5030" procVR="1.0" reportId="GEZ030" reportVR="2.0">)" +
           strItems + "</report></define>\n";
}

/// A report element of a day and a filer that the tests set.
std::string Report(int nNumber, const std::string& strBody)
{
    const std::string strNumber = std::to_string(nNumber);
    return R"(<GEZ030 VR="2.0" id="GEZ030-)" + strNumber + R"(" page=")" + strNumber +
           R"(" sakuseiDay="2024-03-04" sakuseiNM="" softNM="">)" + strBody + "</GEZ030>";
}

class DefinitionTest : public ResetState
{
protected:
    DefinitionTest() : m_csv(Records{{"003", "1", "a"}, {"003", "2", "b"}})
    {
        Clock::Set(1709553600);  // 4 March 2024, noon in Greenwich
        m_it.Initialize(true);
    }

    /// Loads an index of one report with these items.
    int Load(const std::string& strItems, bool bValidate = true)
    {
        return LoadIndex(Index(strItems), bValidate);
    }

    int LoadIndex(const std::string& strIndex, bool bValidate = true)
    {
        m_bundle.Write("KZEkaDefine.xml", strIndex);
        return m_definition.CreateDefinition("003", bValidate);
    }

    std::string Written() { return m_definition.MakeReportToCsv(&m_csv, &m_it); }
    std::string Check(const KZCEkaCsvFile& csv)
    {
        return Told([&] { return m_definition.ValidateCsv(&csv); });
    }

    Bundle m_bundle;
    GenerationCsv m_csv;
    KZCEkaITData m_it;
    KZCEkaDefinition m_definition;
};

// ---- loading -----------------------------------------------------------------------------------

TEST_F(DefinitionTest, NewDefinitionIsEmpty)
{
    EXPECT_STREQ(m_definition.GetProcId(), "");
    EXPECT_STREQ(m_definition.GetProcVR(), "");
    EXPECT_STREQ(m_definition.GetReportId(), "");
}

TEST_F(DefinitionTest, LoadsTheTextsOfTheReport)
{
    EXPECT_EQ(Load(""), STATUS_OK);
    EXPECT_STREQ(m_definition.GetProcId(), "PGE5030");
    EXPECT_STREQ(m_definition.GetProcVR(), "1.0");
    EXPECT_STREQ(m_definition.GetReportId(), "GEZ030");
}

TEST_F(DefinitionTest, LoadedTreeWritesOneElementPerRecord)
{
    EXPECT_EQ(Load(R"(<item type="TAG" id="T" parent="GEZ030"/>
                      <item type="Normal" id="A" parent="T" column="2"/>
                      <item type="Normal" id="B" parent="T" column="3"/>)"),
              STATUS_OK);
    EXPECT_EQ(Written(),
              Report(1, "<T><A>1</A><B>a</B></T>") + Report(2, "<T><A>2</A><B>b</B></T>"));
}

TEST_F(DefinitionTest, ReportWithoutItemsLoadsAndWritesNothing)
{
    EXPECT_EQ(Load(""), STATUS_OK);
    EXPECT_EQ(Written(), "");
    EXPECT_EQ(Check(m_csv), PASSES);
}

TEST_F(DefinitionTest, FirstOfTwoReportsWithOneIdWins)
{
    EXPECT_EQ(LoadIndex(R"(<define><report id="002" procId="PGE5020" reportId="GEZ020"/>
                           <report id="003" procId="PGE5031" procVR="1.1" reportId="GEZ031" reportVR="2.1"/>
                           <report id="003" procId="PGE5032" procVR="1.2" reportId="GEZ032" reportVR="2.2"/>
                           </define>)"),
              STATUS_OK);
    EXPECT_STREQ(m_definition.GetProcId(), "PGE5031");
    EXPECT_STREQ(m_definition.GetProcVR(), "1.1");
    EXPECT_STREQ(m_definition.GetReportId(), "GEZ031");
}

TEST_F(DefinitionTest, FirstReportWithAnEmptyProcedureHidesTheSecond)
{
    const DebugLog log;
    EXPECT_EQ(LoadIndex(R"(<define><report id="003" reportId="GEZ031"/>
                           <report id="003" procId="PGE5032" reportId="GEZ032"/></define>)"),
              STATUS_NG);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("定義体に対象の申請番号が存在しません。:003",
                                                       UNEXPECTED_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(DefinitionTest, NameOfTheRootDoesNotMatter)
{
    EXPECT_EQ(LoadIndex(R"(<report id="x"><report id="003" procId="PGE5030"/></report>)"),
              STATUS_OK);
    EXPECT_STREQ(m_definition.GetProcId(), "PGE5030");
}

TEST_F(DefinitionTest, UnknownElementsAndCommentsBetweenItemsAreSkipped)
{
    EXPECT_EQ(Load(R"(<note>x</note><item type="Normal" id="A" parent="GEZ030" column="2"/>
                      <!-- c --><Item type="none"/><valid id="none"/>
                      <item type="Normal" id="B" parent="A" column="3"/>)"),
              STATUS_OK);
    EXPECT_EQ(Written(), Report(1, "<A>1<B>a</B></A>") + Report(2, "<A>2<B>b</B></A>"));
}

TEST_F(DefinitionTest, ItemsAreNotNested)
{
    EXPECT_EQ(Load(R"(<item type="Normal" id="A" parent="GEZ030" column="2">
                      <item type="Normal" id="B" parent="A" column="3"/></item>)"),
              STATUS_OK);
    EXPECT_EQ(Written(), Report(1, "<A>1</A>") + Report(2, "<A>2</A>"));
}

TEST_F(DefinitionTest, ZeroSuppressionInCapitalsSuppressesNothing)
{
    const GenerationCsv csv(Records{{"003", "01", "02"}});
    EXPECT_EQ(Load(R"(<item type="Normal" id="A" parent="GEZ030" column="2" zeroSuppress="TRUE"/>
                <item type="Normal" id="B" parent="GEZ030" column="3" zeroSuppress="true"/>)"),
              STATUS_OK);
    EXPECT_EQ(m_definition.MakeReportToCsv(&csv, &m_it), Report(1, "<A>01</A><B>2</B>"));
}

TEST_F(DefinitionTest, LoadingAgainReplacesTheTree)
{
    EXPECT_EQ(Load(R"(<item type="Normal" id="A" parent="GEZ030" column="2"/>)"), STATUS_OK);
    EXPECT_EQ(Load(R"(<item type="Normal" id="B" parent="GEZ030" column="3"/>)"), STATUS_OK);
    EXPECT_EQ(Written(), Report(1, "<B>a</B>") + Report(2, "<B>b</B>"));
}

TEST_F(DefinitionTest, FailedLoadingLeavesNothingOfTheEarlierOne)
{
    EXPECT_EQ(Load(R"(<item type="Normal" id="A" parent="GEZ030" column="2"/>)"), STATUS_OK);
    EXPECT_EQ(LoadIndex("broken"), STATUS_NG);
    EXPECT_STREQ(m_definition.GetProcId(), "");
    EXPECT_EQ(Raised([&] { static_cast<void>(Written()); }), FAULT);
}

TEST_F(DefinitionTest, NullTypeIdKeepsTheEarlierLoading)
{
    EXPECT_EQ(Load(""), STATUS_OK);
    EXPECT_EQ(m_definition.CreateDefinition(nullptr, true), STATUS_NG);
    EXPECT_STREQ(m_definition.GetProcId(), "PGE5030");
}

TEST_F(DefinitionTest, ClearEmptiesTextsAndTree)
{
    EXPECT_EQ(Load(""), STATUS_OK);
    m_definition.Clear();
    EXPECT_STREQ(m_definition.GetProcId(), "");
    EXPECT_STREQ(m_definition.GetProcVR(), "");
    EXPECT_STREQ(m_definition.GetReportId(), "");
    EXPECT_EQ(Raised([&] { static_cast<void>(Written()); }), FAULT);
}

TEST_F(DefinitionTest, WideReportLoads)
{
    std::string strItems = R"(<item type="TAG" id="T" parent="GEZ030"/>)";
    std::string strBody;
    for (int n = 1; n <= 1500; ++n) {
        const std::string strName = "N" + std::to_string(n);
        strItems += "<item type=\"Normal\" id=\"" + strName + "\" parent=\"T\" column=\"2\"/>";
        strBody += "<" + strName + ">1</" + strName + ">";
    }
    EXPECT_EQ(Load(strItems), STATUS_OK);
    const GenerationCsv csv(Records{{"003", "1", "a"}});
    EXPECT_EQ(m_definition.MakeReportToCsv(&csv, &m_it), Report(1, "<T>" + strBody + "</T>"));
}

// ---- faults of the index -----------------------------------------------------------------------

TEST_F(DefinitionTest, NullTypeIdIsLogged)
{
    const DebugLog log;
    EXPECT_EQ(m_definition.CreateDefinition(nullptr, true), STATUS_NG);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("引数エラー。定義情報作成に必要な情報が準備されていません。"));
}

TEST_F(DefinitionTest, MissingIndexFailsAndRecordsNothing)
{
    const Bundle empty(std::nullopt);
    const DebugLog log;
    EXPECT_EQ(m_definition.CreateDefinition("003", true), STATUS_NG);
    EXPECT_THAT(LastLogMessages(log, 2), testing::ElementsAre(READ_ERROR, UNEXPECTED_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(DefinitionTest, MalformedIndexFails)
{
    const DebugLog log;
    EXPECT_EQ(LoadIndex("<define><report id=\"003\" procId=\"P\"></define>"), STATUS_NG);
    EXPECT_THAT(LastLogMessages(log, 2), testing::ElementsAre(READ_ERROR, UNEXPECTED_ERROR));
}

TEST_F(DefinitionTest, UnknownTypeIdFails)
{
    m_bundle.Write("KZEkaDefine.xml", Index(""));
    const DebugLog log;
    EXPECT_EQ(m_definition.CreateDefinition("004", true), STATUS_NG);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("定義体に対象の申請番号が存在しません。:004",
                                                       UNEXPECTED_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(DefinitionTest, LongTypeIdIsCutInTheLog)
{
    m_bundle.Write("KZEkaDefine.xml", Index(""));
    const DebugLog log;
    EXPECT_EQ(m_definition.CreateDefinition(std::string(60, '9').c_str(), true), STATUS_NG);
    // 19 characters of 3 bytes and a colon leave 41 of the 99 bytes.
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("定義体に対象の申請番号が存在しません。:" +
                                                           std::string(41, '9'),
                                                       UNEXPECTED_ERROR));
}

TEST_F(DefinitionTest, EmptyProcedureCountsAsNoReport)
{
    const DebugLog log;
    EXPECT_EQ(LoadIndex(R"(<define><report id="003" procId="" reportId="GEZ030"/></define>)"),
              STATUS_NG);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("定義体に対象の申請番号が存在しません。:003",
                                                       UNEXPECTED_ERROR));
}

TEST_F(DefinitionTest, UnknownKindFails)
{
    const DebugLog log;
    EXPECT_EQ(Load(R"(<item type="Table" id="A" parent="GEZ030"/>)"), STATUS_NG);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("EKA定義ファイルエラー", TREE_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(DefinitionTest, UnknownCheckKeywordFails)
{
    const DebugLog log;
    EXPECT_EQ(Load(R"(<item type="Normal" id="A" parent="GEZ030"><valid id="none"/></item>)"),
              STATUS_NG);
    EXPECT_THAT(LastLogMessages(log, 1), testing::ElementsAre(TREE_ERROR));
}

TEST_F(DefinitionTest, UnknownConditionKeywordFails)
{
    EXPECT_EQ(Load(R"(<item type="Normal" id="A" parent="GEZ030"><valid id="exist">)"
                   R"(<outer id="none" column="1"/></valid></item>)"),
              STATUS_NG);
}

TEST_F(DefinitionTest, UnknownKeywordsDoNoHarmWithoutChecks)
{
    EXPECT_EQ(
        Load(R"(<item type="Normal" id="A" parent="GEZ030" column="2"><valid id="none"/></item>)"
             R"(<item type="Normal" id="B" parent="GEZ030" column="3"><valid id="exist">)"
             R"(<outer id="none" column="1"/></valid></item>)",
             false),
        STATUS_OK);
    EXPECT_EQ(Written(), Report(1, "<A>1</A><B>a</B>") + Report(2, "<A>2</A><B>b</B>"));
}

TEST_F(DefinitionTest, LoadedWithoutChecksNothingIsChecked)
{
    EXPECT_EQ(
        Load(R"(<item type="Normal" id="A" parent="GEZ030" column="9"><valid id="exist"/></item>)",
             false),
        STATUS_OK);
    EXPECT_EQ(Check(m_csv), PASSES);
}

TEST_F(DefinitionTest, UnknownParentFails)
{
    const DebugLog log;
    EXPECT_EQ(Load(R"(<item type="Normal" id="A" parent="NONE"/>)"), STATUS_NG);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre(TREE_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(DefinitionTest, EmptyParentFails)
{
    const DebugLog log;
    EXPECT_EQ(Load(R"(<item type="Normal" id="A"/>)"), STATUS_NG);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre(TREE_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(DefinitionTest, ParentBehindItsChildFails)
{
    const DebugLog log;
    EXPECT_EQ(Load(R"(<item type="Normal" id="B" parent="A" column="2"/>
                      <item type="Normal" id="A" parent="GEZ030"/>)"),
              STATUS_NG);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre(TREE_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(DefinitionTest, ParentOfTheOtherGenerationFails)
{
    const DebugLog log;
    EXPECT_EQ(Load(R"(<item type="Normal" id="A" parent="GEZ030" generation="junior"/>
                      <item type="Normal" id="B" parent="A" generation="senior"/>)"),
              STATUS_NG);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre(TREE_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(DefinitionTest, FailedLoadingStopsThereAndKeepsTheTreeBuiltSoFar)
{
    EXPECT_EQ(Load(R"(<item type="Normal" id="A" parent="GEZ030" column="2"/>
                      <item type="Normal" id="B" parent="NONE"/>
                      <item type="Normal" id="C" parent="GEZ030" column="3"/>)"),
              STATUS_NG);
    EXPECT_EQ(Written(), Report(1, "<A>1</A>") + Report(2, "<A>2</A>"));
}

// ---- checking ----------------------------------------------------------------------------------

constexpr const char* TWO_CHECKS =
    R"(<item type="Normal" id="A" parent="GEZ030" column="2"><valid id="exist"/><valid id="number"/></item>)"
    R"(<item type="Normal" id="B" parent="GEZ030" column="3"><valid id="length" max="3"/></item>)";

TEST_F(DefinitionTest, CheckNeedsACsvAndATree)
{
    const DebugLog log;
    EXPECT_EQ(Raised([&] { static_cast<void>(m_definition.ValidateCsv(&m_csv)); }), FAULT);
    EXPECT_TRUE(log.HasLine("引数エラー。CSVチェックに必要な情報が準備されていません。"));
    EXPECT_EQ(Load(""), STATUS_OK);
    EXPECT_EQ(Raised([&] { static_cast<void>(m_definition.ValidateCsv(nullptr)); }), FAULT);
}

TEST_F(DefinitionTest, CheckNeedsATreeEvenForAFileWithoutRecords)
{
    const GenerationCsv csv(Records{});
    EXPECT_EQ(Check(csv), RAISES);
}

TEST_F(DefinitionTest, FileWithoutRecordsPasses)
{
    EXPECT_EQ(Load(TWO_CHECKS), STATUS_OK);
    EXPECT_EQ(Check(GenerationCsv(Records{})), PASSES);
}

TEST_F(DefinitionTest, CleanRecordsPass)
{
    EXPECT_EQ(Load(TWO_CHECKS), STATUS_OK);
    EXPECT_EQ(Check(m_csv), PASSES);
}

TEST_F(DefinitionTest, EveryRecordIsCheckedInOrder)
{
    EXPECT_EQ(Load(TWO_CHECKS), STATUS_OK);
    EXPECT_EQ(Check(GenerationCsv(Records{
                  {"003", "x", "long"}, {"003", "1", "a"}, {"003", "", "a"}, {"003", "y", "a"}})),
              "refuses 0001-00002-HE70004E,0001-00003-HE70008E,0003-00002-HE70001E,"
              "0004-00002-HE70004E");
}

TEST_F(DefinitionTest, BlankRecordsAreNotCheckedAndKeepTheirNumbers)
{
    EXPECT_EQ(Load(TWO_CHECKS), STATUS_OK);
    EXPECT_EQ(Check(GenerationCsv(Records{{""}, {"003", "", "a"}, {""}})),
              "refuses 0002-00002-HE70001E");
}

TEST_F(DefinitionTest, RefusedRecordBeforeACleanOneStillFails)
{
    EXPECT_EQ(Load(TWO_CHECKS), STATUS_OK);
    EXPECT_EQ(Check(GenerationCsv(Records{{"003", "", "a"}, {"003", "1", "a"}})),
              "refuses 0001-00002-HE70001E");
}

TEST_F(DefinitionTest, FaultOfACheckRaises)
{
    EXPECT_EQ(
        Load(
            R"(<item type="Normal" id="A" parent="GEZ030" column="2"><valid id="contain"/></item>)"),
        STATUS_OK);
    const DebugLog log;
    EXPECT_EQ(Check(m_csv), RAISES);
    EXPECT_THAT(LastLogMessages(log, 1), testing::ElementsAre(UNEXPECTED_ERROR));
}

TEST_F(DefinitionTest, ConditionWithoutAColumnIsDropped)
{
    EXPECT_EQ(Load(R"(<item type="Normal" id="A" parent="GEZ030" column="3"><valid id="exist">)"
                   R"(<outer id="empty"/></valid></item>)"),
              STATUS_OK);
    EXPECT_EQ(Check(GenerationCsv(Records{{"003", "1", ""}})), "refuses 0001-00003-HE70001E");
}

// ---- writing -----------------------------------------------------------------------------------

TEST_F(DefinitionTest, WritingNeedsACsvAnItSectionAndATree)
{
    const DebugLog log;
    EXPECT_EQ(Raised([&] { static_cast<void>(Written()); }), FAULT);
    EXPECT_TRUE(log.HasLine("引数エラー。MOK作成に必要な情報が準備されていません。"));
    EXPECT_EQ(Load(""), STATUS_OK);
    EXPECT_EQ(Raised([&] { static_cast<void>(m_definition.MakeReportToCsv(nullptr, &m_it)); }),
              FAULT);
    EXPECT_EQ(Raised([&] { static_cast<void>(m_definition.MakeReportToCsv(&m_csv, nullptr)); }),
              FAULT);
}

TEST_F(DefinitionTest, RecordWithoutABodyGivesNoElementAndTheOthersKeepTheirNumbers)
{
    EXPECT_EQ(Load(R"(<item type="Normal" id="A" parent="GEZ030" column="2"/>)"), STATUS_OK);
    const GenerationCsv csv(Records{{"003", "1"}, {"003", ""}, {"003", "3"}});
    EXPECT_EQ(m_definition.MakeReportToCsv(&csv, &m_it),
              Report(1, "<A>1</A>") + Report(3, "<A>3</A>"));
}

TEST_F(DefinitionTest, FileWithoutRecordsWritesNothing)
{
    EXPECT_EQ(Load(R"(<item type="Normal" id="A" parent="GEZ030" column="2"/>)"), STATUS_OK);
    const GenerationCsv csv(Records{});
    EXPECT_EQ(m_definition.MakeReportToCsv(&csv, &m_it), "");
}

// ---- hostile definition files ------------------------------------------------------------------

/// A definition that expands one entity out of many. \param nLevels  Each is ten of the one below.
std::string EntityBomb(int nLevels)
{
    std::string strText = "<!DOCTYPE define [<!ENTITY e0 \"bang\">";
    for (int n = 1; n <= nLevels; ++n) {
        strText += "<!ENTITY e" + std::to_string(n) + " \"";
        for (int nTimes = 0; nTimes < 10; ++nTimes)
            strText += "&e" + std::to_string(n - 1) + ";";
        strText += "\">";
    }
    return strText + "]><define><report id=\"003\" procId=\"PGE5030\">&e" +
           std::to_string(nLevels) + ";</report></define>";
}

/// Limit of a refusal: generous on a slow machine, and far below what a hang takes.
constexpr auto PATIENCE = std::chrono::seconds(20);

TEST_F(DefinitionTest, EntityBombFails)
{
    const DebugLog log;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(LoadIndex(EntityBomb(9)), STATUS_NG);
    EXPECT_LT(std::chrono::steady_clock::now() - start, PATIENCE);
    EXPECT_THAT(LastLogMessages(log, 2), testing::ElementsAre(READ_ERROR, UNEXPECTED_ERROR));
}

TEST_F(DefinitionTest, EntityBombInAnAttributeFails)
{
    std::string strText = EntityBomb(9);
    const std::string strReference = ">&e9;<";
    strText.replace(strText.find(strReference), strReference.size(), "><item id=\"&e9;\"/><");
    const DebugLog log;
    EXPECT_EQ(LoadIndex(strText), STATUS_NG);
    EXPECT_THAT(LastLogMessages(log, 2), testing::ElementsAre(READ_ERROR, UNEXPECTED_ERROR));
}

TEST_F(DefinitionTest, ExternalEntityIsNotFetchedAndFails)
{
    const TempFolder folder;
    const std::string strPath = folder.Write("piece.xml", "<item/>");
    const DebugLog log;
    EXPECT_EQ(
        LoadIndex("<!DOCTYPE define [<!ENTITY piece SYSTEM \"" + strPath +
                  "\">]><define><report id=\"003\" procId=\"PGE5030\">&piece;</report></define>"),
        STATUS_NG);
    EXPECT_THAT(LastLogMessages(log, 2), testing::ElementsAre(READ_ERROR, UNEXPECTED_ERROR));
}

TEST_F(DefinitionTest, ExternalDtdIsNotFetchedAndFails)
{
    const TempFolder folder;
    const std::string strPath = folder.Write("define.dtd", "<!ELEMENT define ANY>");
    const DebugLog log;
    EXPECT_EQ(LoadIndex("<!DOCTYPE define SYSTEM \"" + strPath +
                        "\"><define><report id=\"003\" procId=\"PGE5030\"/></define>"),
              STATUS_NG);
    EXPECT_THAT(LastLogMessages(log, 2), testing::ElementsAre(READ_ERROR, UNEXPECTED_ERROR));
}

struct PrologCase
{
    const char* szName;
    const char* szProlog;
};

void PrintTo(const PrologCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class DefinitionPrologTest : public DefinitionTest, public testing::WithParamInterface<PrologCase>
{};

TEST_P(DefinitionPrologTest, InFrontOfTheRootIsTakenForTheRootWhichHasNoReports)
{
    const DebugLog log;
    EXPECT_EQ(LoadIndex(std::string(GetParam().szProlog) +
                        R"(<define><report id="003" procId="PGE5030"/></define>)"),
              STATUS_NG);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("定義体に対象の申請番号が存在しません。:003",
                                                       UNEXPECTED_ERROR));
}

constexpr PrologCase PROLOG_CASES[] = {
    {"Comment", "<!-- c -->"},
    {"ProcessingInstruction", "<?pi d?>"},
    {"Doctype", "<!DOCTYPE define>"},
    {"DoctypeWithASubset", "<!DOCTYPE define [<!ELEMENT define ANY>]>"},
};

INSTANTIATE_TEST_SUITE_P(Prologs,
                         DefinitionPrologTest,
                         testing::ValuesIn(PROLOG_CASES),
                         CaseName());

TEST_F(DefinitionTest, HundredThousandItemsEachTheParentOfTheNextFail)
{
    const DebugLog log;
    std::string strItems = R"(<item type="TAG" id="N0" parent="GEZ030"/>)";
    for (int n = 1; n < 100000; ++n)
        strItems += "<item type=\"TAG\" id=\"N" + std::to_string(n) + "\" parent=\"N" +
                    std::to_string(n - 1) + "\"/>";
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Load(strItems), STATUS_NG);
    EXPECT_LT(std::chrono::steady_clock::now() - start, PATIENCE);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre(TREE_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

/// So many unknown elements in each other.
std::string Nested(int nDepth)
{
    std::string strNested;
    for (int n = 0; n < nDepth; ++n)
        strNested += "<x>";
    for (int n = 0; n < nDepth; ++n)
        strNested += "</x>";
    return strNested;
}

TEST_F(DefinitionTest, UnknownElementsInEachOtherAreSkipped)
{
    EXPECT_EQ(Load(Nested(500) + R"(<item type="Normal" id="A" parent="GEZ030" column="2"/>)"),
              STATUS_OK);
    EXPECT_EQ(Written(), Report(1, "<A>1</A>") + Report(2, "<A>2</A>"));
}

TEST_F(DefinitionTest, HundredThousandElementsInEachOtherFail)
{
    const DebugLog log;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Load(Nested(100000)), STATUS_NG);
    EXPECT_LT(std::chrono::steady_clock::now() - start, PATIENCE);
    EXPECT_THAT(LastLogMessages(log, 2), testing::ElementsAre(READ_ERROR, UNEXPECTED_ERROR));
}

TEST_F(DefinitionTest, ParentsDoubledOverFortyLevelsFail)
{
    const DebugLog log;
    std::string strItems = R"(<item type="TAG" id="C0" parent="GEZ030"/>)";
    for (int n = 1; n <= 40; ++n) {
        const std::string strLevel = std::to_string(n);
        const std::string strAbove = std::to_string(n - 1);
        for (const char* szGeneration : {"junior", "senior"})
            strItems += "<item type=\"TAG\" id=\"P" + strLevel + "\" parent=\"C" + strAbove +
                        "\" generation=\"" + szGeneration + "\"/>";
        strItems += "<item type=\"TAG\" id=\"C" + strLevel + "\" parent=\"P" + strLevel + "\"/>";
    }
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Load(strItems), STATUS_NG);
    EXPECT_LT(std::chrono::steady_clock::now() - start, PATIENCE);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre(TREE_ERROR));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(DefinitionTest, ParentsDoubledOverThreeLevelsLoad)
{
    EXPECT_EQ(Load(R"(<item type="Normal" id="C0" parent="GEZ030"/>
                      <item type="Normal" id="P1" parent="C0" generation="junior"/>
                      <item type="Normal" id="P1" parent="C0" generation="senior"/>
                      <item type="Normal" id="C1" parent="P1"/>
                      <item type="Normal" id="P2" parent="C1" generation="junior"/>
                      <item type="Normal" id="P2" parent="C1" generation="senior"/>
                      <item type="Normal" id="C2" parent="P2" column="2"/>)"),
              STATUS_OK);
    const GenerationCsv csv(Records{{"003", "1"}}, {{0, "junior"}});
    // Two ways lead to the inner parents, so that the child hangs below each of them twice.
    EXPECT_EQ(m_definition.MakeReportToCsv(&csv, &m_it),
              Report(1, "<C0><P1><C1><P2><C2>1</C2><C2>1</C2></P2></C1></P1></C0>"));
}

TEST_F(DefinitionTest, ItemThatBearsTheNameOfItsParentIsNotItsOwnChild)
{
    EXPECT_EQ(Load(R"(<item type="Normal" id="A" parent="GEZ030" generation="junior"/>
                      <item type="Normal" id="A" parent="A" column="2"/>)"),
              STATUS_OK);
    const GenerationCsv csv(Records{{"003", "1"}}, {{0, "junior"}});
    EXPECT_EQ(m_definition.MakeReportToCsv(&csv, &m_it), Report(1, "<A><A>1</A></A>"));
}

}  // namespace
