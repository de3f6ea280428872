// Check keywords and their parameters, each in an item of column 7 of a form of 10 columns.
#include <gtest/gtest.h>

#include "support/LintFolder.h"

namespace host {
namespace {

struct CheckCase
{
    const char* szName;
    const char* szCheck;
    std::vector<std::string> vecRule;  ///< of all findings, which are in the check's own line
};

void PrintTo(const CheckCase& testCase, std::ostream* pOut)
{
    *pOut << testCase.szCheck;
}

class LintCheckTest : public testing::TestWithParam<CheckCase>
{};

TEST_P(LintCheckTest, FindsWhatIsWrongAndNothingElse)
{
    LintFolderText folder;
    const std::string strCheck = GetParam().szCheck;
    folder.Edit({LINT_BASE, R"(<valid id="number"/>)", strCheck});
    std::vector<std::string> vecExpected;
    for (const std::string& strRule : GetParam().vecRule)
        vecExpected.push_back(strRule + " " + LINT_BASE + ":" +
                              std::to_string(folder.LineOf(LINT_BASE, strCheck)));
    EXPECT_EQ(Brief(folder.Lint({"002"})), vecExpected);
}

const std::vector<std::string> NONE = {};
const std::vector<std::string> BAD = {"bad-parameter"};
const std::vector<std::string> TWO_BAD = {"bad-parameter", "bad-parameter"};
const std::vector<std::string> UNREAD = {"unread-attribute"};
const std::vector<std::string> MISPLACED = {"keyword-misplaced"};
const std::vector<std::string> BEYOND = {"column-beyond"};

const CheckCase KEYWORDS[] = {
    {"Known", R"(<valid id="alnum"/>)", NONE},
    {"Unknown", R"(<valid id="quux"/>)", {"unknown-keyword"}},
    {"Misspelt", R"(<valid id="nunber"/>)", {"unknown-keyword"}},
    {"InAnotherCase", R"(<valid id="Number"/>)", {"unknown-keyword"}},
    {"Missing", R"(<valid value="1"/>)", {"unknown-keyword"}},
    {"KnownMessage", R"(<valid id="number" message="HE70010E"/>)", NONE},
    {"UnknownMessage", R"(<valid id="number" message="HE70099E"/>)", {"unknown-message"}},
    {"MessageOfSilentCheck", R"(<valid id="nonerr" value="2" message="HE70010E"/>)", UNREAD},
    {"ValueOfCheckWithout", R"(<valid id="number" value="5"/>)", UNREAD},
    {"MinOfLength", R"(<valid id="length" max="5" min="1"/>)", UNREAD},
    {"MaxOfNonerr", R"(<valid id="nonerr" value="2" max="1"/>)", UNREAD},
    {"ErrColumnOfPlainCheck", R"(<valid id="number" errcolumn="2"/>)", UNREAD},
    {"ErrRowOfContainYear", R"(<valid id="containyear" value="2020" errrow="2"/>)", UNREAD},
    {"ExistpathIsForArguments", R"(<valid id="existpath" value="file"/>)", MISPLACED},
    {"ExtensionIsForArguments", R"(<valid id="extension" value=".csv"/>)", MISPLACED},
    {"Exist2IsForOtherForms", R"(<valid id="exist_2"/>)", MISPLACED},
    {"OfficeNameAsCheck", R"(<valid id="taxofficenm" column="9"/>)", NONE},
    {"OfficeNameAsCondition", R"(<valid id="number"><outer id="taxofficenm" column="9"/></valid>)",
     MISPLACED},
    {"ConditionWithColumn", R"(<valid id="number"><outer id="exist" column="7"/></valid>)", NONE},
    {"ConditionWithoutColumn",
     R"(<valid id="number"><outer id="exist"/></valid>)",
     {"outer-dropped"}},
    {"ConditionWithColumnZero",
     R"(<valid id="number"><outer id="exist" column="0"/></valid>)",
     {"outer-dropped"}},
    {"UnknownCondition",
     R"(<valid id="number"><outer id="exists" column="7"/></valid>)",
     {"unknown-keyword"}},
    {"MessageOfCondition",
     R"(<valid id="number"><outer id="exist" column="7" message="HE70001E"/></valid>)", UNREAD},
    {"ConditionOfCondition",
     R"(<valid id="number"><outer id="exist" column="7"><outer id="exist" column="7"/></outer></valid>)",
     {"unknown-element"}},
};
INSTANTIATE_TEST_SUITE_P(Keywords,
                         LintCheckTest,
                         testing::ValuesIn(KEYWORDS),
                         [](const auto& testCase) { return testCase.param.szName; });

const CheckCase PLACES[] = {
    {"OwnColumn", R"(<valid id="number" column="10"/>)", NONE},
    {"OwnColumnBeyond", R"(<valid id="number" column="11"/>)", BEYOND},
    {"ConditionColumnBeyond", R"(<valid id="number"><outer id="exist" column="11"/></valid>)",
     BEYOND},
    {"LastDate", R"(<valid id="existdate"/>)", NONE},
    {"DateBeyond", R"(<valid id="existdate" column="8"/>)", BEYOND},
    {"LastYear", R"(<valid id="containyear" column="9" value="2020"/>)", NONE},
    {"YearBeyond", R"(<valid id="containyear" column="10" value="2020"/>)", BEYOND},
    {"LastOfficeName", R"(<valid id="taxofficenm" column="9"/>)", NONE},
    {"OfficeNameBeyond", R"(<valid id="taxofficenm" column="10"/>)", BEYOND},
    {"LastErrColumn", R"(<valid id="containyear" value="2020" errcolumn="7"/>)", NONE},
    {"ErrColumnBeyond",
     R"(<valid id="containyear" value="2020" errcolumn="8"/>)",
     {"error-place-beyond"}},
    {"ErrColumnZero",
     R"(<valid id="containyear" value="2020" errcolumn="0"/>)",
     {"error-place-beyond"}},
    {"LastErrRow", R"(<valid id="rangebasedate" min="3" errrow="5000"/>)", NONE},
    {"ErrRowBeyond",
     R"(<valid id="rangebasedate" min="3" errrow="5001"/>)",
     {"error-place-beyond"}},
    {"ColumnIsNoNumber", R"(<valid id="number" column="x"/>)", {"bad-number"}},
};
INSTANTIATE_TEST_SUITE_P(Places,
                         LintCheckTest,
                         testing::ValuesIn(PLACES),
                         [](const auto& testCase) { return testCase.param.szName; });

const CheckCase LENGTHS[] = {
    {"LengthMax", R"(<valid id="length" max="1"/>)", NONE},
    {"LengthValue", R"(<valid id="length" value="7"/>)", NONE},
    {"LengthWithoutLimit", R"(<valid id="length"/>)", BAD},
    {"LengthZero", R"(<valid id="length" value="0"/>)", BAD},
    {"LengthNegative", R"(<valid id="charlength" max="-1"/>)", BAD},
    {"LengthNoNumber", R"(<valid id="charlength" max="ten"/>)", BAD},
    {"LengthOfBothKinds", R"(<valid id="charlength" value="5" max="6"/>)", BAD},
};
INSTANTIATE_TEST_SUITE_P(Lengths,
                         LintCheckTest,
                         testing::ValuesIn(LENGTHS),
                         [](const auto& testCase) { return testCase.param.szName; });

const CheckCase VALUES[] = {
    {"List", R"(<valid id="contain" value="1 2 男"/>)", NONE},
    {"ListMissing", R"(<valid id="contain"/>)", BAD},
    {"ListBlank", R"(<valid id="except" value="  "/>)", BAD},
    {"ListNotInShiftJis", R"(<valid id="contain" value="1 한"/>)", BAD},
    {"ListWithRepeat", R"(<valid id="except" value="1 2 1"/>)", BAD},
    {"LineFeedAllowed", R"(<valid id="lvystring" value="allow_LF"/>)", NONE},
    {"LineFeedMisspelt", R"(<valid id="lvystring" value="allow_lf"/>)", BAD},
    {"KindOfNumber", R"(<valid id="checkdigit" value="kojin2"/>)", NONE},
    {"KindOfNumberUnknown", R"(<valid id="checkdigit" value="mynumber"/>)", BAD},
    {"KindOfNumberMissing", R"(<valid id="checkdigit"/>)", BAD},
    {"KindOfPathUnknown",
     R"(<valid id="existpath" value="pipe"/>)",
     {"bad-parameter", "keyword-misplaced"}},
    {"ExtensionWithoutDot",
     R"(<valid id="extension" value="csv"/>)",
     {"keyword-misplaced", "bad-parameter"}},
    {"Positions", R"(<valid id="digitequality" value="1 2" max="0 1"/>)", NONE},
    {"PositionsMissing", R"(<valid id="digitequality" max="0"/>)", BAD},
    {"PositionZero", R"(<valid id="digitequality" value="0" max="0"/>)", BAD},
    {"PositionsWithoutCharacters", R"(<valid id="digitequality" value="1"/>)", BAD},
    {"PositionsWithBothLists", R"(<valid id="digitequality" value="1" min="1" max="0"/>)", BAD},
    {"PositionsWithLongCharacter", R"(<valid id="digitequality" value="1" max="10"/>)", BAD},
};
INSTANTIATE_TEST_SUITE_P(Values,
                         LintCheckTest,
                         testing::ValuesIn(VALUES),
                         [](const auto& testCase) { return testCase.param.szName; });

const CheckCase NUMBERS[] = {
    {"Range", R"(<valid id="range" min="1" max="5"/>)", NONE},
    {"RangeOfOneNumber", R"(<valid id="range" min="5" max="5"/>)", NONE},
    {"RangeUpToZero", R"(<valid id="range" min="-5"/>)", NONE},
    {"RangeWithoutLimits", R"(<valid id="range"/>)", BAD},
    {"RangeReversed", R"(<valid id="range" min="6" max="5"/>)", BAD},
    {"RangeWithoutMax", R"(<valid id="range" min="1"/>)", BAD},
    {"RangeNoNumber", R"(<valid id="range" min="1" max="5a"/>)", BAD},
    {"AnyInRange", R"(<valid id="anycontain" value="2 7" min="1" max="5"/>)", NONE},
    {"AnyInRangeReversed", R"(<valid id="anycontain" value="2 7" min="6" max="5"/>)", BAD},
    {"AnyInRangeWithoutColumns", R"(<valid id="anycontain" min="1" max="5"/>)", BAD},
    {"AnyExist", R"(<valid id="anyexist" value="2 10"/>)", NONE},
    {"AnyExistBeyond", R"(<valid id="anyexist" value="2 11"/>)", BAD},
    {"AnyExistNoNumber", R"(<valid id="anyexist" value="2,3"/>)", BAD},
    {"AnyExistWithoutColumns", R"(<valid id="anyexist"/>)", BAD},
    {"ColumnPair", R"(<valid id="containcolumn" value="8"/>)", NONE},
    {"ColumnPairWithOffset", R"(<valid id="containcolumn" value="7" max="1"/>)", NONE},
    {"ColumnPairWithItself", R"(<valid id="containcolumn" value="7"/>)", BAD},
    {"ColumnPairWithoutColumn", R"(<valid id="exceptcolumn"/>)", BAD},
    {"ColumnPairBeyond", R"(<valid id="exceptcolumn" value="11"/>)", BAD},
    {"ColumnPairOffsetNoNumber", R"(<valid id="exceptcolumn" value="8" min="a"/>)", BAD},
    {"NoError", R"(<valid id="nonerr" value="2 3" min="5000"/>)", NONE},
    {"NoErrorWithoutColumns", R"(<valid id="nonerr"/>)", BAD},
    {"NoErrorBeyond", R"(<valid id="nonerr" value="11"/>)", BAD},
    {"NoErrorInNoRecord", R"(<valid id="nonerr" value="2" min="5001"/>)", BAD},
};
INSTANTIATE_TEST_SUITE_P(Numbers,
                         LintCheckTest,
                         testing::ValuesIn(NUMBERS),
                         [](const auto& testCase) { return testCase.param.szName; });

const CheckCase DATES[] = {
    {"Onward", R"(<valid id="onward" value="20130401"/>)", NONE},
    {"OnwardMissing", R"(<valid id="onward"/>)", BAD},
    {"OnwardWithSlashes", R"(<valid id="onward" value="2013/04/01"/>)", BAD},
    {"OnwardNoDay", R"(<valid id="onward" value="20130431"/>)", BAD},
    {"OnwardLeapDay", R"(<valid id="onward" value="20200229"/>)", NONE},
    {"OnwardNoLeapDay", R"(<valid id="onward" value="20190229"/>)", BAD},
    {"Periods", R"(<valid id="rangedate" min="20130401 ****0101" max="20130430 ****1231"/>)", NONE},
    {"PeriodsMissing", R"(<valid id="rangedate" min="20130401"/>)", BAD},
    {"PeriodsUnpaired", R"(<valid id="rangedate" min="20130401 20140401" max="20130430"/>)", BAD},
    {"PeriodReversed", R"(<valid id="rangedate" min="20130501" max="20130430"/>)", BAD},
    {"PeriodHalfOwnYear", R"(<valid id="rangedate" min="****0401" max="20130430"/>)", BAD},
    {"PeriodOfLeapDay", R"(<valid id="rangedate" min="****0201" max="****0229"/>)", BAD},
    {"PeriodOfNoDay", R"(<valid id="rangedate" min="20130400" max="20130431"/>)", TWO_BAD},
    {"YearEnd", R"(<valid id="rangedate_2" min="20130401" max="3"/>)", NONE},
    {"YearEndWithoutDate", R"(<valid id="rangedate_2" max="3"/>)", BAD},
    {"YearEndWithoutColumn", R"(<valid id="rangedate_2" min="20130401"/>)", BAD},
    {"YearEndColumnBeyond", R"(<valid id="rangedate_2" min="20130401" max="10"/>)", BAD},
    {"BusinessYear", R"(<valid id="rangedate_3" value="9"/>)", NONE},
    {"BusinessYearWithoutColumn", R"(<valid id="rangedate_3"/>)", BAD},
    {"Period", R"(<valid id="rangedate_4" min="20130401" max="20130430"/>)", NONE},
    {"PeriodMissing", R"(<valid id="rangedate_4"/>)", TWO_BAD},
    {"PeriodOfOwnYear", R"(<valid id="rangedate_4" min="****0401" max="****0430"/>)", TWO_BAD},
    {"SecondPeriod", R"(<valid id="rangedate_4" min="20130401 20140401" max="20130430 20140430"/>)",
     BAD},
    {"PeriodBackwards", R"(<valid id="rangedate_4" min="20130501" max="20130430"/>)", BAD},
    {"Compared", R"(<valid id="compdate" min="20130401"/>)", NONE},
    {"ComparedWithNothing", R"(<valid id="compdate"/>)", BAD},
    {"ComparedWithTwo", R"(<valid id="compdate" min="20130401" max="20140401"/>)", BAD},
    {"ComparedWithShort", R"(<valid id="compdate" value="2013041" min="20130401"/>)", BAD},
    {"ComparedWithNoDay", R"(<valid id="compdate" value="20130431"/>)", BAD},
    {"Years", R"(<valid id="containyear" value="2019 2020"/>)", NONE},
    {"YearsMissing", R"(<valid id="containyear"/>)", BAD},
    {"YearOfTwoDigits", R"(<valid id="containyear" value="20"/>)", BAD},
    {"EqualYear", R"(<valid id="equalyear" value="3" max="1"/>)", NONE},
    {"EqualYearWithoutColumn", R"(<valid id="equalyear" max="1"/>)", BAD},
    {"EqualYearColumnBeyond", R"(<valid id="equalyear" value="10"/>)", BAD},
    {"EqualYearOffsetNoNumber", R"(<valid id="equalyear" value="3" max="one"/>)", BAD},
};
INSTANTIATE_TEST_SUITE_P(Dates, LintCheckTest, testing::ValuesIn(DATES), [](const auto& testCase) {
    return testCase.param.szName;
});

const CheckCase PLACED_DATES[] = {
    {"BetweenColumns", R"(<valid id="rangebasedate" min="3" max="7"/>)", NONE},
    {"BetweenNoColumns", R"(<valid id="rangebasedate"/>)", BAD},
    {"BetweenColumnsBeyond", R"(<valid id="rangebasedate" min="8"/>)", BAD},
    {"ReferredDate", R"(<valid id="rangebasedate" value="5000_7" min="2013/04/01"/>)", NONE},
    {"ReferredDateWithoutBounds", R"(<valid id="rangebasedate" value="1_3"/>)", BAD},
    {"ReferredDateOfNoRecord", R"(<valid id="rangebasedate" value="5001_3" max="2013/04/01"/>)",
     BAD},
    {"ReferredDateBeyond", R"(<valid id="rangebasedate" value="1_8" max="2013/04/01"/>)", BAD},
    {"ReferredDateNoReference", R"(<valid id="rangebasedate" value="1-3" max="2013/04/01"/>)", BAD},
    {"ReferredDateBoundWithoutSlashes", R"(<valid id="rangebasedate" value="1_3" max="20130401"/>)",
     BAD},
    {"BetweenCells", R"(<valid id="rangebasedate_2" value="include" min="1_3" max="3"/>)", NONE},
    {"BetweenNoCells", R"(<valid id="rangebasedate_2"/>)", BAD},
    {"BetweenUnknownWord", R"(<valid id="rangebasedate_2" value="included" min="3"/>)", BAD},
    {"BetweenThreePieces", R"(<valid id="rangebasedate_2" min="1_2_3"/>)", BAD},
    {"BetweenCellOfNoRecord", R"(<valid id="rangebasedate_2" max="0_3"/>)", BAD},
    {"BetweenCellsAsCondition",
     R"(<valid id="number"><outer id="rangebasedate_2" column="7" min="1_3"/></valid>)", BAD},
    {"WesternDate", R"(<valid id="existdateYYYYMMDD" value="2 3 4"/>)", NONE},
    {"WesternDateOfTwo", R"(<valid id="existdateYYYYMMDD" value="2 3"/>)", BAD},
    {"WesternDateWithTwoBlanks", R"(<valid id="existdateYYYYMMDD" value="2  3 4"/>)", BAD},
    {"WesternDateBeyond", R"(<valid id="existdateYYYYMMDD" value="9 10 11"/>)", BAD},
    {"WesternDateMissing", R"(<valid id="existdateYYYYMMDD"/>)", BAD},
    {"Age", R"(<valid id="age" value="3 3 0 4 1" min="20" max="64"/>)", NONE},
    {"AgeOverFourColumns", R"(<valid id="age" value="3 3 0 4 1 days" min="20"/>)", NONE},
    {"AgeWithoutValue", R"(<valid id="age" min="20"/>)", BAD},
    {"AgeOfFourWords", R"(<valid id="age" value="3 3 0 4" min="20"/>)", BAD},
    {"AgeWithOtherWord", R"(<valid id="age" value="3 3 0 4 1 day" min="20"/>)", BAD},
    {"AgeWithSevenWords", R"(<valid id="age" value="3 3 0 4 1 days 2" min="20"/>)", BAD},
    {"AgeOnNoDay", R"(<valid id="age" value="3 3 0 4 31" min="20"/>)", BAD},
    {"AgeBirthBeyond", R"(<valid id="age" value="8 3 0 4 1" min="20"/>)", BAD},
    {"AgeYearBeyond", R"(<valid id="age" value="3 10 0 4 1" min="20"/>)", BAD},
    {"AgeWithoutLimits", R"(<valid id="age" value="3 3 0 4 1"/>)", BAD},
    {"AgeReversed", R"(<valid id="age" value="3 3 0 4 1" min="65" max="20"/>)", BAD},
};
INSTANTIATE_TEST_SUITE_P(PlacedDates,
                         LintCheckTest,
                         testing::ValuesIn(PLACED_DATES),
                         [](const auto& testCase) { return testCase.param.szName; });

}  // namespace
}  // namespace host
