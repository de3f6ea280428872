/// \file
/// The operations of the library for hosts in Objective-C.
///
/// Texts cross in UTF-8 in both directions. A nil argument omits a value. Every operation but
/// Terminate returns a new, autoreleased object; nil only if that couldn't be made. Nothing is
/// raised: if an argument or anything else raises on the way, the object comes back as far as it
/// was filled, at worst with five empty texts. Take an empty Result for a failure.
///
/// What survives between calls (the files kept under keys by the EL checks) is process-wide and no
/// part of an object. Not thread-safe: call from one thread, one request at a time.
///
/// The classes bear the names of the C++ classes, so a file of Objective-C++ can include this
/// header or KZEkaMok.h, but not both.
#pragma once

#import <Foundation/Foundation.h>

#include <stdint.h>

#include <KZEkaMok/KZEkaMokConstants.h>

/// The outcome of a request: five texts, each held by copy.
@interface KZIConvertResultEka : NSObject {
@private
    NSString* m_strResult;
    NSString* m_strDetailErrorInfo;
    NSString* m_strRecordCount;
    NSString* m_strProcId;
    NSString* m_strMokData;
}

/// "S_OK" or "E_FAIL", the texts of PROCESS_OK and PROCESS_FAIL. Empty if the request broke off
/// before either was settled: take it for a failure.
@property (nonatomic, copy) NSString* Result;
/// On failure the detail table: entries "record-column-code" joined by commas, such as
/// "0003-00012-HE70001E". Record 0 is the file as a whole, record 9999 an argument of the call (the
/// column is its number from 1; ELCsvConvMokFinance: has exceptions), a range of columns reads
/// "14:17".
@property (nonatomic, copy) NSString* DetailErrorInfo;
/// Records of the CSV in decimal digits; set by the EL checks.
@property (nonatomic, copy) NSString* RecordCount;
/// Procedure id, such as "PGE5010"; set by the checks.
@property (nonatomic, copy) NSString* ProcId;
/// The whole document; set by the EL conversions.
@property (nonatomic, copy) NSString* MokData;

/// Gives all five properties the empty text. A result that an operation returns has been through
/// it; the properties of a new object of the host's own are nil before.
- (void)initialize;

@end

/// The operations. An object has no state: one serves for all requests.
@interface KZICsvConvMokEka : NSObject

/// Checks a CSV file and forgets it. Ends all keys.
/// Sets ProcId and Result, on failure Result and DetailErrorInfo.
/// Never two requests at once: on two threads they crash.
/// \param szCsvPathName  Path of a Shift_JIS file ending in .csv, .CSV, .txt or .TXT.
- (KZIConvertResultEka*)CsvCheck:(NSString*)szCsvPathName;

/// Turns a CSV file into a document file. The columns aren't checked again: call CsvCheck: first.
/// Ends all keys. Sets Result, on failure DetailErrorInfo too.
/// Never two requests at once: on two threads they crash.
/// \param szMokPathName  Path of the document, ending in .mok or .MOK, in a folder that exists. An
///     existing file is replaced.
/// \param szZeimushoCD   Tax office, 5 digits.
/// \param szNozeishaId   Filer's id, 16 digits.
/// \param szKojinBango   Personal number, 12 digits, or nil. Not together with szHojinBango.
/// \param szHojinBango   Corporate number, 13 digits, or nil.
/// \param szNozeishaNm   Filer's name, up to 30 characters.
/// \param szNozeishaAdr  Filer's address, up to 100 characters.
/// \param szDaihyoNm     Representative's name, up to 30 characters, or nil.
/// \param szDairiId      Agent's id, 16 digits, or nil.
/// \param szDairiNm      Agent's name, up to 30 characters, or nil.
/// \param szDairiAdr     Agent's address, up to 100 characters, or nil.
/// \param szTetsuzuki    Procedure id, which must be the file's.
/// \param szSoftName     Name of the host's software, up to 30 characters.
- (KZIConvertResultEka*)CsvConvMok:(NSString*)szCsvPathName
                           Param01:(NSString*)szMokPathName
                           Param02:(NSString*)szZeimushoCD
                           Param03:(NSString*)szNozeishaId
                           Param04:(NSString*)szKojinBango
                           Param05:(NSString*)szHojinBango
                           Param06:(NSString*)szNozeishaNm
                           Param07:(NSString*)szNozeishaAdr
                           Param08:(NSString*)szDaihyoNm
                           Param09:(NSString*)szDairiId
                           Param10:(NSString*)szDairiNm
                           Param11:(NSString*)szDairiAdr
                           Param12:(NSString*)szTetsuzuki
                           Param13:(NSString*)szSoftName;

/// Checks a CSV file and keeps it under a key for ELCsvConvMok:. A failure in the file drops what
/// the key held before.
/// Sets ProcId, RecordCount and Result, on failure Result and DetailErrorInfo.
/// Never two requests at once: on two threads they crash.
/// \param lCsvDistKey  1 to 5.
- (KZIConvertResultEka*)ELCsvCheck:(NSString*)szCsvPathName Param01:(int64_t)lCsvDistKey;

/// Turns a kept file into a document in memory; the key stays.
/// Sets Result and MokData, on failure Result and DetailErrorInfo.
/// Never two requests at once: on two threads they crash.
- (KZIConvertResultEka*)ELCsvConvMok:(int64_t)lCsvDistKey
                             Param01:(NSString*)szZeimushoCD
                             Param02:(NSString*)szNozeishaId
                             Param03:(NSString*)szKojinBango
                             Param04:(NSString*)szHojinBango
                             Param05:(NSString*)szNozeishaNm
                             Param06:(NSString*)szNozeishaAdr
                             Param07:(NSString*)szDaihyoNm
                             Param08:(NSString*)szDairiId
                             Param09:(NSString*)szDairiNm
                             Param10:(NSString*)szDairiAdr
                             Param11:(NSString*)szTetsuzuki;

/// Saves a text as a Shift_JIS file; keys stay. Sets Result, on failure DetailErrorInfo too.
/// Never two requests at once: on two threads they crash.
/// \param szCsvPath  Path of the file, in a folder that exists. An existing file is replaced.
/// \param szData     Its UTF-8 bytes are taken as Shift_JIS, so only ASCII reaches the file as it
///     stands: a text in Japanese is refused or comes out as other characters.
- (KZIConvertResultEka*)CsvWrite:(NSString*)szCsvPath Param01:(NSString*)szData;

/// Ends all keys and frees what the library holds, but no result of the host's. The host's final
/// call; it may be repeated, and requests may follow.
/// Never two requests at once: on two threads they crash.
- (void)Terminate;

/// As CsvCheck:, for the Finance family, whose equal errors are told once.
/// Never two requests at once: on two threads they crash.
- (KZIConvertResultEka*)CsvCheckFinance:(NSString*)szCsvPathName;

/// As CsvConvMok:, with the day of filing and the filer's postal code.
/// Never two requests at once: on two threads they crash.
/// \param szTeishutsuEra    Era of the day of filing: 1 Meiji to 5 Reiwa.
/// \param szTeishutsuYear   Year of the era, 1 to 99.
/// \param szTeishutsuMonth  1 to 12.
/// \param szTeishutsuDay    1 to 31.
/// \param szNozeishaZip1    First 3 digits of the postal code. Both parts or neither.
/// \param szNozeishaZip2    Last 4 digits.
- (KZIConvertResultEka*)CsvConvMokFinance:(NSString*)szCsvPathName
                              mokPathName:(NSString*)szMokPathName
                               zeimushoCD:(NSString*)szZeimushoCD
                               nozeishaId:(NSString*)szNozeishaId
                               kojinBango:(NSString*)szKojinBango
                               hojinBango:(NSString*)szHojinBango
                               nozeishaNm:(NSString*)szNozeishaNm
                              nozeishaAdr:(NSString*)szNozeishaAdr
                                 daihyoNm:(NSString*)szDaihyoNm
                                  dairiId:(NSString*)szDairiId
                                  dairiNm:(NSString*)szDairiNm
                                 dairiAdr:(NSString*)szDairiAdr
                                tetsuzuki:(NSString*)szTetsuzuki
                             teishutsuEra:(NSString*)szTeishutsuEra
                            teishutsuYear:(NSString*)szTeishutsuYear
                           teishutsuMonth:(NSString*)szTeishutsuMonth
                             teishutsuDay:(NSString*)szTeishutsuDay
                                 softName:(NSString*)szSoftName
                             nozeishaZip1:(NSString*)szNozeishaZip1
                             nozeishaZip2:(NSString*)szNozeishaZip2;

/// As ELCsvCheck:.
/// Never two requests at once: on two threads they crash.
/// \param lCsvDistKey  1 to 16.
- (KZIConvertResultEka*)ELCsvCheckFinance:(NSString*)szCsvPathName csvDistKey:(int64_t)lCsvDistKey;

/// As ELCsvConvMok:, with the arguments of CsvConvMokFinance:. Errors of a pair of arguments name the
/// numbers that they have there, one higher than here: 5 and 6 if both the personal and the corporate
/// number are given, 19 for a missing nozeishaZip1, 20 for a missing nozeishaZip2.
/// Never two requests at once: on two threads they crash.
- (KZIConvertResultEka*)ELCsvConvMokFinance:(int64_t)lCsvDistKey
                                 zeimushoCD:(NSString*)szZeimushoCD
                                 nozeishaId:(NSString*)szNozeishaId
                                 kojinBango:(NSString*)szKojinBango
                                 hojinBango:(NSString*)szHojinBango
                                 nozeishaNm:(NSString*)szNozeishaNm
                                nozeishaAdr:(NSString*)szNozeishaAdr
                                   daihyoNm:(NSString*)szDaihyoNm
                                    dairiId:(NSString*)szDairiId
                                    dairiNm:(NSString*)szDairiNm
                                   dairiAdr:(NSString*)szDairiAdr
                                  tetsuzuki:(NSString*)szTetsuzuki
                               teishutsuEra:(NSString*)szTeishutsuEra
                              teishutsuYear:(NSString*)szTeishutsuYear
                             teishutsuMonth:(NSString*)szTeishutsuMonth
                               teishutsuDay:(NSString*)szTeishutsuDay
                                   softName:(NSString*)szSoftName
                               nozeishaZip1:(NSString*)szNozeishaZip1
                               nozeishaZip2:(NSString*)szNozeishaZip2;

/// As CsvCheck:, for the CrossBorder family, whose values may stand in double quotes and whose
/// equal errors are told once. A fault of one of its steps is told as in the other families, by
/// "0000-00000-HE70018E"; one between the steps (memory that runs out, above all) here and in
/// CsvConvMokCrossBorder: leaves "E_FAIL" with an empty DetailErrorInfo.
/// Never two requests at once: on two threads they crash.
- (KZIConvertResultEka*)CsvCheckCrossBorder:(NSString*)szCsvPathName;

/// As CsvConvMokFinance:, with the arguments in another order.
/// Never two requests at once: on two threads they crash.
- (KZIConvertResultEka*)CsvConvMokCrossBorder:(NSString*)szCsvPathName
                                  mokPathName:(NSString*)szMokPathName
                                   zeimushoCD:(NSString*)szZeimushoCD
                                 teishutsuEra:(NSString*)szTeishutsuEra
                                teishutsuYear:(NSString*)szTeishutsuYear
                               teishutsuMonth:(NSString*)szTeishutsuMonth
                                 teishutsuDay:(NSString*)szTeishutsuDay
                                   nozeishaId:(NSString*)szNozeishaId
                                   kojinBango:(NSString*)szKojinBango
                                   hojinBango:(NSString*)szHojinBango
                                   nozeishaNm:(NSString*)szNozeishaNm
                                 nozeishaZip1:(NSString*)szNozeishaZip1
                                 nozeishaZip2:(NSString*)szNozeishaZip2
                                  nozeishaAdr:(NSString*)szNozeishaAdr
                                     daihyoNm:(NSString*)szDaihyoNm
                                      dairiId:(NSString*)szDairiId
                                      dairiNm:(NSString*)szDairiNm
                                     dairiAdr:(NSString*)szDairiAdr
                                    tetsuzuki:(NSString*)szTetsuzuki
                                     softName:(NSString*)szSoftName;

/// As ELCsvCheck:.
/// Never two requests at once: on two threads they crash.
/// \param lCsvDistKey  1 to 10.
- (KZIConvertResultEka*)ELCsvCheckCrossBorder:(NSString*)szCsvPathName
                                   csvDistKey:(int64_t)lCsvDistKey;

/// As ELCsvConvMok:, with the arguments of CsvConvMokCrossBorder:.
/// Never two requests at once: on two threads they crash.
- (KZIConvertResultEka*)ELCsvConvMokCrossBorder:(int64_t)lCsvDistKey
                                     zeimushoCD:(NSString*)szZeimushoCD
                                   teishutsuEra:(NSString*)szTeishutsuEra
                                  teishutsuYear:(NSString*)szTeishutsuYear
                                 teishutsuMonth:(NSString*)szTeishutsuMonth
                                   teishutsuDay:(NSString*)szTeishutsuDay
                                     nozeishaId:(NSString*)szNozeishaId
                                     kojinBango:(NSString*)szKojinBango
                                     hojinBango:(NSString*)szHojinBango
                                     nozeishaNm:(NSString*)szNozeishaNm
                                   nozeishaZip1:(NSString*)szNozeishaZip1
                                   nozeishaZip2:(NSString*)szNozeishaZip2
                                    nozeishaAdr:(NSString*)szNozeishaAdr
                                       daihyoNm:(NSString*)szDaihyoNm
                                        dairiId:(NSString*)szDairiId
                                        dairiNm:(NSString*)szDairiNm
                                       dairiAdr:(NSString*)szDairiAdr
                                      tetsuzuki:(NSString*)szTetsuzuki
                                       softName:(NSString*)szSoftName;

@end
