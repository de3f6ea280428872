#include "request/Profile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>

#include "base/Language.h"
#include "base/UsageError.h"
#include "command/FilerOptions.h"
#include "support/ShiftJisText.h"
#include "support/TempFolder.h"

namespace host {
namespace {

using testing::AllOf;
using testing::HasSubstr;

class ProfileTest : public testing::Test
{
protected:
    GivenFilerFields Read(std::string_view strText)
    {
        return ReadProfile(m_folder.Write("filer.toml", strText));
    }

    ~ProfileTest() override { SetLanguage(Language::English); }

    /// The complaint about a profile, or the empty text if there is none.
    std::string Complaint(std::string_view strText)
    {
        return ComplaintOf([&] { Read(strText); });
    }

    static std::string ComplaintOf(const std::function<void()>& read)
    {
        try {
            read();
        } catch (const UsageError& error) {
            return error.what();
        }
        return {};
    }

    TempFolder m_folder;
};

TEST_F(ProfileTest, EmptyFileGivesNothing)
{
    EXPECT_EQ(Read(""), GivenFilerFields());
}

TEST_F(ProfileTest, EveryKeyReachesItsField)
{
    const auto fields = Read(R"(zeimusho_cd = "1"
nozeisha_id = "2"
kojin_bango = "3"
hojin_bango = "4"
nozeisha_nm = "5"
nozeisha_adr = "6"
daihyo_nm = "7"
dairi_id = "8"
dairi_nm = "9"
dairi_adr = "10"
tetsuzuki = "11"
soft_name = "12"
teishutsu_era = "13"
teishutsu_year = "14"
teishutsu_month = "15"
teishutsu_day = "16"
nozeisha_zip1 = "17"
nozeisha_zip2 = "18"
)");
    EXPECT_EQ(fields, (GivenFilerFields{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11",
                                        "12", "13", "14", "15", "16", "17", "18"}));
}

struct ValueCase
{
    const char* szName;
    std::string strText;  ///< of a profile that gives nozeisha_nm
    const char* szValue;
};

class ProfileValueTest : public ProfileTest, public testing::WithParamInterface<ValueCase>
{};

TEST_P(ProfileValueTest, IsReadAsWritten)
{
    EXPECT_EQ(Read(GetParam().strText)[NOZEISHA_NM], GetParam().szValue);
}

const ValueCase VALUES[] = {
    {"Japanese", "nozeisha_nm = \"株式会社見本\"", "株式会社見本"},
    {"Blank", "nozeisha_nm = \"A B\"", "A B"},
    {"Comma", "nozeisha_nm = \"A, B\"", "A, B"},
    {"NumberSign", "nozeisha_nm = \"A #5 B\"", "A #5 B"},
    {"EqualsSign", "nozeisha_nm = \"a=b\"", "a=b"},
    {"CommentBehind", "nozeisha_nm = \"A\" # it's a comment, really", "A"},
    {"CommentDirectlyBehind", "nozeisha_nm = \"A\"#x", "A"},
    {"CommentLine", "# x = \"y\nnozeisha_nm = \"A\"", "A"},
    {"SingleQuotes", "nozeisha_nm = 'A \"B\" \\C'", "A \"B\" \\C"},
    {"Apostrophe", "nozeisha_nm = \"O'Hara\"", "O'Hara"},
    {"EmptyText", "nozeisha_nm = \"\"", ""},
    {"CarriageReturns", "nozeisha_nm = \"A\"\r\n\r\n", "A"},
    {"ByteOrderMark", "\xef\xbb\xbfnozeisha_nm = \"A\"", "A"},
    {"WithoutBlanks", "nozeisha_nm=\"A\"", "A"},
    {"NumberWithoutQuotes", "nozeisha_nm = 90101", "90101"},
    {"LastLineOfManyWithDots", std::string(1000, '.').insert(0, "#") + "\nnozeisha_nm = \"A.B\"",
     "A.B"},
    {"CommentWithoutEndOfDots", "nozeisha_nm = \"A\"\n#" + std::string(60000, '.'), "A"},
};

INSTANTIATE_TEST_SUITE_P(Values,
                         ProfileValueTest,
                         testing::ValuesIn(VALUES),
                         [](const auto& testCase) { return testCase.param.szName; });

TEST_F(ProfileTest, KeyThatIsAbsentGivesNothing)
{
    EXPECT_EQ(Read("nozeisha_nm = \"A\"")[DAIRI_NM], std::nullopt);
}

TEST_F(ProfileTest, UnknownKeyIsNamedTogetherWithTheFile)
{
    EXPECT_THAT(Complaint("nozeisha_name = \"A\""),
                AllOf(HasSubstr("nozeisha_name"), HasSubstr("filer.toml"),
                      HasSubstr("zeimusho_cd, nozeisha_id")));
}

struct RefusalCase
{
    const char* szName;
    std::string strText;
    const char* szReason;
};

class ProfileRefusalTest : public ProfileTest, public testing::WithParamInterface<RefusalCase>
{};

TEST_P(ProfileRefusalTest, IsRefusedWithItsReason)
{
    EXPECT_THAT(Complaint(GetParam().strText), HasSubstr(GetParam().szReason));
}

const RefusalCase REFUSALS[] = {
    {"KeyInAnotherCase", "Nozeisha_Nm = \"A\"", "unknown key \"Nozeisha_Nm\""},
    {"DottedKey", "a.nozeisha_nm = \"A\"", "unknown key \"a.nozeisha_nm\""},
    {"Section", "[filer]\nnozeisha_nm = \"A\"", "[section]"},
    {"RepeatedKey", "nozeisha_nm = \"A\"\nnozeisha_nm = \"B\"", "more than one value"},
    {"RepeatedKeyFurtherDown", "nozeisha_nm = \"A\"\ndairi_nm = \"B\"\nnozeisha_nm = \"C\"",
     "more than one value"},
    {"ListOfValues", "nozeisha_nm = [\"A\", \"B\"]", "more than one value"},
    {"BlankWithoutQuotes", "nozeisha_nm = A B", "more than one value"},
    {"NoAssignment", "nozeisha_nm", "line 1: this is no assignment"},
    {"KeyOfOneLetterWithoutValue", "x=", "line 1: this is no assignment"},
    {"OpenQuote", "\nnozeisha_nm = \"A", "line 2: a quote isn't closed"},
    {"Escape", "nozeisha_nm = \"A\\tB\"", "line 1: escapes aren't read"},
    {"ShiftJisText", "nozeisha_nm = \"" + ToShiftJis("見本") + "\"", "isn't UTF-8"},
    {"NulByte", std::string("dairi_nm = \"A\0B\"", 16), "isn't UTF-8"},
    {"UnknownKeyOfALaterLine", "nozeisha_nm = \"A\"\n\nx = \"B\"", "line 3: unknown key \"x\""},
    {"LaterSection", "nozeisha_nm = \"A\"\n[x]", "line 2: there is a [section]"},
    {"ListOfSections", "[[x]]\nnozeisha_nm = \"A\"", "line 1: there is a [section]"},
    {"SectionWithoutEnd", "[x\n", "line 1: there is a [section]"},
    {"DottedKnownKey", "dairi_nm.a.b = \"A\"", "line 1: unknown key \"dairi_nm.a.b\""},
    {"TableInBraces", "dairi_nm = {a = \"A\"}",
     "line 1: the value of key \"dairi_nm\" is no text. Put it in quotes."},
    {"Word", "dairi_nm = A", "line 1: the value of key \"dairi_nm\" is no text"},
    {"LeadingZeros", "\nzeimusho_cd = 01101",
     "line 2: the value of key \"zeimusho_cd\" is no text"},
    {"HexadecimalNumber", "zeimusho_cd = 0x10", "the value of key \"zeimusho_cd\" is no text"},
    {"Fraction", "zeimusho_cd = 1.5", "the value of key \"zeimusho_cd\" is no text"},
    {"Truth", "zeimusho_cd = true", "the value of key \"zeimusho_cd\" is no text"},
    {"Day", "teishutsu_day = 2026-01-31", "the value of key \"teishutsu_day\" is no text"},
    {"SeveralLines", "\n\ndairi_nm = \"\"\"\nA\nB\"\"\"",
     "line 3: the value of key \"dairi_nm\" goes over several lines"},
    {"EscapedQuote", R"(dairi_nm = "A\"B")", "line 1: escapes aren't read"},
    {"UnknownEscape", R"(dairi_nm = "C:\kz")", "line 1: escapes aren't read"},
    {"OpenQuoteBeforeOtherLines", "nozeisha_nm = \"A\ndairi_nm = \"B\"\n",
     "line 1: a quote isn't closed"},
    {"TextBehindTheValue", "dairi_nm = \"A\" B", "line 1: this can't be read as TOML"},
    {"KeyWithoutValue", "dairi_nm = # nothing", "line 1: this is no assignment"},
    {"ValueWithoutKey", "= \"A\"", "line 1: this is no assignment"},
    {"KeyOfManyDots", "a" + std::string(10000, '.') + "b = \"A\"",
     "more than 1800 dots and brackets"},
    {"KeyOfManyParts",
     [] {
         std::string strKey = "a";
         for (int n = 0; n < 10000; ++n)
             strKey += ".a";
         return strKey + " = \"A\"";
     }(),
     "more than 1800 dots and brackets"},
    {"DeepList", "dairi_nm = " + std::string(30000, '['), "more than 1800 dots and brackets"},
    {"DeepTables",
     [] {
         std::string strTables = "dairi_nm = ";
         for (int n = 0; n < 10000; ++n)
             strTables += "{a=";
         return strTables;
     }(),
     "more than 1800 dots and brackets"},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         ProfileRefusalTest,
                         testing::ValuesIn(REFUSALS),
                         [](const auto& testCase) { return testCase.param.szName; });

TEST_F(ProfileTest, LongKeyIsCut)
{
    EXPECT_THAT(Complaint(std::string(1000, 'k') + " = \"A\""),
                HasSubstr("line 1: unknown key \"" + std::string(60, 'k') +
                          "… (1000 bytes in all)\". Known keys: zeimusho_cd, "));
}

TEST_F(ProfileTest, DeepestThatPassesIsTakenApart)
{
    std::string strKey = "a";
    for (int n = 0; n < 1800; ++n)
        strKey += ".a";
    EXPECT_THAT(Complaint(strKey + " = \"A\""), HasSubstr("line 1: unknown key \"a.a.a.a."));
}

TEST_F(ProfileTest, LongestFileIsReadAndOneByteMoreRefused)
{
    std::string strText = "nozeisha_nm = \"A\"\n#";
    strText.resize(65536, ' ');
    EXPECT_EQ(Read(strText)[NOZEISHA_NM], "A");
    EXPECT_THAT(Complaint(strText + " "), HasSubstr("the file has more than 65536 bytes"));
}

TEST_F(ProfileTest, ComplaintIsJapaneseForJapanese)
{
    SetLanguage(Language::Japanese);
    EXPECT_EQ(
        Complaint("\nzeimusho_cd = 01"),
        "プロファイル " + m_folder.Path("filer.toml") +
            "：2行目：キー \"zeimusho_cd\" の値が文字列ではありません。引用符で囲んでください。");
}

/// A profile that lies beside a CSV file.
class ProfileBesideTest : public ProfileTest
{
protected:
    ProfileBesideTest() : m_strPath(m_folder.Write("a.toml", "nozeisha_nm = \"A\""))
    {
        SetMode(0644);
    }

    void SetMode(mode_t nMode) { ASSERT_EQ(::chmod(m_strPath.c_str(), nMode), 0); }

    std::string Complaint()
    {
        return ComplaintOf([this] { ReadProfileBeside(m_strPath); });
    }

    std::string m_strPath;
};

TEST_F(ProfileBesideTest, FileOfTheUsersOwnIsRead)
{
    EXPECT_EQ(ReadProfileBeside(m_strPath)[NOZEISHA_NM], "A");
}

TEST_F(ProfileBesideTest, NoFileGivesNothing)
{
    EXPECT_EQ(ReadProfileBeside(m_folder.Path("b.toml")), GivenFilerFields());
}

TEST_F(ProfileBesideTest, LinkIsRefusedUnread)
{
    const std::string strLink = m_folder.Path("b.toml");
    std::filesystem::create_symlink(m_strPath, strLink);
    EXPECT_EQ(
        ComplaintOf([&] { ReadProfileBeside(strLink); }),
        "profile " + strLink +
            ": the file is a link. Beside a CSV file put a copy of the profile, not a link to "
            "it.");
}

TEST_F(ProfileBesideTest, LinkToNothingIsRefusedToo)
{
    const std::string strLink = m_folder.Path("b.toml");
    std::filesystem::create_symlink("absent", strLink);
    EXPECT_THAT(ComplaintOf([&] { ReadProfileBeside(strLink); }), HasSubstr("the file is a link"));
}

TEST_F(ProfileBesideTest, SecondNameOfAFileIsRefused)
{
    std::filesystem::create_hard_link(m_strPath, m_folder.Path("b.toml"));
    EXPECT_THAT(Complaint(), HasSubstr("the file is a link"));
}

TEST_F(ProfileBesideTest, FileThatTheGroupCanWriteIsRefused)
{
    SetMode(0664);
    EXPECT_EQ(Complaint(), "profile " + m_strPath +
                               ": others than you can write the file. Look at it, and take the "
                               "right away: chmod go-w.");
}

TEST_F(ProfileBesideTest, FileThatAllCanWriteIsRefusedInJapanese)
{
    SetMode(0646);
    SetLanguage(Language::Japanese);
    EXPECT_EQ(Complaint(), "プロファイル " + m_strPath +
                               "：ほかの利用者も書き込めるファイルです。内容を確認し、chmod go-w "
                               "で書き込みの許可を外してください。");
}

TEST_F(ProfileBesideTest, FileOfAnotherUserIsRefused)
{
    if (::chown(m_strPath.c_str(), 65534, static_cast<gid_t>(-1)) != 0)
        GTEST_SKIP() << "only root can give a file away";
    EXPECT_THAT(Complaint(), HasSubstr("the file belongs to another user"));
}

TEST_F(ProfileBesideTest, PipeIsRefusedAtOnce)
{
    const std::string strPipe = m_folder.Path("b.toml");
    ASSERT_EQ(::mkfifo(strPipe.c_str(), 0600), 0);
    EXPECT_THAT(ComplaintOf([&] { ReadProfileBeside(strPipe); }),
                HasSubstr("this is no regular file"));
}

TEST_F(ProfileBesideTest, FolderIsRefused)
{
    std::filesystem::create_directory(m_folder.Path("b.toml"));
    EXPECT_THAT(ComplaintOf([this] { ReadProfileBeside(m_folder.Path("b.toml")); }),
                HasSubstr("this is no regular file"));
}

TEST_F(ProfileTest, MissingFileIsNamed)
{
    try {
        ReadProfile(m_folder.Path("absent.toml"));
        FAIL() << "no complaint";
    } catch (const UsageError& error) {
        EXPECT_THAT(error.what(), HasSubstr("absent.toml"));
    }
}

TEST(MergeFieldsTest, OptionWinsOverTheProfile)
{
    GivenFilerFields options;
    GivenFilerFields profile;
    options[NOZEISHA_NM] = "option";
    profile[NOZEISHA_NM] = "profile";
    EXPECT_EQ(MergeFields(options, profile)[NOZEISHA_NM], "option");
}

TEST(MergeFieldsTest, EmptyOptionEmptiesTheProfilesField)
{
    GivenFilerFields options;
    GivenFilerFields profile;
    options[DAIRI_NM] = "";
    profile[DAIRI_NM] = "profile";
    EXPECT_EQ(MergeFields(options, profile)[DAIRI_NM], "");
}

TEST(MergeFieldsTest, ProfileServesWhereNoOptionIsGiven)
{
    GivenFilerFields profile;
    profile[DAIRI_NM] = "profile";
    EXPECT_EQ(MergeFields({}, profile)[DAIRI_NM], "profile");
}

}  // namespace
}  // namespace host
