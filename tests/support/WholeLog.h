// The whole debug log, entry by entry, without what changes from run to run.
#pragma once

#include <regex>
#include <sstream>
#include <string>

#include "DebugLog.h"

/// Every line of the log in order, without empty lines and places in the sources. The head of an
/// entry is its function in brackets, so that an entry without a text shows too.
inline std::string WholeLog(const DebugLog& log)
{
    static const std::regex head(R"(--\d{4}-\d\d-\d\d \d\d:\d\d:\d\d (.*)--)");
    std::istringstream stream(log.Text());
    std::string strAll;
    for (std::string strLine; std::getline(stream, strLine);) {
        if (strLine.empty() || strLine.starts_with("[File:"))
            continue;
        std::smatch match;
        strAll += std::regex_match(strLine, match, head) ? "[" + match[1].str() + "]" : strLine;
        strAll += "\n";
    }
    return strAll;
}
