#include "KZCEkaTaxOffices.h"

#include <gtest/gtest.h>

#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/DebugLog.h"
#include "support/Environment.h"
#include "support/LogEntries.h"
#include "support/LogText.h"
#include "support/ResetState.h"
#include "support/TempFolder.h"

namespace {

constexpr const char* OFFICES = R"(<?xml version="1.0" encoding="UTF-8"?>
<Root>
  <TaxOffice OfficeType="5" OfficeCode="00101" OfficeName="青葉"/>
  <TaxOffice OfficeType="1" OfficeCode="00102" OfficeName="白樺"/>
  <TaxOffice OfficeType="05" OfficeCode="00103" OfficeName="紅葉"/>
  <TaxOffice OfficeType="55" OfficeCode="00104" OfficeName="若草"/>
  <TaxOffice OfficeCode="00105" OfficeName="種別無"/>
  <!-- between two offices -->
  <Office OfficeType="5" OfficeCode="00106" OfficeName="別名"/>
  <taxoffice OfficeType="5" OfficeCode="00107" OfficeName="小文字"/>
  <Group>
    <TaxOffice OfficeType="5" OfficeCode="00108" OfficeName="深所"/>
  </Group>
  <TaxOffice OfficeType="5" OfficeCode="00109" OfficeName="最初"/>
  <TaxOffice OfficeType="5" OfficeCode="00109" OfficeName="二番"/>
  <TaxOffice OfficeType="1" OfficeCode="00110" OfficeName="別種"/>
  <TaxOffice OfficeType="5" OfficeCode="00110" OfficeName="同番"/>
  <TaxOffice OfficeType="5" OfficeCode="00111"/>
  <TaxOffice OfficeType="5" OfficeCode="00112" OfficeName="A&amp;B"/>
</Root>
)";

/// The number that an operation throws, or 0.
template <class Operation>
int Thrown(Operation operation)
{
    try {
        operation();
    } catch (int nThrown) {
        return nThrown;
    }
    return 0;
}

class KZCEkaTaxOfficesTest : public ResetState
{
protected:
    static KZCEkaTaxOffices& Offices() { return *KZCEkaTaxOffices::instance(); }

    /// Reads a table of its own.
    static KZCEkaTaxOffices& Load(const std::string& strTaxOffices)
    {
        const Bundle bundle(std::nullopt, strTaxOffices);
        Offices().Initialize();
        return Offices();
    }
};

struct CodeCase
{
    const char* szName;
    const char* szCode;
    bool bExpected;
};

class KZCEkaTaxOfficesCodeTest : public KZCEkaTaxOfficesTest,
                                 public testing::WithParamInterface<CodeCase>
{};

TEST_P(KZCEkaTaxOfficesCodeTest, IsExistCodeKnowsTheOfficesOfTypeFive)
{
    EXPECT_EQ(Load(OFFICES).IsExistCode(GetParam().szCode), GetParam().bExpected);
}

constexpr CodeCase CODE_CASES[] = {
    {"TypeFive", "00101", true},
    {"OtherType", "00102", false},
    {"TypeWithALeadingZero", "00103", false},
    {"TypeOfTwoFives", "00104", false},
    {"WithoutAType", "00105", false},
    {"ElementOfAnotherName", "00106", false},
    {"ElementInLowerCase", "00107", false},
    {"ElementDeeperThanTheRootsChildren", "00108", false},
    {"OfTwoEntries", "00109", true},
    {"OfTypeFiveInItsSecondEntry", "00110", true},
    {"Unknown", "99999", false},
    {"Empty", "", false},
    {"Prefix", "0010", false},
    {"TrailingBlank", "00101 ", false},
    {"WithoutLeadingZeros", "101", false},
};

INSTANTIATE_TEST_SUITE_P(Codes,
                         KZCEkaTaxOfficesCodeTest,
                         testing::ValuesIn(CODE_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

struct NameCase
{
    const char* szName;
    const char* szCode;
    const char* szOfficeName;
    bool bExpected;
};

class KZCEkaTaxOfficesNameTest : public KZCEkaTaxOfficesTest,
                                 public testing::WithParamInterface<NameCase>
{};

TEST_P(KZCEkaTaxOfficesNameTest, IsValidNameComparesWithTheFirstOfficeOfTheCode)
{
    EXPECT_EQ(Load(OFFICES).IsValidName(GetParam().szCode, GetParam().szOfficeName),
              GetParam().bExpected);
}

constexpr NameCase NAME_CASES[] = {
    {"ItsOwnName", "00101", "青葉", true},
    {"AnotherOfficesName", "00101", "最初", false},
    {"Prefix", "00101", "青", false},
    {"TrailingBlank", "00101", "青葉 ", false},
    {"EmptyName", "00101", "", false},
    {"UnknownCode", "99999", "青葉", false},
    {"EmptyCode", "", "青葉", false},
    {"OtherType", "00102", "白樺", false},
    {"FirstOfTwoEntries", "00109", "最初", true},
    {"SecondOfTwoEntriesIsNeverTried", "00109", "二番", false},
    {"EntriesOfOtherTypesAreSkipped", "00110", "同番", true},
    {"NameOfASkippedEntry", "00110", "別種", false},
    {"AbsentNameIsTheEmptyText", "00111", "", true},
    {"EntityInTheName", "00112", "A&B", true},
};

INSTANTIATE_TEST_SUITE_P(Names,
                         KZCEkaTaxOfficesNameTest,
                         testing::ValuesIn(NAME_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST_F(KZCEkaTaxOfficesTest, InstanceIsTheSameObjectUntilItIsDestroyed)
{
    KZCEkaTaxOffices* pFirst = KZCEkaTaxOffices::instance();
    EXPECT_EQ(KZCEkaTaxOffices::instance(), pFirst);
}

TEST_F(KZCEkaTaxOfficesTest, AnEmptyCodeFindsAnEntryWithAnEmptyCode)
{
    Load(R"(<Root><TaxOffice OfficeType="5" OfficeCode="" OfficeName="無番"/></Root>)");
    EXPECT_TRUE(Offices().IsExistCode(""));
    EXPECT_TRUE(Offices().IsValidName("", "無番"));
}

TEST_F(KZCEkaTaxOfficesTest, AnEmptyCodeFindsAnEntryWithoutACode)
{
    Load(R"(<Root><TaxOffice OfficeType="5" OfficeName="無番"/></Root>)");
    EXPECT_TRUE(Offices().IsExistCode(""));
}

TEST_F(KZCEkaTaxOfficesTest, ARootWithoutChildrenKnowsNoOffice)
{
    EXPECT_FALSE(Load("<Root/>").IsExistCode("00101"));
    EXPECT_FALSE(Offices().IsValidName("00101", "青葉"));
}

TEST_F(KZCEkaTaxOfficesTest, ACommentInFrontOfTheRootHidesTheOffices)
{
    Load(R"(<!-- note --><Root><TaxOffice OfficeType="5" OfficeCode="00101"/></Root>)");
    EXPECT_FALSE(Offices().IsExistCode("00101"));
}

TEST_F(KZCEkaTaxOfficesTest, TheRootsOwnAttributesDontCount)
{
    Load(R"(<TaxOffice OfficeType="5" OfficeCode="00101"/>)");
    EXPECT_FALSE(Offices().IsExistCode("00101"));
}

TEST_F(KZCEkaTaxOfficesTest, ASecondInitializeDoesntReadTheFileAgain)
{
    const Bundle bundle;
    Offices().Initialize();
    bundle.Write("TaxOffices.xml", "no document at all");
    Offices().Initialize();
    EXPECT_TRUE(Offices().IsExistCode("00101"));
}

TEST_F(KZCEkaTaxOfficesTest, AfterDestroyTheFileIsReadAgain)
{
    const Bundle bundle;
    Offices().Initialize();
    bundle.Write("TaxOffices.xml",
                 R"(<Root><TaxOffice OfficeType="5" OfficeCode="00201"/></Root>)");
    KZCEkaTaxOffices::destroy();
    Offices().Initialize();
    EXPECT_FALSE(Offices().IsExistCode("00101"));
    EXPECT_TRUE(Offices().IsExistCode("00201"));
}

struct FaultCase
{
    const char* szName;
    std::optional<std::string> taxOffices;
};

class KZCEkaTaxOfficesFaultTest : public KZCEkaTaxOfficesTest,
                                  public testing::WithParamInterface<FaultCase>
{};

TEST_P(KZCEkaTaxOfficesFaultTest, InitializeThrowsTheFault)
{
    const Bundle bundle(std::nullopt, GetParam().taxOffices);
    EXPECT_EQ(Thrown([] { Offices().Initialize(); }), FAULT);
}

TEST_P(KZCEkaTaxOfficesFaultTest, AFailedInitializeLeavesTheObjectAsIfItHadNeverRun)
{
    const Bundle bundle(std::nullopt, GetParam().taxOffices);
    EXPECT_EQ(Thrown([] { Offices().Initialize(); }), FAULT);
    EXPECT_EQ(Thrown([] { static_cast<void>(Offices().IsExistCode("00101")); }), FAULT);
}

TEST_P(KZCEkaTaxOfficesFaultTest, AFailedInitializeCanBeTriedAgain)
{
    const Bundle bundle(std::nullopt, GetParam().taxOffices);
    EXPECT_EQ(Thrown([] { Offices().Initialize(); }), FAULT);
    bundle.Write("TaxOffices.xml", SMALL_TAX_OFFICES);
    Offices().Initialize();
    EXPECT_TRUE(Offices().IsExistCode("00101"));
}

const FaultCase FAULT_CASES[] = {
    {"Missing", std::nullopt},
    {"Empty", ""},
    {"Truncated", "<Root><TaxOffice OfficeType=\"5\" OfficeCode=\"00101\"/>"},
    {"NoXml", "00101,青葉"},
    {"TwoRoots", "<Root/><Root/>"},
    {"InvalidUtf8", "<Root a=\"\x82\xA0\"/>"},
};

INSTANTIATE_TEST_SUITE_P(Files,
                         KZCEkaTaxOfficesFaultTest,
                         testing::ValuesIn(FAULT_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST_F(KZCEkaTaxOfficesTest, InitializeWithoutAResourceFolderThrowsTheFault)
{
    const TempFolder folder;
    const Environment variable("KZEKAMOK_BUNDLE", folder.Path("none"));
    EXPECT_EQ(Thrown([] { Offices().Initialize(); }), FAULT);
}

TEST_F(KZCEkaTaxOfficesTest, AQuestionBeforeInitializeThrowsTheFault)
{
    EXPECT_EQ(Thrown([] { static_cast<void>(Offices().IsExistCode("00101")); }), FAULT);
    EXPECT_EQ(Thrown([] { static_cast<void>(Offices().IsValidName("00101", "青葉")); }), FAULT);
}

TEST_F(KZCEkaTaxOfficesTest, AMissingFileIsLogged)
{
    const Bundle bundle(std::nullopt, std::nullopt);
    EXPECT_EQ(MessagesOf([] { Thrown([] { Offices().Initialize(); }); }),
              "想定しないエラーが発生しました。\n"
              "unable to open primary document entity '' (行番号: 0, 列番号: 0)\n"
              "TaxOffices.xmlの読み込みでエラーが発生しました。\n"
              "想定外エラーが発生しました。\n");
}

TEST_F(KZCEkaTaxOfficesTest, AMalformedFileIsLogged)
{
    const Bundle bundle(std::nullopt, "<Root>\n</Rot>");
    const DebugLog log;
    Thrown([] { Offices().Initialize(); });
    // The end tag's name begins at the third character of the second line.
    EXPECT_EQ(
        LogEntries(log),
        (std::vector<LogEntry>{
            {"KZCXDom::Parse",
             "想定しないエラーが発生しました。\n"
             "expected end of tag 'Root' (行番号: 2, 列番号: 3)"},
            {"KZCEkaTaxOffices::Initialize", "TaxOffices.xmlの読み込みでエラーが発生しました。"},
            {"KZCEkaTaxOffices::Initialize", "想定外エラーが発生しました。"}}));
}

TEST_F(KZCEkaTaxOfficesTest, AQuestionBeforeInitializeIsLogged)
{
    EXPECT_EQ(MessagesOf([] { Thrown([] { static_cast<void>(Offices().IsExistCode("00101")); }); }),
              "DOMの操作に失敗しました。\n");
    EXPECT_EQ(
        MessagesOf([] { Thrown([] { static_cast<void>(Offices().IsValidName("00101", "")); }); }),
        "DOMの操作に失敗しました。\n");
}

TEST_F(KZCEkaTaxOfficesTest, AnUnknownCodeIsNotLogged)
{
    Load(OFFICES);
    EXPECT_EQ(MessagesOf([] { EXPECT_FALSE(Offices().IsExistCode("99999")); }), "");
}

}  // namespace
