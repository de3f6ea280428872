/* A program that runs requests through one of the library's boundaries. run_cases.py starts it and
 * compares its answers with the table of cases.
 *
 * A line of input is one request: the operation, then its arguments in order, separated by tabs.
 * A line of output is its answer: the five fields in their order, separated by tabs. In both,
 * "\t", "\n", "\r" and "\\" stand for the characters, "\xHH" for any byte, and a field of "\N" for
 * null. An answer of one "\N" is a null result. */
#pragma once

#include <stdint.h>

#ifdef __cplusplus
extern "C"
{
#endif

    enum
    {
        BOUNDARY_TEXTS = 20 /* the longest argument list */
    };

    typedef struct BoundaryRequest
    {
        const char* szOperation; /* such as "ELCsvCheckFinance" */
        int64_t lKey;            /* of the EL operations */
        /* The other arguments in order, UTF-8; null for one that is omitted. They live as long as
         * the call. */
        const char* aszText[BOUNDARY_TEXTS];
    } BoundaryRequest;

    /* Runs one request and calls Answer once. Each boundary has its own.
     * Returns 0 if there is no such operation, otherwise 1. */
    int RunRequest(const BoundaryRequest* pRequest);

    /* Prints the answer. Five null pointers tell a null result; Terminate answers five empty texts.
     */
    void Answer(const char* szResult,
                const char* szDetailErrorInfo,
                const char* szRecordCount,
                const char* szProcId,
                const char* szMokData);

#ifdef __cplusplus
}
#endif
