// The fixed pieces of a filing document around its IT section and its reports.
#pragma once

#include <string>

namespace DocumentParts {

/// The XML declaration, with a line feed.
std::string Declaration();
/// Start tag of the root element with the namespaces.
std::string RootStart();
/// \param strProcId  Procedure id. \param strProcVR  Its version.
std::string ProcedureStart(const std::string& strProcId, const std::string& strProcVR);
std::string CatalogueHead();
/// \param strReportId  The id attribute of the report that the item refers to.
std::string CatalogueItem(const std::string& strReportId);
/// The same, cut as the buffer of the base family cuts it.
std::string CutCatalogueItem(const std::string& strReportId);
std::string CatalogueTail();
std::string ContentsStart();
std::string ContentsEnd();
std::string ProcedureAndRootEnd(const std::string& strProcId);

}  // namespace DocumentParts
