#include "batch/BatchLock.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "file/FilePlace.h"
#include "support/TempFolder.h"

namespace host {
namespace {

class BatchLockTest : public testing::Test
{
protected:
    BatchLockTest() { EXPECT_EQ(FindFolder(m_folder.Path(), Missing::Fails, m_top), 0); }
    std::string Path() const { return m_folder.Path(BatchLock::FILE_NAME); }

    TempFolder m_folder;
    Descriptor m_top;
};

TEST_F(BatchLockTest, SecondOneIsTurnedAwayUntilTheFirstHasEnded)
{
    {
        BatchLock first;
        EXPECT_EQ(first.Lock(m_top.Get()), 0);
        EXPECT_EQ(BatchLock().Lock(m_top.Get()), EWOULDBLOCK);
        EXPECT_TRUE(m_folder.Has(BatchLock::FILE_NAME)) << "which doesn't take it away";
    }
    EXPECT_FALSE(m_folder.Has(BatchLock::FILE_NAME));
    EXPECT_EQ(BatchLock().Lock(m_top.Get()), 0);
}

TEST_F(BatchLockTest, FileIsItsOwnersAloneAlsoIfItWasThere)
{
    m_folder.Write(BatchLock::FILE_NAME, "");
    ASSERT_EQ(chmod(Path().c_str(), 0644), 0);
    BatchLock lock;
    EXPECT_EQ(lock.Lock(m_top.Get()), 0);
    struct stat info = {};
    ASSERT_EQ(stat(Path().c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600U);
}

TEST_F(BatchLockTest, LinkAndPipeAreNoLocks)
{
    m_folder.Write("victim", "precious");
    std::filesystem::create_symlink("victim", Path());
    EXPECT_EQ(BatchLock().Lock(m_top.Get()), EPERM);
    std::filesystem::remove(Path());
    ASSERT_EQ(mkfifo(Path().c_str(), 0600), 0);
    EXPECT_EQ(BatchLock().Lock(m_top.Get()), EPERM);
    EXPECT_TRUE(std::filesystem::is_fifo(Path())) << "what isn't ours stays";
}

TEST_F(BatchLockTest, StrangersFileIsNoLock)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make another user's file";
    m_folder.Write(BatchLock::FILE_NAME, "");
    ASSERT_EQ(chown(Path().c_str(), 65534, 65534), 0);
    EXPECT_EQ(BatchLock().Lock(m_top.Get()), EPERM);
}

}  // namespace
}  // namespace host
