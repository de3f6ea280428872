#include "validator/KZCEkaValidExistpath.h"

#include <grp.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "support/CheckItem.h"
#include "support/ResetState.h"
#include "support/TempFolder.h"

namespace {

class ValidExistpathTest : public ResetState
{
protected:
    const std::unique_ptr<KZCEkaValidItem> m_pFile = MakeItem({"existpath", "file"});
    const std::unique_ptr<KZCEkaValidItem> m_pDir = MakeItem({"existpath", "dir"});
    const TempFolder m_folder;
};

TEST_F(ValidExistpathTest, FilePassesAFileThatHoldsSomething)
{
    EXPECT_EQ(OnValue(*m_pFile, m_folder.Write("a.csv", "x").c_str()), PASSES);
}

TEST_F(ValidExistpathTest, FilePassesAJapaneseName)
{
    EXPECT_EQ(OnValue(*m_pFile, m_folder.Write("源泉.csv", "x").c_str()), PASSES);
}

TEST_F(ValidExistpathTest, FileRefusesAMissingFile)
{
    EXPECT_EQ(OnValue(*m_pFile, m_folder.Path("a.csv").c_str()), Verdict(HE70013E));
}

TEST_F(ValidExistpathTest, FileRefusesAFolderAsMissing)
{
    EXPECT_EQ(OnValue(*m_pFile, m_folder.Path().c_str()), Verdict(HE70013E));
}

TEST_F(ValidExistpathTest, FileRefusesAnEmptyFile)
{
    EXPECT_EQ(OnValue(*m_pFile, m_folder.Write("a.csv", "").c_str()), Verdict(HE70024E));
}

/// Gives up the rights of the superuser, to whom every file is readable. For a child process.
void BecomeAnOrdinaryUser()
{
    constexpr unsigned NOBODY = 65534;
    if (::geteuid() != 0)
        return;
    if (::setgroups(0, nullptr) != 0 || ::setgid(NOBODY) != 0 || ::setuid(NOBODY) != 0)
        std::perror("can't give up the superuser's rights");
}

TEST_F(ValidExistpathTest, FileRefusesAnUnreadableFile)
{
    using std::filesystem::perms;
    std::filesystem::permissions(m_folder.Path(),
                                 perms::owner_all | perms::others_exec | perms::others_read);
    const std::string strPath = m_folder.Write("a.csv", "x");
    std::filesystem::permissions(strPath, perms::none);
    const auto checkAndTell = [&] {
        BecomeAnOrdinaryUser();
        std::fputs(OnValue(*m_pFile, strPath.c_str()).c_str(), stderr);
        std::_Exit(0);
    };
    EXPECT_EXIT(checkAndTell(), testing::ExitedWithCode(0), "^refuses 9999-00003-HE70014E$");
}

TEST_F(ValidExistpathTest, FileRefusesAnUnreadableEmptyFileAsUnreadable)
{
    using std::filesystem::perms;
    std::filesystem::permissions(m_folder.Path(),
                                 perms::owner_all | perms::others_exec | perms::others_read);
    const std::string strPath = m_folder.Write("a.csv", "");
    std::filesystem::permissions(strPath, perms::none);
    const auto checkAndTell = [&] {
        BecomeAnOrdinaryUser();
        std::fputs(OnValue(*m_pFile, strPath.c_str()).c_str(), stderr);
        std::_Exit(0);
    };
    EXPECT_EXIT(checkAndTell(), testing::ExitedWithCode(0), "^refuses 9999-00003-HE70014E$");
}

TEST_F(ValidExistpathTest, DirPassesAPathWhoseFolderExists)
{
    EXPECT_EQ(OnValue(*m_pDir, m_folder.Path("x.mok").c_str()), PASSES);
}

TEST_F(ValidExistpathTest, DirDoesNotLookAtTheFileItself)
{
    EXPECT_EQ(OnValue(*m_pDir, m_folder.Write("x.mok", "").c_str()), PASSES);
}

// Not the catalogue's message for a missing folder.
TEST_F(ValidExistpathTest, DirRefusesAPathWhoseFolderIsMissingWithCode10)
{
    EXPECT_EQ(OnValue(*m_pDir, m_folder.Path("missing/x.mok").c_str()), Verdict(HE70010E));
}

TEST_F(ValidExistpathTest, DirRefusesAPathWhoseFolderIsAFile)
{
    const std::string strFile = m_folder.Write("a.csv", "x");
    EXPECT_EQ(OnValue(*m_pDir, (strFile + "/x.mok").c_str()), Verdict(HE70010E));
}

TEST_F(ValidExistpathTest, DirRefusesAPathWithoutAFolder)
{
    EXPECT_EQ(OnValue(*m_pDir, "x.mok"), Verdict(HE70010E));
}

TEST_F(ValidExistpathTest, DirTakesAPathWithATrailingSeparatorByItsParent)
{
    EXPECT_EQ(OnValue(*m_pDir, m_folder.Path("missing/").c_str()), PASSES);
}

TEST_F(ValidExistpathTest, EveryKindRefusesAnEmptyPathAndNullWithCode1)
{
    for (const char* szKind : {"file", "dir", "unknown", ""}) {
        const auto pItem = MakeItem({"existpath", szKind});
        EXPECT_EQ(OnValue(*pItem, ""), Verdict(HE70001E)) << szKind;
        EXPECT_EQ(OnValue(*pItem, nullptr), Verdict(HE70001E)) << szKind;
    }
}

TEST_F(ValidExistpathTest, AnUnknownKindRaises)
{
    const std::string strFile = m_folder.Write("a.csv", "x");
    for (const char* szKind : {"", "File", "DIR", "folder", "file "}) {
        const auto pItem = MakeItem({"existpath", szKind});
        EXPECT_EQ(OnValue(*pItem, strFile.c_str()), RAISES) << szKind;
    }
}

}  // namespace
