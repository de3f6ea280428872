// The debug log, switched on and caught.
#pragma once

#include <string>

#include "Environment.h"
#include "KZCDebugDump.h"
#include "TempFolder.h"

/// Has the library log into a folder of the test's own for as long as the object lives.
class DebugLog
{
public:
    DebugLog()
        : m_home("HOME", m_folder.Path()), m_switch("KZLuviaZEKA.DebugOutput", std::string("1"))
    {
        KZCDebugDump::InitDebugDump();
    }
    ~DebugLog() { KZCDebugDump::Reset(); }
    DebugLog(const DebugLog&) = delete;
    DebugLog& operator=(const DebugLog&) = delete;

    /// All that has been logged.
    std::string Text() const
    {
        std::string strText;
        for (const std::string& strName : m_folder.Names())
            strText += m_folder.Read(strName);
        return strText;
    }

    /// Whether a line of the log is exactly this.
    bool HasLine(const std::string& strLine) const
    {
        return ("\n" + Text()).find("\n" + strLine + "\n") != std::string::npos;
    }

private:
    TempFolder m_folder;
    Environment m_home;
    Environment m_switch;
};
