// The points at which the families' requests part, each for all families: what one of them does in
// its own way must stay so.
#include "request/RequestSteps.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <ostream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "KZCEkaMOKManager.h"
#include "KZCEkaMOKManagerCrossBorder.h"
#include "KZCEkaMOKManagerFinance.h"
#include "support/FamilyHost.h"
#include "support/LogEntries.h"

namespace {

constexpr const char* FATAL_ERROR = "0000-00000-HE70018E";

std::string Detail()
{
    return KZCValidResult::instance()->MakeResult();
}

enum class Path
{
    Plain,
    El,
};

std::ostream& operator<<(std::ostream& stream, Path ePath)
{
    return stream << (ePath == Path::Plain ? "Plain" : "El");
}

class RequestStepsTest : public FamilyHost
{
protected:
    /// Converts a good file on one of the paths, under key 2 on the EL path.
    Answer ConvertOn(Path ePath, Family eFamily, const Filer& filer)
    {
        if (ePath == Path::Plain)
            return Convert(eFamily, GoodCsv(eFamily), filer);
        EXPECT_EQ(ElCheck(eFamily, GoodCsv(eFamily), 2).strResult, "S_OK");
        return ElConvert(eFamily, 2, filer);
    }
    /// Checks on one of the paths, under key 2 on the EL path.
    Answer CheckOn(Path ePath, Family eFamily, const std::string& strCsv)
    {
        return ePath == Path::Plain ? Check(eFamily, strCsv) : ElCheck(eFamily, strCsv, 2);
    }
    /// A field of the IT section that an EL conversion has left under key 2.
    static std::string Kept(KZCEkaITDataFinance_t eId)
    {
        const auto& it =
            dynamic_cast<const KZCEkaITDataFinance&>(*KZCConvertInfo::instance()->GetITData(2));
        return it.GetITDataFinance(eId);
    }
};

// ---- results of requests that pass -------------------------------------------------------------

class FamilyTest : public RequestStepsTest, public testing::WithParamInterface<Family>
{};

std::string Name(const testing::TestParamInfo<Family>& info)
{
    return testing::PrintToString(info.param);
}

INSTANTIATE_TEST_SUITE_P(Families, FamilyTest, testing::ValuesIn(FAMILIES), Name);

TEST_P(FamilyTest, PassedCheckTellsResultAndProcedureAlone)
{
    EXPECT_EQ(Check(GetParam(), GoodCsv(GetParam())),
              (Answer{"S_OK", "", "", FilerOf(GetParam()).szTetsuzuki, ""}));
}

TEST_P(FamilyTest, PassedElCheckTellsTheRecordCountToo)
{
    const std::string strCsv = Csv(Record(GetParam()) + "\n" + Record(GetParam()));
    EXPECT_EQ(ElCheck(GetParam(), strCsv, 2),
              (Answer{"S_OK", "", "2", FilerOf(GetParam()).szTetsuzuki, ""}));
}

TEST_P(FamilyTest, PassedConversionTellsTheResultAlone)
{
    EXPECT_EQ(Convert(GetParam(), GoodCsv(GetParam()), FilerOf(GetParam())),
              (Answer{"S_OK", "", "", "", ""}));
    EXPECT_TRUE(m_folder.Has("out.mok"));
}

TEST_P(FamilyTest, PassedElConversionTellsTheDocumentOfThePlainOneAndItsProcedure)
{
    Filer filer = FilerOf(GetParam());
    filer.szSoftName = "eka_orbclient_ZEKA";  // all that the base family's EL path knows
    EXPECT_EQ(Convert(GetParam(), GoodCsv(GetParam()), filer).strResult, "S_OK");
    EXPECT_EQ(ElCheck(GetParam(), GoodCsv(GetParam()), 2).strResult, "S_OK");
    EXPECT_EQ(ElConvert(GetParam(), 2, filer),
              (Answer{"S_OK", "", "", filer.szTetsuzuki, m_folder.Read("out.mok")}));
}

TEST_P(FamilyTest, RefusedCheckTellsTheTableAlone)
{
    const std::string strCsv = Csv(Record(GetParam(), "x,ab"));
    EXPECT_EQ(Check(GetParam(), strCsv), Refused("0001-00002-HE70004E"));
    EXPECT_EQ(ElCheck(GetParam(), strCsv, 2), Refused("0001-00002-HE70004E"));
}

TEST_P(FamilyTest, SoftwareNameOfTheHostReachesTheElDocumentInAllFamiliesButTheBase)
{
    const std::string strMok = ConvertOn(Path::El, GetParam(), FilerOf(GetParam())).strMok;
    EXPECT_THAT(strMok,
                testing::HasSubstr(GetParam() == Family::Base ? R"(softNM="eka_orbclient_ZEKA")"
                                                              : R"(softNM="Soft")"));
}

TEST_P(FamilyTest, ElConversionCanBeRepeatedAndCorrected)
{
    Filer bad = FilerOf(GetParam());
    bad.szNozeishaNm = "";
    EXPECT_EQ(ElCheck(GetParam(), GoodCsv(GetParam()), 2).strResult, "S_OK");
    EXPECT_EQ(ElConvert(GetParam(), 2, bad).strResult, "E_FAIL");
    const Answer first = ElConvert(GetParam(), 2, FilerOf(GetParam()));
    EXPECT_EQ(first.strResult, "S_OK");
    EXPECT_EQ(ElConvert(GetParam(), 2, FilerOf(GetParam())), first);
}

TEST_P(FamilyTest, KeysKeepFilesOfTheirOwn)
{
    EXPECT_EQ(ElCheck(GetParam(), Csv(Record(GetParam(), "1,a")), 1).strResult, "S_OK");
    EXPECT_EQ(ElCheck(GetParam(), Csv(Record(GetParam(), "2,b")), 2).strResult, "S_OK");
    EXPECT_THAT(ElConvert(GetParam(), 1, FilerOf(GetParam())).strMok, testing::HasSubstr(">1</"));
    EXPECT_THAT(ElConvert(GetParam(), 2, FilerOf(GetParam())).strMok, testing::HasSubstr(">2</"));
}

TEST_P(FamilyTest, ElConversionOfAnUnknownKeyIsArgumentOne)
{
    EXPECT_EQ(ElConvert(GetParam(), 3, FilerOf(GetParam())), Refused("9999-00001-HE70013E"));
}

TEST_P(FamilyTest, UnknownKeyOfAnElConversionIsMadeInPassingAndStays)
{
    const std::string strCsv = GoodCsv(GetParam());
    EXPECT_EQ(ElConvert(GetParam(), 3, FilerOf(GetParam())).strResult, "E_FAIL");
    // A file is read again for a key that is there, and for no other.
    for (const long lKey : {3L, 4L})
        EXPECT_EQ(KZCConvertInfo::instance()->ReloadCsvFile(lKey, strCsv), STATUS_OK);
    EXPECT_GT(KZCConvertInfo::instance()->GetCsvFile(3)->GetRecordCount(), 0);
    EXPECT_EQ(KZCConvertInfo::instance()->GetCsvFile(4)->GetRecordCount(), 0);
}

TEST_P(FamilyTest, RefusedElCheckDropsTheFileOfItsKey)
{
    EXPECT_EQ(ElCheck(GetParam(), GoodCsv(GetParam()), 2).strResult, "S_OK");
    EXPECT_EQ(ElCheck(GetParam(), Csv(Record(GetParam(), "x,")), 2).strResult, "E_FAIL");
    EXPECT_EQ(ElConvert(GetParam(), 2, FilerOf(GetParam())), Refused("9999-00001-HE70013E"));
}

TEST_P(FamilyTest, ElCheckOfABadPathLeavesTheFileOfItsKey)
{
    EXPECT_EQ(ElCheck(GetParam(), GoodCsv(GetParam()), 2).strResult, "S_OK");
    EXPECT_EQ(ElCheck(GetParam(), "", 2), Refused("9999-00001-HE70001E"));
    EXPECT_EQ(ElConvert(GetParam(), 2, FilerOf(GetParam())).strResult, "S_OK");
}

TEST_P(FamilyTest, KeyLimitIsTheFamilys)
{
    const long lLast = GetParam() == Family::Base ? 5 : GetParam() == Family::Finance ? 16 : 10;
    EXPECT_EQ(ElCheck(GetParam(), GoodCsv(GetParam()), lLast).strResult, "S_OK");
    EXPECT_EQ(ElCheck(GetParam(), GoodCsv(GetParam()), lLast + 1), Refused("9999-00002-HE70009E"));
    EXPECT_EQ(ElConvert(GetParam(), lLast, FilerOf(GetParam())).strResult, "S_OK");
    EXPECT_EQ(ElConvert(GetParam(), lLast + 1, FilerOf(GetParam())),
              Refused("9999-00001-HE70009E"));
}

TEST_P(FamilyTest, ConversionTestsItsPathsBeforeItsFields)
{
    Filer filer = FilerOf(GetParam());
    filer.szZeimushoCD = "";
    EXPECT_EQ(Convert(GetParam(), "", filer), Refused("9999-00001-HE70001E,9999-00003-HE70001E"));
}

TEST_P(FamilyTest, ConversionWithABadFieldReadsNoFile)
{
    Filer filer = FilerOf(GetParam());
    filer.szZeimushoCD = "";
    // The file alone would be refused with another error.
    EXPECT_EQ(Convert(GetParam(), Csv("999\n"), filer), Refused("9999-00003-HE70001E"));
}

// ---- exec mode and check flag ------------------------------------------------------------------

using FamilyAndPath = std::tuple<Family, Path>;

std::string PathName(const testing::TestParamInfo<FamilyAndPath>& info)
{
    return testing::PrintToString(std::get<0>(info.param)) +
           testing::PrintToString(std::get<1>(info.param));
}

class PathTest : public RequestStepsTest, public testing::WithParamInterface<FamilyAndPath>
{
protected:
    const Family m_eFamily = std::get<0>(GetParam());
    const Path m_ePath = std::get<1>(GetParam());
    const KZCEkaCommon::EXEC_MODE m_eMode =
        m_eFamily == Family::Base ? KZCEkaCommon::EXEC_MODE_ZEKA : KZCEkaCommon::EXEC_MODE_OTHER;
    const KZCEkaCommon::EXEC_MODE m_eOtherMode =
        m_eFamily == Family::Base ? KZCEkaCommon::EXEC_MODE_OTHER : KZCEkaCommon::EXEC_MODE_ZEKA;
};

INSTANTIATE_TEST_SUITE_P(Families,
                         PathTest,
                         testing::Combine(testing::ValuesIn(FAMILIES),
                                          testing::Values(Path::Plain, Path::El)),
                         PathName);

TEST_P(PathTest, CheckSetsTheModeOfItsFamilyAndLeavesIt)
{
    KZCEkaCommon::setExecMode(m_eOtherMode);
    EXPECT_EQ(CheckOn(m_ePath, m_eFamily, GoodCsv(m_eFamily)).strResult, "S_OK");
    EXPECT_EQ(KZCEkaCommon::getExecMode(), m_eMode);
}

TEST_P(PathTest, CheckOfABadPathSetsTheModeToo)
{
    KZCEkaCommon::setExecMode(m_eOtherMode);
    EXPECT_EQ(CheckOn(m_ePath, m_eFamily, "").strResult, "E_FAIL");
    EXPECT_EQ(KZCEkaCommon::getExecMode(), m_eMode);
}

TEST_P(PathTest, ConversionSetsTheModeOfItsFamilyAndLeavesIt)
{
    EXPECT_EQ(ElCheck(m_eFamily, GoodCsv(m_eFamily), 2).strResult, "S_OK");
    KZCEkaCommon::setExecMode(m_eOtherMode);
    EXPECT_EQ(m_ePath == Path::Plain
                  ? Convert(m_eFamily, GoodCsv(m_eFamily), FilerOf(m_eFamily)).strResult
                  : ElConvert(m_eFamily, 2, FilerOf(m_eFamily)).strResult,
              "S_OK");
    EXPECT_EQ(KZCEkaCommon::getExecMode(), m_eMode);
}

TEST_P(PathTest, PassedAndRefusedChecksTakeTheCheckFlagDown)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    EXPECT_EQ(CheckOn(m_ePath, m_eFamily, GoodCsv(m_eFamily)).strResult, "S_OK");
    EXPECT_FALSE(KZCEkaCommon::GetCsvCheckFlag());
    KZCEkaCommon::SetCsvCheckFlag(true);
    EXPECT_EQ(CheckOn(m_ePath, m_eFamily, Csv(Record(m_eFamily, "x,"))).strResult, "E_FAIL");
    EXPECT_FALSE(KZCEkaCommon::GetCsvCheckFlag());
    KZCEkaCommon::SetCsvCheckFlag(true);
    EXPECT_EQ(CheckOn(m_ePath, m_eFamily, "").strResult, "E_FAIL");
    EXPECT_FALSE(KZCEkaCommon::GetCsvCheckFlag());
}

TEST_P(PathTest, CellsOfACheckAreMeasuredByTheRulesOfTheFamilysMode)
{
    // The flag is up while the check runs: five characters take ten bytes.
    const std::string strFive = "\x90\xc2\x90\xc2\x90\xc2\x90\xc2\x90\xc2";
    EXPECT_EQ(CheckOn(m_ePath, m_eFamily, Csv(Record(m_eFamily, "1," + strFive))).strResult,
              "S_OK");
    EXPECT_EQ(CheckOn(m_ePath, m_eFamily, Csv(Record(m_eFamily, "1,a" + strFive))),
              Refused("0001-00003-HE70008E"));
}

// ---- loading -----------------------------------------------------------------------------------

constexpr const char* CHECK_STEPS[] = {
    "KZCEkaMOKManager::LoadCsvWithDefinition",
    "KZCEkaMOKManagerFinance::LoadCsvWithDefinitionFinance_Check",
    "KZCEkaMOKManagerCrossBorder::LoadCsvWithDefinitionCrossBorder_Check"};
constexpr const char* CONVERSION_STEPS[] = {
    "KZCEkaMOKManager::LoadCsvWithDefinition",
    "KZCEkaMOKManagerFinance::LoadCsvWithDefinitionFinance_Conv",
    "KZCEkaMOKManagerCrossBorder::LoadCsvWithDefinitionCrossBorder_Conv"};

TEST_P(PathTest, CheckLoadsItsFileByTheStepOfItsFamily)
{
    const std::string strCsv = Csv("\xff\n");
    const DebugLog log;
    EXPECT_EQ(CheckOn(m_ePath, m_eFamily, strCsv), Refused(FATAL_ERROR));
    EXPECT_THAT(LogEntries(log),
                testing::Contains(
                    LogEntry{CHECK_STEPS[static_cast<std::size_t>(m_eFamily)], UNEXPECTED_ERROR}));
}

TEST_P(FamilyTest, ConversionLoadsItsFileByTheStepOfItsFamily)
{
    const std::string strCsv = Csv("\xff\n");
    const DebugLog log;
    EXPECT_EQ(Convert(GetParam(), strCsv, FilerOf(GetParam())), Refused(FATAL_ERROR));
    EXPECT_THAT(LogEntries(log),
                testing::Contains(LogEntry{CONVERSION_STEPS[static_cast<std::size_t>(GetParam())],
                                           UNEXPECTED_ERROR}));
}

TEST_P(FamilyTest, ElConversionLoadsDefinitionsAnewInAllFamiliesButTheBase)
{
    EXPECT_EQ(ElCheck(GetParam(), GoodCsv(GetParam()), 2).strResult, "S_OK");
    for (const char* szFile :
         {"KZEkaDefine.xml", "Finance/PGE2015_tpl.xml", "CrossBorder/PGE1650_tpl.xml"})
        m_bundle.Write(szFile, "broken");
    const DebugLog log;
    const Answer answer = ElConvert(GetParam(), 2, FilerOf(GetParam()));
    if (GetParam() == Family::Base) {
        EXPECT_EQ(answer.strResult, "S_OK") << answer;
        EXPECT_THAT(LogEntries(log), testing::Not(testing::Contains(
                                         testing::Field(&LogEntry::strMessage, UNEXPECTED_ERROR))));
        return;
    }
    EXPECT_EQ(answer, Refused(FATAL_ERROR));
    EXPECT_THAT(LogEntries(log),
                testing::Contains(LogEntry{CONVERSION_STEPS[static_cast<std::size_t>(GetParam())],
                                           UNEXPECTED_ERROR}));
}

TEST_P(FamilyTest, ConversionLoadsNoChecks)
{
    const std::string strItem =
        R"(<item type="Normal" id="A" parent="R" column="2"><valid id="unknown"/></item>)";
    const std::string strReport = R"(<report id="003" columnNum="3" procId=")" +
                                  std::string(FilerOf(GetParam()).szTetsuzuki) +
                                  R"(" procVR="1.0" reportId="R" reportVR="1.0")" +
                                  R"( startRow="0" endRow="0">)" + strItem + "</report>";
    for (const char* szFile :
         {"KZEkaDefine.xml", "Finance/PGE2015_vld.xml", "Finance/PGE2015_tpl.xml",
          "CrossBorder/PGE1650_vld.xml", "CrossBorder/PGE1650_tpl.xml"})
        m_bundle.Write(szFile, DefinitionFile(strReport));
    EXPECT_EQ(Check(GetParam(), GoodCsv(GetParam())), Refused(FATAL_ERROR));
    EXPECT_EQ(Convert(GetParam(), GoodCsv(GetParam()), FilerOf(GetParam())).strResult, "S_OK");
}

TEST_P(FamilyTest, ElConversionReadsNoFile)
{
    const std::string strCsv = GoodCsv(GetParam());
    EXPECT_EQ(ElCheck(GetParam(), strCsv, 2).strResult, "S_OK");
    std::filesystem::remove(strCsv);
    EXPECT_EQ(ElConvert(GetParam(), 2, FilerOf(GetParam())).strResult, "S_OK");
}

// ---- columns of the two numbers and of the postal code -----------------------------------------

TEST_P(PathTest, BothNumbersAreAnErrorOfBothArguments)
{
    Filer filer = FilerOf(m_eFamily);
    filer.szHojinBango = "1234567890123";
    const bool bPlain = m_ePath == Path::Plain;
    std::string strExpected;
    switch (m_eFamily) {
        case Family::Base:
            strExpected = bPlain ? "9999-00005-HE70010E,9999-00006-HE70010E"
                                 : "9999-00004-HE70010E,9999-00005-HE70010E";
            break;
        case Family::Finance:
            strExpected = "9999-00005-HE70010E,9999-00006-HE70010E";  // on both paths
            break;
        case Family::CrossBorder:
            strExpected = bPlain ? "9999-00009-HE70010E,9999-00010-HE70010E"
                                 : "9999-00008-HE70010E,9999-00009-HE70010E";
            break;
    }
    EXPECT_EQ(ConvertOn(m_ePath, m_eFamily, filer), Refused(strExpected));
}

TEST_P(PathTest, BothNumbersAreRefusedUnchecked)
{
    Filer filer = FilerOf(m_eFamily);
    filer.szKojinBango = "x";
    filer.szHojinBango = "y";
    EXPECT_THAT(ConvertOn(m_ePath, m_eFamily, filer).strDetail,
                testing::Not(testing::HasSubstr("HE70004E")));
}

TEST_P(PathTest, EmptyNumberBesideTheOtherIsNoError)
{
    Filer filer = FilerOf(m_eFamily);
    filer.szHojinBango = "";
    EXPECT_EQ(ConvertOn(m_ePath, m_eFamily, filer).strResult, "S_OK");
    filer.szKojinBango = "";
    filer.szHojinBango = "1234567890123";
    EXPECT_EQ(ConvertOn(m_ePath, m_eFamily, filer).strResult, "S_OK");
}

TEST_P(PathTest, CheckedNumberIsAnErrorOfItsOwnArgument)
{
    // The Finance family's EL path counts here as the others do.
    Filer filer = FilerOf(m_eFamily);
    filer.szKojinBango = "x";
    const std::string strColumn = m_eFamily == Family::CrossBorder
                                      ? (m_ePath == Path::Plain ? "00009" : "00008")
                                      : (m_ePath == Path::Plain ? "00005" : "00004");
    EXPECT_EQ(ConvertOn(m_ePath, m_eFamily, filer), Refused("9999-" + strColumn + "-HE70004E"));
}

struct ZipCase
{
    Family eFamily;
    Path ePath;
    const char* szFirst;   ///< error of a missing first part
    const char* szSecond;  ///< error of a missing second part
};

void PrintTo(const ZipCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.eFamily << testCase.ePath;
}

class ZipTest : public RequestStepsTest, public testing::WithParamInterface<ZipCase>
{};

TEST_P(ZipTest, SecondPartAloneIsAnErrorOfTheFirst)
{
    Filer filer = FilerOf(GetParam().eFamily);
    filer.szZip1 = "";
    EXPECT_EQ(ConvertOn(GetParam().ePath, GetParam().eFamily, filer), Refused(GetParam().szFirst));
    filer.szZip1 = nullptr;
    EXPECT_EQ(ConvertOn(GetParam().ePath, GetParam().eFamily, filer), Refused(GetParam().szFirst));
}

TEST_P(ZipTest, FirstPartAloneIsAnErrorOfTheSecond)
{
    Filer filer = FilerOf(GetParam().eFamily);
    filer.szZip2 = "";
    EXPECT_EQ(ConvertOn(GetParam().ePath, GetParam().eFamily, filer), Refused(GetParam().szSecond));
    filer.szZip2 = nullptr;
    EXPECT_EQ(ConvertOn(GetParam().ePath, GetParam().eFamily, filer), Refused(GetParam().szSecond));
}

TEST_P(ZipTest, NoPartAtAllIsNoError)
{
    Filer filer = FilerOf(GetParam().eFamily);
    filer.szZip1 = nullptr;
    filer.szZip2 = "";
    EXPECT_EQ(ConvertOn(GetParam().ePath, GetParam().eFamily, filer).strResult, "S_OK");
}

constexpr ZipCase ZIP_CASES[] = {
    {Family::Finance, Path::Plain, "9999-00019-HE70001E", "9999-00020-HE70001E"},
    {Family::Finance, Path::El, "9999-00019-HE70001E", "9999-00020-HE70001E"},
    {Family::CrossBorder, Path::Plain, "9999-00012-HE70001E", "9999-00013-HE70001E"},
    {Family::CrossBorder, Path::El, "9999-00011-HE70001E", "9999-00012-HE70001E"},
};

INSTANTIATE_TEST_SUITE_P(Families, ZipTest, testing::ValuesIn(ZIP_CASES), [](const auto& testCase) {
    return testing::PrintToString(testCase.param);
});

class NewFamilyTest : public RequestStepsTest, public testing::WithParamInterface<Family>
{};

INSTANTIATE_TEST_SUITE_P(Families,
                         NewFamilyTest,
                         testing::Values(Family::Finance, Family::CrossBorder),
                         Name);

TEST_P(NewFamilyTest, FirstHalfOfAPostalCodeIsNotStored)
{
    Filer filer = FilerOf(GetParam());
    filer.szZip2 = "";
    EXPECT_EQ(ConvertOn(Path::El, GetParam(), filer).strResult, "E_FAIL");
    EXPECT_EQ(Kept(KZCEkaITDataFinance_t::IT_ZIP1), "");
    EXPECT_EQ(Kept(KZCEkaITDataFinance_t::IT_ZIP2), "");
}

TEST_P(NewFamilyTest, SecondHalfOfAPostalCodeIsNotStored)
{
    Filer filer = FilerOf(GetParam());
    filer.szZip1 = "";
    EXPECT_EQ(ConvertOn(Path::El, GetParam(), filer).strResult, "E_FAIL");
    EXPECT_EQ(Kept(KZCEkaITDataFinance_t::IT_ZIP1), "");
    EXPECT_EQ(Kept(KZCEkaITDataFinance_t::IT_ZIP2), "");
}

TEST_P(NewFamilyTest, WholePostalCodeIsStoredPartByPart)
{
    EXPECT_EQ(ConvertOn(Path::El, GetParam(), FilerOf(GetParam())).strResult, "S_OK");
    EXPECT_EQ(Kept(KZCEkaITDataFinance_t::IT_ZIP1), "123");
    EXPECT_EQ(Kept(KZCEkaITDataFinance_t::IT_ZIP2), "4567");
}

TEST_P(NewFamilyTest, TwoNumbersAreNotStored)
{
    Filer filer = FilerOf(GetParam());
    filer.szHojinBango = "1234567890123";
    EXPECT_EQ(ConvertOn(Path::El, GetParam(), filer).strResult, "E_FAIL");
    EXPECT_EQ(Kept(KZCEkaITDataFinance_t::IT_KOJINBANGO), "");
    EXPECT_EQ(Kept(KZCEkaITDataFinance_t::IT_HOJINBANGO), "");
}

TEST_F(RequestStepsTest, TwoNumbersAreNotStoredInTheBaseFamilyEither)
{
    Filer filer = FilerOf(Family::Base);
    filer.szHojinBango = "1234567890123";
    EXPECT_EQ(ConvertOn(Path::El, Family::Base, filer).strResult, "E_FAIL");
    const KZCEkaITData& it = *KZCConvertInfo::instance()->GetITData(2);
    EXPECT_STREQ(it.GetITData(IT_KOJINBANGO), "");
    EXPECT_STREQ(it.GetITData(IT_HOJINBANGO), "");
    EXPECT_STREQ(it.GetITData(IT_NOZEISHA_NM), "青葉商会");
}

TEST_P(NewFamilyTest, EveryFieldReachesItsPlaceInTheDocument)
{
    const std::string strMok = ConvertOn(Path::El, GetParam(), FilerOf(GetParam())).strMok;
    EXPECT_THAT(
        strMok,
        testing::HasSubstr(
            R"(<IT VR="1.3" id="IT">)"
            R"(<ZEIMUSHO ID="ZEIMUSHO"><gen:zeimusho_CD>00101</gen:zeimusho_CD></ZEIMUSHO>)"
            R"(<TEISYUTSU_DAY ID="TEISYUTSU_DAY"><gen:era>5</gen:era><gen:yy>6</gen:yy>)"
            R"(<gen:mm>3</gen:mm><gen:dd>4</gen:dd></TEISYUTSU_DAY>)"
            R"(<NOZEISHA_ID ID="NOZEISHA_ID">1234567890123456</NOZEISHA_ID>)"
            R"(<NOZEISHA_BANGO ID="NOZEISHA_BANGO"><gen:kojinbango>123456789012</gen:kojinbango>)"
            R"(</NOZEISHA_BANGO><NOZEISHA_NM ID="NOZEISHA_NM">青葉商会</NOZEISHA_NM>)"
            R"(<NOZEISHA_ZIP ID="NOZEISHA_ZIP"><gen:zip1>123</gen:zip1><gen:zip2>4567</gen:zip2>)"
            R"(</NOZEISHA_ZIP><NOZEISHA_ADR ID="NOZEISHA_ADR">青葉市1-2-3</NOZEISHA_ADR>)"
            R"(<DAIHYO_NM ID="DAIHYO_NM">青葉太郎</DAIHYO_NM>)"
            R"(<DAIRI_ID ID="DAIRI_ID">6543210987654321</DAIRI_ID>)"
            R"(<DAIRI_NM ID="DAIRI_NM">白樺税務事務所</DAIRI_NM>)"
            R"(<DAIRI_ADR ID="DAIRI_ADR">紅葉市4-5</DAIRI_ADR>)"
            R"(<TETSUZUKI ID="TETSUZUKI"><procedure_CD>)" +
            std::string(FilerOf(GetParam()).szTetsuzuki) + "</procedure_CD></TETSUZUKI></IT>"));
}

/// Sets a field to a value that its check refuses, for every field but the corporate number.
Filer WhollyBadFiler(const std::string& strName, const std::string& strAddress)
{
    return {.szZeimushoCD = "1",
            .szNozeishaId = "x",
            .szKojinBango = "x",
            .szHojinBango = nullptr,
            .szNozeishaNm = "",
            .szNozeishaAdr = "",
            .szDaihyoNm = strName.c_str(),
            .szDairiId = "x",
            .szDairiNm = strName.c_str(),
            .szDairiAdr = strAddress.c_str(),
            .szTetsuzuki = "",
            .szSoftName = "",
            .szEra = "6",
            .szYear = "0",
            .szMonth = "13",
            .szDay = "32",
            .szZip1 = "x",
            .szZip2 = "y"};
}

struct OrderCase
{
    Family eFamily;
    Path ePath;
    std::vector<std::string> vecColumn;  ///< in order of the calls
};

void PrintTo(const OrderCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.eFamily << testCase.ePath;
}

class FieldOrderTest : public RequestStepsTest, public testing::WithParamInterface<OrderCase>
{};

TEST_P(FieldOrderTest, FieldsAreCheckedInTheOrderOfTheCallsAndNumberedByTheirPlace)
{
    constexpr const char* CODES[] = {"08", "04", "04", "01", "01", "07", "04", "07", "07",
                                     "10", "09", "09", "09", "09", "01", "04", "04"};
    std::string strExpected;
    for (std::size_t n = 0; n < std::size(CODES); ++n)
        strExpected += (n == 0 ? "9999-000" : ",9999-000") + GetParam().vecColumn[n] + "-HE700" +
                       CODES[n] + "E";
    const std::string strName(31, 'a');
    const std::string strAddress(101, 'a');
    EXPECT_EQ(ConvertOn(GetParam().ePath, GetParam().eFamily, WhollyBadFiler(strName, strAddress)),
              Refused(strExpected));
}

const OrderCase ORDER_CASES[] = {
    {Family::Finance,
     Path::Plain,
     {"03", "04", "05", "07", "08", "09", "10", "11", "12", "13", "14", "15", "16", "17", "18",
      "19", "20"}},
    {Family::Finance,
     Path::El,
     {"02", "03", "04", "06", "07", "08", "09", "10", "11", "12", "13", "14", "15", "16", "17",
      "18", "19"}},
    {Family::CrossBorder,
     Path::Plain,
     {"03", "08", "09", "11", "14", "15", "16", "17", "18", "19", "04", "05", "06", "07", "20",
      "12", "13"}},
    {Family::CrossBorder,
     Path::El,
     {"02", "07", "08", "10", "13", "14", "15", "16", "17", "18", "03", "04", "05", "06", "19",
      "11", "12"}},
};

INSTANTIATE_TEST_SUITE_P(Families,
                         FieldOrderTest,
                         testing::ValuesIn(ORDER_CASES),
                         [](const auto& testCase) {
                             return testing::PrintToString(testCase.param);
                         });

// ---- repeated errors ---------------------------------------------------------------------------

TEST_P(PathTest, RepeatedErrorStandsOnceInAllFamiliesButTheBase)
{
    // Two items check one column alike.
    const std::string strItem =
        R"(<item type="Normal" id="A" parent="R" column="2"><valid id="number"/></item>)";
    const std::string strReport = R"(<report id="003" columnNum="3" procId="PGE" procVR="1.0")"
                                  R"( reportId="R" reportVR="1.0">)" +
                                  strItem + strItem + "</report>";
    for (const char* szFile :
         {"KZEkaDefine.xml", "Finance/PGE2015_vld.xml", "CrossBorder/PGE1650_vld.xml"})
        m_bundle.Write(szFile, DefinitionFile(strReport));
    EXPECT_EQ(CheckOn(m_ePath, m_eFamily, Csv(Record(m_eFamily, "x,") + Record(m_eFamily, "y,"))),
              Refused(m_eFamily == Family::Base ? "0001-00002-HE70004E,0001-00002-HE70004E,"
                                                  "0002-00002-HE70004E,0002-00002-HE70004E"
                                                : "0001-00002-HE70004E,0002-00002-HE70004E"));
}

/// A family whose conversions end with what their filer's fields record.
template <class FamilyManager, const FamilyTraits& FAMILY>
struct RefusingFamily
{
    using Manager = FamilyManager;

    static constexpr const FamilyTraits& TRAITS = FAMILY;

    static int LoadForConversion(Manager& /*manager*/, bool /*bPlain*/) { return STATUS_NG; }
};

/// The detail table of a conversion of which a field records one error twice.
template <class Family>
std::string DetailOfRepeatedField(Path ePath, const std::string& strCsv, const std::string& strMok)
{
    KZCConvertResultEka record;
    const auto setFiler = [](auto& /*manager*/, const ConversionArguments& /*arguments*/) {
        for (int n = 0; n < 2; ++n)
            KZCValidResult::instance()->SetResult(HE70004E, ARGUMENT_RECORD, 3, SINGLE_COLUMN);
    };
    if (ePath == Path::Plain)
        RequestSteps::ConvertPlain<Family>({}, record, strCsv.c_str(), strMok.c_str(), setFiler);
    else
        RequestSteps::ConvertKept<Family>({}, record, 2, setFiler);
    return record.GetDetailErrorInfo();
}

TEST_P(PathTest, RepeatedErrorOfAConversionStandsOnceInAllFamiliesButTheBase)
{
    const std::string strCsv = GoodCsv(m_eFamily);
    EXPECT_EQ(ElCheck(m_eFamily, strCsv, 2).strResult, "S_OK");
    std::string strDetail;
    switch (m_eFamily) {
        case Family::Base:
            strDetail = DetailOfRepeatedField<RefusingFamily<KZCEkaMOKManager, BASE_FAMILY>>(
                m_ePath, strCsv, m_strMok);
            break;
        case Family::Finance:
            strDetail =
                DetailOfRepeatedField<RefusingFamily<KZCEkaMOKManagerFinance, FINANCE_FAMILY>>(
                    m_ePath, strCsv, m_strMok);
            break;
        case Family::CrossBorder:
            strDetail = DetailOfRepeatedField<
                RefusingFamily<KZCEkaMOKManagerCrossBorder, CROSSBORDER_FAMILY>>(m_ePath, strCsv,
                                                                                 m_strMok);
            break;
    }
    EXPECT_EQ(strDetail, m_eFamily == Family::Base ? "9999-00003-HE70004E,9999-00003-HE70004E"
                                                   : "9999-00003-HE70004E");
}

TEST_F(RequestStepsTest, ErrorsAreTakenAsTheFamilyWants)
{
    KZCEkaMOKManager manager;
    KZCConvertResultEka record;
    const auto take = [&](const FamilyTraits& traits) {
        for (int n = 0; n < 2; ++n)
            KZCValidResult::instance()->SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
        const std::string strErrors = RequestSteps::TakeErrors(traits, manager, record);
        EXPECT_EQ(record.GetDetailErrorInfo(), strErrors);
        return strErrors;
    };
    EXPECT_EQ(take(BASE_FAMILY), "0001-00002-HE70001E,0001-00002-HE70001E");
    EXPECT_EQ(take(FINANCE_FAMILY), "0001-00002-HE70001E");
    EXPECT_EQ(take(CROSSBORDER_FAMILY), "0001-00002-HE70001E");
}

// ---- faults ------------------------------------------------------------------------------------

TEST_P(FamilyTest, FaultInAStepOfACheckIsToldInAllFamilies)
{
    // The step itself catches it: the check's body sees a refusal.
    EXPECT_EQ(Check(GetParam(), Csv("\xff\n")), Refused(FATAL_ERROR));
    EXPECT_FALSE(KZCEkaCommon::GetCsvCheckFlag());
    EXPECT_EQ(ElCheck(GetParam(), Csv("\xff\n"), 2), Refused(FATAL_ERROR));
}

// ---- the closing steps -------------------------------------------------------------------------

/// The result of a request whose closing steps throw, before or after they have told "S_OK".
std::string ResultOfClosingFault(const FamilyTraits& traits, bool bTold)
{
    KZCConvertResultEka record;
    RequestSteps::RunClosing(traits, "function", record, [&](const char*& szResult) {
        if (bTold)
            szResult = PROCESS_OK;
        throw std::runtime_error("");
    });
    return record.GetResult();
}

TEST_F(RequestStepsTest, ResultThatWasToldStaysBehindAFaultButInTheCrossBorderFamily)
{
    EXPECT_EQ(ResultOfClosingFault(BASE_FAMILY, true), "S_OK");
    EXPECT_EQ(ResultOfClosingFault(FINANCE_FAMILY, true), "S_OK");
    EXPECT_EQ(ResultOfClosingFault(CROSSBORDER_FAMILY, true), "E_FAIL");
}

TEST_F(RequestStepsTest, FaultBeforeAResultIsToldIsAFailureInAllFamilies)
{
    EXPECT_EQ(ResultOfClosingFault(BASE_FAMILY, false), "E_FAIL");
    EXPECT_EQ(ResultOfClosingFault(FINANCE_FAMILY, false), "E_FAIL");
    EXPECT_EQ(ResultOfClosingFault(CROSSBORDER_FAMILY, false), "E_FAIL");
}

TEST_F(RequestStepsTest, FaultOfTheClosingStepsIsLoggedAndLeavesTheErrorsAlone)
{
    KZCValidResult::instance()->SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
    const DebugLog log;
    static_cast<void>(ResultOfClosingFault(FINANCE_FAMILY, true));
    EXPECT_THAT(LogEntries(log), testing::ElementsAre(LogEntry{"function", UNEXPECTED_ERROR}));
    EXPECT_EQ(Detail(), "0001-00002-HE70001E");
}

TEST_F(RequestStepsTest, FailureOfTheClosingStepsShowsNothingOfAResultThatPasses)
{
    const auto recordOf = [](const FamilyTraits& traits, bool bTold) {
        KZCConvertResultEka record;
        RequestSteps::RunClosing(traits, "function", record, [&](const char*& szResult) {
            record.SetProcId("PGE5030");
            record.SetRecordCount("1");
            record.SetMokData("<DATA/>");
            if (bTold)
                szResult = PROCESS_OK;
            throw std::runtime_error("");
        });
        return Read(&record);
    };
    EXPECT_EQ(recordOf(BASE_FAMILY, false), Refused(""));
    EXPECT_EQ(recordOf(CROSSBORDER_FAMILY, true), Refused(""));
    EXPECT_EQ(recordOf(FINANCE_FAMILY, true), (Answer{"S_OK", "", "1", "PGE5030", "<DATA/>"}));
}

// ---- what is no request of a family ------------------------------------------------------------

TEST_P(FamilyTest, WritingAFileLeavesStoreKeysAndModeOfAnyFamilyAlone)
{
    EXPECT_EQ(ElCheck(GetParam(), GoodCsv(GetParam()), 2).strResult, "S_OK");
    for (const auto eMode : {KZCEkaCommon::EXEC_MODE_ZEKA, KZCEkaCommon::EXEC_MODE_OTHER}) {
        KZCEkaCommon::setExecMode(eMode);
        EXPECT_EQ(Write(m_folder.Path("out.csv").c_str(), "a").strResult, "S_OK");
        EXPECT_EQ(Write("", "a"), Refused("0000-00000-HE70027E"));
        EXPECT_EQ(Write(nullptr, "a"), Refused(FATAL_ERROR));
        EXPECT_EQ(KZCEkaCommon::getExecMode(), eMode);
    }
    EXPECT_EQ(ElConvert(GetParam(), 2, FilerOf(GetParam())).strResult, "S_OK");
}

TEST_F(RequestStepsTest, WritingAFileMakesNoStore)
{
    EXPECT_EQ(Write(m_folder.Path("out.csv").c_str(), "a").strResult, "S_OK");
    EXPECT_EQ(Write("", "a").strResult, "E_FAIL");
    EXPECT_EQ(StorePeek::Kind(), StoreKind::None);
}

TEST_P(FamilyTest, TerminateLeavesTheModeAloneAndNoStoreBehind)
{
    for (const auto eMode : {KZCEkaCommon::EXEC_MODE_ZEKA, KZCEkaCommon::EXEC_MODE_OTHER}) {
        EXPECT_EQ(ElCheck(GetParam(), GoodCsv(GetParam()), 2).strResult, "S_OK");
        KZCEkaCommon::setExecMode(eMode);
        m_entry.Terminate();
        EXPECT_EQ(KZCEkaCommon::getExecMode(), eMode);
        EXPECT_EQ(StorePeek::Kind(), StoreKind::None);
    }
}

TEST_F(RequestStepsTest, TerminateEndsTheRecordBehindTheStores)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    std::vector<std::string> vecStep;
    RequestSteps::RunTerminate(
        [&] {
            EXPECT_FALSE(KZCEkaCommon::GetCsvCheckFlag());
            vecStep.emplace_back("stores");
        },
        [&] { vecStep.emplace_back("record"); });
    EXPECT_THAT(vecStep, testing::ElementsAre("stores", "record"));
}

TEST_F(RequestStepsTest, StoresThatCannotBeEndedLeaveTheRecordAndAreNotLogged)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const DebugLog log;
    bool bEnded = false;
    EXPECT_NO_THROW(
        RequestSteps::RunTerminate([] { throw std::runtime_error(""); }, [&] { bEnded = true; }));
    EXPECT_FALSE(bEnded);
    EXPECT_FALSE(KZCEkaCommon::GetCsvCheckFlag());
    EXPECT_EQ(log.Text(), "");
}

// ---- a failed beginning ------------------------------------------------------------------------

TEST_F(RequestStepsTest, FailedBeginningOfACrossBorderElCheckLeavesABaseStoreBehind)
{
    // The family's own accessor has made none yet: the closing step's makes a base one.
    EXPECT_EQ(ElCheck(Family::CrossBorder, "", 2), Refused("9999-00001-HE70001E"));
    EXPECT_EQ(StorePeek::Kind(), StoreKind::Base);
    EXPECT_EQ(ElCheck(Family::CrossBorder, GoodCsv(Family::CrossBorder), 2).strResult, "S_OK");
    EXPECT_EQ(StorePeek::Kind(), StoreKind::CrossBorder);
}

TEST_F(RequestStepsTest, FailedBeginningOfAFinanceElCheckLeavesAFinanceStoreBehind)
{
    EXPECT_EQ(ElCheck(Family::Finance, "", 2), Refused("9999-00001-HE70001E"));
    EXPECT_EQ(StorePeek::Kind(), StoreKind::Finance);
}

TEST_P(FamilyTest, FailedBeginningOfAPlainCheckLeavesNoStoreBehind)
{
    EXPECT_EQ(Check(GetParam(), ""), Refused("9999-00001-HE70001E"));
    EXPECT_EQ(StorePeek::Kind(), StoreKind::None);
}

}  // namespace
