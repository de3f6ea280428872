// The command-line host of the library.
#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <iostream>
#include <string>

#include "CommandLine.h"
#include "Language.h"

namespace {

using namespace host;

constexpr Text NOT_WRITTEN = {
    "kzekamok: standard output could not be written{1}. The results above are not complete.\n",
    "kzekamok：標準出力に書き込めませんでした{1}。上の結果は完全ではありません。\n"};
constexpr Text FAULT = {
    "kzekamok: unexpected fault: {1}. No file counts as checked.\n",
    "kzekamok：予期しない障害：{1}。どのファイルもチェック済みとはみなせません。\n"};

/// Results that nobody got are no results.
ExitStatus FinishOutput(ExitStatus eStatus)
{
    std::cout.flush();
    if (std::cout)
        return eStatus;
    const int nError = errno;
    const std::string strReason =
        nError != 0 ? Say({": {1}", "（{1}）"}, {std::strerror(nError)}) : std::string();
    std::cerr << Say(NOT_WRITTEN, {strReason});
    return Worse(eStatus, ExitStatus::NotWritten);
}

}  // namespace

int main(int nCount, char** pArguments)
{
    // A reader that leaves shows as a failed write, which has a status of its own.
    std::signal(SIGPIPE, SIG_IGN);
    // So does a document that grows over the limit of file sizes.
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        return static_cast<int>(FinishOutput(RunCommandLine(nCount, pArguments)));
    } catch (const std::exception& error) {
        std::cerr << Say(FAULT, {error.what()});
    }
    return static_cast<int>(ExitStatus::NotChecked);
}
