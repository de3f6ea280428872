#include "family/FamilyFolder.h"

#include <gmock/gmock.h>

#include <ostream>
#include <string>

#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/LogMessages.h"
#include "support/Raised.h"
#include "support/ResetState.h"

namespace {

using FamilyFolder::TEMPLATE_FILE;
using FamilyFolder::VALIDATION_FILE;

class FamilyFolderTest : public ResetState
{
protected:
    static std::string Find(CALL_TYPE eType, const std::string& strProcId, const char* szFile)
    {
        return FamilyFolder::FindDefinition(eType, strProcId, szFile, "Somewhere");
    }

    Bundle m_bundle{std::nullopt, std::nullopt};
};

TEST_F(FamilyFolderTest, FileNamesEndLikeThis)
{
    EXPECT_STREQ(VALIDATION_FILE, "vld.xml");
    EXPECT_STREQ(TEMPLATE_FILE, "tpl.xml");
}

TEST_F(FamilyFolderTest, FinanceFilesLieInTheFolderFinance)
{
    const std::string strValidation = m_bundle.Write("Finance/PGE2015vld.xml", "");
    const std::string strTemplate = m_bundle.Write("Finance/PGE2015tpl.xml", "");
    EXPECT_EQ(Find(CALL_TYPE_FINANCE, "PGE2015", VALIDATION_FILE), strValidation);
    EXPECT_EQ(Find(CALL_TYPE_FINANCE, "PGE2015", TEMPLATE_FILE), strTemplate);
}

TEST_F(FamilyFolderTest, CrossBorderFilesLieInTheFolderCrossBorder)
{
    const std::string strValidation = m_bundle.Write("CrossBorder/PGE1650vld.xml", "");
    const std::string strTemplate = m_bundle.Write("CrossBorder/PGE1650tpl.xml", "");
    EXPECT_EQ(Find(CALL_TYPE_CROSSBORDER, "PGE1650", VALIDATION_FILE), strValidation);
    EXPECT_EQ(Find(CALL_TYPE_CROSSBORDER, "PGE1650", TEMPLATE_FILE), strTemplate);
}

TEST_F(FamilyFolderTest, FilesOfTheOtherFamilyAreNotFound)
{
    m_bundle.Write("Finance/PGE2015vld.xml", "");
    m_bundle.Write("CrossBorder/PGE1650vld.xml", "");
    EXPECT_EQ(Find(CALL_TYPE_CROSSBORDER, "PGE2015", VALIDATION_FILE), "");
    EXPECT_EQ(Find(CALL_TYPE_FINANCE, "PGE1650", VALIDATION_FILE), "");
}

TEST_F(FamilyFolderTest, FilesBesideTheFolderOrBelowItAreNotFound)
{
    m_bundle.Write("PGE2015vld.xml", "");
    m_bundle.Write("Finance/old/PGE2015vld.xml", "");
    EXPECT_EQ(Find(CALL_TYPE_FINANCE, "PGE2015", VALIDATION_FILE), "");
}

TEST_F(FamilyFolderTest, AnyNameThatHoldsBothPartsFits)
{
    const std::string strPath = m_bundle.Write("Finance/231_PGE2015_a_vld.xml", "");
    EXPECT_EQ(Find(CALL_TYPE_FINANCE, "PGE2015", VALIDATION_FILE), strPath);
}

TEST_F(FamilyFolderTest, FirstByNameWinsWhicheverWasMadeFirst)
{
    m_bundle.Write("Finance/c_PGE2015vld.xml", "");
    m_bundle.Write("Finance/b_PGE2015vld.xml", "");
    const std::string strFirst = m_bundle.Write("Finance/a_PGE2015vld.xml", "");
    m_bundle.Write("Finance/d_PGE2015vld.xml", "");
    EXPECT_EQ(Find(CALL_TYPE_FINANCE, "PGE2015", VALIDATION_FILE), strFirst);
}

TEST_F(FamilyFolderTest, MissingFolderGivesTheEmptyText)
{
    EXPECT_EQ(Find(CALL_TYPE_FINANCE, "PGE2015", VALIDATION_FILE), "");
}

TEST_F(FamilyFolderTest, MissingResourceFolderGivesTheEmptyText)
{
    const Environment environment("KZEKAMOK_BUNDLE", m_bundle.Path("none"));
    EXPECT_EQ(Find(CALL_TYPE_FINANCE, "PGE2015", VALIDATION_FILE), "");
    EXPECT_EQ(Find(CALL_TYPE_CROSSBORDER, "PGE1650", VALIDATION_FILE), "");
}

TEST_F(FamilyFolderTest, NothingFoundIsNotLogged)
{
    const DebugLog log;
    EXPECT_EQ(Find(CALL_TYPE_FINANCE, "PGE2015", VALIDATION_FILE), "");
    EXPECT_EQ(log.Text(), "");
}

class OtherFamilyTest : public ResetState, public testing::WithParamInterface<int>
{};

TEST_P(OtherFamilyTest, RaisesUnderTheCallersName)
{
    const DebugLog log;
    const auto eType = static_cast<CALL_TYPE>(GetParam());
    EXPECT_EQ(Raised([&] {
                  static_cast<void>(
                      FamilyFolder::FindDefinition(eType, "PGE2015", "vld.xml", "Somewhere"));
              }),
              FAULT);
    EXPECT_THAT(log.Text(), testing::HasSubstr(" Somewhere--\n想定外動作モード\n"));
}

INSTANTIATE_TEST_SUITE_P(Numbers, OtherFamilyTest, testing::Values(-1, 0, 3));

// ---- the files of the package ------------------------------------------------------------------

struct DeliveredCase
{
    const char* szName;
    CALL_TYPE eType;
};

void PrintTo(const DeliveredCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class DeliveredDefinitionTest : public ResetState, public testing::WithParamInterface<DeliveredCase>
{};

TEST_P(DeliveredDefinitionTest, ProcedureHasBothFiles)
{
    const Environment environment("KZEKAMOK_BUNDLE", KZEKAMOK_SOURCE_BUNDLE);
    const auto [szProcId, eType] = GetParam();
    const std::string strStart = std::string(KZEKAMOK_SOURCE_BUNDLE) +
                                 (eType == CALL_TYPE_FINANCE ? "/Finance/" : "/CrossBorder/") +
                                 szProcId;
    for (const char* szFile : {VALIDATION_FILE, TEMPLATE_FILE}) {
        const std::string strFound =
            FamilyFolder::FindDefinition(eType, szProcId, szFile, "Somewhere");
        EXPECT_TRUE(strFound.starts_with(strStart)) << strFound;
        EXPECT_TRUE(strFound.ends_with(szFile)) << strFound;
    }
}

constexpr DeliveredCase DELIVERED_CASES[] = {
    {"PGE1630", CALL_TYPE_FINANCE},     {"PGE1640", CALL_TYPE_FINANCE},
    {"PGE1650", CALL_TYPE_CROSSBORDER}, {"PGE1660", CALL_TYPE_CROSSBORDER},
    {"PGE2015", CALL_TYPE_FINANCE},     {"PGE2025", CALL_TYPE_FINANCE},
    {"PGE2030", CALL_TYPE_FINANCE},     {"PGE2040", CALL_TYPE_FINANCE},
    {"PGE2055", CALL_TYPE_FINANCE},     {"PGE2065", CALL_TYPE_FINANCE},
    {"PGE2070", CALL_TYPE_FINANCE},     {"PGE2080", CALL_TYPE_FINANCE},
    {"PGE2095", CALL_TYPE_FINANCE},     {"PGE2105", CALL_TYPE_FINANCE},
    {"PGE2115", CALL_TYPE_FINANCE},     {"PGE2125", CALL_TYPE_FINANCE},
    {"PGE2135", CALL_TYPE_FINANCE},     {"PGE2140", CALL_TYPE_FINANCE},
    {"PGE2150", CALL_TYPE_FINANCE},     {"PGE2160", CALL_TYPE_FINANCE},
};

INSTANTIATE_TEST_SUITE_P(Procedures,
                         DeliveredDefinitionTest,
                         testing::ValuesIn(DELIVERED_CASES),
                         CaseName());

}  // namespace
