// The requests through the C++ class.
#include <KZEkaMok/KZEkaMok.h>

#include <memory>
#include <string_view>

#include "Boundary.h"

namespace {

int Tell(const std::shared_ptr<KZIConvertResultEka>& pResult)
{
    if (!pResult)
        Answer(nullptr, nullptr, nullptr, nullptr, nullptr);
    else
        Answer(pResult->GetResult().c_str(), pResult->GetDetailErrorInfo().c_str(),
               pResult->GetRecordCount().c_str(), pResult->GetProcId().c_str(),
               pResult->GetMokData().c_str());
    return 1;
}

}  // namespace

int RunRequest(const BoundaryRequest* pRequest)
{
    const std::string_view operation = pRequest->szOperation;
    const char* const* t = pRequest->aszText;
    KZICsvConvMokEka host;
    if (operation == "CsvCheck")
        return Tell(host.CsvCheck(t[0]));
    if (operation == "CsvConvMok")
        return Tell(host.CsvConvMok(t[0], t[1], t[2], t[3], t[4], t[5], t[6], t[7], t[8], t[9],
                                    t[10], t[11], t[12], t[13]));
    if (operation == "ELCsvCheck")
        return Tell(host.ELCsvCheck(t[0], pRequest->lKey));
    if (operation == "ELCsvConvMok")
        return Tell(host.ELCsvConvMok(pRequest->lKey, t[0], t[1], t[2], t[3], t[4], t[5], t[6],
                                      t[7], t[8], t[9], t[10]));
    if (operation == "CsvWrite")
        return Tell(host.CsvWrite(t[0], t[1]));
    if (operation == "CsvCheckFinance")
        return Tell(host.CsvCheckFinance(t[0]));
    if (operation == "CsvConvMokFinance")
        return Tell(host.CsvConvMokFinance(t[0], t[1], t[2], t[3], t[4], t[5], t[6], t[7], t[8],
                                           t[9], t[10], t[11], t[12], t[13], t[14], t[15], t[16],
                                           t[17], t[18], t[19]));
    if (operation == "ELCsvCheckFinance")
        return Tell(host.ELCsvCheckFinance(t[0], pRequest->lKey));
    if (operation == "ELCsvConvMokFinance")
        return Tell(host.ELCsvConvMokFinance(pRequest->lKey, t[0], t[1], t[2], t[3], t[4], t[5],
                                             t[6], t[7], t[8], t[9], t[10], t[11], t[12], t[13],
                                             t[14], t[15], t[16], t[17]));
    if (operation == "CsvCheckCrossBorder")
        return Tell(host.CsvCheckCrossBorder(t[0]));
    if (operation == "CsvConvMokCrossBorder")
        return Tell(host.CsvConvMokCrossBorder(t[0], t[1], t[2], t[3], t[4], t[5], t[6], t[7], t[8],
                                               t[9], t[10], t[11], t[12], t[13], t[14], t[15],
                                               t[16], t[17], t[18], t[19]));
    if (operation == "ELCsvCheckCrossBorder")
        return Tell(host.ELCsvCheckCrossBorder(t[0], pRequest->lKey));
    if (operation == "ELCsvConvMokCrossBorder")
        return Tell(host.ELCsvConvMokCrossBorder(pRequest->lKey, t[0], t[1], t[2], t[3], t[4], t[5],
                                                 t[6], t[7], t[8], t[9], t[10], t[11], t[12], t[13],
                                                 t[14], t[15], t[16], t[17]));
    if (operation != "Terminate")
        return 0;
    host.Terminate();
    Answer("", "", "", "", "");
    return 1;
}
