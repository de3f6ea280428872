// Columns of items and checks.
#include <algorithm>
#include <array>
#include <iterator>
#include <set>

#include "lint/CheckColumns.h"
#include "lint/LintTopics.h"
#include "rules/CheckShape.h"

namespace host {
namespace {

constexpr LintTexts ITEM_BEYOND = {
    {"Column {1} lies beyond the last column, {2}: it reads as empty.",
     "項目{1}は最後の項目{2}より後です。空と読まれます。"},
    {"Correct the column, or columnNum of the report.",
     "columnか、reportのcolumnNumを直してください。"}};
constexpr LintTexts CHECK_BEYOND = {
    {"\"{3}\" reads the columns {1} to {4}; the last column is {2}, and those behind it read as "
     "empty.",
     "「{3}」は項目{1}～{4}を読みますが、最後の項目は{2}です。それより後は空と読まれます。"},
    {"Correct the column: the first one that the check reads.",
     "columnを直してください（チェックが読む最初の項目）。"}};
constexpr LintTexts CHECK_COLUMN_BEYOND = {
    {"\"{3}\" reads column {1}; the last column is {2}: it reads as empty.",
     "「{3}」は項目{1}を読みますが、最後の項目は{2}です。空と読まれます。"},
    {"Correct the column.", "columnを直してください。"}};
constexpr LintTexts CHECK_WITHOUT = {
    {"\"{1}\" has no column, and its item has none: it sees an empty value in every record.",
     "「{1}」にもitemにも項目がありません。どのレコードでも空の値を見ます。"},
    {"Give the check or the item a column.", "チェックかitemにcolumnを書いてください。"}};
constexpr LintTexts GROUP_CHECK_WITHOUT = {
    {"\"{1}\" doesn't take the column of the group's first child: it sees an empty value in every "
     "record.",
     "「{1}」は最初の子の項目を引き継ぎません。どのレコードでも空の値を見ます。"},
    {"Give the check a column.", "チェックにcolumnを書いてください。"}};
constexpr LintTexts LEAF_WITHOUT = {
    {"The item has no column and no children: it writes nothing.",
     "itemに項目も子もありません。何も書かれません。"},
    {"Give it a column, or remove it.", "columnを書くか、itemを削除してください。"}};
constexpr LintTexts NEVER_RUNS = {
    {"The checks of a {1} item run only if its first child has a column: these never run.",
     "種別{1}のチェックは最初の子に項目があるときだけ働きます。ここでは実行されません。"},
    {"Hang the items of the columns below it, the first column first.",
     "項目のitemを、最初の項目から順にこの下に置いてください。"}};
constexpr LintTexts DROPPED = {
    {"The outer \"{1}\" has no column: it is dropped, and the check runs for every record.",
     "outer「{1}」にcolumnがありません。捨てられ、チェックは全レコードで働きます。"},
    {"Give it a column; it doesn't take that of its item.",
     "columnを書いてください。itemの項目は引き継がれません。"}};
constexpr LintTexts NOT_ADJACENT = {
    {"Column {1} doesn't follow on column {2}: the date's parts are read from {3} to {4}.",
     "項目{1}が項目{2}に続いていません。日付は項目{3}～{4}から読まれます。"},
    {"Give era, year, month and day four adjacent columns, in this order.",
     "元号・年・月・日には、この順に隣り合う4つの項目を指定してください。"}};
constexpr LintTexts UNUSED = {
    {"No item and no check has column {1}.", "項目{1}がitemにもチェックにもありません。"},
    {"Add an item for it, so that people see its label.",
     "ラベルが分かるよう、itemを追加してください。"}};
constexpr LintTexts UNUSED_RUN = {{"No item and no check has the columns {1} to {2}.",
                                   "項目{1}～{2}がitemにもチェックにもありません。"},
                                  {"Add items for them, so that people see their labels.",
                                   "ラベルが分かるよう、itemを追加してください。"}};
constexpr LintTexts ERROR_COLUMN = {
    {"errcolumn {1} stands for the columns {1} to {2}; the form has 1 to {3}.",
     "errcolumn {1}は項目{1}～{2}を指しますが、様式にあるのは1～{3}です。"},
    {"Write the first of four columns.", "4つ続く項目の最初を書いてください。"}};
constexpr LintTexts ERROR_ROW = {
    {"No file has a record {1}; there are at most {2}.",
     "レコード{1}のあるファイルはありません（最大{2}件）。"},
    {"Write the number of a record, from 1.", "レコードの番号を1から数えて書いてください。"}};

std::string Number(long lNumber)
{
    return std::to_string(lNumber);
}

class ColumnWalk
{
public:
    ColumnWalk(const LintFile& file, const LintForm& form, LintReport& report)
        : m_file(file), m_form(form), m_report(report)
    {
    }

    void Look()
    {
        for (const LintItem& item : m_form.vecItem) {
            LookAtItem(item);
            LookAtDate(item);
            for (const LintCheck& check : item.vecCheck)
                LookAtCheck(item, check);
        }
        if (m_file.HasChecks())
            LookForUnused();
    }

private:
    void LookAtItem(const LintItem& item)
    {
        const bool bKnownLimit = m_file.HasChecks() && m_form.lColumnNum > 0;
        if (bKnownLimit && item.lColumn > m_form.lColumnNum)
            Add(LintRule::ColumnBeyond, item.pElement, ITEM_BEYOND,
                {Number(item.lColumn), Number(m_form.lColumnNum)});
        // In a tree that could not be built whole nobody knows who has children.
        if (m_form.bTooDeep)
            return;
        const bool bLeaf = item.vecChild.empty() && item.strType != "IdRef";
        if (m_file.HasDocument() && bLeaf && item.lColumn == 0)
            Add(LintRule::MissingColumn, item.pElement, LEAF_WITHOUT, {});
        if (item.IsGroup() && !item.vecCheck.empty() && FirstChildColumn(m_form, item) == 0)
            Add(LintRule::CheckNeverRuns, item.pElement, NEVER_RUNS, {item.strType});
    }

    void LookAtDate(const LintItem& item)
    {
        if (item.strType != "Date" || item.vecChild.empty())
            return;
        const long lFirst = FirstChildColumn(m_form, item);
        if (lFirst == 0)
            return;
        long lWidth = 0;
        for (const LintCheck& check : item.vecCheck)
            if (check.lColumn == 0 && check.pKeyword != nullptr &&
                TakesGroupColumn(check.pKeyword->shape.ePlace))
                lWidth = std::max(lWidth, CellsFromColumn(check, m_form.strTypeId));
        static constexpr std::array<const char*, 4> PARTS = {"gen:era", "gen:yy", "gen:mm",
                                                             "gen:dd"};
        for (std::size_t nChild = 1; nChild < std::min(item.vecChild.size(), PARTS.size());
             ++nChild) {
            const LintItem& child = m_form.vecItem[item.vecChild[nChild]];
            const long lPlace = static_cast<long>(nChild);
            const bool bPart = lPlace < lWidth || child.strId == PARTS[nChild];
            if (!bPart || child.lColumn == lFirst + lPlace)
                continue;
            Add(LintRule::DateGroup, child.pElement, NOT_ADJACENT,
                {Number(child.lColumn), Number(lFirst + lPlace - 1), Number(lFirst),
                 Number(lFirst + (lWidth == 2 ? 1 : 3))});
        }
    }

    void LookAtCheck(const LintItem& item, const LintCheck& check)
    {
        if (check.bDropped) {
            Add(LintRule::OuterDropped, check.pElement, DROPPED, {check.pElement->Attribute("id")});
            return;
        }
        if (check.pKeyword != nullptr) {
            LookAtCells(item, check);
            LookAtErrorPlace(check);
        }
        for (const LintCheck& outer : check.vecOuter)
            LookAtCheck(item, outer);
    }

    void LookAtCells(const LintItem& item, const LintCheck& check)
    {
        const long lCells = CellsFromColumn(check, m_form.strTypeId);
        const std::string strKeyword(check.pKeyword->strKeyword);
        long lColumn = check.lColumn;
        if (lColumn == 0 && item.IsGroup() && !check.bOuter) {
            lColumn = FirstChildColumn(m_form, item);
            if (lColumn == 0)
                return;  // it never runs
            if (!TakesGroupColumn(check.pKeyword->shape.ePlace)) {
                if (lCells > 0)
                    Add(LintRule::MissingColumn, check.pElement, GROUP_CHECK_WITHOUT, {strKeyword});
                return;
            }
        }
        if (lCells == 0)
            return;
        if (lColumn == 0) {
            Add(LintRule::MissingColumn, check.pElement, CHECK_WITHOUT, {strKeyword});
            return;
        }
        const long lLast = lColumn + lCells - 1;
        // A column of the item itself is told once, at the item.
        const bool bOfItem = lCells == 1 && lColumn == item.lColumn;
        if (m_form.lColumnNum < 1 || lLast <= m_form.lColumnNum || bOfItem)
            return;
        Add(LintRule::ColumnBeyond, check.pElement,
            lCells == 1 ? CHECK_COLUMN_BEYOND : CHECK_BEYOND,
            {Number(lColumn), Number(m_form.lColumnNum), strKeyword, Number(lLast)});
    }

    void LookAtErrorPlace(const LintCheck& check)
    {
        if (check.bOuter)
            return;
        constexpr long MORE = 3;
        const ErrorPlace place = check.pKeyword->shape.ePlace;
        if (ReadsErrColumn(place) && !check.pElement->Attribute("errcolumn").empty() &&
            m_form.lColumnNum > 0) {
            const long lFirst = ReadNumber(*check.pElement, "errcolumn");
            if (lFirst < 1 || lFirst + MORE > m_form.lColumnNum)
                Add(LintRule::ErrorPlaceBeyond, check.pElement, ERROR_COLUMN,
                    {Number(lFirst), Number(lFirst + MORE), Number(m_form.lColumnNum)});
        }
        if (ReadsErrRow(place) && !check.pElement->Attribute("errrow").empty()) {
            const long lRow = ReadNumber(*check.pElement, "errrow");
            if (lRow < 1 || lRow > m_file.MaxRecord())
                Add(LintRule::ErrorPlaceBeyond, check.pElement, ERROR_ROW,
                    {Number(lRow), Number(m_file.MaxRecord())});
        }
    }

    void LookForUnused()
    {
        std::set<long> setUsed = {1};  // the type id's place
        for (const LintItem& item : m_form.vecItem) {
            setUsed.insert(item.lColumn);
            for (const LintCheck& check : item.vecCheck)
                AddCheckedColumns(m_form, item, check, setUsed);
        }
        // The columns between two that are used, and behind the last one.
        setUsed.insert(m_form.lColumnNum + 1);
        for (auto it = setUsed.lower_bound(1); it != setUsed.end(); ++it) {
            const long lFirst = *it + 1;
            const long lLast =
                std::min(m_form.lColumnNum,
                         std::next(it) != setUsed.end() ? *std::next(it) - 1 : m_form.lColumnNum);
            if (lFirst <= lLast)
                Add(LintRule::UnusedColumn, m_form.pElement, lLast > lFirst ? UNUSED_RUN : UNUSED,
                    {Number(lFirst), Number(lLast)});
        }
    }

    void Add(LintRule eRule,
             const XmlElement* pElement,
             const LintTexts& texts,
             std::initializer_list<std::string_view> listArgument)
    {
        m_report.Add(eRule, {m_file.strName, pElement->lLine}, texts, listArgument);
    }

    const LintFile& m_file;
    const LintForm& m_form;
    LintReport& m_report;
};

}  // namespace

void LintColumns(const LintFile& file, LintReport& report)
{
    for (const LintForm& form : file.vecForm)
        ColumnWalk(file, form, report).Look();
}

}  // namespace host
