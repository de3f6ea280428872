// The host's cells are those that the library's reader of the family stores.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "KZCEkaCsvFileCrossBorder.h"
#include "KZCEkaCsvFileFinance.h"
#include "file/CsvCells.h"
#include "file/SourceFile.h"
#include "support/ResetState.h"
#include "support/TempFolder.h"

namespace host {
namespace {

using Table = std::vector<std::vector<std::string>>;

template <class File>
class OpenReader final : public File
{
public:
    Table Records() const { return this->m_table.Records(); }
};

template <class File>
Table ReadBy(const std::string& strPath)
{
    OpenReader<File> file;
    static_cast<void>(file.ReadFile(strPath));
    return file.Records();
}

/// What the library stores of a file; in UTF-8, as no check is running.
Table ReadByLibrary(Family eFamily, const std::string& strPath)
{
    switch (eFamily) {
        case Family::Base:
            return ReadBy<KZCEkaCsvFile>(strPath);
        case Family::Finance:
            return ReadBy<KZCEkaCsvFileFinance>(strPath);
        case Family::CrossBorder:
            return ReadBy<KZCEkaCsvFileCrossBorder>(strPath);
    }
    return {};
}

Table ReadByHost(const CsvCells& cells)
{
    Table records;
    for (std::size_t nRecord = 1; nRecord <= cells.RecordCount(); ++nRecord) {
        records.emplace_back();
        for (std::size_t nColumn = 1; nColumn <= cells.ColumnCount(nRecord); ++nColumn)
            records.back().push_back(cells.Cell(nRecord, nColumn));
    }
    return records;
}

std::vector<std::string> Samples()
{
    std::vector<std::string> vecName;
    for (const auto& entry : std::filesystem::directory_iterator(KZEKAMOK_SAMPLES_DIR))
        if (entry.path().extension() == ".csv")
            vecName.push_back(entry.path().stem().string());
    std::ranges::sort(vecName);
    return vecName;
}

class CsvSampleTest : public ResetState, public testing::WithParamInterface<std::string>
{};

TEST_P(CsvSampleTest, HasTheCellsOfTheLibrary)
{
    const std::string strPath = std::string(KZEKAMOK_SAMPLES_DIR) + "/" + GetParam() + ".csv";
    const SourceFile source(strPath);
    const Table expected = ReadByLibrary(source.OfFamily(), strPath);
    ASSERT_GT(expected.size(), 0U);
    EXPECT_EQ(ReadByHost(source.Cells()), expected);
}

INSTANTIATE_TEST_SUITE_P(Samples,
                         CsvSampleTest,
                         testing::ValuesIn(Samples()),
                         [](const auto& testCase) { return testCase.param; });

/// Texts of characters that mean something to a reader, every record with its type id.
class TextMaker
{
public:
    explicit TextMaker(unsigned nSeed) : m_random(nSeed) {}

    std::string Make(const std::string& strTypeId)
    {
        std::string strText;
        for (int nRecord = 0; nRecord < 8; ++nRecord) {
            strText += Pick({"", "", "\n", " \r\n", "\r"});
            strText += strTypeId;
            for (int nColumn = Number(4); nColumn > 0; --nColumn)
                strText += "," + Cell();
            strText += Pick({"\n", "\r", "\r\n", "\n\r"});
        }
        return strText + (Number(3) == 0 ? strTypeId + ",\"open\n\"\"," : "");
    }

private:
    int Number(int nEnd) { return std::uniform_int_distribution(0, nEnd - 1)(m_random); }

    std::string Pick(const std::vector<std::string>& vecText)
    {
        return vecText[static_cast<std::size_t>(Number(static_cast<int>(vecText.size())))];
    }

    std::string Cell()
    {
        const bool bQuoted = Number(2) == 0;
        std::string strCell = Pick({"", "", " "}) + (bQuoted ? "\"" : "");
        for (int n = Number(5); n > 0; --n)
            strCell += bQuoted ? Pick({"a", ",", "\"\"", "\r\n", "\n", "\r", " ", "x y"})
                               : Pick({"a", "\"", " ", "\t", "b c"});
        return strCell + (bQuoted ? Pick({"\"", "\"", "\"z", "\"z\""}) : "");
    }

    std::mt19937 m_random;
};

struct RandomCase
{
    const char* szName;
    const char* szTypeId;
    Family eFamily;
};

class CsvRandomTest : public ResetState, public testing::WithParamInterface<RandomCase>
{};

TEST_P(CsvRandomTest, IsReadAsByTheLibrary)
{
    const TempFolder folder;
    for (unsigned nSeed = 0; nSeed < 300; ++nSeed) {
        const std::string strText = TextMaker(nSeed).Make(GetParam().szTypeId);
        const std::string strPath = folder.Write("in.csv", strText);
        Table found = ReadByHost(CsvCells(strText, GetParam().eFamily));
        Table expected = ReadByLibrary(GetParam().eFamily, strPath);
        // The library stops at the first record that it refuses; the host shows that one, too.
        found.resize(std::min(found.size(), expected.size()));
        ASSERT_EQ(found, expected) << "seed " << nSeed << ": " << strText;
    }
}

INSTANTIATE_TEST_SUITE_P(Families,
                         CsvRandomTest,
                         testing::Values(RandomCase{"Finance", "101", Family::Finance},
                                         RandomCase{"CrossBorder", "301", Family::CrossBorder}),
                         [](const auto& testCase) { return testCase.param.szName; });

}  // namespace
}  // namespace host
