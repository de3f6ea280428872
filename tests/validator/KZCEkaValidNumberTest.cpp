#include "validator/KZCEkaValidNumber.h"

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

constexpr ItemText NUMBER = {"number"};

class ValidNumberTest : public ResetState, public testing::WithParamInterface<ValueCase>
{};

constexpr ValueCase CASES[] = {
    {"Null", nullptr, MSG_NONE},
    {"Empty", "", MSG_NONE},
    {"AllDigits", "0123456789", MSG_NONE},
    {"LeadingZeros", "000", MSG_NONE},
    {"MoreDigitsThanANumberHolds", "99999999999999999999999", MSG_NONE},
    {"PlusSign", "+1", HE70004E},
    {"MinusSign", "-1", HE70004E},
    {"DecimalPoint", "1.5", HE70004E},
    {"LeadingBlank", " 1", HE70004E},
    {"TrailingBlank", "1 ", HE70004E},
    {"Blank", " ", HE70004E},
    {"Letter", "1a", HE70004E},
    {"FullWidthDigitInShiftJis", "\x82\x4f", HE70004E},
    {"FullWidthDigitInUtf8", "\xef\xbc\x90", HE70004E},
};

TEST_P(ValidNumberTest, JudgesTheValue)
{
    const auto pItem = MakeItem(NUMBER);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

TEST_P(ValidNumberTest, JudgesTheSameDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const auto pItem = MakeItem(NUMBER);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidNumberTest, testing::ValuesIn(CASES), CaseName());

using ValidNumberByteTest = ResetState;

TEST_F(ValidNumberByteTest, AcceptsTheTenDigitsAndNoOtherByte)
{
    KZCEkaValidNumber item(0, MSG_NONE);
    EXPECT_EQ(AcceptedBytes(item), "0123456789");
}

}  // namespace
