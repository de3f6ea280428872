#include "KZCLoadResource.h"

#include <gtest/gtest.h>

#include "KZCMacOSNative.h"
#include "support/Bundle.h"
#include "support/Environment.h"
#include "support/TempFolder.h"

namespace {

// What stands beside the code, in its prefix and in an empty variable:
// tests/probe/resource_folder.sh.

constexpr const char* VARIABLE = "KZEKAMOK_BUNDLE";

TEST(KZCLoadResourceTest, TheEnvironmentNamesTheFolder)
{
    const TempFolder folder;
    const Environment variable(VARIABLE, folder.Path());
    EXPECT_EQ(KZCLoadResource::getBundlePath(), folder.Path());
}

TEST(KZCLoadResourceTest, TheFolderOfTheEnvironmentMayHaveAnyName)
{
    const TempFolder folder;
    const Environment variable(VARIABLE, folder.MakeFolder("定義 体"));
    EXPECT_EQ(KZCLoadResource::getBundlePath(), folder.Path("定義 体"));
}

TEST(KZCLoadResourceTest, AFolderOfTheEnvironmentThatDoesntExistMeansNoFolderAtAll)
{
    const TempFolder folder;
    const Environment variable(VARIABLE, folder.Path("none"));
    EXPECT_EQ(KZCLoadResource::getBundlePath(), "");
}

TEST(KZCLoadResourceTest, AFileNamedByTheEnvironmentIsNoFolder)
{
    const TempFolder folder;
    const Environment variable(VARIABLE, folder.Write("KZEkaMok.bundle", ""));
    EXPECT_EQ(KZCLoadResource::getBundlePath(), "");
}

TEST(KZCLoadResourceTest, EveryCallLooksAnew)
{
    const TempFolder folder;
    const Environment variable(VARIABLE, folder.Path("later"));
    EXPECT_EQ(KZCLoadResource::getBundlePath(), "");
    folder.MakeFolder("later");
    EXPECT_EQ(KZCLoadResource::getBundlePath(), folder.Path("later"));
}

TEST(KZCLoadResourceTest, AFileIsFoundByItsName)
{
    const Bundle bundle;
    EXPECT_EQ(KZCLoadResource::getPathName("TaxOffices.xml"), bundle.Path("TaxOffices.xml"));
}

TEST(KZCLoadResourceTest, APathCountsByItsLastComponent)
{
    const Bundle bundle;
    EXPECT_EQ(KZCLoadResource::getPathName("a/b/TaxOffices.xml"), bundle.Path("TaxOffices.xml"));
    EXPECT_EQ(KZCLoadResource::getPathName("/TaxOffices.xml"), bundle.Path("TaxOffices.xml"));
}

TEST(KZCLoadResourceTest, ATrailingSeparatorIsNoComponent)
{
    const Bundle bundle;
    EXPECT_EQ(KZCLoadResource::getPathName("TaxOffices.xml/"), bundle.Path("TaxOffices.xml"));
    EXPECT_EQ(KZCLoadResource::getPathName("a/TaxOffices.xml//"), bundle.Path("TaxOffices.xml"));
    EXPECT_EQ(KZCLoadResource::getPathName("/"), "");
    EXPECT_EQ(KZCLoadResource::getPathName("//"), "");
}

TEST(KZCLoadResourceTest, AFolderIsNoFile)
{
    const Bundle bundle;
    bundle.Write("Finance/PGE2015vld.xml", "");
    EXPECT_EQ(KZCLoadResource::getPathName("Finance"), "");
    EXPECT_EQ(KZCLoadResource::getPathName("Finance/"), "");
}

TEST(KZCLoadResourceTest, AFileWithoutAnExtensionIsFound)
{
    const Bundle bundle;
    const std::string strPath = bundle.Write("README", "");
    EXPECT_EQ(KZCLoadResource::getPathName("README"), strPath);
}

TEST(KZCLoadResourceTest, AFileThatIsNotThereGivesTheEmptyText)
{
    const Bundle bundle;
    EXPECT_EQ(KZCLoadResource::getPathName("None.xml"), "");
}

TEST(KZCLoadResourceTest, AFileOfASubfolderIsNotFound)
{
    const Bundle bundle;
    bundle.Write("Finance/PGE2015vld.xml", "");
    EXPECT_EQ(KZCLoadResource::getPathName("Finance/PGE2015vld.xml"), "");
}

TEST(KZCLoadResourceTest, NoNameGivesTheEmptyText)
{
    const Bundle bundle;
    EXPECT_EQ(KZCLoadResource::getPathName(""), "");
}

TEST(KZCLoadResourceTest, TheParentFolderIsNoFile)
{
    const Bundle bundle;
    EXPECT_EQ(KZCLoadResource::getPathName(".."), "");
}

TEST(KZCLoadResourceTest, WithoutAFolderNoFileIsFound)
{
    const TempFolder folder;
    const Environment variable(VARIABLE, folder.Path("none"));
    EXPECT_EQ(KZCLoadResource::getPathName("TaxOffices.xml"), "");
}

TEST(KZCLoadResourceTest, TheSeamHandsBothThrough)
{
    const Bundle bundle;
    EXPECT_EQ(KZCMacOSNative::getBundlePath(), bundle.Path());
    EXPECT_EQ(KZCMacOSNative::getBundlePathName("a/b/TaxOffices.xml"),
              bundle.Path("TaxOffices.xml"));
}

TEST(KZCLoadResourceTest, TheSeamGivesTheEmptyTextForNoName)
{
    const Bundle bundle;
    EXPECT_EQ(KZCMacOSNative::getBundlePathName(nullptr), "");
}

}  // namespace
