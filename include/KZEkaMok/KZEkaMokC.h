/// \file
/// The operations of the library for hosts in C and in any language that calls C functions. C99.
///
/// Texts are NUL-terminated UTF-8; a null pointer omits a value. The library reads its arguments
/// during the call only. Every operation but KZEkaMok_Terminate returns a new result that belongs
/// to the host, which gives it back with KZEkaMokResult_Free; null if not even that could be made.
/// No operation throws. What survives between calls (the files kept under keys by
/// KZEkaMok_ELCsvCheck and its like) is process-wide: a plain check or conversion of any family,
/// every request of another family and KZEkaMok_Terminate end all keys. Not thread-safe: call from
/// one thread, one request at a time.
///
/// \code
///     KZEkaMokResult* pResult = KZEkaMok_CsvCheck("form.csv");
///     if (strcmp(KZEkaMokResult_Result(pResult), PROCESS_OK) != 0)
///         puts(KZEkaMokResult_DetailErrorInfo(pResult));
///     KZEkaMokResult_Free(pResult);
///     KZEkaMok_Terminate();
/// \endcode
#pragma once

#include <stdint.h>  // NOLINT(modernize-deprecated-headers): C has no other

#include <KZEkaMok/KZEkaMokConstants.h>
#include <KZEkaMok/KZEkaMokExport.h>

#ifdef __cplusplus
extern "C"
{
#endif

    /// The outcome of a request: five texts. A field that a request doesn't set is empty.
    typedef struct KZEkaMokResult KZEkaMokResult;  // NOLINT(modernize-use-using): the same

    /// Checks a CSV file and forgets it. Ends all keys.
    /// Sets ProcId and Result, on failure Result and DetailErrorInfo.
    /// Never two requests at once: on two threads they crash.
    /// \param szCsvPathName  Path of a Shift_JIS file ending in .csv, .CSV, .txt or .TXT.
    KZEKAMOK_EXPORT KZEkaMokResult* KZEkaMok_CsvCheck(const char* szCsvPathName) KZEKAMOK_NOEXCEPT;

    /// Turns a CSV file into a document file. The columns aren't checked again: call
    /// KZEkaMok_CsvCheck first. Ends all keys. Sets Result, on failure DetailErrorInfo too.
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
    KZEKAMOK_EXPORT KZEkaMokResult* KZEkaMok_CsvConvMok(const char* szCsvPathName,
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
                                                        const char* szSoftName) KZEKAMOK_NOEXCEPT;

    /// Checks a CSV file and keeps it under a key for KZEkaMok_ELCsvConvMok. A failure in the
    /// file drops what the key held before.
    /// Sets ProcId, RecordCount and Result, on failure Result and DetailErrorInfo.
    /// Never two requests at once: on two threads they crash.
    /// \param lCsvDistKey  1 to 5.
    KZEKAMOK_EXPORT KZEkaMokResult* KZEkaMok_ELCsvCheck(const char* szCsvPathName,
                                                        int64_t lCsvDistKey) KZEKAMOK_NOEXCEPT;

    /// Turns a kept file into a document in memory; the key stays.
    /// Sets Result and MokData, on failure Result and DetailErrorInfo.
    /// Never two requests at once: on two threads they crash.
    KZEKAMOK_EXPORT KZEkaMokResult* KZEkaMok_ELCsvConvMok(int64_t lCsvDistKey,
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
        KZEKAMOK_NOEXCEPT;

    /// Saves a text as a Shift_JIS file; keys stay. Sets Result, on failure DetailErrorInfo too.
    /// Never two requests at once: on two threads they crash.
    /// \param szCsvPath  Path of the file, in a folder that exists. An existing file is replaced.
    /// \param szData     Taken as Shift_JIS bytes, NOT as UTF-8: Japanese in UTF-8 is refused or
    ///     comes out as other characters.
    KZEKAMOK_EXPORT KZEkaMokResult* KZEkaMok_CsvWrite(const char* szCsvPath,
                                                      const char* szData) KZEKAMOK_NOEXCEPT;

    /// As KZEkaMok_CsvCheck, for the Finance family, whose equal errors are told once.
    /// Never two requests at once: on two threads they crash.
    KZEKAMOK_EXPORT KZEkaMokResult* KZEkaMok_CsvCheckFinance(const char* szCsvPathName)
        KZEKAMOK_NOEXCEPT;

    /// As KZEkaMok_CsvConvMok, with the day of filing and the filer's postal code.
    /// Never two requests at once: on two threads they crash.
    /// \param szTeishutsuEra    Era of the day of filing: 1 to 5, the era codes of CSV columns.
    /// \param szTeishutsuYear   Year of the era, 1 to 99.
    /// \param szTeishutsuMonth  1 to 12.
    /// \param szTeishutsuDay    1 to 31.
    /// \param szNozeishaZip1    First 3 digits of the postal code. Both parts or neither.
    /// \param szNozeishaZip2    Last 4 digits.
    KZEKAMOK_EXPORT KZEkaMokResult* KZEkaMok_CsvConvMokFinance(const char* szCsvPathName,
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
        KZEKAMOK_NOEXCEPT;

    /// As KZEkaMok_ELCsvCheck.
    /// Never two requests at once: on two threads they crash.
    /// \param lCsvDistKey  1 to 16.
    KZEKAMOK_EXPORT KZEkaMokResult* KZEkaMok_ELCsvCheckFinance(
        const char* szCsvPathName, int64_t lCsvDistKey) KZEKAMOK_NOEXCEPT;

    /// As KZEkaMok_ELCsvConvMok, with the arguments of KZEkaMok_CsvConvMokFinance. Errors of a
    /// pair of arguments name the numbers that they have there, one higher than here: 5 and 6 if
    /// both szKojinBango and szHojinBango are given, 19 for a missing szNozeishaZip1, 20 for a
    /// missing szNozeishaZip2. Never two requests at once: on two threads they crash.
    KZEKAMOK_EXPORT KZEkaMokResult* KZEkaMok_ELCsvConvMokFinance(int64_t lCsvDistKey,
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
        KZEKAMOK_NOEXCEPT;

    /// As KZEkaMok_CsvCheck, for the CrossBorder family, whose values may stand in double quotes
    /// and whose equal errors are told once. A fault of one of its steps is told as in the other
    /// families, by "0000-00000-HE70018E"; one between the steps (memory that runs out, above all)
    /// here and in KZEkaMok_CsvConvMokCrossBorder leaves "E_FAIL" with an empty DetailErrorInfo.
    /// Never two requests at once: on two threads they crash.
    KZEKAMOK_EXPORT KZEkaMokResult* KZEkaMok_CsvCheckCrossBorder(const char* szCsvPathName)
        KZEKAMOK_NOEXCEPT;

    /// As KZEkaMok_CsvConvMokFinance, with the arguments in another order.
    /// Never two requests at once: on two threads they crash.
    KZEKAMOK_EXPORT KZEkaMokResult* KZEkaMok_CsvConvMokCrossBorder(const char* szCsvPathName,
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
        KZEKAMOK_NOEXCEPT;

    /// As KZEkaMok_ELCsvCheck.
    /// Never two requests at once: on two threads they crash.
    /// \param lCsvDistKey  1 to 10.
    KZEKAMOK_EXPORT KZEkaMokResult* KZEkaMok_ELCsvCheckCrossBorder(
        const char* szCsvPathName, int64_t lCsvDistKey) KZEKAMOK_NOEXCEPT;

    /// As KZEkaMok_ELCsvConvMok, with the arguments of KZEkaMok_CsvConvMokCrossBorder.
    /// Never two requests at once: on two threads they crash.
    KZEKAMOK_EXPORT KZEkaMokResult* KZEkaMok_ELCsvConvMokCrossBorder(int64_t lCsvDistKey,
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
        KZEKAMOK_NOEXCEPT;

    /// Ends all keys and frees what the library holds, but no result of the host's. The host's
    /// final call; it may be repeated, and requests may follow.
    /// Never two requests at once: on two threads they crash.
    KZEKAMOK_EXPORT void KZEkaMok_Terminate(void) KZEKAMOK_NOEXCEPT;

    /// \name The fields of a result
    ///
    /// Never null: a null result, and a field that wasn't set, give the empty text. The text
    /// belongs to the result and lives as long as that.
    /// @{

    /// "S_OK" or "E_FAIL". Empty if the request broke off before either was settled: take it for a
    /// failure.
    KZEKAMOK_EXPORT const char* KZEkaMokResult_Result(const KZEkaMokResult* pResult)
        KZEKAMOK_NOEXCEPT;
    /// On failure the detail table: entries "record-column-code" joined by commas, such as
    /// "0003-00012-HE70001E". Record 0 is the file as a whole, record 9999 an argument of the call
    /// (the column is its number from 1; KZEkaMok_ELCsvConvMokFinance has exceptions), a range of
    /// columns reads "14:17".
    KZEKAMOK_EXPORT const char* KZEkaMokResult_DetailErrorInfo(const KZEkaMokResult* pResult)
        KZEKAMOK_NOEXCEPT;
    /// Records of the CSV in decimal digits; set by the EL checks.
    KZEKAMOK_EXPORT const char* KZEkaMokResult_RecordCount(const KZEkaMokResult* pResult)
        KZEKAMOK_NOEXCEPT;
    /// Procedure id, such as "PGE5010"; set by the checks.
    KZEKAMOK_EXPORT const char* KZEkaMokResult_ProcId(const KZEkaMokResult* pResult)
        KZEKAMOK_NOEXCEPT;
    /// The whole document; set by the EL conversions.
    KZEKAMOK_EXPORT const char* KZEkaMokResult_MokData(const KZEkaMokResult* pResult)
        KZEKAMOK_NOEXCEPT;
    /// @}

    /// Frees a result and its texts. Null is allowed. Every other result has to be freed once:
    /// freed a second time, or asked for a text after that, it is memory that may be another's by
    /// now, and the process crashes or goes wrong in silence. Texts end with their result: copy
    /// what is to stay.
    KZEKAMOK_EXPORT void KZEkaMokResult_Free(KZEkaMokResult* pResult) KZEKAMOK_NOEXCEPT;

#ifdef __cplusplus
}
#endif
