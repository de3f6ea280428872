#include "file/WholeFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "support/FileSizeLimit.h"
#include "support/TempFolder.h"

namespace host {
namespace {

/// Names of all that stands in a folder.
std::vector<std::string> NamesIn(const TempFolder& folder)
{
    std::vector<std::string> vecName;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
        vecName.push_back(entry.path().filename().string());
    return vecName;
}

TEST(WholeFileTest, NewFileHasTheBytesAndTheRightsOfANewFile)
{
    const TempFolder folder;
    const mode_t before = umask(027);
    EXPECT_EQ(WriteWhole(folder.Path("a.csv"), std::string("x\0y", 3)), "");
    umask(before);
    EXPECT_EQ(folder.Read("a.csv"), std::string("x\0y", 3));
    struct stat status = {};
    ASSERT_EQ(stat(folder.Path("a.csv").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
    EXPECT_EQ(NamesIn(folder), std::vector<std::string>{"a.csv"});
}

TEST(WholeFileTest, ExistingFileIsReplaced)
{
    const TempFolder folder;
    folder.Write("a.csv", "longer than before");
    EXPECT_EQ(WriteWhole(folder.Path("a.csv"), "new"), "");
    EXPECT_EQ(folder.Read("a.csv"), "new");
}

TEST(WholeFileTest, ReplacedFileKeepsItsRights)
{
    const TempFolder folder;
    folder.Write("a.csv", "old");
    ASSERT_EQ(chmod(folder.Path("a.csv").c_str(), 0600), 0);
    EXPECT_EQ(WriteWhole(folder.Path("a.csv"), "new"), "");
    struct stat status = {};
    ASSERT_EQ(stat(folder.Path("a.csv").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST(WholeFileTest, LinkStaysAndItsTargetIsReplaced)
{
    const TempFolder folder;
    folder.Write("real.csv", "old");
    std::filesystem::create_symlink("real.csv", folder.Path("a.csv"));
    EXPECT_EQ(WriteWhole(folder.Path("a.csv"), "new"), "");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("a.csv")));
    EXPECT_EQ(folder.Read("real.csv"), "new");
}

TEST(WholeFileTest, DeviceIsWrittenToAndNotReplaced)
{
    const TempFolder folder;
    std::filesystem::create_symlink("/dev/null", folder.Path("null"));
    EXPECT_EQ(WriteWhole(folder.Path("null"), "gone"), "");
    EXPECT_TRUE(std::filesystem::is_character_file(folder.Path("null")));
    EXPECT_EQ(NamesIn(folder), std::vector<std::string>{"null"});
}

TEST(WholeFileTest, FullDeviceIsTold)
{
    const TempFolder folder;
    std::filesystem::create_symlink("/dev/full", folder.Path("full"));
    EXPECT_EQ(WriteWhole(folder.Path("full"), "x"), "No space left on device");
}

TEST(WholeFileTest, LongestNameThatTheSystemTakesCanBeWritten)
{
    const TempFolder folder;
    const std::string strName(255, 'a');
    EXPECT_EQ(WriteWhole(folder.Path(strName), "x"), "");
    EXPECT_EQ(NamesIn(folder), std::vector<std::string>{strName});
}

TEST(WholeFileTest, FileThatCannotBeWrittenToItsEndLeavesWhatWasThere)
{
    const TempFolder folder;
    folder.Write("a.csv", "old");
    {
        const FileSizeLimit limit(4);
        EXPECT_EQ(WriteWhole(folder.Path("a.csv"), "more than four"), "File too large");
    }
    EXPECT_EQ(folder.Read("a.csv"), "old");
    EXPECT_EQ(NamesIn(folder), std::vector<std::string>{"a.csv"});
}

TEST(WholeFileTest, PipeThatNobodyReadsIsRefused)
{
    const TempFolder folder;
    ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(WriteWhole(folder.Path("pipe"), "x"), "No such device or address");
}

TEST(WholeFileTest, ExistingFileThatIsToStayStays)
{
    const TempFolder folder;
    folder.Write("a.csv", "old");
    EXPECT_EQ(WriteWhole(folder.Path("a.csv"), "new", Existing::Kept), "File exists");
    EXPECT_EQ(folder.Read("a.csv"), "old");
    EXPECT_EQ(NamesIn(folder), std::vector<std::string>{"a.csv"});
}

TEST(WholeFileTest, AtAPlaceTheFileGetsTheRightsThatAreGiven)
{
    const TempFolder folder;
    folder.Write("a.html", "old");
    FilePlace place;
    ASSERT_EQ(FindFolder(folder.Path(), Missing::Fails, place.folder), 0);
    place.strName = "a.html";
    EXPECT_EQ(WriteWhole(place, "new", 0600), "");
    EXPECT_EQ(folder.Read("a.html"), "new");
    struct stat status = {};
    ASSERT_EQ(stat(folder.Path("a.html").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST(WholeFileTest, MissingFolderIsTold)
{
    const TempFolder folder;
    EXPECT_EQ(WriteWhole(folder.Path("none/a.csv"), "x"), "No such file or directory");
}

TEST(WholeFileTest, FolderOfThatNameStays)
{
    const TempFolder folder;
    folder.MakeFolder("a.csv");
    EXPECT_EQ(WriteWhole(folder.Path("a.csv"), "x"), "Is a directory");
    EXPECT_EQ(NamesIn(folder), std::vector<std::string>{"a.csv"});
}

}  // namespace
}  // namespace host
