// `kzekamok completion`
#pragma once

#include <string>

#include "command/Command.h"

namespace host {

/// Writes the script with which a shell completes the program's command line.
class CompletionCommand final : public Command
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    ExitStatus Run() override;

private:
    CLI::App* m_pProgram = nullptr;  ///< outlives the command's run
    std::string m_strShell;
};

}  // namespace host
