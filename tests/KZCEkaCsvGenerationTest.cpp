#include <gmock/gmock.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "KZCEkaCsvFile.h"
#include "support/CheckItem.h"
#include "support/GenerationCsv.h"
#include "support/LogEntries.h"
#include "support/LogMessages.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"

namespace {

using Records = std::vector<KZCEkaCsvFile::Record>;

/// Filled cells by column, counted from 1.
using CellMap = std::map<std::size_t, std::string>;

/// A record wide enough for every rule.
KZCEkaCsvFile::Record MakeRecord(const char* szTypeId, const CellMap& mapCell)
{
    constexpr std::size_t COLUMNS = 40;
    KZCEkaCsvFile::Record record(COLUMNS);
    record.front() = szTypeId;
    for (const auto& [nColumn, strCell] : mapCell)
        record.at(nColumn - 1) = strCell;
    return record;
}

GenerationCsv MakeCsv(const char* szTypeId, const CellMap& mapCell)
{
    return GenerationCsv(Records{MakeRecord(szTypeId, mapCell)}, {}, szTypeId);
}

// 14 digits, the last being the check digit: the weights are 14 down to 2, and the digit is
// (11 - sum mod 11) mod 10. With zeros behind the first digit the sum is 14 times that digit.
constexpr const char* NUMBER_OF_0 = "00000000000001";  // sum 0, remainder 0
constexpr const char* NUMBER_OF_1 = "10000000000008";  // sum 14, remainder 3
constexpr const char* NUMBER_OF_2 = "20000000000005";  // sum 28, remainder 6
constexpr const char* NUMBER_OF_3 = "30000000000002";  // sum 42, remainder 9
constexpr const char* NUMBER_OF_4 = "40000000000000";  // sum 56, remainder 1
constexpr const char* NUMBER_OF_5 = "50000000000007";  // sum 70, remainder 4
constexpr const char* NUMBER_OF_6 = "60000000000004";  // sum 84, remainder 7
constexpr const char* NUMBER_OF_7 = "70000000000001";  // sum 98, remainder 10
constexpr const char* NUMBER_OF_8 = "80000000000009";  // sum 112, remainder 2
constexpr const char* NUMBER_OF_9 = "90000000000006";  // sum 126, remainder 5

struct GenerationCase
{
    const char* szName;
    const char* szTypeId;
    CellMap mapCell;
    const char* szGeneration;
};

void PrintTo(const GenerationCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CsvGenerationRuleTest : public ResetState, public testing::WithParamInterface<GenerationCase>
{};

TEST_P(CsvGenerationRuleTest, GivesThisGeneration)
{
    GenerationCsv csv = MakeCsv(GetParam().szTypeId, GetParam().mapCell);
    csv.checkGeneration(0);
    EXPECT_EQ(csv.GetRecordGeneration(0), GetParam().szGeneration);
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_P(CsvGenerationRuleTest, IsTheSameDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    GenerationCsv csv = MakeCsv(GetParam().szTypeId, GetParam().mapCell);
    csv.checkGeneration(0);
    EXPECT_EQ(csv.GetRecordGeneration(0), GetParam().szGeneration);
}

/// A record of type id 001: a date, and columns 23 and 24 filled.
CellMap Dated(const char* szEra, const char* szYear, const char* szMonth, const char* szDay)
{
    return {{2, szEra}, {3, szYear}, {4, szMonth}, {5, szDay}, {23, "a"}, {24, "b"}};
}

const GenerationCase BY_DATE[] = {
    {"Era1", "001", Dated("1", "45", "7", "29"), "senior"},
    {"Era2", "001", Dated("2", "15", "12", "24"), "senior"},
    {"Era3", "001", Dated("3", "64", "1", "7"), "senior"},
    {"Era4", "001", Dated("4", "31", "4", "30"), "senior"},
    {"Era4WithoutYearMonthAndDay", "001", Dated("4", "", "", ""), "senior"},
    {"Era5Year1", "001", Dated("5", "1", "5", "1"), "senior"},
    {"Era5Year2", "001", Dated("5", "2", "12", "31"), "senior"},
    {"Era5YearBelowZero", "001", Dated("5", "-1", "12", "31"), "senior"},
    {"Era5WithoutAYear", "001", Dated("5", "", "12", "31"), "senior"},
    {"Era5Year3Month1", "001", Dated("5", "3", "1", "31"), "senior"},
    {"Era5Year3Month2", "001", Dated("5", "3", "2", "99"), "senior"},
    {"Era5Year3WithoutAMonth", "001", Dated("5", "3", "", "99"), "senior"},
    {"Era5Year3Month3Day1", "001", Dated("5", "3", "3", "1"), "senior"},
    {"Era5Year3Month3Day31", "001", Dated("5", "3", "3", "31"), "senior"},
    {"Era5Year3Month3WithoutADay", "001", Dated("5", "3", "3", ""), "senior"},
    {"Era5Year3Month3Day32", "001", Dated("5", "3", "3", "32"), "junior"},
    {"Era5Year3Month4", "001", Dated("5", "3", "4", "1"), "junior"},
    {"Era5Year4", "001", Dated("5", "4", "1", "1"), "junior"},
    {"Era0", "001", Dated("0", "1", "1", "1"), "junior"},
    {"Era6", "001", Dated("6", "1", "1", "1"), "junior"},
    {"EraBelowZero", "001", Dated("-1", "1", "1", "1"), "junior"},
    {"NoEra", "001", Dated("", "1", "1", "1"), "junior"},
    {"EraThatIsNoNumber", "001", Dated("x", "1", "1", "1"), "junior"},
    {"EraWithTextBehindIt", "001", Dated("4x", "1", "1", "1"), "senior"},
    {"EraWithALeadingZero", "001", Dated("04", "1", "1", "1"), "senior"},
    {"EraOfWhichTheLow32BitsAre1", "001", Dated("4294967297", "1", "1", "1"), "senior"},
    {"GoodDateWithoutColumn23",
     "001",
     {{2, "4"}, {3, "1"}, {4, "1"}, {5, "1"}, {24, "b"}},
     "junior"},
    {"GoodDateWithoutColumn24",
     "001",
     {{2, "4"}, {3, "1"}, {4, "1"}, {5, "1"}, {23, "a"}},
     "junior"},
    {"GoodDateWithoutEither", "001", {{2, "4"}, {3, "1"}, {4, "1"}, {5, "1"}}, "junior"},
    {"April3WithoutEither", "001", {{2, "5"}, {3, "3"}, {4, "4"}, {5, "1"}}, "junior"},
    {"LateDateWithoutEither", "001", {{2, "5"}, {3, "3"}, {4, "3"}, {5, "32"}}, "junior"},
    {"NeighboursOfColumns23And24DoNotCount",
     "001",
     {{2, "4"}, {3, "1"}, {4, "1"}, {5, "1"}, {22, "a"}, {25, "b"}},
     "junior"},
};

INSTANTIATE_TEST_SUITE_P(ByDate, CsvGenerationRuleTest, testing::ValuesIn(BY_DATE), CaseName());

const GenerationCase BY_NUMBER[] = {
    {"FirstDigit0", "002", {{19, NUMBER_OF_0}}, "senior"},
    {"FirstDigit1", "002", {{19, NUMBER_OF_1}}, "senior"},
    {"FirstDigit2", "002", {{19, NUMBER_OF_2}}, "senior"},
    {"FirstDigit3", "002", {{19, NUMBER_OF_3}}, "senior"},
    {"FirstDigit4", "002", {{19, NUMBER_OF_4}}, "junior"},
    {"FirstDigit5", "002", {{19, NUMBER_OF_5}}, "junior"},
    {"FirstDigit6", "002", {{19, NUMBER_OF_6}}, "junior"},
    {"FirstDigit7", "002", {{19, NUMBER_OF_7}}, "junior"},
    {"FirstDigit8", "002", {{19, NUMBER_OF_8}}, "junior"},
    {"FirstDigit9", "002", {{19, NUMBER_OF_9}}, "junior"},
    {"NoNumber", "002", {}, "senior"},
    {"ThirteenDigits", "002", {{19, "4000000000000"}}, "senior"},
    {"FifteenDigits", "002", {{19, "400000000000000"}}, "senior"},
    {"WrongCheckDigit", "002", {{19, "40000000000001"}}, "senior"},
    {"LetterAmongTheDigits", "002", {{19, "4000000000000a"}}, "senior"},
    {"NumberInTheColumnBefore", "002", {{18, NUMBER_OF_4}}, "senior"},
    {"NumberInTheColumnBehind", "002", {{20, NUMBER_OF_4}}, "senior"},
    {"OtherColumnsDoNotMatter", "002", {{2, "a"}, {14, "b"}, {19, NUMBER_OF_4}}, "junior"},
};

INSTANTIATE_TEST_SUITE_P(ByNumber, CsvGenerationRuleTest, testing::ValuesIn(BY_NUMBER), CaseName());

const GenerationCase WITHOUT_A_RULE[] = {
    {"Type003", "003", {}, "senior"},
    {"Type004", "004", {}, "senior"},
    {"Type005", "005", {}, "senior"},
    {"Type006", "006", {}, "senior"},
    {"Type009", "009", {}, "senior"},
    {"Type003WithANumberInColumn19", "003", {{19, NUMBER_OF_4}}, "senior"},
    {"Type009WithANumberInColumn24", "009", {{24, NUMBER_OF_4}}, "senior"},
    {"Type000", "000", {}, ""},
    {"Type010", "010", {}, ""},
    {"Type1WithoutZeros", "1", {}, ""},
    {"Type101", "101", {}, ""},
};

INSTANTIATE_TEST_SUITE_P(WithoutARule,
                         CsvGenerationRuleTest,
                         testing::ValuesIn(WITHOUT_A_RULE),
                         CaseName());

const GenerationCase OF_TYPE_007[] = {
    {"Type007AllEmpty", "007", {{24, NUMBER_OF_4}}, "junior"},
    {"Type007NineInFront", "007", {{24, NUMBER_OF_9}}, "junior"},
    {"Type007ThreeInFront", "007", {{24, NUMBER_OF_3}}, "senior"},
    {"Type007NoNumber", "007", {}, "senior"},
    {"Type007WrongCheckDigit", "007", {{24, "40000000000009"}}, "senior"},
    {"Type007NumberInColumn19", "007", {{19, NUMBER_OF_4}}, "senior"},
    {"Type007Column7Filled", "007", {{24, NUMBER_OF_4}, {7, "a"}}, "senior"},
    {"Type007Column19Filled", "007", {{24, NUMBER_OF_4}, {19, "a"}}, "senior"},
    {"Type007Column20Filled", "007", {{24, NUMBER_OF_4}, {20, "a"}}, "senior"},
    {"Type007Column21Filled", "007", {{24, NUMBER_OF_4}, {21, "a"}}, "senior"},
    {"Type007Column22Filled", "007", {{24, NUMBER_OF_4}, {22, "a"}}, "senior"},
    {"Type007Column28Filled", "007", {{24, NUMBER_OF_4}, {28, "a"}}, "senior"},
    {"Type007Column29Filled", "007", {{24, NUMBER_OF_4}, {29, "a"}}, "senior"},
    {"Type007TheirNeighboursFilled",
     "007",
     {{24, NUMBER_OF_4}, {6, "a"}, {8, "a"}, {18, "a"}, {23, "a"}, {25, "a"}, {27, "a"}, {30, "a"}},
     "junior"},
};

INSTANTIATE_TEST_SUITE_P(OfType007,
                         CsvGenerationRuleTest,
                         testing::ValuesIn(OF_TYPE_007),
                         CaseName());

const GenerationCase OF_TYPE_008[] = {
    {"Type008AllEmpty", "008", {{19, NUMBER_OF_4}}, "junior"},
    {"Type008NineInFront", "008", {{19, NUMBER_OF_9}}, "junior"},
    {"Type008ThreeInFront", "008", {{19, NUMBER_OF_3}}, "senior"},
    {"Type008NoNumber", "008", {}, "senior"},
    {"Type008WrongCheckDigit", "008", {{19, "40000000000009"}}, "senior"},
    {"Type008NumberInColumn24", "008", {{24, NUMBER_OF_4}}, "senior"},
    {"Type008Column2Filled", "008", {{19, NUMBER_OF_4}, {2, "a"}}, "senior"},
    {"Type008Column14Filled", "008", {{19, NUMBER_OF_4}, {14, "a"}}, "senior"},
    {"Type008Column15Filled", "008", {{19, NUMBER_OF_4}, {15, "a"}}, "senior"},
    {"Type008Column16Filled", "008", {{19, NUMBER_OF_4}, {16, "a"}}, "senior"},
    {"Type008Column17Filled", "008", {{19, NUMBER_OF_4}, {17, "a"}}, "senior"},
    {"Type008TheirNeighboursFilled",
     "008",
     {{19, NUMBER_OF_4}, {3, "a"}, {13, "a"}, {18, "a"}, {20, "a"}},
     "junior"},
};

INSTANTIATE_TEST_SUITE_P(OfType008,
                         CsvGenerationRuleTest,
                         testing::ValuesIn(OF_TYPE_008),
                         CaseName());

class CsvGenerationTest : public ResetState
{};

TEST_F(CsvGenerationTest, UnknownTypeIdIsLoggedUnderTheNameOfTheDefinition)
{
    const DebugLog log;
    GenerationCsv csv = MakeCsv("010", {});
    csv.checkGeneration(0);
    EXPECT_THAT(LogMessages(log), testing::ElementsAre("想定していない帳票IDです"));
    EXPECT_THAT(log.Text(), testing::HasSubstr(" KZCEkaDefinition::checkGeneration--\n"));
}

TEST_F(CsvGenerationTest, KnownTypeIdIsNotLogged)
{
    const DebugLog log;
    GenerationCsv csv = MakeCsv("003", {});
    csv.checkGeneration(0);
    EXPECT_EQ(log.Text(), "");
}

TEST_F(CsvGenerationTest, RecordOfOneFilledColumnGetsNone)
{
    GenerationCsv csv(Records{KZCEkaCsvFile::Record{"003"}}, {}, "003");
    csv.checkGeneration(0);
    EXPECT_TRUE(csv.GetGenerations().empty());
}

TEST_F(CsvGenerationTest, BlankRecordGetsNone)
{
    GenerationCsv csv(Records{KZCEkaCsvFile::Record{""}}, {}, "003");
    csv.checkGeneration(0);
    EXPECT_TRUE(csv.GetGenerations().empty());
}

TEST_F(CsvGenerationTest, RecordOutOfRangeGetsNone)
{
    GenerationCsv csv = MakeCsv("003", {});
    csv.checkGeneration(1);
    csv.checkGeneration(-1);
    EXPECT_TRUE(csv.GetGenerations().empty());
}

TEST_F(CsvGenerationTest, RecordThatHasOneKeepsIt)
{
    GenerationCsv csv(Records{MakeRecord("003", {})}, {{0, "junior"}}, "003");
    csv.checkGeneration(0);
    EXPECT_EQ(csv.GetRecordGeneration(0), "junior");
}

TEST_F(CsvGenerationTest, EachRecordHasItsOwn)
{
    GenerationCsv csv(Records{MakeRecord("002", {{19, NUMBER_OF_4}}), KZCEkaCsvFile::Record{""},
                              MakeRecord("002", {})},
                      {}, "002");
    for (long lRecord = 0; lRecord < csv.GetRecordCount(); ++lRecord)
        csv.checkGeneration(lRecord);
    EXPECT_EQ(csv.GetGenerations(), (GenerationCsv::GenerationMap{{0, "junior"}, {2, "senior"}}));
}

// ---- reference numbers -------------------------------------------------------------------------

struct NumberCase
{
    const char* szName;
    std::string strCell;
    bool bExpected;
};

void PrintTo(const NumberCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CsvReferenceNumberTest : public ResetState, public testing::WithParamInterface<NumberCase>
{};

TEST_P(CsvReferenceNumberTest, IsToldApartAndNothingIsRecorded)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const GenerationCsv csv = MakeCsv("002", {{5, GetParam().strCell}});
    EXPECT_EQ(csv.preCheckNumber(0, 5), GetParam().bExpected);
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

const NumberCase NUMBER_CASES[] = {
    {"WellFormed", "40000000000000", true},
    {"AnyFirstDigit", NUMBER_OF_1, true},
    // 12345678901234: 14+26+36+44+50+54+56+56+54+0+4+6+6 = 406, remainder 10, digit 1
    {"AllWeightsCount", "12345678901231", true},
    {"AllWeightsCountAndTheDigitIsWrong", "12345678901234", false},
    {"Empty", "", false},
    {"ThirteenDigits", "4000000000000", false},
    {"FifteenDigits", "400000000000000", false},
    {"Letter", "4000000000000a", false},
    {"Sign", "+4000000000000", false},
    {"FullWidthDigits", ToShiftJis("４００００００"), false},
};

INSTANTIATE_TEST_SUITE_P(Cells,
                         CsvReferenceNumberTest,
                         testing::ValuesIn(NUMBER_CASES),
                         CaseName());

/// The check items that log a refusal, by the names in the log, when a cell is pre-checked.
struct OrderCase
{
    const char* szName;
    const char* szCell;
    std::vector<std::string> vecRefusedBy;
};

void PrintTo(const OrderCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

std::vector<std::string> Functions(const DebugLog& log)
{
    std::vector<std::string> vecFunction;
    for (const LogEntry& entry : LogEntries(log))
        if (entry.strFunction != "KZCEkaValidExist::_validate")
            vecFunction.push_back(entry.strFunction);
    return vecFunction;
}

class CsvReferenceOrderTest : public ResetState, public testing::WithParamInterface<OrderCase>
{};

TEST_P(CsvReferenceOrderTest, FirstCheckThatRefusesIsTheLast)
{
    const GenerationCsv csv = MakeCsv("002", {{19, GetParam().szCell}});
    const DebugLog log;
    static_cast<void>(csv.preCheckNumber(0, 19));
    EXPECT_EQ(Functions(log), GetParam().vecRefusedBy);
}

// Each cell but the last fails at every check from the one that is named on; a wrong check digit
// alone isn't logged.
const OrderCase ORDER_CASES[] = {
    {"EmptyIsLeftToThePresence", "", {}},
    {"LetterIsLeftToTheDigits", "3a", {"KZCEkaValidNumber::_validate"}},
    {"LengthIsLeftToTheLength", "30000", {"KZCEkaValidLength::_validate"}},
    {"WellFormed", "30000000000002", {}},
};

INSTANTIATE_TEST_SUITE_P(Cells, CsvReferenceOrderTest, testing::ValuesIn(ORDER_CASES), CaseName());

TEST_F(CsvGenerationTest, FirstDigitIsLookedAtBehindThePreChecks)
{
    GenerationCsv csv = MakeCsv("002", {});
    const DebugLog log;
    csv.checkGeneration(0);  // a cell without a first digit would be logged
    EXPECT_THAT(Functions(log), testing::IsEmpty());
}

TEST_F(CsvGenerationTest, ReferenceNumberOutOfRangeIsNone)
{
    const GenerationCsv csv = MakeCsv("002", {});
    EXPECT_FALSE(csv.preCheckNumber(0, 41));
    EXPECT_FALSE(csv.preCheckNumber(1, 19));
}

}  // namespace
