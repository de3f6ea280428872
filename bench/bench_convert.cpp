// Turns one CSV file into a document file through the shared library.
//
//     bench_convert CSV OUT.mok
//
// Prints the result and the detail table.
#include <KZEkaMok/KZEkaMok.h>

#include <iostream>

#include "BenchFiler.h"

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: bench_convert CSV OUT.mok\n";
        return 2;
    }
    KZICsvConvMokEka converter;
    const auto pResult = converter.CsvConvMok(
        argv[1], argv[2], BenchFiler::ZEIMUSHO_CD, BenchFiler::NOZEISHA_ID, BenchFiler::KOJIN_BANGO,
        BenchFiler::HOJIN_BANGO, BenchFiler::NOZEISHA_NM, BenchFiler::NOZEISHA_ADR,
        BenchFiler::DAIHYO_NM, BenchFiler::DAIRI_ID, BenchFiler::DAIRI_NM, BenchFiler::DAIRI_ADR,
        BenchFiler::TETSUZUKI, BenchFiler::SOFT_NAME);
    if (pResult == nullptr)
        return 3;
    std::cout << pResult->GetResult() << ' ' << pResult->GetDetailErrorInfo() << '\n';
    converter.Terminate();
    return 0;
}
