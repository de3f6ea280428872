// What the tests of the exported class share: folders, files, a small resource folder, requests.
// Nothing here knows the library's insides.
#pragma once

#include <KZEkaMok/KZEkaMok.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>

// --- texts and files ---

/// Throws std::runtime_error if a character has no place in code page 932.
std::string ToShiftJis(const std::string& strUtf8);

/// The lines (UTF-8) as Shift_JIS, each closed by CR LF.
std::string CsvText(std::initializer_list<const char*> listLine);

/// nCount copies of the text.
std::string Repeat(const std::string& strText, std::size_t nCount);

void WriteBytes(const std::string& strPath, const std::string& strBytes);
/// The empty text if the file can't be opened.
std::string ReadBytes(const std::string& strPath);
/// Something stands at the path; a symbolic link counts by itself.
bool Exists(const std::string& strPath);

/// Today in local time.
std::string Today(const char* szFormat = "%Y-%m-%d");

/// A folder below the system's temporary folder, readable by everybody, removed with all it holds.
class TempFolder
{
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& Path() const { return m_strPath; }
    std::string File(const std::string& strName) const { return m_strPath + "/" + strName; }

private:
    std::string m_strPath;
};

// --- definitions ---

/// Two forms of five columns. "002" (PGE5020): a number, a name of up to 20 bytes, an amount from 1
/// to 99, a kubun of 1 or 2, the last two optional. "008" (PGE5080): four columns without checks.
std::string GoodDefinition();
/// A definition file of one form "002" (PGE5020, five columns) around the given item elements.
std::string DefinitionWith(const std::string& strItems);
/// Offices "01234" and "05678" of type 5, "09999" of type 1.
std::string GoodOffices();
/// Makes the folder and its two files.
void WriteBundle(const std::string& strFolder,
                 const std::string& strDefinition,
                 const std::string& strOffices);

// --- requests ---

/// Places in ConvertArguments. Errors of the plain path report the place plus 1, errors of the EL
/// path the place itself.
enum Argument : std::size_t
{
    CSV_PATH,
    MOK_PATH,
    ZEIMUSHO_CD,
    NOZEISHA_ID,
    KOJIN_BANGO,
    HOJIN_BANGO,
    NOZEISHA_NM,
    NOZEISHA_ADR,
    DAIHYO_NM,
    DAIRI_ID,
    DAIRI_NM,
    DAIRI_ADR,
    TETSUZUKI,
    SOFT_NAME,
    ARGUMENT_COUNT,
};

/// The texts of a plain conversion in order; no value passes a null pointer. The EL conversion
/// takes those from ZEIMUSHO_CD to TETSUZUKI.
using ConvertArguments = std::array<std::optional<std::string>, ARGUMENT_COUNT>;

/// Every field filled but szHojinBango; the procedure is that of form "002".
ConvertArguments GoodArguments(const std::string& strCsvPath, const std::string& strMokPath);

/// What came back, by value.
struct Outcome
{
    std::string strResult;
    std::string strDetailErrorInfo;
    std::string strRecordCount;
    std::string strProcId;
    std::string strMokData;

    bool operator==(const Outcome&) const = default;
};
/// Long fields are shown by their beginning and length.
std::ostream& operator<<(std::ostream& stream, const Outcome& outcome);

/// A null result gives five texts "null".
Outcome OutcomeOf(const std::shared_ptr<KZIConvertResultEka>& pResult);
Outcome Failed(const std::string& strDetailErrorInfo);
Outcome CheckPassed(const std::string& strProcId);
Outcome ElCheckPassed(const std::string& strProcId, const std::string& strRecordCount);
/// A plain conversion or CsvWrite.
Outcome Done();
Outcome ElConvertPassed(const std::string& strMokData);

/// Each request goes through an object of its own, as nothing of a request lives in the object.
Outcome Check(const std::string& strCsvPath);
Outcome ElCheck(const std::string& strCsvPath, std::int64_t lKey);
Outcome Convert(const ConvertArguments& arguments);
Outcome ElConvert(std::int64_t lKey, const ConvertArguments& arguments);
Outcome Write(const char* szPath, const char* szData);
void Terminate();

// --- processes ---

/// Runs the work in a child process and hands its answer over. What the work does to its process
/// (user, limits, environment, the library's state) ends there.
std::string RunInChild(const std::function<std::string()>& work);
Outcome OutcomeInChild(const std::function<Outcome()>& work);

/// Runs the request with a file whose name goes before it is opened for the second time; fails the
/// test if that doesn't happen.
void RunWithVanishingFile(const std::string& strPath, const std::function<void()>& request);

// --- fixture ---

/// A folder, a good resource folder that the library is told to use, and one good file of each
/// form. The library starts and ends each test without state.
class ApiTest : public testing::Test
{
protected:
    ApiTest();
    ~ApiTest() override;

    /// A file of the test's folder with these bytes; its path.
    std::string MakeFile(const std::string& strName, const std::string& strBytes) const;
    std::string File(const std::string& strName) const { return m_folder.File(strName); }
    /// Lets the library use this folder from the next request on.
    static void UseBundle(const std::string& strFolder);

    TempFolder m_folder;
    std::string m_strBundle;   ///< the good resource folder
    std::string m_strCsv;      ///< form "002", two records
    std::string m_strFreeCsv;  ///< form "008", one record
    std::string m_strMok;      ///< where conversions write; nothing stands there at first
    ConvertArguments m_arguments;
};
