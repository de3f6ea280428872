#include "validator/KZCEkaValidExceptColumn.h"

#include <string>

#include "support/CheckItem.h"
#include "support/ColumnPairCase.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"

namespace {

class ValidExceptColumnTest : public ResetState, public testing::WithParamInterface<ColumnPairCase>
{};

TEST_P(ValidExceptColumnTest, RefusesIfTheCellsAgree)
{
    const TableCsv csv{{"001", GetParam().szCell, GetParam().szOther}};
    const auto pItem = MakeItem({"exceptcolumn", "3", GetParam().szMin, GetParam().szMax}, 1);
    EXPECT_EQ(OnRecord(*pItem, csv), GetParam().bAgree ? "refuses 0001-00002-HE70010E" : PASSES);
}

TEST_P(ValidExceptColumnTest, HoldsAsAConditionIfTheCellsDiffer)
{
    const TableCsv csv{{"001", GetParam().szCell, GetParam().szOther}};
    const auto pItem = MakeItem({"exceptcolumn", "3", GetParam().szMin, GetParam().szMax}, 1);
    EXPECT_EQ(AsCondition(*pItem, csv), GetParam().bAgree ? REFUSES : PASSES);
}

INSTANTIATE_TEST_SUITE_P(Cells,
                         ValidExceptColumnTest,
                         testing::ValuesIn(COLUMN_PAIR_CASES),
                         CaseName());

class ValidExceptColumnRecordTest : public ResetState
{
protected:
    const TableCsv m_csv{{"001", "a", "b", ""}, {"001", "a", "a", ""}};
};

TEST_F(ValidExceptColumnRecordTest, ReadsTheRecordThatItIsGiven)
{
    const auto pItem = MakeItem({"exceptcolumn", "3"}, 1);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0), PASSES);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-00002-HE70010E");
}

TEST_F(ValidExceptColumnRecordTest, OverrideReplacesTheCode)
{
    const auto pItem = MakeItem({"exceptcolumn", "3"}, 1, HE70031E);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-00002-HE70031E");
}

TEST_F(ValidExceptColumnRecordTest, WithErrorOutputOffRefusesWithoutARecord)
{
    const auto pItem = MakeItem({"exceptcolumn", "3"}, 1);
    pItem->SetErrOutput(false);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), REFUSES);
}

TEST_F(ValidExceptColumnRecordTest, TakesNoFallbackColumn)
{
    const auto pItem = MakeItem({"exceptcolumn", "4"}, -1);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0, 1), "refuses 0001-00000-HE70010E");
}

TEST_F(ValidExceptColumnRecordTest, DoesNotRunIfAConditionDoesNotHold)
{
    const auto pItem = MakeItem({"exceptcolumn", "3"}, 1);
    pItem->AddOuterItem(MakeItem({"exist"}, 3).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), PASSES);
}

TEST_F(ValidExceptColumnRecordTest, RaisesWithoutAPositiveColumn)
{
    for (const char* szColumn : {"", "0", "-1", "x"}) {
        const auto pItem = MakeItem({"exceptcolumn", szColumn}, 1);
        EXPECT_EQ(OnRecord(*pItem, m_csv), RAISES) << szColumn;
        EXPECT_EQ(AsCondition(*pItem, m_csv), RAISES) << szColumn;
    }
}

TEST_F(ValidExceptColumnRecordTest, RaisesForNullInsteadOfAFile)
{
    const auto pItem = MakeItem({"exceptcolumn", "3"}, 1);
    EXPECT_EQ(Told([&] { return pItem->ValidateCsv(nullptr, 0, -1); }), RAISES);
    EXPECT_EQ(Told([&] { return pItem->ValidateOuter(nullptr, 0, -1); }), RAISES);
}

}  // namespace
