#include "validator/KZCEkaValidMultibyte.h"

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

class ValidMultibyteShiftJisTest : public ResetState, public testing::WithParamInterface<ValueCase>
{};

constexpr ValueCase SHIFT_JIS_CASES[] = {
    {"Null", nullptr, MSG_NONE},
    {"Empty", "", MSG_NONE},
    {"FullWidth", "\x82\xa0\x88\x9f", MSG_NONE},
    {"FullWidthBlank", "\x81\x40", MSG_NONE},
    {"PrivateUse", "\xf0\x40", MSG_NONE},
    {"BeginsWithALetterOddLength", "a\x82\xa0", HE99999E},
    {"BeginsWithLettersEvenLength", "ab\x82\xa0", HE99999E},
    {"LettersBehindFullWidthEvenLength",
     "\x82\xa0"
     "ab",
     HE99999E},
    {"LetterBehindFullWidthOddLength",
     "\x82\xa0"
     "a",
     HE99999E},
    {"HalfWidthKatakana", "\xb1\xb2", HE99999E},
    {"LoneLeadByte", "\x82\xa0\x82", HE99999E},
    {"InvalidPair", "\x81\xad", HE99999E},
};

TEST_P(ValidMultibyteShiftJisTest, JudgesTheValueDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const auto pItem = MakeItem({"multibyte"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values,
                         ValidMultibyteShiftJisTest,
                         testing::ValuesIn(SHIFT_JIS_CASES),
                         CaseName());

class ValidMultibyteUtf8Test : public ResetState, public testing::WithParamInterface<ValueCase>
{};

// An odd number of bytes is refused even if every character is wide. This is wanted.
constexpr ValueCase UTF8_CASES[] = {
    {"Null", nullptr, MSG_NONE},
    {"Empty", "", MSG_NONE},
    {"OneCharacterOfThreeBytes", "あ", HE99999E},
    {"TwoCharactersOfThreeBytes", "ああ", MSG_NONE},
    {"ThreeCharactersOfThreeBytes", "あああ", HE99999E},
    {"OneCharacterOfTwoBytes", "é", MSG_NONE},
    {"HalfWidthKatakanaIsWideInUtf8", "ｱｲ", MSG_NONE},
    {"LetterFirst", "aあ", HE99999E},
    {"LetterLast", "あa", HE99999E},
    {"SurrogatePair", "𠀀", HE99999E},
    {"Malformed", "\xe3\x81", HE99999E},
};

TEST_P(ValidMultibyteUtf8Test, JudgesTheValueOutsideACheck)
{
    const auto pItem = MakeItem({"multibyte"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidMultibyteUtf8Test, testing::ValuesIn(UTF8_CASES), CaseName());

}  // namespace
