// Requests of the Finance and CrossBorder families one after another: what a key keeps, which
// document comes out the second time, what ends the keys, large files.
#include <algorithm>
#include <array>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "FamilyRequest.h"

namespace {

constexpr std::size_t MAX_DOCUMENT_SIZE = 10485760;  // bytes
constexpr std::size_t MAX_RECORDS = 1000;

std::string ArgumentError(long lColumn, const char* szCode)
{
    std::string strColumn = std::to_string(lColumn);
    strColumn.insert(0, 5 - strColumn.size(), '0');
    return "9999-" + strColumn + "-" + szCode;
}

/// A report element, which is a page of one record.
std::string Page(const FamilyForms& forms,
                 std::size_t nNumber,
                 const std::string& strDay,
                 const std::vector<std::string>& vecCell)
{
    const std::string strName = forms.szReportId;
    const std::string strNumber = std::to_string(nNumber);
    std::string strText = "<" + strName + " VR=\"1.0\" id=\"" + strName + "-" + strNumber +
                          "\" page=\"" + strNumber + "\" sakuseiDay=\"" + strDay +
                          "\" sakuseiNM=\"山田太郎\" softNM=\"見本ソフト\">";
    for (std::size_t n = 0; n < vecCell.size(); ++n) {
        const std::string strTag = strName + std::to_string(n + 2);
        if (!vecCell[n].empty())
            strText += "<" + strTag + ">" + vecCell[n] + "</" + strTag + ">";
    }
    return strText + "</" + strName + ">";
}

/// The document of the arguments that FamilyTest makes, around reports.
std::string Document(const FamilyForms& forms,
                     const std::string& strDay,
                     const std::vector<std::vector<std::string>>& vecRecord)
{
    const std::string strProcId = forms.szProcId;
    std::string strItems;
    std::string strPages;
    for (std::size_t n = 1; n <= vecRecord.size(); ++n) {
        strItems += R"(<rdf:li><rdf:description about="#)" + std::string(forms.szReportId) + "-" +
                    std::to_string(n) + R"("/></rdf:li>)";
        strPages += Page(forms, n, strDay, vecRecord[n - 1]);
    }
    return R"(<?xml version="1.0" encoding="UTF-8" standalone="no" ?>)"
           R"(<DATA xmlns="http://xml.luvia.example/XSD/gensen" id="DATA")"
           R"( xmlns:gen="http://xml.luvia.example/XSD/general")"
           R"( xmlns:kyo="http://xml.luvia.example/XSD/kyotsu")"
           R"( xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance"><)" +
           strProcId + R"( VR="7.0" id=")" + strProcId +
           R"("><CATALOG id="CATALOG">)"
           R"(<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">)"
           R"(<rdf:description id="REPORT"><SEND_DATA/><IT_SEC><rdf:description about="#IT"/>)"
           R"(</IT_SEC><FORM_SEC><rdf:Seq>)" +
           strItems +
           R"(</rdf:Seq></FORM_SEC><TENPU_SEC/><XBRL_SEC/><XBRL2_1_SEC/><SOFUSHO_SEC/>)"
           R"(</rdf:description></rdf:RDF></CATALOG><CONTENTS id="CONTENTS">)"
           R"(<IT VR="1.3" id="IT"><ZEIMUSHO ID="ZEIMUSHO"><gen:zeimusho_CD>01234)"
           R"(</gen:zeimusho_CD></ZEIMUSHO><TEISYUTSU_DAY ID="TEISYUTSU_DAY"><gen:era>5</gen:era>)"
           R"(<gen:yy>6</gen:yy><gen:mm>7</gen:mm><gen:dd>8</gen:dd></TEISYUTSU_DAY>)"
           R"(<NOZEISHA_ID ID="NOZEISHA_ID">1234567890123456</NOZEISHA_ID>)"
           R"(<NOZEISHA_NM ID="NOZEISHA_NM">山田太郎</NOZEISHA_NM>)"
           R"(<NOZEISHA_ZIP ID="NOZEISHA_ZIP"><gen:zip1>123</gen:zip1><gen:zip2>4567</gen:zip2>)"
           R"(</NOZEISHA_ZIP><NOZEISHA_ADR ID="NOZEISHA_ADR">見本県見本市一丁目１番地</NOZEISHA_ADR>)"
           R"(<TETSUZUKI ID="TETSUZUKI"><procedure_CD>)" +
           strProcId + "</procedure_CD></TETSUZUKI></IT>" + strPages + "</CONTENTS></" + strProcId +
           "></DATA>";
}

/// The day that the document itself names, if it is today or was when the test began: a test may
/// run across midnight.
std::string DayOf(const std::string& strDocument, const std::string& strStartDay)
{
    return strDocument.find(strStartDay) != std::string::npos ? strStartDay : Today();
}

std::string FormsName(const testing::TestParamInfo<const FamilyForms*>& testCase)
{
    return testCase.param->szName;
}

}  // namespace

// --- keys and repeated conversions ---

class FamilyRequestTest : public FamilyTest, public testing::WithParamInterface<const FamilyForms*>
{
protected:
    FamilyRequestTest()
        : m_strTwo(MakeFile("two.csv",
                            ToShiftJis(Forms().Record("12345,佐藤次郎,50,1") + "\r\n" +
                                       Forms().Record("67890,高橋,,"))))
    {
    }

    const FamilyForms& Forms() const { return *GetParam(); }
    Outcome CheckFile(const std::string& strCsv) const { return ::Check(Forms().eFamily, strCsv); }
    Outcome KeepFile(const std::string& strCsv, std::int64_t lKey) const
    {
        return ElCheck(Forms().eFamily, strCsv, lKey);
    }
    Outcome ConvertKey(std::int64_t lKey) const { return ConvertKey(lKey, Arguments(Forms(), "")); }
    Outcome ConvertKey(std::int64_t lKey, const FilingArguments& arguments) const
    {
        return ElConvert(Forms().eFamily, lKey, arguments);
    }
    Outcome ConvertFree(std::int64_t lKey) const
    {
        return ConvertKey(lKey, Arguments(Forms(), "", true));
    }
    /// A file of the form without checks that holds one record.
    std::string FreeCsv(const std::string& strCell) const
    {
        return MakeFile("free.csv", Forms().FreeRecord(strCell) + "\r\n");
    }
    std::string FreeElement(const std::string& strText) const
    {
        const std::string strTag = std::string(Forms().szFreeReportId) + "2";
        return "<" + strTag + ">" + strText + "</" + strTag + ">";
    }
    /// The document of m_strTwo, made on the same day as the given one.
    std::string DocumentOfTwo(const std::string& strOther) const
    {
        return Document(Forms(), DayOf(strOther, m_strDay),
                        {{"12345", "佐藤次郎", "50", "1"}, {"67890", "高橋"}});
    }
    /// The key still holds m_strTwo.
    void ExpectTwo(std::int64_t lKey) const
    {
        const Outcome outcome = ConvertKey(lKey);
        EXPECT_EQ(outcome, ElConvertPassed(DocumentOfTwo(outcome.strMokData)));
    }

    const Outcome m_unknownKey = Failed("9999-00001-HE70013E");
    const std::string m_strDay = Today();
    const std::string m_strTwo;
};

INSTANTIATE_TEST_SUITE_P(Families,
                         FamilyRequestTest,
                         testing::Values(&FINANCE_FORMS, &CROSSBORDER_FORMS),
                         FormsName);

TEST_P(FamilyRequestTest, ConversionWritesTheWholeDocument)
{
    ASSERT_EQ(Convert(Forms().eFamily, Arguments(Forms(), m_strTwo)), Done());
    const std::string strDocument = ReadBytes(m_strMok);
    EXPECT_EQ(strDocument, DocumentOfTwo(strDocument));
}

TEST_P(FamilyRequestTest, RepeatedPlainConversionsWriteTheSameDocument)
{
    for (int n = 0; n < 3; ++n) {
        ASSERT_EQ(Convert(Forms().eFamily, Arguments(Forms(), m_strTwo)), Done());
        const std::string strDocument = ReadBytes(m_strMok);
        EXPECT_EQ(strDocument, DocumentOfTwo(strDocument));
    }
}

TEST_P(FamilyRequestTest, RepeatedConversionsOfAKeyGiveTheSameDocument)
{
    ASSERT_EQ(KeepFile(m_strTwo, 1), ElCheckPassed(Forms().szProcId, "2"));
    for (int n = 0; n < 5; ++n)
        ExpectTwo(1);
}

TEST_P(FamilyRequestTest, EveryKeyLivesWithItsOwnFile)
{
    for (std::int64_t lKey = Forms().lLastKey; lKey >= 1; --lKey)
        ASSERT_EQ(KeepFile(FreeCsv("cell" + std::to_string(lKey)), lKey),
                  ElCheckPassed(Forms().szFreeProcId, "1"));
    for (int nRound = 0; nRound < 2; ++nRound)
        for (std::int64_t lKey = 1; lKey <= Forms().lLastKey; ++lKey)
            EXPECT_NE(ConvertFree(lKey).strMokData.find(FreeElement("cell" + std::to_string(lKey))),
                      std::string::npos)
                << lKey;
}

TEST_P(FamilyRequestTest, OneKeyMoreThanTheLastIsRefusedAndKeepsTheOthers)
{
    ASSERT_EQ(KeepFile(m_strTwo, Forms().lLastKey), ElCheckPassed(Forms().szProcId, "2"));
    EXPECT_EQ(KeepFile(m_strTwo, Forms().lLastKey + 1), Failed("9999-00002-HE70009E"));
    EXPECT_EQ(ConvertKey(Forms().lLastKey + 1), Failed("9999-00001-HE70009E"));
    ExpectTwo(Forms().lLastKey);
}

TEST_P(FamilyRequestTest, KeyZeroIsRefused)
{
    EXPECT_EQ(KeepFile(m_strTwo, 0), Failed("9999-00002-HE70009E"));
    EXPECT_EQ(ConvertKey(0), Failed("9999-00001-HE70009E"));
}

TEST_P(FamilyRequestTest, KeysOfTwoProceduresTakeTurns)
{
    ASSERT_EQ(KeepFile(m_strTwo, 1).strResult, "S_OK");
    ASSERT_EQ(KeepFile(FreeCsv("x"), 2).strResult, "S_OK");
    for (int n = 0; n < 3; ++n) {
        ExpectTwo(1);
        EXPECT_NE(ConvertFree(2).strMokData.find(FreeElement("x")), std::string::npos);
    }
}

TEST_P(FamilyRequestTest, SecondElCheckOfAKeyReplacesWhatWasKept)
{
    ASSERT_EQ(KeepFile(FreeCsv("x"), 1).strResult, "S_OK");
    ASSERT_EQ(ConvertFree(1).strResult, "S_OK");
    ASSERT_EQ(KeepFile(m_strTwo, 1), ElCheckPassed(Forms().szProcId, "2"));
    ExpectTwo(1);
}

TEST_P(FamilyRequestTest, UnknownKeyHasNoFile)
{
    ASSERT_EQ(KeepFile(m_strTwo, 1).strResult, "S_OK");
    EXPECT_EQ(ConvertKey(2), m_unknownKey);
    EXPECT_EQ(ConvertKey(2), m_unknownKey);
    ExpectTwo(1);
}

TEST_P(FamilyRequestTest, RefusedArgumentsLeaveTheKeyConvertible)
{
    ASSERT_EQ(KeepFile(m_strTwo, 1).strResult, "S_OK");
    FilingArguments arguments = Arguments(Forms(), "");
    arguments.nozeishaNm = std::nullopt;
    EXPECT_EQ(ConvertKey(1, arguments), Failed(ArgumentError(Forms().lNameColumn, "HE70001E")));
    ExpectTwo(1);
}

TEST_P(FamilyRequestTest, OtherProcedureThanTheFilesIsRefusedAndLeavesTheKeyConvertible)
{
    ASSERT_EQ(KeepFile(m_strTwo, 1).strResult, "S_OK");
    const Outcome mismatch = Failed(ArgumentError(Forms().lProcedureColumn, "HE70010E"));
    EXPECT_EQ(ConvertFree(1), mismatch);
    ExpectTwo(1);
    EXPECT_EQ(ConvertFree(1), mismatch);
    ExpectTwo(1);
}

TEST_P(FamilyRequestTest, OtherProcedureThanTheFilesIsRefusedOnThePlainPath)
{
    EXPECT_EQ(Convert(Forms().eFamily, Arguments(Forms(), m_strTwo, true)),
              Failed(ArgumentError(Forms().lProcedureColumn + 1, "HE70010E")));
    EXPECT_FALSE(Exists(m_strMok));
}

TEST_P(FamilyRequestTest, BrokenDocumentOfAKeyBreaksEachTimeAndHarmsNoOtherKey)
{
    ASSERT_EQ(KeepFile(m_strTwo, 1).strResult, "S_OK");
    ASSERT_EQ(KeepFile(FreeCsv("a\x01z"), 2), ElCheckPassed(Forms().szFreeProcId, "1"));
    for (int n = 0; n < 2; ++n) {
        EXPECT_EQ(ConvertFree(2), Failed("0000-00000-HE70016E"));
        ExpectTwo(1);
    }
}

TEST_P(FamilyRequestTest, TooLargeDocumentOfAKeyIsRefusedEachTimeAndHarmsNoOtherKey)
{
    ASSERT_EQ(KeepFile(m_strTwo, 1).strResult, "S_OK");
    ASSERT_EQ(KeepFile(FreeCsv(std::string(MAX_DOCUMENT_SIZE, 'a')), 2).strResult, "S_OK");
    for (int n = 0; n < 2; ++n) {
        EXPECT_EQ(ConvertFree(2), Failed("0000-00000-HE70023E"));
        ExpectTwo(1);
    }
}

TEST_P(FamilyRequestTest, TemplateIsReadAtEveryConversionOfAKey)
{
    ASSERT_EQ(KeepFile(m_strTwo, 1).strResult, "S_OK");
    const std::string strPath = TemplatePath(m_strBundle, Forms(), Forms().szProcId);
    const std::string strTemplate = ReadBytes(strPath);
    std::filesystem::remove(strPath);
    EXPECT_EQ(ConvertKey(1), Failed("0000-00000-HE70018E"));
    WriteBytes(strPath, strTemplate);
    ExpectTwo(1);
}

TEST_P(FamilyRequestTest, FileItselfIsReadAtTheElCheckAlone)
{
    ASSERT_EQ(KeepFile(m_strTwo, 1).strResult, "S_OK");
    std::filesystem::remove(m_strTwo);
    ExpectTwo(1);
}

TEST_P(FamilyRequestTest, ElCheckThatFailsDropsAnEarlierFileOfItsKeyAlone)
{
    ASSERT_EQ(KeepFile(m_strTwo, 1).strResult, "S_OK");
    ASSERT_EQ(KeepFile(m_strTwo, 2).strResult, "S_OK");
    const std::string strBad = MakeFile("bad.csv", Forms().Record("x,a,,"));
    EXPECT_EQ(KeepFile(strBad, 1), Failed("0001-00002-HE70004E"));
    EXPECT_EQ(ConvertKey(1), m_unknownKey);
    ExpectTwo(2);
}

TEST_P(FamilyRequestTest, ElCheckWithABadPathKeepsAnEarlierFileOfItsKey)
{
    ASSERT_EQ(KeepFile(m_strTwo, 1).strResult, "S_OK");
    EXPECT_EQ(KeepFile(File("missing.csv"), 1), Failed("9999-00001-HE70013E"));
    ExpectTwo(1);
}

TEST_P(FamilyRequestTest, CellsOfAKeptFileAreReadAsUtf8)
{
    const std::string strCsv = MakeFile("kana.csv", ToShiftJis(Forms().FreeRecord("ソ表予")));
    ASSERT_EQ(KeepFile(strCsv, 1), ElCheckPassed(Forms().szFreeProcId, "1"));
    EXPECT_NE(ConvertFree(1).strMokData.find(FreeElement("ソ表予")), std::string::npos);
}

TEST_P(FamilyRequestTest, EqualErrorsStandOnce)
{
    const std::string strItem = ItemXml(Forms().szFreeReportId, 2, R"(<valid id="number"/>)");
    WriteBytes(
        ValidationPath(m_strBundle, Forms(), Forms().szFreeProcId),
        DefinitionXml(ReportXml(Forms().szFreeProcId, Forms().szFreeReportId, strItem + strItem)));
    EXPECT_EQ(CheckFile(FreeCsv("x")), Failed("0001-00002-HE70004E"));
    EXPECT_EQ(KeepFile(FreeCsv("x"), 1), Failed("0001-00002-HE70004E"));
}

// --- large files ---

TEST_P(FamilyRequestTest, ThousandRecordsMakeThousandNumberedReports)
{
    std::string strBytes;
    std::vector<std::vector<std::string>> vecRecord;
    for (std::size_t n = 1; n <= MAX_RECORDS; ++n) {
        strBytes += Forms().Record(std::to_string(n) + ",a,,") + "\r\n";
        vecRecord.push_back({std::to_string(n), "a"});
    }
    const std::string strCsv = MakeFile("large.csv", strBytes);
    EXPECT_EQ(CheckFile(strCsv), CheckPassed(Forms().szProcId));
    ASSERT_EQ(Convert(Forms().eFamily, Arguments(Forms(), strCsv)), Done());
    const std::string strDocument = ReadBytes(m_strMok);
    EXPECT_EQ(strDocument, Document(Forms(), DayOf(strDocument, m_strDay), vecRecord));
    ASSERT_EQ(KeepFile(strCsv, 1), ElCheckPassed(Forms().szProcId, "1000"));
    for (int n = 0; n < 2; ++n) {
        const Outcome outcome = ConvertKey(1);
        EXPECT_EQ(outcome, ElConvertPassed(
                               Document(Forms(), DayOf(outcome.strMokData, m_strDay), vecRecord)));
    }
}

TEST_P(FamilyRequestTest, ErrorsOfThousandRecordsAllReachTheTable)
{
    const std::string strCsv =
        MakeFile("large.csv", Repeat(Forms().Record("x,,0,9") + "\r\n", MAX_RECORDS));
    const Outcome outcome = CheckFile(strCsv);
    EXPECT_EQ(std::ranges::count(outcome.strDetailErrorInfo, ',') + 1, 4000);
    EXPECT_TRUE(
        outcome.strDetailErrorInfo.starts_with("0001-00002-HE70004E,0001-00003-HE70001E,"
                                               "0001-00004-HE70009E,0001-00005-HE70009E,"
                                               "0002-00002-HE70004E,"));
    EXPECT_TRUE(outcome.strDetailErrorInfo.ends_with(",1000-00005-HE70009E"));
}

class FamilyDocumentSizeTest : public FamilyRequestTest
{
protected:
    /// A file of 1,000 records whose document has this many bytes: each letter of a cell is one.
    std::string CsvForDocumentOf(std::size_t nSize)
    {
        const std::string strCsv = File("large.csv");
        WriteBytes(strCsv, Repeat(Forms().FreeRecord("a") + "\r\n", MAX_RECORDS));
        EXPECT_EQ(KeepFile(strCsv, 1).strResult, "S_OK");
        const std::size_t nMissing = nSize - ConvertFree(1).strMokData.size();
        std::string strBytes;
        for (std::size_t n = 0; n < MAX_RECORDS; ++n) {
            const std::size_t nMore = nMissing / MAX_RECORDS + (n < nMissing % MAX_RECORDS ? 1 : 0);
            strBytes += Forms().FreeRecord(std::string(1 + nMore, 'a')) + "\r\n";
        }
        WriteBytes(strCsv, strBytes);
        return strCsv;
    }
};

INSTANTIATE_TEST_SUITE_P(Families,
                         FamilyDocumentSizeTest,
                         testing::Values(&FINANCE_FORMS, &CROSSBORDER_FORMS),
                         FormsName);

TEST_P(FamilyDocumentSizeTest, DocumentOfExactlyTenMebibytesIsMade)
{
    const std::string strCsv = CsvForDocumentOf(MAX_DOCUMENT_SIZE);
    ASSERT_EQ(KeepFile(strCsv, 1), ElCheckPassed(Forms().szFreeProcId, "1000"));
    EXPECT_EQ(ConvertFree(1).strMokData.size(), MAX_DOCUMENT_SIZE);
    EXPECT_EQ(Convert(Forms().eFamily, Arguments(Forms(), strCsv, true)), Done());
    EXPECT_EQ(std::filesystem::file_size(m_strMok), MAX_DOCUMENT_SIZE);
}

TEST_P(FamilyDocumentSizeTest, OneByteMoreIsRefused)
{
    const std::string strCsv = CsvForDocumentOf(MAX_DOCUMENT_SIZE + 1);
    ASSERT_EQ(KeepFile(strCsv, 1), ElCheckPassed(Forms().szFreeProcId, "1000"));
    EXPECT_EQ(ConvertFree(1), Failed("0000-00000-HE70023E"));
    EXPECT_EQ(Convert(Forms().eFamily, Arguments(Forms(), strCsv, true)),
              Failed("0000-00000-HE70023E"));
    EXPECT_FALSE(Exists(m_strMok));
}

// --- the change of family ---

struct FamilyRequest
{
    const char* szName;
    /// The arguments are good ones of the family; key 1 may be kept.
    Outcome (*request)(const FamilyForms& forms, const FilingArguments& arguments);
    bool bPlain;
};

const FamilyRequest FAMILY_REQUESTS[] = {
    {"PassedCheck",
     [](const FamilyForms& forms, const FilingArguments& arguments) {
         return Check(forms.eFamily, *arguments.csvPath);
     },
     true},
    {"CheckWithoutAPath",
     [](const FamilyForms& forms, const FilingArguments&) { return Check(forms.eFamily, ""); },
     true},
    {"PassedConversion",
     [](const FamilyForms& forms, const FilingArguments& arguments) {
         return Convert(forms.eFamily, arguments);
     },
     true},
    {"ConversionWithoutArguments",
     [](const FamilyForms& forms, const FilingArguments&) {
         return Convert(forms.eFamily, FilingArguments());
     },
     true},
    {"PassedElCheck",
     [](const FamilyForms& forms, const FilingArguments& arguments) {
         return ElCheck(forms.eFamily, *arguments.csvPath, 2);
     },
     false},
    {"ElCheckWithoutAPath",
     [](const FamilyForms& forms, const FilingArguments&) { return ElCheck(forms.eFamily, "", 1); },
     false},
    {"ElCheckOfABadKey",
     [](const FamilyForms& forms, const FilingArguments& arguments) {
         return ElCheck(forms.eFamily, *arguments.csvPath, 0);
     },
     false},
    {"ElConversionOfAnUnknownKey",
     [](const FamilyForms& forms, const FilingArguments& arguments) {
         return ElConvert(forms.eFamily, 3, arguments);
     },
     false},
    {"ElConversionOfABadKey",
     [](const FamilyForms& forms, const FilingArguments& arguments) {
         return ElConvert(forms.eFamily, 0, arguments);
     },
     false},
};

struct FamilyChange
{
    const FamilyForms* pKept;   ///< whose key 1 is kept
    const FamilyForms* pOther;  ///< whose request comes then
    const FamilyRequest* pRequest;
};

std::ostream& operator<<(std::ostream& stream, const FamilyChange& change)
{
    return stream << change.pKept->szName << "Then" << change.pOther->szName
                  << change.pRequest->szName;
}

std::vector<FamilyChange> FamilyChanges()
{
    std::vector<FamilyChange> vecChange;
    for (const FamilyForms* pKept : {&BASE_FORMS, &FINANCE_FORMS, &CROSSBORDER_FORMS})
        for (const FamilyForms* pOther : {&BASE_FORMS, &FINANCE_FORMS, &CROSSBORDER_FORMS})
            for (const FamilyRequest& request : FAMILY_REQUESTS)
                vecChange.push_back({pKept, pOther, &request});
    return vecChange;
}

class FamilyChangeTest : public FamilyTest, public testing::WithParamInterface<FamilyChange>
{};

INSTANTIATE_TEST_SUITE_P(Requests,
                         FamilyChangeTest,
                         testing::ValuesIn(FamilyChanges()),
                         testing::PrintToStringParamName());

TEST_P(FamilyChangeTest, OnlyElRequestsOfItsOwnFamilyKeepAKey)
{
    const FamilyForms& kept = *GetParam().pKept;
    const FamilyForms& other = *GetParam().pOther;
    const FamilyRequest& request = *GetParam().pRequest;
    ASSERT_EQ(ElCheck(kept.eFamily, GoodCsv(kept), 1), ElCheckPassed(kept.szProcId, "1"));

    const Outcome outcome = request.request(other, Arguments(other, GoodCsv(other)));
    EXPECT_EQ(outcome.strResult,
              std::string(request.szName).starts_with("Passed") ? "S_OK" : "E_FAIL");

    const Outcome conversion = ElConvert(kept.eFamily, 1, Arguments(kept, ""));
    if (&kept == &other && !request.bPlain)
        EXPECT_EQ(conversion.strResult, "S_OK");
    else
        EXPECT_EQ(conversion, Failed("9999-00001-HE70013E"));
}

TEST_F(FamilyTest, FamiliesTakeTurnsInEveryOrder)
{
    std::array<const FamilyForms*, 3> order = {&BASE_FORMS, &FINANCE_FORMS, &CROSSBORDER_FORMS};
    std::ranges::sort(order);
    do {
        for (const FamilyForms* pForms : order) {
            SCOPED_TRACE(pForms->szName);
            const std::string strCsv = GoodCsv(*pForms);
            const FilingArguments arguments = Arguments(*pForms, strCsv);
            EXPECT_EQ(Check(pForms->eFamily, strCsv), CheckPassed(pForms->szProcId));
            EXPECT_EQ(Convert(pForms->eFamily, arguments), Done());
            EXPECT_EQ(ElCheck(pForms->eFamily, strCsv, pForms->lLastKey),
                      ElCheckPassed(pForms->szProcId, "1"));
            const std::string strFirst =
                ElConvert(pForms->eFamily, pForms->lLastKey, arguments).strMokData;
            EXPECT_NE(strFirst.find("<" + std::string(pForms->szReportId) + " "),
                      std::string::npos);
            EXPECT_EQ(ElConvert(pForms->eFamily, pForms->lLastKey, arguments).strMokData, strFirst);
        }
    } while (std::ranges::next_permutation(order).found);
}

TEST_F(FamilyTest, NumbersOfADocumentDoNotRunOnIntoTheNextFamilys)
{
    for (int n = 0; n < 2; ++n) {
        for (const FamilyForms* pForms : {&FINANCE_FORMS, &CROSSBORDER_FORMS}) {
            ASSERT_EQ(Convert(pForms->eFamily, Arguments(*pForms, GoodCsv(*pForms))), Done());
            const std::string strDocument = ReadBytes(m_strMok);
            const std::string strDay = strDocument.substr(
                strDocument.find("sakuseiDay=\"") + std::string("sakuseiDay=\"").size(), 10);
            EXPECT_EQ(strDocument, Document(*pForms, strDay, {{"1", "a"}}));
        }
    }
}

TEST_F(FamilyTest, FinanceFileThatVanishesBeforeItsReReadingFailsTheElCheckAndDropsTheKey)
{
    const std::string strCsv = GoodCsv(FINANCE_FORMS);
    Outcome outcome;
    RunWithVanishingFile(strCsv, [&] { outcome = ElCheck(Family::FINANCE, strCsv, 1); });
    EXPECT_EQ(outcome, Failed("0000-00000-HE70018E"));
    EXPECT_EQ(ElConvert(Family::FINANCE, 1, Arguments(FINANCE_FORMS, "")),
              Failed("9999-00001-HE70013E"));
}

TEST_F(FamilyTest, CrossBorderFileThatVanishesBeforeItsReReadingPassesAndHasNothingToConvert)
{
    const std::string strCsv = GoodCsv(CROSSBORDER_FORMS);
    Outcome outcome;
    RunWithVanishingFile(strCsv, [&] { outcome = ElCheck(Family::CROSSBORDER, strCsv, 1); });
    EXPECT_EQ(outcome, ElCheckPassed(CROSSBORDER_FORMS.szProcId, "1"));
    // The fault was recorded all the same; the next who renders the errors tells it.
    EXPECT_EQ(Write("", "x"), Failed("0000-00000-HE70018E,0000-00000-HE70027E"));
    EXPECT_EQ(ElConvert(Family::CROSSBORDER, 1, Arguments(CROSSBORDER_FORMS, "")),
              Failed("9999-00001-HE70013E"));
}

TEST_F(FamilyTest, FileOfAnotherFamilyIsRefused)
{
    const std::string strCsv = GoodCsv(FINANCE_FORMS);
    EXPECT_EQ(Check(Family::BASE, strCsv), Failed("0000-00001-HE70021E"));
    EXPECT_EQ(Check(Family::CROSSBORDER, strCsv), Failed("0000-00001-HE70021E"));
    EXPECT_EQ(Check(Family::FINANCE, GoodCsv(CROSSBORDER_FORMS)),
              Failed("0000-00001-HE70021E,0000-00000-HE70019E"));
    EXPECT_EQ(Check(Family::FINANCE, GoodCsv(BASE_FORMS)),
              Failed("0000-00001-HE70021E,0000-00000-HE70019E"));
}

TEST_F(FamilyTest, FailedRequestOfAFamilyLeavesNothingForTheNextOnes)
{
    for (const FamilyForms* pBad : {&BASE_FORMS, &FINANCE_FORMS, &CROSSBORDER_FORMS}) {
        for (const FamilyForms* pGood : {&BASE_FORMS, &FINANCE_FORMS, &CROSSBORDER_FORMS}) {
            const std::string strBad = MakeFile("bad.csv", pBad->Record("x,a,,"));
            EXPECT_EQ(Check(pBad->eFamily, strBad), Failed("0001-00002-HE70004E"));
            EXPECT_EQ(Check(pGood->eFamily, GoodCsv(*pGood)), CheckPassed(pGood->szProcId));
            EXPECT_EQ(Check(pBad->eFamily, File("missing.csv")), Failed("9999-00001-HE70013E"));
            EXPECT_EQ(Convert(pGood->eFamily, Arguments(*pGood, GoodCsv(*pGood))), Done());
        }
    }
}
