// The procedures that a command line names by their type ids.
#pragma once

#include <string>
#include <vector>

#include "form/FormDefinition.h"

namespace host {

/// In the order in which they are named, or all in the order of their type ids if none is. Throws
/// UsageError for a type id that the definitions don't know.
/// \param vecProblem  Gets a message for each known type id whose definition can't be read.
std::vector<const ProcedureDefinition*> WantedProcedures(const Definitions& definitions,
                                                         const std::vector<std::string>& vecTypeId,
                                                         std::vector<std::string>& vecProblem);

}  // namespace host
