// The debug log: one UTF-8 text file, off unless the environment asks for it.
#pragma once

#include <string>

#include "EkaMsgTable.h"

/// Each entry is on the disk when its call returns. Nothing here throws or reports failure.
class KZCDebugDump
{
public:
    /// Switches the log on if KZLuviaZEKA.DebugOutput is in the environment (its value isn't read;
    /// set-user-id programs ignore it) and takes today's file in the user's home folder. Nothing is
    /// written without such a folder. Never switches it off.
    static void InitDebugDump();

    static bool IsOn() { return m_bOutput; }

    /// An entry of time, function, message (if not null) and place.
    static void OutputLog(const char* szFile,
                          long lLine,
                          const char* szFunction,
                          const char* szMessage);

    /// The same with the caller's own place.
    static void Log(const char* szFunction,
                    const char* szMessage = nullptr,
                    const char* szFile = __builtin_FILE(),
                    long lLine = __builtin_LINE());

    /// The message alone, behind lTabs tab characters.
    static void OutputMessage(const char* szMessage, long lTabs);

    /// A refused value with its message and position. \param bUtf8  Encoding of szValue.
    static void OutputValid(
        KZCEkaMessage_t eMessage, long lRecord, long lColumn, const char* szValue, bool bUtf8);
    static void OutputValid(KZCEkaMessage_t eMessage, long lRecord, long lColumn, long lValue);

    /// Appends the text to the log file, U+FFFD for what can't be decoded.
    /// \return true if the file could be opened or made.
    static bool WriteMessage(const std::string& strText, bool bUtf8);

    static std::string GetBaseMessage1(const char* szFunction);
    static std::string GetBaseMessage2(const char* szFile, long lLine);

    /// Back to the state at load. For tests.
    static void Reset();

private:
    static inline bool m_bOutput = false;
    static inline std::string m_strOutputPath;
};
