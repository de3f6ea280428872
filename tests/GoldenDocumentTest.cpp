// Whole documents. The expected ones come from tests/model/write_golden.py, which knows the rules
// and not this library; it also makes them anew after a change of a sample or a definition.
#include <KZEkaMok/KZICsvConvMokEka.h>
#include <gtest/gtest.h>

#include <ctime>
#include <iomanip>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "Clock.h"
#include "support/Environment.h"
#include "support/ResetState.h"
#include "support/SameText.h"
#include "support/TempFolder.h"

namespace {

constexpr long KEY = 3;
/// The EL path takes no software name from the host and has this one.
constexpr const char* EL_SOFT_NAME = "eka_orbclient_ZEKA";

/// A folder below tests/golden/ with request.json and expected.mok.
struct GoldenCase
{
    const char* szName;
};

/// Noon of a day such as "2026-01-15", local time.
std::time_t NoonOf(const std::string& strDay)
{
    std::tm day{};
    std::istringstream(strDay) >> std::get_time(&day, "%Y-%m-%d");
    day.tm_hour = 12;
    day.tm_isdst = -1;
    return std::mktime(&day);
}

class GoldenDocumentTest : public ResetState, public testing::WithParamInterface<GoldenCase>
{
protected:
    GoldenDocumentTest()
        : m_request(nlohmann::json::parse(ReadCaseFile("request.json"))),
          m_strExpected(ReadCaseFile("expected.mok"))
    {
        Clock::Set(NoonOf(m_request.at("sakusei_day")));
    }

    /// A field of the request.
    std::string Field(const char* szKey) const { return m_request.at(szKey); }
    std::string CsvPath() const { return KZEKAMOK_SAMPLES_DIR "/" + Field("csv"); }
    const std::string& Expected() const { return m_strExpected; }

private:
    static std::string ReadCaseFile(const std::string& strName)
    {
        return TempFolder::ReadPath(std::string(KZEKAMOK_TEST_DATA_DIR "/golden/") +
                                    GetParam().szName + "/" + strName);
    }

    Environment m_bundle{"KZEKAMOK_BUNDLE", KZEKAMOK_SOURCE_BUNDLE};
    nlohmann::json m_request;
    std::string m_strExpected;
};

/// The text with each strFrom replaced.
std::string Replace(std::string strText, const std::string& strFrom, const std::string& strTo)
{
    for (std::size_t n = strText.find(strFrom); n != std::string::npos;
         n = strText.find(strFrom, n + strTo.size()))
        strText.replace(n, strFrom.size(), strTo);
    return strText;
}

TEST_P(GoldenDocumentTest, PlainPathWritesTheExpectedBytes)
{
    const TempFolder folder;
    const std::string strMokPath = folder.Path("out.mok");

    const auto pResult = KZICsvConvMokEka().CsvConvMok(
        CsvPath().c_str(), strMokPath.c_str(), Field("zeimusho_cd").c_str(),
        Field("nozeisha_id").c_str(), Field("kojin_bango").c_str(), Field("hojin_bango").c_str(),
        Field("nozeisha_nm").c_str(), Field("nozeisha_adr").c_str(), Field("daihyo_nm").c_str(),
        Field("dairi_id").c_str(), Field("dairi_nm").c_str(), Field("dairi_adr").c_str(),
        Field("tetsuzuki").c_str(), Field("soft_name").c_str());

    ASSERT_NE(pResult, nullptr);
    ASSERT_EQ(pResult->GetResult() + pResult->GetDetailErrorInfo(), "S_OK");
    EXPECT_TRUE(SameText(TempFolder::ReadPath(strMokPath), Expected()));
}

TEST_P(GoldenDocumentTest, ElPathGivesTheExpectedBytesWithItsOwnSoftwareName)
{
    KZICsvConvMokEka host;
    const auto pCheck = host.ELCsvCheck(CsvPath().c_str(), KEY);
    ASSERT_NE(pCheck, nullptr);
    ASSERT_EQ(pCheck->GetResult() + pCheck->GetDetailErrorInfo(), "S_OK");

    const auto pResult = host.ELCsvConvMok(
        KEY, Field("zeimusho_cd").c_str(), Field("nozeisha_id").c_str(),
        Field("kojin_bango").c_str(), Field("hojin_bango").c_str(), Field("nozeisha_nm").c_str(),
        Field("nozeisha_adr").c_str(), Field("daihyo_nm").c_str(), Field("dairi_id").c_str(),
        Field("dairi_nm").c_str(), Field("dairi_adr").c_str(), Field("tetsuzuki").c_str());

    ASSERT_NE(pResult, nullptr);
    ASSERT_EQ(pResult->GetResult() + pResult->GetDetailErrorInfo(), "S_OK");
    EXPECT_TRUE(
        SameText(pResult->GetMokData(), Replace(Expected(), "softNM=\"" + Field("soft_name") + "\"",
                                                std::string("softNM=\"") + EL_SOFT_NAME + "\"")));
}

constexpr GoldenCase CASES[] = {
    {"PGE5010_sample"}, {"PGE5020_sample"}, {"PGE5030_sample"},
    {"PGE5040_sample"}, {"PGE5050_sample"}, {"PGE5060_sample"},
    {"PGE5070_sample"}, {"PGE5080_sample"}, {"PGE5090_sample"},
};

INSTANTIATE_TEST_SUITE_P(Cases,
                         GoldenDocumentTest,
                         testing::ValuesIn(CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

}  // namespace
