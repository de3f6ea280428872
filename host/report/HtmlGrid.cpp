#include "report/HtmlGrid.h"

#include <algorithm>
#include <array>
#include <map>
#include <ostream>
#include <utility>
#include <vector>

#include "base/Language.h"
#include "base/SafeText.h"
#include "report/HtmlText.h"
#include "report/ReportWords.h"
#include "rules/Advice.h"

namespace host {
namespace {

constexpr std::size_t CHUNK_RECORDS = 50;
/// What a file that is no proper one may hold beyond that isn't worth a page of its size.
constexpr std::size_t SHOWN_RECORDS = 10'000;
constexpr std::size_t SHOWN_COLUMNS = 200;
constexpr std::size_t SHOWN_CHARACTERS = 200;
/// Widths of columns in half-width characters for which the style has a class.
constexpr std::array<std::size_t, 8> WIDTHS = {3, 4, 6, 8, 12, 16, 20, 28};
/// Of its width a label alone claims no more than this.
constexpr std::size_t LABEL_WIDTH = 12;

using ErrorIndexes = std::vector<std::size_t>;

std::size_t ShownRecords(const CsvCells& cells)
{
    const std::size_t nRecords = cells.RecordCount();
    // What stands behind the last line end is no record to a reader.
    const bool bBlankEnd = nRecords > 1 && cells.IsBlank(nRecords);
    return std::min(bBlankEnd ? nRecords - 1 : nRecords, SHOWN_RECORDS);
}

/// In half-width characters.
std::size_t DisplayWidth(std::string_view strText)
{
    std::size_t nWidth = 0;
    for (std::size_t n = 0; n < strText.size(); ++n) {
        const auto nByte = static_cast<unsigned char>(strText[n]);
        if ((nByte & 0xc0) == 0x80)
            continue;
        const std::string_view strCharacter = strText.substr(n, 3);
        const bool bHalfKatakana = strCharacter >= "\xef\xbd\xa1" && strCharacter <= "\xef\xbe\x9f";
        nWidth += nByte < 0x80 || bHalfKatakana ? 1 : 2;
    }
    return nWidth;
}

std::size_t WidthClass(std::size_t nWidth)
{
    const auto it = std::ranges::lower_bound(WIDTHS, nWidth);
    return it != WIDTHS.end() ? *it : WIDTHS.back();
}

/// The forms without the borders that a reader sees no difference at.
std::vector<ReportedForm> DistinctForms(const std::vector<ReportedForm>& vecForm)
{
    std::vector<ReportedForm> vecDistinct;
    for (const ReportedForm& form : vecForm) {
        const bool bSame = !vecDistinct.empty() &&
                           vecDistinct.back().nLastRecord + 1 == form.nFirstRecord &&
                           vecDistinct.back().strName == form.strName &&
                           vecDistinct.back().vecLabel == form.vecLabel;
        if (bSame)
            vecDistinct.back().nLastRecord = form.nLastRecord;
        else
            vecDistinct.push_back(form);
    }
    return vecDistinct;
}

/// Writes the table of one file.
class Grid
{
public:
    Grid(std::ostream& out, const FileReport& report, std::size_t nFile, std::size_t nListed);
    void Write();

private:
    void NoteErrors();
    void WriteForm(const ReportedForm& form);
    void WriteHeads(const ReportedForm& form);
    void WriteRecord(std::size_t nRecord);
    void WriteCell(std::size_t nRecord, std::size_t nColumn);
    void WriteMark(const ErrorIndexes& vecIndex, const std::string& strText);
    void MeasureColumns(const ReportedForm& form);
    std::string IdAttribute(const ErrorIndexes& vecIndex, std::string_view strId) const;
    bool HasError(std::size_t nRecord) const { return m_mapRecordColumns.contains(nRecord); }

    std::ostream& m_out;
    const FileReport& m_report;
    const CsvCells& m_cells;
    std::size_t m_nFile;
    std::size_t m_nListed;
    std::size_t m_nRecords;
    std::map<std::pair<std::size_t, std::size_t>, ErrorIndexes> m_mapCell;
    std::map<std::size_t, ErrorIndexes> m_mapRecord;        ///< errors of whole records
    std::map<std::size_t, std::size_t> m_mapRecordColumns;  ///< last wrong column, 0 for none
    std::vector<std::size_t> m_vecWidth;                    ///< of the form's columns
    std::string m_strColumns;                               ///< the form's colgroup
};

Grid::Grid(std::ostream& out, const FileReport& report, std::size_t nFile, std::size_t nListed)
    : m_out(out),
      m_report(report),
      m_cells(*report.pCells),
      m_nFile(nFile),
      m_nListed(nListed),
      m_nRecords(ShownRecords(m_cells))
{
    NoteErrors();
}

void Grid::NoteErrors()
{
    for (std::size_t n = 0; n < m_report.vecError.size(); ++n) {
        const ReportedError& error = m_report.vecError[n];
        const auto nRecord = static_cast<std::size_t>(error.entry.lRecord);
        if (error.eScope == ErrorScope::Record) {
            m_mapRecord[nRecord].push_back(n);
            m_mapRecordColumns.try_emplace(nRecord, 0);
        } else if (error.eScope == ErrorScope::Cell) {
            const auto nFirst = static_cast<std::size_t>(error.entry.lColumn);
            const auto nLast =
                static_cast<std::size_t>(std::max(error.entry.lColumn, error.entry.lColumnEnd));
            std::size_t& nWrong = m_mapRecordColumns[nRecord];
            for (std::size_t nColumn = nFirst; nColumn <= std::min(nLast, SHOWN_COLUMNS);
                 ++nColumn) {
                m_mapCell[{nRecord, nColumn}].push_back(n);
                nWrong = std::max(nWrong, nColumn);
            }
        }
    }
}

void Grid::Write()
{
    m_out << R"(<div class="grid" role="region" tabindex="0" aria-label=")"
          << Say({"Contents of the file", "ファイルの内容"}) << "\">\n";
    std::size_t nNext = 1;
    for (const ReportedForm& form : DistinctForms(m_report.vecForm)) {
        WriteForm({nNext, form.nFirstRecord - 1, {}, {}});  // records of no form
        WriteForm(form);
        nNext = form.nLastRecord + 1;
    }
    WriteForm({nNext, m_nRecords, {}, {}});
    m_out << "</div>\n<p class=\"now\" aria-live=\"polite\"></p>\n";
    if (m_nRecords == SHOWN_RECORDS)
        m_out << "<p class=\"notice\">"
              << Say({"Only the first {1} are shown.", "先頭の{1}だけを表示しています。"},
                     {Count(SHOWN_RECORDS, RECORDS)})
              << "</p>\n";
}

void Grid::MeasureColumns(const ReportedForm& form)
{
    const std::size_t nLast = std::min(form.nLastRecord, m_nRecords);
    std::size_t nColumns = form.vecLabel.size();
    for (std::size_t nRecord = form.nFirstRecord; nRecord <= nLast; ++nRecord)
        nColumns = std::max(nColumns, m_cells.ColumnCount(nRecord));
    for (const auto& [nRecord, nColumn] : m_mapRecordColumns)
        if (nRecord >= form.nFirstRecord && nRecord <= nLast)
            nColumns = std::max(nColumns, nColumn);

    m_vecWidth.assign(std::min(nColumns, SHOWN_COLUMNS), WIDTHS.front());
    for (std::size_t n = 0; n < std::min(form.vecLabel.size(), m_vecWidth.size()); ++n)
        m_vecWidth[n] =
            std::max(m_vecWidth[n], std::min(DisplayWidth(form.vecLabel[n]), LABEL_WIDTH));
    for (std::size_t nRecord = form.nFirstRecord; nRecord <= nLast; ++nRecord)
        for (std::size_t n = 0; n < std::min(m_cells.ColumnCount(nRecord), m_vecWidth.size()); ++n)
            m_vecWidth[n] = std::max(m_vecWidth[n], DisplayWidth(m_cells.Cell(nRecord, n + 1)));

    m_strColumns = "<colgroup><col class=\"c0\">";
    for (const std::size_t nWidth : m_vecWidth)
        m_strColumns += "<col class=\"c" + std::to_string(WidthClass(nWidth)) + "\">";
    m_strColumns += "</colgroup>";
}

void Grid::WriteForm(const ReportedForm& form)
{
    const std::size_t nLast = std::min(form.nLastRecord, m_nRecords);
    if (form.nFirstRecord > nLast)
        return;
    MeasureColumns(form);
    m_out << "<div class=\"form\" lang=\"ja\">\n";
    if (!form.strName.empty() && m_report.vecForm.size() > 1)
        m_out << "<h4>" << HtmlText(form.strName) << "</h4>\n";
    WriteHeads(form);
    for (std::size_t nFirst = form.nFirstRecord; nFirst <= nLast; nFirst += CHUNK_RECORDS) {
        const std::size_t nEnd = std::min(nFirst + CHUNK_RECORDS - 1, nLast);
        const auto itError = m_mapRecordColumns.lower_bound(nFirst);
        const bool bError = itError != m_mapRecordColumns.end() && itError->first <= nEnd;
        m_out << "<div class=\"chunk" << (bError ? " x" : "") << "\"><table aria-label=\""
              << Say({"Records {1} to {2}", "レコード{1}～{2}"},
                     {std::to_string(nFirst), std::to_string(nEnd)})
              << "\">" << m_strColumns << "<tbody>\n";
        for (std::size_t nRecord = nFirst; nRecord <= nEnd; ++nRecord)
            WriteRecord(nRecord);
        m_out << "</tbody></table></div>\n";
    }
    m_out << "</div>\n";
}

void Grid::WriteHeads(const ReportedForm& form)
{
    m_out << "<table class=\"heads\">" << m_strColumns << "<thead><tr><th scope=\"col\">"
          << Say({"record", "レコード"}) << "</th>";
    for (std::size_t n = 0; n < m_vecWidth.size(); ++n) {
        const std::string strLabel =
            n < form.vecLabel.size() ? HtmlText(form.vecLabel[n]) : std::string();
        m_out << "<th scope=\"col\"";
        if (!strLabel.empty())
            m_out << " title=\"" << strLabel << '"';
        m_out << '>' << n + 1 << "<br>" << strLabel << "</th>";
    }
    m_out << "</tr></thead></table>\n";
}

// End tags of cells may be left out, which spares a large file a fifth of its page.
void Grid::WriteRecord(std::size_t nRecord)
{
    m_out << "<tr";
    const auto itRecord = m_mapRecord.find(nRecord);
    if (itRecord != m_mapRecord.end())
        m_out << IdAttribute(
            itRecord->second,
            HtmlCellId(m_nFile, m_report, m_report.vecError[itRecord->second.front()]));
    const auto itWrong = m_mapRecordColumns.find(nRecord);
    if (itWrong != m_mapRecordColumns.end())
        m_out << " class=\"x\"";
    m_out << "><th scope=\"row\">";
    if (itRecord != m_mapRecord.end())
        WriteMark(itRecord->second, std::to_string(nRecord));
    else
        m_out << nRecord;
    std::size_t nColumns = m_cells.ColumnCount(nRecord);
    if (itWrong != m_mapRecordColumns.end())
        nColumns = std::max(nColumns, itWrong->second);
    for (std::size_t nColumn = 1; nColumn <= std::min(nColumns, SHOWN_COLUMNS); ++nColumn)
        WriteCell(nRecord, nColumn);
    m_out << "</tr>\n";
}

void Grid::WriteCell(std::size_t nRecord, std::size_t nColumn)
{
    const std::string strValue = m_cells.Cell(nRecord, nColumn);
    const auto it = m_mapCell.find({nRecord, nColumn});
    if (it == m_mapCell.end()) {
        m_out << "<td";
        if (DisplayWidth(strValue) > WIDTHS.back())
            m_out << R"( class="l" title=")" << HtmlText(strValue) << '"';
        m_out << '>' << HtmlOwnText(MakeSafeAndShort(strValue, SHOWN_CHARACTERS));
        return;
    }
    m_out << "<td class=\"e\""
          << IdAttribute(it->second, "c" + std::to_string(m_nFile) + "-" + std::to_string(nRecord) +
                                         "-" + std::to_string(nColumn))
          << '>';
    WriteMark(it->second, strValue.empty() ? Say({"(empty)", "（空）"})
                                           : MakeSafeAndShort(strValue, SHOWN_CHARACTERS));
}

/// The id, and the errors of the place if they are several.
std::string Grid::IdAttribute(const ErrorIndexes& vecIndex, std::string_view strId) const
{
    std::string strAttributes = " id=\"" + std::string(strId) + '"';
    if (vecIndex.size() == 1)
        return strAttributes;
    strAttributes += " data-e=\"";
    for (const std::size_t nError : vecIndex)
        strAttributes += (nError != vecIndex.front() ? " " : "") + HtmlErrorId(m_nFile, nError);
    return strAttributes + '"';
}

/// A link to the first error of a place; what all of them say is its title.
void Grid::WriteMark(const ErrorIndexes& vecIndex, const std::string& strText)
{
    const std::size_t nFirst = vecIndex.front();
    const ReportedError& first = m_report.vecError[nFirst];
    std::string strTitle;
    for (const std::size_t nError : vecIndex) {
        const ReportedError& error = m_report.vecError[nError];
        strTitle += (strTitle.empty() ? "" : "\n") + MakeSafe(error.entry.strCode) + ' ' +
                    MessageText(error);
        if (!error.strRule.empty())
            strTitle += '\n' + Say({"Rule: {1}", "規則：{1}"}, {MakeSafe(error.strRule)});
        strTitle += std::string("\n") + AdviceFor(error.entry.eMessage);
    }
    std::string strPlace = PlaceOf(first);
    if (!first.strName.empty())
        strPlace += ' ' + MakeSafe(first.strName);
    const std::string strTarget =
        nFirst < m_nListed ? HtmlErrorId(m_nFile, nFirst) : "more" + std::to_string(m_nFile);
    m_out << "<a href=\"#" << strTarget << "\" data-at=\"" << HtmlOwnText(strPlace) << "\" title=\""
          << HtmlOwnText(strTitle) << "\">" << HtmlOwnText(strText) << "</a>";
}

}  // namespace

std::string HtmlErrorId(std::size_t nFile, std::size_t nError)
{
    return "e" + std::to_string(nFile) + "-" + std::to_string(nError + 1);
}

std::string HtmlCellId(std::size_t nFile, const FileReport& report, const ReportedError& error)
{
    const bool bCell = error.eScope == ErrorScope::Cell;
    if (!report.pCells || (!bCell && error.eScope != ErrorScope::Record))
        return {};
    if (static_cast<std::size_t>(error.entry.lRecord) > ShownRecords(*report.pCells) ||
        error.entry.lColumn > static_cast<long>(SHOWN_COLUMNS))
        return {};
    std::string strId =
        (bCell ? "c" : "r") + std::to_string(nFile) + "-" + std::to_string(error.entry.lRecord);
    return bCell ? strId + "-" + std::to_string(error.entry.lColumn) : strId;
}

void WriteHtmlGrid(std::ostream& out,
                   const FileReport& report,
                   std::size_t nFile,
                   std::size_t nListed)
{
    Grid(out, report, nFile, nListed).Write();
}

}  // namespace host
