// The loaded definition of one type id: texts and node tree.
#pragma once

#include <memory>
#include <string>

#include "KZCEkaMOKDefReport.h"

class KZCEkaCsvFile;
class KZCEkaITData;
class KZCEkaXDOM;

class KZCEkaDefinition
{
public:
    KZCEkaDefinition() = default;
    virtual ~KZCEkaDefinition() = default;
    KZCEkaDefinition(const KZCEkaDefinition&) = delete;
    KZCEkaDefinition& operator=(const KZCEkaDefinition&) = delete;

    /// Loads the report of a type id from the definition index.
    /// \param bValidate  Make the check items too.
    /// \return STATUS_NG on a fault of the definition file; nothing goes to the result store.
    virtual int CreateDefinition(const char* szTypeId, bool bValidate);
    /// Checks every data record. \return STATUS_NG if one failed. Throws FAULT on null or without a
    /// loaded definition.
    virtual int ValidateCsv(const KZCEkaCsvFile* pCsv);
    /// The report elements of all records. Throws FAULT as above.
    virtual std::string MakeReportToCsv(const KZCEkaCsvFile* pCsv, KZCEkaITData* pIT);
    virtual void Clear();

    const char* GetProcId() const { return m_strProcId.c_str(); }
    const char* GetProcVR() const { return m_strProcVR.c_str(); }
    const char* GetReportId() const { return m_strReportId.c_str(); }

protected:
    /// The texts of the report element under the cursor.
    void TakeTexts(const KZCEkaXDOM& dom);
    /// Makes the tree of the report element under the cursor, whose texts have been taken. Leaves
    /// the cursor on one of its children if there are any. \return STATUS_NG if an item can't be
    /// made or hung. Throws FAULT.
    int LoadItems(KZCEkaXDOM& dom, bool bValidate);

    std::string m_strProcId;
    std::string m_strProcVR;
    std::string m_strReportId;
    std::string m_strReportVR;
    std::unique_ptr<KZCEkaMOKDefReport> m_pReport;  ///< null until a definition is loaded

private:
    int LoadTree(KZCEkaXDOM& dom, const char* szTypeId, bool bValidate);
    bool AddNode(KZCEkaXDOM& dom, bool bValidate);
};
