#include "Commands.h"

#include "BatchCommand.h"
#include "CheckCommand.h"
#include "CompletionCommand.h"
#include "ConvertCommand.h"
#include "ExplainCommand.h"
#include "LayoutCommand.h"
#include "LintCommand.h"
#include "NewCommand.h"
#include "RulesCommand.h"
#include "SplitCommand.h"

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
