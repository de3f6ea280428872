// Runs a fuzz target over its kept inputs, for builds without libFuzzer.
//
//     TARGET FILE_OR_FOLDER...
//
// A broken rule ends the process by a signal. The exit status is 1 if there was nothing to run.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "FuzzSupport.h"

namespace {

std::vector<std::filesystem::path> ListFiles(int argc, char** argv)
{
    std::vector<std::filesystem::path> vecFile;
    for (int i = 1; i < argc; ++i) {
        if (!std::filesystem::is_directory(argv[i])) {
            vecFile.emplace_back(argv[i]);
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(argv[i]))
            vecFile.push_back(entry.path());
    }
    std::sort(vecFile.begin(), vecFile.end());
    return vecFile;
}

}  // namespace

int main(int argc, char** argv)
{
    const std::vector<std::filesystem::path> vecFile = ListFiles(argc, argv);
    for (const std::filesystem::path& path : vecFile) {
        // Told before the run, so that the last line names the input that a broken rule belongs to.
        std::printf("%s\n", path.filename().c_str());
        std::fflush(stdout);
        std::ifstream file(path, std::ios::binary);
        const std::vector<char> vecByte{std::istreambuf_iterator<char>(file), {}};
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(vecByte.data()),
                               vecByte.size());
    }
    std::printf("%zu inputs\n", vecFile.size());
    return vecFile.empty() ? 1 : 0;
}
