#include "file/PrivateFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <optional>

#include "file/FilePlace.h"
#include "support/TempFolder.h"

namespace fs = std::filesystem;

namespace host {
namespace {

using Names = std::vector<std::string>;

class PrivateFolderTest : public testing::Test
{
protected:
    PrivateFolderTest() { EXPECT_EQ(FindFolder(m_folder.Path(), Missing::Fails, m_top), 0); }

    /// Makes what a killed process leaves behind.
    std::string MakeDead(const std::string& strName, mode_t mode = 0700) const
    {
        m_folder.MakeFolder(strName);
        m_folder.Write(strName + "/unfinished", "half");
        fs::create_symlink("/proc/self/fd/9", m_folder.Path(strName + "/link.mok"));
        EXPECT_EQ(chmod(m_folder.Path(strName).c_str(), mode), 0);
        return strName;
    }

    TempFolder m_folder;
    Descriptor m_top;
};

TEST_F(PrivateFolderTest, IsHiddenItsOwnersAloneAndGoesInTheEnd)
{
    {
        PrivateFolder folder;
        EXPECT_EQ(folder.Make(m_top.Get()), 0);
        EXPECT_EQ(m_folder.Names(), Names{folder.Name()});
        EXPECT_TRUE(folder.Name().starts_with(".kzekamok-"));
        EXPECT_EQ(folder.Name().size(), 26U);
        struct stat info = {};
        ASSERT_EQ(stat(m_folder.Path(folder.Name()).c_str(), &info), 0);
        EXPECT_EQ(info.st_mode & 0777, 0700U);
        m_folder.Write(folder.Name() + "/unfinished", "half");
    }
    EXPECT_EQ(m_folder.Names(), Names());
}

TEST_F(PrivateFolderTest, TwoHaveNamesOfTheirOwn)
{
    PrivateFolder first;
    PrivateFolder second;
    EXPECT_EQ(first.Make(m_top.Get()), 0);
    EXPECT_EQ(second.Make(m_top.Get()), 0);
    EXPECT_NE(first.Name(), second.Name());
}

TEST_F(PrivateFolderTest, WhatIsPutInItsPlaceStays)
{
    std::optional<PrivateFolder> folder(std::in_place);
    EXPECT_EQ(folder->Make(m_top.Get()), 0);
    const std::string strName = folder->Name();
    fs::rename(m_folder.Path(strName), m_folder.Path("moved"));
    m_folder.Write(strName + "/letter", "mine");
    folder.reset();
    EXPECT_EQ(m_folder.Read(strName + "/letter"), "mine");
}

TEST_F(PrivateFolderTest, DeadOnesAreRemovedAndCounted)
{
    MakeDead(".kzekamok-0123456789abcdef");
    MakeDead(".kzekamok-fedcba9876543210");
    EXPECT_EQ(RemoveDeadFolders(m_top.Get()), 2U);
    EXPECT_EQ(m_folder.Names(), Names());
}

TEST_F(PrivateFolderTest, LivingOneStays)
{
    PrivateFolder living;
    EXPECT_EQ(living.Make(m_top.Get()), 0);
    EXPECT_EQ(RemoveDeadFolders(m_top.Get()), 0U);
    EXPECT_EQ(m_folder.Names(), Names{living.Name()});
}

TEST_F(PrivateFolderTest, WhatIsNotOfThisKindStays)
{
    MakeDead(".kzekamok-0123456789abcde");   // a digit is missing
    MakeDead(".kzekamok-0123456789ABCDEF");  // in capitals
    MakeDead("kzekamok-0123456789abcdef");   // not hidden
    MakeDead(".kzekamok-1111111111111111", 0755);
    m_folder.Write(".kzekamok-2222222222222222", "a file");
    m_folder.Write(".kzekamok-3333333333333333/letter", "mine");
    ASSERT_EQ(chmod(m_folder.Path(".kzekamok-3333333333333333").c_str(), 0700), 0);
    m_folder.MakeFolder("real");
    fs::create_symlink("real", m_folder.Path(".kzekamok-4444444444444444"));
    EXPECT_EQ(RemoveDeadFolders(m_top.Get()), 0U);
    EXPECT_EQ(m_folder.Names().size(), 8U);
    EXPECT_EQ(m_folder.Read(".kzekamok-3333333333333333/letter"), "mine");
    EXPECT_TRUE(m_folder.Has(".kzekamok-1111111111111111/unfinished"));
}

TEST_F(PrivateFolderTest, StrangersStays)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make another user's folder";
    const std::string strName = MakeDead(".kzekamok-0123456789abcdef");
    ASSERT_EQ(chown(m_folder.Path(strName).c_str(), 65534, 65534), 0);
    EXPECT_EQ(RemoveDeadFolders(m_top.Get()), 0U);
    EXPECT_TRUE(m_folder.Has(strName + "/unfinished"));
}

TEST_F(PrivateFolderTest, KilledProcessLeavesADeadOne)
{
    const pid_t nChild = fork();
    ASSERT_GE(nChild, 0);
    if (nChild == 0) {
        PrivateFolder folder;
        if (folder.Make(m_top.Get()) == 0)
            std::raise(SIGKILL);
        _exit(0);
    }
    int nStatus = 0;
    ASSERT_EQ(waitpid(nChild, &nStatus, 0), nChild);
    ASSERT_TRUE(WIFSIGNALED(nStatus));
    EXPECT_EQ(m_folder.Names().size(), 1U);
    EXPECT_EQ(RemoveDeadFolders(m_top.Get()), 1U);
    EXPECT_EQ(m_folder.Names(), Names());
}

}  // namespace
}  // namespace host
