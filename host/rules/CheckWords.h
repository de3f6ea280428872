// Says the checks of a form in words.
#pragma once

#include <cstddef>
#include <string>

#include "form/FormDefinition.h"

namespace host {

/// What a cell must be, in the current language, such as "up to 5 digits", with the conditions of
/// the check in front: "if column 13 is filled: required". The keyword itself if it is unknown or
/// its parameters say nothing. Never empty unless the keyword is.
std::string CheckWords(const CheckDefinition& check, const FormDefinition& form);

/// The same of a check that refused a cell: without the conditions that other columns have no
/// error, as they held.
std::string RefusedCheckWords(const CheckDefinition& check, const FormDefinition& form);

}  // namespace host
