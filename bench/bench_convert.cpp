// Turns one CSV file into a document file through the shared library.
//
//     bench_convert CSV OUT.mok [FINANCE_PROCEDURE]
//
// Prints the result and the detail table.
#include <KZEkaMok/KZEkaMok.h>

#include <iostream>

#include "BenchFiler.h"

namespace {

auto Convert(KZICsvConvMokEka& converter, const char* szCsv, const char* szMok)
{
    return converter.CsvConvMok(
        szCsv, szMok, BenchFiler::ZEIMUSHO_CD, BenchFiler::NOZEISHA_ID, BenchFiler::KOJIN_BANGO,
        BenchFiler::HOJIN_BANGO, BenchFiler::NOZEISHA_NM, BenchFiler::NOZEISHA_ADR,
        BenchFiler::DAIHYO_NM, BenchFiler::DAIRI_ID, BenchFiler::DAIRI_NM, BenchFiler::DAIRI_ADR,
        BenchFiler::TETSUZUKI, BenchFiler::SOFT_NAME);
}

auto ConvertFinance(KZICsvConvMokEka& converter,
                    const char* szCsv,
                    const char* szMok,
                    const char* szProcedureId)
{
    return converter.CsvConvMokFinance(
        szCsv, szMok, BenchFiler::ZEIMUSHO_CD, BenchFiler::NOZEISHA_ID, BenchFiler::KOJIN_BANGO,
        BenchFiler::HOJIN_BANGO, BenchFiler::NOZEISHA_NM, BenchFiler::NOZEISHA_ADR,
        BenchFiler::DAIHYO_NM, BenchFiler::DAIRI_ID, BenchFiler::DAIRI_NM, BenchFiler::DAIRI_ADR,
        szProcedureId, BenchFiler::TEISHUTSU_ERA, BenchFiler::TEISHUTSU_YEAR,
        BenchFiler::TEISHUTSU_MONTH, BenchFiler::TEISHUTSU_DAY, BenchFiler::SOFT_NAME,
        BenchFiler::NOZEISHA_ZIP1, BenchFiler::NOZEISHA_ZIP2);
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3 && argc != 4) {
        std::cerr << "usage: bench_convert CSV OUT.mok [FINANCE_PROCEDURE]\n";
        return 2;
    }
    KZICsvConvMokEka converter;
    const auto pResult = argc == 3 ? Convert(converter, argv[1], argv[2])
                                   : ConvertFinance(converter, argv[1], argv[2], argv[3]);
    if (pResult == nullptr)
        return 3;
    std::cout << pResult->GetResult() << ' ' << pResult->GetDetailErrorInfo() << '\n';
    converter.Terminate();
    return 0;
}
