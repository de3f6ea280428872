// The errors of a file, counted and grouped.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "request/FileReport.h"

namespace host {

struct CodeCount
{
    std::string strCode;
    std::size_t nErrors = 0;
};

/// The codes of the errors with their numbers, in the order of the codes.
std::vector<CodeCount> CountByCode(const FileReport& report);

/// A column or a range of columns. Where a file has several forms, one column number may stand for
/// several columns; the label tells them apart.
struct ColumnCount
{
    long lColumn = 0;
    long lColumnEnd = SINGLE_COLUMN;
    std::string strLabel;
    std::size_t nErrors = 0;
};

/// The columns of the errors that have one, in the order of the columns.
std::vector<ColumnCount> CountByColumn(const FileReport& report);

/// Errors of the same place in a record, the same code and the same rule.
struct ErrorGroup
{
    std::vector<std::size_t> vecError;  ///< into FileReport::vecError, in their order; never empty
};

/// Errors of the file first, then those of arguments and whole records, then by column.
/// \param nErrors  Errors of the report that count, from the front.
std::vector<ErrorGroup> GroupErrors(const FileReport& report, std::size_t nErrors);

}  // namespace host
