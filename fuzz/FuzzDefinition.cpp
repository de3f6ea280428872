// Loading and use of a definition file. The whole input is the file; PLACEHOLDER stands for the
// resource folder in it.
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>

#include "FuzzSupport.h"
#include "KZCEkaCommon.h"
#include "KZCEkaITData.h"
#include "KZCValidResult.h"
#include "definition/KZCEkaDefinition.h"
#include "fault/Fault.h"
#include "xml/XercesGuards.h"

namespace {

using FuzzSupport::Require;

constexpr const char* TYPE_ID = "002";
constexpr std::string_view PLACEHOLDER = "@BUNDLE@";
/// Files that seeds reach for and that nobody may open.
constexpr const char* ENTITY_FILE = "fetched.xml";
constexpr const char* SUBSET_FILE = "fetched.dtd";
constexpr std::string_view ENTITY = R"(<report id="002" procId="PGE5020" reportId="GEZ002"/>)";
constexpr std::string_view SUBSET = R"(<!ATTLIST report procId CDATA "PGE5020">)";

constexpr const char* CSV =
    "002,1234567,5,3,4,30,\r\n"
    "002,,x,\x82\xa0,<!-- -->,<![CDATA[a]]>,]]>\r\n";

std::string WithFolder(std::string strText, const std::string& strFolder)
{
    for (std::size_t nAt = 0; (nAt = strText.find(PLACEHOLDER, nAt)) != std::string::npos;
         nAt += strFolder.size())
        strText.replace(nAt, PLACEHOLDER.size(), strFolder);
    return strText;
}

/// Tells whether a file was opened. What the library makes of a fetched file needn't show in a
/// result, so the system is asked.
class OpenWatch
{
public:
    OpenWatch(const std::string& strFolder, std::initializer_list<const char*> listFile)
        : m_nQueue(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        for (const char* szFile : listFile) {
            const std::string strPath = strFolder + '/' + szFile;
            Require(inotify_add_watch(m_nQueue, strPath.c_str(), IN_OPEN) >= 0, "a watch is set");
            std::ifstream file(strPath);
            Require(WasOpened(), "the watch sees the opening of a file");
        }
    }
    ~OpenWatch() { close(m_nQueue); }
    OpenWatch(const OpenWatch&) = delete;
    OpenWatch& operator=(const OpenWatch&) = delete;

    /// Since the last call.
    bool WasOpened() const
    {
        std::array<char, 4096> events;
        bool bOpened = false;
        while (read(m_nQueue, events.data(), events.size()) > 0)
            bOpened = true;
        return bOpened;
    }

private:
    int m_nQueue;
};

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
    static const FuzzSupport::Bundle bundle({{ENTITY_FILE, ENTITY}, {SUBSET_FILE, SUBSET}});
    static const OpenWatch watch(bundle.Path(), {ENTITY_FILE, SUBSET_FILE});
    bundle.Write("KZEkaDefine.xml",
                 WithFolder(std::string(FuzzSupport::AsText(pData, nSize)), bundle.Path()));
    for (const bool bDuringCheck : {true, false}) {
        KZCEkaDefinition definition;
        const int nStatus = definition.CreateDefinition(TYPE_ID, bDuringCheck);
        Require(nStatus == STATUS_OK || nStatus == STATUS_NG, "loading ends with a status");
        Require(nStatus != STATUS_OK || *definition.GetProcId() != '\0',
                "a loaded definition has a procedure");
        Require(!watch.WasOpened(), "no other file is fetched");
        if (nStatus == STATUS_OK)
            Use(definition, bDuringCheck);
    }
    return 0;
}
