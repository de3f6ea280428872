#include "lint/CheckColumns.h"

#include "rules/CheckShape.h"

namespace host {

long CellsFromColumn(const LintCheck& check, const std::string& strTypeId)
{
    const ItemShape& shape = check.pKeyword->shape;
    // A date in another record whose error has a place of its own.
    if (shape.value.eKind == AttributeKind::DateCell && !check.definition.strValue.empty() &&
        !check.definition.strErrColumn.empty())
        return 0;
    const long lOwn = OwnCellCount(*check.pKeyword, strTypeId);
    const bool bErrorThere =
        shape.ePlace == ErrorPlace::Cell || shape.ePlace == ErrorPlace::CellOrDate;
    return lOwn == 0 && bErrorThere ? 1 : lOwn;
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
    const auto add = [&setColumn](const CellSpan& span) {
        for (long lColumn = span.lColumn; lColumn <= span.Last(); ++lColumn)
            setColumn.insert(lColumn);
    };
    long lColumn = check.lColumn;
    if (lColumn == 0 && item.IsGroup() && TakesGroupColumn(check.pKeyword->shape.ePlace))
        lColumn = FirstChildColumn(form, item);
    if (lColumn > 0)
        add({0, lColumn, CellsFromColumn(check, form.strTypeId)});
    for (const CellSpan& span : NamedCells(*check.pKeyword, check.definition))
        if (span.lRecord == 0)
            add(span);
}

}  // namespace host
