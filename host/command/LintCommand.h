// `kzekamok lint`
#pragma once

#include <string>
#include <vector>

#include "command/Command.h"
#include "report/FormatOption.h"

namespace host {

class LintCommand final : public Command
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    void Finish() override;
    ExitStatus Run() override;

private:
    std::string m_strBundle;
    std::vector<std::string> m_vecTypeId;
    Format m_eFormat = Format::Text;
    bool m_bStrict = false;
    bool m_bRules = false;
};

}  // namespace host
