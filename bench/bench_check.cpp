// Checks one CSV file through the shared library.
//
//     bench_check [--finance] CSV
//
// Prints the result and the number of entries of the detail table.
#include <KZEkaMok/KZEkaMok.h>

#include <algorithm>
#include <iostream>
#include <string_view>

int main(int argc, char** argv)
{
    const bool bFinance = argc > 1 && std::string_view(argv[1]) == "--finance";
    if (argc != (bFinance ? 3 : 2)) {
        std::cerr << "usage: bench_check [--finance] CSV\n";
        return 2;
    }
    KZICsvConvMokEka converter;
    const auto pResult =
        bFinance ? converter.CsvCheckFinance(argv[2]) : converter.CsvCheck(argv[1]);
    if (pResult == nullptr)
        return 3;
    const std::string& strErrors = pResult->GetDetailErrorInfo();
    const auto nCommas = std::count(strErrors.begin(), strErrors.end(), ',');
    std::cout << pResult->GetResult() << ' ' << (strErrors.empty() ? 0 : nCommas + 1) << '\n';
    converter.Terminate();
    return 0;
}
