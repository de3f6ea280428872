#include "KZCEkaDefinitionCrossBorder.h"

#include <memory>

#include "KZCEkaITDataCrossBorder.h"
#include "KZCEkaMOKDefReportCrossBorder.h"

int KZCEkaDefinitionCrossBorder::CreateDefinition(const char* szTypeId, bool bValidate)
{
    static constexpr FamilyLoad CROSSBORDER = {
        CALL_TYPE_CROSSBORDER, "KZCEkaDefinitionCrossBorder::CreateDefinition",
        []() -> std::unique_ptr<KZCEkaMOKDefReportFinance> {
            return std::make_unique<KZCEkaMOKDefReportCrossBorder>();
        }};
    return LoadDefinition(CROSSBORDER, szTypeId, bValidate);
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
            // Every report of this class was made by CreateDefinition above.
            return static_cast<KZCEkaMOKDefReportCrossBorder&>(report).WriteNodeCrossBorder(
                pCsv, lRow, pIT, strStamp);
        });
}
