#include "validator/KZCEkaValidContainColumn.h"

#include <string>

#include "support/CheckItem.h"
#include "support/ColumnPairCase.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"

namespace {

class ValidContainColumnTest : public ResetState, public testing::WithParamInterface<ColumnPairCase>
{};

TEST_P(ValidContainColumnTest, PassesIfTheCellsAgree)
{
    const TableCsv csv{{"001", GetParam().szCell, GetParam().szOther}};
    const auto pItem = MakeItem({"containcolumn", "3", GetParam().szMin, GetParam().szMax}, 1);
    EXPECT_EQ(OnRecord(*pItem, csv), GetParam().bAgree ? PASSES : "refuses 0001-00002-HE70025E");
}

TEST_P(ValidContainColumnTest, HoldsAsAConditionIfTheCellsAgree)
{
    const TableCsv csv{{"001", GetParam().szCell, GetParam().szOther}};
    const auto pItem = MakeItem({"containcolumn", "3", GetParam().szMin, GetParam().szMax}, 1);
    EXPECT_EQ(AsCondition(*pItem, csv), GetParam().bAgree ? PASSES : REFUSES);
}

INSTANTIATE_TEST_SUITE_P(Cells,
                         ValidContainColumnTest,
                         testing::ValuesIn(COLUMN_PAIR_CASES),
                         CaseName());

class ValidContainColumnRecordTest : public ResetState
{
protected:
    const TableCsv m_csv{{"001", "a", "a", ""}, {"001", "a", "b", ""}};
};

TEST_F(ValidContainColumnRecordTest, ReadsTheRecordThatItIsGiven)
{
    const auto pItem = MakeItem({"containcolumn", "3"}, 1);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0), PASSES);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-00002-HE70025E");
}

TEST_F(ValidContainColumnRecordTest, OverrideReplacesTheCode)
{
    const auto pItem = MakeItem({"containcolumn", "3"}, 1, HE70031E);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-00002-HE70031E");
}

TEST_F(ValidContainColumnRecordTest, WithErrorOutputOffRefusesWithoutARecord)
{
    const auto pItem = MakeItem({"containcolumn", "3"}, 1);
    pItem->SetErrOutput(false);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), REFUSES);
}

TEST_F(ValidContainColumnRecordTest, TakesNoFallbackColumn)
{
    const auto pItem = MakeItem({"containcolumn", "3"}, -1);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0, 1), "refuses 0001-00000-HE70025E");
    EXPECT_EQ(AsCondition(*pItem, m_csv, 0, 1), REFUSES);
}

TEST_F(ValidContainColumnRecordTest, AColumnBehindTheEndIsEmpty)
{
    const auto pItem = MakeItem({"containcolumn", "9"}, 3);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0), PASSES);
}

TEST_F(ValidContainColumnRecordTest, TheColumnIsReadLikeC)
{
    const auto pItem = MakeItem({"containcolumn", " +3x"}, 1);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0), PASSES);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-00002-HE70025E");
}

TEST_F(ValidContainColumnRecordTest, DoesNotRunIfAConditionDoesNotHold)
{
    const auto pItem = MakeItem({"containcolumn", "3"}, 1);
    pItem->AddOuterItem(MakeItem({"exist"}, 3).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), PASSES);
}

TEST_F(ValidContainColumnRecordTest, RunsIfTheConditionHolds)
{
    const auto pItem = MakeItem({"containcolumn", "3"}, 1);
    pItem->AddOuterItem(MakeItem({"empty"}, 3).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), "refuses 0002-00002-HE70025E");
}

TEST_F(ValidContainColumnRecordTest, ComparesRawBytesDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const TableCsv csv{{"001", "\x82\xa0", "\x82\xa0"}, {"001", "\x82\xa0", "\x82\xa1"}};
    const auto pItem = MakeItem({"containcolumn", "3"}, 1);
    EXPECT_EQ(OnRecord(*pItem, csv, 0), PASSES);
    EXPECT_EQ(OnRecord(*pItem, csv, 1), "refuses 0002-00002-HE70025E");
}

TEST_F(ValidContainColumnRecordTest, PassesEveryBareValue)
{
    const auto pItem = MakeItem({"containcolumn", "3"}, 1);
    EXPECT_EQ(OnValue(*pItem, "x"), PASSES);
    EXPECT_EQ(AsCondition(*pItem, "x"), PASSES);
}

TEST_F(ValidContainColumnRecordTest, RaisesForNullInsteadOfAFile)
{
    const auto pItem = MakeItem({"containcolumn", "3"}, 1);
    EXPECT_EQ(Told([&] { return pItem->ValidateCsv(nullptr, 0, -1); }), RAISES);
    EXPECT_EQ(Told([&] { return pItem->ValidateOuter(nullptr, 0, -1); }), RAISES);
}

struct BadColumn
{
    const char* szName;
    const char* szColumn;
};

void PrintTo(const BadColumn& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidContainColumnFaultTest : public ResetState, public testing::WithParamInterface<BadColumn>
{
protected:
    const TableCsv m_csv{{"001", "a", "a", ""}};
};

TEST_P(ValidContainColumnFaultTest, RaisesWithoutAPositiveColumn)
{
    const auto pItem = MakeItem({"containcolumn", GetParam().szColumn}, 1);
    EXPECT_EQ(OnRecord(*pItem, m_csv), RAISES);
    EXPECT_EQ(AsCondition(*pItem, m_csv), RAISES);
}

TEST_P(ValidContainColumnFaultTest, DoesNotRaiseIfAConditionDoesNotHold)
{
    const auto pItem = MakeItem({"containcolumn", GetParam().szColumn}, 1);
    pItem->AddOuterItem(MakeItem({"exist"}, 3).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv), PASSES);
}

constexpr BadColumn BAD_COLUMNS[] = {
    {"Empty", ""},
    {"Zero", "0"},
    {"Negative", "-1"},
    {"NoNumber", "x"},
};

INSTANTIATE_TEST_SUITE_P(Columns,
                         ValidContainColumnFaultTest,
                         testing::ValuesIn(BAD_COLUMNS),
                         CaseName());

}  // namespace
