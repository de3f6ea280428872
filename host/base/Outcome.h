// How a file ended, and how that is named, said and coloured, whatever the report.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Language.h"

namespace host {

enum class Outcome
{
    Passed,
    Refused,     ///< the file has errors
    NotChecked,  ///< the check didn't reach the end of the file
    Converted,
    Convertible,   ///< a dry run made the document and left no file
    NotConverted,  ///< the file passed, but a field of the filer is wrong or no document can be
                   ///< made
    NotWritten,    ///< the document could be made but not written; the last of them
};

/// Who has to do something: nobody; who made the file or the request; or who looks after the
/// machine, as nothing is known of the file yet.
enum class OutcomeTone
{
    Good,
    Bad,
    Doubt,
};

struct OutcomeLook
{
    const char* szName;  ///< in formats for programs, such as "not_checked"
    Text word;           ///< such as "not checked"
    OutcomeTone eTone;
};

/// The one table of outcomes.
OutcomeLook LookOf(Outcome eOutcome);

/// "not_checked"
const char* OutcomeName(Outcome eOutcome);
/// The outcome of a name, or nothing.
std::optional<Outcome> OutcomeOfName(std::string_view strName);
/// "not checked", in the current language.
const char* OutcomeWord(Outcome eOutcome);
/// The same as the verdict of one file: in capitals, where the language has them, unless it is
/// good.
std::string OutcomeVerdict(Outcome eOutcome);
/// "good", "bad" or "doubt": the class of its elements on pages.
const char* OutcomeStyle(Outcome eOutcome);

}  // namespace host
