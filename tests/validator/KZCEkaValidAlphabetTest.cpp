#include "validator/KZCEkaValidAlphabet.h"

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

class ValidAlphabetTest : public ResetState, public testing::WithParamInterface<ValueCase>
{};

constexpr ValueCase CASES[] = {
    {"Null", nullptr, MSG_NONE},
    {"Empty", "", MSG_NONE},
    {"Letters", "AbZ", MSG_NONE},
    {"Digit", "A1", HE70006E},
    {"Blank", "A b", HE70006E},
    {"Hyphen", "A-b", HE70006E},
    {"FullWidthLetterInShiftJis", "\x82\x60", HE70006E},
};

TEST_P(ValidAlphabetTest, JudgesTheValue)
{
    const auto pItem = MakeItem({"alphabet"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidAlphabetTest, testing::ValuesIn(CASES), CaseName());

using ValidAlphabetByteTest = ResetState;

TEST_F(ValidAlphabetByteTest, AcceptsLettersAndNoOtherByte)
{
    KZCEkaValidAlphabet item(0, MSG_NONE);
    EXPECT_EQ(AcceptedBytes(item), "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
}

TEST_F(ValidAlphabetByteTest, TheCatalogueTextForLettersComesOnlyByOverride)
{
    const auto pItem = MakeItem({"alphabet"}, 0, HE70032E);
    EXPECT_EQ(OnValue(*pItem, "1"), Verdict(HE70032E));
}

}  // namespace
