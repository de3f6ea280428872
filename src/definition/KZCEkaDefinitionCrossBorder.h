// The loaded definition of a CrossBorder procedure.
#pragma once

#include <string>

#include "KZCEkaDefinitionFinance.h"

class KZCEkaITDataCrossBorder;

class KZCEkaDefinitionCrossBorder : public KZCEkaDefinitionFinance
{
public:
    /// As in the Finance family, from this family's catalogue and folder.
    int CreateDefinition(const char* szTypeId, bool bValidate) override;
    /// As MakeReportToCsvFinance, with this family's IT section.
    std::string MakeReportToCsvCrossBorder(const KZCEkaCsvFile* pCsv, KZCEkaITDataCrossBorder* pIT);
};
