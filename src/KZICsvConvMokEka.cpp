#include <KZEkaMok/KZICsvConvMokEka.h>

#include <initializer_list>

#include "KZCCsvConvMokEka.h"

namespace {

/// One field on its way from the inner record to the host's object.
struct Field
{
    std::string (KZCConvertResultEka::*pGet)() const;
    void (KZIConvertResultEka::*pSet)(std::string);
};

constexpr Field RESULT = {&KZCConvertResultEka::GetResult, &KZIConvertResultEka::SetResult};
constexpr Field DETAIL = {&KZCConvertResultEka::GetDetailErrorInfo,
                          &KZIConvertResultEka::SetDetailErrorInfo};
constexpr Field RECORD_COUNT = {&KZCConvertResultEka::GetRecordCount,
                                &KZIConvertResultEka::SetRecordCount};
constexpr Field PROC_ID = {&KZCConvertResultEka::GetProcId, &KZIConvertResultEka::SetProcId};
constexpr Field MOK_DATA = {&KZCConvertResultEka::GetMokData, &KZIConvertResultEka::SetMokData};

/// Runs one request on an inner object of its own and copies the fields, in their order. Whatever
/// is thrown on the way ends here, and the object is returned as far as it was filled.
template <class Request>
std::shared_ptr<KZIConvertResultEka> RunRequest(std::initializer_list<Field> fields,
                                                Request request) noexcept
{
    std::shared_ptr<KZIConvertResultEka> pResult;
    try {
        pResult = std::make_shared<KZIConvertResultEka>();
        pResult->initialize();
        KZCCsvConvMokEka inner;
        if (const KZCConvertResultEka* pRecord = request(inner))
            for (const Field& field : fields)
                ((*pResult).*field.pSet)((pRecord->*field.pGet)());
    } catch (...) {
        return pResult;
    }
    return pResult;
}

}  // namespace

std::shared_ptr<KZIConvertResultEka> KZICsvConvMokEka::CsvCheck(const char* szCsvPathName)
{
    return RunRequest({PROC_ID, RESULT, DETAIL},
                      [&](KZCCsvConvMokEka& inner) { return inner.CsvCheck(szCsvPathName); });
}

std::shared_ptr<KZIConvertResultEka> KZICsvConvMokEka::CsvConvMok(const char* szCsvPathName,
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
    return RunRequest({RESULT, DETAIL}, [&](KZCCsvConvMokEka& inner) {
        return inner.CsvConvMok(szCsvPathName, szMokPathName, szZeimushoCD, szNozeishaId,
                                szKojinBango, szHojinBango, szNozeishaNm, szNozeishaAdr, szDaihyoNm,
                                szDairiId, szDairiNm, szDairiAdr, szTetsuzuki, szSoftName);
    });
}

std::shared_ptr<KZIConvertResultEka> KZICsvConvMokEka::ELCsvCheck(const char* szCsvPathName,
                                                                  std::int64_t lCsvDistKey)
{
    return RunRequest({PROC_ID, RECORD_COUNT, RESULT, DETAIL}, [&](KZCCsvConvMokEka& inner) {
        return inner.ELCsvCheck(szCsvPathName, lCsvDistKey);
    });
}

std::shared_ptr<KZIConvertResultEka> KZICsvConvMokEka::ELCsvConvMok(std::int64_t lCsvDistKey,
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
    // The checks of the same key have already told the procedure id.
    return RunRequest({RESULT, DETAIL, MOK_DATA}, [&](KZCCsvConvMokEka& inner) {
        return inner.ELCsvConvMok(lCsvDistKey, szZeimushoCD, szNozeishaId, szKojinBango,
                                  szHojinBango, szNozeishaNm, szNozeishaAdr, szDaihyoNm, szDairiId,
                                  szDairiNm, szDairiAdr, szTetsuzuki);
    });
}

std::shared_ptr<KZIConvertResultEka> KZICsvConvMokEka::CsvWrite(const char* szCsvPath,
                                                                const char* szData)
{
    return RunRequest({RESULT, DETAIL},
                      [&](KZCCsvConvMokEka& inner) { return inner.CsvWrite(szCsvPath, szData); });
}

std::shared_ptr<KZIConvertResultEka> KZICsvConvMokEka::CsvCheckFinance(const char* szCsvPathName)
{
    return RunRequest({PROC_ID, RESULT, DETAIL}, [&](KZCCsvConvMokEka& inner) {
        return inner.CsvCheckFinance(szCsvPathName);
    });
}

std::shared_ptr<KZIConvertResultEka> KZICsvConvMokEka::CsvConvMokFinance(
    const char* szCsvPathName,
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
    return RunRequest({RESULT, DETAIL}, [&](KZCCsvConvMokEka& inner) {
        return inner.CsvConvMokFinance(szCsvPathName, szMokPathName, szZeimushoCD, szNozeishaId,
                                       szKojinBango, szHojinBango, szNozeishaNm, szNozeishaAdr,
                                       szDaihyoNm, szDairiId, szDairiNm, szDairiAdr, szTetsuzuki,
                                       szTeishutsuEra, szTeishutsuYear, szTeishutsuMonth,
                                       szTeishutsuDay, szSoftName, szNozeishaZip1, szNozeishaZip2);
    });
}

std::shared_ptr<KZIConvertResultEka> KZICsvConvMokEka::ELCsvCheckFinance(const char* szCsvPathName,
                                                                         std::int64_t lCsvDistKey)
{
    return RunRequest({PROC_ID, RECORD_COUNT, RESULT, DETAIL}, [&](KZCCsvConvMokEka& inner) {
        return inner.ELCsvCheckFinance(szCsvPathName, lCsvDistKey);
    });
}

std::shared_ptr<KZIConvertResultEka> KZICsvConvMokEka::ELCsvConvMokFinance(
    std::int64_t lCsvDistKey,
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
    return RunRequest({RESULT, DETAIL, MOK_DATA}, [&](KZCCsvConvMokEka& inner) {
        return inner.ELCsvConvMokFinance(
            lCsvDistKey, szZeimushoCD, szNozeishaId, szKojinBango, szHojinBango, szNozeishaNm,
            szNozeishaAdr, szDaihyoNm, szDairiId, szDairiNm, szDairiAdr, szTetsuzuki,
            szTeishutsuEra, szTeishutsuYear, szTeishutsuMonth, szTeishutsuDay, szSoftName,
            szNozeishaZip1, szNozeishaZip2);
    });
}

std::shared_ptr<KZIConvertResultEka> KZICsvConvMokEka::CsvCheckCrossBorder(
    const char* szCsvPathName)
{
    return RunRequest({PROC_ID, RESULT, DETAIL}, [&](KZCCsvConvMokEka& inner) {
        return inner.CsvCheckCrossBorder(szCsvPathName);
    });
}

std::shared_ptr<KZIConvertResultEka> KZICsvConvMokEka::CsvConvMokCrossBorder(
    const char* szCsvPathName,
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
    return RunRequest({RESULT, DETAIL}, [&](KZCCsvConvMokEka& inner) {
        return inner.CsvConvMokCrossBorder(
            szCsvPathName, szMokPathName, szZeimushoCD, szTeishutsuEra, szTeishutsuYear,
            szTeishutsuMonth, szTeishutsuDay, szNozeishaId, szKojinBango, szHojinBango,
            szNozeishaNm, szNozeishaZip1, szNozeishaZip2, szNozeishaAdr, szDaihyoNm, szDairiId,
            szDairiNm, szDairiAdr, szTetsuzuki, szSoftName);
    });
}

std::shared_ptr<KZIConvertResultEka> KZICsvConvMokEka::ELCsvCheckCrossBorder(
    const char* szCsvPathName, std::int64_t lCsvDistKey)
{
    return RunRequest({PROC_ID, RECORD_COUNT, RESULT, DETAIL}, [&](KZCCsvConvMokEka& inner) {
        return inner.ELCsvCheckCrossBorder(szCsvPathName, lCsvDistKey);
    });
}

std::shared_ptr<KZIConvertResultEka> KZICsvConvMokEka::ELCsvConvMokCrossBorder(
    std::int64_t lCsvDistKey,
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
    return RunRequest({RESULT, DETAIL, MOK_DATA}, [&](KZCCsvConvMokEka& inner) {
        return inner.ELCsvConvMokCrossBorder(
            lCsvDistKey, szZeimushoCD, szTeishutsuEra, szTeishutsuYear, szTeishutsuMonth,
            szTeishutsuDay, szNozeishaId, szKojinBango, szHojinBango, szNozeishaNm, szNozeishaZip1,
            szNozeishaZip2, szNozeishaAdr, szDaihyoNm, szDairiId, szDairiNm, szDairiAdr,
            szTetsuzuki, szSoftName);
    });
}

void KZICsvConvMokEka::Terminate()
{
    try {
        KZCCsvConvMokEka().Terminate();
    } catch (...) {
        return;
    }
}
