/* Checks the files named on the command line and prints what came out, one line each. */
#include <KZEkaMok/KZEkaMokC.h>

#include <stdio.h>

int main(int nCount, char** szArguments)
{
    int nIndex;
    for (nIndex = 1; nIndex < nCount; ++nIndex) {
        KZEkaMokResult* pResult = KZEkaMok_CsvCheck(szArguments[nIndex]);
        if (!pResult)
            return 1;
        printf("%s|%s\n", KZEkaMokResult_Result(pResult), KZEkaMokResult_DetailErrorInfo(pResult));
        KZEkaMokResult_Free(pResult);
    }
    KZEkaMok_Terminate();
    return 0;
}
