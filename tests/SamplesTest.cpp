// The samples that are shipped, against the shipped definitions: a passing and a failing file for
// each form. The detail tables beside the failing files were worked out by hand, entry by entry;
// the notes beside them explain each.
#include <KZEkaMok/KZICsvConvMokEka.h>
#include <gtest/gtest.h>

#include <string>

#include "support/Environment.h"
#include "support/ResetState.h"
#include "support/SameText.h"
#include "support/TempFolder.h"

namespace {

constexpr long KEY = 1;

struct SampleCase
{
    const char* szProcId;
    const char* szRecordCount;  ///< records of the passing file, empty lines not counted
};

class SamplesTest : public ResetState, public testing::WithParamInterface<SampleCase>
{
protected:
    static std::string Path(const char* szEnding)
    {
        return std::string(KZEKAMOK_SAMPLES_DIR "/") + GetParam().szProcId + szEnding;
    }

    KZICsvConvMokEka m_host;

private:
    Environment m_bundle{"KZEKAMOK_BUNDLE", KZEKAMOK_SOURCE_BUNDLE};
};

TEST_P(SamplesTest, PassingFilePasses)
{
    const auto pResult = m_host.CsvCheck(Path("_pass.csv").c_str());

    ASSERT_NE(pResult, nullptr);
    EXPECT_EQ(pResult->GetDetailErrorInfo(), "");
    EXPECT_EQ(pResult->GetResult(), "S_OK");
    EXPECT_EQ(pResult->GetProcId(), GetParam().szProcId);
}

TEST_P(SamplesTest, PassingFilePassesOnTheElPathWithItsNumberOfRecords)
{
    const auto pResult = m_host.ELCsvCheck(Path("_pass.csv").c_str(), KEY);

    ASSERT_NE(pResult, nullptr);
    EXPECT_EQ(pResult->GetDetailErrorInfo(), "");
    EXPECT_EQ(pResult->GetResult(), "S_OK");
    EXPECT_EQ(pResult->GetRecordCount(), GetParam().szRecordCount);
}

TEST_P(SamplesTest, FailingFileGivesTheTableBesideIt)
{
    const auto pResult = m_host.CsvCheck(Path("_fail.csv").c_str());

    ASSERT_NE(pResult, nullptr);
    EXPECT_EQ(pResult->GetResult(), "E_FAIL");
    EXPECT_TRUE(
        SameText(pResult->GetDetailErrorInfo() + "\n", TempFolder::ReadPath(Path("_fail.detail"))));
}

TEST_P(SamplesTest, FailingFileGivesTheSameTableOnTheElPath)
{
    const auto pResult = m_host.ELCsvCheck(Path("_fail.csv").c_str(), KEY);

    ASSERT_NE(pResult, nullptr);
    EXPECT_EQ(pResult->GetResult(), "E_FAIL");
    EXPECT_TRUE(
        SameText(pResult->GetDetailErrorInfo() + "\n", TempFolder::ReadPath(Path("_fail.detail"))));
}

constexpr SampleCase CASES[] = {
    {"PGE5010", "52"}, {"PGE5020", "52"}, {"PGE5030", "52"}, {"PGE5040", "52"}, {"PGE5050", "52"},
    {"PGE5060", "52"}, {"PGE5070", "52"}, {"PGE5080", "52"}, {"PGE5090", "52"},
};

INSTANTIATE_TEST_SUITE_P(Forms, SamplesTest, testing::ValuesIn(CASES), [](const auto& testCase) {
    return std::string(testCase.param.szProcId);
});

}  // namespace
