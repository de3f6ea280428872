// `kzekamok layout`
#pragma once

#include <string>
#include <vector>

#include "command/Command.h"
#include "report/FormatOption.h"

namespace host {

/// Writes what stands in which column of a file, and what is asked of it.
class LayoutCommand final : public Command
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    ExitStatus Run() override;

private:
    std::vector<std::string> m_vecTypeId;
    Format m_eFormat = Format::Markdown;
};

}  // namespace host
