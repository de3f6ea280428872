// All subcommands.
#pragma once

#include <memory>
#include <vector>

#include "command/Command.h"

namespace host {

/// In the order in which the help tells them.
std::vector<std::unique_ptr<Command>> MakeCommands();

}  // namespace host
