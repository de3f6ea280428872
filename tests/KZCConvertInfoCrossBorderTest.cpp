#include "KZCConvertInfoCrossBorder.h"

#include <gtest/gtest.h>

#include <typeinfo>

#include "KZCEkaCsvFileCrossBorder.h"
#include "KZCEkaITDataCrossBorder.h"
#include "definition/KZCEkaDefinitionCrossBorder.h"
#include "fault/Fault.h"
#include "support/FamilyDefinition.h"
#include "support/ResetState.h"
#include "support/StorePeek.h"
#include "support/TempFolder.h"

namespace {

class ConvertInfoCrossBorderTest : public ResetState
{
protected:
    std::string WriteCsv(std::string_view strBytes) { return m_folder.Write("in.csv", strBytes); }

    TempFolder m_folder;
    FamilyBundle m_bundle;
};

TEST_F(ConvertInfoCrossBorderTest, AccessorMakesACrossBorderStoreWhereThereIsNone)
{
    static_cast<void>(KZCConvertInfoCrossBorder::instance_crossborder());
    EXPECT_EQ(StorePeek::Kind(), StoreKind::CrossBorder);
}

TEST_F(ConvertInfoCrossBorderTest, AccessorGivesALiveBaseStoreUnchanged)
{
    const KZCConvertInfo* pStore = KZCConvertInfo::instance();
    EXPECT_EQ(KZCConvertInfoCrossBorder::instance_crossborder(), pStore);
    EXPECT_EQ(StorePeek::Kind(), StoreKind::Base);
}

TEST_F(ConvertInfoCrossBorderTest, AccessorGivesALiveFinanceStoreUnchanged)
{
    const KZCConvertInfo* pStore = KZCConvertInfoFinance::instance_finance();
    EXPECT_EQ(KZCConvertInfoCrossBorder::instance_crossborder(), pStore);
    EXPECT_EQ(StorePeek::Kind(), StoreKind::Finance);
}

TEST_F(ConvertInfoCrossBorderTest, NewKeyHasTheObjectsOfTheFamily)
{
    const _ConvertTable table =
        KZCConvertInfoCrossBorder::instance_crossborder()->GetConvertTable(7);
    EXPECT_EQ(typeid(*table.pCsvFile), typeid(KZCEkaCsvFileCrossBorder));
    EXPECT_EQ(typeid(*table.pDefinition), typeid(KZCEkaDefinitionCrossBorder));
    EXPECT_EQ(typeid(*table.pITData), typeid(KZCEkaITDataCrossBorder));
}

TEST_F(ConvertInfoCrossBorderTest, ReloadMakesACsvOfTheFamilyAndKeepsTheOtherObjects)
{
    KZCConvertInfo& store = *KZCConvertInfoCrossBorder::instance_crossborder();
    const _ConvertTable before = store.GetConvertTable(7);
    EXPECT_EQ(store.ReloadCsvFile(7, WriteCsv("301,1,\"a,b\"\n")), STATUS_OK);
    const _ConvertTable after = store.GetConvertTable(7);
    EXPECT_EQ(typeid(*after.pCsvFile), typeid(KZCEkaCsvFileCrossBorder));
    EXPECT_STREQ(after.pCsvFile->GetItem(0, 2), "a,b");
    EXPECT_EQ(after.pDefinition, before.pDefinition);
    EXPECT_EQ(after.pITData, before.pITData);
}

TEST_F(ConvertInfoCrossBorderTest, ReloadOfARefusedFileKeepsNoRecord)
{
    KZCConvertInfo& store = *KZCConvertInfoCrossBorder::instance_crossborder();
    static_cast<void>(store.GetConvertTable(7));
    EXPECT_EQ(store.ReloadCsvFile(7, WriteCsv("301,1,a\n999,2,b\n")), STATUS_NG);
    EXPECT_EQ(store.GetCsvFile(7)->GetRecordCount(), 0);
}

TEST_F(ConvertInfoCrossBorderTest, ReloadOfAnUnknownKeyMakesNothing)
{
    KZCConvertInfo& store = *KZCConvertInfoCrossBorder::instance_crossborder();
    EXPECT_EQ(store.ReloadCsvFile(7, WriteCsv("301,1,a\n")), STATUS_OK);
    EXPECT_EQ(store.GetCsvFile(7)->GetRecordCount(), 0);
}

}  // namespace
