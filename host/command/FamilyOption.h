// The option that says which family's operations take a file.
#pragma once

#include <optional>

#include "form/Family.h"

namespace CLI {
class App;
}

namespace host {

/// Adds --family.
/// \param family  Filled when the command line is parsed; has to live until then. Nothing: the
///     family is found from each file.
void AddFamilyOption(CLI::App& command, std::optional<Family>& family);

}  // namespace host
