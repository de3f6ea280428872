// The root of a CrossBorder definition tree.
#pragma once

#include <string>

#include "KZCEkaMOKDefReportFinance.h"

class KZCEkaITDataCrossBorder;

/// The Finance node with the family's own IT section; both families number their pages in one list.
class KZCEkaMOKDefReportCrossBorder : public KZCEkaMOKDefReportFinance
{
public:
    ~KZCEkaMOKDefReportCrossBorder() override = default;

    using KZCEkaMOKDefReportFinance::createReportTopTag;

    std::string WriteNodeCrossBorder(const KZCEkaCsvFile* pCsv,
                                     long lRow,
                                     KZCEkaITDataCrossBorder* pIT,
                                     const std::string& strStamp);
    std::string createReportTopTag(KZCEkaITDataCrossBorder* pIT) const;
};
