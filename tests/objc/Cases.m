#import "Cases.h"

#include <stdio.h>

enum
{
    MAX_CASES = 100
};

static struct
{
    const char* szName;
    void (*pCase)(void);
} listCase[MAX_CASES];
static int nCases = 0;
static BOOL bCaseFailed = NO;

void NoteCase(const char* szName, void (*pCase)(void))
{
    if (nCases == MAX_CASES) {
        fprintf(stderr, "more than %d cases\n", MAX_CASES);
        abort();
    }
    listCase[nCases].szName = szName;
    listCase[nCases].pCase = pCase;
    ++nCases;
}

void ExpectTrue(BOOL bHolds, const char* szCondition, const char* szFile, int nLine)
{
    if (bHolds)
        return;
    bCaseFailed = YES;
    printf("%s:%d: doesn't hold: %s\n", szFile, nLine, szCondition);
}

void ExpectText(NSString* strActual,
                NSString* strExpected,
                const char* szActual,
                const char* szFile,
                int nLine)
{
    if (strActual == strExpected || [strActual isEqualToString:strExpected])
        return;
    bCaseFailed = YES;
    printf("%s:%d: %s is \"%s\", not \"%s\"\n", szFile, nLine, szActual,
           strActual != nil ? [strActual UTF8String] : "(nil)",
           strExpected != nil ? [strExpected UTF8String] : "(nil)");
}

int RunCases(const char* szReport)
{
    int nFailed = 0;
    for (int n = 0; n < nCases; ++n) {
        NSAutoreleasePool* pPool = [[NSAutoreleasePool alloc] init];
        bCaseFailed = NO;
        listCase[n].pCase();
        [pPool drain];
        if (bCaseFailed) {
            printf("FAILED: %s\n", listCase[n].szName);
            ++nFailed;
        }
        fflush(stdout);
    }
    printf("%d cases, %d failed\n", nCases, nFailed);
    FILE* pReport = szReport != NULL ? fopen(szReport, "w") : NULL;
    if (pReport != NULL) {
        fprintf(pReport, "<testsuites tests=\"%d\" failures=\"%d\" disabled=\"0\">\n", nCases,
                nFailed);
        for (int n = 0; n < nCases; ++n)
            fprintf(pReport, "  <testcase name=\"%s\"/>\n", listCase[n].szName);
        fputs("</testsuites>\n", pReport);
        fclose(pReport);
    }
    return nFailed;
}
