// What is told about one file, whatever the format.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/ExitStatus.h"
#include "base/Outcome.h"
#include "file/CsvCells.h"
#include "form/DetailTable.h"
#include "form/Family.h"

namespace host {

/// What an error belongs to.
enum class ErrorScope
{
    Cell,      ///< one column of a record, or a range
    Record,    ///< a record without a column
    File,      ///< the file as a whole
    Argument,  ///< the path of a file, or a field of the filer
};

struct ReportedError
{
    DetailEntry entry;
    ErrorScope eScope = ErrorScope::File;
    std::size_t nLine = 0;  ///< line of the file in which the record begins; 0 if unknown
    std::string strName;    ///< label of the column, or name of the argument; may be empty
    std::string strRule;    ///< in words, the rule that refused the cell; may be empty
    std::optional<std::string> value;  ///< what stands in the cell or argument; nothing if unknown
    std::string
        strHint;  ///< where in the file, as far as the code alone doesn't tell; may be empty
};

struct WrittenDocument
{
    std::string strPath;        ///< as the user gave it
    std::uintmax_t nBytes = 0;  ///< 0 for a device or a pipe
};

/// Neighbouring records of one form.
struct ReportedForm
{
    std::size_t nFirstRecord = 1;
    std::size_t nLastRecord = 0;
    std::string strName;                ///< may be empty
    std::vector<std::string> vecLabel;  ///< of the columns from 1; each may be empty
};

struct FileReport
{
    std::string strFile;  ///< as the user named it; not always UTF-8
    Outcome eOutcome = Outcome::NotChecked;
    ExitStatus eStatus = ExitStatus::NotChecked;
    Family eFamily = Family::Base;        ///< whose operations took it
    std::string strProcedure;             ///< empty if unknown
    std::optional<std::size_t> records;   ///< records that aren't blank; nothing if unknown
    std::vector<ReportedError> vecError;  ///< all of them, in the library's order
    bool bMoreErrors = false;             ///< the library's table was cut: there are more errors
    std::string strProblem;               ///< why the file wasn't checked, converted or written
    std::string strAdvice;                ///< what to do about strProblem
    std::string strNote;                  ///< something to know beside the errors; may be empty
    std::optional<WrittenDocument> document;  ///< of a dry run: the one that would be written
    std::shared_ptr<const CsvCells> pCells;   ///< null if the file couldn't be read
    std::vector<ReportedForm> vecForm;  ///< in the order of the file; empty if the form is unknown

    /// Distinct records that have an error of their own.
    std::size_t RecordsWithErrors() const;
};

/// The catalogue's Japanese text of an error, or a text that says that there is none.
const char* MessageText(const ReportedError& error);

}  // namespace host
