#include "ApiFixture.h"

#include <fcntl.h>
#include <iconv.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <stdexcept>
#include <system_error>
#include <vector>

namespace {

constexpr const char* BUNDLE_VARIABLE = "KZEKAMOK_BUNDLE";
constexpr std::size_t SHOWN_LENGTH = 400;  // bytes of a field that a failure message shows

/// A file whose name goes before it is opened for the second time, and how often it has been.
std::string g_strVanishing;
int g_nOpenings = 0;

const char* Pointer(const std::optional<std::string>& strValue)
{
    return strValue ? strValue->c_str() : nullptr;
}

void Show(std::ostream& stream, const char* szName, const std::string& strText)
{
    stream << " " << szName << "=\"" << strText.substr(0, SHOWN_LENGTH) << "\"";
    if (strText.size() > SHOWN_LENGTH)
        stream << " (" << strText.size() << " bytes)";
}

std::string ReadToEnd(int nDescriptor)
{
    std::string strText;
    std::array<char, 65536> buffer;
    for (;;) {
        const ssize_t nRead = read(nDescriptor, buffer.data(), buffer.size());
        if (nRead < 0 && errno == EINTR)
            continue;
        if (nRead <= 0)
            return strText;
        strText.append(buffer.data(), static_cast<std::size_t>(nRead));
    }
}

[[noreturn]] void AnswerAndExit(int nDescriptor, const std::string& strAnswer)
{
    std::size_t nDone = 0;
    while (nDone < strAnswer.size()) {
        const ssize_t nWritten =
            write(nDescriptor, strAnswer.data() + nDone, strAnswer.size() - nDone);
        if (nWritten <= 0)
            _exit(2);
        nDone += static_cast<std::size_t>(nWritten);
    }
    _exit(0);
}

}  // namespace

// What the library opens goes through here, as a program's own function stands before that of the C
// library.
extern "C" [[gnu::visibility("default")]] int open(const char* szPath, int nFlags, ...)
{
    mode_t nMode = 0;
    if ((nFlags & O_CREAT) != 0) {
        va_list arguments;
        va_start(arguments, nFlags);
        nMode = va_arg(arguments, mode_t);
        va_end(arguments);
    }
    if (!g_strVanishing.empty() && g_strVanishing == szPath && ++g_nOpenings == 2)
        unlink(szPath);
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, szPath, nFlags, nMode));
}

std::string ToShiftJis(const std::string& strUtf8)
{
    const iconv_t converter = iconv_open("CP932", "UTF-8");
    if (converter == reinterpret_cast<iconv_t>(-1))
        throw std::runtime_error("no converter to CP932");
    std::string strIn = strUtf8;
    std::string strOut(strUtf8.size() + 1, '\0');
    char* pIn = strIn.data();
    char* pOut = strOut.data();
    std::size_t nIn = strIn.size();
    std::size_t nOut = strOut.size();
    const std::size_t nResult = iconv(converter, &pIn, &nIn, &pOut, &nOut);
    iconv_close(converter);
    if (nResult != 0)
        throw std::runtime_error("not in CP932: " + strUtf8);
    strOut.resize(strOut.size() - nOut);
    return strOut;
}

std::string CsvText(std::initializer_list<const char*> listLine)
{
    std::string strText;
    for (const char* szLine : listLine)
        strText += ToShiftJis(szLine) + "\r\n";
    return strText;
}

std::string Repeat(const std::string& strText, std::size_t nCount)
{
    std::string strResult;
    strResult.reserve(strText.size() * nCount);
    for (std::size_t n = 0; n < nCount; ++n)
        strResult += strText;
    return strResult;
}

void WriteBytes(const std::string& strPath, const std::string& strBytes)
{
    std::ofstream stream(strPath, std::ios::binary | std::ios::trunc);
    stream << strBytes;
    stream.close();
    if (!stream)
        throw std::runtime_error("can't write " + strPath);
}

std::string ReadBytes(const std::string& strPath)
{
    std::ifstream stream(strPath, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

bool Exists(const std::string& strPath)
{
    struct stat attributes = {};
    return lstat(strPath.c_str(), &attributes) == 0;
}

std::string Today(const char* szFormat)
{
    const std::time_t now = std::time(nullptr);
    std::tm local = {};
    localtime_r(&now, &local);
    std::array<char, 64> buffer;
    return {buffer.data(), std::strftime(buffer.data(), buffer.size(), szFormat, &local)};
}

TempFolder::TempFolder() : m_strPath(std::filesystem::temp_directory_path() / "kzekamok-XXXXXX")
{
    if (mkdtemp(m_strPath.data()) == nullptr || chmod(m_strPath.c_str(), 0755) != 0)
        throw std::system_error(errno, std::generic_category(), m_strPath);
}

TempFolder::~TempFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_strPath, ignored);
}

std::string GoodDefinition()
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<definition>
  <report id="002" columnNum="5" procId="PGE5020" procVR="1.1" reportId="GEZ902" reportVR="2.0">
    <item id="GEZ90200" parent="GEZ902" type="TAG"/>
    <item id="GEZ90210" parent="GEZ90200" type="Normal" column="2">
      <valid id="exist"/>
      <valid id="number"/>
    </item>
    <item id="GEZ90220" parent="GEZ90200" type="Normal" column="3">
      <valid id="exist"/>
      <valid id="length" max="20"/>
    </item>
    <item id="GEZ90230" parent="GEZ90200" type="Normal" column="4">
      <valid id="range" min="1" max="99"><outer id="exist" column="4"/></valid>
    </item>
    <item id="GEZ90240" parent="GEZ90200" type="Kubun" column="5">
      <valid id="contain" value="1 2"><outer id="exist" column="5"/></valid>
    </item>
  </report>
  <report id="008" columnNum="5" procId="PGE5080" procVR="1.0" reportId="GEZ908" reportVR="1.0">
    <item id="GEZ90800" parent="GEZ908" type="TAG"/>
    <item id="GEZ90810" parent="GEZ90800" type="Normal" column="2"/>
    <item id="GEZ90820" parent="GEZ90800" type="Normal" column="3"/>
    <item id="GEZ90830" parent="GEZ90800" type="Normal" column="4"/>
    <item id="GEZ90840" parent="GEZ90800" type="Normal" column="5"/>
  </report>
</definition>
)";
}

std::string DefinitionWith(const std::string& strItems)
{
    return R"(<definition><report id="002" columnNum="5" procId="PGE5020" procVR="1.1")"
           R"( reportId="GEZ902" reportVR="2.0">)" +
           strItems + "</report></definition>";
}

std::string GoodOffices()
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<TaxOffices>
  <TaxOffice OfficeType="5" OfficeCode="01234" OfficeName="見本東"/>
  <TaxOffice OfficeType="5" OfficeCode="05678" OfficeName="見本西"/>
  <TaxOffice OfficeType="1" OfficeCode="09999" OfficeName="見本局"/>
</TaxOffices>
)";
}

void WriteBundle(const std::string& strFolder,
                 const std::string& strDefinition,
                 const std::string& strOffices)
{
    std::filesystem::create_directories(strFolder);
    WriteBytes(strFolder + "/KZEkaDefine.xml", strDefinition);
    WriteBytes(strFolder + "/TaxOffices.xml", strOffices);
}

ConvertArguments GoodArguments(const std::string& strCsvPath, const std::string& strMokPath)
{
    ConvertArguments arguments;
    arguments[CSV_PATH] = strCsvPath;
    arguments[MOK_PATH] = strMokPath;
    arguments[ZEIMUSHO_CD] = "01234";
    arguments[NOZEISHA_ID] = "1234567890123456";
    arguments[KOJIN_BANGO] = "123456789012";
    arguments[NOZEISHA_NM] = "山田太郎";
    arguments[NOZEISHA_ADR] = "見本県見本市一丁目１番地";
    arguments[DAIHYO_NM] = "山田花子";
    arguments[DAIRI_ID] = "6543210987654321";
    arguments[DAIRI_NM] = "鈴木一郎";
    arguments[DAIRI_ADR] = "見本県見本市二丁目２番地";
    arguments[TETSUZUKI] = "PGE5020";
    arguments[SOFT_NAME] = "見本ソフト";
    return arguments;
}

std::ostream& operator<<(std::ostream& stream, const Outcome& outcome)
{
    Show(stream, "Result", outcome.strResult);
    Show(stream, "DetailErrorInfo", outcome.strDetailErrorInfo);
    Show(stream, "RecordCount", outcome.strRecordCount);
    Show(stream, "ProcId", outcome.strProcId);
    Show(stream, "MokData", outcome.strMokData);
    return stream;
}

Outcome OutcomeOf(const std::shared_ptr<KZIConvertResultEka>& pResult)
{
    if (!pResult)
        return {"null", "null", "null", "null", "null"};
    return {pResult->GetResult(), pResult->GetDetailErrorInfo(), pResult->GetRecordCount(),
            pResult->GetProcId(), pResult->GetMokData()};
}

Outcome Failed(const std::string& strDetailErrorInfo)
{
    return {"E_FAIL", strDetailErrorInfo, "", "", ""};
}

Outcome CheckPassed(const std::string& strProcId)
{
    return {"S_OK", "", "", strProcId, ""};
}

Outcome ElCheckPassed(const std::string& strProcId, const std::string& strRecordCount)
{
    return {"S_OK", "", strRecordCount, strProcId, ""};
}

Outcome Done()
{
    return {"S_OK", "", "", "", ""};
}

Outcome ElConvertPassed(const std::string& strMokData)
{
    return {"S_OK", "", "", "", strMokData};
}

Outcome Check(const std::string& strCsvPath)
{
    return OutcomeOf(KZICsvConvMokEka().CsvCheck(strCsvPath.c_str()));
}

Outcome ElCheck(const std::string& strCsvPath, std::int64_t lKey)
{
    return OutcomeOf(KZICsvConvMokEka().ELCsvCheck(strCsvPath.c_str(), lKey));
}

Outcome Convert(const ConvertArguments& arguments)
{
    const auto pValue = [&arguments](Argument eArgument) { return Pointer(arguments[eArgument]); };
    return OutcomeOf(KZICsvConvMokEka().CsvConvMok(
        pValue(CSV_PATH), pValue(MOK_PATH), pValue(ZEIMUSHO_CD), pValue(NOZEISHA_ID),
        pValue(KOJIN_BANGO), pValue(HOJIN_BANGO), pValue(NOZEISHA_NM), pValue(NOZEISHA_ADR),
        pValue(DAIHYO_NM), pValue(DAIRI_ID), pValue(DAIRI_NM), pValue(DAIRI_ADR), pValue(TETSUZUKI),
        pValue(SOFT_NAME)));
}

Outcome ElConvert(std::int64_t lKey, const ConvertArguments& arguments)
{
    const auto pValue = [&arguments](Argument eArgument) { return Pointer(arguments[eArgument]); };
    return OutcomeOf(KZICsvConvMokEka().ELCsvConvMok(
        lKey, pValue(ZEIMUSHO_CD), pValue(NOZEISHA_ID), pValue(KOJIN_BANGO), pValue(HOJIN_BANGO),
        pValue(NOZEISHA_NM), pValue(NOZEISHA_ADR), pValue(DAIHYO_NM), pValue(DAIRI_ID),
        pValue(DAIRI_NM), pValue(DAIRI_ADR), pValue(TETSUZUKI)));
}

Outcome Write(const char* szPath, const char* szData)
{
    return OutcomeOf(KZICsvConvMokEka().CsvWrite(szPath, szData));
}

void Terminate()
{
    KZICsvConvMokEka().Terminate();
}

std::string RunInChild(const std::function<std::string()>& work)
{
    std::array<int, 2> pipeEnds;
    if (pipe(pipeEnds.data()) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    const pid_t nChild = fork();
    if (nChild < 0)
        throw std::system_error(errno, std::generic_category(), "fork");
    if (nChild == 0) {
        close(pipeEnds[0]);
        AnswerAndExit(pipeEnds[1], work());
    }
    close(pipeEnds[1]);
    std::string strAnswer = ReadToEnd(pipeEnds[0]);
    close(pipeEnds[0]);
    int nStatus = 0;
    waitpid(nChild, &nStatus, 0);
    EXPECT_TRUE(WIFEXITED(nStatus) && WEXITSTATUS(nStatus) == 0) << "child ended with " << nStatus;
    return strAnswer;
}

Outcome OutcomeInChild(const std::function<Outcome()>& work)
{
    const std::string strAnswer = RunInChild([&work] {
        const Outcome outcome = work();
        std::string strFields;
        for (const std::string* pField :
             {&outcome.strResult, &outcome.strDetailErrorInfo, &outcome.strRecordCount,
              &outcome.strProcId, &outcome.strMokData})
            strFields += *pField + '\0';
        return strFields;
    });
    std::vector<std::string> vecField;
    for (std::size_t nStart = 0; nStart < strAnswer.size();) {
        const std::size_t nEnd = strAnswer.find('\0', nStart);
        vecField.push_back(strAnswer.substr(nStart, nEnd - nStart));
        nStart = nEnd == std::string::npos ? nEnd : nEnd + 1;
    }
    vecField.resize(5);
    return {vecField[0], vecField[1], vecField[2], vecField[3], vecField[4]};
}

void RunWithVanishingFile(const std::string& strPath, const std::function<void()>& request)
{
    g_strVanishing = strPath;
    g_nOpenings = 0;
    request();
    g_strVanishing.clear();
    EXPECT_EQ(g_nOpenings, 2) << "openings of " << strPath;
    EXPECT_FALSE(Exists(strPath));
}

ApiTest::ApiTest()
    : m_strBundle(m_folder.File("KZEkaMok.bundle")),
      m_strCsv(m_folder.File("input.csv")),
      m_strFreeCsv(m_folder.File("free.csv")),
      m_strMok(m_folder.File("output.mok")),
      m_arguments(GoodArguments(m_strCsv, m_strMok))
{
    WriteBundle(m_strBundle, GoodDefinition(), GoodOffices());
    WriteBytes(m_strCsv, CsvText({"002,12345,佐藤次郎,50,1", "002,67890,高橋,,"}));
    WriteBytes(m_strFreeCsv, CsvText({"008,a,b,c,d"}));
    UseBundle(m_strBundle);
    Terminate();
}

ApiTest::~ApiTest()
{
    Terminate();
    unsetenv(BUNDLE_VARIABLE);
}

std::string ApiTest::MakeFile(const std::string& strName, const std::string& strBytes) const
{
    WriteBytes(File(strName), strBytes);
    return File(strName);
}

void ApiTest::UseBundle(const std::string& strFolder)
{
    setenv(BUNDLE_VARIABLE, strFolder.c_str(), 1);
}
