#include "validator/KZCEkaValidCharlength.h"

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

constexpr ItemText Exactly(const char* szValue)
{
    return {"charlength", szValue};
}

constexpr ItemText AtMost(const char* szMax)
{
    return {"charlength", "", "", szMax};
}

class ValidCharlengthUtf8Test : public ResetState, public testing::WithParamInterface<ItemValueCase>
{};

constexpr ItemValueCase UTF8_CASES[] = {
    {"NullCountsZero", Exactly("0"), nullptr, MSG_NONE},
    {"NullAgainstLargest", AtMost("2"), nullptr, MSG_NONE},
    {"Empty", AtMost("2"), "", MSG_NONE},
    {"EmptyAgainstExact", Exactly("2"), "", HE70007E},
    {"Exact", Exactly("2"), "あa", MSG_NONE},
    {"OneShortOfExact", Exactly("2"), "あ", HE70007E},
    {"OneBeyondExact", Exactly("2"), "あaい", HE70007E},
    {"AtLargest", AtMost("2"), "あい", MSG_NONE},
    {"BeyondLargest", AtMost("2"), "あいう", HE70007E},
    {"HalfWidthKatakanaCountsOne", Exactly("2"), "ｱｲ", MSG_NONE},
    {"ExactWinsOverLargest", {"charlength", "1", "", "5"}, "あい", HE70007E},
    {"ParameterReadLikeC", Exactly(" +2x"), "あい", MSG_NONE},
    {"ParameterIsNoNumberAndReadsZero", Exactly("x"), "", MSG_NONE},
    {"LargestBeyond64Bits", AtMost("99999999999999999999"), "あ", MSG_NONE},
    {"NegativeLargest", AtMost("-1"), "", HE70007E},
    // Half of a surrogate pair has no bytes of its own, and the count stops there.
    {"SurrogatePairStopsTheCount", Exactly("1"), "a𠀀bcd", MSG_NONE},
    {"SurrogatePairAtTheFront", Exactly("0"), "𠀀bcd", MSG_NONE},
    {"MalformedTextCountsZero", Exactly("0"), "あ\xe3\x81", MSG_NONE},
};

TEST_P(ValidCharlengthUtf8Test, JudgesTheNumberOfCharacters)
{
    const auto pItem = MakeItem(GetParam().text);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values,
                         ValidCharlengthUtf8Test,
                         testing::ValuesIn(UTF8_CASES),
                         CaseName());

class ValidCharlengthShiftJisTest : public ResetState,
                                    public testing::WithParamInterface<ItemValueCase>
{};

constexpr ItemValueCase SHIFT_JIS_CASES[] = {
    {"TwoFullWidthDigits", AtMost("2"), "\x82\x4f\x82\x50", MSG_NONE},
    {"ThreeFullWidthDigits", AtMost("2"), "\x82\x4f\x82\x50\x82\x51", HE70007E},
    {"WideAndNarrowCountOneEach", Exactly("4"), "a\x82\xa0\xb1\x88\x9f", MSG_NONE},
    {"InvalidTextCountsZero", Exactly("0"), "\x82\xa0\x82", MSG_NONE},
    {"Empty", AtMost("2"), "", MSG_NONE},
};

TEST_P(ValidCharlengthShiftJisTest, JudgesTheNumberOfCharactersDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const auto pItem = MakeItem(GetParam().text);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values,
                         ValidCharlengthShiftJisTest,
                         testing::ValuesIn(SHIFT_JIS_CASES),
                         CaseName());

using ValidCharlengthFaultTest = ResetState;

TEST_F(ValidCharlengthFaultTest, WithoutBothParametersRaises)
{
    const auto pItem = MakeItem({"charlength"});
    EXPECT_EQ(OnValue(*pItem, "abc"), RAISES);
    EXPECT_EQ(OnValue(*pItem, ""), RAISES);
}

TEST_F(ValidCharlengthFaultTest, TheSmallestLengthIsNoParameter)
{
    const auto pItem = MakeItem({"charlength", "", "3", ""});
    EXPECT_EQ(OnValue(*pItem, "abc"), RAISES);
}

}  // namespace
