// Runs one check or conversion of the CrossBorder family.
#pragma once

#include <string>

#include "KZCEkaITDataCrossBorder.h"
#include "KZCEkaMOKManagerFinance.h"

/// As the Finance family with this family's classes. A file that its reader refused for a reason of
/// its own keeps that reason alone.
class KZCEkaMOKManagerCrossBorder : public KZCEkaMOKManagerFinance
{
public:
    void TerminateDifferentData() override;
    /// As SetITData, with this family's fields.
    virtual int SetITDataCrossBorder(KZCEkaITDataCrossBorder_t eId, const char* szValue);
    virtual int LoadCsvWithDefinitionCrossBorder_Check();
    virtual int LoadCsvWithDefinitionCrossBorder_Conv(bool bRead);

protected:
    const FamilyTraits& Traits() const override;
    const char* ClassName() const override;
    std::string MakeMokName() const override;
    KZCConvertInfo* Store() const override;
    void RecordRefusedFile() const override;
    std::string MakeReports(KZCEkaDefinitionFinance& definition,
                            const KZCEkaCsvFileFinance& csv,
                            KZCEkaITDataFinance& it) const override;
};
