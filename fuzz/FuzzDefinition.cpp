// Loading and use of a definition file. The whole input is the file.
#include <string>
#include <string_view>

#include "Fault.h"
#include "FuzzSupport.h"
#include "KZCEkaCommon.h"
#include "KZCEkaITData.h"
#include "KZCValidResult.h"
#include "XercesGuards.h"
#include "definition/KZCEkaDefinition.h"

namespace {

using FuzzSupport::Require;

constexpr const char* TYPE_ID = "002";
/// Seeds that reach for another file name these; their contents show if one was read.
constexpr const char* FETCHED = "FETCHED";
constexpr std::string_view ENTITY =
    R"(<report id="002" columnNum="3" procId="FETCHED" procVR="1" reportId="FETCHED" reportVR="1"/>)";
constexpr std::string_view SUBSET =
    R"(<!ATTLIST report procId CDATA "FETCHED" reportId CDATA "FETCHED">)";

constexpr const char* CSV =
    "002,1234567,5,3,4,30,\r\n"
    "002,,x,\x82\xa0,<!-- -->,<![CDATA[a]]>,]]>\r\n";

void RequireNothingFetched(const KZCEkaDefinition& definition)
{
    Require(std::string_view(definition.GetProcId()) != FETCHED &&
                std::string_view(definition.GetReportId()) != FETCHED,
            "no other file is read");
}

/// Uses a definition as a request does. A definition at fault may raise a fault and nothing else.
void Use(KZCEkaDefinition& definition, bool bDuringCheck)
{
    KZCEkaCommon::SetCsvCheckFlag(bDuringCheck);
    FuzzSupport::UncheckedCsvFile csv;
    Require(csv.Parse(CSV, /*bQuote=*/false) == STATUS_OK, "the fixed text is read");
    KZCEkaITData it;
    it.Initialize(/*bPublic=*/true);
    KZCValidResult::instance()->SetITData(it.GetXml());
    try {
        if (bDuringCheck)
            static_cast<void>(definition.ValidateCsv(&csv));
        else
            static_cast<void>(definition.MakeReportToCsv(&csv, &it));
    } catch (int nFault) {
        Require(nFault == FAULT, "a fault has its one value");
    }
    KZCValidResult::instance()->ClearResult();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    // The XML library stays up between inputs, as it does between the requests of a host.
    static const XercesSession session;
    static const FuzzSupport::Bundle bundle({{"fetched.xml", ENTITY}, {"fetched.dtd", SUBSET}});
    bundle.Write("KZEkaDefine.xml", FuzzSupport::AsText(pData, nSize));
    for (const bool bDuringCheck : {true, false}) {
        KZCEkaDefinition definition;
        const int nStatus = definition.CreateDefinition(TYPE_ID, bDuringCheck);
        Require(nStatus == STATUS_OK || nStatus == STATUS_NG, "loading ends with a status");
        Require(nStatus != STATUS_OK || *definition.GetProcId() != '\0',
                "a loaded definition has a procedure");
        RequireNothingFetched(definition);
        if (nStatus == STATUS_OK)
            Use(definition, bDuringCheck);
    }
    return 0;
}
