#include "validator/KZCEkaValidMultikana.h"

#include <set>
#include <string>

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

class ValidMultikanaTest : public ResetState, public testing::WithParamInterface<ValueCase>
{};

// The bytes are read in pairs, whatever the encoding.
constexpr ValueCase CASES[] = {
    {"Null", nullptr, MSG_NONE},
    {"Empty", "", MSG_NONE},
    {"Katakana", "\x83\x41\x83\x42", MSG_NONE},
    {"ProlongedSoundAndVoicingMarks", "\x83\x4a\x81\x5b\x81\x4a\x81\x4b", MSG_NONE},
    {"FullWidthBlank", "\x83\x41\x81\x40\x83\x42", MSG_NONE},
    {"OneHalfWidthKatakana", "\xb1", HE70003E},
    {"TwoHalfWidthKatakana", "\xb1\xb2", HE70003E},
    {"OddLengthBehindKatakana",
     "\x83\x41"
     "a",
     HE70003E},
    {"LoneLeadByteBehindKatakana", "\x83\x41\x83", HE70003E},
    {"PairOfLetters", "AB", HE70003E},
    {"Hiragana", "\x82\xa0", HE70003E},
    {"FullWidthLetter", "\x82\x60", HE70003E},
    {"BadPairBehindAGoodOne", "\x83\x41\x82\xa0", HE70003E},
    {"KatakanaInUtf8", "ア", HE70003E},
    {"TwoKatakanaInUtf8", "アイ", HE70003E},
};

TEST_P(ValidMultikanaTest, JudgesTheValueDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const auto pItem = MakeItem({"multikana"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

TEST_P(ValidMultikanaTest, JudgesTheSameOutsideACheck)
{
    const auto pItem = MakeItem({"multikana"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidMultikanaTest, testing::ValuesIn(CASES), CaseName());

using ValidMultikanaCodeTest = ResetState;

TEST_F(ValidMultikanaCodeTest, AcceptsItsNinetyCodesAndNoOtherPairOfBytes)
{
    std::set<unsigned> setExpected = {0x8140, 0x814a, 0x814b, 0x815b};
    for (unsigned nCode = 0x8340; nCode <= 0x837e; ++nCode)
        setExpected.insert(nCode);
    for (unsigned nCode = 0x8380; nCode <= 0x8396; ++nCode)
        setExpected.insert(nCode);
    ASSERT_EQ(setExpected.size(), 90u);

    KZCEkaValidMultikana item(0, MSG_NONE);
    EXPECT_EQ(AcceptedPairs(item), setExpected);
}

}  // namespace
