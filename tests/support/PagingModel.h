// Pages of a document, worked out apart from the library.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "RecordNode.h"

/// Rows of a report, from 1. A trailer begins at the negative row nTrailer; 0 for none.
struct PageRows
{
    long nStart;
    long nEnd;
    long nStep;
    long nTrailer = 0;
};

/// A report of the model: a short id, its rows, and the pages that it has opened.
struct ModelReport
{
    std::string strId;
    PageRows rows;
    long nPage = 0;
};

/// Works a document out record by record, on the fourth of March 2024 and with IT fields that
/// nobody has set. Steps are at least 0.
class PagingModel
{
public:
    /// \param pOpen  Names of tags that bodies have left open; the form of many records closes
    /// them.
    PagingModel(long nCount, RecordBody body, std::vector<std::string>* pOpen = nullptr)
        : m_nCount(nCount), m_body(std::move(body)), m_pOpen(pOpen)
    {
    }

    /// Full ids of all pages, in order.
    std::vector<std::string> vecId;

    /// A record in the form in which reports take the records in turn.
    std::string WriteRecord(ModelReport& report, long nNumber)
    {
        const auto [nStart, nEnd, nStep, nTrailer] = report.rows;
        const std::string strBody = m_body(nNumber);
        if (strBody.empty())
            return {};
        const bool bOpens =
            nStart == 0 || nNumber == nStart || Steps(nStart + nStep, nStep).contains(nNumber);
        const bool bCloses = nEnd == 0 || nNumber == nEnd || nNumber == m_nCount ||
                             (nStart != 0 && IsStepEnd(report.rows, nNumber));
        return (bOpens ? Open(report) : "") + strBody + (bCloses ? Close(report) : "");
    }

    /// A record in the form in which one report spreads over many records.
    std::string WriteMultiRecord(ModelReport& report, long nNumber)
    {
        const auto [nStart, nEnd, nStep, nTrailer] = report.rows;
        const bool bRange = nStart != 0 && nEnd != 0;
        if (bRange && (nNumber < FromTop(nStart) || nNumber > FromTop(nEnd)))
            return {};
        const std::string strBody = m_body(nNumber);
        if (strBody.empty() && nNumber < m_nCount)
            return {};
        const long nTrailerRow = nTrailer == 0 ? m_nCount + 2 : FromTop(nTrailer);
        const bool bOpens =
            nStart == 0 || nNumber == nStart ||
            (bRange && nNumber < nTrailerRow && Steps(nStart + nStep, nStep).contains(nNumber));
        const bool bCloses =
            nEnd == 0 || nNumber == FromTop(nEnd) || nNumber == m_nCount ||
            (bRange && nNumber + 1 < nTrailerRow && IsStepEnd(report.rows, nNumber));
        std::string strText = (bOpens ? Open(report) : "") + strBody;
        if (bCloses) {
            for (; m_pOpen != nullptr && !m_pOpen->empty(); m_pOpen->pop_back())
                strText += "</" + m_pOpen->back() + ">";
            strText += Close(report);
        }
        return strText;
    }

    /// A whole document of reports in turn, or nothing if they run out.
    std::optional<std::string> WriteReports(std::vector<ModelReport> vecReport)
    {
        std::string strText;
        std::size_t nReport = 0;
        for (long nNumber = 1; nNumber <= m_nCount; ++nNumber) {
            if (const long nEnd = RowsInTurn(vecReport[nReport]).second; nEnd > 1 && nNumber > nEnd)
                if (++nReport == vecReport.size())
                    return std::nullopt;
            const auto [nStart, nEnd] = RowsInTurn(vecReport[nReport]);
            if (nStart <= nNumber && nNumber <= nEnd)
                strText += WriteRecord(vecReport[nReport], nNumber);
        }
        return strText;
    }

    /// A whole document of one report that spreads over many records.
    std::string WriteMultiReport(ModelReport report)
    {
        const bool bAll = report.rows.nStart == 0 && report.rows.nEnd == 0;
        std::string strText;
        for (long nNumber = 1; nNumber <= m_nCount; ++nNumber)
            if (bAll ||
                (FromTop(report.rows.nStart) <= nNumber && nNumber <= FromTop(report.rows.nEnd)))
                strText += WriteMultiRecord(report, nNumber);
        return strText;
    }

private:
    long FromTop(long nRow) const { return nRow < 0 ? m_nCount + 1 + nRow : nRow; }

    /// First and last record that a report in turn takes.
    std::pair<long, long> RowsInTurn(const ModelReport& report) const
    {
        const auto& rows = report.rows;
        return rows.nEnd == -1 || (rows.nStart == 0 && rows.nEnd == 0)
                   ? std::pair(1L, m_nCount)
                   : std::pair(rows.nStart, rows.nEnd);
    }

    /// Every nStep-th row from nFirst to the end of the file.
    std::set<long> Steps(long nFirst, long nStep) const
    {
        std::set<long> setRow;
        for (long nRow = nFirst; nStep > 0 && nRow <= m_nCount; nRow += nStep)
            setRow.insert(nRow);
        return setRow;
    }

    /// The first record of the report is never the last of a page, even if a page has one record.
    bool IsStepEnd(const PageRows& rows, long nNumber) const
    {
        return nNumber != rows.nStart &&
               Steps(rows.nStart + rows.nStep - 1, rows.nStep).contains(nNumber);
    }

    std::string Open(ModelReport& report)
    {
        vecId.push_back(report.strId + "-" + std::to_string(++m_mapCount[report.strId]));
        return "<" + report.strId + " VR=\"1.0\" id=\"" + vecId.back() + "\" page=\"" +
               std::to_string(++report.nPage) +
               "\" sakuseiDay=\"2024-03-04\" sakuseiNM=\"\" softNM=\"\">";
    }

    static std::string Close(const ModelReport& report) { return "</" + report.strId + ">"; }

    long m_nCount;
    RecordBody m_body;
    std::vector<std::string>* m_pOpen;
    std::map<std::string, long> m_mapCount;
};

/// The document with the start tags of pages as "[" and their end tags as "]": "[ 1 2][ 3]". The
/// names of pages begin with "GEZ"; other tags stay.
inline std::string PagesOf(const std::string& strText)
{
    std::string strPages;
    for (std::size_t nAt = 0; nAt < strText.size(); ++nAt) {
        const bool bOpens = strText.compare(nAt, 4, "<GEZ") == 0;
        if (bOpens || strText.compare(nAt, 5, "</GEZ") == 0) {
            strPages += bOpens ? '[' : ']';
            nAt = strText.find('>', nAt);
        } else {
            strPages += strText[nAt];
        }
    }
    return strPages;
}

/// Whether pages follow one another, each closed before the next opens, with nothing outside.
inline bool PagesFollow(const std::string& strPages)
{
    bool bInside = false;
    for (const char cByte : strPages) {
        if (cByte == '[' ? bInside : !bInside)
            return false;
        if (cByte == '[' || cByte == ']')
            bInside = cByte == '[';
    }
    return !bInside;
}

/// Whether every start tag has its end tag, in order.
inline bool TagsMatch(const std::string& strText)
{
    std::vector<std::string> vecTag;
    for (std::size_t nAt = strText.find('<'); nAt != std::string::npos;
         nAt = strText.find('<', nAt + 1)) {
        const bool bEnd = strText.compare(nAt + 1, 1, "/") == 0;
        const std::size_t nName = nAt + (bEnd ? 2 : 1);
        std::string strName = strText.substr(nName, strText.find_first_of(" >", nName) - nName);
        if (!bEnd)
            vecTag.push_back(std::move(strName));
        else if (vecTag.empty() || vecTag.back() != strName)
            return false;
        else
            vecTag.pop_back();
    }
    return vecTag.empty();
}
