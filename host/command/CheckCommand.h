// `kzekamok check`
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "command/Command.h"
#include "form/Family.h"
#include "report/ReportOptions.h"

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
