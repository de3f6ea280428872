// Runs one check or conversion of the base family.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "EkaMsgTable.h"
#include "KZCEkaITData.h"
#include "KZCEkaXDOM.h"

class KZCConvertInfo;
class KZCEkaCsvFile;
struct FamilyTraits;
struct _ConvertTable;

/// Made for one request. Steps return STATUS_OK or STATUS_NG with the reason in the result store.
/// The families share the steps and override the hooks below them.
class KZCEkaMOKManager
{
public:
    KZCEkaMOKManager() = default;
    virtual ~KZCEkaMOKManager();
    KZCEkaMOKManager(const KZCEkaMOKManager&) = delete;
    KZCEkaMOKManager& operator=(const KZCEkaMOKManager&) = delete;

    /// \param bPublic  Plain path. Paths are UTF-8, null counts as empty.
    virtual int InitForCheck(bool bPublic, const char* szCsvPathName, long lCsvDistKey);
    /// Bad arguments leave their errors in the store and still give STATUS_OK: ask HasErrorMsg.
    virtual int InitForMok(bool bPublic,
                           const char* szCsvPathName,
                           const char* szMokPathName,
                           long lCsvDistKey);
    /// \param bIsCheck  Load the check items too.
    virtual int LoadCsvWithDefinition(bool bIsCheck);
    virtual int ValidateCsv();
    /// Builds, parses and measures the document.
    virtual int MakeMok();
    /// Drops the stores if they belong to another family.
    virtual void TerminateDifferentData();

    /// Throws FAULT on a fault; otherwise what the IT section returned.
    int SetITData(KZCEkaITData_t eId, const char* szValue);
    int SaveMok();
    int GetMok(std::string& strOut);
    std::string GetProcID();
    std::string GetRecodeCount();
    bool HasErrorMsg();
    /// The detail table; empties the result store.
    std::string GetErrorMsg();
    void Terminate(bool bDestroyResult, bool bDestroyStore, bool bClearKey);
    void ReloadCsvFile(long lCsvDistKey, const char* szPath);

protected:
    virtual const FamilyTraits& Traits() const;
    /// Name of the class in the log.
    virtual const char* ClassName() const;
    /// Names of MakeMok in the log: of its refusal of the procedure id, and otherwise.
    virtual std::string MismatchName() const;
    virtual std::string MakeMokName() const;
    /// The conversion store; one of the own family if there is none.
    virtual KZCConvertInfo* Store() const;
    /// The procedure id that the host says it files.
    virtual std::string HostProcedure(const KZCEkaITData& it) const;
    /// What the XML library calls the document in its messages.
    virtual std::string DocumentName(const KZCEkaITData& it) const;
    /// The document as it is assembled, before the XML library has seen it.
    virtual std::string MakeDocumentText(const _ConvertTable& table) const;

    /// Runs a step of the request; whatever it throws becomes the fatal error.
    int RunStep(const char* szOperation, const std::function<int()>& step) const;
    /// Trims a value, null counting as empty, and stores it. Whatever that throws becomes FAULT.
    int StoreITValue(const char* szOperation,
                     const char* szValue,
                     const std::function<int(const char* szTrimmed)>& store) const;
    /// The objects of the request's key.
    KZCEkaITData& ITData() const;
    const KZCEkaCsvFile& CsvFile() const;
    /// Reads the request's file. \return what ReadFile returned. Throws FAULT.
    int ReadCsvFile() const;
    /// Loads the definitions of the file that was read. Throws FAULT if that fails.
    void LoadDefinition(bool bIsCheck) const;
    /// Drops all stores.
    void TerminateAll() { Terminate(true, true, false); }

private:
    std::string LogName(const char* szOperation) const;
    int RecordFatalError(const char* szOperation) const;
    void CheckKeptFile(KZCEkaValidator& validator, long lCsvDistKey) const;

    long m_lCsvDistKey = 0;  ///< set when initialisation has passed
    std::string m_strCsvPathName;
    std::string m_strMokPathName;
    std::unique_ptr<KZCEkaXDOM> m_pXDom;  ///< the document after MakeMok has parsed it
};
