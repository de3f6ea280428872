#include "validator/KZCEkaValidAnyContain.h"

#include <string>

#include "support/CheckItem.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"

namespace {

struct ListCase
{
    const char* szName;
    const char* szList;
    const char* szMin;
    const char* szMax;
    KZCEkaCsvFile::Record record;
    bool bPasses;
};

void PrintTo(const ListCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidAnyContainTest : public ResetState, public testing::WithParamInterface<ListCase>
{};

// The item itself stands in column 2.
const ListCase CASES[] = {
    {"FirstListedIsInRange", "3 4", "1", "5", {"001", "", "1", "9"}, true},
    {"LastListedIsInRange", "3 4", "1", "5", {"001", "", "9", "5"}, true},
    {"NoListedIsInRange", "3 4", "1", "5", {"001", "", "0", "6"}, false},
    {"OwnCellIsNotLookedAt", "3 4", "1", "5", {"001", "3", "9", "9"}, false},
    {"EmptyCellIsSkipped", "3 4", "1", "5", {"001", "", "", "5"}, true},
    {"EmptyCellIsNotZero", "3 4", "0", "5", {"001", "", "", ""}, false},
    {"NoNumberRefusesAtOnce", "3 4", "1", "5", {"001", "", "x", "3"}, false},
    {"NoNumberBehindAMatchIsNotReached", "3 4", "1", "5", {"001", "", "3", "x"}, true},
    {"LeadingBlankIsNoNumber", "3 4", "1", "5", {"001", "", " 3", "3"}, false},
    {"FractionIsCutOff", "3", "1", "5", {"001", "", "5.9"}, true},
    {"SignIsRead", "3", "-5", "5", {"001", "", "-3"}, true},
    {"LowerLimitLeftOutIsZero", "3", "", "5", {"001", "", "-1"}, false},
    {"UpperLimitLeftOutIsZero", "3", "-5", "", {"001", "", "0"}, true},
    {"BothLimitsLeftOutTakeZero", "3", "", "", {"001", "", "0"}, true},
    {"BothLimitsLeftOutRefuseOne", "3", "", "", {"001", "", "1"}, false},
    {"Beyond64BitsIsClamped",
     "3",
     "0",
     "9223372036854775807",
     {"001", "", "99999999999999999999"},
     true},
    {"RunOfBlanksIsOneSeparator", "  3    4 ", "1", "5", {"001", "", "9", "5"}, true},
    {"ColumnBehindTheEndIsSkipped", "9 3", "1", "5", {"001", "", "3"}, true},
    {"ColumnThatIsNoNumberIsSkipped", "x 3", "1", "5", {"001", "", "3"}, true},
    {"BlanksOnly", "   ", "1", "5", {"001", "3", "3"}, false},
    // The order of the limits is looked at only for a filled cell that is a number.
    {"EmptyCellsBeforeLimitsInTheWrongOrder", "3 4", "5", "1", {"001", "", "", ""}, false},
    {"NoNumberBeforeLimitsInTheWrongOrder", "3 4", "5", "1", {"001", "", "x", "3"}, false},
};

TEST_P(ValidAnyContainTest, PassesIfAListedCellIsInRange)
{
    const TableCsv csv{GetParam().record};
    const auto pItem =
        MakeItem({"anycontain", GetParam().szList, GetParam().szMin, GetParam().szMax}, 1);
    EXPECT_EQ(OnRecord(*pItem, csv), GetParam().bPasses ? PASSES : "refuses 0001-00002-HE70009E");
}

TEST_P(ValidAnyContainTest, HoldsAsAConditionIfAListedCellIsInRange)
{
    const TableCsv csv{GetParam().record};
    const auto pItem =
        MakeItem({"anycontain", GetParam().szList, GetParam().szMin, GetParam().szMax}, 1);
    EXPECT_EQ(AsCondition(*pItem, csv), GetParam().bPasses ? PASSES : REFUSES);
}

INSTANTIATE_TEST_SUITE_P(Records, ValidAnyContainTest, testing::ValuesIn(CASES), CaseName());

struct FaultCase
{
    const char* szName;
    const char* szList;
    const char* szMin;
    const char* szMax;
    const char* szCell;
};

void PrintTo(const FaultCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidAnyContainFaultTest : public ResetState, public testing::WithParamInterface<FaultCase>
{};

constexpr FaultCase FAULTS[] = {
    {"NoList", "", "1", "5", "3"},
    {"LowerIsNoNumber", "2", "x", "5", "3"},
    {"UpperIsNoNumber", "2", "1", "x", "3"},
    {"LowerIsNoNumberAndTheCellIsEmpty", "2", "x", "5", ""},
    {"UpperIsNoNumberAndTheCellIsNone", "2", "1", "5x", "x"},
    {"LowerAboveUpper", "2", "5", "1", "3"},
    {"OnlyALowerLimitAboveZero", "2", "1", "", "3"},
};

TEST_P(ValidAnyContainFaultTest, RaisesAndDoesNotRefuse)
{
    const TableCsv csv{{"001", GetParam().szCell}};
    const auto pItem =
        MakeItem({"anycontain", GetParam().szList, GetParam().szMin, GetParam().szMax}, 1);
    EXPECT_EQ(OnRecord(*pItem, csv), RAISES);
    EXPECT_EQ(AsCondition(*pItem, csv), RAISES);
}

INSTANTIATE_TEST_SUITE_P(Parameters,
                         ValidAnyContainFaultTest,
                         testing::ValuesIn(FAULTS),
                         CaseName());

}  // namespace
