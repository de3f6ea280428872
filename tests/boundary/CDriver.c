/* The requests through the C functions. */
#include <KZEkaMok/KZEkaMokC.h>
#include <string.h>

#include "Boundary.h"

static int Tell(KZEkaMokResult* pResult)
{
    if (pResult == NULL)
        Answer(NULL, NULL, NULL, NULL, NULL);
    else
        Answer(KZEkaMokResult_Result(pResult), KZEkaMokResult_DetailErrorInfo(pResult),
               KZEkaMokResult_RecordCount(pResult), KZEkaMokResult_ProcId(pResult),
               KZEkaMokResult_MokData(pResult));
    KZEkaMokResult_Free(pResult);
    return 1;
}

static int Is(const BoundaryRequest* pRequest, const char* szOperation)
{
    return strcmp(pRequest->szOperation, szOperation) == 0;
}

int RunRequest(const BoundaryRequest* pRequest)
{
    const char* const* t = pRequest->aszText;
    if (Is(pRequest, "CsvCheck"))
        return Tell(KZEkaMok_CsvCheck(t[0]));
    if (Is(pRequest, "CsvConvMok"))
        return Tell(KZEkaMok_CsvConvMok(t[0], t[1], t[2], t[3], t[4], t[5], t[6], t[7], t[8], t[9],
                                        t[10], t[11], t[12], t[13]));
    if (Is(pRequest, "ELCsvCheck"))
        return Tell(KZEkaMok_ELCsvCheck(t[0], pRequest->lKey));
    if (Is(pRequest, "ELCsvConvMok"))
        return Tell(KZEkaMok_ELCsvConvMok(pRequest->lKey, t[0], t[1], t[2], t[3], t[4], t[5], t[6],
                                          t[7], t[8], t[9], t[10]));
    if (Is(pRequest, "CsvWrite"))
        return Tell(KZEkaMok_CsvWrite(t[0], t[1]));
    if (Is(pRequest, "CsvCheckFinance"))
        return Tell(KZEkaMok_CsvCheckFinance(t[0]));
    if (Is(pRequest, "CsvConvMokFinance"))
        return Tell(KZEkaMok_CsvConvMokFinance(t[0], t[1], t[2], t[3], t[4], t[5], t[6], t[7], t[8],
                                               t[9], t[10], t[11], t[12], t[13], t[14], t[15],
                                               t[16], t[17], t[18], t[19]));
    if (Is(pRequest, "ELCsvCheckFinance"))
        return Tell(KZEkaMok_ELCsvCheckFinance(t[0], pRequest->lKey));
    if (Is(pRequest, "ELCsvConvMokFinance"))
        return Tell(KZEkaMok_ELCsvConvMokFinance(pRequest->lKey, t[0], t[1], t[2], t[3], t[4], t[5],
                                                 t[6], t[7], t[8], t[9], t[10], t[11], t[12], t[13],
                                                 t[14], t[15], t[16], t[17]));
    if (Is(pRequest, "CsvCheckCrossBorder"))
        return Tell(KZEkaMok_CsvCheckCrossBorder(t[0]));
    if (Is(pRequest, "CsvConvMokCrossBorder"))
        return Tell(KZEkaMok_CsvConvMokCrossBorder(t[0], t[1], t[2], t[3], t[4], t[5], t[6], t[7],
                                                   t[8], t[9], t[10], t[11], t[12], t[13], t[14],
                                                   t[15], t[16], t[17], t[18], t[19]));
    if (Is(pRequest, "ELCsvCheckCrossBorder"))
        return Tell(KZEkaMok_ELCsvCheckCrossBorder(t[0], pRequest->lKey));
    if (Is(pRequest, "ELCsvConvMokCrossBorder"))
        return Tell(KZEkaMok_ELCsvConvMokCrossBorder(pRequest->lKey, t[0], t[1], t[2], t[3], t[4],
                                                     t[5], t[6], t[7], t[8], t[9], t[10], t[11],
                                                     t[12], t[13], t[14], t[15], t[16], t[17]));
    if (!Is(pRequest, "Terminate"))
        return 0;
    KZEkaMok_Terminate();
    Answer("", "", "", "", "");
    return 1;
}
