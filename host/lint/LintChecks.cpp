// Check keywords and their parameters.
#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "EkaMsgTable.h"
#include "KZCMacOSNative.h"
#include "lint/CheckColumns.h"
#include "lint/LintTopics.h"
#include "rules/CheckShape.h"
#include "text/CText.h"
#include "text/ShiftJis.h"
#include "validator/AgeWord.h"
#include "validator/DateGroup.h"
#include "validator/DateLiteral.h"

namespace host {
namespace {

constexpr std::size_t DATE_LENGTH = 8;
constexpr std::string_view OWN_YEAR = "****";

constexpr LintTexts UNKNOWN_KEYWORD = {
    {"The keyword \"{1}\" isn't known: the load for checking fails.",
     "キーワード「{1}」は不明です。チェック時の読み込みに失敗します。"},
    {"\"kzekamok rules --format markdown\" lists the keywords.",
     "キーワードの一覧は「kzekamok rules --format markdown」で表示できます。"}};
constexpr LintTexts MISSPELT_KEYWORD = {
    {"The keyword \"{1}\" isn't known: the load for checking fails.",
     "キーワード「{1}」は不明です。チェック時の読み込みに失敗します。"},
    {"Is \"{2}\" meant? Keywords are told apart by case.",
     "「{2}」のことですか。大文字と小文字は区別されます。"}};
constexpr LintTexts UNKNOWN_MESSAGE = {
    {"The catalogue has no message \"{1}\": the check reports its own code.",
     "カタログに「{1}」はありません。チェック自身のコードが使われます。"},
    {"Write a code such as HE70010E, or remove the attribute.",
     "HE70010Eのようなコードを書くか、属性を削除してください。"}};
constexpr LintTexts FOR_ARGUMENTS = {
    {"\"{1}\" is made for arguments of a request: it looks for a file of the cell's name.",
     "「{1}」は呼び出しの引数用です。値の名前のファイルを調べます。"},
    {"Remove the check.", "チェックを削除してください。"}};
constexpr LintTexts FOR_FORMS = {
    {"\"{1}\" works in forms 003, 004, 005, 006, 007 and 009 only: it refuses every record of this "
     "one.",
     "「{1}"
     "」は申請区分003・004・005・006・007・009でだけ働きます。ここではどのレコードも通りません。"},
    {"Check the parts of the date one by one, with exist.",
     "日付の各項目をexistで確かめてください。"}};
constexpr LintTexts NO_CONDITION = {
    {"\"{1}\" as a condition compares the name in Shift_JIS with one in UTF-8: it never holds, and "
     "the check never runs.",
     "「{1}」を条件にするとShift_JISの名称をUTF-8と比べるため、成り立つことがありません。"},
    {"Use taxoffice on the code's column.", "番号の項目にtaxofficeを使ってください。"}};

/// What is wrong with a parameter, as the end of a sentence.
constexpr Text FAULT = {"the check ends in a fault", "チェックは異常終了します"};
constexpr Text NO_NUMBER = {"it isn't a whole number", "整数ではありません"};
constexpr Text TOO_SMALL = {"it is below {5}", "{5}より小さい数です"};
constexpr Text BEYOND = {"column {5} isn't one of 1 to {6}", "項目{5}は1～{6}にありません"};
constexpr Text BEYOND_CELLS = {"the columns {5} to {7} aren't all within 1 to {6}",
                               "項目{5}～{7}は1～{6}に収まりません"};
constexpr Text ITSELF = {"the cell is compared with itself", "同じ項目同士の比較です"};
constexpr Text NO_DATE = {"{5} isn't a date that exists: the check ends in a fault",
                          "{5}は実在する日付ではありません。チェックは異常終了します"};
constexpr Text NO_DATE_UNUSED = {"{5} isn't a date that exists", "{5}は実在する日付ではありません"};
constexpr Text REVERSED = {"min {5} is above max {6}", "min {5}がmax {6}より大きくなっています"};
constexpr Text UNKNOWN_WORD = {"the value isn't known", "知られていない値です"};
constexpr Text NOT_ENCODABLE = {"\"{5}\" can't be written in Shift_JIS: no cell can be equal to it",
                                "「{5}」はShift_JISで書けず、どの値とも一致しません"};
constexpr Text REPEATED = {"\"{5}\" stands there twice", "「{5}」が2回あります"};
constexpr Text NO_TOKEN = {"the list is empty", "一覧が空です"};
constexpr Text NO_YEAR = {"{5} isn't a year of four digits", "{5}は4桁の年ではありません"};
constexpr Text NO_EXTENSION = {"{5} doesn't begin with a dot", "{5}がドットで始まっていません"};
constexpr Text UNPAIRED = {"there are {5} dates in min and {6} in max: only pairs are tried",
                           "minに{5}個、maxに{6}個の日付があります。組になるものだけが使われます"};
constexpr Text ONE_ASTERISK = {"**** has to stand in min and in max: the check ends in a fault",
                               "****はminとmaxの両方に必要です。チェックは異常終了します"};
constexpr Text FIRST_ONLY = {"only the first date is tried", "最初の日付だけが使われます"};
constexpr Text NOTHING_GIVEN = {"neither is given", "どちらも書かれていません"};
constexpr Text ALL_REFUSED = {"without it every value is refused", "ないとどの値も通りません"};
constexpr Text PASSES_ALL = {"without it every date passes", "ないとどの日付も通ります"};
constexpr Text NO_REFERENCE = {"it isn't a reference row_col", "row_colの形の参照ではありません"};
constexpr Text NO_SUCH_RECORD = {"no file has a record {5}; there are at most {6}",
                                 "レコード{5}のあるファイルはありません（最大{6}件）"};
constexpr Text NOT_IN_CONDITION = {"as a condition it reads column {5} of the same record",
                                   "条件では同じレコードの項目{5}が読まれます"};
constexpr Text NOT_USED = {"it isn't read, as {5} is given", "{5}があるため読まれません"};
constexpr Text NOT_EIGHT = {"it has other than eight characters and isn't used",
                            "8文字でないため使われません"};
constexpr Text TOO_FEW = {"{5} of at least 5 words are there", "5語以上必要ですが{5}語です"};
constexpr Text TOO_MANY = {"there are {5} words, and at most 6 are read",
                           "{5}語ありますが、読まれるのは6語までです"};
constexpr Text NOT_DAYS = {R"(the sixth word "{5}" isn't "days" and has no effect)",
                           "6語目の「{5}」は\"days\"でなく、効果がありません"};
constexpr Text NO_DAY = {"month {5} and day {6} are no day of every year",
                         "{5}月{6}日はどの年にもある日ではありません"};
constexpr Text ONE_CHARACTER = {"of \"{5}\" only the first byte counts",
                                "「{5}」は先頭の1バイトだけが使われます"};
constexpr Text THREE_COLUMNS = {
    "it isn't three columns with one blank between them: the check ends in a fault",
    "1つの空白で区切った3つの項目ではありません。チェックは異常終了します"};
constexpr Text DIGIT_LIMIT = {"it isn't a number, and the check ends in a fault",
                              "数ではありません。チェックは異常終了します"};

/// How a parameter has to be written.
constexpr Text AS_COLUMN = {"the number of a column, from 1", "項目の番号（1から）"};
constexpr Text AS_COLUMNS = {"columns, from 1, with blanks between them",
                             "空白で区切った項目の番号（1から）"};
constexpr Text AS_LIST = {"texts with blanks between them", "空白で区切った文字列"};
constexpr Text AS_LENGTH = {"a number of 1 or more", "1以上の数"};
constexpr Text AS_NUMBER = {"a whole number", "整数"};
constexpr Text AS_DATE = {"a date YYYYMMDD that exists", "実在する日付（YYYYMMDD）"};
constexpr Text AS_DATES = {
    "dates YYYYMMDD or ****MMDD, as many in min as in max, the earlier in "
    "min",
    "日付（YYYYMMDDまたは****MMDD）。minとmaxに同じ数を、minに早い方を"};
constexpr Text AS_WESTERN = {"a date YYYY/MM/DD that exists", "実在する日付（YYYY/MM/DD）"};
constexpr Text AS_REFERENCE = {"row_col: a record and the column of its date's era",
                               "row_col（レコードと、日付の元号の項目）"};
constexpr Text AS_RECORD = {"the number of a record, from 1", "レコードの番号（1から）"};
constexpr Text AS_YEARS = {"Western years with blanks between them", "空白で区切った西暦の年"};
constexpr Text AS_RANGE = {"two numbers, min not above max; one that is left out is 0",
                           "2つの数。minはmax以下（省くと0）"};
constexpr Text AS_AGE = {
    "column of the birth date, column of the reference year, years to add, "
    "month, day, and \"days\" if wanted",
    "生年月日の項目、基準年の項目、足す年数、月、日、必要なら\"days\""};
constexpr Text AS_ONE_OF = {"one of {8}", "{8}のどれか"};
constexpr Text AS_BYTES = {"half-width characters with blanks between them",
                           "空白で区切った半角文字"};
constexpr Text AS_BOUND = {"a column, or row_col", "項目、またはrow_col"};
constexpr Text AS_ONLY_ONE = {"the one that is meant, and remove the other",
                              "必要な方だけにし、他は削除"};

/// A check with its file and form around it.
class Site
{
public:
    Site(const LintFile& file, const LintForm& form, const LintCheck& check, LintReport& report)
        : m_file(file), m_form(form), m_check(check), m_report(report)
    {
    }

    const std::string& Get(const char* szName) const { return m_check.pElement->Attribute(szName); }
    bool Has(const char* szName) const { return !Get(szName).empty(); }
    std::vector<std::string> Tokens(const char* szName) const
    {
        return CText::SplitTokens(Get(szName));
    }
    const LintCheck& Check() const { return m_check; }
    const CatalogueItem& Item() const { return *m_check.pKeyword; }
    /// What the check does without an attribute.
    Absence AbsenceOf(std::string_view strName) const
    {
        const auto* pAttribute = std::ranges::find_if(
            ATTRIBUTES, [&](Attribute eAttribute) { return strName == AttributeName(eAttribute); });
        return ShapeOf(Item(), *pAttribute).eAbsence;
    }
    const LintFile& File() const { return m_file; }
    long Columns() const { return m_form.lColumnNum; }
    const std::string& TypeId() const { return m_form.strTypeId; }
    LintPlace Place() const { return {m_file.strName, m_check.pElement->lLine}; }

    /// \param more  {5} to {8} of the texts.
    void Bad(const char* szName,
             const Text& what,
             const Text& wanted,
             std::array<std::string, 4> more = {}) const
    {
        const std::string strKeyword(m_check.pKeyword->strKeyword);
        const std::string& strValue = Get(szName);
        const auto say = [&](const Text& text) {
            return Say(text,
                       {strKeyword, szName, strValue, "", more[0], more[1], more[2], more[3]});
        };
        const std::string strWhat = say(what);
        const std::string strWanted = say(wanted);
        constexpr Text GIVEN = {R"("{1}": {2}="{3}": {4}.)", "「{1}」の{2}=\"{3}\"：{4}。"};
        constexpr Text ABSENT = {"\"{1}\" has no {2}: {4}.", "「{1}」に{2}がありません（{4}）。"};
        constexpr Text ADVICE = {"How {2} is written: {4}.", "{2}の書き方：{4}。"};
        m_report.Add(
            LintRule::BadParameter, Place(),
            Say(strValue.empty() ? ABSENT : GIVEN, {strKeyword, szName, strValue, strWhat}),
            Say(ADVICE, {strKeyword, szName, strValue, strWanted}));
    }
    void Misplaced(const LintTexts& texts) const
    {
        m_report.Add(LintRule::KeywordMisplaced, Place(), texts, {m_check.pKeyword->strKeyword});
    }

    /// A column and the cells behind it lie within the record. Nothing is reported without a limit.
    bool IsColumn(const char* szName,
                  const std::string& strText,
                  long lCells,
                  const Text& wanted,
                  long lLimit) const
    {
        const auto number = WholeNumber(strText);
        if (!number) {
            Bad(szName, NO_NUMBER, wanted);
            return false;
        }
        const long lLast = *number + lCells - 1;
        if (*number >= 1 && (lLimit < 1 || lLast <= lLimit))
            return true;
        Bad(szName, lCells == 1 ? BEYOND : BEYOND_CELLS, wanted,
            {std::to_string(*number), std::to_string(lLimit), std::to_string(lLast), ""});
        return false;
    }

    static std::optional<long> WholeNumber(std::string_view strText)
    {
        constexpr std::size_t MOST = 10;
        const std::string strCopy(strText);
        if (strText.starts_with('-') || strText.starts_with('+'))
            strText.remove_prefix(1);
        if (strText.empty() || strText.size() > MOST ||
            !std::ranges::all_of(strText, [](char c) { return '0' <= c && c <= '9'; }))
            return std::nullopt;
        return CText::ReadLong(strCopy.c_str());
    }

private:
    const LintFile& m_file;
    const LintForm& m_form;
    const LintCheck& m_check;
    LintReport& m_report;
};

/// What the check does without the attribute.
const Text& EffectOf(Absence eAbsence)
{
    switch (eAbsence) {
        case Absence::Fine:
        case Absence::Fault:
            break;
        case Absence::RefusesAll:
            return ALL_REFUSED;
        case Absence::PassesAll:
            return PASSES_ALL;
        case Absence::CountsAsZero:
            return NOTHING_GIVEN;
    }
    return FAULT;
}

/// Reports a parameter that isn't there but has to be. \return Whether it is there.
bool Needs(const Site& site, const char* szName, const Text& wanted)
{
    if (!site.Has(szName) && site.AbsenceOf(szName) != Absence::Fine)
        site.Bad(szName, EffectOf(site.AbsenceOf(szName)), wanted);
    return site.Has(szName);
}

/// Limits of which one has to be there. \param szBlamed  That is named if none is.
bool NeedsOne(const Site& site, AttributeKind eKind, const char* szBlamed, const Text& wanted)
{
    const bool bOne = std::ranges::any_of(ATTRIBUTES, [&](Attribute eAttribute) {
        return ShapeOf(site.Item(), eAttribute).eKind == eKind &&
               site.Has(AttributeName(eAttribute));
    });
    if (!bOne)
        site.Bad(szBlamed, EffectOf(site.AbsenceOf(szBlamed)), wanted);
    return bOne;
}

void ColumnParameter(const Site& site, const char* szName, long lCells)
{
    if (Needs(site, szName, AS_COLUMN))
        site.IsColumn(szName, site.Get(szName), lCells, AS_COLUMN, site.Columns());
}

void ColumnList(const Site& site, const char* szName)
{
    if (!Needs(site, szName, AS_COLUMNS))
        return;
    const auto vecToken = site.Tokens(szName);
    if (vecToken.empty())
        site.Bad(szName, NO_TOKEN, AS_COLUMNS);
    for (const std::string& strToken : vecToken)
        if (!site.IsColumn(szName, strToken, 1, AS_COLUMNS, site.Columns()))
            return;
}

bool IsNumberOrAbsent(const Site& site, const char* szName)
{
    const bool bGood = !site.Has(szName) || Site::WholeNumber(site.Get(szName)).has_value();
    if (!bGood)
        site.Bad(szName, NO_NUMBER, AS_NUMBER);
    return bGood;
}

bool Exists(const std::string& strWestern)
{
    return KZCMacOSNative::dateTimeChange(strWestern.c_str());
}

/// "20190430" exists.
bool IsDate(const std::string& strToken)
{
    if (strToken.size() != DATE_LENGTH ||
        !std::ranges::all_of(strToken, [](char c) { return '0' <= c && c <= '9'; }))
        return false;
    const auto strDate = DateLiteral::WithSlashes(strToken);
    return strDate && Exists(*strDate);
}

/// Month and day exist in every year.
bool IsDayOfEveryYear(const std::string& strMonthAndDay)
{
    return IsDate("2019" + strMonthAndDay);
}

void Lengths(const Site& site)
{
    if (!NeedsOne(site, site.Item().shape.max.eKind, "max", AS_LENGTH))
        return;
    for (const char* szName : {"value", "max"}) {
        if (!site.Has(szName))
            continue;
        const auto number = Site::WholeNumber(site.Get(szName));
        if (!number)
            site.Bad(szName, NO_NUMBER, AS_LENGTH);
        else if (*number < 1)
            site.Bad(szName, TOO_SMALL, AS_LENGTH, {"1"});
    }
    if (site.Has("value") && site.Has("max"))
        site.Bad("max", NOT_USED, AS_ONLY_ONE, {"value"});
}

void TextList(const Site& site, const char* szName)
{
    if (!Needs(site, szName, AS_LIST))
        return;
    const auto vecToken = site.Tokens(szName);
    if (vecToken.empty())
        site.Bad(szName, NO_TOKEN, AS_LIST);
    for (auto it = vecToken.begin(); it != vecToken.end(); ++it) {
        const auto strUnits = Utf8::Decode(*it);
        if (!strUnits || !ShiftJis::Encode(*strUnits))
            site.Bad(szName, NOT_ENCODABLE, AS_LIST, {*it});
        else if (std::find(vecToken.begin(), it, *it) != it)
            site.Bad(szName, REPEATED, AS_LIST, {*it});
    }
}

/// Beside the column numbers may be given, which make another value than the cell's own.
void OtherColumn(const Site& site, const char* szName)
{
    if (Needs(site, szName, AS_COLUMN) &&
        site.IsColumn(szName, site.Get(szName), 1, AS_COLUMN, site.Columns()) && !site.Has("min") &&
        !site.Has("max") && Site::WholeNumber(site.Get(szName)) == site.Check().lColumn)
        site.Bad(szName, ITSELF, AS_COLUMN);
}

void Offsets(const Site& site)
{
    IsNumberOrAbsent(site, "min");
    IsNumberOrAbsent(site, "max");
}

void Years(const Site& site, const char* szName)
{
    if (!Needs(site, szName, AS_YEARS))
        return;
    const auto vecToken = site.Tokens(szName);
    if (vecToken.empty())
        site.Bad(szName, NO_TOKEN, AS_YEARS);
    for (const std::string& strToken : vecToken)
        if (strToken.size() != OWN_YEAR.size() || !IsDate(strToken + "0101"))
            site.Bad(szName, NO_YEAR, AS_YEARS, {strToken});
}

/// One of the words that the item's row names.
void OneWord(const Site& site, const char* szName, std::string_view strWords)
{
    const std::string strWanted(strWords);
    if (!site.Has(szName)) {
        if (site.AbsenceOf(szName) != Absence::Fine)
            site.Bad(szName, EffectOf(site.AbsenceOf(szName)), AS_ONE_OF, {"", "", "", strWanted});
        return;
    }
    const auto vecWord = CText::SplitTokens(strWords);
    if (std::ranges::find(vecWord, site.Get(szName)) == vecWord.end())
        site.Bad(szName, UNKNOWN_WORD, AS_ONE_OF, {"", "", "", strWanted});
}

void Extensions(const Site& site, const char* szName)
{
    site.Misplaced(FOR_ARGUMENTS);
    if (!Needs(site, szName, AS_LIST))
        return;
    for (const std::string& strToken : site.Tokens(szName))
        if (!strToken.starts_with('.'))
            site.Bad(szName, NO_EXTENSION, AS_LIST, {strToken});
}

void RecordNumber(const Site& site, const char* szName)
{
    if (!Needs(site, szName, AS_RECORD))
        return;
    const auto record = Site::WholeNumber(site.Get(szName));
    if (!record)
        site.Bad(szName, NO_NUMBER, AS_RECORD);
    else if (*record < 1 || *record > site.File().MaxRecord())
        site.Bad(szName, NO_SUCH_RECORD, AS_RECORD,
                 {std::to_string(*record), std::to_string(site.File().MaxRecord())});
}

void Range(const Site& site)
{
    if (!NeedsOne(site, AttributeKind::Limit, "max", AS_RANGE))
        return;
    for (const char* szName : {"min", "max"})
        if (site.Has(szName) && !KZCMacOSNative::isIntegerString(site.Get(szName).c_str(), true)) {
            site.Bad(szName, DIGIT_LIMIT, AS_RANGE);
            return;
        }
    const long lMin = CText::ReadLong(site.Get("min").c_str());
    const long lMax = CText::ReadLong(site.Get("max").c_str());
    if (lMin > lMax)
        site.Bad(site.Has("max") ? "max" : "min", REVERSED, AS_RANGE,
                 {std::to_string(lMin), std::to_string(lMax)});
}

void DatePeriods(const Site& site)
{
    const auto vecMin = site.Tokens("min");
    const auto vecMax = site.Tokens("max");
    for (const auto& [szName, vecDate] : {std::pair{"min", &vecMin}, {"max", &vecMax}})
        if (vecDate->empty()) {
            site.Bad(szName, EffectOf(site.AbsenceOf(szName)), AS_DATES);
            return;
        }
    if (vecMin.size() != vecMax.size())
        site.Bad("max", UNPAIRED, AS_DATES,
                 {std::to_string(vecMin.size()), std::to_string(vecMax.size())});
    for (std::size_t nPair = 0; nPair < std::min(vecMin.size(), vecMax.size()); ++nPair) {
        std::string strMin = vecMin[nPair];
        std::string strMax = vecMax[nPair];
        const bool bOwnYear = strMin.starts_with(OWN_YEAR);
        if (bOwnYear != strMax.starts_with(OWN_YEAR)) {
            site.Bad("max", ONE_ASTERISK, AS_DATES);
            continue;
        }
        bool bGood = true;
        for (const auto& [szName, strDate] : {std::pair{"min", &strMin}, {"max", &strMax}}) {
            const bool bExists = bOwnYear ? strDate->size() == DATE_LENGTH &&
                                                IsDayOfEveryYear(strDate->substr(OWN_YEAR.size()))
                                          : IsDate(*strDate);
            if (!bExists)
                site.Bad(szName, NO_DATE, AS_DATES, {*strDate});
            bGood = bGood && bExists;
        }
        if (bGood && strMin > strMax)
            site.Bad("max", REVERSED, AS_DATES, {strMin, strMax});
    }
}

/// A date that has to be there. \return Whether it is one.
bool DateParameter(const Site& site, const char* szName)
{
    if (!Needs(site, szName, AS_DATE))
        return false;
    const bool bGood = IsDate(site.Get(szName));
    if (!bGood)
        site.Bad(szName, NO_DATE, AS_DATE, {site.Get(szName)});
    return bGood;
}

void DatePeriod(const Site& site)
{
    for (const char* szName : {"min", "max"}) {
        if (site.Tokens(szName).size() > 1) {
            site.Bad(szName, FIRST_ONLY, AS_DATE);
            return;
        }
    }
    const bool bMin = DateParameter(site, "min");
    const bool bMax = DateParameter(site, "max");
    if (bMin && bMax && site.Get("min") > site.Get("max"))
        site.Bad("max", REVERSED, AS_DATE, {site.Get("min"), site.Get("max")});
}

/// "row_col" of a date in a record that a file can have.
void Reference(const Site& site, const char* szName)
{
    const std::string& strText = site.Get(szName);
    const std::size_t nSplit = strText.find('_');
    const auto row = Site::WholeNumber(std::string_view(strText).substr(0, nSplit));
    const auto column = nSplit != std::string::npos
                            ? Site::WholeNumber(std::string_view(strText).substr(nSplit + 1))
                            : std::nullopt;
    if (!row || !column) {
        site.Bad(szName, NO_REFERENCE, AS_REFERENCE);
        return;
    }
    const long lMaxRecord = site.File().MaxRecord();
    if (*row < 1 || *row > lMaxRecord) {
        site.Bad(szName, NO_SUCH_RECORD, AS_REFERENCE,
                 {std::to_string(*row), std::to_string(lMaxRecord)});
        return;
    }
    const long lColumns = site.File().eFamily == Family::Base
                              ? site.Columns()
                              : ColumnsOfRecord(site.File(), *row, lMaxRecord);
    site.IsColumn(szName, strText.substr(nSplit + 1), DATE_CELLS, AS_REFERENCE, lColumns);
}

/// Columns of the record or, beside a cell of another record that is checked, dates.
void BaseDates(const Site& site)
{
    if (!HasKind(site.Item(), AttributeKind::DateCell) ||
        !site.Has(AttributeName(AttributeOf(site.Item(), AttributeKind::DateCell)))) {
        if (NeedsOne(site, AttributeKind::BaseDate, "min", AS_COLUMN))
            for (const char* szName : {"min", "max"})
                if (site.Has(szName))
                    ColumnParameter(site, szName, DATE_CELLS);
        return;
    }
    if (!site.Has("min") && !site.Has("max"))
        site.Bad("min", ALL_REFUSED, AS_WESTERN);
    for (const char* szName : {"min", "max"})
        if (site.Has(szName) && !Exists(site.Get(szName)))
            site.Bad(szName, NO_DATE_UNUSED, AS_WESTERN, {site.Get(szName)});
}

void BaseDatesOrCells(const Site& site)
{
    NeedsOne(site, AttributeKind::BaseDateOrCell, "min", AS_BOUND);
    for (const char* szName : {"min", "max"}) {
        const std::string& strText = site.Get(szName);
        if (strText.empty())
            continue;
        if (strText.find('_') == std::string::npos)
            site.IsColumn(szName, strText, DATE_CELLS, AS_BOUND, site.Columns());
        else if (site.Check().bOuter)
            site.Bad(szName, NOT_IN_CONDITION, AS_COLUMN,
                     {std::to_string(CText::ReadLong(strText.c_str()))});
        else
            Reference(site, szName);
    }
}

void ComparedDate(const Site& site)
{
    const char* szTaken = nullptr;
    for (const char* szName : {"value", "min", "max"}) {
        if (!site.Has(szName))
            continue;
        if (szTaken != nullptr) {
            site.Bad(szName, NOT_USED, AS_ONLY_ONE, {szTaken});
        } else if (site.Get(szName).size() != DATE_LENGTH) {
            site.Bad(szName, NOT_EIGHT, AS_DATE);
        } else {
            szTaken = szName;
            DateParameter(site, szName);
        }
    }
    NeedsOne(site, AttributeKind::ComparedDay, "value", AS_DATE);
}

bool HasAgeWords(const Site& site, const char* szName)
{
    return site.Tokens(szName).size() >= AgeWord::LEAST;
}

void AgeColumns(const Site& site, const char* szName)
{
    if (!Needs(site, szName, AS_AGE))
        return;
    const auto vecToken = site.Tokens(szName);
    const std::string strCount = std::to_string(vecToken.size());
    if (!HasAgeWords(site, szName)) {
        site.Bad(szName, TOO_FEW, AS_AGE, {strCount});
        return;
    }
    if (vecToken.size() > AgeWord::WIDENING + 1)
        site.Bad(szName, TOO_MANY, AS_AGE, {strCount});
    else if (vecToken.size() > AgeWord::WIDENING &&
             vecToken[AgeWord::WIDENING] != AgeWord::WIDENING_WORD)
        site.Bad(szName, NOT_DAYS, AS_AGE, {vecToken[AgeWord::WIDENING]});
    site.IsColumn(szName, vecToken[AgeWord::BIRTH_COLUMN], DATE_CELLS, AS_AGE, site.Columns());
    site.IsColumn(szName, vecToken[AgeWord::YEAR_COLUMN], YEAR_CELLS, AS_AGE, site.Columns());
    if (!Site::WholeNumber(vecToken[AgeWord::ADDED_YEARS]))
        site.Bad(szName, NO_NUMBER, AS_AGE);
    const std::string& strMonth = vecToken[AgeWord::MONTH];
    const std::string& strDay = vecToken[AgeWord::DAY];
    if (!Exists("2019/" + strMonth + "/" + strDay))
        site.Bad(szName, NO_DAY, AS_AGE, {strMonth, strDay});
}

void AgeLimits(const Site& site)
{
    // Without its words the check says nothing of an age.
    if (!HasAgeWords(site, AttributeName(AttributeOf(site.Item(), AttributeKind::AgeColumns))))
        return;
    const bool bMin = IsNumberOrAbsent(site, "min");
    const bool bMax = IsNumberOrAbsent(site, "max");
    if (NeedsOne(site, AttributeKind::AgeLimit, "min", AS_NUMBER) && site.Has("min") &&
        site.Has("max") && bMin && bMax &&
        Site::WholeNumber(site.Get("min")) > Site::WholeNumber(site.Get("max")))
        site.Bad("max", REVERSED, AS_RANGE, {site.Get("min"), site.Get("max")});
}

void Positions(const Site& site, const char* szName)
{
    if (Needs(site, szName, AS_COLUMNS))
        for (const std::string& strToken : site.Tokens(szName))
            if (!site.IsColumn(szName, strToken, 1, AS_COLUMNS, 0))
                break;
}

void CharactersAtPositions(const Site& site)
{
    if (NeedsOne(site, AttributeKind::Characters, "max", AS_BYTES) && site.Has("min") &&
        site.Has("max"))
        site.Bad("min", NOT_USED, AS_ONLY_ONE, {"max"});
    for (const char* szName : {"min", "max"})
        for (const std::string& strToken : site.Tokens(szName))
            if (strToken.size() != 1)
                site.Bad(szName, ONE_CHARACTER, AS_BYTES, {strToken});
}

void WesternDate(const Site& site, const char* szName)
{
    if (!Needs(site, szName, AS_COLUMNS))
        return;
    const std::string& strValue = site.Get(szName);
    const auto vecToken = site.Tokens(szName);
    // A blank more makes an empty piece, which is no number.
    const bool bTight = !strValue.starts_with(' ') && !strValue.ends_with(' ') &&
                        strValue.find("  ") == std::string::npos;
    if (vecToken.size() != 3 || !bTight) {
        site.Bad(szName, THREE_COLUMNS, AS_COLUMNS);
        return;
    }
    for (const std::string& strToken : vecToken)
        if (!site.IsColumn(szName, strToken, 1, AS_COLUMNS, site.Columns()))
            return;
}

/// The attributes of one kind. \param szName  The first of them.
void LookAtKind(const Site& site, AttributeKind eKind, const char* szName)
{
    switch (eKind) {
        case AttributeKind::None:
            break;
        case AttributeKind::Texts:
        case AttributeKind::ForbiddenTexts:
            TextList(site, szName);
            break;
        case AttributeKind::Extensions:
            Extensions(site, szName);
            break;
        case AttributeKind::Positions:
            Positions(site, szName);
            break;
        case AttributeKind::Characters:
            CharactersAtPositions(site);
            break;
        case AttributeKind::PathKind:
        case AttributeKind::NumberKind:
        case AttributeKind::LineFeeds:
        case AttributeKind::LimitsIncluded:
            OneWord(site, szName, ShapeOf(site.Item(), AttributeOf(site.Item(), eKind)).strWords);
            if (eKind == AttributeKind::PathKind)
                site.Misplaced(FOR_ARGUMENTS);
            break;
        case AttributeKind::ByteCount:
        case AttributeKind::CharacterCount:
            Lengths(site);
            break;
        case AttributeKind::Limit:
            Range(site);
            break;
        case AttributeKind::AgeLimit:
            AgeLimits(site);
            break;
        case AttributeKind::Offset:
            Offsets(site);
            break;
        case AttributeKind::Years:
            Years(site, szName);
            break;
        case AttributeKind::Record:
            RecordNumber(site, szName);
            break;
        case AttributeKind::EqualColumn:
        case AttributeKind::UnequalColumn:
            OtherColumn(site, szName);
            break;
        case AttributeKind::AnyColumn:
        case AttributeKind::ErrorColumns:
            ColumnList(site, szName);
            break;
        case AttributeKind::WesternDateColumns:
            WesternDate(site, szName);
            break;
        case AttributeKind::EqualYearColumn:
        case AttributeKind::FiscalYearColumn:
            ColumnParameter(site, szName, YEAR_CELLS);
            break;
        case AttributeKind::AgeColumns:
            AgeColumns(site, szName);
            break;
        case AttributeKind::DateCell:
            if (site.Has(szName))
                Reference(site, szName);
            break;
        case AttributeKind::BaseDate:
            BaseDates(site);
            break;
        case AttributeKind::BaseDateOrCell:
            BaseDatesOrCells(site);
            break;
        case AttributeKind::FirstDay:
            DateParameter(site, szName);
            break;
        case AttributeKind::ComparedDay:
            ComparedDate(site);
            break;
        case AttributeKind::Periods:
            DatePeriods(site);
            break;
        case AttributeKind::Period:
            DatePeriod(site);
            break;
    }
}

/// Where the cells that the check looks at are none.
void LookAtOwnCells(const Site& site)
{
    switch (site.Item().shape.eCells) {
        case OwnCells::None:
        case OwnCells::Cell:
        case OwnCells::Year:
        case OwnCells::Date:
            break;
        case OwnCells::GroupOfKind:
            if (DateGroupColumns(site.TypeId()) == 0)
                site.Misplaced(FOR_FORMS);
            break;
        case OwnCells::OfficeName:
            if (site.Check().bOuter)
                site.Misplaced(NO_CONDITION);
            break;
    }
}

void LookAtKeyword(const LintFile& file,
                   const LintForm& form,
                   const LintCheck& check,
                   LintReport& report)
{
    const LintPlace place = {file.strName, check.pElement->lLine};
    const std::string& strKeyword = check.pElement->Attribute("id");
    if (check.pKeyword == nullptr) {
        std::vector<std::string> vecKnown;
        for (const CatalogueItem& item : ItemCatalogue())
            vecKnown.emplace_back(item.strKeyword);
        const std::string strMeant = Resembling(strKeyword, vecKnown);
        report.Add(LintRule::UnknownKeyword, place,
                   strMeant.empty() ? UNKNOWN_KEYWORD : MISSPELT_KEYWORD, {strKeyword, strMeant});
        return;
    }
    const Site site(file, form, check, report);
    for (const AttributeKind eKind : KindsOf(*check.pKeyword))
        LookAtKind(site, eKind, AttributeName(AttributeOf(*check.pKeyword, eKind)));
    LookAtOwnCells(site);
}

void LookAtCheck(const LintFile& file,
                 const LintForm& form,
                 const LintCheck& check,
                 LintReport& report)
{
    if (check.bDropped)
        return;
    LookAtKeyword(file, form, check, report);
    const std::string& strMessage = check.pElement->Attribute("message");
    if (!check.bOuter && !strMessage.empty() && FindEkaMessage(strMessage) == MSG_NONE)
        report.Add(LintRule::UnknownMessage, {file.strName, check.pElement->lLine}, UNKNOWN_MESSAGE,
                   {strMessage});
    for (const LintCheck& outer : check.vecOuter)
        LookAtCheck(file, form, outer, report);
}

}  // namespace

void LintChecks(const LintFile& file, LintReport& report)
{
    for (const LintForm& form : file.vecForm)
        for (const LintItem& item : form.vecItem)
            for (const LintCheck& check : item.vecCheck)
                LookAtCheck(file, form, check, report);
}

}  // namespace host
