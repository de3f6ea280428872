// CsvWrite: a text of Shift_JIS bytes becomes a file.
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <filesystem>
#include <sstream>
#include <string>

#include "ApiFixture.h"

class CsvWriteTest : public ApiTest
{
protected:
    const std::string m_strTarget = File("written.csv");
};

TEST_F(CsvWriteTest, PassedRequestSetsResultAlone)
{
    EXPECT_EQ(Write(m_strTarget.c_str(), "002,1"), Done());
}

TEST_F(CsvWriteTest, ShiftJisBytesReachTheFileUnchanged)
{
    const std::string strData = ToShiftJis("値,ｶﾅ,～－∥\\~\r\n") + "\n";
    ASSERT_EQ(Write(m_strTarget.c_str(), strData.c_str()), Done());
    EXPECT_EQ(ReadBytes(m_strTarget), strData);
}

TEST_F(CsvWriteTest, DuplicateCodeIsWrittenInItsCanonicalForm)
{
    // The not sign stands three times in code page 932.
    ASSERT_EQ(Write(m_strTarget.c_str(), "\xfa\x54\xee\xf9\x81\xca"), Done());
    EXPECT_EQ(ReadBytes(m_strTarget), "\x81\xca\x81\xca\x81\xca");
}

TEST_F(CsvWriteTest, WrittenFileIsWhatTheCheckReads)
{
    const std::string strData = CsvText({"002,12345,佐藤次郎,50,1"});
    ASSERT_EQ(Write(m_strTarget.c_str(), strData.c_str()), Done());
    EXPECT_EQ(Check(m_strTarget), CheckPassed("PGE5020"));
}

TEST_F(CsvWriteTest, ExistingLongerFileIsReplaced)
{
    WriteBytes(m_strTarget, std::string(1000, 'x'));
    ASSERT_EQ(Write(m_strTarget.c_str(), "short"), Done());
    EXPECT_EQ(ReadBytes(m_strTarget), "short");
}

/// The rights of a file in octal digits.
std::string RightsOf(const std::string& strPath)
{
    struct stat attributes = {};
    if (stat(strPath.c_str(), &attributes) != 0)
        return "none";
    std::ostringstream rights;
    rights << std::oct << (attributes.st_mode & 0777U);
    return rights.str();
}

TEST_F(CsvWriteTest, NewFileHasTheRightsThatTheProcessGivesItsFiles)
{
    const mode_t before = umask(0);
    EXPECT_EQ(Write(m_strTarget.c_str(), "x"), Done());
    EXPECT_EQ(RightsOf(m_strTarget), "666");
    umask(027);
    EXPECT_EQ(Write(File("other.csv").c_str(), "x"), Done());
    EXPECT_EQ(RightsOf(File("other.csv")), "640");
    umask(before);
}

TEST_F(CsvWriteTest, ExistingFileKeepsItsRights)
{
    WriteBytes(m_strTarget, "before");
    ASSERT_EQ(chmod(m_strTarget.c_str(), 0600), 0);
    EXPECT_EQ(Write(m_strTarget.c_str(), "x"), Done());
    EXPECT_EQ(RightsOf(m_strTarget), "600");
}

TEST_F(CsvWriteTest, EmptyTextMakesAnEmptyFile)
{
    ASSERT_EQ(Write(m_strTarget.c_str(), ""), Done());
    EXPECT_TRUE(Exists(m_strTarget));
    EXPECT_EQ(ReadBytes(m_strTarget), "");
}

TEST_F(CsvWriteTest, ExtensionOfThePathDoesNotMatter)
{
    EXPECT_EQ(Write(File("written").c_str(), "x"), Done());
    EXPECT_EQ(ReadBytes(File("written")), "x");
}

TEST_F(CsvWriteTest, PathWithJapaneseIsWritten)
{
    EXPECT_EQ(Write(File("日本 語.csv").c_str(), "x"), Done());
    EXPECT_EQ(ReadBytes(File("日本 語.csv")), "x");
}

TEST_F(CsvWriteTest, TextOfAMebibyteIsWrittenWhole)
{
    const std::string strData(1 << 20, 'a');
    ASSERT_EQ(Write(m_strTarget.c_str(), strData.c_str()), Done());
    EXPECT_EQ(ReadBytes(m_strTarget), strData);
}

TEST_F(CsvWriteTest, Utf8TextThatIsNoShiftJisIsRefusedWithoutAFile)
{
    // The third byte of one hiragana is a lead byte with nothing behind it.
    EXPECT_EQ(Write(m_strTarget.c_str(), "あ"), Failed("0000-00000-HE70028E"));
    EXPECT_FALSE(Exists(m_strTarget));
}

TEST_F(CsvWriteTest, Utf8TextThatHappensToBeShiftJisPassesAsOtherCharacters)
{
    // The bytes of two hiragana are those of three other characters.
    ASSERT_EQ(Write(m_strTarget.c_str(), "あい"), Done());
    EXPECT_EQ(ReadBytes(m_strTarget), ToShiftJis("縺ゅ＞"));
}

TEST_F(CsvWriteTest, RefusedTextLeavesAnExistingFileAlone)
{
    WriteBytes(m_strTarget, "kept");
    EXPECT_EQ(Write(m_strTarget.c_str(), "a\xff"), Failed("0000-00000-HE70028E"));
    EXPECT_EQ(ReadBytes(m_strTarget), "kept");
}

TEST_F(CsvWriteTest, FolderAtThePathIsRefused)
{
    std::filesystem::create_directory(m_strTarget);
    EXPECT_EQ(Write(m_strTarget.c_str(), "x"), Failed("0000-00000-HE70028E"));
}

TEST_F(CsvWriteTest, FullDeviceIsRefused)
{
    if (!Exists("/dev/full"))
        GTEST_SKIP() << "no /dev/full";
    std::filesystem::create_symlink("/dev/full", m_strTarget);
    EXPECT_EQ(Write(m_strTarget.c_str(), "x"), Failed("0000-00000-HE70028E"));
}

TEST_F(CsvWriteTest, PipeWithoutAReaderIsRefusedAndNotWaitedFor)
{
    ASSERT_EQ(mkfifo(m_strTarget.c_str(), 0600), 0);
    EXPECT_EQ(Write(m_strTarget.c_str(), "x"), Failed("0000-00000-HE70028E"));
}

TEST_F(CsvWriteTest, FileThatCouldNotBeFinishedDoesNotStay)
{
    const Outcome outcome = OutcomeInChild([this] {
        const rlimit limit = {100, 100};
        signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
        return Write(m_strTarget.c_str(), std::string(1000, 'a').c_str());
    });
    EXPECT_EQ(outcome, Failed("0000-00000-HE70028E"));
    EXPECT_FALSE(Exists(m_strTarget));
}

TEST_F(CsvWriteTest, MissingFolderIsRefused)
{
    EXPECT_EQ(Write(File("missing/written.csv").c_str(), "x"), Failed("0000-00000-HE70027E"));
}

TEST_F(CsvWriteTest, MissingFolderIsToldBeforeTheTextIsLookedAt)
{
    EXPECT_EQ(Write(File("missing/written.csv").c_str(), "\xff"), Failed("0000-00000-HE70027E"));
}

TEST_F(CsvWriteTest, FileInPlaceOfTheFolderIsRefused)
{
    EXPECT_EQ(Write((m_strCsv + "/written.csv").c_str(), "x"), Failed("0000-00000-HE70027E"));
}

TEST_F(CsvWriteTest, PathWithoutAFolderIsRefused)
{
    EXPECT_EQ(Write("kzekamok-written.csv", "x"), Failed("0000-00000-HE70027E"));
    EXPECT_FALSE(Exists("kzekamok-written.csv"));
}

TEST_F(CsvWriteTest, EmptyPathIsRefused)
{
    EXPECT_EQ(Write("", "x"), Failed("0000-00000-HE70027E"));
}

TEST_F(CsvWriteTest, EmptyPathAndTextAreRefused)
{
    EXPECT_EQ(Write("", ""), Failed("0000-00000-HE70027E"));
}

TEST_F(CsvWriteTest, NullPathIsAFault)
{
    EXPECT_EQ(Write(nullptr, "x"), Failed("0000-00000-HE70018E"));
}

TEST_F(CsvWriteTest, NullTextIsAFaultAndMakesNoFile)
{
    EXPECT_EQ(Write(m_strTarget.c_str(), nullptr), Failed("0000-00000-HE70018E"));
    EXPECT_FALSE(Exists(m_strTarget));
}

TEST_F(CsvWriteTest, NullPathAndTextAreAFault)
{
    EXPECT_EQ(Write(nullptr, nullptr), Failed("0000-00000-HE70018E"));
}

TEST_F(CsvWriteTest, NullTextForAMissingFolderIsAFaultAllTheSame)
{
    EXPECT_EQ(Write(File("missing/written.csv").c_str(), nullptr), Failed("0000-00000-HE70018E"));
}

TEST_F(CsvWriteTest, NullPathWithAnEmptyTextIsAFault)
{
    EXPECT_EQ(Write(nullptr, ""), Failed("0000-00000-HE70018E"));
}

TEST_F(CsvWriteTest, FailureIsNotSeenByTheNextRequest)
{
    ASSERT_EQ(Write("", "x").strResult, "E_FAIL");
    EXPECT_EQ(Write(m_strTarget.c_str(), "x"), Done());
    ASSERT_EQ(Write("", "x"), Failed("0000-00000-HE70027E"));
    EXPECT_EQ(Check(m_strCsv), CheckPassed("PGE5020"));
}

TEST_F(CsvWriteTest, WorksWithoutResources)
{
    UseBundle(File("missing.bundle"));
    EXPECT_EQ(Write(m_strTarget.c_str(), "x"), Done());
}

/// An EL check whose re-reading is refused passes and leaves that error behind.
class CsvWriteLeftoverTest : public CsvWriteTest
{
protected:
    CsvWriteLeftoverTest()
    {
        // The id's UTF-8 bytes are the cell's Shift_JIS bytes: the check finds the form, the
        // re-reading in UTF-8 doesn't.
        const std::string strId = "あい";
        WriteBundle(m_strBundle,
                    R"(<d><report id=")" + strId +
                        R"(" columnNum="2" procId="PGE5020" reportId="GEZ902" reportVR="1"/></d>)",
                    GoodOffices());
        EXPECT_EQ(ElCheck(MakeFile("odd.csv", strId + ",1\n"), 1), ElCheckPassed("PGE5020", "1"));
    }
};

TEST_F(CsvWriteLeftoverTest, EarlierErrorsStandBeforeAFailuresOwn)
{
    EXPECT_EQ(Write("", "x"), Failed("0000-00001-HE70021E,0000-00000-HE70027E"));
}

TEST_F(CsvWriteLeftoverTest, EarlierErrorsAreGoneOnceTold)
{
    ASSERT_EQ(Write("", "x").strResult, "E_FAIL");
    EXPECT_EQ(Write("", "x"), Failed("0000-00000-HE70027E"));
}

TEST_F(CsvWriteLeftoverTest, EarlierErrorsDoNotFailAWriteThatSucceeds)
{
    ASSERT_EQ(Write(m_strTarget.c_str(), "x"), Done());
    EXPECT_EQ(Write("", "x"), Failed("0000-00001-HE70021E,0000-00000-HE70027E"));
}

TEST_F(CsvWriteLeftoverTest, FaultReplacesEarlierErrors)
{
    EXPECT_EQ(Write(nullptr, "x"), Failed("0000-00000-HE70018E"));
}

TEST_F(CsvWriteLeftoverTest, TerminateDropsEarlierErrors)
{
    Terminate();
    EXPECT_EQ(Write("", "x"), Failed("0000-00000-HE70027E"));
}
