#include "validator/ItemCatalogue.h"

#include <algorithm>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "KZCEkaTaxOffices.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"

namespace {

/// What a keyword reads and reports, from the tables of the checks.
struct KeywordRow
{
    const char* szName;
    const char* szAttributes;
    std::vector<int> vecMessage;
    ErrorPlace ePlace = ErrorPlace::Cell;
};

void PrintTo(const KeywordRow& row, std::ostream* pStream)
{
    *pStream << row.szName;
}

const KeywordRow KEYWORDS[] = {
    {"alnum", "", {6}},
    {"charlength", "value max", {7}},
    {"contain", "value", {9}},
    {"containcolumn", "value min max", {25}},
    {"containyear", "value", {25}, ErrorPlace::PairOrColumn},
    {"empty", "", {5}},
    {"equalyear", "value min max", {25}, ErrorPlace::Pair},
    {"lvystring", "value", {6}},
    {"except", "value", {36}},
    {"exist", "", {1}},
    {"existdate", "", {12}, ErrorPlace::Date},
    {"existdate_2", "", {12}, ErrorPlace::Date},
    {"existpath", "value", {1, 10, 13, 14, 24}},
    {"extension", "value", {15}},
    {"istring", "", {6}},
    {"length", "value max", {8}},
    {"multibyte", "", {36}},
    {"multikana", "", {3}},
    {"multikana_2", "", {34}},
    {"nonerr", "value min", {}, ErrorPlace::None},
    {"number", "", {4}},
    {"onward", "value", {10, 12}, ErrorPlace::Date},
    {"range", "min max", {9}},
    {"rangebasedate", "value min max", {12, 25}, ErrorPlace::DateOrCell},
    {"rangebasedate_2", "value min max", {25, 36}, ErrorPlace::DateOrColumn},
    {"rangedate", "min max", {10, 12}, ErrorPlace::Date},
    {"rangedate_2", "min max", {25}, ErrorPlace::YearOfMax},
    {"rangedate_3", "value", {25}, ErrorPlace::Date},
    {"taxoffice", "", {11}},
    {"taxofficenm", "", {2}, ErrorPlace::Pair},
    {"age", "value min max", {10}, ErrorPlace::CellOrDate},
    {"checkdigit", "value", {4, 8, 10}},
    {"digitequality", "value min max", {10}},
    {"exceptcolumn", "value min max", {10}},
    {"compdate", "value min max", {10, 12}, ErrorPlace::Date},
    {"exist_2", "", {12}, ErrorPlace::GroupOfKind},
    {"rangedate_4", "min max", {10, 12}, ErrorPlace::Date},
    {"alphabet", "", {6}},
    {"anycontain", "value min max", {9}},
    {"anyexist", "value", {1}},
    {"alnumsbl", "", {35}},
    {"existdateYYYYMMDD", "value", {12}, ErrorPlace::ColumnsOfValue},
};

std::string Attributes(const CatalogueItem& item)
{
    std::string strAttributes;
    for (const auto& [bReads, szName] : {std::pair(item.shape.value.IsRead(), "value"),
                                         {item.shape.min.IsRead(), "min"},
                                         {item.shape.max.IsRead(), "max"}})
        if (bReads)
            strAttributes += (strAttributes.empty() ? "" : " ") + std::string(szName);
    return strAttributes;
}

class KeywordRowTest : public testing::TestWithParam<KeywordRow>
{
protected:
    const CatalogueItem* m_pItem = FindCatalogueItem(GetParam().szName);
};

TEST_P(KeywordRowTest, ReadsItsAttributes)
{
    ASSERT_NE(m_pItem, nullptr);
    EXPECT_EQ(Attributes(*m_pItem), GetParam().szAttributes);
}

TEST_P(KeywordRowTest, HasItsMessages)
{
    ASSERT_NE(m_pItem, nullptr);
    EXPECT_EQ(std::vector<int>(m_pItem->messages.begin(), m_pItem->messages.end()),
              GetParam().vecMessage);
}

TEST_P(KeywordRowTest, HasItsPlaceOfErrors)
{
    ASSERT_NE(m_pItem, nullptr);
    EXPECT_EQ(m_pItem->shape.ePlace, GetParam().ePlace);
}

TEST_P(KeywordRowTest, IsMadeByTheFactory)
{
    EXPECT_NE(KZCEkaValidItem::CreateItem(0, GetParam().szName, "", "", "", MSG_NONE), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Keywords, KeywordRowTest, testing::ValuesIn(KEYWORDS), CaseName());

TEST(ItemCatalogueTest, HoldsTheKeywordsOnceEach)
{
    std::vector<std::string> vecKeyword;
    for (const CatalogueItem& item : ItemCatalogue())
        vecKeyword.emplace_back(item.strKeyword);
    std::vector<std::string> vecWanted;
    for (const KeywordRow& row : KEYWORDS)
        vecWanted.emplace_back(row.szName);
    EXPECT_EQ(vecKeyword, vecWanted);
}

TEST(ItemCatalogueTest, UnknownKeywordHasNoItem)
{
    EXPECT_EQ(FindCatalogueItem("Exist"), nullptr);
    EXPECT_EQ(FindCatalogueItem(""), nullptr);
}

// ----------------------------------------------------------------------------------------------

/// A record that an item in its column 2 refuses. The date columns hold era, year, month, day.
struct RefusalCase
{
    const char* szName;
    ItemText text;
    KZCEkaCsvFile::Record record;
    int nMessage;
    const char* szPosition = "00002";
};

void PrintTo(const RefusalCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

/// Every message of the items that look at records, with the columns where it is recorded.
const RefusalCase REFUSALS[] = {
    {"alnum", {"alnum"}, {"x", "_"}, 6},
    {"charlength", {"charlength", "", "", "1"}, {"x", "ab"}, 7},
    {"contain", {"contain", "1 2"}, {"x", "3"}, 9},
    {"containcolumn", {"containcolumn", "3"}, {"x", "1", "2"}, 25},
    {"containyear", {"containyear", "2019"}, {"x", "4", "30"}, 25, "02:03"},
    {"empty", {"empty"}, {"x", "1"}, 5},
    {"equalyear", {"equalyear", "4"}, {"x", "4", "30", "4", "29"}, 25, "02:03"},
    {"lvystring", {"lvystring"}, {"x", "\n"}, 6},
    {"except", {"except", "0"}, {"x", "0"}, 36},
    {"exist", {"exist"}, {"x", ""}, 1},
    {"existdate", {"existdate"}, {"x", "3", "65", "1", "1"}, 12, "02:05"},
    {"existdate_2", {"existdate_2"}, {"x", "4", "31", "5", "1"}, 12, "02:05"},
    {"existpath_empty", {"existpath", "file"}, {"x", ""}, 1},
    {"existpath_folder", {"existpath", "dir"}, {"x", "/nowhere/x.mok"}, 10},
    {"existpath_missing", {"existpath", "file"}, {"x", "/nowhere/x.csv"}, 13},
    {"extension", {"extension", ".csv"}, {"x", "a.txt"}, 15},
    {"istring", {"istring"}, {"x", "a"}, 6},
    {"length", {"length", "5"}, {"x", "1234"}, 8},
    {"multibyte", {"multibyte"}, {"x", "a"}, 36},
    {"multikana", {"multikana"}, {"x", "a"}, 3},
    {"multikana_2", {"multikana_2"}, {"x", ","}, 34},
    {"number", {"number"}, {"x", "a"}, 4},
    {"onward_before", {"onward", "20190501"}, {"x", "4", "30", "1", "1"}, 10, "02:05"},
    {"onward_unreal", {"onward", "20190501"}, {"x", "4", "30", "2", "30"}, 12, "02:05"},
    {"range", {"range", "", "1", "5"}, {"x", "6"}, 9},
    {"rangebasedate_unreal",
     {"rangebasedate", "", "6"},
     {"x", "4", "30", "2", "30", "4", "30", "1", "1"},
     12,
     "02:05"},
    {"rangebasedate_before",
     {"rangebasedate", "", "6"},
     {"x", "4", "29", "1", "1", "4", "30", "1", "1"},
     25,
     "02:05"},
    {"rangebasedate_2_before",
     {"rangebasedate_2", "", "6"},
     {"x", "4", "30", "1", "1", "4", "30", "1", "1"},
     25,
     "02:05"},
    {"rangebasedate_2_no_bounds", {"rangebasedate_2"}, {"x", "4", "30", "1", "1"}, 36, "02:05"},
    {"rangedate_outside",
     {"rangedate", "", "20190501", "20191231"},
     {"x", "4", "30", "1", "1"},
     10,
     "02:05"},
    {"rangedate_unreal",
     {"rangedate", "", "20190501", "20191231"},
     {"x", "4", "30", "2", "30"},
     12,
     "02:05"},
    {"rangedate_2",
     {"rangedate_2", "", "20160101", "6"},
     {"x", "4", "30", "10", "1", "4", "30"},
     25,
     "06:07"},
    {"rangedate_3", {"rangedate_3", "6"}, {"x", "4", "30", "10", "1", "4", "30"}, 25, "02:05"},
    {"age", {"age", "3 7 0 12 31", "20"}, {"x", "", "4", "20", "1", "1", "4", "30"}, 10},
    {"age_days",
     {"age", "2 6 0 12 31 days", "20"},
     {"x", "4", "20", "1", "1", "4", "30"},
     10,
     "02:05"},
    {"checkdigit_letter", {"checkdigit", "kojin"}, {"x", "a"}, 4},
    {"checkdigit_length", {"checkdigit", "kojin"}, {"x", "1"}, 8},
    {"checkdigit_digit", {"checkdigit", "kojin"}, {"x", "000000000001"}, 10},
    {"digitequality", {"digitequality", "1", "", "9"}, {"x", "1"}, 10},
    {"exceptcolumn", {"exceptcolumn", "3"}, {"x", "1", "1"}, 10},
    {"compdate_other", {"compdate", "20190501"}, {"x", "4", "30", "1", "1"}, 10, "02:05"},
    {"compdate_unreal", {"compdate", "20190501"}, {"x", "4", "30", "2", "30"}, 12, "02:05"},
    {"exist_2_of_four", {"exist_2"}, {"003", "4", "30", "1", ""}, 12, "02:05"},
    {"exist_2_of_two", {"exist_2"}, {"006", "4", ""}, 12, "02:03"},
    {"exist_2_elsewhere", {"exist_2"}, {"001", "4", "30"}, 12},
    {"rangedate_4_outside",
     {"rangedate_4", "", "20190501", "20191231"},
     {"x", "4", "30", "1", "1"},
     10,
     "02:05"},
    {"rangedate_4_unreal",
     {"rangedate_4", "", "20190501", "20191231"},
     {"x", "4", "30", "2", "30"},
     12,
     "02:05"},
    {"alphabet", {"alphabet"}, {"x", "1"}, 6},
    {"anycontain", {"anycontain", "3 4", "1", "1"}, {"x", "", "2", ""}, 9},
    {"anyexist", {"anyexist", "3 4"}, {"x", "1", "", ""}, 1},
    {"alnumsbl", {"alnumsbl"}, {"x", "\t"}, 35},
    {"existdateYYYYMMDD",
     {"existdateYYYYMMDD", "3 4 5"},
     {"x", "", "2019", "2", "30"},
     12,
     "03:05"},
    {"taxoffice", {"taxoffice"}, {"x", "00102"}, 11},
    {"taxofficenm", {"taxofficenm"}, {"x", "y", "00101"}, 2, "02:03"},
};

class RefusalTest : public ResetState, public testing::WithParamInterface<RefusalCase>
{
protected:
    RefusalTest() { KZCEkaTaxOffices::instance()->Initialize(); }

private:
    Bundle m_bundle;
};

TEST_P(RefusalTest, IsRecordedWithAMessageOfTheCatalogue)
{
    const TableCsv csv{GetParam().record};
    EXPECT_EQ(OnRecord(*MakeItem(GetParam().text, 1), csv),
              std::string(REFUSES) + " 0001-" + GetParam().szPosition + "-" +
                  CodeOf(static_cast<KZCEkaMessage_t>(GetParam().nMessage)));
    const CatalogueItem* pItem = FindCatalogueItem(GetParam().text.szId);
    ASSERT_NE(pItem, nullptr);
    EXPECT_NE(std::ranges::find(pItem->messages, GetParam().nMessage), pItem->messages.end());
}

INSTANTIATE_TEST_SUITE_P(Items, RefusalTest, testing::ValuesIn(REFUSALS), CaseName());

TEST(ItemCatalogueTest, EveryMessageIsSeenOfARealItem)
{
    std::set<std::string> setSeen;
    for (const RefusalCase& refusal : REFUSALS)
        setSeen.insert(std::string(refusal.text.szId) + " " + std::to_string(refusal.nMessage));
    // An unreadable file and an empty one need a file: the tests of existpath show them.
    setSeen.insert({"existpath 14", "existpath 24"});
    std::set<std::string> setStated;
    for (const CatalogueItem& item : ItemCatalogue())
        for (const KZCEkaMessage_t eMessage : item.messages)
            setStated.insert(std::string(item.strKeyword) + " " + std::to_string(eMessage));
    EXPECT_EQ(setSeen, setStated);
}

// ----------------------------------------------------------------------------------------------

/// What is wrong with a template: brackets, a place that the item doesn't read. Empty if nothing
/// is.
std::string TemplateProblem(const CatalogueItem& item, std::string_view strTemplate)
{
    char cOpen = '\0';
    bool bChoice = false;
    std::size_t nPlace = 0;
    for (std::size_t n = 0; n < strTemplate.size(); ++n) {
        const char cByte = strTemplate[n];
        if (cByte == '{') {
            if (cOpen == '{')
                return "a brace in braces";
            cOpen = '{';
            nPlace = n + 1;
        } else if (cByte == '}') {
            if (cOpen != '{')
                return "a brace that isn't open";
            cOpen = '\0';
            const std::string_view strPlace = strTemplate.substr(nPlace, n - nPlace);
            const std::string_view strName = strPlace.substr(0, strPlace.find_first_of(":="));
            const bool bReads = strName == "column" ||
                                (strName == "value" && item.shape.value.IsRead()) ||
                                (strName == "min" && item.shape.min.IsRead()) ||
                                (strName == "max" && item.shape.max.IsRead());
            if (!bReads)
                return "it doesn't read " + std::string(strName);
        } else if (cByte == '[') {
            if (bChoice || cOpen != '\0')
                return "a bracket in brackets";
            bChoice = true;
        } else if (cByte == ']') {
            if (!bChoice || cOpen != '\0')
                return "a bracket that isn't open";
            bChoice = false;
        } else if (cByte == '|' && !bChoice) {
            return "alternatives outside of brackets";
        }
    }
    return cOpen != '\0' || bChoice ? "something stays open" : "";
}

class ItemWordsTest : public testing::TestWithParam<KeywordRow>
{
protected:
    const CatalogueItem& Item() const { return *FindCatalogueItem(GetParam().szName); }
};

TEST_P(ItemWordsTest, HasRuleAndDescriptionInBothLanguages)
{
    EXPECT_STRNE(Item().rule.szEnglish, "");
    EXPECT_STRNE(Item().rule.szJapanese, "");
    EXPECT_STRNE(Item().description.szEnglish, "");
    EXPECT_STRNE(Item().description.szJapanese, "");
}

TEST_P(ItemWordsTest, HasAConditionInBothLanguagesOrInNone)
{
    EXPECT_EQ(*Item().condition.szEnglish == '\0', *Item().condition.szJapanese == '\0');
}

TEST_P(ItemWordsTest, TemplatesAreBalancedAndReadAttributesOfTheItemOnly)
{
    for (const ItemWords* pWords : {&Item().rule, &Item().condition}) {
        EXPECT_EQ(TemplateProblem(Item(), pWords->szEnglish), "") << pWords->szEnglish;
        EXPECT_EQ(TemplateProblem(Item(), pWords->szJapanese), "") << pWords->szJapanese;
    }
}

TEST_P(ItemWordsTest, DescriptionsHaveNoPlacesAndEndAsSentences)
{
    const std::string strEnglish = Item().description.szEnglish;
    const std::string strJapanese = Item().description.szJapanese;
    EXPECT_EQ((strEnglish + strJapanese).find_first_of("{}[]|"), std::string::npos);
    EXPECT_TRUE(strEnglish.ends_with(".")) << strEnglish;
    EXPECT_TRUE(strJapanese.ends_with("。")) << strJapanese;
}

TEST_P(ItemWordsTest, DescriptionNamesEachAttributeThatTheItemReads)
{
    for (const std::string strDescription :
         {Item().description.szEnglish, Item().description.szJapanese}) {
        if (Item().shape.value.IsRead()) {
            EXPECT_NE(strDescription.find("`value`"), std::string::npos) << strDescription;
        }
        if (Item().shape.min.IsRead()) {
            EXPECT_NE(strDescription.find("`min`"), std::string::npos) << strDescription;
        }
        if (Item().shape.max.IsRead()) {
            EXPECT_NE(strDescription.find("`max`"), std::string::npos) << strDescription;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Keywords, ItemWordsTest, testing::ValuesIn(KEYWORDS), CaseName());

}  // namespace
