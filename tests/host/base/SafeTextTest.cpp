#include "base/SafeText.h"

#include <gtest/gtest.h>

namespace host {
namespace {

struct SafeCase
{
    const char* szName;
    std::string strText;
    const char* szSafe;
};

class SafeTextTest : public testing::TestWithParam<SafeCase>
{};

TEST_P(SafeTextTest, IsShownSafely)
{
    EXPECT_EQ(MakeSafe(GetParam().strText), GetParam().szSafe);
}

const SafeCase CASES[] = {
    {"Empty", "", ""},
    {"Ascii", "a b~", "a b~"},
    {"Japanese", "氏名", "氏名"},
    {"CharacterBeyondTheBasicPlane", "𠮷", "𠮷"},
    {"HighestCharacter", "\xf4\x8f\xbf\xbf", "\xf4\x8f\xbf\xbf"},
    {"Backslash", "a\\n", "a\\\\n"},
    {"TerminalSequence", "\x1b[31m", "\\u{1b}[31m"},
    {"LineEndsAndTab", "\r\n\t", "\\r\\n\\t"},
    {"Nul", std::string("a\0b", 3), "a\\u{0}b"},
    {"Delete", "\x7f", "\\u{7f}"},
    {"ControlOfTheSecondSet", "\xc2\x9b", "\\u{9b}"},
    {"NoBreakSpaceStays", "\xc2\xa0", "\xc2\xa0"},
    {"RightToLeftOverride", "\xe2\x80\xae", "\\u{202e}"},
    {"MongolianVowelSeparator", "\xe1\xa0\x8e", "\\u{180e}"},
    {"RightToLeftIsolate", "\xe2\x81\xa7", "\\u{2067}"},
    {"LineSeparator", "\xe2\x80\xa8", "\\u{2028}"},
    {"Tag", "\xf3\xa0\x81\x81", "\\u{e0041}"},
    {"ByteOrderMark", "\xef\xbb\xbf", "\\u{feff}"},
    {"LoneContinuation", "\x80", "\\x80"},
    {"ShiftJisBytes", "\x82\xa0", "\\x82\\xa0"},
    {"TruncatedCharacter", "\xe6\xb0", "\\xe6\\xb0"},
    {"OverlongSlash", "\xc0\xaf", "\\xc0\\xaf"},
    {"Surrogate", "\xed\xa0\x80", "\\xed\\xa0\\x80"},
    {"BeyondUnicode", "\xf4\x90\x80\x80", "\\xf4\\x90\\x80\\x80"},
    {"LeadByteOfNoForm", "\xff", "\\xff"},
};

INSTANTIATE_TEST_SUITE_P(Texts, SafeTextTest, testing::ValuesIn(CASES), [](const auto& testCase) {
    return testCase.param.szName;
});

TEST(SafeTextLimitTest, TextOfTheLimitStaysWhole)
{
    EXPECT_EQ(MakeSafeAndShort("氏名", 2), "氏名");
}

TEST(SafeTextLimitTest, LongerTextIsCutAndTellsItsBytes)
{
    EXPECT_EQ(MakeSafeAndShort("氏名欄", 2), "氏名… (9 bytes in all)");
}

struct JsonCase
{
    const char* szName;
    const char* szJson;
    const char* szSafe;
};

class SafeJsonTest : public testing::TestWithParam<JsonCase>
{};

TEST_P(SafeJsonTest, HidesNothing)
{
    EXPECT_EQ(MakeSafeJson(GetParam().szJson), GetParam().szSafe);
}

constexpr JsonCase JSON_CASES[] = {
    {"Plain", "{\n  \"a\": \"氏名 \\n \\\\\"\n}", "{\n  \"a\": \"氏名 \\n \\\\\"\n}"},
    {"Delete", "\"\x7f\"", R"("\u007f")"},
    {"ControlOfTheSecondSet", "\"\xc2\x9b\"", R"("\u009b")"},
    {"RightToLeftOverride", "\"a\xe2\x80\xae\"", R"("a\u202e")"},
    {"TagIsTwoSurrogates", "\"\xf3\xa0\x81\x81\"", R"("\udb40\udc41")"},
    {"CharacterBeyondTheBasicPlaneStays", "\"𠮷\"", "\"𠮷\""},
    {"Replacement", "\"\xef\xbf\xbd\"", "\"\xef\xbf\xbd\""},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         SafeJsonTest,
                         testing::ValuesIn(JSON_CASES),
                         [](const auto& testCase) { return testCase.param.szName; });

struct CellCase
{
    const char* szName;
    const char* szText;
    const char* szCell;
};

class CsvCellTest : public testing::TestWithParam<CellCase>
{};

TEST_P(CsvCellTest, IsNoFormula)
{
    EXPECT_EQ(CsvCell(GetParam().szText), GetParam().szCell);
}

constexpr CellCase CELL_CASES[] = {
    {"Empty", "", "\"\""},
    {"Plain", "氏名", "\"氏名\""},
    {"Quote", "a\"b", "\"a\"\"b\""},
    {"Equals", "=1+1", "\"'=1+1\""},
    {"Plus", "+1", "\"'+1\""},
    {"Minus", "-1", "\"'-1\""},
    {"At", "@SUM(A1)", "\"'@SUM(A1)\""},
    {"Tab", "\t=1", "\"'\t=1\""},
    {"CarriageReturn", "\r=1", "\"'\r=1\""},
    {"FullWidthEquals", "＝1", "\"'＝1\""},
    {"FullWidthPlus", "＋1", "\"'＋1\""},
    {"FullWidthMinus", "－1", "\"'－1\""},
    {"FullWidthAt", "＠A", "\"'＠A\""},
    {"SignBehindTheFront", "a=1", "\"a=1\""},
    {"Number", "12", "\"12\""},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         CsvCellTest,
                         testing::ValuesIn(CELL_CASES),
                         [](const auto& testCase) { return testCase.param.szName; });

}  // namespace
}  // namespace host
