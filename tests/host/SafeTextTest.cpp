#include "SafeText.h"

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

}  // namespace
}  // namespace host
