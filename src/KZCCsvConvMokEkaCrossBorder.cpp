// The operations of the CrossBorder family.
#include "KZCCsvConvMokEka.h"
#include "KZCEkaMOKManagerCrossBorder.h"
#include "family/FamilyTraits.h"
#include "request/RequestSteps.h"

namespace {

using RequestSteps::FilerArguments;
using RequestSteps::OperationTexts;

struct CrossBorderFamily
{
    using Manager = KZCEkaMOKManagerCrossBorder;

    static constexpr const FamilyTraits& TRAITS = CROSSBORDER_FAMILY;

    static int LoadForCheck(Manager& manager)
    {
        return manager.LoadCsvWithDefinitionCrossBorder_Check();
    }
    /// The EL path has read the file before.
    static int LoadForConversion(Manager& manager, bool bPlain)
    {
        return manager.LoadCsvWithDefinitionCrossBorder_Conv(bPlain);
    }
};

/// Stores the filer's fields. A bad value leaves its error in the result store.
void SetFiler(KZCEkaMOKManagerCrossBorder& manager,
              const FilerArguments& filer,
              const ConversionArguments& arguments)
{
    RequestSteps::SetFamilyFiler(filer, arguments,
                                 [&](KZCEkaITDataCrossBorder_t eId, const char* szValue) {
                                     manager.SetITDataCrossBorder(eId, szValue);
                                 });
}

}  // namespace

KZCConvertResultEka* KZCCsvConvMokEka::CsvCheckCrossBorder(const char* szCsvPathName)
{
    constexpr OperationTexts TEXTS = {
        "CsvCheckCrossBorder",
        "CsvCheckCrossBorder NG : 返却値_ErrorMsg:", "CsvCheckCrossBorder OK : 返却値:S_OK"};
    RequestSteps::TraceArguments("CsvCheckCrossBorder引数_", {{"szCsvPathName:", szCsvPathName}});
    KZCConvertResultEka* pRecord = StartRecord();
    if (pRecord != nullptr)
        RequestSteps::CheckPlain<CrossBorderFamily>(TEXTS, *pRecord, szCsvPathName);
    return pRecord;
}

KZCConvertResultEka* KZCCsvConvMokEka::CsvConvMokCrossBorder(const char* szCsvPathName,
                                                             const char* szMokPathName,
                                                             const char* szZeimushoCD,
                                                             const char* szTeishutsuEra,
                                                             const char* szTeishutsuYear,
                                                             const char* szTeishutsuMonth,
                                                             const char* szTeishutsuDay,
                                                             const char* szNozeishaId,
                                                             const char* szKojinBango,
                                                             const char* szHojinBango,
                                                             const char* szNozeishaNm,
                                                             const char* szNozeishaZip1,
                                                             const char* szNozeishaZip2,
                                                             const char* szNozeishaAdr,
                                                             const char* szDaihyoNm,
                                                             const char* szDairiId,
                                                             const char* szDairiNm,
                                                             const char* szDairiAdr,
                                                             const char* szTetsuzuki,
                                                             const char* szSoftName)
{
    constexpr OperationTexts TEXTS = {
        "CsvConvMokCrossBorder",
        "CsvConvMokCrossBorder NG : 返却値_ErrorMsg:", "CsvConvMokCrossBorder返却値:S_OK"};
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
    // The labels of the date end in a full-width colon: wanted.
    RequestSteps::TraceArguments("CsvConvMokCrossBorder引数_",
                                 {{"szCsvPathName:", szCsvPathName},
                                  {"szMokPathName:", szMokPathName},
                                  {"szZeimushoCD:", szZeimushoCD},
                                  {"szTeishutsuEra：", szTeishutsuEra},
                                  {"szTeishutsuYear：", szTeishutsuYear},
                                  {"szTeishutsuMonth：", szTeishutsuMonth},
                                  {"szTeishutsuDay：", szTeishutsuDay},
                                  {"szNozeishaId:", szNozeishaId},
                                  {"szKojinBango:", szKojinBango},
                                  {"szHojinBango:", szHojinBango},
                                  {"szNozeishaNm:", szNozeishaNm},
                                  {"szNozeishaZip1:", szNozeishaZip1},
                                  {"szNozeishaZip2:", szNozeishaZip2},
                                  {"szNozeishaAdr:", szNozeishaAdr},
                                  {"szDaihyoNm:", szDaihyoNm},
                                  {"szDairiId:", szDairiId},
                                  {"szDairiNm:", szDairiNm},
                                  {"szDairiAdr:", szDairiAdr},
                                  {"szTetsuzuki:", szTetsuzuki},
                                  {"szSoftName:", szSoftName}});
    KZCConvertResultEka* pRecord = StartRecord();
    if (pRecord != nullptr)
        RequestSteps::ConvertPlain<CrossBorderFamily>(
            TEXTS, *pRecord, szCsvPathName, szMokPathName,
            [&](KZCEkaMOKManagerCrossBorder& manager, const ConversionArguments& arguments) {
                SetFiler(manager, filer, arguments);
            });
    return pRecord;
}

KZCConvertResultEka* KZCCsvConvMokEka::ELCsvCheckCrossBorder(const char* szCsvPathName,
                                                             long lCsvDistKey)
{
    constexpr OperationTexts TEXTS = {
        "ELCsvCheckCrossBorder",
        "ELCsvCheckCrossBorder NG : 返却値_ErrorMsg:", "ELCsvCheckCrossBorder OK : 返却値_ProcID:",
        "ELCsvCheckCrossBorder OK : 返却値_RecordCount:"};
    RequestSteps::TraceArguments("ELCsvCheckCrossBorder引数_", {{"szCsvPathName:", szCsvPathName}});
    RequestSteps::TraceKey("ELCsvCheckCrossBorder引数_", lCsvDistKey);
    KZCConvertResultEka* pRecord = StartRecord();
    if (pRecord != nullptr)
        RequestSteps::CheckKept<CrossBorderFamily>(TEXTS, *pRecord, szCsvPathName, lCsvDistKey);
    return pRecord;
}

KZCConvertResultEka* KZCCsvConvMokEka::ELCsvConvMokCrossBorder(long lCsvDistKey,
                                                               const char* szZeimushoCD,
                                                               const char* szTeishutsuEra,
                                                               const char* szTeishutsuYear,
                                                               const char* szTeishutsuMonth,
                                                               const char* szTeishutsuDay,
                                                               const char* szNozeishaId,
                                                               const char* szKojinBango,
                                                               const char* szHojinBango,
                                                               const char* szNozeishaNm,
                                                               const char* szNozeishaZip1,
                                                               const char* szNozeishaZip2,
                                                               const char* szNozeishaAdr,
                                                               const char* szDaihyoNm,
                                                               const char* szDairiId,
                                                               const char* szDairiNm,
                                                               const char* szDairiAdr,
                                                               const char* szTetsuzuki,
                                                               const char* szSoftName)
{
    constexpr OperationTexts TEXTS = {"ELCsvConvMokCrossBorder",
                                      "ELCsvConvMokCrossBorder NG : 返却値_ErrorMsg:",
                                      "ELCsvConvMokCrossBorder OK : 返却値:S_OK"};
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
    RequestSteps::TraceKey("ELCsvConvMokCrossBorder引数_", lCsvDistKey);
    RequestSteps::TraceArguments("ELCsvConvMokCrossBorder引数_",
                                 {{"szZeimushoCD:", szZeimushoCD},
                                  {"szTeishutsuEra:", szTeishutsuEra},
                                  {"szTeishutsuYear:", szTeishutsuYear},
                                  {"szTeishutsuMonth:", szTeishutsuMonth},
                                  {"szTeishutsuDay:", szTeishutsuDay},
                                  {"szNozeishaId:", szNozeishaId},
                                  {"szKojinBango:", szKojinBango},
                                  {"szHojinBango:", szHojinBango},
                                  {"szNozeishaNm:", szNozeishaNm},
                                  {"szNozeishaZip1:", szNozeishaZip1},
                                  {"szNozeishaZip2:", szNozeishaZip2},
                                  {"szNozeishaAdr:", szNozeishaAdr},
                                  {"szDaihyoNm:", szDaihyoNm},
                                  {"szDairiId:", szDairiId},
                                  {"szDairiNm:", szDairiNm},
                                  {"szDairiAdr:", szDairiAdr},
                                  {"szTetsuzuki:", szTetsuzuki},
                                  {"szSoftName:", szSoftName}});
    KZCConvertResultEka* pRecord = StartRecord();
    if (pRecord != nullptr)
        RequestSteps::ConvertKept<CrossBorderFamily>(
            TEXTS, *pRecord, lCsvDistKey,
            [&](KZCEkaMOKManagerCrossBorder& manager, const ConversionArguments& arguments) {
                SetFiler(manager, filer, arguments);
            });
    return pRecord;
}
