// The command-line host of the library.
#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <iostream>

#include "CommandLine.h"

namespace {

using namespace host;

/// Results that nobody got are no results.
ExitStatus FinishOutput(ExitStatus eStatus)
{
    std::cout.flush();
    if (std::cout)
        return eStatus;
    const int nError = errno;
    std::cerr << "kzekamok: standard output could not be written";
    if (nError != 0)
        std::cerr << ": " << std::strerror(nError);
    std::cerr << ". The results above are not complete.\n";
    return Worse(eStatus, ExitStatus::NotWritten);
}

}  // namespace

int main(int nCount, char** pArguments)
{
    // A reader that leaves shows as a failed write, which has a status of its own.
    std::signal(SIGPIPE, SIG_IGN);
    try {
        return static_cast<int>(FinishOutput(RunCommandLine(nCount, pArguments)));
    } catch (const std::exception& error) {
        std::cerr << "kzekamok: unexpected fault: " << error.what()
                  << ". No file counts as checked.\n";
    }
    return static_cast<int>(ExitStatus::NotChecked);
}
