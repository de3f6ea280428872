#include "KZCDebugDump.h"

#include <cstdlib>

#include "KZCEkaCommon.h"
#include "KZCMacOSNative.h"
#include "text/CText.h"
#include "text/ShiftJis.h"

namespace {

constexpr const char* SWITCH_VARIABLE = "KZLuviaZEKA.DebugOutput";
constexpr const char* FILE_NAME_PATTERN = "'_ORB_KZEKAMOK_'yyyyMMdd'.log'";
/// Size of the buffers of the first and the last line of an entry; longer ones are cut.
constexpr std::size_t LINE_BUFFER_SIZE = 512;
constexpr int RECORD_WIDTH = 4;
constexpr int COLUMN_WIDTH = 5;

/// Both lines of a refused value up to the value itself.
std::string ValidHead(KZCEkaMessage_t eMessage, long lRecord, long lColumn)
{
    const EkaMsgRow& row = EkaMsgTable[eMessage];
    std::string strText =
        std::string("Valid Message[") + row.szCode + "]  " + row.szText + "\nrecord=";
    CText::AppendNumber(strText, static_cast<int>(lRecord), RECORD_WIDTH);
    strText += " column=";
    CText::AppendNumber(strText, static_cast<int>(lColumn), COLUMN_WIDTH);
    strText += " value=";
    return strText;
}

/// Runs a step of the log. Nothing depends on the log, so whatever goes wrong in it ends here.
template <class Step>
void Quietly(Step step)
{
    try {
        step();
    } catch (...) {
        return;
    }
}

}  // namespace

void KZCDebugDump::InitDebugDump()
{
    // In a set-user-id program the environment is its caller's, who must not have the program's
    // rights write where he wants.
    if (secure_getenv(SWITCH_VARIABLE) == nullptr)
        return;
    Quietly([] {
        m_bOutput = true;
        m_strOutputPath.clear();
        const std::string strHome = KZCMacOSNative::homeDirectory();
        // Without a home the file would be made wherever the process happens to stand.
        if (strHome.empty())
            return;
        const std::string strName = KZCEkaCommon::Now(FILE_NAME_PATTERN, nullptr);
        m_strOutputPath = KZCMacOSNative::appendFilePath(strHome.c_str(), strName.c_str());
    });
}

void KZCDebugDump::OutputLog(const char* szFile,
                             long lLine,
                             const char* szFunction,
                             const char* szMessage)
{
    if (!m_bOutput || szFile == nullptr || szFunction == nullptr)
        return;
    Quietly([&] {
        std::string strText = GetBaseMessage1(szFunction);
        if (szMessage != nullptr)
            strText.append(szMessage).append("\n");
        WriteMessage(strText + GetBaseMessage2(szFile, lLine) + "\n", true);
    });
}

void KZCDebugDump::Log(const char* szFunction,
                       const char* szMessage,
                       const char* szFile,
                       long lLine)
{
    OutputLog(szFile, lLine, szFunction, szMessage);
}

void KZCDebugDump::OutputMessage(const char* szMessage, long lTabs)
{
    if (!m_bOutput || szMessage == nullptr)
        return;
    Quietly([&] {
        std::string strText(lTabs > 0 ? static_cast<std::size_t>(lTabs) : 0, '\t');
        WriteMessage(strText.append(szMessage).append("\n"), true);
    });
}

void KZCDebugDump::OutputValid(
    KZCEkaMessage_t eMessage, long lRecord, long lColumn, const char* szValue, bool bUtf8)
{
    if (!m_bOutput)
        return;
    Quietly([&] {
        const std::string strValue = bUtf8 ? std::string(CText::OrEmpty(szValue))
                                           : ShiftJis::ToUtf8Anyway(CText::OrEmpty(szValue));
        WriteMessage(ValidHead(eMessage, lRecord, lColumn) + strValue + "\n\n", true);
    });
}

void KZCDebugDump::OutputValid(KZCEkaMessage_t eMessage, long lRecord, long lColumn, long lValue)
{
    if (!m_bOutput)
        return;
    Quietly([&] {
        const std::string strValue = std::to_string(static_cast<int>(lValue));
        WriteMessage(ValidHead(eMessage, lRecord, lColumn) + strValue + "\n\n", true);
    });
}

bool KZCDebugDump::WriteMessage(const std::string& strText, bool bUtf8)
{
    // The file is UTF-8 throughout. What can't be read in its encoding, such as the half of a
    // character at a cut, must not take the rest of the entry with it.
    return KZCMacOSNative::appendToLog(
        m_strOutputPath.c_str(), bUtf8 ? Utf8::Repair(strText) : ShiftJis::ToUtf8Anyway(strText));
}

std::string KZCDebugDump::GetBaseMessage1(const char* szFunction)
{
    const std::string strNow = KZCEkaCommon::Now("yyyy'-'MM'-'dd", "HH':'mm':'ss");
    return CText::CutToBuffer("--" + strNow + " " + szFunction + "--\n", LINE_BUFFER_SIZE);
}

std::string KZCDebugDump::GetBaseMessage2(const char* szFile, long lLine)
{
    return CText::CutToBuffer(
        std::string("[File:") + szFile + " Line:" + std::to_string(lLine) + "]\n",
        LINE_BUFFER_SIZE);
}

void KZCDebugDump::Reset()
{
    m_bOutput = false;
    m_strOutputPath.clear();
}
