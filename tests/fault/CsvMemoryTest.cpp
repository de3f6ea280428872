// Memory that reading a CSV file takes: a file that can't be filed takes no more than twice what a
// document may have, however large it is, and one that can takes little more than its text.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "KZCEkaCsvFile.h"
#include "support/AllocationFault.h"
#include "support/OpenFinanceCsv.h"

namespace {

/// Bytes; a document may have half of it.
constexpr std::size_t MOST = 2 * 10'485'760;

/// The text so many bytes long, less what a whole repetition lacks.
std::string Fill(const std::string& strText, std::size_t nBytes)
{
    std::string strAll;
    strAll.reserve(nBytes);
    while (strAll.size() + strText.size() <= nBytes)
        strAll += strText;
    return strAll;
}

struct MemoryCase
{
    const char* szName;
    std::string (*makeText)();
    const char* szTold;
};

void PrintTo(const MemoryCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CsvMemoryTest : public FinanceCsvFixture, public testing::WithParamInterface<MemoryCase>
{
protected:
    CsvMemoryTest()
    {
        m_bundle.Write("KZEkaDefine.xml", R"(<x><report id="003" columnNum="3"/></x>)");
        m_bundle.Write("Finance/PGE2030vld.xml",
                       ReportFile({R"(startRow="1" endRow="1" columnNum="3")",
                                   R"(startRow="2" endRow="0" columnNum="3")"}));
    }

    /// Bytes that the reading takes at one time. The written text is gone before it begins.
    std::size_t PeakOf(KZCEkaCsvFile& csv)
    {
        const std::string strPath = Write(GetParam().makeText());
        AllocationFault::StartPeak();
        const std::string strTold = Told([&] { return csv.ReadFile(strPath); });
        const std::size_t nPeak = AllocationFault::PeakBytes();
        EXPECT_EQ(strTold, GetParam().szTold);
        return nPeak;
    }
};

TEST_P(CsvMemoryTest, IsBoundedInACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    KZCEkaCsvFile csv;
    EXPECT_LT(PeakOf(csv), MOST);
}

TEST_P(CsvMemoryTest, IsBoundedInAConversion)
{
    KZCEkaCsvFile csv;
    EXPECT_LT(PeakOf(csv), MOST);
}

constexpr std::size_t SMALL = 2'000'000;  ///< bytes; read in one piece
constexpr std::size_t LARGE = 5'000'000;  ///< bytes; read in many
constexpr std::size_t HUGE_SIZE = 30'000'000;

const MemoryCase MEMORY_CASES[] = {
    {"CommasAlone", [] { return std::string(LARGE, ','); }, "refuses 0000-00001-HE70021E"},
    {"FewerCommasAlone", [] { return std::string(SMALL, ','); }, "refuses 0000-00001-HE70021E"},
    {"CommasBehindATypeId", [] { return "003" + std::string(LARGE, ','); },
     "refuses 0000-00000-HE70019E"},
    {"TooManyRecords", [] { return Fill("003,1,a\n", SMALL); }, "refuses 0000-00000-HE70020E"},
    {"TooManyWideRecords",
     [] { return Fill("003,1," + std::string(2'000, 'x') + "\n", HUGE_SIZE); },
     "refuses 0000-00000-HE70020E"},
    {"LineEnds", [] { return std::string(SMALL / 2, '\n'); }, "refuses 0000-00000-HE70020E"},
    {"Blanks", [] { return std::string(HUGE_SIZE, ' '); }, "refuses 0000-00000-HE70024E"},
    {"ZerosBehindARecord", [] { return "003,1,a" + std::string(HUGE_SIZE, '\0'); }, PASSES},
    {"Zeros", [] { return std::string(HUGE_SIZE, '\0'); }, RAISES},
    {"InvalidByteAtTheEnd", [] { return std::string(HUGE_SIZE, ' ') + "\x82"; }, RAISES},
};

INSTANTIATE_TEST_SUITE_P(Files, CsvMemoryTest, testing::ValuesIn(MEMORY_CASES), CaseName());

class FinanceCsvMemoryTest : public CsvMemoryTest
{};

TEST_P(FinanceCsvMemoryTest, IsBounded)
{
    OpenFinanceCsv csv;
    EXPECT_LT(PeakOf(csv), MOST);
}

const MemoryCase FINANCE_MEMORY_CASES[] = {
    {"CommasAlone", [] { return std::string(LARGE, ','); }, "refuses 0000-00001-HE70021E"},
    {"RecordsOfCommas", [] { return "103,1,a\n" + Fill(",,\n", SMALL / 2); }, PASSES},
    {"TooManyRecords", [] { return "103,1,a\n" + Fill("5,1,a\n", SMALL); }, PASSES},
    {"LineEnds", [] { return std::string(SMALL / 2, '\n'); }, PASSES},
};

INSTANTIATE_TEST_SUITE_P(Files,
                         FinanceCsvMemoryTest,
                         testing::ValuesIn(FINANCE_MEMORY_CASES),
                         CaseName());

class CsvCleanMemoryTest : public FinanceCsvFixture, public testing::WithParamInterface<bool>
{};

TEST_P(CsvCleanMemoryTest, FileOfFiveThousandRecordsTakesFourTimesItsSizeAtMost)
{
    m_bundle.Write("KZEkaDefine.xml", R"(<x><report id="003" columnNum="36"/></x>)");
    std::string strLine = "003";
    for (int nColumn = 2; nColumn <= 36; ++nColumn)
        strLine += "," + std::string(static_cast<std::size_t>(nColumn % 7), 'x');
    const std::string strText = Fill(strLine + "\n", (strLine.size() + 1) * 5'000);
    const std::string strPath = Write(strText);
    KZCEkaCommon::SetCsvCheckFlag(GetParam());
    KZCEkaCsvFile csv;
    AllocationFault::StartPeak();
    const int nStatus = csv.ReadFile(strPath);
    const std::size_t nPeak = AllocationFault::PeakBytes();
    EXPECT_EQ(nStatus, STATUS_OK);
    EXPECT_EQ(csv.GetNonCRLFRecordCount(), 5'000);
    EXPECT_LT(nPeak, 4 * strText.size());
}

INSTANTIATE_TEST_SUITE_P(Phases, CsvCleanMemoryTest, testing::Bool());

}  // namespace
