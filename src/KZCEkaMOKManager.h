// Runs one check or conversion of the base family.
#pragma once

#include <memory>
#include <string>

#include "KZCEkaITData.h"
#include "KZCEkaXDOM.h"

/// Made for one request. Steps return STATUS_OK or STATUS_NG with the reason in the result store.
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
    /// Argument check of the request's key.
    virtual KZCArgValid_t KeyCheck() const;

private:
    void CheckKeptFile(KZCEkaValidator& validator, long lCsvDistKey);
    std::string MakeDocumentText() const;

    long m_lCsvDistKey = 0;  ///< set when initialisation has passed
    std::string m_strCsvPathName;
    std::string m_strMokPathName;
    std::unique_ptr<KZCEkaXDOM> m_pXDom;  ///< the document after MakeMok has parsed it
};
