#include "report/HtmlReport.h"

#include <algorithm>
#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <tuple>

#include "base/Language.h"
#include "base/SafeText.h"
#include "report/ErrorCounts.h"
#include "report/HtmlAssets.h"
#include "report/HtmlGrid.h"
#include "report/HtmlText.h"
#include "report/ReportWords.h"
#include "rules/Advice.h"

namespace host {
namespace {

constexpr std::size_t SHOWN_BARS = 8;          ///< others are folded away
constexpr std::size_t SHOWN_CHARACTERS = 200;  ///< of a value
constexpr std::size_t NARROW_CHARACTERS = 24;  ///< of a value that leaves room for a second column

std::string Number(std::size_t n)
{
    return std::to_string(n);
}

std::string Badge(Outcome eOutcome)
{
    return std::string("<span class=\"badge ") + OutcomeStyle(eOutcome) + "\">" +
           OutcomeVerdict(eOutcome) + "</span>";
}

/// A bar of a chart; its link shows what it counts.
struct Bar
{
    std::string strName;  ///< as markup
    std::string strTitle;
    std::size_t nErrors = 0;
    std::string strField;  ///< of the filter
    std::string strValue;  ///< in that field
    std::string strTarget;
};

/// Writes the part of the page that is about one file.
class FilePart
{
public:
    FilePart(std::ostream& out,
             const FileReport& report,
             std::size_t nFile,
             const ReportStyle& style);
    void Write();

private:
    void WriteFacts();
    void WriteNotices();
    void WriteCharts();
    void WriteChart(const std::string& strCaption, std::vector<Bar> vecBar);
    void WriteBars(const std::vector<Bar>& vecBar,
                   std::size_t nFirst,
                   std::size_t nEnd,
                   std::size_t nMost);
    void WriteFilter();
    void WriteErrors();
    void WriteGroup(const ErrorGroup& group, std::size_t nGroup);
    void WriteError(const ReportedError& error, std::size_t nError);
    void WriteCells();
    std::size_t ColumnIndex(const ReportedError& error) const;
    std::string GroupId(std::size_t nGroup) const
    {
        return "g" + Number(m_nFile) + "-" + Number(nGroup + 1);
    }
    /// The group of that number, or the file itself if none fits.
    template <class Map, class Key>
    std::string TargetOf(const Map& mapGroup, const Key& key) const
    {
        const auto it = mapGroup.find(key);
        return it != mapGroup.end() ? GroupId(it->second) : "f" + Number(m_nFile);
    }
    void NoteGroups();

    std::ostream& m_out;
    const FileReport& m_report;
    std::size_t m_nFile;
    std::size_t m_nListed;
    std::vector<ColumnCount> m_vecColumn;
    std::vector<ErrorGroup> m_vecGroup;
    /// Places in m_vecColumn by column, last column and label.
    std::map<std::tuple<long, long, std::string>, std::size_t> m_mapColumnIndex;
    std::map<std::size_t, std::size_t> m_mapGroupOfColumn;  ///< the first, by place in m_vecColumn
    std::map<std::string, std::size_t> m_mapGroupOfCode;    ///< the first
};

FilePart::FilePart(std::ostream& out,
                   const FileReport& report,
                   std::size_t nFile,
                   const ReportStyle& style)
    : m_out(out),
      m_report(report),
      m_nFile(nFile),
      m_nListed(std::min(style.limit.value_or(report.vecError.size()), report.vecError.size())),
      m_vecColumn(CountByColumn(report)),
      m_vecGroup(GroupErrors(report, m_nListed))
{
    NoteGroups();
}

void FilePart::Write()
{
    m_out << R"(<section class="card file" id="f)" << m_nFile << "\">\n<h2>"
          << HtmlText(m_report.strFile) << ' ' << Badge(m_report.eOutcome) << "</h2>\n";
    WriteFacts();
    WriteNotices();
    if (!m_report.vecError.empty()) {
        WriteCharts();
        WriteErrors();
    }
    if (m_report.pCells && m_report.pCells->FirstRecord())
        WriteCells();
    m_out << "</section>\n";
}

void FilePart::WriteFacts()
{
    const auto write = [this](const Text& name, const std::string& strValue) {
        m_out << "<div><dt>" << Say(name) << "</dt><dd>" << HtmlText(strValue) << "</dd></div>\n";
    };
    m_out << "<dl class=\"facts\">\n";
    if (!m_report.strProcedure.empty())
        write({"Procedure", "手続"}, m_report.strProcedure);
    if (m_report.records)
        write({"Records", "レコード"}, Grouped(*m_report.records));
    if (IsAboutContents(m_report)) {
        write({"Errors", "エラー"},
              (m_report.bMoreErrors ? "> " : "") + Grouped(m_report.vecError.size()));
        write({"Records with errors", "エラーのあるレコード"},
              (m_report.bMoreErrors ? "≥ " : "") + Grouped(m_report.RecordsWithErrors()));
    }
    if (m_report.document)
        write({"Document", "文書"},
              m_report.document->strPath + " (" + Count(m_report.document->nBytes, BYTES) + ")");
    m_out << "</dl>\n";
}

void FilePart::WriteNotices()
{
    const auto write = [this](const std::string& strText) {
        m_out << "<p class=\"notice\">" << HtmlOwnText(strText) << "</p>\n";
    };
    if (!m_report.strProblem.empty())
        write(Sentences(m_report.strProblem, m_report.strAdvice));
    if (!m_report.strNote.empty())
        write(m_report.strNote);
    if (m_report.bMoreErrors)
        write(std::string(EkaMsgTable[HE70022E].szCode) + " " + EkaMsgTable[HE70022E].szText + " " +
              AdviceFor(HE70022E));
}

void FilePart::NoteGroups()
{
    for (std::size_t n = 0; n < m_vecColumn.size(); ++n) {
        const ColumnCount& column = m_vecColumn[n];
        m_mapColumnIndex.try_emplace({column.lColumn, column.lColumnEnd, column.strLabel}, n);
    }
    for (std::size_t n = 0; n < m_vecGroup.size(); ++n) {
        const ReportedError& error = m_report.vecError[m_vecGroup[n].vecError.front()];
        m_mapGroupOfCode.try_emplace(error.entry.strCode, n);
        if (error.eScope == ErrorScope::Cell)
            m_mapGroupOfColumn.try_emplace(ColumnIndex(error), n);
    }
}

void FilePart::WriteCharts()
{
    std::vector<Bar> vecBar;
    m_out << "<div class=\"charts\">\n";
    for (std::size_t n = 0; n < m_vecColumn.size(); ++n) {
        const ColumnCount& column = m_vecColumn[n];
        const std::string strName =
            ColumnNumbers(column.lColumn, column.lColumnEnd) + " " + MakeSafe(column.strLabel);
        vecBar.push_back({HtmlOwnText(strName), strName, column.nErrors, "column", Number(n),
                          TargetOf(m_mapGroupOfColumn, n)});
    }
    WriteChart(Say({"Errors by column", "項目別のエラー"}), std::move(vecBar));

    vecBar.clear();
    std::map<std::string, const char*> mapText;
    for (const ReportedError& error : m_report.vecError)
        mapText.try_emplace(error.entry.strCode, MessageText(error));
    for (const CodeCount& count : CountByCode(m_report)) {
        const std::string strCode = MakeSafe(count.strCode);
        vecBar.push_back({"<code>" + HtmlOwnText(strCode) + "</code> " + mapText[count.strCode],
                          strCode + " " + mapText[count.strCode], count.nErrors, "code", strCode,
                          TargetOf(m_mapGroupOfCode, count.strCode)});
    }
    WriteChart(Say({"Errors by code", "コード別のエラー"}), std::move(vecBar));
    m_out << "</div>\n";
}

void FilePart::WriteChart(const std::string& strCaption, std::vector<Bar> vecBar)
{
    if (vecBar.empty())
        return;
    std::ranges::stable_sort(vecBar, std::ranges::greater(), &Bar::nErrors);
    const std::size_t nMost = vecBar.front().nErrors;
    const std::size_t nShown = std::min(vecBar.size(), SHOWN_BARS);
    m_out << "<figure><figcaption>" << strCaption << "</figcaption>\n";
    WriteBars(vecBar, 0, nShown, nMost);
    if (nShown < vecBar.size()) {
        m_out << "<details><summary>"
              << Say({"{1} more", "ほか{1}件"}, {Grouped(vecBar.size() - nShown)})
              << "</summary>\n";
        WriteBars(vecBar, nShown, vecBar.size(), nMost);
        m_out << "</details>\n";
    }
    m_out << "</figure>\n";
}

void FilePart::WriteBars(const std::vector<Bar>& vecBar,
                         std::size_t nFirst,
                         std::size_t nEnd,
                         std::size_t nMost)
{
    m_out << "<table class=\"bars\">\n";
    for (std::size_t n = nFirst; n < nEnd; ++n) {
        const Bar& bar = vecBar[n];
        // A bar that is there can be seen.
        const std::size_t nPercent = std::max<std::size_t>(bar.nErrors * 100 / nMost, 1);
        m_out << R"(<tr><th scope="row" lang="ja" title=")" << HtmlOwnText(bar.strTitle)
              << "\"><a href=\"#" << bar.strTarget << "\" data-field=\"" << bar.strField
              << "\" data-value=\"" << HtmlOwnText(bar.strValue) << "\">" << bar.strName
              << "</a></th><td><svg width=\"100%\" height=\"12\" aria-hidden=\"true\">"
                 "<rect width=\""
              << nPercent << R"(%" height="12" rx="3"/></svg></td><td class="n">)"
              << Grouped(bar.nErrors) << "</td></tr>\n";
    }
    m_out << "</table>\n";
}

void FilePart::WriteFilter()
{
    const char* szAll = Say({"all", "すべて"});
    m_out << "<form class=\"filter\" hidden role=\"search\">\n<label>" << Say({"Code", "コード"})
          << R"(<select name="code"><option value="">)" << szAll << "</option>";
    for (const CodeCount& count : CountByCode(m_report)) {
        const std::string strCode = HtmlText(count.strCode);
        m_out << "<option value=\"" << strCode << "\">" << strCode << " (" << Grouped(count.nErrors)
              << ")</option>";
    }
    m_out << "</select></label>\n<label>" << Say({"Column", "項目"})
          << R"(<select name="column"><option value="">)" << szAll << "</option>";
    for (std::size_t n = 0; n < m_vecColumn.size(); ++n)
        m_out << "<option value=\"" << n << "\">"
              << ColumnNumbers(m_vecColumn[n].lColumn, m_vecColumn[n].lColumnEnd) << ' '
              << HtmlText(m_vecColumn[n].strLabel) << " (" << Grouped(m_vecColumn[n].nErrors)
              << ")</option>";
    m_out << "</select></label>\n<label>" << Say({"Text", "文字列"})
          << "<input type=\"search\" name=\"text\" autocomplete=\"off\"></label>\n";
    if (m_report.pCells)
        m_out << R"(<label class="check"><input type="checkbox" name="only"> )"
              << Say({"only records with errors", "エラーのあるレコードだけ"}) << "</label>\n";
    m_out << "<button type=\"reset\">" << Say({"Show all", "すべて表示"}) << "</button>\n"
          << "<output class=\"shown\" aria-live=\"polite\"></output>\n<p class=\"keys\">"
          << Say({"<kbd>n</kbd> <kbd>p</kbd> or arrow keys: next and previous error; "
                  "<kbd>Enter</kbd>: to the cell and back; <kbd>/</kbd>: search",
                  "<kbd>n</kbd>・<kbd>p</kbd>または矢印キー：次・前のエラー、<kbd>Enter</"
                  "kbd>：セルとエラーの間を移動、<kbd>/</kbd>：検索"})
          << "</p>\n</form>\n";
}

void FilePart::WriteErrors()
{
    m_out << "<h3>" << Say({"Errors", "エラー"}) << "</h3>\n";
    if (m_nListed > 0)
        WriteFilter();
    for (std::size_t n = 0; n < m_vecGroup.size(); ++n)
        WriteGroup(m_vecGroup[n], n);
    const std::size_t nAll = m_report.vecError.size();
    if (m_nListed < nAll)
        m_out << R"(<p class="notice" id="more)" << m_nFile << "\">"
              << Say({"{1} of {2} not listed here (--limit {3})",
                      "{2}のうち{1}件は表示していません（--limit {3}）"},
                     {Grouped(nAll - m_nListed), Count(nAll, ERRORS), Number(m_nListed)})
              << "</p>\n";
}

void FilePart::WriteGroup(const ErrorGroup& group, std::size_t nGroup)
{
    const ReportedError& first = m_report.vecError[group.vecError.front()];
    const bool bCell = first.eScope == ErrorScope::Cell;
    m_out << R"(<section class="group" id=")" << GroupId(nGroup) << "\" data-code=\""
          << HtmlText(first.entry.strCode) << '"';
    if (bCell)
        m_out << " data-column=\"" << ColumnIndex(first) << '"';
    m_out << ">\n<h4>";
    if (bCell)
        m_out << HtmlOwnText(ColumnWords(first.entry.lColumn, first.entry.lColumnEnd));
    else if (first.eScope == ErrorScope::Record)
        m_out << Say({"whole records", "レコード全体"});
    else
        m_out << HtmlText(PlaceOf(first));
    if (first.eScope != ErrorScope::Argument && !first.strName.empty())
        m_out << " <span lang=\"ja\">" << HtmlText(first.strName) << "</span>";
    m_out << " <code>" << HtmlText(first.entry.strCode) << "</code> <span lang=\"ja\">"
          << HtmlOwnText(MessageText(first)) << "</span> <span class=\"n\">× "
          << Grouped(group.vecError.size()) << "</span></h4>\n";
    if (!first.strRule.empty())
        m_out << "<p>" << HtmlOwnText(Say({"Rule: {1}", "規則：{1}"}, {MakeSafe(first.strRule)}))
              << "</p>\n";
    m_out << "<p>" << HtmlOwnText(AdviceFor(first.entry.eMessage)) << "</p>\n";

    const bool bWide = std::ranges::any_of(group.vecError, [this](std::size_t n) {
        const ReportedError& error = m_report.vecError[n];
        return !error.strHint.empty() ||
               (error.value && error.value->size() > 3 * NARROW_CHARACTERS);
    });
    m_out << (bWide ? "<ul class=\"wide\">\n" : "<ul>\n");
    for (const std::size_t nError : group.vecError)
        WriteError(m_report.vecError[nError], nError);
    m_out << "</ul>\n</section>\n";
}

void FilePart::WriteError(const ReportedError& error, std::size_t nError)
{
    const bool bRecord = error.eScope == ErrorScope::Cell || error.eScope == ErrorScope::Record;
    const std::string strPlace =
        bRecord ? Say({"record {1}", "レコード{1}"}, {std::to_string(error.entry.lRecord)})
                : PlaceOf(error);
    const std::string strCell = HtmlCellId(m_nFile, m_report, error);
    m_out << "<li id=\"" << HtmlErrorId(m_nFile, nError) << "\"><a href=\"#"
          << (strCell.empty() ? HtmlErrorId(m_nFile, nError) : strCell) << "\">"
          << HtmlText(strPlace) << "</a>";
    if (error.value && error.value->empty())
        m_out << " <em>" << Say({"empty", "空"}) << "</em>";
    else if (error.value)
        m_out << " <samp lang=\"ja\">"
              << HtmlOwnText(MakeSafeAndShort(*error.value, SHOWN_CHARACTERS)) << "</samp>";
    if (!error.strHint.empty())
        m_out << ' ' << HtmlOwnText(error.strHint);
    m_out << "</li>\n";
}

void FilePart::WriteCells()
{
    // Where nothing is wrong, the contents are there for who wants them.
    const bool bFolded = m_report.vecError.empty();
    const char* szTitle = Say({"Contents", "内容"});
    if (bFolded)
        m_out << "<details><summary>" << szTitle << "</summary>\n";
    else
        m_out << "<h3>" << szTitle << "</h3>\n";
    WriteHtmlGrid(m_out, m_report, m_nFile, m_nListed);
    if (bFolded)
        m_out << "</details>\n";
}

/// The place of the error's column among the file's columns with errors.
std::size_t FilePart::ColumnIndex(const ReportedError& error) const
{
    const auto it =
        m_mapColumnIndex.find({error.entry.lColumn, error.entry.lColumnEnd, error.strName});
    return it != m_mapColumnIndex.end() ? it->second : m_vecColumn.size();
}

void WriteFileTable(std::ostream& out, const std::vector<FileReport>& vecReport)
{
    out << R"(<div class="files" tabindex="0" role="region" aria-label=")"
        << Say({"Files", "ファイル"}) << "\"><table>\n<thead><tr><th scope=\"col\">"
        << Say({"File", "ファイル"}) << "</th><th scope=\"col\">" << Say({"Result", "結果"})
        << "</th><th scope=\"col\">" << Say({"Procedure", "手続"})
        << R"(</th><th scope="col" class="n">)" << Say({"Records", "レコード"})
        << R"(</th><th scope="col" class="n">)" << Say({"Errors", "エラー"})
        << "</th></tr></thead>\n<tbody>\n";
    for (std::size_t n = 0; n < vecReport.size(); ++n) {
        const FileReport& report = vecReport[n];
        out << R"(<tr><th scope="row"><a href="#f)" << n + 1 << "\">" << HtmlText(report.strFile)
            << "</a></th><td>" << Badge(report.eOutcome) << "</td><td>"
            << HtmlText(report.strProcedure) << "</td><td class=\"n\">"
            << (report.records ? Grouped(*report.records) : std::string())
            << "</td><td class=\"n\">" << (report.bMoreErrors ? "&gt; " : "")
            << Grouped(report.vecError.size()) << "</td></tr>\n";
    }
    out << "</tbody></table></div>\n";
}

void WriteHead(std::ostream& out, const std::string& strTitle)
{
    const bool bJapanese = CurrentLanguage() == Language::Japanese;
    out << "<!DOCTYPE html>\n<html lang=\"" << (bJapanese ? "ja" : "en")
        << "\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src "
           "'sha256-"
        << REPORT_STYLE_DIGEST << "'; script-src 'sha256-" << REPORT_SCRIPT_DIGEST
        << "'; base-uri 'none'; form-action 'none'\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           "<meta name=\"generator\" content=\"kzekamok " KZEKAMOK_VERSION "\">\n<title>"
        << HtmlOwnText(strTitle) << "</title>\n<style>" << REPORT_STYLE << "</style>\n</head>\n";
}

}  // namespace

void WriteHtml(std::ostream& out,
               const char* szCommand,
               const std::vector<FileReport>& vecReport,
               const ReportStyle& style)
{
    const bool bConvert = std::string_view(szCommand) == "convert";
    const std::string strHeading = Say(bConvert ? Text{"Conversion report", "変換結果"}
                                                : Text{"Check report", "チェック結果"});
    const bool bOne = vecReport.size() == 1;
    WriteHead(out, bOne ? MakeSafe(vecReport.front().strFile) + " – " +
                              OutcomeVerdict(vecReport.front().eOutcome)
                        : strHeading + " – " + Count(vecReport.size(), FILES));
    out << "<body>\n<header>\n<h1>" << strHeading
        << "</h1>\n<p class=\"tool\">kzekamok " KZEKAMOK_VERSION << " · "
        << Count(vecReport.size(), FILES) << "</p>\n</header>\n<main>\n";
    if (!bOne) {
        out << "<section class=\"card\">\n";
        WriteFileTable(out, vecReport);
        out << "</section>\n";
    }
    for (std::size_t n = 0; n < vecReport.size(); ++n)
        FilePart(out, vecReport[n], n + 1, style).Write();
    out << "</main>\n<script>" << REPORT_SCRIPT << "</script>\n</body>\n</html>\n";
}

}  // namespace host
