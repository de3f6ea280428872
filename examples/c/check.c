/* Checks a CSV file and turns it into a document in memory. Prints its errors or what came out.
 * kzekamok_example_c FILE.csv */
#include <KZEkaMok/KZEkaMokC.h>
#include <stdio.h>
#include <string.h>

enum
{
    KEY = 1
};

static int Passed(const KZEkaMokResult* pResult)
{
    return strcmp(KZEkaMokResult_Result(pResult), PROCESS_OK) == 0;
}

/* One entry "record-column-code" a line. */
static void PrintErrors(const KZEkaMokResult* pResult)
{
    const char* szAt = KZEkaMokResult_DetailErrorInfo(pResult);
    for (; *szAt != '\0'; ++szAt)
        putchar(*szAt == ',' ? '\n' : *szAt);
    putchar('\n');
}

int main(int nCount, char** szArguments)
{
    KZEkaMokResult* pCheck;
    int bPassed;
    if (nCount != 2) {
        fprintf(stderr, "usage: %s FILE.csv\n", szArguments[0]);
        return 2;
    }
    pCheck = KZEkaMok_ELCsvCheck(szArguments[1], KEY);
    bPassed = Passed(pCheck);
    if (!bPassed) {
        PrintErrors(pCheck);
    } else {
        KZEkaMokResult* pDocument = KZEkaMok_ELCsvConvMok(
            KEY, "90101", "9900000000000017", NULL, "9990000000017", "見本&例証券株式会社",
            "紙原県見本市例町１丁目２番３号　見本ビル９階", "見本　太郎", "9900000000000025",
            "例田税理士事務所　例田　花子", "紙原県雛形市折目坂４－５－６",
            KZEkaMokResult_ProcId(pCheck));
        bPassed = Passed(pDocument);
        if (bPassed)
            printf("%s: %s records, a document of %lu bytes\n", KZEkaMokResult_ProcId(pCheck),
                   KZEkaMokResult_RecordCount(pCheck),
                   (unsigned long)strlen(KZEkaMokResult_MokData(pDocument)));
        else
            PrintErrors(pDocument);
        KZEkaMokResult_Free(pDocument);
    }
    KZEkaMokResult_Free(pCheck);
    KZEkaMok_Terminate();
    return bPassed ? 0 : 1;
}
