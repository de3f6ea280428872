// What the library writes to its log during a step.
#pragma once

#include <sstream>
#include <string>

#include "Environment.h"
#include "KZCDebugDump.h"
#include "TempFolder.h"

/// The whole text of a log that is on for the step alone.
template <class Step>
std::string LogOf(Step step)
{
    const TempFolder home;
    const Environment homeVariable("HOME", home.Path());
    const Environment variable("KZLuviaZEKA.DebugOutput", "1");
    KZCDebugDump::InitDebugDump();
    step();
    KZCDebugDump::Reset();
    std::string strLog;
    for (const std::string& strName : home.Names())
        strLog += home.Read(strName);
    return strLog;
}

/// The same without the lines of time and place and without empty lines: a line for each line of a
/// message, with its line feed.
template <class Step>
std::string MessagesOf(Step step)
{
    std::istringstream log(LogOf(step));
    std::string strMessages;
    for (std::string strLine; std::getline(log, strLine);)
        if (!strLine.empty() && !strLine.starts_with("--") && !strLine.starts_with("[File:"))
            strMessages += strLine + "\n";
    return strMessages;
}
