#include "rules/CheckShape.h"

#include <algorithm>

#include "text/CText.h"
#include "validator/AgeWord.h"
#include "validator/DateGroup.h"

namespace host {
namespace {

/// Farther numbers say no more, and would overflow when they are reckoned with.
long InReach(long lNumber)
{
    constexpr long NUMBER_MAX = 1'000'000'000;
    return std::clamp(lNumber, -NUMBER_MAX, NUMBER_MAX);
}

long ReadNumber(const std::string& strText)
{
    return InReach(CText::ReadLong(strText.c_str()));
}

void AddEach(std::vector<CellSpan>& vecSpan, const std::string& strList)
{
    for (const long lColumn : CText::SplitNumbers(strList))
        vecSpan.push_back({0, InReach(lColumn), 1});
}

void AddNamed(std::vector<CellSpan>& vecSpan,
              AttributeKind eKind,
              const std::string& strText,
              const CatalogueItem& item,
              const CheckDefinition& check)
{
    switch (eKind) {
        case AttributeKind::EqualColumn:
        case AttributeKind::UnequalColumn:
            vecSpan.push_back({0, ReadNumber(strText), 1});
            break;
        case AttributeKind::AnyColumn:
        case AttributeKind::WesternDateColumns:
            AddEach(vecSpan, strText);
            break;
        case AttributeKind::EqualYearColumn:
        case AttributeKind::FiscalYearColumn:
            vecSpan.push_back({0, ReadNumber(strText), YEAR_CELLS});
            break;
        case AttributeKind::AgeColumns: {
            const auto vecNumber = CText::SplitNumbers(strText);
            if (vecNumber.size() > AgeWord::YEAR_COLUMN) {
                vecSpan.push_back({0, InReach(vecNumber[AgeWord::BIRTH_COLUMN]), DATE_CELLS});
                vecSpan.push_back({0, InReach(vecNumber[AgeWord::YEAR_COLUMN]), YEAR_CELLS});
            }
            break;
        }
        case AttributeKind::DateCell:
            vecSpan.push_back(ReferredDate(strText));
            break;
        case AttributeKind::BaseDate:
            if (!HasKind(item, AttributeKind::DateCell) ||
                AttributeText(check, AttributeOf(item, AttributeKind::DateCell)).empty())
                vecSpan.push_back({0, ReadNumber(strText), DATE_CELLS});
            break;
        case AttributeKind::BaseDateOrCell:
            vecSpan.push_back(ReferredDate(strText));
            if (vecSpan.back().lRecord == 0)
                vecSpan.back() = {0, ReadNumber(strText), DATE_CELLS};
            break;
        // Errors are looked at there, not cells.
        case AttributeKind::ErrorColumns:
        case AttributeKind::Record:
        case AttributeKind::None:
        case AttributeKind::Texts:
        case AttributeKind::ForbiddenTexts:
        case AttributeKind::Extensions:
        case AttributeKind::Positions:
        case AttributeKind::Characters:
        case AttributeKind::PathKind:
        case AttributeKind::NumberKind:
        case AttributeKind::LineFeeds:
        case AttributeKind::LimitsIncluded:
        case AttributeKind::ByteCount:
        case AttributeKind::CharacterCount:
        case AttributeKind::Limit:
        case AttributeKind::AgeLimit:
        case AttributeKind::Offset:
        case AttributeKind::Years:
        case AttributeKind::FirstDay:
        case AttributeKind::ComparedDay:
        case AttributeKind::Periods:
        case AttributeKind::Period:
            break;
    }
}

}  // namespace

const char* AttributeName(Attribute eAttribute)
{
    switch (eAttribute) {
        case Attribute::Value:
            break;
        case Attribute::Min:
            return "min";
        case Attribute::Max:
            return "max";
    }
    return "value";
}

const std::string& AttributeText(const CheckDefinition& check, Attribute eAttribute)
{
    switch (eAttribute) {
        case Attribute::Value:
            break;
        case Attribute::Min:
            return check.strMin;
        case Attribute::Max:
            return check.strMax;
    }
    return check.strValue;
}

const AttributeShape& ShapeOf(const CatalogueItem& item, Attribute eAttribute)
{
    switch (eAttribute) {
        case Attribute::Value:
            break;
        case Attribute::Min:
            return item.shape.min;
        case Attribute::Max:
            return item.shape.max;
    }
    return item.shape.value;
}

std::vector<AttributeKind> KindsOf(const CatalogueItem& item)
{
    std::vector<AttributeKind> vecKind;
    for (const Attribute eAttribute : ATTRIBUTES) {
        const AttributeShape& shape = ShapeOf(item, eAttribute);
        if (shape.IsRead() && std::ranges::find(vecKind, shape.eKind) == vecKind.end())
            vecKind.push_back(shape.eKind);
    }
    return vecKind;
}

bool HasKind(const CatalogueItem& item, AttributeKind eKind)
{
    return std::ranges::any_of(
        ATTRIBUTES, [&](Attribute eAttribute) { return ShapeOf(item, eAttribute).eKind == eKind; });
}

Attribute AttributeOf(const CatalogueItem& item, AttributeKind eKind)
{
    for (const Attribute eAttribute : {Attribute::Value, Attribute::Min})
        if (ShapeOf(item, eAttribute).eKind == eKind)
            return eAttribute;
    return Attribute::Max;
}

CellSpan ReferredDate(const std::string& strText)
{
    const std::size_t nSplit = strText.find('_');
    if (nSplit == std::string::npos || strText.find('_', nSplit + 1) != std::string::npos)
        return {0, 0, DATE_CELLS};
    return {ReadNumber(strText.substr(0, nSplit)), ReadNumber(strText.substr(nSplit + 1)),
            DATE_CELLS};
}

long OwnCellCount(const CatalogueItem& item, std::string_view strTypeId)
{
    switch (item.shape.eCells) {
        case OwnCells::None:
            return 0;
        case OwnCells::Cell:
            break;
        case OwnCells::Year:
        case OwnCells::OfficeName:
            return YEAR_CELLS;
        case OwnCells::Date:
            return DATE_CELLS;
        case OwnCells::GroupOfKind:
            return std::max(DateGroupColumns(strTypeId), YEAR_CELLS);
    }
    return 1;
}

std::vector<CellSpan> NamedCells(const CatalogueItem& item, const CheckDefinition& check)
{
    std::vector<CellSpan> vecSpan;
    for (const Attribute eAttribute : ATTRIBUTES)
        if (const std::string& strText = AttributeText(check, eAttribute); !strText.empty())
            AddNamed(vecSpan, ShapeOf(item, eAttribute).eKind, strText, item, check);
    std::erase_if(vecSpan, [](const CellSpan& span) { return span.lColumn < 1; });
    return vecSpan;
}

std::vector<CellSpan> CellsRead(const CatalogueItem& item,
                                const CheckDefinition& check,
                                std::string_view strTypeId)
{
    std::vector<CellSpan> vecSpan = NamedCells(item, check);
    const long lOwn = OwnCellCount(item, strTypeId);
    if (check.lColumn > 0 && lOwn > 0)
        vecSpan.push_back({0, InReach(check.lColumn), lOwn});
    return vecSpan;
}

std::vector<CellSpan> CellsReported(const CatalogueItem& item,
                                    const CheckDefinition& check,
                                    std::string_view strTypeId)
{
    const auto from = [](long lFirst, long lCells) {
        return CellSpan{0, std::max(InReach(lFirst), 0L), lCells};
    };
    const auto movedOr = [&](long lCells) {
        return check.strErrColumn.empty() ? from(check.lColumn, lCells)
                                          : from(ReadNumber(check.strErrColumn), DATE_CELLS);
    };
    switch (item.shape.ePlace) {
        case ErrorPlace::None:
            break;
        case ErrorPlace::Cell:
            return {from(check.lColumn, 1)};
        case ErrorPlace::Pair:
            return {from(check.lColumn, YEAR_CELLS)};
        case ErrorPlace::Date:
            return {from(check.lColumn, DATE_CELLS)};
        case ErrorPlace::PairOrColumn:
            return {movedOr(YEAR_CELLS)};
        case ErrorPlace::DateOrColumn:
        case ErrorPlace::DateOrCell:
            return {movedOr(DATE_CELLS)};
        case ErrorPlace::GroupOfKind:
            if (!strTypeId.empty())
                return {from(check.lColumn, OwnCellCount(item, strTypeId))};
            return {from(check.lColumn, DATE_CELLS), from(check.lColumn, YEAR_CELLS),
                    from(check.lColumn, 1)};
        case ErrorPlace::CellOrDate: {
            const auto vecToken = CText::SplitTokens(check.strValue);
            const bool bWide = vecToken.size() > AgeWord::WIDENING &&
                               vecToken[AgeWord::WIDENING] == AgeWord::WIDENING_WORD;
            return {from(check.lColumn, bWide ? DATE_CELLS : 1)};
        }
        case ErrorPlace::YearOfMax:
            return {from(ReadNumber(check.strMax), YEAR_CELLS)};
        case ErrorPlace::ColumnsOfValue: {
            const auto vecColumn = CText::SplitNumbers(check.strValue);
            if (vecColumn.empty())
                break;
            const long lFirst = InReach(vecColumn.front());
            return {{0, lFirst, InReach(vecColumn.back()) - lFirst + 1}};
        }
    }
    return {};
}

bool HasErrorRecord(const CatalogueItem& item, const CheckDefinition& check)
{
    return ReadsErrRow(item.shape.ePlace) && !check.strErrRow.empty();
}

bool ReadsErrColumn(ErrorPlace ePlace)
{
    return ePlace == ErrorPlace::PairOrColumn || ePlace == ErrorPlace::DateOrColumn ||
           ePlace == ErrorPlace::DateOrCell;
}

bool ReadsErrRow(ErrorPlace ePlace)
{
    return ePlace == ErrorPlace::DateOrCell;
}

bool ReadsMessage(ErrorPlace ePlace)
{
    return ePlace != ErrorPlace::None && ePlace != ErrorPlace::GroupOfKind;
}

bool TakesGroupColumn(ErrorPlace ePlace)
{
    switch (ePlace) {
        case ErrorPlace::None:
        case ErrorPlace::Cell:
        case ErrorPlace::GroupOfKind:
        case ErrorPlace::ColumnsOfValue:
            break;
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

}  // namespace host
