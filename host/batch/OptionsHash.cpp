#include "batch/OptionsHash.h"

#include <algorithm>
#include <array>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <vector>

#include "KZCLoadResource.h"
#include "base/Language.h"

namespace fs = std::filesystem;

namespace host {
namespace {

/// FNV-1a over texts, each with its length, so that none runs into the next.
class Hash
{
public:
    void Add(std::string_view strText)
    {
        AddBytes(std::to_string(strText.size()) + ":");
        AddBytes(strText);
    }
    void Add(const FileState& state)
    {
        Add(std::to_string(state.nBytes));
        Add(state.strModified);
    }
    std::string Text() const
    {
        std::array<char, sizeof "0123456789abcdef"> szText{};
        std::snprintf(szText.data(), szText.size(), "%016" PRIx64, m_nHash);
        return szText.data();
    }

private:
    void AddBytes(std::string_view strBytes)
    {
        for (const char c : strBytes)
            m_nHash = (m_nHash ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    }

    std::uint64_t m_nHash = 0xcbf29ce484222325U;
};

/// New definitions may judge the same file otherwise.
void AddBundle(Hash& hash)
{
    const std::string strBundle = KZCLoadResource::getBundlePath();
    std::vector<std::string> vecPath;
    std::error_code error;
    for (auto it = fs::recursive_directory_iterator(strBundle, error);
         it != fs::recursive_directory_iterator(); it.increment(error))
        if (it->is_regular_file(error))
            vecPath.push_back(it->path().string());
    std::ranges::sort(vecPath);
    for (const std::string& strPath : vecPath) {
        hash.Add(strPath);
        hash.Add(StateOf(strPath).value_or(FileState()));
    }
}

}  // namespace

std::string HashOfOptions(const BatchSettings& settings)
{
    Hash hash;
    hash.Add(KZEKAMOK_VERSION);
    AddBundle(hash);
    hash.Add(Say({"en", "ja"}));
    hash.Add(settings.family ? FamilyName(*settings.family) : "");
    hash.Add(settings.style.limit ? std::to_string(*settings.style.limit) : "");
    hash.Add(settings.bCheckOnly ? "check" : "convert");
    for (const std::string& strField : settings.fields.value)
        hash.Add(settings.bCheckOnly ? std::string() : strField);
    return hash.Text();
}

std::string HashWithState(const std::string& strHash, const std::optional<FileState>& state)
{
    if (!state)
        return strHash;
    Hash hash;
    hash.Add(strHash);
    hash.Add(*state);
    return hash.Text();
}

}  // namespace host
