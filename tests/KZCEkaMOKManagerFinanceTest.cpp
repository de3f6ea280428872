// What the Finance manager does in its own way; its steps are tested with the family managers'.
#include "KZCEkaMOKManagerFinance.h"

#include <gtest/gtest.h>

#include <string>

#include "KZCConvertInfoCrossBorder.h"
#include "support/FamilyManager.h"
#include "support/RefusingStore.h"

namespace {

using enum KZCEkaITDataFinance_t;

class MokManagerFinanceTest : public FamilyManager<FinanceSide>
{
protected:
    /// Makes the document of a file of another procedure of the family.
    void MakeDocument(const std::string& strBytes, const FilingHead& head)
    {
        Prepare(strBytes, head);
        EXPECT_EQ(Make(), PASSES);
    }
};

// ---- a refused file ----------------------------------------------------------------------------

TEST_F(MokManagerFinanceTest, FileThatItsReaderRefusesGetsMessageNineteenBehindTheReason)
{
    EXPECT_EQ(Load("999,1,a\n"), "refuses 0000-00001-HE70021E,0000-00000-HE70019E");
    EXPECT_EQ(Load("101,1,a\n102,2,b\n"), "refuses 0000-00001-HE70021E,0000-00000-HE70019E");
}

TEST_F(MokManagerFinanceTest, RefusedFileOfAConversionGetsMessageNineteenToo)
{
    EXPECT_EQ(InitMok(Write("999,1,a\n"), m_folder.Path("out.mok")), PASSES);
    EXPECT_EQ(LoadForConversion(true), "refuses 0000-00001-HE70021E,0000-00000-HE70019E");
}

TEST_F(MokManagerFinanceTest, MessageNineteenIsAddedToWhatIsThereAndTheReadersCodeReturnedAsItIs)
{
    EXPECT_EQ(InitCheck(Write("x").c_str()), PASSES);
    RefusingStore::Install(-7);
    KZCValidResult::instance()->SetResult(HE70024E, 0, 0, SINGLE_COLUMN);
    EXPECT_EQ(LoadForCheck(), "gives -7 0000-00000-HE70024E,0000-00000-HE70019E");
}

TEST_F(MokManagerFinanceTest, ValidationFileWithoutAReportIsOneErrorAndMessageNineteen)
{
    m_bundle.Write("Finance/PGE2015_vld.xml", DefinitionFile(""));
    EXPECT_EQ(Load("101,1,a\n"), "refuses 0000-00001-HE70021E,0000-00000-HE70019E");
}

TEST_F(MokManagerFinanceTest, ProcedureOfTheOtherFamilyIsNotKnown)
{
    EXPECT_EQ(Load("301,1,a\n"), "refuses 0000-00001-HE70021E,0000-00000-HE70019E");
}

TEST_F(MokManagerFinanceTest, SecondRecordOfAProcedureOfOneIsRefusedWithoutMessageNineteen)
{
    EXPECT_EQ(Load("108,1,a\n"), PASSES);
    EXPECT_EQ(Load("108,1,a\n108,2,b\n"), "refuses 0000-00000-HE70029E");
}

TEST_F(MokManagerFinanceTest, TwoFormsWithOneRecordAreRefusedAtTheSecondRecord)
{
    EXPECT_EQ(Load("103,1,a\n"), "refuses 0002-00000-HE70033E");
}

TEST_F(MokManagerFinanceTest, QuotesHaveNoMeaning)
{
    EXPECT_EQ(Load("101,1,\"a,b\"\n"), "refuses 0000-00000-HE70019E");
}

// ---- reports and catalogue ---------------------------------------------------------------------

TEST_F(MokManagerFinanceTest, TwoFormsNumberTheirReportsAndPagesEachForItself)
{
    const FilingHead head = {.strProcId = "PGE2030", .strProcVR = "231.0"};
    MakeDocument("103,1,a\n,2,b\n,3,c\n,4,d\n,5,e\n", head);
    // The records behind the first have an empty first column, so that they don't count.
    EXPECT_EQ(Mok(), FilingDocument(
                         head, CatalogueItem("GEZ050-1"), ShortItSection(head),
                         FilingReport(head, "GEZ050", "5.0", 1, 1, SmallBody("GEZ050", "1", "a"))));
    MakeDocument("103,1,a\nx,2,b\nx,3,c\nx,4,d\nx,5,e\n", head);
    EXPECT_EQ(
        Mok(),
        FilingDocument(
            head, CatalogueItem("GEZ050-1") + CatalogueItem("GEZ050-2") + CatalogueItem("GEZ051-1"),
            ShortItSection(head),
            FilingReport(head, "GEZ050", "5.0", 1, 1,
                         SmallBody("GEZ050", "1", "a") + SmallBody("GEZ050", "2", "b")) +
                FilingReport(head, "GEZ050", "5.0", 2, 2,
                             SmallBody("GEZ050", "3", "c") + SmallBody("GEZ050", "4", "d")) +
                FilingReport(head, "GEZ051", "5.0", 1, 1, SmallBody("GEZ051", "5", "e"))));
}

TEST_F(MokManagerFinanceTest, ManyRecordsOfOneReportGiveFewerCatalogueItemsThanRecords)
{
    const FilingHead head = {.strProcId = "PGE1640", .strProcVR = "231.0"};
    MakeDocument("202,1,a\n,2,b\n,3,c\n", head);
    EXPECT_EQ(Mok(),
              FilingDocument(
                  head, CatalogueItem("GEZ750-1") + CatalogueItem("GEZ750-2"), ShortItSection(head),
                  FilingReport(head, "GEZ750", "1.0", 1, 1,
                               SmallBody("GEZ750", "1", "a") + SmallBody("GEZ750", "2", "b")) +
                      FilingReport(head, "GEZ750", "1.0", 2, 2, SmallBody("GEZ750", "3", "c"))));
}

TEST_F(MokManagerFinanceTest, RecordCountOfManyRecordsOfOneReportCountsEmptyFirstColumns)
{
    EXPECT_EQ(Load("202,1,a\n,2,b\n"), PASSES);
    EXPECT_EQ(m_manager.GetRecodeCount(), "2");
}

TEST_F(MokManagerFinanceTest, CatalogueOfNoReportsIsHeadAndTailAlone)
{
    EXPECT_EQ(KZCEkaMOKManagerFinance::createCATALOGXML({}),
              R"(<CATALOG id="CATALOG">)"
              R"(<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">)"
              R"(<rdf:description id="REPORT"><SEND_DATA/>)"
              R"(<IT_SEC><rdf:description about="#IT"/></IT_SEC><FORM_SEC><rdf:Seq>)"
              R"(</rdf:Seq></FORM_SEC><TENPU_SEC/><XBRL_SEC/><XBRL2_1_SEC/><SOFUSHO_SEC/>)"
              R"(</rdf:description></rdf:RDF></CATALOG>)");
}

TEST_F(MokManagerFinanceTest, CatalogueHasTheWholeIdsInTheirOrderUncut)
{
    const std::string strLong(200, 'G');
    EXPECT_EQ(KZCEkaMOKManagerFinance::createCATALOGXML({"B-2", strLong, "A"}),
              R"(<CATALOG id="CATALOG">)"
              R"(<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">)"
              R"(<rdf:description id="REPORT"><SEND_DATA/>)"
              R"(<IT_SEC><rdf:description about="#IT"/></IT_SEC><FORM_SEC><rdf:Seq>)"
              R"(<rdf:li><rdf:description about="#B-2"/></rdf:li>)"
              R"(<rdf:li><rdf:description about="#)" +
                  strLong +
                  R"("/></rdf:li>)"
                  R"(<rdf:li><rdf:description about="#A"/></rdf:li>)"
                  R"(</rdf:Seq></FORM_SEC><TENPU_SEC/><XBRL_SEC/><XBRL2_1_SEC/><SOFUSHO_SEC/>)"
                  R"(</rdf:description></rdf:RDF></CATALOG>)");
}

TEST_F(MokManagerFinanceTest, MakingAgainWithoutLoadingWritesTheLastFormAlone)
{
    // The walk uses up the forms: only the second is left, and its rows begin behind the first's.
    const FilingHead head = {.strProcId = "PGE2030", .strProcVR = "231.0"};
    MakeDocument("103,1,a\nx,2,b\nx,3,c\nx,4,d\nx,5,e\n", head);
    EXPECT_EQ(Make(), PASSES);
    EXPECT_NE(Mok().find(R"(<GEZ051 VR="5.0" id="GEZ051-1")"), std::string::npos);
    EXPECT_EQ(Mok().find("<GEZ050 "), std::string::npos);
}

// ---- stores ------------------------------------------------------------------------------------

TEST_F(MokManagerFinanceTest, WithoutAStoreAFinanceStoreIsMadeAndTheErrorsStay)
{
    KZCValidResult::instance()->SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
    m_manager.TerminateDifferentData();
    EXPECT_EQ(StorePeek::Kind(), StoreKind::Finance);
    EXPECT_EQ(KZCValidResult::instance()->MakeResult(), "0001-00002-HE70001E");
}

TEST_F(MokManagerFinanceTest, CrossBorderStoreCountsAsAnotherFamilys)
{
    static_cast<void>(KZCConvertInfoCrossBorder::instance_crossborder());
    KZCValidResult::instance()->SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
    m_manager.TerminateDifferentData();
    EXPECT_EQ(StorePeek::Kind(), StoreKind::None);
    EXPECT_EQ(KZCValidResult::instance()->MakeResult(), "0000-00000-HE70017E");
}

}  // namespace
