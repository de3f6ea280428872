#include "Profile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FilerOptions.h"
#include "UsageError.h"
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

    /// The complaint about a profile, or the empty text if there is none.
    std::string Complaint(std::string_view strText)
    {
        try {
            Read(strText);
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
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         ProfileRefusalTest,
                         testing::ValuesIn(REFUSALS),
                         [](const auto& testCase) { return testCase.param.szName; });

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
