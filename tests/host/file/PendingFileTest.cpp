#include "file/PendingFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "support/TempFolder.h"

namespace fs = std::filesystem;

namespace host {
namespace {

using Names = std::vector<std::string>;

class PendingFileTest : public testing::Test
{
protected:
    PendingFileTest()
    {
        EXPECT_EQ(FindFolder(m_folder.Path(), Missing::Fails, m_place.folder), 0);
        m_place.strName = "a";
    }

    static void Write(const PendingFile& file, const std::string& strText)
    {
        EXPECT_EQ(write(file.Get(), strText.data(), strText.size()),
                  static_cast<ssize_t>(strText.size()));
    }
    static nlink_t NamesOfFile(const PendingFile& file)
    {
        struct stat info = {};
        EXPECT_EQ(fstat(file.Get(), &info), 0);
        return info.st_nlink;
    }

    TempFolder m_folder;
    FilePlace m_place;
};

TEST_F(PendingFileTest, GetsItsNameAndItsRightsInTheEnd)
{
    {
        PendingFile file(m_place);
        ASSERT_EQ(file.Open(), 0);
        Write(file, "new");
        EXPECT_EQ(file.Size(), 3U);
        EXPECT_FALSE(m_folder.Has("a"));
        EXPECT_EQ(file.Keep(0640), "");
    }
    EXPECT_EQ(m_folder.Names(), Names{"a"});
    EXPECT_EQ(m_folder.Read("a"), "new");
    struct stat info = {};
    ASSERT_EQ(stat(m_folder.Path("a").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0640U);
}

TEST_F(PendingFileTest, HasNoDocumentsNameUntilThen)
{
    PendingFile file(m_place);
    ASSERT_EQ(file.Open(), 0);
    Write(file, "whole");
    // Without a name where the file system has such files, else under one that says what it is.
    for (const auto& entry : fs::recursive_directory_iterator(m_folder.Path()))
        EXPECT_TRUE(entry.is_directory() || entry.path().filename() == "unfinished") << entry;
    EXPECT_LE(NamesOfFile(file), 1U);
}

TEST_F(PendingFileTest, LinkOfTheNameIsReplacedItself)
{
    m_folder.Write("victim", "precious");
    fs::create_symlink("victim", m_folder.Path("a"));
    PendingFile file(m_place);
    ASSERT_EQ(file.Open(), 0);
    Write(file, "new");
    EXPECT_EQ(file.Keep(0600), "");
    EXPECT_EQ(m_folder.Read("victim"), "precious");
    EXPECT_EQ(m_folder.Read("a"), "new");
}

TEST_F(PendingFileTest, FolderOfTheNameStays)
{
    m_folder.MakeFolder("a");
    PendingFile file(m_place);
    ASSERT_EQ(file.Open(), 0);
    EXPECT_EQ(file.Keep(0600), "Is a directory");
}

TEST_F(PendingFileTest, PrivateFolderThatIsSwappedChangesNothing)
{
    m_folder.Write("victim", "precious");
    {
        PendingFile file(m_place);
        ASSERT_EQ(file.Open(), 0);
        const std::string strHidden = file.Folder().Name();
        fs::rename(m_folder.Path(strHidden), m_folder.Path("moved"));
        m_folder.MakeFolder(strHidden);
        fs::create_symlink("../victim", m_folder.Path(strHidden + "/unfinished"));
        Write(file, "new");
        EXPECT_EQ(file.Keep(0600), "");
    }
    EXPECT_EQ(m_folder.Read("victim"), "precious");
    EXPECT_EQ(m_folder.Read("a"), "new");
}

TEST_F(PendingFileTest, FileThatIsTakenStaysOpen)
{
    Descriptor taken;
    {
        PendingFile file(m_place);
        ASSERT_EQ(file.Open(), 0);
        EXPECT_EQ(file.Keep(0600), "");
        taken = file.Take();
    }
    ASSERT_EQ(write(taken.Get(), "later", 5), 5);
    EXPECT_EQ(m_folder.Read("a"), "later");
}

}  // namespace
}  // namespace host
