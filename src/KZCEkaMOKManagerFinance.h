// Runs one check or conversion of the Finance family.
#pragma once

#include <string>
#include <vector>

#include "KZCEkaITDataFinance.h"
#include "KZCEkaMOKManager.h"

class KZCEkaCsvFileFinance;
class KZCEkaDefinitionFinance;

/// As the base family, but that loading has a form for checks and one for conversions, that several
/// records may make one report, and that the catalogue lists the reports themselves.
class KZCEkaMOKManagerFinance : public KZCEkaMOKManager
{
public:
    void TerminateDifferentData() override;
    /// As SetITData, with this family's fields.
    virtual int SetITDataFinance(KZCEkaITDataFinance_t eId, const char* szValue);
    /// Reads the file, tests its limits and loads the check items.
    virtual int LoadCsvWithDefinitionFinance_Check();
    /// Loads the templates. \param bRead  Read the file and test its limits before; false when it
    /// was read earlier.
    virtual int LoadCsvWithDefinitionFinance_Conv(bool bRead);

    /// The catalogue of a document. \param listReportId  Full ids of its reports, in order.
    static std::string createCATALOGXML(const std::vector<std::string>& listReportId);

protected:
    const FamilyTraits& Traits() const override;
    const char* ClassName() const override;
    std::string MismatchName() const override;
    KZCConvertInfo* Store() const override;
    std::string HostProcedure(const KZCEkaITData& it) const override;
    std::string DocumentName(const KZCEkaITData& it) const override;
    std::string MakeDocumentText(const _ConvertTable& table) const override;

    /// Reads the request's file and tests its limits. \return the code of what failed. Throws
    /// FAULT.
    int ReadAndTest() const;
    /// Records that the file was refused, on top of what its reader recorded.
    virtual void RecordRefusedFile() const;
    /// The reports of a document in which records go through the forms in turn.
    virtual std::string MakeReports(KZCEkaDefinitionFinance& definition,
                                    const KZCEkaCsvFileFinance& csv,
                                    KZCEkaITDataFinance& it) const;
    int LoadForCheck(const char* szOperation) const;
    int LoadForConversion(const char* szOperation, bool bRead) const;
};
