#include <algorithm>
#include <functional>
#include <ostream>

#include "base/Language.h"
#include "base/SafeText.h"
#include "report/ErrorCounts.h"
#include "report/Report.h"
#include "report/ReportWords.h"
#include "rules/Advice.h"

namespace host {
namespace {

constexpr std::size_t SHOWN_CHARACTERS = 80;
constexpr std::size_t SHOWN_COLUMNS = 8;  ///< most columns whose errors are counted
constexpr Text COMMA = {", ", "、"};

constexpr const char* BOLD = "\x1b[1m";
constexpr const char* RED = "\x1b[31m";
constexpr const char* GREEN = "\x1b[32m";
constexpr const char* YELLOW = "\x1b[33m";
constexpr const char* PLAIN = "\x1b[0m";

/// The text between two escape sequences, or as it is without colour.
std::string Painted(const std::string& strText, const char* szColour, const ReportStyle& style)
{
    return style.bColour ? szColour + strText + PLAIN : strText;
}

const char* ColourOf(Outcome eOutcome)
{
    switch (LookOf(eOutcome).eTone) {
        case OutcomeTone::Good:
            return GREEN;
        case OutcomeTone::Bad:
            return RED;
        case OutcomeTone::Doubt:
            break;
    }
    return YELLOW;
}

void WriteHeadline(std::ostream& out, const FileReport& report, const ReportStyle& style)
{
    out << Painted(MakeSafe(report.strFile), BOLD, style) << ": "
        << Painted(OutcomeVerdict(report.eOutcome), ColourOf(report.eOutcome), style);
    if (IsAboutContents(report))
        out << Say(COMMA) << ErrorSummary(report);
    else if (report.records && report.eOutcome != Outcome::NotChecked)
        out << Say(COMMA) << Count(*report.records, RECORDS);
    if (!report.strProcedure.empty())
        out << Say({" (procedure {1})", "（手続{1}）"}, {MakeSafe(report.strProcedure)});
    out << '\n';
}

void WriteError(std::ostream& out, const ReportedError& error, const ReportStyle& style)
{
    out << "  " << Painted(PlaceOf(error), BOLD, style);
    if (error.eScope != ErrorScope::Argument && !error.strName.empty())
        out << Say({" ({1})", "（{1}）"}, {MakeSafe(error.strName)});
    if (error.value && error.value->empty())
        out << Say({": empty", "：空"});
    else if (error.value)
        out << Say({": \"{1}\"", "：「{1}」"}, {MakeSafeAndShort(*error.value, SHOWN_CHARACTERS)});
    out << "\n    " << Painted(MakeSafe(error.entry.strCode), RED, style) << ' '
        << MessageText(error) << '\n';
    if (!error.strRule.empty())
        out << "    " << Say({"Rule: {1}", "規則：{1}"}, {MakeSafe(error.strRule)}) << '\n';
    // What is known about an argument says all; about a file it says where.
    const bool bHintAlone = error.eScope == ErrorScope::Argument && !error.strHint.empty();
    out << "    " << Sentences(error.strHint, bHintAlone ? "" : AdviceFor(error.entry.eMessage))
        << '\n';
}

void WriteCodeCounts(std::ostream& out, const FileReport& report)
{
    out << Say({"  Errors by code: ", "  コード別："});
    const char* szSeparator = "";
    for (const CodeCount& count : CountByCode(report)) {
        out << szSeparator << MakeSafe(count.strCode) << " × " << Grouped(count.nErrors);
        szSeparator = Say(COMMA);
    }
    out << '\n';
}

/// "17-18 年月日"
std::string ColumnName(const ColumnCount& count)
{
    std::string strName = ColumnNumbers(count.lColumn, count.lColumnEnd);
    if (!count.strLabel.empty())
        strName += " " + MakeSafe(count.strLabel);
    return strName;
}

void WriteColumnCounts(std::ostream& out, const FileReport& report)
{
    std::vector<ColumnCount> vecCount = CountByColumn(report);
    if (vecCount.empty())
        return;
    std::ranges::stable_sort(vecCount, std::ranges::greater(), &ColumnCount::nErrors);
    const std::size_t nShown = std::min(vecCount.size(), SHOWN_COLUMNS);
    out << Say({"  Errors by column: ", "  項目別："});
    const char* szSeparator = "";
    for (std::size_t n = 0; n < nShown; ++n) {
        out << szSeparator << ColumnName(vecCount[n]) << " × " << Grouped(vecCount[n].nErrors);
        szSeparator = Say(COMMA);
    }
    if (nShown < vecCount.size())
        out << Say({"; {1} other columns have fewer", "、ほか{1}項目"},
                   {Grouped(vecCount.size() - nShown)});
    out << '\n';
}

void WriteErrors(std::ostream& out, const FileReport& report, const ReportStyle& style)
{
    const std::size_t nAll = report.vecError.size();
    const std::size_t nShown = std::min(style.limit.value_or(nAll), nAll);
    for (std::size_t n = 0; n < nShown; ++n)
        WriteError(out, report.vecError[n], style);
    if (nShown < nAll)
        out << Say({"  ... {1} of {2} not shown here (--limit {3})",
                    "  ... {2}のうち{1}件は表示していません（--limit {3}）"},
                   {Grouped(nAll - nShown), Count(nAll, ERRORS), std::to_string(*style.limit)})
            << '\n';
    if (nAll > 1 && IsAboutContents(report)) {
        WriteColumnCounts(out, report);
        WriteCodeCounts(out, report);
    }
    if (report.bMoreErrors)
        out << "  " << EkaMsgTable[HE70022E].szCode << ' ' << EkaMsgTable[HE70022E].szText << '\n'
            << "    " << AdviceFor(HE70022E) << '\n';
}

}  // namespace

void WriteText(std::ostream& out, const FileReport& report, const ReportStyle& style)
{
    WriteHeadline(out, report, style);
    WriteErrors(out, report, style);
    const Text toDo = {"  To do: {1}", "  対処：{1}"};
    if (!report.strNote.empty())
        out << Say({"  Note: {1}", "  注：{1}"}, {report.strNote}) << '\n';
    if (!report.strProblem.empty())
        out << "  " << report.strProblem << '\n';
    if (!report.strAdvice.empty())
        out << Say(toDo, {report.strAdvice}) << '\n';
    else if (report.eOutcome == Outcome::Refused)
        out << Say(toDo, {Say({"correct the file as told above and check it again.",
                               "上のエラーを直して、もう一度チェックしてください。"})})
            << '\n';
    if (report.document)
        out << Say({"  document: {1}, {2}, {3} family", "  文書：{1}、{2}、{3}系列"},
                   {MakeSafe(report.document->strPath), Count(report.document->nBytes, BYTES),
                    FamilyName(report.eFamily)})
            << '\n';
}

void WriteTextTotals(std::ostream& out, const std::vector<FileReport>& vecReport)
{
    const auto count = [&](Outcome eOutcome) {
        return Grouped(static_cast<std::size_t>(
            std::ranges::count(vecReport, eOutcome, &FileReport::eOutcome)));
    };
    out << Say({"{1}: {2} passed, {3} refused, {4} not checked to the end",
                "{1}：合格{2}、不合格{3}、最後までチェックできず{4}"},
               {Count(vecReport.size(), FILES), count(Outcome::Passed), count(Outcome::Refused),
                count(Outcome::NotChecked)})
        << '\n';
}

}  // namespace host
