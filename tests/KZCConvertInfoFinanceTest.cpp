#include "KZCConvertInfoFinance.h"

#include <gtest/gtest.h>

#include <typeinfo>

#include "KZCConvertInfoCrossBorder.h"
#include "KZCEkaCsvFileFinance.h"
#include "KZCEkaITDataFinance.h"
#include "definition/KZCEkaDefinitionFinance.h"
#include "fault/Fault.h"
#include "support/FamilyDefinition.h"
#include "support/Raised.h"
#include "support/ResetState.h"
#include "support/StorePeek.h"
#include "support/TempFolder.h"

namespace {

class ConvertInfoFinanceTest : public ResetState
{
protected:
    std::string WriteCsv(std::string_view strBytes) { return m_folder.Write("in.csv", strBytes); }

    TempFolder m_folder;
    FamilyBundle m_bundle;
};

TEST_F(ConvertInfoFinanceTest, AccessorMakesAFinanceStoreWhereThereIsNone)
{
    static_cast<void>(KZCConvertInfoFinance::instance_finance());
    EXPECT_EQ(StorePeek::Kind(), StoreKind::Finance);
}

TEST_F(ConvertInfoFinanceTest, AccessorMakesAFinanceStoreBehindDestroy)
{
    static_cast<void>(KZCConvertInfo::instance());
    KZCConvertInfo::destroy();
    static_cast<void>(KZCConvertInfoFinance::instance_finance());
    EXPECT_EQ(StorePeek::Kind(), StoreKind::Finance);
}

TEST_F(ConvertInfoFinanceTest, AccessorGivesALiveBaseStoreUnchanged)
{
    const KZCConvertInfo* pStore = KZCConvertInfo::instance();
    EXPECT_EQ(KZCConvertInfoFinance::instance_finance(), pStore);
    EXPECT_EQ(StorePeek::Kind(), StoreKind::Base);
}

TEST_F(ConvertInfoFinanceTest, AccessorGivesALiveCrossBorderStoreUnchanged)
{
    const KZCConvertInfo* pStore = KZCConvertInfoCrossBorder::instance_crossborder();
    EXPECT_EQ(KZCConvertInfoFinance::instance_finance(), pStore);
    EXPECT_EQ(StorePeek::Kind(), StoreKind::CrossBorder);
}

TEST_F(ConvertInfoFinanceTest, BaseAccessorGivesALiveFinanceStoreUnchanged)
{
    const KZCConvertInfo* pStore = KZCConvertInfoFinance::instance_finance();
    EXPECT_EQ(KZCConvertInfo::instance(), pStore);
    EXPECT_EQ(StorePeek::Kind(), StoreKind::Finance);
}

TEST_F(ConvertInfoFinanceTest, NewKeyHasTheObjectsOfTheFamily)
{
    const _ConvertTable table = KZCConvertInfoFinance::instance_finance()->GetConvertTable(7);
    EXPECT_EQ(typeid(*table.pCsvFile), typeid(KZCEkaCsvFileFinance));
    EXPECT_EQ(typeid(*table.pDefinition), typeid(KZCEkaDefinitionFinance));
    EXPECT_EQ(typeid(*table.pITData), typeid(KZCEkaITDataFinance));
}

TEST_F(ConvertInfoFinanceTest, ReloadMakesACsvOfTheFamilyAndKeepsTheOtherObjects)
{
    KZCConvertInfo& store = *KZCConvertInfoFinance::instance_finance();
    const _ConvertTable before = store.GetConvertTable(7);
    EXPECT_EQ(store.ReloadCsvFile(7, WriteCsv("101,1,a\n101,2,b\n")), STATUS_OK);
    const _ConvertTable after = store.GetConvertTable(7);
    EXPECT_EQ(typeid(*after.pCsvFile), typeid(KZCEkaCsvFileFinance));
    EXPECT_EQ(after.pCsvFile->GetRecordCount(), 2);
    EXPECT_EQ(after.pDefinition, before.pDefinition);
    EXPECT_EQ(after.pITData, before.pITData);
}

TEST_F(ConvertInfoFinanceTest, ReloadOfARefusedFileGivesItsStatusAndKeepsWhatWasRead)
{
    KZCConvertInfo& store = *KZCConvertInfoFinance::instance_finance();
    static_cast<void>(store.GetConvertTable(7));
    EXPECT_EQ(store.ReloadCsvFile(7, WriteCsv("101,1,a\n999,2,b\n")), STATUS_NG);
    EXPECT_EQ(store.GetCsvFile(7)->GetRecordCount(), 1);
}

TEST_F(ConvertInfoFinanceTest, ReloadOfAVanishedFileRaisesAndLeavesANewEmptyCsv)
{
    KZCConvertInfo& store = *KZCConvertInfoFinance::instance_finance();
    EXPECT_EQ(store.GetCsvFile(7)->ReadFile(WriteCsv("101,1,a\n")), STATUS_OK);
    EXPECT_EQ(Raised([&] { static_cast<void>(store.ReloadCsvFile(7, m_folder.Path("gone.csv"))); }),
              FAULT);
    EXPECT_EQ(store.GetCsvFile(7)->GetRecordCount(), 0);
    EXPECT_NE(dynamic_cast<KZCEkaCsvFileFinance*>(store.GetCsvFile(7)), nullptr);
}

TEST_F(ConvertInfoFinanceTest, ReloadOfAnUnknownKeyMakesNothing)
{
    KZCConvertInfo& store = *KZCConvertInfoFinance::instance_finance();
    EXPECT_EQ(store.ReloadCsvFile(7, WriteCsv("101,1,a\n")), STATUS_OK);
    EXPECT_EQ(store.GetCsvFile(7)->GetRecordCount(), 0);
}

}  // namespace
