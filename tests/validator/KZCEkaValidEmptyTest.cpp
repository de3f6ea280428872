#include "validator/KZCEkaValidEmpty.h"

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

class ValidEmptyTest : public ResetState, public testing::WithParamInterface<ValueCase>
{};

constexpr ValueCase CASES[] = {
    {"Null", nullptr, MSG_NONE},
    {"Empty", "", MSG_NONE},
    {"Filled", "a", HE70005E},
    {"Blank", " ", HE70005E},
};

TEST_P(ValidEmptyTest, JudgesTheValue)
{
    const auto pItem = MakeItem({"empty"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidEmptyTest, testing::ValuesIn(CASES), CaseName());

}  // namespace
