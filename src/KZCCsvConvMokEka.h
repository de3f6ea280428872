// The operations of the library, one per request.
#pragma once

#include <memory>
#include <optional>

#include "KZCConvertResultEka.h"
#include "xml/XercesGuards.h"

/// All texts are NUL-terminated UTF-8 and may be null unless said otherwise. Every operation but
/// Terminate returns the one result record, which stays owned here and shows the last request, or
/// null if it could not be made. No operation throws.
class KZCCsvConvMokEka
{
public:
    KZCCsvConvMokEka();
    virtual ~KZCCsvConvMokEka();
    KZCCsvConvMokEka(const KZCCsvConvMokEka&) = delete;
    KZCCsvConvMokEka& operator=(const KZCCsvConvMokEka&) = delete;

    KZCConvertResultEka* CsvCheck(const char* szCsvPathName);
    KZCConvertResultEka* CsvConvMok(const char* szCsvPathName,
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
                                    const char* szSoftName);
    KZCConvertResultEka* ELCsvCheck(const char* szCsvPathName, long lCsvDistKey);
    KZCConvertResultEka* ELCsvConvMok(long lCsvDistKey,
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
                                      const char* szTetsuzuki);
    /// Saves a text as a Shift_JIS file. \param szData  Taken as Shift_JIS bytes, not as UTF-8.
    KZCConvertResultEka* CsvWrite(const char* szCsvPath, const char* szData);
    KZCConvertResultEka* CsvCheckFinance(const char* szCsvPathName);
    KZCConvertResultEka* CsvConvMokFinance(const char* szCsvPathName,
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
                                           const char* szNozeishaZip2);
    KZCConvertResultEka* ELCsvCheckFinance(const char* szCsvPathName, long lCsvDistKey);
    KZCConvertResultEka* ELCsvConvMokFinance(long lCsvDistKey,
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
                                             const char* szNozeishaZip2);

    KZCConvertResultEka* CsvCheckCrossBorder(const char* szCsvPathName);
    KZCConvertResultEka* CsvConvMokCrossBorder(const char* szCsvPathName,
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
                                               const char* szSoftName);
    KZCConvertResultEka* ELCsvCheckCrossBorder(const char* szCsvPathName, long lCsvDistKey);
    KZCConvertResultEka* ELCsvConvMokCrossBorder(long lCsvDistKey,
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
                                                 const char* szSoftName);

    /// The host's final call.
    void Terminate();

    static bool CreateResult();
    static void ReleaseResult();
    static bool WriteFileData(const char* szCsvPath, const char* szData);
    static void OutputIF(const char* szValue, const char* szLabel);

private:
    /// The result record, emptied; null if it can't be made.
    static KZCConvertResultEka* StartRecord();

    static inline std::unique_ptr<KZCConvertResultEka> m_pResult;

    std::optional<XercesSession> m_session;  ///< begins behind the log, ends before the record
};
