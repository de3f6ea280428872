// The operations of the base family, and the two that all families share.
#include <KZEkaMok/KZEkaMok.h>

#include "KZCCsvConvMokEka.h"
#include "KZCEkaCommon.h"
#include "KZCEkaMOKManager.h"
#include "KZCValidResult.h"
#include "family/FamilyTraits.h"
#include "fault/Fault.h"
#include "request/RequestSteps.h"

namespace {

using RequestSteps::FilerArguments;
using RequestSteps::OperationTexts;

/// Software name of the base family's EL path, which takes none from the host.
constexpr const char* EL_SOFT_NAME = "eka_orbclient_ZEKA";

struct BaseFamily
{
    using Manager = KZCEkaMOKManager;

    static constexpr const FamilyTraits& TRAITS = BASE_FAMILY;

    static int LoadForCheck(Manager& manager) { return manager.LoadCsvWithDefinition(true); }
    /// The EL path keeps the definitions of the check.
    static int LoadForConversion(Manager& manager, bool bPlain)
    {
        return bPlain ? manager.LoadCsvWithDefinition(false) : STATUS_OK;
    }
};

void TraceFiler(const char* szStem, const FilerArguments& filer)
{
    RequestSteps::TraceArguments(szStem, {{"szZeimushoCD:", filer.szZeimushoCD},
                                          {"szNozeishaId:", filer.szNozeishaId},
                                          {"szKojinBango:", filer.szKojinBango},
                                          {"szHojinBango:", filer.szHojinBango},
                                          {"szNozeishaNm:", filer.szNozeishaNm},
                                          {"szNozeishaAdr:", filer.szNozeishaAdr},
                                          {"szDaihyoNm:", filer.szDaihyoNm},
                                          {"szDairiId:", filer.szDairiId},
                                          {"szDairiNm:", filer.szDairiNm},
                                          {"szDairiAdr:", filer.szDairiAdr},
                                          {"szTetsuzuki:", filer.szTetsuzuki}});
}

/// Stores the filer's fields. A bad value leaves its error in the result store.
void SetFiler(KZCEkaMOKManager& manager,
              const FilerArguments& filer,
              const ConversionArguments& arguments)
{
    manager.SetITData(IT_ZEIMUSHO_CD, filer.szZeimushoCD);
    manager.SetITData(IT_NOZEISHA_ID, filer.szNozeishaId);
    if (!RequestSteps::RefuseBothNumbers(filer, arguments)) {
        manager.SetITData(IT_KOJINBANGO, filer.szKojinBango);
        manager.SetITData(IT_HOJINBANGO, filer.szHojinBango);
    }
    manager.SetITData(IT_NOZEISHA_NM, filer.szNozeishaNm);
    manager.SetITData(IT_NOZEISHA_ADR, filer.szNozeishaAdr);
    manager.SetITData(IT_DAIHYO_NM, filer.szDaihyoNm);
    manager.SetITData(IT_DAIRI_ID, filer.szDairiId);
    manager.SetITData(IT_DAIRI_NM, filer.szDairiNm);
    manager.SetITData(IT_DAIRI_ADR, filer.szDairiAdr);
    manager.SetITData(IT_PROCEDURE_CD, filer.szTetsuzuki);
    manager.SetITData(IT_SOFT_NAME, filer.szSoftName);
}

}  // namespace

KZCConvertResultEka* KZCCsvConvMokEka::CsvCheck(const char* szCsvPathName)
{
    constexpr OperationTexts TEXTS = {
        "KZCCsvConvMokEka::CsvCheck",
        "CsvCheck NG : 返却値_ErrorMsg:", "CsvCheck OK : 返却値_ProcID:"};
    RequestSteps::TraceArguments("CsvCheck引数", {{"szCsvPathName:", szCsvPathName}});
    KZCConvertResultEka* pRecord = StartRecord();
    if (pRecord != nullptr)
        RequestSteps::CheckPlain<BaseFamily>(TEXTS, *pRecord, szCsvPathName);
    return pRecord;
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
    constexpr OperationTexts TEXTS = {
        "KZCCsvConvMokEka::CsvConvMok",
        "CsvConvMok NG : 返却値_ErrorMsg:", "CsvConvMok OK : 返却値:S_OK"};
    constexpr const char* STEM = "CsvConvMok引数";
    const FilerArguments filer = {.szZeimushoCD = szZeimushoCD,
                                  .szNozeishaId = szNozeishaId,
                                  .szKojinBango = szKojinBango,
                                  .szHojinBango = szHojinBango,
                                  .szNozeishaNm = szNozeishaNm,
                                  .szNozeishaAdr = szNozeishaAdr,
                                  .szDaihyoNm = szDaihyoNm,
                                  .szDairiId = szDairiId,
                                  .szDairiNm = szDairiNm,
                                  .szDairiAdr = szDairiAdr,
                                  .szTetsuzuki = szTetsuzuki,
                                  .szSoftName = szSoftName};
    // In this family even before the traces.
    KZCEkaCommon::setExecMode(BASE_FAMILY.eExecMode);
    RequestSteps::TraceArguments(
        STEM, {{"szCsvPathName:", szCsvPathName}, {"szMokPathName:", szMokPathName}});
    TraceFiler(STEM, filer);
    RequestSteps::TraceArguments(STEM, {{"szSoftName:", szSoftName}});
    KZCConvertResultEka* pRecord = StartRecord();
    if (pRecord != nullptr)
        RequestSteps::ConvertPlain<BaseFamily>(
            TEXTS, *pRecord, szCsvPathName, szMokPathName,
            [&](KZCEkaMOKManager& manager, const ConversionArguments& arguments) {
                SetFiler(manager, filer, arguments);
            });
    return pRecord;
}

KZCConvertResultEka* KZCCsvConvMokEka::ELCsvCheck(const char* szCsvPathName, long lCsvDistKey)
{
    constexpr OperationTexts TEXTS = {
        "KZCCsvConvMokEka::ELCsvCheck", "ELCsvCheck NG : 返却値_ErrorMsg:",
        "ELCsvCheck OK : 返却値_ProcID:", "ELCsvCheck OK : 返却値_RecordCount:"};
    RequestSteps::TraceArguments("ELCsvCheck引数", {{"szCsvPathName:", szCsvPathName}});
    RequestSteps::TraceKey("ELCsvCheck引数", lCsvDistKey);
    KZCConvertResultEka* pRecord = StartRecord();
    if (pRecord != nullptr)
        RequestSteps::CheckKept<BaseFamily>(TEXTS, *pRecord, szCsvPathName, lCsvDistKey);
    return pRecord;
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
    constexpr OperationTexts TEXTS = {
        "KZCCsvConvMokEka::ELCsvConvMok",
        "ELCsvConvMok NG : 返却値_ErrorMsg:", "ELCsvConvMok OK : 返却値:S_OK"};
    constexpr const char* STEM = "ELCsvConvMok引数";
    const FilerArguments filer = {.szZeimushoCD = szZeimushoCD,
                                  .szNozeishaId = szNozeishaId,
                                  .szKojinBango = szKojinBango,
                                  .szHojinBango = szHojinBango,
                                  .szNozeishaNm = szNozeishaNm,
                                  .szNozeishaAdr = szNozeishaAdr,
                                  .szDaihyoNm = szDaihyoNm,
                                  .szDairiId = szDairiId,
                                  .szDairiNm = szDairiNm,
                                  .szDairiAdr = szDairiAdr,
                                  .szTetsuzuki = szTetsuzuki,
                                  .szSoftName = EL_SOFT_NAME};
    RequestSteps::TraceKey(STEM, lCsvDistKey);
    TraceFiler(STEM, filer);
    KZCConvertResultEka* pRecord = StartRecord();
    if (pRecord != nullptr)
        RequestSteps::ConvertKept<BaseFamily>(
            TEXTS, *pRecord, lCsvDistKey,
            [&](KZCEkaMOKManager& manager, const ConversionArguments& arguments) {
                SetFiler(manager, filer, arguments);
            });
    return pRecord;
}

KZCConvertResultEka* KZCCsvConvMokEka::CsvWrite(const char* szCsvPath, const char* szData)
{
    RequestSteps::TraceArguments("CsvWrite引数", {{"szCsvPath:", szCsvPath}});
    KZCConvertResultEka* pRecord = StartRecord();
    if (pRecord == nullptr)
        return nullptr;
    RequestSteps::RunClosing(
        BASE_FAMILY, "KZCCsvConvMokEka::CsvWrite", *pRecord, [&](const char*& szResult) {
            if (szCsvPath == nullptr || szData == nullptr) {
                KZCValidResult::instance()->SetFatalError();
            } else if (WriteFileData(szCsvPath, szData)) {
                szResult = PROCESS_OK;
                OutputIF("", "CsvWrite OK : 返却値:S_OK");
                return;
            }
            KZCEkaMOKManager manager;
            OutputIF(RequestSteps::TakeErrors(BASE_FAMILY, manager, *pRecord).c_str(),
                     "CsvWrite NG : 返却値_ErrorMsg:");
        });
    return pRecord;
}

void KZCCsvConvMokEka::Terminate()
{
    // The base manager serves for all families.
    RequestSteps::RunTerminate([] { KZCEkaMOKManager().Terminate(true, true, false); },
                               [] { ReleaseResult(); });
}
