// `kzekamok split`
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "command/Command.h"

namespace host {

/// Parts a file with too many records into files that the check takes.
class SplitCommand final : public Command
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    ExitStatus Run() override;

private:
    std::string m_strFile;
    std::string m_strFolder;
    std::optional<std::size_t> m_records;  ///< most records of a part
    bool m_bRepeat = false;
};

}  // namespace host
