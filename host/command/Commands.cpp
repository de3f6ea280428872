#include "command/Commands.h"

#include "command/BatchCommand.h"
#include "command/CheckCommand.h"
#include "command/CompletionCommand.h"
#include "command/ConvertCommand.h"
#include "command/ExplainCommand.h"
#include "command/LayoutCommand.h"
#include "command/LintCommand.h"
#include "command/NewCommand.h"
#include "command/RulesCommand.h"
#include "command/SplitCommand.h"

namespace host {
namespace {

template <class Subcommand>
std::unique_ptr<Command> Make()
{
    return std::make_unique<Subcommand>();
}

/// The one place where a subcommand is made known. In the order of the help.
constexpr std::unique_ptr<Command> (*COMMANDS[])() = {
    Make<CheckCommand>,  Make<ConvertCommand>,    Make<BatchCommand>, Make<ExplainCommand>,
    Make<LayoutCommand>, Make<RulesCommand>,      Make<NewCommand>,   Make<SplitCommand>,
    Make<LintCommand>,   Make<CompletionCommand>,
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
