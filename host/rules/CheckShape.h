// A check of a definition file seen by the shape of its item: its attributes, the cells that it
// looks at, the columns that its error covers.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "form/FormDefinition.h"
#include "validator/ItemCatalogue.h"

namespace host {

/// An attribute whose meaning the item gives.
enum class Attribute
{
    Value,
    Min,
    Max,
};
inline constexpr std::array ATTRIBUTES = {Attribute::Value, Attribute::Min, Attribute::Max};

/// As it stands in a definition file.
const char* AttributeName(Attribute eAttribute);
const std::string& AttributeText(const CheckDefinition& check, Attribute eAttribute);
const AttributeShape& ShapeOf(const CatalogueItem& item, Attribute eAttribute);

/// The kinds of the attributes that the item reads, each once, in the order of value, min, max.
std::vector<AttributeKind> KindsOf(const CatalogueItem& item);
bool HasKind(const CatalogueItem& item, AttributeKind eKind);
/// The first attribute of a kind that the item has.
Attribute AttributeOf(const CatalogueItem& item, AttributeKind eKind);

/// Neighbouring cells of a record.
struct CellSpan
{
    long lRecord;  ///< from 1; 0: the record that is checked
    long lColumn;  ///< from 1, far numbers cut; below 1 if the attribute names none
    long lCells;

    long Last() const { return lColumn + lCells - 1; }
};

/// How many columns an era and a year take, and a whole date.
inline constexpr long YEAR_CELLS = 2;
inline constexpr long DATE_CELLS = 4;

/// Record and column of a "row_col" text; zeros for any other text.
CellSpan ReferredDate(const std::string& strText);

/// Cells from the check's column on that the item looks at. \param strTypeId  Of the form.
long OwnCellCount(const CatalogueItem& item, std::string_view strTypeId);
/// Cells that the attributes name.
std::vector<CellSpan> NamedCells(const CatalogueItem& item, const CheckDefinition& check);
/// All cells that the check looks at, its conditions left aside.
std::vector<CellSpan> CellsRead(const CatalogueItem& item,
                                const CheckDefinition& check,
                                std::string_view strTypeId);

/// The columns that an error of the check covers, in the record of errrow if it names one. Several
/// where it hangs on the kind of the record. \param strTypeId  Empty if it isn't known.
std::vector<CellSpan> CellsReported(const CatalogueItem& item,
                                    const CheckDefinition& check,
                                    std::string_view strTypeId);
/// The check names the record of its errors.
bool HasErrorRecord(const CatalogueItem& item, const CheckDefinition& check);
bool ReadsErrColumn(ErrorPlace ePlace);
bool ReadsErrRow(ErrorPlace ePlace);
bool ReadsMessage(ErrorPlace ePlace);
/// As a group's check without a column it takes that of the group's first child.
bool TakesGroupColumn(ErrorPlace ePlace);

}  // namespace host
