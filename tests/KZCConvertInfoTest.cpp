#include "KZCConvertInfo.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/Raised.h"
#include "support/ResetState.h"
#include "support/TempFolder.h"

namespace {

/// What has happened to the objects of a store, in order.
std::vector<std::string> g_vecEvent;
/// The CSV files that have gone, by the order in which they were made, from 1.
std::vector<int> g_vecGone;
int g_nCsvFilesMade = 0;
/// The next CSV file can't be made.
bool g_bNoCsvFile = false;

/// Notes when one of a key's objects goes.
template <class Base>
class Noted final : public Base
{
public:
    explicit Noted(const char* szName) : m_szName(szName) {}
    ~Noted() override { g_vecEvent.push_back(std::string("-") + m_szName); }

private:
    const char* m_szName;
};

class NotedCsvFile final : public KZCEkaCsvFile
{
public:
    ~NotedCsvFile() override
    {
        g_vecEvent.push_back("-csv");
        g_vecGone.push_back(m_nNumber);
    }

private:
    int m_nNumber = ++g_nCsvFilesMade;
};

/// A store that notes what it makes. Making one makes it the instance.
class NotingStore final : public KZCConvertInfo
{
public:
    static void Install()
    {
        g_vecEvent.clear();
        g_vecGone.clear();
        g_nCsvFilesMade = 0;
        g_bNoCsvFile = false;
        m_pInstance = std::make_unique<NotingStore>();
    }

    int ReloadCsvFile(long lCsvDistKey, const std::string& strPath) override
    {
        return ReadAgain(lCsvDistKey, strPath, MAKERS);
    }
    _ConvertTable GetConvertTable(long lCsvDistKey) override
    {
        return FindOrMake(lCsvDistKey, MAKERS);
    }

private:
    static std::unique_ptr<KZCEkaCsvFile> MakeCsvFile()
    {
        if (g_bNoCsvFile)
            throw FAULT;
        g_vecEvent.emplace_back("+csv");
        return std::make_unique<NotedCsvFile>();
    }
    static std::unique_ptr<KZCEkaDefinition> MakeDefinition()
    {
        g_vecEvent.emplace_back("+definition");
        return std::make_unique<Noted<KZCEkaDefinition>>("definition");
    }
    static std::unique_ptr<KZCEkaITData> MakeITData()
    {
        g_vecEvent.emplace_back("+it");
        return std::make_unique<Noted<KZCEkaITData>>("it");
    }

    static constexpr Makers MAKERS = {&MakeCsvFile, &MakeDefinition, &MakeITData};
};

/// Makes keys of which neither the order of making nor that of their digits is the numeric one.
void MakeUnorderedKeys()
{
    for (const long lKey : {5L, -3L, 10L, 2L})
        static_cast<void>(KZCConvertInfo::instance()->GetConvertTable(lKey));
}

class ConvertInfoTest : public ResetState
{
protected:
    std::string WriteCsv(std::string_view strBytes) { return m_folder.Write("in.csv", strBytes); }

    TempFolder m_folder;
    Bundle m_bundle;
};

TEST_F(ConvertInfoTest, InstanceIsOne)
{
    EXPECT_EQ(KZCConvertInfo::instance(), KZCConvertInfo::instance());
}

TEST_F(ConvertInfoTest, InstanceIsTheOneThatIsThereWhateverItsClass)
{
    NotingStore::Install();
    EXPECT_NE(dynamic_cast<NotingStore*>(KZCConvertInfo::instance()), nullptr);
}

TEST_F(ConvertInfoTest, DestroyTwiceIsDestroyOnce)
{
    NotingStore::Install();
    static_cast<void>(KZCConvertInfo::instance()->GetCsvFile(1));
    KZCConvertInfo::destroy();
    const std::vector<std::string> vecEvent = g_vecEvent;
    KZCConvertInfo::destroy();
    EXPECT_EQ(g_vecEvent, vecEvent);
}

TEST_F(ConvertInfoTest, ReadingAKeyMakesItsThreeObjectsInOrder)
{
    NotingStore::Install();
    const _ConvertTable table = KZCConvertInfo::instance()->GetConvertTable(1);
    EXPECT_THAT(g_vecEvent, testing::ElementsAre("+csv", "+definition", "+it"));
    EXPECT_NE(table.pCsvFile, nullptr);
    EXPECT_NE(table.pDefinition, nullptr);
    EXPECT_NE(table.pITData, nullptr);
}

TEST_F(ConvertInfoTest, NewObjectsAreEmpty)
{
    const _ConvertTable table = KZCConvertInfo::instance()->GetConvertTable(1);
    EXPECT_EQ(table.pCsvFile->GetRecordCount(), 0);
    EXPECT_STREQ(table.pCsvFile->GetTypeId(), "");
    EXPECT_STREQ(table.pDefinition->GetProcId(), "");
    EXPECT_STREQ(table.pITData->GetITData(IT_NOZEISHA_NM), "");
}

TEST_F(ConvertInfoTest, OneKeyGivesTheSameThreeObjectsTwice)
{
    KZCConvertInfo& store = *KZCConvertInfo::instance();
    const _ConvertTable first = store.GetConvertTable(3);
    const _ConvertTable second = store.GetConvertTable(3);
    EXPECT_EQ(first.pCsvFile, second.pCsvFile);
    EXPECT_EQ(first.pDefinition, second.pDefinition);
    EXPECT_EQ(first.pITData, second.pITData);
}

TEST_F(ConvertInfoTest, GettersGiveTheFieldsOfTheTable)
{
    KZCConvertInfo& store = *KZCConvertInfo::instance();
    const _ConvertTable table = store.GetConvertTable(3);
    EXPECT_EQ(store.GetCsvFile(3), table.pCsvFile);
    EXPECT_EQ(store.GetDefinition(3), table.pDefinition);
    EXPECT_EQ(store.GetITData(3), table.pITData);
}

TEST_F(ConvertInfoTest, EachGetterMakesAMissingKey)
{
    NotingStore::Install();
    static_cast<void>(KZCConvertInfo::instance()->GetCsvFile(1));
    static_cast<void>(KZCConvertInfo::instance()->GetDefinition(2));
    static_cast<void>(KZCConvertInfo::instance()->GetITData(3));
    EXPECT_EQ(g_vecEvent.size(), 9u);
}

TEST_F(ConvertInfoTest, KeysHaveObjectsOfTheirOwn)
{
    KZCConvertInfo& store = *KZCConvertInfo::instance();
    EXPECT_NE(store.GetCsvFile(1), store.GetCsvFile(2));
    EXPECT_NE(store.GetDefinition(1), store.GetDefinition(2));
    EXPECT_NE(store.GetITData(1), store.GetITData(2));
}

TEST_F(ConvertInfoTest, AnyNumberIsAKey)
{
    KZCConvertInfo& store = *KZCConvertInfo::instance();
    constexpr long KEYS[] = {0, -1, 6, 9223372036854775807L, -9223372036854775807L - 1};
    std::vector<KZCEkaCsvFile*> vecCsv;
    for (const long lKey : KEYS)
        vecCsv.push_back(store.GetCsvFile(lKey));
    for (std::size_t n = 0; n < vecCsv.size(); ++n)
        EXPECT_EQ(store.GetCsvFile(KEYS[n]), vecCsv[n]);
}

TEST_F(ConvertInfoTest, ClearDropsTheObjectsOfAKeyInOrder)
{
    NotingStore::Install();
    static_cast<void>(KZCConvertInfo::instance()->GetConvertTable(1));
    g_vecEvent.clear();
    KZCConvertInfo::instance()->ClearInfo(1);
    EXPECT_THAT(g_vecEvent, testing::ElementsAre("-csv", "-definition", "-it"));
}

TEST_F(ConvertInfoTest, ClearLeavesOtherKeys)
{
    KZCConvertInfo& store = *KZCConvertInfo::instance();
    const KZCEkaCsvFile* pCsv = store.GetCsvFile(2);
    static_cast<void>(store.GetCsvFile(1));
    store.ClearInfo(1);
    EXPECT_EQ(store.GetCsvFile(2), pCsv);
}

TEST_F(ConvertInfoTest, ClearOfAnAbsentKeyInAnEmptyStoreDoesNothing)
{
    NotingStore::Install();
    KZCConvertInfo::instance()->ClearInfo(1);
    EXPECT_THAT(g_vecEvent, testing::IsEmpty());
}

TEST_F(ConvertInfoTest, ClearOfAnAbsentKeyInAFullStoreDoesNothing)
{
    NotingStore::Install();
    static_cast<void>(KZCConvertInfo::instance()->GetConvertTable(1));
    g_vecEvent.clear();
    KZCConvertInfo::instance()->ClearInfo(2);
    EXPECT_THAT(g_vecEvent, testing::IsEmpty());
}

TEST_F(ConvertInfoTest, ClearedKeyIsMadeAnew)
{
    KZCConvertInfo& store = *KZCConvertInfo::instance();
    EXPECT_EQ(store.GetCsvFile(1)->ReadFile(WriteCsv("003,1,a")), STATUS_OK);
    store.ClearInfo(1);
    EXPECT_EQ(store.GetCsvFile(1)->GetRecordCount(), 0);
}

TEST_F(ConvertInfoTest, TerminateDropsTheObjectsOfAllKeys)
{
    NotingStore::Install();
    static_cast<void>(KZCConvertInfo::instance()->GetConvertTable(2));
    static_cast<void>(KZCConvertInfo::instance()->GetConvertTable(1));
    g_vecEvent.clear();
    KZCConvertInfo::instance()->Terminate();
    EXPECT_THAT(g_vecEvent,
                testing::ElementsAre("-csv", "-definition", "-it", "-csv", "-definition", "-it"));
}

TEST_F(ConvertInfoTest, DestroyDropsTheObjectsOfAllKeys)
{
    NotingStore::Install();
    static_cast<void>(KZCConvertInfo::instance()->GetConvertTable(1));
    static_cast<void>(KZCConvertInfo::instance()->GetConvertTable(5));
    g_vecEvent.clear();
    KZCConvertInfo::destroy();
    EXPECT_THAT(g_vecEvent,
                testing::ElementsAre("-csv", "-definition", "-it", "-csv", "-definition", "-it"));
}

TEST_F(ConvertInfoTest, TerminateDropsTheKeysInNumericOrder)
{
    NotingStore::Install();
    MakeUnorderedKeys();
    KZCConvertInfo::instance()->Terminate();
    EXPECT_THAT(g_vecGone, testing::ElementsAre(2, 4, 1, 3));
}

TEST_F(ConvertInfoTest, DestroyDropsTheKeysInNumericOrder)
{
    NotingStore::Install();
    MakeUnorderedKeys();
    KZCConvertInfo::destroy();
    EXPECT_THAT(g_vecGone, testing::ElementsAre(2, 4, 1, 3));
}

TEST_F(ConvertInfoTest, TerminatedStoreTakesKeysAgain)
{
    NotingStore::Install();
    MakeUnorderedKeys();
    KZCConvertInfo::instance()->Terminate();
    g_vecEvent.clear();
    static_cast<void>(KZCConvertInfo::instance()->GetConvertTable(5));
    EXPECT_THAT(g_vecEvent, testing::ElementsAre("+csv", "+definition", "+it"));
}

TEST_F(ConvertInfoTest, InstanceBehindDestroyKnowsNoKey)
{
    EXPECT_EQ(KZCConvertInfo::instance()->GetCsvFile(1)->ReadFile(WriteCsv("003,1,a")), STATUS_OK);
    KZCConvertInfo::destroy();
    EXPECT_EQ(KZCConvertInfo::instance()->GetCsvFile(1)->GetRecordCount(), 0);
}

// ---- reading again -----------------------------------------------------------------------------

TEST_F(ConvertInfoTest, ReloadOfAnUnknownKeyMakesNothing)
{
    NotingStore::Install();
    static_cast<void>(KZCConvertInfo::instance()->ReloadCsvFile(1, WriteCsv("003,1,a")));
    EXPECT_THAT(g_vecEvent, testing::IsEmpty());
}

TEST_F(ConvertInfoTest, ReloadReplacesTheCsvAloneAndDropsTheOldOneFirst)
{
    NotingStore::Install();
    const _ConvertTable before = KZCConvertInfo::instance()->GetConvertTable(1);
    g_vecEvent.clear();
    EXPECT_EQ(KZCConvertInfo::instance()->ReloadCsvFile(1, WriteCsv("003,1,a")), STATUS_OK);
    EXPECT_THAT(g_vecEvent, testing::ElementsAre("-csv", "+csv"));
    const _ConvertTable after = KZCConvertInfo::instance()->GetConvertTable(1);
    EXPECT_EQ(after.pDefinition, before.pDefinition);
    EXPECT_EQ(after.pITData, before.pITData);
    EXPECT_STREQ(after.pCsvFile->GetItem(0, 2), "a");
}

TEST_F(ConvertInfoTest, ReloadWhoseCsvCannotBeMadeRaisesAndDropsItsKeyAlone)
{
    NotingStore::Install();
    KZCConvertInfo& store = *KZCConvertInfo::instance();
    static_cast<void>(store.GetConvertTable(1));
    const KZCEkaCsvFile* pOther = store.GetCsvFile(2);
    g_vecEvent.clear();
    g_bNoCsvFile = true;
    EXPECT_EQ(Raised([&] { static_cast<void>(store.ReloadCsvFile(1, WriteCsv("003,1,a"))); }),
              FAULT);
    EXPECT_THAT(g_vecEvent, testing::ElementsAre("-csv", "-definition", "-it"));
    EXPECT_EQ(store.GetCsvFile(2), pOther);
    g_bNoCsvFile = false;
    EXPECT_EQ(store.GetCsvFile(1)->GetRecordCount(), 0);
}

TEST_F(ConvertInfoTest, ReloadTakesTheEncodingOfItsOwnTime)
{
    KZCConvertInfo& store = *KZCConvertInfo::instance();
    const std::string strPath = WriteCsv("003,1,\x90\xc2\x97\x74");
    KZCEkaCommon::SetCsvCheckFlag(true);
    EXPECT_EQ(store.GetCsvFile(1)->ReadFile(strPath), STATUS_OK);
    EXPECT_STREQ(store.GetCsvFile(1)->GetItem(0, 2), "\x90\xc2\x97\x74");
    KZCEkaCommon::SetCsvCheckFlag(false);
    EXPECT_EQ(store.ReloadCsvFile(1, strPath), STATUS_OK);
    EXPECT_STREQ(store.GetCsvFile(1)->GetItem(0, 2), "青葉");
}

TEST_F(ConvertInfoTest, ReloadOfARefusedFileGivesItsStatusAndKeepsTheNewReading)
{
    KZCConvertInfo& store = *KZCConvertInfo::instance();
    EXPECT_EQ(store.GetCsvFile(1)->ReadFile(WriteCsv("003,1,a\n003,2,b")), STATUS_OK);
    EXPECT_EQ(store.ReloadCsvFile(1, WriteCsv("003,9,z\n003")), STATUS_NG);
    EXPECT_EQ(KZCValidResult::instance()->MakeResult(), "0000-00000-HE70019E");
    EXPECT_EQ(store.GetCsvFile(1)->GetRecordCount(), 1);
    EXPECT_STREQ(store.GetCsvFile(1)->GetItem(0, 1), "9");
}

TEST_F(ConvertInfoTest, ReloadOfAVanishedFileRaisesAndLeavesANewEmptyCsv)
{
    KZCConvertInfo& store = *KZCConvertInfo::instance();
    EXPECT_EQ(store.GetCsvFile(1)->ReadFile(WriteCsv("003,1,a")), STATUS_OK);
    const KZCEkaDefinition* pDefinition = store.GetDefinition(1);
    EXPECT_EQ(
        Raised([&] { static_cast<void>(store.ReloadCsvFile(1, m_folder.Path("missing.csv"))); }),
        FAULT);
    EXPECT_EQ(store.GetCsvFile(1)->GetRecordCount(), 0);
    EXPECT_STREQ(store.GetCsvFile(1)->GetTypeId(), "");
    EXPECT_EQ(store.GetDefinition(1), pDefinition);
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

}  // namespace
