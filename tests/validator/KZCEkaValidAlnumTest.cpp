#include "validator/KZCEkaValidAlnum.h"

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

class ValidAlnumTest : public ResetState, public testing::WithParamInterface<ValueCase>
{};

constexpr ValueCase CASES[] = {
    {"Null", nullptr, MSG_NONE},
    {"Empty", "", MSG_NONE},
    {"LettersDigitsHyphenAndBlank", "Ab-12 z", MSG_NONE},
    {"BlankAlone", " ", MSG_NONE},
    {"Underscore", "a_b", HE70006E},
    {"UnderscoreAtTheEnd", "ab_", HE70006E},
    {"Tab", "a\tb", HE70006E},
    {"Comma", "a,b", HE70006E},
    {"FullWidthLetterInShiftJis", "\x82\x60", HE70006E},
    {"HalfWidthKatakana", "\xb1", HE70006E},
};

TEST_P(ValidAlnumTest, JudgesTheValue)
{
    const auto pItem = MakeItem({"alnum"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidAlnumTest, testing::ValuesIn(CASES), CaseName());

using ValidAlnumByteTest = ResetState;

TEST_F(ValidAlnumByteTest, AcceptsBlankHyphenDigitsLettersAndNoOtherByte)
{
    KZCEkaValidAlnum item(0, MSG_NONE);
    EXPECT_EQ(AcceptedBytes(item),
              " -0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
}

}  // namespace
