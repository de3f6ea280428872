// Finds the record behind an error that the library tells for the file as a whole.
#pragma once

#include <string>

#include "EkaMsgTable.h"
#include "file/CsvCells.h"
#include "form/FormDefinition.h"

namespace host {

/// A sentence such as "Record 7 has 35 columns, a record of type 002 has 36.", or the empty text.
std::string StructureHint(KZCEkaMessage_t eMessage,
                          const CsvCells& cells,
                          const Definitions& definitions);

/// For an error that the library tells beside the one that is its reason.
std::string FollowingHint();

}  // namespace host
