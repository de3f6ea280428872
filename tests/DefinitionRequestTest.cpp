// What the way in which a definition is written does to a whole request.
#include <gmock/gmock.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "support/FamilyHost.h"
#include "support/FamilyManager.h"
#include "support/LogEntries.h"

namespace {

using testing::HasSubstr;

// ---- a last record that writes nothing ---------------------------------------------------------

class BlankRecordTest : public FamilyHost
{
protected:
    Answer Document(const std::string& strCsv, const char* szProcedure)
    {
        Filer filer;
        filer.szTetsuzuki = szProcedure;
        return Convert(Family::Finance, strCsv, filer);
    }
    std::string Mok() const { return m_folder.Read("out.mok"); }
};

TEST_F(BlankRecordTest, PageOfReportsInTurnStaysOpenAndTheDocumentFails)
{
    const std::string strRecords = "103,1,a\nx,2,b\nx,3,c\nx,4,d\nx,5,e\n";
    EXPECT_EQ(Document(Csv(strRecords + "x,6,f\n"), "PGE2030").strResult, "S_OK");
    EXPECT_THAT(Mok(), HasSubstr("<GEZ05110>6</GEZ05110>"));
    const DebugLog log;
    EXPECT_EQ(Document(Csv(strRecords + "x,,\n"), "PGE2030"), Refused("0000-00000-HE70016E"));
    const std::vector<LogEntry> vecEntry = LogEntries(log);
    EXPECT_THAT(vecEntry, testing::Contains(LogEntry{"KZCEkaMOKManagerFinance::MakeMok",
                                                     "MOKファイルの読み込みに失敗。"}));
}

TEST_F(BlankRecordTest, PageOfOneReportOverAllRecordsIsClosed)
{
    EXPECT_EQ(Document(Csv("202,1,a\n,2,b\n,3,c\n,,\n"), "PGE1640").strResult, "S_OK");
    EXPECT_THAT(Mok(),
                HasSubstr("<GEZ75010>3</GEZ75010><GEZ75020>c</GEZ75020></GEZ75000></GEZ750>"));
}

// ---- one report over all records ---------------------------------------------------------------

/// A template of procedure PGE1640 whose pages repeat the first record, and leave a group open that
/// the second record begins: only the writer of one report over all records does either.
std::string SpreadTemplate(const std::string& strReportId)
{
    return DefinitionFile(R"(<report procId="PGE1640" procVR="231.0" reportId=")" + strReportId +
                          R"(" reportVR="1.0" startRow="2" endRow="-1" stepRow="2">)"
                          R"(<item type="TAG" id="HEAD" parent=")" +
                          strReportId +
                          R"(" startRow="1" endRow="1" repeatTopTag="1"/>)"
                          R"(<item type="Normal" id="NAME" parent="HEAD" column="2"/>)"
                          R"(<item type="TAG" id="LINE" parent="HEAD" startRow="2" endRow="-1"/>)"
                          R"(<item type="Normal" id="SUM" parent="LINE" column="2"/></report>)");
}

template <class Side>
class SpreadTest : public FamilyManager<Side>
{
};

struct SideName
{
    template <class Side>
    static std::string GetName(int /*nSide*/)
    {
        return std::is_same_v<Side, FinanceSide> ? "Finance" : "CrossBorder";
    }
};

using Sides = testing::Types<FinanceSide, CrossBorderSide>;
TYPED_TEST_SUITE(SpreadTest, Sides, SideName);

TYPED_TEST(SpreadTest, TemplateOfTheProcedureThatSpreadsIsWrittenByTheWriterOfManyRecords)
{
    FilingHead head = TypeParam::Head();
    this->m_bundle.Write(TypeParam::FOLDER + std::string("_tpl.xml"),
                         SpreadTemplate(TypeParam::REPORT));
    std::string strCsv;
    for (const char* szName : {"a", "b", "c", "d"})
        strCsv += this->Record(szName + std::string(",x"));
    this->Prepare(strCsv, head);
    head.strProcId = "PGE1640";
    head.strProcVR = "231.0";
    // The host names the template's procedure, which the CrossBorder family's own list lacks.
    auto& it = dynamic_cast<KZCEkaITDataFinance&>(*TypeParam::Store().GetITData(1));
    it.KZCEkaITDataFinance::Initialize(true);
    using enum KZCEkaITDataFinance_t;
    for (const auto& [eId, strValue] :
         {std::pair(IT_NOZEISHA_NM, head.strName), std::pair(IT_PROCEDURE_CD, head.strProcId),
          std::pair(IT_SOFT_NAME, head.strSoftware)})
        EXPECT_EQ(it.KZCEkaITDataFinance::SetITDataFinance(eId, strValue.c_str()), STATUS_OK);
    EXPECT_EQ(this->Make(), PASSES);
    const auto page = [&](int nPage, const std::string& strLines) {
        return FilingReport(head, TypeParam::REPORT, "1.0", nPage, nPage,
                            "<HEAD><NAME>a</NAME>" + strLines + "</HEAD>");
    };
    EXPECT_EQ(this->Mok(),
              FilingDocument(head, this->Item(1) + this->Item(2), ShortItSection(head),
                             page(1, "<LINE><SUM>b</SUM></LINE><LINE><SUM>c</SUM></LINE>") +
                                 page(2, "<LINE><SUM>d</SUM></LINE>")));
}

TYPED_TEST(SpreadTest, SameTemplateOfAnotherProcedureIsWrittenInTurnAndFails)
{
    std::string strTemplate = SpreadTemplate(TypeParam::REPORT);
    const std::string strProcId = TypeParam::Head().strProcId;
    strTemplate.replace(strTemplate.find("PGE1640"), strProcId.size(), strProcId);
    this->m_bundle.Write(TypeParam::FOLDER + std::string("_tpl.xml"), strTemplate);
    this->Prepare(this->Record("a,x") + this->Record("b,x"));
    EXPECT_EQ(this->Make(), "refuses 0000-00000-HE70016E");
}

}  // namespace
