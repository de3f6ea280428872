// Calendar services.
#include <gtest/gtest.h>

#include <ctime>
#include <optional>
#include <string>
#include <tuple>

#include "KZCMacOSNative.h"
#include "calendar/Clock.h"
#include "support/Environment.h"
#include "support/ResetState.h"

namespace {

struct RealCase
{
    const char* szName;
    const char* szText;
    long lYear;
    long lMonth;
    long lDay;
};

class KZCMacOSNativeRealDateTest : public testing::TestWithParam<RealCase>
{};

TEST_P(KZCMacOSNativeRealDateTest, IsADate)
{
    EXPECT_TRUE(KZCMacOSNative::dateTimeChange(GetParam().szText));
}

TEST_P(KZCMacOSNativeRealDateTest, GivesTheGregorianDay)
{
    long lYear = 0;
    long lMonth = 0;
    long lDay = 0;
    EXPECT_TRUE(KZCMacOSNative::dateTimeChange(GetParam().szText, lYear, lMonth, lDay));
    EXPECT_EQ(std::tuple(lYear, lMonth, lDay),
              std::tuple(GetParam().lYear, GetParam().lMonth, GetParam().lDay));
}

constexpr RealCase REAL_CASES[] = {
    // Separators.
    {"Slashes", "2019/04/30", 2019, 4, 30},
    {"Hyphens", "2019-04-30", 2019, 4, 30},
    {"Points", "2019.04.30", 2019, 4, 30},
    {"MixedSeparators", "2019-04.30", 2019, 4, 30},
    // Digits and blanks.
    {"OneDigitMonthAndDay", "2019/4/3", 2019, 4, 3},
    {"BlankBeforeMonthAndDay", "2019/ 4/ 3", 2019, 4, 3},
    {"BlanksAtBothEnds", "  2019/04/30  ", 2019, 4, 30},
    {"FirstYear", "0001/01/01", 1, 1, 1},
    {"LastYear", "9999/12/31", 9999, 12, 31},
    // Leap years.
    {"LeapDay", "2020/02/29", 2020, 2, 29},
    {"LeapDayOfAFourthCentury", "2000/02/29", 2000, 2, 29},
    {"LastOfFebruary", "2019/02/28", 2019, 2, 28},
    {"LastOfAprilHas30", "2019/04/30", 2019, 4, 30},
    {"LastOfDecemberHas31", "2019/12/31", 2019, 12, 31},
    // Times.
    {"WithTime", "2019/04/30 09:30:00", 2019, 4, 30},
    {"FirstSecond", "2019/04/30 00:00:00", 2019, 4, 30},
    {"LastSecond", "2019/04/30 23:59:59", 2019, 4, 30},
    {"HyphensWithTime", "2019-04-30 09:30:00", 2019, 4, 30},
    {"BlanksAroundATime", " 2019/ 4/30 09:30:00 ", 2019, 4, 30},
    {"EraWithTime", "平成31/04/30 09:30:00", 2019, 4, 30},
    {"EraInKanjiWithTime", "平成31年4月30日 09:30:00", 2019, 4, 30},
    // Forms of an era date.
    {"EraWithSlashes", "平成31/04/30", 2019, 4, 30},
    {"EraInKanji", "平成31年4月30日", 2019, 4, 30},
    {"EraWithoutTheLastKanji", "平成31年4月30", 2019, 4, 30},
    {"EraWithPaddedParts", "平成30/ 9/ 1", 2018, 9, 1},
    {"EraWithPaddedYear", "平成 2/ 2/ 3", 1990, 2, 3},
    {"EraWithOneDigitYear", "平成2/2/3", 1990, 2, 3},
    {"FirstYearByName", "平成元年1月8日", 1989, 1, 8},
    {"FirstYearByNameOfTheLastEra", "新号元年5月1日", 2019, 5, 1},
    {"BlanksAroundAnEraDate", " 平成31/04/30 ", 2019, 4, 30},
    {"LeapDayInAnEra", "平成12/02/29", 2000, 2, 29},
    // First and last day of each era.
    {"FirstOfMeiji", "明治23/01/01", 1890, 1, 1},
    {"LastOfMeiji", "明治45/07/29", 1912, 7, 29},
    {"FirstOfTaisho", "大正01/07/30", 1912, 7, 30},
    {"LastOfTaisho", "大正15/12/24", 1926, 12, 24},
    {"FirstOfShowa", "昭和01/12/25", 1926, 12, 25},
    {"LastOfShowa", "昭和64/01/07", 1989, 1, 7},
    {"FirstOfHeisei", "平成01/01/08", 1989, 1, 8},
    {"LastOfHeisei", "平成31/04/30", 2019, 4, 30},
    {"FirstOfTheLastEra", "新号01/05/01", 2019, 5, 1},
    {"TheLastEraIsOpen", "新号99/12/31", 2117, 12, 31},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCMacOSNativeRealDateTest,
                         testing::ValuesIn(REAL_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

struct UnrealCase
{
    const char* szName;
    const char* szText;
};

class KZCMacOSNativeUnrealDateTest : public testing::TestWithParam<UnrealCase>
{};

TEST_P(KZCMacOSNativeUnrealDateTest, IsNoDate)
{
    EXPECT_FALSE(KZCMacOSNative::dateTimeChange(GetParam().szText));
}

TEST_P(KZCMacOSNativeUnrealDateTest, LeavesTheOutputsAlone)
{
    long lYear = -7;
    long lMonth = -8;
    long lDay = -9;
    EXPECT_FALSE(KZCMacOSNative::dateTimeChange(GetParam().szText, lYear, lMonth, lDay));
    EXPECT_EQ(std::tuple(lYear, lMonth, lDay), std::tuple(-7L, -8L, -9L));
}

constexpr UnrealCase UNREAL_CASES[] = {
    {"Null", nullptr},
    {"Empty", ""},
    {"Blanks", "   "},
    {"Letter", "x"},
    // Days that don't exist.
    {"LeapDayOfACommonYear", "2019/02/29"},
    {"LeapDayOfACentury", "1900/02/29"},
    {"February30", "2020/02/30"},
    {"April31", "2019/04/31"},
    {"Day32", "2019/01/32"},
    {"Day0", "2019/01/00"},
    {"Month13", "2019/13/01"},
    {"Month0", "2019/00/01"},
    {"Year0", "0000/01/01"},
    // Digits.
    {"TwoDigitYear", "19/04/30"},
    {"ThreeDigitYear", "999/04/30"},
    {"FiveDigitYear", "02019/04/30"},
    {"ThreeDigitMonth", "2019/004/30"},
    {"ThreeDigitDay", "2019/04/030"},
    {"NoSeparators", "20190430"},
    {"FullWidthDigits", "２０１９/０４/３０"},
    // Missing and extra parts.
    {"NoDay", "2019/04"},
    {"NoDayBehindTheSeparator", "2019/04/"},
    {"EmptyMonth", "2019//30"},
    {"BlankMonth", "2019/  /30"},
    {"EmptyYear", "/04/30"},
    {"OnlySeparators", "//"},
    {"SeparatorAtTheEnd", "2019/04/30/"},
    {"FourthPart", "2019/04/30/1"},
    {"MinusBeforeTheMonth", "2019/-4/30"},
    {"BlankBehindTheYear", "2019 /04/30"},
    {"BlankInsideTheYear", "20 19/04/30"},
    {"TrailingLetter", "2019/04/30x"},
    {"TrailingNumber", "2019/04/30 1"},
    {"OtherSeparator", "2019_04_30"},
    {"Tab", "2019/\t4/30"},
    {"LineEnd", "2019/04/30\n"},
    // Times.
    {"Hour24", "2019/04/30 24:00:00"},
    {"Minute60", "2019/04/30 09:60:00"},
    {"Second60", "2019/04/30 09:30:60"},
    {"NoSeconds", "2019/04/30 09:30"},
    {"NoSecondsBehindTheColon", "2019/04/30 09:30:"},
    {"FourTimeParts", "2019/04/30 09:30:00:00"},
    {"TimeAlone", "09:30:00"},
    {"TimeWithoutABlank", "2019/04/3009:30:00"},
    {"TimeWithSlashes", "2019/04/30 09/30:00"},
    {"ColonAlone", ":"},
    {"DateWithColons", "2019:04:30"},
    {"RealTimeOnAnUnrealDay", "2019/02/29 00:00:00"},
    {"EraWithHour24", "平成31/04/30 24:00:00"},
    // Families mixed up.
    {"KanjiWithoutAnEra", "2019年4月30日"},
    {"EraBehindTheDate", "31/04/30平成"},
    {"EraWithFullWidthDigits", "平成３１/04/30"},
    {"EraWithHyphens", "平成31-04-30"},
    {"UnknownEra", "慶応03/01/01"},
    {"EraOfThreeCharacters", "平成時31/04/30"},
    {"EraAbbreviated", "H31/04/30"},
    {"EraAlone", "平成"},
    {"EraWithoutAYear", "平成/04/30"},
    {"EraWithoutADay", "平成31/04"},
    {"TwoEras", "平成平成31/04/30"},
    {"EraYear0", "平成00/04/30"},
    {"EraYearOfThreeDigits", "平成031/04/30"},
    {"EraYearOfFourDigits", "平成2019/04/30"},
    {"EraMonth13", "平成30/13/01"},
    {"EraLeapDayOfACommonYear", "平成30/02/29"},
    {"FirstYearNameBehindADigit", "平成1元年5月1日"},
    // Days outside the named era.
    {"BeforeMeiji", "明治22/12/31"},
    {"BehindMeiji", "明治45/07/30"},
    {"BeforeTaisho", "大正01/07/29"},
    {"BehindTaisho", "大正15/12/25"},
    {"BeforeShowa", "昭和01/12/24"},
    {"BehindShowa", "昭和64/01/08"},
    {"YearBehindShowa", "昭和65/01/01"},
    {"BeforeHeisei", "平成01/01/07"},
    {"BehindHeisei", "平成31/05/01"},
    {"YearBehindHeisei", "平成33/01/01"},
    {"BeforeTheLastEra", "新号01/04/30"},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCMacOSNativeUnrealDateTest,
                         testing::ValuesIn(UNREAL_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

// --- comparing ---

struct CompareCase
{
    const char* szName;
    const char* szFirst;
    const char* szSecond;
    long lExpected;
};

class KZCMacOSNativeCompareTest : public testing::TestWithParam<CompareCase>
{};

TEST_P(KZCMacOSNativeCompareTest, DateTimeCompTellsWhichIsLater)
{
    EXPECT_EQ(KZCMacOSNative::dateTimeComp(GetParam().szFirst, GetParam().szSecond),
              GetParam().lExpected);
}

constexpr CompareCase COMPARE_CASES[] = {
    {"Equal", "2019/01/01", "2019/01/01", 0},
    {"EqualInAnotherForm", "2019-01-01", "2019/01/01", 0},
    {"EqualWithBlanks", "2019/ 1/ 1", "2019/01/01", 0},
    {"EqualInAnEra", "平成31/01/01", "2019/01/01", 0},
    {"MidnightIsTheDay", "2019/01/01 00:00:00", "2019/01/01", 0},
    {"Earlier", "2019/01/01", "2019/01/02", 2},
    {"Later", "2019/01/02", "2019/01/01", 1},
    {"LaterBySeconds", "2019/01/01 00:00:01", "2019/01/01", 1},
    {"EarlierByAYear", "2018/12/31", "2019/01/01", 2},
    {"LaterInTheMonthOfAnEarlierYear", "2018/12/31", "2019/01/01 00:00:00", 2},
    {"FirstIsNoDate", "x", "2019/01/01", -1},
    {"SecondIsNoDate", "2019/01/01", "y", -2},
    {"FirstIsTestedBeforeSecond", "x", "y", -1},
    {"FirstIsNull", nullptr, "2019/01/01", -1},
    {"SecondIsNull", "2019/01/01", nullptr, -2},
    {"SecondIsEmpty", "2019/01/01", "", -2},
    {"FirstIsNoRealDay", "2019/02/29", "2019/01/01", -1},
};

INSTANTIATE_TEST_SUITE_P(Dates,
                         KZCMacOSNativeCompareTest,
                         testing::ValuesIn(COMPARE_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

// --- ranges ---

struct RangeCase
{
    const char* szName;
    const char* szDate;
    const char* szLower;
    const char* szUpper;
    bool bRequired;
    long lExpected;
};

class KZCMacOSNativeRangeTest : public testing::TestWithParam<RangeCase>
{};

TEST_P(KZCMacOSNativeRangeTest, RangeDateAddsTheCodesOfBothLimits)
{
    EXPECT_EQ(KZCMacOSNative::rangeDate(GetParam().szDate, GetParam().szLower, GetParam().szUpper,
                                        GetParam().bRequired),
              GetParam().lExpected);
}

constexpr const char* EARLY = "2019/01/01";
constexpr const char* MIDDLE = "2019/06/01";
constexpr const char* LATE = "2019/12/31";

constexpr RangeCase RANGE_CASES[] = {
    // The low part: 2 before, 0 at, 1 behind the lower limit, 15 without. The high part: 32 before,
    // 0 at, 16 behind the upper limit, 240 without.
    {"Inside", MIDDLE, EARLY, LATE, true, 1 + 32},
    {"InsideNotRequired", MIDDLE, EARLY, LATE, false, 1 + 32},
    {"AtTheLowerLimit", EARLY, EARLY, LATE, true, 0 + 32},
    {"BeforeTheLowerLimit", EARLY, MIDDLE, LATE, true, 2 + 32},
    {"AtTheUpperLimit", LATE, EARLY, LATE, true, 1 + 0},
    {"BehindTheUpperLimit", LATE, EARLY, MIDDLE, true, 1 + 16},
    {"AtBothLimits", MIDDLE, MIDDLE, MIDDLE, true, 0},
    {"AtTheLowerBehindTheUpper", MIDDLE, MIDDLE, EARLY, true, 0 + 16},
    {"BeforeTheLowerAtTheUpper", MIDDLE, LATE, MIDDLE, true, 2 + 0},
    {"BeforeTheLowerBehindTheUpper", MIDDLE, LATE, EARLY, true, 2 + 16},
    {"NullLowerBeforeTheUpper", MIDDLE, nullptr, LATE, false, 15 + 32},
    {"EmptyLowerBeforeTheUpper", MIDDLE, "", LATE, false, 15 + 32},
    {"NoLowerAtTheUpper", MIDDLE, nullptr, MIDDLE, false, 15 + 0},
    {"NoLowerBehindTheUpper", MIDDLE, nullptr, EARLY, false, 15 + 16},
    {"NullUpperBehindTheLower", MIDDLE, EARLY, nullptr, false, 1 + 240},
    {"EmptyUpperBehindTheLower", MIDDLE, EARLY, "", false, 1 + 240},
    {"NoUpperAtTheLower", MIDDLE, MIDDLE, nullptr, false, 0 + 240},
    {"NoUpperBeforeTheLower", MIDDLE, LATE, nullptr, false, 2 + 240},
    {"EraDateInsideWesternLimits", "平成31/04/01", EARLY, LATE, true, 1 + 32},
    // Failures, in the order in which they are tested.
    {"NullDate", nullptr, EARLY, LATE, false, -2},
    {"EmptyDate", "", EARLY, LATE, false, -2},
    {"UnrealDate", "2019/02/29", EARLY, LATE, false, -2},
    {"DateIsTestedBeforeTheLimits", "x", "y", "z", true, -2},
    {"RequiredLowerIsNull", MIDDLE, nullptr, LATE, true, -3},
    {"RequiredLowerIsEmpty", MIDDLE, "", LATE, true, -3},
    {"RequiredLowerIsUnreal", MIDDLE, "2019/02/29", LATE, true, -3},
    {"LowerIsUnreal", MIDDLE, "2019/02/29", LATE, false, -3},
    {"LowerIsBlank", MIDDLE, " ", LATE, false, -3},
    {"LowerIsTestedBeforeTheUpper", MIDDLE, "y", "z", false, -3},
    {"RequiredUpperIsNull", MIDDLE, EARLY, nullptr, true, -4},
    {"RequiredUpperIsEmpty", MIDDLE, EARLY, "", true, -4},
    {"RequiredUpperIsUnreal", MIDDLE, EARLY, "2019/02/29", true, -4},
    {"UpperIsUnreal", MIDDLE, EARLY, "2019/02/29", false, -4},
    {"UpperIsUnrealWithoutALower", MIDDLE, "", "z", false, -4},
    {"NullLimits", MIDDLE, nullptr, nullptr, false, -5},
    {"EmptyLimits", MIDDLE, "", "", false, -5},
    {"RequiredLimitsAreEmpty", MIDDLE, "", "", true, -3},
};

INSTANTIATE_TEST_SUITE_P(Dates,
                         KZCMacOSNativeRangeTest,
                         testing::ValuesIn(RANGE_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

// --- the present moment ---

class KZCMacOSNativeNowTest : public ResetState
{
protected:
    static void SetClock(int nYear, int nMonth, int nDay, int nHour, int nMinute, int nSecond)
    {
        std::tm time = {};
        time.tm_year = nYear - 1900;
        time.tm_mon = nMonth - 1;
        time.tm_mday = nDay;
        time.tm_hour = nHour;
        time.tm_min = nMinute;
        time.tm_sec = nSecond;
        time.tm_isdst = -1;
        Clock::Set(std::mktime(&time));
    }

    KZCMacOSNativeNowTest() { SetClock(2019, 5, 1, 9, 30, 7); }
};

TEST_F(KZCMacOSNativeNowTest, RendersTheDateOfAReport)
{
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("yyyy'-'MM'-'dd", nullptr), "2019-05-01");
}

TEST_F(KZCMacOSNativeNowTest, JoinsDateAndTimeByABlank)
{
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("yyyy'-'MM'-'dd", "HH':'mm':'ss"), "2019-05-01 09:30:07");
}

TEST_F(KZCMacOSNativeNowTest, RendersQuotedPartsAsTheyStand)
{
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("'_ORB_KZEKAMOK_'yyyyMMdd'.log'", nullptr),
              "_ORB_KZEKAMOK_20190501.log");
}

TEST_F(KZCMacOSNativeNowTest, RendersTheTimeStampWithTheMinutesTwice)
{
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("yyMMdd", "HHmmssmm"), "190501 09300730");
}

TEST_F(KZCMacOSNativeNowTest, RendersTheTimeAlone)
{
    EXPECT_EQ(KZCMacOSNative::dateTimeNow(nullptr, "HH':'mm':'ss"), "09:30:07");
}

TEST_F(KZCMacOSNativeNowTest, AnEmptyPatternCountsAsNone)
{
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("", "HH':'mm"), "09:30");
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("yyyy", ""), "2019");
}

TEST_F(KZCMacOSNativeNowTest, NoPatternGivesTheEmptyText)
{
    EXPECT_EQ(KZCMacOSNative::dateTimeNow(nullptr, nullptr), "");
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("", ""), "");
}

TEST_F(KZCMacOSNativeNowTest, PadsAYearOfTheCentury)
{
    SetClock(2005, 12, 31, 23, 59, 59);
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("yyMMdd", "HHmmssmm"), "051231 23595959");
}

struct PatternCase
{
    const char* szName;
    const char* szPattern;
    const char* szExpected;
};

class KZCMacOSNativePatternTest : public KZCMacOSNativeNowTest,
                                  public testing::WithParamInterface<PatternCase>
{};

// Wednesday, 1 May 2019, 09:30:07, the 121st day of the year.
TEST_P(KZCMacOSNativePatternTest, DateTimeNowRendersForJapan)
{
    EXPECT_EQ(KZCMacOSNative::dateTimeNow(GetParam().szPattern, nullptr), GetParam().szExpected);
}

constexpr PatternCase PATTERN_CASES[] = {
    {"Era", "G GGGG GGGGG", "西暦 西暦 AD"},
    {"Year", "y yy yyy yyyyy", "2019 19 2019 02019"},
    {"WeekYear", "Y YY YYYY", "2019 19 2019"},
    {"OtherYears", "u r", "2019 2019"},
    {"Quarter", "Q QQ QQQ QQQQ q", "2 02 Q2 第2四半期 2"},
    {"Month", "M MM MMM MMMM MMMMM L LL LLLL", "5 05 5月 5月 5月 5 05 5月"},
    {"Week", "w ww W", "18 18 1"},
    {"Day", "d dd D DDD F", "1 01 121 121 1"},
    {"JulianDay", "g", "2458605"},
    {"Weekday", "E EEE EEEE EEEEE e ee eee eeee c ccc", "水 水 水曜日 水 4 04 水 水曜日 4 水"},
    {"HalfOfTheDay", "a aaaa", "午前 午前"},
    {"Hour", "h hh H HH K KK k kk", "9 09 9 09 9 09 9 09"},
    {"MinuteAndSecond", "m mm s ss", "30 30 7 07"},
    {"Fraction", "S SSS A", "0 000 34207000"},
    {"Quoted", "'y'y'' 'o''clock'", "y2019' o'clock"},
    {"QuoteWithoutAnEnd", "y'y", "2019y"},
    {"LettersWithoutAMeaning", "I jj 1:2年", "I jj 1:2年"},
};

INSTANTIATE_TEST_SUITE_P(Patterns,
                         KZCMacOSNativePatternTest,
                         testing::ValuesIn(PATTERN_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST_F(KZCMacOSNativeNowTest, HoursOfMidnightAndNoonHaveFourForms)
{
    SetClock(2019, 5, 1, 0, 0, 0);
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("a h H K k", nullptr), "午前 12 0 0 24");
    SetClock(2019, 5, 1, 12, 0, 0);
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("a h H K k", nullptr), "午後 12 12 0 12");
    SetClock(2019, 5, 1, 23, 0, 0);
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("a h H K k", nullptr), "午後 11 23 11 23");
}

// Weeks begin on Sunday; the one that holds 1 January is the first.
TEST_F(KZCMacOSNativeNowTest, WeeksBeginOnSunday)
{
    SetClock(2019, 5, 4, 12, 0, 0);  // Saturday
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("w W e F", nullptr), "18 1 7 1");
    SetClock(2019, 5, 5, 12, 0, 0);  // Sunday
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("w W e F", nullptr), "19 2 1 1");
    SetClock(2018, 12, 29, 12, 0, 0);  // Saturday
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("YYYY w W F", nullptr), "2018 52 5 5");
    SetClock(2018, 12, 30, 12, 0, 0);  // Sunday of the week with 1 January 2019
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("YYYY yyyy w W", nullptr), "2019 2018 1 6");
    SetClock(2016, 12, 31, 12, 0, 0);  // Saturday, the 366th day
    EXPECT_EQ(KZCMacOSNative::dateTimeNow("YYYY w D", nullptr), "2016 53 366");
}

TEST_F(KZCMacOSNativeNowTest, TimeZonesAreRenderedByTheirOffset)
{
    const auto render = [](const char* szZone) {
        const Environment zone("TZ", szZone);
        ::tzset();
        const std::string strText =
            KZCMacOSNative::dateTimeNow("z|zzzz|O|OOOO|Z|ZZZZ|ZZZZZ|X|XX|XXX|x|xxx", nullptr);
        return strText;
    };
    EXPECT_EQ(render("JST-9"),
              "JST|日本標準時|GMT+9|GMT+09:00|+0900|GMT+09:00|+09:00|+09|+0900|+09:00|+09|+09:00");
    EXPECT_EQ(render("UTC0"), "UTC|GMT|GMT|GMT|+0000|GMT|Z|Z|Z|Z|+00|+00:00");
    EXPECT_EQ(render("XST3:30"),
              "XST|GMT-03:30|GMT-3:30|GMT-03:30|-0330|GMT-03:30|-03:30|-0330|-0330|-03:30|-0330|"
              "-03:30");
    ::tzset();
}

TEST_F(KZCMacOSNativeNowTest, WithoutASetTimeFollowsTheSystemsClock)
{
    Clock::Set(std::nullopt);
    const auto year = [] {
        const std::time_t now = std::time(nullptr);
        std::tm time = {};
        localtime_r(&now, &time);
        return std::to_string(time.tm_year + 1900);
    };
    const std::string strBefore = year();
    const std::string strYear = KZCMacOSNative::dateTimeNow("yyyy", nullptr);
    EXPECT_TRUE(strYear == strBefore || strYear == year()) << strYear;
}

}  // namespace
