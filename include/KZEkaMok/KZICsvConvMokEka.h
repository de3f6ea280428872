/// \file
/// The operations of the library for C++ hosts.
#pragma once

#include <cstdint>
#include <memory>

#include <KZEkaMok/KZEkaMokExport.h>
#include <KZEkaMok/KZIConvertResultEka.h>

/// Checks CSV files and turns them into filing documents.
///
/// Texts are NUL-terminated UTF-8; a null pointer omits a value. Every operation but Terminate
/// returns a new result that belongs to the host, or null if not even that could be made. No
/// operation throws. The object itself has no state: what survives between calls (the files kept by
/// ELCsvCheck) is process-wide. Not thread-safe: call from one thread, one request at a time.
class KZEKAMOK_EXPORT KZICsvConvMokEka
{
public:
    /// Checks a CSV file and forgets it. Ends all keys.
    /// Sets ProcId and Result, on failure Result and DetailErrorInfo.
    /// Never two requests at once: on two threads they crash.
    /// \param szCsvPathName  Path of a Shift_JIS file ending in .csv, .CSV, .txt or .TXT.
    std::shared_ptr<KZIConvertResultEka> CsvCheck(const char* szCsvPathName);

    /// Turns a CSV file into a document file. The columns aren't checked again: call CsvCheck
    /// first. Sets Result, on failure DetailErrorInfo too. Errors of an argument name its number
    /// from 1.
    /// Never two requests at once: on two threads they crash.
    /// \param szMokPathName  Path of the document, ending in .mok or .MOK, in a folder that exists.
    ///     An existing file is replaced.
    /// \param szZeimushoCD   Tax office, 5 digits.
    /// \param szNozeishaId   Filer's id, 16 digits.
    /// \param szKojinBango   Personal number, 12 digits, or empty. Not together with szHojinBango.
    /// \param szHojinBango   Corporate number, 13 digits, or empty.
    /// \param szNozeishaNm   Filer's name, up to 30 characters.
    /// \param szNozeishaAdr  Filer's address, up to 100 characters.
    /// \param szDaihyoNm     Representative's name, up to 30 characters, or empty.
    /// \param szDairiId      Agent's id, 16 digits, or empty.
    /// \param szDairiNm      Agent's name, up to 30 characters, or empty.
    /// \param szDairiAdr     Agent's address, up to 100 characters, or empty.
    /// \param szTetsuzuki    Procedure id, which must be the file's.
    /// \param szSoftName     Name of the host's software, up to 30 characters.
    std::shared_ptr<KZIConvertResultEka> CsvConvMok(const char* szCsvPathName,
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

    /// Checks a CSV file and keeps it under a key for ELCsvConvMok. Every plain request (CsvCheck,
    /// CsvConvMok and those of the other families) and every request of another family ends all
    /// keys. A failure in the file drops what the key held before.
    /// Sets ProcId, RecordCount and Result, on failure Result and DetailErrorInfo.
    /// Never two requests at once: on two threads they crash.
    /// \param lCsvDistKey  1 to 5.
    std::shared_ptr<KZIConvertResultEka> ELCsvCheck(const char* szCsvPathName,
                                                    std::int64_t lCsvDistKey);

    /// Turns a kept file into a document in memory; the key stays.
    /// Sets Result and MokData, on failure Result and DetailErrorInfo.
    /// Never two requests at once: on two threads they crash.
    std::shared_ptr<KZIConvertResultEka> ELCsvConvMok(std::int64_t lCsvDistKey,
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

    /// Saves a text as a Shift_JIS file. Sets Result, on failure DetailErrorInfo too.
    /// Never two requests at once: on two threads they crash.
    /// \param szCsvPath  Path of the file, in a folder that exists. An existing file is replaced.
    /// \param szData     Taken as Shift_JIS bytes, NOT as UTF-8: Japanese in UTF-8 is refused or
    ///     comes out as other characters.
    std::shared_ptr<KZIConvertResultEka> CsvWrite(const char* szCsvPath, const char* szData);

    /// The same for the Finance family, whose equal errors are told once.
    /// Never two requests at once: on two threads they crash.
    std::shared_ptr<KZIConvertResultEka> CsvCheckFinance(const char* szCsvPathName);

    /// As CsvConvMok, with the day of filing and the filer's postal code.
    /// Never two requests at once: on two threads they crash.
    /// \param szTeishutsuEra    Era of the day of filing: 1 to 5, the era codes of CSV columns.
    /// \param szTeishutsuYear   Year of the era, 1 to 99.
    /// \param szTeishutsuMonth  1 to 12.
    /// \param szTeishutsuDay    1 to 31.
    /// \param szNozeishaZip1    First 3 digits of the postal code. Both parts or neither.
    /// \param szNozeishaZip2    Last 4 digits.
    std::shared_ptr<KZIConvertResultEka> CsvConvMokFinance(const char* szCsvPathName,
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

    /// As ELCsvCheck.
    /// Never two requests at once: on two threads they crash.
    /// \param lCsvDistKey  1 to 16.
    std::shared_ptr<KZIConvertResultEka> ELCsvCheckFinance(const char* szCsvPathName,
                                                           std::int64_t lCsvDistKey);

    /// As ELCsvConvMok, with the arguments of CsvConvMokFinance. Errors of a pair of arguments name
    /// the numbers that they have there, one higher than here: 5 and 6 if both szKojinBango and
    /// szHojinBango are given, 19 for a missing szNozeishaZip1, 20 for a missing szNozeishaZip2.
    /// Never two requests at once: on two threads they crash.
    std::shared_ptr<KZIConvertResultEka> ELCsvConvMokFinance(std::int64_t lCsvDistKey,
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

    /// The same for the CrossBorder family, whose values may stand in double quotes. A fault of one
    /// of its steps is told as in the other families, by "0000-00000-HE70018E"; one between the
    /// steps (memory that runs out, above all) of CsvCheckCrossBorder and CsvConvMokCrossBorder
    /// leaves "E_FAIL" with an empty DetailErrorInfo. Never two requests at once: on two threads
    /// they crash.
    std::shared_ptr<KZIConvertResultEka> CsvCheckCrossBorder(const char* szCsvPathName);

    /// As CsvConvMokFinance, with the arguments in another order.
    /// Never two requests at once: on two threads they crash.
    std::shared_ptr<KZIConvertResultEka> CsvConvMokCrossBorder(const char* szCsvPathName,
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

    /// As ELCsvCheck.
    /// Never two requests at once: on two threads they crash.
    /// \param lCsvDistKey  1 to 10.
    std::shared_ptr<KZIConvertResultEka> ELCsvCheckCrossBorder(const char* szCsvPathName,
                                                               std::int64_t lCsvDistKey);

    /// As ELCsvConvMok, with the arguments of CsvConvMokCrossBorder.
    /// Never two requests at once: on two threads they crash.
    std::shared_ptr<KZIConvertResultEka> ELCsvConvMokCrossBorder(std::int64_t lCsvDistKey,
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

    /// Ends all keys and frees what the library holds. The host's final call; it may be repeated.
    /// Never two requests at once: on two threads they crash.
    void Terminate();
};
