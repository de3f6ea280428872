#include "validator/KZCEkaValidAnyExist.h"

#include <string>

#include "support/CheckItem.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"

namespace {

struct ListCase
{
    const char* szName;
    const char* szList;
    KZCEkaCsvFile::Record record;
    bool bPasses;
};

void PrintTo(const ListCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidAnyExistTest : public ResetState, public testing::WithParamInterface<ListCase>
{};

// The item itself stands in column 2.
const ListCase CASES[] = {
    {"OnlyTheLastListedIsFilled", "3 5", {"001", "", "", "", "x"}, true},
    {"OnlyTheFirstListedIsFilled", "3 5", {"001", "", "x", "", ""}, true},
    {"AllListedAreFilled", "3 5", {"001", "", "x", "", "x"}, true},
    {"NoListedIsFilled", "3 5", {"001", "", "", "x", ""}, false},
    {"OwnCellIsNotLookedAt", "3 5", {"001", "x", "", "", ""}, false},
    {"OwnCellIsListed", "2 3", {"001", "x", "", "", ""}, true},
    {"BlankIsFilled", "3", {"001", "", " ", "", ""}, true},
    {"RunOfBlanksIsOneSeparator", "  3    5 ", {"001", "", "", "", "x"}, true},
    {"ColumnBehindTheEnd", "9", {"001", "x"}, false},
    {"ColumnZero", "0", {"001", "x"}, false},
    {"NegativeColumn", "-1", {"001", "x"}, false},
    {"NoNumberIsColumnZero", "x", {"001", "x"}, false},
    {"NoNumberBeforeAFilledColumn", "x 2", {"001", "x"}, true},
    {"TrailingTextIsDropped", "2x", {"001", "x"}, true},
    {"BlanksOnly", "   ", {"001", "x"}, false},
};

TEST_P(ValidAnyExistTest, PassesIfAListedCellIsFilled)
{
    const TableCsv csv{GetParam().record};
    const auto pItem = MakeItem({"anyexist", GetParam().szList}, 1);
    EXPECT_EQ(OnRecord(*pItem, csv), GetParam().bPasses ? PASSES : "refuses 0001-00002-HE70001E");
}

TEST_P(ValidAnyExistTest, HoldsAsAConditionIfAListedCellIsFilled)
{
    const TableCsv csv{GetParam().record};
    const auto pItem = MakeItem({"anyexist", GetParam().szList}, 1);
    EXPECT_EQ(AsCondition(*pItem, csv), GetParam().bPasses ? PASSES : REFUSES);
}

INSTANTIATE_TEST_SUITE_P(Records, ValidAnyExistTest, testing::ValuesIn(CASES), CaseName());

using ValidAnyExistRecordTest = ResetState;

TEST_F(ValidAnyExistRecordTest, ReadsTheRecordThatItIsGiven)
{
    const TableCsv csv{{"001", "", "x"}, {"001", "", ""}};
    const auto pItem = MakeItem({"anyexist", "3"}, 1);
    EXPECT_EQ(OnRecord(*pItem, csv, 0), PASSES);
    EXPECT_EQ(OnRecord(*pItem, csv, 1), "refuses 0002-00002-HE70001E");
}

TEST_F(ValidAnyExistRecordTest, WithoutAListRaises)
{
    const TableCsv csv{{"001", "x"}};
    const auto pItem = MakeItem({"anyexist", ""}, 1);
    EXPECT_EQ(OnRecord(*pItem, csv), RAISES);
    EXPECT_EQ(AsCondition(*pItem, csv), RAISES);
}

}  // namespace
