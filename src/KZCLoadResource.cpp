#include "KZCLoadResource.h"

#include <dlfcn.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "family/BundleFiles.h"

namespace fs = std::filesystem;

namespace {

/// The resource folder below an installation prefix.
constexpr const char* INSTALLED_BUNDLE = "share/KZEkaMok/KZEkaMok.bundle";

bool IsFolder(const fs::path& path)
{
    std::error_code error;
    return fs::is_directory(path, error);
}

/// The folder of the file that holds this code: the shared library, or a program linked with it.
fs::path CodeFolder()
{
    static const char cAnchor = 0;
    Dl_info info = {};
    std::error_code error;
    fs::path file;
    if (dladdr(&cAnchor, &info) != 0 && info.dli_fname != nullptr)
        file = fs::canonical(info.dli_fname, error);
    // A program found through PATH is known by its bare name only.
    if (file.empty() || error)
        file = fs::canonical("/proc/self/exe", error);
    return error ? fs::path() : file.parent_path();
}

}  // namespace

std::string KZCLoadResource::getBundlePath()
{
    const char* szOverride = secure_getenv(BundleFiles::VARIABLE);
    if (szOverride != nullptr && *szOverride != '\0')
        return IsFolder(szOverride) ? szOverride : std::string();

    const fs::path folder = CodeFolder();
    if (folder.empty())
        return {};
    // Beside the code; then lib/ or bin/ of the prefix; then lib/<architecture>/ of the prefix.
    const std::array<fs::path, 3> candidates = {
        folder / BundleFiles::FOLDER,
        folder.parent_path() / INSTALLED_BUNDLE,
        folder.parent_path().parent_path() / INSTALLED_BUNDLE,
    };
    for (const fs::path& candidate : candidates)
        if (IsFolder(candidate))
            return candidate.string();
    return {};
}

std::string KZCLoadResource::getPathName(const std::string& strName)
{
    const std::string strBundle = getBundlePath();
    const std::size_t nEnd = strName.find_last_not_of('/');
    // A separator at the end is no component.
    const std::string strFile = nEnd != std::string::npos
                                    ? fs::path(strName.substr(0, nEnd + 1)).filename().string()
                                    : std::string();
    if (strBundle.empty() || strFile.empty() || strFile == "." || strFile == "..")
        return {};
    const fs::path path = fs::path(strBundle) / strFile;
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    return fs::exists(status) && !fs::is_directory(status) ? path.string() : std::string();
}
