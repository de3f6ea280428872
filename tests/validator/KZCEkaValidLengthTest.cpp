#include "validator/KZCEkaValidLength.h"

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

class ValidLengthTest : public ResetState, public testing::WithParamInterface<ItemValueCase>
{};

constexpr ItemText Exactly(const char* szValue)
{
    return {"length", szValue};
}

constexpr ItemText AtMost(const char* szMax)
{
    return {"length", "", "", szMax};
}

constexpr ItemValueCase CASES[] = {
    {"ExactLength", Exactly("5"), "abcde", MSG_NONE},
    {"OneShortOfExact", Exactly("5"), "abcd", HE70008E},
    {"OneBeyondExact", Exactly("5"), "abcdef", HE70008E},
    {"EmptyAgainstExact", Exactly("5"), "", HE70008E},
    {"EmptyAgainstExactZero", Exactly("0"), "", MSG_NONE},
    {"NullCountsZero", Exactly("0"), nullptr, MSG_NONE},
    {"NullAgainstLargest", AtMost("5"), nullptr, MSG_NONE},
    {"EmptyAgainstLargest", AtMost("5"), "", MSG_NONE},
    {"AtLargest", AtMost("5"), "abcde", MSG_NONE},
    {"BeyondLargest", AtMost("5"), "abcdef", HE70008E},
    {"ExactWinsOverLargest", {"length", "2", "", "5"}, "abcde", HE70008E},
    {"ExactWinsOverASmallerLargest", {"length", "5", "", "2"}, "abcde", MSG_NONE},
    {"ExactZeroWinsOverLargest", {"length", "0", "", "5"}, "a", HE70008E},
    {"FullWidthInShiftJisCountsTwo", AtMost("2"), "\x82\x4f\x82\x50", HE70008E},
    {"FullWidthInUtf8CountsThree", Exactly("3"), "あ", MSG_NONE},
    {"UndecodableBytesCount", Exactly("2"), "\xff\xff", MSG_NONE},
    {"ParameterWithLeadingBlank", Exactly(" 5"), "abcde", MSG_NONE},
    {"ParameterWithPlusSign", Exactly("+5"), "abcde", MSG_NONE},
    {"ParameterWithTrailingText", Exactly("5x"), "abcde", MSG_NONE},
    {"ParameterIsNoNumberAndReadsZero", Exactly("x"), "", MSG_NONE},
    {"ParameterIsNoNumberAndValueIsNot", Exactly("x"), "a", HE70008E},
    {"BlankParameterIsGivenAndReadsZero", {"length", " ", "", "5"}, "abc", HE70008E},
    {"NegativeLargest", AtMost("-1"), "", HE70008E},
    {"LargestBeyond64Bits", AtMost("99999999999999999999"), "abcde", MSG_NONE},
    {"LargestBelow64Bits", AtMost("-99999999999999999999"), "", HE70008E},
    {"LargestBeyond32Bits", AtMost("4294967296"), "abcde", MSG_NONE},
};

TEST_P(ValidLengthTest, JudgesTheNumberOfBytes)
{
    const auto pItem = MakeItem(GetParam().text);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

TEST_P(ValidLengthTest, JudgesTheSameDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const auto pItem = MakeItem(GetParam().text);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidLengthTest, testing::ValuesIn(CASES), CaseName());

using ValidLengthFaultTest = ResetState;

TEST_F(ValidLengthFaultTest, WithoutBothParametersRaises)
{
    const auto pItem = MakeItem({"length"});
    EXPECT_EQ(OnValue(*pItem, "abc"), RAISES);
    EXPECT_EQ(OnValue(*pItem, ""), RAISES);
}

TEST_F(ValidLengthFaultTest, TheSmallestLengthIsNoParameter)
{
    const auto pItem = MakeItem({"length", "", "3", ""});
    EXPECT_EQ(OnValue(*pItem, "abc"), RAISES);
}

}  // namespace
