#include "file/PendingDocument.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>

#include "file/Descriptor.h"
#include "file/FilePlace.h"
#include "support/TempFolder.h"

namespace fs = std::filesystem;

namespace host {
namespace {

using Names = std::vector<std::string>;

class PendingDocumentTest : public testing::Test
{
protected:
    static void WriteTo(const PendingDocument& document, const std::string& strText)
    {
        std::ofstream(document.Path()) << strText;
    }

    FilePlace PlaceOf(const std::string& strName) const
    {
        FilePlace place;
        EXPECT_EQ(FindFolder(m_folder.Path(), Missing::Fails, place.folder), 0);
        place.strName = strName;
        return place;
    }

    /// Whether the path leads to the same device or pipe as the other.
    static void ExpectSame(const std::string& strPath, const std::string& strOther)
    {
        struct stat info = {};
        struct stat other = {};
        ASSERT_EQ(stat(strPath.c_str(), &info), 0) << strPath;
        ASSERT_EQ(stat(strOther.c_str(), &other), 0) << strOther;
        EXPECT_EQ(info.st_dev, other.st_dev);
        EXPECT_EQ(info.st_ino, other.st_ino);
    }

    mode_t ModeOf(const std::string& strName) const
    {
        struct stat info = {};
        EXPECT_EQ(stat(m_folder.Path(strName).c_str(), &info), 0);
        return info.st_mode & 0777;
    }

    TempFolder m_folder;
};

TEST_F(PendingDocumentTest, AppearsWhenItIsKept)
{
    PendingDocument document(m_folder.Path("a.mok"));
    EXPECT_EQ(document.Open(), "");
    WriteTo(document, "new");
    EXPECT_FALSE(m_folder.Has("a.mok"));
    EXPECT_EQ(document.Size(), 3U);
    EXPECT_EQ(document.Keep(), "");
    EXPECT_EQ(m_folder.Names(), Names{"a.mok"});
    EXPECT_EQ(m_folder.Read("a.mok"), "new");
}

TEST_F(PendingDocumentTest, PathForTheLibraryIsADocumentsAndLeadsToTheFileAlone)
{
    PendingDocument document(m_folder.Path("a.MOK"));
    EXPECT_EQ(document.Open(), "");
    EXPECT_TRUE(document.Path().starts_with("/proc/self/fd/")) << document.Path();
    EXPECT_TRUE(document.Path().ends_with(".mok"));
    struct stat opened = {};
    struct stat named = {};
    ASSERT_EQ(fstat(document.Get(), &opened), 0);
    ASSERT_EQ(stat(document.Path().c_str(), &named), 0);
    EXPECT_EQ(opened.st_ino, named.st_ino);
    EXPECT_EQ(opened.st_mode & 0777, 0600U) << "the owner's alone";
}

TEST_F(PendingDocumentTest, FolderThatIsMovedAwayMeanwhileKeepsTheDocument)
{
    m_folder.MakeFolder("sub");
    PendingDocument document(m_folder.Path("sub/a.mok"));
    EXPECT_EQ(document.Open(), "");
    fs::rename(m_folder.Path("sub"), m_folder.Path("moved"));
    m_folder.MakeFolder("other");
    fs::create_symlink("other", m_folder.Path("sub"));
    WriteTo(document, "new");
    EXPECT_EQ(document.Keep(), "");
    EXPECT_EQ(m_folder.Read("moved/a.mok"), "new");
    EXPECT_FALSE(m_folder.Has("other/a.mok"));
}

TEST_F(PendingDocumentTest, FileThatIsMadeMeanwhileStaysIfItIsWanted)
{
    PendingDocument document(m_folder.Path("a.mok"));
    EXPECT_EQ(document.Open(), "");
    WriteTo(document, "new");
    m_folder.Write("a.mok", "another's");
    EXPECT_EQ(document.Keep(Existing::Kept), "File exists");
    EXPECT_EQ(m_folder.Read("a.mok"), "another's");
}

TEST_F(PendingDocumentTest, AtAPlaceALinkIsReplacedItself)
{
    m_folder.Write("real.mok", "old");
    fs::create_symlink("real.mok", m_folder.Path("a.mok"));
    PendingDocument document(PlaceOf("a.mok"));
    EXPECT_EQ(document.Open(), "");
    WriteTo(document, "new");
    EXPECT_EQ(document.Keep(), "");
    EXPECT_FALSE(fs::is_symlink(m_folder.Path("a.mok")));
    EXPECT_EQ(m_folder.Read("a.mok"), "new");
    EXPECT_EQ(m_folder.Read("real.mok"), "old");
}

TEST_F(PendingDocumentTest, AtAPlaceAPipeIsRefused)
{
    ASSERT_EQ(mkfifo(m_folder.Path("a.mok").c_str(), 0600), 0);
    PendingDocument document(PlaceOf("a.mok"));
    EXPECT_EQ(document.Open(), "File exists");
    EXPECT_EQ(m_folder.Names(), Names{"a.mok"});
}

TEST_F(PendingDocumentTest, LeavesNothingIfItIsNotKept)
{
    m_folder.Write("a.mok", "old");
    {
        PendingDocument document(m_folder.Path("a.mok"));
        EXPECT_EQ(document.Open(), "");
        WriteTo(document, "half");
    }
    EXPECT_EQ(m_folder.Names(), Names{"a.mok"});
    EXPECT_EQ(m_folder.Read("a.mok"), "old");
}

TEST_F(PendingDocumentTest, NewOneHasTheRightsOfANewFile)
{
    const mode_t mask = umask(027);
    PendingDocument document(m_folder.Path("a.mok"));
    EXPECT_EQ(document.Open(), "");
    EXPECT_EQ(document.Keep(), "");
    umask(mask);
    EXPECT_EQ(ModeOf("a.mok"), 0640U);
}

TEST_F(PendingDocumentTest, ReplacedOneKeepsItsRights)
{
    m_folder.Write("a.mok", "old");
    ASSERT_EQ(chmod(m_folder.Path("a.mok").c_str(), 0600), 0);
    PendingDocument document(m_folder.Path("a.mok"));
    EXPECT_EQ(document.Open(), "");
    EXPECT_EQ(document.Keep(), "");
    EXPECT_EQ(ModeOf("a.mok"), 0600U);
}

TEST_F(PendingDocumentTest, LinkStaysAndItsTargetIsReplaced)
{
    m_folder.Write("sub/real.mok", "old");
    fs::create_symlink("sub/real.mok", m_folder.Path("a.mok"));
    PendingDocument document(m_folder.Path("a.mok"));
    EXPECT_EQ(document.Open(), "");
    WriteTo(document, "new");
    EXPECT_EQ(document.Keep(), "");
    EXPECT_TRUE(fs::is_symlink(m_folder.Path("a.mok")));
    EXPECT_EQ(m_folder.Read("sub/real.mok"), "new");
}

TEST_F(PendingDocumentTest, LinkToNothingGetsItsTarget)
{
    fs::create_symlink("real.mok", m_folder.Path("a.mok"));
    PendingDocument document(m_folder.Path("a.mok"));
    EXPECT_EQ(document.Open(), "");
    WriteTo(document, "new");
    EXPECT_EQ(document.Keep(), "");
    EXPECT_EQ(m_folder.Names(), (Names{"a.mok", "real.mok"}));
    EXPECT_EQ(m_folder.Read("real.mok"), "new");
}

TEST_F(PendingDocumentTest, LinkInACircleIsRefused)
{
    fs::create_symlink("a.mok", m_folder.Path("a.mok"));
    PendingDocument document(m_folder.Path("a.mok"));
    EXPECT_NE(document.Open(), "");
    EXPECT_EQ(m_folder.Names(), Names{"a.mok"});
}

TEST_F(PendingDocumentTest, DeviceIsWrittenToItself)
{
    PendingDocument document("/dev/null");
    EXPECT_EQ(document.Open(), "");
    EXPECT_TRUE(document.IsDevice());
    ExpectSame(document.Path(), "/dev/null");
    EXPECT_EQ(document.Keep(), "");
    EXPECT_EQ(document.Size(), 0U);
}

TEST_F(PendingDocumentTest, LinkToADeviceIsWrittenThrough)
{
    fs::create_symlink("/dev/null", m_folder.Path("a.mok"));
    PendingDocument document(m_folder.Path("a.mok"));
    EXPECT_EQ(document.Open(), "");
    ExpectSame(document.Path(), "/dev/null");
    EXPECT_EQ(document.Keep(), "");
    EXPECT_EQ(m_folder.Names(), Names{"a.mok"});
}

TEST_F(PendingDocumentTest, OpenPipeOfTheProcessIsWrittenThroughItsLink)
{
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    const std::string strPath = "/dev/fd/" + std::to_string(pipe[1]);
    PendingDocument document(strPath);
    EXPECT_EQ(document.Open(), "");
    ExpectSame(document.Path(), strPath);
    close(pipe[0]);
    close(pipe[1]);
}

TEST_F(PendingDocumentTest, PipeIsWrittenToItself)
{
    ASSERT_EQ(mkfifo(m_folder.Path("a.mok").c_str(), 0600), 0);
    const Descriptor reader(open(m_folder.Path("a.mok").c_str(), O_RDONLY | O_NONBLOCK));
    PendingDocument document(m_folder.Path("a.mok"));
    EXPECT_EQ(document.Open(), "");
    ExpectSame(document.Path(), m_folder.Path("a.mok"));
    EXPECT_EQ(fcntl(document.Get(), F_GETFL) & O_NONBLOCK, 0) << "waits for its reader";
}

TEST_F(PendingDocumentTest, PipeThatNobodyReadsIsRefused)
{
    ASSERT_EQ(mkfifo(m_folder.Path("a.mok").c_str(), 0600), 0);
    PendingDocument document(m_folder.Path("a.mok"));
    EXPECT_EQ(document.Open(), "No such device or address");
}

TEST_F(PendingDocumentTest, FolderIsRefused)
{
    m_folder.MakeFolder("a.mok");
    PendingDocument document(m_folder.Path("a.mok"));
    EXPECT_EQ(document.Open(), "Is a directory");
}

TEST_F(PendingDocumentTest, MissingFolderIsLeftToTheLibrary)
{
    PendingDocument document(m_folder.Path("absent/a.mok"));
    EXPECT_EQ(document.Open(), "");
    EXPECT_FALSE(fs::exists(fs::path(document.Path()).parent_path()));
    EXPECT_EQ(document.Keep(), "");
    EXPECT_FALSE(m_folder.Has("absent"));
}

TEST_F(PendingDocumentTest, NameThatIsTooLongLeavesNothing)
{
    {
        PendingDocument document(m_folder.Path(std::string(300, 'a') + ".mok"));
        EXPECT_EQ(document.Open(), "File name too long");
    }
    EXPECT_EQ(m_folder.Names(), Names());
}

TEST_F(PendingDocumentTest, WriteProtectedDocumentIsNotReplaced)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everything";
    m_folder.Write("a.mok", "old");
    ASSERT_EQ(chmod(m_folder.Path("a.mok").c_str(), 0400), 0);
    PendingDocument document(m_folder.Path("a.mok"));
    EXPECT_EQ(document.Open(), "Permission denied");
}

class InterruptedDocumentTest : public PendingDocumentTest, public testing::WithParamInterface<int>
{};

TEST_P(InterruptedDocumentTest, LeavesNothingAndEndsByTheSignal)
{
    const pid_t nChild = fork();
    ASSERT_GE(nChild, 0);
    if (nChild == 0) {
        std::signal(GetParam(), SIG_DFL);
        PendingDocument document(m_folder.Path("a.mok"));
        if (document.Open().empty())
            std::raise(GetParam());
        _exit(0);
    }
    int nStatus = 0;
    ASSERT_EQ(waitpid(nChild, &nStatus, 0), nChild);
    EXPECT_TRUE(WIFSIGNALED(nStatus));
    EXPECT_EQ(WTERMSIG(nStatus), GetParam());
    EXPECT_EQ(m_folder.Names(), Names());
}

INSTANTIATE_TEST_SUITE_P(Signals,
                         InterruptedDocumentTest,
                         testing::Values(SIGHUP, SIGINT, SIGTERM),
                         testing::PrintToStringParamName());

TEST_F(PendingDocumentTest, SignalThatIsIgnoredStaysIgnored)
{
    const auto pBefore = std::signal(SIGHUP, SIG_IGN);
    {
        PendingDocument document(m_folder.Path("a.mok"));
        EXPECT_EQ(document.Open(), "");
        std::raise(SIGHUP);
        EXPECT_TRUE(fs::exists(document.Path()));
    }
    EXPECT_EQ(std::signal(SIGHUP, pBefore), SIG_IGN);
}

}  // namespace
}  // namespace host
