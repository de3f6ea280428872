#include "validator/KZCEkaValidContainYear.h"

#include "support/LogText.h"
#include "support/RecordCase.h"

namespace {

constexpr const char* REFUSED = "refuses 0001-02:03-HE70025E";

class ValidContainYearTest : public RecordCaseTest
{};

TEST_P(ValidContainYearTest, PassesAWesternYearOfTheList)
{
    EXPECT_EQ(ToldOnRecord(), GetParam().strTold);
}

TEST_P(ValidContainYearTest, HoldsAsAConditionForAYearOfTheList)
{
    EXPECT_EQ(ToldAsCondition(), ConditionTold());
}

constexpr ItemText YEARS = {"containyear", "2016 2018 2019 2020"};

const RecordCase CASES[] = {
    {"First", YEARS, {"001", "4", "28"}, PASSES},
    {"Middle", YEARS, {"001", "4", "30"}, PASSES},
    {"Last", YEARS, {"001", "5", "2"}, PASSES},
    {"NotListed", YEARS, {"001", "4", "29"}, REFUSED},
    {"ListedYearInTheOldEra", YEARS, {"001", "4", "32"}, PASSES},
    {"YearNumberAlone", {"containyear", "30"}, {"001", "4", "30"}, REFUSED},
    {"BeginningOfAListedText", {"containyear", "20180"}, {"001", "4", "30"}, REFUSED},
    {"RunsOfBlanksSeparate", {"containyear", "  2017   2018 "}, {"001", "4", "30"}, PASSES},
    {"BlanksOnly", {"containyear", " "}, {"001", "4", "30"}, REFUSED},
    {"LetterInTheYearIsYear0", {"containyear", "1988"}, {"001", "4", "x"}, PASSES},
    {"YearMissing", {"containyear", "1988"}, {"001", "4"}, PASSES},
    {"EraEmpty", YEARS, {"001", "", "30"}, REFUSED},
    {"Era6", YEARS, {"001", "6", "30"}, REFUSED},
    {"YearOfThreeDigits", YEARS, {"001", "4", "300"}, REFUSED},
    {"NoList", {"containyear"}, {"001", "4", "30"}, RAISES},
    {"NoListAndNoYear", {"containyear"}, {"001", "", "30"}, REFUSED},
};

INSTANTIATE_TEST_SUITE_P(Years, ValidContainYearTest, testing::ValuesIn(CASES), CaseName());

using ValidContainYearTextTest = ResetState;

TEST_F(ValidContainYearTextTest, ABareValueIsAYearText)
{
    const auto pItem = MakeItem(YEARS);
    EXPECT_EQ(OnValue(*pItem, "平成30"), PASSES);
    EXPECT_EQ(OnValue(*pItem, "2018"), PASSES);
    EXPECT_EQ(OnValue(*pItem, "2017"), Verdict(HE70025E));
    EXPECT_EQ(OnValue(*pItem, ""), Verdict(HE70025E));
}

TEST_F(ValidContainYearTextTest, LogsAMissingList)
{
    const auto pItem = MakeItem({"containyear"});
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnValue(*pItem, "2018"), RAISES); }),
              "定義体パラメータ指定エラー。\n");
}

TEST_F(ValidContainYearTextTest, LogsAYearThatIsNone)
{
    const auto pItem = MakeItem(YEARS);
    pItem->SetErrOutput(false);
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(OnValue(*pItem, "x"), REFUSES); }),
              "日付の変換に失敗しました。:szValue=x/01/01\n日付の変換に失敗しました。\n");
}

}  // namespace
