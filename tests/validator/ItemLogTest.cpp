// What each check item writes to the log, whole: when it refuses a cell, when it refuses as a
// condition, when a parameter can't serve. An entry's function stands in brackets.
#include <ostream>
#include <string>

#include "KZCEkaTaxOffices.h"
#include "support/Bundle.h"
#include "support/RecordCase.h"
#include "support/WholeLog.h"

namespace {

const std::string CONDITION = "外部条件チェックアウトです。\n";
const std::string BAD_PARAMETER = "定義体パラメータ指定エラー。\n";
const std::string NO_FILE = "引数エラー。CSV格納情報が不正です。\n";

/// An entry of a class's function. \param strText  With its line feed, or empty.
std::string Entry(const std::string& strClass,
                  const std::string& strFunction,
                  const std::string& strText = "")
{
    return "[KZCEkaValid" + strClass + "::" + strFunction + "]\n" + strText;
}

std::string Rule(const std::string& strClass, const std::string& strText = "")
{
    return Entry(strClass, "_validate", strText);
}

/// The trace of a value refused in the first record.
std::string Traced(const char* szMessage, const char* szColumn, const std::string& strValue)
{
    return std::string("Valid Message[") + szMessage + "\nrecord=0001 column=" + szColumn +
           " value=" + strValue + "\n";
}

constexpr const char* M1 = "HE70001E]  値が入力されていません。";
constexpr const char* M2 = "HE70002E]  入力された局署名称は正しくありません。";
constexpr const char* M3 = "HE70003E]  全角カタカナ以外の文字が含まれています。";
constexpr const char* M4 = "HE70004E]  半角数字以外の文字が含まれています。";
constexpr const char* M5 = "HE70005E]  入力が不要な項目です。";
constexpr const char* M6 = "HE70006E]  使用できない文字が含まれています。";
constexpr const char* M7 = "HE70007E]  入力できる文字数を超えています。";
constexpr const char* M8 = "HE70008E]  入力された桁数が正しくありません。";
constexpr const char* M9 = "HE70009E]  値の範囲外です。";
constexpr const char* M10 = "HE70010E]  入力内容が正しくありません。";
constexpr const char* M11 = "HE70011E]  入力された局署番号は正しくありません。";
constexpr const char* M12 = "HE70012E]  入力された日付は実在しません。";
constexpr const char* M13 = "HE70013E]  ファイルが存在しません。";
constexpr const char* M15 = "HE70015E]  拡張子が正しくありません。";
constexpr const char* M25 = "HE70025E]  入力された日付の関連性が正しくありません。";
constexpr const char* M34 = "HE70034E]  全角カタカナ及び英数字以外の文字が含まれています。";
constexpr const char* M35 = "HE70035E]  半角英数字以外の文字が含まれています。";
constexpr const char* M36 = "HE99999E]  エラーが発生しました。";

class ItemLogFixture : public ResetState
{
protected:
    ItemLogFixture() { KZCEkaTaxOffices::instance()->Initialize(); }

private:
    const Bundle m_bundle;
};

// --- refusals ---

/// The item stands in column 2 and refuses the record.
struct RefusalLogCase
{
    const char* szName;
    ItemText text;
    KZCEkaCsvFile::Record record;
    std::string strRule;   ///< what the rule writes, as a check and as a condition
    std::string strTrace;  ///< what the record of the error writes
    bool bTracesAsCondition = false;
};

void PrintTo(const RefusalLogCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class RefusalLogTest : public ItemLogFixture, public testing::WithParamInterface<RefusalLogCase>
{
protected:
    const TableCsv m_csv{GetParam().record};
};

TEST_P(RefusalLogTest, IsTheRulesEntriesAndTheTrace)
{
    const auto pItem = MakeItem(GetParam().text, CASE_COLUMN);
    const DebugLog log;
    EXPECT_EQ(pItem->ValidateCsv(&m_csv, 0, -1), STATUS_NG);
    EXPECT_EQ(WholeLog(log), GetParam().strRule + GetParam().strTrace);
}

TEST_P(RefusalLogTest, AsAConditionIsTheRulesEntriesAndTheConditions)
{
    const auto pItem = MakeItem(GetParam().text, CASE_COLUMN);
    const DebugLog log;
    EXPECT_EQ(pItem->ValidateOuter(&m_csv, 0, -1), STATUS_NG);
    EXPECT_EQ(WholeLog(log),
              GetParam().strRule +
                  (GetParam().bTracesAsCondition ? GetParam().strTrace : std::string()) +
                  CONDITION);
}

const std::string OUT_OF_RANGE = Entry("Date", "_rangeDate", "szValueの値が範囲外です。\n");
const std::string NO_SUCH_DATE = Entry("Date", "_rangeDate", "szValueが実在しない日です。\n");
const std::string NO_MIN = Entry("Date", "_rangeDate", "szMinが実在しない日です。\n");
const std::string NO_MAX = Entry("Date", "_rangeDate", "szMaxが実在しない日です。\n");
constexpr const char* ALL_OUT = "すべてのチェック範囲で範囲外です。\n";

const KZCEkaCsvFile::Record DAY = {"001", "4", "30", "9", "1", "4", "29"};
const KZCEkaCsvFile::Record NO_DAY = {"001", "4", "30", "2", "30", "4", "29"};

const RefusalLogCase REFUSALS[] = {
    // Characters and lengths: each refusal is an entry.
    {"Number", {"number"}, {"001", "x"}, Rule("Number"), Traced(M4, "00002", "x")},
    {"Alnum", {"alnum"}, {"001", "_"}, Rule("Alnum"), Traced(M6, "00002", "_")},
    {"Alnumsbl", {"alnumsbl"}, {"001", "\t"}, Rule("Alnumsbl"), Traced(M35, "00002", "\t")},
    {"Alphabet", {"alphabet"}, {"001", "1"}, Rule("Alphabet"), Traced(M6, "00002", "1")},
    {"MultibyteOfOddLength",
     {"multibyte"},
     {"001", "あ"},
     Rule("Multibyte"),
     Traced(M36, "00002", "あ")},
    {"MultibyteHalfWidth",
     {"multibyte"},
     {"001", "ab"},
     Rule("Multibyte"),
     Traced(M36, "00002", "ab")},
    {"MultibyteBoth",
     {"multibyte"},
     {"001", "a"},
     Rule("Multibyte") + Rule("Multibyte"),
     Traced(M36, "00002", "a")},
    {"Multikana", {"multikana"}, {"001", "ab"}, Rule("Multikana"), Traced(M3, "00002", "ab")},
    // The length is an entry of its own, before the stray byte refuses.
    {"MultikanaOfOddLength",
     {"multikana"},
     {"001", "a"},
     Rule("Multikana") + Rule("Multikana"),
     Traced(M3, "00002", "a")},
    {"Multikana_2", {"multikana_2"}, {"001", ","}, Rule("Multikana_2"), Traced(M34, "00002", ",")},
    {"Lvystring", {"lvystring"}, {"001", "a\nb"}, Rule("Lvystring"), Traced(M6, "00002", "a\nb")},
    {"Istring", {"istring"}, {"001", "a"}, Rule("Istring", "97\n"), Traced(M6, "00002", "a")},
    {"Charlength", {"charlength", "2"}, {"001", "a"}, Rule("Charlength"), Traced(M7, "00002", "a")},
    {"Length", {"length", "2"}, {"001", "a"}, Rule("Length"), Traced(M8, "00002", "a")},
    // Presence and sets: the trace tells enough, but where several cells or numbers are at work.
    {"Exist", {"exist"}, {"001", ""}, "", Traced(M1, "00002", "")},
    {"Empty", {"empty"}, {"001", "x"}, "", Traced(M5, "00002", "x")},
    {"Exist_2OfAnotherKind", {"exist_2"}, {"001", "x"}, "", Traced(M12, "00002", "x")},
    {"Exist_2OfAGroup", {"exist_2"}, {"006", "x", ""}, "", Traced(M12, "00002", "x"), true},
    {"RangeOfAnEmptyCell",
     {"range", "", "1", "5"},
     {"001", ""},
     Rule("Range"),
     Traced(M9, "00002", "")},
    {"RangeOfNoNumber",
     {"range", "", "1", "5"},
     {"001", "x"},
     Rule("Range"),
     Traced(M9, "00002", "x")},
    {"Range", {"range", "", "1", "5"}, {"001", "6"}, Rule("Range"), Traced(M9, "00002", "6")},
    {"Contain", {"contain", "1 2"}, {"001", "3"}, "", Traced(M9, "00002", "3")},
    {"Except", {"except", "1 2"}, {"001", "1"}, "", Traced(M36, "00002", "1")},
    {"ContainColumn", {"containcolumn", "3"}, {"001", "a", "b"}, "", Traced(M25, "00002", "a")},
    {"ExceptColumn", {"exceptcolumn", "3"}, {"001", "a", "a"}, "", Traced(M10, "00002", "a")},
    {"AnyExist", {"anyexist", "3 4"}, {"001", "a", "", ""}, "", Traced(M1, "00002", "a")},
    {"AnyContain",
     {"anycontain", "3", "1", "5"},
     {"001", "a", "6"},
     Rule("AnyContain"),
     Traced(M9, "00002", "a")},
    {"AnyContainOfNoNumber",
     {"anycontain", "3 4", "1", "5"},
     {"001", "a", "x", "3"},
     Rule("AnyContain"),
     Traced(M9, "00002", "a")},
    // Identifiers and paths.
    {"CheckDigitLetter", {"checkdigit", "kojin"}, {"001", "x"}, "", Traced(M4, "00002", "x")},
    {"CheckDigitLength", {"checkdigit", "kojin"}, {"001", "1"}, "", Traced(M8, "00002", "1")},
    {"CheckDigit",
     {"checkdigit", "kojin"},
     {"001", "123456789010"},
     "",
     Traced(M10, "00002", "123456789010")},
    {"DigitEqualityPosition",
     {"digitequality", "2", "", "9"},
     {"001", "9"},
     Rule("DigitEquality"),
     Traced(M10, "00002", "9")},
    {"DigitEqualityAllowed",
     {"digitequality", "1", "", "9"},
     {"001", "8"},
     "",
     Traced(M10, "00002", "8")},
    {"DigitEqualityForbidden",
     {"digitequality", "1", "9"},
     {"001", "9"},
     "",
     Traced(M10, "00002", "9")},
    {"Taxoffice", {"taxoffice"}, {"001", "99999"}, "", Traced(M11, "00002", "99999")},
    {"Taxofficenm",
     {"taxofficenm"},
     {"001", "青葉", "99999"},
     Rule("Taxofficenm"),
     Traced(M2, "00002", "青葉")},
    {"Extension", {"extension", ".txt"}, {"001", "a.csv"}, "", Traced(M15, "00002", "a.csv")},
    {"ExistpathEmpty", {"existpath", "file"}, {"001", ""}, "", Traced(M1, "00002", "")},
    {"ExistpathFile", {"existpath", "file"}, {"001", "/no/a"}, "", Traced(M13, "00002", "/no/a")},
    {"ExistpathDir", {"existpath", "dir"}, {"001", "/no/a"}, "", Traced(M10, "00002", "/no/a")},
    // Dates.
    {"Existdate", {"existdate"}, NO_DAY, "", Traced(M12, "00002", "平成30/ 2/30")},
    {"ExistdateBehindHeisei32",
     {"existdate"},
     {"001", "4", "32", "4", "1"},
     Rule("Existdate"),
     Traced(M12, "00002", "平成32/ 4/ 1")},
    {"ExistdateInHeisei33",
     {"existdate"},
     {"001", "4", "33", "1", "1"},
     Rule("Existdate"),
     Traced(M12, "00002", "平成33/ 1/ 1")},
    {"Existdate_2", {"existdate_2"}, NO_DAY, "", Traced(M12, "00002", "平成30/ 2/30")},
    // The record covers the columns of year and day, the trace names the item's own.
    {"ExistDateYYYYMMDD",
     {"existdateYYYYMMDD", "3 4 5"},
     {"001", "", "2019", "2", "30"},
     "",
     Traced(M12, "00002", "2019/02/30"),
     true},
    {"Rangedate",
     {"rangedate", "", "20170101 20160101", "20170131 20160131"},
     DAY,
     OUT_OF_RANGE + OUT_OF_RANGE + Rule("Rangedate", ALL_OUT),
     Traced(M10, "00002", "2018/ 9/ 1")},
    {"RangedateNoDate",
     {"rangedate", "", "20170101 20160101", "20170131 20160131"},
     NO_DAY,
     NO_SUCH_DATE + Rule("Rangedate") + Rule("Rangedate", ALL_OUT),
     Traced(M12, "00002", "2018/ 2/30")},
    {"RangedateWithoutRanges",
     {"rangedate"},
     DAY,
     Rule("Rangedate", ALL_OUT),
     Traced(M10, "00002", "2018/ 9/ 1")},
    {"Rangedate_2",
     {"rangedate_2", "", "20170401", "6"},
     DAY,
     OUT_OF_RANGE + Rule("Rangedate_2"),
     Traced(M25, "00006", "平成29")},
    {"Rangedate_3", {"rangedate_3", "6"}, DAY, OUT_OF_RANGE, Traced(M25, "00002", "2018/ 9/ 1")},
    {"Rangedate_4",
     {"rangedate_4", "", "20170101 20180101", "20170131 20181231"},
     DAY,
     OUT_OF_RANGE + Rule("Rangedate_4", ALL_OUT),
     Traced(M10, "00002", "2018/ 9/ 1")},
    {"Rangedate_4NoDate",
     {"rangedate_4", "", "20170101", "20170131"},
     NO_DAY,
     NO_SUCH_DATE + Rule("Rangedate_4") + Rule("Rangedate_4", ALL_OUT),
     Traced(M12, "00002", "2018/ 2/30")},
    {"Rangebasedate",
     {"rangebasedate", "1_2", "2019/01/01", ""},
     DAY,
     OUT_OF_RANGE,
     Traced(M25, "00002", "2018/ 9/ 1")},
    {"RangebasedateNoDate",
     {"rangebasedate", "", "2", ""},
     NO_DAY,
     NO_SUCH_DATE,
     Traced(M12, "00002", "2018/ 2/30")},
    {"RangebasedateBadReference",
     {"rangebasedate", "1", "2019/01/01", ""},
     DAY,
     "",
     Traced(M25, "00002", "")},
    {"Rangebasedate_2",
     {"rangebasedate_2", "", "2", ""},
     DAY,
     Rule("Rangebasedate_2", "szValueの値が範囲外です。\n"),
     Traced(M25, "00002", "2018/ 9/ 1")},
    {"Rangebasedate_2NoDate",
     {"rangebasedate_2", "", "2", ""},
     NO_DAY,
     Rule("Rangebasedate_2", "szValueが実在しない日です。\n"),
     Traced(M25, "00002", "2018/ 2/30")},
    {"Rangebasedate_2WithoutBounds",
     {"rangebasedate_2"},
     DAY,
     Rule("Rangebasedate_2", "チェック範囲が指定されていません。\n"),
     Traced(M36, "00002", "2018/ 9/ 1")},
    {"Equalyear", {"equalyear", "6"}, DAY, Rule("Equalyear"), Traced(M25, "00002", "平成30")},
    {"ContainYear", {"containyear", "2017"}, DAY, "", Traced(M25, "00002", "平成30")},
    {"ContainYearNoYear",
     {"containyear", "2017"},
     {"001", "4", "300"},
     Entry("Date", "StringToSystemTime", "日付の変換に失敗しました。:szValue=平成300/01/01\n") +
         Rule("ContainYear", "日付の変換に失敗しました。\n"),
     Traced(M25, "00002", "平成300")},
    {"Onward", {"onward", "20190501"}, DAY, "", Traced(M10, "00002", "2018/ 9/ 1")},
    {"OnwardNoDate", {"onward", "20190501"}, NO_DAY, "", Traced(M12, "00002", "2018/ 2/30")},
    {"CompDate", {"compdate", "20190501"}, DAY, "", Traced(M10, "00002", "2018/ 9/ 1")},
    {"CompDateMin", {"compdate", "", "20190501"}, DAY, "", Traced(M10, "00002", "2018/ 9/ 1")},
    {"CompDateMax", {"compdate", "", "", "20170501"}, DAY, "", Traced(M10, "00002", "2018/ 9/ 1")},
    {"CompDateNoDate", {"compdate", "20190501"}, NO_DAY, "", Traced(M12, "00002", "2018/ 2/30")},
    {"AgeBelowMin",
     {"age", "2 6 1 9 1", "1"},
     DAY,
     Rule("Age"),
     Traced(M10, "00002", "2018/ 9/ 1")},
    {"AgeAboveMax",
     {"age", "2 6 3 9 1", "", "1"},
     DAY,
     Rule("Age"),
     Traced(M10, "00002", "2018/ 9/ 1")},
    {"AgeOfTooFewWords",
     {"age", "2 6"},
     DAY,
     Rule("Age", "日付の変換に失敗しました。\n"),
     Traced(M10, "00002", "2018/ 9/ 1")},
};

INSTANTIATE_TEST_SUITE_P(Keywords, RefusalLogTest, testing::ValuesIn(REFUSALS), CaseName());

// --- refusals of a bare value, and passes that leave a line ---

TEST_F(ItemLogFixture, NonerrWritesItsEntryAndNoTrace)
{
    KZCValidResult::instance()->SetResult(HE70001E, 1, 4, SINGLE_COLUMN);
    const TableCsv csv{{"001", "x"}};
    const DebugLog log;
    EXPECT_EQ(MakeItem({"nonerr", "4"}, CASE_COLUMN)->ValidateCsv(&csv, 0, -1), STATUS_NG);
    EXPECT_EQ(WholeLog(log),
              Entry("Nonerr", "ValidateCsv", "他カラムでエラーが発生しています。\n"));
}

TEST_F(ItemLogFixture, NonerrAsAConditionWritesTheConditionsEntryAlone)
{
    KZCValidResult::instance()->SetResult(HE70001E, 1, 4, SINGLE_COLUMN);
    const TableCsv csv{{"001", "x"}};
    const DebugLog log;
    EXPECT_EQ(MakeItem({"nonerr", "4"}, CASE_COLUMN)->ValidateOuter(&csv, 0, -1), STATUS_NG);
    EXPECT_EQ(WholeLog(log), CONDITION);
}

TEST_F(ItemLogFixture, EqualyearTellsAboutEachYearThatIsNone)
{
    const TableCsv csv{{"001", "4", "300", "4", "400"}};
    const DebugLog log;
    EXPECT_EQ(OnRecord(*MakeItem({"equalyear", "4"}, CASE_COLUMN), csv), PASSES);
    EXPECT_EQ(WholeLog(log), Entry("Date", "StringToSystemTime",
                                   "日付の変換に失敗しました。:szValue=平成300/01/01\n") +
                                 Entry("Date", "StringToSystemTime",
                                       "日付の変換に失敗しました。:szValue=平成400/01/01\n") +
                                 Rule("Equalyear", "日付の変換に失敗しました。\n"));
}

TEST_F(ItemLogFixture, Rangedate_4WritesNothingForAnEmptyText)
{
    const DebugLog log;
    EXPECT_EQ(MakeItem({"rangedate_4", "", "20180101", "20181231"})->ValidateOuter(""), STATUS_NG);
    EXPECT_EQ(WholeLog(log), CONDITION);
}

// --- errcolumn ---

struct ErrColumnCase
{
    const char* szName;
    ItemText text;
    std::string strRule;
    const char* szValue;
};

void PrintTo(const ErrColumnCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ErrColumnTraceTest : public ItemLogFixture, public testing::WithParamInterface<ErrColumnCase>
{};

TEST_P(ErrColumnTraceTest, NamesTheFirstColumnOfTheRecord)
{
    const TableCsv csv{DAY};
    const auto pItem = MakeItem(GetParam().text, CASE_COLUMN);
    pItem->SetErrColumn("12");
    const DebugLog log;
    EXPECT_EQ(OnRecord(*pItem, csv), "refuses 0001-12:15-HE70025E");
    EXPECT_EQ(WholeLog(log), GetParam().strRule + Traced(M25, "00012", GetParam().szValue));
}

const ErrColumnCase WITH_ERR_COLUMN[] = {
    {"ContainYear", {"containyear", "2017"}, "", "平成30"},
    {"Rangebasedate", {"rangebasedate", "1_2", "2019/01/01"}, OUT_OF_RANGE, "2018/ 9/ 1"},
    {"Rangebasedate_2",
     {"rangebasedate_2", "", "2"},
     Rule("Rangebasedate_2", "szValueの値が範囲外です。\n"),
     "2018/ 9/ 1"},
};

INSTANTIATE_TEST_SUITE_P(Keywords,
                         ErrColumnTraceTest,
                         testing::ValuesIn(WITH_ERR_COLUMN),
                         CaseName());

TEST_F(ItemLogFixture, ErrRowIsTracedInPlaceOfTheRecord)
{
    const TableCsv csv{DAY};
    const auto pItem = MakeItem({"rangebasedate", "1_2", "2019/01/01"}, CASE_COLUMN);
    pItem->SetErrRow("7");
    const DebugLog log;
    EXPECT_EQ(OnRecord(*pItem, csv), "refuses 0007-02:05-HE70025E");
    EXPECT_EQ(WholeLog(log), OUT_OF_RANGE + "Valid Message[" + M25 +
                                 "\nrecord=0007 column=00002 value=2018/ 9/ 1\n");
}

// --- parameters that can't serve ---

struct FaultLogCase
{
    const char* szName;
    ItemText text;
    KZCEkaCsvFile::Record record;
    std::string strClass;
    std::string strBefore;  ///< what is written before the fault
    std::string strText = BAD_PARAMETER;
    bool bInTheRule = true;  ///< otherwise in the operation that was called
};

void PrintTo(const FaultLogCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class FaultLogTest : public ItemLogFixture, public testing::WithParamInterface<FaultLogCase>
{
protected:
    std::string Expected(const char* szOperation) const
    {
        const FaultLogCase& param = GetParam();
        return param.strBefore +
               Entry(param.strClass, param.bInTheRule ? "_validate" : szOperation, param.strText);
    }

    const TableCsv m_csv{GetParam().record};
};

TEST_P(FaultLogTest, IsOneEntryOfTheRule)
{
    const auto pItem = MakeItem(GetParam().text, CASE_COLUMN);
    const DebugLog log;
    EXPECT_EQ(OnRecord(*pItem, m_csv), RAISES);
    EXPECT_EQ(WholeLog(log), Expected("ValidateCsv"));
}

TEST_P(FaultLogTest, IsTheSameAsACondition)
{
    const auto pItem = MakeItem(GetParam().text, CASE_COLUMN);
    const DebugLog log;
    EXPECT_EQ(AsCondition(*pItem, m_csv), RAISES);
    EXPECT_EQ(WholeLog(log), Expected("ValidateOuter"));
}

const FaultLogCase FAULTS[] = {
    {"Charlength", {"charlength"}, {"001", "a"}, "Charlength", ""},
    {"Length", {"length"}, {"001", "a"}, "Length", ""},
    {"Contain", {"contain"}, {"001", "a"}, "Contain", ""},
    {"Except", {"except"}, {"001", "a"}, "Except", ""},
    {.szName = "ContainColumn",
     .text = {"containcolumn", "0"},
     .record = {"001", "a"},
     .strClass = "ContainColumn",
     .strBefore = "",
     .bInTheRule = false},
    {.szName = "ExceptColumn",
     .text = {"exceptcolumn", "0"},
     .record = {"001", "a"},
     .strClass = "ExceptColumn",
     .strBefore = "",
     .bInTheRule = false},
    {"AnyExist", {"anyexist"}, {"001", "a"}, "AnyExist", ""},
    {"AnyContain", {"anycontain", "", "1", "5"}, {"001", "3"}, "AnyContain", ""},
    {"AnyContainMin", {"anycontain", "2", "x", "5"}, {"001", "3"}, "AnyContain", ""},
    {"AnyContainMax", {"anycontain", "2", "1", "x"}, {"001", "3"}, "AnyContain", ""},
    {"AnyContainOrder", {"anycontain", "2", "5", "1"}, {"001", "3"}, "AnyContain", ""},
    {"RangeMin", {"range", "", "x", "5"}, {"001", "3"}, "Range", ""},
    {"RangeMax", {"range", "", "1", "x"}, {"001", "3"}, "Range", ""},
    {"RangeOrder", {"range", "", "5", "1"}, {"001", "3"}, "Range", ""},
    {"Nonerr", {"nonerr"}, {"001", "a"}, "Nonerr", ""},
    {"CheckDigit", {"checkdigit"}, {"001", "1"}, "CheckDigit", ""},
    {"CheckDigitKind", {"checkdigit", "kojin3"}, {"001", "1"}, "CheckDigit", ""},
    {"DigitEquality", {"digitequality", "", "", "9"}, {"001", "1"}, "DigitEquality", ""},
    {"DigitEqualityLists", {"digitequality", "1"}, {"001", "1"}, "DigitEquality", ""},
    {"Extension", {"extension"}, {"001", "a.txt"}, "Extension", ""},
    {"Existpath", {"existpath", "folder"}, {"001", "/"}, "Existpath", ""},
    {"ExistDateYYYYMMDD", {"existdateYYYYMMDD"}, DAY, "ExistDateYYYYMMDD", ""},
    {"ExistDateYYYYMMDDCount",
     {"existdateYYYYMMDD", "2 3"},
     DAY,
     "ExistDateYYYYMMDD",
     "",
     "定義体パラメータ不足。\n"},
    {"ExistDateYYYYMMDDNumber", {"existdateYYYYMMDD", "2 x 4"}, DAY, "ExistDateYYYYMMDD", "", ""},
    {"RangedateMin", {"rangedate", "", "20181301", "20181231"}, DAY, "Rangedate", NO_MIN},
    {"RangedateMax", {"rangedate", "", "20180101", "20181301"}, DAY, "Rangedate", NO_MAX},
    {"RangedateTooShort", {"rangedate", "", "101", "331"}, DAY, "Rangedate", ""},
    {"RangedateMaxTooShort", {"rangedate", "", "20180101", "331"}, DAY, "Rangedate", ""},
    {"Rangedate_2Min", {"rangedate_2", "", "20181301", "6"}, DAY, "Rangedate_2", NO_MIN},
    {.szName = "Rangedate_3Column",
     .text = {"rangedate_3", "0"},
     .record = DAY,
     .strClass = "Rangedate_3",
     .strBefore = "",
     .bInTheRule = false},
    {"Rangedate_4Min", {"rangedate_4", "", "20181301", "20181231"}, DAY, "Rangedate_4", NO_MIN},
    {"Rangedate_4Max", {"rangedate_4", "", "20180101", "20181301"}, DAY, "Rangedate_4", NO_MAX},
    {"Rangedate_4TooShort", {"rangedate_4", "", "101", "331"}, DAY, "Rangedate_4", ""},
    {"Onward", {"onward"}, DAY, "Onward", ""},
    {"OnwardNoDate", {"onward", "20190431"}, DAY, "Onward", ""},
    {"CompDate", {"compdate"}, DAY, "CompDate", ""},
    {"CompDateNoDate", {"compdate", "20190431"}, DAY, "CompDate", ""},
    {.szName = "EqualyearColumn",
     .text = {"equalyear", "0"},
     .record = DAY,
     .strClass = "Equalyear",
     .strBefore = "",
     .bInTheRule = false},
    {"ContainYear", {"containyear"}, DAY, "ContainYear", ""},
    {.szName = "Age",
     .text = {"age"},
     .record = DAY,
     .strClass = "Age",
     .strBefore = "",
     .bInTheRule = false},
    {.szName = "AgeYearColumn",
     .text = {"age", "2 0 0 1 1"},
     .record = DAY,
     .strClass = "Age",
     .strBefore = "",
     .bInTheRule = false},
};

INSTANTIATE_TEST_SUITE_P(Keywords, FaultLogTest, testing::ValuesIn(FAULTS), CaseName());

// As a condition it doesn't test the column.
TEST_F(ItemLogFixture, Rangedate_2NamesAColumnBelowOneAsACheckAlone)
{
    const TableCsv csv{DAY};
    const DebugLog log;
    EXPECT_EQ(OnRecord(*MakeItem({"rangedate_2", "", "20170401", "0"}, CASE_COLUMN), csv), RAISES);
    EXPECT_EQ(WholeLog(log), Entry("Rangedate_2", "ValidateCsv", BAD_PARAMETER));
}

// --- faults of what the rules ask ---

TEST_F(ItemLogFixture, ATextThatIsNoUtf8IsAnEntryOfTheRuleToo)
{
    for (const auto& [szKeyword, szClass] :
         {std::pair("lvystring", "Lvystring"), std::pair("istring", "Istring")}) {
        const DebugLog log;
        const auto pItem = MakeItem({szKeyword});
        pItem->SetErrOutput(false);
        const std::string strTold = OnValue(*pItem, "\xe3\x81");
        const bool bRaises = std::string_view(szKeyword) == "lvystring";
        EXPECT_EQ(strTold, bRaises ? RAISES : REFUSES);
        EXPECT_TRUE(WholeLog(log).ends_with(bRaises ? Rule(szClass) : Rule(szClass, "58241\n")))
            << WholeLog(log);
    }
}

using UnreadOfficesTest = ResetState;

TEST_F(UnreadOfficesTest, OfficesThatHaveNotBeenReadAreAnEntryOfTheRuleToo)
{
    const TableCsv csv{{"001", "青葉", "00101"}};
    {
        const DebugLog log;
        EXPECT_EQ(OnValue(*MakeItem({"taxoffice"}), "00101"), RAISES);
        EXPECT_TRUE(WholeLog(log).ends_with(Rule("Taxoffice"))) << WholeLog(log);
    }
    const DebugLog log;
    EXPECT_EQ(OnRecord(*MakeItem({"taxofficenm"}, CASE_COLUMN), csv), RAISES);
    EXPECT_TRUE(WholeLog(log).ends_with(Rule("Taxofficenm"))) << WholeLog(log);
}

// --- null instead of a file ---

struct NoFileCase
{
    const char* szName;
    ItemText text;
    const char* szClass;  ///< whose operations the item runs
};

void PrintTo(const NoFileCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class NoFileLogTest : public ItemLogFixture, public testing::WithParamInterface<NoFileCase>
{};

TEST_P(NoFileLogTest, IsOneEntryOfTheOperation)
{
    const auto pItem = MakeItem(GetParam().text, CASE_COLUMN);
    {
        const DebugLog log;
        EXPECT_EQ(Told([&] { return pItem->ValidateCsv(nullptr, 0, -1); }), RAISES);
        EXPECT_EQ(WholeLog(log), Entry(GetParam().szClass, "ValidateCsv", NO_FILE));
    }
    const DebugLog log;
    EXPECT_EQ(Told([&] { return pItem->ValidateOuter(nullptr, 0, -1); }), RAISES);
    EXPECT_EQ(WholeLog(log), Entry(GetParam().szClass, "ValidateOuter", NO_FILE));
}

constexpr NoFileCase NO_FILES[] = {
    {"Exist", {"exist"}, "Item"},
    {"Exist_2", {"exist_2"}, "Item"},
    {"AnyExist", {"anyexist", "2"}, "Item"},
    {"ContainColumn", {"containcolumn", "0"}, "ContainColumn"},
    {"ExceptColumn", {"exceptcolumn", "0"}, "ExceptColumn"},
    {"Nonerr", {"nonerr"}, "Nonerr"},
    {"Taxofficenm", {"taxofficenm"}, "Taxofficenm"},
    {"Existdate", {"existdate"}, "Date"},
    {"Existdate_2", {"existdate_2"}, "Date"},
    {"ExistDateYYYYMMDD", {"existdateYYYYMMDD"}, "Item"},
    {"Rangedate", {"rangedate"}, "Date"},
    {"Rangedate_2", {"rangedate_2"}, "Rangedate_2"},
    {"Rangedate_3", {"rangedate_3"}, "Rangedate_3"},
    {"Rangedate_4", {"rangedate_4"}, "Date"},
    {"Rangebasedate", {"rangebasedate"}, "Rangebasedate"},
    {"Rangebasedate_2", {"rangebasedate_2"}, "Rangebasedate_2"},
    {"Equalyear", {"equalyear"}, "Equalyear"},
    {"ContainYear", {"containyear"}, "ContainYear"},
    {"Onward", {"onward"}, "Date"},
    {"CompDate", {"compdate"}, "Date"},
    {"Age", {"age"}, "Age"},
};

INSTANTIATE_TEST_SUITE_P(Keywords, NoFileLogTest, testing::ValuesIn(NO_FILES), CaseName());

}  // namespace
