// Records made from the shipped definition file pass, and stop passing with any one cell spoiled.
#include <KZEkaMok/KZICsvConvMokEka.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "support/CellSpoiler.h"
#include "support/Environment.h"
#include "support/RecordGenerator.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"
#include "support/TempFolder.h"

namespace {

constexpr const char* DEFINITION_PATH = KZEKAMOK_SOURCE_BUNDLE "/KZEkaDefine.xml";
constexpr const char* OFFICES_PATH = KZEKAMOK_SOURCE_BUNDLE "/TaxOffices.xml";
constexpr unsigned SEED = 20240229;
constexpr std::size_t PASSING_RECORDS = 1000;
constexpr std::size_t VARIED_RECORDS = 200;
constexpr std::size_t SPOILED_SOURCES = 40;   // passing records of a form whose cells are spoiled
constexpr std::size_t SPOILED_PER_CHECK = 3;  // records for each check and column
constexpr std::size_t MOST_RECORDS = 5000;    // of a file

using Record = RecordGenerator::Record;

/// An entry of the detail table; columns from 1.
struct Entry
{
    long lRecord;
    long lColumn;
    long lColumnEnd;

    bool Covers(long lOther) const { return lColumn <= lOther && lOther <= lColumnEnd; }
};

std::vector<Entry> ReadTable(const std::string& strTable)
{
    std::vector<Entry> vecEntry;
    for (const std::string& strEntry : SplitTokens(strTable, ',')) {
        const auto vecPart = SplitTokens(strEntry, '-');
        const auto vecColumn = SplitTokens(vecPart.at(1), ':');
        vecEntry.push_back(
            {NumberOf(vecPart[0]), NumberOf(vecColumn.front()), NumberOf(vecColumn.back())});
    }
    return vecEntry;
}

std::string CsvBytes(const std::vector<Record>& vecRecord)
{
    std::string strBytes;
    for (const Record& record : vecRecord) {
        for (std::size_t n = 0; n < record.size(); ++n)
            strBytes += (n == 0 ? "" : ",") + record[n];
        strBytes += "\r\n";
    }
    return strBytes;
}

/// For failure messages.
std::string ConvertedRecord(const Record& record)
{
    return ConvertText(CsvBytes({record}), "UTF-8", "CP932");
}

std::size_t CountOf(const std::string& strText, const std::string& strPart)
{
    std::size_t nCount = 0;
    for (auto n = strText.find(strPart); n != std::string::npos; n = strText.find(strPart, n + 1))
        ++nCount;
    return nCount;
}

/// The type ids of the shipped file, read when the tests are listed.
std::vector<std::string> TypeIds()
{
    const XercesSession session;
    std::vector<std::string> vecTypeId;
    for (const FormRules& form : ReadForms(DEFINITION_PATH))
        vecTypeId.push_back(form.strTypeId);
    return vecTypeId;
}

class GeneratedRecordsTest : public ResetState, public testing::WithParamInterface<std::string>
{
protected:
    GeneratedRecordsTest() : m_vecForm(ReadForms(DEFINITION_PATH)) {}

    const FormRules& Form() const
    {
        return *std::ranges::find(m_vecForm, GetParam(), &FormRules::strTypeId);
    }
    RecordGenerator Generator() const
    {
        return RecordGenerator(Form(), m_vecOffice, m_folder.Path(), SEED);
    }
    std::string WriteCsv(const std::vector<Record>& vecRecord) const
    {
        return m_folder.Write("records.csv", CsvBytes(vecRecord));
    }
    std::string Convert(const std::string& strCsvPath)
    {
        const auto pResult = m_host.CsvConvMok(
            strCsvPath.c_str(), m_folder.Path("records.mok").c_str(),
            m_vecOffice.front().strCode.c_str(), "1234567890123456", "", "", "見本太郎",
            "見本県見本市一丁目１番地", "", "", "", "", Form().strProcId.c_str(), "見本ソフト");
        return pResult->GetResult() + pResult->GetDetailErrorInfo();
    }

    KZICsvConvMokEka m_host;
    TempFolder m_folder;

private:
    Environment m_bundle{"KZEKAMOK_BUNDLE", KZEKAMOK_SOURCE_BUNDLE};
    std::vector<FormRules> m_vecForm;

protected:
    std::vector<TaxOffice> m_vecOffice = ReadTaxOffices(OFFICES_PATH);
};

std::vector<Record> MakeRecords(RecordGenerator generator, std::size_t nCount)
{
    const CheckPhase phase;
    return generator.Make(nCount);
}

TEST_P(GeneratedRecordsTest, RecordsPassTheCheckAndConvert)
{
    const auto vecRecord = MakeRecords(Generator(), PASSING_RECORDS);
    const std::string strPath = WriteCsv(vecRecord);
    RecordProperty("columns", static_cast<int>(Form().lColumnCount));
    RecordProperty("checks", static_cast<int>(Form().vecCheck.size()));

    const auto pResult = m_host.CsvCheck(strPath.c_str());

    ASSERT_NE(pResult, nullptr);
    EXPECT_EQ(pResult->GetDetailErrorInfo(), "");
    EXPECT_EQ(pResult->GetResult(), "S_OK");
    EXPECT_EQ(pResult->GetProcId(), Form().strProcId);
    EXPECT_EQ(Convert(strPath), "S_OK");
    EXPECT_EQ(CountOf(m_folder.Read("records.mok"), "<" + Form().strReportId + " "),
              PASSING_RECORDS);
}

TEST_P(GeneratedRecordsTest, RecordsVaryAndHaveEveryGenerationOfTheForm)
{
    const auto vecRecord = MakeRecords(Generator(), VARIED_RECORDS);
    const CheckPhase phase;
    RecordTable table;
    std::map<std::string, std::size_t> mapCount;
    for (const Record& record : vecRecord) {
        table.Put(0, record);
        ++mapCount[table.GetRecordGeneration(0)];
    }

    EXPECT_EQ(std::set<Record>(vecRecord.begin(), vecRecord.end()).size(), VARIED_RECORDS);
    std::map<std::string, std::size_t> mapExpected;
    for (const std::string& strGeneration : Form().Generations())
        mapExpected[strGeneration] = VARIED_RECORDS / Form().Generations().size();
    EXPECT_EQ(mapCount, mapExpected);
}

TEST_P(GeneratedRecordsTest, SpoiledCellIsRefusedAtItsRecordAndColumn)
{
    RecordGenerator generator = Generator();
    const long lReferred = generator.ReferredRecords();
    std::vector<Record> vecFile;
    std::vector<SpoiledRecord> vecSpoiled;
    std::set<long> setSpoiled;
    std::set<long> setChecked;
    {
        const CheckPhase phase;
        const auto vecPassing =
            generator.Make(static_cast<std::size_t>(lReferred) + SPOILED_SOURCES);
        RecordTable table;
        std::map<std::pair<const CheckRule*, long>, std::size_t> mapCount;
        for (std::size_t n = 0; n < vecPassing.size(); ++n) {
            const long lRow = std::min(static_cast<long>(n), lReferred);
            table.Put(lRow, vecPassing[n]);
            if (lRow < lReferred) {
                vecFile.push_back(vecPassing[n]);
                continue;
            }
            for (SpoiledRecord& spoiled : SpoilRecord(Form(), table, lRow))
                if (mapCount[{spoiled.pRule, spoiled.lColumn}]++ < SPOILED_PER_CHECK)
                    vecSpoiled.push_back(std::move(spoiled));
        }
    }
    for (const SpoiledRecord& spoiled : vecSpoiled) {
        vecFile.push_back(spoiled.record);
        setSpoiled.insert(spoiled.lColumn);
    }
    for (const CheckRule& rule : Form().vecCheck)
        for (const long lColumn : rule.setReported)
            if (lColumn > 1)
                setChecked.insert(lColumn);
    ASSERT_LE(vecFile.size(), MOST_RECORDS);

    const auto pResult = m_host.CsvCheck(WriteCsv(vecFile).c_str());

    ASSERT_NE(pResult, nullptr);
    EXPECT_EQ(pResult->GetResult(), "E_FAIL");
    std::vector<std::vector<Entry>> vecByRecord(vecFile.size() + 1);
    for (const Entry& entry : ReadTable(pResult->GetDetailErrorInfo()))
        vecByRecord.at(static_cast<std::size_t>(entry.lRecord)).push_back(entry);
    for (std::size_t n = 0; n <= static_cast<std::size_t>(lReferred); ++n)
        EXPECT_TRUE(vecByRecord[n].empty()) << "record " << n << " isn't spoiled";
    std::size_t nFirst = 0;
    for (std::size_t n = 0; n < vecSpoiled.size(); ++n) {
        const SpoiledRecord& spoiled = vecSpoiled[n];
        const auto& vecEntry = vecByRecord[n + static_cast<std::size_t>(lReferred) + 1];
        const auto covers = [&](const Entry& entry) { return entry.Covers(spoiled.lColumn); };
        EXPECT_TRUE(std::ranges::any_of(vecEntry, covers))
            << "column " << spoiled.lColumn << " spoiled for " << spoiled.pRule->Description()
            << " of item " << Form().vecItem[spoiled.pRule->nItem].strId << "; " << vecEntry.size()
            << " entries of the record, the first at column "
            << (vecEntry.empty() ? 0 : vecEntry.front().lColumn) << "\n"
            << ConvertedRecord(spoiled.record);
        nFirst += !vecEntry.empty() && covers(vecEntry.front()) ? 1 : 0;
    }
    EXPECT_EQ(setSpoiled, setChecked);
    RecordProperty("spoiled_cells", static_cast<int>(vecSpoiled.size()));
    RecordProperty("spoiled_columns", static_cast<int>(setSpoiled.size()));
    RecordProperty("named_by_first_entry", static_cast<int>(nFirst));
}

INSTANTIATE_TEST_SUITE_P(TypeIds,
                         GeneratedRecordsTest,
                         testing::ValuesIn(TypeIds()),
                         [](const auto& testCase) { return "Form" + testCase.param; });

/// A form whose second column can't pass.
constexpr const char* HOPELESS_DEFINITION = R"(<define>
  <report id="003" columnNum="2" procId="PGE5030" reportId="GEZ030">
    <item type="Normal" id="GEZ03010" parent="GEZ030" column="2">
      <valid id="exist"/>
      <valid id="length" value="3"/>
      <valid id="contain" value="12 1234"/>
    </item>
  </report>
</define>
)";

class RecordGeneratorTest : public ResetState
{
private:
    Environment m_bundle{"KZEKAMOK_BUNDLE", KZEKAMOK_SOURCE_BUNDLE};
};

TEST_F(RecordGeneratorTest, FormThatNothingPassesIsGivenUpWithColumnAndCheck)
{
    const TempFolder folder;
    const auto vecForm = ReadForms(folder.Write("KZEkaDefine.xml", HOPELESS_DEFINITION));
    RecordGenerator generator(vecForm.at(0), {}, folder.Path(), SEED);
    const CheckPhase phase;

    std::string strTold;
    try {
        generator.Make(1);
    } catch (const std::runtime_error& error) {
        strTold = error.what();
    }

    EXPECT_TRUE(strTold.starts_with("no passing senior record found for type id 003:")) << strTold;
    EXPECT_NE(strTold.find(R"(column 2, length(value="3" min="" max="") of item GEZ03010)"),
              std::string::npos)
        << strTold;
}

}  // namespace
