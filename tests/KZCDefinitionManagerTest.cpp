#include "KZCDefinitionManager.h"

#include <gmock/gmock.h>

#include <ostream>
#include <string>
#include <vector>

#include "fault/Fault.h"
#include "support/CheckItem.h"
#include "support/LogMessages.h"
#include "support/Raised.h"
#include "support/ResetState.h"

static void PrintTo(const PROC_INFO& info, std::ostream* pStream)
{
    *pStream << info.procId << " " << info.strVR << " " << info.lMaxRecord << " " << info.nNumberA
             << " " << info.nNumberB;
    for (const REPORT_INFO& report : info.listReport)
        *pStream << " " << report.strReportId << " " << report.strVR;
}

namespace {

// ---- the catalogues ----------------------------------------------------------------------------

struct ProcedureCase
{
    const char* szTypeId;
    PROC_INFO info;
};

void PrintTo(const ProcedureCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szTypeId;
}

/// Names the instances by their type ids.
struct TypeIdName
{
    template <class Info>
    std::string operator()(const Info& info) const
    {
        return std::string("TypeId") + info.param.szTypeId;
    }
};

const ProcedureCase FINANCE_CASES[] = {
    {"101", {"PGE2015", "231.0", 1000, 206, 243, {{"GEZ035", "1.0"}}}},
    {"102", {"PGE2025", "231.0", 1000, 207, 238, {{"GEZ045", "1.0"}}}},
    {"103", {"PGE2030", "231.0", 1000, 208, 225, {{"GEZ050", "5.0"}, {"GEZ051", "5.0"}}}},
    {"104", {"PGE2040", "231.0", 1000, 209, 237, {{"GEZ060", "3.0"}}}},
    {"105", {"PGE2055", "231.0", 1000, 210, 236, {{"GEZ075", "1.0"}}}},
    {"106", {"PGE2065", "231.0", 1000, 211, 235, {{"GEZ085", "1.0"}}}},
    {"107", {"PGE2070", "231.0", 1000, 212, 234, {{"GEZ090", "4.0"}}}},
    {"108", {"PGE2080", "231.0", 1, 213, 233, {{"GEZ100", "2.0"}}}},
    {"109", {"PGE2095", "231.0", 1000, 214, 232, {{"GEZ555", "1.0"}}}},
    {"110", {"PGE2105", "231.0", 1000, 215, 231, {{"GEZ565", "1.0"}}}},
    {"111", {"PGE2115", "231.0", 1000, 216, 224, {{"GEZ620", "1.0"}, {"GEZ621", "5.0"}}}},
    {"112", {"PGE2125", "231.0", 1000, 217, 230, {{"GEZ585", "1.0"}}}},
    {"113", {"PGE2135", "231.0", 1000, 218, 229, {{"GEZ595", "1.0"}}}},
    {"114", {"PGE2140", "231.0", 1000, 219, 228, {{"GEZ600", "3.0"}}}},
    {"115", {"PGE2150", "231.0", 1000, 220, 227, {{"GEZ610", "4.0"}}}},
    {"116", {"PGE2160", "231.0", 1, 221, 226, {{"GEZ100", "2.0"}}}},
    {"201", {"PGE1630", "231.0", 1, 204, 222, {{"GEZ740", "1.0"}}}},
    {"202", {"PGE1640", "231.0", 1000, 205, 223, {{"GEZ750", "1.0"}}}},
};

const ProcedureCase CROSSBORDER_CASES[] = {
    {"301", {"PGE1650", "240.0", 1000, 245, 244, {{"GEZ850", "1.0"}}}},
    {"302", {"PGE1660", "240.0", 1000, 247, 246, {{"GEZ860", "1.0"}}}},
};

/// Another type id's row, whose forms must not stay.
PROC_INFO FilledInfo()
{
    return {"PGE0000", "9.9", 7, 8, 9, {{"GEZ001", "1.0"}, {"GEZ002", "2.0"}, {"GEZ003", "3.0"}}};
}

class FinanceCatalogueTest : public ResetState, public testing::WithParamInterface<ProcedureCase>
{};

TEST_P(FinanceCatalogueTest, HasThisRow)
{
    PROC_INFO info = FilledInfo();
    EXPECT_TRUE(KZCDefinitionManager::getProcInfo(GetParam().szTypeId, info, CALL_TYPE_FINANCE));
    EXPECT_EQ(info, GetParam().info);
}

TEST_P(FinanceCatalogueTest, TheCrossBorderCatalogueHasNoSuchTypeId)
{
    PROC_INFO info = FilledInfo();
    EXPECT_FALSE(
        KZCDefinitionManager::getProcInfo(GetParam().szTypeId, info, CALL_TYPE_CROSSBORDER));
    EXPECT_EQ(info, FilledInfo());
}

INSTANTIATE_TEST_SUITE_P(Procedures,
                         FinanceCatalogueTest,
                         testing::ValuesIn(FINANCE_CASES),
                         TypeIdName());

class CrossBorderCatalogueTest : public ResetState,
                                 public testing::WithParamInterface<ProcedureCase>
{};

TEST_P(CrossBorderCatalogueTest, HasThisRow)
{
    PROC_INFO info = FilledInfo();
    EXPECT_TRUE(
        KZCDefinitionManager::getProcInfo(GetParam().szTypeId, info, CALL_TYPE_CROSSBORDER));
    EXPECT_EQ(info, GetParam().info);
}

TEST_P(CrossBorderCatalogueTest, TheFinanceCatalogueHasNoSuchTypeId)
{
    PROC_INFO info = FilledInfo();
    EXPECT_FALSE(KZCDefinitionManager::getProcInfo(GetParam().szTypeId, info, CALL_TYPE_FINANCE));
    EXPECT_EQ(info, FilledInfo());
}

INSTANTIATE_TEST_SUITE_P(Procedures,
                         CrossBorderCatalogueTest,
                         testing::ValuesIn(CROSSBORDER_CASES),
                         TypeIdName());

class KZCDefinitionManagerTest : public ResetState
{
protected:
    /// Every text of one to four digits that the catalogue has.
    static std::vector<std::string> NumbersIn(CALL_TYPE eType)
    {
        constexpr int BEHIND_THE_LAST = 10000;
        std::vector<std::string> vecFound;
        PROC_INFO info;
        for (int nNumber = 0; nNumber < BEHIND_THE_LAST; ++nNumber)
            if (KZCDefinitionManager::getProcInfo(std::to_string(nNumber), info, eType))
                vecFound.push_back(std::to_string(nNumber));
        return vecFound;
    }
};

TEST_F(KZCDefinitionManagerTest, FinanceHasTheseEighteenNumbersAlone)
{
    EXPECT_THAT(
        NumbersIn(CALL_TYPE_FINANCE),
        testing::ElementsAre("101", "102", "103", "104", "105", "106", "107", "108", "109", "110",
                             "111", "112", "113", "114", "115", "116", "201", "202"));
}

TEST_F(KZCDefinitionManagerTest, CrossBorderHasTheseTwoNumbersAlone)
{
    EXPECT_THAT(NumbersIn(CALL_TYPE_CROSSBORDER), testing::ElementsAre("301", "302"));
}

TEST_F(KZCDefinitionManagerTest, CallTypesHaveTheirFixedValues)
{
    EXPECT_EQ(static_cast<int>(CALL_TYPE_FINANCE), 1);
    EXPECT_EQ(static_cast<int>(CALL_TYPE_CROSSBORDER), 2);
}

// ---- texts that aren't type ids ----------------------------------------------------------------

struct UnknownCase
{
    const char* szName;
    std::string strTypeId;
};

void PrintTo(const UnknownCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class UnknownTypeIdTest : public ResetState, public testing::WithParamInterface<UnknownCase>
{};

TEST_P(UnknownTypeIdTest, IsInNoCatalogueAndLeavesTheRowAlone)
{
    for (const CALL_TYPE eType : {CALL_TYPE_FINANCE, CALL_TYPE_CROSSBORDER}) {
        PROC_INFO info = FilledInfo();
        EXPECT_FALSE(KZCDefinitionManager::getProcInfo(GetParam().strTypeId, info, eType));
        EXPECT_EQ(info, FilledInfo());
    }
}

TEST_P(UnknownTypeIdTest, IsNotLogged)
{
    const DebugLog log;
    PROC_INFO info;
    static_cast<void>(
        KZCDefinitionManager::getProcInfo(GetParam().strTypeId, info, CALL_TYPE_FINANCE));
    EXPECT_EQ(log.Text(), "");
}

const UnknownCase UNKNOWN_CASES[] = {
    {"Empty", ""},
    {"TrailingBlank", "101 "},
    {"LeadingBlank", " 101"},
    {"TrailingBlankCrossBorder", "301 "},
    {"LeadingZero", "0101"},
    {"BeginOfOne", "10"},
    {"BeginOfOneCrossBorder", "30"},
    {"OneAndMore", "1011"},
    {"TrailingNul", std::string("101\0", 4)},
    {"FullWidth", "１０１"},
    {"BaseFamily", "001"},
    {"ProcedureId", "PGE2015"},
    {"BeforeTheFirst", "100"},
    {"BehindTheLast", "303"},
    {"Sign", "+101"},
    {"HighByte", "\xff"},
};

INSTANTIATE_TEST_SUITE_P(Texts, UnknownTypeIdTest, testing::ValuesIn(UNKNOWN_CASES), CaseName());

// ---- other call types --------------------------------------------------------------------------

class OtherCallTypeTest : public ResetState, public testing::WithParamInterface<int>
{};

TEST_P(OtherCallTypeTest, RaisesForATypeIdThatExists)
{
    const DebugLog log;
    PROC_INFO info = FilledInfo();
    EXPECT_EQ(Raised([&] {
                  static_cast<void>(KZCDefinitionManager::getProcInfo(
                      "101", info, static_cast<CALL_TYPE>(GetParam())));
              }),
              FAULT);
    EXPECT_EQ(info, FilledInfo());
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("想定外動作モード"));
    EXPECT_THAT(log.Text(), testing::HasSubstr(" getProcInfo--\n想定外動作モード\n"));
}

TEST_P(OtherCallTypeTest, RaisesForATypeIdThatDoesNot)
{
    PROC_INFO info;
    EXPECT_EQ(Raised([&] {
                  static_cast<void>(KZCDefinitionManager::getProcInfo(
                      "", info, static_cast<CALL_TYPE>(GetParam())));
              }),
              FAULT);
}

INSTANTIATE_TEST_SUITE_P(Numbers, OtherCallTypeTest, testing::Values(-1, 0, 3));

}  // namespace
