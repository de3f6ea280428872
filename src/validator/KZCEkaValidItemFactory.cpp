// Turns the keywords of definition files and of the argument table into check items.
#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "KZCDebugDump.h"
#include "text/CText.h"
#include "validator/ItemCatalogue.h"
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
#include "validator/KZCEkaValidItem.h"
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

using ItemPtr = std::unique_ptr<KZCEkaValidItem>;

struct ItemParam
{
    const char* szValue;
    const char* szMin;
    const char* szMax;
};

constexpr auto VALUE = &ItemParam::szValue;
constexpr auto MIN = &ItemParam::szMin;
constexpr auto MAX = &ItemParam::szMax;

/// Makes an Item and hands SetParam the attributes that its row names, in that order.
template <class Item, const char* ItemParam::*... pParam>
ItemPtr MakeItem(long lColumn, KZCEkaMessage_t eMessage, [[maybe_unused]] const ItemParam& param)
{
    auto pItem = std::make_unique<Item>(lColumn, eMessage);
    if constexpr (sizeof...(pParam) > 0)
        pItem->SetParam(param.*pParam...);
    return pItem;
}

/// How an item is made, and which attributes reach it.
struct Maker
{
    ItemPtr (*pMake)(long lColumn, KZCEkaMessage_t eMessage, const ItemParam& param);
    bool bValue;
    bool bMin;
    bool bMax;

    constexpr bool Fits(const ItemShape& shape) const
    {
        return bValue == shape.value.IsRead() && bMin == shape.min.IsRead() &&
               bMax == shape.max.IsRead();
    }
};

template <class Item, const char* ItemParam::*... pParam>
constexpr Maker Make = {MakeItem<Item, pParam...>, ((pParam == VALUE) || ...),
                        ((pParam == MIN) || ...), ((pParam == MAX) || ...)};

template <KZCEkaMessage_t... eMessage>
constexpr std::array<KZCEkaMessage_t, sizeof...(eMessage)> CODES = {eMessage...};

struct ItemKeyword
{
    std::string_view strKeyword;
    Maker maker;
    ItemShape shape;
    std::span<const KZCEkaMessage_t> messages;  ///< that the class itself reports
    ItemWords rule;
    ItemWords description;
    ItemWords condition = {};
};

/// The one place where a keyword meets its class, its shape and its words: the rule as a template,
/// a description and, where the rule can't be said of a column, the rule as a condition. An
/// attribute that a row doesn't name is dropped.
constexpr auto ITEM_KEYWORDS = std::to_array<ItemKeyword>({
    {
        "alnum",
        Make<KZCEkaValidAlnum>,
        {.eContent = CellContent::LettersAndDigits},
        CODES<HE70006E>,
        {"half-width letters, digits, blanks and hyphens", "半角英数字・半角空白・半角ハイフン"},
        {"Half-width letters, digits, blanks and hyphens only. An empty value passes.",
         "半角の英字、数字、空白、ハイフンだけの値です。空の値は通ります。"},
    },
    {
        "charlength",
        Make<KZCEkaValidCharlength, VALUE, MAX>,
        {.value = {AttributeKind::CharacterCount, Absence::Fault},
         .max = {AttributeKind::CharacterCount, Absence::Fault}},
        CODES<HE70007E>,
        {"[{value} character{value:s}|up to {max} character{max:s}]",
         "[{value}文字|{max}文字以内]"},
        {"Exactly `value` characters or, without `value`, `max` at most. Half-width and "
         "full-width characters count 1 each; an empty value has 0.",
         "文字数が`value`に等しいこと。`value`がなければ`max`以内であること。"
         "半角も全角も1文字と数え、空の値は0文字です。"},
    },
    {
        "contain",
        Make<KZCEkaValidContain, VALUE>,
        {.value = {AttributeKind::Texts, Absence::Fault}},
        CODES<HE70009E>,
        {"{value:list}", "{value:one-of}"},
        {"One of the texts listed in `value`, as a whole. An empty value is refused.",
         "`value`に空白で区切って並べた文字列のどれかと一致すること。空の値は通りません。"},
    },
    {
        "containcolumn",
        Make<KZCEkaValidContainColumn, VALUE, MIN, MAX>,
        {.value = {AttributeKind::EqualColumn, Absence::Fault},
         .min = {AttributeKind::Offset},
         .max = {AttributeKind::Offset}},
        CODES<HE70025E>,
        {"[{min:sum}|{max:sum}|the same value as {value:column}]",
         "[{min:sum}|{max:sum}|{value:column}と同じ値]"},
        {"The same text as in the column `value`. With `min` or `max` numbers are compared: this "
         "one less `min` plus `max` is that one, and an empty value is 0.",
         "項目`value`と同じ文字列であること。`min`か`max`があれば数として比べ、"
         "`min`を引いて`max`を足した数が項目`value`の数に等しいこと（空の値は0です）。"},
    },
    {
        "containyear",
        Make<KZCEkaValidContainYear, VALUE>,
        {.eCells = OwnCells::Year,
         .value = {AttributeKind::Years, Absence::Fault},
         .ePlace = ErrorPlace::PairOrColumn},
        CODES<HE70025E>,
        {"Western year {value:years}", "西暦{value:years}年"},
        {"The Western year of an era and a year is listed in `value`. A year that can't be read "
         "is refused.",
         "元号と年が表す西暦の年が、`value`に並べた年のどれかであること。"
         "読み取れない年は通りません。"},
    },
    {
        "empty",
        Make<KZCEkaValidEmpty>,
        {.eContent = CellContent::Empty},
        CODES<HE70005E>,
        {"must be empty", "入力不可"},
        {"Nothing is written in the column.", "項目に何も入力されていないこと。"},
        {"{column:own} is empty", "{column:own}が空である"},
    },
    {
        "equalyear",
        Make<KZCEkaValidEqualyear, VALUE, MIN, MAX>,
        {.eCells = OwnCells::Year,
         .value = {AttributeKind::EqualYearColumn, Absence::Fault},
         .min = {AttributeKind::Offset},
         .max = {AttributeKind::Offset},
         .ePlace = ErrorPlace::Pair},
        CODES<HE70025E>,
        {"{value:year-sum}", "{value:year-sum}"},
        {"The year is that in the column `value` plus `max` less `min`. It passes if one of the "
         "two can't be read.",
         "項目`value`の年に`max`を足して`min`を引いた年に等しいこと。"
         "どちらかの年を読み取れないときは通ります。"},
    },
    {
        "lvystring",
        Make<KZCEkaValidLvystring, VALUE>,
        {.eContent = CellContent::FilingCharacters,
         .value = {AttributeKind::LineFeeds, Absence::Fine, "allow_LF"}},
        CODES<HE70006E>,
        {"characters that a filing may carry (no half-width katakana, no emoji, "
         "[{value=allow_LF}line feeds allowed|no line feeds])",
         "申告に使用できる文字（半角カタカナ・絵文字などは不可、改行は[{value=allow_LF}可|不可]）"},
        {"Letters, digits, symbols, kana and kanji that a filing may carry; half-width katakana, "
         "emoji and some symbols are none of them. A line feed is allowed if `value` is "
         "`allow_LF`. An empty value passes.",
         "申告に使用できる英数字、記号、かな、漢字だけの値です。半角カタカナ、絵文字、"
         "一部の記号は使用できません。改行は`value`が`allow_LF`のときだけ使用できます。"
         "空の値は通ります。"},
    },
    {
        "except",
        Make<KZCEkaValidExcept, VALUE>,
        {.value = {AttributeKind::ForbiddenTexts, Absence::Fault}},
        CODES<HE99999E>,
        {"not {value:list}", "{value:list}以外"},
        {"None of the texts listed in `value`, each compared as a whole. An empty value passes.",
         "`value`に空白で区切って並べた文字列のどれとも一致しないこと。空の値は通ります。"},
        {"{column:own} isn't {value:list}", "{column:own}が{value:list}以外である"},
    },
    {
        "exist",
        Make<KZCEkaValidExist>,
        {.eContent = CellContent::Filled},
        CODES<HE70001E>,
        {"required", "必須"},
        {"Something is written in the column.", "項目に値が入力されていること。"},
        {"{column:own} is filled", "{column:own}が入力されている"},
    },
    {
        "existdate",
        Make<KZCEkaValidExistdate>,
        {.eCells = OwnCells::Date, .ePlace = ErrorPlace::Date},
        CODES<HE70012E>,
        {"an existing date of Meiji to Shingo", "明治～新号の実在する日付"},
        {"A real date within its era, from Meiji 23 (1890) on. Heisei 31 from May on and Heisei "
         "32 up to March count as Shingo 1 and 2; later dates of Heisei are refused, and so is an "
         "incomplete date.",
         "元号の期間内に実在する日付であること（明治は23年から）。"
         "平成31年5月以後と平成32年3月までは新号1年・2年として扱い、"
         "それより後の平成と不完全な日付は通りません。"},
    },
    {
        "existdate_2",
        Make<KZCEkaValidExistdate_2>,
        {.eCells = OwnCells::Date, .ePlace = ErrorPlace::Date},
        CODES<HE70012E>,
        {"an existing date within its era (Heisei up to 30 April of year 31)",
         "元号の期間内に実在する日付（平成は31年4月30日まで）"},
        {"A real date within the era as it is written, from Meiji 23 (1890) on; Heisei ends on 30 "
         "April of its year 31. An incomplete date is refused.",
         "書かれた元号の期間内に実在する日付であること（明治は23年から、平成は31年4月30日まで）。"
         "不完全な日付は通りません。"},
    },
    {
        "existpath",
        Make<KZCEkaValidExistpath, VALUE>,
        {.value = {AttributeKind::PathKind, Absence::Fault, "file dir"}},
        CODES<HE70001E, HE70010E, HE70013E, HE70014E, HE70024E>,
        {"[{value=file}a readable file that isn't empty|{value=dir}a path in an existing folder]",
         "[{value=file}読み取れる空でないファイル|{value=dir}存在するフォルダー内のパス]"},
        {"If `value` is `file`, a file that is there, can be read and isn't empty; if it is "
         "`dir`, a path whose folder exists. Only for arguments of a request.",
         "`value`が`file`のときは存在し、読み取れる、空でないファイルであること。"
         "`dir`のときはパスのフォルダーが存在すること。呼び出しの引数だけに使います。"},
    },
    {
        "extension",
        Make<KZCEkaValidExtension, VALUE>,
        {.value = {AttributeKind::Extensions, Absence::Fault}},
        CODES<HE70015E>,
        {"the extension {value:list}", "拡張子{value:one-of}"},
        {"A path that ends in one of the extensions listed in `value`, with their dots; case is "
         "told apart. Only for arguments of a request.",
         "`value`に並べた拡張子（ドット付き、大文字と小文字を区別）"
         "のどれかで終わるパスであること。呼び出しの引数だけに使います。"},
    },
    {
        "istring",
        Make<KZCEkaValidIstring>,
        {.eContent = CellContent::JisCharacters},
        CODES<HE70006E>,
        {"full-width characters of JIS X 0208 (some symbols excepted)",
         "全角文字（JIS第1・第2水準、一部の記号を除く）"},
        {"Full-width characters of JIS X 0208 only, without a few symbols such as ℃ and ★. "
         "Half-width characters are refused; an empty value passes.",
         "JIS X 0208の全角文字だけの値です。℃や★など一部の記号と半角文字は使用できません。"
         "空の値は通ります。"},
    },
    {
        "length",
        Make<KZCEkaValidLength, VALUE, MAX>,
        {.value = {AttributeKind::ByteCount, Absence::Fault},
         .max = {AttributeKind::ByteCount, Absence::Fault}},
        CODES<HE70008E>,
        {"[{value} digit{value:s}|up to {max} digit{max:s}]", "[{value}桁|{max}桁以内]"},
        {"Exactly `value` bytes or, without `value`, `max` at most. In a CSV file a half-width "
         "character counts 1 and a full-width one 2; an empty value has 0.",
         "半角に換算した桁数が`value`に等しいこと。`value`がなければ`max`以内であること。"
         "CSVでは半角文字を1桁、全角文字を2桁と数え、空の値は0桁です。"},
    },
    {
        "multibyte",
        Make<KZCEkaValidMultibyte>,
        {.eContent = CellContent::FullWidth},
        CODES<HE99999E>,
        {"full-width characters", "全角文字"},
        {"Full-width characters only. An empty value passes.",
         "全角文字だけの値です。空の値は通ります。"},
    },
    {
        "multikana",
        Make<KZCEkaValidMultikana>,
        {.eContent = CellContent::Katakana},
        CODES<HE70003E>,
        {"full-width katakana and blanks", "全角カタカナ・全角空白"},
        {"Full-width katakana with its voicing and length marks, and full-width blanks. An empty "
         "value passes.",
         "全角カタカナ（濁点、半濁点、長音を含む）と全角空白だけの値です。空の値は通ります。"},
    },
    {
        "multikana_2",
        Make<KZCEkaValidMultikana_2>,
        {.eContent = CellContent::KatakanaAndAscii},
        CODES<HE70034E>,
        {"full-width katakana, letters, digits and symbols, and ASCII without the comma",
         "全角カタカナ・英数字・記号、半角英数字・記号（カンマを除く）"},
        {"Full-width katakana, the full-width forms of ASCII, and half-width ASCII but the comma. "
         "Half-width katakana is refused; an empty value passes.",
         "全角のカタカナ・英数字・記号と、カンマを除く半角の英数字・記号だけの値です。"
         "半角カタカナは通らず、空の値は通ります。"},
    },
    {
        "nonerr",
        Make<KZCEkaValidNonerr, VALUE, MIN>,
        {.eCells = OwnCells::None,
         .value = {AttributeKind::ErrorColumns, Absence::Fault},
         .min = {AttributeKind::Record},
         .ePlace = ErrorPlace::None},
        CODES<>,
        {"no error so far in [{value:numbers} of record {min}|{value:columns}]",
         "[レコード{min}の{value:numbers}|{value:columns}]にエラーがないこと"},
        {"None of the columns listed in `value` has an error so far, in this record or in the "
         "record `min`. It records no error itself; it keeps others from being checked.",
         "`value`に並べた項目に、それまでのチェックでエラーがないこと。"
         "`min`があればそのレコードを見ます。自分ではエラーを記録せず、"
         "後のチェックを止めるだけです。"},
        {"there is no error so far in [{value:numbers} of record {min}|{value:columns}]",
         "[レコード{min}の{value:numbers}|{value:columns}]にエラーがない"},
    },
    {
        "number",
        Make<KZCEkaValidNumber>,
        {.eContent = CellContent::Digits},
        CODES<HE70004E>,
        {"half-width digits", "半角数字"},
        {"Half-width digits only, without a sign or a point. An empty value passes.",
         "半角数字だけの値です。符号と小数点は使用できません。空の値は通ります。"},
    },
    {
        "onward",
        Make<KZCEkaValidOnward, VALUE>,
        {.eCells = OwnCells::Date,
         .value = {AttributeKind::FirstDay, Absence::Fault},
         .ePlace = ErrorPlace::Date},
        CODES<HE70010E, HE70012E>,
        {"{value:date} or later", "{value:date}以後の日付"},
        {"The date `value` (`YYYYMMDD`) or a later one. A date that doesn't exist is refused.",
         "`value`（`YYYYMMDD`）の日かそれより後の日付であること。実在しない日付は通りません。"},
    },
    {
        "range",
        Make<KZCEkaValidRange, MIN, MAX>,
        {.min = {AttributeKind::Limit, Absence::CountsAsZero},
         .max = {AttributeKind::Limit, Absence::CountsAsZero}},
        CODES<HE70009E>,
        {"{min:range}", "{min:range}"},
        {"A number from `min` to `max`, both included; a limit that is left out is 0, and "
         "decimals aren't looked at. An empty value is refused.",
         "`min`以上`max`以下の数であること。省いた限度は0とみなし、小数点以下は見ません。"
         "空の値は通りません。"},
    },
    {
        "rangebasedate",
        Make<KZCEkaValidRangebasedate, VALUE, MIN, MAX>,
        {.eCells = OwnCells::Date,
         .value = {AttributeKind::DateCell},
         .min = {AttributeKind::BaseDate, Absence::PassesAll},
         .max = {AttributeKind::BaseDate, Absence::PassesAll},
         .ePlace = ErrorPlace::DateOrCell},
        CODES<HE70012E, HE70025E>,
        {"[the date in {value:cell}: {min:western} to {max:western}|the date in {value:cell}: "
         "{min:western} or later|the date in {value:cell}: {max:western} or earlier|the date in "
         "{value:cell} (no limits given)|the date in {min:date-column} or later, up to that in "
         "{max:date-column}|the date in {min:date-column} or later|the date in {max:date-column} "
         "or earlier|an existing date]",
         "[{value:cell}の日付が{min:western}以後、{max:western}以前|"
         "{value:cell}の日付が{min:western}以後|{value:cell}の日付が{max:western}以前|"
         "{value:cell}の日付（範囲の指定なし）|{min:date-column}以後、{max:date-column}以前の日付|"
         "{min:date-column}以後の日付|{max:date-column}以前の日付|実在する日付]"},
        {"A date from that in the column `min` to that in the column `max`, both included and "
         "either may be left out. With `value`, a reference `row_col`, the date of that cell is "
         "checked, and `min` and `max` are dates (`YYYY/MM/DD`); an empty cell there passes.",
         "項目`min`の日付以後、項目`max`の日付以前の日付であること（どちらも省けます）。"
         "`value`に「行_列」があればそのセルの日付を調べ、`min`と`max`は日付（`YYYY/MM/DD`）です。"
         "そのセルが空なら通ります。"},
    },
    {
        "rangebasedate_2",
        Make<KZCEkaValidRangebasedate_2, VALUE, MIN, MAX>,
        {.eCells = OwnCells::Date,
         .value = {AttributeKind::LimitsIncluded, Absence::Fine, "include"},
         .min = {AttributeKind::BaseDateOrCell, Absence::RefusesAll},
         .max = {AttributeKind::BaseDateOrCell, Absence::RefusesAll},
         .ePlace = ErrorPlace::DateOrColumn},
        CODES<HE70025E, HE99999E>,
        {"[{value=include}the date in {min:source} or later, up to that in {max:source}|"
         "{value=include}the date in {min:source} or later|{value=include}the date in "
         "{max:source} or earlier|a date after that in {min:source} and before that in "
         "{max:source}|a date after that in {min:source}|a date before that in {max:source}|a "
         "date (no limits given)]",
         "[{value=include}{min:source}以後、{max:source}以前の日付|"
         "{value=include}{min:source}以後の日付|{value=include}{max:source}以前の日付|"
         "{min:source}より後、{max:source}より前の日付|{min:source}より後の日付|"
         "{max:source}より前の日付|日付（範囲の指定なし）]"},
        {"A date after that of `min` and before that of `max`; with the word `include` in `value` "
         "the two dates themselves pass as well. Each is a column of the record or a reference "
         "`row_col` to another record; where such a cell is empty, the check passes.",
         "`min`の日付より後、`max`の日付より前の日付であること。"
         "`value`が`include`のときは両端の日付も通ります。`min`と`max`は同じレコードの項目か、"
         "他のレコードを指す「行_列」です。指したセルが空なら通ります。"},
    },
    {
        "rangedate",
        Make<KZCEkaValidRangedate, MIN, MAX>,
        {.eCells = OwnCells::Date,
         .min = {AttributeKind::Periods, Absence::RefusesAll},
         .max = {AttributeKind::Periods, Absence::RefusesAll},
         .ePlace = ErrorPlace::Date},
        CODES<HE70010E, HE70012E>,
        {"a date from {min:periods}", "{min:periods}の日付"},
        {"A date in one of the ranges that the lists `min` and `max` make pair by pair "
         "(`YYYYMMDD`), both ends included; `****` in place of the year is any year. A date that "
         "doesn't exist is refused.",
         "`min`と`max`に並べた日付（`YYYYMMDD`）"
         "を順に組にした期間のどれかに入る日付であること（両端を含みます）。"
         "年の代わりの`****`は任意の年です。実在しない日付は通りません。"},
    },
    {
        "rangedate_2",
        Make<KZCEkaValidRangedate_2, MIN, MAX>,
        {.eCells = OwnCells::Date,
         .min = {AttributeKind::FirstDay, Absence::Fault},
         .max = {AttributeKind::FiscalYearColumn, Absence::Fault},
         .ePlace = ErrorPlace::YearOfMax},
        CODES<HE70025E>,
        {"the date in {column:date-column} from {min:date} to 30 September of the year in "
         "{max:year-column}",
         "{column:date-column}が{min:date}以後、{max:year-column}の年の9月30日以前"},
        {"The date lies between `min` (`YYYYMMDD`) and 30 September of the year in the column "
         "`max`, both included; the error is placed on that year. A date that doesn't exist "
         "passes.",
         "`min`（`YYYYMMDD`）以後、項目`max`の年の9月30日以前の日付であること。"
         "エラーはその年の項目に付きます。実在しない日付は通ります。"},
        {"{column:date-column} lie from {min:date} to 30 September of the year in "
         "{max:year-column}",
         "{column:date-column}が{min:date}以後、{max:year-column}の年の9月30日以前である"},
    },
    {
        "rangedate_3",
        Make<KZCEkaValidRangedate_3, VALUE>,
        {.eCells = OwnCells::Date,
         .value = {AttributeKind::FiscalYearColumn, Absence::Fault},
         .ePlace = ErrorPlace::Date},
        CODES<HE70025E>,
        {"a date in the year up to 30 September of the year in {value:year-column}",
         "{value:year-column}の年の9月30日までの1年間の日付"},
        {"A date from 1 October of the year before to 30 September of the year in the column "
         "`value`. A date that doesn't exist passes.",
         "項目`value`の前年10月1日からその年の9月30日までの日付であること。"
         "実在しない日付は通ります。"},
    },
    {
        "taxoffice",
        Make<KZCEkaValidTaxoffice>,
        {.eContent = CellContent::OfficeCode},
        CODES<HE70011E>,
        {"the code of a tax office", "実在する局署番号"},
        {"The code of a tax office in the list of offices. An empty value is refused.",
         "局署の一覧にある局署番号であること。空の値は通りません。"},
    },
    {
        "taxofficenm",
        Make<KZCEkaValidTaxofficenm>,
        {.eCells = OwnCells::OfficeName, .ePlace = ErrorPlace::Pair},
        CODES<HE70002E>,
        {"the name of the tax office whose code is in the next column",
         "次の項目の局署番号に対応する局署名称"},
        {"The name that the list of offices has for the code in the next column. An empty value "
         "is refused.",
         "局署の一覧で、次の項目の局署番号に対応する名称であること。空の値は通りません。"},
    },
    {
        "age",
        Make<KZCEkaValidAge, VALUE, MIN, MAX>,
        {.eCells = OwnCells::None,
         .value = {AttributeKind::AgeColumns, Absence::Fault},
         .min = {AttributeKind::AgeLimit, Absence::PassesAll},
         .max = {AttributeKind::AgeLimit, Absence::PassesAll},
         .ePlace = ErrorPlace::CellOrDate},
        CODES<HE70010E>,
        {"[aged {min} to {max}|aged at least {min}|aged at most {max}|with a known age] on "
         "{value:age-day}, born on the date in {value:birth}",
         "{value:age-day}に[{min}歳以上{max}歳以下|{min}歳以上|{max}歳以下|"
         "年齢が分かること]（生年月日は{value:birth}）"},
        {"The age on a reference day is from `min` to `max` years, both included and either may "
         "be left out. `value` holds the column of the birth date, the column of the reference "
         "year, years to add, month and day, and `days` if an error is to cover four columns. A "
         "date that can't be read is refused.",
         "基準日の年齢が`min`歳以上`max`歳以下であること（どちらも省けます）。"
         "`value`は生年月日の項目、基準年の項目、足す年数、月、日の順に並べ、"
         "エラーを4項目に付けるときは`days`を加えます。読み取れない日付は通りません。"},
        {"the person born on the date in {value:birth} is [{min} to {max}|at least {min}|at most "
         "{max}|of a known age] on {value:age-day}",
         "{value:birth}に生まれた人が{value:age-day}に[{min}歳以上{max}歳以下である|"
         "{min}歳以上である|{max}歳以下である|年齢が分かる]"},
    },
    {
        "checkdigit",
        Make<KZCEkaValidCheckDigit, VALUE>,
        {.value = {AttributeKind::NumberKind, Absence::Fault, "kojin kojin2 hojin seiri"}},
        CODES<HE70004E, HE70008E, HE70010E>,
        {"[{value=kojin}a personal number of 12 digits|{value=kojin2}a digit and a personal "
         "number of 12 digits|{value=hojin}a corporate number of 13 digits|{value=seiri}a "
         "reference number of 14 digits|a number] with the right check digit",
         "検査用数字が正しい[{value=kojin}個人番号（12桁）|"
         "{value=kojin2}個人番号（先頭の1桁を除く12桁）|{value=hojin}法人番号（13桁）|"
         "{value=seiri}整理番号（14桁）|番号]"},
        {"A number of digits only whose length and check digit are right. `value` is its kind: "
         "`kojin` (personal, 12 digits), `kojin2` (the same behind one more digit), `hojin` "
         "(corporate, 13) or `seiri` (reference, 14). An empty value is refused.",
         "数字だけで、桁数と検査用数字が正しい番号であること。`value`は種類で、"
         "`kojin`（個人番号12桁）、`kojin2`（先頭に1桁が付く個人番号）、`hojin`（法人番号13桁）、"
         "`seiri`（整理番号14桁）のどれかです。空の値は通りません。"},
    },
    {
        "digitequality",
        Make<KZCEkaValidDigitEquality, VALUE, MIN, MAX>,
        {.value = {AttributeKind::Positions, Absence::Fault},
         .min = {AttributeKind::Characters, Absence::Fault},
         .max = {AttributeKind::Characters, Absence::Fault}},
        CODES<HE70010E>,
        {"[{value:positions} is {max:one-of-characters}|{value:positions} isn't {min:characters}]",
         "[{value:positions}が{max:one-of-characters}|{value:positions}が{min:characters}以外]"},
        {"Each of the characters at the positions in `value` is one of those in `max` or, without "
         "`max`, none of those in `min`. A value too short for a position is refused.",
         "`value`に並べた位置の文字が、どれも`max`の文字のどれかであること。"
         "`max`がなければ`min`の文字以外であること。その位置まで届かない値は通りません。"},
        {"[{value:positions} of {column:own} is {max:one-of-characters}|{value:positions} of "
         "{column:own} isn't {min:characters}]",
         "[{column:own}の{value:positions}が{max:one-of-characters}である|"
         "{column:own}の{value:positions}が{min:characters}以外である]"},
    },
    {
        "exceptcolumn",
        Make<KZCEkaValidExceptColumn, VALUE, MIN, MAX>,
        {.value = {AttributeKind::UnequalColumn, Absence::Fault},
         .min = {AttributeKind::Offset},
         .max = {AttributeKind::Offset}},
        CODES<HE70010E>,
        {"not [{min:sum}|{max:sum}|the same value as {value:column}]",
         "[{min:sum}以外|{max:sum}以外|{value:column}と異なる値]"},
        {"Another text than in the column `value`. With `min` or `max` numbers are compared: this "
         "one less `min` plus `max` isn't that one, and an empty value is 0.",
         "項目`value`と異なる文字列であること。`min`か`max`があれば数として比べ、"
         "`min`を引いて`max`を足した数が項目`value`の数と異なること（空の値は0です）。"},
        {"{column:own} isn't [{min:sum}|{max:sum}|the same value as {value:column}]",
         "{column:own}が[{min:sum}以外|{max:sum}以外|{value:column}と異なる値]である"},
    },
    {
        "compdate",
        Make<KZCEkaValidCompDate, VALUE, MIN, MAX>,
        {.eCells = OwnCells::Date,
         .value = {AttributeKind::ComparedDay, Absence::Fault},
         .min = {AttributeKind::ComparedDay, Absence::Fault},
         .max = {AttributeKind::ComparedDay, Absence::Fault},
         .ePlace = ErrorPlace::Date},
        CODES<HE70010E, HE70012E>,
        {"[the date {value:date}|{min:date} or later|{max:date} or earlier]",
         "[{value:date}|{min:date}以後の日付|{max:date}以前の日付]"},
        {"The date `value`, or `min` or a later one, or `max` or an earlier one: the first of the "
         "three that has the form `YYYYMMDD` counts. A date that doesn't exist is refused.",
         "`value`の日付に等しいこと、`min`以後であること、または`max`以前であること。"
         "3つのうち`YYYYMMDD`の形をした最初のものだけを使います。実在しない日付は通りません。"},
    },
    {
        "exist_2",
        Make<KZCEkaValidExist_2>,
        {.eCells = OwnCells::GroupOfKind, .ePlace = ErrorPlace::GroupOfKind},
        CODES<HE70012E>,
        {"all parts of the date filled, or all empty", "日付の項目をすべて入力、またはすべて空"},
        {"The columns of a date are all filled or all empty: four in forms 003, 004 and 005, two "
         "(era and year) in 006, 007 and 009. Any other form is refused.",
         "日付の項目がすべて入力されているか、すべて空であること。申請区分003・004・005では4項目、"
         "006・007・009では元号と年の2項目です。他の申請区分では通りません。"},
        {"the parts of the date from {column:own} on are all filled or all empty",
         "{column:own}からの日付の項目がすべて入力、またはすべて空である"},
    },
    {
        "rangedate_4",
        Make<KZCEkaValidRangedate_4, MIN, MAX>,
        {.eCells = OwnCells::Date,
         .min = {AttributeKind::Period, Absence::RefusesAll},
         .max = {AttributeKind::Period, Absence::RefusesAll},
         .ePlace = ErrorPlace::Date},
        CODES<HE70010E, HE70012E>,
        {"a date from {min:first-period}", "{min:first-period}の日付"},
        {"A date from `min` to `max` (`YYYYMMDD`), both included; of lists only the first dates "
         "count. A date that doesn't exist is refused.",
         "`min`以後`max`以前（`YYYYMMDD`）の日付であること。並べてあっても最初の組だけを使います。"
         "実在しない日付は通りません。"},
    },
    {
        "alphabet",
        Make<KZCEkaValidAlphabet>,
        {.eContent = CellContent::Letters},
        CODES<HE70006E>,
        {"half-width letters", "半角英字"},
        {"Half-width letters only. An empty value passes.",
         "半角英字だけの値です。空の値は通ります。"},
    },
    {
        "anycontain",
        Make<KZCEkaValidAnyContain, VALUE, MIN, MAX>,
        {.eCells = OwnCells::None,
         .value = {AttributeKind::AnyColumn, Absence::Fault},
         .min = {AttributeKind::Limit, Absence::CountsAsZero},
         .max = {AttributeKind::Limit, Absence::CountsAsZero}},
        CODES<HE70009E>,
        {"{min:range} in {value:any-of}", "{value:any-of}が{min:range}"},
        {"At least one of the columns listed in `value` is a number from `min` to `max`, both "
         "included; a limit that is left out is 0. The columns are looked at in the order of the "
         "list: empty ones are skipped, and any that is no number is refused at once.",
         "`value`に並べた項目のうち少なくとも1つが`min`以上`max`以下の数であること。"
         "省いた限度は0とみなします。並べた順に見て、空の項目は飛ばし、"
         "数でない項目があればそこで通りません。"},
        {"{value:any-of} is {min:range}", "{value:any-of}が{min:range}である"},
    },
    {
        "anyexist",
        Make<KZCEkaValidAnyExist, VALUE>,
        {.eCells = OwnCells::None, .value = {AttributeKind::AnyColumn, Absence::Fault}},
        CODES<HE70001E>,
        {"{value:any-of} required", "{value:any-of}が必須"},
        {"At least one of the columns listed in `value` is filled. The item's own column isn't "
         "looked at.",
         "`value`に並べた項目のうち少なくとも1つが入力されていること。"
         "このチェックの項目そのものは見ません。"},
        {"{value:any-of} is filled", "{value:any-of}が入力されている"},
    },
    {
        "alnumsbl",
        Make<KZCEkaValidAlnumsbl>,
        {.eContent = CellContent::AsciiAndLineFeeds},
        CODES<HE70035E>,
        {"half-width letters, digits and symbols, line breaks allowed",
         "半角英数字・記号（改行も可）"},
        {"Half-width letters, digits, symbols and blanks, and line breaks. An empty value passes.",
         "半角の英字、数字、記号、空白と改行だけの値です。空の値は通ります。"},
    },
    {
        "existdateYYYYMMDD",
        Make<KZCEkaValidExistDateYYYYMMDD, VALUE>,
        {.eCells = OwnCells::None,
         .value = {AttributeKind::WesternDateColumns, Absence::Fault},
         .ePlace = ErrorPlace::ColumnsOfValue},
        CODES<HE70012E>,
        {"an existing Western date", "実在する西暦の日付"},
        {"The three columns of year, month and day listed in `value` are a real Western date of "
         "the year 100 or later, or all empty.",
         "`value`に並べた年・月・日の3項目が、西暦100年以後の実在する日付であるか、"
         "すべて空であること。"},
    },
});

constexpr bool HasNoRepeatedKeyword()
{
    for (std::size_t nFirst = 0; nFirst < ITEM_KEYWORDS.size(); ++nFirst)
        for (std::size_t nSecond = nFirst + 1; nSecond < ITEM_KEYWORDS.size(); ++nSecond)
            if (ITEM_KEYWORDS[nFirst].strKeyword == ITEM_KEYWORDS[nSecond].strKeyword)
                return false;
    return true;
}

static_assert(HasNoRepeatedKeyword());
static_assert(std::ranges::all_of(ITEM_KEYWORDS, [](const ItemKeyword& row) {
    return row.maker.Fits(row.shape);
}));

constexpr auto CATALOGUE = [] {
    std::array<CatalogueItem, ITEM_KEYWORDS.size()> items;
    std::ranges::transform(ITEM_KEYWORDS, items.begin(), [](const ItemKeyword& row) {
        return CatalogueItem{row.strKeyword, row.shape,       row.messages,
                             row.rule,       row.description, row.condition};
    });
    return items;
}();

}  // namespace

std::unique_ptr<KZCEkaValidItem> KZCEkaValidItem::CreateItem(long lColumn,
                                                             const char* szId,
                                                             const char* szValue,
                                                             const char* szMin,
                                                             const char* szMax,
                                                             KZCEkaMessage_t eMessage)
{
    constexpr const char* FUNCTION = "KZCEkaValidItem::CreateItem";
    constexpr std::size_t MESSAGE_BUFFER_SIZE = 200;
    if (szId == nullptr || szValue == nullptr || szMin == nullptr || szMax == nullptr) {
        KZCDebugDump::Log(FUNCTION, "引数エラー。チェックパラメータ情報が不正です。");
        return nullptr;
    }
    const auto* pKeyword = std::ranges::find(ITEM_KEYWORDS, szId, &ItemKeyword::strKeyword);
    if (pKeyword == ITEM_KEYWORDS.end()) {
        const std::string strMessage = CText::CutToBuffer(
            std::string("不明なValidのidが指定されています。 ") + szId, MESSAGE_BUFFER_SIZE);
        KZCDebugDump::Log(FUNCTION, strMessage.c_str());
        return nullptr;
    }
    return pKeyword->maker.pMake(lColumn, eMessage, {szValue, szMin, szMax});
}

std::span<const CatalogueItem> ItemCatalogue()
{
    return CATALOGUE;
}

const CatalogueItem* FindCatalogueItem(std::string_view strKeyword)
{
    const auto* pItem = std::ranges::find(CATALOGUE, strKeyword, &CatalogueItem::strKeyword);
    return pItem != CATALOGUE.end() ? pItem : nullptr;
}
