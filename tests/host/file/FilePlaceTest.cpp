#include "file/FilePlace.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>

#include "support/TempFolder.h"

namespace fs = std::filesystem;

namespace host {
namespace {

constexpr uid_t STRANGER = 65534;

class FilePlaceTest : public testing::Test
{
protected:
    /// Where the path leads, as the folder's own name and the name in it.
    std::string Found(const std::string& strName) const
    {
        FilePlace place;
        const int nError = FindPlace(folder.Path(strName), place);
        return nError != 0 ? std::to_string(nError) : NameOf(place);
    }
    std::string FoundBelow(const std::string& strName, Missing eMissing = Missing::Fails) const
    {
        Descriptor top;
        EXPECT_EQ(FindFolder(folder.Path(), Missing::Fails, top), 0);
        FilePlace place;
        const int nError = FindPlaceBelow(top.Get(), strName, eMissing, place);
        return nError != 0 ? std::to_string(nError) : NameOf(place);
    }
    std::string NameOf(const FilePlace& place) const
    {
        const fs::path path = fs::read_symlink(PathOfDescriptor(place.folder.Get()));
        return (fs::relative(path, fs::canonical(folder.Path())) / place.strName).string();
    }
    void Link(const std::string& strTarget, const std::string& strName) const
    {
        fs::create_symlink(strTarget, folder.Path(strName));
    }
    /// Makes a link another user's.
    void GiveAway(const std::string& strName) const
    {
        ASSERT_EQ(lchown(folder.Path(strName).c_str(), STRANGER, STRANGER), 0);
    }

    TempFolder folder;
};

TEST_F(FilePlaceTest, LinksAreFollowedToTheEnd)
{
    folder.MakeFolder("real/deep");
    Link("real/deep", "folder");
    Link("../../last", "real/deep/file");
    Link(folder.Path("real/deep/end"), "last");
    EXPECT_EQ(Found("folder/file"), "real/deep/end");
    EXPECT_EQ(Found("folder/../x"), "real/x");
    EXPECT_EQ(Found("./absent"), "./absent");
}

TEST_F(FilePlaceTest, CircleAndMissingFolderAreErrors)
{
    Link("circle", "circle");
    folder.Write("file", "");
    EXPECT_EQ(Found("circle"), std::to_string(ELOOP));
    EXPECT_EQ(Found("circle/x"), std::to_string(ELOOP));
    EXPECT_EQ(Found("absent/x"), std::to_string(ENOENT));
    EXPECT_EQ(Found("file/x"), std::to_string(ENOTDIR));
}

TEST_F(FilePlaceTest, PathWithATrailingSlashNeedsAFolder)
{
    folder.MakeFolder("sub");
    EXPECT_EQ(Found("sub/"), "sub/.");
    EXPECT_EQ(Found("absent/"), std::to_string(ENOENT));
}

TEST_F(FilePlaceTest, OpenPipeIsKeptByItsName)
{
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    FilePlace place;
    EXPECT_EQ(FindPlace("/dev/fd/" + std::to_string(pipe[1]), place), 0);
    EXPECT_TRUE(place.bOpenFile);
    EXPECT_EQ(place.strName, std::to_string(pipe[1]));
    close(pipe[0]);
    close(pipe[1]);
}

TEST_F(FilePlaceTest, StrangersLinkIsNotFollowedWhereOthersMayWrite)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make another user's link";
    folder.MakeFolder("target");
    folder.MakeFolder("public");
    Link("../target", "public/folder");
    Link("../target/file", "public/file");
    GiveAway("public/folder");
    GiveAway("public/file");
    EXPECT_EQ(Found("public/file"), "target/file") << "its folder's owner alone writes there";
    for (const mode_t mode : {mode_t{01777}, mode_t{0777}, mode_t{0770}}) {
        ASSERT_EQ(chmod(folder.Path("public").c_str(), mode), 0);
        EXPECT_EQ(Found("public/file"), std::to_string(EACCES)) << std::oct << mode;
        EXPECT_EQ(Found("public/folder/x"), std::to_string(EACCES)) << std::oct << mode;
    }
    ASSERT_EQ(chown(folder.Path("public").c_str(), STRANGER, STRANGER), 0);
    EXPECT_EQ(Found("public/file"), "target/file") << "the folder's owner may do what he likes";
}

TEST_F(FilePlaceTest, OwnLinkIsFollowedWhereOthersMayWrite)
{
    folder.MakeFolder("public");
    Link("../file", "public/file");
    ASSERT_EQ(chmod(folder.Path("public").c_str(), 01777), 0);
    EXPECT_EQ(Found("public/file"), "./file");
}

TEST_F(FilePlaceTest, FoldersAreMadeIfWanted)
{
    Descriptor made;
    EXPECT_EQ(FindFolder(folder.Path("a/b"), Missing::Fails, made), ENOENT);
    EXPECT_EQ(FindFolder(folder.Path("a/b"), Missing::Made, made), 0);
    EXPECT_TRUE(fs::is_directory(folder.Path("a/b")));
    EXPECT_EQ(FoundBelow("c/d/x", Missing::Fails), std::to_string(ENOENT));
    EXPECT_EQ(FoundBelow("c/d/x", Missing::Made), "c/d/x");
}

TEST_F(FilePlaceTest, BelowAFolderNoLinkIsFollowed)
{
    folder.MakeFolder("real");
    Link("real", "link");
    Link("real", "last");
    EXPECT_EQ(FoundBelow("link/x"), std::to_string(ENOTDIR));
    EXPECT_EQ(FoundBelow("link/x", Missing::Made), std::to_string(ENOTDIR));
    EXPECT_EQ(FoundBelow("last"), "./last") << "the last name isn't looked at";
}

TEST_F(FilePlaceTest, WhatLeadsElsewhereIsNotBelow)
{
    for (const char* szName :
         {"", "/", "/a", "..", "../a", "a/..", "a/../b", ".", "./a", "a//b", "a/", "a/."}) {
        EXPECT_FALSE(LeadsBelow(szName)) << szName;
        EXPECT_EQ(FoundBelow(szName), std::to_string(EINVAL)) << szName;
    }
    EXPECT_FALSE(LeadsBelow(std::string_view("a\0b", 3)));
    for (const char* szName : {"a", "a/b", "..a", "a..", ".a/b.", "...", "a\nb"})
        EXPECT_TRUE(LeadsBelow(szName)) << szName;
}

TEST_F(FilePlaceTest, RegularFileAloneIsOpened)
{
    folder.Write("file", "x");
    folder.MakeFolder("sub");
    Link("file", "link");
    ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
    Descriptor top;
    ASSERT_EQ(FindFolder(folder.Path(), Missing::Fails, top), 0);
    Descriptor file;
    EXPECT_EQ(OpenRegularFile(top.Get(), "link", file), ELOOP);
    EXPECT_EQ(OpenRegularFile(top.Get(), "pipe", file), EINVAL);
    EXPECT_EQ(OpenRegularFile(top.Get(), "sub", file), EISDIR);
    EXPECT_EQ(OpenRegularFile(top.Get(), "absent", file), ENOENT);
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(OpenRegularFile(top.Get(), "file", file), 0);
    EXPECT_EQ(TempFolder::ReadPath(PathOfDescriptor(file.Get())), "x");
}

}  // namespace
}  // namespace host
