// What the CrossBorder manager does in its own way; its steps are tested with the family managers'.
#include "KZCEkaMOKManagerCrossBorder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/FamilyManager.h"
#include "support/LogEntries.h"
#include "support/Raised.h"
#include "support/RefusingStore.h"

namespace {

class MokManagerCrossBorderTest : public FamilyManager<CrossBorderSide>
{};

// ---- a refused file ----------------------------------------------------------------------------

TEST_F(MokManagerCrossBorderTest, FileThatItsReaderRefusesKeepsTheReasonAlone)
{
    EXPECT_EQ(Load("999,1,a\n"), "refuses 0000-00001-HE70021E");
    EXPECT_EQ(Load("301,1,a\n302,2,b\n"), "refuses 0000-00001-HE70021E");
}

TEST_F(MokManagerCrossBorderTest, RefusedFileOfAConversionKeepsTheReasonAlone)
{
    EXPECT_EQ(InitMok(Write("999,1,a\n"), m_folder.Path("out.mok")), PASSES);
    EXPECT_EQ(LoadForConversion(true), "refuses 0000-00001-HE70021E");
}

TEST_F(MokManagerCrossBorderTest, FileRefusedWithoutAReasonGetsMessageNineteen)
{
    EXPECT_EQ(InitCheck(Write("x").c_str()), PASSES);
    RefusingStore::Install(STATUS_NG);
    EXPECT_EQ(LoadForCheck(), "refuses 0000-00000-HE70019E");
}

TEST_F(MokManagerCrossBorderTest, AnyErrorThatIsThereKeepsMessageNineteenOut)
{
    EXPECT_EQ(InitCheck(Write("x").c_str()), PASSES);
    RefusingStore::Install(STATUS_NG);
    KZCValidResult::instance()->SetResult(HE70024E, 0, 0, SINGLE_COLUMN);
    EXPECT_EQ(LoadForCheck(), "refuses 0000-00000-HE70024E");
}

TEST_F(MokManagerCrossBorderTest, ReadersCodeIsReturnedAsItIs)
{
    EXPECT_EQ(InitMok(Write("x"), m_folder.Path("out.mok")), PASSES);
    RefusingStore::Install(-7);
    EXPECT_EQ(LoadForConversion(true), "gives -7 0000-00000-HE70019E");
}

TEST_F(MokManagerCrossBorderTest, ProcedureOfTheOtherFamilyIsNotKnown)
{
    EXPECT_EQ(Load("101,1,a\n"), "refuses 0000-00001-HE70021E");
}

TEST_F(MokManagerCrossBorderTest, QuotedCellsKeepCommasQuotesAndLineEnds)
{
    EXPECT_EQ(Check("301,1,\"a,\"\"\nb\"\n"), PASSES);
    KZCEkaCommon::SetCsvCheckFlag(false);
    Prepare("301,1,\"a,\"\"\nb\"\n");
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Mok(), Document(Item(1), Report(1, "1", "a,\"\nb")));
}

// ---- what the Finance manager hands down -------------------------------------------------------

TEST_F(MokManagerCrossBorderTest, FinanceSetterIsLoggedUnderTheFinanceClass)
{
    EXPECT_EQ(InitMok(Write("x"), m_folder.Path("out.mok")), PASSES);
    KZCEkaTaxOffices::destroy();
    const DebugLog log;
    EXPECT_EQ(Raised([&] {
                  static_cast<void>(
                      m_manager.SetITDataFinance(KZCEkaITDataFinance_t::IT_ZEIMUSHO_CD, "00101"));
              }),
              FAULT);
    EXPECT_EQ(LogEntries(log).back(), (LogEntry{"KZCEkaMOKManagerFinance::SetITDataFinance", ""}));
}

TEST_F(MokManagerCrossBorderTest, FinanceLoadingIsLoggedUnderTheFinanceClass)
{
    const std::string strPath = Write("301,1,a\n");
    EXPECT_EQ(InitCheck(strPath.c_str()), PASSES);
    std::filesystem::remove(strPath);
    const DebugLog log;
    EXPECT_EQ(m_manager.LoadCsvWithDefinitionFinance_Check(), STATUS_NG);
    EXPECT_EQ(LogEntries(log).back(),
              (LogEntry{"KZCEkaMOKManagerFinance::LoadCsvWithDefinitionFinance_Check",
                        UNEXPECTED_ERROR}));
    EXPECT_EQ(m_manager.LoadCsvWithDefinitionFinance_Conv(true), STATUS_NG);
    EXPECT_EQ(
        LogEntries(log).back(),
        (LogEntry{"KZCEkaMOKManagerFinance::LoadCsvWithDefinitionFinance_Conv", UNEXPECTED_ERROR}));
}

TEST_F(MokManagerCrossBorderTest, FinanceLoadingAddsMessageNineteenBehindTheReason)
{
    EXPECT_EQ(InitCheck(Write("999,1,a\n").c_str()), PASSES);
    EXPECT_EQ(Told([&] { return m_manager.LoadCsvWithDefinitionFinance_Check(); }),
              "refuses 0000-00001-HE70021E,0000-00000-HE70019E");
}

TEST_F(MokManagerCrossBorderTest, LoadingOfTheBaseIsLoggedUnderTheBaseClass)
{
    EXPECT_EQ(InitCheck(Write("301,1,\xff\n").c_str()), PASSES);
    const DebugLog log;
    EXPECT_EQ(m_manager.LoadCsvWithDefinition(true), STATUS_NG);
    EXPECT_EQ(LogEntries(log).back(),
              (LogEntry{"KZCEkaMOKManager::LoadCsvWithDefinition", UNEXPECTED_ERROR}));
}

// ---- stores ------------------------------------------------------------------------------------

TEST_F(MokManagerCrossBorderTest, WithoutAStoreNoStoreIsLeftAndNoResultStore)
{
    KZCValidResult::instance()->SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
    m_manager.TerminateDifferentData();
    EXPECT_EQ(StorePeek::Kind(), StoreKind::None);
    EXPECT_EQ(KZCValidResult::instance()->MakeResult(), "0000-00000-HE70017E");
}

TEST_F(MokManagerCrossBorderTest, FinanceStoreIsDestroyed)
{
    static_cast<void>(KZCConvertInfoFinance::instance_finance());
    KZCValidResult::instance()->SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
    m_manager.TerminateDifferentData();
    EXPECT_EQ(StorePeek::Kind(), StoreKind::None);
    EXPECT_EQ(KZCValidResult::instance()->MakeResult(), "0000-00000-HE70017E");
}

}  // namespace
