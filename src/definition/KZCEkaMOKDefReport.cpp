#include "KZCEkaMOKDefReport.h"

#include "CText.h"
#include "Fault.h"
#include "KZCEkaCommon.h"
#include "KZCEkaITData.h"

int KZCEkaMOKDefReport::Initialize(const char* szReportId, const char* szReportVR)
{
    m_strName = CText::OrEmpty(szReportId);
    m_strVR = CText::OrEmpty(szReportVR);
    return STATUS_OK;
}

std::string KZCEkaMOKDefReport::WriteNode(const KZCEkaCsvFile* pCsv, long lRow, KZCEkaITData* pIT)
{
    if (pCsv == nullptr || pIT == nullptr)
        throw FAULT;
    std::string strBody;
    for (const Share& pChild : m_vecChild)
        strBody += pChild->WriteNode(pCsv, lRow);
    if (strBody.empty())
        return {};
    const std::string strNumber = std::to_string(lRow + 1);
    const std::string strStart =
        "<" + m_strName + " VR=\"" + m_strVR + "\" id=\"" + m_strName + "-" + strNumber +
        "\" page=\"" + strNumber + "\" sakuseiDay=\"" +
        KZCEkaCommon::Now("yyyy'-'MM'-'dd", nullptr) + "\" sakuseiNM=\"" +
        KZCEkaCommon::SpecialEncoding(pIT->GetITData(IT_NOZEISHA_NM)) + "\" softNM=\"" +
        KZCEkaCommon::SpecialEncoding(pIT->GetITData(IT_SOFT_NAME)) + "\">";
    return CText::CutToBuffer(strStart, REPORT_TAG_BUFFER_SIZE) + strBody +
           CText::CutToBuffer("</" + m_strName + ">", REPORT_TAG_BUFFER_SIZE);
}
