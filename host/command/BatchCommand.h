// `kzekamok batch`
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "batch/FileList.h"
#include "batch/FileWork.h"
#include "command/Command.h"
#include "command/FilerOptions.h"

namespace host {

class BatchCommand final : public Command
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    void Finish() override;
    ExitStatus Run() override;

private:
    void AddFileOptions(CLI::App& command);
    void AddRunOptions(CLI::App& command);
    FileList List() const;
    FileList ReadList(int nFile) const;

    FilerOptions m_filer;
    std::string m_strFolder;  ///< empty for none
    std::string m_strList;    ///< file with a list of files, "-" for standard input; empty for none
    bool m_bNul = false;
    bool m_bTexts = false;
    std::optional<std::size_t> m_workers;
    BatchSettings m_settings;
};

}  // namespace host
