// The root of a definition tree: one report element for each record.
#pragma once

#include <cstdint>
#include <string>

#include "KZCEkaMOKDefineNode.h"

class KZCEkaITData;

/// Size of the buffer in which a report's tags are printed; longer tags are cut.
inline constexpr std::size_t REPORT_TAG_BUFFER_SIZE = 500;

class KZCEkaMOKDefReport : public KZCEkaMOKDefineNode
{
public:
    using KZCEkaMOKDefineNode::Initialize;
    using KZCEkaMOKDefineNode::WriteNode;

    int Initialize(const char* szReportId, const char* szReportVR);
    /// The report element of a record (from 0), or the empty text for a record with nothing to say.
    std::string WriteNode(const KZCEkaCsvFile* pCsv, long lRow, KZCEkaITData* pIT);

protected:
    /// The start tag of a report element, cut as its buffer cuts it. It carries today's date.
    /// \param nNumber  Running number of the element's id. \param szMaker, szSoftware  Not escaped.
    std::string StartTag(std::int64_t nNumber,
                         std::int64_t nPage,
                         const char* szMaker,
                         const char* szSoftware) const;
    std::string EndTag() const;

    std::string m_strVR;
};
