#include "validator/KZCEkaValidExcept.h"

#include <string>

#include "support/CheckItem.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"

namespace {

constexpr ItemText Except(const char* szValue)
{
    return {"except", szValue};
}

class ValidExceptTest : public ResetState, public testing::WithParamInterface<ItemValueCase>
{};

constexpr ItemValueCase CASES[] = {
    {"FirstToken", Except("1 2 3"), "1", HE99999E},
    {"LastToken", Except("1 2 3"), "3", HE99999E},
    {"NoToken", Except("1 2 3"), "4", MSG_NONE},
    {"TokensAreComparedWhole", Except("1 2 3"), "33", MSG_NONE},
    {"PartOfATokenIsNone", Except("12 34"), "1", MSG_NONE},
    {"CaseCounts", Except("ab"), "AB", MSG_NONE},
    {"Empty", Except("1 2 3"), "", MSG_NONE},
    {"EmptyAgainstRunsOfBlanks", Except("  1   2  "), "", MSG_NONE},
    {"TokenBehindARunOfBlanks", Except("  1   2  "), "2", HE99999E},
    {"Null", Except("1 2 3"), nullptr, MSG_NONE},
    {"BlanksOnly", Except("   "), "1", MSG_NONE},
    {"JapaneseInUtf8", Except("有 無"), "無", HE99999E},
};

TEST_P(ValidExceptTest, JudgesTheValue)
{
    const auto pItem = MakeItem(GetParam().text);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidExceptTest, testing::ValuesIn(CASES), CaseName());

using ValidExceptEncodingTest = ResetState;

TEST_F(ValidExceptEncodingTest, ComparesAShiftJisCellWithTheTokensAsUtf8)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const auto pItem = MakeItem(Except("有 無"));
    EXPECT_EQ(OnValue(*pItem, ToShiftJis("無").c_str()), Verdict(HE99999E));
    EXPECT_EQ(OnValue(*pItem, ToShiftJis("否").c_str()), PASSES);
}

using ValidExceptFaultTest = ResetState;

TEST_F(ValidExceptFaultTest, WithoutAListRaises)
{
    const auto pItem = MakeItem(Except(""));
    EXPECT_EQ(OnValue(*pItem, "1"), RAISES);
    EXPECT_EQ(OnValue(*pItem, ""), RAISES);
    EXPECT_EQ(OnValue(*pItem, nullptr), RAISES);
}

}  // namespace
