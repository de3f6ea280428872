// The samples that are shipped, against the shipped definitions: a passing and a failing file for
// each form. The detail tables beside the failing files were worked out by hand, entry by entry;
// the notes beside them explain each.
#include <KZEkaMok/KZICsvConvMokEka.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <set>
#include <string>

#include "support/Environment.h"
#include "support/ResetState.h"
#include "support/SameText.h"
#include "support/TempFolder.h"

namespace {

constexpr std::int64_t KEY = 1;

using Result = std::shared_ptr<KZIConvertResultEka>;

/// The two checks of a family.
struct Family
{
    Result (KZICsvConvMokEka::*pCheck)(const char*);
    Result (KZICsvConvMokEka::*pElCheck)(const char*, std::int64_t);
};

constexpr Family BASE = {&KZICsvConvMokEka::CsvCheck, &KZICsvConvMokEka::ELCsvCheck};
constexpr Family FINANCE = {&KZICsvConvMokEka::CsvCheckFinance,
                            &KZICsvConvMokEka::ELCsvCheckFinance};
constexpr Family CROSSBORDER = {&KZICsvConvMokEka::CsvCheckCrossBorder,
                                &KZICsvConvMokEka::ELCsvCheckCrossBorder};

class SampleFile : public ResetState
{
protected:
    static std::string Path(const std::string& strName)
    {
        return KZEKAMOK_SAMPLES_DIR "/" + strName;
    }

    Result Check(const Family& family, const std::string& strName)
    {
        return (m_host.*family.pCheck)(Path(strName).c_str());
    }

    Result ElCheck(const Family& family, const std::string& strName)
    {
        return (m_host.*family.pElCheck)(Path(strName).c_str(), KEY);
    }

private:
    Environment m_bundle{"KZEKAMOK_BUNDLE", KZEKAMOK_SOURCE_BUNDLE};
    KZICsvConvMokEka m_host;
};

/// A file that passes.
struct PassingCase
{
    Family family;
    const char* szName;         ///< the procedure's id, an underscore and what the file shows
    const char* szRecordCount;  ///< empty lines not counted

    std::string FileName() const { return std::string(szName) + ".csv"; }
    std::string ProcId() const { return FileName().substr(0, FileName().find('_')); }
};

class PassingSampleTest : public SampleFile, public testing::WithParamInterface<PassingCase>
{};

TEST_P(PassingSampleTest, Passes)
{
    const auto pResult = Check(GetParam().family, GetParam().FileName());

    ASSERT_NE(pResult, nullptr);
    EXPECT_EQ(pResult->GetDetailErrorInfo(), "");
    EXPECT_EQ(pResult->GetResult(), "S_OK");
    EXPECT_EQ(pResult->GetProcId(), GetParam().ProcId());
}

TEST_P(PassingSampleTest, PassesOnTheElPathWithItsNumberOfRecords)
{
    const auto pResult = ElCheck(GetParam().family, GetParam().FileName());

    ASSERT_NE(pResult, nullptr);
    EXPECT_EQ(pResult->GetDetailErrorInfo(), "");
    EXPECT_EQ(pResult->GetResult(), "S_OK");
    EXPECT_EQ(pResult->GetProcId(), GetParam().ProcId());
    EXPECT_EQ(pResult->GetRecordCount(), GetParam().szRecordCount);
}

constexpr PassingCase PASSING[] = {
    {BASE, "PGE5010_pass", "52"},
    {BASE, "PGE5020_pass", "52"},
    {BASE, "PGE5030_pass", "52"},
    {BASE, "PGE5040_pass", "52"},
    {BASE, "PGE5050_pass", "52"},
    {BASE, "PGE5060_pass", "52"},
    {BASE, "PGE5070_pass", "52"},
    {BASE, "PGE5080_pass", "52"},
    {BASE, "PGE5090_pass", "52"},
    {FINANCE, "PGE1630_pass", "1"},
    {FINANCE, "PGE1640_full", "15"},
    {FINANCE, "PGE1640_pass", "25"},
    {FINANCE, "PGE1640_short", "6"},
    // As many records as the procedure takes
    {FINANCE, "PGE2015_limit", "1000"},
    {FINANCE, "PGE2015_pass", "60"},
    {FINANCE, "PGE2025_pass", "55"},
    {FINANCE, "PGE2030_pass", "43"},
    {FINANCE, "PGE2040_pass", "57"},
    {FINANCE, "PGE2055_pass", "58"},
    {FINANCE, "PGE2065_pass", "56"},
    {FINANCE, "PGE2070_pass", "59"},
    {FINANCE, "PGE2080_pass", "1"},
    {FINANCE, "PGE2095_pass", "34"},
    {FINANCE, "PGE2105_pass", "36"},
    {FINANCE, "PGE2115_full", "10"},
    {FINANCE, "PGE2115_pass", "24"},
    {FINANCE, "PGE2115_short", "3"},
    {FINANCE, "PGE2125_pass", "36"},
    {FINANCE, "PGE2135_pass", "36"},
    {FINANCE, "PGE2140_pass", "36"},
    {FINANCE, "PGE2150_pass", "36"},
    {FINANCE, "PGE2160_pass", "1"},
    {CROSSBORDER, "PGE1650_pass", "28"},
    {CROSSBORDER, "PGE1660_pass", "30"},
};

INSTANTIATE_TEST_SUITE_P(Files,
                         PassingSampleTest,
                         testing::ValuesIn(PASSING),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

/// A procedure with a file that fails.
struct FailingCase
{
    Family family;
    const char* szProcId;

    std::string FileName() const { return std::string(szProcId) + "_fail.csv"; }
};

class FailingSampleTest : public SampleFile, public testing::WithParamInterface<FailingCase>
{
protected:
    static std::string ExpectedTable()
    {
        return TempFolder::ReadPath(Path(std::string(GetParam().szProcId) + "_fail.detail"));
    }
};

TEST_P(FailingSampleTest, GivesTheTableBesideIt)
{
    const auto pResult = Check(GetParam().family, GetParam().FileName());

    ASSERT_NE(pResult, nullptr);
    EXPECT_EQ(pResult->GetResult(), "E_FAIL");
    EXPECT_TRUE(SameText(pResult->GetDetailErrorInfo() + "\n", ExpectedTable()));
}

TEST_P(FailingSampleTest, GivesTheSameTableOnTheElPath)
{
    const auto pResult = ElCheck(GetParam().family, GetParam().FileName());

    ASSERT_NE(pResult, nullptr);
    EXPECT_EQ(pResult->GetResult(), "E_FAIL");
    EXPECT_TRUE(SameText(pResult->GetDetailErrorInfo() + "\n", ExpectedTable()));
}

constexpr FailingCase FAILING[] = {
    {BASE, "PGE5010"},        {BASE, "PGE5020"},    {BASE, "PGE5030"},    {BASE, "PGE5040"},
    {BASE, "PGE5050"},        {BASE, "PGE5060"},    {BASE, "PGE5070"},    {BASE, "PGE5080"},
    {BASE, "PGE5090"},        {FINANCE, "PGE1630"}, {FINANCE, "PGE1640"}, {FINANCE, "PGE2015"},
    {FINANCE, "PGE2025"},     {FINANCE, "PGE2030"}, {FINANCE, "PGE2040"}, {FINANCE, "PGE2055"},
    {FINANCE, "PGE2065"},     {FINANCE, "PGE2070"}, {FINANCE, "PGE2080"}, {FINANCE, "PGE2095"},
    {FINANCE, "PGE2105"},     {FINANCE, "PGE2115"}, {FINANCE, "PGE2125"}, {FINANCE, "PGE2135"},
    {FINANCE, "PGE2140"},     {FINANCE, "PGE2150"}, {FINANCE, "PGE2160"}, {CROSSBORDER, "PGE1650"},
    {CROSSBORDER, "PGE1660"},
};

INSTANTIATE_TEST_SUITE_P(Procedures,
                         FailingSampleTest,
                         testing::ValuesIn(FAILING),
                         [](const auto& testCase) { return std::string(testCase.param.szProcId); });

TEST(SampleFilesTest, EachFileStandsInOneOfTheTables)
{
    std::set<std::string> setTested;
    for (const auto& passing : PASSING)
        setTested.insert(passing.FileName());
    for (const auto& failing : FAILING)
        setTested.insert(failing.FileName());

    std::set<std::string> setShipped;
    for (const auto& entry : std::filesystem::directory_iterator(KZEKAMOK_SAMPLES_DIR))
        if (entry.path().extension() == ".csv")
            setShipped.insert(entry.path().filename().string());

    EXPECT_EQ(setShipped, setTested);
}

class RecordLimitTest : public SampleFile
{};

TEST_F(RecordLimitTest, OneRecordMoreThanTheProcedureTakesIsRefused)
{
    const std::string strLimit = TempFolder::ReadPath(Path("PGE2015_limit.csv"));
    const std::string strFirst = strLimit.substr(0, strLimit.find('\n') + 1);
    const TempFolder folder;

    const auto pResult =
        KZICsvConvMokEka().CsvCheckFinance(folder.Write("1001.csv", strLimit + strFirst).c_str());

    ASSERT_NE(pResult, nullptr);
    EXPECT_EQ(pResult->GetResult(), "E_FAIL");
    EXPECT_EQ(pResult->GetDetailErrorInfo(), "0000-00000-HE70029E");
}

}  // namespace
