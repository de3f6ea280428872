// The debug log without what changes from run to run.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "DebugLog.h"

/// The lines of the log in order, without empty lines, time stamps and places in the sources.
inline std::vector<std::string> LogMessages(const DebugLog& log)
{
    std::istringstream stream(log.Text());
    std::vector<std::string> vecMessage;
    for (std::string strLine; std::getline(stream, strLine);) {
        if (!strLine.empty() && !strLine.starts_with("--") && !strLine.starts_with("[File:"))
            vecMessage.push_back(strLine);
    }
    return vecMessage;
}

/// The last lines of that, at most nCount.
inline std::vector<std::string> LastLogMessages(const DebugLog& log, std::size_t nCount)
{
    std::vector<std::string> vecMessage = LogMessages(log);
    if (vecMessage.size() > nCount)
        vecMessage.erase(vecMessage.begin(),
                         vecMessage.end() - static_cast<std::ptrdiff_t>(nCount));
    return vecMessage;
}
