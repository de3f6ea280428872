#include "batch/EarlierDocument.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string_view>

#include "file/FilePlace.h"

namespace host {
namespace {

/// How every document begins.
constexpr std::string_view BEGINNING =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="no" ?><DATA )";

bool BeginsAsDocument(int nFile)
{
    std::array<char, BEGINNING.size()> bytes{};
    return pread(nFile, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()) &&
           std::string_view(bytes.data(), bytes.size()) == BEGINNING;
}

}  // namespace

std::optional<std::uintmax_t> SizeBelow(int nFolder, const std::string& strName)
{
    FilePlace place;
    struct stat info = {};
    if (FindPlaceBelow(nFolder, strName, Missing::Fails, place) != 0 ||
        fstatat(place.folder.Get(), place.strName.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0 ||
        !S_ISREG(info.st_mode))
        return std::nullopt;
    return static_cast<std::uintmax_t>(info.st_size);
}

Removal RemoveDocument(int nFolder, const std::string& strName, std::uintmax_t nBytes)
{
    FilePlace place;
    Descriptor file;
    if (FindPlaceBelow(nFolder, strName, Missing::Fails, place) != 0)
        return Removal::Gone;
    const int nError = OpenRegularFile(place.folder.Get(), place.strName.c_str(), file);
    if (nError != 0)
        return nError == ENOENT ? Removal::Gone : Removal::NotOurs;
    struct stat info = {};
    if (fstat(file.Get(), &info) != 0 || static_cast<std::uintmax_t>(info.st_size) != nBytes)
        return Removal::Gone;
    if (info.st_uid != geteuid() || !BeginsAsDocument(file.Get()))
        return Removal::NotOurs;
    return unlinkat(place.folder.Get(), place.strName.c_str(), 0) == 0 ? Removal::Done
                                                                       : Removal::NotOurs;
}

}  // namespace host
