#define _POSIX_C_SOURCE 200809L /* getline */

#include "Boundary.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* The byte of the escape whose letter stands at *pszAt, which moves to its last letter. */
static char EscapedByte(const char** pszAt)
{
    char szHex[3] = {0};
    switch (**pszAt) {
        case 't':
            return '\t';
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case 'x':
            memcpy(szHex, *pszAt + 1, 2);
            *pszAt += 2;
            return (char)strtol(szHex, NULL, 16);
        default:
            return **pszAt;
    }
}

/* Decodes a field in place. Returns null for a field that stands for null. */
static const char* Decode(char* szField)
{
    const char* szFrom = szField;
    char* szTo = szField;
    if (strcmp(szField, "\\N") == 0)
        return NULL;
    for (; *szFrom != '\0'; ++szFrom) {
        if (*szFrom == '\\') {
            ++szFrom;
            *szTo++ = EscapedByte(&szFrom);
        } else {
            *szTo++ = *szFrom;
        }
    }
    *szTo = '\0';
    return szField;
}

static void PrintField(const char* szText)
{
    for (; *szText != '\0'; ++szText) {
        switch (*szText) {
            case '\t':
                fputs("\\t", stdout);
                break;
            case '\n':
                fputs("\\n", stdout);
                break;
            case '\r':
                fputs("\\r", stdout);
                break;
            case '\\':
                fputs("\\\\", stdout);
                break;
            default:
                putchar(*szText);
        }
    }
}

void Answer(const char* szResult,
            const char* szDetailErrorInfo,
            const char* szRecordCount,
            const char* szProcId,
            const char* szMokData)
{
    const char* aszField[] = {szResult, szDetailErrorInfo, szRecordCount, szProcId, szMokData};
    size_t nField;
    if (szResult == NULL) {
        puts("\\N");
        return;
    }
    for (nField = 0; nField < sizeof aszField / sizeof *aszField; ++nField) {
        if (nField > 0)
            putchar('\t');
        PrintField(aszField[nField]);
    }
    putchar('\n');
}

/* Number of the argument that is the key, from 0, or -1. */
static int KeyArgument(const char* szOperation)
{
    if (strncmp(szOperation, "ELCsvCheck", 10) == 0)
        return 1;
    return strncmp(szOperation, "ELCsvConv", 9) == 0 ? 0 : -1;
}

/* Returns 0 if the line isn't a request. */
static int RunLine(char* szLine)
{
    BoundaryRequest request = {0};
    const int nKey = KeyArgument(szLine);
    int nArgument = 0;
    int nText = 0;
    char* szNext = strchr(szLine, '\t');
    request.szOperation = szLine;
    while (szNext != NULL) {
        char* szField = szNext + 1;
        *szNext = '\0';
        szNext = strchr(szField, '\t');
        if (szNext != NULL)
            *szNext = '\0';
        if (nArgument++ == nKey)
            request.lKey = strtoll(szField, NULL, 10);
        else if (nText < BOUNDARY_TEXTS)
            request.aszText[nText++] = Decode(szField);
        else
            return 0;
    }
    return RunRequest(&request);
}

int main(void)
{
    char* szLine = NULL;
    size_t nCapacity = 0;
    ssize_t nLength;
    int nStatus = 0;
    while (nStatus == 0 && (nLength = getline(&szLine, &nCapacity, stdin)) > 0) {
        if (szLine[nLength - 1] == '\n')
            szLine[nLength - 1] = '\0';
        if (!RunLine(szLine)) {
            fprintf(stderr, "not a request: %s\n", szLine);
            nStatus = 2;
        }
        fflush(stdout);
    }
    free(szLine);
    return nStatus;
}
