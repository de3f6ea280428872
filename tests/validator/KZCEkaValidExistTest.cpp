#include "validator/KZCEkaValidExist.h"

#include "support/CheckItem.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"

namespace {

class ValidExistTest : public ResetState, public testing::WithParamInterface<ValueCase>
{};

constexpr ValueCase CASES[] = {
    {"Null", nullptr, HE70001E},      {"Empty", "", HE70001E}, {"Filled", "a", MSG_NONE},
    {"BlankIsFilled", " ", MSG_NONE}, {"Zero", "0", MSG_NONE},
};

TEST_P(ValidExistTest, JudgesTheValue)
{
    const auto pItem = MakeItem({"exist"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidExistTest, testing::ValuesIn(CASES), CaseName());

using ValidExistCsvTest = ResetState;

TEST_F(ValidExistCsvTest, AsConditionHoldsIfTheColumnIsFilled)
{
    const TableCsv csv{{"001", "x"}, {"001", ""}};
    const auto pItem = MakeItem({"exist"}, 1);
    EXPECT_EQ(AsCondition(*pItem, csv, 0), PASSES);
    EXPECT_EQ(AsCondition(*pItem, csv, 1), REFUSES);
}

TEST_F(ValidExistCsvTest, ACellBehindTheEndOfTheRecordIsEmpty)
{
    const TableCsv csv{{"001", "x"}};
    const auto pItem = MakeItem({"exist"}, 7);
    EXPECT_EQ(OnRecord(*pItem, csv), "refuses 0001-00008-HE70001E");
}

}  // namespace
