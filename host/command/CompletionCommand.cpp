#include "command/CompletionCommand.h"

#include <CLI/CLI.hpp>

#include <iostream>

#include "base/Language.h"
#include "completion/Completion.h"

namespace host {
namespace {

constexpr Text SUMMARY = {"Writes the script with which a shell completes command lines",
                          "シェルの入力補完スクリプトを出力します"};
constexpr Text SHELL_HELP = {"bash or zsh", "bashまたはzsh"};
constexpr Text FOOTER = {
    R"(An installed package has the scripts in place.

Examples:
  source <(kzekamok completion bash)
  source <(kzekamok completion zsh)         # behind compinit
      For this shell alone.
  kzekamok completion bash > ~/.local/share/bash-completion/completions/kzekamok
  kzekamok completion zsh > DIR/_kzekamok   # DIR: a folder of $fpath
      For good.)",
    R"(パッケージで導入した場合は設定済みです。

例：
  source <(kzekamok completion bash)
  source <(kzekamok completion zsh)         # compinitの後
      今のシェルだけで使います。
  kzekamok completion bash > ~/.local/share/bash-completion/completions/kzekamok
  kzekamok completion zsh > DIR/_kzekamok   # DIRは$fpathにあるフォルダー
      常に使います。)"};

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
