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
    /// Checks a CSV file and forgets it.
    /// Sets ProcId and Result, on failure Result and DetailErrorInfo.
    /// \param szCsvPathName  Path of a Shift_JIS file ending in .csv, .CSV, .txt or .TXT.
    std::shared_ptr<KZIConvertResultEka> CsvCheck(const char* szCsvPathName);

    /// Turns a CSV file into a document file. The columns aren't checked again: call CsvCheck
    /// first. Sets Result, on failure DetailErrorInfo too. Errors of an argument name its number
    /// from 1. \param szMokPathName  Path of the document, ending in .mok or .MOK, in a folder that
    /// exists.
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

    /// Checks a CSV file and keeps it under a key for ELCsvConvMok. A plain request (CsvCheck,
    /// CsvConvMok) ends all keys.
    /// Sets ProcId, RecordCount and Result, on failure Result and DetailErrorInfo.
    /// \param lCsvDistKey  1 to 5.
    std::shared_ptr<KZIConvertResultEka> ELCsvCheck(const char* szCsvPathName,
                                                    std::int64_t lCsvDistKey);

    /// Turns a kept file into a document in memory; the key stays.
    /// Sets Result and MokData, on failure Result and DetailErrorInfo.
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
    /// \param szData  Taken as Shift_JIS bytes, NOT as UTF-8: a UTF-8 text in Japanese is refused
    /// or
    ///     comes out as other characters.
    std::shared_ptr<KZIConvertResultEka> CsvWrite(const char* szCsvPath, const char* szData);

    /// Ends all keys and frees what the library holds. The host's final call; it may be repeated.
    void Terminate();
};
