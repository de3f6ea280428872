// File services.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "KZCMacOSNative.h"
#include "support/Environment.h"
#include "support/FileSizeLimit.h"
#include "support/PlatformFault.h"
#include "support/ShiftJisText.h"
#include "support/TempFolder.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class KZCMacOSNativeFileTest : public testing::Test
{
protected:
    static unsigned ModeOf(const std::string& strPath)
    {
        struct stat info = {};
        EXPECT_EQ(::stat(strPath.c_str(), &info), 0);
        return info.st_mode & 0777U;
    }

    /// What the operation answers a user without privileges: those of root read everything.
    template <class Operation>
    static bool AsOrdinaryUser(Operation operation)
    {
        constexpr unsigned NOBODY = 65534;
        const pid_t nChild = ::fork();
        if (nChild == 0) {
            if (::geteuid() == 0 && (::setgid(NOBODY) != 0 || ::setuid(NOBODY) != 0))
                ::_exit(2);
            ::_exit(operation() ? 1 : 0);
        }
        int nStatus = 0;
        EXPECT_EQ(::waitpid(nChild, &nStatus, 0), nChild);
        EXPECT_TRUE(WIFEXITED(nStatus) && WEXITSTATUS(nStatus) < 2);
        return WEXITSTATUS(nStatus) == 1;
    }

    TempFolder m_folder;
};

// --- reading Shift_JIS ---

TEST_F(KZCMacOSNativeFileTest, ReadSJISFileGivesUtf8OnDemand)
{
    const std::string strPath = m_folder.Write("a.csv", "\x82\xA0");
    EXPECT_EQ(KZCMacOSNative::readSJISFile(strPath.c_str(), true), "\xE3\x81\x82");
}

TEST_F(KZCMacOSNativeFileTest, ReadSJISFileGivesShiftJisOtherwise)
{
    const std::string strPath = m_folder.Write("a.csv", "\x82\xA0");
    EXPECT_EQ(KZCMacOSNative::readSJISFile(strPath.c_str(), false), "\x82\xA0");
}

TEST_F(KZCMacOSNativeFileTest, ReadSJISFileGivesDuplicateCodesInTheirCanonicalForm)
{
    const std::string strPath = m_folder.Write("a.csv", "\xED\x40\x87\x90,\xEE\xF9");
    EXPECT_EQ(KZCMacOSNative::readSJISFile(strPath.c_str(), false), "\xFA\x5C\x81\xE0,\x81\xCA");
}

TEST_F(KZCMacOSNativeFileTest, ReadSJISFileKeepsLineEnds)
{
    const std::string strPath = m_folder.Write("a.csv", "a\r\nb\nc\r");
    EXPECT_EQ(KZCMacOSNative::readSJISFile(strPath.c_str(), true), "a\r\nb\nc\r");
}

TEST_F(KZCMacOSNativeFileTest, ReadSJISFileEndsAtTheFirstNul)
{
    const std::string strPath = m_folder.Write("a.csv", std::string_view("ab\0cd", 5));
    EXPECT_EQ(KZCMacOSNative::readSJISFile(strPath.c_str(), true), "ab");
    EXPECT_EQ(KZCMacOSNative::readSJISFile(strPath.c_str(), false), "ab");
}

TEST_F(KZCMacOSNativeFileTest, ReadSJISFileReadsAFileOfSeveralMegabytes)
{
    std::string strBytes;
    std::string strExpected;
    for (int nAt = 0; nAt < 1000000; ++nAt) {
        strBytes += "\x82\xA0,";
        strExpected += "あ,";
    }
    const std::string strPath = m_folder.Write("a.csv", strBytes);
    EXPECT_TRUE(KZCMacOSNative::readSJISFile(strPath.c_str(), true) == strExpected);
}

TEST_F(KZCMacOSNativeFileTest, ReadSJISFileTakesAJapanesePath)
{
    const std::string strPath = m_folder.Write("申請/国税.csv", "a");
    EXPECT_EQ(KZCMacOSNative::readSJISFile(strPath.c_str(), true), "a");
}

/// A text whose two-byte characters lie across every place where a piece may end.
std::string LargeShiftJis()
{
    std::string strBytes = "a";
    while (strBytes.size() < 5'000'000)
        strBytes += "\x82\xA0\x95\x5C\xED\x40";
    return strBytes + ",b";
}

/// The pieces joined; nothing if the file can't be read.
std::optional<std::string> ReadPieces(const std::string& strPath, bool bUtf8)
{
    std::string strText;
    const bool bRead =
        KZCMacOSNative::readSJISPieces(strPath.c_str(), bUtf8, [&](std::string_view strPiece) {
            strText += strPiece;
            return true;
        });
    if (bRead)
        return strText;
    EXPECT_EQ(strText, "") << "pieces of a file that can't be read";
    return std::nullopt;
}

TEST_F(KZCMacOSNativeFileTest, PiecesOfASmallFileAreItsText)
{
    const std::string strPath = m_folder.Write("a.csv", std::string_view("\x82\xA0,\0b", 5));
    EXPECT_EQ(ReadPieces(strPath, true), "あ,");
    EXPECT_EQ(ReadPieces(strPath, false), "\x82\xA0,");
}

TEST_F(KZCMacOSNativeFileTest, PiecesOfALargeFileAreItsText)
{
    const std::string strPath = m_folder.Write("a.csv", LargeShiftJis());
    for (const bool bUtf8 : {true, false}) {
        const std::string strExpected = KZCMacOSNative::readSJISFile(strPath.c_str(), bUtf8);
        EXPECT_TRUE(strExpected.ends_with(",b"));
        EXPECT_TRUE(ReadPieces(strPath, bUtf8) == strExpected) << bUtf8;
    }
}

TEST_F(KZCMacOSNativeFileTest, PiecesOfALargeFileEndAtTheFirstNul)
{
    const std::string strBytes = LargeShiftJis();
    const std::string strPath =
        m_folder.Write("a.csv", strBytes + std::string(1, '\0') + strBytes + "c");
    const auto strText = ReadPieces(strPath, false);
    ASSERT_TRUE(strText);
    EXPECT_TRUE(*strText == KZCMacOSNative::readSJISFile(strPath.c_str(), false));
    EXPECT_EQ(strText->size(), strBytes.size());
}

TEST_F(KZCMacOSNativeFileTest, NoPieceOfALargeFileComesThatHoldsAnInvalidSequence)
{
    const std::string strBytes = LargeShiftJis();
    for (const std::string& strEnd :
         {std::string("\x82"), std::string("\xFF\n"), std::string("\0\x82,", 3)}) {
        const std::string strPath = m_folder.Write("a.csv", strBytes + strEnd);
        EXPECT_EQ(ReadPieces(strPath, true), std::nullopt);
        EXPECT_EQ(ReadPieces(strPath, false), std::nullopt);
    }
}

TEST_F(KZCMacOSNativeFileTest, LargeFileThatBeginsWithANulHasNoText)
{
    const std::string strPath = m_folder.Write("a.csv", std::string(5'000'000, '\0') + "a");
    EXPECT_EQ(ReadPieces(strPath, true), std::nullopt);
}

TEST_F(KZCMacOSNativeFileTest, MissingFileFolderAndPipeHaveNoPieces)
{
    EXPECT_EQ(ReadPieces(m_folder.Path("none.csv"), true), std::nullopt);
    EXPECT_EQ(ReadPieces(m_folder.Path(), true), std::nullopt);
    const std::string strPipe = m_folder.Path("pipe");
    ASSERT_EQ(::mkfifo(strPipe.c_str(), 0600), 0);
    EXPECT_FALSE(KZCMacOSNative::readFile(strPipe.c_str(), [](std::string_view) { return true; }));
}

TEST_F(KZCMacOSNativeFileTest, UseEndsTheReadingOfALargeFile)
{
    const std::string strPath = m_folder.Write("a.csv", LargeShiftJis());
    int nPieces = 0;
    EXPECT_TRUE(KZCMacOSNative::readSJISPieces(strPath.c_str(), true,
                                               [&](std::string_view) { return ++nPieces < 3; }));
    EXPECT_EQ(nPieces, 3);
}

struct UnreadableCase
{
    const char* szName;
    std::string_view strBytes;
};

class KZCMacOSNativeUnreadableTest : public testing::TestWithParam<UnreadableCase>
{};

TEST_P(KZCMacOSNativeUnreadableTest, ReadSJISFileGivesTheEmptyText)
{
    const TempFolder folder;
    const std::string strPath = folder.Write("a.csv", GetParam().strBytes);
    EXPECT_EQ(KZCMacOSNative::readSJISFile(strPath.c_str(), true), "");
    EXPECT_EQ(KZCMacOSNative::readSJISFile(strPath.c_str(), false), "");
}

constexpr UnreadableCase UNREADABLE_CASES[] = {
    {"Empty", ""},
    {"LoneLeadByteAtTheEnd", "003,1,a\x82"},
    {"OneBadByteAmongMany", "003,1,a\r\n003,\x80,b\r\n"},
    {"BadByteBehindANul", std::string_view("ab\0\xFF", 4)},
    {"NulFirst", std::string_view("\0ab", 3)},
    {"Utf8Text", "\xE3\x81\x82\xE3\x81"},
    {"Utf8ByteOrderMark",
     "\xEF\xBB\xBF"
     "003,1,a"},
    {"Utf16LittleEndian", std::string_view("\xFF\xFE"
                                           "0\0",
                                           4)},
    {"Utf16BigEndian", std::string_view("\xFE\xFF\0"
                                        "0",
                                        4)},
};

INSTANTIATE_TEST_SUITE_P(Contents,
                         KZCMacOSNativeUnreadableTest,
                         testing::ValuesIn(UNREADABLE_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST_F(KZCMacOSNativeFileTest, ReadSJISFileOfAMissingFileIsEmpty)
{
    EXPECT_EQ(KZCMacOSNative::readSJISFile(m_folder.Path("none.csv").c_str(), true), "");
}

TEST_F(KZCMacOSNativeFileTest, ReadSJISFileOfNoPathIsEmpty)
{
    EXPECT_EQ(KZCMacOSNative::readSJISFile("", true), "");
    EXPECT_EQ(KZCMacOSNative::readSJISFile(nullptr, true), "");
}

TEST_F(KZCMacOSNativeFileTest, ReadSJISFileOfAFolderIsEmpty)
{
    EXPECT_EQ(KZCMacOSNative::readSJISFile(m_folder.Path().c_str(), true), "");
}

TEST_F(KZCMacOSNativeFileTest, ReadSJISFileOfADeviceIsEmpty)
{
    EXPECT_EQ(KZCMacOSNative::readSJISFile("/dev/zero", true), "");
    EXPECT_EQ(KZCMacOSNative::readSJISFile("/dev/null", true), "");
}

TEST_F(KZCMacOSNativeFileTest, ReadSJISFileOfAPipeIsEmptyAndDoesntWait)
{
    const std::string strPath = m_folder.Path("pipe.csv");
    ASSERT_EQ(::mkfifo(strPath.c_str(), 0600), 0);
    EXPECT_EQ(KZCMacOSNative::readSJISFile(strPath.c_str(), true), "");
}

TEST_F(KZCMacOSNativeFileTest, ReadSJISFileWithoutThePermissionIsEmpty)
{
    const std::string strPath = m_folder.Write("a.csv", "abc");
    ::chmod(m_folder.Path().c_str(), 0755);
    ::chmod(strPath.c_str(), 0);
    EXPECT_TRUE(AsOrdinaryUser(
        [&] { return KZCMacOSNative::readSJISFile(strPath.c_str(), true).empty(); }));
}

// --- writing Shift_JIS ---

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileMakesAFileFromShiftJis)
{
    const std::string strText = ToShiftJis("国税,ｱ,1\r\n");
    EXPECT_TRUE(
        KZCMacOSNative::writeSJISFile(m_folder.Path("a.csv").c_str(), strText.c_str(), false));
    EXPECT_EQ(m_folder.Read("a.csv"), strText);
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileMakesAFileFromUtf8)
{
    EXPECT_TRUE(
        KZCMacOSNative::writeSJISFile(m_folder.Path("a.csv").c_str(), "国税,ｱ,1\r\n", true));
    EXPECT_EQ(m_folder.Read("a.csv"), ToShiftJis("国税,ｱ,1\r\n"));
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileWritesDuplicateCodesInTheirCanonicalForm)
{
    EXPECT_TRUE(
        KZCMacOSNative::writeSJISFile(m_folder.Path("a.csv").c_str(), "\xED\x40\x87\x90", false));
    EXPECT_EQ(m_folder.Read("a.csv"), "\xFA\x5C\x81\xE0");
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileReplacesALongerFile)
{
    const std::string strPath = m_folder.Write("a.csv", "a much longer text than the new one");
    EXPECT_TRUE(KZCMacOSNative::writeSJISFile(strPath.c_str(), "short", true));
    EXPECT_EQ(m_folder.Read("a.csv"), "short");
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileWritesInPlaceOverAnExistingFile)
{
    const std::string strPath = m_folder.Write("a.csv", "old");
    std::filesystem::create_hard_link(strPath, m_folder.Path("link.csv"));
    EXPECT_TRUE(KZCMacOSNative::writeSJISFile(strPath.c_str(), "new", true));
    EXPECT_EQ(m_folder.Read("link.csv"), "new");
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileOfTheEmptyTextMakesAnEmptyFile)
{
    EXPECT_TRUE(KZCMacOSNative::writeSJISFile(m_folder.Path("a.csv").c_str(), "", true));
    EXPECT_EQ(m_folder.Read("a.csv"), "");
}

struct UnwritableCase
{
    const char* szName;
    const char* szText;
    bool bUtf8;
};

class KZCMacOSNativeUnwritableTest : public testing::TestWithParam<UnwritableCase>
{
protected:
    TempFolder m_folder;
};

TEST_P(KZCMacOSNativeUnwritableTest, WriteSJISFileMakesNoFile)
{
    EXPECT_FALSE(KZCMacOSNative::writeSJISFile(m_folder.Path("a.csv").c_str(), GetParam().szText,
                                               GetParam().bUtf8));
    EXPECT_THAT(m_folder.Names(), IsEmpty());
}

TEST_P(KZCMacOSNativeUnwritableTest, WriteSJISFileLeavesAnExistingFileAlone)
{
    const std::string strPath = m_folder.Write("a.csv", "old");
    EXPECT_FALSE(
        KZCMacOSNative::writeSJISFile(strPath.c_str(), GetParam().szText, GetParam().bUtf8));
    EXPECT_EQ(m_folder.Read("a.csv"), "old");
}

constexpr UnwritableCase UNWRITABLE_CASES[] = {
    {"InvalidUtf8", "abc\xE3", true},
    {"InvalidShiftJis", "abc\x82", false},
    {"ShiftJisTakenAsUtf8", "\x82\xA0", true},
    {"YenSign", "a\u00A5", true},
    {"Overline", "a\u203E", true},
    {"WaveDashOfJis", "a\u301C", true},
    {"MinusSignOfJis", "a\u2212", true},
    {"DoubleVerticalLineOfJis", "a\u2016", true},
    {"CentSignOfJis", "a\u00A2", true},
    {"PoundSignOfJis", "a\u00A3", true},
    {"NotSignOfJis", "a\u00AC", true},
    {"CharacterOutsideTheBasicPlane", "𠮷", true},
    {"Accent", "é", true},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCMacOSNativeUnwritableTest,
                         testing::ValuesIn(UNWRITABLE_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileInAMissingFolderFails)
{
    EXPECT_FALSE(KZCMacOSNative::writeSJISFile(m_folder.Path("none/a.csv").c_str(), "a", true));
    EXPECT_THAT(m_folder.Names(), IsEmpty());
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileOntoAFolderFails)
{
    EXPECT_FALSE(KZCMacOSNative::writeSJISFile(m_folder.Path().c_str(), "a", true));
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileWithoutAPathFails)
{
    EXPECT_FALSE(KZCMacOSNative::writeSJISFile("", "a", true));
    EXPECT_FALSE(KZCMacOSNative::writeSJISFile(nullptr, "a", true));
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileOntoAFullDeviceFails)
{
    std::filesystem::create_symlink("/dev/full", m_folder.Path("a.csv"));
    EXPECT_FALSE(KZCMacOSNative::writeSJISFile(m_folder.Path("a.csv").c_str(), "a", true));
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileRemovesAFileThatItMadeAndCouldNotFinish)
{
    const std::string strText(100000, 'a');
    {
        const FileSizeLimit limit(5000);
        EXPECT_FALSE(
            KZCMacOSNative::writeSJISFile(m_folder.Path("a.csv").c_str(), strText.c_str(), true));
    }
    EXPECT_THAT(m_folder.Names(), IsEmpty());
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileDoesntRemoveAFileThatWasThere)
{
    const std::string strPath = m_folder.Write("a.csv", "old");
    const std::string strText(100000, 'a');
    {
        const FileSizeLimit limit(5000);
        EXPECT_FALSE(KZCMacOSNative::writeSJISFile(strPath.c_str(), strText.c_str(), true));
    }
    EXPECT_THAT(m_folder.Names(), ElementsAre("a.csv"));
    EXPECT_EQ(m_folder.Read("a.csv"), "") << "half a text must not pass for the whole";
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileRemovesAFileThatItMadeThroughALink)
{
    std::filesystem::create_symlink(m_folder.Path("target.csv"), m_folder.Path("a.csv"));
    {
        const FileSizeLimit limit(5000);
        EXPECT_FALSE(KZCMacOSNative::writeSJISFile(m_folder.Path("a.csv").c_str(),
                                                   std::string(100000, 'a').c_str(), true));
    }
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path("target.csv")));
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileOntoAReadOnlyFileFails)
{
    const std::string strPath = m_folder.Write("a.csv", "old");
    ::chmod(m_folder.Path().c_str(), 0755);
    ::chmod(strPath.c_str(), 0444);
    EXPECT_FALSE(AsOrdinaryUser(
        [&] { return KZCMacOSNative::writeSJISFile(strPath.c_str(), "new", true); }));
    EXPECT_EQ(m_folder.Read("a.csv"), "old");
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileInAReadOnlyFolderFails)
{
    const std::string strFolder = m_folder.MakeFolder("locked");
    ::chmod(m_folder.Path().c_str(), 0755);
    ::chmod(strFolder.c_str(), 0555);
    EXPECT_FALSE(AsOrdinaryUser(
        [&] { return KZCMacOSNative::writeSJISFile((strFolder + "/a.csv").c_str(), "a", true); }));
    EXPECT_FALSE(m_folder.Has("locked/a.csv"));
}

// --- paths ---

TEST_F(KZCMacOSNativeFileTest, PathFileExistsForAFile)
{
    EXPECT_TRUE(KZCMacOSNative::pathFileExists(m_folder.Write("a.csv", "").c_str()));
}

TEST_F(KZCMacOSNativeFileTest, PathFileExistsForADevice)
{
    EXPECT_TRUE(KZCMacOSNative::pathFileExists("/dev/null"));
}

TEST_F(KZCMacOSNativeFileTest, PathFileDoesntExistForAFolder)
{
    EXPECT_FALSE(KZCMacOSNative::pathFileExists(m_folder.Path().c_str()));
}

TEST_F(KZCMacOSNativeFileTest, PathFileDoesntExistForAMissingPath)
{
    EXPECT_FALSE(KZCMacOSNative::pathFileExists(m_folder.Path("none").c_str()));
    EXPECT_FALSE(KZCMacOSNative::pathFileExists(""));
}

TEST_F(KZCMacOSNativeFileTest, PathFileIsReadForAReadableFile)
{
    EXPECT_TRUE(KZCMacOSNative::pathFileIsRead(m_folder.Write("a.csv", "").c_str()));
}

TEST_F(KZCMacOSNativeFileTest, PathFileIsNotReadForAMissingPath)
{
    EXPECT_FALSE(KZCMacOSNative::pathFileIsRead(m_folder.Path("none").c_str()));
    EXPECT_FALSE(KZCMacOSNative::pathFileIsRead(""));
}

TEST_F(KZCMacOSNativeFileTest, PathFileIsReadAsksForTheCurrentUser)
{
    ::chmod(m_folder.Path().c_str(), 0755);
    const std::string strOpen = m_folder.Write("open.csv", "a");
    const std::string strLocked = m_folder.Write("locked.csv", "a");
    ::chmod(strOpen.c_str(), 0444);
    ::chmod(strLocked.c_str(), 0);
    EXPECT_TRUE(AsOrdinaryUser([&] { return KZCMacOSNative::pathFileIsRead(strOpen.c_str()); }));
    EXPECT_FALSE(AsOrdinaryUser([&] { return KZCMacOSNative::pathFileIsRead(strLocked.c_str()); }));
}

TEST_F(KZCMacOSNativeFileTest, PathDirectoryExistsAsksForTheFolderOfAnExistingFile)
{
    EXPECT_TRUE(KZCMacOSNative::pathDirectoryExists(m_folder.Write("x.mok", "").c_str()));
}

TEST_F(KZCMacOSNativeFileTest, PathDirectoryExistsDoesntLookAtThePathItself)
{
    EXPECT_TRUE(KZCMacOSNative::pathDirectoryExists(m_folder.Path("x.mok").c_str()));
}

TEST_F(KZCMacOSNativeFileTest, PathDirectoryExistsIsFalseInAMissingFolder)
{
    EXPECT_FALSE(KZCMacOSNative::pathDirectoryExists(m_folder.Path("none/x.mok").c_str()));
}

TEST_F(KZCMacOSNativeFileTest, PathDirectoryExistsIsFalseBelowAFile)
{
    const std::string strFile = m_folder.Write("file", "");
    EXPECT_FALSE(KZCMacOSNative::pathDirectoryExists((strFile + "/x.mok").c_str()));
}

TEST_F(KZCMacOSNativeFileTest, PathDirectoryExistsDoesntCountATrailingSlash)
{
    EXPECT_TRUE(KZCMacOSNative::pathDirectoryExists(m_folder.Path("none/").c_str()));
}

TEST_F(KZCMacOSNativeFileTest, PathDirectoryExistsIsFalseWithoutAFolderPart)
{
    EXPECT_FALSE(KZCMacOSNative::pathDirectoryExists("x.mok"));
    EXPECT_FALSE(KZCMacOSNative::pathDirectoryExists(""));
}

TEST_F(KZCMacOSNativeFileTest, PathDirectoryExistsInTheRootFolder)
{
    EXPECT_TRUE(KZCMacOSNative::pathDirectoryExists("/x.mok"));
}

TEST_F(KZCMacOSNativeFileTest, GetFileSizeCountsBytes)
{
    EXPECT_EQ(KZCMacOSNative::getFileSize(m_folder.Write("a", "あb").c_str()), 4);
}

TEST_F(KZCMacOSNativeFileTest, GetFileSizeOfAnEmptyFileIsZero)
{
    EXPECT_EQ(KZCMacOSNative::getFileSize(m_folder.Write("a", "").c_str()), 0);
}

TEST_F(KZCMacOSNativeFileTest, GetFileSizeOfAMissingPathIsMinusOne)
{
    EXPECT_EQ(KZCMacOSNative::getFileSize(m_folder.Path("none").c_str()), -1);
    EXPECT_EQ(KZCMacOSNative::getFileSize(""), -1);
}

struct JoinCase
{
    const char* szName;
    const char* szBase;
    const char* szComponent;
    const char* szExpected;
};

class KZCMacOSNativeJoinTest : public testing::TestWithParam<JoinCase>
{};

TEST_P(KZCMacOSNativeJoinTest, AppendFilePathJoinsByOneSlash)
{
    EXPECT_EQ(KZCMacOSNative::appendFilePath(GetParam().szBase, GetParam().szComponent),
              GetParam().szExpected);
}

constexpr JoinCase JOIN_CASES[] = {
    {"Plain", "/tmp", "a.log", "/tmp/a.log"},
    {"TrailingSlashOfTheBase", "/tmp/", "a.log", "/tmp/a.log"},
    {"TrailingSlashesOfTheBase", "/tmp//", "a.log", "/tmp/a.log"},
    {"LeadingSlashOfTheComponent", "/tmp", "/Finance", "/tmp/Finance"},
    {"SlashOnBothSides", "/tmp/", "/Finance", "/tmp/Finance"},
    {"ComponentOfTwoParts", "/tmp", "a/b", "/tmp/a/b"},
    {"EmptyComponent", "/tmp", "", "/tmp"},
    {"EmptyComponentBehindASlash", "/tmp/", "", "/tmp"},
    {"NullComponent", "/tmp/", nullptr, "/tmp"},
    {"NullBase", nullptr, "a.log", ""},
    {"BothNull", nullptr, nullptr, ""},
    {"EmptyBase", "", "a.log", "a.log"},
    {"BothEmpty", "", "", ""},
    {"RootAsBase", "/", "a.log", "/a.log"},
    {"Japanese", "/申請", "国税.log", "/申請/国税.log"},
};

INSTANTIATE_TEST_SUITE_P(Paths,
                         KZCMacOSNativeJoinTest,
                         testing::ValuesIn(JOIN_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

// --- listings ---

TEST_F(KZCMacOSNativeFileTest, GetFilesUnderFolderGivesTheFilesAlone)
{
    m_folder.Write("b.xml", "");
    m_folder.Write("a.xml", "");
    m_folder.Write(".DS_Store", "");
    m_folder.Write("sub/c.xml", "");
    std::vector<std::string> vecFiles;
    EXPECT_TRUE(KZCMacOSNative::getFilesUnderFolder(m_folder.Path().c_str(), vecFiles));
    EXPECT_THAT(vecFiles, ElementsAre(m_folder.Path("a.xml"), m_folder.Path("b.xml")));
}

TEST_F(KZCMacOSNativeFileTest, GetFilesUnderFolderSortsByName)
{
    for (const char* szName : {"c", "a", "国", "B", "a1", ".hidden", "1"})
        m_folder.Write(szName, "");
    std::vector<std::string> vecFiles;
    EXPECT_TRUE(KZCMacOSNative::getFilesUnderFolder(m_folder.Path().c_str(), vecFiles));
    EXPECT_THAT(vecFiles, ElementsAre(m_folder.Path(".hidden"), m_folder.Path("1"),
                                      m_folder.Path("B"), m_folder.Path("a"), m_folder.Path("a1"),
                                      m_folder.Path("c"), m_folder.Path("国")));
}

TEST_F(KZCMacOSNativeFileTest, GetFilesUnderFolderJoinsByOneSlash)
{
    m_folder.Write("a.xml", "");
    std::vector<std::string> vecFiles;
    EXPECT_TRUE(KZCMacOSNative::getFilesUnderFolder((m_folder.Path() + "/").c_str(), vecFiles));
    EXPECT_THAT(vecFiles, ElementsAre(m_folder.Path("a.xml")));
}

TEST_F(KZCMacOSNativeFileTest, GetFilesUnderFolderEmptiesTheListFirst)
{
    std::vector<std::string> vecFiles = {"old"};
    EXPECT_TRUE(KZCMacOSNative::getFilesUnderFolder(m_folder.Path().c_str(), vecFiles));
    EXPECT_THAT(vecFiles, IsEmpty());
}

TEST_F(KZCMacOSNativeFileTest, GetFilesUnderFolderSkipsALinkToAFolder)
{
    m_folder.Write("a.xml", "");
    std::filesystem::create_directory_symlink("/tmp", m_folder.Path("link"));
    std::vector<std::string> vecFiles;
    EXPECT_TRUE(KZCMacOSNative::getFilesUnderFolder(m_folder.Path().c_str(), vecFiles));
    EXPECT_THAT(vecFiles, ElementsAre(m_folder.Path("a.xml")));
}

TEST_F(KZCMacOSNativeFileTest, GetFilesUnderFolderOfAMissingFolderFailsWithAnEmptyList)
{
    std::vector<std::string> vecFiles = {"old"};
    EXPECT_FALSE(KZCMacOSNative::getFilesUnderFolder(m_folder.Path("none").c_str(), vecFiles));
    EXPECT_THAT(vecFiles, IsEmpty());
}

TEST_F(KZCMacOSNativeFileTest, GetFilesUnderFolderOfAFileFails)
{
    std::vector<std::string> vecFiles;
    EXPECT_FALSE(
        KZCMacOSNative::getFilesUnderFolder(m_folder.Write("a.xml", "").c_str(), vecFiles));
}

TEST_F(KZCMacOSNativeFileTest, GetFilesUnderFolderWithoutAPathFails)
{
    std::vector<std::string> vecFiles;
    EXPECT_FALSE(KZCMacOSNative::getFilesUnderFolder("", vecFiles));
}

TEST_F(KZCMacOSNativeFileTest, GetFilesUnderFolderThatBreaksOffFailsAndKeepsWhatItFound)
{
    for (const char* szName : {"a", "b", "c"})
        m_folder.Write(szName, "");
    std::vector<std::string> vecFiles;
    const PlatformFault::Listing listing(4);  // with "." and ".." among them or not
    EXPECT_FALSE(KZCMacOSNative::getFilesUnderFolder(m_folder.Path().c_str(), vecFiles));
    EXPECT_GE(vecFiles.size(), 2U);
    EXPECT_LT(vecFiles.size(), 4U);
}

// --- the user's home ---

TEST_F(KZCMacOSNativeFileTest, HomeDirectoryIsThatOfTheEnvironment)
{
    const Environment home("HOME", "/home/申請");
    EXPECT_STREQ(KZCMacOSNative::homeDirectory(), "/home/申請");
}

TEST_F(KZCMacOSNativeFileTest, HomeDirectoryWithoutTheVariableIsThatOfTheUserDatabase)
{
    const Environment home("HOME", std::nullopt);
    const passwd* pUser = ::getpwuid(::getuid());
    ASSERT_NE(pUser, nullptr);
    EXPECT_STREQ(KZCMacOSNative::homeDirectory(), pUser->pw_dir);
}

// --- plain bytes ---

TEST_F(KZCMacOSNativeFileTest, ReadFileGivesAllBytes)
{
    const std::string strBytes("a\0\xFF\r\n", 5);
    const std::string strPath = m_folder.Write("a", strBytes);
    std::string strRead = "old";
    EXPECT_TRUE(KZCMacOSNative::readFile(strPath.c_str(), strRead));
    EXPECT_EQ(strRead, strBytes);
}

TEST_F(KZCMacOSNativeFileTest, ReadFileOfAnEmptyFileGivesNoBytes)
{
    const std::string strPath = m_folder.Write("a", "");
    std::string strRead = "old";
    EXPECT_TRUE(KZCMacOSNative::readFile(strPath.c_str(), strRead));
    EXPECT_EQ(strRead, "");
}

TEST_F(KZCMacOSNativeFileTest, ReadFileOfAnythingElseFails)
{
    std::string strRead;
    EXPECT_FALSE(KZCMacOSNative::readFile(m_folder.Path("none").c_str(), strRead));
    EXPECT_FALSE(KZCMacOSNative::readFile(m_folder.Path().c_str(), strRead));
    EXPECT_FALSE(KZCMacOSNative::readFile("/dev/null", strRead));
    EXPECT_FALSE(KZCMacOSNative::readFile(nullptr, strRead));
}

TEST_F(KZCMacOSNativeFileTest, AppendToLogMakesAFileForItsOwnerAlone)
{
    const mode_t nMask = ::umask(0);
    const bool bAppended = KZCMacOSNative::appendToLog(m_folder.Path("a.log").c_str(), "first");
    ::umask(nMask);
    EXPECT_TRUE(bAppended);
    EXPECT_EQ(m_folder.Read("a.log"), "first");
    EXPECT_EQ(ModeOf(m_folder.Path("a.log")), 0600U);
}

TEST_F(KZCMacOSNativeFileTest, AppendToLogHasTheBytesOnTheDisk)
{
    const std::size_t nBefore = PlatformFault::Flushes();
    EXPECT_TRUE(KZCMacOSNative::appendToLog(m_folder.Path("a.log").c_str(), "a"));
    EXPECT_TRUE(KZCMacOSNative::appendToLog(m_folder.Path("a.log").c_str(), "b"));
    EXPECT_EQ(PlatformFault::Flushes() - nBefore, 2U);
}

TEST_F(KZCMacOSNativeFileTest, WriteSJISFileHasANewAndAnOldFileOnTheDisk)
{
    const std::size_t nBefore = PlatformFault::Flushes();
    EXPECT_TRUE(KZCMacOSNative::writeSJISFile(m_folder.Path("a.csv").c_str(), "a", true));
    EXPECT_EQ(PlatformFault::Flushes() - nBefore, 1U);
    EXPECT_TRUE(KZCMacOSNative::writeSJISFile(m_folder.Path("a.csv").c_str(), "b", true));
    EXPECT_EQ(PlatformFault::Flushes() - nBefore, 2U);
}

TEST_F(KZCMacOSNativeFileTest, WriteFileTellsWhatFailed)
{
    using Mode = KZCMacOSNative::WriteMode;
    using Result = KZCMacOSNative::WriteResult;
    const auto write = [](const std::string& strPath) {
        return KZCMacOSNative::writeFile(strPath.c_str(), "text", Mode::PLAIN);
    };
    EXPECT_EQ(write(m_folder.Path("a")), Result::WRITTEN);
    EXPECT_EQ(write(m_folder.Path("none/a")), Result::NOT_OPENED);
    EXPECT_EQ(write(m_folder.Path()), Result::NOT_OPENED);
    EXPECT_EQ(write("/dev/full"), Result::NOT_WRITTEN);
}

TEST_F(KZCMacOSNativeFileTest, ReadStreamTellsWhatFailed)
{
    using Result = KZCMacOSNative::ReadResult;
    std::string strBytes = "old";
    EXPECT_EQ(KZCMacOSNative::readStream(m_folder.Write("a", "text").c_str(), strBytes),
              Result::READ);
    EXPECT_EQ(strBytes, "text");
    EXPECT_EQ(KZCMacOSNative::readStream("/dev/null", strBytes), Result::READ);
    EXPECT_EQ(strBytes, "");
    EXPECT_EQ(KZCMacOSNative::readStream(m_folder.Path("none").c_str(), strBytes),
              Result::NOT_OPENED);
    EXPECT_EQ(KZCMacOSNative::readStream(nullptr, strBytes), Result::NOT_OPENED);
    EXPECT_EQ(KZCMacOSNative::readStream(m_folder.Path().c_str(), strBytes), Result::NOT_READ);
    EXPECT_EQ(KZCMacOSNative::readStream("/dev/zero", strBytes), Result::NOT_READ);
}

TEST_F(KZCMacOSNativeFileTest, AppendToLogAppends)
{
    const std::string strPath = m_folder.Write("a.log", "first\n");
    EXPECT_TRUE(KZCMacOSNative::appendToLog(strPath.c_str(), "second\n"));
    EXPECT_EQ(m_folder.Read("a.log"), "first\nsecond\n");
}

TEST_F(KZCMacOSNativeFileTest, AppendToLogInAMissingFolderFails)
{
    EXPECT_FALSE(KZCMacOSNative::appendToLog(m_folder.Path("none/a.log").c_str(), "a"));
}

}  // namespace
