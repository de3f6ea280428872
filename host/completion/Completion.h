// What a shell can complete on the command line, as the parser knows it.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace host {

enum class Completed
{
    Nothing,  ///< a number or a text that only the user knows
    Choice,   ///< one of a few words
    AnyFile,
    CsvFile,
    Document,  ///< a .mok file
    Folder,
    TypeId,  ///< the program itself lists them
    Code,    ///< an error code
};

struct CompletedValue
{
    Completed eKind = Completed::Nothing;
    std::string strPlaceholder;          ///< what the help calls it: FILE, TYPEID
    std::vector<std::string> vecChoice;  ///< of a Choice
};

struct CompletedOption
{
    std::vector<std::string> vecName;  ///< with their dashes
    std::string strHelp;
    bool bTakesValue = false;
    bool bRepeated = false;  ///< may be given several times
    CompletedValue value;
};

struct CompletedArgument
{
    CompletedValue value;
    bool bRepeated = false;
};

/// A subcommand, or the program itself, which has no name.
struct CompletedCommand
{
    std::string strName;
    std::string strHelp;
    std::vector<CompletedOption> vecOption;
    std::vector<CompletedArgument> vecArgument;
};

/// The program itself, then its subcommands in their order. Throws std::logic_error for a
/// placeholder of which nobody told what it stands for.
std::vector<CompletedCommand> CompletedCommands(CLI::App& app);

void WriteBashCompletion(std::ostream& out, const std::vector<CompletedCommand>& vecCommand);
void WriteZshCompletion(std::ostream& out, const std::vector<CompletedCommand>& vecCommand);

}  // namespace host
