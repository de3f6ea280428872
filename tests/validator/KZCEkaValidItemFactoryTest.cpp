#include <iterator>
#include <ostream>
#include <string>
#include <typeinfo>

#include "support/CheckItem.h"
#include "support/DebugLog.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"
#include "support/WholeLog.h"
#include "validator/KZCEkaValidAge.h"
#include "validator/KZCEkaValidAlnum.h"
#include "validator/KZCEkaValidAlnumsbl.h"
#include "validator/KZCEkaValidAlphabet.h"
#include "validator/KZCEkaValidAnyContain.h"
#include "validator/KZCEkaValidAnyExist.h"
#include "validator/KZCEkaValidCharlength.h"
#include "validator/KZCEkaValidCheckDigit.h"
#include "validator/KZCEkaValidCompDate.h"
#include "validator/KZCEkaValidContain.h"
#include "validator/KZCEkaValidContainColumn.h"
#include "validator/KZCEkaValidContainYear.h"
#include "validator/KZCEkaValidDigitEquality.h"
#include "validator/KZCEkaValidEmpty.h"
#include "validator/KZCEkaValidEqualyear.h"
#include "validator/KZCEkaValidExcept.h"
#include "validator/KZCEkaValidExceptColumn.h"
#include "validator/KZCEkaValidExist.h"
#include "validator/KZCEkaValidExistDateYYYYMMDD.h"
#include "validator/KZCEkaValidExist_2.h"
#include "validator/KZCEkaValidExistdate.h"
#include "validator/KZCEkaValidExistdate_2.h"
#include "validator/KZCEkaValidExistpath.h"
#include "validator/KZCEkaValidExtension.h"
#include "validator/KZCEkaValidIstring.h"
#include "validator/KZCEkaValidLength.h"
#include "validator/KZCEkaValidLvystring.h"
#include "validator/KZCEkaValidMultibyte.h"
#include "validator/KZCEkaValidMultikana.h"
#include "validator/KZCEkaValidMultikana_2.h"
#include "validator/KZCEkaValidNonerr.h"
#include "validator/KZCEkaValidNumber.h"
#include "validator/KZCEkaValidOnward.h"
#include "validator/KZCEkaValidRange.h"
#include "validator/KZCEkaValidRangebasedate.h"
#include "validator/KZCEkaValidRangebasedate_2.h"
#include "validator/KZCEkaValidRangedate.h"
#include "validator/KZCEkaValidRangedate_2.h"
#include "validator/KZCEkaValidRangedate_3.h"
#include "validator/KZCEkaValidRangedate_4.h"
#include "validator/KZCEkaValidTaxoffice.h"
#include "validator/KZCEkaValidTaxofficenm.h"

namespace {

std::unique_ptr<KZCEkaValidItem> Create(const char* szId)
{
    return KZCEkaValidItem::CreateItem(0, szId, "", "", "", MSG_NONE);
}

// --- keywords and classes ---

struct KeywordCase
{
    const char* szName;
    const std::type_info* pType;
};

void PrintTo(const KeywordCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class KeywordTest : public ResetState, public testing::WithParamInterface<KeywordCase>
{};

TEST_P(KeywordTest, GivesItsClass)
{
    const auto pItem = Create(GetParam().szName);
    ASSERT_NE(pItem, nullptr);
    const KZCEkaValidItem& item = *pItem;
    EXPECT_EQ(typeid(item), *GetParam().pType);
}

TEST_P(KeywordTest, InAnotherCaseGivesNull)
{
    std::string strKeyword = GetParam().szName;
    strKeyword[0] = static_cast<char>(strKeyword[0] - 'a' + 'A');
    EXPECT_EQ(Create(strKeyword.c_str()), nullptr);
}

TEST_P(KeywordTest, WithABlankBehindItGivesNull)
{
    EXPECT_EQ(Create((std::string(GetParam().szName) + " ").c_str()), nullptr);
}

TEST_P(KeywordTest, CutByACharacterGivesAnotherItemOrNull)
{
    std::string strKeyword = GetParam().szName;
    strKeyword.pop_back();
    const auto pItem = Create(strKeyword.c_str());
    if (pItem) {
        const KZCEkaValidItem& item = *pItem;
        EXPECT_NE(typeid(item), *GetParam().pType);
    }
}

const KeywordCase KEYWORDS[] = {
    {"alnum", &typeid(KZCEkaValidAlnum)},
    {"charlength", &typeid(KZCEkaValidCharlength)},
    {"contain", &typeid(KZCEkaValidContain)},
    {"containcolumn", &typeid(KZCEkaValidContainColumn)},
    {"containyear", &typeid(KZCEkaValidContainYear)},
    {"empty", &typeid(KZCEkaValidEmpty)},
    {"equalyear", &typeid(KZCEkaValidEqualyear)},
    {"lvystring", &typeid(KZCEkaValidLvystring)},
    {"except", &typeid(KZCEkaValidExcept)},
    {"exist", &typeid(KZCEkaValidExist)},
    {"existdate", &typeid(KZCEkaValidExistdate)},
    {"existdate_2", &typeid(KZCEkaValidExistdate_2)},
    {"existpath", &typeid(KZCEkaValidExistpath)},
    {"extension", &typeid(KZCEkaValidExtension)},
    {"istring", &typeid(KZCEkaValidIstring)},
    {"length", &typeid(KZCEkaValidLength)},
    {"multibyte", &typeid(KZCEkaValidMultibyte)},
    {"multikana", &typeid(KZCEkaValidMultikana)},
    {"multikana_2", &typeid(KZCEkaValidMultikana_2)},
    {"nonerr", &typeid(KZCEkaValidNonerr)},
    {"number", &typeid(KZCEkaValidNumber)},
    {"onward", &typeid(KZCEkaValidOnward)},
    {"range", &typeid(KZCEkaValidRange)},
    {"rangebasedate", &typeid(KZCEkaValidRangebasedate)},
    {"rangebasedate_2", &typeid(KZCEkaValidRangebasedate_2)},
    {"rangedate", &typeid(KZCEkaValidRangedate)},
    {"rangedate_2", &typeid(KZCEkaValidRangedate_2)},
    {"rangedate_3", &typeid(KZCEkaValidRangedate_3)},
    {"taxoffice", &typeid(KZCEkaValidTaxoffice)},
    {"taxofficenm", &typeid(KZCEkaValidTaxofficenm)},
    {"age", &typeid(KZCEkaValidAge)},
    {"checkdigit", &typeid(KZCEkaValidCheckDigit)},
    {"digitequality", &typeid(KZCEkaValidDigitEquality)},
    {"exceptcolumn", &typeid(KZCEkaValidExceptColumn)},
    {"compdate", &typeid(KZCEkaValidCompDate)},
    {"exist_2", &typeid(KZCEkaValidExist_2)},
    {"rangedate_4", &typeid(KZCEkaValidRangedate_4)},
    {"alphabet", &typeid(KZCEkaValidAlphabet)},
    {"anycontain", &typeid(KZCEkaValidAnyContain)},
    {"anyexist", &typeid(KZCEkaValidAnyExist)},
    {"alnumsbl", &typeid(KZCEkaValidAlnumsbl)},
    {"existdateYYYYMMDD", &typeid(KZCEkaValidExistDateYYYYMMDD)},
};

static_assert(std::size(KEYWORDS) == 42);

INSTANTIATE_TEST_SUITE_P(Known, KeywordTest, testing::ValuesIn(KEYWORDS), CaseName());

class UnknownKeywordTest : public ResetState, public testing::WithParamInterface<const char*>
{};

TEST_P(UnknownKeywordTest, GivesNull)
{
    EXPECT_EQ(Create(GetParam()), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Texts,
    UnknownKeywordTest,
    testing::Values("", " ", "Exist", "EXIST", " exist", "exist_3", "exists", "exis", "item"));

// --- what the factory hands on ---

using FactoryTest = ResetState;

TEST_F(FactoryTest, HandsOnTheColumn)
{
    const TableCsv csv{{"001", "a", "b", "", "c"}};
    const auto pItem = KZCEkaValidItem::CreateItem(3, "exist", "", "", "", MSG_NONE);
    ASSERT_NE(pItem, nullptr);
    EXPECT_EQ(OnRecord(*pItem, csv), "refuses 0001-00004-HE70001E");
}

TEST_F(FactoryTest, HandsOnTheOverride)
{
    const TableCsv csv{{"001", ""}};
    const auto pItem = KZCEkaValidItem::CreateItem(1, "exist", "", "", "", HE99999E);
    ASSERT_NE(pItem, nullptr);
    EXPECT_EQ(OnRecord(*pItem, csv), "refuses 0001-00002-HE99999E");
}

TEST_F(FactoryTest, CopiesTheParameters)
{
    std::string strList = "1 2 3";
    const auto pItem = KZCEkaValidItem::CreateItem(1, "contain", strList.c_str(), "", "", MSG_NONE);
    ASSERT_NE(pItem, nullptr);
    strList.assign(strList.size(), 'x');
    EXPECT_EQ(OnValue(*pItem, "2"), PASSES);
}

/// One record and the item that stands in column 2 of it.
struct ParameterCase
{
    const char* szName;
    ItemText text;
    KZCEkaCsvFile::Record record;
    const char* szTold;
};

void PrintTo(const ParameterCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ParameterTest : public ResetState, public testing::WithParamInterface<ParameterCase>
{};

class DroppedParameterTest : public ResetState, public testing::WithParamInterface<ParameterCase>
{};

TEST_P(ParameterTest, Counts)
{
    const TableCsv csv{GetParam().record};
    const auto pItem = MakeItem(GetParam().text, 1);
    EXPECT_EQ(OnRecord(*pItem, csv), GetParam().szTold);
}

// Each attribute that a keyword reads decides here.
const ParameterCase PARAMETERS[] = {
    {"CharlengthValue", {"charlength", "1", "", "5"}, {"001", "ab"}, "refuses 0001-00002-HE70007E"},
    {"CharlengthMax", {"charlength", "", "", "1"}, {"001", "ab"}, "refuses 0001-00002-HE70007E"},
    {"LengthValue", {"length", "1", "", "5"}, {"001", "ab"}, "refuses 0001-00002-HE70008E"},
    {"LengthMax", {"length", "", "", "1"}, {"001", "ab"}, "refuses 0001-00002-HE70008E"},
    {"ContainValue", {"contain", "a b"}, {"001", "c"}, "refuses 0001-00002-HE70009E"},
    {"ExceptValue", {"except", "a b"}, {"001", "a"}, "refuses 0001-00002-HE99999E"},
    {"LvystringValue", {"lvystring", "allow_LF"}, {"001", "\n"}, PASSES},
    {"RangeMin", {"range", "", "2", "3"}, {"001", "1"}, "refuses 0001-00002-HE70009E"},
    {"RangeMax", {"range", "", "2", "3"}, {"001", "4"}, "refuses 0001-00002-HE70009E"},
    {"ContainColumnValue",
     {"containcolumn", "4"},
     {"001", "a", "a", "b"},
     "refuses 0001-00002-HE70025E"},
    {"ContainColumnMin", {"containcolumn", "3", "2", ""}, {"001", "5", "3"}, PASSES},
    {"ContainColumnMax", {"containcolumn", "3", "", "2"}, {"001", "5", "7"}, PASSES},
    {"ExceptColumnValue",
     {"exceptcolumn", "4"},
     {"001", "a", "b", "a"},
     "refuses 0001-00002-HE70010E"},
    {"ExceptColumnMin",
     {"exceptcolumn", "3", "2", ""},
     {"001", "5", "3"},
     "refuses 0001-00002-HE70010E"},
    {"ExceptColumnMax",
     {"exceptcolumn", "3", "", "2"},
     {"001", "5", "7"},
     "refuses 0001-00002-HE70010E"},
    {"AnyExistValue", {"anyexist", "4"}, {"001", "a", "b", ""}, "refuses 0001-00002-HE70001E"},
    {"AnyContainValue", {"anycontain", "4", "1", "3"}, {"001", "2", "2", "3"}, PASSES},
    {"AnyContainMin",
     {"anycontain", "3", "2", "3"},
     {"001", "", "1"},
     "refuses 0001-00002-HE70009E"},
    {"AnyContainMax",
     {"anycontain", "3", "2", "3"},
     {"001", "", "4"},
     "refuses 0001-00002-HE70009E"},
    {"CheckDigitValue", {"checkdigit", "hojin"}, {"001", "9900000000000"}, PASSES},
    {"DigitEqualityValue", {"digitequality", "2", "", "9"}, {"001", "19"}, PASSES},
    {"DigitEqualityMinForbids",
     {"digitequality", "1", "9", ""},
     {"001", "9"},
     "refuses 0001-00002-HE70010E"},
    {"DigitEqualityMaxAllows", {"digitequality", "1", "", "9"}, {"001", "9"}, PASSES},
    {"ExtensionValue", {"extension", ".csv"}, {"001", "a.txt"}, "refuses 0001-00002-HE70015E"},
    {"ExistpathValue", {"existpath", "x"}, {"001", "a"}, RAISES},
    {"ContainYearValue",
     {"containyear", "2017"},
     {"001", "4", "30"},
     "refuses 0001-02:03-HE70025E"},
    {"EqualyearValue", {"equalyear", "4"}, {"001", "4", "30", "4", "30"}, PASSES},
    {"EqualyearMin", {"equalyear", "4", "1", ""}, {"001", "4", "29", "4", "30"}, PASSES},
    {"EqualyearMax", {"equalyear", "4", "", "1"}, {"001", "4", "30", "4", "29"}, PASSES},
    {"ExistDateYYYYMMDDValue", {"existdateYYYYMMDD", "2 3 4"}, {"001", "2018", "9", "1"}, PASSES},
    {"OnwardValue", {"onward", "20180901"}, {"001", "4", "30", "9", "1"}, PASSES},
    {"RangebasedateValue",
     {"rangebasedate", "1_2", "2018/09/02", ""},
     {"001", "4", "30", "9", "1"},
     "refuses 0001-02:05-HE70025E"},
    {"RangebasedateMin",
     {"rangebasedate", "", "6", ""},
     {"001", "4", "30", "9", "1", "4", "30", "9", "2"},
     "refuses 0001-02:05-HE70025E"},
    {"RangebasedateMax",
     {"rangebasedate", "", "", "6"},
     {"001", "4", "30", "9", "2", "4", "30", "9", "1"},
     "refuses 0001-02:05-HE70025E"},
    {"Rangebasedate_2Value",
     {"rangebasedate_2", "include", "2", "2"},
     {"001", "4", "30", "9", "1"},
     PASSES},
    {"Rangebasedate_2Min",
     {"rangebasedate_2", "", "6", ""},
     {"001", "4", "30", "9", "2", "4", "30", "9", "1"},
     PASSES},
    {"Rangebasedate_2Max",
     {"rangebasedate_2", "", "", "6"},
     {"001", "4", "30", "9", "1", "4", "30", "9", "2"},
     PASSES},
    {"RangedateMin",
     {"rangedate", "", "20180902", "20181231"},
     {"001", "4", "30", "9", "1"},
     "refuses 0001-02:05-HE70010E"},
    {"RangedateMax",
     {"rangedate", "", "20180101", "20180831"},
     {"001", "4", "30", "9", "1"},
     "refuses 0001-02:05-HE70010E"},
    {"Rangedate_2MinAndMax",
     {"rangedate_2", "", "20180101", "6"},
     {"001", "4", "30", "9", "1", "4", "30"},
     PASSES},
    {"Rangedate_3Value",
     {"rangedate_3", "6"},
     {"001", "4", "30", "10", "1", "4", "30"},
     "refuses 0001-02:05-HE70025E"},
    {"Rangedate_4Min",
     {"rangedate_4", "", "20180902", "20181231"},
     {"001", "4", "30", "9", "1"},
     "refuses 0001-02:05-HE70010E"},
    {"Rangedate_4Max",
     {"rangedate_4", "", "20180101", "20180831"},
     {"001", "4", "30", "9", "1"},
     "refuses 0001-02:05-HE70010E"},
    {"CompDateValue", {"compdate", "20180901"}, {"001", "4", "30", "9", "1"}, PASSES},
    {"CompDateMin", {"compdate", "", "20180831"}, {"001", "4", "30", "9", "1"}, PASSES},
    {"CompDateMax", {"compdate", "", "", "20180902"}, {"001", "4", "30", "9", "1"}, PASSES},
    {"AgeValue", {"age", "2 2 0 9 1"}, {"001", "4", "30", "9", "1"}, PASSES},
    {"AgeMin",
     {"age", "2 2 0 9 1", "1"},
     {"001", "4", "30", "9", "1"},
     "refuses 0001-00002-HE70010E"},
    {"AgeMax",
     {"age", "2 2 1 9 1", "", "0"},
     {"001", "4", "30", "9", "1"},
     "refuses 0001-00002-HE70010E"},
};

INSTANTIATE_TEST_SUITE_P(Attributes, ParameterTest, testing::ValuesIn(PARAMETERS), CaseName());

TEST_P(DroppedParameterTest, DoesNotCount)
{
    const TableCsv csv{GetParam().record};
    const auto pItem = MakeItem(GetParam().text, 1);
    EXPECT_EQ(OnRecord(*pItem, csv), GetParam().szTold);
}

// Each attribute that a keyword doesn't read holds something that would upset it.
const ParameterCase DROPPED[] = {
    {"Alnum", {"alnum", "x", "x", "x"}, {"001", "a"}, PASSES},
    {"Alnumsbl", {"alnumsbl", "x", "x", "x"}, {"001", "a"}, PASSES},
    {"Alphabet", {"alphabet", "x", "x", "x"}, {"001", "a"}, PASSES},
    {"Empty", {"empty", "x", "x", "x"}, {"001", ""}, PASSES},
    {"Exist", {"exist", "x", "x", "x"}, {"001", "a"}, PASSES},
    {"Exist_2", {"exist_2", "x", "x", "x"}, {"006", "5", "1"}, PASSES},
    {"Multibyte", {"multibyte", "x", "x", "x"}, {"001", "ああ"}, PASSES},
    {"Multikana", {"multikana", "x", "x", "x"}, {"001", "\x83\x41"}, PASSES},
    {"Multikana_2", {"multikana_2", "x", "x", "x"}, {"001", "a"}, PASSES},
    {"Istring", {"istring", "x", "x", "x"}, {"001", "あ"}, PASSES},
    {"Number", {"number", "x", "x", "x"}, {"001", "1"}, PASSES},
    {"LvystringMinAndMax",
     {"lvystring", "", "allow_LF", "allow_LF"},
     {"001", "\n"},
     "refuses 0001-00002-HE70006E"},
    {"CharlengthMin", {"charlength", "", "9", "2"}, {"001", "ab"}, PASSES},
    {"LengthMin", {"length", "", "9", "2"}, {"001", "ab"}, PASSES},
    {"ContainMinAndMax", {"contain", "a", "b", "b"}, {"001", "b"}, "refuses 0001-00002-HE70009E"},
    {"ExceptMinAndMax", {"except", "a", "b", "b"}, {"001", "b"}, PASSES},
    {"RangeValue", {"range", "x", "1", "5"}, {"001", "3"}, PASSES},
    {"AnyExistMinAndMax", {"anyexist", "3", "x", "x"}, {"001", "", "b"}, PASSES},
    {"NonerrMax", {"nonerr", "3", "", "x"}, {"001", "a"}, PASSES},
    {"CheckDigitMinAndMax",
     {"checkdigit", "kojin", "hojin", "hojin"},
     {"001", "123456789018"},
     PASSES},
    {"ExtensionMinAndMax",
     {"extension", ".txt", ".csv", ".csv"},
     {"001", "a.csv"},
     "refuses 0001-00002-HE70015E"},
    {"ExistpathMinAndMax",
     {"existpath", "dir", "file", "file"},
     {"001", "/missing-folder/x.mok"},
     "refuses 0001-00002-HE70010E"},
    {"ContainYearMinAndMax", {"containyear", "2018", "x", "x"}, {"001", "4", "30"}, PASSES},
    {"Existdate", {"existdate", "x", "x", "x"}, {"001", "4", "30", "9", "1"}, PASSES},
    {"Existdate_2", {"existdate_2", "x", "x", "x"}, {"001", "4", "30", "9", "1"}, PASSES},
    {"ExistDateYYYYMMDDMinAndMax",
     {"existdateYYYYMMDD", "2 3 4", "x", "x"},
     {"001", "2018", "9", "1"},
     PASSES},
    {"OnwardMinAndMax",
     {"onward", "20180901", "20190101", "20180101"},
     {"001", "4", "30", "9", "1"},
     PASSES},
    {"RangedateValue",
     {"rangedate", "x", "20180101", "20181231"},
     {"001", "4", "30", "9", "1"},
     PASSES},
    {"Rangedate_2Value",
     {"rangedate_2", "x", "20180101", "6"},
     {"001", "4", "30", "9", "1", "4", "30"},
     PASSES},
    {"Rangedate_3MinAndMax",
     {"rangedate_3", "6", "x", "x"},
     {"001", "4", "30", "9", "1", "4", "30"},
     PASSES},
    {"Rangedate_4Value",
     {"rangedate_4", "x", "20180101", "20181231"},
     {"001", "4", "30", "9", "1"},
     PASSES},
};

INSTANTIATE_TEST_SUITE_P(Attributes, DroppedParameterTest, testing::ValuesIn(DROPPED), CaseName());

TEST_F(FactoryTest, HandsNonerrItsRecord)
{
    const TableCsv csv{{"001", "a"}, {"001", "a"}};
    KZCValidResult::instance()->SetResult(HE70001E, 2, 3, SINGLE_COLUMN);
    const auto pItem = MakeItem({"nonerr", "3", "2", "1"}, 1);
    EXPECT_EQ(pItem->ValidateCsv(&csv, 0, -1), STATUS_NG);
}

// --- failures ---

struct NullCase
{
    const char* szName;
    const char* szId;
    const char* szValue;
    const char* szMin;
    const char* szMax;
};

void PrintTo(const NullCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class NullTextTest : public ResetState, public testing::WithParamInterface<NullCase>
{};

TEST_P(NullTextTest, GivesNullAndALogLine)
{
    const DebugLog log;
    const NullCase& testCase = GetParam();
    EXPECT_EQ(KZCEkaValidItem::CreateItem(0, testCase.szId, testCase.szValue, testCase.szMin,
                                          testCase.szMax, MSG_NONE),
              nullptr);
    EXPECT_EQ(WholeLog(log),
              "[KZCEkaValidItem::CreateItem]\n引数エラー。チェックパラメータ情報が不正です。\n");
}

constexpr NullCase NULL_TEXTS[] = {
    {"Id", nullptr, "", "", ""},
    {"Value", "exist", nullptr, "", ""},
    {"Min", "exist", "", nullptr, ""},
    {"Max", "exist", "", "", nullptr},
    {"All", nullptr, nullptr, nullptr, nullptr},
    {"ValueOfAnUnknownKeyword", "unknown", nullptr, "", ""},
};

INSTANTIATE_TEST_SUITE_P(Texts, NullTextTest, testing::ValuesIn(NULL_TEXTS), CaseName());

TEST_F(FactoryTest, LogsAnUnknownKeyword)
{
    const DebugLog log;
    EXPECT_EQ(Create("Exist"), nullptr);
    EXPECT_EQ(WholeLog(log),
              "[KZCEkaValidItem::CreateItem]\n不明なValidのidが指定されています。 Exist\n");
}

// The line is made in a buffer of 200 bytes, of which the fixed text takes 50.
TEST_F(FactoryTest, CutsALongUnknownKeywordInTheLog)
{
    const DebugLog log;
    EXPECT_EQ(Create(std::string(300, 'x').c_str()), nullptr);
    EXPECT_EQ(WholeLog(log), "[KZCEkaValidItem::CreateItem]\n不明なValidのidが指定されています。 " +
                                 std::string(149, 'x') + "\n");
}

}  // namespace
