#include "DateReader.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace {

constexpr std::string_view WESTERN_CHARACTERS = "1234567890/:.- ";

/// An era with its first and last day; the last era is open.
struct Era
{
    std::string_view strName;
    int nBase;  ///< Western year = year in the era + base
    DateTime first;
    DateTime last;
};

constexpr DateTime StartOf(int nYear, int nMonth, int nDay)
{
    return {nYear, nMonth, nDay, 0, 0, 0};
}

constexpr DateTime EndOf(int nYear, int nMonth, int nDay)
{
    return {nYear, nMonth, nDay, 23, 59, 59};
}

constexpr std::array<Era, 5> ERAS = {{
    {"明治", 1867, StartOf(1890, 1, 1), EndOf(1912, 7, 29)},
    {"大正", 1911, StartOf(1912, 7, 30), EndOf(1926, 12, 24)},
    {"昭和", 1925, StartOf(1926, 12, 25), EndOf(1989, 1, 7)},
    {"平成", 1988, StartOf(1989, 1, 8), EndOf(2019, 4, 30)},
    {"新号", 2018, StartOf(2019, 5, 1), EndOf(9999, 12, 31)},
}};

/// Takes a text apart from the front. Once something is missing it stays failed.
class Scanner
{
public:
    explicit Scanner(std::string_view strText) : m_strRest(strText) {}

    /// A number of nMin to nMax digits, blanks before it allowed.
    int Number(std::size_t nMin, std::size_t nMax)
    {
        SkipBlanks();
        std::size_t nDigits = 0;
        int nNumber = 0;
        while (nDigits < std::min(m_strRest.size(), nMax + 1) && m_strRest[nDigits] >= '0' &&
               m_strRest[nDigits] <= '9')
            nNumber = nNumber * 10 + (m_strRest[nDigits++] - '0');
        m_bFailed = m_bFailed || nDigits < nMin || nDigits > nMax;
        m_strRest.remove_prefix(nDigits);
        return nNumber;
    }

    void Literal(std::string_view strLiteral)
    {
        m_bFailed = m_bFailed || !m_strRest.starts_with(strLiteral);
        m_strRest.remove_prefix(std::min(strLiteral.size(), m_strRest.size()));
    }

    void SkipBlanks()
    {
        m_strRest.remove_prefix(std::min(m_strRest.find_first_not_of(' '), m_strRest.size()));
    }

    const Era* EraName()
    {
        SkipBlanks();
        const auto pEra = std::ranges::find_if(
            ERAS, [this](const Era& era) { return m_strRest.starts_with(era.strName); });
        m_bFailed = m_bFailed || pEra == ERAS.end();
        if (m_bFailed)
            return nullptr;
        m_strRest.remove_prefix(pEra->strName.size());
        return &*pEra;
    }

    /// Everything was there, and nothing but blanks is left.
    bool IsAtEnd()
    {
        SkipBlanks();
        return !m_bFailed && m_strRest.empty();
    }

private:
    std::string_view m_strRest;
    bool m_bFailed = false;
};

constexpr int DaysOfMonth(int nYear, int nMonth)
{
    constexpr std::array<int, 12> DAYS = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool bLeapYear = (nYear % 4 == 0 && nYear % 100 != 0) || nYear % 400 == 0;
    return nMonth == 2 && bLeapYear ? 29 : DAYS[static_cast<std::size_t>(nMonth - 1)];
}

constexpr bool IsReal(const DateTime& date)
{
    return date.nYear >= 1 && date.nMonth >= 1 && date.nMonth <= 12 && date.nDay >= 1 &&
           date.nDay <= DaysOfMonth(date.nYear, date.nMonth) && date.nHour <= 23 &&
           date.nMinute <= 59 && date.nSecond <= 59;
}

void ReplaceAll(std::string& strText, std::string_view strFrom, std::string_view strTo)
{
    for (std::size_t nAt = 0; (nAt = strText.find(strFrom, nAt)) != std::string::npos;
         nAt += strTo.size())
        strText.replace(nAt, strFrom.size(), strTo);
}

/// "/MM/dd", and " HH:mm:ss" behind it.
void ReadRest(Scanner& scanner, DateTime& date, bool bHasTime)
{
    scanner.Literal("/");
    date.nMonth = scanner.Number(1, 2);
    scanner.Literal("/");
    date.nDay = scanner.Number(1, 2);
    if (!bHasTime)
        return;
    scanner.Literal(" ");
    date.nHour = scanner.Number(1, 2);
    scanner.Literal(":");
    date.nMinute = scanner.Number(1, 2);
    scanner.Literal(":");
    date.nSecond = scanner.Number(1, 2);
}

std::optional<DateTime> ReadWestern(std::string strText, bool bHasTime)
{
    std::ranges::replace(strText, '-', '/');
    std::ranges::replace(strText, '.', '/');
    Scanner scanner(strText);
    DateTime date = {};
    date.nYear = scanner.Number(4, 4);
    ReadRest(scanner, date, bHasTime);
    return scanner.IsAtEnd() && IsReal(date) ? std::optional(date) : std::nullopt;
}

std::optional<DateTime> ReadJapanese(std::string strText, bool bHasTime)
{
    constexpr std::array<std::pair<std::string_view, std::string_view>, 4> REPLACEMENTS = {
        {{"元", "01"}, {"年", "/"}, {"月", "/"}, {"日", ""}}};
    for (const auto& [strFrom, strTo] : REPLACEMENTS)
        ReplaceAll(strText, strFrom, strTo);

    Scanner scanner(strText);
    const Era* pEra = scanner.EraName();
    DateTime date = {};
    const int nYearInEra = scanner.Number(1, 2);
    ReadRest(scanner, date, bHasTime);
    if (pEra == nullptr || nYearInEra < 1 || !scanner.IsAtEnd())
        return std::nullopt;
    date.nYear = nYearInEra + pEra->nBase;
    if (!IsReal(date) || date < pEra->first || date > pEra->last)
        return std::nullopt;
    return date;
}

}  // namespace

std::optional<DateTime> ReadDate(std::string_view strText)
{
    const bool bHasTime = strText.find(':') != std::string_view::npos;
    const bool bWestern = strText.find_first_not_of(WESTERN_CHARACTERS) == std::string_view::npos;
    return bWestern ? ReadWestern(std::string(strText), bHasTime)
                    : ReadJapanese(std::string(strText), bHasTime);
}
