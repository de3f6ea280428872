#import <KZEkaMok/KZEkaMokObjC.h>

#include <KZEkaMok/KZEkaMokC.h>

#include "Guard.h"

enum
{
    MAX_TEXTS = 20,  // arguments of the longest operation
};

static const NSStringEncoding UTF8_ENCODING = 4;

/// Fields of a result that an operation hands over, in the order of copying. END closes a list.
typedef enum
{
    END,
    RESULT,
    DETAIL_ERROR_INFO,
    RECORD_COUNT,
    PROC_ID,
    MOK_DATA,
} Field;

static const Field PLAIN_FIELDS[] = {RESULT, DETAIL_ERROR_INFO, END};
static const Field CHECK_FIELDS[] = {PROC_ID, RESULT, DETAIL_ERROR_INFO, END};
static const Field EL_CHECK_FIELDS[] = {PROC_ID, RECORD_COUNT, RESULT, DETAIL_ERROR_INFO, END};
static const Field EL_CONVERT_FIELDS[] = {RESULT, DETAIL_ERROR_INFO, MOK_DATA, END};

/// One request on its way. What it owns outlives a step that broke off.
typedef struct
{
    KZEkaMokResult* (*pCall)(const char* const* listText, int64_t lCsvDistKey);
    const Field* listField;
    int64_t lCsvDistKey;
    NSString* listText[MAX_TEXTS];  // nil behind the operation's own

    KZEkaMokResult* pOutcome;      // owned
    KZIConvertResultEka* pResult;  // owned
} Request;

static NSString* HostText(const char* szText)
{
    return [[[NSString alloc] initWithCString:szText encoding:UTF8_ENCODING] autorelease];
}

static void CopyField(Field eField, const KZEkaMokResult* pOutcome, KZIConvertResultEka* pResult)
{
    switch (eField) {
        case RESULT:
            [pResult setResult:HostText(KZEkaMokResult_Result(pOutcome))];
            break;
        case DETAIL_ERROR_INFO:
            [pResult setDetailErrorInfo:HostText(KZEkaMokResult_DetailErrorInfo(pOutcome))];
            break;
        case RECORD_COUNT:
            [pResult setRecordCount:HostText(KZEkaMokResult_RecordCount(pOutcome))];
            break;
        case PROC_ID:
            [pResult setProcId:HostText(KZEkaMokResult_ProcId(pOutcome))];
            break;
        case MOK_DATA:
            [pResult setMokData:HostText(KZEkaMokResult_MokData(pOutcome))];
            break;
        case END:
            break;
    }
}

/// Makes and fills the request's result. May raise; it must be a step of RunGuarded.
static void FillResult(void* pContext)
{
    Request* pRequest = pContext;
    pRequest->pResult = [[KZIConvertResultEka alloc] init];
    if (pRequest->pResult == nil)
        return;
    [pRequest->pResult initialize];

    const char* listText[MAX_TEXTS];
    for (int n = 0; n < MAX_TEXTS; ++n)
        listText[n] = [pRequest->listText[n] cStringUsingEncoding:UTF8_ENCODING];
    pRequest->pOutcome = pRequest->pCall(listText, pRequest->lCsvDistKey);
    if (pRequest->pOutcome == NULL)
        return;
    for (const Field* pField = pRequest->listField; *pField != END; ++pField)
        CopyField(*pField, pRequest->pOutcome, pRequest->pResult);
}

/// Runs a request. Its temporary texts end with it, so a host may make many calls within one pool.
static KZIConvertResultEka* Run(Request* pRequest)
{
    for (int n = 0; n < MAX_TEXTS; ++n)
        [pRequest->listText[n] retain];
    NSAutoreleasePool* pPool = [[NSAutoreleasePool alloc] init];
    RunGuarded(FillResult, pRequest);
    KZEkaMokResult_Free(pRequest->pOutcome);
    [pPool drain];
    for (int n = 0; n < MAX_TEXTS; ++n)
        [pRequest->listText[n] release];
    return [pRequest->pResult autorelease];
}

// One call each: the texts of the list in the order of the operation's arguments.

static KZEkaMokResult* CallCsvCheck(const char* const* listText, int64_t lUnused)
{
    (void)lUnused;
    return KZEkaMok_CsvCheck(listText[0]);
}

static KZEkaMokResult* CallCsvConvMok(const char* const* listText, int64_t lUnused)
{
    (void)lUnused;
    return KZEkaMok_CsvConvMok(listText[0], listText[1], listText[2], listText[3], listText[4],
                               listText[5], listText[6], listText[7], listText[8], listText[9],
                               listText[10], listText[11], listText[12], listText[13]);
}

static KZEkaMokResult* CallELCsvCheck(const char* const* listText, int64_t lCsvDistKey)
{
    return KZEkaMok_ELCsvCheck(listText[0], lCsvDistKey);
}

static KZEkaMokResult* CallELCsvConvMok(const char* const* listText, int64_t lCsvDistKey)
{
    return KZEkaMok_ELCsvConvMok(lCsvDistKey, listText[0], listText[1], listText[2], listText[3],
                                 listText[4], listText[5], listText[6], listText[7], listText[8],
                                 listText[9], listText[10]);
}

static KZEkaMokResult* CallCsvWrite(const char* const* listText, int64_t lUnused)
{
    (void)lUnused;
    return KZEkaMok_CsvWrite(listText[0], listText[1]);
}

static KZEkaMokResult* CallCsvCheckFinance(const char* const* listText, int64_t lUnused)
{
    (void)lUnused;
    return KZEkaMok_CsvCheckFinance(listText[0]);
}

static KZEkaMokResult* CallCsvConvMokFinance(const char* const* listText, int64_t lUnused)
{
    (void)lUnused;
    return KZEkaMok_CsvConvMokFinance(listText[0], listText[1], listText[2], listText[3],
                                      listText[4], listText[5], listText[6], listText[7],
                                      listText[8], listText[9], listText[10], listText[11],
                                      listText[12], listText[13], listText[14], listText[15],
                                      listText[16], listText[17], listText[18], listText[19]);
}

static KZEkaMokResult* CallELCsvCheckFinance(const char* const* listText, int64_t lCsvDistKey)
{
    return KZEkaMok_ELCsvCheckFinance(listText[0], lCsvDistKey);
}

static KZEkaMokResult* CallELCsvConvMokFinance(const char* const* listText, int64_t lCsvDistKey)
{
    return KZEkaMok_ELCsvConvMokFinance(lCsvDistKey, listText[0], listText[1], listText[2],
                                        listText[3], listText[4], listText[5], listText[6],
                                        listText[7], listText[8], listText[9], listText[10],
                                        listText[11], listText[12], listText[13], listText[14],
                                        listText[15], listText[16], listText[17]);
}

static KZEkaMokResult* CallCsvCheckCrossBorder(const char* const* listText, int64_t lUnused)
{
    (void)lUnused;
    return KZEkaMok_CsvCheckCrossBorder(listText[0]);
}

static KZEkaMokResult* CallCsvConvMokCrossBorder(const char* const* listText, int64_t lUnused)
{
    (void)lUnused;
    return KZEkaMok_CsvConvMokCrossBorder(listText[0], listText[1], listText[2], listText[3],
                                          listText[4], listText[5], listText[6], listText[7],
                                          listText[8], listText[9], listText[10], listText[11],
                                          listText[12], listText[13], listText[14], listText[15],
                                          listText[16], listText[17], listText[18], listText[19]);
}

static KZEkaMokResult* CallELCsvCheckCrossBorder(const char* const* listText, int64_t lCsvDistKey)
{
    return KZEkaMok_ELCsvCheckCrossBorder(listText[0], lCsvDistKey);
}

static KZEkaMokResult* CallELCsvConvMokCrossBorder(const char* const* listText, int64_t lCsvDistKey)
{
    return KZEkaMok_ELCsvConvMokCrossBorder(lCsvDistKey, listText[0], listText[1], listText[2],
                                            listText[3], listText[4], listText[5], listText[6],
                                            listText[7], listText[8], listText[9], listText[10],
                                            listText[11], listText[12], listText[13], listText[14],
                                            listText[15], listText[16], listText[17]);
}

@implementation KZICsvConvMokEka

- (KZIConvertResultEka*)CsvCheck:(NSString*)szCsvPathName
{
    Request request = {
        .pCall = CallCsvCheck,
        .listField = CHECK_FIELDS,
        .listText = {szCsvPathName},
    };
    return Run(&request);
}

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
                           Param13:(NSString*)szSoftName
{
    Request request = {
        .pCall = CallCsvConvMok,
        .listField = PLAIN_FIELDS,
        .listText = {szCsvPathName, szMokPathName, szZeimushoCD, szNozeishaId, szKojinBango,
                     szHojinBango, szNozeishaNm, szNozeishaAdr, szDaihyoNm, szDairiId, szDairiNm,
                     szDairiAdr, szTetsuzuki, szSoftName},
    };
    return Run(&request);
}

- (KZIConvertResultEka*)ELCsvCheck:(NSString*)szCsvPathName Param01:(int64_t)lCsvDistKey
{
    Request request = {
        .pCall = CallELCsvCheck,
        .listField = EL_CHECK_FIELDS,
        .lCsvDistKey = lCsvDistKey,
        .listText = {szCsvPathName},
    };
    return Run(&request);
}

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
                             Param11:(NSString*)szTetsuzuki
{
    Request request = {
        .pCall = CallELCsvConvMok,
        .listField = EL_CONVERT_FIELDS,
        .lCsvDistKey = lCsvDistKey,
        .listText = {szZeimushoCD, szNozeishaId, szKojinBango, szHojinBango, szNozeishaNm,
                     szNozeishaAdr, szDaihyoNm, szDairiId, szDairiNm, szDairiAdr, szTetsuzuki},
    };
    return Run(&request);
}

- (KZIConvertResultEka*)CsvWrite:(NSString*)szCsvPath Param01:(NSString*)szData
{
    Request request = {
        .pCall = CallCsvWrite,
        .listField = PLAIN_FIELDS,
        .listText = {szCsvPath, szData},
    };
    return Run(&request);
}

- (void)Terminate
{
    KZEkaMok_Terminate();
}

- (KZIConvertResultEka*)CsvCheckFinance:(NSString*)szCsvPathName
{
    Request request = {
        .pCall = CallCsvCheckFinance,
        .listField = CHECK_FIELDS,
        .listText = {szCsvPathName},
    };
    return Run(&request);
}

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
                             nozeishaZip2:(NSString*)szNozeishaZip2
{
    Request request = {
        .pCall = CallCsvConvMokFinance,
        .listField = PLAIN_FIELDS,
        .listText = {szCsvPathName, szMokPathName, szZeimushoCD, szNozeishaId, szKojinBango,
                     szHojinBango, szNozeishaNm, szNozeishaAdr, szDaihyoNm, szDairiId, szDairiNm,
                     szDairiAdr, szTetsuzuki, szTeishutsuEra, szTeishutsuYear, szTeishutsuMonth,
                     szTeishutsuDay, szSoftName, szNozeishaZip1, szNozeishaZip2},
    };
    return Run(&request);
}

- (KZIConvertResultEka*)ELCsvCheckFinance:(NSString*)szCsvPathName csvDistKey:(int64_t)lCsvDistKey
{
    Request request = {
        .pCall = CallELCsvCheckFinance,
        .listField = EL_CHECK_FIELDS,
        .lCsvDistKey = lCsvDistKey,
        .listText = {szCsvPathName},
    };
    return Run(&request);
}

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
                               nozeishaZip2:(NSString*)szNozeishaZip2
{
    Request request = {
        .pCall = CallELCsvConvMokFinance,
        .listField = EL_CONVERT_FIELDS,
        .lCsvDistKey = lCsvDistKey,
        .listText = {szZeimushoCD, szNozeishaId, szKojinBango, szHojinBango, szNozeishaNm,
                     szNozeishaAdr, szDaihyoNm, szDairiId, szDairiNm, szDairiAdr, szTetsuzuki,
                     szTeishutsuEra, szTeishutsuYear, szTeishutsuMonth, szTeishutsuDay, szSoftName,
                     szNozeishaZip1, szNozeishaZip2},
    };
    return Run(&request);
}

- (KZIConvertResultEka*)CsvCheckCrossBorder:(NSString*)szCsvPathName
{
    Request request = {
        .pCall = CallCsvCheckCrossBorder,
        .listField = CHECK_FIELDS,
        .listText = {szCsvPathName},
    };
    return Run(&request);
}

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
                                     softName:(NSString*)szSoftName
{
    Request request = {
        .pCall = CallCsvConvMokCrossBorder,
        .listField = PLAIN_FIELDS,
        .listText = {szCsvPathName, szMokPathName, szZeimushoCD, szTeishutsuEra, szTeishutsuYear,
                     szTeishutsuMonth, szTeishutsuDay, szNozeishaId, szKojinBango, szHojinBango,
                     szNozeishaNm, szNozeishaZip1, szNozeishaZip2, szNozeishaAdr, szDaihyoNm,
                     szDairiId, szDairiNm, szDairiAdr, szTetsuzuki, szSoftName},
    };
    return Run(&request);
}

- (KZIConvertResultEka*)ELCsvCheckCrossBorder:(NSString*)szCsvPathName
                                   csvDistKey:(int64_t)lCsvDistKey
{
    Request request = {
        .pCall = CallELCsvCheckCrossBorder,
        .listField = EL_CHECK_FIELDS,
        .lCsvDistKey = lCsvDistKey,
        .listText = {szCsvPathName},
    };
    return Run(&request);
}

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
                                       softName:(NSString*)szSoftName
{
    Request request = {
        .pCall = CallELCsvConvMokCrossBorder,
        .listField = EL_CONVERT_FIELDS,
        .lCsvDistKey = lCsvDistKey,
        .listText = {szZeimushoCD, szTeishutsuEra, szTeishutsuYear, szTeishutsuMonth,
                     szTeishutsuDay, szNozeishaId, szKojinBango, szHojinBango, szNozeishaNm,
                     szNozeishaZip1, szNozeishaZip2, szNozeishaAdr, szDaihyoNm, szDairiId,
                     szDairiNm, szDairiAdr, szTetsuzuki, szSoftName},
    };
    return Run(&request);
}

@end
