#include <algorithm>
#include <map>
#include <ostream>

#include "Advice.h"
#include "Report.h"
#include "SafeText.h"

namespace host {
namespace {

constexpr std::size_t SHOWN_CHARACTERS = 80;

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

/// "2,000"
std::string Grouped(std::uintmax_t nCount)
{
    std::string strDigits = std::to_string(nCount);
    for (std::size_t n = strDigits.size(); n > 3; n -= 3)
        strDigits.insert(n - 3, ",");
    return strDigits;
}

/// "1 error", "2,000 errors"
std::string Count(std::uintmax_t nCount, const std::string& strThing)
{
    return Grouped(nCount) + " " + strThing + (nCount == 1 ? "" : "s");
}

struct OutcomeText
{
    const char* szText;
    const char* szColour;
};

OutcomeText TextOf(Outcome eOutcome)
{
    switch (eOutcome) {
        case Outcome::Passed:
            return {"passed", GREEN};
        case Outcome::Refused:
            return {"REFUSED", RED};
        case Outcome::NotChecked:
            return {"NOT CHECKED", YELLOW};
        case Outcome::Converted:
            return {"converted", GREEN};
        case Outcome::NotConverted:
            return {"NOT CONVERTED", RED};
        case Outcome::NotWritten:
            return {"NOT WRITTEN", YELLOW};
    }
    return {"NOT CHECKED", YELLOW};
}

std::string ErrorCount(const FileReport& report)
{
    std::string strText =
        (report.bMoreErrors ? "more than " : "") + Count(report.vecError.size(), "error");
    if (const std::size_t nRecords = report.RecordsWithErrors(); nRecords > 0) {
        strText += " in " + (report.records && !report.bMoreErrors
                                 ? Grouped(nRecords) + " of " + Count(*report.records, "record")
                                 : Count(nRecords, "record"));
        if (report.bMoreErrors)
            strText += " or more";
    }
    return strText;
}

/// The errors are the file's own, so counting them helps.
bool IsAboutContents(const FileReport& report)
{
    return report.eOutcome == Outcome::Refused || report.RecordsWithErrors() > 0;
}

void WriteHeadline(std::ostream& out, const FileReport& report, const ReportStyle& style)
{
    const OutcomeText outcome = TextOf(report.eOutcome);
    out << Painted(MakeSafe(report.strFile), BOLD, style) << ": "
        << Painted(outcome.szText, outcome.szColour, style);
    if (IsAboutContents(report))
        out << ", " << ErrorCount(report);
    else if (report.records && report.eOutcome != Outcome::NotChecked)
        out << ", " << Count(*report.records, "record");
    if (!report.strProcedure.empty())
        out << " (procedure " << MakeSafe(report.strProcedure) << ")";
    out << '\n';
}

std::string Place(const ReportedError& error)
{
    const DetailEntry& entry = error.entry;
    const std::string strRecord = "record " + std::to_string(entry.lRecord);
    const std::string strColumn = std::to_string(entry.lColumn);
    switch (error.eScope) {
        case ErrorScope::Cell:
            return strRecord +
                   (entry.lColumnEnd == SINGLE_COLUMN
                        ? ", column " + strColumn
                        : ", columns " + strColumn + " to " + std::to_string(entry.lColumnEnd));
        case ErrorScope::Record:
            return strRecord + " as a whole";
        case ErrorScope::File:
            return entry.lColumn > 0 ? "the file as a whole, column " + strColumn
                                     : "the file as a whole";
        case ErrorScope::Argument:
            return error.strName;
    }
    return {};
}

void WriteError(std::ostream& out, const ReportedError& error, const ReportStyle& style)
{
    out << "  " << Painted(Place(error), BOLD, style);
    if (error.eScope != ErrorScope::Argument && !error.strName.empty())
        out << " (" << MakeSafe(error.strName) << ")";
    if (error.value && error.value->empty())
        out << ": empty";
    else if (error.value)
        out << ": \"" << MakeSafeAndShort(*error.value, SHOWN_CHARACTERS) << '"';
    out << "\n    " << Painted(MakeSafe(error.entry.strCode), RED, style) << ' '
        << MessageText(error) << '\n'
        << "    ";
    // What is known about an argument says all; about a file it says where.
    if (!error.strHint.empty())
        out << error.strHint << (error.eScope == ErrorScope::Argument ? '\n' : ' ');
    if (error.strHint.empty() || error.eScope != ErrorScope::Argument)
        out << AdviceFor(error.entry.eMessage) << '\n';
}

void WriteCodeCounts(std::ostream& out, const FileReport& report)
{
    std::map<std::string, std::size_t> mapCount;
    for (const ReportedError& error : report.vecError)
        ++mapCount[error.entry.strCode];
    out << "  Errors by code:";
    const char* szSeparator = " ";
    for (const auto& [strCode, nCount] : mapCount) {
        out << szSeparator << MakeSafe(strCode) << " × " << Grouped(nCount);
        szSeparator = ", ";
    }
    out << '\n';
}

void WriteErrors(std::ostream& out, const FileReport& report, const ReportStyle& style)
{
    const std::size_t nAll = report.vecError.size();
    const std::size_t nShown = std::min(style.limit.value_or(nAll), nAll);
    for (std::size_t n = 0; n < nShown; ++n)
        WriteError(out, report.vecError[n], style);
    if (nShown < nAll)
        out << "  ... " << Grouped(nAll - nShown) << " of " << Count(nAll, "error")
            << " not shown here (--limit " << *style.limit << ")\n";
    if (nAll > 1 && IsAboutContents(report))
        WriteCodeCounts(out, report);
    if (report.bMoreErrors)
        out << "  " << EkaMsgTable[HE70022E].szCode << ' ' << EkaMsgTable[HE70022E].szText << '\n'
            << "    " << AdviceFor(HE70022E) << '\n';
}

}  // namespace

void WriteText(std::ostream& out, const FileReport& report, const ReportStyle& style)
{
    WriteHeadline(out, report, style);
    WriteErrors(out, report, style);
    if (!report.strNote.empty())
        out << "  Note: " << report.strNote << '\n';
    if (!report.strProblem.empty())
        out << "  " << report.strProblem << '\n';
    if (!report.strAdvice.empty())
        out << "  To do: " << report.strAdvice << '\n';
    else if (report.eOutcome == Outcome::Refused)
        out << "  To do: correct the file as told above and check it again.\n";
    if (report.document)
        out << "  document: " << MakeSafe(report.document->strPath) << ", "
            << Count(report.document->nBytes, "byte") << '\n';
}

void WriteTextTotals(std::ostream& out, const std::vector<FileReport>& vecReport)
{
    const auto count = [&](Outcome eOutcome) {
        return std::ranges::count(vecReport, eOutcome, &FileReport::eOutcome);
    };
    out << Count(vecReport.size(), "file") << ": " << count(Outcome::Passed) << " passed, "
        << count(Outcome::Refused) << " refused, " << count(Outcome::NotChecked)
        << " not checked to the end\n";
}

}  // namespace host
