#include "validator/KZCEkaValidContain.h"

#include <string>

#include "support/CheckItem.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"

namespace {

constexpr ItemText Contain(const char* szValue)
{
    return {"contain", szValue};
}

class ValidContainTest : public ResetState, public testing::WithParamInterface<ItemValueCase>
{};

constexpr ItemValueCase CASES[] = {
    {"First", Contain("1 2 3 4 5"), "1", MSG_NONE},
    {"Middle", Contain("1 2 3 4 5"), "3", MSG_NONE},
    {"Last", Contain("1 2 3 4 5"), "5", MSG_NONE},
    {"TokensAreComparedWhole", Contain("1 2 3 4 5"), "33", HE70009E},
    {"PartOfATokenIsNone", Contain("12 34"), "1", HE70009E},
    {"TextsAndNotNumbers", Contain("1 2"), "01", HE70009E},
    {"CaseCounts", Contain("ab"), "AB", HE70009E},
    {"Empty", Contain("1 2"), "", HE70009E},
    {"Null", Contain("1 2"), nullptr, HE70009E},
    {"TwoTokensAtOnce", Contain("1 2"), "1 2", HE70009E},
    {"RunOfBlanksIsOneSeparator", Contain("1   2"), "2", MSG_NONE},
    {"RunOfBlanksMakesNoEmptyToken", Contain("1   2"), "", HE70009E},
    {"BlanksAtBothEnds", Contain("  1 2  "), "1", MSG_NONE},
    {"BlanksAtBothEndsMakeNoEmptyToken", Contain("  1 2  "), "", HE70009E},
    {"TabSeparatesNothing", Contain("1\t2"), "2", HE70009E},
    {"TabStaysInTheToken", Contain("1\t2"), "1\t2", MSG_NONE},
    {"BlanksOnly", Contain("   "), "1", HE70009E},
    {"BlanksOnlyAndAnEmptyValue", Contain("   "), "", HE70009E},
    {"BlanksOnlyAndABlank", Contain(" "), " ", HE70009E},
    {"JapaneseInUtf8", Contain("有 無"), "無", MSG_NONE},
    {"FullWidthBlankSeparatesNothing", Contain("有　無"), "無", HE70009E},
};

TEST_P(ValidContainTest, JudgesTheValue)
{
    const auto pItem = MakeItem(GetParam().text);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidContainTest, testing::ValuesIn(CASES), CaseName());

using ValidContainEncodingTest = ResetState;

TEST_F(ValidContainEncodingTest, ComparesAShiftJisCellWithTheTokensAsUtf8)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const auto pItem = MakeItem(Contain("有 無"));
    EXPECT_EQ(OnValue(*pItem, ToShiftJis("無").c_str()), PASSES);
    EXPECT_EQ(OnValue(*pItem, ToShiftJis("否").c_str()), Verdict(HE70009E));
}

TEST_F(ValidContainEncodingTest, TakesAValueAsItIsOutsideACheck)
{
    const auto pItem = MakeItem(Contain("有 無"));
    EXPECT_EQ(OnValue(*pItem, ToShiftJis("無").c_str()), Verdict(HE70009E));
}

using ValidContainFaultTest = ResetState;

TEST_F(ValidContainFaultTest, WithoutAListRaises)
{
    const auto pItem = MakeItem(Contain(""));
    EXPECT_EQ(OnValue(*pItem, "1"), RAISES);
    EXPECT_EQ(OnValue(*pItem, ""), RAISES);
}

TEST_F(ValidContainFaultTest, WithoutAListRaisesBeforeNullIsRefused)
{
    const auto pItem = MakeItem(Contain(""));
    EXPECT_EQ(OnValue(*pItem, nullptr), RAISES);
}

}  // namespace
