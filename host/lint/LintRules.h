// The rules of lint: one table.
#pragma once

#include <iosfwd>
#include <span>

#include "base/Language.h"
#include "lint/LintFinding.h"

namespace host {

/// In the order of the table.
enum class LintRule
{
    MissingFile,
    AmbiguousFile,
    StrayFile,
    NotXml,
    Prolog,
    Doctype,
    NoReport,
    MissingReport,
    DuplicateReport,
    UnexpectedReport,
    MissingAttribute,
    UnknownElement,
    UnknownAttribute,
    UnreadAttribute,
    BadNumber,
    BadFlag,
    MissingLabel,
    UnknownType,
    MissingParent,
    LaterParent,
    AmbiguousParent,
    BadGeneration,
    BadTagName,
    LongTag,
    BadIdRef,
    MissingColumn,
    ColumnBeyond,
    DateGroup,
    UnusedColumn,
    UncheckedColumn,
    SharedColumn,
    UnknownKeyword,
    KeywordMisplaced,
    BadParameter,
    UnknownMessage,
    OuterDropped,
    CheckNeverRuns,
    ErrorPlaceBeyond,
    BadRange,
    RangeGap,
    RangeOverlap,
    UnreachableReport,
    TrailerNotLast,
    BadStep,
    BadItemRange,
    BadRepeat,
    BrokenPage,
    OpenGroup,
    CloseOrder,
    NeverWritten,
    CatalogueMismatch,
    PairMismatch,
    NoOffice,
    BadOffice,
    DuplicateOffice,
    BeyondLimit,
    LoadFailure,
};

struct LintRuleRow
{
    LintRule eRule;
    const char* szId;
    LintSeverity eSeverity;
    Text finds;  ///< one sentence: what the rule finds, and why that is bad
};

std::span<const LintRuleRow> LintRules();
const LintRuleRow& RowOf(LintRule eRule);

/// The table as Markdown, in the current language.
void WriteLintRules(std::ostream& out);

}  // namespace host
