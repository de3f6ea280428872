// Checks the files named on the command line and prints what came out, one line each.
#include <KZEkaMok/KZEkaMok.h>

#include <iostream>
#include <memory>

int main(int nCount, char** szArguments)
{
    KZICsvConvMokEka converter;
    for (int nIndex = 1; nIndex < nCount; ++nIndex) {
        const std::shared_ptr<KZIConvertResultEka> pResult =
            converter.CsvCheck(szArguments[nIndex]);
        if (!pResult)
            return 1;
        std::cout << pResult->GetResult() << '|' << pResult->GetDetailErrorInfo() << '\n';
    }
    converter.Terminate();
    return 0;
}
