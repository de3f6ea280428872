#include "text/CText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct NumberCase
{
    const char* szName;
    const char* szText;
    long lLong;
    int nInt;
};

class CTextNumberTest : public testing::TestWithParam<NumberCase>
{};

TEST_P(CTextNumberTest, ReadLongReadsAsAtol)
{
    EXPECT_EQ(CText::ReadLong(GetParam().szText), GetParam().lLong);
}

TEST_P(CTextNumberTest, ReadIntKeepsTheLow32Bits)
{
    EXPECT_EQ(CText::ReadInt(GetParam().szText), GetParam().nInt);
}

constexpr NumberCase NUMBER_CASES[] = {
    {"Null", nullptr, 0, 0},
    {"Empty", "", 0, 0},
    {"Letters", "abc", 0, 0},
    {"Digits", "12", 12, 12},
    {"LeadingZerosAreNotOctal", "010", 10, 10},
    {"HexadecimalStopsAtTheLetter", "0x10", 0, 0},
    {"LeadingBlanks", "  12", 12, 12},
    {"LeadingTabAndLineEnds", "\t\r\n12", 12, 12},
    {"Plus", "+5", 5, 5},
    {"Minus", "-5", -5, -5},
    {"BlankBehindTheSign", "+ 5", 0, 0},
    {"TwoSigns", "--5", 0, 0},
    {"TrailingText", "5a", 5, 5},
    {"SecondNumber", "12 34", 12, 12},
    {"Fraction", "1.9", 1, 1},
    {"FullWidthDigit", "５", 0, 0},
    {"LargestInt", "2147483647", 2147483647, INT_MAX},
    {"OneBeyondInt", "2147483648", 2147483648, INT_MIN},
    {"OneBeyond32Bits", "4294967297", 4294967297, 1},
    {"LargestLong", "9223372036854775807", LONG_MAX, -1},
    {"BeyondLongIsClamped", "99999999999999999999", LONG_MAX, -1},
    {"BelowLongIsClamped", "-99999999999999999999", LONG_MIN, 0},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         CTextNumberTest,
                         testing::ValuesIn(NUMBER_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST(CTextTest, OrEmptyTurnsNullIntoTheEmptyText)
{
    EXPECT_STREQ(CText::OrEmpty(nullptr), "");
}

TEST(CTextTest, OrEmptyHandsATextThrough)
{
    const char* szText = "a";
    EXPECT_EQ(CText::OrEmpty(szText), szText);
}

TEST(CTextTest, SplitTokensOfTheEmptyTextAreNone)
{
    EXPECT_THAT(CText::SplitTokens(""), IsEmpty());
}

TEST(CTextTest, SplitTokensOfBlanksAreNone)
{
    EXPECT_THAT(CText::SplitTokens("   "), IsEmpty());
}

TEST(CTextTest, SplitTokensTakesARunOfBlanksAsOneSeparator)
{
    EXPECT_THAT(CText::SplitTokens("  a   bc d "), ElementsAre("a", "bc", "d"));
}

TEST(CTextTest, SplitTokensKeepsTabsAndCommas)
{
    EXPECT_THAT(CText::SplitTokens("a\tb c,d"), ElementsAre("a\tb", "c,d"));
}

TEST(CTextTest, SplitNumbersReadsEachPieceAsAtol)
{
    EXPECT_THAT(CText::SplitNumbers(" 1  2x y -3"), ElementsAre(1, 2, 0, -3));
}

TEST(CTextTest, SplitNumbersOfBlanksAreNone)
{
    EXPECT_THAT(CText::SplitNumbers("  "), IsEmpty());
}

TEST(CTextTest, CutToBufferKeepsATextThatFitsWithItsNul)
{
    EXPECT_EQ(CText::CutToBuffer("abc", 4), "abc");
}

TEST(CTextTest, CutToBufferCutsAtTheSizeLessOne)
{
    EXPECT_EQ(CText::CutToBuffer("abcd", 4), "abc");
}

TEST(CTextTest, CutToBufferCutsByBytesInsideACharacter)
{
    EXPECT_EQ(CText::CutToBuffer("あい", 5), "あ\xE3");
}

TEST(CTextTest, CutToBufferOfOneByteLeavesNothing)
{
    EXPECT_EQ(CText::CutToBuffer("abc", 1), "");
}

struct AppendCase
{
    const char* szName;
    long lNumber;
    int nWidth;
    const char* szExpected;
};

class CTextAppendTest : public testing::TestWithParam<AppendCase>
{};

TEST_P(CTextAppendTest, AppendNumberPadsAsPrintfDoes)
{
    std::string strOut = "x";
    CText::AppendNumber(strOut, GetParam().lNumber, GetParam().nWidth);
    EXPECT_EQ(strOut, std::string("x") + GetParam().szExpected);
}

constexpr AppendCase APPEND_CASES[] = {
    {"Zero", 0, 4, "0000"},
    {"ZeroWithoutWidth", 0, 0, "0"},
    {"Padded", 7, 5, "00007"},
    {"AsWideAsTheWidth", 12345, 5, "12345"},
    {"WiderThanTheWidth", 12345, 4, "12345"},
    {"SignCountsIntoTheWidth", -1, 4, "-001"},
    {"NegativeWiderThanTheWidth", -12345, 4, "-12345"},
    {"LargestLong", LONG_MAX, 2, "9223372036854775807"},
    {"SmallestLong", LONG_MIN, 2, "-9223372036854775808"},
};

INSTANTIATE_TEST_SUITE_P(Numbers,
                         CTextAppendTest,
                         testing::ValuesIn(APPEND_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

}  // namespace
