#include "validator/KZCEkaValidDate.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "support/CheckItem.h"
#include "support/DebugLog.h"
#include "support/LogText.h"
#include "support/RecordCase.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"

namespace {

constexpr const char* BAD_ERA = "元号の指定が不正です。\n";

/// A date check whose rule is set by the test. It keeps the texts that it is asked about.
class DateProbe final : public KZCEkaValidDate
{
public:
    explicit DateProbe(KZCEkaMessage_t eRefusal = MSG_NONE,
                       long lColumn = 1,
                       KZCEkaMessage_t eMessage = MSG_NONE)
        : KZCEkaValidDate(lColumn, eMessage), m_eRefusal(eRefusal)
    {
    }

    void KeepEra() { m_bKeepEra = true; }
    void KeepEraName() { m_bKeepEraName = true; }
    const std::vector<std::string>& Seen() const { return m_vecSeen; }
    const KZCEkaCsvFile* Csv() const { return m_pCsv; }
    long Row() const { return m_lRow; }

private:
    KZCEkaMessage_t _validate(const char* szValue) override
    {
        m_vecSeen.emplace_back(szValue);
        return m_eRefusal;
    }

    const KZCEkaMessage_t m_eRefusal;
    std::vector<std::string> m_vecSeen;
};

using Texts = std::vector<std::string>;

// --- reading the four columns ---

struct ReadCase
{
    const char* szName;
    std::vector<std::string> vecCell;
    const char* szWestern;
    const char* szEra;      ///< with the era kept
    const char* szEraName;  ///< with era and name kept
};

void PrintTo(const ReadCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ReadDateTest : public ResetState, public testing::WithParamInterface<ReadCase>
{
protected:
    static KZCEkaCsvFile::Record Record()
    {
        KZCEkaCsvFile::Record record = {"001"};
        record.insert(record.end(), GetParam().vecCell.begin(), GetParam().vecCell.end());
        return record;
    }

    const TableCsv m_csv{{"001", "9", "9", "9", "9"}, Record()};
    DateProbe m_probe;
};

TEST_P(ReadDateTest, GivesTheWesternText)
{
    EXPECT_EQ(m_probe.GetDateString(&m_csv, 1, 1), GetParam().szWestern);
}

TEST_P(ReadDateTest, GivesTheEraTextIfTheEraIsKept)
{
    m_probe.KeepEra();
    EXPECT_EQ(m_probe.GetDateString(&m_csv, 1, 1), GetParam().szEra);
}

TEST_P(ReadDateTest, GivesTheStatedEraIfItsNameIsKeptToo)
{
    m_probe.KeepEra();
    m_probe.KeepEraName();
    EXPECT_EQ(m_probe.GetDateString(&m_csv, 1, 1), GetParam().szEraName);
}

const ReadCase READ_CASES[] = {
    // One of each era.
    {"Meiji", {"1", "45", "7", "29"}, "1912/ 7/29", "明治45/ 7/29", "明治45/ 7/29"},
    {"Taisho", {"2", "15", "12", "24"}, "1926/12/24", "大正15/12/24", "大正15/12/24"},
    {"Showa64", {"3", "64", "1", "7"}, "1989/ 1/ 7", "昭和64/ 1/ 7", "昭和64/ 1/ 7"},
    {"ShortFieldsArePadded", {"4", "1", "2", "3"}, "1989/ 2/ 3", "平成 1/ 2/ 3", "平成 1/ 2/ 3"},
    {"FullFields", {"4", "30", "09", "01"}, "2018/09/01", "平成30/09/01", "平成30/09/01"},
    {"FirstYearOfTheNewEra", {"5", "1", "5", "1"}, "2019/ 5/ 1", "新号 1/ 5/ 1", "新号 1/ 5/ 1"},
    // The change of era.
    {"Heisei31April", {"4", "31", "4", "30"}, "2019/ 4/30", "平成31/ 4/30", "平成31/ 4/30"},
    {"Heisei31May", {"4", "31", "5", "1"}, "2019/ 5/ 1", "新号01/ 5/ 1", "平成31/ 5/ 1"},
    {"Heisei31December", {"4", "31", "12", "31"}, "2019/12/31", "新号01/12/31", "平成31/12/31"},
    {"Heisei32March", {"4", "32", "3", "31"}, "2020/ 3/31", "新号02/ 3/31", "平成32/ 3/31"},
    {"Heisei32April", {"4", "32", "4", "1"}, "2020/ 4/ 1", "平成32/ 4/ 1", "平成32/ 4/ 1"},
    {"Heisei33", {"4", "33", "1", "1"}, "2021/ 1/ 1", "平成33/ 1/ 1", "平成33/ 1/ 1"},
    {"NewEraInTheOldOne", {"5", "1", "1", "1"}, "2019/ 1/ 1", "新号 1/ 1/ 1", "新号 1/ 1/ 1"},
    // Codes are read like C.
    {"CodeWithZeros", {"004", "30", "9", "1"}, "2018/ 9/ 1", "平成30/ 9/ 1", "平成30/ 9/ 1"},
    {"CodeWithTrailingText", {"4x", "30", "9", "1"}, "2018/ 9/ 1", "平成30/ 9/ 1", "平成30/ 9/ 1"},
    {"CodeWithBlank", {" 4", "30", "9", "1"}, "2018/ 9/ 1", "平成30/ 9/ 1", "平成30/ 9/ 1"},
    {"Code0", {"0", "30", "9", "1"}, "", "", ""},
    {"Code6", {"6", "30", "9", "1"}, "", "", ""},
    {"NegativeCode", {"-1", "30", "9", "1"}, "", "", ""},
    {"EmptyCode", {"", "30", "9", "1"}, "", "", ""},
    {"LetterAsCode", {"H", "30", "9", "1"}, "", "", ""},
    // Cells are not examined.
    {"LetterInTheYearIsZero", {"4", "x", "9", "1"}, "1988/ 9/ 1", "平成 x/ 9/ 1", "平成 x/ 9/ 1"},
    {"LetterBehindTheYear", {"4", "3x", "9", "1"}, "1991/ 9/ 1", "平成3x/ 9/ 1", "平成3x/ 9/ 1"},
    {"LetterInTheMonthTravels",
     {"4", "30", "x", "1"},
     "2018/ x/ 1",
     "平成30/ x/ 1",
     "平成30/ x/ 1"},
    {"LetterInTheDayTravels", {"4", "30", "9", "x"}, "2018/ 9/ x", "平成30/ 9/ x", "平成30/ 9/ x"},
    {"EmptyCells", {"4", "", "", ""}, "1988/  /  ", "平成  /  /  ", "平成  /  /  "},
    {"MissingCells", {"4"}, "1988/  /  ", "平成  /  /  ", "平成  /  /  "},
    {"LetterAsMonthCountsAsEarly",
     {"4", "32", "x", "1"},
     "2020/ x/ 1",
     "新号02/ x/ 1",
     "平成32/ x/ 1"},
    {"LetterAsMonthStaysIn31", {"4", "31", "x", "1"}, "2019/ x/ 1", "平成31/ x/ 1", "平成31/ x/ 1"},
    {"YearOfThreeDigitsShiftsTheTail",
     {"4", "123", "9", "1"},
     "20003/ 9/ 1",
     "平成123/ 9/ 1",
     "平成123/ 9/ 1"},
    {"PaddingCountsBytes", {"4", "あ", "9", "1"}, "1988 9/ 1", "平成あ/ 9/ 1", "平成あ/ 9/ 1"},
};

INSTANTIATE_TEST_SUITE_P(Cells, ReadDateTest, testing::ValuesIn(READ_CASES), CaseName());

using ValidDateTest = ResetState;

// The buffer holds 63 bytes, of which era, year, month and slashes take 12.
TEST_F(ValidDateTest, ALongCellIsCutAtTheBuffer)
{
    const TableCsv csv{{"001", "4", "30", "9", std::string(80, '1')}};
    DateProbe probe;
    probe.KeepEra();
    EXPECT_EQ(probe.GetDateString(&csv, 0, 1), "平成30/ 9/" + std::string(51, '1'));
}

class BadEraTest : public ResetState, public testing::WithParamInterface<const char*>
{
protected:
    const TableCsv m_csv{{"001", GetParam(), "30", "9", "1"}};
    DateProbe m_probe;
};

TEST_P(BadEraTest, GivesNoDateAndALogLine)
{
    std::string strDate = "untouched";
    EXPECT_EQ(MessagesOf([&] { strDate = m_probe.GetDateString(&m_csv, 0, 1); }), BAD_ERA);
    EXPECT_EQ(strDate, "");
}

TEST_P(BadEraTest, GivesNoYearAndALogLine)
{
    std::string strYear = "untouched";
    EXPECT_EQ(MessagesOf([&] { strYear = m_probe.GetYearString(&m_csv, 0, 1); }), BAD_ERA);
    EXPECT_EQ(strYear, "");
}

TEST_P(BadEraTest, IsRecordedAsNoDateByTheDateForm)
{
    EXPECT_EQ(OnRecord(m_probe, m_csv), "refuses 0001-02:05-HE70012E");
    EXPECT_EQ(m_probe.Seen(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(Codes, BadEraTest, testing::Values("0", "6", "-1", "", "x"));

// --- optional dates ---

struct OptionalCase
{
    const char* szName;
    const char* szKind;
    long lColumn;
    bool bOptional;
};

void PrintTo(const OptionalCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class OptionalDateTest : public ResetState, public testing::WithParamInterface<OptionalCase>
{
protected:
    /// A record of the kind with these four cells at the column, and nothing else.
    static KZCEkaCsvFile::Record RecordOf(const std::vector<std::string>& vecCell)
    {
        KZCEkaCsvFile::Record record(static_cast<std::size_t>(GetParam().lColumn) + 4);
        record[0] = GetParam().szKind;
        std::ranges::copy(vecCell, record.end() - 4);
        return record;
    }

    DateProbe m_probe;
};

TEST_P(OptionalDateTest, IsKnownByKindAndColumn)
{
    const TableCsv csv{RecordOf({"4", "30", "9", "1"})};
    EXPECT_EQ(m_probe.CheckTargetColumn(&csv, 0, GetParam().lColumn, GetParam().szKind),
              GetParam().bOptional);
}

TEST_P(OptionalDateTest, IsReadIfAllFourCellsAreFilled)
{
    const TableCsv csv{RecordOf({"4", "30", "9", "1"})};
    EXPECT_EQ(m_probe.GetDateString(&csv, 0, GetParam().lColumn), "2018/ 9/ 1");
}

TEST_P(OptionalDateTest, IsPaddedElsewhereIfACellIsEmpty)
{
    const TableCsv csv{RecordOf({"4", "30", "9", ""})};
    EXPECT_EQ(m_probe.GetDateString(&csv, 0, GetParam().lColumn),
              GetParam().bOptional ? "" : "2018/ 9/  ");
}

TEST_P(OptionalDateTest, IsEmptyWithoutALogLineIfACellIsEmpty)
{
    const std::vector<std::vector<std::string>> INCOMPLETE = {
        {"", "30", "9", "1"}, {"4", "", "9", "1"}, {"4", "30", "", "1"},
        {"4", "30", "9", ""}, {"", "", "", ""},    {"6", "30", "9", ""},
    };
    for (const auto& vecCell : INCOMPLETE) {
        const TableCsv csv{RecordOf(vecCell)};
        const bool bBadEra = vecCell[0] != "4";
        std::string strDate;
        EXPECT_EQ(MessagesOf([&] { strDate = m_probe.GetDateString(&csv, 0, GetParam().lColumn); }),
                  !GetParam().bOptional && bBadEra ? BAD_ERA : "");
        EXPECT_EQ(strDate.empty(), GetParam().bOptional || bBadEra);
    }
}

TEST_P(OptionalDateTest, WithABadEraLogsIfAllFourCellsAreFilled)
{
    const TableCsv csv{RecordOf({"6", "30", "9", "1"})};
    EXPECT_EQ(MessagesOf([&] { m_probe.GetDateString(&csv, 0, GetParam().lColumn); }), BAD_ERA);
}

constexpr OptionalCase OPTIONAL_CASES[] = {
    {"Kind003Column10", "003", 10, true},  {"Kind004Column14", "004", 14, true},
    {"Kind005Column16", "005", 16, true},  {"Kind003Column14", "003", 14, false},
    {"Kind003Column16", "003", 16, false}, {"Kind003Column9", "003", 9, false},
    {"Kind003Column11", "003", 11, false}, {"Kind004Column10", "004", 10, false},
    {"Kind004Column16", "004", 16, false}, {"Kind005Column10", "005", 10, false},
    {"Kind005Column14", "005", 14, false}, {"Kind002Column10", "002", 10, false},
    {"Kind006Column16", "006", 16, false}, {"KindWithoutZeros", "3", 10, false},
    {"KindWithABlank", "003 ", 10, false}, {"EmptyKind", "", 10, false},
};

INSTANTIATE_TEST_SUITE_P(Columns, OptionalDateTest, testing::ValuesIn(OPTIONAL_CASES), CaseName());

TEST_F(ValidDateTest, CompletenessIsAskedOfThreeKindsOnly)
{
    const TableCsv csv{{"001", "4", "30", "9", "1"}};
    DateProbe probe;
    for (const char* szKind : {"003", "004", "005"})
        EXPECT_FALSE(probe.CheckCalulationConfig(&csv, 0, 1, szKind)) << szKind;
    for (const char* szKind : {"001", "002", "006", "007", "3", ""})
        EXPECT_TRUE(probe.CheckCalulationConfig(&csv, 0, 1, szKind)) << szKind;
}

TEST_F(ValidDateTest, AnyEmptyCellOfTheFourIsIncomplete)
{
    DateProbe probe;
    for (std::size_t nEmpty = 1; nEmpty <= 4; ++nEmpty) {
        KZCEkaCsvFile::Record record = {"003", "4", "30", "9", "1"};
        record[nEmpty].clear();
        const TableCsv csv{record};
        EXPECT_TRUE(probe.CheckCalulationConfig(&csv, 0, 1, "003")) << nEmpty;
    }
}

TEST_F(ValidDateTest, TheDateFormRecordsAnOptionalDateThatIsMissing)
{
    KZCEkaCsvFile::Record record(14);
    record[0] = "003";
    const TableCsv csv{record};
    DateProbe probe(MSG_NONE, 10);
    EXPECT_EQ(OnRecord(probe, csv), "refuses 0001-11:14-HE70012E");
    EXPECT_EQ(probe.Seen(), Texts{});
}

// --- the strict reader ---

struct StrictCase
{
    const char* szName;
    std::vector<std::string> vecCell;
    const char* szWestern;
};

void PrintTo(const StrictCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class StrictReadTest : public ResetState, public testing::WithParamInterface<StrictCase>
{
protected:
    static KZCEkaCsvFile::Record Record()
    {
        KZCEkaCsvFile::Record record = {"003", "x"};
        record.insert(record.end(), GetParam().vecCell.begin(), GetParam().vecCell.end());
        return record;
    }

    const TableCsv m_csv{Record()};
    DateProbe m_probe;
};

TEST_P(StrictReadTest, GivesARealDateOrNothing)
{
    EXPECT_EQ(m_probe.GetDateString2(&m_csv, 0, 2), GetParam().szWestern);
}

TEST_P(StrictReadTest, LogsOnlyABadEra)
{
    const bool bBadEra = std::string(GetParam().szName).starts_with("Code");
    EXPECT_EQ(MessagesOf([&] { m_probe.GetDateString2(&m_csv, 0, 2); }), bBadEra ? BAD_ERA : "");
}

const StrictCase STRICT_CASES[] = {
    {"Date", {"4", "30", "9", "1"}, "2018/ 9/ 1"},
    {"ZerosInFront", {"4", "05", "09", "01"}, "1993/09/01"},
    {"CrossesToTheNewEra", {"4", "31", "5", "1"}, "2019/ 5/ 1"},
    {"OldEraBehindItsEnd", {"4", "32", "4", "1"}, "2020/ 4/ 1"},
    {"LeapDay", {"4", "28", "2", "29"}, "2016/ 2/29"},
    {"LeapDayOfACommonYear", {"4", "29", "2", "29"}, ""},
    {"April31", {"4", "30", "4", "31"}, ""},
    {"LastYear", {"3", "99", "12", "31"}, "2024/12/31"},
    {"EraEmpty", {"", "30", "9", "1"}, ""},
    {"YearEmpty", {"4", "", "9", "1"}, ""},
    {"MonthEmpty", {"4", "30", "", "1"}, ""},
    {"DayEmpty", {"4", "30", "9", ""}, ""},
    {"CellsMissing", {"4", "30"}, ""},
    {"EraNoDigit", {"H", "30", "9", "1"}, ""},
    {"YearNoDigit", {"4", "3x", "9", "1"}, ""},
    {"MonthNoDigit", {"4", "30", "x", "1"}, ""},
    {"DayNoDigit", {"4", "30", "9", " 1"}, ""},
    {"FullWidthDay", {"4", "30", "9", "１"}, ""},
    {"EraTooLong", {"04", "30", "9", "1"}, ""},
    {"YearTooLong", {"4", "030", "9", "1"}, ""},
    {"MonthTooLong", {"4", "30", "009", "1"}, ""},
    {"DayTooLong", {"4", "30", "9", "001"}, ""},
    {"Year0", {"4", "0", "9", "1"}, ""},
    {"Month0", {"4", "30", "0", "1"}, ""},
    {"Month13", {"4", "30", "13", "1"}, ""},
    {"Day0", {"4", "30", "9", "00"}, ""},
    {"Day32", {"4", "30", "10", "32"}, ""},
    {"Code0", {"0", "30", "9", "1"}, ""},
    {"Code6", {"6", "30", "9", "1"}, ""},
    {"Code9", {"9", "30", "9", "1"}, ""},
};

INSTANTIATE_TEST_SUITE_P(Cells, StrictReadTest, testing::ValuesIn(STRICT_CASES), CaseName());

TEST_F(ValidDateTest, TheStrictReaderKeepsTheEraIfAsked)
{
    const TableCsv csv{{"001", "4", "31", "5", "1"}};
    DateProbe probe;
    probe.KeepEra();
    EXPECT_EQ(probe.GetDateString2(&csv, 0, 1), "新号01/ 5/ 1");
    probe.KeepEraName();
    EXPECT_EQ(probe.GetDateString2(&csv, 0, 1), "平成31/ 5/ 1");
}

TEST_F(ValidDateTest, TheStrictReaderKnowsNoOptionalDates)
{
    KZCEkaCsvFile::Record record(14);
    record[0] = "003";
    record[10] = "4";
    record[11] = "30";
    record[12] = "9";
    record[13] = "1";
    const TableCsv csv{record};
    DateProbe probe;
    EXPECT_EQ(probe.GetDateString2(&csv, 0, 10), "2018/ 9/ 1");
}

// --- era and year ---

TEST_F(ValidDateTest, AYearTextIsEraAndYear)
{
    const TableCsv csv{{"001", "4", "30"}, {"001", "4", "1"}, {"001", "5", "x"}, {"001", "3"}};
    DateProbe probe;
    EXPECT_EQ(probe.GetYearString(&csv, 0, 1), "平成30");
    EXPECT_EQ(probe.GetYearString(&csv, 1, 1), "平成 1");
    EXPECT_EQ(probe.GetYearString(&csv, 2, 1), "新号 x");
    EXPECT_EQ(probe.GetYearString(&csv, 3, 1), "昭和  ");
}

TEST_F(ValidDateTest, AYearTextStaysInItsEra)
{
    const TableCsv csv{{"001", "4", "32"}};
    DateProbe probe;
    EXPECT_EQ(probe.GetYearString(&csv, 0, 1), "平成32");
}

// --- crossing to the new era ---

struct ConvertCase
{
    const char* szName;
    const char* szText;
    const char* szConverted;
};

void PrintTo(const ConvertCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ConvertEraTest : public ResetState, public testing::WithParamInterface<ConvertCase>
{
protected:
    DateProbe m_probe;
};

TEST_P(ConvertEraTest, LooksAtYearAndMonthAlone)
{
    EXPECT_EQ(m_probe.ConvEraString(GetParam().szText), GetParam().szConverted);
}

TEST_P(ConvertEraTest, ChangesNothingIfTheNameIsKept)
{
    m_probe.KeepEraName();
    EXPECT_EQ(m_probe.ConvEraString(GetParam().szText), GetParam().szText);
}

constexpr ConvertCase CONVERSIONS[] = {
    {"Heisei31January", "平成31/ 1/ 1", "平成31/ 1/ 1"},
    {"Heisei31AprilEnd", "平成31/ 4/30", "平成31/ 4/30"},
    {"Heisei31April31", "平成31/ 4/31", "平成31/ 4/31"},
    {"Heisei31May", "平成31/ 5/ 1", "新号01/ 5/ 1"},
    {"Heisei31MayWithZeros", "平成31/05/01", "新号01/05/01"},
    {"Heisei31December", "平成31/12/31", "新号01/12/31"},
    {"Heisei31Month13", "平成31/13/ 1", "新号01/13/ 1"},
    {"Heisei32January", "平成32/ 1/ 1", "新号02/ 1/ 1"},
    {"Heisei32March", "平成32/ 3/31", "新号02/ 3/31"},
    {"Heisei32WithoutMonth", "平成32/  /  ", "新号02/  /  "},
    {"Heisei32April", "平成32/ 4/ 1", "平成32/ 4/ 1"},
    {"Heisei32December", "平成32/12/31", "平成32/12/31"},
    {"Heisei33", "平成33/ 1/ 1", "平成33/ 1/ 1"},
    {"Heisei30", "平成30/12/31", "平成30/12/31"},
    {"AnotherEraOfThatYear", "昭和31/ 5/ 1", "昭和31/ 5/ 1"},
    {"TheNewEra", "新号 1/ 5/ 1", "新号 1/ 5/ 1"},
    {"Western", "2019/ 5/ 1", "2019/ 5/ 1"},
    {"Empty", "", ""},
    {"YearOnly", "平成31", "平成31"},
};

INSTANTIATE_TEST_SUITE_P(Texts, ConvertEraTest, testing::ValuesIn(CONVERSIONS), CaseName());

// --- Western texts ---

class WesternTest : public ResetState, public testing::WithParamInterface<ConvertCase>
{};

TEST_P(WesternTest, HasTheBaseOfTheEraAdded)
{
    DateProbe probe;
    EXPECT_EQ(probe.WarekiToSeireki(GetParam().szText), GetParam().szConverted);
}

constexpr ConvertCase WESTERN_CASES[] = {
    {"Meiji", "明治33/ 1/ 1", "1900/ 1/ 1"},
    {"Taisho", "大正 1/ 7/30", "1912/ 7/30"},
    {"Showa", "昭和64/ 1/ 7", "1989/ 1/ 7"},
    {"Heisei", "平成30/ 9/ 1", "2018/ 9/ 1"},
    {"TheNewEra", "新号 1/ 5/ 1", "2019/ 5/ 1"},
    // What lies behind the end of a text is the text itself.
    {"NothingBehindTheYear", "平成30", "2018平成30"},
    {"NoYear", "平成  /  /  ", "1988/  /  "},
    {"UnknownEra", "令和 1/ 5/ 1", "1/ 5/ 1"},
    {"Western", "2019/ 5/ 1", "2019/ 5/ 1"},
    {"AnythingBehindADigit", "1abc", "1abc"},
    {"Empty", "", ""},
};

INSTANTIATE_TEST_SUITE_P(Texts, WesternTest, testing::ValuesIn(WESTERN_CASES), CaseName());

// --- ranges ---

struct RangeDateCase
{
    const char* szName;
    const char* szDate;
    const char* szMin;
    const char* szMax;
    bool bRequired;
    long lResult;
    const char* szLogged;
};

void PrintTo(const RangeDateCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class RangeDateTest : public ResetState, public testing::WithParamInterface<RangeDateCase>
{};

TEST_P(RangeDateTest, GivesThePlaceOrAFailureWithItsLogLine)
{
    DateProbe probe;
    const RangeDateCase& testCase = GetParam();
    long lResult = 0;
    EXPECT_EQ(MessagesOf([&] {
                  lResult = probe._rangeDate(testCase.szDate, testCase.szMin, testCase.szMax,
                                             testCase.bRequired);
              }),
              testCase.szLogged);
    EXPECT_EQ(lResult, testCase.lResult);
}

constexpr bool REQUIRED = true;
constexpr bool OPTIONAL = false;
constexpr const char* OUT_OF_RANGE = "szValueの値が範囲外です。\n";
constexpr const char* NO_DATE = "szValueが実在しない日です。\n";
constexpr const char* NO_MIN = "szMinが実在しない日です。\n";
constexpr const char* NO_MAX = "szMaxが実在しない日です。\n";
constexpr const char* NO_BOUNDS = "チェック範囲が指定されていません。\n";

constexpr RangeDateCase RANGE_DATES[] = {
    {"Inside", "2019/06/01", "2019/01/01", "2019/12/31", REQUIRED, 0x21, ""},
    {"AtTheMinimum", "2019/01/01", "2019/01/01", "2019/12/31", REQUIRED, 0x20, ""},
    {"AtTheMaximum", "2019/12/31", "2019/01/01", "2019/12/31", REQUIRED, 0x01, ""},
    {"AtBoth", "2019/01/01", "2019/01/01", "2019/01/01", REQUIRED, 0, ""},
    {"Before", "2018/12/31", "2019/01/01", "2019/12/31", REQUIRED, -1, OUT_OF_RANGE},
    {"After", "2020/01/01", "2019/01/01", "2019/12/31", REQUIRED, -1, OUT_OF_RANGE},
    {"BeforeAnOpenRange", "2018/12/31", "2019/01/01", "", OPTIONAL, -1, OUT_OF_RANGE},
    {"AfterAnOpenRange", "2020/01/01", "", "2019/12/31", OPTIONAL, -1, OUT_OF_RANGE},
    {"NoMinimum", "2019/06/01", "", "2019/12/31", OPTIONAL, 0x2F, ""},
    {"NoMaximum", "2019/06/01", "2019/01/01", "", OPTIONAL, 0xF1, ""},
    {"NoBounds", "2019/06/01", "", "", OPTIONAL, 1, NO_BOUNDS},
    {"NoDate", "2019/02/29", "2019/01/01", "2019/12/31", REQUIRED, -2, NO_DATE},
    {"EmptyDate", "", "2019/01/01", "2019/12/31", REQUIRED, -2, NO_DATE},
    {"NoDateBeforeABadBound", "x", "x", "x", REQUIRED, -2, NO_DATE},
    {"MissingMinimum", "2019/06/01", "", "2019/12/31", REQUIRED, -3, NO_MIN},
    {"BadMinimum", "2019/06/01", "2019/13/01", "2019/12/31", OPTIONAL, -3, NO_MIN},
    {"MissingMaximum", "2019/06/01", "2019/01/01", "", REQUIRED, -4, NO_MAX},
    {"BadMaximum", "2019/06/01", "2019/01/01", "2019/13/01", OPTIONAL, -4, NO_MAX},
    {"EraTexts", "平成31/ 6/ 1", "平成31/ 1/ 1", "新号 1/12/31", REQUIRED, 0x21, ""},
    {"EraTextBehindItsEra", "平成32/ 6/ 1", "2020/06/01", "昭和95/ 6/ 1", REQUIRED, 0, ""},
};

INSTANTIATE_TEST_SUITE_P(Dates, RangeDateTest, testing::ValuesIn(RANGE_DATES), CaseName());

// --- stSYSTEMTIME ---

using YearMonthDay = std::tuple<int, int, int>;

struct SystemTimeCase
{
    const char* szName;
    const char* szText;
    bool bReal;
    YearMonthDay date;  ///< 7, 8, 9 if it stays as it was
    const char* szLogged;
};

void PrintTo(const SystemTimeCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class SystemTimeTest : public ResetState, public testing::WithParamInterface<SystemTimeCase>
{};

TEST_P(SystemTimeTest, IsFilledByARealDate)
{
    DateProbe probe;
    stSYSTEMTIME time = {7, 8, 9};
    bool bReal = false;
    EXPECT_EQ(MessagesOf([&] { bReal = probe.StringToSystemTime(GetParam().szText, time); }),
              GetParam().szLogged);
    EXPECT_EQ(bReal, GetParam().bReal);
    EXPECT_EQ(YearMonthDay(time.wYear, time.wMonth, time.wDay), GetParam().date);
}

constexpr YearMonthDay UNTOUCHED = {7, 8, 9};

constexpr SystemTimeCase SYSTEM_TIMES[] = {
    {"Western", "2019/04/30", true, {2019, 4, 30}, ""},
    {"Padded", "2019/ 4/ 3", true, {2019, 4, 3}, ""},
    {"Era", "平成30/09/30", true, {2018, 9, 30}, ""},
    {"NoMonthRule", "平成32/12/31", true, {2020, 12, 31}, ""},
    {"NoDate", "2019/02/29", false, UNTOUCHED, "日付の変換に失敗しました。:szValue=2019/02/29\n"},
    {"NoEraDate", "平成30/ 2/30", false, UNTOUCHED,
     "日付の変換に失敗しました。:szValue=平成30/ 2/30\n"},
    {"Empty", "", false, UNTOUCHED, "日付の変換に失敗しました。:szValue=\n"},
    {"Null", nullptr, false, UNTOUCHED, "引数エラー\n"},
};

INSTANTIATE_TEST_SUITE_P(Texts, SystemTimeTest, testing::ValuesIn(SYSTEM_TIMES), CaseName());

// --- digits and characters ---

TEST_F(ValidDateTest, DigitsOnlyAreANumber)
{
    DateProbe probe;
    for (const char* szNumber : {"0", "9", "0123456789"})
        EXPECT_TRUE(probe.isNumber(szNumber)) << szNumber;
    for (const char* szOther : {"x", "1x", "-1", " 1", "1 ", "1.0", "１", "/", ":"})
        EXPECT_FALSE(probe.isNumber(szOther)) << szOther;
}

TEST_F(ValidDateTest, NullAndTheEmptyTextAreANumber)
{
    DateProbe probe;
    EXPECT_TRUE(probe.isNumber(nullptr));
    EXPECT_TRUE(probe.isNumber(""));
}

TEST_F(ValidDateTest, CharactersAreCountedInTheEncodingOfTheFile)
{
    EXPECT_EQ(KZCEkaValidDate::strcount(""), 0u);
    EXPECT_EQ(KZCEkaValidDate::strcount("12"), 2u);
    EXPECT_EQ(KZCEkaValidDate::strcount("平成"), 2u);
    KZCEkaCommon::SetCsvCheckFlag(true);
    EXPECT_EQ(KZCEkaValidDate::strcount("\x95\xbd\x90\xac"), 2u);
}

// --- the date form ---

class DateFormTest : public ResetState
{
protected:
    const TableCsv m_csv{{"001", "4", "30", "9", "1", "3", "64", "1", "7"},
                         {"001", "4", "31", "5", "1", "0", "1", "1", "1"}};
};

TEST_F(DateFormTest, HandsTheDateToTheRule)
{
    DateProbe probe;
    EXPECT_EQ(OnRecord(probe, m_csv, 0), PASSES);
    EXPECT_EQ(OnRecord(probe, m_csv, 1), PASSES);
    EXPECT_EQ(probe.Seen(), (Texts{"2018/ 9/ 1", "2019/ 5/ 1"}));
}

TEST_F(DateFormTest, TakesTheFallbackColumnIfItHasNone)
{
    DateProbe probe(HE70010E, -1);
    EXPECT_EQ(OnRecord(probe, m_csv, 0, 5), "refuses 0001-06:09-HE70010E");
    EXPECT_EQ(probe.Seen(), Texts{"1989/ 1/ 7"});
}

TEST_F(DateFormTest, PrefersItsOwnColumn)
{
    DateProbe probe(HE70010E, 1);
    EXPECT_EQ(OnRecord(probe, m_csv, 0, 5), "refuses 0001-02:05-HE70010E");
    EXPECT_EQ(probe.Seen(), Texts{"2018/ 9/ 1"});
}

TEST_F(DateFormTest, CountsColumnZeroAsItsOwn)
{
    const TableCsv csv{{"4", "30", "9", "1"}};
    DateProbe probe(HE70010E, 0);
    EXPECT_EQ(OnRecord(probe, csv, 0, 5), "refuses 0001-01:04-HE70010E");
}

TEST_F(DateFormTest, AnEmptyDateNeverReachesTheRule)
{
    DateProbe probe(MSG_NONE, 5);
    EXPECT_EQ(OnRecord(probe, m_csv, 1), "refuses 0002-06:09-HE70012E");
    EXPECT_EQ(probe.Seen(), Texts{});
}

TEST_F(DateFormTest, OverrideReplacesTheCodeOfAnEmptyDate)
{
    DateProbe probe(MSG_NONE, 5, HE70031E);
    EXPECT_EQ(OnRecord(probe, m_csv, 1), "refuses 0002-06:09-HE70031E");
}

TEST_F(DateFormTest, WithErrorOutputOffRefusesWithoutARecord)
{
    DateProbe probe(HE70010E);
    probe.SetErrOutput(false);
    EXPECT_EQ(OnRecord(probe, m_csv), REFUSES);
}

TEST_F(DateFormTest, TracesTheFirstColumnAndTheDate)
{
    const DebugLog log;
    DateProbe probe(HE70010E);
    EXPECT_EQ(OnRecord(probe, m_csv, 1), "refuses 0002-02:05-HE70010E");
    EXPECT_TRUE(log.HasLine("record=0002 column=00002 value=2019/ 5/ 1")) << log.Text();
}

TEST_F(DateFormTest, DoesNotRememberFileAndRow)
{
    DateProbe probe;
    EXPECT_EQ(OnRecord(probe, m_csv, 1), PASSES);
    EXPECT_EQ(AsCondition(probe, m_csv, 1), PASSES);
    EXPECT_EQ(probe.Csv(), nullptr);
    EXPECT_EQ(probe.Row(), 0);
}

TEST_F(DateFormTest, DoesNotRunIfAConditionDoesNotHold)
{
    DateProbe probe(HE70010E);
    probe.AddOuterItem(MakeItem({"empty"}, 0).release());
    EXPECT_EQ(OnRecord(probe, m_csv), PASSES);
    EXPECT_EQ(probe.Seen(), Texts{});
}

TEST_F(DateFormTest, AConditionSeesTheDateOfItsOwnColumnEvenIfEmpty)
{
    DateProbe probe(MSG_NONE, 5);
    EXPECT_EQ(AsCondition(probe, m_csv, 0, 1), PASSES);
    EXPECT_EQ(AsCondition(probe, m_csv, 1, 1), PASSES);
    EXPECT_EQ(probe.Seen(), (Texts{"1989/ 1/ 7", ""}));
}

TEST_F(DateFormTest, AConditionTakesNoFallbackColumn)
{
    DateProbe probe(MSG_NONE, -1);
    EXPECT_EQ(AsCondition(probe, m_csv, 0, 1), PASSES);
    EXPECT_EQ(probe.Seen(), Texts{""});
}

TEST_F(DateFormTest, AConditionThatRefusesRecordsNothingAndIsTraced)
{
    const DebugLog log;
    DateProbe probe(HE70010E);
    EXPECT_EQ(AsCondition(probe, m_csv), REFUSES);
    EXPECT_EQ(log.Text(), "外部条件チェックアウトです。\n");
}

TEST_F(DateFormTest, RaisesForNullInsteadOfAFile)
{
    DateProbe probe;
    EXPECT_EQ(MessagesOf([&] {
                  EXPECT_EQ(Told([&] { return probe.ValidateCsv(nullptr, 0, -1); }), RAISES);
              }),
              "引数エラー。CSV格納情報が不正です。\n");
    EXPECT_EQ(MessagesOf([&] {
                  EXPECT_EQ(Told([&] { return probe.ValidateOuter(nullptr, 0, -1); }), RAISES);
              }),
              "引数エラー。CSV格納情報が不正です。\n");
}

}  // namespace
