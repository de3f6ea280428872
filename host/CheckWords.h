// Says the checks of a form in words.
#pragma once

#include <cstddef>
#include <string>

#include "DetailTable.h"
#include "FormDefinition.h"

namespace host {

/// What a cell must be, in the current language, such as "up to 5 digits", with the conditions of
/// the check in front: "if column 13 is filled: required". The keyword itself if it is unknown or
/// its parameters say nothing. Never empty unless the keyword is.
std::string CheckWords(const CheckDefinition& check, const FormDefinition& form);

/// The words of the checks of the form that report such an error there, in their order, each once,
/// joined by "／" or "; or ". Empty if there is none, as for errors of files and arguments. Leaves
/// out the conditions that other columns have no error: as the check refused, they held.
std::string RuleOf(const FormDefinition& form, const DetailEntry& entry);
/// The same of the form of the error's record, together with the checks of other forms that place
/// their errors in that record.
/// \param nRecordCount  Records of the file.
std::string RuleOf(const ProcedureDefinition& procedure,
                   const DetailEntry& entry,
                   std::size_t nRecordCount);

}  // namespace host
