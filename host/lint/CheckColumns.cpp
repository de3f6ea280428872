#include "lint/CheckColumns.h"

#include <algorithm>
#include <string_view>

#include "CText.h"

namespace host {
namespace {

constexpr long DATE_CELLS = 4;
constexpr long YEAR_CELLS = 2;

/// Attributes that hold columns, and how many from each.
struct ColumnParameter
{
    std::string_view strKeyword;
    const char* szAttribute;
    long lCells;
};

constexpr ColumnParameter COLUMN_PARAMETERS[] = {
    {"containcolumn", "value", 1},      {"exceptcolumn", "value", 1},
    {"anyexist", "value", 1},           {"anycontain", "value", 1},
    {"existdateYYYYMMDD", "value", 1},  {"equalyear", "value", YEAR_CELLS},
    {"rangedate_2", "max", YEAR_CELLS}, {"rangedate_3", "value", YEAR_CELLS},
};

/// Farther numbers say no more, and would overflow when they are reckoned with.
long InReach(long lNumber)
{
    constexpr long NUMBER_MAX = 1'000'000'000;
    return std::clamp(lNumber, -NUMBER_MAX, NUMBER_MAX);
}

}  // namespace

long ReadNumber(const XmlElement& element, const char* szAttribute)
{
    return InReach(CText::ReadLong(element.Attribute(szAttribute).c_str()));
}

long CellsRead(const LintCheck& check, const std::string& strTypeId)
{
    // A date in another record whose error has a place of its own.
    if (check.pKeyword->ePlace == ErrorPlace::DateOrCell &&
        !check.pElement->Attribute("value").empty() &&
        !check.pElement->Attribute("errcolumn").empty())
        return 0;
    switch (check.pKeyword->ePlace) {
        case ErrorPlace::None:
        case ErrorPlace::ColumnsOfValue:
            return 0;
        case ErrorPlace::Cell:
        case ErrorPlace::CellOrDate:
            return 1;
        case ErrorPlace::Pair:
        case ErrorPlace::PairOrColumn:
            return YEAR_CELLS;
        case ErrorPlace::GroupOfKind:
            return strTypeId == "003" || strTypeId == "004" || strTypeId == "005" ? DATE_CELLS
                                                                                  : YEAR_CELLS;
        case ErrorPlace::Date:
        case ErrorPlace::DateOrColumn:
        case ErrorPlace::DateOrCell:
        case ErrorPlace::YearOfMax:
            return DATE_CELLS;
    }
    return 1;
}

bool TakesGroupColumn(const LintCheck& check)
{
    switch (check.pKeyword->ePlace) {
        case ErrorPlace::None:
        case ErrorPlace::Cell:
        case ErrorPlace::GroupOfKind:
        case ErrorPlace::ColumnsOfValue:
            return false;
        case ErrorPlace::Pair:
        case ErrorPlace::Date:
        case ErrorPlace::PairOrColumn:
        case ErrorPlace::DateOrColumn:
        case ErrorPlace::DateOrCell:
        case ErrorPlace::CellOrDate:
        case ErrorPlace::YearOfMax:
            return true;
    }
    return false;
}

long FirstChildColumn(const LintForm& form, const LintItem& item)
{
    return item.vecChild.empty() ? 0 : form.vecItem[item.vecChild.front()].lColumn;
}

void AddCheckedColumns(const LintForm& form,
                       const LintItem& item,
                       const LintCheck& check,
                       std::set<long>& setColumn)
{
    if (check.pKeyword == nullptr)
        return;
    long lColumn = check.lColumn;
    if (lColumn == 0 && item.IsGroup() && TakesGroupColumn(check))
        lColumn = FirstChildColumn(form, item);
    if (lColumn > 0)
        for (long lCell = 0; lCell < CellsRead(check, form.strTypeId); ++lCell)
            setColumn.insert(lColumn + lCell);
    for (const ColumnParameter& parameter : COLUMN_PARAMETERS)
        if (parameter.strKeyword == check.pKeyword->strKeyword)
            for (const long lListed :
                 CText::SplitNumbers(check.pElement->Attribute(parameter.szAttribute)))
                for (long lCell = 0; lCell < parameter.lCells; ++lCell)
                    setColumn.insert(InReach(lListed) + lCell);
    const auto add = [&](long lFirst, long lCells) {
        for (long lCell = 0; lCell < lCells && lFirst > 0; ++lCell)
            setColumn.insert(InReach(lFirst) + lCell);
    };
    if (check.pKeyword->strKeyword == "age") {
        const auto vecToken = CText::SplitNumbers(check.pElement->Attribute("value"));
        if (vecToken.size() > 1) {
            add(vecToken[0], DATE_CELLS);
            add(vecToken[1], YEAR_CELLS);
        }
    }
    const bool bBases = check.pKeyword->strKeyword == "rangebasedate_2" ||
                        (check.pKeyword->strKeyword == "rangebasedate" &&
                         check.pElement->Attribute("value").empty());
    if (bBases)
        for (const char* szBound : {"min", "max"})
            if (check.pElement->Attribute(szBound).find('_') == std::string::npos)
                add(ReadNumber(*check.pElement, szBound), DATE_CELLS);
}

}  // namespace host
