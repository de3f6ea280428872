// The loaded definition of a Finance procedure: one report tree for each of its forms.
#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <vector>

#include "KZCDefinitionManager.h"
#include "KZCEkaDefinition.h"
#include "KZCEkaMOKDefReportFinance.h"

/// The reports take the records of a file in turn, each over its own rows. Making the reports of a
/// document uses the trees up: load anew before the next one.
class KZCEkaDefinitionFinance : public KZCEkaDefinition
{
public:
    /// How records become reports.
    enum CSV_RECORD_TYPE : int
    {
        CSV_RECORD_SINGLE = 0,  ///< records go through the reports in turn
        CSV_RECORD_MULTI = 1,   ///< the one report spreads over all records
    };

    /// A report of the definition file. The rows stay texts, read as atol reads them.
    struct REPORT_INFO
    {
        std::string strReportId;
        std::string strReportVR;
        std::string strStartRow;
        std::string strEndRow;
        std::string strStepRow;
        std::string strLastRecord;
        std::unique_ptr<KZCEkaMOKDefReportFinance> pReport;
    };

    /// Loads all reports of a procedure.
    /// \param bValidate  From the validation file with its check items; otherwise from the template
    /// file.
    /// \return STATUS_NG on a fault of the file; nothing goes to the result store.
    int CreateDefinition(const char* szTypeId, bool bValidate) override;
    /// Checks every record by the report that covers it. \return STATUS_NG if one failed. Throws
    /// FAULT on null and for a negative start row.
    int ValidateCsv(const KZCEkaCsvFile* pCsv) override;
    void Clear() override;

    /// The report elements of all records. Throws FAULT on null, without a definition, and when the
    /// reports run out.
    std::string MakeReportToCsvFinance(const KZCEkaCsvFile* pCsv, KZCEkaITDataFinance* pIT);
    /// The report elements of a procedure whose one report spreads over all records. Throws FAULT
    /// on null and without a definition.
    std::string MakeSingleTypeReportFromCsvMultiRecord(KZCEkaCsvFile* pCsv,
                                                       KZCEkaITDataFinance* pIT);
    CSV_RECORD_TYPE getCsvRecordType() const;
    /// The ids of the report elements made last, in order.
    std::vector<std::string> GetReportIDList() const;
    /// The report id of the first report that covers the row (from 1), or the empty text.
    std::string GetReportIdW_Index(int nRow) const;
    static std::int64_t convRecordRow(const KZCEkaCsvFile* pCsv, std::int64_t nRow);

protected:
    /// Writes what one record (from 0) adds to the document.
    using RecordWriter = std::function<std::string(
        KZCEkaMOKDefReportFinance& report, long lRow, const std::string& strStamp)>;

    /// In what the loads of the two families differ.
    struct FamilyLoad
    {
        CALL_TYPE eType;
        const char* szFunction;  ///< in the log
        std::unique_ptr<KZCEkaMOKDefReportFinance> (*pMakeReport)();
    };

    int LoadDefinition(const FamilyLoad& family, const char* szTypeId, bool bValidate);
    /// Walks the records through the reports in turn.
    std::string MakeReports(const char* szFunction,
                            const KZCEkaCsvFile& csv,
                            const RecordWriter& write);
    /// Logs and throws FAULT: what a document is made of is missing.
    [[noreturn]] static void RaiseMissing(const char* szFunction);

    std::list<REPORT_INFO> m_listReport;

private:
    struct RecordRange;

    int LoadReports(KZCEkaXDOM& dom,
                    const FamilyLoad& family,
                    const char* szTypeId,
                    bool bValidate);
    bool LoadReport(KZCEkaXDOM& dom, REPORT_INFO& info, bool bValidate);
    bool LoadItems(KZCEkaXDOM& dom, KZCEkaMOKDefReportFinance& report, bool bValidate);
    RecordRange RangeToCheck(const REPORT_INFO& info, std::int64_t nCount) const;
};
