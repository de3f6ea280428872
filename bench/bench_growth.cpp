// Measures how the program's time grows with the size of a definition file.
//
//     bench_growth [KZEKAMOK]
//
// A table: what grows, three sizes of which each is twice the one before, processor seconds of
// whole processes, and the ratios. Where time is linear a ratio is at most 2; the budget leaves
// room for noise and for logarithms. A missed budget is told but is no failure.
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr int RUNS = 3;  ///< of which the shortest counts
constexpr double BUDGET = 2.6;
constexpr std::size_t SIZES = 3;

std::string Item(std::size_t nItem, std::size_t nColumn, const std::string& strReport)
{
    const std::string strItem = std::to_string(nItem);
    return "<item type=\"Normal\" id=\"T" + strItem + "\" parent=\"" + strReport + "\" column=\"" +
           std::to_string(nColumn) + "\" label=\"L" + strItem +
           "\"><valid id=\"number\"/></item>\n";
}

std::string Report(const std::string& strTypeId, std::size_t nColumns, std::size_t nItems)
{
    const std::string strReport = "R" + strTypeId;
    std::string strText = "<report id=\"" + strTypeId + "\" columnNum=\"" +
                          std::to_string(nColumns) +
                          "\" procId=\"PGE5010\" procVR=\"1.0\" reportId=\"" + strReport +
                          "\" reportVR=\"1.0\" label=\"L\">\n";
    for (std::size_t n = 0; n < nItems; ++n)
        strText += Item(n, n % nColumns + 1, strReport);
    return strText + "</report>\n";
}

std::string Reports(std::size_t nReports, std::size_t nColumns)
{
    std::string strText;
    for (std::size_t n = 1; n <= nReports; ++n) {
        std::string strTypeId = std::to_string(n);
        strTypeId.insert(0, strTypeId.size() < 3 ? 3 - strTypeId.size() : 0, '0');
        strText += Report(strTypeId, nColumns, nColumns);
    }
    return strText;
}

/// What grows, and how it is measured.
struct Case
{
    const char* szName;
    std::array<std::size_t, SIZES> sizes;
    std::vector<std::string> vecArgument;  ///< of the program; FILE and BUNDLE are filled in
    std::string (*pReports)(std::size_t nSize);
    std::size_t (*pColumns)(std::size_t nSize);  ///< of the record that is checked
};

const std::size_t ITEM_COLUMNS = 8;

std::vector<Case> Cases()
{
    const auto byColumns = [](std::size_t nSize) { return Report("001", nSize, nSize); };
    const auto byItems = [](std::size_t nSize) { return Report("001", ITEM_COLUMNS, nSize); };
    const auto byReports = [](std::size_t nSize) { return Reports(nSize, 5); };
    const auto byWideReports = [](std::size_t nSize) { return Reports(nSize, 50); };
    const auto all = [](std::size_t nSize) { return nSize; };
    const auto few = [](std::size_t) { return ITEM_COLUMNS; };
    return {
        {"check, text, columns", {2000, 4000, 8000}, {"check", "FILE"}, byColumns, all},
        {"check, html, columns",
         {2000, 4000, 8000},
         {"check", "--format", "html", "FILE"},
         byColumns,
         all},
        {"check, text, items", {2500, 5000, 10000}, {"check", "FILE"}, byItems, few},
        {"check, html, items",
         {2500, 5000, 10000},
         {"check", "--format", "html", "FILE"},
         byItems,
         few},
        {"layout, csv, columns",
         {2000, 4000, 8000},
         {"layout", "--format", "csv", "001"},
         byColumns,
         all},
        {"lint, reports of 5 columns", {250, 500, 1000}, {"lint", "BUNDLE"}, byReports, few},
        {"lint, reports of 50 columns", {75, 150, 300}, {"lint", "BUNDLE"}, byWideReports, few},
    };
}

void WriteFile(const fs::path& path, const std::string& strText)
{
    std::ofstream file(path, std::ios::binary);
    file << strText;
    if (!file.flush())
        throw std::runtime_error("can't write " + path.string());
}

/// A resource folder and a file of one record whose cells are all wrong, for as long as it lives.
class Input
{
public:
    Input(const Case& growing, std::size_t nSize)
    {
        std::string strPattern = (fs::temp_directory_path() / "kzekamok-XXXXXX").string();
        if (::mkdtemp(strPattern.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        m_folder = strPattern;
        WriteFile(m_folder / "KZEkaDefine.xml",
                  "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<define>\n" +
                      growing.pReports(nSize) + "</define>\n");
        WriteFile(m_folder / "TaxOffices.xml",
                  "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<TaxOffices/>\n");
        std::string strRecord = "001";
        for (std::size_t n = 1; n < growing.pColumns(nSize); ++n)
            strRecord += ",x";
        WriteFile(m_folder / "a.csv", strRecord + "\r\n");
    }
    ~Input()
    {
        std::error_code error;
        fs::remove_all(m_folder, error);
    }
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    std::string Bundle() const { return m_folder.string(); }
    std::string Csv() const { return (m_folder / "a.csv").string(); }

private:
    fs::path m_folder;
};

double SecondsOf(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Processor seconds of one run; what it prints is thrown away.
double Run(const std::string& strProgram, const Case& growing, const Input& input)
{
    std::vector<std::string> vecText = {strProgram};
    for (const std::string& strArgument : growing.vecArgument)
        vecText.push_back(strArgument == "FILE"     ? input.Csv()
                          : strArgument == "BUNDLE" ? input.Bundle()
                                                    : strArgument);
    std::vector<char*> vecArgument;
    for (std::string& strText : vecText)
        vecArgument.push_back(strText.data());
    vecArgument.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (const int nDescriptor : {STDOUT_FILENO, STDERR_FILENO})
        posix_spawn_file_actions_addopen(&actions, nDescriptor, "/dev/null", O_WRONLY, 0);
    pid_t nPid = 0;
    const int nError =
        posix_spawn(&nPid, strProgram.c_str(), &actions, nullptr, vecArgument.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (nError != 0)
        throw std::runtime_error("can't start " + strProgram);
    int nStatus = 0;
    rusage usage{};
    if (wait4(nPid, &nStatus, 0, &usage) != nPid)
        throw std::runtime_error("can't wait for " + strProgram);
    constexpr int REFUSED = 1;  // the record is wrong, and so are the invented definitions to lint
    if (!WIFEXITED(nStatus) || WEXITSTATUS(nStatus) > REFUSED)
        throw std::runtime_error(std::string(growing.szName) + " failed");
    return SecondsOf(usage.ru_utime) + SecondsOf(usage.ru_stime);
}

void Measure(const std::string& strProgram, const Case& growing)
{
    std::array<double, SIZES> seconds{};
    for (std::size_t n = 0; n < SIZES; ++n) {
        const Input input(growing, growing.sizes[n]);
        ::setenv("KZEKAMOK_BUNDLE", input.Bundle().c_str(), 1);
        seconds[n] = std::numeric_limits<double>::infinity();
        for (int nRun = 0; nRun < RUNS; ++nRun)
            seconds[n] = std::min(seconds[n], Run(strProgram, growing, input));
    }
    const double dFirst = seconds[1] / seconds[0];
    const double dSecond = seconds[2] / seconds[1];
    std::printf("%-28s %6zu %6zu %6zu %8.3f %8.3f %8.3f %6.2f %6.2f%s\n", growing.szName,
                growing.sizes[0], growing.sizes[1], growing.sizes[2], seconds[0], seconds[1],
                seconds[2], dFirst, dSecond, std::max(dFirst, dSecond) > BUDGET ? "  MISSED" : "");
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc > 2) {
        std::fprintf(stderr, "usage: bench_growth [KZEKAMOK]\n");
        return 2;
    }
    try {
        const std::string strProgram =
            argc > 1 ? fs::absolute(argv[1]).string()
                     : (fs::read_symlink("/proc/self/exe").parent_path() / "kzekamok").string();
        std::printf("%-28s %20s %26s %13s (budget %.1f)\n", "what grows", "sizes",
                    "processor seconds", "ratios", BUDGET);
        for (const Case& growing : Cases())
            Measure(strProgram, growing);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_growth: %s\n", error.what());
        return 1;
    }
}
