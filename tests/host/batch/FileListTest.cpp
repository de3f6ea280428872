#include "batch/FileList.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <sstream>

#include "support/TempFolder.h"

namespace host {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

std::vector<std::string> Relatives(const FileList& list)
{
    std::vector<std::string> vecRelative;
    for (const BatchFile& file : list.vecFile)
        vecRelative.push_back(file.strRelative);
    return vecRelative;
}

std::vector<std::string> Documents(std::vector<BatchFile> vecFile)
{
    NameDocuments(vecFile);
    std::vector<std::string> vecDocument;
    for (const BatchFile& file : vecFile)
        vecDocument.push_back(file.strDocument);
    return vecDocument;
}

std::vector<BatchFile> Files(std::initializer_list<const char*> listRelative)
{
    std::vector<BatchFile> vecFile;
    for (const char* szRelative : listRelative) {
        BatchFile file;
        file.strPath = file.strRelative = szRelative;
        file.strKey = std::string("/") + szRelative;
        vecFile.push_back(file);
    }
    return vecFile;
}

class FolderWalkTest : public testing::Test
{
protected:
    FileList Walk(TextFiles eTexts = TextFiles::LeftAside) const
    {
        return FilesBelow(folder.Path(), folder.Path("out"), eTexts);
    }

    TempFolder folder;
};

TEST_F(FolderWalkTest, CsvFilesOfAllDepthsAreFoundInTheOrderOfTheirPaths)
{
    folder.Write("b.csv", "");
    folder.Write("a/z.csv", "");
    folder.Write("a/b/c/d.csv", "");
    EXPECT_THAT(Relatives(Walk()), ElementsAre("a/b/c/d.csv", "a/z.csv", "b.csv"));
}

TEST_F(FolderWalkTest, CaseOfTheEndingDoesNotMatter)
{
    folder.Write("a.CSV", "");
    folder.Write("b.Csv", "");
    folder.Write("c.csv.bak", "");
    folder.Write("csv", "");
    EXPECT_THAT(Relatives(Walk()), ElementsAre("a.CSV", "b.Csv"));
}

TEST_F(FolderWalkTest, TextFilesAreCountedAndLeftAside)
{
    folder.Write("a.txt", "");
    folder.Write("b.TXT", "");
    const FileList list = Walk();
    EXPECT_THAT(list.vecFile, IsEmpty());
    EXPECT_EQ(list.nTexts, 2U);
}

TEST_F(FolderWalkTest, TextFilesAreTakenWhenTheyAreWanted)
{
    folder.Write("a.txt", "");
    folder.Write("b.csv", "");
    const FileList list = Walk(TextFiles::Taken);
    EXPECT_THAT(Relatives(list), ElementsAre("a.txt", "b.csv"));
    EXPECT_EQ(list.nTexts, 0U);
}

TEST_F(FolderWalkTest, StrangersLinkIsTakenForWhatItIsWhereOthersMayWrite)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make another user's link";
    folder.Write("real.csv", "");
    fs::create_symlink("real.csv", folder.Path("own.csv"));
    fs::create_symlink("real.csv", folder.Path("theirs.csv"));
    ASSERT_EQ(lchown(folder.Path("theirs.csv").c_str(), 65534, 65534), 0);
    const auto strangers = [this] {
        std::vector<std::string> vecName;
        for (const BatchFile& file : Walk().vecFile)
            if (file.bStrangersLink)
                vecName.push_back(file.strRelative);
        return vecName;
    };
    EXPECT_THAT(strangers(), IsEmpty()) << "its owner alone writes in the folder";
    ASSERT_EQ(chmod(folder.Path().c_str(), 01777), 0);
    EXPECT_THAT(strangers(), ElementsAre("theirs.csv"));
}

TEST_F(FolderWalkTest, FolderNamedLikeAFileIsLookedInto)
{
    folder.Write("x.csv/a.csv", "");
    EXPECT_THAT(Relatives(Walk()), ElementsAre("x.csv/a.csv"));
}

TEST_F(FolderWalkTest, LinksToFoldersAreCountedAndNotFollowed)
{
    folder.Write("a/b.csv", "");
    fs::create_symlink(folder.Path(), folder.Path("a/loop"));
    fs::create_symlink(folder.Path("a"), folder.Path("again.csv"));
    const FileList list = Walk();
    EXPECT_THAT(Relatives(list), ElementsAre("a/b.csv"));
    EXPECT_EQ(list.nLinks, 2U);
}

TEST_F(FolderWalkTest, LinksToFilesAreTakenAndSoAreThoseThatLeadNowhere)
{
    folder.Write("elsewhere/data", "");
    fs::create_symlink(folder.Path("elsewhere/data"), folder.Path("a.csv"));
    fs::create_symlink(folder.Path("nothing"), folder.Path("b.csv"));
    EXPECT_THAT(Relatives(Walk()), ElementsAre("a.csv", "b.csv"));
}

TEST_F(FolderWalkTest, OutputFolderInsideIsNotLookedInto)
{
    folder.Write("out/a.csv", "");
    folder.Write("in/out/b.csv", "");
    EXPECT_THAT(Relatives(Walk()), ElementsAre("in/out/b.csv"));
}

TEST_F(FolderWalkTest, OutputFolderThatIsTheFolderItselfIsLookedInto)
{
    folder.Write("a.csv", "");
    EXPECT_THAT(Relatives(FilesBelow(folder.Path(), folder.Path(), TextFiles::LeftAside)),
                ElementsAre("a.csv"));
}

TEST_F(FolderWalkTest, NameThatIsNoUtf8IsKeptByteForByte)
{
    folder.Write("\xff\x82.csv", "");
    EXPECT_THAT(Relatives(Walk()), ElementsAre("\xff\x82.csv"));
}

TEST_F(FolderWalkTest, SlashBehindTheFolderChangesNothing)
{
    folder.Write("a.csv", "");
    const FileList list = FilesBelow(folder.Path() + "/", folder.Path("out"), TextFiles::Taken);
    ASSERT_THAT(list.vecFile, SizeIs(1));
    EXPECT_EQ(list.vecFile[0].strPath, folder.Path("a.csv"));
    EXPECT_EQ(list.vecFile[0].strKey, folder.Path("a.csv"));
}

// A path of more than PATH_MAX bytes can't be opened, whoever asks.
TEST_F(FolderWalkTest, FolderThatCannotBeReadIsAnEntryWithTheReason)
{
    const std::string strLong(250, 'x');
    int nFolder = open(folder.Path().c_str(), O_RDONLY | O_DIRECTORY);
    for (int n = 0; n < 20; ++n) {
        ASSERT_EQ(mkdirat(nFolder, strLong.c_str(), 0777), 0);
        const int nInner = openat(nFolder, strLong.c_str(), O_RDONLY | O_DIRECTORY);
        close(nFolder);
        nFolder = nInner;
    }
    close(nFolder);
    folder.Write("a.csv", "");
    const FileList list = Walk();
    ASSERT_THAT(list.vecFile, SizeIs(2));
    EXPECT_EQ(list.vecFile[0].strPath, folder.Path("a.csv"));
    EXPECT_EQ(list.vecFile[1].strProblem, std::strerror(ENAMETOOLONG));
    EXPECT_EQ(list.vecFile[1].strRelative, "");
}

TEST(FileListTest, MissingFolderIsAnEntryWithTheReason)
{
    const FileList list = FilesBelow("/nowhere/at/all", "out", TextFiles::LeftAside);
    ASSERT_THAT(list.vecFile, SizeIs(1));
    EXPECT_EQ(list.vecFile[0].strProblem, std::strerror(ENOENT));
}

TEST(FileListTest, LinesMayEndInCarriageReturnsAndBeEmpty)
{
    std::istringstream in("\xef\xbb\xbf/x/a.csv\r\n\r\n\n/x/b c.csv");
    const FileList list = FilesOfList(in, ListForm::Lines);
    EXPECT_THAT(Relatives(list), ElementsAre("_outside/x/a.csv", "_outside/x/b c.csv"));
}

TEST(FileListTest, NamesThatEndWithNulAreTakenAsTheyAre)
{
    std::istringstream in(std::string("/x/a\n.csv\r\0\0/x/b.csv\0", 22));
    const FileList list = FilesOfList(in, ListForm::Nul);
    EXPECT_THAT(Relatives(list), ElementsAre("_outside/x/a\n.csv\r", "_outside/x/b.csv"));
}

TEST(FileListTest, FileNamedAgainIsTakenOnceUnderItsFirstName)
{
    const std::string strHere = fs::current_path().string();
    std::istringstream in("a/./b.csv\na/b.csv\na/c/../b.csv\n" + strHere + "/a/b.csv\n");
    const FileList list = FilesOfList(in, ListForm::Lines);
    ASSERT_THAT(list.vecFile, SizeIs(1));
    EXPECT_EQ(list.vecFile[0].strPath, "a/./b.csv");
    EXPECT_EQ(list.vecFile[0].strRelative, "a/b.csv");
    EXPECT_EQ(list.nRepeated, 3U);
}

TEST(FileListTest, FileAboveThePresentFolderIsMirroredByItsWholePath)
{
    std::istringstream in("../b.csv\n");
    EXPECT_THAT(Relatives(FilesOfList(in, ListForm::Lines)),
                ElementsAre("_outside" + (fs::current_path().parent_path() / "b.csv").string()));
}

TEST(DocumentNameTest, EndingIsReplacedWhateverItsCase)
{
    EXPECT_THAT(Documents(Files({"a/b.csv", "c.CSV", "d.Txt"})),
                ElementsAre("a/b.mok", "c.mok", "d.mok"));
}

TEST(DocumentNameTest, AnotherEndingStays)
{
    EXPECT_THAT(Documents(Files({"a.dat", "b", ".csv"})),
                ElementsAre("a.dat.mok", "b.mok", ".mok"));
}

TEST(DocumentNameTest, FilesThatMeetAllKeepTheirEndings)
{
    EXPECT_THAT(Documents(Files({"a.CSV", "a.csv", "a.txt", "b.csv"})),
                ElementsAre("a.CSV.mok", "a.csv.mok", "a.txt.mok", "b.mok"));
}

TEST(DocumentNameTest, FileMetByAnEndingThatWasKeptKeepsItsOwn)
{
    EXPECT_THAT(Documents(Files({"a.csv", "a.csv.csv", "a.txt"})),
                ElementsAre("a.csv.mok", "a.csv.csv.mok", "a.txt.mok"));
}

TEST(DocumentNameTest, FileWithoutEndingMayMeetOneWithIt)
{
    EXPECT_THAT(Documents(Files({"a", "a.csv"})), ElementsAre("a.mok", "a.csv.mok"));
}

TEST(DocumentNameTest, FilesOfTheSameRelativePathAreNumbered)
{
    EXPECT_THAT(Documents(Files({"_outside/a.csv", "_outside/a.csv"})),
                ElementsAre("_outside/a.csv.mok", "_outside/a.csv.2.mok"));
}

TEST(DocumentNameTest, FolderThatCannotBeReadGetsNone)
{
    std::vector<BatchFile> vecFile = Files({"a.csv"});
    vecFile.emplace_back().strProblem = "why";
    EXPECT_THAT(Documents(vecFile), ElementsAre("a.mok", ""));
}

TEST(DocumentNameTest, AllNamesAreTold)
{
    std::vector<BatchFile> vecFile = Files({"a.csv", "b/a.csv"});
    EXPECT_THAT(NameDocuments(vecFile), UnorderedElementsAre("a.mok", "b/a.mok"));
}

}  // namespace
}  // namespace host
