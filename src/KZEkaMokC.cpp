#include <KZEkaMok/KZEkaMokC.h>
#include <KZEkaMok/KZICsvConvMokEka.h>

#include <memory>
#include <new>
#include <string>

struct KZEkaMokResult
{
    std::shared_ptr<KZIConvertResultEka> pOutcome;  ///< never null in the host's hands
};

namespace {

/// Runs one operation of the C++ class. The holder is made first: a request whose outcome could not
/// be handed over is not started.
template <class... Params>
KZEkaMokResult* Run(std::shared_ptr<KZIConvertResultEka> (KZICsvConvMokEka::*pOperation)(Params...),
                    Params... arguments) noexcept
{
    std::unique_ptr<KZEkaMokResult> pResult(new (std::nothrow) KZEkaMokResult);
    if (!pResult)
        return nullptr;
    pResult->pOutcome = (KZICsvConvMokEka().*pOperation)(arguments...);
    return pResult->pOutcome ? pResult.release() : nullptr;
}

const char* Field(const KZEkaMokResult* pResult,
                  const std::string& (KZIConvertResultEka::*pGet)() const) noexcept
{
    return pResult != nullptr ? ((*pResult->pOutcome).*pGet)().c_str() : "";
}

}  // namespace

KZEkaMokResult* KZEkaMok_CsvCheck(const char* szCsvPathName) noexcept
{
    return Run(&KZICsvConvMokEka::CsvCheck, szCsvPathName);
}

KZEkaMokResult* KZEkaMok_CsvConvMok(const char* szCsvPathName,
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
                                    const char* szSoftName) noexcept
{
    return Run(&KZICsvConvMokEka::CsvConvMok, szCsvPathName, szMokPathName, szZeimushoCD,
               szNozeishaId, szKojinBango, szHojinBango, szNozeishaNm, szNozeishaAdr, szDaihyoNm,
               szDairiId, szDairiNm, szDairiAdr, szTetsuzuki, szSoftName);
}

KZEkaMokResult* KZEkaMok_ELCsvCheck(const char* szCsvPathName, int64_t lCsvDistKey) noexcept
{
    return Run(&KZICsvConvMokEka::ELCsvCheck, szCsvPathName, lCsvDistKey);
}

KZEkaMokResult* KZEkaMok_ELCsvConvMok(int64_t lCsvDistKey,
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
                                      const char* szTetsuzuki) noexcept
{
    return Run(&KZICsvConvMokEka::ELCsvConvMok, lCsvDistKey, szZeimushoCD, szNozeishaId,
               szKojinBango, szHojinBango, szNozeishaNm, szNozeishaAdr, szDaihyoNm, szDairiId,
               szDairiNm, szDairiAdr, szTetsuzuki);
}

KZEkaMokResult* KZEkaMok_CsvWrite(const char* szCsvPath, const char* szData) noexcept
{
    return Run(&KZICsvConvMokEka::CsvWrite, szCsvPath, szData);
}

KZEkaMokResult* KZEkaMok_CsvCheckFinance(const char* szCsvPathName) noexcept
{
    return Run(&KZICsvConvMokEka::CsvCheckFinance, szCsvPathName);
}

KZEkaMokResult* KZEkaMok_CsvConvMokFinance(const char* szCsvPathName,
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
                                           const char* szNozeishaZip2) noexcept
{
    return Run(&KZICsvConvMokEka::CsvConvMokFinance, szCsvPathName, szMokPathName, szZeimushoCD,
               szNozeishaId, szKojinBango, szHojinBango, szNozeishaNm, szNozeishaAdr, szDaihyoNm,
               szDairiId, szDairiNm, szDairiAdr, szTetsuzuki, szTeishutsuEra, szTeishutsuYear,
               szTeishutsuMonth, szTeishutsuDay, szSoftName, szNozeishaZip1, szNozeishaZip2);
}

KZEkaMokResult* KZEkaMok_ELCsvCheckFinance(const char* szCsvPathName, int64_t lCsvDistKey) noexcept
{
    return Run(&KZICsvConvMokEka::ELCsvCheckFinance, szCsvPathName, lCsvDistKey);
}

KZEkaMokResult* KZEkaMok_ELCsvConvMokFinance(int64_t lCsvDistKey,
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
                                             const char* szNozeishaZip2) noexcept
{
    return Run(&KZICsvConvMokEka::ELCsvConvMokFinance, lCsvDistKey, szZeimushoCD, szNozeishaId,
               szKojinBango, szHojinBango, szNozeishaNm, szNozeishaAdr, szDaihyoNm, szDairiId,
               szDairiNm, szDairiAdr, szTetsuzuki, szTeishutsuEra, szTeishutsuYear,
               szTeishutsuMonth, szTeishutsuDay, szSoftName, szNozeishaZip1, szNozeishaZip2);
}

KZEkaMokResult* KZEkaMok_CsvCheckCrossBorder(const char* szCsvPathName) noexcept
{
    return Run(&KZICsvConvMokEka::CsvCheckCrossBorder, szCsvPathName);
}

KZEkaMokResult* KZEkaMok_CsvConvMokCrossBorder(const char* szCsvPathName,
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
                                               const char* szSoftName) noexcept
{
    return Run(&KZICsvConvMokEka::CsvConvMokCrossBorder, szCsvPathName, szMokPathName, szZeimushoCD,
               szTeishutsuEra, szTeishutsuYear, szTeishutsuMonth, szTeishutsuDay, szNozeishaId,
               szKojinBango, szHojinBango, szNozeishaNm, szNozeishaZip1, szNozeishaZip2,
               szNozeishaAdr, szDaihyoNm, szDairiId, szDairiNm, szDairiAdr, szTetsuzuki,
               szSoftName);
}

KZEkaMokResult* KZEkaMok_ELCsvCheckCrossBorder(const char* szCsvPathName,
                                               int64_t lCsvDistKey) noexcept
{
    return Run(&KZICsvConvMokEka::ELCsvCheckCrossBorder, szCsvPathName, lCsvDistKey);
}

KZEkaMokResult* KZEkaMok_ELCsvConvMokCrossBorder(int64_t lCsvDistKey,
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
                                                 const char* szSoftName) noexcept
{
    return Run(&KZICsvConvMokEka::ELCsvConvMokCrossBorder, lCsvDistKey, szZeimushoCD,
               szTeishutsuEra, szTeishutsuYear, szTeishutsuMonth, szTeishutsuDay, szNozeishaId,
               szKojinBango, szHojinBango, szNozeishaNm, szNozeishaZip1, szNozeishaZip2,
               szNozeishaAdr, szDaihyoNm, szDairiId, szDairiNm, szDairiAdr, szTetsuzuki,
               szSoftName);
}

void KZEkaMok_Terminate() noexcept
{
    KZICsvConvMokEka().Terminate();
}

const char* KZEkaMokResult_Result(const KZEkaMokResult* pResult) noexcept
{
    return Field(pResult, &KZIConvertResultEka::GetResult);
}

const char* KZEkaMokResult_DetailErrorInfo(const KZEkaMokResult* pResult) noexcept
{
    return Field(pResult, &KZIConvertResultEka::GetDetailErrorInfo);
}

const char* KZEkaMokResult_RecordCount(const KZEkaMokResult* pResult) noexcept
{
    return Field(pResult, &KZIConvertResultEka::GetRecordCount);
}

const char* KZEkaMokResult_ProcId(const KZEkaMokResult* pResult) noexcept
{
    return Field(pResult, &KZIConvertResultEka::GetProcId);
}

const char* KZEkaMokResult_MokData(const KZEkaMokResult* pResult) noexcept
{
    return Field(pResult, &KZIConvertResultEka::GetMokData);
}

void KZEkaMokResult_Free(KZEkaMokResult* pResult) noexcept
{
    delete pResult;
}
