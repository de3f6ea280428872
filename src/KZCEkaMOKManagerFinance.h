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
    int InitForCheck(bool bPublic, const char* szCsvPathName, long lCsvDistKey) override;
    int InitForMok(bool bPublic,
                   const char* szCsvPathName,
                   const char* szMokPathName,
                   long lCsvDistKey) override;
    int ValidateCsv() override;
    int MakeMok() override;
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
    /// How a family reads its file and makes its reports.
    struct Reading
    {
        KZCConvertInfo* (*pStore)();
        /// Records that the file was refused, on top of what its reader recorded.
        void (*pRecordRefused)();
    };
    using ReportWriter = std::string (*)(KZCEkaDefinitionFinance& definition,
                                         const KZCEkaCsvFileFinance& csv,
                                         KZCEkaITDataFinance& it);

    /// The operations that load. \param bRead  Read the file and test its limits before.
    int RunLoad(const char* szFunction, const Reading& reading, bool bRead, bool bIsCheck) const;
    /// The document as it is assembled. \param pWriteReports  Writes the reports of a document in
    /// which records go through the forms in turn.
    static std::string MakeDocumentText(const _ConvertTable& table, ReportWriter pWriteReports);
    /// Records a refused file whatever is recorded already.
    static void RecordRefusedFile();

private:
    static std::string MakeText(const _ConvertTable& table);

    /// Reads the request's file and tests its limits. \return the code of what failed. Throws
    /// FAULT.
    int ReadAndTest(const Reading& reading) const;

    static const ManagerFamily FAMILY;
    static const Reading READING;
};
