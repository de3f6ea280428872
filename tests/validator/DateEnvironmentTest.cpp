// Verdicts on dates don't depend on where and in which language the process runs.
#include <clocale>
#include <ctime>
#include <locale>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "support/CheckItem.h"
#include "support/Environment.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"

namespace {

/// What the date items tell of days around the ends of months, eras and daylight saving times.
std::vector<std::string> Verdicts()
{
    const std::vector<ItemText> TEXTS = {
        {"existdate"},
        {"existdate_2"},
        {"existdateYYYYMMDD", "16 17 18"},
        {"rangedate", "", "****0310", "****1101"},
        {"rangedate_2", "", "19890108", "6"},
        {"rangedate_3", "6"},
        {"rangedate_4", "", "19890108", "20190430"},
        {"rangebasedate", "", "8", "12"},
        {"rangebasedate_2", "", "8", "12"},
        {"rangebasedate_2", "include", "8", "12"},
        {"onward", "20190501"},
        {"compdate", "20190501"},
        {"equalyear", "6", "", "1"},
        {"containyear", "1989 2019"},
        {"age", "2 6 0 9 1", "20", "60"},
    };
    const std::vector<std::vector<std::string>> DAYS = {
        {"1", "45", "7", "29", "1912"},  {"2", "1", "7", "30", "1912"},
        {"2", "15", "12", "24", "1926"}, {"3", "1", "12", "25", "1926"},
        {"3", "23", "5", "2", "1948"},   {"3", "45", "1", "1", "1970"},
        {"3", "64", "1", "7", "1989"},   {"4", "1", "1", "8", "1989"},
        {"4", "10", "9", "1", "1998"},   {"4", "30", "3", "11", "2018"},
        {"4", "30", "9", "30", "2018"},  {"4", "30", "11", "4", "2018"},
        {"4", "31", "4", "30", "2019"},  {"4", "31", "5", "1", "2019"},
        {"4", "32", "3", "31", "2020"},  {"4", "32", "4", "1", "2020"},
        {"5", "1", "4", "30", "2019"},   {"5", "1", "5", "1", "2019"},
        {"5", "1", "5", "2", "2019"},    {"5", "20", "1", "20", "2038"},
        {"5", "2", "2", "30", "2020"},
    };
    std::vector<std::string> vecTold;
    for (const ItemText& text : TEXTS) {
        const auto pItem = MakeItem(text, 1);
        for (const auto& vecDay : DAYS) {
            const TableCsv csv{{"001", vecDay[0], vecDay[1], vecDay[2], vecDay[3], "4", "30", "3",
                                "64", "1", "7", "5", "1", "5", "1", vecDay[4], vecDay[2],
                                vecDay[3]}};
            vecTold.push_back(std::string(text.szId) + " " + OnRecord(*pItem, csv));
        }
    }
    return vecTold;
}

/// Writes 2019 as 2,019 wherever a stream is used.
class Grouping final : public std::numpunct<char>
{
    char do_thousands_sep() const override { return ','; }
    std::string do_grouping() const override { return "\3"; }
};

class DateNumberFormatTest : public ResetState
{
protected:
    ~DateNumberFormatTest() override
    {
        std::locale::global(std::locale::classic());
        std::setlocale(LC_ALL, "C");
    }

    const std::vector<std::string> m_vecTold = Verdicts();
};

class DateTimeZoneTest : public DateNumberFormatTest,
                         public testing::WithParamInterface<const char*>
{};

class DateLanguageTest : public DateNumberFormatTest,
                         public testing::WithParamInterface<const char*>
{};

/// Sets TZ, and tells the C library then and at the end.
class TimeZone
{
public:
    explicit TimeZone(const char* szZone) : m_variable(std::in_place, "TZ", std::string(szZone))
    {
        ::tzset();
    }
    ~TimeZone()
    {
        m_variable.reset();
        ::tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

private:
    std::optional<Environment> m_variable;
};

TEST_P(DateTimeZoneTest, GivesTheSameVerdictsInAnyTimeZone)
{
    const TimeZone zone(GetParam());
    EXPECT_EQ(Verdicts(), m_vecTold);
}

// With daylight saving times, on both sides of the date line, and by name.
INSTANTIATE_TEST_SUITE_P(TimeZones,
                         DateTimeZoneTest,
                         testing::Values("UTC0",
                                         "JST-9",
                                         "JST-9JDT",
                                         "PST8PDT,M3.2.0,M11.1.0",
                                         "AAA12",
                                         "BBB-14",
                                         "Asia/Tokyo",
                                         "America/Sao_Paulo",
                                         "no such zone"));

TEST_P(DateLanguageTest, GivesTheSameVerdictsInAnyLanguage)
{
    const Environment lang("LANG", std::string(GetParam()));
    const Environment all("LC_ALL", std::string(GetParam()));
    std::setlocale(LC_ALL, "");
    EXPECT_EQ(Verdicts(), m_vecTold);
}

INSTANTIATE_TEST_SUITE_P(
    Languages,
    DateLanguageTest,
    testing::Values("C", "C.UTF-8", "ja_JP.UTF-8", "ja_JP.SJIS", "tr_TR.UTF-8"));

TEST_F(DateNumberFormatTest, GivesTheSameVerdictsIfNumbersAreGrouped)
{
    std::locale::global(std::locale(std::locale::classic(), new Grouping));
    EXPECT_EQ(Verdicts(), m_vecTold);
}

}  // namespace
