// Splitting of a CSV text. The first byte of the input holds switches, the rest is the text.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "FuzzSupport.h"
#include "KZCEkaCommon.h"
#include "KZCMacOSNative.h"
#include "KZCValidResult.h"
#include "fault/Fault.h"
#include "xml/XercesGuards.h"

namespace {

using FuzzSupport::Require;

enum Switch : unsigned
{
    QUOTES = 1,        // double quotes have a meaning
    DURING_CHECK = 2,  // cells are Shift_JIS
    ACCEPT_ALL = 4,    // every record is taken, so the table can be compared with the text
};

constexpr std::string_view DEFINITION = R"(<?xml version="1.0" encoding="UTF-8"?>
<DEFINE><report id="001" columnNum="24" procId="PGE5010"/>
<report id="002" columnNum="3" procId="PGE5020"/><report id="007" columnNum="29" procId="PGE5070"/>
<report id="008" columnNum="19" procId="PGE5080"/></DEFINE>)";

/// The plain meaning of a text without quotes: cells untrimmed, by record.
std::vector<std::vector<std::string>> Split(std::string_view strText)
{
    std::vector<std::vector<std::string>> vecRecord = {{""}};
    for (std::size_t i = 0; i < strText.size(); ++i) {
        const char cByte = strText[i];
        if (cByte == '\r' && i + 1 < strText.size() && strText[i + 1] == '\n')
            continue;
        if (cByte == '\r' || cByte == '\n')
            vecRecord.push_back({""});
        else if (cByte == ',')
            vecRecord.back().emplace_back();
        else
            vecRecord.back().back() += cByte;
    }
    return vecRecord;
}

void ParseAcceptingAll(const std::string& strText, bool bQuote, bool bDuringCheck)
{
    FuzzSupport::UncheckedCsvFile csv;
    Require(csv.Parse(strText.c_str(), bQuote) == STATUS_OK, "a text without refusals is read");
    Require(!csv.Records().empty(), "every text has a record");
    Require(csv.isLastRecord(csv.GetRecordCount() - 1), "the last record is last");
    Require(*csv.GetItem(-1, 0) == '\0' && *csv.GetItem(0, -1) == '\0' &&
                *csv.GetItem(csv.GetRecordCount(), 0) == '\0',
            "a cell out of range is empty");
    if (bQuote)
        return;
    auto vecExpected = Split(strText.c_str());
    for (auto& vecCell : vecExpected) {
        for (std::string& strCell : vecCell)
            strCell = KZCMacOSNative::stringByTrimming(strCell, !bDuringCheck);
    }
    Require(csv.Records() == vecExpected, "the table is the split and trimmed text");
}

void ParseWithDefinition(const std::string& strText, bool bQuote)
{
    KZCEkaCsvFile csv;
    const int nStatus = csv.Parse(strText.c_str(), bQuote);
    Require((nStatus == STATUS_OK) == KZCValidResult::instance()->IsEmpty(),
            "a refusal and nothing else leaves an error");
    for (long i = 0; i < csv.GetRecordCount(); ++i)
        csv.checkGeneration(i);
    Require(KZCValidResult::instance()->IsEmpty() == (nStatus == STATUS_OK),
            "generations record no errors");
    for (long i = 0; i < csv.GetRecordCount(); ++i) {
        Require(!csv.IsValidRecord(i) || !csv.GetRecordGeneration(i).empty(),
                "every data record of a known type id has a generation");
    }
    csv.DeleteEmptyRecord();
    Require(csv.GetRecordCount() == csv.GetNonCRLFRecordCount(), "no blank record is left");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    // The XML library stays up between inputs, as it does between the requests of a host.
    static const XercesSession session;
    static const FuzzSupport::Bundle bundle({{"KZEkaDefine.xml", DEFINITION}});
    if (nSize == 0)
        return 0;
    const unsigned nSwitches = pData[0];
    const bool bQuote = (nSwitches & QUOTES) != 0;
    const bool bDuringCheck = (nSwitches & DURING_CHECK) != 0;
    const std::string strText(FuzzSupport::AsText(pData + 1, nSize - 1));
    KZCEkaCommon::SetCsvCheckFlag(bDuringCheck);
    KZCValidResult::instance()->ClearResult();
    if ((nSwitches & ACCEPT_ALL) != 0)
        ParseAcceptingAll(strText, bQuote, bDuringCheck);
    else
        ParseWithDefinition(strText, bQuote);
    return 0;
}
