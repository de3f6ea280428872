#include "Commands.h"

#include "CheckCommand.h"
#include "ConvertCommand.h"

namespace host {
namespace {

template <class Subcommand>
std::unique_ptr<Command> Make()
{
    return std::make_unique<Subcommand>();
}

/// The one place where a subcommand is made known. In the order of the help.
constexpr std::unique_ptr<Command> (*COMMANDS[])() = {
    Make<CheckCommand>,
    Make<ConvertCommand>,
};

}  // namespace

std::vector<std::unique_ptr<Command>> MakeCommands()
{
    std::vector<std::unique_ptr<Command>> vecCommand;
    for (const auto pMake : COMMANDS)
        vecCommand.push_back(pMake());
    return vecCommand;
}

}  // namespace host
