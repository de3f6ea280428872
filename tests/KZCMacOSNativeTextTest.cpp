// Text services: encodings, characters, trimming, numbers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <set>

#include "KZCMacOSNative.h"
#include "support/ShiftJisText.h"
#include "text/ShiftJis.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// --- conversions ---

TEST(KZCMacOSNativeTextTest, ConvertUTF8FromShiftJISGivesTheSameText)
{
    EXPECT_EQ(KZCMacOSNative::convertUTF8fromShiftJIS(ToShiftJis("aあｱ漢").c_str()), "aあｱ漢");
}

TEST(KZCMacOSNativeTextTest, ConvertUTF8FromShiftJISOfInvalidBytesIsEmpty)
{
    EXPECT_EQ(KZCMacOSNative::convertUTF8fromShiftJIS("abc\x82"), "");
}

TEST(KZCMacOSNativeTextTest, ConvertUTF8FromShiftJISOfNullIsEmpty)
{
    EXPECT_EQ(KZCMacOSNative::convertUTF8fromShiftJIS(nullptr), "");
}

TEST(KZCMacOSNativeTextTest, ConvertUTF16FromShiftJISGivesUnitsWithoutAByteOrderMark)
{
    EXPECT_EQ(KZCMacOSNative::convertUTF16fromShiftJIS(ToShiftJis("aあｱ漢").c_str()), u"aあｱ漢");
}

TEST(KZCMacOSNativeTextTest, ConvertUTF16FromShiftJISFollowsTheMicrosoftTable)
{
    EXPECT_EQ(KZCMacOSNative::convertUTF16fromShiftJIS("\x81\x60\x81\x61\x81\x7C\x81\x5F"),
              u"\uFF5E\u2225\uFF0D\uFF3C");
}

TEST(KZCMacOSNativeTextTest, ConvertUTF16FromShiftJISOfInvalidBytesIsEmpty)
{
    EXPECT_EQ(KZCMacOSNative::convertUTF16fromShiftJIS("abc\x82"), u"");
}

TEST(KZCMacOSNativeTextTest, ConvertUTF16FromShiftJISOfNullIsEmpty)
{
    EXPECT_EQ(KZCMacOSNative::convertUTF16fromShiftJIS(nullptr), u"");
}

TEST(KZCMacOSNativeTextTest, ConversionsDontDependOnTheLocale)
{
    const std::string strBefore = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");
    const std::string strPlain = KZCMacOSNative::convertUTF8fromShiftJIS("\x82\xA0");
    std::setlocale(LC_ALL, "C.UTF-8");
    const std::string strUtf8 = KZCMacOSNative::convertUTF8fromShiftJIS("\x82\xA0");
    std::setlocale(LC_ALL, strBefore.c_str());
    EXPECT_EQ(strPlain, "あ");
    EXPECT_EQ(strUtf8, "あ");
}

// --- bytes of a character ---

struct LengthCase
{
    const char* szName;
    std::string_view strText;
    bool bUtf8;
    std::vector<unsigned char> vecExpected;
};

class KZCMacOSNativeLengthTest : public testing::TestWithParam<LengthCase>
{};

TEST_P(KZCMacOSNativeLengthTest, GetStringLengthsGivesTheBytesOfEveryCharacter)
{
    const std::string strText(GetParam().strText);
    EXPECT_EQ(KZCMacOSNative::getStringLengths(strText.c_str(), GetParam().bUtf8),
              GetParam().vecExpected);
}

TEST_P(KZCMacOSNativeLengthTest, GetStringLengthGivesTheBytesOfOneCharacterAndZeroBehindTheEnd)
{
    const std::string strText(GetParam().strText);
    for (std::size_t nIndex = 0; nIndex < GetParam().vecExpected.size(); ++nIndex)
        EXPECT_EQ(KZCMacOSNative::getStringLength(strText.c_str(), nIndex, GetParam().bUtf8),
                  GetParam().vecExpected[nIndex])
            << nIndex;
    const std::size_t nEnd = GetParam().vecExpected.size();
    EXPECT_EQ(KZCMacOSNative::getStringLength(strText.c_str(), nEnd, GetParam().bUtf8), 0U);
    EXPECT_EQ(KZCMacOSNative::getStringLength(strText.c_str(), nEnd + 100, GetParam().bUtf8), 0U);
}

const LengthCase LENGTH_CASES[] = {
    {"EmptyUtf8", "", true, {}},
    {"EmptyShiftJis", "", false, {}},
    {"LetterAndKanaUtf8", "aあ", true, {1, 3}},
    {"LetterAndKanaShiftJis", "a\x82\xA0", false, {1, 2}},
    {"HalfWidthKatakanaUtf8", "ｱ", true, {3}},
    {"HalfWidthKatakanaShiftJis", "\xB1", false, {1}},
    {"AccentUtf8", "é", true, {2}},
    {"PrivateUseShiftJis", "\xF0\x40", false, {2}},
    {"BackslashAsTrailByte", "\x83\x5C\\", false, {2, 1}},
    {"InvalidUtf8", "a\xE3\x81", true, {}},
    {"InvalidShiftJis", "a\x82", false, {}},
    {"ShiftJisTakenAsUtf8", "\x82\xA0", true, {}},
    // Each half of a character outside the basic plane counts, but has no bytes of its own.
    {"OutsideTheBasicPlane", "a𠮷b", true, {1, 0, 0, 1}},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCMacOSNativeLengthTest,
                         testing::ValuesIn(LENGTH_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST(KZCMacOSNativeTextTest, GetStringLengthsOfALongTextTakesOnePass)
{
    std::string strText;
    for (int nAt = 0; nAt < 300000; ++nAt)
        strText += "あ";
    EXPECT_TRUE(KZCMacOSNative::getStringLengths(strText.c_str(), true) ==
                std::vector<unsigned char>(300000, 3));
}

// --- characters ---

struct CountCase
{
    const char* szName;
    const char* szText;
    unsigned long nExpected;
};

class KZCMacOSNativeCountTest : public testing::TestWithParam<CountCase>
{};

TEST_P(KZCMacOSNativeCountTest, GetCharacterLengthCountsUtf16Units)
{
    EXPECT_EQ(KZCMacOSNative::getCharacterLength(GetParam().szText), GetParam().nExpected);
}

constexpr CountCase COUNT_CASES[] = {
    {"Empty", "", 0},
    {"Letters", "abc", 3},
    {"Era", "平成31", 4},
    {"OutsideTheBasicPlaneCountsTwice", "𠮷", 2},
    {"CombiningMarkCounts", "e\xCC\x81", 2},
    {"Invalid", "abc\xE3", 0},
    {"ShiftJis", "\x82\xA0", 0},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCMacOSNativeCountTest,
                         testing::ValuesIn(COUNT_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

struct SubStringCase
{
    const char* szName;
    const char* szText;
    unsigned long nStart;
    unsigned long nLength;
    const char* szExpected;
};

class KZCMacOSNativeSubStringTest : public testing::TestWithParam<SubStringCase>
{};

TEST_P(KZCMacOSNativeSubStringTest, CutsByCharacters)
{
    EXPECT_EQ(KZCMacOSNative::subStringWithCharacterLength(GetParam().szText, GetParam().nStart,
                                                           GetParam().nLength),
              GetParam().szExpected);
}

constexpr SubStringCase SUB_STRING_CASES[] = {
    {"FromTheStart", "平成31/ 5/ 1", 0, 4, "平成31"},
    {"FromTheMiddle", "平成31/ 5/ 1", 5, 2, " 5"},
    {"LengthBeyondTheEnd", "平成31", 2, 5, "31"},
    {"WholeText", "平成31", 0, 4, "平成31"},
    {"LengthZero", "平成31", 2, 0, ""},
    {"LengthZeroFromTheStart", "平成31", 0, 0, ""},
    {"LastCharacter", "平成", 1, 1, "成"},
    {"StartAtTheEndGivesTheWholeText", "平成", 2, 1, "平成"},
    {"StartBehindTheEndGivesTheWholeText", "平成", 9, 1, "平成"},
    {"StartAtTheEndWithLengthZeroGivesTheWholeText", "平成", 2, 0, "平成"},
    {"EmptyText", "", 0, 4, ""},
    {"LargestLength", "平成31", 1, static_cast<unsigned long>(-1), "成31"},
    {"InvalidTextHasNoCharacters", "ab\xE3", 0, 1, "ab\xE3"},
    {"BothHalvesOfAPair", "a𠮷b", 1, 2, "𠮷"},
    // Half a pair has no form in UTF-8, and so has no text with one in it.
    {"FirstHalfOfAPair", "a𠮷b", 0, 2, ""},
    {"SecondHalfOfAPair", "a𠮷b", 2, 2, ""},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCMacOSNativeSubStringTest,
                         testing::ValuesIn(SUB_STRING_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

// --- white space ---

// The characters of general category Z with tab to carriage return and next line.
const std::set<unsigned> WHITE_SPACE = {0x0009, 0x000A, 0x000B, 0x000C, 0x000D, 0x0020, 0x0085,
                                        0x00A0, 0x1680, 0x2000, 0x2001, 0x2002, 0x2003, 0x2004,
                                        0x2005, 0x2006, 0x2007, 0x2008, 0x2009, 0x200A, 0x2028,
                                        0x2029, 0x202F, 0x205F, 0x3000};

TEST(KZCMacOSNativeTextTest, TrimsExactlyTheWhiteSpaceCharactersOfUnicode)
{
    for (unsigned nUnit = 1; nUnit < 0x10000; ++nUnit) {
        if (nUnit >= 0xD800 && nUnit <= 0xDFFF)
            continue;
        std::string strCharacter;
        Utf8::AppendUnit(strCharacter, static_cast<char16_t>(nUnit));
        const std::string strText = strCharacter + "a" + strCharacter;
        EXPECT_EQ(KZCMacOSNative::stringByTrimming(strText, true),
                  WHITE_SPACE.contains(nUnit) ? "a" : strText)
            << std::hex << nUnit;
    }
}

struct TrimCase
{
    const char* szName;
    std::string_view strText;
    bool bUtf8;
    std::string_view strExpected;
};

class KZCMacOSNativeTrimTest : public testing::TestWithParam<TrimCase>
{};

TEST_P(KZCMacOSNativeTrimTest, RemovesWhiteSpaceAtBothEnds)
{
    EXPECT_EQ(KZCMacOSNative::stringByTrimming(std::string(GetParam().strText), GetParam().bUtf8),
              GetParam().strExpected);
}

constexpr TrimCase TRIM_CASES[] = {
    {"Empty", "", true, ""},
    {"NothingToTrim", "abc", true, "abc"},
    {"FullWidthSpaceAndBlank", "　abc ", true, "abc"},
    {"FullWidthSpaceAndBlankInShiftJis",
     "\x81\x40"
     "abc ",
     false, "abc"},
    {"InsideStays", " a 　b ", true, "a 　b"},
    {"OnlyWhiteSpace", " 　\t\r\n", true, ""},
    {"OnlyWhiteSpaceInShiftJis", " \x81\x40\t", false, ""},
    {"LineEnds", "\r\nabc\r\n", true, "abc"},
    {"Japanese", "　国税　太郎　", true, "国税　太郎"},
    {"JapaneseInShiftJis", "\x81\x40\x8D\x91\x81\x40", false, "\x8D\x91"},
    {"TrailByteThatLooksLikeAnAtSign", "\x83\x40 ", false, "\x83\x40"},
    {"InvalidUtf8", " a\xE3 ", true, ""},
    {"InvalidShiftJis", " a\x82", false, ""},
    {"DuplicateCodeComesBackCanonical", " \xED\x40 ", false, "\xFA\x5C"},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCMacOSNativeTrimTest,
                         testing::ValuesIn(TRIM_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

// --- numbers ---

struct IntegerCase
{
    const char* szName;
    const char* szText;
    bool bExpected;
};

class KZCMacOSNativeIntegerTest : public testing::TestWithParam<IntegerCase>
{};

TEST_P(KZCMacOSNativeIntegerTest, IsIntegerStringReadsUtf8)
{
    EXPECT_EQ(KZCMacOSNative::isIntegerString(GetParam().szText, true), GetParam().bExpected);
}

TEST_P(KZCMacOSNativeIntegerTest, IsIntegerStringReadsShiftJis)
{
    EXPECT_EQ(KZCMacOSNative::isIntegerString(ToShiftJis(GetParam().szText).c_str(), false),
              GetParam().bExpected);
}

constexpr IntegerCase INTEGER_CASES[] = {
    {"Empty", "", false},
    {"Digits", "12", true},
    {"OneDigit", "0", true},
    {"LongerThanAnyNumber", "123456789012345678901234567890", true},
    {"Plus", "+12", true},
    {"Minus", "-12", true},
    {"MinusAndFraction", "-1.5", true},
    {"Fraction", "1.5", true},
    {"PointAtTheEnd", "12.", true},
    {"SignAndPointAtTheEnd", "+1.", true},
    {"LonePlus", "+", false},
    {"LoneMinus", "-", false},
    {"LonePoint", ".", false},
    {"PointFirst", ".5", false},
    {"PointBehindTheSign", "+.5", false},
    {"TwoPoints", "1.2.3", false},
    {"TwoPointsInARow", "1..2", false},
    {"SignInside", "1-2", false},
    {"SignAtTheEnd", "1-", false},
    {"TwoSigns", "+-1", false},
    {"SignBehindThePoint", "1.-2", false},
    {"Letter", "1a", false},
    {"LeadingBlank", " 1", false},
    {"TrailingBlank", "1 ", false},
    {"Comma", "1,000", false},
    {"Hexadecimal", "0x1", false},
    {"Exponent", "1e5", false},
    {"FullWidthDigits", "１２", false},
    {"FullWidthDigitBehindDigits", "1２", false},
    {"HalfWidthKatakana", "ｱ", false},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCMacOSNativeIntegerTest,
                         testing::ValuesIn(INTEGER_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST(KZCMacOSNativeTextTest, IsIntegerStringOfInvalidBytesIsFalse)
{
    EXPECT_FALSE(KZCMacOSNative::isIntegerString("1\xE3", true));
    EXPECT_FALSE(KZCMacOSNative::isIntegerString("1\x82", false));
}

}  // namespace
