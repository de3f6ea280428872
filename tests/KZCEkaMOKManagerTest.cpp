#include "KZCEkaMOKManager.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "KZCConvertInfo.h"
#include "calendar/Clock.h"
#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/LogEntries.h"
#include "support/LogMessages.h"
#include "support/Raised.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"
#include "support/StorePeek.h"
#include "support/TempFolder.h"

namespace {

/// The detail table of a store without errors.
constexpr const char* NO_ERROR = "0000-00000-HE70017E";
constexpr const char* FATAL_ERROR = "0000-00000-HE70018E";
constexpr const char* MAKE_ERROR = "0000-00000-HE70016E";
constexpr const char* ONE_RECORD = "003,12,ab\r\n";
/// Bytes that a document may have.
constexpr std::size_t DOCUMENT_LIMIT = 10485760;

std::string Detail()
{
    return KZCValidResult::instance()->MakeResult();
}

std::string Repeat(const char* szText, int nTimes)
{
    std::string strAll;
    for (int n = 0; n < nTimes; ++n)
        strAll += szText;
    return strAll;
}

/// A store of another family.
class ForeignStore final : public KZCConvertInfo
{
public:
    static void Install() { m_pInstance = std::make_unique<ForeignStore>(); }
};

bool HasForeignStore()
{
    return dynamic_cast<ForeignStore*>(KZCConvertInfo::instance()) != nullptr;
}

// ---- the pieces of a document, as the XML library writes them ----------------------------------

std::string CatalogItem(const std::string& strId)
{
    return R"(<rdf:li><rdf:description about="#)" + strId + R"("/></rdf:li>)";
}

/// A whole document. \param strItems  Of the catalogue; \param strReports  Behind the IT section.
std::string Document(const std::string& strItems,
                     const std::string& strIt,
                     const std::string& strReports)
{
    return R"(<?xml version="1.0" encoding="UTF-8" standalone="no" ?>)"
           R"(<DATA xmlns="http://xml.luvia.example/XSD/gensen" id="DATA")"
           R"( xmlns:gen="http://xml.luvia.example/XSD/general")"
           R"( xmlns:kyo="http://xml.luvia.example/XSD/kyotsu")"
           R"( xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">)"
           R"(<PGE5030 VR="1.0" id="PGE5030"><CATALOG id="CATALOG">)"
           R"(<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">)"
           R"(<rdf:description id="REPORT"><SEND_DATA/>)"
           R"(<IT_SEC><rdf:description about="#IT"/></IT_SEC><FORM_SEC>)" +
           (strItems.empty() ? "<rdf:Seq/>" : "<rdf:Seq>" + strItems + "</rdf:Seq>") +
           R"(</FORM_SEC><TENPU_SEC/><XBRL_SEC/><XBRL2_1_SEC/><SOFUSHO_SEC/>)"
           R"(</rdf:description></rdf:RDF></CATALOG><CONTENTS id="CONTENTS">)" +
           strIt + strReports + "</CONTENTS></PGE5030></DATA>";
}

/// The IT section of a filer who gave the procedure and a name.
std::string ShortIt(const std::string& strName = "青葉商会")
{
    return R"(<IT VR="1.3" id="IT"><NOZEISHA_NM ID="NOZEISHA_NM">)" + strName +
           R"(</NOZEISHA_NM><TETSUZUKI ID="TETSUZUKI"><procedure_CD>PGE5030</procedure_CD></TETSUZUKI></IT>)";
}

std::string Report(int nNumber,
                   const std::string& strBody,
                   const std::string& strName = "青葉商会",
                   const std::string& strSoftware = "Soft")
{
    const std::string strNumber = std::to_string(nNumber);
    return R"(<GEZ030 VR="2.0" id="GEZ030-)" + strNumber + R"(" page=")" + strNumber +
           R"(" sakuseiDay="2024-03-04" sakuseiNM=")" + strName + R"(" softNM=")" + strSoftware +
           R"("><GEZ03000>)" + strBody + "</GEZ03000></GEZ030>";
}

std::string Cells(const std::string& strFirst, const std::string& strSecond)
{
    return "<GEZ03010>" + strFirst + "</GEZ03010><GEZ03020>" + strSecond + "</GEZ03020>";
}

class MokManagerTest : public ResetState
{
protected:
    MokManagerTest()
    {
        Clock::Set(1709553600);  // 4 March 2024, noon in Greenwich
    }

    std::string Write(std::string_view strBytes, const std::string& strName = "in.csv")
    {
        return m_folder.Write(strName, strBytes);
    }

    /// The step InitForCheck of the plain path and what it left in the result store.
    std::string InitCheck(const char* szPath)
    {
        return Told([&] { return m_manager.InitForCheck(true, szPath, 1); });
    }

    /// The step InitForMok of the plain path and what it left in the result store.
    std::string InitMok(const std::string& strCsv, const std::string& strMok)
    {
        return Told([&] { return m_manager.InitForMok(true, strCsv.c_str(), strMok.c_str(), 1); });
    }

    /// Checks a file on the plain path, all steps.
    std::string Check(std::string_view strBytes)
    {
        const std::string strPath = Write(strBytes);
        KZCEkaCommon::SetCsvCheckFlag(false);
        EXPECT_EQ(InitCheck(strPath.c_str()), PASSES);
        KZCEkaCommon::SetCsvCheckFlag(true);
        const std::string strLoaded = Told([&] { return m_manager.LoadCsvWithDefinition(true); });
        return strLoaded != PASSES ? strLoaded : Told([&] { return m_manager.ValidateCsv(); });
    }

    void SetIt(KZCEkaITData_t eId, const std::string& strValue)
    {
        EXPECT_EQ(m_manager.SetITData(eId, strValue.c_str()), STATUS_OK);
    }

    /// Everything up to the making of the document, on the plain path, with a short IT section.
    void Prepare(std::string_view strBytes)
    {
        const std::string strCsv = Write(strBytes);
        ASSERT_EQ(InitMok(strCsv, m_folder.Path("out.mok")), PASSES);
        SetIt(IT_NOZEISHA_NM, "青葉商会");
        SetIt(IT_PROCEDURE_CD, "PGE5030");
        SetIt(IT_SOFT_NAME, "Soft");
        ASSERT_EQ(Told([&] { return m_manager.LoadCsvWithDefinition(false); }), PASSES);
    }

    std::string Make()
    {
        return Told([&] { return m_manager.MakeMok(); });
    }

    std::string Mok()
    {
        std::string strMok = "untouched";
        EXPECT_EQ(m_manager.GetMok(strMok), STATUS_OK);
        return strMok;
    }

    TempFolder m_folder;
    Bundle m_bundle;
    KZCEkaMOKManager m_manager;
};

// ---- InitForCheck ------------------------------------------------------------------------------

TEST_F(MokManagerTest, CheckBeginsWithAGoodPath)
{
    EXPECT_EQ(InitCheck(Write(ONE_RECORD).c_str()), PASSES);
}

TEST_F(MokManagerTest, CheckBeginsWithATrimmedPath)
{
    EXPECT_EQ(InitCheck(("  " + Write(ONE_RECORD) + "　\n").c_str()), PASSES);
    EXPECT_EQ(m_manager.LoadCsvWithDefinition(true), STATUS_OK);
}

TEST_F(MokManagerTest, CheckWithoutAPathIsRefused)
{
    EXPECT_EQ(InitCheck(nullptr), "refuses 9999-00001-HE70001E");
    EXPECT_EQ(InitCheck(""), "refuses 9999-00001-HE70001E");
    EXPECT_EQ(InitCheck("  "), "refuses 9999-00001-HE70001E");
}

TEST_F(MokManagerTest, CheckOfAnotherExtensionIsRefused)
{
    EXPECT_EQ(InitCheck(Write(ONE_RECORD, "in.xml").c_str()), "refuses 9999-00001-HE70015E");
}

TEST_F(MokManagerTest, CheckOfAMissingFileIsRefused)
{
    EXPECT_EQ(InitCheck(m_folder.Path("missing.csv").c_str()), "refuses 9999-00001-HE70013E");
}

TEST_F(MokManagerTest, CheckOfAnEmptyFileIsRefused)
{
    EXPECT_EQ(InitCheck(Write("").c_str()), "refuses 9999-00001-HE70024E");
}

TEST_F(MokManagerTest, CheckEmptiesTheResultStoreFirst)
{
    KZCValidResult::instance()->SetResult(HE70001E, 7, 7, SINGLE_COLUMN);
    EXPECT_EQ(InitCheck(Write(ONE_RECORD).c_str()), PASSES);
}

TEST_F(MokManagerTest, KeyOfAPlainCheckIsNotLookedAt)
{
    const std::string strPath = Write(ONE_RECORD);
    EXPECT_EQ(Told([&] { return m_manager.InitForCheck(true, strPath.c_str(), 99); }), PASSES);
}

TEST_F(MokManagerTest, KeyOfAnElCheckIsArgumentTwo)
{
    const std::string strPath = Write(ONE_RECORD);
    EXPECT_EQ(Told([&] { return m_manager.InitForCheck(false, strPath.c_str(), 5); }), PASSES);
    EXPECT_EQ(Told([&] { return m_manager.InitForCheck(false, strPath.c_str(), 6); }),
              "refuses 9999-00002-HE70009E");
    EXPECT_EQ(Told([&] { return m_manager.InitForCheck(false, strPath.c_str(), 0); }),
              "refuses 9999-00002-HE70009E");
}

TEST_F(MokManagerTest, BadPathAndBadKeyAreBothRecorded)
{
    EXPECT_EQ(Told([&] { return m_manager.InitForCheck(false, nullptr, -1); }),
              "refuses 9999-00001-HE70001E,9999-00002-HE70009E");
}

TEST_F(MokManagerTest, CheckWithoutTaxOfficesIsAFatalError)
{
    const Bundle bundle(SMALL_DEFINITION, std::nullopt);
    const DebugLog log;
    EXPECT_EQ(InitCheck(Write(ONE_RECORD).c_str()), std::string("refuses ") + FATAL_ERROR);
    EXPECT_THAT(LastLogMessages(log, 1), testing::ElementsAre(UNEXPECTED_ERROR));
    EXPECT_THAT(log.Text(), testing::HasSubstr(" KZCEkaMOKManager::InitForCheck--\n"));
}

TEST_F(MokManagerTest, FailedInitForCheckLeavesTheKeyAtZero)
{
    const auto Mark = [](long lKey) {
        KZCConvertInfo::instance()->GetITData(lKey)->Initialize(true);
        EXPECT_EQ(KZCConvertInfo::instance()->GetITData(lKey)->SetITData(IT_ZEIMUSHO, "x"),
                  STATUS_OK);
    };
    Mark(0);
    Mark(5);
    EXPECT_EQ(m_manager.InitForCheck(false, nullptr, 5), STATUS_NG);
    m_manager.Terminate(false, false, true);
    EXPECT_STREQ(KZCConvertInfo::instance()->GetITData(0)->GetITData(IT_ZEIMUSHO), "");
    EXPECT_STREQ(KZCConvertInfo::instance()->GetITData(5)->GetITData(IT_ZEIMUSHO), "x");
}

// ---- InitForMok --------------------------------------------------------------------------------

TEST_F(MokManagerTest, ConversionBeginsWithGoodPaths)
{
    EXPECT_EQ(InitMok(Write(ONE_RECORD), m_folder.Path("out.mok")), PASSES);
}

TEST_F(MokManagerTest, BadPathsOfAConversionAreRecordedAndTheVerdictIsLeftToTheCaller)
{
    EXPECT_EQ(InitMok("", ""), "passes 9999-00001-HE70001E,9999-00002-HE70001E");
}

TEST_F(MokManagerTest, NullPathsOfAConversionCountAsEmpty)
{
    EXPECT_EQ(Told([&] { return m_manager.InitForMok(true, nullptr, nullptr, 1); }),
              "passes 9999-00001-HE70001E,9999-00002-HE70001E");
}

TEST_F(MokManagerTest, OutputWithoutSuffixIsRefusedBeforeItsFolderIsLookedAt)
{
    EXPECT_EQ(InitMok(Write(ONE_RECORD), m_folder.Path("none/out")), "passes 9999-00002-HE70015E");
}

TEST_F(MokManagerTest, OutputIntoAMissingFolderIsRefused)
{
    EXPECT_EQ(InitMok(Write(ONE_RECORD), m_folder.Path("none/out.mok")),
              "passes 9999-00002-HE70010E");
}

TEST_F(MokManagerTest, ConversionOfAMissingFileIsRefused)
{
    EXPECT_EQ(InitMok(m_folder.Path("missing.csv"), m_folder.Path("out.mok")),
              "passes 9999-00001-HE70013E");
}

TEST_F(MokManagerTest, ConversionEmptiesTheResultStoreFirst)
{
    KZCValidResult::instance()->SetResult(HE70001E, 7, 7, SINGLE_COLUMN);
    EXPECT_EQ(InitMok(Write(ONE_RECORD), m_folder.Path("out.mok")), PASSES);
}

TEST_F(MokManagerTest, ConversionStartsTheItSectionAfresh)
{
    Prepare(ONE_RECORD);
    EXPECT_EQ(InitMok(Write(ONE_RECORD), m_folder.Path("out.mok")), PASSES);
    const KZCEkaITData& it = *KZCConvertInfo::instance()->GetITData(1);
    EXPECT_STREQ(it.GetITData(IT_NOZEISHA_NM), "");
    EXPECT_TRUE(it.IsPublic());
}

TEST_F(MokManagerTest, ElConversionOfAKeyOutOfRangeIsArgumentOne)
{
    EXPECT_EQ(Told([&] { return m_manager.InitForMok(false, nullptr, nullptr, 6); }),
              "passes 9999-00001-HE70009E");
}

TEST_F(MokManagerTest, ElConversionOfAKeyWithoutRecordsIsRefused)
{
    const DebugLog log;
    EXPECT_EQ(Told([&] { return m_manager.InitForMok(false, nullptr, nullptr, 3); }),
              "passes 9999-00001-HE70013E");
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("指定された識別キーのCSVデータが存在しません。（HE70013E）",
                                     "Valid Message[HE70013E]  ファイルが存在しません。",
                                     "record=9999 column=00001 value="));
}

TEST_F(MokManagerTest, ElConversionOfAKeyWithRecordsLooksAtNoPath)
{
    EXPECT_EQ(KZCConvertInfo::instance()->GetCsvFile(3)->ReadFile(Write(ONE_RECORD)), STATUS_OK);
    EXPECT_EQ(Told([&] { return m_manager.InitForMok(false, nullptr, nullptr, 3); }), PASSES);
    EXPECT_FALSE(KZCConvertInfo::instance()->GetITData(3)->IsPublic());
}

TEST_F(MokManagerTest, ConversionWithoutTaxOfficesIsAFatalError)
{
    const Bundle bundle(SMALL_DEFINITION, "broken");
    const DebugLog log;
    EXPECT_EQ(InitMok("", ""), std::string("refuses ") + FATAL_ERROR);
    EXPECT_THAT(LastLogMessages(log, 1), testing::ElementsAre(UNEXPECTED_ERROR));
}

// ---- SetITData ---------------------------------------------------------------------------------

TEST_F(MokManagerTest, ItValueIsTrimmed)
{
    Prepare(ONE_RECORD);
    SetIt(IT_NOZEISHA_NM, "　青葉 \t");
    EXPECT_STREQ(KZCConvertInfo::instance()->GetITData(1)->GetITData(IT_NOZEISHA_NM), "青葉");
}

TEST_F(MokManagerTest, NullItValueIsTheEmptyText)
{
    Prepare(ONE_RECORD);
    EXPECT_EQ(m_manager.SetITData(IT_DAIRI_NM, nullptr), STATUS_OK);
    EXPECT_EQ(Told([&] { return m_manager.SetITData(IT_NOZEISHA_NM, nullptr); }),
              "refuses 9999-00007-HE70001E");
}

TEST_F(MokManagerTest, RefusedItValueIsNumberedByThePath)
{
    Prepare(ONE_RECORD);
    const std::string strName = Repeat("青", 31);
    EXPECT_EQ(Told([&] { return m_manager.SetITData(IT_NOZEISHA_NM, strName.c_str()); }),
              "refuses 9999-00007-HE70007E");
    EXPECT_EQ(m_manager.InitForMok(false, nullptr, nullptr, 1), STATUS_OK);
    EXPECT_EQ(Told([&] { return m_manager.SetITData(IT_NOZEISHA_NM, strName.c_str()); }),
              "refuses 9999-00006-HE70007E");
}

TEST_F(MokManagerTest, FaultOfAnItCheckIsLoggedAndRaised)
{
    Prepare(ONE_RECORD);
    KZCEkaTaxOffices::destroy();
    const DebugLog log;
    EXPECT_EQ(Raised([&] { static_cast<void>(m_manager.SetITData(IT_ZEIMUSHO_CD, "00101")); }),
              FAULT);
    EXPECT_THAT(log.Text(), testing::HasSubstr(" KZCEkaMOKManager::SetITData--\n"));
}

// ---- LoadCsvWithDefinition ---------------------------------------------------------------------

TEST_F(MokManagerTest, MalformedCsvIsReportedByItsReader)
{
    EXPECT_EQ(Check("003,1\n"), "refuses 0000-00000-HE70019E");
    EXPECT_EQ(Check("099,1,a\n"), "refuses 0000-00001-HE70021E");
    EXPECT_EQ(Check("\n"), "refuses 0000-00000-HE70024E");
}

TEST_F(MokManagerTest, UndecodableCsvIsAFatalError)
{
    const DebugLog log;
    EXPECT_EQ(Check("003,1,\xff\n"), std::string("refuses ") + FATAL_ERROR);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("CSVファイルリードエラーが発生しました。",
                                                       UNEXPECTED_ERROR, UNEXPECTED_ERROR));
}

TEST_F(MokManagerTest, EachStepThatRaisesIsLoggedUnderItsOwnName)
{
    const std::string strCsv = Write("003,1,\xff\n");
    EXPECT_EQ(InitCheck(strCsv.c_str()), PASSES);
    const DebugLog log;
    EXPECT_EQ(m_manager.LoadCsvWithDefinition(true), STATUS_NG);
    EXPECT_EQ(LogEntries(log).back(),
              (LogEntry{"KZCEkaMOKManager::LoadCsvWithDefinition", UNEXPECTED_ERROR}));
    EXPECT_EQ(m_manager.ValidateCsv(), STATUS_NG);
    EXPECT_EQ(LogEntries(log).back(),
              (LogEntry{"KZCEkaMOKManager::ValidateCsv", UNEXPECTED_ERROR}));
    const Bundle bundle(SMALL_DEFINITION, std::nullopt);
    KZCEkaTaxOffices::destroy();
    EXPECT_EQ(m_manager.InitForMok(true, "", "", 1), STATUS_NG);
    EXPECT_EQ(LogEntries(log).back(), (LogEntry{"KZCEkaMOKManager::InitForMok", UNEXPECTED_ERROR}));
}

TEST_F(MokManagerTest, DefinitionWithAnUnknownKindIsAFatalError)
{
    m_bundle.Write("KZEkaDefine.xml",
                   R"(<define><report id="003" columnNum="3" procId="P" reportId="R">)"
                   R"(<item type="none" id="A" parent="R"/></report></define>)");
    const DebugLog log;
    EXPECT_EQ(Check(ONE_RECORD), std::string("refuses ") + FATAL_ERROR);
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("EKA定義ファイルエラー",
                                     "定義体の帳票タグ階層定義が不正です。", UNEXPECTED_ERROR));
}

TEST_F(MokManagerTest, UnknownCheckKeywordFailsACheckButNoConversion)
{
    m_bundle.Write(
        "KZEkaDefine.xml",
        R"(<define><report id="003" columnNum="3" procId="PGE5030" reportId="R">)"
        R"(<item type="Normal" id="A" parent="R"><valid id="none"/></item></report></define>)");
    EXPECT_EQ(Check(ONE_RECORD), std::string("refuses ") + FATAL_ERROR);
    KZCEkaCommon::SetCsvCheckFlag(false);
    Prepare(ONE_RECORD);
}

// ---- ValidateCsv -------------------------------------------------------------------------------

TEST_F(MokManagerTest, CleanFilePasses)
{
    EXPECT_EQ(Check(ONE_RECORD), PASSES);
    EXPECT_EQ(m_manager.GetProcID(), "PGE5030");
}

TEST_F(MokManagerTest, ErrorsOfAllRecordsAreReportedInOrder)
{
    EXPECT_EQ(Check("003,,12345678901\n\n003,x,\n003,1,a\n"),
              "refuses 0001-00002-HE70001E,0001-00003-HE70008E,0003-00002-HE70004E");
}

TEST_F(MokManagerTest, CellsAreMeasuredInShiftJisDuringACheck)
{
    EXPECT_EQ(Check(ToShiftJis("003,1,青葉青葉青\n")), PASSES);
    EXPECT_EQ(Check(ToShiftJis("003,1,青葉青葉青葉\n")), "refuses 0001-00003-HE70008E");
}

TEST_F(MokManagerTest, CheckWithoutADefinitionIsAFatalError)
{
    const DebugLog log;
    EXPECT_EQ(Told([&] { return m_manager.ValidateCsv(); }), std::string("refuses ") + FATAL_ERROR);
    EXPECT_THAT(LastLogMessages(log, 1), testing::ElementsAre(UNEXPECTED_ERROR));
}

TEST_F(MokManagerTest, FaultOfACheckDropsTheErrorsFoundBefore)
{
    m_bundle.Write(
        "KZEkaDefine.xml",
        R"(<define><report id="003" columnNum="3" procId="P" reportId="R">)"
        R"(<item type="Normal" id="A" parent="R" column="2"><valid id="number"/></item>)"
        R"(<item type="Normal" id="B" parent="R" column="3"><valid id="contain"/></item>)"
        R"(</report></define>)");
    EXPECT_EQ(Check("003,x,a\n"), std::string("refuses ") + FATAL_ERROR);
}

// ---- MakeMok -----------------------------------------------------------------------------------

TEST_F(MokManagerTest, DocumentOfOneRecord)
{
    Prepare(ONE_RECORD);
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Mok(), Document(CatalogItem("GEZ030-1"), ShortIt(), Report(1, Cells("12", "ab"))));
}

TEST_F(MokManagerTest, DocumentOfAFullItSection)
{
    Prepare(ONE_RECORD);
    SetIt(IT_ZEIMUSHO_CD, "00103");
    SetIt(IT_NOZEISHA_ID, "1234567890123456");
    SetIt(IT_HOJINBANGO, "1234567890123");
    SetIt(IT_NOZEISHA_ADR, "青葉市1-2-3");
    SetIt(IT_DAIHYO_NM, "青葉太郎");
    SetIt(IT_DAIRI_ID, "6543210987654321");
    SetIt(IT_DAIRI_NM, "白樺\"税務\"事務所");
    SetIt(IT_DAIRI_ADR, "紅葉市4-5");
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(
        Mok(),
        Document(
            CatalogItem("GEZ030-1"),
            R"(<IT VR="1.3" id="IT">)"
            R"(<ZEIMUSHO ID="ZEIMUSHO"><gen:zeimusho_CD>00103</gen:zeimusho_CD></ZEIMUSHO>)"
            R"(<NOZEISHA_ID ID="NOZEISHA_ID">1234567890123456</NOZEISHA_ID>)"
            R"(<NOZEISHA_BANGO ID="NOZEISHA_BANGO"><gen:hojinbango>1234567890123</gen:hojinbango></NOZEISHA_BANGO>)"
            R"(<NOZEISHA_NM ID="NOZEISHA_NM">青葉商会</NOZEISHA_NM>)"
            R"(<NOZEISHA_ADR ID="NOZEISHA_ADR">青葉市1-2-3</NOZEISHA_ADR>)"
            R"(<DAIHYO_NM ID="DAIHYO_NM">青葉太郎</DAIHYO_NM>)"
            R"(<DAIRI_ID ID="DAIRI_ID">6543210987654321</DAIRI_ID>)"
            R"(<DAIRI_NM ID="DAIRI_NM">白樺"税務"事務所</DAIRI_NM>)"
            R"(<DAIRI_ADR ID="DAIRI_ADR">紅葉市4-5</DAIRI_ADR>)"
            R"(<TETSUZUKI ID="TETSUZUKI"><procedure_CD>PGE5030</procedure_CD></TETSUZUKI>)"
            R"(</IT>)",
            Report(1, Cells("12", "ab"))));
}

TEST_F(MokManagerTest, DocumentNumbersItsRecordsWithoutTheBlankOnes)
{
    Prepare(ToShiftJis("\n003,1,青\n  \n003,2,葉\n"));
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Mok(), Document(CatalogItem("GEZ030-1") + CatalogItem("GEZ030-2"), ShortIt(),
                              Report(1, Cells("1", "青")) + Report(2, Cells("2", "葉"))));
}

TEST_F(MokManagerTest, CatalogueKeepsTheReportThatIsLeftOut)
{
    Prepare("003,1,a\n003,,\n003,3,c\n");
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Mok(),
              Document(CatalogItem("GEZ030-1") + CatalogItem("GEZ030-2") + CatalogItem("GEZ030-3"),
                       ShortIt(), Report(1, Cells("1", "a")) + Report(3, Cells("3", "c"))));
}

TEST_F(MokManagerTest, DocumentWithoutRecordsHasAnEmptyCatalogueAndNoReports)
{
    Prepare(ONE_RECORD);
    KZCConvertInfo::instance()->GetCsvFile(1)->Clear();
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Mok(), Document("", ShortIt(), ""));
}

TEST_F(MokManagerTest, NamesAndCellsAreEscaped)
{
    Prepare("003,<&>,\"'\n");
    SetIt(IT_NOZEISHA_NM, "A&B<");
    SetIt(IT_SOFT_NAME, "\"S\"");
    EXPECT_EQ(Make(), PASSES);
    // Quotes are escaped by the serialiser in attributes alone.
    EXPECT_EQ(Mok(),
              Document(CatalogItem("GEZ030-1"), ShortIt("A&amp;B&lt;"),
                       Report(1, Cells("&lt;&amp;&gt;", "\"'"), "A&amp;B&lt;", "&quot;S&quot;")));
}

TEST_F(MokManagerTest, MarkupBlocksInCellsReachTheDocument)
{
    Prepare("003,<![CDATA[a<b]]>&,<!-- a&b --><?pi a&b?>\n");
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Mok(), Document(CatalogItem("GEZ030-1"), ShortIt(),
                              Report(1, Cells("<![CDATA[a<b]]>&amp;", "<!-- a&b --><?pi a&b?>"))));
}

TEST_F(MokManagerTest, MakingAgainGivesTheSameDocument)
{
    Prepare("003,1,a\n\n003,2,b\n");
    EXPECT_EQ(Make(), PASSES);
    const std::string strMok = Mok();
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Mok(), strMok);
}

TEST_F(MokManagerTest, ElPathGivesTheSameDocumentUnderItsOwnKey)
{
    KZCConvertInfo& store = *KZCConvertInfo::instance();
    ASSERT_EQ(store.GetCsvFile(4)->ReadFile(Write(ONE_RECORD)), STATUS_OK);
    ASSERT_EQ(store.GetDefinition(4)->CreateDefinition("003", true), STATUS_OK);
    EXPECT_EQ(Told([&] { return m_manager.InitForMok(false, nullptr, nullptr, 4); }), PASSES);
    SetIt(IT_NOZEISHA_NM, "青葉商会");
    SetIt(IT_PROCEDURE_CD, "PGE5030");
    SetIt(IT_SOFT_NAME, "Soft");
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Mok(), Document(CatalogItem("GEZ030-1"), ShortIt(), Report(1, Cells("12", "ab"))));
}

TEST_F(MokManagerTest, GenerationOfEachRecordSelectsItsNodes)
{
    m_bundle.Write(
        "KZEkaDefine.xml",
        R"(<define><report id="002" columnNum="19" procId="PGE5030" procVR="1.0")"
        R"( reportId="GEZ030" reportVR="2.0">)"
        R"(<item type="Normal" id="GEZ03000" parent="GEZ030"/>)"
        R"(<item type="Normal" id="J" parent="GEZ03000" column="2" generation="junior"/>)"
        R"(<item type="Normal" id="S" parent="GEZ03000" column="2" generation="senior"/>)"
        R"(</report></define>)");
    const std::string strBetween(17, ',');
    Prepare("\n002,a" + strBetween + "40000000000000\n\n002,b" + strBetween + "\n");
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Mok(), Document(CatalogItem("GEZ030-1") + CatalogItem("GEZ030-2"), ShortIt(),
                              Report(1, "<J>a</J>") + Report(2, "<S>b</S>")));
}

TEST_F(MokManagerTest, AnotherProcedureIsArgumentThirteenOnThePlainPath)
{
    Prepare(ONE_RECORD);
    SetIt(IT_PROCEDURE_CD, "PGE5010");
    const DebugLog log;
    EXPECT_EQ(Make(), "refuses 9999-00013-HE70010E");
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre("引数の手続きIDが不正です。（HE70010E）",
                                     "Valid Message[HE70010E]  入力内容が正しくありません。",
                                     "record=9999 column=00013 value=PGE5010"));
}

TEST_F(MokManagerTest, AnotherProcedureIsArgumentTwelveOnTheElPath)
{
    Prepare(ONE_RECORD);
    EXPECT_EQ(m_manager.InitForMok(false, nullptr, nullptr, 1), STATUS_OK);
    SetIt(IT_PROCEDURE_CD, "PGE5010");
    EXPECT_EQ(Make(), "refuses 9999-00012-HE70010E");
}

TEST_F(MokManagerTest, NoProcedureDiffersFromAnyProcedure)
{
    EXPECT_EQ(InitMok(Write(ONE_RECORD), m_folder.Path("out.mok")), PASSES);
    EXPECT_EQ(m_manager.LoadCsvWithDefinition(false), STATUS_OK);
    EXPECT_EQ(Make(), "refuses 9999-00013-HE70010E");
}

TEST_F(MokManagerTest, RefusedProcedureLeavesTheCsvAndTheDocumentAlone)
{
    Prepare("\n003,1,a\n");
    SetIt(IT_PROCEDURE_CD, "PGE5010");
    EXPECT_EQ(Make(), "refuses 9999-00013-HE70010E");
    EXPECT_EQ(KZCConvertInfo::instance()->GetCsvFile(1)->GetRecordCount(), 3);
    EXPECT_EQ(Told([&] { return m_manager.SaveMok(); }), std::string("refuses ") + FATAL_ERROR);
}

struct TornCase
{
    const char* szName;
    std::string strRecord;
};

void PrintTo(const TornCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class MokManagerTornTest : public MokManagerTest, public testing::WithParamInterface<TornCase>
{};

TEST_P(MokManagerTornTest, DocumentThatIsNotWellFormedIsMessageSixteen)
{
    Prepare(GetParam().strRecord);
    const DebugLog log;
    EXPECT_EQ(Make(), std::string("refuses ") + MAKE_ERROR);
    EXPECT_TRUE(log.HasLine("MOKファイルの読み込みに失敗。"));
    EXPECT_THAT(
        LastLogMessages(log, 3),
        testing::ElementsAre("想定外の事象によりMOKファイルの作成に失敗しました。（HE70016E）",
                             "Valid Message[HE70016E]  mokファイルの作成に失敗しました。",
                             "record=0000 column=00000 value="));
}

const TornCase TORN_CASES[] = {
    {"ControlCharacter", "003,1,a\x01\n"},
    {"CommentWithTwoHyphens", "003,1,<!-- a -- b -->\n"},
    {"CommentOfFiveBytes", "003,1,<!-->\n"},
    {"ProcessingInstructionOfThreeBytes", "003,1,<?>\n"},
    {"XmlDeclaration", "003,1,<?xml version=\"1.0\"?>\n"},
};

INSTANTIATE_TEST_SUITE_P(Cells, MokManagerTornTest, testing::ValuesIn(TORN_CASES), CaseName());

TEST_F(MokManagerTest, HalfABlockIsEscaped)
{
    Prepare("003,<![CDATA[a,b]]>\n");
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Mok(), Document(CatalogItem("GEZ030-1"), ShortIt(),
                              Report(1, Cells("&lt;![CDATA[a", "b]]&gt;"))));
}

TEST_F(MokManagerTest, MessageSixteenIsAddedToWhatIsThere)
{
    Prepare("003,1,a\x01\n");
    KZCValidResult::instance()->SetResult(HE70001E, 2, 3, SINGLE_COLUMN);
    EXPECT_EQ(Make(), "refuses 0002-00003-HE70001E,0000-00000-HE70016E");
}

TEST_F(MokManagerTest, MakingWithoutADefinitionIsMessageSixteen)
{
    EXPECT_EQ(InitMok(Write(ONE_RECORD), m_folder.Path("out.mok")), PASSES);
    EXPECT_EQ(Make(), std::string("refuses ") + MAKE_ERROR);
}

// ---- tags cut by their buffers -----------------------------------------------------------------

/// The small definition with another value of one of its attributes.
std::string DefinitionWith(const std::string& strFrom, const std::string& strTo)
{
    std::string strDefinition = SMALL_DEFINITION;
    for (std::size_t nAt = strDefinition.find(strFrom); nAt != std::string::npos;
         nAt = strDefinition.find(strFrom, nAt + strTo.size()))
        strDefinition.replace(nAt, strFrom.size(), strTo);
    return strDefinition;
}

struct CutCase
{
    const char* szName;
    const char* szFrom;
    std::string strTo;
    int nQuotes;  ///< in each of the two names
    bool bFits;
};

void PrintTo(const CutCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class MokManagerCutTest : public MokManagerTest, public testing::WithParamInterface<CutCase>
{};

TEST_P(MokManagerCutTest, CutTagIsMessageSixteen)
{
    m_bundle.Write("KZEkaDefine.xml", DefinitionWith(GetParam().szFrom, GetParam().strTo));
    Prepare(ONE_RECORD);
    SetIt(IT_NOZEISHA_NM, Repeat("\"", GetParam().nQuotes));
    SetIt(IT_SOFT_NAME, Repeat("\"", GetParam().nQuotes));
    EXPECT_EQ(Make(), GetParam().bFits ? PASSES : std::string("refuses ") + MAKE_ERROR);
}

const CutCase CUT_CASES[] = {
    // Two names of 30 escaped quotes take 360 bytes, all but the version 84: 55 more make 499.
    {"ReportTagOf499Bytes", "reportVR=\"2.0", "reportVR=\"" + std::string(55, '1'), 30, true},
    {"ReportTagOf500Bytes", "reportVR=\"2.0", "reportVR=\"" + std::string(56, '1'), 30, false},
    // <PGE5030 VR="" id="PGE5030"> has 28 bytes.
    {"ProcedureTagOf499Bytes", "procVR=\"1.0", "procVR=\"" + std::string(471, '1'), 1, true},
    {"ProcedureTagOf500Bytes", "procVR=\"1.0", "procVR=\"" + std::string(472, '1'), 1, false},
    // The catalogue item of a report has 47 bytes beside the id, its number being 1.
    {"CatalogueItemOf99Bytes", "GEZ030\"", std::string(52, 'G') + "\"", 1, true},
    {"CatalogueItemOf100Bytes", "GEZ030\"", std::string(53, 'G') + "\"", 1, false},
    {"NodeTagOf99Bytes", "GEZ03010", std::string(96, 'N'), 1, true},
    {"NodeTagOf100Bytes", "GEZ03010", std::string(97, 'N'), 1, false},
};

INSTANTIATE_TEST_SUITE_P(Tags, MokManagerCutTest, testing::ValuesIn(CUT_CASES), CaseName());

// ---- size of the document ----------------------------------------------------------------------

/// Bytes of the document of one record whose last cell is empty but for its tags.
std::size_t BareSize()
{
    return Document(CatalogItem("GEZ030-1"), ShortIt(), Report(1, Cells("1", ""))).size();
}

TEST_F(MokManagerTest, DocumentOfExactlyTheLimitPasses)
{
    Prepare("003,1," + std::string(DOCUMENT_LIMIT - BareSize(), 'a') + "\n");
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Mok().size(), DOCUMENT_LIMIT);
    EXPECT_EQ(m_manager.SaveMok(), STATUS_OK);
    EXPECT_EQ(std::filesystem::file_size(m_folder.Path("out.mok")), DOCUMENT_LIMIT);
}

TEST_F(MokManagerTest, DocumentOfOneByteMoreIsRefusedAndNoFileIsMade)
{
    Prepare("003,1," + std::string(DOCUMENT_LIMIT - BareSize() + 1, 'a') + "\n");
    const DebugLog log;
    EXPECT_EQ(Make(), "refuses 0000-00000-HE70023E");
    EXPECT_THAT(LogMessages(log),
                testing::ElementsAre(
                    "MOKファイルが10MBを超えています。（HE70023E）",
                    "Valid Message[HE70023E]  変換後のファイルサイズが10MBを超えています。",
                    "record=0000 column=00000 value=10485761"));
    EXPECT_THAT(m_folder.Names(), testing::ElementsAre("in.csv"));
}

TEST_F(MokManagerTest, SizeIsMeasuredInUtf8)
{
    // Two bytes of the file become three of the document; ASCII fills up what is left.
    const std::size_t nRoom = DOCUMENT_LIMIT - BareSize();
    std::string strCell;
    for (std::size_t n = 0; n < nRoom / 3; ++n)
        strCell += "\x90\xc2";
    strCell += std::string(nRoom % 3, 'a');
    Prepare("003,1," + strCell + "\n");
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Mok().size(), DOCUMENT_LIMIT);
    Prepare("003,1," + strCell + "a\n");
    EXPECT_EQ(Make(), "refuses 0000-00000-HE70023E");
}

TEST_F(MokManagerTest, SizeIsMeasuredBehindTheSerialiser)
{
    // The quote takes six bytes in the text that is parsed and one in the document.
    Prepare("003,1," + std::string(DOCUMENT_LIMIT - BareSize(), '"') + "\n");
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Mok().size(), DOCUMENT_LIMIT);
}

// ---- SaveMok and GetMok ------------------------------------------------------------------------

TEST_F(MokManagerTest, SavedFileIsTheTextThatIsHandedOut)
{
    Prepare(ONE_RECORD);
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(m_manager.SaveMok(), STATUS_OK);
    EXPECT_EQ(m_folder.Read("out.mok"),
              Document(CatalogItem("GEZ030-1"), ShortIt(), Report(1, Cells("12", "ab"))));
    EXPECT_EQ(Mok(), m_folder.Read("out.mok"));
}

TEST_F(MokManagerTest, TextIsHandedOutTwice)
{
    Prepare(ONE_RECORD);
    EXPECT_EQ(Make(), PASSES);
    const std::string strMok = Mok();
    EXPECT_EQ(Mok(), strMok);
}

TEST_F(MokManagerTest, SavingReplacesALongerFile)
{
    m_folder.Write("out.mok", std::string(100000, 'x'));
    Prepare(ONE_RECORD);
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(m_manager.SaveMok(), STATUS_OK);
    EXPECT_EQ(m_folder.Read("out.mok"), Mok());
}

TEST_F(MokManagerTest, OutputPathIsTrimmed)
{
    EXPECT_EQ(InitMok(Write(ONE_RECORD), "　" + m_folder.Path("out.mok") + " "), PASSES);
    SetIt(IT_PROCEDURE_CD, "PGE5030");
    EXPECT_EQ(m_manager.LoadCsvWithDefinition(false), STATUS_OK);
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(m_manager.SaveMok(), STATUS_OK);
    EXPECT_TRUE(m_folder.Has("out.mok"));
}

TEST_F(MokManagerTest, WithoutADocumentNothingIsSavedOrHandedOut)
{
    const DebugLog log;
    EXPECT_EQ(Told([&] { return m_manager.SaveMok(); }), std::string("refuses ") + FATAL_ERROR);
    std::string strMok = "untouched";
    EXPECT_EQ(Told([&] { return m_manager.GetMok(strMok); }),
              std::string("refuses ") + FATAL_ERROR);
    EXPECT_EQ(strMok, "untouched");
    EXPECT_THAT(LogEntries(log),
                testing::ElementsAre(LogEntry{"KZCEkaMOKManager::SaveMok", UNEXPECTED_ERROR},
                                     LogEntry{"KZCEkaMOKManager::GetMok", UNEXPECTED_ERROR}));
}

TEST_F(MokManagerTest, SavingWithoutAPathIsAFatalError)
{
    Prepare(ONE_RECORD);
    EXPECT_EQ(m_manager.InitForMok(false, nullptr, nullptr, 1), STATUS_OK);
    SetIt(IT_PROCEDURE_CD, "PGE5030");
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Told([&] { return m_manager.SaveMok(); }), std::string("refuses ") + FATAL_ERROR);
}

TEST_F(MokManagerTest, SavingOntoAFullDiskIsAFatalError)
{
    std::filesystem::create_symlink("/dev/full", m_folder.Path("out.mok"));
    Prepare(ONE_RECORD);
    EXPECT_EQ(Make(), PASSES);
    const DebugLog log;
    EXPECT_EQ(Told([&] { return m_manager.SaveMok(); }), std::string("refuses ") + FATAL_ERROR);
    EXPECT_THAT(LastLogMessages(log, 1), testing::ElementsAre(UNEXPECTED_ERROR));
    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.Path("out.mok")));
    EXPECT_TRUE(std::filesystem::exists("/dev/full"));
}

TEST_F(MokManagerTest, SavingIntoAFolderThatHasGoneIsAFatalErrorAndMakesNothing)
{
    const std::string strFolder = m_folder.MakeFolder("out");
    EXPECT_EQ(InitMok(Write(ONE_RECORD), strFolder + "/out.mok"), PASSES);
    SetIt(IT_PROCEDURE_CD, "PGE5030");
    EXPECT_EQ(m_manager.LoadCsvWithDefinition(false), STATUS_OK);
    EXPECT_EQ(Make(), PASSES);
    std::filesystem::remove(strFolder);
    EXPECT_EQ(Told([&] { return m_manager.SaveMok(); }), std::string("refuses ") + FATAL_ERROR);
    EXPECT_THAT(m_folder.Names(), testing::ElementsAre("in.csv"));
}

TEST_F(MokManagerTest, SavingOntoAFolderIsAFatalErrorAndLeavesTheFolder)
{
    m_folder.MakeFolder("out.mok");
    Prepare(ONE_RECORD);
    EXPECT_EQ(Make(), PASSES);
    EXPECT_EQ(Told([&] { return m_manager.SaveMok(); }), std::string("refuses ") + FATAL_ERROR);
    EXPECT_TRUE(std::filesystem::is_directory(m_folder.Path("out.mok")));
}

/// Keeps files from growing beyond a size for as long as the object lives.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t nBytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        m_pHandler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {nBytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_pHandler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before = {};
    void (*m_pHandler)(int) = SIG_DFL;
};

TEST_F(MokManagerTest, FileThatCouldNotBeFinishedDoesNotStay)
{
    Prepare("003,1," + std::string(200000, 'a') + "\n");
    EXPECT_EQ(Make(), PASSES);
    std::string strSaved;
    {
        const FileSizeLimit limit(100000);
        strSaved = Told([&] { return m_manager.SaveMok(); });
    }
    EXPECT_EQ(strSaved, std::string("refuses ") + FATAL_ERROR);
    EXPECT_THAT(m_folder.Names(), testing::ElementsAre("in.csv"));
}

TEST_F(MokManagerTest, TooLargeDocumentStaysWithTheManager)
{
    Prepare("003,1," + std::string(DOCUMENT_LIMIT, 'a') + "\n");
    EXPECT_EQ(Make(), "refuses 0000-00000-HE70023E");
    EXPECT_EQ(Mok().size(), DOCUMENT_LIMIT + BareSize());
}

// ---- what the host is told ---------------------------------------------------------------------

TEST_F(MokManagerTest, RecordCountLeavesTheBlankOnesOut)
{
    EXPECT_EQ(Check("003,1,a\n\n003,2,b\n"), PASSES);
    EXPECT_EQ(m_manager.GetRecodeCount(), "2");
}

TEST_F(MokManagerTest, NothingReadIsNoProcedureAndNoRecord)
{
    EXPECT_EQ(m_manager.GetProcID(), "");
    EXPECT_EQ(m_manager.GetRecodeCount(), "0");
}

TEST_F(MokManagerTest, ErrorsAreKnownUntilTheyAreRendered)
{
    EXPECT_FALSE(m_manager.HasErrorMsg());
    EXPECT_EQ(m_manager.InitForCheck(true, nullptr, 1), STATUS_NG);
    EXPECT_TRUE(m_manager.HasErrorMsg());
    EXPECT_EQ(m_manager.GetErrorMsg(), "9999-00001-HE70001E");
    EXPECT_FALSE(m_manager.HasErrorMsg());
    EXPECT_EQ(m_manager.GetErrorMsg(), NO_ERROR);
}

// ---- Terminate ---------------------------------------------------------------------------------

class MokManagerTerminateTest : public MokManagerTest
{
protected:
    /// Key 2 is the manager's and holds a record, key 4 holds one too, and there is one error.
    MokManagerTerminateTest()
    {
        KZCConvertInfo& store = *KZCConvertInfo::instance();
        EXPECT_EQ(store.GetCsvFile(2)->ReadFile(Write(ONE_RECORD)), STATUS_OK);
        EXPECT_EQ(store.GetCsvFile(4)->ReadFile(Write(ONE_RECORD)), STATUS_OK);
        EXPECT_EQ(m_manager.InitForCheck(false, Write(ONE_RECORD).c_str(), 2), STATUS_OK);
        KZCValidResult::instance()->SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
    }

    /// Records of keys 2 and 4, whether the tax offices are there, and the errors.
    static std::string State()
    {
        KZCConvertInfo& store = *KZCConvertInfo::instance();
        const bool bNoOffices =
            Raised([] {
                static_cast<void>(KZCEkaTaxOffices::instance()->IsExistCode("00101"));
            }).has_value();
        return std::to_string(store.GetCsvFile(2)->GetRecordCount()) + " " +
               std::to_string(store.GetCsvFile(4)->GetRecordCount()) +
               (bNoOffices ? " no offices " : " offices ") + Detail();
    }
};

TEST_F(MokManagerTerminateTest, WithoutAnyFlagNothingEnds)
{
    m_manager.Terminate(false, false, false);
    EXPECT_EQ(State(), "2 2 offices 0001-00002-HE70001E");
}

TEST_F(MokManagerTerminateTest, ResultAlone)
{
    m_manager.Terminate(true, false, false);
    EXPECT_EQ(State(), std::string("2 2 offices ") + NO_ERROR);
}

TEST_F(MokManagerTerminateTest, StoreEndsWithTheTaxOffices)
{
    m_manager.Terminate(false, true, false);
    EXPECT_EQ(State(), "0 0 no offices 0001-00002-HE70001E");
}

TEST_F(MokManagerTerminateTest, KeyAlone)
{
    m_manager.Terminate(false, false, true);
    EXPECT_EQ(State(), "0 2 offices 0001-00002-HE70001E");
}

TEST_F(MokManagerTerminateTest, StoreWithKeyIsStoreAlone)
{
    m_manager.Terminate(false, true, true);
    // Clearing the key as well would make a new store for it.
    EXPECT_EQ(StorePeek::Kind(), StoreKind::None);
    EXPECT_EQ(State(), "0 0 no offices 0001-00002-HE70001E");
}

TEST_F(MokManagerTerminateTest, Everything)
{
    m_manager.Terminate(true, true, false);
    EXPECT_EQ(State(), std::string("0 0 no offices ") + NO_ERROR);
}

TEST_F(MokManagerTerminateTest, ResultWithKey)
{
    m_manager.Terminate(true, false, true);
    EXPECT_EQ(State(), std::string("0 2 offices ") + NO_ERROR);
}

TEST_F(MokManagerTerminateTest, StoreOfTheOwnFamilyStays)
{
    m_manager.TerminateDifferentData();
    EXPECT_EQ(State(), "2 2 offices 0001-00002-HE70001E");
}

TEST_F(MokManagerTerminateTest, StoreOfAnotherFamilyEndsWithAllElse)
{
    ForeignStore::Install();
    EXPECT_TRUE(HasForeignStore());
    m_manager.TerminateDifferentData();
    EXPECT_FALSE(HasForeignStore());
    EXPECT_EQ(State(), std::string("0 0 no offices ") + NO_ERROR);
}

TEST_F(MokManagerTest, ErrorsStayIfThereIsNoStoreYet)
{
    KZCValidResult::instance()->SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
    m_manager.TerminateDifferentData();
    EXPECT_EQ(Detail(), "0001-00002-HE70001E");
}

// ---- ReloadCsvFile -----------------------------------------------------------------------------

TEST_F(MokManagerTerminateTest, ReloadReadsTheFileAgainUnderItsTrimmedPath)
{
    m_manager.ReloadCsvFile(2, (" " + Write("003,9,z") + "　").c_str());
    EXPECT_STREQ(KZCConvertInfo::instance()->GetCsvFile(2)->GetItem(0, 1), "9");
    EXPECT_STREQ(KZCConvertInfo::instance()->GetCsvFile(4)->GetItem(0, 1), "12");
}

TEST_F(MokManagerTerminateTest, ReloadWithoutAPathDoesNothing)
{
    m_manager.ReloadCsvFile(2, nullptr);
    m_manager.ReloadCsvFile(2, "");
    EXPECT_EQ(State(), "2 2 offices 0001-00002-HE70001E");
}

TEST_F(MokManagerTerminateTest, ReloadOfAnUnknownKeyDoesNothing)
{
    m_manager.ReloadCsvFile(3, Write("003,9,z").c_str());
    EXPECT_EQ(KZCConvertInfo::instance()->GetCsvFile(3)->GetRecordCount(), 0);
}

TEST_F(MokManagerTerminateTest, BadReloadShowsInTheResultStoreAlone)
{
    m_manager.ReloadCsvFile(2, Write("003,9").c_str());
    EXPECT_EQ(Detail(), "0001-00002-HE70001E,0000-00000-HE70019E");
}

TEST_F(MokManagerTerminateTest, ReloadOfAVanishedFileRaises)
{
    EXPECT_EQ(Raised([&] { m_manager.ReloadCsvFile(2, m_folder.Path("gone.csv").c_str()); }),
              FAULT);
    EXPECT_EQ(KZCConvertInfo::instance()->GetCsvFile(2)->GetRecordCount(), 0);
}

}  // namespace
