#include "report/ReportWords.h"

namespace host {
namespace {

constexpr Text IN_RECORDS = {"{1} in {2}", "{2}に{1}"};
constexpr Text IN_SOME_RECORDS = {"{1} in {2} of {3}", "{3}中{2}レコードに{1}"};
constexpr Text IN_RECORDS_OR_MORE = {"{1} in {2} or more", "{2}以上に{1}"};
constexpr CountText MORE_ERRORS = {{"more than {1} error", "{1}件を超えるエラー"},
                                   {"more than {1} errors", "{1}件を超えるエラー"}};

}  // namespace

std::string Sentences(const std::string& strFirst, const std::string& strSecond)
{
    if (strFirst.empty() || strSecond.empty())
        return strFirst + strSecond;
    return strFirst + Say({" ", ""}) + strSecond;
}

std::string Grouped(std::uintmax_t nCount)
{
    std::string strDigits = std::to_string(nCount);
    for (std::size_t n = strDigits.size(); n > 3; n -= 3)
        strDigits.insert(n - 3, 1, ',');
    return strDigits;
}

std::string Count(std::uintmax_t nCount, const CountText& text)
{
    return Say(nCount == 1 ? text.one : text.many, {Grouped(nCount)});
}

std::string ColumnWords(long lColumn, long lColumnEnd)
{
    const std::string strColumn = std::to_string(lColumn);
    if (lColumnEnd == SINGLE_COLUMN)
        return Say({"column {1}", "項目{1}"}, {strColumn});
    return Say({"columns {1} to {2}", "項目{1}～{2}"}, {strColumn, std::to_string(lColumnEnd)});
}

std::string ColumnNumbers(long lColumn, long lColumnEnd)
{
    const std::string strColumn = std::to_string(lColumn);
    return lColumnEnd == SINGLE_COLUMN ? strColumn : strColumn + "-" + std::to_string(lColumnEnd);
}

std::string PlaceOf(const ReportedError& error)
{
    const DetailEntry& entry = error.entry;
    const std::string strRecord = std::to_string(entry.lRecord);
    switch (error.eScope) {
        case ErrorScope::Cell:
            return Say({"record {1}, {2}", "レコード{1}、{2}"},
                       {strRecord, ColumnWords(entry.lColumn, entry.lColumnEnd)});
        case ErrorScope::Record:
            return Say({"record {1} as a whole", "レコード{1}全体"}, {strRecord});
        case ErrorScope::File:
            if (entry.lColumn > 0)
                return Say({"the file as a whole, {1}", "ファイル全体、{1}"},
                           {ColumnWords(entry.lColumn, SINGLE_COLUMN)});
            return Say({"the file as a whole", "ファイル全体"});
        case ErrorScope::Argument:
            return error.strName;
    }
    return {};
}

std::string ErrorSummary(const FileReport& report)
{
    const std::size_t nRecords = report.RecordsWithErrors();
    std::string strErrors =
        Count(report.vecError.size(), report.bMoreErrors ? MORE_ERRORS : ERRORS);
    if (nRecords == 0)
        return strErrors;
    if (report.bMoreErrors)
        return Say(IN_RECORDS_OR_MORE, {strErrors, Count(nRecords, RECORDS)});
    if (!report.records)
        return Say(IN_RECORDS, {strErrors, Count(nRecords, RECORDS)});
    return Say(IN_SOME_RECORDS, {strErrors, Grouped(nRecords), Count(*report.records, RECORDS)});
}

bool IsAboutContents(const FileReport& report)
{
    return report.eOutcome == Outcome::Refused || report.RecordsWithErrors() > 0;
}

}  // namespace host
