#include "rules/WordKinds.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <vector>

#include "base/Language.h"
#include "calendar/EraTable.h"
#include "form/DetailTable.h"
#include "rules/CheckShape.h"
#include "text/CText.h"
#include "validator/DateLiteral.h"

namespace host {
namespace {

using Words = std::optional<std::string>;

/// So many neighbours in a list are written as a run.
constexpr std::size_t RUN_LENGTH = 3;
constexpr std::string_view ANY_YEAR = "****";
/// Nothing is counted on from a greater number.
constexpr long COLUMN_MAX = 1'000'000'000;

constexpr Text OR = {" or ", "または"};
constexpr Text AND = {" and ", "、"};
/// No word before the last of a list.
constexpr Text COMMA = {", ", "、"};

long Number(const std::string& strText)
{
    return CText::ReadLong(strText.c_str());
}

/// "a", "a or b", "a, b or c".
std::string Join(const std::vector<std::string>& vecText, const Text& last)
{
    std::string strJoined;
    for (std::size_t n = 0; n < vecText.size(); ++n) {
        if (n > 0)
            strJoined += n + 1 < vecText.size() ? Say(COMMA) : Say(last);
        strJoined += vecText[n];
    }
    return strJoined;
}

// ------------------------------------------------------------------------------------- numbers

struct Run
{
    long lFirst;
    long lLast;
};

/// The numbers in their order, neighbours that count up in one run if they are enough.
std::vector<Run> JoinRuns(const std::vector<long>& vecNumber)
{
    std::vector<Run> vecRun;
    for (std::size_t nFirst = 0; nFirst < vecNumber.size();) {
        std::size_t nEnd = nFirst + 1;
        while (nEnd < vecNumber.size() && vecNumber[nEnd - 1] < COLUMN_MAX &&
               vecNumber[nEnd] == vecNumber[nEnd - 1] + 1)
            ++nEnd;
        if (nEnd - nFirst < RUN_LENGTH)
            nEnd = nFirst + 1;
        vecRun.push_back({vecNumber[nFirst], vecNumber[nEnd - 1]});
        nFirst = nEnd;
    }
    return vecRun;
}

Words Plural(const std::string& strParameter, const WordContext&)
{
    if (strParameter.empty())
        return std::nullopt;
    return Number(strParameter) == 1 ? "" : "s";
}

Words Years(const std::string& strParameter, const WordContext&)
{
    std::vector<std::string> vecText;
    for (const Run& run : JoinRuns(CText::SplitNumbers(strParameter)))
        vecText.push_back(run.lFirst == run.lLast
                              ? std::to_string(run.lFirst)
                              : Say({"{1} to {2}", "{1}～{2}"},
                                    {std::to_string(run.lFirst), std::to_string(run.lLast)}));
    if (vecText.empty())
        return std::nullopt;
    return Join(vecText, {" or ", "、"});
}

Words NumberRange(const std::string&, const WordContext& context)
{
    const std::string strMin = context.check.strMin.empty() ? "0" : context.check.strMin;
    const std::string strMax = context.check.strMax.empty() ? "0" : context.check.strMax;
    if (Number(strMin) == Number(strMax))
        return strMin;
    return Say({"{1} to {2}", "{1}以上{2}以下"}, {strMin, strMax});
}

// --------------------------------------------------------------------------------------- texts

std::string ListOf(const std::vector<std::string>& vecText)
{
    std::vector<std::string> vecQuoted;
    std::string strTogether;
    for (const std::string& strText : vecText) {
        vecQuoted.push_back(Say({"\"{1}\"", "「{1}」"}, {strText}));
        strTogether += vecQuoted.back();
    }
    return CurrentLanguage() == Language::Japanese ? strTogether : Join(vecQuoted, OR);
}

Words ListTexts(const std::vector<std::string>& vecText)
{
    if (vecText.empty())
        return std::nullopt;
    return ListOf(vecText);
}

Words OneOfTexts(const std::vector<std::string>& vecText)
{
    if (vecText.empty())
        return std::nullopt;
    return ListOf(vecText) + (vecText.size() > 1 ? Say({"", "のいずれか"}) : "");
}

Words List(const std::string& strParameter, const WordContext&)
{
    return ListTexts(CText::SplitTokens(strParameter));
}

Words OneOf(const std::string& strParameter, const WordContext&)
{
    return OneOfTexts(CText::SplitTokens(strParameter));
}

/// The first character of each text of a list; the check looks at no more.
std::vector<std::string> FirstCharacters(const std::string& strParameter)
{
    std::vector<std::string> vecText;
    for (const std::string& strToken : CText::SplitTokens(strParameter)) {
        const bool bAscii = static_cast<unsigned char>(strToken.front()) < 0x80;
        vecText.push_back(bAscii ? strToken.substr(0, 1) : strToken);
    }
    return vecText;
}

Words Characters(const std::string& strParameter, const WordContext&)
{
    return ListTexts(FirstCharacters(strParameter));
}

Words OneOfCharacters(const std::string& strParameter, const WordContext&)
{
    return OneOfTexts(FirstCharacters(strParameter));
}

Words Positions(const std::string& strParameter, const WordContext&)
{
    const auto vecText = CText::SplitTokens(strParameter);
    if (vecText.empty())
        return std::nullopt;
    return Say(vecText.size() == 1 ? Text{"character {1}", "{1}文字目"}
                                   : Text{"each of characters {1}", "{1}文字目"},
               {Join(vecText, AND)});
}

// ------------------------------------------------------------------------------------- columns

/// Without its label.
std::string ColumnNumbers(long lFirst, long lLast)
{
    const std::string strFirst = std::to_string(lFirst);
    const std::string strLast = std::to_string(lLast);
    if (lFirst == lLast)
        return Say({"column {1}", "項目{1}"}, {strFirst});
    return Say(lFirst + 1 == lLast ? Text{"columns {1} and {2}", "項目{1}～{2}"}
                                   : Text{"columns {1} to {2}", "項目{1}～{2}"},
               {strFirst, strLast});
}

/// The label of an item over the columns, or of the first and the last one.
std::string LabelOf(long lFirst, long lLast, const WordContext& context)
{
    const ColumnLabels& labels = context.form.labels;
    std::string strLabel = labels.Find(lFirst, lLast);
    if (lFirst == lLast)
        return strLabel;
    // One column of several may check them all; then its label isn't that of the others.
    for (long lColumn = lFirst; lColumn <= lLast; ++lColumn) {
        if (labels.Find(lColumn, SINGLE_COLUMN) != strLabel)
            continue;
        std::string strFirst = labels.Find(lFirst, SINGLE_COLUMN);
        const std::string strLast = labels.Find(lLast, SINGLE_COLUMN);
        if (strFirst.empty() || strLast.empty() || strFirst == strLast)
            return strLabel;
        return strFirst.append("～").append(strLast);
    }
    return strLabel;
}

std::string ColumnsWithLabel(long lFirst, long lLast, const WordContext& context)
{
    const std::string strLabel = LabelOf(lFirst, lLast, context);
    return ColumnNumbers(lFirst, lLast) +
           (strLabel.empty() ? "" : Say({" \"{1}\"", "「{1}」"}, {strLabel}));
}

Words ColumnsFrom(long lFirst, long lCount, const WordContext& context)
{
    if (lFirst < 1 || lFirst > COLUMN_MAX)
        return std::nullopt;
    return ColumnsWithLabel(lFirst, lFirst + lCount - 1, context);
}

Words Column(const std::string& strParameter, const WordContext& context)
{
    return ColumnsFrom(Number(strParameter), 1, context);
}

Words YearColumn(const std::string& strParameter, const WordContext& context)
{
    return ColumnsFrom(Number(strParameter), YEAR_CELLS, context);
}

Words DateColumn(const std::string& strParameter, const WordContext& context)
{
    return ColumnsFrom(Number(strParameter), DATE_CELLS, context);
}

Words OwnColumns(const std::string& strParameter, const WordContext& context)
{
    return ColumnsFrom(Number(strParameter), context.lOwnColumns, context);
}

Words Columns(const std::string& strParameter, const WordContext& context)
{
    std::vector<std::string> vecText;
    for (const Run& run : JoinRuns(CText::SplitNumbers(strParameter)))
        vecText.push_back(ColumnsWithLabel(run.lFirst, run.lLast, context));
    if (vecText.empty())
        return std::nullopt;
    return Join(vecText, AND);
}

/// Another record may be of another form, whose labels aren't known here.
Words Numbers(const std::string& strParameter, const WordContext&)
{
    std::vector<std::string> vecText;
    for (const Run& run : JoinRuns(CText::SplitNumbers(strParameter)))
        vecText.push_back(ColumnNumbers(run.lFirst, run.lLast));
    if (vecText.empty())
        return std::nullopt;
    return Join(vecText, AND);
}

Words AnyOf(const std::string& strParameter, const WordContext& context)
{
    Words columns = Columns(strParameter, context);
    if (!columns || CText::SplitNumbers(strParameter).size() == 1)
        return columns;
    return Say({"one of {1}", "{1}のいずれか"}, {*columns});
}

Words Cell(const std::string& strParameter, const WordContext&)
{
    const auto reference = DateLiteral::ReadReference(strParameter.c_str());
    if (!reference || reference->lColumn < 1 || reference->lColumn > COLUMN_MAX)
        return std::nullopt;
    return Say({"{2} of record {1}", "レコード{1}の{2}"},
               {std::to_string(reference->lRow),
                ColumnNumbers(reference->lColumn, reference->lColumn + DATE_CELLS - 1)});
}

Words Source(const std::string& strParameter, const WordContext& context)
{
    const bool bCell = DateLiteral::ReadReference(strParameter.c_str()).has_value();
    return bCell ? Cell(strParameter, context) : DateColumn(strParameter, context);
}

/// As the checks reckon it, with 32 bits.
long Offset(const std::string& strPlus, const std::string& strMinus)
{
    return static_cast<long>(CText::ReadInt(strPlus.c_str())) - CText::ReadInt(strMinus.c_str());
}

Words Sum(const std::string& strParameter, const WordContext& context)
{
    const Words column = Column(context.check.strValue, context);
    if (strParameter.empty() || !column)
        return std::nullopt;
    const long lOffset = Offset(context.check.strMin, context.check.strMax);
    if (lOffset == 0)
        return Say({"the same number as {1}", "{1}と同じ数"}, {*column});
    return Say(lOffset > 0 ? Text{"{1} plus {2}", "{1}の値に{2}を足した数"}
                           : Text{"{1} minus {2}", "{1}の値から{2}を引いた数"},
               {*column, std::to_string(std::labs(lOffset))});
}

Words YearSum(const std::string& strParameter, const WordContext& context)
{
    const Words columns = YearColumn(strParameter, context);
    if (!columns)
        return std::nullopt;
    const long lOffset = Offset(context.check.strMax, context.check.strMin);
    if (lOffset == 0)
        return Say({"the same year as in {1}", "{1}と同じ年"}, {*columns});
    const std::string strYears = std::to_string(std::labs(lOffset));
    return Say(lOffset > 0 ? Text{"{2} year{3} after the year in {1}", "{1}の年の{2}年後"}
                           : Text{"{2} year{3} before the year in {1}", "{1}の年の{2}年前"},
               {*columns, strYears, std::labs(lOffset) == 1 ? "" : "s"});
}

// --------------------------------------------------------------------------------------- dates

constexpr std::array<const char*, 12> MONTHS = {"January",   "February", "March",    "April",
                                                "May",       "June",     "July",     "August",
                                                "September", "October",  "November", "December"};

constexpr std::array<Text, 5> ERA_NAMES = {{
    {"Meiji", "明治"},
    {"Taisho", "大正"},
    {"Showa", "昭和"},
    {"Heisei", "平成"},
    {"Shingo", "新号"},
}};

/// An era's year in a file has two digits.
constexpr long ERA_YEAR_MAX = 99;

std::string MonthAndDay(long lMonth, long lDay)
{
    if (lMonth < 1 || lMonth > static_cast<long>(MONTHS.size()))
        return std::to_string(lMonth) + "/" + std::to_string(lDay);
    return Say({"{2} {3}", "{1}月{2}日"}, {std::to_string(lMonth), std::to_string(lDay),
                                           MONTHS[static_cast<std::size_t>(lMonth - 1)]});
}

/// "Heisei 25" or "平成25"; empty for a date before the eras of the table.
std::string EraYear(const std::string& strDate, long lYear)
{
    const auto spans = EraTable::RealSpans();
    const auto span = std::ranges::find_if(spans, [&strDate](const EraTable::Span& candidate) {
        const std::string_view strLast = candidate.szLast;
        return candidate.szFirst <= strDate && (strLast.empty() || strDate <= strLast);
    });
    if (span == spans.end())
        return {};
    const long lEraYear = lYear - EraTable::Base(span->strName);
    const auto name = std::ranges::find_if(
        ERA_NAMES, [&span](const Text& text) { return span->strName == text.szJapanese; });
    if (lEraYear > ERA_YEAR_MAX || name == ERA_NAMES.end())
        return {};
    return Say({"{1} {2}", "{1}{2}"}, {Say(*name), std::to_string(lEraYear)});
}

/// \param strDate  "YYYY/MM/DD"; nothing for another form and for a day that doesn't exist.
Words Western(const std::string& strDate, const WordContext&)
{
    constexpr std::string_view FORM = "dddd/dd/dd";
    const bool bForm = std::ranges::equal(strDate, FORM, [](char cByte, char cForm) {
        return cForm == 'd' ? cByte >= '0' && cByte <= '9' : cByte == cForm;
    });
    if (!bForm)
        return std::nullopt;
    const long lYear = Number(strDate.substr(0, 4));
    const long lMonth = Number(strDate.substr(5, 2));
    const long lDay = Number(strDate.substr(8, 2));
    const std::chrono::year_month_day date(std::chrono::year(static_cast<int>(lYear)),
                                           std::chrono::month(static_cast<unsigned>(lMonth)),
                                           std::chrono::day(static_cast<unsigned>(lDay)));
    if (!date.ok())
        return std::nullopt;
    const std::string strEra = EraYear(strDate, lYear);
    return Say(
        strEra.empty() ? Text{"{3} {1}", "{1}年{3}"} : Text{"{3} {1} ({2})", "{1}（{2}）年{3}"},
        {std::to_string(lYear), strEra, MonthAndDay(lMonth, lDay)});
}

Words Date(const std::string& strParameter, const WordContext& context)
{
    const std::string strDate = DateLiteral::OfEightCharacters(strParameter.c_str());
    return Western(strDate, context);
}

bool IsOfAnyYear(const std::string& strDate)
{
    return strDate.starts_with(ANY_YEAR) && strDate.size() == 8;
}

/// A bound that isn't a date stays as it is written.
std::string Bound(const std::string& strDate, const WordContext& context)
{
    if (IsOfAnyYear(strDate))
        return MonthAndDay(Number(strDate.substr(4, 2)), Number(strDate.substr(6, 2)));
    return Date(strDate, context).value_or(strDate);
}

Words Ranges(std::size_t nMost, const WordContext& context)
{
    const auto vecMin = CText::SplitTokens(context.check.strMin);
    const auto vecMax = CText::SplitTokens(context.check.strMax);
    const std::size_t nCount = std::min({vecMin.size(), vecMax.size(), nMost});
    if (nCount == 0)
        return std::nullopt;
    constexpr Text OF_ANY_YEAR = {"{1} of any year", "毎年{1}"};
    bool bAllOfAnyYear = true;
    for (std::size_t n = 0; n < nCount; ++n)
        bAllOfAnyYear = bAllOfAnyYear && IsOfAnyYear(vecMin[n]) && IsOfAnyYear(vecMax[n]);
    std::vector<std::string> vecText;
    for (std::size_t n = 0; n < nCount; ++n) {
        const std::string strRange =
            Say({"{1} to {2}", "{1}～{2}"}, {Bound(vecMin[n], context), Bound(vecMax[n], context)});
        const bool bAlone = !bAllOfAnyYear && IsOfAnyYear(vecMin[n]) && IsOfAnyYear(vecMax[n]);
        vecText.push_back(bAlone ? Say(OF_ANY_YEAR, {strRange}) : strRange);
    }
    const std::string strRanges = Join(vecText, OR);
    return bAllOfAnyYear ? Say(OF_ANY_YEAR, {strRanges}) : strRanges;
}

Words Periods(const std::string&, const WordContext& context)
{
    return Ranges(static_cast<std::size_t>(-1), context);
}

Words FirstPeriod(const std::string&, const WordContext& context)
{
    return Ranges(1, context);
}

// ----------------------------------------------------------------------------------------- age

Words Birth(const std::string& strParameter, const WordContext& context)
{
    const auto vecToken = CText::SplitTokens(strParameter);
    return vecToken.empty() ? std::nullopt : DateColumn(vecToken[0], context);
}

Words AgeDay(const std::string& strParameter, const WordContext& context)
{
    constexpr std::size_t TOKENS = 5;
    const auto vecToken = CText::SplitTokens(strParameter);
    const Words columns = vecToken.size() < TOKENS ? Words() : YearColumn(vecToken[1], context);
    if (!columns)
        return std::nullopt;
    const std::string strDay = MonthAndDay(Number(vecToken[3]), Number(vecToken[4]));
    const long lYears = CText::ReadInt(vecToken[2].c_str());
    const std::string strYears = std::to_string(std::labs(lYears));
    const char* szPlural = std::labs(lYears) == 1 ? "" : "s";
    if (lYears == 0)
        return Say({"{1} of the year in {2}", "{2}の年の{1}"}, {strDay, *columns});
    return Say(lYears > 0
                   ? Text{"{1}, {3} year{4} after the year in {2}", "{2}の年の{3}年後の{1}"}
                   : Text{"{1}, {3} year{4} before the year in {2}", "{2}の年の{3}年前の{1}"},
               {strDay, *columns, strYears, szPlural});
}

struct Kind
{
    std::string_view strName;
    Words (*pWrite)(const std::string& strParameter, const WordContext& context);
};

constexpr auto KINDS = std::to_array<Kind>({
    {"age-day", AgeDay},
    {"any-of", AnyOf},
    {"birth", Birth},
    {"cell", Cell},
    {"characters", Characters},
    {"column", Column},
    {"columns", Columns},
    {"date", Date},
    {"date-column", DateColumn},
    {"first-period", FirstPeriod},
    {"list", List},
    {"numbers", Numbers},
    {"one-of", OneOf},
    {"one-of-characters", OneOfCharacters},
    {"own", OwnColumns},
    {"periods", Periods},
    {"positions", Positions},
    {"range", NumberRange},
    {"s", Plural},
    {"source", Source},
    {"sum", Sum},
    {"western", Western},
    {"year-column", YearColumn},
    {"year-sum", YearSum},
    {"years", Years},
});

}  // namespace

std::optional<std::string> WriteKind(std::string_view strKind,
                                     const std::string& strParameter,
                                     const WordContext& context)
{
    const auto* pKind = std::ranges::find(KINDS, strKind, &Kind::strName);
    return pKind != KINDS.end() ? pKind->pWrite(strParameter, context) : std::nullopt;
}

bool IsWordKind(std::string_view strKind)
{
    return std::ranges::find(KINDS, strKind, &Kind::strName) != KINDS.end();
}

}  // namespace host
