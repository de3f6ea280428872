// What the tests of the exported class share about the Finance and CrossBorder families: small
// definitions and the requests of each family. Nothing here knows the library's insides.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "ApiFixture.h"

enum class Family
{
    BASE,
    FINANCE,
    CROSSBORDER,
};

/// Two forms of five columns, checked as those of the base family's good definition are: the first
/// holds a number, a name of up to 20 bytes, an amount from 1 to 99 and a kubun of 1 or 2, the last
/// two optional; the second has no checks.
struct FamilyForms
{
    Family eFamily;
    const char* szName;    ///< "Finance"
    const char* szFolder;  ///< of the definition files, in the resource folder; null: none
    const char* szTypeId;
    const char* szProcId;
    const char* szReportId;
    const char* szFreeTypeId;
    const char* szFreeProcId;
    const char* szFreeReportId;
    std::int64_t lLastKey;  ///< keys begin at 1
    /// Columns of errors of szNozeishaNm and szTetsuzuki on the EL path; one more on the plain
    /// path.
    long lNameColumn;
    long lProcedureColumn;

    /// A record of the first form, without a line end.
    std::string Record(const std::string& strCells) const
    {
        return std::string(szTypeId) + "," + strCells;
    }
    /// A record of the second form whose column 2 holds the cell, without a line end.
    std::string FreeRecord(const std::string& strCell) const
    {
        return std::string(szFreeTypeId) + "," + strCell + ",b,c,d";
    }
};
std::ostream& operator<<(std::ostream& stream, const FamilyForms& forms);

extern const FamilyForms BASE_FORMS;
extern const FamilyForms FINANCE_FORMS;
extern const FamilyForms CROSSBORDER_FORMS;

/// What a report element holds. \param strAttributes  Rows and the like.
std::string ReportXml(const std::string& strProcId,
                      const std::string& strReportId,
                      const std::string& strItems,
                      const std::string& strAttributes = "");
/// An item element of a column, directly below the report, with its checks.
std::string ItemXml(const std::string& strReportId, long lColumn, const std::string& strChecks);
/// A definition file around report elements.
std::string DefinitionXml(const std::string& strReports);

/// Adds a validation and a template file to a resource folder.
void WriteProcedure(const std::string& strBundle,
                    const FamilyForms& forms,
                    const std::string& strProcId,
                    const std::string& strValidation,
                    const std::string& strTemplate);
std::string ValidationPath(const std::string& strBundle,
                           const FamilyForms& forms,
                           const std::string& strProcId);
std::string TemplatePath(const std::string& strBundle,
                         const FamilyForms& forms,
                         const std::string& strProcId);
/// Adds the forms of both families to a resource folder.
void WriteFamilies(const std::string& strBundle);

/// The values of a conversion of any family; no value passes a null pointer.
struct FilingArguments
{
    std::optional<std::string> csvPath;
    std::optional<std::string> mokPath;
    std::optional<std::string> zeimushoCD = "01234";
    std::optional<std::string> nozeishaId = "1234567890123456";
    std::optional<std::string> kojinBango = {};
    std::optional<std::string> hojinBango = {};
    std::optional<std::string> nozeishaNm = "山田太郎";
    std::optional<std::string> nozeishaAdr = "見本県見本市一丁目１番地";
    std::optional<std::string> daihyoNm = {};
    std::optional<std::string> dairiId = {};
    std::optional<std::string> dairiNm = {};
    std::optional<std::string> dairiAdr = {};
    std::optional<std::string> tetsuzuki;
    std::optional<std::string> teishutsuEra = "5";
    std::optional<std::string> teishutsuYear = "6";
    std::optional<std::string> teishutsuMonth = "7";
    std::optional<std::string> teishutsuDay = "8";
    std::optional<std::string> softName = "見本ソフト";
    std::optional<std::string> zip1 = "123";
    std::optional<std::string> zip2 = "4567";
};

/// Each request goes through an object of its own, as nothing of a request lives in the object.
Outcome Check(Family eFamily, const std::string& strCsvPath);
Outcome ElCheck(Family eFamily, const std::string& strCsvPath, std::int64_t lKey);
Outcome Convert(Family eFamily, const FilingArguments& arguments);
Outcome ElConvert(Family eFamily, std::int64_t lKey, const FilingArguments& arguments);

/// The base family's folder with both other families in it.
class FamilyTest : public ApiTest
{
protected:
    FamilyTest() { WriteFamilies(m_strBundle); }

    /// Arguments that fit a file of the first or, if it is wanted, the second form.
    FilingArguments Arguments(const FamilyForms& forms,
                              const std::string& strCsvPath,
                              bool bFree = false) const;
    /// A good file of the first form, of one record.
    std::string GoodCsv(const FamilyForms& forms) const;
};
