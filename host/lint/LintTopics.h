// The topics of lint: each looks at the folder for the rules that its source file holds.
#pragma once

#include <string>
#include <vector>

#include "lint/LintBundle.h"
#include "lint/LintReport.h"

namespace host {

/// Elements and attributes: unknown, misspelt, missing, not read, not numbers.
void LintElements(const LintFile& file, LintReport& report);
/// Items: type, generation, tag name, reference, row range.
void LintItems(const LintFile& file, LintReport& report);
/// Columns of items and checks.
void LintColumns(const LintFile& file, LintReport& report);
/// Check keywords and their parameters.
void LintChecks(const LintFile& file, LintReport& report);
/// Records of the reports of a file.
void LintRanges(const LintFile& file, LintReport& report);
/// Ids against the catalogue and type ids.
/// \param vecTypeId  Those that are wanted; empty for all.
void LintCatalogue(const LintFile& file,
                   const std::vector<std::string>& vecTypeId,
                   LintReport& report);
/// What a template writes at which record, and whether the checks agree.
/// \param pChecks  The procedure's validation file; null if there is none.
void LintDocument(const LintFile& document, const LintFile* pChecks, LintReport& report);
/// The table of tax offices.
void LintOffices(const LintBundle& bundle, LintReport& report);
/// Loads what no other rule has found an error in, by the library itself.
void LintLoad(const LintBundle& bundle, LintReport& report);

}  // namespace host
