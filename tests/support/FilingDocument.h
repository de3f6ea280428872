// Whole documents of the Finance and CrossBorder families, as the XML library writes them.
#pragma once

#include <string>

/// What a document says of its procedure and of who made it.
struct FilingHead
{
    std::string strProcId;
    std::string strProcVR;
    std::string strName = "青葉商会";
    std::string strSoftware = "Soft";
    std::string strDay = "2024-03-04";
};

inline std::string CatalogueItem(const std::string& strId)
{
    return R"(<rdf:li><rdf:description about="#)" + strId + R"("/></rdf:li>)";
}

/// \param strItems  Of the catalogue; \param strReports  Behind the IT section.
inline std::string FilingDocument(const FilingHead& head,
                                  const std::string& strItems,
                                  const std::string& strIt,
                                  const std::string& strReports)
{
    return R"(<?xml version="1.0" encoding="UTF-8" standalone="no" ?>)"
           R"(<DATA xmlns="http://xml.luvia.example/XSD/gensen" id="DATA")"
           R"( xmlns:gen="http://xml.luvia.example/XSD/general")"
           R"( xmlns:kyo="http://xml.luvia.example/XSD/kyotsu")"
           R"( xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance"><)" +
           head.strProcId + R"( VR=")" + head.strProcVR + R"(" id=")" + head.strProcId +
           R"("><CATALOG id="CATALOG">)"
           R"(<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">)"
           R"(<rdf:description id="REPORT"><SEND_DATA/>)"
           R"(<IT_SEC><rdf:description about="#IT"/></IT_SEC><FORM_SEC>)" +
           (strItems.empty() ? "<rdf:Seq/>" : "<rdf:Seq>" + strItems + "</rdf:Seq>") +
           R"(</FORM_SEC><TENPU_SEC/><XBRL_SEC/><XBRL2_1_SEC/><SOFUSHO_SEC/>)"
           R"(</rdf:description></rdf:RDF></CATALOG><CONTENTS id="CONTENTS">)" +
           strIt + strReports + "</CONTENTS></" + head.strProcId + "></DATA>";
}

/// The IT section of a filer who gave a procedure and a name alone.
inline std::string ShortItSection(const FilingHead& head)
{
    return R"(<IT VR="1.3" id="IT"><NOZEISHA_NM ID="NOZEISHA_NM">)" + head.strName +
           R"(</NOZEISHA_NM><TETSUZUKI ID="TETSUZUKI"><procedure_CD>)" + head.strProcId +
           "</procedure_CD></TETSUZUKI></IT>";
}

/// A report element. \param nNumber  Of its id; \param nPage  Of its form.
inline std::string FilingReport(const FilingHead& head,
                                const std::string& strReportId,
                                const std::string& strReportVR,
                                int nNumber,
                                int nPage,
                                const std::string& strBody)
{
    return "<" + strReportId + R"( VR=")" + strReportVR + R"(" id=")" + strReportId + "-" +
           std::to_string(nNumber) + R"(" page=")" + std::to_string(nPage) + R"(" sakuseiDay=")" +
           head.strDay + R"(" sakuseiNM=")" + head.strName + R"(" softNM=")" + head.strSoftware +
           "\">" + strBody + "</" + strReportId + ">";
}
