// `kzekamok rules`
#pragma once

#include <string>
#include <vector>

#include "command/Command.h"
#include "report/FormatOption.h"

namespace host {

/// Writes the whole catalogue for other tools: check items, messages, procedures.
class RulesCommand final : public Command
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    ExitStatus Run() override;

private:
    std::vector<std::string> m_vecTypeId;  ///< empty for all
    Format m_eFormat = Format::Json;
};

}  // namespace host
