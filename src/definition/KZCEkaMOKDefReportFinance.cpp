#include "KZCEkaMOKDefReportFinance.h"

#include <algorithm>

#include "KZCEkaCsvFile.h"
#include "KZCEkaITDataFinance.h"
#include "KZCValidResult.h"
#include "definition/DefinitionLimits.h"
#include "fault/Fault.h"
#include "text/CText.h"

namespace {

[[noreturn]] void RaiseBrokenHead()
{
    RaiseFault("KZCEkaMOKDefReportFinance::WriteNodeFromCSVMultiRecord", BROKEN_TREE);
}

}  // namespace

void KZCEkaMOKDefReportFinance::setControlRows(long lStart, long lEnd, long lStep)
{
    m_nStartRow = lStart;
    m_nEndRow = lEnd;
    m_nStepRow = lStep;
}

void KZCEkaMOKDefReportFinance::setControlRows(const std::string& strKey,
                                               const std::string& strText)
{
    const std::int64_t nNumber = CText::ReadLong(strText.c_str());
    if (strKey == "lastRecord")
        m_nLastRecord = nNumber;
    else if (strKey == "LAST_RECORD_ROW")
        m_nLastRecordRow = std::min(m_nLastRecordRow, nNumber);
    else
        RaiseFault("KZCEkaMOKDefReportFinance::setControlRows", nullptr);
}

std::string KZCEkaMOKDefReportFinance::WriteNodeFinance(const KZCEkaCsvFile* pCsv,
                                                        long lRow,
                                                        KZCEkaITDataFinance* pIT,
                                                        const std::string& /*strStamp*/)
{
    if (pCsv == nullptr || pIT == nullptr)
        throw FAULT;
    const std::string strBody = WriteChildren(pCsv, lRow);
    if (strBody.empty())
        return {};  // a page that was due to open or to close here does neither: wanted
    static_cast<void>(KZCValidResult::instance()->PopFrontRandomNumber());
    std::string strResult;
    if (OpensPage(lRow + 1)) {
        ++m_nPageNum;
        strResult = createReportTopTag(pIT);
    }
    strResult += strBody;
    if (ClosesPage(lRow + 1, pCsv->GetRecordCount()))
        strResult += createReportLastTag();
    return strResult;
}

std::string KZCEkaMOKDefReportFinance::WriteNodeFromCSVMultiRecord(const KZCEkaCsvFile* pCsv,
                                                                   long lRow,
                                                                   KZCEkaITDataFinance* pIT)
{
    if (pCsv == nullptr || pIT == nullptr)
        throw FAULT;
    if (!isWithInRecordRange(pCsv, lRow))
        return {};
    // Before the head nodes: a head that leaves tags open closes them behind the body's.
    const std::string strBody = WriteChildren(pCsv, lRow);
    if (strBody.empty() && !pCsv->isLastRecord(lRow))
        return {};
    std::string strResult;
    if (OpensMultiPage(*pCsv, lRow + 1)) {
        if (++m_nPageNum == 1) {
            m_nHeadNodes = 0;
            m_nHeadBytes = 0;
        }
        strResult = createReportTopTag(pIT) + WriteRepeatedHead(*pCsv);
    }
    strResult += strBody;
    if (ClosesMultiPage(*pCsv, lRow + 1)) {
        strResult += getCloseTags();
        clearCloseTags();
        strResult += createReportLastTag();
    }
    return strResult;
}

std::string KZCEkaMOKDefReportFinance::createReportTopTag(KZCEkaITDataFinance* pIT) const
{
    return StartTag(pushReportID(m_strName), m_nPageNum,
                    pIT->GetITDataFinance(KZCEkaITDataFinance_t::IT_NOZEISHA_NM),
                    pIT->GetITDataFinance(KZCEkaITDataFinance_t::IT_SOFT_NAME));
}

std::string KZCEkaMOKDefReportFinance::createReportLastTag() const
{
    return EndTag();
}

std::int64_t KZCEkaMOKDefReportFinance::pushReportID(const std::string& strReportId)
{
    const std::int64_t nNumber = ++m_reportIDCountList[strReportId];
    m_reportIDList.push_back(strReportId + "-" + std::to_string(nNumber));
    return nNumber;
}

void KZCEkaMOKDefReportFinance::clearReportIDList()
{
    m_reportIDCountList.clear();
    m_reportIDList.clear();
}

std::string KZCEkaMOKDefReportFinance::WriteChildren(const KZCEkaCsvFile* pCsv, long lRow) const
{
    std::string strBody;
    for (const Share& pChild : m_vecChild)
        strBody += pChild->WriteNode(pCsv, lRow);
    return strBody;
}

/// The nodes that stand at the head of every page, whatever the current record is. Their rows count
/// as they stand, negative ones and those behind the file too: a reference is written for each.
std::string KZCEkaMOKDefReportFinance::WriteRepeatedHead(const KZCEkaCsvFile& csv)
{
    using namespace DefinitionLimits;
    std::string strHead;
    for (const Share& pChild : m_vecChild) {
        if (pChild->getRepeatTopTag() != "1")
            continue;
        const std::int64_t nStart = pChild->getStartRow();
        const std::int64_t nEnd = pChild->getEndRow();
        if (nEnd < nStart)
            continue;
        if (nStart < -HEAD_ROW || nEnd > HEAD_ROW)
            RaiseBrokenHead();
        m_nHeadNodes += (nEnd - nStart + 1) * pChild->CountNodes();
        if (m_nHeadNodes > HEAD_NODES)
            RaiseBrokenHead();
        for (std::int64_t nIndex = nStart - 1; nIndex < nEnd; ++nIndex) {
            strHead += pChild->WriteNode(&csv, nIndex);
            if (m_nHeadBytes + strHead.size() > HEAD_BYTES)
                RaiseBrokenHead();
        }
    }
    m_nHeadBytes += strHead.size();
    return strHead;
}

/// Rows between the first of the report and the given one; 0 if it doesn't lie behind the first.
std::int64_t KZCEkaMOKDefReportFinance::RowsBehindStart(std::int64_t nRow) const
{
    std::int64_t nBehind = 0;
    const bool bCounts = m_nStartRow < nRow && !__builtin_sub_overflow(nRow, m_nStartRow, &nBehind);
    return bCounts ? nBehind : 0;
}

bool KZCEkaMOKDefReportFinance::IsFirstOfStep(std::int64_t nRow) const
{
    const std::int64_t nBehind = RowsBehindStart(nRow);
    return nBehind > 0 && m_nStepRow != 0 && nBehind % m_nStepRow == 0;
}

/// The first record of the report is never taken for the last of a step, even if a step is one row.
bool KZCEkaMOKDefReportFinance::IsLastOfStep(std::int64_t nRow) const
{
    const std::int64_t nBehind = RowsBehindStart(nRow);
    return nBehind > 0 && m_nStepRow > 0 && nBehind % m_nStepRow == m_nStepRow - 1;
}

bool KZCEkaMOKDefReportFinance::OpensPage(std::int64_t nRow) const
{
    return m_nStartRow == 0 || nRow == m_nStartRow || IsFirstOfStep(nRow);
}

bool KZCEkaMOKDefReportFinance::ClosesPage(std::int64_t nRow, std::int64_t nCount) const
{
    return m_nEndRow == 0 || nRow == m_nEndRow || nRow == nCount ||
           (m_nStartRow != 0 && IsLastOfStep(nRow));
}

bool KZCEkaMOKDefReportFinance::OpensMultiPage(const KZCEkaCsvFile& csv, std::int64_t nRow) const
{
    if (m_nStartRow == 0 || nRow == m_nStartRow)
        return true;
    return isSettingRecordRange() && IsFirstOfStep(nRow) &&
           (m_nLastRecordRow == 0 || convRecordRow(&csv, m_nLastRecordRow) > nRow);
}

bool KZCEkaMOKDefReportFinance::ClosesMultiPage(const KZCEkaCsvFile& csv, std::int64_t nRow) const
{
    if (m_nEndRow == 0 || convRecordRow(&csv, m_nEndRow) == nRow || nRow == csv.GetRecordCount())
        return true;
    // The last page before a trailer stays open and takes the trailer's rows.
    return isSettingRecordRange() && IsLastOfStep(nRow) &&
           (m_nLastRecordRow == 0 || convRecordRow(&csv, m_nLastRecordRow) - 1 > nRow);
}
