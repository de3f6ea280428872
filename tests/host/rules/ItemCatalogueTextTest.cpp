#include "rules/ItemCatalogueText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "base/Language.h"

namespace host {
namespace {

class ItemCatalogueTextTest : public testing::TestWithParam<Language>
{
protected:
    ItemCatalogueTextTest() { SetLanguage(GetParam()); }
    ~ItemCatalogueTextTest() override { SetLanguage(Language::English); }

    static std::vector<std::string> Lines()
    {
        std::stringstream stream;
        WriteItemCatalogue(stream);
        std::vector<std::string> vecLine;
        for (std::string strLine; std::getline(stream, strLine);)
            vecLine.push_back(strLine);
        return vecLine;
    }
    /// The row of a keyword, or the empty text.
    static std::string Row(const std::string& strKeyword)
    {
        for (const std::string& strLine : Lines())
            if (strLine.starts_with("| `" + strKeyword + "` |"))
                return strLine;
        return {};
    }
};

TEST_P(ItemCatalogueTextTest, EveryItemHasOneRow)
{
    const auto vecLine = Lines();
    EXPECT_EQ(std::ranges::count_if(
                  vecLine, [](const std::string& strLine) { return strLine.starts_with("| `"); }),
              static_cast<long>(ItemCatalogue().size()));
    for (const CatalogueItem& item : ItemCatalogue())
        EXPECT_NE(Row(std::string(item.strKeyword)), "") << item.strKeyword;
}

TEST_P(ItemCatalogueTextTest, RowsStandInTheOrderOfTheAlphabet)
{
    std::vector<std::string> vecKeyword;
    for (const std::string& strLine : Lines())
        if (strLine.starts_with("| `"))
            vecKeyword.push_back(strLine.substr(3, strLine.find('`', 3) - 3));
    ASSERT_EQ(vecKeyword.size(), 42u);
    EXPECT_EQ(vecKeyword.front(), "age");
    EXPECT_EQ(vecKeyword.back(), "taxofficenm");
    const auto first = std::ranges::find(vecKeyword, "existdate");
    EXPECT_EQ(std::vector<std::string>(first, first + 3),
              (std::vector<std::string>{"existdate", "existdate_2", "existdateYYYYMMDD"}));
}

TEST_P(ItemCatalogueTextTest, EveryRowHasAsManyCellsAsTheHeading)
{
    for (const std::string& strLine : Lines())
        if (strLine.starts_with("|")) {
            EXPECT_EQ(std::ranges::count(strLine, '|'), 6) << strLine;
        }
}

TEST_P(ItemCatalogueTextTest, DocumentBeginsWithAHeading)
{
    const auto vecLine = Lines();
    ASSERT_GT(vecLine.size(), 1u);
    EXPECT_EQ(vecLine[0], GetParam() == Language::English ? "# Check items" : "# チェック項目");
    EXPECT_EQ(vecLine[1], "");
}

TEST_P(ItemCatalogueTextTest, RowHasAllThatIsKnownOfAnItem)
{
    EXPECT_EQ(
        Row("range"),
        GetParam() == Language::English
            ? "| `range` | A number from `min` to `max`, both included; a limit that is left "
              "out is 0, and decimals aren't looked at. An empty value is refused. | min, "
              "max | HE70009E | the column |"
            : "| `range` | `min`以上`max`以下の数であること。省いた限度は0とみなし、"
              "小数点以下は見ません。空の値は通りません。 | min, max | HE70009E | その項目 |");
}

TEST_P(ItemCatalogueTextTest, RowOfAnItemWithoutErrorsHasNoCode)
{
    EXPECT_TRUE(Row("nonerr").ends_with(GetParam() == Language::English
                                            ? " | value, min |  | no error |"
                                            : " | value, min |  | エラーなし |"))
        << Row("nonerr");
}

TEST_P(ItemCatalogueTextTest, PlaceOfErrorsIsNeverEmpty)
{
    for (const CatalogueItem& item : ItemCatalogue())
        EXPECT_NE(ItemPlace(item), "") << item.strKeyword;
}

INSTANTIATE_TEST_SUITE_P(Languages,
                         ItemCatalogueTextTest,
                         testing::Values(Language::English, Language::Japanese),
                         [](const auto& testCase) {
                             return testCase.param == Language::English ? "English" : "Japanese";
                         });

TEST(ItemAttributesTest, ListsWhatTheItemReads)
{
    EXPECT_EQ(ItemAttributes(*FindCatalogueItem("number")), "");
    EXPECT_EQ(ItemAttributes(*FindCatalogueItem("length")), "value, max");
    EXPECT_EQ(ItemAttributes(*FindCatalogueItem("age")), "value, min, max");
}

TEST(ItemCodesTest, ListsWhatTheItemReports)
{
    EXPECT_EQ(ItemCodes(*FindCatalogueItem("nonerr")), "");
    EXPECT_EQ(ItemCodes(*FindCatalogueItem("except")), "HE99999E");
    EXPECT_EQ(ItemCodes(*FindCatalogueItem("checkdigit")), "HE70004E, HE70008E, HE70010E");
}

}  // namespace
}  // namespace host
