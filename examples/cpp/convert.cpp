// Checks a CSV file and turns it into a document in memory. Prints its errors or what came out.
// kzekamok_example_cpp FILE.csv
#include <KZEkaMok/KZEkaMok.h>

#include <algorithm>
#include <iostream>
#include <memory>
#include <string>

namespace {

constexpr std::int64_t KEY = 1;

/// Prints a failed result, one entry "record-column-code" a line. \return whether it passed.
bool Passed(const std::shared_ptr<KZIConvertResultEka>& pResult)
{
    if (pResult && pResult->GetResult() == PROCESS_OK)
        return true;
    std::string strErrors = pResult ? pResult->GetDetailErrorInfo() : std::string();
    std::replace(strErrors.begin(), strErrors.end(), ',', '\n');
    std::cout << strErrors << '\n';
    return false;
}

}  // namespace

int main(int nCount, char** szArguments)
{
    if (nCount != 2) {
        std::cerr << "usage: " << szArguments[0] << " FILE.csv\n";
        return 2;
    }
    KZICsvConvMokEka converter;
    const auto pCheck = converter.ELCsvCheck(szArguments[1], KEY);
    if (!Passed(pCheck))
        return 1;
    const auto pDocument = converter.ELCsvConvMok(
        KEY, "90101", "9900000000000017", nullptr, "9990000000017", "見本&例証券株式会社",
        "紙原県見本市例町１丁目２番３号　見本ビル９階", "見本　太郎", "9900000000000025",
        "例田税理士事務所　例田　花子", "紙原県雛形市折目坂４－５－６",
        pCheck->GetProcId().c_str());
    if (!Passed(pDocument))
        return 1;
    std::cout << pCheck->GetProcId() << ": " << pCheck->GetRecordCount()
              << " records, a document of " << pDocument->GetMokData().size() << " bytes\n";
    converter.Terminate();
    return 0;
}
