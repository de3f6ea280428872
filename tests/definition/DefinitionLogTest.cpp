// What the definitions write to the log, entry by entry: the function that is named, the text, and
// where there is none.
#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "KZCEkaITData.h"
#include "KZCEkaITDataCrossBorder.h"
#include "definition/KZCEkaDefinition.h"
#include "definition/KZCEkaDefinitionCrossBorder.h"
#include "definition/KZCEkaDefinitionFinance.h"
#include "definition/KZCEkaMOKDefBango.h"
#include "definition/KZCEkaMOKDefDate.h"
#include "definition/KZCEkaMOKDefIdRef.h"
#include "definition/KZCEkaMOKDefReport.h"
#include "definition/KZCEkaMOKDefReportCrossBorder.h"
#include "definition/KZCEkaMOKDefTAG.h"
#include "definition/KZCEkaMOKDefZeimusho.h"
#include "definition/KZCEkaMOKDefZip.h"
#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/FamilyDefinition.h"
#include "support/GenerationCsv.h"
#include "support/LogEntries.h"
#include "support/NodeTree.h"
#include "support/Raised.h"
#include "support/ResetState.h"

namespace {

using Records = std::vector<KZCEkaCsvFile::Record>;
using Entries = std::vector<LogEntry>;
using testing::ElementsAre;

constexpr const char* LOAD_MISSING = "引数エラー。定義情報作成に必要な情報が準備されていません。";
constexpr const char* CHECK_MISSING = "引数エラー。CSVチェックに必要な情報が準備されていません。";
constexpr const char* WRITE_MISSING = "引数エラー。MOK作成に必要な情報が準備されていません。";
constexpr const char* READ_ERROR = "定義体の読み込みでエラーが発生しました。";
constexpr const char* TREE_ERROR = "定義体の帳票タグ階層定義が不正です。";
constexpr const char* START_ERROR = "開始レコードの値が不正です。";
constexpr const char* RUN_OUT = "構文エラー。MOK作成に必要な情報が準備されていません。";
constexpr const char* UNKNOWN_KIND = "EKA定義ファイルエラー";

constexpr const char* CREATE_NODE = "KZCEkaMOKDefineNode::CreateNode";
constexpr const char* NODE_CHECK = "KZCEkaMOKDefineNode::ValidateCsv";

/// Those of the definitions alone: what the XML layer and the checks say is theirs.
Entries OwnEntries(const DebugLog& log)
{
    Entries vecEntry = LogEntries(log);
    std::erase_if(vecEntry, [](const LogEntry& entry) {
        return !entry.strFunction.starts_with("KZCEkaDefinition") &&
               !entry.strFunction.starts_with("KZCEkaMOKDef");
    });
    return vecEntry;
}

class DefinitionLogTest : public ResetState
{
protected:
    DefinitionLogTest() : m_csv(Records{{"003", "a"}}) {}

    GenerationCsv m_csv;
};

// ---- nodes -------------------------------------------------------------------------------------

/// A call without a CSV, a cursor or a node, and the entry that it leaves; none for an empty name.
struct NullCase
{
    const char* szName;
    std::function<void()> call;
    const char* szFunction;
    bool bRaises = true;
};

void PrintTo(const NullCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class NullLogTest : public ResetState, public testing::WithParamInterface<NullCase>
{};

TEST_P(NullLogTest, NamesItsFunctionOrSaysNothing)
{
    const DebugLog log;
    EXPECT_EQ(Raised(GetParam().call).has_value(), GetParam().bRaises);
    Entries vecExpected;
    if (*GetParam().szFunction != '\0')
        vecExpected.push_back({GetParam().szFunction, ""});
    EXPECT_EQ(LogEntries(log), vecExpected);
}

template <class Node>
void CheckNull()
{
    Node node;
    static_cast<void>(node.ValidateCsv(nullptr, 0));
}

template <class Node>
void WriteNull()
{
    Node node;
    static_cast<void>(node.WriteNode(nullptr, 0));
}

template <class Node, eWriteMode eMode>
void WriteTagNull()
{
    Node node;
    static_cast<void>(node.WriteNodeTag(nullptr, 0, eMode));
}

/// Which of the report's two arguments is null.
template <bool bCsv>
void ReportNull()
{
    const GenerationCsv csv(Records{{"003"}});
    KZCEkaITData it;
    KZCEkaMOKDefReport report;
    static_cast<void>(report.WriteNode(bCsv ? nullptr : &csv, 0, bCsv ? &it : nullptr));
}

template <bool bCsv>
void CrossBorderReportNull()
{
    const GenerationCsv csv(Records{{"301"}});
    KZCEkaITDataCrossBorder it;
    KZCEkaMOKDefReportCrossBorder report;
    static_cast<void>(
        report.WriteNodeCrossBorder(bCsv ? nullptr : &csv, 0, bCsv ? &it : nullptr, ""));
}

const NullCase NULLS[] = {
    {"CreateNode", [] { EXPECT_EQ(KZCEkaMOKDefineNode::CreateNode(nullptr, true), nullptr); },
     CREATE_NODE, false},
    {"Initialize",
     [] {
         KZCEkaMOKDefineNode node;
         EXPECT_EQ(node.Initialize(nullptr, true), STATUS_NG);
     },
     "KZCEkaMOKDefineNode::Initialize", false},
    {"LocateNode",
     [] {
         KZCEkaMOKDefineNode node;
         EXPECT_EQ(node.LocateNode(nullptr, 7), 7);
     },
     "KZCEkaMOKDefineNode::LocateNode", false},
    {"LocateNodeFinance",
     [] {
         KZCEkaMOKDefineNode node;
         EXPECT_EQ(node.LocateNodeFinance(nullptr, true, 7), 7);
     },
     "KZCEkaMOKDefineNode::LocateNodeFinance", false},
    {"NodeValidateCsv", CheckNull<KZCEkaMOKDefineNode>, NODE_CHECK},
    {"NodeWriteNode", WriteNull<KZCEkaMOKDefineNode>, "KZCEkaMOKDefineNode::WriteNode"},
    {"NodeWriteNodeTag", WriteTagNull<KZCEkaMOKDefineNode, WRITE_NORMAL>,
     "KZCEkaMOKDefineNode::WriteNode"},
    {"NodeWriteNodeTagDescending", WriteTagNull<KZCEkaMOKDefineNode, WRITE_DESCEND>, "", false},
    {"MakeNodeValue",
     [] {
         KZCEkaMOKDefineNode node;
         static_cast<void>(node.MakeNodeValue(nullptr, 0));
     },
     "KZCEkaMOKDefineNode::MakeNodeValue"},
    {"DateValidateCsv", CheckNull<KZCEkaMOKDefDate>, "KZCEkaMOKDefDate::ValidateCsv"},
    {"TagValidateCsv", CheckNull<KZCEkaMOKDefTAG>, NODE_CHECK},
    {"TagWriteNode", WriteNull<KZCEkaMOKDefTAG>, "KZCEkaMOKDefTAG::WriteNodeTag"},
    {"TagWriteNodeTagDescending", WriteTagNull<KZCEkaMOKDefTAG, WRITE_DESCEND>,
     "KZCEkaMOKDefTAG::WriteNodeTag"},
    {"ZeimushoValidateCsv", CheckNull<KZCEkaMOKDefZeimusho>, ""},
    {"ZeimushoWriteNode", WriteNull<KZCEkaMOKDefZeimusho>, ""},
    {"ZipWriteNode", WriteNull<KZCEkaMOKDefZip>, ""},
    {"ZipValidateCsv", CheckNull<KZCEkaMOKDefZip>, NODE_CHECK},
    {"BangoWriteNode", WriteNull<KZCEkaMOKDefBango>, ""},
    {"IdRefWriteNode", WriteNull<KZCEkaMOKDefIdRef>, ""},
    {"ReportWriteNodeWithoutCsv", ReportNull<true>, ""},
    {"ReportWriteNodeWithoutItSection", ReportNull<false>, ""},
    {"CrossBorderReportWithoutCsv", CrossBorderReportNull<true>, ""},
    {"CrossBorderReportWithoutItSection", CrossBorderReportNull<false>, ""},
};

INSTANTIATE_TEST_SUITE_P(Calls, NullLogTest, testing::ValuesIn(NULLS), CaseName());

/// An item that can't be made, and what is said about it before the loader speaks.
struct BadItemCase
{
    const char* szName;
    const char* szItem;
    Entries vecEntry;
};

const BadItemCase BAD_ITEMS[] = {
    {"UnknownKind", R"(<item type="Table" id="B" parent="R"/>)", {{CREATE_NODE, UNKNOWN_KIND}}},
    {"UnknownCheck",
     R"(<item type="Normal" id="B" parent="R"><valid id="none"/></item>)",
     {{CREATE_NODE, ""}, {CREATE_NODE, UNEXPECTED_ERROR}}},
    {"UnknownCondition",
     R"(<item type="Normal" id="B" parent="R"><valid id="exist"><outer id="none" column="1"/></valid></item>)",
     {{CREATE_NODE, ""}, {CREATE_NODE, UNEXPECTED_ERROR}}},
    {"UnknownParent", R"(<item type="Normal" id="B" parent="NONE"/>)", {}},
    {"LaterParent",
     R"(<item type="Normal" id="B" parent="C"/><item type="Normal" id="C" parent="R"/>)",
     {}},
};

TEST_F(DefinitionLogTest, RefusalOfAnOwnCheckIsLoggedWithoutText)
{
    const auto pNode =
        CreateNode(R"(<item type="Normal" id="A" column="9"><valid id="exist"/></item>)", true);
    const DebugLog log;
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&m_csv, 0); }), "refuses 0001-00009-HE70001E");
    EXPECT_THAT(OwnEntries(log), ElementsAre(LogEntry{NODE_CHECK, ""}));
}

TEST_F(DefinitionLogTest, EachRefusedChildIsLoggedAndThenItsParent)
{
    const auto pNode =
        CreateNode(R"(<item type="Normal" id="A" column="9"><valid id="exist"/></item>)", true);
    HangAll(*pNode,
            {R"(<item type="Normal" id="B" parent="A" column="8"><valid id="exist"/></item>)",
             R"(<item type="Normal" id="C" parent="A" column="2"><valid id="exist"/></item>)",
             R"(<item type="Normal" id="D" parent="A" column="7"><valid id="exist"/></item>)"},
            true);
    const DebugLog log;
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&m_csv, 0); }),
              "refuses 0001-00009-HE70001E,0001-00008-HE70001E,0001-00007-HE70001E");
    // Its own; B and that B failed; D and that D failed.
    EXPECT_EQ(OwnEntries(log), Entries(5, {NODE_CHECK, ""}));
}

TEST_F(DefinitionLogTest, PassedNodeLogsNothing)
{
    const auto pNode =
        CreateNode(R"(<item type="Normal" id="A" column="2"><valid id="exist"/></item>)", true);
    HangAll(*pNode, {R"(<item type="Normal" id="B" parent="A" column="1"/>)"}, true);
    const DebugLog log;
    EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&m_csv, 0); }), PASSES);
    EXPECT_THAT(LogEntries(log), ElementsAre());
}

TEST_F(DefinitionLogTest, DateLogsEachRefusedChildAndNotItsOwnRefusal)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefDate>(
        R"(<item type="Date" id="D"><valid id="exist" column="9"/></item>)", true);
    HangAll(*pNode,
            {R"(<item type="Zeimusho" id="Z" parent="D"/>)",
             R"(<item type="Normal" id="A" parent="D" column="8"><valid id="exist"/></item>)",
             R"(<item type="Normal" id="B" parent="D" column="7"><valid id="exist"/></item>)"},
            true);
    {
        const DebugLog log;
        EXPECT_EQ(Told([&] { return pNode->ValidateCsv(&m_csv, 0); }),
                  "refuses 0001-00008-HE70001E,0001-00007-HE70001E");
        EXPECT_THAT(
            OwnEntries(log),
            ElementsAre(LogEntry{NODE_CHECK, ""}, LogEntry{"KZCEkaMOKDefDate::ValidateCsv", ""},
                        LogEntry{NODE_CHECK, ""}, LogEntry{"KZCEkaMOKDefDate::ValidateCsv", ""}));
    }
    const auto pGroup = CreateNodeOf<KZCEkaMOKDefDate>(
        R"(<item type="Date" id="D"><valid id="exist" column="9"/></item>)", true);
    HangAll(*pGroup, {R"(<item type="Normal" id="A" parent="D" column="2"/>)"}, true);
    const DebugLog log;
    EXPECT_EQ(Told([&] { return pGroup->ValidateCsv(&m_csv, 0); }), "refuses 0001-00009-HE70001E");
    EXPECT_THAT(OwnEntries(log), ElementsAre());
}

// ---- loads and steps of the families -----------------------------------------------------------

/// The base family: one file, type id "003".
struct BaseLoad
{
    using Definition = KZCEkaDefinition;

    static constexpr const char* CREATE = "KZCEkaDefinition::CreateDefinition";
    static constexpr const char* UNKNOWN_ID = "999";
    static constexpr const char* ABSENT = "定義体に対象の申請番号が存在しません。:";
    static constexpr const char* TYPE_ID = "003";
    static constexpr const char* PATH = "KZEkaDefine.xml";
};

struct FinanceLoad
{
    using Definition = KZCEkaDefinitionFinance;

    static constexpr const char* CREATE = "KZCEkaDefinitionFinance::CreateDefinition";
    static constexpr const char* UNKNOWN_ID = "301";
    static constexpr const char* ABSENT = "定義体に対象の申請番号が存在しません。：";
    static constexpr const char* TYPE_ID = "103";
    static constexpr const char* PATH = "Finance/PGE2030_vld.xml";
};

struct CrossBorderLoad
{
    using Definition = KZCEkaDefinitionCrossBorder;

    static constexpr const char* CREATE = "KZCEkaDefinitionCrossBorder::CreateDefinition";
    static constexpr const char* UNKNOWN_ID = "103";
    static constexpr const char* ABSENT = "定義体に対象の申請番号が存在しません。：";
    static constexpr const char* TYPE_ID = "301";
    static constexpr const char* PATH = "CrossBorder/PGE1650_vld.xml";
};

template <class Load>
class LoadLogTest : public DefinitionLogTest
{
protected:
    int LoadText(const std::string& strText)
    {
        m_bundle.Write(Load::PATH, strText);
        return m_definition.CreateDefinition(Load::TYPE_ID, true);
    }
    /// A file with one report "R" of these items.
    static std::string File(const std::string& strItems, const std::string& strRows = "")
    {
        return DefinitionFile(ReportOf("R", strItems, strRows));
    }
    static std::string ReportOf(const std::string& strId,
                                const std::string& strItems,
                                const std::string& strRows = "")
    {
        return R"(<report id="003" procId="P" reportId=")" + strId + "\" " + strRows + ">" +
               strItems + "</report>";
    }

    Bundle m_bundle{std::nullopt, std::nullopt};
    typename Load::Definition m_definition;
};

struct LoadName
{
    template <class Load>
    static std::string GetName(int /*nLoad*/)
    {
        if (std::is_same_v<Load, BaseLoad>)
            return "Base";
        return std::is_same_v<Load, FinanceLoad> ? "Finance" : "CrossBorder";
    }
};

using Loads = testing::Types<BaseLoad, FinanceLoad, CrossBorderLoad>;
TYPED_TEST_SUITE(LoadLogTest, Loads, LoadName);

TYPED_TEST(LoadLogTest, GoodFileLogsNothing)
{
    const DebugLog log;
    EXPECT_EQ(this->LoadText(this->File(R"(<item type="Normal" id="A" parent="R"/>)")), STATUS_OK);
    EXPECT_THAT(LogEntries(log), ElementsAre());
}

TYPED_TEST(LoadLogTest, NullTypeIdIsOneEntry)
{
    const DebugLog log;
    EXPECT_EQ(this->m_definition.CreateDefinition(nullptr, true), STATUS_NG);
    EXPECT_EQ(LogEntries(log), (Entries{{TypeParam::CREATE, LOAD_MISSING}}));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TYPED_TEST(LoadLogTest, UnknownTypeIdIsNamed)
{
    EXPECT_EQ(this->LoadText(this->File("")), STATUS_OK);
    const DebugLog log;
    EXPECT_EQ(this->m_definition.CreateDefinition(TypeParam::UNKNOWN_ID, true), STATUS_NG);
    EXPECT_EQ(LogEntries(log),
              (Entries{{TypeParam::CREATE, TypeParam::ABSENT + std::string(TypeParam::UNKNOWN_ID)},
                       {TypeParam::CREATE, UNEXPECTED_ERROR}}));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
    EXPECT_STREQ(this->m_definition.GetProcId(), "");
}

TYPED_TEST(LoadLogTest, EmptyProcedureIsToldByTheTypeId)
{
    const DebugLog log;
    EXPECT_EQ(this->LoadText(DefinitionFile(R"(<report id="003" procId="" reportId="R"/>)")),
              STATUS_NG);
    EXPECT_EQ(LogEntries(log),
              (Entries{{TypeParam::CREATE, TypeParam::ABSENT + std::string(TypeParam::TYPE_ID)},
                       {TypeParam::CREATE, UNEXPECTED_ERROR}}));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TYPED_TEST(LoadLogTest, MissingFileIsAReadError)
{
    const DebugLog log;
    EXPECT_EQ(this->m_definition.CreateDefinition(TypeParam::TYPE_ID, true), STATUS_NG);
    EXPECT_EQ(OwnEntries(log),
              (Entries{{TypeParam::CREATE, READ_ERROR}, {TypeParam::CREATE, UNEXPECTED_ERROR}}));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TYPED_TEST(LoadLogTest, MalformedFileIsAReadError)
{
    const DebugLog log;
    EXPECT_EQ(this->LoadText("<definitions><report></definitions>"), STATUS_NG);
    EXPECT_EQ(OwnEntries(log),
              (Entries{{TypeParam::CREATE, READ_ERROR}, {TypeParam::CREATE, UNEXPECTED_ERROR}}));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TYPED_TEST(LoadLogTest, ItemThatCannotBeMadeOrPlacedBreaksTheTree)
{
    for (const BadItemCase& bad : BAD_ITEMS) {
        const DebugLog log;
        EXPECT_EQ(this->LoadText(this->File(bad.szItem)), STATUS_NG) << bad.szName;
        Entries vecExpected = bad.vecEntry;
        vecExpected.push_back({TypeParam::CREATE, TREE_ERROR});
        EXPECT_EQ(OwnEntries(log), vecExpected) << bad.szName;
        EXPECT_TRUE(KZCValidResult::instance()->IsEmpty()) << bad.szName;
    }
}

TYPED_TEST(LoadLogTest, CheckWithoutACsvIsOneEntryUnderTheClassThatDefinesIt)
{
    EXPECT_EQ(this->LoadText(this->File("")), STATUS_OK);
    const DebugLog log;
    EXPECT_EQ(Raised([&] { static_cast<void>(this->m_definition.ValidateCsv(nullptr)); }), FAULT);
    const bool bBase = std::is_same_v<TypeParam, BaseLoad>;
    EXPECT_EQ(
        LogEntries(log),
        (Entries{{bBase ? "KZCEkaDefinition::ValidateCsv" : "KZCEkaDefinitionFinance::ValidateCsv",
                  CHECK_MISSING}}));
}

TYPED_TEST(LoadLogTest, FaultOfACheckIsOneEntryOfTheDefinition)
{
    EXPECT_EQ(
        this->LoadText(this->File(
            R"(<item type="Normal" id="A" parent="R" column="2"><valid id="contain"/></item>)")),
        STATUS_OK);
    const DebugLog log;
    EXPECT_EQ(Raised([&] { static_cast<void>(this->m_definition.ValidateCsv(&this->m_csv)); }),
              FAULT);
    const bool bBase = std::is_same_v<TypeParam, BaseLoad>;
    EXPECT_EQ(
        OwnEntries(log),
        (Entries{{bBase ? "KZCEkaDefinition::ValidateCsv" : "KZCEkaDefinitionFinance::ValidateCsv",
                  UNEXPECTED_ERROR}}));
}

// ---- the base family alone ---------------------------------------------------------------------

TEST_F(DefinitionLogTest, BaseCheckAndWritingWithoutATreeAreOneEntryEach)
{
    KZCEkaITData it;
    KZCEkaDefinition definition;
    const DebugLog log;
    EXPECT_EQ(Raised([&] { static_cast<void>(definition.ValidateCsv(&m_csv)); }), FAULT);
    EXPECT_EQ(Raised([&] { static_cast<void>(definition.MakeReportToCsv(&m_csv, &it)); }), FAULT);
    EXPECT_EQ(LogEntries(log), (Entries{{"KZCEkaDefinition::ValidateCsv", CHECK_MISSING},
                                        {"KZCEkaDefinition::MakeReportToCsv", WRITE_MISSING}}));
}

TEST_F(DefinitionLogTest, BaseWritingWithoutACsvOrAnItSectionIsOneEntry)
{
    const Bundle bundle(R"(<define><report id="003" procId="P" reportId="R"/></define>)");
    KZCEkaITData it;
    KZCEkaDefinition definition;
    EXPECT_EQ(definition.CreateDefinition("003", false), STATUS_OK);
    const DebugLog log;
    EXPECT_EQ(Raised([&] { static_cast<void>(definition.MakeReportToCsv(nullptr, &it)); }), FAULT);
    EXPECT_EQ(Raised([&] { static_cast<void>(definition.MakeReportToCsv(&m_csv, nullptr)); }),
              FAULT);
    EXPECT_EQ(LogEntries(log), Entries(2, {"KZCEkaDefinition::MakeReportToCsv", WRITE_MISSING}));
}

// ---- the other two -----------------------------------------------------------------------------

template <class Load>
class FamilyLogTest : public LoadLogTest<Load>
{
};

using FamilyLoads = testing::Types<FinanceLoad, CrossBorderLoad>;
TYPED_TEST_SUITE(FamilyLogTest, FamilyLoads, LoadName);

TYPED_TEST(FamilyLogTest, BrokenReportIsToldOnceAndTheNextIsRead)
{
    const DebugLog log;
    EXPECT_EQ(
        this->LoadText(DefinitionFile(
            this->ReportOf("R", R"(<item type="Table"/><item type="Table"/>)", R"(endRow="2")") +
            this->ReportOf("S", R"(<item type="Table"/>)", R"(startRow="3" endRow="3")") +
            this->ReportOf("T", R"(<item type="TAG" id="A" parent="T"/>)", R"(startRow="4")"))),
        STATUS_NG);
    EXPECT_EQ(OwnEntries(log), (Entries{{CREATE_NODE, UNKNOWN_KIND},
                                        {TypeParam::CREATE, TREE_ERROR},
                                        {CREATE_NODE, UNKNOWN_KIND},
                                        {TypeParam::CREATE, TREE_ERROR}}));
    EXPECT_EQ(this->m_definition.GetReportIdW_Index(2), "R");
    EXPECT_EQ(this->m_definition.GetReportIdW_Index(3), "S");
    EXPECT_EQ(this->m_definition.GetReportIdW_Index(4), "T");
}

TYPED_TEST(FamilyLogTest, NegativeStartRowIsToldAndThenTheFault)
{
    EXPECT_EQ(this->LoadText(this->File("", R"(startRow="-1")")), STATUS_OK);
    const DebugLog log;
    EXPECT_EQ(Raised([&] { static_cast<void>(this->m_definition.ValidateCsv(&this->m_csv)); }),
              FAULT);
    EXPECT_EQ(LogEntries(log),
              (Entries{{"KZCEkaDefinitionFinance::ValidateCsv", START_ERROR},
                       {"KZCEkaDefinitionFinance::ValidateCsv", UNEXPECTED_ERROR}}));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TYPED_TEST(FamilyLogTest, ReportsThatRunOutAreToldUnderTheOperationOfTheFamily)
{
    const bool bFinance = std::is_same_v<TypeParam, FinanceLoad>;
    const char* szFunction = bFinance ? "KZCEkaDefinitionFinance::MakeReportToCsvFinance"
                                      : "KZCEkaDefinitionCrossBorder::MakeReportToCsvCrossBorder";
    EXPECT_EQ(this->LoadText(this->File("", R"(startRow="1" endRow="2")")), STATUS_OK);
    const GenerationCsv csv(Records(3, {"103", "a"}));
    KZCEkaITDataCrossBorder it;
    it.Initialize(true);
    const DebugLog log;
    const auto write = [&](const KZCEkaCsvFile* pCsv) {
        if constexpr (std::is_same_v<TypeParam, FinanceLoad>)
            static_cast<void>(this->m_definition.MakeReportToCsvFinance(pCsv, &it));
        else
            static_cast<void>(this->m_definition.MakeReportToCsvCrossBorder(pCsv, &it));
    };
    EXPECT_EQ(Raised([&] { write(&csv); }), FAULT);
    EXPECT_EQ(LogEntries(log), (Entries{{szFunction, RUN_OUT}, {szFunction, UNEXPECTED_ERROR}}));
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
    // The reports are used up: there is nothing to begin with.
    const DebugLog second;
    EXPECT_EQ(Raised([&] { write(&csv); }), FAULT);
    EXPECT_EQ(LogEntries(second), (Entries{{szFunction, WRITE_MISSING}}));
}

TYPED_TEST(FamilyLogTest, WritingOverAllRecordsIsTheFinanceClassesInBothFamilies)
{
    constexpr const char* FUNCTION =
        "KZCEkaDefinitionFinance::MakeSingleTypeReportFromCsvMultiRecord";
    KZCEkaITDataCrossBorder it;
    it.Initialize(true);
    const auto write = [&](KZCEkaCsvFile* pCsv, KZCEkaITDataFinance* pIT) {
        return Raised([&] {
            static_cast<void>(this->m_definition.MakeSingleTypeReportFromCsvMultiRecord(pCsv, pIT));
        });
    };
    const DebugLog log;
    EXPECT_EQ(write(&this->m_csv, &it), FAULT);
    EXPECT_EQ(this->LoadText(this->File("")), STATUS_OK);
    EXPECT_EQ(write(nullptr, &it), FAULT);
    EXPECT_EQ(write(&this->m_csv, nullptr), FAULT);
    EXPECT_EQ(LogEntries(log), Entries(3, {FUNCTION, WRITE_MISSING}));
}

}  // namespace
