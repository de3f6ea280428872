// A subcommand of the command line.
#pragma once

#include "base/ExitStatus.h"

namespace CLI {
class App;
}

namespace host {

class Command
{
public:
    Command() = default;
    virtual ~Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    /// Adds the subcommand with its options to the program's.
    /// \return The subcommand, which belongs to the program.
    virtual CLI::App* AddTo(CLI::App& app) = 0;
    /// Called once the command line has been parsed, if the subcommand was given: for what has to
    /// be looked at together. Throws UsageError.
    virtual void Finish() {}
    /// Does the work. Results go to standard output, everything else to standard error.
    virtual ExitStatus Run() = 0;
};

}  // namespace host
