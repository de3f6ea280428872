#include "batch/EarlierDocument.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "file/FilePlace.h"
#include "support/TempFolder.h"

namespace host {
namespace {

const std::string DOCUMENT =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="no" ?><DATA xmlns="x"/>)";

class EarlierDocumentTest : public testing::Test
{
protected:
    EarlierDocumentTest()
    {
        m_folder.Write("box/a/b.mok", DOCUMENT);
        m_folder.Write("victim.mok", DOCUMENT);
        EXPECT_EQ(FindFolder(m_folder.Path("box"), Missing::Fails, m_box), 0);
    }
    Removal Remove(const std::string& strName) const
    {
        return RemoveDocument(m_box.Get(), strName, DOCUMENT.size());
    }

    TempFolder m_folder;
    Descriptor m_box;
};

TEST_F(EarlierDocumentTest, DocumentBelowTheFolderGoes)
{
    EXPECT_EQ(SizeBelow(m_box.Get(), "a/b.mok"), DOCUMENT.size());
    EXPECT_EQ(Remove("a/b.mok"), Removal::Done);
    EXPECT_FALSE(m_folder.Has("box/a/b.mok"));
    EXPECT_EQ(SizeBelow(m_box.Get(), "a/b.mok"), std::nullopt);
    EXPECT_EQ(Remove("a/b.mok"), Removal::Gone);
}

TEST_F(EarlierDocumentTest, NothingOutsideOfTheFolderIsTouched)
{
    std::filesystem::create_symlink("..", m_folder.Path("box/link"));
    std::filesystem::create_symlink("../victim.mok", m_folder.Path("box/v.mok"));
    for (const std::string& strName :
         {std::string("../victim.mok"), m_folder.Path("victim.mok"), std::string("link/victim.mok"),
          std::string("v.mok"), std::string("a/../../victim.mok")}) {
        EXPECT_NE(Remove(strName), Removal::Done) << strName;
        EXPECT_EQ(SizeBelow(m_box.Get(), strName), std::nullopt) << strName;
        EXPECT_EQ(m_folder.Read("victim.mok"), DOCUMENT) << strName;
    }
    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.Path("box/v.mok")));
}

TEST_F(EarlierDocumentTest, FileThatIsNoDocumentStays)
{
    m_folder.Write("box/c.mok", std::string(DOCUMENT.size(), 'x'));
    EXPECT_EQ(Remove("c.mok"), Removal::NotOurs);
    ASSERT_EQ(mkfifo(m_folder.Path("box/p.mok").c_str(), 0600), 0);
    EXPECT_EQ(Remove("p.mok"), Removal::NotOurs);
    m_folder.Write("box/longer.mok", DOCUMENT + " ");
    EXPECT_EQ(Remove("longer.mok"), Removal::Gone) << "not the one that was written";
    EXPECT_TRUE(m_folder.Has("box/c.mok") && m_folder.Has("box/p.mok") &&
                m_folder.Has("box/longer.mok"));
}

TEST_F(EarlierDocumentTest, StrangersDocumentStays)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make another user's file";
    ASSERT_EQ(chown(m_folder.Path("box/a/b.mok").c_str(), 65534, 65534), 0);
    EXPECT_EQ(Remove("a/b.mok"), Removal::NotOurs);
    EXPECT_TRUE(m_folder.Has("box/a/b.mok"));
}

}  // namespace
}  // namespace host
