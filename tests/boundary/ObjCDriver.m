/* The requests through the Objective-C classes. */
#import <KZEkaMok/KZEkaMokObjC.h>

#include "Boundary.h"

static NSString* HostText(const char* szText)
{
    return szText != NULL ? [NSString stringWithUTF8String:szText] : nil;
}

static BOOL Is(const BoundaryRequest* pRequest, NSString* strOperation)
{
    return [HostText(pRequest->szOperation) isEqualToString:strOperation];
}

/* The answer, or nil. The texts are those of the request; *pKnown is cleared if there is no such
 * operation. */
static KZIConvertResultEka* Send(const BoundaryRequest* pRequest, BOOL* pKnown)
{
    KZICsvConvMokEka* pConverter = [[[KZICsvConvMokEka alloc] init] autorelease];
    const int64_t lKey = pRequest->lKey;
    NSString* t[BOUNDARY_TEXTS];
    for (int n = 0; n < BOUNDARY_TEXTS; ++n)
        t[n] = HostText(pRequest->aszText[n]);

    if (Is(pRequest, @"CsvCheck"))
        return [pConverter CsvCheck:t[0]];
    if (Is(pRequest, @"CsvConvMok"))
        return [pConverter CsvConvMok:t[0]
                              Param01:t[1]
                              Param02:t[2]
                              Param03:t[3]
                              Param04:t[4]
                              Param05:t[5]
                              Param06:t[6]
                              Param07:t[7]
                              Param08:t[8]
                              Param09:t[9]
                              Param10:t[10]
                              Param11:t[11]
                              Param12:t[12]
                              Param13:t[13]];
    if (Is(pRequest, @"ELCsvCheck"))
        return [pConverter ELCsvCheck:t[0] Param01:lKey];
    if (Is(pRequest, @"ELCsvConvMok"))
        return [pConverter ELCsvConvMok:lKey
                                Param01:t[0]
                                Param02:t[1]
                                Param03:t[2]
                                Param04:t[3]
                                Param05:t[4]
                                Param06:t[5]
                                Param07:t[6]
                                Param08:t[7]
                                Param09:t[8]
                                Param10:t[9]
                                Param11:t[10]];
    if (Is(pRequest, @"CsvWrite"))
        return [pConverter CsvWrite:t[0] Param01:t[1]];
    if (Is(pRequest, @"Terminate")) {
        [pConverter Terminate];
        KZIConvertResultEka* pEmpty = [[[KZIConvertResultEka alloc] init] autorelease];
        [pEmpty initialize];
        return pEmpty;
    }
    if (Is(pRequest, @"CsvCheckFinance"))
        return [pConverter CsvCheckFinance:t[0]];
    if (Is(pRequest, @"CsvConvMokFinance"))
        return [pConverter CsvConvMokFinance:t[0]
                                 mokPathName:t[1]
                                  zeimushoCD:t[2]
                                  nozeishaId:t[3]
                                  kojinBango:t[4]
                                  hojinBango:t[5]
                                  nozeishaNm:t[6]
                                 nozeishaAdr:t[7]
                                    daihyoNm:t[8]
                                     dairiId:t[9]
                                     dairiNm:t[10]
                                    dairiAdr:t[11]
                                   tetsuzuki:t[12]
                                teishutsuEra:t[13]
                               teishutsuYear:t[14]
                              teishutsuMonth:t[15]
                                teishutsuDay:t[16]
                                    softName:t[17]
                                nozeishaZip1:t[18]
                                nozeishaZip2:t[19]];
    if (Is(pRequest, @"ELCsvCheckFinance"))
        return [pConverter ELCsvCheckFinance:t[0] csvDistKey:lKey];
    if (Is(pRequest, @"ELCsvConvMokFinance"))
        return [pConverter ELCsvConvMokFinance:lKey
                                    zeimushoCD:t[0]
                                    nozeishaId:t[1]
                                    kojinBango:t[2]
                                    hojinBango:t[3]
                                    nozeishaNm:t[4]
                                   nozeishaAdr:t[5]
                                      daihyoNm:t[6]
                                       dairiId:t[7]
                                       dairiNm:t[8]
                                      dairiAdr:t[9]
                                     tetsuzuki:t[10]
                                  teishutsuEra:t[11]
                                 teishutsuYear:t[12]
                                teishutsuMonth:t[13]
                                  teishutsuDay:t[14]
                                      softName:t[15]
                                  nozeishaZip1:t[16]
                                  nozeishaZip2:t[17]];
    if (Is(pRequest, @"CsvCheckCrossBorder"))
        return [pConverter CsvCheckCrossBorder:t[0]];
    if (Is(pRequest, @"CsvConvMokCrossBorder"))
        return [pConverter CsvConvMokCrossBorder:t[0]
                                     mokPathName:t[1]
                                      zeimushoCD:t[2]
                                    teishutsuEra:t[3]
                                   teishutsuYear:t[4]
                                  teishutsuMonth:t[5]
                                    teishutsuDay:t[6]
                                      nozeishaId:t[7]
                                      kojinBango:t[8]
                                      hojinBango:t[9]
                                      nozeishaNm:t[10]
                                    nozeishaZip1:t[11]
                                    nozeishaZip2:t[12]
                                     nozeishaAdr:t[13]
                                        daihyoNm:t[14]
                                         dairiId:t[15]
                                         dairiNm:t[16]
                                        dairiAdr:t[17]
                                       tetsuzuki:t[18]
                                        softName:t[19]];
    if (Is(pRequest, @"ELCsvCheckCrossBorder"))
        return [pConverter ELCsvCheckCrossBorder:t[0] csvDistKey:lKey];
    if (Is(pRequest, @"ELCsvConvMokCrossBorder"))
        return [pConverter ELCsvConvMokCrossBorder:lKey
                                        zeimushoCD:t[0]
                                      teishutsuEra:t[1]
                                     teishutsuYear:t[2]
                                    teishutsuMonth:t[3]
                                      teishutsuDay:t[4]
                                        nozeishaId:t[5]
                                        kojinBango:t[6]
                                        hojinBango:t[7]
                                        nozeishaNm:t[8]
                                      nozeishaZip1:t[9]
                                      nozeishaZip2:t[10]
                                       nozeishaAdr:t[11]
                                          daihyoNm:t[12]
                                           dairiId:t[13]
                                           dairiNm:t[14]
                                          dairiAdr:t[15]
                                         tetsuzuki:t[16]
                                          softName:t[17]];
    *pKnown = NO;
    return nil;
}

int RunRequest(const BoundaryRequest* pRequest)
{
    NSAutoreleasePool* pPool = [[NSAutoreleasePool alloc] init];
    BOOL bKnown = YES;
    KZIConvertResultEka* pResult = Send(pRequest, &bKnown);
    if (bKnown)
        Answer([[pResult Result] UTF8String], [[pResult DetailErrorInfo] UTF8String],
               [[pResult RecordCount] UTF8String], [[pResult ProcId] UTF8String],
               [[pResult MokData] UTF8String]);
    [pPool drain];
    return bKnown ? 1 : 0;
}
