// Where the definition files of the Finance and CrossBorder procedures lie.
#pragma once

#include <string>

#include "KZCDefinitionManager.h"

namespace FamilyFolder {

/// Ends of the names of a procedure's two files.
inline constexpr const char* VALIDATION_FILE = "vld.xml";
inline constexpr const char* TEMPLATE_FILE = "tpl.xml";

/// The definition file of a procedure in its family's folder, or the empty text.
/// \param szFunction  Name in the log of the fault that another call type raises.
std::string FindDefinition(CALL_TYPE eType,
                           const std::string& strProcId,
                           const char* szFile,
                           const char* szFunction);

/// The same in a given resource folder; the empty text for none.
std::string FindDefinitionBelow(const std::string& strBundle,
                                CALL_TYPE eType,
                                const std::string& strProcId,
                                const char* szFile,
                                const char* szFunction);

}  // namespace FamilyFolder
