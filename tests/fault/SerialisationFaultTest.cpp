// A document that parses and can't be written out for want of memory.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/AllocationFault.h"
#include "support/FamilyHost.h"
#include "support/LogEntries.h"

namespace {

using AllocationFault::Kind;

/// Bytes that nothing needs but the document of the test.
constexpr std::size_t LARGE = 1000000;

class SerialisationFaultTest : public FamilyHost, public testing::WithParamInterface<Family>
{
protected:
    SerialisationFaultTest()
    {
        m_pBehindRequest = [] { s_nCount = AllocationFault::Disarm(); };
    }
    ~SerialisationFaultTest() override { m_pBehindRequest = nullptr; }

    Answer Run() { return Convert(GetParam(), m_strCsv, FilerOf(GetParam())); }

    /// Large allocations of the last request.
    static inline std::size_t s_nCount = 0;

    const std::string m_strCsv = Csv(Record(GetParam(), "1," + std::string(LARGE, 'a')));
};

INSTANTIATE_TEST_SUITE_P(Families,
                         SerialisationFaultTest,
                         testing::ValuesIn(FAMILIES),
                         [](const auto& testCase) {
                             return testing::PrintToString(testCase.param);
                         });

TEST_P(SerialisationFaultTest, IsLoggedByBothLayersAndRefusesTheDocument)
{
    AllocationFault::Arm(0, Kind::Once, LARGE);
    EXPECT_EQ(Run().strResult, "S_OK");
    const std::size_t nLast = s_nCount;
    ASSERT_GE(nLast, 2U);

    const DebugLog log;
    AllocationFault::Arm(nLast, Kind::Once, LARGE);
    const Answer answer = Run();
    EXPECT_EQ(answer.strResult, "E_FAIL");
    EXPECT_EQ(answer.strDetail, "0000-00000-HE70016E");
    const std::vector<LogEntry> vecEntry = LogEntries(log);
    const auto pSave = std::ranges::find(vecEntry, "KZCXDOM::Save", &LogEntry::strFunction);
    ASSERT_LT(pSave - vecEntry.begin() + 2, static_cast<std::ptrdiff_t>(vecEntry.size()));
    EXPECT_EQ(pSave[0].strMessage, "Xercesのシリアライズ中にエラーが発生しました。");
    EXPECT_EQ(pSave[1].strMessage, "MOKファイルの保存に失敗。");
    EXPECT_EQ(pSave[2].strMessage,
              "想定外の事象によりMOKファイルの作成に失敗しました。（HE70016E）");
    EXPECT_TRUE(pSave[1].strFunction.ends_with("MakeMok")) << pSave[1].strFunction;
}

}  // namespace
