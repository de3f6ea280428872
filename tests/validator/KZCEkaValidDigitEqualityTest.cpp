#include "validator/KZCEkaValidDigitEquality.h"

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

/// Positions with allowed characters.
constexpr ItemText Allowed(const char* szPositions, const char* szMax)
{
    return {"digitequality", szPositions, "", szMax};
}

/// Positions with forbidden characters.
constexpr ItemText Forbidden(const char* szPositions, const char* szMin)
{
    return {"digitequality", szPositions, szMin, ""};
}

class ValidDigitEqualityTest : public ResetState, public testing::WithParamInterface<ItemValueCase>
{};

constexpr ItemValueCase CASES[] = {
    {"FirstIsAllowed", Allowed("1", "9"), "987", MSG_NONE},
    {"FirstIsAllowedAndAlone", Allowed("1", "9"), "9", MSG_NONE},
    {"FirstIsNotAllowed", Allowed("1", "9"), "897", HE70010E},
    {"EmptyValue", Allowed("1", "9"), "", HE70010E},
    {"OneOfSeveralAllowed", Allowed("1", "7 8 9"), "8", MSG_NONE},
    {"NoneOfSeveralAllowed", Allowed("1", "7 8 9"), "6", HE70010E},
    {"EveryPositionIsAllowed", Allowed("1 3", "9"), "909", MSG_NONE},
    {"SecondPositionIsNot", Allowed("1 3", "9"), "908", HE70010E},
    {"LastPosition", Allowed("3", "9"), "009", MSG_NONE},
    {"PositionBehindTheEnd", Allowed("4", "9"), "999", HE70010E},
    {"SecondPositionBehindTheEnd", Allowed("1 4", "9"), "999", HE70010E},
    {"PositionZero", Allowed("0", "9"), "999", HE70010E},
    {"NegativePosition", Allowed("-1", "9"), "999", HE70010E},
    {"PositionThatIsNoNumberIsZero", Allowed("x", "9"), "999", HE70010E},
    {"PositionWithTrailingText", Allowed("1x", "9"), "900", MSG_NONE},
    {"PositionBeyond64Bits", Allowed("99999999999999999999", "9"), "999", HE70010E},
    {"FirstIsForbidden", Forbidden("1", "9"), "987", HE70010E},
    {"FirstIsNotForbidden", Forbidden("1", "9"), "897", MSG_NONE},
    {"OneOfSeveralForbidden", Forbidden("1", "7 8 9"), "8", HE70010E},
    {"SecondPositionIsForbidden", Forbidden("1 2", "9"), "89", HE70010E},
    {"ForbiddenAndPositionBehindTheEnd", Forbidden("2", "9"), "8", HE70010E},
    {"AllowedWinsOverForbidden", {"digitequality", "1", "9", "9"}, "9", MSG_NONE},
    {"ForbiddenIsIgnoredBesideAllowed", {"digitequality", "1", "8", "8 9"}, "8", MSG_NONE},
    {"NotAllowedThoughNotForbidden", {"digitequality", "1", "8", "9"}, "7", HE70010E},
    {"BlankAllowedListHasNoTokens", {"digitequality", "1", "9", "  "}, "9", HE70010E},
    {"BlankAllowedListLeavesForbidden", {"digitequality", "1", "9", "  "}, "8", MSG_NONE},
    {"OnlyTheFirstByteOfAnAllowedTokenCounts", Allowed("1", "98 7"), "9", MSG_NONE},
    {"LaterBytesOfAnAllowedTokenDoNot", Allowed("1", "98 7"), "8", HE70010E},
    {"OnlyTheFirstByteOfAForbiddenTokenCounts", Forbidden("1", "98"), "8", MSG_NONE},
    {"RunsOfBlanksInTheLists", Allowed("  1   3 ", "  8   9 "), "908", MSG_NONE},
    {"LettersAreCharactersToo", Allowed("1", "A"), "A1", MSG_NONE},
    {"CaseCounts", Allowed("1", "A"), "a1", HE70010E},
    {"BlanksOnlyAsPositions", Allowed("   ", "9"), "8", MSG_NONE},
    {"BlanksOnlyAsPositionsAndNoLists", Allowed("   ", ""), "8", MSG_NONE},
    {"BlanksOnlyAsPositionsAndAnEmptyValue", Allowed("   ", "9"), "", MSG_NONE},
    // The position is looked at before the lists.
    {"PositionBehindTheEndWithoutLists", Allowed("2", ""), "8", HE70010E},
};

TEST_P(ValidDigitEqualityTest, JudgesTheValue)
{
    const auto pItem = MakeItem(GetParam().text);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidDigitEqualityTest, testing::ValuesIn(CASES), CaseName());

using ValidDigitEqualityFaultTest = ResetState;

TEST_F(ValidDigitEqualityFaultTest, WithoutPositionsRaises)
{
    const auto pItem = MakeItem(Allowed("", "9"));
    EXPECT_EQ(OnValue(*pItem, "9"), RAISES);
    EXPECT_EQ(OnValue(*pItem, ""), RAISES);
}

TEST_F(ValidDigitEqualityFaultTest, WithoutBothListsRaises)
{
    const auto pItem = MakeItem(Allowed("1", ""));
    EXPECT_EQ(OnValue(*pItem, "9"), RAISES);
}

TEST_F(ValidDigitEqualityFaultTest, WithBlankListsRaises)
{
    const auto pItem = MakeItem({"digitequality", "1", " ", "  "});
    EXPECT_EQ(OnValue(*pItem, "9"), RAISES);
}

}  // namespace
