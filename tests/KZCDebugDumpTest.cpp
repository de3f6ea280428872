#include "KZCDebugDump.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>

#include "KZCMacOSNative.h"
#include "support/Environment.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"
#include "support/TempFolder.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* SWITCH = "KZLuviaZEKA.DebugOutput";
constexpr const char* LOG_NAME = "_ORB_KZEKAMOK_20190501.log";

/// The home folder is the test's own and it is half past nine on 1 May 2019. The log is off.
class KZCDebugDumpTest : public ResetState
{
protected:
    KZCDebugDumpTest() { SetClock(1, 9, 30, 0); }

    /// A time of May 2019.
    static void SetClock(int nDay, int nHour, int nMinute, int nSecond)
    {
        std::tm time = {};
        time.tm_year = 119;
        time.tm_mon = 4;
        time.tm_mday = nDay;
        time.tm_hour = nHour;
        time.tm_min = nMinute;
        time.tm_sec = nSecond;
        time.tm_isdst = -1;
        Clock::Set(std::mktime(&time));
    }

    /// As a process does that was started with the variable.
    static void SwitchOn(const char* szValue = "1")
    {
        const Environment variable(SWITCH, szValue);
        KZCDebugDump::InitDebugDump();
    }

    std::string Written() const { return m_home.Read(LOG_NAME); }

    static unsigned ModeOf(const std::string& strPath)
    {
        struct stat info = {};
        EXPECT_EQ(::stat(strPath.c_str(), &info), 0);
        return info.st_mode & 0777U;
    }

    TempFolder m_home;

private:
    Environment m_homeVariable{"HOME", m_home.Path()};
    Environment m_noSwitch{SWITCH, std::nullopt};
};

// --- on and off ---

TEST_F(KZCDebugDumpTest, WithoutTheVariableNoFileComesIntoBeing)
{
    KZCDebugDump::InitDebugDump();
    KZCDebugDump::OutputLog("a.cpp", 1, "A::B", "message");
    KZCDebugDump::Log("A::B", "message");
    KZCDebugDump::OutputMessage("message", 0);
    KZCDebugDump::OutputValid(HE70001E, 1, 1, "x", true);
    KZCDebugDump::OutputValid(HE70001E, 1, 1, 5L);
    EXPECT_FALSE(KZCDebugDump::IsOn());
    EXPECT_THAT(m_home.Names(), IsEmpty());
}

TEST_F(KZCDebugDumpTest, IsOffBeforeItIsInitialised)
{
    const Environment variable(SWITCH, "1");
    KZCDebugDump::OutputMessage("message", 0);
    EXPECT_FALSE(KZCDebugDump::IsOn());
    EXPECT_THAT(m_home.Names(), IsEmpty());
}

TEST_F(KZCDebugDumpTest, TheVariableSwitchesItOn)
{
    SwitchOn();
    EXPECT_TRUE(KZCDebugDump::IsOn());
}

TEST_F(KZCDebugDumpTest, AnEmptyVariableSwitchesItOn)
{
    SwitchOn("");
    EXPECT_TRUE(KZCDebugDump::IsOn());
}

TEST_F(KZCDebugDumpTest, TheVariablesValueIsntRead)
{
    SwitchOn("0");
    EXPECT_TRUE(KZCDebugDump::IsOn());
}

TEST_F(KZCDebugDumpTest, StaysOnWhenTheVariableIsGone)
{
    SwitchOn();
    KZCDebugDump::InitDebugDump();
    KZCDebugDump::OutputMessage("message", 0);
    EXPECT_EQ(Written(), "message\n");
}

TEST_F(KZCDebugDumpTest, SwitchingOnAloneMakesNoFile)
{
    SwitchOn();
    EXPECT_THAT(m_home.Names(), IsEmpty());
}

// --- the file ---

TEST_F(KZCDebugDumpTest, TheFileIsNamedByTheDay)
{
    SwitchOn();
    KZCDebugDump::OutputMessage("message", 0);
    EXPECT_THAT(m_home.Names(), ElementsAre("_ORB_KZEKAMOK_20190501.log"));
}

TEST_F(KZCDebugDumpTest, TheFileIsReadableByItsOwnerAlone)
{
    SwitchOn();
    const mode_t nMask = ::umask(0);
    KZCDebugDump::OutputMessage("message", 0);
    ::umask(nMask);
    EXPECT_EQ(ModeOf(m_home.Path(LOG_NAME)), 0600U);
}

TEST_F(KZCDebugDumpTest, AFileOfTheSameDayIsAppendedTo)
{
    m_home.Write(LOG_NAME, "from an earlier process\n");
    SwitchOn();
    KZCDebugDump::OutputMessage("first", 0);
    SwitchOn();
    KZCDebugDump::OutputMessage("second", 0);
    EXPECT_EQ(Written(), "from an earlier process\nfirst\nsecond\n");
}

TEST_F(KZCDebugDumpTest, MidnightDoesntChangeTheFile)
{
    SwitchOn();
    SetClock(2, 0, 0, 1);
    KZCDebugDump::OutputMessage("message", 0);
    EXPECT_THAT(m_home.Names(), ElementsAre("_ORB_KZEKAMOK_20190501.log"));
}

TEST_F(KZCDebugDumpTest, TheNextInitialisationTakesTheNewDaysFile)
{
    SwitchOn();
    SetClock(2, 0, 0, 1);
    SwitchOn();
    KZCDebugDump::OutputMessage("message", 0);
    EXPECT_THAT(m_home.Names(), ElementsAre("_ORB_KZEKAMOK_20190502.log"));
}

TEST_F(KZCDebugDumpTest, AHomeThatDoesntExistDropsTheEntry)
{
    const Environment home("HOME", m_home.Path("none"));
    SwitchOn();
    KZCDebugDump::OutputLog("a.cpp", 1, "A::B", "message");
    EXPECT_FALSE(KZCDebugDump::WriteMessage("text", true));
    EXPECT_THAT(m_home.Names(), IsEmpty());
}

TEST_F(KZCDebugDumpTest, AFolderInPlaceOfTheFileDropsTheEntry)
{
    m_home.MakeFolder(LOG_NAME);
    SwitchOn();
    EXPECT_FALSE(KZCDebugDump::WriteMessage("text", true));
}

// --- what stands under the log's name already ---

TEST_F(KZCDebugDumpTest, ALinkIsNotFollowed)
{
    const std::string strTarget = m_home.Write("target", "old\n");
    std::filesystem::create_symlink(strTarget, m_home.Path(LOG_NAME));
    SwitchOn();
    EXPECT_FALSE(KZCDebugDump::WriteMessage("text", true));
    EXPECT_EQ(m_home.Read("target"), "old\n");
}

TEST_F(KZCDebugDumpTest, ALinkToNothingMakesNoFile)
{
    std::filesystem::create_symlink(m_home.Path("target"), m_home.Path(LOG_NAME));
    SwitchOn();
    EXPECT_FALSE(KZCDebugDump::WriteMessage("text", true));
    EXPECT_FALSE(m_home.Has("target"));
}

TEST_F(KZCDebugDumpTest, AFileWithASecondNameIsNotWritten)
{
    const std::string strTarget = m_home.Write("target", "old\n");
    std::filesystem::create_hard_link(strTarget, m_home.Path(LOG_NAME));
    SwitchOn();
    EXPECT_FALSE(KZCDebugDump::WriteMessage("text", true));
    EXPECT_EQ(m_home.Read("target"), "old\n");
}

TEST_F(KZCDebugDumpTest, APipeThatNobodyReadsDoesntHang)
{
    ASSERT_EQ(::mkfifo(m_home.Path(LOG_NAME).c_str(), 0600), 0);
    SwitchOn();
    EXPECT_FALSE(KZCDebugDump::WriteMessage("text", true));
}

TEST_F(KZCDebugDumpTest, APipeThatSomebodyReadsGetsNothing)
{
    ASSERT_EQ(::mkfifo(m_home.Path(LOG_NAME).c_str(), 0600), 0);
    const int nReader = ::open(m_home.Path(LOG_NAME).c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(nReader, 0);
    SwitchOn();
    EXPECT_FALSE(KZCDebugDump::WriteMessage("text", true));
    char cByte = 0;
    EXPECT_EQ(::read(nReader, &cByte, 1), 0);
    ::close(nReader);
}

TEST_F(KZCDebugDumpTest, AFileOfSomebodyElseIsNotWritten)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can give a file away";
    const std::string strPath = m_home.Write(LOG_NAME, "old\n");
    ASSERT_EQ(::chown(strPath.c_str(), 65534, 65534), 0);
    SwitchOn();
    EXPECT_FALSE(KZCDebugDump::WriteMessage("text", true));
    EXPECT_EQ(Written(), "old\n");
}

TEST_F(KZCDebugDumpTest, AFileThatOthersMayReadIsMadePrivateBeforeItIsWritten)
{
    const std::string strPath = m_home.Write(LOG_NAME, "old\n");
    ASSERT_EQ(::chmod(strPath.c_str(), 0644), 0);
    SwitchOn();
    EXPECT_TRUE(KZCDebugDump::WriteMessage("new\n", true));
    EXPECT_EQ(Written(), "old\nnew\n");
    EXPECT_EQ(ModeOf(strPath), 0600U);
}

// The folder in which the process stands is nobody's home.
TEST_F(KZCDebugDumpTest, WithoutAnyHomeNoFileComesIntoBeing)
{
    constexpr unsigned NOT_IN_THE_DATABASE = 54321;
    if (::geteuid() != 0 || ::getpwuid(NOT_IN_THE_DATABASE) != nullptr)
        GTEST_SKIP() << "only root can become somebody whom the user database doesn't know";
    ASSERT_EQ(::chmod(m_home.Path().c_str(), 0777), 0);
    const pid_t nChild = ::fork();
    if (nChild == 0) {
        ::unsetenv("HOME");
        if (::chdir(m_home.Path().c_str()) != 0 || ::setuid(NOT_IN_THE_DATABASE) != 0)
            ::_exit(2);
        SwitchOn();
        KZCDebugDump::OutputMessage("message", 0);
        ::_exit(KZCDebugDump::WriteMessage("text", true) ? 1 : 0);
    }
    int nStatus = 0;
    ASSERT_EQ(::waitpid(nChild, &nStatus, 0), nChild);
    EXPECT_TRUE(WIFEXITED(nStatus));
    EXPECT_EQ(WEXITSTATUS(nStatus), 0);
    EXPECT_THAT(m_home.Names(), IsEmpty());
}

TEST_F(KZCDebugDumpTest, AnEmptyHomeVariableCountsAsNone)
{
    const Environment home("HOME", "");
    const passwd* pUser = ::getpwuid(::getuid());
    ASSERT_NE(pUser, nullptr);
    EXPECT_STREQ(KZCMacOSNative::homeDirectory(), pUser->pw_dir);
}

// --- what can't be decoded ---

TEST_F(KZCDebugDumpTest, ATextThatMixesEncodingsKeepsWhatCanBeDecoded)
{
    SwitchOn();
    // 82 A0 is a kana of Shift_JIS.
    KZCDebugDump::OutputLog("a.cpp", 1, "A::B", "値=\x82\xA0,国税");
    EXPECT_EQ(Written(),
              "--2019-05-01 09:30:00 A::B--\n値=\uFFFD\uFFFD,国税\n[File:a.cpp Line:1]\n\n");
}

TEST_F(KZCDebugDumpTest, AFirstLineThatIsCutInsideACharacterKeepsTheRest)
{
    SwitchOn();
    // 22 characters and 488 letters stand in front of the one of which a single byte is left.
    KZCDebugDump::OutputLog("a.cpp", 1, (std::string(488, 'f') + "国税").c_str(), "message");
    EXPECT_EQ(Written(), "--2019-05-01 09:30:00 " + std::string(488, 'f') +
                             "\uFFFDmessage\n[File:a.cpp Line:1]\n\n");
}

TEST_F(KZCDebugDumpTest, AShiftJisValueThatBreaksOffKeepsTheRest)
{
    SwitchOn();
    KZCDebugDump::OutputValid(HE70001E, 1, 2, "ab\x82\xA0\x82", false);
    EXPECT_EQ(Written(),
              "Valid Message[HE70001E]  値が入力されていません。\n"
              "record=0001 column=00002 value=abあ\uFFFD\n\n");
}

TEST_F(KZCDebugDumpTest, AShiftJisByteThatIsNoPartOfACharacterDoesntTakeItsNeighbour)
{
    SwitchOn();
    EXPECT_TRUE(
        KZCDebugDump::WriteMessage("a\x82,\x80"
                                   "b",
                                   false));
    EXPECT_EQ(Written(),
              "a\uFFFD,\uFFFD"
              "b");
}

TEST_F(KZCDebugDumpTest, EachUtf8SequenceThatIsNotWellFormedIsReplacedOnce)
{
    SwitchOn();
    // A character without its last byte, a surrogate (each byte), an overlong form (each byte), one
    // beyond U+10FFFF (each byte), a byte that begins nothing, a whole character of four bytes.
    EXPECT_TRUE(
        KZCDebugDump::WriteMessage("\xE3\x81|\xED\xA0\x80|\xC0\xAF|\xF4\x90\x80\x80|\xBF|"
                                   "\xF0\xA0\xAE\xB7|\xF0\xA0\xAE",
                                   true));
    EXPECT_EQ(Written(),
              "\uFFFD|\uFFFD\uFFFD\uFFFD|\uFFFD\uFFFD|\uFFFD\uFFFD\uFFFD\uFFFD|\uFFFD|𠮷|\uFFFD");
}

TEST_F(KZCDebugDumpTest, WriteMessageTellsThatTheFileWasMadeOrOpened)
{
    SwitchOn();
    EXPECT_TRUE(KZCDebugDump::WriteMessage("made", true));
    EXPECT_TRUE(KZCDebugDump::WriteMessage(" opened", true));
    EXPECT_EQ(Written(), "made opened");
}

TEST_F(KZCDebugDumpTest, WriteMessageTurnsShiftJisIntoUtf8)
{
    SwitchOn();
    EXPECT_TRUE(KZCDebugDump::WriteMessage(ToShiftJis("国税ｱ"), false));
    EXPECT_EQ(Written(), "国税ｱ");
}

// --- OutputLog ---

TEST_F(KZCDebugDumpTest, OutputLogWritesTimeMessageAndPlace)
{
    SwitchOn();
    KZCDebugDump::OutputLog("src/KZCDebugDump.cpp", 12, "KZCDebugDump::InitDebugDump",
                            "想定外エラーが発生しました。");
    EXPECT_EQ(Written(),
              "--2019-05-01 09:30:00 KZCDebugDump::InitDebugDump--\n"
              "想定外エラーが発生しました。\n"
              "[File:src/KZCDebugDump.cpp Line:12]\n"
              "\n");
}

TEST_F(KZCDebugDumpTest, OutputLogWithoutAMessageWritesThreeLines)
{
    SwitchOn();
    KZCDebugDump::OutputLog("a.cpp", 12, "A::B", nullptr);
    EXPECT_EQ(Written(), "--2019-05-01 09:30:00 A::B--\n[File:a.cpp Line:12]\n\n");
}

TEST_F(KZCDebugDumpTest, OutputLogWithAnEmptyMessageWritesAnEmptyLineForIt)
{
    SwitchOn();
    KZCDebugDump::OutputLog("a.cpp", 12, "A::B", "");
    EXPECT_EQ(Written(), "--2019-05-01 09:30:00 A::B--\n\n[File:a.cpp Line:12]\n\n");
}

TEST_F(KZCDebugDumpTest, OutputLogWithoutAFileOrAFunctionWritesNothing)
{
    SwitchOn();
    KZCDebugDump::OutputLog(nullptr, 12, "A::B", "message");
    KZCDebugDump::OutputLog("a.cpp", 12, nullptr, "message");
    EXPECT_THAT(m_home.Names(), IsEmpty());
}

TEST_F(KZCDebugDumpTest, OutputLogTakesTheTimeOfEachEntry)
{
    SwitchOn();
    KZCDebugDump::OutputLog("a.cpp", 1, "A::B", nullptr);
    SetClock(1, 23, 59, 58);
    KZCDebugDump::OutputLog("a.cpp", 2, "A::B", nullptr);
    EXPECT_EQ(Written(),
              "--2019-05-01 09:30:00 A::B--\n[File:a.cpp Line:1]\n\n"
              "--2019-05-01 23:59:58 A::B--\n[File:a.cpp Line:2]\n\n");
}

TEST_F(KZCDebugDumpTest, OutputLogDoesntCutTheMessage)
{
    SwitchOn();
    const std::string strMessage(10000, 'm');
    KZCDebugDump::OutputLog("a.cpp", 1, "A::B", strMessage.c_str());
    EXPECT_EQ(Written(),
              "--2019-05-01 09:30:00 A::B--\n" + strMessage + "\n[File:a.cpp Line:1]\n\n");
}

TEST_F(KZCDebugDumpTest, OutputLogCutsTheFirstLineAt511Characters)
{
    SwitchOn();
    KZCDebugDump::OutputLog("a.cpp", 1, std::string(600, 'f').c_str(), "message");
    // 22 characters stand in front of the function.
    EXPECT_EQ(Written(), "--2019-05-01 09:30:00 " + std::string(489, 'f') +
                             "message\n[File:a.cpp Line:1]\n\n");
}

TEST_F(KZCDebugDumpTest, OutputLogCutsThePlaceAt511Characters)
{
    SwitchOn();
    KZCDebugDump::OutputLog(std::string(600, 'f').c_str(), 1, "A::B", nullptr);
    // 6 characters stand in front of the file.
    EXPECT_EQ(Written(), "--2019-05-01 09:30:00 A::B--\n[File:" + std::string(505, 'f') + "\n");
}

TEST_F(KZCDebugDumpTest, LogWritesItsCallersPlace)
{
    SwitchOn();
    const long lLine = __LINE__ + 1;
    KZCDebugDump::Log("A::B", "message");
    EXPECT_EQ(Written(), "--2019-05-01 09:30:00 A::B--\nmessage\n[File:" + std::string(__FILE__) +
                             " Line:" + std::to_string(lLine) + "]\n\n");
}

TEST_F(KZCDebugDumpTest, GetBaseMessage1GivesTheFirstLine)
{
    EXPECT_EQ(KZCDebugDump::GetBaseMessage1("A::B"), "--2019-05-01 09:30:00 A::B--\n");
}

TEST_F(KZCDebugDumpTest, GetBaseMessage2GivesThePlace)
{
    EXPECT_EQ(KZCDebugDump::GetBaseMessage2("a.cpp", -3), "[File:a.cpp Line:-3]\n");
}

// --- OutputMessage ---

TEST_F(KZCDebugDumpTest, OutputMessageWritesTheMessageAlone)
{
    SwitchOn();
    KZCDebugDump::OutputMessage("外部条件チェックアウトです。", 0);
    EXPECT_EQ(Written(), "外部条件チェックアウトです。\n");
}

TEST_F(KZCDebugDumpTest, OutputMessageWritesTabsInFront)
{
    SwitchOn();
    KZCDebugDump::OutputMessage("message", 2);
    EXPECT_EQ(Written(), "\t\tmessage\n");
}

TEST_F(KZCDebugDumpTest, OutputMessageWithANegativeNumberOfTabsWritesNone)
{
    SwitchOn();
    KZCDebugDump::OutputMessage("message", -1);
    EXPECT_EQ(Written(), "message\n");
}

TEST_F(KZCDebugDumpTest, OutputMessageOfNullWritesNothing)
{
    SwitchOn();
    KZCDebugDump::OutputMessage(nullptr, 0);
    EXPECT_THAT(m_home.Names(), IsEmpty());
}

TEST_F(KZCDebugDumpTest, OutputMessageOfTheEmptyTextWritesALineEnd)
{
    SwitchOn();
    KZCDebugDump::OutputMessage("", 1);
    EXPECT_EQ(Written(), "\t\n");
}

// --- OutputValid ---

TEST_F(KZCDebugDumpTest, OutputValidWritesMessagePositionAndValue)
{
    SwitchOn();
    KZCDebugDump::OutputValid(HE70004E, 3, 12, "1a", true);
    EXPECT_EQ(Written(),
              "Valid Message[HE70004E]  半角数字以外の文字が含まれています。\n"
              "record=0003 column=00012 value=1a\n"
              "\n");
}

TEST_F(KZCDebugDumpTest, OutputValidShowsAShiftJisValueReadable)
{
    SwitchOn();
    KZCDebugDump::OutputValid(HE70004E, 3, 12, ToShiftJis("国税ｱ").c_str(), false);
    EXPECT_EQ(Written(),
              "Valid Message[HE70004E]  半角数字以外の文字が含まれています。\n"
              "record=0003 column=00012 value=国税ｱ\n"
              "\n");
}

TEST_F(KZCDebugDumpTest, OutputValidShowsAnArgument)
{
    SwitchOn();
    KZCDebugDump::OutputValid(HE70013E, 9999, 1, "/tmp/a.csv", true);
    EXPECT_EQ(Written(),
              "Valid Message[HE70013E]  ファイルが存在しません。\n"
              "record=9999 column=00001 value=/tmp/a.csv\n"
              "\n");
}

TEST_F(KZCDebugDumpTest, OutputValidOfTheEmptyValue)
{
    SwitchOn();
    KZCDebugDump::OutputValid(HE70001E, 1, 2, "", true);
    EXPECT_EQ(
        Written(),
        "Valid Message[HE70001E]  値が入力されていません。\nrecord=0001 column=00002 value=\n\n");
}

TEST_F(KZCDebugDumpTest, OutputValidWithoutAMessageHasEmptyTexts)
{
    SwitchOn();
    KZCDebugDump::OutputValid(MSG_NONE, 1, 2, "x", true);
    EXPECT_EQ(Written(), "Valid Message[]  \nrecord=0001 column=00002 value=x\n\n");
}

TEST_F(KZCDebugDumpTest, OutputValidDoesntCutTheValue)
{
    SwitchOn();
    const std::string strValue(10000, 'v');
    KZCDebugDump::OutputValid(HE70001E, 12345, 123456, strValue.c_str(), true);
    EXPECT_EQ(Written(),
              "Valid Message[HE70001E]  値が入力されていません。\n"
              "record=12345 column=123456 value=" +
                  strValue + "\n\n");
}

TEST_F(KZCDebugDumpTest, OutputValidCutsRecordColumnAndNumberTo32Bits)
{
    SwitchOn();
    KZCDebugDump::OutputValid(HE70001E, 4294967297, 8589934594, "x", true);
    KZCDebugDump::OutputValid(HE70001E, 2147483648, 1, 4294967303L);
    EXPECT_EQ(Written(),
              "Valid Message[HE70001E]  値が入力されていません。\n"
              "record=0001 column=00002 value=x\n\n"
              "Valid Message[HE70001E]  値が入力されていません。\n"
              "record=-2147483648 column=00001 value=7\n\n");
}

TEST_F(KZCDebugDumpTest, OutputValidShowsANumber)
{
    SwitchOn();
    KZCDebugDump::OutputValid(HE70019E, 0, 0, -7L);
    EXPECT_EQ(Written(),
              "Valid Message[HE70019E]  申請区分に対するCSVのフォーマットが正しくありません。\n"
              "record=0000 column=00000 value=-7\n"
              "\n");
}

}  // namespace
