// What the operations give back, what lives between calls, and the documents they make.
#include <algorithm>
#include <filesystem>
#include <string>

#include "ApiFixture.h"

namespace {

constexpr std::size_t MAX_DOCUMENT_SIZE = 10485760;  // bytes

constexpr const char* IT_SECTION =
    R"(<IT VR="1.3" id="IT"><ZEIMUSHO ID="ZEIMUSHO"><gen:zeimusho_CD>01234</gen:zeimusho_CD>)"
    R"(</ZEIMUSHO><NOZEISHA_ID ID="NOZEISHA_ID">1234567890123456</NOZEISHA_ID>)"
    R"(<NOZEISHA_BANGO ID="NOZEISHA_BANGO"><gen:kojinbango>123456789012</gen:kojinbango>)"
    R"(</NOZEISHA_BANGO><NOZEISHA_NM ID="NOZEISHA_NM">山田太郎</NOZEISHA_NM>)"
    R"(<NOZEISHA_ADR ID="NOZEISHA_ADR">見本県見本市一丁目１番地</NOZEISHA_ADR>)"
    R"(<DAIHYO_NM ID="DAIHYO_NM">山田花子</DAIHYO_NM>)"
    R"(<DAIRI_ID ID="DAIRI_ID">6543210987654321</DAIRI_ID>)"
    R"(<DAIRI_NM ID="DAIRI_NM">鈴木一郎</DAIRI_NM>)"
    R"(<DAIRI_ADR ID="DAIRI_ADR">見本県見本市二丁目２番地</DAIRI_ADR>)"
    R"(<TETSUZUKI ID="TETSUZUKI"><procedure_CD>PGE5020</procedure_CD></TETSUZUKI></IT>)";

/// The document of form "002" around catalogue items and the contents of CONTENTS.
std::string Document(const std::string& strItems, const std::string& strContents)
{
    return R"(<?xml version="1.0" encoding="UTF-8" standalone="no" ?>)"
           R"(<DATA xmlns="http://xml.luvia.example/XSD/gensen" id="DATA")"
           R"( xmlns:gen="http://xml.luvia.example/XSD/general")"
           R"( xmlns:kyo="http://xml.luvia.example/XSD/kyotsu")"
           R"( xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">)"
           R"(<PGE5020 VR="1.1" id="PGE5020"><CATALOG id="CATALOG">)"
           R"(<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">)"
           R"(<rdf:description id="REPORT"><SEND_DATA/><IT_SEC><rdf:description about="#IT"/>)"
           R"(</IT_SEC><FORM_SEC><rdf:Seq>)" +
           strItems +
           R"(</rdf:Seq></FORM_SEC><TENPU_SEC/><XBRL_SEC/><XBRL2_1_SEC/><SOFUSHO_SEC/>)"
           R"(</rdf:description></rdf:RDF></CATALOG><CONTENTS id="CONTENTS">)" +
           strContents + "</CONTENTS></PGE5020></DATA>";
}

std::string CatalogueItem(int nReport)
{
    return R"(<rdf:li><rdf:description about="#GEZ902-)" + std::to_string(nReport) +
           R"("/></rdf:li>)";
}

std::string Report(int nReport,
                   const std::string& strDay,
                   const std::string& strSoftName,
                   const std::string& strBody)
{
    const std::string strNumber = std::to_string(nReport);
    return R"(<GEZ902 VR="2.0" id="GEZ902-)" + strNumber + R"(" page=")" + strNumber +
           R"(" sakuseiDay=")" + strDay + R"(" sakuseiNM="山田太郎" softNM=")" + strSoftName +
           R"(">)" + strBody + "</GEZ902>";
}

/// The document of the fixture's form "002" file and arguments.
std::string GoodDocument(const std::string& strDay, const std::string& strSoftName)
{
    return Document(
        CatalogueItem(1) + CatalogueItem(2),
        IT_SECTION +
            Report(1, strDay, strSoftName,
                   "<GEZ90200><GEZ90210>12345</GEZ90210><GEZ90220>佐藤次郎</GEZ90220>"
                   "<GEZ90230>50</GEZ90230><GEZ90240>1</GEZ90240></GEZ90200>") +
            Report(2, strDay, strSoftName,
                   "<GEZ90200><GEZ90210>67890</GEZ90210><GEZ90220>高橋</GEZ90220></GEZ90200>"));
}

constexpr const char* EL_SOFT_NAME = "eka_orbclient_ZEKA";

/// The day that the document itself names, if it is today or was when the test began: a test may
/// run across midnight.
std::string DayOf(const std::string& strDocument, const std::string& strStartDay)
{
    return strDocument.find(strStartDay) != std::string::npos ? strStartDay : Today();
}

}  // namespace

class KZICsvConvMokEkaTest : public ApiTest
{
protected:
    /// The document of the key, which must convert.
    std::string ElDocument(std::int64_t lKey)
    {
        const Outcome outcome = ElConvert(lKey, m_arguments);
        EXPECT_EQ(outcome.strResult, "S_OK") << outcome;
        return outcome.strMokData;
    }

    const std::string m_strDay = Today();
};

// --- CsvCheck ---

TEST_F(KZICsvConvMokEkaTest, PassedCheckSetsResultAndProcIdAlone)
{
    EXPECT_EQ(Check(m_strCsv), CheckPassed("PGE5020"));
}

TEST_F(KZICsvConvMokEkaTest, ProcIdIsThatOfTheFilesForm)
{
    EXPECT_EQ(Check(m_strFreeCsv), CheckPassed("PGE5080"));
}

TEST_F(KZICsvConvMokEkaTest, FailedCheckSetsResultAndDetailsAlone)
{
    const std::string strCsv = MakeFile("bad.csv", CsvText({"002,12345,佐藤,0,1"}));
    EXPECT_EQ(Check(strCsv), Failed("0001-00004-HE70009E"));
}

TEST_F(KZICsvConvMokEkaTest, ErrorsStandInOrderOfRecordsAndThenOfItems)
{
    const std::string strCsv =
        MakeFile("bad.csv", CsvText({"002,a,,100,3", "", "002,1,山,5,", "002,,山,x,9"}));
    EXPECT_EQ(Check(strCsv), Failed("0001-00002-HE70004E,0001-00003-HE70001E,0001-00004-HE70009E,"
                                    "0001-00005-HE70009E,0004-00002-HE70001E,0004-00004-HE70009E,"
                                    "0004-00005-HE70009E"));
}

TEST_F(KZICsvConvMokEkaTest, LengthOfACellCountsItsShiftJisBytes)
{
    // Ten full-width characters take 20 bytes in the file and would take 30 in UTF-8.
    EXPECT_EQ(Check(MakeFile("a.csv", CsvText({"002,1,一二三四五六七八九十,,"}))),
              CheckPassed("PGE5020"));
    EXPECT_EQ(Check(MakeFile("b.csv", CsvText({"002,1,一二三四五六七八九十a,,"}))),
              Failed("0001-00003-HE70008E"));
}

TEST_F(KZICsvConvMokEkaTest, TheSameErrorOfTwoItemsStandsTwice)
{
    const std::string strItem =
        R"(<item id="A" parent="GEZ902" type="Normal" column="2"><valid id="number"/></item>)";
    WriteBundle(m_strBundle, DefinitionWith(strItem + strItem), GoodOffices());
    EXPECT_EQ(Check(MakeFile("bad.csv", CsvText({"002,x,,,"}))),
              Failed("0001-00002-HE70004E,0001-00002-HE70004E"));
}

TEST_F(KZICsvConvMokEkaTest, HundredThousandErrorsAllReachTheTable)
{
    const std::string strItem =
        R"(<item id="A" parent="GEZ902" type="Normal" column="2"><valid id="number"/></item>)";
    WriteBundle(m_strBundle, DefinitionWith(Repeat(strItem, 20)), GoodOffices());
    const Outcome outcome = Check(MakeFile("bad.csv", Repeat("002,x,,,\n", 5000)));
    EXPECT_EQ(std::ranges::count(outcome.strDetailErrorInfo, ',') + 1, 100000);
    EXPECT_TRUE(outcome.strDetailErrorInfo.ends_with(",5000-00002-HE70004E"));
}

TEST_F(KZICsvConvMokEkaTest, OneErrorMoreThanHundredThousandIsCutOffAndSaidSo)
{
    const std::string strItem =
        R"(<item id="A" parent="GEZ902" type="Normal" column="2"><valid id="number"/></item>)";
    const std::string strLastItem =
        R"(<item id="B" parent="GEZ902" type="Normal" column="3"><valid id="number"/></item>)";
    WriteBundle(m_strBundle, DefinitionWith(Repeat(strItem, 20) + strLastItem), GoodOffices());
    const Outcome outcome = Check(MakeFile("bad.csv", Repeat("002,x,,,\n", 4999) + "002,x,y,,\n"));
    EXPECT_EQ(std::ranges::count(outcome.strDetailErrorInfo, ',') + 1, 100001);
    EXPECT_TRUE(outcome.strDetailErrorInfo.ends_with(",5000-00002-HE70004E,0000-00000-HE70022E"));
}

TEST_F(KZICsvConvMokEkaTest, PathWithJapaneseAndOddCharactersIsFound)
{
    EXPECT_EQ(Check(MakeFile("日本 語%41#&+é.csv", ReadBytes(m_strCsv))), CheckPassed("PGE5020"));
}

TEST_F(KZICsvConvMokEkaTest, PathIsTrimmedOfWhiteSpaceOnBothSides)
{
    EXPECT_EQ(Check(" \t\u3000" + m_strCsv + "\u00a0\r\n"), CheckPassed("PGE5020"));
}

// --- CsvConvMok ---

TEST_F(KZICsvConvMokEkaTest, PassedConversionSetsResultAlone)
{
    EXPECT_EQ(Convert(m_arguments), Done());
}

TEST_F(KZICsvConvMokEkaTest, ConversionWritesTheWholeDocument)
{
    ASSERT_EQ(Convert(m_arguments), Done());
    const std::string strDocument = ReadBytes(m_strMok);
    EXPECT_EQ(strDocument, GoodDocument(DayOf(strDocument, m_strDay), "見本ソフト"));
}

TEST_F(KZICsvConvMokEkaTest, ConversionNeedsNoCheckBeforeAndChecksNoColumn)
{
    m_arguments[CSV_PATH] = MakeFile("bad.csv", CsvText({"002,x,,100,9"}));
    ASSERT_EQ(Convert(m_arguments), Done());
    EXPECT_NE(ReadBytes(m_strMok).find("<GEZ90200><GEZ90210>x</GEZ90210><GEZ90230>100</GEZ90230>"
                                       "<GEZ90240>9</GEZ90240></GEZ90200>"),
              std::string::npos);
}

TEST_F(KZICsvConvMokEkaTest, ConversionReplacesAnExistingLongerFile)
{
    WriteBytes(m_strMok, std::string(100000, 'x'));
    ASSERT_EQ(Convert(m_arguments), Done());
    const std::string strDocument = ReadBytes(m_strMok);
    EXPECT_EQ(strDocument, GoodDocument(DayOf(strDocument, m_strDay), "見本ソフト"));
}

TEST_F(KZICsvConvMokEkaTest, RefusedConversionLeavesAnExistingFileAlone)
{
    WriteBytes(m_strMok, "kept");
    m_arguments[NOZEISHA_NM] = "";
    EXPECT_EQ(Convert(m_arguments), Failed("9999-00007-HE70001E"));
    EXPECT_EQ(ReadBytes(m_strMok), "kept");
}

TEST_F(KZICsvConvMokEkaTest, ConversionThatFailsInTheFileLeavesAnExistingDocumentAlone)
{
    WriteBytes(m_strMok, "kept");
    m_arguments[CSV_PATH] = MakeFile("bad.csv", CsvText({"002,1"}));
    EXPECT_EQ(Convert(m_arguments), Failed("0000-00000-HE70019E"));
    EXPECT_EQ(ReadBytes(m_strMok), "kept");
}

TEST_F(KZICsvConvMokEkaTest, OutputPathWithJapaneseIsWritten)
{
    m_arguments[MOK_PATH] = File("申告 書%41#.mok");
    ASSERT_EQ(Convert(m_arguments), Done());
    EXPECT_TRUE(ReadBytes(File("申告 書%41#.mok")).starts_with("<?xml "));
}

TEST_F(KZICsvConvMokEkaTest, UpperCaseOutputExtensionIsAccepted)
{
    m_arguments[MOK_PATH] = File("OUTPUT.MOK");
    EXPECT_EQ(Convert(m_arguments), Done());
    EXPECT_TRUE(Exists(File("OUTPUT.MOK")));
}

TEST_F(KZICsvConvMokEkaTest, OtherProcedureThanTheFilesIsRefusedUnderArgumentThirteen)
{
    m_arguments[TETSUZUKI] = "PGE5010";
    EXPECT_EQ(Convert(m_arguments), Failed("9999-00013-HE70010E"));
    EXPECT_FALSE(Exists(m_strMok));
}

TEST_F(KZICsvConvMokEkaTest, EmptyProcedureIsRefusedBeforeTheFileIsRead)
{
    // The file alone would be refused with another error.
    m_arguments[CSV_PATH] = MakeFile("bad.csv", CsvText({"002,1"}));
    m_arguments[TETSUZUKI] = "";
    EXPECT_EQ(Convert(m_arguments), Failed("9999-00013-HE70010E"));
}

TEST_F(KZICsvConvMokEkaTest, BlankRecordsGiveNoReportAndNoGapInTheNumbers)
{
    m_arguments[CSV_PATH] = MakeFile(
        "blank.csv", CsvText({"", "002,12345,佐藤次郎,50,1", "  ", "", "002,67890,高橋,,", ""}));
    ASSERT_EQ(Convert(m_arguments), Done());
    const std::string strDocument = ReadBytes(m_strMok);
    EXPECT_EQ(strDocument, GoodDocument(DayOf(strDocument, m_strDay), "見本ソフト"));
}

TEST_F(KZICsvConvMokEkaTest, RecordWithoutValuesKeepsItsCatalogueItem)
{
    m_arguments[CSV_PATH] = MakeFile("hollow.csv", CsvText({"002,,,,", "002,67890,高橋,,"}));
    ASSERT_EQ(Convert(m_arguments), Done());
    const std::string strDocument = ReadBytes(m_strMok);
    EXPECT_EQ(strDocument,
              Document(CatalogueItem(1) + CatalogueItem(2),
                       IT_SECTION + Report(2, DayOf(strDocument, m_strDay), "見本ソフト",
                                           "<GEZ90200><GEZ90210>67890</GEZ90210>"
                                           "<GEZ90220>高橋</GEZ90220></GEZ90200>")));
}

TEST_F(KZICsvConvMokEkaTest, EmptySectionsStandWithoutAnyReport)
{
    m_arguments[CSV_PATH] = MakeFile("hollow.csv", CsvText({"002,,,,"}));
    ASSERT_EQ(Convert(m_arguments), Done());
    EXPECT_EQ(ReadBytes(m_strMok), Document(CatalogueItem(1), IT_SECTION));
}

TEST_F(KZICsvConvMokEkaTest, XmlCharactersOfCellsAndNamesAreEscaped)
{
    m_arguments[CSV_PATH] = MakeFile("xml.csv", CsvText({R"(002,<&>"',,,)"}));
    m_arguments[NOZEISHA_NM] = R"(A&B<"C"')";
    ASSERT_EQ(Convert(m_arguments), Done());
    const std::string strDocument = ReadBytes(m_strMok);
    EXPECT_NE(strDocument.find(R"(<GEZ90210>&lt;&amp;&gt;"'</GEZ90210>)"), std::string::npos);
    EXPECT_NE(strDocument.find(R"(>A&amp;B&lt;"C"'</NOZEISHA_NM>)"), std::string::npos);
    EXPECT_NE(strDocument.find(R"(sakuseiNM="A&amp;B&lt;&quot;C&quot;'")"), std::string::npos);
}

// --- the limit of 10 MiB ---

class DocumentSizeTest : public KZICsvConvMokEkaTest
{
protected:
    DocumentSizeTest()
    {
        m_arguments[CSV_PATH] = File("large.csv");
        m_arguments[TETSUZUKI] = "PGE5080";
        m_arguments[SOFT_NAME] = EL_SOFT_NAME;
    }

    /// Writes a file whose document has exactly this many bytes: each letter of a cell is one.
    void MakeCsvForDocumentOf(std::size_t nSize)
    {
        WriteBytes(File("large.csv"), "008,a,,,\n");
        ASSERT_EQ(ElCheck(File("large.csv"), 1).strResult, "S_OK");
        const std::size_t nLeast = ElConvert(1, m_arguments).strMokData.size();
        ASSERT_GT(nLeast, 1000U);
        WriteBytes(File("large.csv"), "008," + std::string(nSize - nLeast + 1, 'a') + ",,,\n");
    }
};

TEST_F(DocumentSizeTest, FileOfExactlyTenMebibytesIsWritten)
{
    MakeCsvForDocumentOf(MAX_DOCUMENT_SIZE);
    EXPECT_EQ(Convert(m_arguments), Done());
    EXPECT_EQ(std::filesystem::file_size(m_strMok), MAX_DOCUMENT_SIZE);
}

TEST_F(DocumentSizeTest, OneByteMoreIsRefusedWithoutAFile)
{
    MakeCsvForDocumentOf(MAX_DOCUMENT_SIZE + 1);
    EXPECT_EQ(Convert(m_arguments), Failed("0000-00000-HE70023E"));
    EXPECT_FALSE(Exists(m_strMok));
}

TEST_F(DocumentSizeTest, TextOfExactlyTenMebibytesIsHandedOver)
{
    MakeCsvForDocumentOf(MAX_DOCUMENT_SIZE);
    ASSERT_EQ(ElCheck(File("large.csv"), 1), ElCheckPassed("PGE5080", "1"));
    EXPECT_EQ(ElConvert(1, m_arguments).strMokData.size(), MAX_DOCUMENT_SIZE);
}

TEST_F(DocumentSizeTest, TextOfOneByteMoreIsRefused)
{
    MakeCsvForDocumentOf(MAX_DOCUMENT_SIZE + 1);
    ASSERT_EQ(ElCheck(File("large.csv"), 1), ElCheckPassed("PGE5080", "1"));
    EXPECT_EQ(ElConvert(1, m_arguments), Failed("0000-00000-HE70023E"));
}

// --- ELCsvCheck and ELCsvConvMok ---

TEST_F(KZICsvConvMokEkaTest, PassedElCheckSetsResultProcIdAndRecordCount)
{
    EXPECT_EQ(ElCheck(m_strCsv, 1), ElCheckPassed("PGE5020", "2"));
}

TEST_F(KZICsvConvMokEkaTest, RecordCountLeavesBlankRecordsOut)
{
    const std::string strCsv =
        MakeFile("blank.csv", CsvText({"", "002,1,山,,", "", " ", "002,2,川,,", ""}));
    EXPECT_EQ(ElCheck(strCsv, 1), ElCheckPassed("PGE5020", "2"));
}

TEST_F(KZICsvConvMokEkaTest, FailedElCheckSetsResultAndDetailsAlone)
{
    const std::string strCsv = MakeFile("bad.csv", CsvText({"002,1,山,,", "002,x,山,,"}));
    EXPECT_EQ(ElCheck(strCsv, 1), Failed("0002-00002-HE70004E"));
}

TEST_F(KZICsvConvMokEkaTest, PassedElConversionSetsResultAndMokDataButNoProcId)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    const Outcome outcome = ElConvert(1, m_arguments);
    EXPECT_EQ(outcome,
              ElConvertPassed(GoodDocument(DayOf(outcome.strMokData, m_strDay), EL_SOFT_NAME)));
}

TEST_F(KZICsvConvMokEkaTest, FailedElConversionSetsResultAndDetailsAlone)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    m_arguments[NOZEISHA_NM] = "";
    EXPECT_EQ(ElConvert(1, m_arguments), Failed("9999-00006-HE70001E"));
}

TEST_F(KZICsvConvMokEkaTest, BothPathsMakeTheSameBytes)
{
    m_arguments[SOFT_NAME] = EL_SOFT_NAME;
    std::string strText;
    do {  // once, unless midnight comes in between
        ASSERT_EQ(Convert(m_arguments), Done());
        ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
        strText = ElDocument(1);
    } while (ReadBytes(m_strMok).find(Today()) == std::string::npos);
    EXPECT_EQ(strText, ReadBytes(m_strMok));
}

TEST_F(KZICsvConvMokEkaTest, RepeatedConversionsOfAKeyGiveTheSameText)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    const std::string strFirst = ElDocument(1);
    EXPECT_EQ(ElDocument(1), strFirst);
    EXPECT_EQ(ElDocument(1), strFirst);
}

TEST_F(KZICsvConvMokEkaTest, ShorterDocumentAfterALongerOneHoldsNothingOfIt)
{
    ASSERT_EQ(ElCheck(MakeFile("long.csv", CsvText({"002,1,山,,", "002,2,川,,", "002,3,谷,,"})), 2)
                  .strResult,
              "S_OK");
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    const std::string strLonger = ElDocument(2);
    const std::string strDocument = ElDocument(1);
    ASSERT_GT(strLonger.size(), strDocument.size());
    EXPECT_EQ(strDocument, GoodDocument(DayOf(strDocument, m_strDay), EL_SOFT_NAME));
}

TEST_F(KZICsvConvMokEkaTest, CorrectArgumentsAfterARefusalConvertTheSameKey)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    ConvertArguments badArguments = m_arguments;
    badArguments[ZEIMUSHO_CD] = "99999";
    badArguments[TETSUZUKI] = "PGE5010";
    ASSERT_EQ(ElConvert(1, badArguments), Failed("9999-00002-HE70011E"));
    const std::string strDocument = ElDocument(1);
    EXPECT_EQ(strDocument, GoodDocument(DayOf(strDocument, m_strDay), EL_SOFT_NAME));
}

TEST_F(KZICsvConvMokEkaTest, RightProcedureAfterAMismatchConvertsTheSameKey)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    m_arguments[TETSUZUKI] = "PGE5010";
    ASSERT_EQ(ElConvert(1, m_arguments), Failed("9999-00012-HE70010E"));
    m_arguments[TETSUZUKI] = "PGE5020";
    const std::string strDocument = ElDocument(1);
    EXPECT_EQ(strDocument, GoodDocument(DayOf(strDocument, m_strDay), EL_SOFT_NAME));
}

TEST_F(KZICsvConvMokEkaTest, ArgumentsOfAnEarlierConversionDoNotStay)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    ASSERT_NE(ElDocument(1).find("DAIRI_NM"), std::string::npos);
    m_arguments[DAIRI_NM] = std::nullopt;
    EXPECT_EQ(ElDocument(1).find("DAIRI_NM"), std::string::npos);
}

TEST_F(KZICsvConvMokEkaTest, FiveKeysLiveTogetherEachWithItsFile)
{
    for (const int nKey : {3, 1, 5, 2, 4}) {
        const std::string strCell = "cell" + std::to_string(nKey);
        const std::string strCsv = MakeFile(strCell + ".csv", "008," + strCell + ",,,\n");
        ASSERT_EQ(ElCheck(strCsv, nKey), ElCheckPassed("PGE5080", "1"));
    }
    m_arguments[TETSUZUKI] = "PGE5080";
    for (const int nKey : {1, 2, 3, 4, 5})
        EXPECT_NE(ElDocument(nKey).find("<GEZ90810>cell" + std::to_string(nKey) + "</GEZ90810>"),
                  std::string::npos);
}

TEST_F(KZICsvConvMokEkaTest, SecondElCheckOfAKeyReplacesWhatWasKept)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    ASSERT_EQ(ElCheck(m_strFreeCsv, 1), ElCheckPassed("PGE5080", "1"));
    m_arguments[TETSUZUKI] = "PGE5080";
    const std::string strDocument = ElDocument(1);
    EXPECT_NE(strDocument.find("<GEZ90810>a</GEZ90810>"), std::string::npos);
    EXPECT_EQ(strDocument.find("GEZ902"), std::string::npos);
}

TEST_F(KZICsvConvMokEkaTest, ElConversionNeedsNeitherFileNorResourcesAnyMore)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    std::filesystem::remove(m_strCsv);
    std::filesystem::remove_all(m_strBundle);
    const std::string strDocument = ElDocument(1);
    EXPECT_EQ(strDocument, GoodDocument(DayOf(strDocument, m_strDay), EL_SOFT_NAME));
}

TEST_F(KZICsvConvMokEkaTest, AnyObjectOfTheClassReachesTheKeysOfAnother)
{
    KZICsvConvMokEka first;
    KZICsvConvMokEka second;
    ASSERT_EQ(first.ELCsvCheck(m_strCsv.c_str(), 1)->GetResult(), "S_OK");
    EXPECT_EQ(ElConvert(1, m_arguments).strResult, "S_OK");
    second.Terminate();
    EXPECT_EQ(ElConvert(1, m_arguments), Failed("9999-00001-HE70013E"));
}

TEST_F(KZICsvConvMokEkaTest, UnknownKeyHasNoFile)
{
    EXPECT_EQ(ElConvert(1, m_arguments), Failed("9999-00001-HE70013E"));
}

TEST_F(KZICsvConvMokEkaTest, UnknownKeyStaysUnknownThroughConversionsAndCanBeCheckedLater)
{
    ASSERT_EQ(ElConvert(2, m_arguments), Failed("9999-00001-HE70013E"));
    ASSERT_EQ(ElConvert(2, m_arguments), Failed("9999-00001-HE70013E"));
    ASSERT_EQ(ElCheck(m_strCsv, 2).strResult, "S_OK");
    EXPECT_EQ(ElConvert(2, m_arguments).strResult, "S_OK");
}

TEST_F(KZICsvConvMokEkaTest, KeyOfAnotherFileIsNotUsed)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    EXPECT_EQ(ElConvert(2, m_arguments), Failed("9999-00001-HE70013E"));
}

TEST_F(KZICsvConvMokEkaTest, ElCheckThatFailsInTheColumnsDropsAnEarlierFileOfItsKey)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    ASSERT_EQ(ElCheck(MakeFile("bad.csv", CsvText({"002,x,山,,"})), 1),
              Failed("0001-00002-HE70004E"));
    EXPECT_EQ(ElConvert(1, m_arguments), Failed("9999-00001-HE70013E"));
}

TEST_F(KZICsvConvMokEkaTest, ElCheckThatFailsInTheReadingDropsAnEarlierFileOfItsKey)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    ASSERT_EQ(ElCheck(MakeFile("bad.csv", "\x82"), 1), Failed("0000-00000-HE70018E"));
    EXPECT_EQ(ElConvert(1, m_arguments), Failed("9999-00001-HE70013E"));
}

TEST_F(KZICsvConvMokEkaTest, FailedElCheckLeavesOtherKeysAlone)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    ASSERT_EQ(ElCheck(MakeFile("bad.csv", CsvText({"002,x,山,,"})), 2),
              Failed("0001-00002-HE70004E"));
    EXPECT_EQ(ElConvert(1, m_arguments).strResult, "S_OK");
}

TEST_F(KZICsvConvMokEkaTest, ElCheckWithABadPathKeepsAnEarlierFileOfItsKey)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    const std::string strBefore = ElDocument(1);
    ASSERT_EQ(ElCheck(File("missing.csv"), 1), Failed("9999-00001-HE70013E"));
    EXPECT_EQ(ElDocument(1), strBefore);
}

TEST_F(KZICsvConvMokEkaTest, ElCheckWithABadKeyKeepsAllFiles)
{
    ASSERT_EQ(ElCheck(m_strCsv, 1).strResult, "S_OK");
    ASSERT_EQ(ElCheck(m_strCsv, 0), Failed("9999-00002-HE70009E"));
    ASSERT_EQ(ElCheck(m_strCsv, 6), Failed("9999-00002-HE70009E"));
    EXPECT_EQ(ElConvert(1, m_arguments).strResult, "S_OK");
}

TEST_F(KZICsvConvMokEkaTest, ReReadingThatIsRefusedIsNotLookedAt)
{
    // The check compares Shift_JIS bytes with the form's id, the re-reading UTF-8: these bytes are
    // the id in the first reading and another text in the second.
    const std::string strId = "あい";
    WriteBundle(m_strBundle,
                R"(<d><report id=")" + strId +
                    R"(" columnNum="2" procId="PGE5020" reportId="GEZ902" reportVR="1"/></d>)",
                GoodOffices());
    ASSERT_EQ(ElCheck(MakeFile("odd.csv", strId + ",1\n"), 1), ElCheckPassed("PGE5020", "1"));
    EXPECT_EQ(ElConvert(1, m_arguments), Failed("9999-00001-HE70013E"));
}

TEST_F(KZICsvConvMokEkaTest, FileThatVanishesBeforeItsReReadingFailsTheElCheckAndDropsTheKey)
{
    Outcome outcome;
    RunWithVanishingFile(m_strCsv, [&] { outcome = ElCheck(m_strCsv, 1); });
    EXPECT_EQ(outcome, Failed("0000-00000-HE70018E"));
    EXPECT_EQ(ElConvert(1, m_arguments), Failed("9999-00001-HE70013E"));
}

// --- what ends the keys ---

struct EndingCase
{
    const char* szName;
    void (*request)(const std::string& strCsv, const ConvertArguments& arguments);
    bool bKeyLives;
};

std::ostream& operator<<(std::ostream& stream, const EndingCase& testCase)
{
    return stream << testCase.szName;
}

class EndingTest : public KZICsvConvMokEkaTest, public testing::WithParamInterface<EndingCase>
{};

TEST_P(EndingTest, KeyLivesOnAsTold)
{
    ASSERT_EQ(ElCheck(m_strCsv, 4).strResult, "S_OK");
    GetParam().request(m_strCsv, m_arguments);
    if (GetParam().bKeyLives)
        EXPECT_EQ(ElConvert(4, m_arguments).strResult, "S_OK");
    else
        EXPECT_EQ(ElConvert(4, m_arguments), Failed("9999-00001-HE70013E"));
}

const EndingCase ENDING_CASES[] = {
    {"PassedPlainCheckEndsIt",
     [](const std::string& strCsv, const ConvertArguments&) {
         EXPECT_EQ(Check(strCsv).strResult, "S_OK");
     },
     false},
    {"PlainCheckWithoutAPathEndsIt",
     [](const std::string&, const ConvertArguments&) { EXPECT_EQ(Check("").strResult, "E_FAIL"); },
     false},
    {"PassedPlainConversionEndsIt",
     [](const std::string&, const ConvertArguments& arguments) {
         EXPECT_EQ(Convert(arguments), Done());
     },
     false},
    {"RefusedPlainConversionEndsIt",
     [](const std::string&, const ConvertArguments&) {
         EXPECT_EQ(Convert(ConvertArguments()).strResult, "E_FAIL");
     },
     false},
    {"TerminateEndsIt", [](const std::string&, const ConvertArguments&) { Terminate(); }, false},
    {"TerminateTwiceEndsIt",
     [](const std::string&, const ConvertArguments&) {
         Terminate();
         Terminate();
     },
     false},
    {"PassedCsvWriteKeepsIt",
     [](const std::string& strCsv, const ConvertArguments&) {
         EXPECT_EQ(Write((strCsv + ".txt").c_str(), "text"), Done());
     },
     true},
    {"FailedCsvWriteKeepsIt",
     [](const std::string&, const ConvertArguments&) {
         EXPECT_EQ(Write(nullptr, nullptr).strResult, "E_FAIL");
     },
     true},
    {"ElCheckOfAnotherKeyKeepsIt",
     [](const std::string& strCsv, const ConvertArguments&) {
         EXPECT_EQ(ElCheck(strCsv, 5).strResult, "S_OK");
     },
     true},
    {"ElConversionOfAnUnknownKeyKeepsIt",
     [](const std::string&, const ConvertArguments& arguments) {
         EXPECT_EQ(ElConvert(1, arguments).strResult, "E_FAIL");
     },
     true},
    {"ElConversionOfABadKeyKeepsIt",
     [](const std::string&, const ConvertArguments& arguments) {
         EXPECT_EQ(ElConvert(0, arguments).strResult, "E_FAIL");
     },
     true},
};

INSTANTIATE_TEST_SUITE_P(Requests,
                         EndingTest,
                         testing::ValuesIn(ENDING_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

// --- Terminate ---

TEST_F(KZICsvConvMokEkaTest, TerminateWithoutAnyRequestDoesNothing)
{
    EXPECT_EQ(OutcomeInChild([this] {
                  KZICsvConvMokEka api;
                  api.Terminate();
                  api.Terminate();
                  return OutcomeOf(api.CsvCheck(m_strCsv.c_str()));
              }),
              CheckPassed("PGE5020"));
}

TEST_F(KZICsvConvMokEkaTest, EveryOperationWorksAfterTerminate)
{
    for (int nRound = 0; nRound < 3; ++nRound) {
        Terminate();
        EXPECT_EQ(Check(m_strCsv), CheckPassed("PGE5020"));
        Terminate();
        EXPECT_EQ(Convert(m_arguments), Done());
        Terminate();
        EXPECT_EQ(Write(File("x.txt").c_str(), "x"), Done());
        Terminate();
        EXPECT_EQ(ElCheck(m_strCsv, 1), ElCheckPassed("PGE5020", "2"));
        EXPECT_EQ(ElConvert(1, m_arguments).strResult, "S_OK");
    }
}

TEST_F(KZICsvConvMokEkaTest, FailedRequestLeavesNothingForTheNextOne)
{
    ASSERT_EQ(Check(File("missing.csv")), Failed("9999-00001-HE70013E"));
    ASSERT_EQ(Check(""), Failed("9999-00001-HE70001E"));
    EXPECT_EQ(Check(m_strCsv), CheckPassed("PGE5020"));
}
