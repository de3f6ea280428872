#include "rules/CheckWords.h"
#include "rules/RuleBook.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <ostream>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "base/Language.h"
#include "file/CsvCells.h"
#include "rules/WordKinds.h"
#include "validator/ItemCatalogue.h"

namespace host {
namespace {

/// Back to English at the end.
class LanguageOfTest
{
public:
    explicit LanguageOfTest(Language eLanguage) { SetLanguage(eLanguage); }
    ~LanguageOfTest() { SetLanguage(Language::English); }
};

/// Column 3 is a name, 5 and 6 a year of birth, 7 to 10 a date with a check over it, 22 to 24 three
/// choices of which the last checks them all; 11 to 20 have no labels.
FormDefinition MakeForm()
{
    FormDefinition form;
    form.labels.AddItem(3, "氏名");
    form.labels.AddItem(5, "生年（元号）");
    form.labels.AddItem(6, "生年（年）");
    form.labels.AddItem(7, "契約日（元号）");
    form.labels.AddItem(10, "契約日（日）");
    form.labels.AddChecked(7, "契約日", true);
    form.labels.AddItem(22, "新聞");
    form.labels.AddItem(23, "放送");
    form.labels.AddItem(24, "配信");
    form.labels.AddChecked(22, "配信", true);
    return form;
}

CheckDefinition MakeCheck(const std::string& strKeyword,
                          long lColumn,
                          const std::string& strValue = "",
                          const std::string& strMin = "",
                          const std::string& strMax = "")
{
    CheckDefinition check;
    check.strKeyword = strKeyword;
    check.lColumn = lColumn;
    check.strValue = strValue;
    check.strMin = strMin;
    check.strMax = strMax;
    return check;
}

std::string English(const CheckDefinition& check)
{
    const LanguageOfTest language(Language::English);
    return CheckWords(check, MakeForm());
}

std::string Japanese(const CheckDefinition& check)
{
    const LanguageOfTest language(Language::Japanese);
    return CheckWords(check, MakeForm());
}

struct WordsCase
{
    const char* szName;
    const char* szKeyword;
    const char* szValue;
    const char* szMin;
    const char* szMax;
    const char* szEnglish;
    const char* szJapanese;
};

void PrintTo(const WordsCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

struct CaseName
{
    template <class Info>
    std::string operator()(const Info& info) const
    {
        return info.param.szName;
    }
};

class CheckWordsTest : public testing::TestWithParam<WordsCase>
{
protected:
    CheckDefinition Check() const
    {
        return MakeCheck(GetParam().szKeyword, 3, GetParam().szValue, GetParam().szMin,
                         GetParam().szMax);
    }
};

TEST_P(CheckWordsTest, SaysTheRuleInEnglish)
{
    EXPECT_EQ(English(Check()), GetParam().szEnglish);
}

TEST_P(CheckWordsTest, SaysTheRuleInJapanese)
{
    EXPECT_EQ(Japanese(Check()), GetParam().szJapanese);
}

constexpr WordsCase TEXTS[] = {
    {"alnum", "alnum", "", "", "", "half-width letters, digits, blanks and hyphens",
     "半角英数字・半角空白・半角ハイフン"},
    {"charlength_max", "charlength", "", "", "30", "up to 30 characters", "30文字以内"},
    {"charlength_one", "charlength", "", "", "1", "up to 1 character", "1文字以内"},
    {"charlength_exact", "charlength", "2", "", "30", "2 characters", "2文字"},
    {"length_max", "length", "", "", "5", "up to 5 digits", "5桁以内"},
    {"length_exact", "length", "5", "", "", "5 digits", "5桁"},
    {"length_exact_one", "length", "1", "", "", "1 digit", "1桁"},
    {"length_exact_comes_first", "length", "7", "", "5", "7 digits", "7桁"},
    {"length_without_parameter_is_its_keyword", "length", "", "", "", "length", "length"},
    {"contain_one", "contain", "1", "", "", "\"1\"", "「1」"},
    {"contain_two", "contain", "1 2", "", "", "\"1\" or \"2\"", "「1」「2」のいずれか"},
    {"contain_three", "contain", "1 2 9", "", "", "\"1\", \"2\" or \"9\"",
     "「1」「2」「9」のいずれか"},
    {"contain_run_of_blanks", "contain", " 有  無 ", "", "", "\"有\" or \"無\"",
     "「有」「無」のいずれか"},
    {"contain_without_parameter", "contain", "", "", "", "(not given)", "（指定なし）"},
    {"except_one", "except", "XXX", "", "", "not \"XXX\"", "「XXX」以外"},
    {"except_two", "except", "JP jp", "", "", "not \"JP\" or \"jp\"", "「JP」「jp」以外"},
    {"empty", "empty", "", "", "", "must be empty", "入力不可"},
    {"exist", "exist", "", "", "", "required", "必須"},
    {"existpath_file", "existpath", "file", "", "", "a readable file that isn't empty",
     "読み取れる空でないファイル"},
    {"existpath_folder", "existpath", "dir", "", "", "a path in an existing folder",
     "存在するフォルダー内のパス"},
    {"existpath_of_no_kind_is_its_keyword", "existpath", "link", "", "", "existpath", "existpath"},
    {"extension", "extension", ".csv .CSV", "", "", "the extension \".csv\" or \".CSV\"",
     "拡張子「.csv」「.CSV」のいずれか"},
    {"lvystring", "lvystring", "", "", "",
     "characters that a filing may carry (no half-width katakana, no emoji, no line feeds)",
     "申告に使用できる文字（半角カタカナ・絵文字などは不可、改行は不可）"},
    {"lvystring_line_feed", "lvystring", "allow_LF", "", "",
     "characters that a filing may carry (no half-width katakana, no emoji, line feeds allowed)",
     "申告に使用できる文字（半角カタカナ・絵文字などは不可、改行は可）"},
    {"lvystring_other_word", "lvystring", "allow_lf", "", "",
     "characters that a filing may carry (no half-width katakana, no emoji, no line feeds)",
     "申告に使用できる文字（半角カタカナ・絵文字などは不可、改行は不可）"},
    {"istring", "istring", "", "", "",
     "full-width characters of JIS X 0208 (some symbols excepted)",
     "全角文字（JIS第1・第2水準、一部の記号を除く）"},
    {"multibyte", "multibyte", "", "", "", "full-width characters", "全角文字"},
    {"multikana", "multikana", "", "", "", "full-width katakana and blanks",
     "全角カタカナ・全角空白"},
    {"multikana_2", "multikana_2", "", "", "",
     "full-width katakana, letters, digits and symbols, and ASCII without the comma",
     "全角カタカナ・英数字・記号、半角英数字・記号（カンマを除く）"},
    {"number", "number", "", "", "", "half-width digits", "半角数字"},
    {"number_drops_parameters", "number", "1", "2", "3", "half-width digits", "半角数字"},
    {"alphabet", "alphabet", "", "", "", "half-width letters", "半角英字"},
    {"alnumsbl", "alnumsbl", "", "", "",
     "half-width letters, digits and symbols, line breaks allowed", "半角英数字・記号（改行も可）"},
    {"range", "range", "", "1", "99", "1 to 99", "1以上99以下"},
    {"range_from_zero", "range", "", "", "99", "0 to 99", "0以上99以下"},
    {"range_of_one_number", "range", "", "1", "1", "1", "1"},
    {"range_below_zero", "range", "", "-5", "", "-5 to 0", "-5以上0以下"},
    {"taxoffice", "taxoffice", "", "", "", "the code of a tax office", "実在する局署番号"},
    {"taxofficenm", "taxofficenm", "", "", "",
     "the name of the tax office whose code is in the next column",
     "次の項目の局署番号に対応する局署名称"},
    {"checkdigit_kojin", "checkdigit", "kojin", "", "",
     "a personal number of 12 digits with the right check digit",
     "検査用数字が正しい個人番号（12桁）"},
    {"checkdigit_kojin2", "checkdigit", "kojin2", "", "",
     "a digit and a personal number of 12 digits with the right check digit",
     "検査用数字が正しい個人番号（先頭の1桁を除く12桁）"},
    {"checkdigit_hojin", "checkdigit", "hojin", "", "",
     "a corporate number of 13 digits with the right check digit",
     "検査用数字が正しい法人番号（13桁）"},
    {"checkdigit_seiri", "checkdigit", "seiri", "", "",
     "a reference number of 14 digits with the right check digit",
     "検査用数字が正しい整理番号（14桁）"},
    {"checkdigit_of_no_kind", "checkdigit", "kaisha", "", "", "a number with the right check digit",
     "検査用数字が正しい番号"},
    {"digitequality_allowed", "digitequality", "1", "", "0", "character 1 is \"0\"",
     "1文字目が「0」"},
    {"digitequality_forbidden", "digitequality", "1", "0 9", "", "character 1 isn't \"0\" or \"9\"",
     "1文字目が「0」「9」以外"},
    {"digitequality_positions", "digitequality", "1 3", "", "0 12",
     "each of characters 1 and 3 is \"0\" or \"1\"", "1、3文字目が「0」「1」のいずれか"},
    {"digitequality_allowed_comes_first", "digitequality", "2", "0", "9", "character 2 is \"9\"",
     "2文字目が「9」"},
    {"unknown_keyword", "Exist", "1", "", "", "Exist", "Exist"},
};

constexpr WordsCase COLUMNS[] = {
    {"containcolumn", "containcolumn", "3", "", "", "the same value as column 3 \"氏名\"",
     "項目3「氏名」と同じ値"},
    {"containcolumn_without_label", "containcolumn", "19", "", "", "the same value as column 19",
     "項目19と同じ値"},
    {"containcolumn_min_is_taken_away_here", "containcolumn", "11", "5", "", "column 11 plus 5",
     "項目11の値に5を足した数"},
    {"containcolumn_max_is_added_here", "containcolumn", "11", "", "2", "column 11 minus 2",
     "項目11の値から2を引いた数"},
    {"containcolumn_zero_compares_numbers", "containcolumn", "11", "0", "",
     "the same number as column 11", "項目11と同じ数"},
    {"exceptcolumn", "exceptcolumn", "15", "", "", "not the same value as column 15",
     "項目15と異なる値"},
    {"exceptcolumn_number", "exceptcolumn", "15", "1", "", "not column 15 plus 1",
     "項目15の値に1を足した数以外"},
    {"containyear_run", "containyear", "2019 2020 2021", "", "", "Western year 2019 to 2021",
     "西暦2019～2021年"},
    {"containyear_two", "containyear", "2019 2020", "", "", "Western year 2019 or 2020",
     "西暦2019、2020年"},
    {"containyear_mixed", "containyear", "2011 2019 2020 2021 2022 2030", "", "",
     "Western year 2011, 2019 to 2022 or 2030", "西暦2011、2019～2022、2030年"},
    {"equalyear", "equalyear", "5", "", "",
     "the same year as in columns 5 and 6 \"生年（元号）～生年（年）\"",
     "項目5～6「生年（元号）～生年（年）」と同じ年"},
    {"equalyear_after", "equalyear", "13", "0", "1", "1 year after the year in columns 13 and 14",
     "項目13～14の年の1年後"},
    {"equalyear_before", "equalyear", "13", "3", "1",
     "2 years before the year in columns 13 and 14", "項目13～14の年の2年前"},
    {"nonerr_date", "nonerr", "7 8 9 10", "", "", "no error so far in columns 7 to 10 \"契約日\"",
     "項目7～10「契約日」にエラーがないこと"},
    {"nonerr_two", "nonerr", "3 11", "", "", "no error so far in column 3 \"氏名\" and column 11",
     "項目3「氏名」、項目11にエラーがないこと"},
    {"nonerr_record", "nonerr", "3 11", "2", "",
     "no error so far in column 3 and column 11 of record 2",
     "レコード2の項目3、項目11にエラーがないこと"},
    {"anyexist", "anyexist", "12 13", "", "", "one of column 12 and column 13 required",
     "項目12、項目13のいずれかが必須"},
    {"anyexist_run", "anyexist", "12 13 14", "", "", "one of columns 12 to 14 required",
     "項目12～14のいずれかが必須"},
    {"anyexist_one_of_them_checks_all", "anyexist", "22 23 24", "", "",
     "one of columns 22 to 24 \"新聞～配信\" required", "項目22～24「新聞～配信」のいずれかが必須"},
    {"anyexist_one", "anyexist", "12", "", "", "column 12 required", "項目12が必須"},
    {"anycontain", "anycontain", "12 13 14", "1", "1", "1 in one of columns 12 to 14",
     "項目12～14のいずれかが1"},
    {"anycontain_range", "anycontain", "12 13 15", "0", "99",
     "0 to 99 in one of column 12, column 13 and column 15",
     "項目12、項目13、項目15のいずれかが0以上99以下"},
};

constexpr WordsCase DATES[] = {
    {"existdate", "existdate", "", "", "", "an existing date of Meiji to Shingo",
     "明治～新号の実在する日付"},
    {"existdate_2", "existdate_2", "", "", "",
     "an existing date within its era (Heisei up to 30 April of year 31)",
     "元号の期間内に実在する日付（平成は31年4月30日まで）"},
    {"existdateYYYYMMDD", "existdateYYYYMMDD", "12 13 14", "", "", "an existing Western date",
     "実在する西暦の日付"},
    {"exist_2", "exist_2", "", "", "", "all parts of the date filled, or all empty",
     "日付の項目をすべて入力、またはすべて空"},
    {"onward_heisei", "onward", "20130401", "", "", "1 April 2013 (Heisei 25) or later",
     "2013（平成25）年4月1日以後の日付"},
    {"onward_last_day_of_heisei", "onward", "20190430", "", "",
     "30 April 2019 (Heisei 31) or later", "2019（平成31）年4月30日以後の日付"},
    {"onward_first_day_of_shingo", "onward", "20190501", "", "", "1 May 2019 (Shingo 1) or later",
     "2019（新号1）年5月1日以後の日付"},
    {"onward_showa", "onward", "19261225", "", "", "25 December 1926 (Showa 1) or later",
     "1926（昭和1）年12月25日以後の日付"},
    {"onward_taisho", "onward", "19261224", "", "", "24 December 1926 (Taisho 15) or later",
     "1926（大正15）年12月24日以後の日付"},
    {"onward_meiji", "onward", "18900101", "", "", "1 January 1890 (Meiji 23) or later",
     "1890（明治23）年1月1日以後の日付"},
    {"onward_before_the_eras", "onward", "18891231", "", "", "31 December 1889 or later",
     "1889年12月31日以後の日付"},
    {"onward_last_year_of_two_digits", "onward", "21171231", "", "",
     "31 December 2117 (Shingo 99) or later", "2117（新号99）年12月31日以後の日付"},
    {"onward_far_future", "onward", "21180101", "", "", "1 January 2118 or later",
     "2118年1月1日以後の日付"},
    {"onward_no_such_day", "onward", "20190230", "", "", "20190230 or later", "20190230以後の日付"},
    {"onward_other_length", "onward", "2019401", "", "", "2019401 or later", "2019401以後の日付"},
    {"compdate_equal", "compdate", "20200229", "20190501", "",
     "the date 29 February 2020 (Shingo 2)", "2020（新号2）年2月29日"},
    {"compdate_min", "compdate", "2020229", "20190501", "20191231",
     "1 May 2019 (Shingo 1) or later", "2019（新号1）年5月1日以後の日付"},
    {"compdate_max", "compdate", "", "", "20251231", "31 December 2025 (Shingo 7) or earlier",
     "2025（新号7）年12月31日以前の日付"},
    {"compdate_without_date_is_its_keyword", "compdate", "", "", "2025", "compdate", "compdate"},
    {"rangedate", "rangedate", "", "20190501", "20311231",
     "a date from 1 May 2019 (Shingo 1) to 31 December 2031 (Shingo 13)",
     "2019（新号1）年5月1日～2031（新号13）年12月31日の日付"},
    {"rangedate_any_year", "rangedate", "", "****0101", "****0131",
     "a date from 1 January to 31 January of any year", "毎年1月1日～1月31日の日付"},
    {"rangedate_any_year_twice", "rangedate", "", "****0213 ****0413", "****0215 ****0415 ****0615",
     "a date from 13 February to 15 February or 13 April to 15 April of any year",
     "毎年2月13日～2月15日または4月13日～4月15日の日付"},
    {"rangedate_mixed", "rangedate", "", "****0101 20190501", "****0131 20190531",
     "a date from 1 January to 31 January of any year or 1 May 2019 (Shingo 1) to 31 May 2019 "
     "(Shingo 1)",
     "毎年1月1日～1月31日または2019（新号1）年5月1日～2019（新号1）年5月31日の日付"},
    {"rangedate_4_first_pair_only", "rangedate_4", "", "19500101 20200101", "20311231 20201231",
     "a date from 1 January 1950 (Showa 25) to 31 December 2031 (Shingo 13)",
     "1950（昭和25）年1月1日～2031（新号13）年12月31日の日付"},
    {"rangedate_2", "rangedate_2", "", "20160101", "13",
     "the date in columns 3 to 6 \"氏名～生年（年）\" from 1 January 2016 (Heisei 28) to 30 "
     "September of the year in columns 13 and 14",
     "項目3～6「氏名～生年（年）」が2016（平成28）年1月1日以後、項目13～14の年の9月30日以前"},
    {"rangedate_3", "rangedate_3", "13", "", "",
     "a date in the year up to 30 September of the year in columns 13 and 14",
     "項目13～14の年の9月30日までの1年間の日付"},
    {"rangebasedate_min", "rangebasedate", "", "7", "",
     "the date in columns 7 to 10 \"契約日\" or later", "項目7～10「契約日」以後の日付"},
    {"rangebasedate_max", "rangebasedate", "", "", "11", "the date in columns 11 to 14 or earlier",
     "項目11～14以前の日付"},
    {"rangebasedate_both", "rangebasedate", "", "7", "11",
     "the date in columns 7 to 10 \"契約日\" or later, up to that in columns 11 to 14",
     "項目7～10「契約日」以後、項目11～14以前の日付"},
    {"rangebasedate_neither", "rangebasedate", "", "", "", "an existing date", "実在する日付"},
    {"rangebasedate_cell", "rangebasedate", "1_7", "2019/05/01", "2031/12/31",
     "the date in columns 7 to 10 of record 1: 1 May 2019 (Shingo 1) to 31 December "
     "2031 (Shingo 13)",
     "レコード1の項目7～10の日付が2019（新号1）年5月1日以後、"
     "2031（新号13）年12月31日以前"},
    {"rangebasedate_cell_min", "rangebasedate", "1_13", "2019/05/01", "",
     "the date in columns 13 to 16 of record 1: 1 May 2019 (Shingo 1) or later",
     "レコード1の項目13～16の日付が2019（新号1）年5月1日以後"},
    {"rangebasedate_cell_max", "rangebasedate", "1_13", "", "2019/05/01",
     "the date in columns 13 to 16 of record 1: 1 May 2019 (Shingo 1) or earlier",
     "レコード1の項目13～16の日付が2019（新号1）年5月1日以前"},
    {"rangebasedate_cell_neither", "rangebasedate", "1_13", "", "",
     "the date in columns 13 to 16 of record 1 (no limits given)",
     "レコード1の項目13～16の日付（範囲の指定なし）"},
    {"rangebasedate_2_open_min", "rangebasedate_2", "", "7", "",
     "a date after that in columns 7 to 10 \"契約日\"", "項目7～10「契約日」より後の日付"},
    {"rangebasedate_2_open_max", "rangebasedate_2", "", "", "7",
     "a date before that in columns 7 to 10 \"契約日\"", "項目7～10「契約日」より前の日付"},
    {"rangebasedate_2_open_both", "rangebasedate_2", "", "7", "11",
     "a date after that in columns 7 to 10 \"契約日\" and before that in columns 11 to 14",
     "項目7～10「契約日」より後、項目11～14より前の日付"},
    {"rangebasedate_2_include_min", "rangebasedate_2", "include", "7", "",
     "the date in columns 7 to 10 \"契約日\" or later", "項目7～10「契約日」以後の日付"},
    {"rangebasedate_2_include_max", "rangebasedate_2", "include", "", "11",
     "the date in columns 11 to 14 or earlier", "項目11～14以前の日付"},
    {"rangebasedate_2_include_cells", "rangebasedate_2", "include", "1_11", "2_15",
     "the date in columns 11 to 14 of record 1 or later, up to that in columns 15 to 18 of record "
     "2",
     "レコード1の項目11～14以後、レコード2の項目15～18以前の日付"},
    {"rangebasedate_2_other_word_is_open", "rangebasedate_2", "Include", "11", "",
     "a date after that in columns 11 to 14", "項目11～14より後の日付"},
    {"rangebasedate_2_neither", "rangebasedate_2", "include", "", "", "a date (no limits given)",
     "日付（範囲の指定なし）"},
    {"age_both", "age", "7 13 0 12 31 days", "40", "130",
     "aged 40 to 130 on 31 December of the year in columns 13 and 14, born on the date in columns "
     "7 to 10 \"契約日\"",
     "項目13～14の年の12月31日に40歳以上130歳以下（生年月日は項目7～10「契約日」）"},
    {"age_min", "age", "15 13 1 4 1", "18", "",
     "aged at least 18 on 1 April, 1 year after the year in columns 13 and 14, born on the date in "
     "columns 15 to 18",
     "項目13～14の年の1年後の4月1日に18歳以上（生年月日は項目15～18）"},
    {"age_max", "age", "15 13 -2 4 1", "", "29",
     "aged at most 29 on 1 April, 2 years before the year in columns 13 and 14, born on the date "
     "in "
     "columns 15 to 18",
     "項目13～14の年の2年前の4月1日に29歳以下（生年月日は項目15～18）"},
    {"age_neither", "age", "15 13 0 4 1", "", "",
     "with a known age on 1 April of the year in columns 13 and 14, born on the date in columns 15 "
     "to 18",
     "項目13～14の年の4月1日に年齢が分かること（生年月日は項目15～18）"},
};

INSTANTIATE_TEST_SUITE_P(Texts, CheckWordsTest, testing::ValuesIn(TEXTS), CaseName());
INSTANTIATE_TEST_SUITE_P(Columns, CheckWordsTest, testing::ValuesIn(COLUMNS), CaseName());
INSTANTIATE_TEST_SUITE_P(Dates, CheckWordsTest, testing::ValuesIn(DATES), CaseName());

TEST(CheckWordsTableTest, HasACaseForEveryKeyword)
{
    std::set<std::string> setCase;
    for (const auto& cases :
         {std::span<const WordsCase>(TEXTS), std::span<const WordsCase>(COLUMNS),
          std::span<const WordsCase>(DATES)})
        for (const WordsCase& testCase : cases)
            setCase.insert(testCase.szKeyword);
    setCase.erase("Exist");
    std::set<std::string> setKeyword;
    for (const CatalogueItem& item : ItemCatalogue())
        setKeyword.emplace(item.strKeyword);
    EXPECT_EQ(setCase, setKeyword);
}

/// The kinds that a template names.
std::vector<std::string> KindsOf(std::string_view strTemplate)
{
    std::vector<std::string> vecKind;
    while (true) {
        const std::size_t nOpen = strTemplate.find('{');
        if (nOpen == std::string_view::npos)
            return vecKind;
        const std::string_view strPlace =
            strTemplate.substr(nOpen, strTemplate.find('}', nOpen) - nOpen);
        const std::size_t nKind = strPlace.find(':');
        if (nKind != std::string_view::npos)
            vecKind.emplace_back(strPlace.substr(nKind + 1));
        strTemplate.remove_prefix(nOpen + 1);
    }
}

TEST(CheckWordsTableTest, EveryKindOfTheCatalogueIsKnown)
{
    for (const CatalogueItem& item : ItemCatalogue())
        for (const char* szTemplate : {item.rule.szEnglish, item.rule.szJapanese,
                                       item.condition.szEnglish, item.condition.szJapanese})
            for (const std::string& strKind : KindsOf(szTemplate))
                EXPECT_TRUE(IsWordKind(strKind)) << item.strKeyword << ": " << strKind;
    EXPECT_FALSE(IsWordKind("colum"));
}

// ---------------------------------------------------------------------------------- conditions

/// A required column 3 under one condition on a column.
struct ConditionCase
{
    const char* szName;
    CheckDefinition condition;
    const char* szEnglish;
    const char* szJapanese;
};

void PrintTo(const ConditionCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ConditionWordsTest : public testing::TestWithParam<ConditionCase>
{
protected:
    CheckDefinition Check() const
    {
        CheckDefinition check = MakeCheck("exist", 3);
        check.vecCondition = {GetParam().condition};
        return check;
    }
};

TEST_P(ConditionWordsTest, StandsInFrontInEnglish)
{
    EXPECT_EQ(English(Check()), "if " + std::string(GetParam().szEnglish) + ": required");
}

TEST_P(ConditionWordsTest, StandsInFrontInJapanese)
{
    EXPECT_EQ(Japanese(Check()), std::string(GetParam().szJapanese) + "場合：必須");
}

const ConditionCase CONDITIONS[] = {
    {"exist", MakeCheck("exist", 13), "column 13 is filled", "項目13が入力されている"},
    {"exist_with_label", MakeCheck("exist", 3), "column 3 \"氏名\" is filled",
     "項目3「氏名」が入力されている"},
    {"empty", MakeCheck("empty", 13), "column 13 is empty", "項目13が空である"},
    {"contain", MakeCheck("contain", 13, "1"), "column 13 holds \"1\"", "項目13が「1」である"},
    {"contain_two", MakeCheck("contain", 13, "2 3"), "column 13 holds \"2\" or \"3\"",
     "項目13が「2」「3」のいずれかである"},
    {"except", MakeCheck("except", 13, "0 00"), "column 13 isn't \"0\" or \"00\"",
     "項目13が「0」「00」以外である"},
    {"length", MakeCheck("length", 13, "12"), "column 13 holds 12 digits", "項目13が12桁である"},
    {"range", MakeCheck("range", 13, "", "1", "9"), "column 13 holds 1 to 9",
     "項目13が1以上9以下である"},
    {"nonerr", MakeCheck("nonerr", 3, "13 14 15 16"),
     "there is no error so far in columns 13 to 16", "項目13～16にエラーがない"},
    {"nonerr_record", MakeCheck("nonerr", 3, "13", "1"),
     "there is no error so far in column 13 of record 1", "レコード1の項目13にエラーがない"},
    {"digitequality", MakeCheck("digitequality", 13, "1", "", "0"),
     "character 1 of column 13 is \"0\"", "項目13の1文字目が「0」である"},
    {"digitequality_forbidden", MakeCheck("digitequality", 13, "1", "0"),
     "character 1 of column 13 isn't \"0\"", "項目13の1文字目が「0」以外である"},
    {"anyexist", MakeCheck("anyexist", 3, "13 14 15 16"), "one of columns 13 to 16 is filled",
     "項目13～16のいずれかが入力されている"},
    {"anycontain", MakeCheck("anycontain", 3, "13 14 15", "1", "1"), "one of columns 13 to 15 is 1",
     "項目13～15のいずれかが1である"},
    {"existdate", MakeCheck("existdate", 7),
     "columns 7 to 10 \"契約日\" hold an existing date of Meiji to Shingo",
     "項目7～10「契約日」が明治～新号の実在する日付である"},
    {"containyear", MakeCheck("containyear", 13, "2019"),
     "columns 13 and 14 hold Western year 2019", "項目13～14が西暦2019年である"},
    {"exceptcolumn", MakeCheck("exceptcolumn", 13, "14"),
     "column 13 isn't the same value as column 14", "項目13が項目14と異なる値である"},
    {"exceptcolumn_number", MakeCheck("exceptcolumn", 13, "14", "1"),
     "column 13 isn't column 14 plus 1", "項目13が項目14の値に1を足した数以外である"},
    {"exist_2", MakeCheck("exist_2", 13),
     "the parts of the date from column 13 on are all filled or all empty",
     "項目13からの日付の項目がすべて入力、またはすべて空である"},
    {"rangedate_2", MakeCheck("rangedate_2", 7, "", "20160101", "13"),
     "columns 7 to 10 \"契約日\" lie from 1 January 2016 (Heisei 28) to 30 September of the year "
     "in columns 13 and 14",
     "項目7～10「契約日」が2016（平成28）年1月1日以後、項目13～14の年の9月30日以前である"},
    {"age", MakeCheck("age", 3, "7 13 0 12 31", "20"),
     "the person born on the date in columns 7 to 10 \"契約日\" is at least 20 on 31 December of "
     "the year in columns 13 and 14",
     "項目7～10「契約日」に生まれた人が項目13～14の年の12月31日に20歳以上である"},
    {"unknown_keyword", MakeCheck("Exist", 13), "column 13 holds Exist", "項目13がExistである"},
};

INSTANTIATE_TEST_SUITE_P(Keywords, ConditionWordsTest, testing::ValuesIn(CONDITIONS), CaseName());

TEST(CheckWordsHugeNumberTest, ParametersBeyondAllColumnsStayAsTheyAreWritten)
{
    constexpr const char* HUGE_NUMBER = "9223372036854775807";
    EXPECT_EQ(English(MakeCheck("equalyear", 3, HUGE_NUMBER)), HUGE_NUMBER);
    EXPECT_EQ(English(MakeCheck("rangebasedate_2", 3, "", HUGE_NUMBER)),
              "a date (no limits given)");
    EXPECT_EQ(English(MakeCheck("anyexist", 3, "9223372036854775807 9223372036854775807")),
              "one of column 9223372036854775807 and column 9223372036854775807 required");
    EXPECT_EQ(English(MakeCheck("containcolumn", 3, "13", "2147483647", "-2147483648")),
              "column 13 plus 4294967295");
}

TEST(CheckWordsConditionTest, SeveralConditionsAreJoined)
{
    CheckDefinition check = MakeCheck("length", 3, "", "", "5");
    check.vecCondition = {MakeCheck("exist", 13), MakeCheck("contain", 14, "1")};
    EXPECT_EQ(English(check), "if column 13 is filled and column 14 holds \"1\": up to 5 digits");
    EXPECT_EQ(Japanese(check), "項目13が入力されている、かつ項目14が「1」である場合：5桁以内");
}

TEST(CheckWordsConditionTest, ConditionWithoutAColumnIsLeftOut)
{
    CheckDefinition check = MakeCheck("exist", 3);
    check.vecCondition = {MakeCheck("exist", 0)};
    EXPECT_EQ(English(check), "required");
    EXPECT_EQ(Japanese(check), "必須");
}

// ---------------------------------------------------------------------------------- the rule of

DetailEntry Entry(long lRecord, long lColumn, long lColumnEnd, KZCEkaMessage_t eMessage)
{
    return {lRecord, lColumn, lColumnEnd, EkaMsgTable[eMessage].szCode, eMessage};
}

std::string RuleOfChecks(const std::vector<CheckDefinition>& vecCheck, const DetailEntry& entry)
{
    const LanguageOfTest language(Language::English);
    FormDefinition form = MakeForm();
    for (const CheckDefinition& check : vecCheck) {
        ItemDefinition item;
        item.lColumn = check.lColumn;
        item.vecCheck = {check};
        form.vecItem.push_back(item);
    }
    return RuleOf(form, entry);
}

/// One check and an entry of it.
struct PlaceCase
{
    const char* szName;
    CheckDefinition check;
    long lColumn;
    long lColumnEnd;
    KZCEkaMessage_t eMessage;
};

void PrintTo(const PlaceCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class RuleOfTest : public testing::TestWithParam<PlaceCase>
{
protected:
    std::string Rule(long lColumn, long lColumnEnd, KZCEkaMessage_t eMessage) const
    {
        return RuleOfChecks({GetParam().check}, Entry(1, lColumn, lColumnEnd, eMessage));
    }
};

TEST_P(RuleOfTest, FindsTheCheckByItsColumnsAndCode)
{
    EXPECT_EQ(Rule(GetParam().lColumn, GetParam().lColumnEnd, GetParam().eMessage),
              English(GetParam().check));
}

TEST_P(RuleOfTest, KnowsNothingOfTheNextColumn)
{
    const long lEnd =
        GetParam().lColumnEnd == SINGLE_COLUMN ? SINGLE_COLUMN : GetParam().lColumnEnd + 1;
    EXPECT_EQ(Rule(GetParam().lColumn + 1, lEnd, GetParam().eMessage), "");
}

TEST_P(RuleOfTest, KnowsNothingOfALongerRange)
{
    EXPECT_EQ(Rule(GetParam().lColumn, GetParam().lColumn + 7, GetParam().eMessage), "");
}

TEST_P(RuleOfTest, KnowsNothingOfAnotherCode)
{
    EXPECT_EQ(Rule(GetParam().lColumn, GetParam().lColumnEnd, HE70013E), "");
}

CheckDefinition Moved(CheckDefinition check, const char* szErrColumn)
{
    check.strErrColumn = szErrColumn;
    return check;
}

CheckDefinition WithMessage(CheckDefinition check, const char* szMessage)
{
    check.strMessage = szMessage;
    return check;
}

const PlaceCase PLACES[] = {
    {"Cell", MakeCheck("length", 3, "5"), 3, SINGLE_COLUMN, HE70008E},
    {"SecondCode", MakeCheck("checkdigit", 3, "kojin"), 3, SINGLE_COLUMN, HE70008E},
    {"MessageOfTheCheck", WithMessage(MakeCheck("exist", 3), "HE70012E"), 3, SINGLE_COLUMN,
     HE70012E},
    {"UnknownMessageIsNone", WithMessage(MakeCheck("exist", 3), "HE70099E"), 3, SINGLE_COLUMN,
     HE70001E},
    {"Date", MakeCheck("existdate", 7), 7, 10, HE70012E},
    {"Year", MakeCheck("equalyear", 5, "13"), 5, 6, HE70025E},
    {"NameAndCode", MakeCheck("taxofficenm", 13), 13, 14, HE70002E},
    {"YearOfMax", MakeCheck("rangedate_2", 7, "", "20160101", "13"), 13, 14, HE70025E},
    {"Age", MakeCheck("age", 3, "7 13 0 12 31", "20"), 3, SINGLE_COLUMN, HE70010E},
    {"AgeOfDays", MakeCheck("age", 7, "7 13 0 12 31 days", "20"), 7, 10, HE70010E},
    {"AgeOfAnotherSixthWord", MakeCheck("age", 7, "7 13 0 12 31 day", "20"), 7, SINGLE_COLUMN,
     HE70010E},
    {"YearMoved", Moved(MakeCheck("containyear", 5, "2019"), "13"), 13, 16, HE70025E},
    {"DateMoved", Moved(MakeCheck("rangebasedate_2", 7, "", "11"), "15"), 15, 18, HE70025E},
    {"OtherItemsAreNotMoved", Moved(MakeCheck("existdate", 7), "15"), 7, 10, HE70012E},
    {"WesternDate", MakeCheck("existdateYYYYMMDD", 3, "13 14 15"), 13, 15, HE70012E},
    {"GroupOfFour", MakeCheck("exist_2", 7), 7, 10, HE70012E},
    {"GroupOfTwo", MakeCheck("exist_2", 7), 7, 8, HE70012E},
    {"GroupOfNone", MakeCheck("exist_2", 7), 7, SINGLE_COLUMN, HE70012E},
    {"GroupKeepsItsCode", WithMessage(MakeCheck("exist_2", 7), "HE70001E"), 7, 8, HE70012E},
    {"AnyOf", MakeCheck("anyexist", 3, "13 14"), 3, SINGLE_COLUMN, HE70001E},
    {"OtherColumnIsNotReported", MakeCheck("containcolumn", 3, "13"), 3, SINGLE_COLUMN, HE70025E},
};

INSTANTIATE_TEST_SUITE_P(Places, RuleOfTest, testing::ValuesIn(PLACES), CaseName());

TEST(RuleOfChecksTest, OwnCodeDoesNotServeBesideAMessage)
{
    EXPECT_EQ(RuleOfChecks({WithMessage(MakeCheck("exist", 3), "HE70012E")},
                           Entry(1, 3, SINGLE_COLUMN, HE70001E)),
              "");
}

TEST(RuleOfChecksTest, SeveralCandidatesAreJoinedInTheirOrder)
{
    const std::vector<CheckDefinition> vecCheck = {MakeCheck("length", 3, "", "", "5"),
                                                   MakeCheck("length", 13, "", "", "6"),
                                                   MakeCheck("length", 3, "3")};
    EXPECT_EQ(RuleOfChecks(vecCheck, Entry(1, 3, SINGLE_COLUMN, HE70008E)),
              "up to 5 digits; or 3 digits");
}

TEST(RuleOfChecksTest, SeveralCandidatesAreJoinedInJapanese)
{
    const LanguageOfTest language(Language::Japanese);
    FormDefinition form;
    ItemDefinition item;
    item.vecCheck = {MakeCheck("length", 3, "", "", "5"), MakeCheck("length", 3, "3")};
    form.vecItem = {item};
    EXPECT_EQ(RuleOf(form, Entry(1, 3, SINGLE_COLUMN, HE70008E)), "5桁以内／3桁");
}

TEST(RuleOfChecksTest, TheSameWordsAreSaidOnce)
{
    EXPECT_EQ(RuleOfChecks({MakeCheck("exist", 3), MakeCheck("exist", 3)},
                           Entry(1, 3, SINGLE_COLUMN, HE70001E)),
              "required");
}

TEST(RuleOfChecksTest, ColumnsBeyondAllOthersReportNothing)
{
    const DetailEntry entry = Entry(1, 3, 6, HE70012E);
    EXPECT_EQ(RuleOfChecks({MakeCheck("existdate", std::numeric_limits<long>::max())}, entry), "");
    EXPECT_EQ(RuleOfChecks({Moved(MakeCheck("rangebasedate", 3), "9223372036854775807")}, entry),
              "");
}

TEST(RuleOfChecksTest, ConditionsAreSaid)
{
    CheckDefinition check = MakeCheck("exist", 3);
    check.vecCondition = {MakeCheck("exist", 13)};
    EXPECT_EQ(RuleOfChecks({check}, Entry(1, 3, SINGLE_COLUMN, HE70001E)),
              "if column 13 is filled: required");
}

TEST(RuleOfChecksTest, ConditionsOnErrorsAreNotSaid)
{
    CheckDefinition check = MakeCheck("exist", 3);
    check.vecCondition = {MakeCheck("nonerr", 3, "14"), MakeCheck("exist", 13)};
    EXPECT_EQ(English(check),
              "if there is no error so far in column 14 and column 13 is filled: required");
    EXPECT_EQ(RuleOfChecks({check}, Entry(1, 3, SINGLE_COLUMN, HE70001E)),
              "if column 13 is filled: required");
}

TEST(RuleOfChecksTest, RecordOfTheErrorCountsIfTheCheckNamesOne)
{
    CheckDefinition check = Moved(MakeCheck("rangebasedate", 3, "1_13", "2019/05/01"), "13");
    check.strErrRow = "1";
    const char* szWords =
        "the date in columns 13 to 16 of record 1: 1 May 2019 (Shingo 1) or later";
    EXPECT_EQ(RuleOfChecks({check}, Entry(1, 13, 16, HE70025E)), szWords);
    EXPECT_EQ(RuleOfChecks({check}, Entry(2, 13, 16, HE70025E)), "");
    check.strErrRow = "";
    EXPECT_EQ(RuleOfChecks({check}, Entry(2, 13, 16, HE70025E)), szWords);
}

TEST(RuleOfChecksTest, ErrorsOfFilesAndArgumentsHaveNoRule)
{
    const std::vector<CheckDefinition> vecCheck = {MakeCheck("exist", 1)};
    EXPECT_EQ(RuleOfChecks(vecCheck, Entry(1, 1, SINGLE_COLUMN, HE70001E)), "required");
    EXPECT_EQ(RuleOfChecks(vecCheck, Entry(FILE_RECORD, 1, SINGLE_COLUMN, HE70001E)), "");
    EXPECT_EQ(RuleOfChecks(vecCheck, Entry(ARGUMENT_RECORD, 1, SINGLE_COLUMN, HE70001E)), "");
}

TEST(RuleOfChecksTest, UnknownCodesAndKeywordsHaveNoRule)
{
    EXPECT_EQ(RuleOfChecks({MakeCheck("exist", 3)}, {1, 3, SINGLE_COLUMN, "HE70099E", MSG_NONE}),
              "");
    EXPECT_EQ(RuleOfChecks({MakeCheck("Exist", 3)}, Entry(1, 3, SINGLE_COLUMN, HE70001E)), "");
    EXPECT_EQ(RuleOfChecks({MakeCheck("nonerr", 3, "13")}, Entry(1, 3, SINGLE_COLUMN, HE99999E)),
              "");
}

/// Record 1 has a required column 3; the form of all others checks the date in column 13 of record
/// 1 and places its errors there.
ProcedureDefinition TwoForms()
{
    FormDefinition first = MakeForm();
    first.lStartRow = 1;
    first.lEndRow = 1;
    first.vecItem.resize(1);
    first.vecItem[0].vecCheck = {MakeCheck("exist", 3)};
    FormDefinition others = MakeForm();
    others.lStartRow = 2;
    others.vecItem.resize(1);
    CheckDefinition check = Moved(MakeCheck("rangebasedate", 3, "1_13", "2019/05/01"), "13");
    check.strErrRow = "1";
    others.vecItem[0].vecCheck = {check, MakeCheck("exist", 3), MakeCheck("exist", 5)};
    ProcedureDefinition procedure;
    procedure.vecForm = {first, others};
    return procedure;
}

TEST(RuleOfProcedureTest, FormOfTheRecordIsLookedAt)
{
    EXPECT_EQ(RuleOf(TwoForms(), Entry(1, 3, SINGLE_COLUMN, HE70001E), 4), "required");
    EXPECT_EQ(RuleOf(TwoForms(), Entry(1, 5, SINGLE_COLUMN, HE70001E), 4), "");
    EXPECT_EQ(RuleOf(TwoForms(), Entry(4, 5, SINGLE_COLUMN, HE70001E), 4), "required");
}

TEST(RuleOfProcedureTest, ChecksOfOtherFormsMayPlaceTheirErrorsInTheRecord)
{
    EXPECT_EQ(RuleOf(TwoForms(), Entry(1, 13, 16, HE70025E), 4),
              "the date in columns 13 to 16 of record 1: 1 May 2019 (Shingo 1) or later");
    EXPECT_EQ(RuleOf(TwoForms(), Entry(2, 13, 16, HE70025E), 4), "");
}

TEST(RuleOfProcedureTest, ErrorsOfFilesAndArgumentsHaveNoRule)
{
    EXPECT_EQ(RuleOf(TwoForms(), Entry(FILE_RECORD, 3, SINGLE_COLUMN, HE70001E), 4), "");
    EXPECT_EQ(RuleOf(TwoForms(), Entry(ARGUMENT_RECORD, 3, SINGLE_COLUMN, HE70001E), 4), "");
}

// ---------------------------------------------------------------------------------- the samples

std::string ReadFile(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string FirstLine(const std::filesystem::path& path)
{
    const std::string strText = ReadFile(path);
    return strText.substr(0, strText.find('\n'));
}

TEST(RuleOfSamplesTest, EveryErrorOfACellHasARule)
{
    const Definitions definitions(KZEKAMOK_SOURCE_BUNDLE);
    std::size_t nErrors = 0;
    for (const auto& file : std::filesystem::directory_iterator(KZEKAMOK_SAMPLES_DIR)) {
        if (file.path().extension() != ".detail")
            continue;
        std::filesystem::path pathCsv = file.path();
        const std::string strBytes = ReadFile(pathCsv.replace_extension(".csv"));
        // A sample may begin with a blank record, and its type id may stand in quotes.
        const std::size_t nTypeId = strBytes.find_first_of("0123456789");
        ASSERT_NE(nTypeId, std::string::npos) << pathCsv;
        const ProcedureDefinition* pProcedure = definitions.Find(strBytes.substr(nTypeId, 3));
        ASSERT_NE(pProcedure, nullptr) << pathCsv;
        const CsvCells cells(strBytes, pProcedure->eFamily);
        for (const DetailEntry& entry : ParseDetailTable(FirstLine(file.path()))) {
            if (entry.lRecord == FILE_RECORD)
                continue;
            ++nErrors;
            EXPECT_NE(RuleOf(*pProcedure, entry, cells.RecordCount()), "")
                << file.path() << " " << entry.lRecord << " " << entry.lColumn << " "
                << entry.lColumnEnd << " " << entry.strCode;
        }
    }
    EXPECT_GT(nErrors, 400u);
}

// ---------------------------------------------------------------------------------- the bundle

class ShippedWordsTest : public testing::TestWithParam<Language>
{};

TEST_P(ShippedWordsTest, EveryCheckOfEveryProcedureIsSaidWholly)
{
    const LanguageOfTest language(GetParam());
    const Definitions definitions(KZEKAMOK_SOURCE_BUNDLE);
    std::size_t nProcedures = 0;
    std::size_t nChecks = 0;
    for (const Family eFamily : {Family::Base, Family::Finance, Family::CrossBorder}) {
        for (const std::string& strTypeId : definitions.TypeIds(eFamily)) {
            const ProcedureDefinition* pProcedure = definitions.Find(strTypeId);
            ASSERT_NE(pProcedure, nullptr) << strTypeId;
            ++nProcedures;
            for (const FormDefinition& form : pProcedure->vecForm) {
                for (const ItemDefinition& item : form.vecItem) {
                    for (const CheckDefinition& check : item.vecCheck) {
                        ++nChecks;
                        const std::string strWords = CheckWords(check, form);
                        SCOPED_TRACE(pProcedure->strPath + ":" + std::to_string(check.lLine) +
                                     ": " + strWords);
                        EXPECT_NE(strWords, "");
                        EXPECT_NE(strWords, check.strKeyword);
                        EXPECT_EQ(strWords.find_first_of("{}[]|"), std::string::npos);
                        EXPECT_EQ(strWords.find("指定なし"), std::string::npos);
                        EXPECT_EQ(strWords.find("not given"), std::string::npos);
                        EXPECT_EQ(strWords.find("no limits"), std::string::npos);
                    }
                }
            }
        }
    }
    EXPECT_EQ(nProcedures, 29u);
    EXPECT_GT(nChecks, 3000u);
}

INSTANTIATE_TEST_SUITE_P(Languages,
                         ShippedWordsTest,
                         testing::Values(Language::English, Language::Japanese),
                         [](const auto& testCase) {
                             return testCase.param == Language::English ? "English" : "Japanese";
                         });

}  // namespace
}  // namespace host
