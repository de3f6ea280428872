#include "validator/KZCArgValid.h"

#include <ostream>
#include <string>
#include <vector>

#include "KZCEkaTaxOffices.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/ResetState.h"
#include "support/TempFolder.h"
#include "validator/KZCEkaValidator.h"

namespace {

// --- the rows ---

/// A row without its two columns (-1 in every row) and without the parameters of the outer item
/// (empty in every row).
struct Row
{
    std::string strId;
    std::string strValue;
    std::string strMin;
    std::string strMax;
    std::string strOuterId;
    KZCEkaMessage_t eMessage = MSG_NONE;

    bool operator==(const Row&) const = default;
};

void PrintTo(const Row& row, std::ostream* pStream)
{
    *pStream << row.strId << " value=" << row.strValue << " min=" << row.strMin
             << " max=" << row.strMax << " outer=" << row.strOuterId << " message=" << row.eMessage;
}

struct TypeCase
{
    const char* szName;
    int nType;
    std::vector<Row> vecRow;
};

void PrintTo(const TypeCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ArgValidRowsTest : public ResetState, public testing::WithParamInterface<TypeCase>
{};

TEST_P(ArgValidRowsTest, StandInOrder)
{
    std::vector<Row> vecRow;
    for (const ArgValidRow& row : GetArgValidRows(static_cast<KZCArgValid_t>(GetParam().nType)))
        vecRow.push_back(
            {row.szId, row.szValue, row.szMin, row.szMax, row.szOuterId, row.eMessage});
    EXPECT_EQ(vecRow, GetParam().vecRow);
}

TEST_P(ArgValidRowsTest, NameNoColumnAndNoParametersOfTheCondition)
{
    for (const ArgValidRow& row : GetArgValidRows(static_cast<KZCArgValid_t>(GetParam().nType))) {
        EXPECT_EQ(row.lColumn, -1);
        EXPECT_EQ(row.lOuterColumn, -1);
        EXPECT_STREQ(row.szOuterValue, "");
        EXPECT_STREQ(row.szOuterMin, "");
        EXPECT_STREQ(row.szOuterMax, "");
    }
}

const TypeCase TYPES[] = {
    {"Type01CsvPath",
     1,
     {{"exist", "", "", "", ""},
      {"extension", ".txt .TXT .csv .CSV", "", "", ""},
      {"existpath", "file", "", "", ""}}},
    {"Type02MokPath",
     2,
     {{"exist", "", "", "", ""},
      {"extension", ".mok .MOK", "", "", ""},
      {"existpath", "dir", "", "", ""}}},
    {"Type03Key", 3, {{"exist", "", "", "", ""}, {"range", "", "1", "5", ""}}},
    {"Type04TaxOfficeCode",
     4,
     {{"exist", "", "", "", ""},
      {"number", "", "", "", ""},
      {"length", "5", "", "", ""},
      {"taxoffice", "", "", "", ""}}},
    {"Type05FilerId",
     5,
     {{"exist", "", "", "", ""}, {"number", "", "", "", ""}, {"length", "16", "", "", ""}}},
    {"Type06Refused",
     6,
     {{"exist", "", "", "", ""},
      {"extension", ".txt .TXT .csv .CSV", "", "", ""},
      {"existpath", "file", "", "", ""}}},
    {"Type07PersonalNumber",
     7,
     {{"number", "", "", "", "exist"}, {"length", "12", "", "", "exist"}}},
    {"Type08CorporateNumber",
     8,
     {{"number", "", "", "", "exist"}, {"length", "13", "", "", "exist"}}},
    {"Type09FilerName",
     9,
     {{"exist", "", "", "", ""}, {"charlength", "", "", "30", ""}, {"lvystring", "", "", "", ""}}},
    {"Type10FilerAddress",
     10,
     {{"exist", "", "", "", ""}, {"charlength", "", "", "100", ""}, {"lvystring", "", "", "", ""}}},
    {"Type11RepresentativesName",
     11,
     {{"charlength", "", "", "30", "exist"}, {"lvystring", "", "", "", "exist"}}},
    {"Type12AgentId", 12, {{"number", "", "", "", "exist"}, {"length", "16", "", "", "exist"}}},
    {"Type13AgentName",
     13,
     {{"charlength", "", "", "30", "exist"}, {"lvystring", "", "", "", "exist"}}},
    {"Type14AgentAddress",
     14,
     {{"charlength", "", "", "100", "exist"}, {"lvystring", "", "", "", "exist"}}},
    {"Type15ProcedureCode",
     15,
     {{"contain", "PGE5010 PGE5020 PGE5030 PGE5040 PGE5050 PGE5060 PGE5070 PGE5080 PGE5090", "", "",
       "", HE70010E}}},
    {"Type16SoftwareName",
     16,
     {{"exist", "", "", "", ""},
      {"charlength", "", "", "30", "", HE70007E},
      {"lvystring", "", "", "", "exist"}}},
    {"Type17KeyOfFinance", 17, {{"exist", "", "", "", ""}, {"range", "", "1", "16", ""}}},
    {"Type18ProcedureCodeOfFinance",
     18,
     {{"contain",
       "PGE2015 PGE2025 PGE2030 PGE2040 PGE2055 PGE2065 PGE2070 PGE2080 PGE2095 PGE2105 PGE2115 "
       "PGE2125 PGE2135 PGE2140 PGE2150 PGE2160 PGE1630 PGE1640",
       "", "", "", HE70010E}}},
    {"Type19Era",
     19,
     {{"exist", "", "", "", ""},
      {"length", "1", "", "", ""},
      {"contain", "1 2 3 4 5", "", "", ""}}},
    {"Type20Year",
     20,
     {{"exist", "", "", "", ""},
      {"number", "", "", "", "exist"},
      {"charlength", "", "", "2", ""},
      {"range", "", "1", "99", "exist"}}},
    {"Type21Month",
     21,
     {{"exist", "", "", "", ""},
      {"number", "", "", "", "exist"},
      {"charlength", "", "", "2", ""},
      {"range", "", "1", "12", "exist"}}},
    {"Type22Day",
     22,
     {{"exist", "", "", "", ""},
      {"number", "", "", "", "exist"},
      {"charlength", "", "", "2", ""},
      {"range", "", "1", "31", "exist"}}},
    {"Type23FirstPartOfThePostalCode",
     23,
     {{"number", "", "", "", "exist"}, {"length", "3", "", "", "exist"}}},
    {"Type24SecondPartOfThePostalCode",
     24,
     {{"number", "", "", "", "exist"}, {"length", "4", "", "", "exist"}}},
    {"Type25KeyOfCrossBorder", 25, {{"exist", "", "", "", ""}, {"range", "", "1", "10", ""}}},
    {"Type26ProcedureCodeOfCrossBorder",
     26,
     {{"contain", "PGE1650 PGE1660", "", "", "", HE70010E}}},
};

INSTANTIATE_TEST_SUITE_P(Types, ArgValidRowsTest, testing::ValuesIn(TYPES), CaseName());

using ArgValidTableTest = ResetState;

TEST_F(ArgValidTableTest, NumbersOutsideTheTableHaveNoRows)
{
    for (int nType : {-1000, -1, 0, 27, 1000})
        EXPECT_TRUE(GetArgValidRows(static_cast<KZCArgValid_t>(nType)).empty()) << nType;
}

TEST_F(ArgValidTableTest, TypesWithTheSameRowsShareThem)
{
    EXPECT_EQ(GetArgValidRows(ARG_CSV_PATH).data(), GetArgValidRows(ARG_REFUSED).data());
    EXPECT_EQ(GetArgValidRows(ARG_DAIHYO_NM).data(), GetArgValidRows(ARG_DAIRI_NM).data());
}

// --- what the rows say of values ---

constexpr const char* CHARACTERS_30 =
    "ああああああああああああああああああああああああああああああ";
constexpr const char* CHARACTERS_31 =
    "あああああああああああああああああああああああああああああああ";
const std::string ONE_HUNDRED(100, 'a');
const std::string ONE_HUNDRED_AND_ONE(101, 'a');

struct ArgumentCase
{
    const char* szName;
    int nType;
    const char* szValue;
    KZCEkaMessage_t eRefusal;
};

void PrintTo(const ArgumentCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ArgumentCheckTest : public ResetState, public testing::WithParamInterface<ArgumentCase>
{
protected:
    ArgumentCheckTest() { KZCEkaTaxOffices::instance()->Initialize(); }

private:
    Bundle m_bundle;
};

std::string CheckArgument(int nType, const char* szValue)
{
    KZCEkaValidator validator;
    validator.Initialize(static_cast<KZCArgValid_t>(nType), true);
    return Told([&] { return validator.Validate(szValue, ARGUMENT_RECORD, ARGUMENT_NUMBER); });
}

TEST_P(ArgumentCheckTest, LeavesAtMostOneError)
{
    EXPECT_EQ(CheckArgument(GetParam().nType, GetParam().szValue), Verdict(GetParam().eRefusal));
}

const ArgumentCase ARGUMENTS[] = {
    {"CsvPathEmpty", 1, "", HE70001E},
    {"CsvPathNull", 1, nullptr, HE70001E},
    {"CsvPathWithoutASuffix", 1, "/missing-folder/a", HE70015E},
    {"CsvPathWithAnotherSuffix", 1, "/missing-folder/a.xml", HE70015E},
    {"CsvPathMissing", 1, "/missing-folder/a.csv", HE70013E},
    {"TxtPathMissing", 1, "/missing-folder/a.TXT", HE70013E},
    {"MokPathEmpty", 2, "", HE70001E},
    {"MokPathWithoutASuffixInAMissingFolder", 2, "/missing-folder/x", HE70015E},
    {"MokPathInAMissingFolder", 2, "/missing-folder/x.mok", HE70010E},
    {"MokPathInCapitalsInAMissingFolder", 2, "/missing-folder/x.MOK", HE70010E},
    {"MokPathInMixedCase", 2, "/missing-folder/x.Mok", HE70015E},
    {"MokPathWithoutAFolder", 2, "x.mok", HE70010E},
    {"Key1", 3, "1", MSG_NONE},
    {"Key5", 3, "5", MSG_NONE},
    {"Key0", 3, "0", HE70009E},
    {"Key6", 3, "6", HE70009E},
    {"KeyNegative", 3, "-1", HE70009E},
    {"KeyEmpty", 3, "", HE70001E},
    {"TaxOfficeKnown", 4, "00101", MSG_NONE},
    {"TaxOfficeUnknown", 4, "99999", HE70011E},
    {"TaxOfficeShort", 4, "0010", HE70008E},
    {"TaxOfficeLetter", 4, "0010a", HE70004E},
    {"TaxOfficeEmpty", 4, "", HE70001E},
    {"FilerId", 5, "1234567890123456", MSG_NONE},
    {"FilerIdShort", 5, "123456789012345", HE70008E},
    {"FilerIdLetter", 5, "123456789012345a", HE70004E},
    {"FilerIdEmpty", 5, "", HE70001E},
    {"PersonalNumberEmpty", 7, "", MSG_NONE},
    {"PersonalNumberNull", 7, nullptr, MSG_NONE},
    {"PersonalNumber", 7, "123456789012", MSG_NONE},
    {"PersonalNumberOfElevenDigits", 7, "12345678901", HE70008E},
    {"PersonalNumberOfThirteenDigits", 7, "1234567890123", HE70008E},
    {"PersonalNumberLetter", 7, "12345678901a", HE70004E},
    {"CorporateNumberEmpty", 8, "", MSG_NONE},
    {"CorporateNumber", 8, "1234567890123", MSG_NONE},
    {"CorporateNumberOfTwelveDigits", 8, "123456789012", HE70008E},
    {"FilerNameOf30", 9, CHARACTERS_30, MSG_NONE},
    {"FilerNameOf31", 9, CHARACTERS_31, HE70007E},
    {"FilerNameWithALineFeed", 9, "a\nb", HE70006E},
    {"FilerNameInHalfWidthKatakana", 9, "ｱ", HE70006E},
    {"FilerNameEmpty", 9, "", HE70001E},
    {"FilerAddressOf100", 10, ONE_HUNDRED.c_str(), MSG_NONE},
    {"FilerAddressOf101", 10, ONE_HUNDRED_AND_ONE.c_str(), HE70007E},
    {"FilerAddressEmpty", 10, "", HE70001E},
    {"RepresentativeEmpty", 11, "", MSG_NONE},
    {"RepresentativeOf30", 11, CHARACTERS_30, MSG_NONE},
    {"RepresentativeOf31", 11, CHARACTERS_31, HE70007E},
    {"RepresentativeInHalfWidthKatakana", 11, "ｱ", HE70006E},
    {"AgentIdEmpty", 12, "", MSG_NONE},
    {"AgentIdShort", 12, "1", HE70008E},
    {"AgentIdLetter", 12, "a", HE70004E},
    {"AgentNameEmpty", 13, "", MSG_NONE},
    {"AgentNameOf31", 13, CHARACTERS_31, HE70007E},
    {"AgentAddressEmpty", 14, "", MSG_NONE},
    {"AgentAddressOf100", 14, ONE_HUNDRED.c_str(), MSG_NONE},
    {"AgentAddressOf101", 14, ONE_HUNDRED_AND_ONE.c_str(), HE70007E},
    {"AgentAddressWithAnEmoji", 14, "\xf0\x9f\x98\x80", HE70006E},
    {"ProcedureFirst", 15, "PGE5010", MSG_NONE},
    {"ProcedureLast", 15, "PGE5090", MSG_NONE},
    {"ProcedureOfFinance", 15, "PGE2015", HE70010E},
    {"ProcedureInAnotherCase", 15, "pge5010", HE70010E},
    {"ProcedureEmpty", 15, "", HE70010E},
    {"ProcedureNull", 15, nullptr, HE70010E},
    {"SoftwareNameOf30", 16, CHARACTERS_30, MSG_NONE},
    {"SoftwareNameOf31", 16, CHARACTERS_31, HE70007E},
    {"SoftwareNameInHalfWidthKatakana", 16, "ｱ", HE70006E},
    {"SoftwareNameEmpty", 16, "", HE70001E},
    {"FinanceKey6", 17, "6", MSG_NONE},
    {"FinanceKey16", 17, "16", MSG_NONE},
    {"FinanceKey17", 17, "17", HE70009E},
    {"FinanceKey0", 17, "0", HE70009E},
    {"FinanceProcedure", 18, "PGE2015", MSG_NONE},
    {"FinanceProcedureLast", 18, "PGE1640", MSG_NONE},
    {"FinanceProcedureOfTheBaseFamily", 18, "PGE5010", HE70010E},
    {"FinanceProcedureEmpty", 18, "", HE70010E},
    {"Era1", 19, "1", MSG_NONE},
    {"Era5", 19, "5", MSG_NONE},
    {"Era6", 19, "6", HE70009E},
    {"EraOfTwoDigits", 19, "01", HE70008E},
    {"EraEmpty", 19, "", HE70001E},
    {"Year1", 20, "1", MSG_NONE},
    {"YearWithAZero", 20, "01", MSG_NONE},
    {"Year99", 20, "99", MSG_NONE},
    {"Year0", 20, "0", HE70009E},
    {"YearOfThreeDigits", 20, "100", HE70007E},
    {"YearLetter", 20, "a", HE70004E},
    {"YearEmpty", 20, "", HE70001E},
    {"Month12", 21, "12", MSG_NONE},
    {"Month13", 21, "13", HE70009E},
    {"Month0", 21, "0", HE70009E},
    {"MonthOfThreeDigits", 21, "012", HE70007E},
    {"MonthEmpty", 21, "", HE70001E},
    {"Day31", 22, "31", MSG_NONE},
    {"Day32", 22, "32", HE70009E},
    {"DaySign", 22, "+1", HE70004E},
    {"DayEmpty", 22, "", HE70001E},
    {"Zip1Empty", 23, "", MSG_NONE},
    {"Zip1", 23, "100", MSG_NONE},
    {"Zip1Short", 23, "10", HE70008E},
    {"Zip1Letter", 23, "10a", HE70004E},
    {"Zip2Empty", 24, "", MSG_NONE},
    {"Zip2", 24, "0001", MSG_NONE},
    {"Zip2Long", 24, "00001", HE70008E},
    {"CrossBorderKey10", 25, "10", MSG_NONE},
    {"CrossBorderKey11", 25, "11", HE70009E},
    {"CrossBorderKeyEmpty", 25, "", HE70001E},
    {"CrossBorderProcedure", 26, "PGE1650", MSG_NONE},
    {"CrossBorderProcedureLast", 26, "PGE1660", MSG_NONE},
    {"CrossBorderProcedureOfFinance", 26, "PGE1640", HE70010E},
    {"CrossBorderProcedureEmpty", 26, "", HE70010E},
};

INSTANTIATE_TEST_SUITE_P(Values, ArgumentCheckTest, testing::ValuesIn(ARGUMENTS), CaseName());

class ArgumentPathTest : public ResetState
{
protected:
    const TempFolder m_folder;
};

TEST_F(ArgumentPathTest, ACsvFileThatHoldsSomethingPasses)
{
    for (const char* szName : {"a.txt", "a.TXT", "a.csv", "a.CSV"})
        EXPECT_EQ(CheckArgument(ARG_CSV_PATH, m_folder.Write(szName, "x").c_str()), PASSES);
}

TEST_F(ArgumentPathTest, AnEmptyCsvFileIsRefused)
{
    EXPECT_EQ(CheckArgument(ARG_CSV_PATH, m_folder.Write("a.csv", "").c_str()), Verdict(HE70024E));
}

TEST_F(ArgumentPathTest, TheSuffixOfACsvFileIsLookedAtBeforeTheFile)
{
    EXPECT_EQ(CheckArgument(ARG_CSV_PATH, m_folder.Write("a.Csv", "x").c_str()), Verdict(HE70015E));
}

TEST_F(ArgumentPathTest, AnOutputPathInAFolderPasses)
{
    EXPECT_EQ(CheckArgument(ARG_MOK_PATH, m_folder.Path("x.mok").c_str()), PASSES);
    EXPECT_EQ(CheckArgument(ARG_MOK_PATH, m_folder.Path("x.MOK").c_str()), PASSES);
}

// Arguments are UTF-8, but their checks go by the flag all the same.
TEST_F(ArgumentPathTest, AFlagLeftFromACheckHasUtf8ArgumentsReadAsShiftJis)
{
    // 93 bytes: an odd number, so the last byte is half a pair and nothing can be decoded.
    EXPECT_EQ(CheckArgument(ARG_NOZEISHA_NM, CHARACTERS_31), Verdict(HE70007E));
    KZCEkaCommon::SetCsvCheckFlag(true);
    EXPECT_EQ(CheckArgument(ARG_NOZEISHA_NM, CHARACTERS_31), PASSES);
}

}  // namespace
