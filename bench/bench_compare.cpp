// Measures whole processes against each other and prints their ratios beside the budgets.
//
//     bench_compare [RUNS]
//
// The commands take turns, so that a slow moment of the machine falls on all of them; the least
// wall time and the highest peak memory of a command count. A missed budget is told but is no
// failure: the exit status is 0 when everything could be measured.
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "BenchInput.h"

namespace {

/// Bytes that a document may have, and how close below them the measured one lies.
constexpr std::size_t DOCUMENT_LIMIT = 10485760;
constexpr std::size_t DOCUMENT_SLACK = 64;

/// Entries of the detail table when there are too many errors: the most that it holds, and one that
/// tells of the others.
constexpr std::size_t FULL_TABLE = 100001;
static_assert(BenchInput::MAX_RECORDS * (BenchInput::COLUMN_COUNT - 1) >= FULL_TABLE);

/// Bytes by which a Finance document is padded towards the limit.
constexpr std::size_t FINANCE_PADDING = 8000000;

constexpr int DEFAULT_RUNS = 9;

struct Command
{
    std::string strName;
    std::vector<std::string> vecArgument;  ///< the program first
    std::string strExpected;               ///< what it must print; empty: anything
    double dSeconds = std::numeric_limits<double>::infinity();
    long lPeakKiB = 0;
};

std::string ReadFile(const std::string& strPath)
{
    std::ifstream file(strPath, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Starts the program with its standard output in a file.
pid_t Start(const Command& command, const std::string& strOutput)
{
    std::vector<char*> vecArgument;
    for (const std::string& strArgument : command.vecArgument)
        vecArgument.push_back(const_cast<char*>(strArgument.c_str()));
    vecArgument.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, strOutput.c_str(),
                                     O_WRONLY | O_CREAT | O_TRUNC, 0600);
    pid_t nPid = 0;
    const int nError =
        posix_spawnp(&nPid, vecArgument[0], &actions, nullptr, vecArgument.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (nError != 0)
        throw std::runtime_error("can't start " + command.vecArgument[0]);
    return nPid;
}

/// Runs the command once and keeps its best time. The peak memory is never below that of this
/// process, which is why this process stays small.
void Run(Command& command, const BenchInput::Folder& folder)
{
    const bool bOutputCounts = !command.strExpected.empty();
    const std::string strOutput = bOutputCounts ? folder.Path("output").string() : "/dev/null";
    const auto start = std::chrono::steady_clock::now();
    const pid_t nPid = Start(command, strOutput);
    int nStatus = 0;
    rusage usage{};
    if (wait4(nPid, &nStatus, 0, &usage) != nPid)
        throw std::runtime_error("can't wait for " + command.strName);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    if (!WIFEXITED(nStatus) || WEXITSTATUS(nStatus) != 0)
        throw std::runtime_error(command.strName + " failed");
    if (bOutputCounts && ReadFile(strOutput) != command.strExpected)
        throw std::runtime_error(command.strName + " printed something else than expected: " +
                                 ReadFile(strOutput).substr(0, 200));
    command.dSeconds = std::min(command.dSeconds, seconds.count());
    command.lPeakKiB = std::max(command.lPeakKiB, usage.ru_maxrss);
}

/// A program that was built beside this one.
std::string Sibling(const char* szName)
{
    return (std::filesystem::read_symlink("/proc/self/exe").parent_path() / szName).string();
}

Command Convert(const std::string& strName, const std::string& strCsv, const std::string& strMok)
{
    return {strName, {Sibling("bench_convert"), strCsv, strMok}, "S_OK \n"};
}

/// Finance requests on a full file and on one of a tenth of its records.
struct FinancePair
{
    Command full;
    Command tenth;
};

FinancePair CheckFinance(const std::string& strFull, const std::string& strTenth)
{
    const auto command = [](const char* szName, const std::string& strCsv) {
        return Command{szName, {Sibling("bench_check"), "--finance", strCsv}, "S_OK 0\n"};
    };
    return {command("Finance check, 1,000 x 30 clean", strFull),
            command("Finance check, 100 x 30 clean", strTenth)};
}

FinancePair ConvertFinance(const BenchInput::Folder& folder,
                           const std::string& strName,
                           const char* szTypeId,
                           const char* szProcedureId,
                           std::size_t nPadding)
{
    const auto command = [&](const char* szRecords, std::size_t nRecords, std::size_t nBytes) {
        const std::string strCsv =
            folder.WriteCsv(std::string(szTypeId) + "-" + szRecords + ".csv",
                            {nRecords, BenchInput::Cells::CLEAN, nBytes, szTypeId});
        Command convert = Convert("Finance conversion, " + std::string(szRecords) + strName, strCsv,
                                  strCsv + ".mok");
        convert.vecArgument.push_back(szProcedureId);
        return convert;
    };
    return {command("1,000", BenchInput::FINANCE_MAX_RECORDS, nPadding),
            command("100", BenchInput::FINANCE_MAX_RECORDS / 10, nPadding / 10)};
}

/// The padding with which the document of a full file ends just below the limit. A byte of padding
/// is a byte of the document, so one conversion without any tells how much is wanted.
std::size_t FindPadding(const BenchInput::Folder& folder)
{
    const std::string strMok = folder.Path("plain.mok").string();
    Command command = Convert("a first conversion", folder.WriteCsv("plain.csv", {}), strMok);
    Run(command, folder);
    const std::size_t nPlain = std::filesystem::file_size(strMok);
    if (nPlain + DOCUMENT_SLACK > DOCUMENT_LIMIT)
        throw std::runtime_error("the document is too large without padding");
    return DOCUMENT_LIMIT - DOCUMENT_SLACK - nPlain;
}

void PrintCommand(const Command& command)
{
    std::printf("%-44s %9.1f ms %9.1f MiB\n", command.strName.c_str(), command.dSeconds * 1000,
                static_cast<double>(command.lPeakKiB) / 1024);
}

void PrintRatio(const char* szName, double dValue, double dBase, double dBudget)
{
    const double dRatio = dValue / dBase;
    std::printf("%-58s %6.2f  budget %5.2f  %s\n", szName, dRatio, dBudget,
                dRatio <= dBudget ? "within budget" : "over budget");
}

void PrintRatioWithoutBudget(const char* szName, double dValue, double dBase)
{
    std::printf("%-58s %6.2f\n", szName, dValue / dBase);
}

bool HasProgram(const std::string& strProgram)
{
    return std::system(("command -v " + strProgram + " >/dev/null").c_str()) == 0;
}

void Compare(int nRuns)
{
    const BenchInput::Folder folder;
    setenv("HOME", folder.Path("").c_str(), 1);
    unsetenv("KZLuviaZEKA.DebugOutput");

    const std::size_t nPadding = FindPadding(folder);
    const std::string strClean = folder.WriteCsv("clean.csv", {});
    const std::string strDates = folder.Path("dates.csv").string();
    BenchInput::WriteFile(strDates, BenchInput::DateCsvText(BenchInput::MAX_RECORDS));
    const std::string strFew = folder.WriteCsv("few.csv", {500});
    const std::string strWrong =
        folder.WriteCsv("wrong.csv", {BenchInput::MAX_RECORDS, BenchInput::Cells::WRONG});
    const std::string strLarge =
        folder.WriteCsv("large.csv", {BenchInput::MAX_RECORDS, BenchInput::Cells::CLEAN, nPadding});
    const std::string strTenth =
        folder.WriteCsv("tenth.csv", {500, BenchInput::Cells::CLEAN, nPadding / 10});
    const std::string strMok = folder.Path("large.mok").string();

    Command convert = Convert("conversion, 5,000 records, 10 MiB", strLarge, strMok);
    Command convertTenth =
        Convert("conversion, 500 records", strTenth, folder.Path("tenth.mok").string());
    Run(convert, folder);
    const std::string strSize = std::to_string(std::filesystem::file_size(strMok));
    const std::string strSizes = strSize + ' ' + strSize + '\n';
    Command bare = {"bare parse and serialisation", {Sibling("bench_xml"), strMok}, strSizes};
    Command bareLeast = {
        "the same, not validating", {Sibling("bench_xml"), "--never-validate", strMok}, strSizes};
    Command check = {"check, 5,000 x 30 clean", {Sibling("bench_check"), strClean}, "S_OK 0\n"};
    Command checkDates = {
        "check, 5,000 x 30, every date check", {Sibling("bench_check"), strDates}, "S_OK 0\n"};
    Command millerDates = {
        "mlr --icsv --ocsv cat of that", {"mlr", "--icsv", "--ocsv", "cat", strDates}, ""};
    Command checkFew = {"check, 500 x 30 clean", {Sibling("bench_check"), strFew}, "S_OK 0\n"};
    Command checkWrong = {"check, 5,000 x 30, every cell wrong",
                          {Sibling("bench_check"), strWrong},
                          "E_FAIL " + std::to_string(FULL_TABLE) + '\n'};
    Command miller = {
        "mlr --icsv --ocsv cat, 5,000 x 30", {"mlr", "--icsv", "--ocsv", "cat", strClean}, ""};

    const auto writeFinance = [&folder](const std::string& strName, std::size_t nRecords) {
        return folder.WriteCsv(
            strName, {nRecords, BenchInput::Cells::CLEAN, 0, BenchInput::FINANCE_TYPE_ID});
    };
    FinancePair checkFinance =
        CheckFinance(writeFinance("finance.csv", BenchInput::FINANCE_MAX_RECORDS),
                     writeFinance("finance-tenth.csv", BenchInput::FINANCE_MAX_RECORDS / 10));
    FinancePair convertFinance = ConvertFinance(folder, " pages", BenchInput::FINANCE_TYPE_ID,
                                                BenchInput::FINANCE_PROCEDURE_ID, FINANCE_PADDING);
    FinancePair convertPaged =
        ConvertFinance(folder, " records, 6 a page", BenchInput::PAGED_TYPE_ID,
                       BenchInput::PAGED_PROCEDURE_ID, FINANCE_PADDING);

    std::vector<Command*> vecCommand = {&convert, &bare,     &bareLeast,  &convertTenth,
                                        &check,   &checkFew, &checkWrong, &checkDates};
    for (FinancePair* pPair : {&checkFinance, &convertFinance, &convertPaged})
        vecCommand.insert(vecCommand.end(), {&pPair->full, &pPair->tenth});
    const bool bMiller = HasProgram("mlr");
    if (bMiller)
        vecCommand.insert(vecCommand.end(), {&miller, &millerDates});
    for (int i = 0; i < nRuns; ++i) {
        for (Command* pCommand : vecCommand)
            Run(*pCommand, folder);
    }

    std::printf("document: %s bytes; least time and highest peak memory of %d runs\n\n",
                strSize.c_str(), nRuns);
    for (const Command* pCommand : vecCommand)
        PrintCommand(*pCommand);
    std::printf("\n");
    PrintRatio("conversion near 10 MiB / bare run, time", convert.dSeconds, bare.dSeconds, 1.25);
    PrintRatio("conversion near 10 MiB / bare run, peak memory",
               static_cast<double>(convert.lPeakKiB), static_cast<double>(bare.lPeakKiB), 1.25);
    PrintRatioWithoutBudget("conversion near 10 MiB / bare run not validating, time",
                            convert.dSeconds, bareLeast.dSeconds);
    if (bMiller) {
        PrintRatio("clean check / mlr cat of the same file", check.dSeconds, miller.dSeconds, 1.0);
        PrintRatio("check of dates / mlr cat of the same file", checkDates.dSeconds,
                   millerDates.dSeconds, 1.0);
    } else {
        std::printf("clean check / mlr cat: not measured, mlr (miller) isn't installed\n");
    }
    PrintRatio("every cell wrong / clean check", checkWrong.dSeconds, check.dSeconds, 3.0);
    PrintRatio("check of 5,000 / of 500 records", check.dSeconds, checkFew.dSeconds, 11.0);
    PrintRatio("conversion of 5,000 / of 500 records", convert.dSeconds, convertTenth.dSeconds,
               11.0);
    PrintRatio("Finance check of 1,000 / of 100 records", checkFinance.full.dSeconds,
               checkFinance.tenth.dSeconds, 11.0);
    PrintRatio("Finance conversion of 1,000 / of 100 pages", convertFinance.full.dSeconds,
               convertFinance.tenth.dSeconds, 11.0);
    PrintRatio("Finance conversion of 1,000 / of 100 records, 6 a page", convertPaged.full.dSeconds,
               convertPaged.tenth.dSeconds, 11.0);
}

}  // namespace

int main(int argc, char** argv)
{
    const int nRuns = argc > 1 ? std::atoi(argv[1]) : DEFAULT_RUNS;
    if (argc > 2 || nRuns < 1) {
        std::fprintf(stderr, "usage: bench_compare [RUNS]\n");
        return 2;
    }
    try {
        Compare(nRuns);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_compare: %s\n", error.what());
        return 1;
    }
}
