#include <KZEkaMok/KZEkaMok.h>

#include <iostream>

int main(int, char** szArguments)
{
    KZICsvConvMokEka converter;
    const auto pResult = converter.CsvCheck(szArguments[1]);
    if (pResult)
        std::cout << pResult->GetResult() << ' ' << pResult->GetDetailErrorInfo() << '\n';
    converter.Terminate();
}
