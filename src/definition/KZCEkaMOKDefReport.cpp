#include "KZCEkaMOKDefReport.h"

#include <utility>

#include "KZCEkaCommon.h"
#include "KZCEkaITData.h"
#include "fault/Fault.h"
#include "text/CText.h"

int KZCEkaMOKDefReport::Initialize(const char* szReportId, const char* szReportVR)
{
    m_strName = CText::OrEmpty(szReportId);
    m_strVR = CText::OrEmpty(szReportVR);
    return STATUS_OK;
}

std::string KZCEkaMOKDefReport::WriteNode(const KZCEkaCsvFile* pCsv, long lRow, KZCEkaITData* pIT)
{
    RequireCsvQuietly(pCsv);
    if (pIT == nullptr)
        throw FAULT;
    std::string strBody;
    for (const Share& pChild : m_vecChild)
        strBody += pChild->WriteNode(pCsv, lRow);
    if (strBody.empty())
        return {};
    return StartTag(lRow + 1, lRow + 1, pIT->GetITData(IT_NOZEISHA_NM),
                    pIT->GetITData(IT_SOFT_NAME)) +
           strBody + EndTag();
}

std::string KZCEkaMOKDefReport::StartTag(std::int64_t nNumber,
                                         std::int64_t nPage,
                                         const char* szMaker,
                                         const char* szSoftware) const
{
    std::string strTag = "<" + m_strName + " VR=\"" + m_strVR + "\" id=\"" + m_strName + "-" +
                         std::to_string(nNumber) + "\" page=\"" + std::to_string(nPage) +
                         "\" sakuseiDay=\"" + KZCEkaCommon::Now("yyyy'-'MM'-'dd", nullptr) +
                         "\" sakuseiNM=\"" + KZCEkaCommon::SpecialEncoding(szMaker) +
                         "\" softNM=\"" + KZCEkaCommon::SpecialEncoding(szSoftware) + "\">";
    return CText::CutToBuffer(std::move(strTag), REPORT_TAG_BUFFER_SIZE);
}

std::string KZCEkaMOKDefReport::EndTag() const
{
    return CText::CutToBuffer("</" + m_strName + ">", REPORT_TAG_BUFFER_SIZE);
}
