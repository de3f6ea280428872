#include "FileReport.h"

#include <set>

#include "Language.h"

namespace host {
namespace {

constexpr Text NO_TEXT = {"(no text is known for this code)", "（このコードの説明はありません）"};

}  // namespace

std::size_t FileReport::RecordsWithErrors() const
{
    std::set<long> setRecord;
    for (const ReportedError& error : vecError)
        if (error.eScope == ErrorScope::Cell || error.eScope == ErrorScope::Record)
            setRecord.insert(error.entry.lRecord);
    return setRecord.size();
}

const char* OutcomeName(Outcome eOutcome)
{
    switch (eOutcome) {
        case Outcome::Passed:
            return "passed";
        case Outcome::Refused:
            return "refused";
        case Outcome::NotChecked:
            return "not_checked";
        case Outcome::Converted:
            return "converted";
        case Outcome::Convertible:
            return "convertible";
        case Outcome::NotConverted:
            return "not_converted";
        case Outcome::NotWritten:
            return "not_written";
    }
    return "not_checked";
}

const char* MessageText(const ReportedError& error)
{
    return error.entry.eMessage != MSG_NONE ? EkaMsgTable[error.entry.eMessage].szText
                                            : Say(NO_TEXT);
}

}  // namespace host
