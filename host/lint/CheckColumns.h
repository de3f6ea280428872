// Which columns a check of a definition file looks at.
#pragma once

#include <set>
#include <string>

#include "lint/LintBundle.h"

namespace host {

/// Cells from the check's column on that it looks at or whose error stands there; 0 if it needs no
/// column. The keyword is known.
long CellsFromColumn(const LintCheck& check, const std::string& strTypeId);

/// From 1; 0 if the item has no child, or its first one no column.
long FirstChildColumn(const LintForm& form, const LintItem& item);

/// Adds the columns that the check itself looks at, its conditions left out.
void AddCheckedColumns(const LintForm& form,
                       const LintItem& item,
                       const LintCheck& check,
                       std::set<long>& setColumn);

}  // namespace host
