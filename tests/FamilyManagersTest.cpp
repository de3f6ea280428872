// What the managers of the Finance and CrossBorder families have in common: their steps.
#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "support/FamilyManager.h"
#include "support/LogEntries.h"
#include "support/LogMessages.h"
#include "support/Raised.h"
#include "support/ShiftJisText.h"

namespace {

using testing::ElementsAre;
using enum KZCEkaITDataFinance_t;

constexpr const char* FATAL = "refuses 0000-00000-HE70018E";
constexpr const char* MAKE_ERROR = "refuses 0000-00000-HE70016E";
constexpr std::size_t DOCUMENT_LIMIT = 10485760;  // bytes

std::string Detail()
{
    return KZCValidResult::instance()->MakeResult();
}

template <class Side>
class FamilyManagersTest : public FamilyManager<Side>
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
TYPED_TEST_SUITE(FamilyManagersTest, Sides, SideName);

// ---- InitForCheck ------------------------------------------------------------------------------

TYPED_TEST(FamilyManagersTest, CheckBeginsWithAGoodPath)
{
    EXPECT_EQ(this->InitCheck(this->Write("x").c_str()), PASSES);
}

TYPED_TEST(FamilyManagersTest, CheckWithoutAPathIsRefused)
{
    EXPECT_EQ(this->InitCheck(nullptr), "refuses 9999-00001-HE70001E");
    EXPECT_EQ(this->InitCheck(" "), "refuses 9999-00001-HE70001E");
}

TYPED_TEST(FamilyManagersTest, KeyOfAnElCheckIsArgumentTwoWithTheLimitsOfTheFamily)
{
    const std::string strPath = this->Write("x");
    const std::string strRefused = "refuses 9999-00002-HE70009E";
    EXPECT_EQ(this->InitElCheck(strPath.c_str(), 0), strRefused);
    EXPECT_EQ(this->InitElCheck(strPath.c_str(), 1), PASSES);
    EXPECT_EQ(this->InitElCheck(strPath.c_str(), TypeParam::LAST_KEY), PASSES);
    EXPECT_EQ(this->InitElCheck(strPath.c_str(), TypeParam::LAST_KEY + 1), strRefused);
}

TYPED_TEST(FamilyManagersTest, KeyOfAPlainCheckIsNotLookedAt)
{
    const std::string strPath = this->Write("x");
    EXPECT_EQ(Told([&] { return this->m_manager.InitForCheck(true, strPath.c_str(), 99); }),
              PASSES);
}

TYPED_TEST(FamilyManagersTest, CheckEmptiesTheResultStoreFirst)
{
    KZCValidResult::instance()->SetResult(HE70001E, 7, 7, SINGLE_COLUMN);
    EXPECT_EQ(this->InitCheck(this->Write("x").c_str()), PASSES);
}

TYPED_TEST(FamilyManagersTest, CheckWithoutTaxOfficesIsAFatalError)
{
    const Bundle bundle(SMALL_DEFINITION, std::nullopt);
    const DebugLog log;
    EXPECT_EQ(this->InitCheck(this->Write("x").c_str()), FATAL);
    EXPECT_EQ(LogEntries(log).back(),
              (LogEntry{TypeParam::CLASS + std::string("::InitForCheck"), UNEXPECTED_ERROR}));
}

// ---- InitForMok --------------------------------------------------------------------------------

TYPED_TEST(FamilyManagersTest, BadPathsOfAConversionAreRecordedAndTheVerdictIsLeftToTheCaller)
{
    EXPECT_EQ(this->InitMok("", "x"), "passes 9999-00001-HE70001E,9999-00002-HE70015E");
}

TYPED_TEST(FamilyManagersTest, KeyOfAnElConversionIsArgumentOneWithTheLimitsOfTheFamily)
{
    EXPECT_EQ(this->InitElMok(0), "passes 9999-00001-HE70009E");
    EXPECT_EQ(this->InitElMok(TypeParam::LAST_KEY + 1), "passes 9999-00001-HE70009E");
    // A key within the limits gets as far as to its missing records.
    EXPECT_EQ(this->InitElMok(TypeParam::LAST_KEY), "passes 9999-00001-HE70013E");
}

TYPED_TEST(FamilyManagersTest, ElConversionOfAKeyWithoutRecordsIsLogged)
{
    const DebugLog log;
    EXPECT_EQ(this->InitElMok(3), "passes 9999-00001-HE70013E");
    EXPECT_THAT(LogMessages(log),
                ElementsAre("指定された識別キーのCSVデータが存在しません。（HE70013E）",
                            "Valid Message[HE70013E]  ファイルが存在しません。",
                            "record=9999 column=00001 value="));
}

TYPED_TEST(FamilyManagersTest, ConversionMakesAStoreOfTheFamily)
{
    EXPECT_EQ(this->InitMok(this->Write("x"), this->m_folder.Path("out.mok")), PASSES);
    EXPECT_EQ(StorePeek::Kind(), TypeParam::STORE);
}

TYPED_TEST(FamilyManagersTest, ConversionWithoutTaxOfficesIsAFatalError)
{
    const Bundle bundle(SMALL_DEFINITION, "broken");
    const DebugLog log;
    EXPECT_EQ(this->InitMok("", ""), FATAL);
    EXPECT_EQ(LogEntries(log).back(),
              (LogEntry{TypeParam::CLASS + std::string("::InitForMok"), UNEXPECTED_ERROR}));
}

// ---- the IT section ----------------------------------------------------------------------------

TYPED_TEST(FamilyManagersTest, ItValueIsTrimmedAndStoredInTheHolderOfTheFamily)
{
    this->Prepare(this->Record("12,ab"));
    EXPECT_EQ(this->SetIt(IT_NOZEISHA_NM, "　白樺 \t"), PASSES);
    const auto& it = dynamic_cast<const KZCEkaITDataFinance&>(*TypeParam::Store().GetITData(1));
    EXPECT_STREQ(it.GetITDataFinance(IT_NOZEISHA_NM), "白樺");
}

TYPED_TEST(FamilyManagersTest, NullItValueIsTheEmptyText)
{
    this->Prepare(this->Record("12,ab"));
    EXPECT_EQ(TypeParam::Set(this->m_manager, IT_DAIRI_NM, nullptr), STATUS_OK);
    EXPECT_EQ(Told([&] { return TypeParam::Set(this->m_manager, IT_NOZEISHA_NM, nullptr); }),
              std::string("refuses 9999-") + TypeParam::NAME_ARGUMENT + "-HE70001E");
}

TYPED_TEST(FamilyManagersTest, FaultOfAnItCheckIsLoggedUnderTheFamilysOwnNameAndRaised)
{
    this->Prepare(this->Record("12,ab"));
    KZCEkaTaxOffices::destroy();
    const DebugLog log;
    EXPECT_EQ(Raised([&] {
                  static_cast<void>(TypeParam::Set(this->m_manager, IT_ZEIMUSHO_CD, "00101"));
              }),
              FAULT);
    EXPECT_EQ(LogEntries(log).back(), (LogEntry{TypeParam::SETTER, ""}));
}

// ---- loading -----------------------------------------------------------------------------------

TYPED_TEST(FamilyManagersTest, GoodFilePassesItsCheck)
{
    EXPECT_EQ(this->Check(this->Record("12,ab") + "\n" + this->Record("34,")), PASSES);
    EXPECT_EQ(this->m_manager.GetProcID(), TypeParam::Head().strProcId);
    EXPECT_EQ(this->m_manager.GetRecodeCount(), "2");
}

TYPED_TEST(FamilyManagersTest, ErrorsOfAllRecordsAreReportedInOrderWithoutTheBlankLines)
{
    EXPECT_EQ(
        this->Check(this->Record(",12345678901") + "\n" + this->Record("x,") + this->Record("1,")),
        "refuses 0001-00002-HE70001E,0001-00003-HE70008E,0002-00002-HE70004E");
}

TYPED_TEST(FamilyManagersTest, CellsAreMeasuredInShiftJisDuringACheck)
{
    EXPECT_EQ(this->Check(ToShiftJis(this->Record("1,青葉青葉青"))), PASSES);
    EXPECT_EQ(this->Check(ToShiftJis(this->Record("1,青葉青葉青葉"))),
              "refuses 0001-00003-HE70008E");
}

TYPED_TEST(FamilyManagersTest, EmptyFileOfBlankLinesIsRefusedByTheTestOfLimitsAlone)
{
    EXPECT_EQ(this->Load("\n\n"), "refuses 0000-00000-HE70024E");
}

TYPED_TEST(FamilyManagersTest, WrongColumnCountIsRefusedByTheTestOfLimitsAlone)
{
    EXPECT_EQ(this->Load(this->Record("12,ab") + this->Record("12")),
              "refuses 0000-00000-HE70019E");
}

TYPED_TEST(FamilyManagersTest, OneRecordMoreThanTheLimitIsRefused)
{
    std::string strCsv;
    for (int n = 0; n < 1000; ++n)
        strCsv += this->Record("1,a");
    EXPECT_EQ(this->Load(strCsv), PASSES);
    EXPECT_EQ(this->Load(strCsv + this->Record("1,a")), "refuses 0000-00000-HE70029E");
}

TYPED_TEST(FamilyManagersTest, RefusedFileLeavesTheDefinitionOfBefore)
{
    EXPECT_EQ(this->Load(this->Record("12,ab")), PASSES);
    EXPECT_EQ(this->Load(this->Record("12")), "refuses 0000-00000-HE70019E");
    EXPECT_EQ(this->m_manager.GetProcID(), TypeParam::Head().strProcId);
}

TYPED_TEST(FamilyManagersTest, UnreadableFileIsAFatalErrorWithoutMessageNineteen)
{
    const std::string strPath = this->Write(this->Record("12,ab"));
    EXPECT_EQ(this->InitCheck(strPath.c_str()), PASSES);
    std::filesystem::remove(strPath);
    const DebugLog log;
    EXPECT_EQ(this->LoadForCheck(), FATAL);
    EXPECT_EQ(LogEntries(log).back(), (LogEntry{TypeParam::CHECK, UNEXPECTED_ERROR}));
}

TYPED_TEST(FamilyManagersTest, UnreadableFileOfAConversionIsAFatalError)
{
    const std::string strPath = this->Write(this->Record("12,ab"));
    EXPECT_EQ(this->InitMok(strPath, this->m_folder.Path("out.mok")), PASSES);
    std::filesystem::remove(strPath);
    const DebugLog log;
    EXPECT_EQ(this->LoadForConversion(true), FATAL);
    EXPECT_EQ(LogEntries(log).back(), (LogEntry{TypeParam::CONVERSION, UNEXPECTED_ERROR}));
}

TYPED_TEST(FamilyManagersTest, ReaderThatThrewDropsTheErrorsFoundBefore)
{
    const std::string strPath = this->Write(this->Record("12,ab"));
    EXPECT_EQ(this->InitCheck(strPath.c_str()), PASSES);
    KZCValidResult::instance()->SetResult(HE70001E, 7, 7, SINGLE_COLUMN);
    std::filesystem::remove(strPath);
    EXPECT_EQ(this->LoadForCheck(), FATAL);
}

TYPED_TEST(FamilyManagersTest, CheckAndConversionReadTheirOwnDefinitionFiles)
{
    this->m_bundle.Write(TypeParam::FOLDER + std::string("_tpl.xml"), "broken");
    EXPECT_EQ(this->Load(this->Record("12,ab")), PASSES);
    KZCEkaCommon::SetCsvCheckFlag(false);
    EXPECT_EQ(this->InitMok(this->Write(this->Record("12,ab")), this->m_folder.Path("out.mok")),
              PASSES);
    EXPECT_EQ(this->LoadForConversion(true), FATAL);
}

TYPED_TEST(FamilyManagersTest, ConversionWithoutReadingTouchesNoFileAndTestsNoLimit)
{
    // Kept are 1001 records, one more than the limit; their file is gone.
    std::string strCsv;
    for (int n = 0; n < 1001; ++n)
        strCsv += this->Record("1,a");
    const std::string strPath = this->Write(strCsv);
    EXPECT_EQ(TypeParam::Store().GetCsvFile(4)->ReadFile(strPath), STATUS_OK);
    std::filesystem::remove(strPath);
    EXPECT_EQ(this->InitElMok(4), PASSES);
    EXPECT_EQ(this->LoadForConversion(false), PASSES);
    EXPECT_EQ(TypeParam::Store().GetCsvFile(4)->GetRecordCount(), 1001);
}

TYPED_TEST(FamilyManagersTest, ConversionWithReadingTestsTheLimit)
{
    std::string strCsv;
    for (int n = 0; n < 1001; ++n)
        strCsv += this->Record("1,a");
    EXPECT_EQ(this->InitMok(this->Write(strCsv), this->m_folder.Path("out.mok")), PASSES);
    EXPECT_EQ(this->LoadForConversion(true), "refuses 0000-00000-HE70029E");
}

// ---- ValidateCsv -------------------------------------------------------------------------------

TYPED_TEST(FamilyManagersTest, NegativeStartRowIsAFatalErrorOfTheCheck)
{
    this->m_bundle.Write(
        TypeParam::FOLDER + std::string("_vld.xml"),
        DefinitionFile(SmallReportElement(
            {TypeParam::Head().strProcId, TypeParam::REPORT, R"( startRow="-1")"})));
    const DebugLog log;
    EXPECT_EQ(this->Check(this->Record("x,ab")), FATAL);
    EXPECT_EQ(LogEntries(log).back(),
              (LogEntry{TypeParam::CLASS + std::string("::ValidateCsv"), UNEXPECTED_ERROR}));
}

// ---- MakeMok -----------------------------------------------------------------------------------

TYPED_TEST(FamilyManagersTest, DocumentOfTwoRecords)
{
    this->Prepare(ToShiftJis(this->Record("12,青") + "\n" + this->Record("34,葉")));
    EXPECT_EQ(this->Make(), PASSES);
    EXPECT_EQ(this->Mok(),
              this->Document(this->Item(1) + this->Item(2),
                             this->Report(1, "12", "青") + this->Report(2, "34", "葉")));
}

TYPED_TEST(FamilyManagersTest, CatalogueListsTheWrittenReportsAlone)
{
    // The second record has no values, so that it gives no report; numbers have no gap.
    this->Prepare(this->Record("1,a") + this->Record(",") + this->Record("3,c"));
    EXPECT_EQ(this->Make(), PASSES);
    EXPECT_EQ(this->Mok(), this->Document(this->Item(1) + this->Item(2),
                                          this->Report(1, "1", "a") + this->Report(2, "3", "c")));
}

TYPED_TEST(FamilyManagersTest, DocumentWithoutReportsHasAnEmptyCatalogue)
{
    this->Prepare(this->Record(","));
    EXPECT_EQ(this->Make(), PASSES);
    EXPECT_EQ(this->Mok(), this->Document("", ""));
}

TYPED_TEST(FamilyManagersTest, NumbersBeginAnewWithEachDocument)
{
    this->Prepare(this->Record("1,a"));
    EXPECT_EQ(this->Make(), PASSES);
    const std::string strMok = this->Mok();
    EXPECT_EQ(this->LoadForConversion(false), PASSES);
    EXPECT_EQ(this->Make(), PASSES);
    EXPECT_EQ(this->Mok(), strMok);
}

TYPED_TEST(FamilyManagersTest, ElPathGivesTheSameDocumentUnderItsOwnKey)
{
    EXPECT_EQ(TypeParam::Store().GetCsvFile(4)->ReadFile(this->Write(this->Record("12,ab"))),
              STATUS_OK);
    EXPECT_EQ(this->InitElMok(4), PASSES);
    this->SetShortIt(TypeParam::Head());
    EXPECT_EQ(this->LoadForConversion(false), PASSES);
    EXPECT_EQ(this->Make(), PASSES);
    EXPECT_EQ(this->Mok(), this->Document(this->Item(1), this->Report(1, "12", "ab")));
}

TYPED_TEST(FamilyManagersTest, ItTextOfADocumentIsTestedByItsReferencesAndStays)
{
    this->Prepare(this->Record("1,a"));
    EXPECT_FALSE(KZCValidResult::instance()->ExistID("NOZEISHA_NM"));
    EXPECT_EQ(this->Make(), PASSES);
    EXPECT_TRUE(KZCValidResult::instance()->ExistID("NOZEISHA_NM"));
    EXPECT_FALSE(KZCValidResult::instance()->ExistID("DAIRI_NM"));
    this->m_manager.Terminate(false, true, false);
    EXPECT_TRUE(KZCValidResult::instance()->ExistID("NOZEISHA_NM"));
}

TYPED_TEST(FamilyManagersTest, ReferenceToAnItFieldOfTheSameDocumentIsWritten)
{
    this->m_bundle.Write(
        TypeParam::FOLDER + std::string("_tpl.xml"),
        DefinitionFile(R"(<report procId=")" + TypeParam::Head().strProcId +
                       R"(" procVR="1.0" reportId="R" reportVR="1.0" startRow="0" endRow="0">)"
                       R"(<item type="TAG" id="T" parent="R"/>)"
                       R"(<item type="IdRef" id="A" parent="T" value="NOZEISHA_NM"/>)"
                       R"(<item type="IdRef" id="B" parent="T" value="DAIRI_NM"/></report>)"));
    this->Prepare(this->Record("1,a"));
    EXPECT_EQ(this->Make(), PASSES);
    EXPECT_THAT(this->Mok(), testing::HasSubstr(R"(><T><A IDREF="NOZEISHA_NM"/></T></R>)"));
}

TYPED_TEST(FamilyManagersTest, AnotherProcedureIsRefusedUnderTheShortNameAndThePathsArgument)
{
    this->Prepare(this->Record("1,a"));
    EXPECT_EQ(this->SetIt(IT_PROCEDURE_CD, TypeParam::OTHER_PROCEDURE), PASSES);
    const DebugLog log;
    EXPECT_EQ(this->Make(),
              std::string("refuses 9999-") + TypeParam::PROCEDURE_ARGUMENT + "-HE70010E");
    EXPECT_THAT(LogEntries(log),
                ElementsAre(LogEntry{"MakeMok", "引数の手続きIDが不正です。（HE70010E）"}));
    EXPECT_THAT(LastLogMessages(log, 2),
                ElementsAre("Valid Message[HE70010E]  入力内容が正しくありません。",
                            std::string("record=9999 column=") + TypeParam::PROCEDURE_ARGUMENT +
                                " value=" + TypeParam::OTHER_PROCEDURE));
}

TYPED_TEST(FamilyManagersTest, AnotherProcedureOnTheElPathIsOneArgumentLower)
{
    this->Prepare(this->Record("1,a"));
    EXPECT_EQ(this->InitElMok(1), PASSES);
    EXPECT_EQ(this->SetIt(IT_PROCEDURE_CD, TypeParam::OTHER_PROCEDURE), PASSES);
    EXPECT_EQ(this->Make(),
              std::string("refuses 9999-") + TypeParam::EL_PROCEDURE_ARGUMENT + "-HE70010E");
}

TYPED_TEST(FamilyManagersTest, DocumentThatIsNotWellFormedIsMessageSixteenAddedToWhatIsThere)
{
    this->Prepare(this->Record("1,a\x01"));
    KZCValidResult::instance()->SetResult(HE70001E, 2, 3, SINGLE_COLUMN);
    const DebugLog log;
    EXPECT_EQ(this->Make(), "refuses 0002-00003-HE70001E,0000-00000-HE70016E");
    const std::vector<LogEntry> vecEntry = LogEntries(log);
    ASSERT_GE(vecEntry.size(), 2U);
    EXPECT_EQ(vecEntry[vecEntry.size() - 2],
              (LogEntry{TypeParam::MAKE_MOK, "MOKファイルの読み込みに失敗。"}));
    EXPECT_EQ(vecEntry.back(),
              (LogEntry{TypeParam::MAKE_MOK,
                        "想定外の事象によりMOKファイルの作成に失敗しました。（HE70016E）"}));
    EXPECT_THAT(LastLogMessages(log, 2),
                ElementsAre("Valid Message[HE70016E]  mokファイルの作成に失敗しました。",
                            "record=0000 column=00000 value="));
}

TYPED_TEST(FamilyManagersTest, ReportTagThatItsBufferCutsIsMessageSixteen)
{
    // Two names of 30 escaped quotes take 360 bytes of 499; 'VR' takes the rest and more.
    this->m_bundle.Write(
        TypeParam::FOLDER + std::string("_tpl.xml"),
        DefinitionFile(SmallReportElement({TypeParam::Head().strProcId, TypeParam::REPORT,
                                           R"( startRow="0" endRow="0")", std::string(100, '1')})));
    this->Prepare(this->Record("1,a"));
    const std::string strQuotes(30, '"');
    EXPECT_EQ(this->SetIt(IT_NOZEISHA_NM, strQuotes), PASSES);
    EXPECT_EQ(this->SetIt(IT_SOFT_NAME, strQuotes), PASSES);
    EXPECT_EQ(this->Make(), MAKE_ERROR);
}

TYPED_TEST(FamilyManagersTest, MakingWithoutADefinitionIsMessageSixteen)
{
    EXPECT_EQ(this->InitMok(this->Write(this->Record("1,a")), this->m_folder.Path("out.mok")),
              PASSES);
    EXPECT_EQ(this->Make(), MAKE_ERROR);
}

TYPED_TEST(FamilyManagersTest, DocumentOfExactlyTheLimitPassesAndOneByteMoreDoesNot)
{
    const std::size_t nBare = this->Document(this->Item(1), this->Report(1, "1", "")).size();
    this->Prepare(this->Record("1," + std::string(DOCUMENT_LIMIT - nBare, 'a')));
    EXPECT_EQ(this->Make(), PASSES);
    EXPECT_EQ(this->Mok().size(), DOCUMENT_LIMIT);
    this->Prepare(this->Record("1," + std::string(DOCUMENT_LIMIT - nBare + 1, 'a')));
    const DebugLog log;
    EXPECT_EQ(this->Make(), "refuses 0000-00000-HE70023E");
    EXPECT_EQ(LogEntries(log).back(),
              (LogEntry{TypeParam::MAKE_MOK, "MOKファイルが10MBを超えています。（HE70023E）"}));
    EXPECT_THAT(LastLogMessages(log, 1), ElementsAre("record=0000 column=00000 value=10485761"));
}

TYPED_TEST(FamilyManagersTest, SavedFileIsTheTextThatIsHandedOut)
{
    this->Prepare(this->Record("12,ab"));
    EXPECT_EQ(this->Make(), PASSES);
    EXPECT_EQ(this->m_manager.SaveMok(), STATUS_OK);
    EXPECT_EQ(this->m_folder.Read("out.mok"), this->Mok());
}

TYPED_TEST(FamilyManagersTest, WithoutADocumentNothingIsSavedOrHandedOutAndTheBaseClassSaysSo)
{
    const DebugLog log;
    EXPECT_EQ(Told([&] { return this->m_manager.SaveMok(); }), FATAL);
    std::string strMok = "untouched";
    EXPECT_EQ(Told([&] { return this->m_manager.GetMok(strMok); }), FATAL);
    EXPECT_EQ(strMok, "untouched");
    // The two operations are the base class's own, whatever the family.
    EXPECT_THAT(LogEntries(log),
                ElementsAre(LogEntry{"KZCEkaMOKManager::SaveMok", UNEXPECTED_ERROR},
                            LogEntry{"KZCEkaMOKManager::GetMok", UNEXPECTED_ERROR}));
}

// ---- stores ------------------------------------------------------------------------------------

TYPED_TEST(FamilyManagersTest, ReloadReachesTheStoreOfTheFamily)
{
    EXPECT_EQ(TypeParam::Store().GetCsvFile(2)->ReadFile(this->Write(this->Record("1,a"))),
              STATUS_OK);
    this->m_manager.ReloadCsvFile(2, (" " + this->Write(this->Record("9,z")) + "　").c_str());
    EXPECT_EQ(StorePeek::Kind(), TypeParam::STORE);
    EXPECT_STREQ(TypeParam::Store().GetCsvFile(2)->GetItem(0, 1), "9");
}

TYPED_TEST(FamilyManagersTest, ReloadWithoutAPathOrOfAnUnknownKeyDoesNothing)
{
    static_cast<void>(TypeParam::Store().GetCsvFile(2)->ReadFile(this->Write(this->Record("1,a"))));
    this->m_manager.ReloadCsvFile(2, nullptr);
    this->m_manager.ReloadCsvFile(2, "");
    this->m_manager.ReloadCsvFile(3, this->Write(this->Record("9,z")).c_str());
    EXPECT_STREQ(TypeParam::Store().GetCsvFile(2)->GetItem(0, 1), "1");
    EXPECT_EQ(TypeParam::Store().GetCsvFile(3)->GetRecordCount(), 0);
}

TYPED_TEST(FamilyManagersTest, StoreOfTheOwnFamilyStaysWithTheResultStore)
{
    static_cast<void>(TypeParam::Store().GetCsvFile(2)->ReadFile(this->Write(this->Record("1,a"))));
    KZCValidResult::instance()->SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
    this->m_manager.TerminateDifferentData();
    EXPECT_EQ(StorePeek::Kind(), TypeParam::STORE);
    EXPECT_EQ(TypeParam::Store().GetCsvFile(2)->GetRecordCount(), 1);
    EXPECT_EQ(Detail(), "0001-00002-HE70001E");
}

TYPED_TEST(FamilyManagersTest, BaseStoreEndsWithTheResultStoreAndTheTaxOffices)
{
    static_cast<void>(KZCConvertInfo::instance());
    KZCEkaTaxOffices::instance()->Initialize();
    KZCValidResult::instance()->SetResult(HE70001E, 1, 2, SINGLE_COLUMN);
    KZCValidResult::instance()->SetITData(R"(<A ID="A">)");
    this->m_manager.TerminateDifferentData();
    EXPECT_EQ(StorePeek::Kind(), StoreKind::None);
    EXPECT_EQ(Detail(), "0000-00000-HE70017E");
    EXPECT_FALSE(KZCValidResult::instance()->ExistID("A"));
    EXPECT_EQ(Raised([] { static_cast<void>(KZCEkaTaxOffices::instance()->IsExistCode("00101")); }),
              FAULT);
    static_cast<void>(TypeParam::Store());
    EXPECT_EQ(StorePeek::Kind(), TypeParam::STORE);
}

}  // namespace
