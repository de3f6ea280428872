#include "CellSpoiler.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "ShiftJisText.h"
#include "example/RecordGenerator.h"

using namespace host;

namespace {

/// U+FF9F as a CSV holds it: half-width, so that it is no text of whole characters either.
constexpr const char* FORBIDDEN = "\xdf";

constexpr std::array<std::string_view, 9> TEXT_KEYWORDS = {"alnum",     "alnumsbl",    "alphabet",
                                                           "istring",   "lvystring",   "multibyte",
                                                           "multikana", "multikana_2", "number"};

bool IsAnyOf(const std::string& strKeyword, std::initializer_list<const char*> listKeyword)
{
    return std::ranges::find(listKeyword, strKeyword) != listKeyword.end();
}

std::string TooLong(const CheckRule& rule)
{
    const long lLimit = NumberOf(rule.strValue.empty() ? rule.strMax : rule.strValue);
    std::string strText;
    for (long l = 0; l <= lLimit; ++l)
        strText += FORBIDDEN;
    return strText;
}

std::optional<std::string> SpoiledDigit(const CheckRule& rule, std::string strCell)
{
    if (!rule.strMax.empty())
        return FORBIDDEN;
    const auto nPosition = static_cast<std::size_t>(NumberOf(rule.strValue));
    if (nPosition < 1 || nPosition > strCell.size())
        return std::nullopt;
    strCell[nPosition - 1] = rule.strMin.at(0);
    return strCell;
}

/// The offset is the place in the date: era, year, month, day.
std::optional<std::string> SpoiledDatePart(const CheckRule& rule, long lOffset)
{
    const std::string& strKeyword = rule.strKeyword;
    if (strKeyword == "rangedate_3")  // leaves dates that don't exist to others
        return lOffset == 1 ? std::optional<std::string>("99") : std::nullopt;
    if (lOffset == 0)
        return strKeyword == "rangebasedate" || strKeyword == "rangebasedate_2"
                   ? std::nullopt
                   : std::optional<std::string>("9");
    if (lOffset == 1)  // no era has a year 0; the last era has no last year
        return strKeyword == "existdate" || strKeyword == "existdate_2"
                   ? std::optional<std::string>("0")
                   : std::nullopt;
    return "77";
}

/// One way for two cells of a record to agree, or to differ by a number.
std::optional<std::string> SpoiledPair(const CheckRule& rule,
                                       const std::string& strCell,
                                       const std::string& strOther)
{
    const bool bNumbers = !rule.strMin.empty() || !rule.strMax.empty();
    if (rule.strKeyword == "containcolumn")
        return bNumbers ? std::to_string(NumberOf(strCell) + 1) : strCell + FORBIDDEN;
    return bNumbers
               ? std::to_string(NumberOf(strOther) + NumberOf(rule.strMin) - NumberOf(rule.strMax))
               : strOther;
}

bool Applies(const FormRules& form, const CheckRule& rule, const RecordTable& table, long lRow)
{
    return form.vecItem[rule.nItem].FitsGeneration(table.GetRecordGeneration(lRow)) &&
           RecordGenerator::IsActive(rule, table, lRow);
}

/// Another check refuses first, without naming the column, and the rule's turn never comes.
bool IsCutOff(
    const FormRules& form, const CheckRule& rule, const RecordTable& table, long lRow, long lColumn)
{
    const ItemRule& item = form.vecItem[rule.nItem];
    return std::ranges::any_of(form.vecCheck, [&](const CheckRule& other) {
        const bool bBefore = other.nItem == rule.nItem && &other < &rule;
        const bool bChild = item.IsGroup() && form.vecItem[other.nItem].nParent == rule.nItem &&
                            other.nItem != rule.nItem;
        return (bBefore || bChild) && !other.setReported.contains(lColumn) &&
               Applies(form, other, table, lRow) && !RecordGenerator::Passes(other, table, lRow);
    });
}

}  // namespace

std::optional<std::string> SpoiledCell(const CheckRule& rule,
                                       const RecordTable& table,
                                       long lRow,
                                       long lColumn)
{
    const std::string& strKeyword = rule.strKeyword;
    const std::string strCell = table.Cell(lRow, lColumn);
    const long lOffset = lColumn - rule.lColumn;
    if (strKeyword == "exist")
        return "";
    if (strKeyword == "empty")
        return "1";
    if (std::ranges::find(TEXT_KEYWORDS, strKeyword) != TEXT_KEYWORDS.end())
        return strCell + FORBIDDEN;
    if (strKeyword == "length" || strKeyword == "charlength")
        return TooLong(rule);
    if (IsAnyOf(strKeyword, {"range", "contain", "checkdigit", "taxoffice", "taxofficenm"}))
        return FORBIDDEN;
    if (strKeyword == "extension")
        return "a";
    if (strKeyword == "existpath")
        return "";
    if (strKeyword == "except")
        return ToShiftJis(SplitTokens(rule.strValue).front());
    if (strKeyword == "digitequality")
        return SpoiledDigit(rule, strCell);
    if (strKeyword == "containcolumn" || strKeyword == "exceptcolumn")
        return SpoiledPair(rule, strCell, table.Cell(lRow, NumberOf(rule.strValue)));
    if (strKeyword == "exist_2")
        return strCell.empty() ? "1" : "";
    if (strKeyword == "existdateYYYYMMDD")
        return lOffset == 0 || NumberOf(SplitTokens(rule.strValue)[0]) == lColumn ? "99" : "77";
    if (strKeyword == "anycontain")  // the first of the list is looked at whatever the others hold
        return NumberOf(rule.strValue) == lColumn ? std::optional<std::string>(FORBIDDEN)
                                                  : std::nullopt;
    if (strKeyword == "anyexist") {
        const auto vecToken = SplitTokens(rule.strValue);
        const bool bAlone = std::ranges::all_of(vecToken, [&](const std::string& strToken) {
            return NumberOf(strToken) == lColumn || table.Cell(lRow, NumberOf(strToken)).empty();
        });
        return bAlone && rule.setReads.contains(lColumn) ? std::optional<std::string>("")
                                                         : std::nullopt;
    }
    if (strKeyword == "equalyear" || strKeyword == "containyear")
        return lOffset == 1 ? std::optional<std::string>(strCell == "99" ? "98" : "99")
                            : std::nullopt;
    if (strKeyword == "age") {
        const long lBirth = NumberOf(rule.strValue);
        return lColumn == lBirth + 2 || lColumn == lBirth + 3 ? std::optional<std::string>("77")
                                                              : std::nullopt;
    }
    if (strKeyword == "rangebasedate" && !rule.strValue.empty())
        return std::nullopt;  // looks at a cell of some other record
    if (strKeyword == "rangebasedate_2") {
        // A base date of another record that isn't there lets everything pass.
        for (const std::string& strBound : {rule.strMin, rule.strMax}) {
            const auto [lRecord, lBase] = ReferenceOf(strBound);
            if (lRecord > 0 && table.Cell(lRecord - 1, lBase + 3).empty())
                return std::nullopt;
        }
    }
    if (IsDateKeyword(strKeyword) && rule.setReads.contains(lColumn))
        return SpoiledDatePart(rule, lOffset);
    return std::nullopt;
}

std::vector<SpoiledRecord> SpoilRecord(const FormRules& form, RecordTable& table, long lRow)
{
    std::vector<SpoiledRecord> vecSpoiled;
    const KZCEkaCsvFile::Record passing = table.At(lRow);
    for (const CheckRule& rule : form.vecCheck) {
        if (!Applies(form, rule, table, lRow))
            continue;
        for (const long lColumn : rule.setReported) {
            if (lColumn < form.FirstFreeColumn() || lColumn > form.lColumnCount)
                continue;
            const auto strCell = SpoiledCell(rule, table, lRow, lColumn);
            if (!strCell || *strCell == table.Cell(lRow, lColumn))
                continue;
            table.PutCell(lRow, lColumn, *strCell);
            if (Applies(form, rule, table, lRow) && !IsCutOff(form, rule, table, lRow, lColumn))
                vecSpoiled.push_back({table.At(lRow), lColumn, &rule});
            table.Put(lRow, passing);
        }
    }
    return vecSpoiled;
}
