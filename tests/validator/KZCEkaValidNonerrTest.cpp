#include "validator/KZCEkaValidNonerr.h"

#include <string>

#include "support/CheckItem.h"
#include "support/DebugLog.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"

namespace {

/// Two records, of which the second (2 from 1) has an error in column 4 and one over columns 6
/// to 9.
class ValidNonerrTest : public ResetState
{
protected:
    ValidNonerrTest()
    {
        KZCValidResult::instance()->SetResult(HE70001E, 2, 4, SINGLE_COLUMN);
        KZCValidResult::instance()->SetResult(HE70012E, 2, 6, 9);
    }

    const TableCsv m_csv{{"001", "x"}, {"001", "x"}};
};

/// The entries that are there before the item runs: nothing else is ever recorded.
constexpr const char* BEFORE = " 0002-00004-HE70001E,0002-06:09-HE70012E";

struct ListCase
{
    const char* szName;
    const char* szList;
    const char* szRecord;
    long lRow;
    bool bPasses;
};

void PrintTo(const ListCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidNonerrListTest : public ValidNonerrTest, public testing::WithParamInterface<ListCase>
{};

constexpr ListCase CASES[] = {
    {"ColumnInError", "4", "", 1, false},
    {"CleanColumn", "5", "", 1, true},
    {"FirstOfARange", "6", "", 1, false},
    {"InsideARange", "7", "", 1, false},
    {"LastOfARange", "9", "", 1, false},
    {"BehindARange", "10", "", 1, true},
    {"SecondOfTheListIsInError", "3 4", "", 1, false},
    {"WholeListIsClean", "1 2 3 5 10", "", 1, true},
    {"RunOfBlanksIsOneSeparator", "  3    4 ", "", 1, false},
    {"ColumnIsReadLikeC", "4x", "", 1, false},
    {"NoNumberIsColumnZero", "x", "", 1, true},
    {"AnotherRecord", "4", "", 0, true},
    {"RecordOfTheParameter", "4", "2", 0, false},
    {"RecordOfTheParameterIsClean", "4", "1", 1, true},
    {"RecordOfTheParameterIsReadLikeC", "4", " 2x", 0, false},
    {"RecordThatIsNoNumberIsZero", "4", "x", 1, true},
    {"BlanksOnly", "   ", "", 1, true},
};

TEST_P(ValidNonerrListTest, PassesIfTheColumnsAreClean)
{
    const auto pItem = MakeItem({"nonerr", GetParam().szList, GetParam().szRecord}, 1);
    const std::string strTold = GetParam().bPasses ? PASSES : REFUSES;
    EXPECT_EQ(OnRecord(*pItem, m_csv, GetParam().lRow), strTold + BEFORE);
}

TEST_P(ValidNonerrListTest, HoldsAsAConditionIfTheColumnsAreClean)
{
    const auto pItem = MakeItem({"nonerr", GetParam().szList, GetParam().szRecord}, 1);
    const std::string strTold = GetParam().bPasses ? PASSES : REFUSES;
    EXPECT_EQ(AsCondition(*pItem, m_csv, GetParam().lRow), strTold + BEFORE);
}

INSTANTIATE_TEST_SUITE_P(Lists, ValidNonerrListTest, testing::ValuesIn(CASES), CaseName());

TEST_F(ValidNonerrTest, RecordsNothingWithAnOverrideEither)
{
    const auto pItem = MakeItem({"nonerr", "4"}, 1, HE70010E);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), std::string(REFUSES) + BEFORE);
}

TEST_F(ValidNonerrTest, SeesOnlyWhatHasBeenRecordedBefore)
{
    const auto pItem = MakeItem({"nonerr", "3"}, 1);
    EXPECT_EQ(pItem->ValidateCsv(&m_csv, 1, -1), STATUS_OK);
    KZCValidResult::instance()->SetResult(HE70004E, 2, 3, SINGLE_COLUMN);
    EXPECT_EQ(pItem->ValidateCsv(&m_csv, 1, -1), STATUS_NG);
}

TEST_F(ValidNonerrTest, SeesNoErrorOnceTheStoreIsEmptied)
{
    const auto pItem = MakeItem({"nonerr", "4"}, 1);
    EXPECT_EQ(pItem->ValidateCsv(&m_csv, 1, -1), STATUS_NG);
    KZCValidResult::instance()->ClearResult();
    EXPECT_EQ(pItem->ValidateCsv(&m_csv, 1, -1), STATUS_OK);
}

TEST_F(ValidNonerrTest, DoesNotRunIfAConditionDoesNotHold)
{
    const auto pItem = MakeItem({"nonerr", "4"}, 1);
    pItem->AddOuterItem(MakeItem({"empty"}, 1).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), std::string(PASSES) + BEFORE);
}

TEST_F(ValidNonerrTest, AsTheConditionOfACheckKeepsASecondErrorAway)
{
    const auto pItem = MakeItem({"empty"}, 1);
    pItem->AddOuterItem(MakeItem({"nonerr", "4"}, 1).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), std::string(PASSES) + BEFORE);
}

TEST_F(ValidNonerrTest, AsTheConditionOfACheckLetsItRunOnACleanRecord)
{
    const auto pItem = MakeItem({"empty"}, 1);
    pItem->AddOuterItem(MakeItem({"nonerr", "4"}, 1).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv, 0), std::string(REFUSES) + BEFORE + ",0001-00002-HE70005E");
}

TEST_F(ValidNonerrTest, PassesEveryBareValue)
{
    const auto pItem = MakeItem({"nonerr", ""}, 1);
    EXPECT_EQ(OnValue(*pItem, "x"), std::string(PASSES) + BEFORE);
    EXPECT_EQ(AsCondition(*pItem, ""), PASSES);
}

TEST_F(ValidNonerrTest, WithoutAListRaises)
{
    const auto pItem = MakeItem({"nonerr", "", "2"}, 1);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), std::string(RAISES) + BEFORE);
    EXPECT_EQ(AsCondition(*pItem, m_csv, 1), RAISES);
}

TEST_F(ValidNonerrTest, WithoutAListDoesNotRaiseIfAConditionDoesNotHold)
{
    const auto pItem = MakeItem({"nonerr", ""}, 1);
    pItem->AddOuterItem(MakeItem({"empty"}, 1).release());
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), std::string(PASSES) + BEFORE);
}

TEST_F(ValidNonerrTest, RaisesForNullInsteadOfAFile)
{
    const auto pItem = MakeItem({"nonerr", "5"}, 1);
    EXPECT_EQ(Told([&] { return pItem->ValidateCsv(nullptr, 0, -1); }),
              std::string(RAISES) + BEFORE);
}

TEST_F(ValidNonerrTest, LogsThatAnotherColumnIsInError)
{
    const DebugLog log;
    const auto pItem = MakeItem({"nonerr", "4"}, 1);
    EXPECT_EQ(OnRecord(*pItem, m_csv, 1), std::string(REFUSES) + BEFORE);
    EXPECT_TRUE(log.HasLine("他カラムでエラーが発生しています。")) << log.Text();
}

}  // namespace
