// The debug log without what changes from run to run.
#pragma once

#include <cstddef>
#include <sstream>
#include <string>
#include <vector>

#include "DebugLog.h"

/// The lines of the log in order, without empty lines, time stamps and places in the sources. An
/// entry that names a function and says nothing is an empty text.
inline std::vector<std::string> LogMessages(const DebugLog& log)
{
    std::istringstream stream(log.Text());
    std::vector<std::string> vecMessage;
    bool bHeadBefore = false;
    for (std::string strLine; std::getline(stream, strLine);) {
        const bool bHead = strLine.starts_with("--");
        const bool bPlace = strLine.starts_with("[File:");
        if ((bPlace && bHeadBefore) || !(strLine.empty() || bHead || bPlace))
            vecMessage.push_back(bPlace ? std::string() : strLine);
        bHeadBefore = bHead;
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
