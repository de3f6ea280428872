// The root of a Finance definition tree: report elements that can take several records.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "KZCEkaMOKDefReport.h"

class KZCEkaITDataFinance;

/// A report element is a page. The node decides at each record whether a page opens before it and
/// whether one closes behind it. Row numbers count from 1; records are indexes from 0.
class KZCEkaMOKDefReportFinance : public KZCEkaMOKDefReport
{
public:
    ~KZCEkaMOKDefReportFinance() override = default;

    /// \param lStart  First record of the report; 0: every record opens a page.
    /// \param lEnd  Last record; 0: every record closes a page.
    /// \param lStep  Records of a page.
    void setControlRows(long lStart, long lEnd, long lStep);
    /// \param strKey  "lastRecord", or "LAST_RECORD_ROW": the lowest negative row at which a
    /// trailer starts is kept. Throws FAULT for another key.
    void setControlRows(const std::string& strKey, const std::string& strText);
    void setPageNum(long lPageNum) { m_nPageNum = lPageNum; }

    /// What a record adds to the document: its body, behind a start tag when a page opens and
    /// before an end tag when one closes. The row range of the report is not looked at, nor are
    /// tags that a group left open closed. \param strStamp  Has no effect. Throws FAULT for null.
    std::string WriteNodeFinance(const KZCEkaCsvFile* pCsv,
                                 long lRow,
                                 KZCEkaITDataFinance* pIT,
                                 const std::string& strStamp);
    /// The same for a report that spreads over many records: pages repeat their head nodes and
    /// close the tags that groups left open; a trailer stays on the last page. Throws FAULT for
    /// null, and when the heads go beyond DefinitionLimits.
    std::string WriteNodeFromCSVMultiRecord(const KZCEkaCsvFile* pCsv,
                                            long lRow,
                                            KZCEkaITDataFinance* pIT);
    /// The start tag of a new page, which numbers it.
    std::string createReportTopTag(KZCEkaITDataFinance* pIT) const;
    std::string createReportLastTag() const;

    /// The next number of a report id; the full id goes to the list.
    static std::int64_t pushReportID(const std::string& strReportId);
    static void clearReportIDList();
    /// The ids of all pages since the last clearing, such as "GEZ100-1", in order.
    static std::vector<std::string> GetReportIDList() { return m_reportIDList; }

private:
    std::string WriteChildren(const KZCEkaCsvFile* pCsv, long lRow) const;
    std::string WriteRepeatedHead(const KZCEkaCsvFile& csv);
    std::int64_t RowsBehindStart(std::int64_t nRow) const;
    bool IsFirstOfStep(std::int64_t nRow) const;
    bool IsLastOfStep(std::int64_t nRow) const;
    bool OpensPage(std::int64_t nRow) const;
    bool ClosesPage(std::int64_t nRow, std::int64_t nCount) const;
    bool OpensMultiPage(const KZCEkaCsvFile& csv, std::int64_t nRow) const;
    bool ClosesMultiPage(const KZCEkaCsvFile& csv, std::int64_t nRow) const;

    std::int64_t m_nPageNum = 0;
    std::int64_t m_nHeadNodes = 0;  ///< written by the heads of all pages since the first
    std::size_t m_nHeadBytes = 0;   ///< the same

    static inline std::map<std::string, std::int64_t> m_reportIDCountList;
    static inline std::vector<std::string> m_reportIDList;
};
