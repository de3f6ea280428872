#include "CompletionCommand.h"

#include <CLI/CLI.hpp>

#include <iostream>

#include "Completion.h"
#include "Language.h"

namespace host {
namespace {

constexpr Text SUMMARY = {"Writes the script with which a shell completes command lines",
                          "シェルの入力補完スクリプトを出力します"};
constexpr Text SHELL_HELP = {"bash or zsh", "bashまたはzsh"};
constexpr Text FOOTER = {
    R"(An installed package has the scripts in place. For this session alone:
  source <(kzekamok completion bash)
  source <(kzekamok completion zsh)         # behind compinit
For good:
  kzekamok completion bash > ~/.local/share/bash-completion/completions/kzekamok
  kzekamok completion zsh > DIR/_kzekamok   # DIR: a folder of $fpath)",
    R"(パッケージで導入した場合は設定済みです。今のシェルだけで使うには：
  source <(kzekamok completion bash)
  source <(kzekamok completion zsh)         # compinitの後
常に使うには：
  kzekamok completion bash > ~/.local/share/bash-completion/completions/kzekamok
  kzekamok completion zsh > DIR/_kzekamok   # DIRは$fpathにあるフォルダー)"};

}  // namespace

CLI::App* CompletionCommand::AddTo(CLI::App& app)
{
    m_pProgram = &app;
    CLI::App* pCommand = app.add_subcommand("completion", Say(SUMMARY));
    pCommand->add_option("SHELL", m_strShell, Say(SHELL_HELP))
        ->type_name("")
        ->required()
        ->check(CLI::IsMember({"bash", "zsh"}).description(""));
    pCommand->footer(Say(FOOTER));
    return pCommand;
}

ExitStatus CompletionCommand::Run()
{
    const auto vecCommand = CompletedCommands(*m_pProgram);
    if (m_strShell == "bash")
        WriteBashCompletion(std::cout, vecCommand);
    else
        WriteZshCompletion(std::cout, vecCommand);
    return ExitStatus::Passed;
}

}  // namespace host
