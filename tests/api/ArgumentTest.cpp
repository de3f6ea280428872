// What the operations say about their arguments: the texts of a conversion, paths and keys.
#include <cstdint>
#include <filesystem>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "ApiFixture.h"

namespace {

constexpr const char* ARGUMENT_NAMES[ARGUMENT_COUNT] = {
    "szCsvPathName", "szMokPathName", "szZeimushoCD",  "szNozeishaId", "szKojinBango",
    "szHojinBango",  "szNozeishaNm",  "szNozeishaAdr", "szDaihyoNm",   "szDairiId",
    "szDairiNm",     "szDairiAdr",    "szTetsuzuki",   "szSoftName",
};

/// What an omitted argument gives: an error's code, or null where it may be omitted.
constexpr const char* OMISSION_CODES[ARGUMENT_COUNT] = {
    "HE70001E", "HE70001E", "HE70001E", "HE70001E", nullptr, nullptr,    "HE70001E",
    "HE70001E", nullptr,    nullptr,    nullptr,    nullptr, "HE70010E", "HE70001E",
};

/// The element that an omitted argument leaves out of the document; null if there is none.
constexpr const char* OMITTED_ELEMENTS[ARGUMENT_COUNT] = {
    nullptr, nullptr,     nullptr,    nullptr,    "NOZEISHA_BANGO", "gen:hojinbango", nullptr,
    nullptr, "DAIHYO_NM", "DAIRI_ID", "DAIRI_NM", "DAIRI_ADR",      nullptr,          nullptr,
};

/// An error of an argument by its number.
std::string ArgumentError(std::size_t nNumber, const char* szCode)
{
    const std::string strNumber = std::to_string(nNumber);
    return "9999-" + std::string(5 - strNumber.size(), '0') + strNumber + "-" + szCode;
}

std::string Join(const std::vector<std::string>& vecEntry)
{
    std::string strText;
    for (const std::string& strEntry : vecEntry)
        strText += (strText.empty() ? "" : ",") + strEntry;
    return strText;
}

bool IsElArgument(std::size_t nArgument)
{
    return nArgument >= ZEIMUSHO_CD && nArgument <= TETSUZUKI;
}

}  // namespace

class ArgumentTest : public ApiTest
{
protected:
    /// The EL conversion of the fixture's file, kept under key 1.
    Outcome ElConvertKept()
    {
        EXPECT_EQ(ElCheck(m_strCsv, 1), ElCheckPassed("PGE5020", "2"));
        return ElConvert(1, m_arguments);
    }

    /// The plain conversion gives these errors and writes no file.
    void ExpectRefused(const std::string& strDetail)
    {
        EXPECT_EQ(Convert(m_arguments), Failed(strDetail));
        EXPECT_FALSE(Exists(m_strMok));
    }
};

// --- every position null, empty and blank ---

struct OmissionCase
{
    std::size_t nArgument;
    const char* szForm;
    std::optional<std::string> strValue;
};

std::ostream& operator<<(std::ostream& stream, const OmissionCase& testCase)
{
    return stream << ARGUMENT_NAMES[testCase.nArgument] << " " << testCase.szForm;
}

std::vector<OmissionCase> OmissionCases(bool bEl)
{
    std::vector<OmissionCase> vecCase;
    for (std::size_t nArgument = 0; nArgument < ARGUMENT_COUNT; ++nArgument) {
        if (bEl && !IsElArgument(nArgument))
            continue;
        vecCase.push_back({nArgument, "Null", std::nullopt});
        vecCase.push_back({nArgument, "Empty", ""});
        // A blank corporate number beside a personal one is a case of its own.
        if (nArgument == HOJIN_BANGO)
            continue;
        vecCase.push_back({nArgument, "Blank", " \t"});
        vecCase.push_back({nArgument, "FullWidthBlank", "\u3000"});
    }
    return vecCase;
}

std::string OmissionName(const testing::TestParamInfo<OmissionCase>& testCase)
{
    return std::string(ARGUMENT_NAMES[testCase.param.nArgument]) + testCase.param.szForm;
}

class PlainOmissionTest : public ArgumentTest, public testing::WithParamInterface<OmissionCase>
{};

TEST_P(PlainOmissionTest, GivesTheArgumentsErrorOrLeavesItsElementOut)
{
    const std::size_t nArgument = GetParam().nArgument;
    m_arguments[nArgument] = GetParam().strValue;
    if (OMISSION_CODES[nArgument] != nullptr) {
        ExpectRefused(ArgumentError(nArgument + 1, OMISSION_CODES[nArgument]));
        return;
    }
    ASSERT_EQ(Convert(m_arguments), Done());
    EXPECT_EQ(ReadBytes(m_strMok).find(OMITTED_ELEMENTS[nArgument]), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Positions,
                         PlainOmissionTest,
                         testing::ValuesIn(OmissionCases(false)),
                         OmissionName);

class ElOmissionTest : public ArgumentTest, public testing::WithParamInterface<OmissionCase>
{};

TEST_P(ElOmissionTest, GivesTheArgumentsErrorOrLeavesItsElementOut)
{
    const std::size_t nArgument = GetParam().nArgument;
    m_arguments[nArgument] = GetParam().strValue;
    const Outcome outcome = ElConvertKept();
    if (OMISSION_CODES[nArgument] != nullptr) {
        EXPECT_EQ(outcome, Failed(ArgumentError(nArgument, OMISSION_CODES[nArgument])));
        return;
    }
    ASSERT_EQ(outcome.strResult, "S_OK");
    EXPECT_EQ(outcome.strMokData.find(OMITTED_ELEMENTS[nArgument]), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Positions,
                         ElOmissionTest,
                         testing::ValuesIn(OmissionCases(true)),
                         OmissionName);

TEST_F(ArgumentTest, AllArgumentsNullGiveTheErrorsOfTheRequiredOnesInOrder)
{
    EXPECT_EQ(Convert(ConvertArguments()),
              Failed("9999-00001-HE70001E,9999-00002-HE70001E,9999-00003-HE70001E,"
                     "9999-00004-HE70001E,9999-00007-HE70001E,9999-00008-HE70001E,"
                     "9999-00013-HE70010E,9999-00014-HE70001E"));
}

TEST_F(ArgumentTest, AllArgumentsEmptyGiveTheErrorsOfTheRequiredOnesInOrder)
{
    ConvertArguments arguments;
    arguments.fill("");
    EXPECT_EQ(Convert(arguments),
              Failed("9999-00001-HE70001E,9999-00002-HE70001E,9999-00003-HE70001E,"
                     "9999-00004-HE70001E,9999-00007-HE70001E,9999-00008-HE70001E,"
                     "9999-00013-HE70010E,9999-00014-HE70001E"));
}

TEST_F(ArgumentTest, AllElArgumentsNullGiveTheErrorsOfTheRequiredOnesInOrder)
{
    m_arguments.fill(std::nullopt);
    EXPECT_EQ(ElConvertKept(), Failed("9999-00002-HE70001E,9999-00003-HE70001E,9999-00006-HE70001E,"
                                      "9999-00007-HE70001E,9999-00012-HE70010E"));
}

TEST_F(ArgumentTest, UnknownKeyStandsBeforeTheErrorsOfTheArguments)
{
    EXPECT_EQ(ElConvert(2, ConvertArguments()),
              Failed("9999-00001-HE70013E,9999-00002-HE70001E,9999-00003-HE70001E,"
                     "9999-00006-HE70001E,9999-00007-HE70001E,9999-00012-HE70010E"));
}

TEST_F(ArgumentTest, KeyOutOfRangeStandsBeforeTheErrorsOfTheArguments)
{
    EXPECT_EQ(ElConvert(6, ConvertArguments()),
              Failed("9999-00001-HE70009E,9999-00002-HE70001E,9999-00003-HE70001E,"
                     "9999-00006-HE70001E,9999-00007-HE70001E,9999-00012-HE70010E"));
}

// --- bad values ---

struct ValueCase
{
    const char* szName;
    Argument eArgument;
    std::string strValue;
    const char* szCode;  ///< null if the value is accepted
};

std::ostream& operator<<(std::ostream& stream, const ValueCase& testCase)
{
    return stream << ARGUMENT_NAMES[testCase.eArgument] << " " << testCase.szName;
}

const std::vector<ValueCase>& ValueCases()
{
    static const std::vector<ValueCase> cases = {
        {"OfficeWithALetter", ZEIMUSHO_CD, "0123a", "HE70004E"},
        {"OfficeOfFullWidthDigits", ZEIMUSHO_CD, "０１２３４", "HE70004E"},
        {"OfficeOfFourDigits", ZEIMUSHO_CD, "0123", "HE70008E"},
        {"OfficeOfSixDigits", ZEIMUSHO_CD, "012345", "HE70008E"},
        {"OfficeThatIsNotInTheTable", ZEIMUSHO_CD, "99999", "HE70011E"},
        {"OfficeOfAnotherType", ZEIMUSHO_CD, "09999", "HE70011E"},
        {"SecondOffice", ZEIMUSHO_CD, "05678", nullptr},
        {"OfficeAmongBlanks", ZEIMUSHO_CD, "  05678\u3000", nullptr},
        {"FilerIdWithALetter", NOZEISHA_ID, "123456789012345x", "HE70004E"},
        {"FilerIdWithAnInnerBlank", NOZEISHA_ID, "12345678 0123456", "HE70004E"},
        {"FilerIdWithASign", NOZEISHA_ID, "-123456789012345", "HE70004E"},
        {"FilerIdOf15Digits", NOZEISHA_ID, "123456789012345", "HE70008E"},
        {"FilerIdOf17Digits", NOZEISHA_ID, "12345678901234567", "HE70008E"},
        {"PersonalNumberWithALetter", KOJIN_BANGO, "12345678901x", "HE70004E"},
        {"PersonalNumberOf11Digits", KOJIN_BANGO, "12345678901", "HE70008E"},
        {"PersonalNumberOf13Digits", KOJIN_BANGO, "1234567890123", "HE70008E"},
        {"PersonalNumberWithoutAValidCheckDigit", KOJIN_BANGO, "000000000001", nullptr},
        {"NameOf30Characters", NOZEISHA_NM, Repeat("山", 30), nullptr},
        {"NameOf31Characters", NOZEISHA_NM, Repeat("山", 31), "HE70007E"},
        {"NameInHalfWidthKana", NOZEISHA_NM, "ﾔﾏﾀﾞ", "HE70006E"},
        {"NameWithALineFeed", NOZEISHA_NM, "山\n田", "HE70006E"},
        {"NameOutsideTheBasicPlane", NOZEISHA_NM, "𠮷田", "HE70006E"},
        {"NameWithATab", NOZEISHA_NM, "山\t田", nullptr},
        {"AddressOf100Characters", NOZEISHA_ADR, Repeat("県", 100), nullptr},
        {"AddressOf101Characters", NOZEISHA_ADR, Repeat("県", 101), "HE70007E"},
        {"AddressWithAStar", NOZEISHA_ADR, "見本★", "HE70006E"},
        {"RepresentativeOf30Characters", DAIHYO_NM, Repeat("a", 30), nullptr},
        {"RepresentativeOf31Characters", DAIHYO_NM, Repeat("a", 31), "HE70007E"},
        {"RepresentativeInHangul", DAIHYO_NM, "한", "HE70006E"},
        {"AgentIdWithALetter", DAIRI_ID, "654321098765432x", "HE70004E"},
        {"AgentIdOf15Digits", DAIRI_ID, "654321098765432", "HE70008E"},
        {"AgentIdOf17Digits", DAIRI_ID, "65432109876543210", "HE70008E"},
        {"AgentNameOf30Characters", DAIRI_NM, Repeat("鈴", 30), nullptr},
        {"AgentNameOf31Characters", DAIRI_NM, Repeat("鈴", 31), "HE70007E"},
        {"AgentNameWithAControlCharacter", DAIRI_NM, "鈴\x01木", "HE70006E"},
        {"AgentAddressOf100Characters", DAIRI_ADR, Repeat("市", 100), nullptr},
        {"AgentAddressOf101Characters", DAIRI_ADR, Repeat("市", 101), "HE70007E"},
        {"AgentAddressWithAnEmoji", DAIRI_ADR, "市😀", "HE70006E"},
        {"ProcedureOfAnotherFamily", TETSUZUKI, "PGE2015", "HE70010E"},
        {"ProcedureInLowerCase", TETSUZUKI, "pge5020", "HE70010E"},
        {"ProcedureCutShort", TETSUZUKI, "PGE502", "HE70010E"},
        {"TwoProcedures", TETSUZUKI, "PGE5020 PGE5030", "HE70010E"},
        {"ProcedureThatIsNotTheFiles", TETSUZUKI, "PGE5090", "HE70010E"},
        {"ProcedureAmongBlanks", TETSUZUKI, " PGE5020 ", nullptr},
    };
    return cases;
}

/// Those that the plain path alone has.
const std::vector<ValueCase>& PlainValueCases()
{
    static const std::vector<ValueCase> cases = [] {
        std::vector<ValueCase> vecCase = ValueCases();
        vecCase.push_back({"SoftwareNameOf30Characters", SOFT_NAME, Repeat("ソ", 30), nullptr});
        vecCase.push_back({"SoftwareNameOf31Characters", SOFT_NAME, Repeat("ソ", 31), "HE70007E"});
        vecCase.push_back({"SoftwareNameInHalfWidthKana", SOFT_NAME, "ｿﾌﾄ", "HE70006E"});
        vecCase.push_back({"CsvPathWithoutAnExtension", CSV_PATH, "/tmp/input", "HE70015E"});
        vecCase.push_back({"CsvPathOfADocument", CSV_PATH, "/tmp/input.mok", "HE70015E"});
        vecCase.push_back({"CsvPathOfNoFile", CSV_PATH, "/nonexistent/input.csv", "HE70013E"});
        vecCase.push_back({"OutputPathWithoutAnExtension", MOK_PATH, "/tmp/output", "HE70015E"});
        vecCase.push_back({"OutputPathOfATable", MOK_PATH, "/tmp/output.csv", "HE70015E"});
        vecCase.push_back({"OutputPathInMixedCase", MOK_PATH, "/tmp/output.Mok", "HE70015E"});
        vecCase.push_back(
            {"OutputPathInNoFolder", MOK_PATH, "/nonexistent/output.mok", "HE70010E"});
        vecCase.push_back({"OutputPathWithoutAFolder", MOK_PATH, "output.mok", "HE70010E"});
        vecCase.push_back({"OutputPathBelowAFile", MOK_PATH, "/etc/passwd/output.mok", "HE70010E"});
        return vecCase;
    }();
    return cases;
}

std::string ValueName(const testing::TestParamInfo<ValueCase>& testCase)
{
    return testCase.param.szName;
}

class PlainValueTest : public ArgumentTest, public testing::WithParamInterface<ValueCase>
{};

TEST_P(PlainValueTest, IsAcceptedOrRefusedUnderItsNumber)
{
    m_arguments[GetParam().eArgument] = GetParam().strValue;
    if (GetParam().szCode == nullptr)
        EXPECT_EQ(Convert(m_arguments), Done());
    else
        ExpectRefused(ArgumentError(GetParam().eArgument + 1, GetParam().szCode));
}

INSTANTIATE_TEST_SUITE_P(Values, PlainValueTest, testing::ValuesIn(PlainValueCases()), ValueName);

class ElValueTest : public ArgumentTest, public testing::WithParamInterface<ValueCase>
{};

TEST_P(ElValueTest, IsAcceptedOrRefusedUnderItsNumber)
{
    m_arguments[GetParam().eArgument] = GetParam().strValue;
    const Outcome outcome = ElConvertKept();
    if (GetParam().szCode == nullptr)
        EXPECT_EQ(outcome.strResult, "S_OK") << outcome;
    else
        EXPECT_EQ(outcome, Failed(ArgumentError(GetParam().eArgument, GetParam().szCode)));
}

INSTANTIATE_TEST_SUITE_P(Values, ElValueTest, testing::ValuesIn(ValueCases()), ValueName);

/// Every argument bad, each in a way of its own, both numbers given.
ConvertArguments BadArguments()
{
    return {"/nonexistent/input.csv",
            "/tmp/output.doc",
            "99999",
            "123",
            "1",
            "1",
            Repeat("山", 31),
            Repeat("県", 101),
            "山\n田",
            "12x",
            "ｽｽﾞｷ",
            Repeat("市", 101),
            "PGE2015",
            Repeat("ソ", 31)};
}

TEST_F(ArgumentTest, AllArgumentsBadGiveOneErrorEachInOrder)
{
    std::vector<std::string> vecEntry;
    const char* const codes[ARGUMENT_COUNT] = {
        "HE70013E", "HE70015E", "HE70011E", "HE70008E", "HE70010E", "HE70010E", "HE70007E",
        "HE70007E", "HE70006E", "HE70004E", "HE70006E", "HE70007E", "HE70010E", "HE70007E"};
    for (std::size_t nArgument = 0; nArgument < ARGUMENT_COUNT; ++nArgument)
        vecEntry.push_back(ArgumentError(nArgument + 1, codes[nArgument]));
    EXPECT_EQ(Convert(BadArguments()), Failed(Join(vecEntry)));
}

TEST_F(ArgumentTest, AllElArgumentsBadGiveOneErrorEachInOrder)
{
    m_arguments = BadArguments();
    EXPECT_EQ(ElConvertKept(), Failed("9999-00002-HE70011E,9999-00003-HE70008E,9999-00004-HE70010E,"
                                      "9999-00005-HE70010E,9999-00006-HE70007E,9999-00007-HE70007E,"
                                      "9999-00008-HE70006E,9999-00009-HE70004E,9999-00010-HE70006E,"
                                      "9999-00011-HE70007E,9999-00012-HE70010E"));
}

TEST_F(ArgumentTest, ArgumentErrorsKeepTheFileFromBeingRead)
{
    m_arguments[CSV_PATH] = MakeFile("bad.csv", "999");
    m_arguments[DAIHYO_NM] = "山\n田";
    ExpectRefused("9999-00009-HE70006E");
}

TEST_F(ArgumentTest, ArgumentErrorsStandWithoutTheProceduresMismatch)
{
    m_arguments[TETSUZUKI] = "PGE5010";
    m_arguments[SOFT_NAME] = "";
    ExpectRefused("9999-00014-HE70001E");
}

TEST_F(ArgumentTest, ShiftJisArgumentIsNotReadAsText)
{
    m_arguments[NOZEISHA_NM] = ToShiftJis("山田太郎");
    ExpectRefused("9999-00007-HE70001E");
}

// --- personal and corporate number ---

TEST_F(ArgumentTest, TwoNumbersAreRefusedUnderBoth)
{
    m_arguments[HOJIN_BANGO] = "1234567890123";
    ExpectRefused("9999-00005-HE70010E,9999-00006-HE70010E");
}

TEST_F(ArgumentTest, TwoNumbersAreRefusedUnderBothOnTheElPath)
{
    m_arguments[HOJIN_BANGO] = "1234567890123";
    EXPECT_EQ(ElConvertKept(), Failed("9999-00004-HE70010E,9999-00005-HE70010E"));
}

TEST_F(ArgumentTest, TwoMalformedNumbersGiveTheErrorOfTheirPairAlone)
{
    m_arguments[KOJIN_BANGO] = "x";
    m_arguments[HOJIN_BANGO] = "y";
    ExpectRefused("9999-00005-HE70010E,9999-00006-HE70010E");
}

TEST_F(ArgumentTest, TwoNumbersKeepTheFileFromBeingRead)
{
    m_arguments[CSV_PATH] = MakeFile("bad.csv", "999");
    m_arguments[HOJIN_BANGO] = "1234567890123";
    ExpectRefused("9999-00005-HE70010E,9999-00006-HE70010E");
}

TEST_F(ArgumentTest, BlankNumberBesideAnotherCountsAsGiven)
{
    // The pair is judged by the arguments as they come, before anything is trimmed.
    m_arguments[HOJIN_BANGO] = " ";
    ExpectRefused("9999-00005-HE70010E,9999-00006-HE70010E");
}

TEST_F(ArgumentTest, CorporateNumberAloneStandsInTheDocument)
{
    for (const std::optional<std::string>& strKojin :
         {std::optional<std::string>(), std::optional<std::string>("")}) {
        m_arguments[KOJIN_BANGO] = strKojin;
        m_arguments[HOJIN_BANGO] = "1234567890123";
        ASSERT_EQ(Convert(m_arguments), Done());
        EXPECT_NE(ReadBytes(m_strMok).find(R"(<NOZEISHA_BANGO ID="NOZEISHA_BANGO"><gen:hojinbango>)"
                                           "1234567890123</gen:hojinbango></NOZEISHA_BANGO>"),
                  std::string::npos);
    }
}

TEST_F(ArgumentTest, PersonalNumberBesideAnEmptyCorporateOneStandsInTheDocument)
{
    m_arguments[HOJIN_BANGO] = "";
    ASSERT_EQ(Convert(m_arguments), Done());
    EXPECT_NE(ReadBytes(m_strMok).find("<gen:kojinbango>123456789012</gen:kojinbango>"),
              std::string::npos);
}

TEST_F(ArgumentTest, CorporateNumberAloneGoesThroughItsOwnCheck)
{
    m_arguments[KOJIN_BANGO] = "";
    m_arguments[HOJIN_BANGO] = "123456789012";
    ExpectRefused("9999-00006-HE70008E");
    m_arguments[HOJIN_BANGO] = "123456789012x";
    ExpectRefused("9999-00006-HE70004E");
}

TEST_F(ArgumentTest, CorporateNumberAloneGoesThroughItsOwnCheckOnTheElPath)
{
    m_arguments[KOJIN_BANGO] = std::nullopt;
    m_arguments[HOJIN_BANGO] = "123456789012";
    EXPECT_EQ(ElConvertKept(), Failed("9999-00005-HE70008E"));
}

TEST_F(ArgumentTest, NullCorporateNumberLeavesThePersonalOneToItsOwnCheck)
{
    m_arguments[KOJIN_BANGO] = "x";
    m_arguments[HOJIN_BANGO] = std::nullopt;
    ExpectRefused("9999-00005-HE70004E");
}

// --- keys ---

constexpr std::int64_t BAD_KEYS[] = {
    0,
    6,
    16,
    -1,
    -5,
    std::numeric_limits<std::int64_t>::min(),
    std::numeric_limits<std::int64_t>::max(),
    (std::int64_t{1} << 32) + 1,  // 1 in the low 32 bits
    -(std::int64_t{1} << 32) + 1,
};

std::string KeyName(const testing::TestParamInfo<std::int64_t>& testCase)
{
    const std::string strKey = std::to_string(testCase.param);
    return strKey.starts_with('-') ? "Minus" + strKey.substr(1) : strKey;
}

class GoodKeyTest : public ArgumentTest, public testing::WithParamInterface<std::int64_t>
{};

TEST_P(GoodKeyTest, IsCheckedAndConverted)
{
    ASSERT_EQ(ElCheck(m_strCsv, GetParam()), ElCheckPassed("PGE5020", "2"));
    EXPECT_EQ(ElConvert(GetParam(), m_arguments).strResult, "S_OK");
}

TEST_P(GoodKeyTest, IsUnknownBeforeItsCheck)
{
    EXPECT_EQ(ElConvert(GetParam(), m_arguments), Failed("9999-00001-HE70013E"));
}

INSTANTIATE_TEST_SUITE_P(Keys, GoodKeyTest, testing::Range<std::int64_t>(1, 6), KeyName);

class BadKeyTest : public ArgumentTest, public testing::WithParamInterface<std::int64_t>
{};

TEST_P(BadKeyTest, IsRefusedByTheCheckUnderArgumentTwo)
{
    EXPECT_EQ(ElCheck(m_strCsv, GetParam()), Failed("9999-00002-HE70009E"));
}

TEST_P(BadKeyTest, IsRefusedByTheConversionUnderArgumentOneAndNotCalledUnknown)
{
    EXPECT_EQ(ElConvert(GetParam(), m_arguments), Failed("9999-00001-HE70009E"));
}

TEST_P(BadKeyTest, StandsBehindABadPath)
{
    EXPECT_EQ(ElCheck("", GetParam()), Failed("9999-00001-HE70001E,9999-00002-HE70009E"));
}

INSTANTIATE_TEST_SUITE_P(Keys, BadKeyTest, testing::ValuesIn(BAD_KEYS), KeyName);

// --- paths of a check ---

struct PathCase
{
    const char* szName;
    /// Makes what stands at the path; returns the argument.
    std::string (*prepare)(const std::string& strFolder);
    const char* szCode;  ///< null if the path is accepted
};

std::ostream& operator<<(std::ostream& stream, const PathCase& testCase)
{
    return stream << testCase.szName;
}

std::string GoodCsvAt(const std::string& strPath)
{
    WriteBytes(strPath, CsvText({"002,12345,佐藤次郎,50,1"}));
    return strPath;
}

const PathCase PATH_CASES[] = {
    {"Empty", [](const std::string&) { return std::string(); }, "HE70001E"},
    {"BlanksOnly", [](const std::string&) { return std::string(" \r\n\t"); }, "HE70001E"},
    {"FullWidthBlanksOnly", [](const std::string&) { return std::string("\u3000\u3000"); },
     "HE70001E"},
    {"InvalidUtf8", [](const std::string& strFolder) { return GoodCsvAt(strFolder + "/\xff.csv"); },
     "HE70001E"},
    {"OverlongUtf8", [](const std::string& strFolder) { return strFolder + "/\xc0\xaf.csv"; },
     "HE70001E"},
    {"SurrogateInUtf8",
     [](const std::string& strFolder) { return strFolder + "/\xed\xa0\x80.csv"; }, "HE70001E"},
    {"CsvInLowerCase", [](const std::string& strFolder) { return GoodCsvAt(strFolder + "/a.csv"); },
     nullptr},
    {"CsvInUpperCase", [](const std::string& strFolder) { return GoodCsvAt(strFolder + "/A.CSV"); },
     nullptr},
    {"TxtInLowerCase", [](const std::string& strFolder) { return GoodCsvAt(strFolder + "/a.txt"); },
     nullptr},
    {"TxtInUpperCase", [](const std::string& strFolder) { return GoodCsvAt(strFolder + "/A.TXT"); },
     nullptr},
    {"CsvInMixedCase", [](const std::string& strFolder) { return GoodCsvAt(strFolder + "/a.Csv"); },
     "HE70015E"},
    {"NothingButTheExtension",
     [](const std::string& strFolder) { return GoodCsvAt(strFolder + "/.csv"); }, nullptr},
    {"TwoExtensions",
     [](const std::string& strFolder) { return GoodCsvAt(strFolder + "/a.mok.csv"); }, nullptr},
    {"ExtensionInTheFolderAlone",
     [](const std::string& strFolder) {
         std::filesystem::create_directory(strFolder + "/b.csv");
         return GoodCsvAt(strFolder + "/b.csv/a");
     },
     "HE70015E"},
    {"NoExtension", [](const std::string& strFolder) { return GoodCsvAt(strFolder + "/a"); },
     "HE70015E"},
    {"DotAtTheEnd", [](const std::string& strFolder) { return GoodCsvAt(strFolder + "/a."); },
     "HE70015E"},
    {"WrongExtensionOfNoFile", [](const std::string& strFolder) { return strFolder + "/a.doc"; },
     "HE70015E"},
    {"NoFile", [](const std::string& strFolder) { return strFolder + "/a.csv"; }, "HE70013E"},
    {"NoFolder", [](const std::string& strFolder) { return strFolder + "/b/a.csv"; }, "HE70013E"},
    {"BelowAFile",
     [](const std::string& strFolder) { return GoodCsvAt(strFolder + "/a.csv") + "/a.csv"; },
     "HE70013E"},
    {"Folder",
     [](const std::string& strFolder) {
         std::filesystem::create_directory(strFolder + "/a.csv");
         return strFolder + "/a.csv";
     },
     "HE70013E"},
    {"EmptyFile",
     [](const std::string& strFolder) {
         WriteBytes(strFolder + "/a.csv", "");
         return strFolder + "/a.csv";
     },
     "HE70024E"},
    {"TrailingSlash",
     [](const std::string& strFolder) { return GoodCsvAt(strFolder + "/a.csv") + "/"; },
     "HE70015E"},
    {"InnerBlanks",
     [](const std::string& strFolder) { return GoodCsvAt(strFolder + "/a  b .csv"); }, nullptr},
};

class CheckPathTest : public ArgumentTest, public testing::WithParamInterface<PathCase>
{
protected:
    std::string MakePath()
    {
        std::filesystem::create_directory(File("case"));
        return GetParam().prepare(File("case"));
    }
};

TEST_P(CheckPathTest, PlainCheckAcceptsOrRefusesItUnderArgumentOne)
{
    const std::string strPath = MakePath();
    EXPECT_EQ(Check(strPath), GetParam().szCode == nullptr
                                  ? CheckPassed("PGE5020")
                                  : Failed(ArgumentError(1, GetParam().szCode)));
}

TEST_P(CheckPathTest, ElCheckAcceptsOrRefusesItUnderArgumentOne)
{
    const std::string strPath = MakePath();
    EXPECT_EQ(ElCheck(strPath, 1), GetParam().szCode == nullptr
                                       ? ElCheckPassed("PGE5020", "1")
                                       : Failed(ArgumentError(1, GetParam().szCode)));
}

TEST_P(CheckPathTest, ConversionAcceptsOrRefusesItUnderArgumentOne)
{
    m_arguments[CSV_PATH] = MakePath();
    EXPECT_EQ(Convert(m_arguments),
              GetParam().szCode == nullptr ? Done() : Failed(ArgumentError(1, GetParam().szCode)));
}

INSTANTIATE_TEST_SUITE_P(Paths,
                         CheckPathTest,
                         testing::ValuesIn(PATH_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST_F(ArgumentTest, NullPathOfACheckIsAnEmptyOne)
{
    EXPECT_EQ(OutcomeOf(KZICsvConvMokEka().CsvCheck(nullptr)), Failed("9999-00001-HE70001E"));
}

TEST_F(ArgumentTest, NullPathOfAnElCheckIsAnEmptyOne)
{
    EXPECT_EQ(OutcomeOf(KZICsvConvMokEka().ELCsvCheck(nullptr, 1)), Failed("9999-00001-HE70001E"));
}

TEST_F(ArgumentTest, NullPathAndABadKeyGiveBothErrors)
{
    EXPECT_EQ(OutcomeOf(KZICsvConvMokEka().ELCsvCheck(nullptr, 0)),
              Failed("9999-00001-HE70001E,9999-00002-HE70009E"));
}
