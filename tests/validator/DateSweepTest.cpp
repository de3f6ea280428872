// Every day of 164 years, stated in every era that could claim it and in the neighbours of those,
// against a model of a few lines that shares nothing with the library.
#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

/// A day as a record states it. The day may be one that no month has.
struct Stated
{
    int nEra;
    int nYearInEra;
    int nYear;  ///< Western
    int nMonth;
    int nDay;

    int MonthAndDay() const { return nMonth * 100 + nDay; }
    int Number() const { return nYear * 10000 + MonthAndDay(); }
    bool IsReal() const
    {
        const bool bLeap = nYear % 4 == 0 && (nYear % 100 != 0 || nYear % 400 == 0);
        const std::array<int, 12> DAYS = {31, bLeap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30,
                                          31};
        return nDay <= DAYS[static_cast<std::size_t>(nMonth - 1)];
    }
};

// By era code.
constexpr std::array<int, 6> BASES = {0, 1867, 1911, 1925, 1988, 2018};
constexpr std::array<int, 6> FIRST_DAYS = {0, 18900101, 19120730, 19261225, 19890108, 20190501};
constexpr std::array<int, 6> LAST_DAYS = {0, 19120729, 19261224, 19890107, 20190430, 99999999};

/// The columns (from 1) of the record under test.
constexpr const char* OTHER_YEAR = "6";   // 平成30
constexpr const char* LOWER_DATE = "8";   // 昭和64年1月7日
constexpr const char* UPPER_DATE = "12";  // 新号1年5月1日
constexpr const char* WESTERN = "16 17 18";

// --- the model ---

bool LiesBetween(int nNumber, int nFirst, int nLast)
{
    return nFirst <= nNumber && nNumber <= nLast;
}

/// The fourth era's years 31 and 32 move on to the fifth era, by the month alone, until March.
KZCEkaMessage_t ModelExistdate(const Stated& day)
{
    int nEra = day.nEra;
    if (nEra == 4 &&
        ((day.nYearInEra == 31 && day.nMonth >= 5) || (day.nYearInEra == 32 && day.nMonth <= 3)))
        nEra = 5;
    const auto nIndex = static_cast<std::size_t>(nEra);
    const int nLast = nEra == 4 ? 20200331 : LAST_DAYS[nIndex];
    return day.IsReal() && LiesBetween(day.Number(), FIRST_DAYS[nIndex], nLast) ? MSG_NONE
                                                                                : HE70012E;
}

KZCEkaMessage_t ModelExistdate_2(const Stated& day)
{
    const auto nIndex = static_cast<std::size_t>(day.nEra);
    return day.IsReal() && LiesBetween(day.Number(), FIRST_DAYS[nIndex], LAST_DAYS[nIndex])
               ? MSG_NONE
               : HE70012E;
}

/// A check that refuses impossible days with one message and bad places with another.
KZCEkaMessage_t Place(const Stated& day, bool bGood, KZCEkaMessage_t eNoDate, KZCEkaMessage_t eBad)
{
    if (!day.IsReal())
        return eNoDate;
    return bGood ? MSG_NONE : eBad;
}

int AgeOn(const Stated& day, int nYear, int nMonthAndDay)
{
    return nYear - day.nYear - (nMonthAndDay < day.MonthAndDay() ? 1 : 0);
}

struct SweptItem
{
    const char* szName;
    ItemText text;
    const char* szColumns;
    std::function<KZCEkaMessage_t(const Stated&)> model;
};

const std::vector<SweptItem>& SweptItems()
{
    static const std::vector<SweptItem> ITEMS = {
        {"existdate", {"existdate"}, "02:05", ModelExistdate},
        {"existdate_2", {"existdate_2"}, "02:05", ModelExistdate_2},
        {"rangedate in its own year",
         {"rangedate", "", "****0401", "****1231"},
         "02:05",
         [](const Stated& day) {
             return Place(day, day.MonthAndDay() >= 401, HE70012E, HE70010E);
         }},
        {"rangedate in two ranges",
         {"rangedate", "", "19120730 20190501", "19890107 20200331"},
         "02:05",
         [](const Stated& day) {
             const int nDay = day.Number();
             return Place(
                 day,
                 LiesBetween(nDay, 19120730, 19890107) || LiesBetween(nDay, 20190501, 20200331),
                 HE70012E, HE70010E);
         }},
        {"rangedate_2 up to a fixed year",
         {"rangedate_2", "", "19890108", OTHER_YEAR},
         "06:07",
         [](const Stated& day) {
             return Place(day, LiesBetween(day.Number(), 19890108, 20180930), MSG_NONE, HE70025E);
         }},
        {"rangedate_2 up to its own year",
         {"rangedate_2", "", "19120730", "2"},
         "02:03",
         [](const Stated& day) {
             return Place(day, day.Number() >= 19120730 && day.nMonth <= 9, MSG_NONE, HE70025E);
         }},
        {"rangedate_3 of a fixed year",
         {"rangedate_3", OTHER_YEAR},
         "02:05",
         [](const Stated& day) {
             return Place(day, LiesBetween(day.Number(), 20171001, 20180930), MSG_NONE, HE70025E);
         }},
        {"rangedate_3 of its own year",
         {"rangedate_3", "2"},
         "02:05",
         [](const Stated& day) { return Place(day, day.nMonth <= 9, MSG_NONE, HE70025E); }},
        {"rangedate_4",
         {"rangedate_4", "", "19120730 20190501", "19890107 20200331"},
         "02:05",
         [](const Stated& day) {
             return Place(day, LiesBetween(day.Number(), 19120730, 19890107), HE70012E, HE70010E);
         }},
        {"rangebasedate",
         {"rangebasedate", "", LOWER_DATE, UPPER_DATE},
         "02:05",
         [](const Stated& day) {
             return Place(day, LiesBetween(day.Number(), 19890107, 20190501), HE70012E, HE70025E);
         }},
        {"rangebasedate_2",
         {"rangebasedate_2", "", LOWER_DATE, UPPER_DATE},
         "02:05",
         [](const Stated& day) {
             return Place(day, 19890107 < day.Number() && day.Number() < 20190501, HE70025E,
                          HE70025E);
         }},
        {"rangebasedate_2 with include",
         {"rangebasedate_2", "include", LOWER_DATE, UPPER_DATE},
         "02:05",
         [](const Stated& day) {
             return Place(day, LiesBetween(day.Number(), 19890107, 20190501), HE70025E, HE70025E);
         }},
        {"onward",
         {"onward", "20190501"},
         "02:05",
         [](const Stated& day) {
             return Place(day, day.Number() >= 20190501, HE70012E, HE70010E);
         }},
        {"compdate equal",
         {"compdate", "20190501"},
         "02:05",
         [](const Stated& day) {
             return Place(day, day.Number() == 20190501, HE70012E, HE70010E);
         }},
        {"compdate not before",
         {"compdate", "", "19261225"},
         "02:05",
         [](const Stated& day) {
             return Place(day, day.Number() >= 19261225, HE70012E, HE70010E);
         }},
        {"compdate not after",
         {"compdate", "", "", "19261225"},
         "02:05",
         [](const Stated& day) {
             return Place(day, day.Number() <= 19261225, HE70012E, HE70010E);
         }},
        {"equalyear",
         {"equalyear", OTHER_YEAR, "", "1"},
         "02:03",
         [](const Stated& day) { return day.nYear == 2019 ? MSG_NONE : HE70025E; }},
        {"containyear",
         {"containyear", "1912 1926 1989 2019 2020"},
         "02:03",
         [](const Stated& day) {
             const int nYear = day.nYear;
             return nYear == 1912 || nYear == 1926 || nYear == 1989 || nYear == 2019 ||
                            nYear == 2020
                        ? MSG_NONE
                        : HE70025E;
         }},
        {"existdateYYYYMMDD",
         {"existdateYYYYMMDD", WESTERN},
         "16:18",
         [](const Stated& day) { return day.IsReal() ? MSG_NONE : HE70012E; }},
        {"age on a fixed day",
         {"age", "2 6 0 9 1", "20", "60"},
         "00002",
         [](const Stated& day) {
             return Place(day, LiesBetween(AgeOn(day, 2018, 901), 20, 60), HE70010E, HE70010E);
         }},
        {"age years after its own year",
         {"age", "2 2 20 4 1", "20", "20"},
         "00002",
         [](const Stated& day) {
             return Place(day, AgeOn(day, day.nYear + 20, 401) == 20, HE70010E, HE70010E);
         }},
    };
    return ITEMS;
}

// --- the sweep ---

/// One record, whose cells change in place.
class SweepCsv final : public KZCEkaCsvFile
{
public:
    SweepCsv() { m_table.Append(m_record); }

    void State(const Stated& day)
    {
        Record& record = m_record;
        record[1] = std::to_string(day.nEra);
        record[2] = std::to_string(day.nYearInEra);
        record[3] = record[16] = std::to_string(day.nMonth);
        record[4] = record[17] = std::to_string(day.nDay);
        record[15] = std::to_string(day.nYear);
        m_table.Assign({record});
    }

private:
    Record m_record = {"001", "",  "",  "",  "",  "4", "30", "3", "64",
                       "1",   "7", "5", "1", "5", "1", "",   "",  ""};
};

/// An era code and the days that are stated in it: from the first day of its year 1 to the last day
/// of the next era, both cut at the ends of the sweep.
struct SweepCase
{
    const char* szName;
    int nEra;
    std::chrono::year_month_day first;
    std::chrono::year_month_day last;
};

void PrintTo(const SweepCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class DateSweepTest : public ResetState, public testing::WithParamInterface<SweepCase>
{
protected:
    DateSweepTest()
    {
        for (const SweptItem& swept : SweptItems())
            m_vecItem.push_back(MakeItem(swept.text, 1));
    }

    /// Compares every item's verdict on the day with its model's.
    void Check(const Stated& day)
    {
        m_csv.State(day);
        for (std::size_t n = 0; n < m_vecItem.size(); ++n) {
            const SweptItem& swept = SweptItems()[n];
            const KZCEkaMessage_t eModel = swept.model(day);
            const int nStatus = m_vecItem[n]->ValidateCsv(&m_csv, 0, -1);
            const bool bRecorded = !KZCValidResult::instance()->IsEmpty();
            const std::string strRecorded =
                bRecorded ? KZCValidResult::instance()->MakeResult() : std::string();
            const bool bAgree = eModel == MSG_NONE
                                    ? nStatus == STATUS_OK && !bRecorded
                                    : nStatus == STATUS_NG &&
                                          strRecorded == std::string("0001-") + swept.szColumns +
                                                             "-" + CodeOf(eModel);
            if (!bAgree && ++m_nDisagreed <= SHOWN)
                ADD_FAILURE() << swept.szName << " on era " << day.nEra << " year "
                              << day.nYearInEra << ", " << day.Number() << " tells "
                              << (nStatus == STATUS_OK ? PASSES : REFUSES) << " " << strRecorded
                              << ", the model gives " << eModel;
        }
    }

    static constexpr int SHOWN = 20;
    SweepCsv m_csv;
    std::vector<std::unique_ptr<KZCEkaValidItem>> m_vecItem;
    int m_nDisagreed = 0;
};

int NumberOf(std::chrono::year_month_day date)
{
    return static_cast<int>(date.year()) * 10000 +
           static_cast<int>(static_cast<unsigned>(date.month())) * 100 +
           static_cast<int>(static_cast<unsigned>(date.day()));
}

TEST_P(DateSweepTest, EveryItemAgreesWithItsModel)
{
    const auto [szName, nEra, first, last] = GetParam();
    const int nBase = BASES[static_cast<std::size_t>(nEra)];
    long lRealDays = 0;
    for (int nYear = static_cast<int>(first.year()); nYear <= static_cast<int>(last.year());
         ++nYear) {
        for (int nMonth = 1; nMonth <= 12; ++nMonth) {
            for (int nDay = 1; nDay <= 31; ++nDay) {
                const Stated day = {nEra, nYear - nBase, nYear, nMonth, nDay};
                if (!LiesBetween(day.Number(), NumberOf(first), NumberOf(last)))
                    continue;
                Check(day);
                lRealDays += day.IsReal() ? 1 : 0;
            }
        }
    }
    EXPECT_EQ(m_nDisagreed, 0);
    EXPECT_EQ(lRealDays, (std::chrono::sys_days(last) - std::chrono::sys_days(first)).count() + 1);
}

using namespace std::chrono_literals;

constexpr SweepCase SWEEPS[] = {
    {"Meiji", 1, 1868y / 1 / 25, 1926y / 12 / 24},    {"Taisho", 2, 1912y / 1 / 1, 1989y / 1 / 7},
    {"Showa", 3, 1926y / 1 / 1, 2019y / 4 / 30},      {"Heisei", 4, 1989y / 1 / 1, 2031y / 12 / 31},
    {"TheNewEra", 5, 2019y / 1 / 1, 2031y / 12 / 31},
};

INSTANTIATE_TEST_SUITE_P(Eras, DateSweepTest, testing::ValuesIn(SWEEPS), CaseName());

}  // namespace
