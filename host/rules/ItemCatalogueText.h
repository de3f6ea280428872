// The catalogue of check items for people.
#pragma once

#include <ostream>
#include <string>

#include "validator/ItemCatalogue.h"

namespace host {

/// "value, min, max", as far as the item reads them; empty for none.
std::string ItemAttributes(const CatalogueItem& item);
/// "HE70004E, HE70008E": the codes that the item itself reports; empty for none.
std::string ItemCodes(const CatalogueItem& item);
/// Which columns an error covers, in the current language.
std::string ItemPlace(const CatalogueItem& item);
/// What the item wants, in sentences of the current language, names in `backquotes`.
std::string ItemDescription(const CatalogueItem& item);

/// All items by keyword as a Markdown document in the current language.
void WriteItemCatalogue(std::ostream& stream);

}  // namespace host
