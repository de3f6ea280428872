#include "validator/KZCEkaValidator.h"

#include <cstddef>
#include <optional>
#include <string>

#include "KZCEkaTaxOffices.h"
#include "KZCEkaXDOM.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/DebugLog.h"
#include "support/Raised.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"
#include "support/WholeLog.h"
#include "validator/ChildWalk.h"

namespace {

const std::string INITIALIZE = "[KZCEkaValidator::Initialize]\n";
const std::string CREATE_ITEM = "[KZCEkaValidItem::CreateItem]\n";

/// A validator filled from the children of an element, which stands under the cursor.
class ValidatorTest : public ResetState
{
protected:
    /// Parses `<item name="own">`, the children and `</item>`, and fills the validator.
    int Fill(const std::string& strChildren, long lColumn = 1)
    {
        const std::string strText = "<item name=\"own\">" + strChildren + "</item>";
        EXPECT_TRUE(m_dom.Initialize());
        EXPECT_TRUE(m_dom.Parse(strText.c_str(), "item", "UTF-8"));
        EXPECT_EQ(m_dom.MoveRoot(), 0);
        return m_validator.Initialize(lColumn, &m_dom);
    }

    std::string OnRow(const KZCEkaCsvFile& csv, long lRow = 0, long lColumn = -1)
    {
        return Told([&] { return m_validator.ValidateCsv(&csv, lRow, lColumn); });
    }

    std::string OnText(const char* szValue)
    {
        return Told([&] { return m_validator.Validate(szValue, ARGUMENT_RECORD, 3); });
    }

    KZCEkaXDOM m_dom;
    KZCEkaValidator m_validator;
};

// --- filled from a definition ---

TEST_F(ValidatorTest, NullInsteadOfADocumentFails)
{
    const DebugLog log;
    EXPECT_EQ(m_validator.Initialize(1, nullptr), STATUS_NG);
    EXPECT_EQ(WholeLog(log), INITIALIZE + "引数エラー。定義体のDOMが存在しません。\n");
}

TEST_F(ValidatorTest, NullInsteadOfADocumentKeepsTheList)
{
    ASSERT_EQ(Fill("<valid id=\"exist\"/>"), STATUS_OK);
    EXPECT_EQ(m_validator.Initialize(1, nullptr), STATUS_NG);
    EXPECT_EQ(OnRow(TableCsv{{"001", ""}}), "refuses 0001-00002-HE70001E");
}

TEST_F(ValidatorTest, AnElementWithoutChildrenGivesAnEmptyList)
{
    EXPECT_EQ(Fill(""), STATUS_OK);
    EXPECT_EQ(m_dom.GetAttribute("name"), "own");
    EXPECT_EQ(OnRow(TableCsv{{"001", ""}}), PASSES);
}

TEST_F(ValidatorTest, AnElementWithTextAndCommentsGivesAnEmptyList)
{
    EXPECT_EQ(Fill(" text <!-- <valid id=\"exist\"/> --> "), STATUS_OK);
    EXPECT_EQ(m_dom.GetAttribute("name"), "own");
    EXPECT_EQ(OnRow(TableCsv{{"001", ""}}), PASSES);
}

TEST_F(ValidatorTest, ChildrenOfOtherNamesGiveAnEmptyList)
{
    EXPECT_EQ(Fill("<outer id=\"exist\" column=\"1\"/><Valid id=\"exist\"/><valids id=\"exist\"/>"
                   "<check id=\"exist\"/>"),
              STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", ""}}), PASSES);
}

TEST_F(ValidatorTest, ChildrenOfOtherNamesBetweenChecksAreSkipped)
{
    EXPECT_EQ(Fill("<other id=\"unknown\"/><valid id=\"exist\"/><other/><valid id=\"number\"/>"),
              STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", ""}}), "refuses 0001-00002-HE70001E");
    EXPECT_EQ(OnRow(TableCsv{{"001", "x"}}), "refuses 0001-00002-HE70004E");
}

TEST_F(ValidatorTest, TheCursorIsBackOnTheElement)
{
    EXPECT_EQ(Fill("<valid id=\"exist\"><outer id=\"exist\" column=\"1\"/></valid>"
                   "<valid id=\"number\"/>"),
              STATUS_OK);
    EXPECT_EQ(m_dom.GetNodeName(), "item");
    EXPECT_EQ(m_dom.GetAttribute("name"), "own");
}

TEST_F(ValidatorTest, TheCursorIsBackOnTheElementAfterAFailure)
{
    EXPECT_EQ(Fill("<valid id=\"unknown\"/><valid id=\"number\"/>"), STATUS_NG);
    EXPECT_EQ(m_dom.GetAttribute("name"), "own");
}

TEST_F(ValidatorTest, TheCursorIsBackOnTheElementAfterAFailedCondition)
{
    EXPECT_EQ(Fill("<valid id=\"exist\"><outer id=\"unknown\" column=\"1\"/></valid>"), STATUS_NG);
    EXPECT_EQ(m_dom.GetAttribute("name"), "own");
}

TEST_F(ValidatorTest, AMissingAttributeIsTheEmptyText)
{
    EXPECT_EQ(Fill("<valid id=\"length\"/>"), STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "x"}}), RAISES);
}

TEST_F(ValidatorTest, AttributesReachTheItem)
{
    EXPECT_EQ(Fill("<valid id=\"anycontain\" value=\"3\" min=\"2\" max=\"4\"/>"), STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "", "1"}}), "refuses 0001-00002-HE70009E");
    EXPECT_EQ(OnRow(TableCsv{{"001", "", "2"}}), PASSES);
    EXPECT_EQ(OnRow(TableCsv{{"001", "", "4"}}), PASSES);
    EXPECT_EQ(OnRow(TableCsv{{"001", "", "5"}}), "refuses 0001-00002-HE70009E");
}

TEST_F(ValidatorTest, JapaneseParametersReachTheItemAsUtf8)
{
    EXPECT_EQ(Fill("<valid id=\"contain\" value=\"有 無\"/>"), STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "無"}}), PASSES);
}

struct ColumnCase
{
    const char* szName;
    const char* szAttribute;  ///< as it stands in the element
    long lNodeColumn;
    const char* szReported;
};

void PrintTo(const ColumnCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidatorColumnTest : public ValidatorTest, public testing::WithParamInterface<ColumnCase>
{};

TEST_P(ValidatorColumnTest, IsTheAttributesOrTheNodes)
{
    ASSERT_EQ(Fill(std::string("<valid id=\"exist\" ") + GetParam().szAttribute + "/>",
                   GetParam().lNodeColumn),
              STATUS_OK);
    // The reported cell alone is empty, so that any other would pass.
    KZCEkaCsvFile::Record record = {"x", "x", "x", "x"};
    const int nReported = std::stoi(GetParam().szReported);
    if (nReported > 0)
        record[static_cast<std::size_t>(nReported) - 1].clear();
    EXPECT_EQ(OnRow(TableCsv{record}, 0, 2),
              std::string("refuses 0001-") + GetParam().szReported + "-HE70001E");
}

constexpr ColumnCase COLUMNS[] = {
    {"Own", "column=\"3\"", 1, "00003"},
    {"First", "column=\"1\"", 1, "00001"},
    {"Missing", "", 1, "00002"},
    {"Empty", "column=\"\"", 1, "00002"},
    {"Zero", "column=\"0\"", 1, "00002"},
    {"Negative", "column=\"-3\"", 1, "00002"},
    {"NoNumber", "column=\"x\"", 1, "00002"},
    {"LeadingBlankAndSign", "column=\" +3\"", 1, "00003"},
    {"TrailingText", "column=\"3x\"", 1, "00003"},
    {"MissingWithoutANodeColumn", "", -1, "00000"},
    {"ZeroWithoutANodeColumn", "column=\"0\"", -1, "00000"},
    {"OwnWithoutANodeColumn", "column=\"3\"", -1, "00003"},
    // Clamped to 64 bits; the detail table shows the low 32 of them.
    {"Beyond64Bits", "column=\"99999999999999999999\"", 1, "-0001"},
};

INSTANTIATE_TEST_SUITE_P(Attributes, ValidatorColumnTest, testing::ValuesIn(COLUMNS), CaseName());

TEST_F(ValidatorTest, PassesTheFallbackColumnOn)
{
    const Bundle bundle;
    KZCEkaTaxOffices::instance()->Initialize();
    ASSERT_EQ(Fill("<valid id=\"taxofficenm\"/>", -1), STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "x", "紅葉", "00101"}}, 0, 2), "refuses 0001-03:04-HE70002E");
}

struct MessageCase
{
    const char* szName;
    const char* szMessage;
    KZCEkaMessage_t eRecorded;
};

void PrintTo(const MessageCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidatorMessageTest : public ValidatorTest, public testing::WithParamInterface<MessageCase>
{};

TEST_P(ValidatorMessageTest, IsTheOverrideIfTheCodeIsKnown)
{
    ASSERT_EQ(Fill(std::string("<valid id=\"number\" message=\"") + GetParam().szMessage + "\"/>"),
              STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "x"}}), "refuses 0001-00002-" + CodeOf(GetParam().eRecorded));
}

TEST_P(ValidatorMessageTest, IsNeverLogged)
{
    const DebugLog log;
    ASSERT_EQ(Fill(std::string("<valid id=\"number\" message=\"") + GetParam().szMessage + "\"/>"),
              STATUS_OK);
    EXPECT_EQ(log.Text(), "");
}

constexpr MessageCase MESSAGES[] = {
    {"First", "HE70001E", HE70001E},
    {"Middle", "HE70010E", HE70010E},
    {"LastInSequence", "HE70035E", HE70035E},
    {"Last", "HE99999E", HE99999E},
    {"Empty", "", HE70004E},
    {"Unknown", "HE70036E", HE70004E},
    {"AnotherCase", "he70010e", HE70004E},
    {"LeadingBlank", " HE70010E", HE70004E},
    {"Longer", "HE70010EX", HE70004E},
    {"Shorter", "HE70010", HE70004E},
    {"Number", "10", HE70004E},
};

INSTANTIATE_TEST_SUITE_P(Codes, ValidatorMessageTest, testing::ValuesIn(MESSAGES), CaseName());

TEST_F(ValidatorTest, ErrColumnAndErrRowChangeNothingForAPlainCheck)
{
    ASSERT_EQ(Fill("<valid id=\"number\" errcolumn=\"7\" errrow=\"9\"/>"), STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "x"}}), "refuses 0001-00002-HE70004E");
}

TEST_F(ValidatorTest, AnUnknownKeywordFailsAndLogs)
{
    const DebugLog log;
    EXPECT_EQ(Fill("<valid id=\"unknown\"/>"), STATUS_NG);
    EXPECT_EQ(WholeLog(log), CREATE_ITEM + "不明なValidのidが指定されています。 unknown\n" +
                                 INITIALIZE + "チェックアイテムが作成できません。\n");
}

TEST_F(ValidatorTest, AKeywordInAnotherCaseFails)
{
    EXPECT_EQ(Fill("<valid id=\"Exist\"/>"), STATUS_NG);
}

TEST_F(ValidatorTest, AMissingKeywordFails)
{
    EXPECT_EQ(Fill("<valid column=\"1\"/>"), STATUS_NG);
}

TEST_F(ValidatorTest, BehindAnUnknownKeywordNothingIsRead)
{
    EXPECT_EQ(Fill("<valid id=\"exist\"/><valid id=\"unknown\"/><valid id=\"number\"/>"),
              STATUS_NG);
    EXPECT_EQ(OnRow(TableCsv{{"001", ""}}), "refuses 0001-00002-HE70001E");
    EXPECT_EQ(OnRow(TableCsv{{"001", "x"}}), PASSES);
}

// --- conditions of a definition ---

TEST_F(ValidatorTest, AConditionGatesItsCheck)
{
    ASSERT_EQ(Fill("<valid id=\"exist\"><outer id=\"exist\" column=\"3\"/></valid>"), STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "", "x"}}), "refuses 0001-00002-HE70001E");
    EXPECT_EQ(OnRow(TableCsv{{"001", "", ""}}), PASSES);
}

TEST_F(ValidatorTest, EveryConditionHasToHold)
{
    ASSERT_EQ(Fill("<valid id=\"exist\"><outer id=\"exist\" column=\"3\"/>"
                   "<outer id=\"contain\" column=\"4\" value=\"1 2\"/></valid>"),
              STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "", "x", "2"}}), "refuses 0001-00002-HE70001E");
    EXPECT_EQ(OnRow(TableCsv{{"001", "", "x", "3"}}), PASSES);
    EXPECT_EQ(OnRow(TableCsv{{"001", "", "", "2"}}), PASSES);
}

TEST_F(ValidatorTest, AttributesReachTheCondition)
{
    ASSERT_EQ(Fill("<valid id=\"exist\"><outer id=\"range\" column=\"3\" min=\"2\" max=\"4\"/>"
                   "</valid>"),
              STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "", "4"}}), "refuses 0001-00002-HE70001E");
    EXPECT_EQ(OnRow(TableCsv{{"001", "", "5"}}), PASSES);
    EXPECT_EQ(OnRow(TableCsv{{"001", "", "1"}}), PASSES);
}

class ValidatorDroppedOuterTest : public ValidatorTest,
                                  public testing::WithParamInterface<ColumnCase>
{};

TEST_P(ValidatorDroppedOuterTest, LetsTheCheckRunUnconditionally)
{
    const DebugLog log;
    ASSERT_EQ(Fill(std::string("<valid id=\"exist\"><outer id=\"unknown\" ") +
                   GetParam().szAttribute + "/></valid>"),
              STATUS_OK);
    EXPECT_EQ(log.Text(), "");
    EXPECT_EQ(OnRow(TableCsv{{"001", ""}}), "refuses 0001-00002-HE70001E");
}

constexpr ColumnCase DROPPED_OUTER[] = {
    {"ColumnMissing", "", 1, ""},
    {"ColumnEmpty", "column=\"\"", 1, ""},
    {"ColumnZero", "column=\"0\"", 1, ""},
    {"ColumnNegative", "column=\"-1\"", 1, ""},
    {"ColumnIsNoNumber", "column=\"x\"", 1, ""},
};

INSTANTIATE_TEST_SUITE_P(Attributes,
                         ValidatorDroppedOuterTest,
                         testing::ValuesIn(DROPPED_OUTER),
                         CaseName());

TEST_F(ValidatorTest, AConditionWithoutAColumnDoesNotInheritTheNodes)
{
    ASSERT_EQ(Fill("<valid id=\"exist\"><outer id=\"exist\"/></valid>"), STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", ""}}), "refuses 0001-00002-HE70001E");
}

TEST_F(ValidatorTest, AConditionBehindADroppedOneCounts)
{
    ASSERT_EQ(Fill("<valid id=\"exist\"><outer id=\"exist\"/><outer id=\"exist\" column=\"3\"/>"
                   "</valid>"),
              STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "", ""}}), PASSES);
}

TEST_F(ValidatorTest, ChildrenOfACheckWithOtherNamesAreSkipped)
{
    ASSERT_EQ(Fill("<valid id=\"exist\"><Outer id=\"exist\" column=\"3\"/>"
                   "<valid id=\"unknown\" column=\"3\"/></valid>"),
              STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "", ""}}), "refuses 0001-00002-HE70001E");
}

TEST_F(ValidatorTest, ConditionsBelongToTheirOwnCheckAlone)
{
    ASSERT_EQ(Fill("<valid id=\"length\" value=\"3\"><outer id=\"exist\" column=\"3\"/></valid>"
                   "<valid id=\"number\"/>"),
              STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "x", ""}}), "refuses 0001-00002-HE70004E");
}

TEST_F(ValidatorTest, AnUnknownConditionFailsAndLogs)
{
    const DebugLog log;
    EXPECT_EQ(Fill("<valid id=\"exist\"><outer id=\"unknown\" column=\"1\"/></valid>"), STATUS_NG);
    EXPECT_EQ(WholeLog(log), CREATE_ITEM + "不明なValidのidが指定されています。 unknown\n" +
                                 "[KZCEkaValidator::SetUpOuter]\n" +
                                 "外部条件アイテムが作成できません。\n");
}

TEST_F(ValidatorTest, ACheckWithAnUnknownConditionIsNotKept)
{
    EXPECT_EQ(Fill("<valid id=\"number\"/>"
                   "<valid id=\"exist\"><outer id=\"unknown\" column=\"1\"/></valid>"
                   "<valid id=\"length\" value=\"3\"/>"),
              STATUS_NG);
    EXPECT_EQ(OnRow(TableCsv{{"001", "x"}}), "refuses 0001-00002-HE70004E");
    EXPECT_EQ(OnRow(TableCsv{{"001", ""}}), PASSES);
}

TEST_F(ValidatorTest, SetUpOuterAddsToTheItemGiven)
{
    ASSERT_EQ(Fill("<outer id=\"exist\" column=\"3\"/>"), STATUS_OK);
    const auto pItem = MakeItem({"exist"}, 1);
    EXPECT_EQ(m_validator.SetUpOuter(&m_dom, pItem.get()), STATUS_OK);
    EXPECT_EQ(m_dom.GetAttribute("name"), "own");
    EXPECT_EQ(OnRecord(*pItem, TableCsv{{"001", "", ""}}), PASSES);
    EXPECT_EQ(OnRecord(*pItem, TableCsv{{"001", "", "x"}}), "refuses 0001-00002-HE70001E");
}

TEST_F(ValidatorTest, SetUpOuterOfAnElementWithoutChildrenPasses)
{
    ASSERT_EQ(Fill(""), STATUS_OK);
    const auto pItem = MakeItem({"exist"}, 1);
    EXPECT_EQ(m_validator.SetUpOuter(&m_dom, pItem.get()), STATUS_OK);
    EXPECT_EQ(m_dom.GetAttribute("name"), "own");
}

TEST_F(ValidatorTest, SetUpOuterFailsForAnUnknownKeyword)
{
    ASSERT_EQ(Fill("<outer id=\"unknown\" column=\"3\"/>"), STATUS_OK);
    const auto pItem = MakeItem({"exist"}, 1);
    EXPECT_EQ(m_validator.SetUpOuter(&m_dom, pItem.get()), STATUS_NG);
}

// --- the way over the children ---

/// A cursor over so many children, which may be unable to come back.
struct CountingCursor
{
    int nChildren;
    long lParent;  ///< what MoveParent gives
    int nVisited = 0;

    long MoveFirstChild() const { return nChildren > 0 ? STATUS_OK : STATUS_NG; }
    long MoveNextSibling() const { return nVisited < nChildren ? STATUS_OK : STATUS_NG; }
    long MoveParent() const { return lParent; }

    /// \param nLast  The child at which the visit gives STATUS_NG, from 1.
    int Walk(int nLast = 0)
    {
        return WalkChildren(*this, "Walker::Walk", [nLast](CountingCursor& cursor) {
            return ++cursor.nVisited == nLast ? STATUS_NG : STATUS_OK;
        });
    }
};

using ChildWalkTest = ResetState;

TEST_F(ChildWalkTest, VisitsEveryChildAndLogsNothing)
{
    const DebugLog log;
    CountingCursor cursor = {3, STATUS_OK};
    EXPECT_EQ(cursor.Walk(), STATUS_OK);
    EXPECT_EQ(cursor.nVisited, 3);
    EXPECT_EQ(log.Text(), "");
}

TEST_F(ChildWalkTest, WithoutAChildDoesNotMove)
{
    const DebugLog log;
    CountingCursor cursor = {0, STATUS_NG};
    EXPECT_EQ(cursor.Walk(), STATUS_OK);
    EXPECT_EQ(cursor.nVisited, 0);
    EXPECT_EQ(log.Text(), "");
}

TEST_F(ChildWalkTest, EndsAtTheFirstVisitThatFails)
{
    const DebugLog log;
    CountingCursor cursor = {3, STATUS_OK};
    EXPECT_EQ(cursor.Walk(2), STATUS_NG);
    EXPECT_EQ(cursor.nVisited, 2);
    EXPECT_EQ(log.Text(), "");
}

TEST_F(ChildWalkTest, FailsAndLogsIfTheCursorCannotReturn)
{
    const DebugLog log;
    CountingCursor cursor = {3, STATUS_NG};
    EXPECT_EQ(cursor.Walk(), STATUS_NG);
    EXPECT_EQ(cursor.nVisited, 3);
    EXPECT_EQ(WholeLog(log), "[Walker::Walk]\n定義体のDOM操作に失敗しました。\n");
}

// --- run over records ---

TEST_F(ValidatorTest, NullInsteadOfAFileRaises)
{
    const DebugLog log;
    ASSERT_EQ(Fill("<valid id=\"exist\"/>"), STATUS_OK);
    EXPECT_EQ(Told([&] { return m_validator.ValidateCsv(nullptr, 0, -1); }), RAISES);
    EXPECT_EQ(WholeLog(log),
              "[KZCEkaValidator::ValidateCsv]\n引数エラー。CSV格納情報が不正です。\n");
}

TEST_F(ValidatorTest, NullInsteadOfAFileRaisesWithAnEmptyListToo)
{
    EXPECT_EQ(Told([&] { return m_validator.ValidateCsv(nullptr, 0, -1); }), RAISES);
}

TEST_F(ValidatorTest, AnEmptyListPasses)
{
    EXPECT_EQ(OnRow(TableCsv{{"001", ""}}), PASSES);
    EXPECT_EQ(OnText(""), PASSES);
    EXPECT_EQ(OnText(nullptr), PASSES);
}

TEST_F(ValidatorTest, OfTwoChecksThatWouldRefuseOnlyTheFirstIsRecorded)
{
    ASSERT_EQ(Fill("<valid id=\"number\"/><valid id=\"length\" value=\"3\"/>"), STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "x"}}), "refuses 0001-00002-HE70004E");
    EXPECT_EQ(OnText("x"), "refuses 9999-00003-HE70004E");
}

TEST_F(ValidatorTest, TheOrderOfTheElementsIsThePriority)
{
    ASSERT_EQ(Fill("<valid id=\"length\" value=\"3\"/><valid id=\"number\"/>"), STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "x"}}), "refuses 0001-00002-HE70008E");
}

TEST_F(ValidatorTest, TheLastCheckDecidesIfTheOthersPass)
{
    ASSERT_EQ(Fill("<valid id=\"exist\"/><valid id=\"number\"/><valid id=\"length\" value=\"3\"/>"),
              STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "12"}}), "refuses 0001-00002-HE70008E");
    EXPECT_EQ(OnRow(TableCsv{{"001", "123"}}), PASSES);
}

TEST_F(ValidatorTest, ARefusedRecordDoesNotStopTheNext)
{
    ASSERT_EQ(Fill("<valid id=\"number\"/><valid id=\"length\" value=\"3\"/>"), STATUS_OK);
    const TableCsv csv{{"001", "x"}, {"001", "12"}, {"001", "123"}};
    EXPECT_EQ(OnRow(csv, 0), "refuses 0001-00002-HE70004E");
    EXPECT_EQ(OnRow(csv, 1), "refuses 0002-00002-HE70008E");
    EXPECT_EQ(OnRow(csv, 2), PASSES);
}

TEST_F(ValidatorTest, BehindASkippedCheckTheNextStillRuns)
{
    ASSERT_EQ(Fill("<valid id=\"length\" value=\"3\"><outer id=\"exist\" column=\"3\"/></valid>"
                   "<valid id=\"number\"/>"),
              STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "x", ""}}), "refuses 0001-00002-HE70004E");
}

TEST_F(ValidatorTest, ASkippedLastCheckPasses)
{
    ASSERT_EQ(Fill("<valid id=\"number\"/>"
                   "<valid id=\"length\" value=\"3\"><outer id=\"exist\" column=\"3\"/></valid>"),
              STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "1", ""}}), PASSES);
}

TEST_F(ValidatorTest, NonerrStopsTheListWithoutARecord)
{
    ASSERT_EQ(Fill("<valid id=\"nonerr\" value=\"3\"/><valid id=\"exist\"/>"), STATUS_OK);
    const TableCsv csv{{"001", "", "x"}, {"001", "", "x"}};
    KZCValidResult::instance()->SetResult(HE70004E, 1, 3, SINGLE_COLUMN);
    EXPECT_EQ(OnRow(csv, 0), "refuses 0001-00003-HE70004E");
    EXPECT_EQ(OnRow(csv, 1), "refuses 0002-00002-HE70001E");
}

TEST_F(ValidatorTest, AFaultOfTheDefinitionPassesThrough)
{
    ASSERT_EQ(Fill("<valid id=\"range\" min=\"5\" max=\"1\"/><valid id=\"exist\"/>"), STATUS_OK);
    EXPECT_EQ(OnRow(TableCsv{{"001", "3"}}), RAISES);
    EXPECT_EQ(OnText("3"), RAISES);
}

// --- run over a bare value ---

TEST_F(ValidatorTest, ABareValueIsReportedWithTheNumbersAsTheyStand)
{
    ASSERT_EQ(Fill("<valid id=\"number\"/>"), STATUS_OK);
    EXPECT_EQ(Told([&] { return m_validator.Validate("x", 9999, 12); }),
              "refuses 9999-00012-HE70004E");
    EXPECT_EQ(Told([&] { return m_validator.Validate("1", 9999, 12); }), PASSES);
}

// --- filled anew ---

TEST_F(ValidatorTest, IsEmptyAfterClear)
{
    ASSERT_EQ(Fill("<valid id=\"exist\"/>"), STATUS_OK);
    m_validator.Clear();
    EXPECT_EQ(OnRow(TableCsv{{"001", ""}}), PASSES);
}

TEST_F(ValidatorTest, CanBeClearedTwice)
{
    ASSERT_EQ(Fill("<valid id=\"exist\"/>"), STATUS_OK);
    m_validator.Clear();
    m_validator.Clear();
    EXPECT_EQ(OnRow(TableCsv{{"001", ""}}), PASSES);
}

TEST_F(ValidatorTest, FillingFromADefinitionReplacesTheList)
{
    ASSERT_EQ(m_validator.Initialize(ARG_KEY, true), STATUS_OK);
    ASSERT_EQ(Fill("<valid id=\"number\"/>"), STATUS_OK);
    EXPECT_EQ(OnText(""), PASSES);
    EXPECT_EQ(OnText("x"), "refuses 9999-00003-HE70004E");
}

TEST_F(ValidatorTest, FillingFromAnElementWithoutChecksEmptiesTheList)
{
    ASSERT_EQ(m_validator.Initialize(ARG_KEY, true), STATUS_OK);
    ASSERT_EQ(Fill(""), STATUS_OK);
    EXPECT_EQ(OnText(""), PASSES);
}

TEST_F(ValidatorTest, FillingFromTheArgumentTableReplacesTheList)
{
    ASSERT_EQ(Fill("<valid id=\"number\"/>"), STATUS_OK);
    ASSERT_EQ(m_validator.Initialize(ARG_PROCEDURE_CD_CROSSBORDER, true), STATUS_OK);
    EXPECT_EQ(OnText("PGE1650"), PASSES);
}

TEST_F(ValidatorTest, FillingFromTheArgumentTableTwiceKeepsTheLast)
{
    ASSERT_EQ(m_validator.Initialize(ARG_KEY, true), STATUS_OK);
    ASSERT_EQ(m_validator.Initialize(ARG_KEY_FINANCE, true), STATUS_OK);
    EXPECT_EQ(OnText("6"), PASSES);
}

// --- filled from the argument table ---

class ValidatorRefusedTypeTest : public ValidatorTest, public testing::WithParamInterface<int>
{};

TEST_P(ValidatorRefusedTypeTest, RaisesAndLogs)
{
    const DebugLog log;
    EXPECT_EQ(
        Told([&] { return m_validator.Initialize(static_cast<KZCArgValid_t>(GetParam()), true); }),
        RAISES);
    EXPECT_EQ(WholeLog(log), INITIALIZE + "存在しない引数チェックタイプが指定されました。\n" +
                                 INITIALIZE + "validateの初期処理中にエラーが発生しました。\n");
}

TEST_P(ValidatorRefusedTypeTest, EmptiesTheList)
{
    ASSERT_EQ(m_validator.Initialize(ARG_KEY, true), STATUS_OK);
    EXPECT_EQ(
        Told([&] { return m_validator.Initialize(static_cast<KZCArgValid_t>(GetParam()), true); }),
        RAISES);
    EXPECT_EQ(OnText(""), PASSES);
}

// 6 has rows in the table and is refused all the same.
INSTANTIATE_TEST_SUITE_P(Types, ValidatorRefusedTypeTest, testing::Values(-1, 0, 6, 27, 1000));

class ValidatorTypeTest : public ValidatorTest, public testing::WithParamInterface<int>
{};

TEST_P(ValidatorTypeTest, IsFilledWhateverTheFlag)
{
    EXPECT_EQ(m_validator.Initialize(static_cast<KZCArgValid_t>(GetParam()), true), STATUS_OK);
    EXPECT_EQ(m_validator.Initialize(static_cast<KZCArgValid_t>(GetParam()), false), STATUS_OK);
}

INSTANTIATE_TEST_SUITE_P(BelowTheRefusedOne, ValidatorTypeTest, testing::Range(1, 6));
INSTANTIATE_TEST_SUITE_P(AboveTheRefusedOne, ValidatorTypeTest, testing::Range(7, 27));

/// A validator that is filled from rows of the test's own.
class RowValidator final : public KZCEkaValidator
{
public:
    using KZCEkaValidator::MakeItems;
};

using ValidatorRowTest = ResetState;

TEST_F(ValidatorRowTest, AnUnknownKeywordRaises)
{
    constexpr ArgValidRow ROWS[] = {{.szId = "exist"}, {.szId = "unknown"}};
    RowValidator validator;
    const DebugLog log;
    EXPECT_EQ(Raised([&] { validator.MakeItems(ROWS); }), std::optional(FAULT));
    EXPECT_EQ(WholeLog(log), CREATE_ITEM + "不明なValidのidが指定されています。 unknown\n" +
                                 INITIALIZE + "チェックアイテムが作成できません。\n");
}

TEST_F(ValidatorRowTest, AnUnknownConditionRaisesAndItsCheckIsNotKept)
{
    constexpr ArgValidRow ROWS[] = {{.szId = "exist", .szOuterId = "unknown"}};
    RowValidator validator;
    const DebugLog log;
    EXPECT_EQ(Raised([&] { validator.MakeItems(ROWS); }), std::optional(FAULT));
    EXPECT_EQ(WholeLog(log), CREATE_ITEM + "不明なValidのidが指定されています。 unknown\n" +
                                 INITIALIZE + "外部条件アイテムが作成できません。\n");
    EXPECT_EQ(validator.Validate("", ARGUMENT_RECORD, ARGUMENT_NUMBER), STATUS_OK);
}

TEST_F(ValidatorRowTest, AConditionTakesItsOwnParametersAndNoMessage)
{
    constexpr ArgValidRow ROWS[] = {{.szId = "length",
                                     .szValue = "3",
                                     .szOuterId = "range",
                                     .szOuterValue = "unread",
                                     .szOuterMin = "5",
                                     .szOuterMax = "70",
                                     .eMessage = HE70010E}};
    RowValidator validator;
    validator.MakeItems(ROWS);
    const auto told = [&](const char* szValue) {
        return Told([&] { return validator.Validate(szValue, ARGUMENT_RECORD, ARGUMENT_NUMBER); });
    };
    EXPECT_EQ(told("4"), PASSES);
    EXPECT_EQ(told("5"), Verdict(HE70010E));
    EXPECT_EQ(told("70"), Verdict(HE70010E));
    EXPECT_EQ(told("71"), PASSES);
}

TEST_F(ValidatorTest, AConditionOfTheArgumentTableGatesItsCheck)
{
    ASSERT_EQ(m_validator.Initialize(ARG_KOJINBANGO, true), STATUS_OK);
    const DebugLog log;
    EXPECT_EQ(OnText(""), PASSES);
    // Once for each of the two rows.
    EXPECT_EQ(WholeLog(log), "外部条件チェックアウトです。\n外部条件チェックアウトです。\n");
    EXPECT_EQ(OnText("12345678901"), "refuses 9999-00003-HE70008E");
}

TEST_F(ValidatorTest, TheFlagOfTheArgumentTableChangesNothing)
{
    for (bool bCheck : {false, true}) {
        ASSERT_EQ(m_validator.Initialize(ARG_KEY, bCheck), STATUS_OK);
        EXPECT_EQ(OnText(""), "refuses 9999-00003-HE70001E");
        EXPECT_EQ(OnText("6"), "refuses 9999-00003-HE70009E");
        EXPECT_EQ(OnText("5"), PASSES);
    }
}

}  // namespace
