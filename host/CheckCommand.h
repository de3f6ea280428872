// `kzekamok check`
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Command.h"
#include "Family.h"
#include "ReportOptions.h"

namespace host {

class CheckCommand final : public Command
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    void Finish() override;
    ExitStatus Run() override;

private:
    ReportOptions m_report;
    std::optional<Family> m_family;
    std::vector<std::string> m_vecFile;
};

}  // namespace host
