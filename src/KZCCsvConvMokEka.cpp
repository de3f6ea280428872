#include "KZCCsvConvMokEka.h"

#include <KZEkaMok/KZEkaMok.h>

#include <initializer_list>
#include <utility>

#include "FamilyTraits.h"
#include "Fault.h"
#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaMOKManager.h"
#include "KZCMacOSNative.h"
#include "KZCValidResult.h"

namespace {

/// Key of the plain path.
constexpr long PLAIN_KEY = 1;
/// Software name of the base family's EL path, which takes none from the host.
constexpr const char* EL_SOFT_NAME = "eka_orbclient_ZEKA";

/// The filer's fields of a conversion, null if the host gave none.
struct FilerArguments
{
    const char* szZeimushoCD;
    const char* szNozeishaId;
    const char* szKojinBango;
    const char* szHojinBango;
    const char* szNozeishaNm;
    const char* szNozeishaAdr;
    const char* szDaihyoNm;
    const char* szDairiId;
    const char* szDairiNm;
    const char* szDairiAdr;
    const char* szTetsuzuki;
};

/// Name and value of an argument.
using Argument = std::pair<const char*, const char*>;

/// Traces arguments of an operation, such as "CsvCheck引数szCsvPathName:".
void TraceArguments(const char* szOperation, std::initializer_list<Argument> arguments)
{
    if (!KZCDebugDump::IsOn())
        return;
    try {
        for (const auto& [szName, szValue] : arguments)
            KZCCsvConvMokEka::OutputIF(szValue,
                                       (std::string(szOperation) + "引数" + szName + ":").c_str());
    } catch (...) {
        return;  // a trace is never worth a request
    }
}

void TraceFiler(const char* szOperation, const FilerArguments& filer)
{
    TraceArguments(szOperation, {{"szZeimushoCD", filer.szZeimushoCD},
                                 {"szNozeishaId", filer.szNozeishaId},
                                 {"szKojinBango", filer.szKojinBango},
                                 {"szHojinBango", filer.szHojinBango},
                                 {"szNozeishaNm", filer.szNozeishaNm},
                                 {"szNozeishaAdr", filer.szNozeishaAdr},
                                 {"szDaihyoNm", filer.szDaihyoNm},
                                 {"szDairiId", filer.szDairiId},
                                 {"szDairiNm", filer.szDairiNm},
                                 {"szDairiAdr", filer.szDairiAdr},
                                 {"szTetsuzuki", filer.szTetsuzuki}});
}

/// Runs the body of a request. What it throws becomes the fatal error and a failed request.
template <class Body>
bool RunBody(const char* szFunction, Body body)
{
    try {
        return body();
    } catch (...) {
        KZCValidResult::instance()->SetFatalError();
        KZCDebugDump::Log(szFunction, UNEXPECTED_ERROR);
        return false;
    }
}

/// Runs the closing steps of a request. What they throw is only logged.
template <class Closing>
void RunClosing(const char* szFunction, Closing closing)
{
    try {
        closing();
    } catch (...) {
        KZCDebugDump::Log(szFunction, UNEXPECTED_ERROR);
    }
}

bool IsGiven(const char* szText)
{
    return szText != nullptr && *szText != '\0';
}

/// A filer has a personal or a corporate number, not both: both are an error of both arguments.
void SetNumbers(KZCEkaMOKManager& manager,
                const FilerArguments& filer,
                const NumberArguments& arguments)
{
    if (IsGiven(filer.szKojinBango) && IsGiven(filer.szHojinBango)) {
        KZCValidResult* pResult = KZCValidResult::instance();
        pResult->SetResult(HE70010E, ARGUMENT_RECORD, arguments.lKojinBango, SINGLE_COLUMN);
        pResult->SetResult(HE70010E, ARGUMENT_RECORD, arguments.lHojinBango, SINGLE_COLUMN);
        return;
    }
    manager.SetITData(IT_KOJINBANGO, filer.szKojinBango);
    manager.SetITData(IT_HOJINBANGO, filer.szHojinBango);
}

/// Stores the filer's fields. A bad value leaves its error in the result store.
void SetFiler(KZCEkaMOKManager& manager,
              const FilerArguments& filer,
              const NumberArguments& arguments,
              const char* szSoftName)
{
    manager.SetITData(IT_ZEIMUSHO_CD, filer.szZeimushoCD);
    manager.SetITData(IT_NOZEISHA_ID, filer.szNozeishaId);
    SetNumbers(manager, filer, arguments);
    manager.SetITData(IT_NOZEISHA_NM, filer.szNozeishaNm);
    manager.SetITData(IT_NOZEISHA_ADR, filer.szNozeishaAdr);
    manager.SetITData(IT_DAIHYO_NM, filer.szDaihyoNm);
    manager.SetITData(IT_DAIRI_ID, filer.szDairiId);
    manager.SetITData(IT_DAIRI_NM, filer.szDairiNm);
    manager.SetITData(IT_DAIRI_ADR, filer.szDairiAdr);
    manager.SetITData(IT_PROCEDURE_CD, filer.szTetsuzuki);
    manager.SetITData(IT_SOFT_NAME, szSoftName);
}

/// Reads, loads and checks, with cells as Shift_JIS from here on.
bool RunCheck(KZCEkaMOKManager& manager)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    return manager.LoadCsvWithDefinition(true) == STATUS_OK && manager.ValidateCsv() == STATUS_OK;
}

/// The detail table of a failed request; empties the result store.
std::string TakeErrors(KZCEkaMOKManager& manager, KZCConvertResultEka& result)
{
    std::string strErrors = manager.GetErrorMsg();
    result.SetDetailErrorInfo(strErrors);
    return strErrors;
}

}  // namespace

KZCCsvConvMokEka::KZCCsvConvMokEka()
{
    KZCDebugDump::InitDebugDump();
}

KZCCsvConvMokEka::~KZCCsvConvMokEka()
{
    ReleaseResult();
}

KZCConvertResultEka* KZCCsvConvMokEka::CsvCheck(const char* szCsvPathName)
{
    constexpr const char* FUNCTION = "KZCCsvConvMokEka::CsvCheck";
    TraceArguments("CsvCheck", {{"szCsvPathName", szCsvPathName}});
    if (!CreateResult())
        return nullptr;
    m_pResult->Initialize();
    const char* szResult = PROCESS_FAIL;
    std::string strProcId;
    KZCEkaMOKManager manager;
    const bool bPassed = RunBody(FUNCTION, [&] {
        manager.TerminateDifferentData();
        KZCEkaCommon::setExecMode(BASE_FAMILY.eExecMode);
        if (manager.InitForCheck(true, szCsvPathName, PLAIN_KEY) != STATUS_OK || !RunCheck(manager))
            return false;
        strProcId = manager.GetProcID();
        return true;
    });
    KZCEkaCommon::SetCsvCheckFlag(false);
    RunClosing(FUNCTION, [&] {
        if (!bPassed)
            OutputIF(TakeErrors(manager, *m_pResult).c_str(), "CsvCheck NG : 返却値_ErrorMsg:");
        manager.Terminate(false, true, false);
        if (!bPassed)
            return;
        m_pResult->SetProcId(strProcId);
        szResult = PROCESS_OK;
        OutputIF(strProcId.c_str(), "CsvCheck OK : 返却値_ProcID:");
    });
    m_pResult->SetResult(szResult);
    return m_pResult.get();
}

KZCConvertResultEka* KZCCsvConvMokEka::CsvConvMok(const char* szCsvPathName,
                                                  const char* szMokPathName,
                                                  const char* szZeimushoCD,
                                                  const char* szNozeishaId,
                                                  const char* szKojinBango,
                                                  const char* szHojinBango,
                                                  const char* szNozeishaNm,
                                                  const char* szNozeishaAdr,
                                                  const char* szDaihyoNm,
                                                  const char* szDairiId,
                                                  const char* szDairiNm,
                                                  const char* szDairiAdr,
                                                  const char* szTetsuzuki,
                                                  const char* szSoftName)
{
    constexpr const char* FUNCTION = "KZCCsvConvMokEka::CsvConvMok";
    constexpr const char* OPERATION = "CsvConvMok";
    const FilerArguments filer = {szZeimushoCD, szNozeishaId,  szKojinBango, szHojinBango,
                                  szNozeishaNm, szNozeishaAdr, szDaihyoNm,   szDairiId,
                                  szDairiNm,    szDairiAdr,    szTetsuzuki};
    KZCEkaCommon::setExecMode(BASE_FAMILY.eExecMode);
    TraceArguments(OPERATION, {{"szCsvPathName", szCsvPathName}, {"szMokPathName", szMokPathName}});
    TraceFiler(OPERATION, filer);
    TraceArguments(OPERATION, {{"szSoftName", szSoftName}});
    if (!CreateResult())
        return nullptr;
    m_pResult->Initialize();
    const char* szResult = PROCESS_FAIL;
    KZCEkaMOKManager manager;
    const bool bPassed = RunBody(FUNCTION, [&] {
        manager.TerminateDifferentData();
        if (manager.InitForMok(true, szCsvPathName, szMokPathName, PLAIN_KEY) != STATUS_OK)
            return false;
        SetFiler(manager, filer, BASE_FAMILY.plainNumbers, szSoftName);
        return !manager.HasErrorMsg() && manager.LoadCsvWithDefinition(false) == STATUS_OK &&
               manager.MakeMok() == STATUS_OK && manager.SaveMok() == STATUS_OK;
    });
    RunClosing(FUNCTION, [&] {
        if (!bPassed)
            OutputIF(TakeErrors(manager, *m_pResult).c_str(), "CsvConvMok NG : 返却値_ErrorMsg:");
        manager.Terminate(false, true, false);
        if (!bPassed)
            return;
        szResult = PROCESS_OK;
        OutputIF("", "CsvConvMok OK : 返却値:S_OK");
    });
    m_pResult->SetResult(szResult);
    return m_pResult.get();
}

KZCConvertResultEka* KZCCsvConvMokEka::ELCsvCheck(const char* szCsvPathName, long lCsvDistKey)
{
    constexpr const char* FUNCTION = "KZCCsvConvMokEka::ELCsvCheck";
    TraceArguments("ELCsvCheck", {{"szCsvPathName", szCsvPathName},
                                  {"lCsvDistKey", std::to_string(lCsvDistKey).c_str()}});
    if (!CreateResult())
        return nullptr;
    m_pResult->Initialize();
    const char* szResult = PROCESS_FAIL;
    std::string strProcId;
    std::string strRecordCount;
    KZCEkaMOKManager manager;
    const bool bChecked = RunBody(FUNCTION, [&] {
        manager.TerminateDifferentData();
        KZCEkaCommon::setExecMode(BASE_FAMILY.eExecMode);
        if (manager.InitForCheck(false, szCsvPathName, lCsvDistKey) != STATUS_OK ||
            !RunCheck(manager))
            return false;
        strProcId = manager.GetProcID();
        strRecordCount = manager.GetRecodeCount();
        return true;
    });
    KZCEkaCommon::SetCsvCheckFlag(false);
    // Read again with the flag down: what is kept for the conversion holds UTF-8.
    const bool bPassed = bChecked && RunBody(FUNCTION, [&] {
                             manager.ReloadCsvFile(lCsvDistKey, szCsvPathName);
                             return true;
                         });
    RunClosing(FUNCTION, [&] {
        if (!bPassed) {
            const std::string strErrors = TakeErrors(manager, *m_pResult);
            manager.Terminate(false, false, true);
            OutputIF(strErrors.c_str(), "ELCsvCheck NG : 返却値_ErrorMsg:");
            return;
        }
        m_pResult->SetProcId(strProcId);
        m_pResult->SetRecordCount(strRecordCount);
        szResult = PROCESS_OK;
        OutputIF(strProcId.c_str(), "ELCsvCheck OK : 返却値_ProcID:");
        OutputIF(strRecordCount.c_str(), "ELCsvCheck OK : 返却値_RecordCount:");
    });
    m_pResult->SetResult(szResult);
    return m_pResult.get();
}

KZCConvertResultEka* KZCCsvConvMokEka::ELCsvConvMok(long lCsvDistKey,
                                                    const char* szZeimushoCD,
                                                    const char* szNozeishaId,
                                                    const char* szKojinBango,
                                                    const char* szHojinBango,
                                                    const char* szNozeishaNm,
                                                    const char* szNozeishaAdr,
                                                    const char* szDaihyoNm,
                                                    const char* szDairiId,
                                                    const char* szDairiNm,
                                                    const char* szDairiAdr,
                                                    const char* szTetsuzuki)
{
    constexpr const char* FUNCTION = "KZCCsvConvMokEka::ELCsvConvMok";
    constexpr const char* OPERATION = "ELCsvConvMok";
    const FilerArguments filer = {szZeimushoCD, szNozeishaId,  szKojinBango, szHojinBango,
                                  szNozeishaNm, szNozeishaAdr, szDaihyoNm,   szDairiId,
                                  szDairiNm,    szDairiAdr,    szTetsuzuki};
    TraceArguments(OPERATION, {{"lCsvDistKey", std::to_string(lCsvDistKey).c_str()}});
    TraceFiler(OPERATION, filer);
    if (!CreateResult())
        return nullptr;
    m_pResult->Initialize();
    const char* szResult = PROCESS_FAIL;
    KZCEkaMOKManager manager;
    const bool bPassed = RunBody(FUNCTION, [&] {
        manager.TerminateDifferentData();
        KZCEkaCommon::setExecMode(BASE_FAMILY.eExecMode);
        if (manager.InitForMok(false, nullptr, nullptr, lCsvDistKey) != STATUS_OK)
            return false;
        SetFiler(manager, filer, BASE_FAMILY.elNumbers, EL_SOFT_NAME);
        std::string strMok;
        // The definitions are those of the check.
        if (manager.HasErrorMsg() || manager.MakeMok() != STATUS_OK ||
            manager.GetMok(strMok) != STATUS_OK)
            return false;
        const std::string strProcId = manager.GetProcID();
        m_pResult->SetMokData(strMok);
        m_pResult->SetProcId(strProcId);
        szResult = PROCESS_OK;
        OutputIF("", "ELCsvConvMok OK : 返却値:S_OK");
        return true;
    });
    // The key stays either way: the host can correct the arguments and convert it again.
    RunClosing(FUNCTION, [&] {
        if (!bPassed)
            OutputIF(TakeErrors(manager, *m_pResult).c_str(), "ELCsvConvMok NG : 返却値_ErrorMsg:");
    });
    m_pResult->SetResult(szResult);
    return m_pResult.get();
}

KZCConvertResultEka* KZCCsvConvMokEka::CsvWrite(const char* szCsvPath, const char* szData)
{
    TraceArguments("CsvWrite", {{"szCsvPath", szCsvPath}});
    if (!CreateResult())
        return nullptr;
    m_pResult->Initialize();
    const char* szResult = PROCESS_FAIL;
    RunClosing("KZCCsvConvMokEka::CsvWrite", [&] {
        if (szCsvPath == nullptr || szData == nullptr) {
            KZCValidResult::instance()->SetFatalError();
        } else if (WriteFileData(szCsvPath, szData)) {
            szResult = PROCESS_OK;
            OutputIF("", "CsvWrite OK : 返却値:S_OK");
            return;
        }
        KZCEkaMOKManager manager;
        OutputIF(TakeErrors(manager, *m_pResult).c_str(), "CsvWrite NG : 返却値_ErrorMsg:");
    });
    m_pResult->SetResult(szResult);
    return m_pResult.get();
}

void KZCCsvConvMokEka::Terminate()
{
    KZCEkaCommon::SetCsvCheckFlag(false);
    try {
        KZCEkaMOKManager().Terminate(true, true, false);
    } catch (...) {
        return;
    }
    ReleaseResult();
}

bool KZCCsvConvMokEka::CreateResult()
{
    try {
        if (!m_pResult)
            m_pResult = std::make_unique<KZCConvertResultEka>();
        return true;
    } catch (...) {
        return false;
    }
}

void KZCCsvConvMokEka::ReleaseResult()
{
    m_pResult.reset();
}

bool KZCCsvConvMokEka::WriteFileData(const char* szCsvPath, const char* szData)
{
    const bool bFolder = KZCMacOSNative::pathDirectoryExists(szCsvPath);
    if (bFolder && KZCMacOSNative::writeSJISFile(szCsvPath, szData, false))
        return true;
    KZCValidResult::instance()->SetResult(bFolder ? HE70028E : HE70027E, 0, 0, SINGLE_COLUMN);
    return false;
}

void KZCCsvConvMokEka::OutputIF(const char* szValue, const char* szLabel)
{
    if (szValue != nullptr && szLabel != nullptr)
        KZCDebugDump::Log(szLabel, szValue);
}
