// `kzekamok convert`
#pragma once

#include <string>

#include "command/Command.h"
#include "command/FilerOptions.h"
#include "report/ReportOptions.h"
#include "request/ConvertFile.h"

namespace host {

class ConvertCommand final : public Command
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    void Finish() override;
    ExitStatus Run() override;

private:
    ReportOptions m_report;
    FilerOptions m_filer;
    std::string m_strFile;
    std::string m_strOutput;
    FilerFields m_fields;
    ConversionOptions m_options;
};

}  // namespace host
