#include "document/DocumentParts.h"

#include "text/CText.h"

namespace DocumentParts {

namespace {

/// Sizes of the buffers in which a start tag and a catalogue item are printed; longer ones are cut.
constexpr std::size_t START_TAG_BUFFER_SIZE = 500;
constexpr std::size_t ITEM_BUFFER_SIZE = 100;

constexpr const char* NAMESPACE_DEFAULT = "http://xml.luvia.example/XSD/gensen";
constexpr const char* NAMESPACE_GEN = "http://xml.luvia.example/XSD/general";
constexpr const char* NAMESPACE_KYO = "http://xml.luvia.example/XSD/kyotsu";
constexpr const char* NAMESPACE_XSI = "http://www.w3.org/2001/XMLSchema-instance";
constexpr const char* NAMESPACE_RDF = "http://www.w3.org/1999/02/22-rdf-syntax-ns#";

}  // namespace

std::string Declaration()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\"?>\n";
}

std::string RootStart()
{
    return CText::CutToBuffer(std::string(R"(<DATA id="DATA" xmlns=")") + NAMESPACE_DEFAULT +
                                  R"(" xmlns:gen=")" + NAMESPACE_GEN + R"(" xmlns:kyo=")" +
                                  NAMESPACE_KYO + R"(" xmlns:xsi=")" + NAMESPACE_XSI + R"(">)",
                              START_TAG_BUFFER_SIZE);
}

std::string ProcedureStart(const std::string& strProcId, const std::string& strProcVR)
{
    return CText::CutToBuffer(
        "<" + strProcId + " VR=\"" + strProcVR + "\" id=\"" + strProcId + "\">",
        START_TAG_BUFFER_SIZE);
}

std::string CatalogueHead()
{
    return std::string(R"(<CATALOG id="CATALOG"><rdf:RDF xmlns:rdf=")") + NAMESPACE_RDF +
           R"("><rdf:description id="REPORT"><SEND_DATA/>)"
           R"(<IT_SEC><rdf:description about="#IT"/></IT_SEC><FORM_SEC><rdf:Seq>)";
}

std::string CatalogueItem(const std::string& strReportId)
{
    return "<rdf:li><rdf:description about=\"#" + strReportId + "\"/></rdf:li>";
}

std::string CutCatalogueItem(const std::string& strReportId)
{
    return CText::CutToBuffer(CatalogueItem(strReportId), ITEM_BUFFER_SIZE);
}

std::string CatalogueTail()
{
    return "</rdf:Seq></FORM_SEC><TENPU_SEC/><XBRL_SEC/><XBRL2_1_SEC/><SOFUSHO_SEC/>"
           "</rdf:description></rdf:RDF></CATALOG>";
}

std::string ContentsStart()
{
    return R"(<CONTENTS id="CONTENTS">)";
}

std::string ContentsEnd()
{
    return "</CONTENTS>";
}

std::string ProcedureAndRootEnd(const std::string& strProcId)
{
    return "</" + strProcId + "></DATA>";
}

}  // namespace DocumentParts
