#include "KZCEkaMOKDefReportCrossBorder.h"

#include "KZCEkaITDataCrossBorder.h"

std::string KZCEkaMOKDefReportCrossBorder::WriteNodeCrossBorder(const KZCEkaCsvFile* pCsv,
                                                                long lRow,
                                                                KZCEkaITDataCrossBorder* pIT,
                                                                const std::string& strStamp)
{
    return WriteNodeFinance(pCsv, lRow, pIT, strStamp);
}

std::string KZCEkaMOKDefReportCrossBorder::createReportTopTag(KZCEkaITDataCrossBorder* pIT) const
{
    return createReportTopTag(static_cast<KZCEkaITDataFinance*>(pIT));
}
