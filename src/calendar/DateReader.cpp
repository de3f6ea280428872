#include "calendar/DateReader.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "calendar/EraTable.h"

namespace {

constexpr std::string_view WESTERN_CHARACTERS = "1234567890/:.- ";

/// Takes a text apart from the front. Once something is missing it stays failed.
class Scanner
{
public:
    /// \param strSeparators  What may stand between the parts of a date.
    Scanner(std::string_view strText, std::string_view strSeparators)
        : m_strRest(strText), m_strSeparators(strSeparators)
    {
    }

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

    void Separator() { OneOf(m_strSeparators); }

    void OneOf(std::string_view strCharacters)
    {
        const bool bFound =
            !m_strRest.empty() && strCharacters.find(m_strRest.front()) != std::string_view::npos;
        m_bFailed = m_bFailed || !bFound;
        m_strRest.remove_prefix(bFound ? 1 : 0);
    }

    void SkipBlanks()
    {
        m_strRest.remove_prefix(std::min(m_strRest.find_first_not_of(' '), m_strRest.size()));
    }

    /// The name of an era, or the empty text.
    std::string_view EraName()
    {
        SkipBlanks();
        const auto spans = EraTable::RealSpans();
        const auto pEra = std::ranges::find_if(spans, [this](const EraTable::Span& span) {
            return m_strRest.starts_with(span.strName);
        });
        m_bFailed = m_bFailed || pEra == spans.end();
        if (m_bFailed)
            return {};
        m_strRest.remove_prefix(pEra->strName.size());
        return pEra->strName;
    }

    /// Everything was there, and nothing but blanks is left.
    bool IsAtEnd()
    {
        SkipBlanks();
        return !m_bFailed && m_strRest.empty();
    }

private:
    std::string_view m_strRest;
    std::string_view m_strSeparators;
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
    scanner.Separator();
    date.nMonth = scanner.Number(1, 2);
    scanner.Separator();
    date.nDay = scanner.Number(1, 2);
    if (!bHasTime)
        return;
    scanner.OneOf(" ");
    date.nHour = scanner.Number(1, 2);
    scanner.OneOf(":");
    date.nMinute = scanner.Number(1, 2);
    scanner.OneOf(":");
    date.nSecond = scanner.Number(1, 2);
}

/// Hyphens and full stops separate as slashes do.
std::optional<DateTime> ReadWestern(std::string_view strText, bool bHasTime)
{
    Scanner scanner(strText, "/-.");
    DateTime date = {};
    date.nYear = scanner.Number(4, 4);
    ReadRest(scanner, date, bHasTime);
    return scanner.IsAtEnd() && IsReal(date) ? std::optional(date) : std::nullopt;
}

/// The day lies between the first and the last one of its era.
bool LiesInEra(DateTime date, std::string_view strEra)
{
    date.nHour = date.nMinute = date.nSecond = 0;
    const auto spans = EraTable::RealSpans();
    const auto pSpan = std::ranges::find(spans, strEra, &EraTable::Span::strName);
    const auto last = ReadWestern(pSpan->szLast, false);
    return date >= ReadWestern(pSpan->szFirst, false) && (!last || date <= *last);
}

std::optional<DateTime> ReadJapanese(std::string strText, bool bHasTime)
{
    constexpr std::array<std::pair<std::string_view, std::string_view>, 4> REPLACEMENTS = {
        {{"元", "01"}, {"年", "/"}, {"月", "/"}, {"日", ""}}};
    for (const auto& [strFrom, strTo] : REPLACEMENTS)
        ReplaceAll(strText, strFrom, strTo);

    Scanner scanner(strText, "/");
    const std::string_view strEra = scanner.EraName();
    DateTime date = {};
    const int nYearInEra = scanner.Number(1, 2);
    ReadRest(scanner, date, bHasTime);
    if (nYearInEra < 1 || !scanner.IsAtEnd())
        return std::nullopt;
    date.nYear = nYearInEra + EraTable::Base(strEra);
    return IsReal(date) && LiesInEra(date, strEra) ? std::optional(date) : std::nullopt;
}

}  // namespace

std::optional<DateTime> ReadDate(std::string_view strText)
{
    const bool bHasTime = strText.find(':') != std::string_view::npos;
    const bool bWestern = strText.find_first_not_of(WESTERN_CHARACTERS) == std::string_view::npos;
    return bWestern ? ReadWestern(strText, bHasTime) : ReadJapanese(std::string(strText), bHasTime);
}
