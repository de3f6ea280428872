// `kzekamok explain`
#pragma once

#include <string>
#include <vector>

#include "command/Command.h"

namespace host {

/// Tells what an error code means and what to do about it.
class ExplainCommand final : public Command
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    ExitStatus Run() override;

private:
    std::vector<std::string> m_vecCode;  ///< empty for all
};

}  // namespace host
