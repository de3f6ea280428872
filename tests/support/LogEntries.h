// The entries of the debug log that name a place.
#pragma once

#include <ostream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "DebugLog.h"

/// One entry. A trace has its label where others have the function.
struct LogEntry
{
    std::string strFunction;
    std::string strMessage;

    bool operator==(const LogEntry&) const = default;
};

inline std::ostream& operator<<(std::ostream& stream, const LogEntry& entry)
{
    return stream << "{" << entry.strFunction << "|" << entry.strMessage << "}";
}

/// All of them, in order.
inline std::vector<LogEntry> LogEntries(const DebugLog& log)
{
    static const std::regex head(R"(--\d{4}-\d\d-\d\d \d\d:\d\d:\d\d (.*)--)");
    std::vector<LogEntry> vecEntry;
    std::istringstream stream(log.Text());
    for (std::string strLine; std::getline(stream, strLine);) {
        std::smatch match;
        if (!std::regex_match(strLine, match, head))
            continue;
        LogEntry entry = {match[1], ""};
        for (bool bFirst = true; std::getline(stream, strLine) && !strLine.starts_with("[File:");
             bFirst = false)
            entry.strMessage += (bFirst ? "" : "\n") + strLine;
        vecEntry.push_back(entry);
    }
    return vecEntry;
}

/// Those that trace arguments and results.
inline std::vector<LogEntry> TraceEntries(const DebugLog& log)
{
    std::vector<LogEntry> vecEntry = LogEntries(log);
    std::erase_if(vecEntry, [](const LogEntry& entry) {
        return entry.strFunction.find("引数") == std::string::npos &&
               entry.strFunction.find("返却値") == std::string::npos;
    });
    return vecEntry;
}
