#include "request/FileReport.h"

#include <set>

#include "base/Language.h"

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

const char* MessageText(const ReportedError& error)
{
    return error.entry.eMessage != MSG_NONE ? EkaMsgTable[error.entry.eMessage].szText
                                            : Say(NO_TEXT);
}

}  // namespace host
