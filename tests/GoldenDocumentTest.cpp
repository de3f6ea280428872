// Whole documents. The expected ones come from tests/model/write_golden.py, which knows the rules
// and not this library; it also makes them anew after a change of a sample or a definition.
#include <KZEkaMok/KZICsvConvMokEka.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <iomanip>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "calendar/Clock.h"
#include "support/Environment.h"
#include "support/ResetState.h"
#include "support/SameText.h"
#include "support/TempFolder.h"

namespace {

constexpr std::int64_t KEY = 3;
/// The base family's EL path takes no software name from the host and has this one.
constexpr const char* EL_SOFT_NAME = "eka_orbclient_ZEKA";

using Result = std::shared_ptr<KZIConvertResultEka>;

/// The fields of request.json.
class FilingRequest
{
public:
    explicit FilingRequest(const std::string& strJson) : m_fields(nlohmann::json::parse(strJson)) {}

    /// Valid as long as the request.
    const char* operator[](const char* szKey) const
    {
        return m_fields.at(szKey).get_ref<const std::string&>().c_str();
    }

private:
    nlohmann::json m_fields;
};

/// What the families' conversions are called with.
struct Family
{
    Result (*pConvert)(const std::string& strCsvPath,
                       const std::string& strMokPath,
                       const FilingRequest& request);
    Result (KZICsvConvMokEka::*pElCheck)(const char*, std::int64_t);
    Result (*pElConvert)(KZICsvConvMokEka& host, const FilingRequest& request);
    bool bElSoftName;  ///< the EL path has a software name of its own
};

Result Convert(const std::string& strCsvPath,
               const std::string& strMokPath,
               const FilingRequest& request)
{
    return KZICsvConvMokEka().CsvConvMok(
        strCsvPath.c_str(), strMokPath.c_str(), request["zeimusho_cd"], request["nozeisha_id"],
        request["kojin_bango"], request["hojin_bango"], request["nozeisha_nm"],
        request["nozeisha_adr"], request["daihyo_nm"], request["dairi_id"], request["dairi_nm"],
        request["dairi_adr"], request["tetsuzuki"], request["soft_name"]);
}

Result ElConvert(KZICsvConvMokEka& host, const FilingRequest& request)
{
    return host.ELCsvConvMok(KEY, request["zeimusho_cd"], request["nozeisha_id"],
                             request["kojin_bango"], request["hojin_bango"], request["nozeisha_nm"],
                             request["nozeisha_adr"], request["daihyo_nm"], request["dairi_id"],
                             request["dairi_nm"], request["dairi_adr"], request["tetsuzuki"]);
}

Result ConvertFinance(const std::string& strCsvPath,
                      const std::string& strMokPath,
                      const FilingRequest& request)
{
    return KZICsvConvMokEka().CsvConvMokFinance(
        strCsvPath.c_str(), strMokPath.c_str(), request["zeimusho_cd"], request["nozeisha_id"],
        request["kojin_bango"], request["hojin_bango"], request["nozeisha_nm"],
        request["nozeisha_adr"], request["daihyo_nm"], request["dairi_id"], request["dairi_nm"],
        request["dairi_adr"], request["tetsuzuki"], request["teishutsu_era"],
        request["teishutsu_year"], request["teishutsu_month"], request["teishutsu_day"],
        request["soft_name"], request["nozeisha_zip1"], request["nozeisha_zip2"]);
}

Result ElConvertFinance(KZICsvConvMokEka& host, const FilingRequest& request)
{
    return host.ELCsvConvMokFinance(
        KEY, request["zeimusho_cd"], request["nozeisha_id"], request["kojin_bango"],
        request["hojin_bango"], request["nozeisha_nm"], request["nozeisha_adr"],
        request["daihyo_nm"], request["dairi_id"], request["dairi_nm"], request["dairi_adr"],
        request["tetsuzuki"], request["teishutsu_era"], request["teishutsu_year"],
        request["teishutsu_month"], request["teishutsu_day"], request["soft_name"],
        request["nozeisha_zip1"], request["nozeisha_zip2"]);
}

Result ConvertCrossBorder(const std::string& strCsvPath,
                          const std::string& strMokPath,
                          const FilingRequest& request)
{
    return KZICsvConvMokEka().CsvConvMokCrossBorder(
        strCsvPath.c_str(), strMokPath.c_str(), request["zeimusho_cd"], request["teishutsu_era"],
        request["teishutsu_year"], request["teishutsu_month"], request["teishutsu_day"],
        request["nozeisha_id"], request["kojin_bango"], request["hojin_bango"],
        request["nozeisha_nm"], request["nozeisha_zip1"], request["nozeisha_zip2"],
        request["nozeisha_adr"], request["daihyo_nm"], request["dairi_id"], request["dairi_nm"],
        request["dairi_adr"], request["tetsuzuki"], request["soft_name"]);
}

Result ElConvertCrossBorder(KZICsvConvMokEka& host, const FilingRequest& request)
{
    return host.ELCsvConvMokCrossBorder(
        KEY, request["zeimusho_cd"], request["teishutsu_era"], request["teishutsu_year"],
        request["teishutsu_month"], request["teishutsu_day"], request["nozeisha_id"],
        request["kojin_bango"], request["hojin_bango"], request["nozeisha_nm"],
        request["nozeisha_zip1"], request["nozeisha_zip2"], request["nozeisha_adr"],
        request["daihyo_nm"], request["dairi_id"], request["dairi_nm"], request["dairi_adr"],
        request["tetsuzuki"], request["soft_name"]);
}

constexpr Family BASE = {
    .pConvert = Convert,
    .pElCheck = &KZICsvConvMokEka::ELCsvCheck,
    .pElConvert = ElConvert,
    .bElSoftName = true,
};

constexpr Family FINANCE = {
    .pConvert = ConvertFinance,
    .pElCheck = &KZICsvConvMokEka::ELCsvCheckFinance,
    .pElConvert = ElConvertFinance,
    .bElSoftName = false,
};

constexpr Family CROSSBORDER = {
    .pConvert = ConvertCrossBorder,
    .pElCheck = &KZICsvConvMokEka::ELCsvCheckCrossBorder,
    .pElConvert = ElConvertCrossBorder,
    .bElSoftName = false,
};

/// A folder below tests/golden/ with request.json and expected.mok.
struct GoldenCase
{
    Family family;
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
        : m_request(ReadCaseFile("request.json")), m_strExpected(ReadCaseFile("expected.mok"))
    {
        Clock::Set(NoonOf(m_request["sakusei_day"]));
    }

    const FilingRequest& Request() const { return m_request; }
    std::string CsvPath() const { return std::string(KZEKAMOK_SAMPLES_DIR "/") + m_request["csv"]; }
    const std::string& Expected() const { return m_strExpected; }

private:
    static std::string ReadCaseFile(const std::string& strName)
    {
        return TempFolder::ReadPath(std::string(KZEKAMOK_TEST_DATA_DIR "/golden/") +
                                    GetParam().szName + "/" + strName);
    }

    Environment m_bundle{"KZEKAMOK_BUNDLE", KZEKAMOK_SOURCE_BUNDLE};
    FilingRequest m_request;
    std::string m_strExpected;
};

/// The document with the EL path's software name in place of the request's.
std::string WithElSoftName(std::string strDocument, const FilingRequest& request)
{
    const std::string strFrom = std::string("softNM=\"") + request["soft_name"] + "\"";
    const std::string strTo = std::string("softNM=\"") + EL_SOFT_NAME + "\"";
    for (std::size_t n = strDocument.find(strFrom); n != std::string::npos;
         n = strDocument.find(strFrom, n + strTo.size()))
        strDocument.replace(n, strFrom.size(), strTo);
    return strDocument;
}

TEST_P(GoldenDocumentTest, PlainPathWritesTheExpectedBytes)
{
    const TempFolder folder;
    const std::string strMokPath = folder.Path("out.mok");

    const auto pResult = GetParam().family.pConvert(CsvPath(), strMokPath, Request());

    ASSERT_NE(pResult, nullptr);
    ASSERT_EQ(pResult->GetResult() + pResult->GetDetailErrorInfo(), "S_OK");
    EXPECT_TRUE(SameText(TempFolder::ReadPath(strMokPath), Expected()));
}

TEST_P(GoldenDocumentTest, ElPathGivesTheExpectedBytes)
{
    KZICsvConvMokEka host;
    const auto pCheck = (host.*GetParam().family.pElCheck)(CsvPath().c_str(), KEY);
    ASSERT_NE(pCheck, nullptr);
    ASSERT_EQ(pCheck->GetResult() + pCheck->GetDetailErrorInfo(), "S_OK");

    const auto pResult = GetParam().family.pElConvert(host, Request());

    ASSERT_NE(pResult, nullptr);
    ASSERT_EQ(pResult->GetResult() + pResult->GetDetailErrorInfo(), "S_OK");
    EXPECT_TRUE(SameText(pResult->GetMokData(), GetParam().family.bElSoftName
                                                    ? WithElSoftName(Expected(), Request())
                                                    : Expected()));
}

constexpr GoldenCase CASES[] = {
    {BASE, "PGE5010_one_record"},    {BASE, "PGE5010_sample"},    {BASE, "PGE5020_sample"},
    {BASE, "PGE5030_sample"},        {BASE, "PGE5040_sample"},    {BASE, "PGE5050_sample"},
    {BASE, "PGE5060_sample"},        {BASE, "PGE5070_sample"},    {BASE, "PGE5080_sample"},
    {BASE, "PGE5090_sample"},        {FINANCE, "PGE1630_sample"}, {FINANCE, "PGE1640_full"},
    {FINANCE, "PGE1640_sample"},     {FINANCE, "PGE1640_short"},  {FINANCE, "PGE2015_sample"},
    {FINANCE, "PGE2025_sample"},     {FINANCE, "PGE2030_sample"}, {FINANCE, "PGE2040_sample"},
    {FINANCE, "PGE2055_sample"},     {FINANCE, "PGE2065_sample"}, {FINANCE, "PGE2070_sample"},
    {FINANCE, "PGE2080_sample"},     {FINANCE, "PGE2095_sample"}, {FINANCE, "PGE2105_sample"},
    {FINANCE, "PGE2115_full"},       {FINANCE, "PGE2115_sample"}, {FINANCE, "PGE2115_short"},
    {FINANCE, "PGE2125_sample"},     {FINANCE, "PGE2135_sample"}, {FINANCE, "PGE2140_sample"},
    {FINANCE, "PGE2150_sample"},     {FINANCE, "PGE2160_sample"}, {CROSSBORDER, "PGE1650_sample"},
    {CROSSBORDER, "PGE1660_sample"},
};

INSTANTIATE_TEST_SUITE_P(Cases,
                         GoldenDocumentTest,
                         testing::ValuesIn(CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

}  // namespace
