#include "definition/KZCEkaMOKDefineNode.h"

#include <gmock/gmock.h>

#include <memory>
#include <ostream>
#include <string>
#include <typeinfo>
#include <vector>

#include "definition/KZCEkaMOKDefBango.h"
#include "definition/KZCEkaMOKDefDate.h"
#include "definition/KZCEkaMOKDefIdRef.h"
#include "definition/KZCEkaMOKDefKubun.h"
#include "definition/KZCEkaMOKDefNormal.h"
#include "definition/KZCEkaMOKDefTAG.h"
#include "definition/KZCEkaMOKDefZeimusho.h"
#include "definition/KZCEkaMOKDefZip.h"
#include "fault/Fault.h"
#include "support/CheckItem.h"
#include "support/GenerationCsv.h"
#include "support/LogMessages.h"
#include "support/NodeTree.h"
#include "support/Raised.h"
#include "support/ResetState.h"

namespace {

using Records = std::vector<KZCEkaCsvFile::Record>;

/// A file of so many records of two cells.
GenerationCsv CsvOf(int nRecords)
{
    Records vecRecord;
    for (int n = 1; n <= nRecords; ++n)
        vecRecord.push_back({"003", "v" + std::to_string(n)});
    return GenerationCsv(std::move(vecRecord));
}

class DefineNodeTest : public ResetState
{
protected:
    DefineNodeTest() : m_csv(Records{{"003", "a", "b"}}) {}

    GenerationCsv m_csv;
};

// ---- making nodes ------------------------------------------------------------------------------

struct KindCase
{
    const char* szName;
    const std::type_info& type;
};

void PrintTo(const KindCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class DefineNodeKindTest : public ResetState, public testing::WithParamInterface<KindCase>
{};

TEST_P(DefineNodeKindTest, MakesItsClass)
{
    const auto pNode =
        CreateNode(std::string("<item type=\"") + GetParam().szName + "\" id=\"A\"/>");
    ASSERT_NE(pNode, nullptr);
    const KZCEkaMOKDefineNode& node = *pNode;
    EXPECT_TRUE(typeid(node) == GetParam().type);
    EXPECT_STREQ(node.GetName(), "A");
}

const KindCase KIND_CASES[] = {
    {"Normal", typeid(KZCEkaMOKDefNormal)}, {"Kubun", typeid(KZCEkaMOKDefKubun)},
    {"Date", typeid(KZCEkaMOKDefDate)},     {"Zeimusho", typeid(KZCEkaMOKDefZeimusho)},
    {"Zip", typeid(KZCEkaMOKDefZip)},       {"Bango", typeid(KZCEkaMOKDefBango)},
    {"IdRef", typeid(KZCEkaMOKDefIdRef)},   {"TAG", typeid(KZCEkaMOKDefTAG)},
};

INSTANTIATE_TEST_SUITE_P(Kinds, DefineNodeKindTest, testing::ValuesIn(KIND_CASES), CaseName());

struct TextCase
{
    const char* szName;
    const char* szText;
};

void PrintTo(const TextCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class DefineNodeUnknownKindTest : public ResetState, public testing::WithParamInterface<TextCase>
{};

TEST_P(DefineNodeUnknownKindTest, GivesNullAndIsLogged)
{
    const DebugLog log;
    EXPECT_EQ(CreateNode(GetParam().szText), nullptr);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("EKA定義ファイルエラー"));
}

constexpr TextCase UNKNOWN_KIND_CASES[] = {
    {"None", R"(<item id="A"/>)"},
    {"Empty", R"(<item type="" id="A"/>)"},
    {"AnotherCase", R"(<item type="normal" id="A"/>)"},
    {"TagInSmallLetters", R"(<item type="Tag" id="A"/>)"},
    {"BlankBehindIt", R"(<item type="Normal " id="A"/>)"},
    {"Unknown", R"(<item type="Report" id="A"/>)"},
};

INSTANTIATE_TEST_SUITE_P(Kinds,
                         DefineNodeUnknownKindTest,
                         testing::ValuesIn(UNKNOWN_KIND_CASES),
                         CaseName());

TEST_F(DefineNodeTest, NullDomGivesNullAndALogEntryWithoutText)
{
    const DebugLog log;
    EXPECT_EQ(KZCEkaMOKDefineNode::CreateNode(nullptr, true), nullptr);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre(""));
    EXPECT_THAT(log.Text(), testing::HasSubstr("KZCEkaMOKDefineNode::CreateNode--\n"));
}

TEST_F(DefineNodeTest, InitializeWithNullDomFails)
{
    KZCEkaMOKDefineNode node;
    EXPECT_EQ(node.Initialize(nullptr, true), STATUS_NG);
}

TEST_F(DefineNodeTest, UnknownCheckKeywordGivesNull)
{
    const DebugLog log;
    EXPECT_EQ(CreateNode(R"(<item type="Normal" id="A"><valid id="Exist"/></item>)", true),
              nullptr);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("不明なValidのidが指定されています。 Exist",
                                                       "チェックアイテムが作成できません。", "",
                                                       "想定外エラーが発生しました。"));
}

TEST_F(DefineNodeTest, UnknownCheckKeywordIsNotReadWithoutChecks)
{
    const auto pNode =
        CreateNode(R"(<item type="Normal" id="A"><valid id="Exist"/></item>)", false);
    ASSERT_NE(pNode, nullptr);
    EXPECT_FALSE(NodePeek::HasValidator(*pNode));
}

TEST_F(DefineNodeTest, ItemWithoutChildrenHasNoValidator)
{
    const auto pNode = CreateNode(R"(<item type="Normal" id="A"/>)", true);
    EXPECT_FALSE(NodePeek::HasValidator(*pNode));
}

TEST_F(DefineNodeTest, ItemOfWhiteSpaceHasAnEmptyValidator)
{
    const auto pNode = CreateNode("<item type=\"Normal\" id=\"A\" column=\"9\">\n  </item>", true);
    EXPECT_TRUE(NodePeek::HasValidator(*pNode));
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&m_csv, 0); }), PASSES);
}

TEST_F(DefineNodeTest, ItemOfOtherElementsHasAnEmptyValidator)
{
    const auto pNode = CreateNode(
        R"(<item type="Normal" id="A" column="9"><outer id="exist" column="1"/><Valid id="exist"/></item>)",
        true);
    EXPECT_TRUE(NodePeek::HasValidator(*pNode));
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&m_csv, 0); }), PASSES);
}

TEST_F(DefineNodeTest, AttributesBecomeMembers)
{
    const auto pNode = CreateNode(
        R"(<item type="Normal" id="gen:era" parent="P" column="12" startRow="2" endRow="-1")"
        R"( lastRecord="1" repeatTopTag="1" label="年号"/>)");
    EXPECT_STREQ(pNode->GetName(), "gen:era");
    EXPECT_STREQ(pNode->GetParentName(), "P");
    EXPECT_EQ(pNode->GetColumn(), 11);
    EXPECT_EQ(pNode->getStartRow(), 2);
    EXPECT_EQ(pNode->getEndRow(), -1);
    EXPECT_EQ(pNode->getLastRecord(), 1);
    EXPECT_EQ(pNode->getRepeatTopTag(), "1");
}

TEST_F(DefineNodeTest, AbsentAttributesHaveTheirDefaults)
{
    const auto pNode = CreateNode(R"(<item type="Normal"/>)");
    EXPECT_STREQ(pNode->GetName(), "");
    EXPECT_STREQ(pNode->GetParentName(), "");
    EXPECT_EQ(pNode->GetColumn(), -1);
    EXPECT_EQ(pNode->getStartRow(), 0);
    EXPECT_EQ(pNode->getEndRow(), 0);
    EXPECT_EQ(pNode->getLastRecord(), 0);
    EXPECT_EQ(pNode->getRepeatTopTag(), "");
}

struct ColumnCase
{
    const char* szName;
    const char* szText;
    std::int64_t nColumn;
};

void PrintTo(const ColumnCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class DefineNodeColumnTest : public ResetState, public testing::WithParamInterface<ColumnCase>
{};

TEST_P(DefineNodeColumnTest, CountsFromZero)
{
    const auto pNode =
        CreateNode(std::string("<item type=\"Normal\" column=\"") + GetParam().szText + "\"/>");
    EXPECT_EQ(pNode->GetColumn(), GetParam().nColumn);
}

constexpr ColumnCase COLUMN_CASES[] = {
    {"One", "1", 0},   {"Forty", "40", 39},    {"Zero", "0", -1},         {"Negative", "-3", -1},
    {"Empty", "", -1}, {"NoNumber", "x2", -1}, {"TextBehindIt", "3x", 2}, {"BlankInFront", " 3", 2},
};

INSTANTIATE_TEST_SUITE_P(Texts, DefineNodeColumnTest, testing::ValuesIn(COLUMN_CASES), CaseName());

// ---- finding the parent ------------------------------------------------------------------------

TEST_F(DefineNodeTest, LastRecordIsReadAsANumber)
{
    for (const char* szText : {"1", " 1", "1x", "01", "+1"})
        EXPECT_EQ(CreateNode(std::string(R"(<item type="TAG" lastRecord=")") + szText + "\"/>")
                      ->getLastRecord(),
                  1)
            << szText;
    EXPECT_EQ(CreateNode(R"(<item type="TAG" lastRecord="x1"/>)")->getLastRecord(), 0);
}

struct LocateCase
{
    const char* szName;
    const char* szParentGeneration;
    const char* szChildGeneration;
    int nResult;
    const char* szShape;
};

void PrintTo(const LocateCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class DefineNodeLocateTest : public ResetState, public testing::WithParamInterface<LocateCase>
{};

TEST_P(DefineNodeLocateTest, AttachesByGeneration)
{
    const auto pParent = CreateNode(std::string(R"(<item type="Normal" id="P" generation=")") +
                                    GetParam().szParentGeneration + "\"/>");
    auto pChild = CreateNode(std::string(R"(<item type="Normal" id="C" parent="P" generation=")") +
                             GetParam().szChildGeneration + "\"/>");
    EXPECT_EQ(Hang(*pParent, std::move(pChild)), GetParam().nResult);
    EXPECT_EQ(NodePeek::Shape(*pParent), GetParam().szShape);
}

constexpr LocateCase LOCATE_CASES[] = {
    {"BothEmpty", "", "", 0, "P(C)"},
    {"SameText", "junior", "junior", 0, "P.junior(C.junior)"},
    {"SameUnknownText", "x", "x", 0, "P.x(C.x)"},
    {"ChildAlone", "", "senior", 0, "P(C.senior)"},
    {"ParentAlone", "junior", "", 1, "P.junior(C)"},
    {"Different", "junior", "senior", -1, "P.junior"},
    {"DifferentCase", "junior", "Junior", -1, "P.junior"},
};

INSTANTIATE_TEST_SUITE_P(Generations,
                         DefineNodeLocateTest,
                         testing::ValuesIn(LOCATE_CASES),
                         CaseName());

TEST_F(DefineNodeTest, NullChildGivesTheDefaultAndALogEntryWithoutText)
{
    const DebugLog log;
    KZCEkaMOKDefineNode node;
    EXPECT_EQ(node.LocateNode(nullptr, -1), -1);
    EXPECT_EQ(node.LocateNode(nullptr, 7), 7);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("", ""));
    EXPECT_THAT(log.Text(), testing::HasSubstr("KZCEkaMOKDefineNode::LocateNode--\n"));
}

TEST_F(DefineNodeTest, UnknownParentGivesTheDefault)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    const auto pChild = CreateNode(R"(<item type="Normal" id="C" parent="X"/>)");
    EXPECT_EQ(pRoot->LocateNode(pChild.get(), -1), -1);
    EXPECT_EQ(pRoot->LocateNode(pChild.get(), 5), 5);
    EXPECT_EQ(NodePeek::Shape(*pRoot), "R");
}

TEST_F(DefineNodeTest, NodeIsNotItsOwnParent)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    const auto pChild = CreateNode(R"(<item type="Normal" id="C" parent="C"/>)");
    EXPECT_EQ(pRoot->LocateNode(pChild.get(), -1), -1);
}

TEST_F(DefineNodeTest, ChildrenKeepTheOrderOfTheirAttachment)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    HangAll(*pRoot, {R"(<item type="Normal" id="A" parent="R"/>)",
                     R"(<item type="Normal" id="B" parent="R"/>)",
                     R"(<item type="Normal" id="C" parent="A"/>)"});
    EXPECT_EQ(NodePeek::Shape(*pRoot), "R(A(C),B)");
}

TEST_F(DefineNodeTest, OfParentsWithOneNameTheLastIsFound)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    HangAll(*pRoot, {R"(<item type="Normal" id="A" parent="R"/>)",
                     R"(<item type="Normal" id="A" parent="R"/>)",
                     R"(<item type="Normal" id="C" parent="A"/>)"});
    EXPECT_EQ(NodePeek::Shape(*pRoot), "R(A,A(C))");
}

TEST_F(DefineNodeTest, NodeIsLookedAtBeforeItsChildren)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="A"/>)");
    HangAll(*pRoot, {R"(<item type="Normal" id="A" parent="A"/>)",
                     R"(<item type="Normal" id="C" parent="A"/>)"});
    EXPECT_EQ(NodePeek::Shape(*pRoot), "A(A,C)");
}

TEST_F(DefineNodeTest, ChildWithoutGenerationBelongsToTheParentsOfBoth)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    HangAll(*pRoot, {R"(<item type="Normal" id="A" parent="R" generation="junior"/>)",
                     R"(<item type="Normal" id="A" parent="R" generation="senior"/>)"});
    EXPECT_EQ(Hang(*pRoot, CreateNode(R"(<item type="Normal" id="C" parent="A"/>)")), 1);
    EXPECT_EQ(NodePeek::Shape(*pRoot), "R(A.junior(C),A.senior(C))");
}

TEST_F(DefineNodeTest, ChildWithGenerationGoesToTheParentOfThatGeneration)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    HangAll(*pRoot, {R"(<item type="Normal" id="A" parent="R" generation="junior"/>)",
                     R"(<item type="Normal" id="A" parent="R" generation="senior"/>)"});
    EXPECT_EQ(
        Hang(*pRoot, CreateNode(R"(<item type="Normal" id="C" parent="A" generation="junior"/>)")),
        0);
    EXPECT_EQ(NodePeek::Shape(*pRoot), "R(A.junior(C.junior),A.senior)");
}

TEST_F(DefineNodeTest, ExactMatchEndsTheSearchForParentsOfBoth)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    HangAll(*pRoot, {R"(<item type="Normal" id="A" parent="R" generation="junior"/>)",
                     R"(<item type="Normal" id="A" parent="R"/>)",
                     R"(<item type="Normal" id="A" parent="R" generation="senior"/>)"});
    EXPECT_EQ(Hang(*pRoot, CreateNode(R"(<item type="Normal" id="C" parent="A"/>)")), 0);
    EXPECT_EQ(NodePeek::Shape(*pRoot), "R(A.junior,A(C),A.senior(C))");
}

TEST_F(DefineNodeTest, SearchGoesOnBelowAParentOfAGeneration)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="A" generation="junior"/>)");
    HangAll(*pRoot, {R"(<item type="Normal" id="B" parent="A" generation="junior"/>)"});
    HangAll(*pRoot, {R"(<item type="Normal" id="A" parent="B" generation="junior"/>)"});
    EXPECT_EQ(Hang(*pRoot, CreateNode(R"(<item type="Normal" id="C" parent="A"/>)")), 1);
    EXPECT_EQ(NodePeek::Shape(*pRoot), "A.junior(B.junior(A.junior(C)),C)");
}

TEST_F(DefineNodeTest, ChildOfBothThatBearsItsParentsNameIsNotItsOwnParent)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    HangAll(*pRoot, {R"(<item type="Normal" id="A" parent="R" generation="junior"/>)"});
    ASSERT_EQ(Hang(*pRoot, CreateNode(R"(<item type="Normal" id="A" parent="A"/>)")), 1);
    EXPECT_EQ(NodePeek::Shape(*pRoot), "R(A.junior(A))");
}

TEST_F(DefineNodeTest, SharedParentIsReachedOnEachOfItsWays)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    HangAll(*pRoot, {R"(<item type="Normal" id="A" parent="R" generation="junior"/>)",
                     R"(<item type="Normal" id="A" parent="R" generation="senior"/>)",
                     R"(<item type="Normal" id="B" parent="A"/>)",
                     R"(<item type="Normal" id="C" parent="B" generation="junior"/>)",
                     R"(<item type="Normal" id="C" parent="B" generation="senior"/>)",
                     R"(<item type="Normal" id="D" parent="C"/>)"});
    EXPECT_EQ(
        NodePeek::Shape(*pRoot),
        "R(A.junior(B(C.junior(D,D),C.senior(D,D))),A.senior(B(C.junior(D,D),C.senior(D,D))))");
}

// ---- finding the parent by name alone ----------------------------------------------------------

/// Hangs a node by name alone. \return What LocateNodeFinance returned for the default -1.
int HangByName(KZCEkaMOKDefineNode& root, bool bValidate, const char* szItem)
{
    auto pNode = CreateNode(szItem);
    const int nResult = root.LocateNodeFinance(pNode.get(), bValidate, -1);
    if (nResult >= 0)
        static_cast<void>(pNode.release());
    return nResult;
}

TEST_F(DefineNodeTest, ByNameNullChildGivesTheDefault)
{
    KZCEkaMOKDefineNode node;
    EXPECT_EQ(node.LocateNodeFinance(nullptr, true, -1), -1);
    EXPECT_EQ(node.LocateNodeFinance(nullptr, true, 7), 7);
}

TEST_F(DefineNodeTest, ByNameWithoutParentHangsDirectlyWithChecks)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    EXPECT_EQ(HangByName(*pRoot, true, R"(<item type="Normal" id="A" parent="R"/>)"), 0);
    EXPECT_EQ(HangByName(*pRoot, true, R"(<item type="Normal" id="B"/>)"), 0);
    EXPECT_EQ(NodePeek::Shape(*pRoot), "R(A,B)");
}

TEST_F(DefineNodeTest, ByNameWithoutParentFindsNoneWithoutChecks)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    EXPECT_EQ(HangByName(*pRoot, false, R"(<item type="Normal" id="B"/>)"), -1);
    EXPECT_EQ(NodePeek::Shape(*pRoot), "R");
}

TEST_F(DefineNodeTest, ByNameGenerationPlaysNoPart)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R" generation="junior"/>)");
    EXPECT_EQ(
        HangByName(*pRoot, false, R"(<item type="Normal" id="A" parent="R" generation="senior"/>)"),
        0);
    EXPECT_EQ(NodePeek::Shape(*pRoot), "R.junior(A.senior)");
}

TEST_F(DefineNodeTest, ByNameTheLastOfEqualParentsIsFoundAndEndsTheSearch)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    EXPECT_EQ(
        HangByName(*pRoot, false, R"(<item type="Normal" id="A" parent="R" generation="junior"/>)"),
        0);
    EXPECT_EQ(
        HangByName(*pRoot, false, R"(<item type="Normal" id="A" parent="R" generation="senior"/>)"),
        0);
    EXPECT_EQ(HangByName(*pRoot, false, R"(<item type="Normal" id="C" parent="A"/>)"), 0);
    EXPECT_EQ(NodePeek::Shape(*pRoot), "R(A.junior,A.senior(C))");
}

TEST_F(DefineNodeTest, ByNameDeepParentIsFoundAndAnUnknownOneIsNot)
{
    const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    EXPECT_EQ(HangByName(*pRoot, true, R"(<item type="Normal" id="A" parent="R"/>)"), 0);
    EXPECT_EQ(HangByName(*pRoot, true, R"(<item type="Normal" id="B" parent="A"/>)"), 0);
    EXPECT_EQ(HangByName(*pRoot, true, R"(<item type="Normal" id="C" parent="B"/>)"), 0);
    EXPECT_EQ(HangByName(*pRoot, true, R"(<item type="Normal" id="D" parent="X"/>)"), -1);
    EXPECT_EQ(NodePeek::Shape(*pRoot), "R(A(B(C)))");
}

// ---- sharing and destruction -------------------------------------------------------------------

/// A node that counts its destruction.
class CountedNode final : public KZCEkaMOKDefineNode
{
public:
    CountedNode(int& nDestroyed, const char* szName, const char* szParent, const char* szGeneration)
        : m_nDestroyed(nDestroyed)
    {
        m_strName = szName;
        m_strParent = szParent;
        m_strGeneration = szGeneration;
    }
    ~CountedNode() override { ++m_nDestroyed; }

private:
    int& m_nDestroyed;
};

TEST_F(DefineNodeTest, NodeSharedByTwoParentsIsDestroyedOnce)
{
    int nDestroyed = 0;
    {
        const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
        HangAll(*pRoot, {R"(<item type="Normal" id="A" parent="R" generation="junior"/>)",
                         R"(<item type="Normal" id="A" parent="R" generation="senior"/>)"});
        ASSERT_EQ(Hang(*pRoot, std::make_unique<CountedNode>(nDestroyed, "C", "A", "")), 1);
        EXPECT_EQ(NodePeek::Shape(*pRoot), "R(A.junior(C),A.senior(C))");
        EXPECT_EQ(nDestroyed, 0);
    }
    EXPECT_EQ(nDestroyed, 1);
}

TEST_F(DefineNodeTest, NodeSharedByTwoTreesGoesWithTheLastOfThem)
{
    int nDestroyed = 0;
    auto pFirst = CreateNode(R"(<item type="Normal" id="A"/>)");
    auto pSecond = CreateNode(R"(<item type="Normal" id="A"/>)");
    auto pChild = std::make_unique<CountedNode>(nDestroyed, "C", "A", "");
    ASSERT_EQ(pFirst->LocateNode(pChild.get(), -1), 0);
    ASSERT_EQ(pSecond->LocateNode(pChild.get(), -1), 0);
    static_cast<void>(pChild.release());
    pFirst.reset();
    EXPECT_EQ(nDestroyed, 0);
    pSecond.reset();
    EXPECT_EQ(nDestroyed, 1);
}

TEST_F(DefineNodeTest, NodeThatFoundNoParentStaysItsMakers)
{
    int nDestroyed = 0;
    auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
    auto pChild = std::make_unique<CountedNode>(nDestroyed, "C", "X", "");
    EXPECT_EQ(pRoot->LocateNode(pChild.get(), -1), -1);
    pRoot.reset();
    EXPECT_EQ(nDestroyed, 0);
}

TEST_F(DefineNodeTest, ChildrenGoWithTheirParents)
{
    int nDestroyed = 0;
    {
        const auto pRoot = CreateNode(R"(<item type="Normal" id="R"/>)");
        ASSERT_EQ(Hang(*pRoot, std::make_unique<CountedNode>(nDestroyed, "A", "R", "")), 0);
        ASSERT_EQ(Hang(*pRoot, std::make_unique<CountedNode>(nDestroyed, "B", "A", "")), 0);
    }
    EXPECT_EQ(nDestroyed, 2);
}

TEST_F(DefineNodeTest, CounterGivesItsNewValue)
{
    KZCEkaMOKDefineNode node;
    EXPECT_EQ(node.GenerationAddref(), 1u);
    EXPECT_EQ(node.GenerationAddref(), 2u);
    EXPECT_EQ(node.GenerationRelease(), 1u);
    EXPECT_EQ(node.GenerationRelease(), 0u);
}

// ---- writing -----------------------------------------------------------------------------------

TEST_F(DefineNodeTest, CellStandsBetweenItsTags)
{
    const auto pNode = CreateNode(R"(<item type="Normal" id="A" column="2"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<A>a</A>");
}

TEST_F(DefineNodeTest, KubunWritesAsNormalDoes)
{
    const auto pNode = CreateNode(R"(<item type="Kubun" id="A" column="2"/>)");
    HangAll(*pNode, {R"(<item type="Kubun" id="B" parent="A" column="3"/>)"});
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<A>a<B>b</B></A>");
}

TEST_F(DefineNodeTest, DateWritesAsNormalDoes)
{
    const auto pNode = CreateNode(R"(<item type="Date" id="A"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="gen:era" parent="A" column="2"/>)"});
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<A><gen:era>a</gen:era></A>");
}

TEST_F(DefineNodeTest, NothingToSayGivesNoTag)
{
    const auto pNode = CreateNode(R"(<item type="Normal" id="A"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="B" parent="A" column="9"/>)"});
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "");
}

TEST_F(DefineNodeTest, ValueStandsBeforeTheChildren)
{
    const auto pNode = CreateNode(R"(<item type="Normal" id="A" column="3"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="B" parent="A" column="2"/>)",
                     R"(<item type="Normal" id="C" parent="A" column="1"/>)"});
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<A>b<B>a</B><C>003</C></A>");
}

TEST_F(DefineNodeTest, RecordOutOfRangeGivesNothing)
{
    const auto pNode = CreateNode(R"(<item type="Normal" id="A" column="2"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 1), "");
    EXPECT_EQ(pNode->WriteNode(&m_csv, -1), "");
}

TEST_F(DefineNodeTest, ChildOfAGenerationIsWrittenForItsRecordsAlone)
{
    const GenerationCsv csv(Records{{"001", "a", "b"}, {"001", "a", "b"}, {"001", "a", "b"}},
                            {{0, "junior"}, {1, "senior"}});
    const auto pNode = CreateNode(R"(<item type="Normal" id="R"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="J" parent="R" column="2" generation="junior"/>)",
                     R"(<item type="Normal" id="S" parent="R" column="2" generation="senior"/>)",
                     R"(<item type="Normal" id="A" parent="R" column="3"/>)"});
    EXPECT_EQ(pNode->WriteNode(&csv, 0), "<R><J>a</J><A>b</A></R>");
    EXPECT_EQ(pNode->WriteNode(&csv, 1), "<R><S>a</S><A>b</A></R>");
    EXPECT_EQ(pNode->WriteNode(&csv, 2), "<R><A>b</A></R>");
}

TEST_F(DefineNodeTest, OwnGenerationIsNotAsked)
{
    const auto pNode = CreateNode(R"(<item type="Normal" id="A" column="2" generation="junior"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<A>a</A>");
}

TEST_F(DefineNodeTest, SharedNodeIsWrittenUnderTheParentOfTheRecord)
{
    const GenerationCsv csv(Records{{"001", "a"}, {"001", "b"}}, {{0, "junior"}, {1, "senior"}});
    const auto pNode = CreateNode(R"(<item type="Normal" id="R"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="P" parent="R" generation="junior"/>)",
                     R"(<item type="Normal" id="P" parent="R" generation="senior"/>)",
                     R"(<item type="Normal" id="Q" parent="P" generation="junior" column="1"/>)",
                     R"(<item type="Normal" id="C" parent="P" column="2"/>)"});
    EXPECT_EQ(pNode->WriteNode(&csv, 0), "<R><P><Q>001</Q><C>a</C></P></R>");
    EXPECT_EQ(pNode->WriteNode(&csv, 1), "<R><P><C>b</C></P></R>");
}

TEST_F(DefineNodeTest, NormalModeWritesAndDescendingDoesNot)
{
    const auto pNode = CreateNode(R"(<item type="Normal" id="A" column="2"/>)");
    EXPECT_EQ(pNode->WriteNodeTag(&m_csv, 0, WRITE_NORMAL), "<A>a</A>");
    EXPECT_EQ(pNode->WriteNodeTag(&m_csv, 0, WRITE_DESCEND), "");
}

TEST_F(DefineNodeTest, NullCsvRaises)
{
    const auto pNode = CreateNode(R"(<item type="Normal" id="A"/>)");
    EXPECT_EQ(Raised([&] { static_cast<void>(pNode->WriteNode(nullptr, 0)); }), FAULT);
    EXPECT_EQ(Raised([&] { static_cast<void>(pNode->WriteNodeTag(nullptr, 0, WRITE_NORMAL)); }),
              FAULT);
    EXPECT_EQ(Raised([&] { static_cast<void>(pNode->MakeNodeValue(nullptr, 0)); }), FAULT);
    EXPECT_EQ(Raised([&] { static_cast<void>(pNode->ValidateCsv(nullptr, 0)); }), FAULT);
}

struct ValueTextCase
{
    const char* szName;
    const char* szSuppress;
    const char* szCell;
    const char* szValue;
};

void PrintTo(const ValueTextCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class DefineNodeValueTest : public ResetState, public testing::WithParamInterface<ValueTextCase>
{};

TEST_P(DefineNodeValueTest, IsMadeOfTheCell)
{
    const GenerationCsv csv(Records{{"003", GetParam().szCell}});
    const auto pNode =
        CreateNode(std::string(R"(<item type="Normal" id="A" column="2" zeroSuppress=")") +
                   GetParam().szSuppress + "\"/>");
    EXPECT_EQ(pNode->MakeNodeValue(&csv, 0), GetParam().szValue);
}

constexpr ValueTextCase VALUE_CASES[] = {
    {"ZerosStay", "", "000123", "000123"},
    {"ZerosStayForTrueInCapitals", "TRUE", "000123", "000123"},
    {"ZerosStayForOne", "1", "000123", "000123"},
    {"ZerosGo", "true", "000123", "123"},
    {"OnlyZeros", "true", "0000", ""},
    {"OneZero", "true", "0", ""},
    {"ZerosBehindStay", "true", "0100", "100"},
    {"NoZeroInFront", "true", "a00", "a00"},
    {"BlankInFrontKeepsThem", "true", " 01", " 01"},
    {"Sign", "true", "-01", "-01"},
    {"EmptyCell", "true", "", ""},
    {"FullWidthZerosStay", "true", "００１", "００１"},
    {"EscapedCell", "", "a<b>&'\"", "a&lt;b&gt;&amp;&apos;&quot;"},
    {"ZeroInFrontOfAnEscape", "true", "0&", "&amp;"},
    {"SectionStays", "", "<![CDATA[a<b]]>&", "<![CDATA[a<b]]>&amp;"},
};

INSTANTIATE_TEST_SUITE_P(Cells, DefineNodeValueTest, testing::ValuesIn(VALUE_CASES), CaseName());

TEST_F(DefineNodeTest, NodeWithoutColumnHasNoValue)
{
    const auto pNode = CreateNode(R"(<item type="Normal" id="A"/>)");
    EXPECT_EQ(pNode->MakeNodeValue(&m_csv, 0), "");
}

TEST_F(DefineNodeTest, SuppressedZeroGivesNoTag)
{
    const GenerationCsv csv(Records{{"003", "0"}});
    const auto pNode = CreateNode(R"(<item type="Normal" id="A" column="2" zeroSuppress="true"/>)");
    EXPECT_EQ(pNode->WriteNode(&csv, 0), "");
}

TEST_F(DefineNodeTest, SuppressedZeroWithChildrenGivesTheirTags)
{
    const GenerationCsv csv(Records{{"003", "00"}});
    const auto pNode = CreateNode(R"(<item type="Normal" id="A" column="2" zeroSuppress="true"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="B" parent="A" column="1"/>)"});
    EXPECT_EQ(pNode->WriteNode(&csv, 0), "<A><B>003</B></A>");
}

TEST_F(DefineNodeTest, NameOf96BytesFitsBothTags)
{
    const std::string strName(96, 'n');
    const auto pNode = CreateNode("<item type=\"Normal\" id=\"" + strName + "\" column=\"2\"/>");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<" + strName + ">a</" + strName + ">");
}

TEST_F(DefineNodeTest, NameOf97BytesCutsTheEndTag)
{
    const std::string strName(97, 'n');
    const auto pNode = CreateNode("<item type=\"Normal\" id=\"" + strName + "\" column=\"2\"/>");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<" + strName + ">a</" + strName);
}

TEST_F(DefineNodeTest, NameOf98BytesCutsBothTags)
{
    const std::string strName(98, 'n');
    const auto pNode = CreateNode("<item type=\"Normal\" id=\"" + strName + "\" column=\"2\"/>");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<" + strName + "a</" + std::string(97, 'n'));
}

TEST_F(DefineNodeTest, LongNameIsCutByBytesAndInsideACharacter)
{
    std::string strName;
    for (int n = 0; n < 40; ++n)
        strName += "税";
    const auto pNode = CreateNode("<item type=\"Normal\" id=\"" + strName + "\" column=\"2\"/>");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0),
              "<" + strName.substr(0, 98) + "a</" + strName.substr(0, 97));
}

// ---- row ranges --------------------------------------------------------------------------------

struct RangeCase
{
    const char* szName;
    const char* szStart;
    const char* szEnd;
    const char* szRaw;       ///< one character for each of 4 records: is it written
    const char* szReadable;  ///< the same with rows counted from the end
};

void PrintTo(const RangeCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class DefineNodeRangeTest : public ResetState, public testing::WithParamInterface<RangeCase>
{
protected:
    DefineNodeRangeTest()
        : m_csv(CsvOf(4)),
          m_pNode(CreateNode(std::string(R"(<item type="Normal" id="A" column="2" startRow=")") +
                             GetParam().szStart + "\" endRow=\"" + GetParam().szEnd + "\"/>"))
    {
    }

    GenerationCsv m_csv;
    std::unique_ptr<KZCEkaMOKDefineNode> m_pNode;
};

TEST_P(DefineNodeRangeTest, NodeIsWrittenByItsRawNumbers)
{
    std::string strWritten;
    for (long lRow = 0; lRow < 4; ++lRow)
        strWritten += m_pNode->WriteNode(&m_csv, lRow).empty() ? '.' : 'x';
    EXPECT_EQ(strWritten, GetParam().szRaw);
}

TEST_P(DefineNodeRangeTest, RangeIsTestedWithRowsFromTheEnd)
{
    std::string strInRange;
    for (long lRow = 0; lRow < 4; ++lRow)
        strInRange += m_pNode->isWithInRecordRange(&m_csv, lRow) ? 'x' : '.';
    EXPECT_EQ(strInRange, GetParam().szReadable);
}

constexpr RangeCase RANGE_CASES[] = {
    {"None", "", "", "xxxx", "xxxx"},
    {"StartAlone", "3", "", "xxxx", "xxxx"},
    {"EndAlone", "", "2", "xxxx", "xxxx"},
    {"First", "1", "1", "x...", "x..."},
    {"Middle", "2", "3", ".xx.", ".xx."},
    {"All", "1", "4", "xxxx", "xxxx"},
    {"BeyondTheEnd", "3", "9", "..xx", "..xx"},
    {"BehindTheEnd", "5", "9", "....", "...."},
    {"EndBeforeStart", "3", "2", "....", "...."},
    {"UpToTheLast", "2", "-1", "....", ".xxx"},
    {"UpToTheLastButOne", "2", "-2", "....", ".xx."},
    {"LastAlone", "-1", "-1", "....", "...x"},
    {"LastTwo", "-2", "-1", "....", "..xx"},
    {"FromTheEndToARow", "-3", "2", "xx..", ".x.."},
    {"FromBeforeTheFirst", "-9", "2", "xx..", "xx.."},
};

INSTANTIATE_TEST_SUITE_P(Ranges, DefineNodeRangeTest, testing::ValuesIn(RANGE_CASES), CaseName());

TEST_F(DefineNodeTest, RangeIsInForceOnlyWithBothNumbers)
{
    EXPECT_FALSE(CreateNode(R"(<item type="Normal"/>)")->isSettingRecordRange());
    EXPECT_FALSE(CreateNode(R"(<item type="Normal" startRow="1"/>)")->isSettingRecordRange());
    EXPECT_FALSE(CreateNode(R"(<item type="Normal" endRow="-1"/>)")->isSettingRecordRange());
    EXPECT_TRUE(
        CreateNode(R"(<item type="Normal" startRow="1" endRow="-1"/>)")->isSettingRecordRange());
}

TEST_F(DefineNodeTest, NegativeRowCountsFromTheEnd)
{
    const GenerationCsv csv = CsvOf(4);
    EXPECT_EQ(KZCEkaMOKDefineNode::convRecordRow(&csv, -1), 4);
    EXPECT_EQ(KZCEkaMOKDefineNode::convRecordRow(&csv, -4), 1);
    EXPECT_EQ(KZCEkaMOKDefineNode::convRecordRow(&csv, -6), -1);
    EXPECT_EQ(KZCEkaMOKDefineNode::convRecordRow(&csv, 0), 0);
    EXPECT_EQ(KZCEkaMOKDefineNode::convRecordRow(&csv, 9), 9);
}

TEST_F(DefineNodeTest, RowsCountBlankRecordsToo)
{
    const GenerationCsv csv(Records{{"003", "a"}, {""}, {"003", "b"}, {""}});
    EXPECT_EQ(KZCEkaMOKDefineNode::convRecordRow(&csv, -1), 4);
}

// ---- tags left open ----------------------------------------------------------------------------

/// A group of this name that its first record leaves open.
std::unique_ptr<KZCEkaMOKDefineNode> MakeOpenGroup(const std::string& strName)
{
    auto pGroup = CreateNode("<item type=\"TAG\" id=\"" + strName + "\"/>");
    const std::string strItem = "<item type=\"Normal\" id=\"V\" column=\"2\" parent=\"" + strName;
    Hang(*pGroup, CreateNode(strItem + "\"/>"));
    Hang(*pGroup, CreateNode(strItem + "\" startRow=\"2\" endRow=\"2\"/>"));
    return pGroup;
}

TEST_F(DefineNodeTest, NoTagIsOpenAtFirst)
{
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "");
}

TEST_F(DefineNodeTest, TagOpenedLastIsClosedFirst)
{
    const auto pFirst = MakeOpenGroup("A");
    const auto pSecond = MakeOpenGroup("B");
    EXPECT_EQ(pFirst->WriteNode(&m_csv, 0), "<A><V>a</V>");
    EXPECT_EQ(pSecond->WriteNode(&m_csv, 0), "<B><V>a</V>");
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "</B></A>");
}

TEST_F(DefineNodeTest, AskingForTheCloseTagsKeepsThem)
{
    const auto pGroup = MakeOpenGroup("A");
    EXPECT_EQ(pGroup->WriteNode(&m_csv, 0), "<A><V>a</V>");
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "</A>");
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "</A>");
}

TEST_F(DefineNodeTest, ClearingForgetsTheCloseTags)
{
    const auto pGroup = MakeOpenGroup("A");
    EXPECT_EQ(pGroup->WriteNode(&m_csv, 0), "<A><V>a</V>");
    KZCEkaMOKDefineNode::clearCloseTags();
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "");
}

TEST_F(DefineNodeTest, MakingANodeForgetsTheCloseTags)
{
    const auto pGroup = MakeOpenGroup("A");
    EXPECT_EQ(pGroup->WriteNode(&m_csv, 0), "<A><V>a</V>");
    const KZCEkaMOKDefineNode node;
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "");
}

TEST_F(DefineNodeTest, CloseTagIsCutByItsBuffer)
{
    const std::string strName(97, 'n');
    const auto pGroup = MakeOpenGroup(strName);
    EXPECT_EQ(pGroup->WriteNode(&m_csv, 0), "<" + strName + "><V>a</V>");
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "</" + strName);
}

// ---- checking ----------------------------------------------------------------------------------

TEST_F(DefineNodeTest, NodeWithoutChecksPasses)
{
    const auto pNode = CreateNode(R"(<item type="Normal" id="A" column="9"/>)", true);
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&m_csv, 0); }), PASSES);
}

TEST_F(DefineNodeTest, RefusalIsRecordedWithRecordAndColumnFromOne)
{
    const GenerationCsv csv(Records{{"003", "1"}, {"003", ""}});
    const auto pNode =
        CreateNode(R"(<item type="Normal" id="A" column="2"><valid id="exist"/></item>)", true);
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&csv, 0); }), PASSES);
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&csv, 1); }), "refuses 0002-00002-HE70001E");
}

TEST_F(DefineNodeTest, OwnRefusalComesFirstAndChildrenAreAllChecked)
{
    const GenerationCsv csv(Records{{"003", "", "", ""}});
    const auto pNode =
        CreateNode(R"(<item type="Normal" id="A" column="4"><valid id="exist"/></item>)", true);
    HangAll(*pNode,
            {R"(<item type="Kubun" id="B" parent="A" column="3"><valid id="exist"/></item>)",
             R"(<item type="Normal" id="C" parent="A" column="1"><valid id="exist"/></item>)",
             R"(<item type="Normal" id="D" parent="A" column="2"><valid id="exist"/></item>)"},
            true);
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&csv, 0); }),
              "refuses 0001-00004-HE70001E,0001-00003-HE70001E,0001-00002-HE70001E");
}

TEST_F(DefineNodeTest, RefusalOfALaterChildAloneFailsTheNode)
{
    const auto pNode = CreateNode(R"(<item type="Normal" id="A"/>)", true);
    HangAll(*pNode,
            {R"(<item type="Normal" id="B" parent="A" column="9"><valid id="exist"/></item>)",
             R"(<item type="Normal" id="C" parent="A" column="1"><valid id="exist"/></item>)"},
            true);
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&m_csv, 0); }), "refuses 0001-00009-HE70001E");
}

TEST_F(DefineNodeTest, ChildOfAGenerationIsCheckedForItsRecordsAlone)
{
    const GenerationCsv csv(Records{{"001", ""}, {"001", ""}, {"001", ""}},
                            {{0, "junior"}, {1, "senior"}});
    const auto pNode = CreateNode(R"(<item type="Normal" id="R"/>)", true);
    HangAll(
        *pNode,
        {R"(<item type="Normal" id="J" parent="R" column="2" generation="junior"><valid id="exist"/></item>)"},
        true);
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&csv, 0); }), "refuses 0001-00002-HE70001E");
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&csv, 1); }), PASSES);
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&csv, 2); }), PASSES);
}

TEST_F(DefineNodeTest, SharedNodeIsCheckedOncePerRecord)
{
    const GenerationCsv csv(Records{{"001", ""}}, {{0, "junior"}});
    const auto pNode = CreateNode(R"(<item type="Normal" id="R"/>)", true);
    HangAll(*pNode,
            {R"(<item type="Normal" id="P" parent="R" generation="junior"/>)",
             R"(<item type="Normal" id="P" parent="R" generation="senior"/>)",
             R"(<item type="Normal" id="C" parent="P" column="2"><valid id="exist"/></item>)"},
            true);
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&csv, 0); }), "refuses 0001-00002-HE70001E");
}

TEST_F(DefineNodeTest, RowRangeDoesNotNarrowTheChecks)
{
    const auto pNode = CreateNode(
        R"(<item type="Normal" id="A" column="9" startRow="5" endRow="6"><valid id="exist"/></item>)",
        true);
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&m_csv, 0); }), "refuses 0001-00009-HE70001E");
}

}  // namespace
