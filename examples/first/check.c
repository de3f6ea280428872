#include <KZEkaMok/KZEkaMokC.h>
#include <stdio.h>

int main(int nCount, char** szArguments)
{
    KZEkaMokResult* pResult = KZEkaMok_CsvCheck(nCount > 1 ? szArguments[1] : NULL);
    printf("%s %s\n", KZEkaMokResult_Result(pResult), KZEkaMokResult_DetailErrorInfo(pResult));
    KZEkaMokResult_Free(pResult);
    KZEkaMok_Terminate();
    return 0;
}
