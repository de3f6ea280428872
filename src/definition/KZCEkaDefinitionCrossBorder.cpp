#include "KZCEkaDefinitionCrossBorder.h"

#include "KZCEkaITDataCrossBorder.h"
#include "KZCEkaMOKDefReportCrossBorder.h"

int KZCEkaDefinitionCrossBorder::CreateDefinition(const char* szTypeId, bool bValidate)
{
    return LoadDefinition(CALL_TYPE_CROSSBORDER, szTypeId, bValidate);
}

std::string KZCEkaDefinitionCrossBorder::MakeReportToCsvCrossBorder(const KZCEkaCsvFile* pCsv,
                                                                    KZCEkaITDataCrossBorder* pIT)
{
    constexpr const char* FUNCTION = "KZCEkaDefinitionCrossBorder::MakeReportToCsvCrossBorder";
    if (pCsv == nullptr || pIT == nullptr)
        RaiseMissing(FUNCTION);
    return MakeReports(
        FUNCTION, *pCsv,
        [=](KZCEkaMOKDefReportFinance& report, long lRow, const std::string& strStamp) {
            // Every report of this class was made by MakeReportNode below.
            return static_cast<KZCEkaMOKDefReportCrossBorder&>(report).WriteNodeCrossBorder(
                pCsv, lRow, pIT, strStamp);
        });
}

std::unique_ptr<KZCEkaMOKDefReportFinance> KZCEkaDefinitionCrossBorder::MakeReportNode() const
{
    return std::make_unique<KZCEkaMOKDefReportCrossBorder>();
}

const char* KZCEkaDefinitionCrossBorder::ClassName() const
{
    return "KZCEkaDefinitionCrossBorder";
}
