#include "validator/KZCEkaValidAlnumsbl.h"

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

class ValidAlnumsblTest : public ResetState, public testing::WithParamInterface<ValueCase>
{};

constexpr ValueCase CASES[] = {
    {"Null", nullptr, MSG_NONE},
    {"Empty", "", MSG_NONE},
    {"Symbols", "a_b,c~!", MSG_NONE},
    {"LineEnds", "a\r\nb", MSG_NONE},
    {"Tab", "a\tb", HE70035E},
    {"Delete", "a\x7f", HE70035E},
    {"FullWidthLetterInShiftJis", "\x82\x60", HE70035E},
    {"HalfWidthKatakana", "a\xb1", HE70035E},
};

TEST_P(ValidAlnumsblTest, JudgesTheValue)
{
    const auto pItem = MakeItem({"alnumsbl"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidAlnumsblTest, testing::ValuesIn(CASES), CaseName());

using ValidAlnumsblByteTest = ResetState;

TEST_F(ValidAlnumsblByteTest, AcceptsLineEndsPrintableAsciiAndNoOtherByte)
{
    KZCEkaValidAlnumsbl item(0, MSG_NONE);
    EXPECT_EQ(AcceptedBytes(item),
              "\n\r !\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_"
              "`abcdefghijklmnopqrstuvwxyz{|}~");
}

}  // namespace
