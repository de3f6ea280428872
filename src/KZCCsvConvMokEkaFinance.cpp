// The operations of the Finance family.
#include "KZCCsvConvMokEka.h"
#include "KZCEkaMOKManagerFinance.h"
#include "family/FamilyTraits.h"
#include "request/RequestSteps.h"

namespace {

using RequestSteps::FilerArguments;
using RequestSteps::OperationTexts;

struct FinanceFamily
{
    using Manager = KZCEkaMOKManagerFinance;

    static constexpr const FamilyTraits& TRAITS = FINANCE_FAMILY;

    static int LoadForCheck(Manager& manager)
    {
        return manager.LoadCsvWithDefinitionFinance_Check();
    }
    /// The EL path has read the file before.
    static int LoadForConversion(Manager& manager, bool bPlain)
    {
        return manager.LoadCsvWithDefinitionFinance_Conv(bPlain);
    }
};

/// Stores the filer's fields. A bad value leaves its error in the result store.
void SetFiler(KZCEkaMOKManagerFinance& manager,
              const FilerArguments& filer,
              const ConversionArguments& arguments)
{
    RequestSteps::SetFamilyFiler(filer, arguments,
                                 [&](KZCEkaITDataFinance_t eId, const char* szValue) {
                                     manager.SetITDataFinance(eId, szValue);
                                 });
}

}  // namespace

KZCConvertResultEka* KZCCsvConvMokEka::CsvCheckFinance(const char* szCsvPathName)
{
    constexpr OperationTexts TEXTS = {
        "KZCCsvConvMokEka::CsvCheckFinance",
        "CsvCheckFinance NG : 返却値_ErrorMsg:", "CsvCheckFinance OK : 返却値_ProcID:"};
    RequestSteps::TraceArguments("CsvCheckFinance引数_", {{"szCsvPathName:", szCsvPathName}});
    KZCConvertResultEka* pRecord = StartRecord();
    if (pRecord != nullptr)
        RequestSteps::CheckPlain<FinanceFamily>(TEXTS, *pRecord, szCsvPathName);
    return pRecord;
}

KZCConvertResultEka* KZCCsvConvMokEka::CsvConvMokFinance(const char* szCsvPathName,
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
                                                         const char* szTeishutsuEra,
                                                         const char* szTeishutsuYear,
                                                         const char* szTeishutsuMonth,
                                                         const char* szTeishutsuDay,
                                                         const char* szSoftName,
                                                         const char* szNozeishaZip1,
                                                         const char* szNozeishaZip2)
{
    constexpr OperationTexts TEXTS = {
        "KZCCsvConvMokEka::CsvConvMokFinance",
        "CsvConvMokFinance NG : 返却値_ErrorMsg:", "CsvConvMok OK : 返却値:S_OK"};
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
                                  .szSoftName = szSoftName,
                                  .szTeishutsuEra = szTeishutsuEra,
                                  .szTeishutsuYear = szTeishutsuYear,
                                  .szTeishutsuMonth = szTeishutsuMonth,
                                  .szTeishutsuDay = szTeishutsuDay,
                                  .szNozeishaZip1 = szNozeishaZip1,
                                  .szNozeishaZip2 = szNozeishaZip2};
    // The labels name no family, and those of the date end in a full-width colon: wanted.
    RequestSteps::TraceArguments("CsvConvMok引数_", {{"szCsvPathName:", szCsvPathName},
                                                     {"szMokPathName:", szMokPathName},
                                                     {"szZeimushoCD:", szZeimushoCD},
                                                     {"szNozeishaId:", szNozeishaId},
                                                     {"szKojinBango:", szKojinBango},
                                                     {"szHojinBango:", szHojinBango},
                                                     {"szNozeishaNm:", szNozeishaNm},
                                                     {"szNozeishaAdr:", szNozeishaAdr},
                                                     {"szDaihyoNm:", szDaihyoNm},
                                                     {"szDairiId:", szDairiId},
                                                     {"szDairiNm:", szDairiNm},
                                                     {"szDairiAdr:", szDairiAdr},
                                                     {"szTetsuzuki:", szTetsuzuki},
                                                     {"szTeishutsuEra：", szTeishutsuEra},
                                                     {"szTeishutsuYear：", szTeishutsuYear},
                                                     {"szTeishutsuMonth：", szTeishutsuMonth},
                                                     {"szTeishutsuDay：", szTeishutsuDay},
                                                     {"szSoftNm:", szSoftName},
                                                     {"szNozeishaZip1:", szNozeishaZip1},
                                                     {"szNozeishaZip2:", szNozeishaZip2}});
    KZCConvertResultEka* pRecord = StartRecord();
    if (pRecord != nullptr)
        RequestSteps::ConvertPlain<FinanceFamily>(
            TEXTS, *pRecord, szCsvPathName, szMokPathName,
            [&](KZCEkaMOKManagerFinance& manager, const ConversionArguments& arguments) {
                SetFiler(manager, filer, arguments);
            });
    return pRecord;
}

KZCConvertResultEka* KZCCsvConvMokEka::ELCsvCheckFinance(const char* szCsvPathName,
                                                         long lCsvDistKey)
{
    constexpr OperationTexts TEXTS = {
        "KZCCsvConvMokEka::ELCsvCheckFinance", "ELCsvCheckFinance NG : 返却値_ErrorMsg:",
        "ELCsvCheckFinance OK : 返却値_ProcID:", "ELCsvCheckFinance OK : 返却値_RecordCount:"};
    RequestSteps::TraceArguments("ELCsvCheckFinance引数_", {{"szCsvPathName:", szCsvPathName}});
    RequestSteps::TraceKey("ELCsvCheckFinance引数_", lCsvDistKey);
    KZCConvertResultEka* pRecord = StartRecord();
    if (pRecord != nullptr)
        RequestSteps::CheckKept<FinanceFamily>(TEXTS, *pRecord, szCsvPathName, lCsvDistKey);
    return pRecord;
}

KZCConvertResultEka* KZCCsvConvMokEka::ELCsvConvMokFinance(long lCsvDistKey,
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
                                                           const char* szTeishutsuEra,
                                                           const char* szTeishutsuYear,
                                                           const char* szTeishutsuMonth,
                                                           const char* szTeishutsuDay,
                                                           const char* szSoftName,
                                                           const char* szNozeishaZip1,
                                                           const char* szNozeishaZip2)
{
    constexpr OperationTexts TEXTS = {
        "KZCCsvConvMokEka::ELCsvConvMokFinance",
        "ELCsvConvMokFinance NG : 返却値_ErrorMsg:", "ELCsvConvMokFinance OK : 返却値:S_OK"};
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
                                  .szSoftName = szSoftName,
                                  .szTeishutsuEra = szTeishutsuEra,
                                  .szTeishutsuYear = szTeishutsuYear,
                                  .szTeishutsuMonth = szTeishutsuMonth,
                                  .szTeishutsuDay = szTeishutsuDay,
                                  .szNozeishaZip1 = szNozeishaZip1,
                                  .szNozeishaZip2 = szNozeishaZip2};
    RequestSteps::TraceKey("ELCsvConvMok引数_", lCsvDistKey);
    RequestSteps::TraceArguments("ELCsvConvMok引数_", {{"szZeimushoCD:", szZeimushoCD},
                                                       {"szNozeishaId:", szNozeishaId},
                                                       {"szKojinBango:", szKojinBango},
                                                       {"szHojinBango:", szHojinBango},
                                                       {"szNozeishaNm:", szNozeishaNm},
                                                       {"szNozeishaAdr:", szNozeishaAdr},
                                                       {"szDaihyoNm:", szDaihyoNm},
                                                       {"szDairiId:", szDairiId},
                                                       {"szDairiNm:", szDairiNm},
                                                       {"szDairiAdr:", szDairiAdr},
                                                       {"szTetsuzuki:", szTetsuzuki},
                                                       {"szTeishutsuEra:", szTeishutsuEra},
                                                       {"szTeishutsuYear:", szTeishutsuYear},
                                                       {"szTeishutsuMonth:", szTeishutsuMonth},
                                                       {"szTeishutsuDay:", szTeishutsuDay},
                                                       {"SoftName:", szSoftName},
                                                       {"szNozeishaZip1:", szNozeishaZip1},
                                                       {"szNozeishaZip2:", szNozeishaZip2}});
    KZCConvertResultEka* pRecord = StartRecord();
    if (pRecord != nullptr)
        RequestSteps::ConvertKept<FinanceFamily>(
            TEXTS, *pRecord, lCsvDistKey,
            [&](KZCEkaMOKManagerFinance& manager, const ConversionArguments& arguments) {
                SetFiler(manager, filer, arguments);
            });
    return pRecord;
}
