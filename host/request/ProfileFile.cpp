#include "request/ProfileFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "base/Language.h"
#include "base/SafeText.h"
#include "base/UsageError.h"
#include "file/Descriptor.h"

namespace host {
namespace {

constexpr Text IN_PROFILE = {"profile {1}: {2}", "プロファイル {1}：{2}"};
constexpr Text UNREADABLE = {"the file can't be read. Check its name and its permissions.",
                             "ファイルを読み取れません。ファイル名と権限を確認してください。"};
constexpr Text TOO_LONG = {"the file has more than {1} bytes. Keep only the filer's fields in it.",
                           "ファイルが{1}バイトを超えています。納税者の項目だけを書いてください。"};
constexpr Text LINK = {
    "the file is a link. Beside a CSV file put a copy of the profile, not a link to it.",
    "リンクです。CSVファイルと同じ場所には、リンクではなくプロファイルの写しを置いてください。"};
constexpr Text NO_REGULAR_FILE = {
    "this is no regular file. Put the profile itself there.",
    "通常のファイルではありません。プロファイルそのものを置いてください。"};
constexpr Text FOREIGN = {
    "the file belongs to another user. Look at it, and copy it to make it yours.",
    "ほかの利用者のファイルです。内容を確認し、コピーして自分のファイルにしてください。"};
constexpr Text WRITABLE = {
    "others than you can write the file. Look at it, and take the right away: chmod go-w.",
    "ほかの利用者も書き込めるファイルです。内容を確認し、chmod go-w "
    "で書き込みの許可を外してください。"};

std::string ReadAll(const std::string& strPath, int nDescriptor)
{
    std::string strBytes;
    std::array<char, 4096> buffer{};
    while (true) {
        const ssize_t nRead = ::read(nDescriptor, buffer.data(), buffer.size());
        if (nRead < 0 && errno == EINTR)
            continue;
        if (nRead < 0)
            RefuseProfile(strPath, Say(UNREADABLE));
        if (nRead == 0)
            return strBytes;
        strBytes.append(buffer.data(), static_cast<std::size_t>(nRead));
        if (strBytes.size() > PROFILE_MAX_BYTES)
            RefuseProfile(strPath, Say(TOO_LONG, {std::to_string(PROFILE_MAX_BYTES)}));
    }
}

void RequireTrusted(const std::string& strPath, const struct stat& state)
{
    if (!S_ISREG(state.st_mode))
        RefuseProfile(strPath, Say(NO_REGULAR_FILE));
    if (state.st_nlink > 1)
        RefuseProfile(strPath, Say(LINK));
    if (state.st_uid != ::geteuid() && state.st_uid != 0)
        RefuseProfile(strPath, Say(FOREIGN));
    if ((state.st_mode & (S_IWGRP | S_IWOTH)) != 0)
        RefuseProfile(strPath, Say(WRITABLE));
}

}  // namespace

std::string ReadNamedProfile(const std::string& strPath)
{
    const Descriptor file(::open(strPath.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
    if (!file.IsOpen())
        RefuseProfile(strPath, Say(UNREADABLE));
    return ReadAll(strPath, file.Get());
}

std::optional<std::string> ReadFoundProfile(const std::string& strPath)
{
    // Without O_NONBLOCK a pipe of this name would wait for its writer for ever.
    const Descriptor file(
        ::open(strPath.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (!file.IsOpen() && errno == ENOENT)
        return std::nullopt;
    if (!file.IsOpen())
        RefuseProfile(strPath, Say(errno == ELOOP ? LINK : UNREADABLE));
    struct stat state = {};
    if (::fstat(file.Get(), &state) != 0)
        RefuseProfile(strPath, Say(UNREADABLE));
    RequireTrusted(strPath, state);
    return ReadAll(strPath, file.Get());
}

void RefuseProfile(const std::string& strPath, const std::string& strWhat)
{
    throw UsageError(Say(IN_PROFILE, {MakeSafe(strPath), strWhat}));
}

}  // namespace host
