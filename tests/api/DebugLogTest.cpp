// The trace that requests leave in the debug log. Each request runs in a child process, as a log
// once switched on stays on for the life of its process.
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <ostream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "ApiFixture.h"

namespace {

constexpr const char* LOG_VARIABLE = "KZLuviaZEKA.DebugOutput";

/// One entry of the log that names a function.
struct LogEntry
{
    std::string strFunction;
    std::string strMessage;

    bool operator==(const LogEntry&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const LogEntry& entry)
{
    return stream << "{" << entry.strFunction << "|" << entry.strMessage << "}";
}

std::vector<LogEntry> ParseLog(const std::string& strLog)
{
    static const std::regex head(R"(--\d{4}-\d\d-\d\d \d\d:\d\d:\d\d (.*)--)");
    std::vector<LogEntry> vecEntry;
    std::istringstream stream(strLog);
    std::string strLine;
    while (std::getline(stream, strLine)) {
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

/// The entries of the trace: arguments and results of a request.
std::vector<LogEntry> TraceOf(const std::string& strLog)
{
    std::vector<LogEntry> vecEntry = ParseLog(strLog);
    std::erase_if(vecEntry, [](const LogEntry& entry) {
        return entry.strFunction.find("引数") == std::string::npos &&
               entry.strFunction.find("返却値") == std::string::npos;
    });
    return vecEntry;
}

}  // namespace

class DebugLogTest : public ApiTest
{
protected:
    DebugLogTest() { std::filesystem::create_directory(m_strHome); }

    std::string LogPath() const { return m_strHome + "/" + Today("_ORB_KZEKAMOK_%Y%m%d.log"); }

    /// What the request writes into its log.
    std::string LogOf(const std::function<void()>& request, const char* szVariable = "1") const
    {
        RunInChild([&] {
            setenv("HOME", m_strHome.c_str(), 1);
            if (szVariable != nullptr)
                setenv(LOG_VARIABLE, szVariable, 1);
            request();
            return std::string();
        });
        return ReadBytes(LogPath());
    }

    std::vector<LogEntry> Trace(const std::function<void()>& request) const
    {
        return TraceOf(LogOf(request));
    }

    /// The traces of all arguments of a plain conversion.
    std::vector<LogEntry> PlainArgumentTrace() const
    {
        return {{"CsvConvMok引数szCsvPathName:", m_strCsv},
                {"CsvConvMok引数szMokPathName:", m_strMok},
                {"CsvConvMok引数szZeimushoCD:", "01234"},
                {"CsvConvMok引数szNozeishaId:", "1234567890123456"},
                {"CsvConvMok引数szKojinBango:", "123456789012"},
                {"CsvConvMok引数szHojinBango:", ""},
                {"CsvConvMok引数szNozeishaNm:", "山田太郎"},
                {"CsvConvMok引数szNozeishaAdr:", "見本県見本市一丁目１番地"},
                {"CsvConvMok引数szDaihyoNm:", "山田花子"},
                {"CsvConvMok引数szDairiId:", "6543210987654321"},
                {"CsvConvMok引数szDairiNm:", "鈴木一郎"},
                {"CsvConvMok引数szDairiAdr:", "見本県見本市二丁目２番地"},
                {"CsvConvMok引数szTetsuzuki:", "PGE5020"},
                {"CsvConvMok引数szSoftName:", "見本ソフト"}};
    }

    /// The traces of all arguments of an EL conversion under key 3.
    static std::vector<LogEntry> ElArgumentTrace()
    {
        return {{"ELCsvConvMok引数lCsvDistKey:", "3"},
                {"ELCsvConvMok引数szZeimushoCD:", "01234"},
                {"ELCsvConvMok引数szNozeishaId:", "1234567890123456"},
                {"ELCsvConvMok引数szKojinBango:", "123456789012"},
                {"ELCsvConvMok引数szHojinBango:", ""},
                {"ELCsvConvMok引数szNozeishaNm:", "山田太郎"},
                {"ELCsvConvMok引数szNozeishaAdr:", "見本県見本市一丁目１番地"},
                {"ELCsvConvMok引数szDaihyoNm:", "山田花子"},
                {"ELCsvConvMok引数szDairiId:", "6543210987654321"},
                {"ELCsvConvMok引数szDairiNm:", "鈴木一郎"},
                {"ELCsvConvMok引数szDairiAdr:", "見本県見本市二丁目２番地"},
                {"ELCsvConvMok引数szTetsuzuki:", "PGE5020"}};
    }

    const std::string m_strHome = File("home");
};

using Entries = std::vector<LogEntry>;

TEST_F(DebugLogTest, NoFileComesIntoBeingWithoutTheVariable)
{
    LogOf([this] { Check(m_strCsv); }, nullptr);
    EXPECT_TRUE(std::filesystem::is_empty(m_strHome));
}

TEST_F(DebugLogTest, EmptyVariableSwitchesTheLogOn)
{
    EXPECT_NE(LogOf([this] { Check(m_strCsv); }, ""), "");
}

TEST_F(DebugLogTest, VariableOfValueZeroSwitchesTheLogOn)
{
    EXPECT_NE(LogOf([this] { Check(m_strCsv); }, "0"), "");
}

TEST_F(DebugLogTest, LogStaysOnWhenTheVariableGoes)
{
    const Entries trace = Trace([this] {
        Check(m_strCsv);
        unsetenv(LOG_VARIABLE);
        Check(m_strFreeCsv);
    });
    ASSERT_EQ(trace.size(), 4U);
    EXPECT_EQ(trace[3], (LogEntry{"CsvCheck OK : 返却値_ProcID:", "PGE5080"}));
}

TEST_F(DebugLogTest, LogFileIsReadableByItsOwnerAlone)
{
    LogOf([this] { Check(m_strCsv); });
    struct stat attributes = {};
    ASSERT_EQ(stat(LogPath().c_str(), &attributes), 0);
    EXPECT_EQ(attributes.st_mode & 0777U, 0600U);
}

TEST_F(DebugLogTest, SecondProcessAppendsToTheFileOfTheDay)
{
    const std::string strFirst = LogOf([this] { Check(m_strCsv); });
    const std::string strBoth = LogOf([this] { Check(m_strFreeCsv); });
    EXPECT_TRUE(strBoth.starts_with(strFirst));
    EXPECT_EQ(TraceOf(strBoth).size(), 4U);
}

TEST_F(DebugLogTest, HomeThatIsMissingDoesNotDisturbTheRequest)
{
    std::filesystem::remove(m_strHome);
    const std::string strResult = RunInChild([this] {
        setenv("HOME", m_strHome.c_str(), 1);
        setenv(LOG_VARIABLE, "1", 1);
        return Check(m_strCsv).strResult;
    });
    EXPECT_EQ(strResult, "S_OK");
}

TEST_F(DebugLogTest, TraceEntryHasTimeLabelValuePlaceAndAnEmptyLine)
{
    const std::string strLog = LogOf([this] { Check(m_strCsv); });
    EXPECT_TRUE(std::regex_search(
        strLog,
        std::regex(R"(^--\d{4}-\d\d-\d\d \d\d:\d\d:\d\d CsvCheck引数szCsvPathName:--\n[^\n]*\n)"
                   R"(\[File:[^\n]* Line:\d+\]\n\n)")))
        << strLog;
}

TEST_F(DebugLogTest, PassedCheckTracesPathAndProcedure)
{
    EXPECT_EQ(Trace([this] { Check(m_strCsv); }),
              (Entries{{"CsvCheck引数szCsvPathName:", m_strCsv},
                       {"CsvCheck OK : 返却値_ProcID:", "PGE5020"}}));
}

TEST_F(DebugLogTest, FailedCheckTracesPathAndTable)
{
    EXPECT_EQ(Trace([] { Check("x.doc"); }),
              (Entries{{"CsvCheck引数szCsvPathName:", "x.doc"},
                       {"CsvCheck NG : 返却値_ErrorMsg:", "9999-00001-HE70015E"}}));
}

TEST_F(DebugLogTest, NullArgumentIsNotTraced)
{
    EXPECT_EQ(Trace([] { KZICsvConvMokEka().CsvCheck(nullptr); }),
              (Entries{{"CsvCheck NG : 返却値_ErrorMsg:", "9999-00001-HE70001E"}}));
}

TEST_F(DebugLogTest, EmptyArgumentIsTraced)
{
    EXPECT_EQ(Trace([] { Check(""); }),
              (Entries{{"CsvCheck引数szCsvPathName:", ""},
                       {"CsvCheck NG : 返却値_ErrorMsg:", "9999-00001-HE70001E"}}));
}

TEST_F(DebugLogTest, PassedConversionTracesFourteenArgumentsAndAnEmptyValue)
{
    m_arguments[HOJIN_BANGO] = "";
    Entries expected = PlainArgumentTrace();
    expected.push_back({"CsvConvMok OK : 返却値:S_OK", ""});
    EXPECT_EQ(Trace([this] { Convert(m_arguments); }), expected);
}

TEST_F(DebugLogTest, FailedConversionTracesFourteenArgumentsAndTable)
{
    m_arguments[HOJIN_BANGO] = "1";
    Entries expected = PlainArgumentTrace();
    expected[HOJIN_BANGO].strMessage = "1";
    expected.push_back(
        {"CsvConvMok NG : 返却値_ErrorMsg:", "9999-00005-HE70010E,9999-00006-HE70010E"});
    EXPECT_EQ(Trace([this] { Convert(m_arguments); }), expected);
}

TEST_F(DebugLogTest, PassedElCheckTracesPathKeyProcedureAndCount)
{
    EXPECT_EQ(Trace([this] { ElCheck(m_strCsv, 3); }),
              (Entries{{"ELCsvCheck引数szCsvPathName:", m_strCsv},
                       {"ELCsvCheck引数lCsvDistKey:", "3"},
                       {"ELCsvCheck OK : 返却値_ProcID:", "PGE5020"},
                       {"ELCsvCheck OK : 返却値_RecordCount:", "2"}}));
}

TEST_F(DebugLogTest, FailedElCheckTracesPathKeyAndTable)
{
    EXPECT_EQ(Trace([this] { ElCheck(m_strCsv, INT64_MIN); }),
              (Entries{{"ELCsvCheck引数szCsvPathName:", m_strCsv},
                       {"ELCsvCheck引数lCsvDistKey:", "-9223372036854775808"},
                       {"ELCsvCheck NG : 返却値_ErrorMsg:", "9999-00002-HE70009E"}}));
}

TEST_F(DebugLogTest, PassedElConversionTracesTwelveArgumentsAndAnEmptyValue)
{
    ASSERT_EQ(ElCheck(m_strCsv, 3).strResult, "S_OK");  // the child inherits the kept file
    m_arguments[HOJIN_BANGO] = "";
    Entries expected = ElArgumentTrace();
    expected.push_back({"ELCsvConvMok OK : 返却値:S_OK", ""});
    EXPECT_EQ(Trace([this] { ElConvert(3, m_arguments); }), expected);
}

TEST_F(DebugLogTest, FailedElConversionTracesTwelveArgumentsAndTable)
{
    m_arguments[HOJIN_BANGO] = "";
    Entries expected = ElArgumentTrace();
    expected.push_back({"ELCsvConvMok NG : 返却値_ErrorMsg:", "9999-00001-HE70013E"});
    EXPECT_EQ(Trace([this] { ElConvert(3, m_arguments); }), expected);
}

TEST_F(DebugLogTest, ElConversionOfNullArgumentsTracesTheKeyAlone)
{
    EXPECT_EQ(Trace([] { ElConvert(0, ConvertArguments()); }),
              (Entries{{"ELCsvConvMok引数lCsvDistKey:", "0"},
                       {"ELCsvConvMok NG : 返却値_ErrorMsg:",
                        "9999-00001-HE70009E,9999-00002-HE70001E,9999-00003-HE70001E,"
                        "9999-00006-HE70001E,9999-00007-HE70001E,9999-00012-HE70010E"}}));
}

TEST_F(DebugLogTest, PassedCsvWriteTracesItsPathButNotItsText)
{
    const std::string strTarget = File("written.csv");
    const std::string strLog = LogOf([&] { Write(strTarget.c_str(), "secret"); });
    const Entries trace = TraceOf(strLog);
    ASSERT_EQ(trace.size(), 2U) << strLog;
    EXPECT_EQ(trace[0], (LogEntry{"CsvWrite引数szCsvPath:", strTarget}));
    EXPECT_EQ(trace[1].strFunction, "CsvWrite OK : 返却値:S_OK");
    EXPECT_EQ(strLog.find("secret"), std::string::npos);
}

TEST_F(DebugLogTest, FailedCsvWriteTracesItsPathAndTable)
{
    EXPECT_EQ(Trace([] { Write("", "secret"); }),
              (Entries{{"CsvWrite引数szCsvPath:", ""},
                       {"CsvWrite NG : 返却値_ErrorMsg:", "0000-00000-HE70027E"}}));
}

TEST_F(DebugLogTest, CsvWriteOfNullArgumentsTracesTheTableAlone)
{
    EXPECT_EQ(Trace([] { Write(nullptr, nullptr); }),
              (Entries{{"CsvWrite NG : 返却値_ErrorMsg:", "0000-00000-HE70018E"}}));
}

TEST_F(DebugLogTest, TerminateTracesNothing)
{
    LogOf([] { Terminate(); });
    EXPECT_FALSE(Exists(LogPath()));
}

TEST_F(DebugLogTest, LongValueIsTracedWhole)
{
    const std::string strPath = std::string(100000, 'x') + ".doc";
    const Entries trace = Trace([&] { Check(strPath); });
    ASSERT_EQ(trace.size(), 2U);
    EXPECT_EQ(trace[0].strMessage.size(), strPath.size());
    EXPECT_EQ(trace[0].strMessage, strPath);
}

TEST_F(DebugLogTest, PercentSignsOfAValueAreTracedAsTheyStand)
{
    const Entries trace = Trace([] { Check("%s%n%d.doc"); });
    ASSERT_EQ(trace.size(), 2U);
    EXPECT_EQ(trace[0], (LogEntry{"CsvCheck引数szCsvPathName:", "%s%n%d.doc"}));
}

TEST_F(DebugLogTest, UnknownKeyIsLoggedWithItsMessageAndPosition)
{
    const std::string strLog = LogOf([this] { ElConvert(3, m_arguments); });
    EXPECT_NE(strLog.find("--\n指定された識別キーのCSVデータが存在しません。（HE70013E）\n[File:"),
              std::string::npos)
        << strLog;
    EXPECT_NE(strLog.find("Valid Message[HE70013E]  ファイルが存在しません。\n"
                          "record=9999 column=00001 value="),
              std::string::npos)
        << strLog;
}

TEST_F(DebugLogTest, RefusedCellIsLoggedReadableInUtf8)
{
    const std::string strCsv = MakeFile("bad.csv", CsvText({"002,番号,山,,"}));
    EXPECT_NE(LogOf([&] { Check(strCsv); })
                  .find("Valid Message[HE70004E]  半角数字以外の文字が含まれています。\n"
                        "record=0001 column=00002 value=番号\n\n"),
              std::string::npos);
}

TEST_F(DebugLogTest, FaultIsLoggedAsUnexpectedError)
{
    const std::string strCsv = MakeFile("bad.csv", "\xff");
    const std::string strLog = LogOf([&] { Check(strCsv); });
    EXPECT_NE(strLog.find("--\nCSVファイルリードエラーが発生しました。\n[File:"),
              std::string::npos);
    EXPECT_NE(strLog.find("--\n想定外エラーが発生しました。\n[File:"), std::string::npos);
}
