#include "CellSpoiler.h"

#include <algorithm>
#include <utility>

#include "ShiftJisText.h"
#include "generate/RecordGenerator.h"
#include "rules/CheckShape.h"

using namespace host;

namespace {

/// U+FF9F as a CSV holds it: half-width, so that it is no text of whole characters either.
constexpr const char* FORBIDDEN = "\xdf";

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
std::optional<std::string> SpoiledDatePart(long lOffset)
{
    if (lOffset == 0)
        return "9";
    if (lOffset == 1)  // the last era has no last year
        return std::nullopt;
    return "77";
}

/// One way for two cells of a record to agree, or to differ by a number.
std::optional<std::string> SpoiledPair(const CheckRule& rule,
                                       const std::string& strCell,
                                       const std::string& strOther)
{
    const bool bNumbers = !rule.strMin.empty() || !rule.strMax.empty();
    if (HasKind(*rule.pRow, AttributeKind::EqualColumn))
        return bNumbers ? std::to_string(NumberOf(strCell) + 1) : strCell + FORBIDDEN;
    return bNumbers
               ? std::to_string(NumberOf(strOther) + NumberOf(rule.strMin) - NumberOf(rule.strMax))
               : strOther;
}

/// The first of the list is looked at whatever the others hold, if it has to be a number.
std::optional<std::string> SpoiledNumberOfMany(const CheckRule& rule, long lColumn)
{
    return NumberOf(rule.strValue) == lColumn ? std::optional<std::string>(FORBIDDEN)
                                              : std::nullopt;
}

/// All cells of the list have to be empty.
std::optional<std::string> SpoiledAlone(const CheckRule& rule,
                                        const RecordTable& table,
                                        long lRow,
                                        long lColumn)
{
    const auto vecToken = SplitTokens(rule.strValue);
    const bool bAlone = std::ranges::all_of(vecToken, [&](const std::string& strToken) {
        return NumberOf(strToken) == lColumn || table.Cell(lRow, NumberOf(strToken)).empty();
    });
    return bAlone && rule.setReads.contains(lColumn) ? std::optional<std::string>("")
                                                     : std::nullopt;
}

/// A base date of another record that isn't there lets everything pass.
bool HasBaseDates(const CheckRule& rule, const RecordTable& table)
{
    return std::ranges::none_of(NamedCells(*rule.pRow, rule), [&](const CellSpan& span) {
        return span.lRecord > 0 && table.Cell(span.lRecord - 1, span.Last()).empty();
    });
}

/// What the attributes' kinds tell, the first that tells something.
std::optional<std::string> SpoiledByKind(
    const CheckRule& rule, AttributeKind eKind, const RecordTable& table, long lRow, long lColumn)
{
    const std::string strCell = table.Cell(lRow, lColumn);
    const long lOffset = lColumn - rule.lColumn;
    const bool bRead = rule.setReads.contains(lColumn);
    switch (eKind) {
        case AttributeKind::ByteCount:
        case AttributeKind::CharacterCount:
            return TooLong(rule);
        case AttributeKind::Limit:
            return HasKind(*rule.pRow, AttributeKind::AnyColumn)
                       ? std::nullopt
                       : std::optional<std::string>(FORBIDDEN);
        case AttributeKind::Texts:
        case AttributeKind::NumberKind:
            return FORBIDDEN;
        case AttributeKind::ForbiddenTexts:
            return ToShiftJis(SplitTokens(rule.strValue).front());
        case AttributeKind::Extensions:
            return "a";
        case AttributeKind::PathKind:
            return "";
        case AttributeKind::Positions:
        case AttributeKind::Characters:
            return SpoiledDigit(rule, strCell);
        case AttributeKind::EqualColumn:
        case AttributeKind::UnequalColumn:
            return SpoiledPair(rule, strCell, table.Cell(lRow, NumberOf(rule.strValue)));
        case AttributeKind::AnyColumn:
            return HasKind(*rule.pRow, AttributeKind::Limit)
                       ? SpoiledNumberOfMany(rule, lColumn)
                       : SpoiledAlone(rule, table, lRow, lColumn);
        case AttributeKind::WesternDateColumns:
            return lOffset == 0 || NumberOf(SplitTokens(rule.strValue)[0]) == lColumn ? "99" : "77";
        case AttributeKind::EqualYearColumn:
        case AttributeKind::Years:
            return lOffset == 1 ? std::optional<std::string>(strCell == "99" ? "98" : "99")
                                : std::nullopt;
        case AttributeKind::FiscalYearColumn:  // leaves dates that don't exist to others
            return lOffset == 1 && !HasKind(*rule.pRow, AttributeKind::FirstDay)
                       ? std::optional<std::string>("99")
                       : std::nullopt;
        case AttributeKind::AgeColumns: {
            const long lBirth = NumberOf(rule.strValue);
            return lColumn == lBirth + 2 || lColumn == lBirth + 3 ? std::optional<std::string>("77")
                                                                  : std::nullopt;
        }
        case AttributeKind::BaseDate:
        case AttributeKind::BaseDateOrCell:  // an era that isn't there is a date like others
            return bRead && lOffset > 0 && HasBaseDates(rule, table) ? SpoiledDatePart(lOffset)
                                                                     : std::nullopt;
        case AttributeKind::FirstDay:
            if (HasKind(*rule.pRow, AttributeKind::FiscalYearColumn))
                return std::nullopt;
            [[fallthrough]];
        case AttributeKind::ComparedDay:
        case AttributeKind::Periods:
        case AttributeKind::Period:
            return bRead ? SpoiledDatePart(lOffset) : std::nullopt;
        case AttributeKind::None:
        case AttributeKind::LineFeeds:
        case AttributeKind::LimitsIncluded:
        case AttributeKind::AgeLimit:
        case AttributeKind::Offset:
        case AttributeKind::ErrorColumns:
        case AttributeKind::Record:
        case AttributeKind::DateCell:
            break;
    }
    return std::nullopt;
}

/// What a check without attributes tells.
std::optional<std::string> SpoiledByCells(OwnCells eCells, const std::string& strCell, long lOffset)
{
    switch (eCells) {
        case OwnCells::None:
        case OwnCells::Cell:
        case OwnCells::Year:
            break;
        case OwnCells::Date:  // no era has a year 0
            return lOffset == 1 ? "0" : SpoiledDatePart(lOffset);
        case OwnCells::GroupOfKind:
            return strCell.empty() ? "1" : "";
        case OwnCells::OfficeName:
            return FORBIDDEN;
    }
    return std::nullopt;
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
    const ItemShape& shape = rule.pRow->shape;
    const std::string strCell = table.Cell(lRow, lColumn);
    switch (shape.eContent) {
        case CellContent::Filled:
            return "";
        case CellContent::Empty:
            return "1";
        case CellContent::OfficeCode:
            return FORBIDDEN;
        case CellContent::Any:
            break;
        default:  // a set of characters
            return strCell + FORBIDDEN;
    }
    // The date of another record is looked at, not this one's.
    if (shape.value.eKind == AttributeKind::DateCell && !rule.strValue.empty())
        return std::nullopt;
    const std::vector<AttributeKind> vecKind = KindsOf(*rule.pRow);
    for (const AttributeKind eKind : vecKind)
        if (auto strSpoiled = SpoiledByKind(rule, eKind, table, lRow, lColumn))
            return strSpoiled;
    return vecKind.empty() ? SpoiledByCells(shape.eCells, strCell, lColumn - rule.lColumn)
                           : std::nullopt;
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
