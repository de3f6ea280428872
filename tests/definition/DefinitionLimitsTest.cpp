// The bounds of our own on definitions, from both sides: what is still taken, and what isn't.
#include "definition/DefinitionLimits.h"

#include <gmock/gmock.h>

#include <climits>
#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "KZCEkaITDataFinance.h"
#include "KZCValidResult.h"
#include "definition/KZCEkaDefinition.h"
#include "definition/KZCEkaDefinitionFinance.h"
#include "definition/KZCEkaMOKDefReportFinance.h"
#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/FamilyDefinition.h"
#include "support/GenerationCsv.h"
#include "support/LogEntries.h"
#include "support/NodeTree.h"
#include "support/PagingModel.h"
#include "support/Raised.h"
#include "support/RecordNode.h"
#include "support/ResetState.h"

namespace {

using Records = std::vector<KZCEkaCsvFile::Record>;
using testing::ElementsAre;

constexpr const char* TREE_ERROR = "定義体の帳票タグ階層定義が不正です。";

class LimitsTest : public ResetState
{};

// ---- levels ------------------------------------------------------------------------------------

/// So many items, each the parent of the next.
std::string Chain(const std::string& strReportId, int nItems)
{
    std::string strItems;
    std::string strParent = strReportId;
    for (int n = 1; n <= nItems; ++n) {
        const std::string strName = "N" + std::to_string(n);
        strItems.append(R"(<item type="TAG" id=")").append(strName);
        strItems.append(R"(" parent=")").append(strParent).append("\"/>");
        strParent = strName;
    }
    return strItems;
}

std::string Item(const std::string& strId, const std::string& strParent)
{
    return R"(<item type="Normal" column="2" id=")" + strId + R"(" parent=")" + strParent + "\"/>";
}

int LoadBase(const std::string& strItems)
{
    const Bundle bundle(R"(<define><report id="003" procId="PGE5030" reportId="GEZ030">)" +
                        strItems + "</report></define>");
    KZCEkaDefinition definition;
    return definition.CreateDefinition("003", false);
}

std::string FinanceReport(const std::string& strId,
                          const std::string& strRows,
                          const std::string& strItems)
{
    return R"(<report procId="PGE2030" reportId=")" + strId + "\" " + strRows + ">" + strItems +
           "</report>";
}

TEST_F(LimitsTest, FiveHundredItemsEachTheParentOfTheNextLoad)
{
    const DebugLog log;
    EXPECT_EQ(LoadBase(Chain("GEZ030", 500)), STATUS_OK);
    EXPECT_THAT(LogEntries(log), ElementsAre());
}

TEST_F(LimitsTest, OneItemMoreIsToldAsABrokenTree)
{
    const DebugLog log;
    EXPECT_EQ(LoadBase(Chain("GEZ030", 501)), STATUS_NG);
    EXPECT_THAT(LogEntries(log),
                ElementsAre(LogEntry{"KZCEkaDefinition::CreateDefinition", TREE_ERROR}));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_F(LimitsTest, SearchThroughTheDeepestTreeFindsAParentBesideIt)
{
    // The deep branch is the last child of the report and so is searched first.
    EXPECT_EQ(LoadBase(Item("A", "GEZ030") + Chain("GEZ030", 500) + Item("B", "A")), STATUS_OK);
    EXPECT_EQ(LoadBase(Item("A", "GEZ030") + Chain("GEZ030", 500) + Item("B", "N499")), STATUS_OK);
    EXPECT_EQ(LoadBase(Item("A", "GEZ030") + Chain("GEZ030", 500) + Item("B", "N500")), STATUS_NG);
}

class FinanceLimitsTest : public LimitsTest
{
protected:
    int Load(const std::string& strReports)
    {
        m_bundle.Write("Finance/PGE2030_tpl.xml", DefinitionFile(strReports));
        return m_definition.CreateDefinition("103", false);
    }

    Bundle m_bundle{std::nullopt, std::nullopt};
    KZCEkaDefinitionFinance m_definition;
};

TEST_F(FinanceLimitsTest, FiveHundredItemsEachTheParentOfTheNextLoad)
{
    const DebugLog log;
    EXPECT_EQ(Load(FinanceReport("GEZ050", "",
                                 Item("A", "GEZ050") + Chain("GEZ050", 500) + Item("B", "A"))),
              STATUS_OK);
    EXPECT_THAT(LogEntries(log), ElementsAre());
}

TEST_F(FinanceLimitsTest, OneItemMoreBreaksItsReportAndTheNextIsReadAllTheSame)
{
    const DebugLog log;
    EXPECT_EQ(Load(FinanceReport("GEZ050", R"(startRow="1" endRow="2")", Chain("GEZ050", 501)) +
                   FinanceReport("GEZ051", R"(startRow="3" endRow="-1")", Item("A", "GEZ051"))),
              STATUS_NG);
    EXPECT_THAT(LogEntries(log),
                ElementsAre(LogEntry{"KZCEkaDefinitionFinance::CreateDefinition", TREE_ERROR}));
    EXPECT_EQ(m_definition.GetReportIdW_Index(3), "GEZ051");
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

// ---- steps of a search -------------------------------------------------------------------------

/// A node of a name below a parent.
class NamedNode final : public KZCEkaMOKDefineNode
{
public:
    NamedNode(const char* szName, const char* szParent)
    {
        m_strName = szName;
        m_strParent = szParent;
    }
};

/// A root "R" with a child "T" in front of so many others.
class WideTree
{
public:
    explicit WideTree(int nOthers)
    {
        Hang("T");
        for (int n = 0; n < nOthers; ++n)
            Hang("O");
    }

    KZCEkaMOKDefineNode& Root() { return m_root; }

private:
    void Hang(const char* szName)
    {
        // The tree's share alone holds it from here on.
        EXPECT_EQ(m_root.LocateNode(std::make_unique<NamedNode>(szName, "R").release(), -1), 0);
    }

    NamedNode m_root{"R", ""};
};

/// One of the two searches.
struct SearchCase
{
    const char* szName;
    int (*pLocate)(KZCEkaMOKDefineNode& root, KZCEkaMOKDefineNode& child);
};

void PrintTo(const SearchCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class SearchLimitsTest : public LimitsTest, public testing::WithParamInterface<SearchCase>
{
protected:
    /// Hangs a new node below the first child of the root. \return What the search returned.
    static int Search(WideTree& tree)
    {
        auto pChild = std::make_unique<NamedNode>("C", "T");
        const int nResult = GetParam().pLocate(tree.Root(), *pChild);
        if (nResult >= 0)
            static_cast<void>(pChild.release());
        return nResult;
    }
};

TEST_P(SearchLimitsTest, HundredThousandNodesArePassed)
{
    WideTree tree(99999);
    EXPECT_EQ(Search(tree), 0);
}

TEST_P(SearchLimitsTest, OneNodeMoreEndsTheSearchWithoutAParentAndWithoutALogEntry)
{
    WideTree tree(100000);
    const DebugLog log;
    EXPECT_EQ(Search(tree), -1);
    EXPECT_THAT(LogEntries(log), ElementsAre());
}

constexpr SearchCase SEARCHES[] = {
    {"Base", [](KZCEkaMOKDefineNode& root,
                KZCEkaMOKDefineNode& child) { return root.LocateNode(&child, -1); }},
    {"Finance",
     [](KZCEkaMOKDefineNode& root, KZCEkaMOKDefineNode& child) {
         return root.LocateNodeFinance(&child, false, -1);
     }},
};

INSTANTIATE_TEST_SUITE_P(Families, SearchLimitsTest, testing::ValuesIn(SEARCHES), CaseName());

// ---- heads -------------------------------------------------------------------------------------

/// Counts the records that it is asked for, and writes the same text for each.
class CountingHead final : public KZCEkaMOKDefineNode
{
public:
    CountingHead(std::int64_t nStart, std::int64_t nEnd, std::string strText)
        : m_strText(std::move(strText))
    {
        m_strName = "H";
        m_strParent = "GEZ750";
        m_strRepeatTopTag = "1";
        m_nStartRow = nStart;
        m_nEndRow = nEnd;
    }

    std::string WriteNode(const KZCEkaCsvFile* /*pCsv*/, long lRow) override
    {
        ++m_lAsked;
        m_lLast = lRow + 1;
        return m_strText;
    }

    long Asked() const { return m_lAsked; }
    long Last() const { return m_lLast; }
    void Forget() { m_lAsked = 0; }

private:
    std::string m_strText;
    long m_lAsked = 0;
    long m_lLast = 0;
};

class HeadLimitsTest : public LimitsTest
{
protected:
    /// Each record is a page.
    HeadLimitsTest() : m_csv(Records(3, {"202", "x"}))
    {
        m_it.Initialize(true);
        EXPECT_EQ(m_report.Initialize("GEZ750", "1.0"), STATUS_OK);
        EXPECT_EQ(m_report.LocateNode(std::make_unique<RecordNode>("GEZ750").release(), -1), 0);
    }

    /// A head above so many nodes. The report owns it.
    CountingHead& AddHead(std::int64_t nStart,
                          std::int64_t nEnd,
                          std::string strText = "",
                          int nBelow = 0)
    {
        auto pHead = std::make_unique<CountingHead>(nStart, nEnd, std::move(strText));
        for (int n = 0; n < nBelow; ++n)
            EXPECT_EQ(pHead->LocateNode(std::make_unique<NamedNode>("X", "H").release(), -1), 0);
        CountingHead& head = *pHead;
        EXPECT_EQ(m_report.LocateNode(pHead.release(), -1), 0);
        return head;
    }

    /// Writes a record's page. \return Whether that raised the fault.
    bool Fails(long lRow = 0)
    {
        return Raised([&] {
                   static_cast<void>(m_report.WriteNodeFromCSVMultiRecord(&m_csv, lRow, &m_it));
               })
            .has_value();
    }

    GenerationCsv m_csv;
    KZCEkaITDataFinance m_it;
    KZCEkaMOKDefReportFinance m_report;
};

/// Rows of a head, and how often it is asked for them; -1 if that is refused.
struct HeadRowsCase
{
    const char* szName;
    std::int64_t nStart;
    std::int64_t nEnd;
    long lAsked;
};

void PrintTo(const HeadRowsCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class HeadRowLimitsTest : public HeadLimitsTest, public testing::WithParamInterface<HeadRowsCase>
{};

TEST_P(HeadRowLimitsTest, RowsAreTakenAsTheyStandUpToAMillion)
{
    CountingHead& head = AddHead(GetParam().nStart, GetParam().nEnd);
    const DebugLog log;
    if (GetParam().lAsked < 0) {
        EXPECT_TRUE(Fails());
        EXPECT_EQ(head.Asked(), 1);  // by the record itself, which comes first
        EXPECT_THAT(LogEntries(log),
                    ElementsAre(LogEntry{"KZCEkaMOKDefReportFinance::WriteNodeFromCSVMultiRecord",
                                         TREE_ERROR}));
        return;
    }
    EXPECT_FALSE(Fails());
    EXPECT_EQ(head.Asked(), GetParam().lAsked + 1);
    if (GetParam().lAsked > 0) {
        EXPECT_EQ(head.Last(), GetParam().nEnd);
    }
    EXPECT_THAT(LogEntries(log), ElementsAre());
}

constexpr HeadRowsCase HEAD_ROWS[] = {
    {"BehindTheFile", 1, 6, 6},
    {"UpToAMillion", 999998, 1000000, 3},
    {"OneToAMillion", 1, 1000000, 1000000},
    {"BehindAMillion", 1000001, 1000001, -1},
    {"EndBehindAMillion", 1, 1000001, -1},
    {"FromMinusAMillion", -1000000, -999999, 2},
    {"BeforeMinusAMillion", -1000001, -1000001, -1},
    {"StartBeforeMinusAMillion", -1000001, 1, -1},
    {"LargestRows", LONG_MAX, LONG_MAX, -1},
    {"SmallestRows", LONG_MIN, LONG_MIN, -1},
    {"AllRows", LONG_MIN, LONG_MAX, -1},
    {"NoRowOfAbsurdNumbers", LONG_MAX, LONG_MIN, 0},
    {"NoRowBehindAMillion", 1000002, 1000001, 0},
};

INSTANTIATE_TEST_SUITE_P(Rows, HeadRowLimitsTest, testing::ValuesIn(HEAD_ROWS), CaseName());

TEST_F(HeadLimitsTest, RowsBeforeAndBehindTheFileAreAllAskedFor)
{
    CountingHead& head = AddHead(-2, 9);
    EXPECT_FALSE(Fails());
    EXPECT_EQ(head.Asked(), 1 + 12);
    EXPECT_EQ(head.Last(), 9);
}

TEST_F(HeadLimitsTest, ReferenceIsWrittenForEachRowOfTheHeadWhateverTheFileHolds)
{
    KZCValidResult::instance()->SetITData(R"(<IT><NAME ID="NAME">x</NAME></IT>)");
    HangAll(
        m_report,
        {R"(<item type="IdRef" id="R" value="NAME" parent="GEZ750" startRow="1" endRow="6" repeatTopTag="1"/>)"});
    std::string strReferences;
    for (int n = 0; n < 6; ++n)
        strReferences += R"(<R IDREF="NAME"/>)";
    EXPECT_EQ(PagesOf(m_report.WriteNodeFromCSVMultiRecord(&m_csv, 0, &m_it)),
              "[" + strReferences + R"( 1<R IDREF="NAME"/>])");
}

TEST_F(HeadLimitsTest, HundredMillionNodesOfADocumentAreWrittenAndNoMore)
{
    // A million rows of a hundred nodes on the first page; one row too many on the second.
    CountingHead& head = AddHead(1, 1000000, "", 99);
    EXPECT_FALSE(Fails(0));
    EXPECT_EQ(head.Asked(), 1000001);
    head.Forget();
    EXPECT_TRUE(Fails(1));
    EXPECT_EQ(head.Asked(), 1);
}

TEST_F(HeadLimitsTest, OneNodeMoreOnTheFirstPageIsTooMuch)
{
    CountingHead& head = AddHead(1, 1000000, "", 100);
    EXPECT_TRUE(Fails());
    EXPECT_EQ(head.Asked(), 1);
}

TEST_F(HeadLimitsTest, HeadsOfOnePageAreCountedTogether)
{
    AddHead(1, 1000000, "", 99);
    CountingHead& second = AddHead(1, 1);
    EXPECT_TRUE(Fails());
    EXPECT_EQ(second.Asked(), 1);
}

TEST_F(HeadLimitsTest, SixtyFourMebibytesOfADocumentAreWrittenAndNoMore)
{
    constexpr std::size_t QUARTER = 16777216;
    AddHead(1, 2, std::string(QUARTER, 'x'));
    EXPECT_FALSE(Fails(0));
    EXPECT_FALSE(Fails(1));
    const DebugLog log;
    EXPECT_TRUE(Fails(2));
    EXPECT_THAT(LogEntries(log),
                ElementsAre(LogEntry{"KZCEkaMOKDefReportFinance::WriteNodeFromCSVMultiRecord",
                                     TREE_ERROR}));
    // Another document counts from its first page on.
    m_report.setPageNum(0);
    EXPECT_FALSE(Fails(0));
    EXPECT_FALSE(Fails(1));
}

TEST_F(HeadLimitsTest, OneByteMoreOnTheFirstPageIsTooMuch)
{
    constexpr std::size_t MEBIBYTE = 1048576;
    AddHead(1, 64, std::string(MEBIBYTE, 'x'));
    EXPECT_FALSE(Fails());
    m_report.setPageNum(0);
    AddHead(1, 1, "y");
    EXPECT_TRUE(Fails());
}

TEST_F(HeadLimitsTest, NodesAreCountedAnewForAnotherDocument)
{
    AddHead(1, 1000000, "", 99);
    EXPECT_FALSE(Fails());
    m_report.setPageNum(0);
    EXPECT_FALSE(Fails());
}

}  // namespace
