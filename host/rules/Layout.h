// The layout of a procedure's file: its columns with labels, tags and checks in words.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "form/FormDefinition.h"

namespace host {

/// One column of a form. Texts are in the current language.
struct LayoutColumn
{
    long lColumn = 0;  ///< from 1
    std::string strLabel;
    std::vector<std::string> vecTag;    ///< tag names of its items
    std::vector<std::string> vecCheck;  ///< what it must be, in the order of the checks
};

/// Every column of the form from 1 to the last, one without an item, too. A check over several
/// columns stands at the first of them.
std::vector<LayoutColumn> LayoutOf(const FormDefinition& form);

/// The procedures as documents of their own or, for CSV, one table with a head line.
void WriteLayoutMarkdown(std::ostream& out,
                         const std::vector<const ProcedureDefinition*>& vecProcedure);
void WriteLayoutHtml(std::ostream& out,
                     const std::vector<const ProcedureDefinition*>& vecProcedure);
void WriteLayoutCsv(std::ostream& out, const std::vector<const ProcedureDefinition*>& vecProcedure);

/// A line for each procedure: type id, procedure, family, label of its first form.
void WriteProcedureList(std::ostream& out,
                        const std::vector<const ProcedureDefinition*>& vecProcedure);

}  // namespace host
