// Runs one check or conversion of the base family.
#pragma once

#include <memory>
#include <string>

#include "KZCEkaITData.h"
#include "KZCEkaXDOM.h"
#include "fault/Fault.h"
#include "text/LostText.h"

class KZCConvertInfo;
struct ManagerFamily;
struct _ConvertTable;

/// Made for one request. Steps return STATUS_OK or STATUS_NG with the reason in the result store.
/// The families share the steps below the operations; a class overrides the operations whose steps
/// take something from its family, and each operation is logged under the class that defines it.
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
    /// The operations of the same names, with what they take from a family.
    int RunInitForCheck(const ManagerFamily& family,
                        bool bPublic,
                        const char* szCsvPathName,
                        long lCsvDistKey);
    int RunInitForMok(const ManagerFamily& family,
                      bool bPublic,
                      const char* szCsvPathName,
                      const char* szMokPathName,
                      long lCsvDistKey);
    int RunValidateCsv(const ManagerFamily& family) const;
    int RunMakeMok(const ManagerFamily& family);

    /// Runs a step of the request; whatever it throws becomes the fatal error.
    template <class Step>
    static int RunStep(const char* szFunction, Step step)
    {
        try {
            LostText::Forget();
            const int nStatus = step();
            LostText::Check();
            return nStatus;
        } catch (...) {
            return RecordFatalError(szFunction);
        }
    }
    /// Trims a value, null counting as empty, and stores it. Whatever that throws becomes FAULT.
    template <class Store>
    static int StoreITValue(const char* szFunction, const char* szValue, Store store)
    {
        try {
            LostText::Forget();
            const std::string strValue = TrimOrEmpty(szValue);
            LostText::Check();
            return store(strValue.c_str());
        } catch (...) {
            RaiseFault(szFunction, nullptr);
        }
    }
    /// The objects of the request's key.
    _ConvertTable Table(KZCConvertInfo& store) const;
    /// Reads the request's file. \return what ReadFile returned. Throws FAULT.
    int ReadCsvFile(KZCConvertInfo& store) const;
    /// Loads the definitions of the file that was read. Throws FAULT if that fails.
    void LoadDefinition(KZCConvertInfo& store, bool bIsCheck) const;
    /// Drops all stores.
    void TerminateAll() { Terminate(true, true, false); }

private:
    static std::string TrimOrEmpty(const char* szText);
    static int RecordFatalError(const char* szFunction);

    long m_lCsvDistKey = 0;  ///< set when initialisation has passed
    std::string m_strCsvPathName;
    std::string m_strMokPathName;
    std::unique_ptr<KZCEkaXDOM> m_pXDom;  ///< the document after MakeMok has parsed it
};
