// The command-line host of the library.
#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <iostream>
#include <string>

#include "base/Complain.h"
#include "base/Language.h"
#include "command/CommandLine.h"

namespace {

using namespace host;

constexpr Text NOT_WRITTEN = {
    "standard output could not be written{1}. The results above are not complete.",
    "標準出力に書き込めませんでした{1}。上の結果は完全ではありません。"};
constexpr Text FAULT = {"unexpected fault: {1}. No file counts as checked.",
                        "予期しない障害：{1}。どのファイルもチェック済みとはみなせません。"};

/// What the system tells about a failed write, or the empty text: if the write that failed lies far
/// back, what it tells now is about something else.
std::string WriteFailure(int nError)
{
    for (const int nOfAWrite : {EPIPE, ENOSPC, EDQUOT, EFBIG, EIO, EBADF})
        if (nError == nOfAWrite)
            return Say({": {1}", "（{1}）"}, {std::strerror(nError)});
    return {};
}

/// Results that nobody got are no results.
ExitStatus FinishOutput(ExitStatus eStatus)
{
    std::cout.flush();
    if (std::cout)
        return eStatus;
    const std::string strWhy = WriteFailure(errno);
    Complain(Say(NOT_WRITTEN, {strWhy}));
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
        Complain(Say(FAULT, {error.what()}));
    }
    return static_cast<int>(ExitStatus::NotChecked);
}
