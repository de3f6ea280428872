// `kzekamok new`
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "command/Command.h"

namespace host {

/// Makes a file that passes the check, from the definition of its type id.
class NewCommand final : public Command
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    ExitStatus Run() override;

private:
    std::string m_strTypeId;
    std::optional<std::size_t> m_records;
    std::string m_strOutput;  ///< empty for standard output
    unsigned m_nSeed = 1;
};

}  // namespace host
