// Files made from the shipped definition files pass and convert, and stop passing with any one cell
// spoiled.
#include <KZEkaMok/KZICsvConvMokEka.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "generate/FileGenerator.h"
#include "generate/ProcedureRules.h"
#include "generate/RecordGenerator.h"
#include "support/CellSpoiler.h"
#include "support/Environment.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"
#include "support/TempFolder.h"

namespace {

using namespace host;

#ifdef __SANITIZE_ADDRESS__
constexpr bool IS_SLOW_BUILD = true;
#else
constexpr bool IS_SLOW_BUILD = false;
#endif

constexpr const char* OFFICES_PATH = KZEKAMOK_SOURCE_BUNDLE "/TaxOffices.xml";
constexpr unsigned SEED = 20240229;
constexpr std::size_t PASSING_RECORDS = IS_SLOW_BUILD ? 200 : 1000;
constexpr std::size_t VARIED_RECORDS = 200;

/// How many cells of a form are spoiled.
struct SpoilEffort
{
    std::size_t nSources;   ///< passing records whose cells are spoiled
    std::size_t nPerCheck;  ///< spoiled records for each check and column
};
constexpr SpoilEffort IN_ONE_FILE = {40, 3};
constexpr SpoilEffort IN_FILES_OF_THEIR_OWN = {IS_SLOW_BUILD ? 6 : 20, 1};

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

/// \param bQuoted  Every filled cell stands in quotes but the first of a record.
std::string CsvBytes(const std::vector<Record>& vecRecord, bool bQuoted = false)
{
    const auto written = [bQuoted](const std::string& strCell) {
        if (!bQuoted || strCell.empty())
            return strCell;
        std::string strWritten = "\"";
        for (const char cByte : strCell)
            strWritten += cByte == '"' ? "\"\"" : std::string(1, cByte);
        return strWritten + '"';
    };
    std::string strBytes;
    for (const Record& record : vecRecord) {
        for (std::size_t n = 0; n < record.size(); ++n)
            strBytes += n == 0 ? record[n] : "," + written(record[n]);
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

/// The report elements of a conversion: the records from which pages are made. What isn't listed
/// makes a page of every record.
struct ReportPages
{
    const char* szTypeId;
    const char* szReportId;
    long lFirst;    ///< record from 1
    long lLast;     ///< record from 1; negative: from the last, which is -1
    long lPerPage;  ///< records

    std::size_t Count(std::size_t nRecords) const
    {
        const long lEnd = lLast < 0 ? lLast + static_cast<long>(nRecords) + 1 : lLast;
        return static_cast<std::size_t>((lEnd - lFirst + lPerPage) / lPerPage);
    }
};
constexpr ReportPages REPORT_PAGES[] = {
    {"103", "GEZ050", 1, 2, 2},  {"103", "GEZ051", 3, -1, 1}, {"111", "GEZ620", 1, 2, 2},
    {"111", "GEZ621", 3, -1, 4}, {"202", "GEZ750", 2, -3, 6},
};

std::vector<ReportPages> PagesOf(const ProcedureRules& procedure)
{
    std::vector<ReportPages> vecPages;
    for (const ReportPages& pages : REPORT_PAGES)
        if (pages.szTypeId == procedure.strTypeId)
            vecPages.push_back(pages);
    if (vecPages.empty())
        vecPages.push_back(
            {procedure.strTypeId.c_str(), procedure.vecForm.front().strReportId.c_str(), 1, -1, 1});
    return vecPages;
}

/// The procedures of the shipped resource folder, or the wanted one alone.
std::vector<ProcedureRules> ReadProcedures(const std::string& strProcId = "")
{
    const Definitions definitions(KZEKAMOK_SOURCE_BUNDLE);
    std::vector<ProcedureRules> vecProcedure;
    for (const Family eFamily : {Family::Finance, Family::CrossBorder, Family::Base})
        for (const std::string& strTypeId : definitions.TypeIds(eFamily)) {
            const ProcedureDefinition& definition = *definitions.Find(strTypeId);
            if (strProcId.empty() || strProcId == definition.strProcId)
                vecProcedure.push_back(MakeProcedureRules(definition));
        }
    return vecProcedure;
}

/// The first record (from 0) of a file of so many records that a form checks.
std::size_t FirstRow(const ProcedureRules& procedure, std::size_t nForm, std::size_t nCount)
{
    std::size_t nRow = 0;
    while (procedure.FormAt(nRow, nCount) != nForm)
        ++nRow;
    return nRow;
}

/// The form checks as many records as there are.
bool IsRepeated(const ProcedureRules& procedure, std::size_t nForm)
{
    const FormRules& form = procedure.vecForm.at(nForm);
    return procedure.nMaxRecords > 1 && !form.bLastRecord && form.lEndRow <= 0;
}

/// Some check of another record reads the record (from 0).
bool IsReferredTo(const ProcedureRules& procedure, std::size_t nRow)
{
    return std::ranges::any_of(procedure.vecForm, [nRow](const FormRules& form) {
        return std::ranges::any_of(form.vecCheck, [nRow](const CheckRule& rule) {
            return ReferredRecord(rule) == static_cast<long>(nRow) + 1;
        });
    });
}

/// Family, type id and procedure of the shipped files, read when the tests are listed.
struct ProcedureName
{
    Family eFamily;
    std::string strTypeId;
    std::string strProcId;
};

std::ostream& operator<<(std::ostream& stream, const ProcedureName& name)
{
    return stream << name.strProcId;
}

std::vector<ProcedureName> ProcedureNames()
{
    const XercesSession session;
    std::vector<ProcedureName> vecName;
    for (const ProcedureRules& procedure : ReadProcedures())
        vecName.push_back({procedure.eFamily, procedure.strTypeId, procedure.strProcId});
    return vecName;
}

/// A file of which some records have one cell spoiled, each for a check that has to refuse it.
struct SpoiledFile
{
    struct Cell
    {
        std::size_t nRow;  ///< from 0
        long lColumn;      ///< from 1
        const CheckRule* pRule;
    };

    std::vector<Record> vecRecord;
    std::vector<Cell> vecCell;
};

class GeneratedRecordsTest : public ResetState, public testing::WithParamInterface<ProcedureName>
{
protected:
    KZCEkaCommon::EXEC_MODE Mode() const
    {
        return m_procedure.eFamily == Family::Base ? KZCEkaCommon::EXEC_MODE_ZEKA
                                                   : KZCEkaCommon::EXEC_MODE_OTHER;
    }
    FileGenerator Generator() const
    {
        return FileGenerator(m_procedure, m_vecOffice, m_folder.Path(), SEED);
    }
    std::vector<Record> MakeRecords(std::size_t nCount) const
    {
        const CheckPhase phase(Mode());
        FileGenerator generator = Generator();
        return generator.Make(nCount);
    }
    std::string WriteCsv(const std::vector<Record>& vecRecord) const
    {
        return m_folder.Write("records.csv",
                              CsvBytes(vecRecord, m_procedure.eFamily == Family::CrossBorder));
    }
    auto Check(const std::string& strCsvPath)
    {
        switch (m_procedure.eFamily) {
            case Family::Finance:
                return m_host.CsvCheckFinance(strCsvPath.c_str());
            case Family::CrossBorder:
                return m_host.CsvCheckCrossBorder(strCsvPath.c_str());
            default:
                return m_host.CsvCheck(strCsvPath.c_str());
        }
    }
    /// Result and detail table of a conversion to records.mok.
    std::string Convert(const std::string& strCsvPath);

    std::vector<SpoiledFile> SpoilForm(std::size_t nForm) const;
    void ExpectRefusals(const SpoiledFile& file);

    KZICsvConvMokEka m_host;
    TempFolder m_folder;
    const ProcedureRules m_procedure = ReadProcedures(GetParam().strProcId).at(0);

private:
    Environment m_bundle{"KZEKAMOK_BUNDLE", KZEKAMOK_SOURCE_BUNDLE};
    std::vector<TaxOffice> m_vecOffice = ReadTaxOffices(OFFICES_PATH);
};

std::string GeneratedRecordsTest::Convert(const std::string& strCsvPath)
{
    const std::string strMokPath = m_folder.Path("records.mok");
    const std::string strOffice = m_vecOffice.front().strCode;
    const char* szCsv = strCsvPath.c_str();
    const char* szMok = strMokPath.c_str();
    const char* szOffice = strOffice.c_str();
    const char* szProcId = m_procedure.strProcId.c_str();
    constexpr const char* ID = "1234567890123456";
    constexpr const char* NAME = "見本太郎";
    constexpr const char* ADDRESS = "見本県見本市一丁目１番地";
    constexpr const char* SOFTWARE = "見本ソフト";
    std::shared_ptr<KZIConvertResultEka> pResult;
    if (m_procedure.eFamily == Family::Base)
        pResult = m_host.CsvConvMok(szCsv, szMok, szOffice, ID, "", "", NAME, ADDRESS, "", "", "",
                                    "", szProcId, SOFTWARE);
    else if (m_procedure.eFamily == Family::Finance)
        pResult =
            m_host.CsvConvMokFinance(szCsv, szMok, szOffice, ID, "", "", NAME, ADDRESS, "", "", "",
                                     "", szProcId, "5", "6", "7", "8", SOFTWARE, "123", "4567");
    else
        pResult = m_host.CsvConvMokCrossBorder(szCsv, szMok, szOffice, "5", "6", "7", "8", ID, "",
                                               "", NAME, "123", "4567", ADDRESS, "", "", "", "",
                                               szProcId, SOFTWARE);
    return pResult->GetResult() + pResult->GetDetailErrorInfo();
}

TEST_P(GeneratedRecordsTest, RecordsPassTheCheckAndConvert)
{
    const std::size_t nCount = std::min(PASSING_RECORDS, m_procedure.nMaxRecords);
    const std::string strPath = WriteCsv(MakeRecords(nCount));
    std::size_t nColumns = 0;
    std::size_t nChecks = 0;
    for (const FormRules& form : m_procedure.vecForm) {
        nColumns += static_cast<std::size_t>(form.lColumnCount);
        nChecks += form.vecCheck.size();
    }
    RecordProperty("columns", static_cast<int>(nColumns));
    RecordProperty("checks", static_cast<int>(nChecks));

    const auto pResult = Check(strPath);

    ASSERT_NE(pResult, nullptr);
    EXPECT_EQ(pResult->GetDetailErrorInfo(), "");
    EXPECT_EQ(pResult->GetResult(), "S_OK");
    EXPECT_EQ(pResult->GetProcId(), m_procedure.strProcId);
    EXPECT_EQ(Convert(strPath), "S_OK");
    const std::string strDocument = m_folder.Read("records.mok");
    for (const ReportPages& pages : PagesOf(m_procedure))
        EXPECT_EQ(CountOf(strDocument, std::string("<") + pages.szReportId + " "),
                  pages.Count(nCount))
            << pages.szReportId;
}

TEST_P(GeneratedRecordsTest, RecordsVaryAndHaveEveryGenerationOfTheForm)
{
    std::set<std::vector<Record>> setFile;
    std::map<std::string, std::size_t> mapCount;
    const CheckPhase phase(Mode());
    FileGenerator generator = Generator();
    generator.Make(m_procedure.ShortestFile());
    for (std::size_t n = 0; n < VARIED_RECORDS; ++n) {
        const std::size_t nRow = n % m_procedure.ShortestFile();
        generator.MakeAgain(nRow);
        setFile.insert(generator.Table().Records());
        ++mapCount[generator.Table().GetRecordGeneration(static_cast<long>(nRow))];
    }

    EXPECT_EQ(setFile.size(), VARIED_RECORDS);
    std::map<std::string, std::size_t> mapExpected;
    const auto vecGeneration = m_procedure.vecForm.front().Generations();
    for (const std::string& strGeneration : vecGeneration)
        mapExpected[strGeneration] = VARIED_RECORDS / vecGeneration.size();
    EXPECT_EQ(mapCount, mapExpected);
}

/// A form of any number of records has its spoiled ones in one file; another has a file for each.
std::vector<SpoiledFile> GeneratedRecordsTest::SpoilForm(std::size_t nForm) const
{
    const bool bRepeated = IsRepeated(m_procedure, nForm);
    const SpoilEffort effort = bRepeated ? IN_ONE_FILE : IN_FILES_OF_THEIR_OWN;
    const std::size_t nCount = m_procedure.ShortestFile();
    const std::size_t nLastForm = m_procedure.vecForm.size() - 1;
    const bool bTrailer = m_procedure.vecForm[nLastForm].bLastRecord;
    const std::size_t nRow =
        bRepeated ? nCount - (bTrailer ? 2 : 1) : FirstRow(m_procedure, nForm, nCount);
    const CheckPhase phase(Mode());
    FileGenerator generator = Generator();
    std::vector<SpoiledFile> vecFile;
    std::map<std::pair<const CheckRule*, long>, std::size_t> mapCount;
    SpoiledFile common{generator.Make(nCount), {}};
    common.vecRecord.erase(common.vecRecord.begin() + static_cast<long>(nRow));
    for (std::size_t n = 0; n < effort.nSources; ++n) {
        if (bRepeated)
            generator.MakeAgain(nRow);
        else
            generator.Make(nCount);
        for (const SpoiledRecord& spoiled :
             SpoilRecord(m_procedure.vecForm[nForm], generator.Table(), static_cast<long>(nRow))) {
            if (mapCount[{spoiled.pRule, spoiled.lColumn}]++ >= effort.nPerCheck)
                continue;
            if (bRepeated) {
                const std::size_t nPlace = nRow + common.vecCell.size();
                common.vecRecord.insert(common.vecRecord.begin() + static_cast<long>(nPlace),
                                        spoiled.record);
                common.vecCell.push_back({nPlace, spoiled.lColumn, spoiled.pRule});
            } else {
                vecFile.push_back(
                    {generator.Table().Records(), {{nRow, spoiled.lColumn, spoiled.pRule}}});
                vecFile.back().vecRecord[nRow] = spoiled.record;
            }
        }
    }
    if (bRepeated)
        vecFile.push_back(common);
    return vecFile;
}

/// Every spoiled cell is named by an entry of its record. Other records have none, unless they read
/// a spoiled one.
void GeneratedRecordsTest::ExpectRefusals(const SpoiledFile& file)
{
    ASSERT_LE(file.vecRecord.size(), m_procedure.nMaxRecords);
    const auto pResult = Check(WriteCsv(file.vecRecord));

    ASSERT_NE(pResult, nullptr);
    EXPECT_EQ(pResult->GetResult(), "E_FAIL");
    std::vector<std::vector<Entry>> vecByRecord(file.vecRecord.size());
    for (const Entry& entry : ReadTable(pResult->GetDetailErrorInfo()))
        vecByRecord.at(static_cast<std::size_t>(entry.lRecord - 1)).push_back(entry);
    bool bReferred = false;
    std::set<std::size_t> setSpoiled;
    for (const SpoiledFile::Cell& cell : file.vecCell) {
        bReferred = bReferred || IsReferredTo(m_procedure, cell.nRow);
        setSpoiled.insert(cell.nRow);
        const auto& vecEntry = vecByRecord[cell.nRow];
        EXPECT_TRUE(std::ranges::any_of(
            vecEntry, [&](const Entry& entry) { return entry.Covers(cell.lColumn); }))
            << "record " << cell.nRow + 1 << ", column " << cell.lColumn << " spoiled for "
            << cell.pRule->Description() << "; " << vecEntry.size()
            << " entries of the record, the first at column "
            << (vecEntry.empty() ? 0 : vecEntry.front().lColumn) << "\n"
            << ConvertedRecord(file.vecRecord[cell.nRow]);
    }
    for (std::size_t n = 0; !bReferred && n < vecByRecord.size(); ++n)
        EXPECT_TRUE(setSpoiled.contains(n) || vecByRecord[n].empty())
            << "record " << n + 1 << " isn't spoiled";
}

TEST_P(GeneratedRecordsTest, SpoiledCellIsRefusedAtItsRecordAndColumn)
{
    std::size_t nSpoiled = 0;
    for (std::size_t nForm = 0; nForm < m_procedure.vecForm.size(); ++nForm) {
        const auto vecFile = SpoilForm(nForm);
        std::set<long> setSpoiled;
        for (const SpoiledFile& file : vecFile) {
            ExpectRefusals(file);
            for (const SpoiledFile::Cell& cell : file.vecCell)
                setSpoiled.insert(cell.lColumn);
            nSpoiled += file.vecCell.size();
        }
        const FormRules& form = m_procedure.vecForm[nForm];
        std::set<long> setChecked;
        for (const CheckRule& rule : form.vecCheck)
            for (const long lColumn : rule.setReported)
                if (lColumn >= form.FirstFreeColumn())
                    setChecked.insert(lColumn);
        EXPECT_EQ(setSpoiled, setChecked) << "form " << nForm + 1;
    }
    RecordProperty("spoiled_cells", static_cast<int>(nSpoiled));
}

INSTANTIATE_TEST_SUITE_P(Procedures,
                         GeneratedRecordsTest,
                         testing::ValuesIn(ProcedureNames()),
                         [](const auto& testCase) { return "Form" + testCase.param.strTypeId; });

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
    folder.Write("KZEkaDefine.xml", HOPELESS_DEFINITION);
    const Definitions definitions(folder.Path());
    const ProcedureRules procedure = MakeProcedureRules(*definitions.Find("003"));
    RecordTable table;
    RecordGenerator generator(procedure.vecForm.at(0), table, {}, folder.Path(), SEED);
    const CheckPhase phase;

    std::string strTold;
    try {
        generator.Make(0, 0);
    } catch (const std::runtime_error& error) {
        strTold = error.what();
    }

    EXPECT_TRUE(strTold.starts_with("no passing senior record found for type id 003:")) << strTold;
    EXPECT_NE(strTold.find(R"(column 2, length(value="3" min="" max="") of item GEZ03010)"),
              std::string::npos)
        << strTold;
}

}  // namespace
