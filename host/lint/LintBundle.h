// A resource folder as lint looks at it: the files as the library finds them, the elements as it
// reads them.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "KZCDefinitionManager.h"
#include "family/SpreadProcedure.h"
#include "form/Family.h"
#include "form/FormDefinition.h"
#include "form/XmlTree.h"
#include "lint/LintReport.h"
#include "validator/ItemCatalogue.h"

namespace host {

/// A `valid` or an `outer` element.
struct LintCheck
{
    const XmlElement* pElement = nullptr;
    CheckDefinition definition;
    const CatalogueItem* pKeyword = nullptr;  ///< null for an unknown keyword
    long lColumn = 0;                         ///< from 1; its own or its item's; 0 for none
    bool bOuter = false;                      ///< a condition
    bool bDropped = false;                    ///< a condition without a column
    std::vector<LintCheck> vecOuter;
};

/// An `item` element.
struct LintItem
{
    const XmlElement* pElement = nullptr;
    std::string strType;
    std::string strId;
    std::string strParent;
    std::string strGeneration;
    long lColumn = 0;  ///< from 1; 0 for none
    long lStartRow = 0;
    long lEndRow = 0;
    long lLastRecord = 0;
    std::vector<LintCheck> vecCheck;
    std::vector<std::size_t> vecChild;  ///< places in the form's items, in the order of attachment
    bool bPlaced = false;               ///< it hangs below the report
    bool bTop = false;                  ///< it hangs directly below the report

    bool HasRange() const { return lStartRow != 0 && lEndRow != 0; }
    bool IsGroup() const { return strType == "Date" || strType == "Zeimusho"; }
    LintPlace At(const std::string& strFile) const { return {strFile, pElement->lLine}; }
};

/// A `report` element.
struct LintForm
{
    const XmlElement* pElement = nullptr;
    std::string strTypeId;  ///< base family: its id; otherwise that of the procedure
    std::string strReportId;
    long lColumnNum = 0;
    long lStartRow = 0;
    long lEndRow = 0;
    long lStepRow = 0;
    long lLastRecord = 0;
    std::vector<LintItem> vecItem;
    std::vector<std::size_t> vecTop;  ///< items directly below the report, in order
    bool bTooDeep = false;            ///< the tree has more levels or ways than the library takes

    FormRange Range() const { return {lStartRow, lEndRow, lLastRecord != 0}; }
    LintPlace At(const std::string& strFile) const { return {strFile, pElement->lLine}; }
};

/// What a definition file is read for.
enum class LintRole
{
    Both,  ///< base family
    Checks,
    Document,
};

struct LintFile
{
    Family eFamily = Family::Base;
    LintRole eRole = LintRole::Both;
    std::string strTypeId;  ///< of the procedure; empty in the base family
    PROC_INFO info;         ///< its row of the catalogue; empty in the base family
    std::string strName;    ///< below the resource folder
    XmlFile xml;
    std::vector<LintForm> vecForm;

    bool HasChecks() const { return eRole != LintRole::Document; }
    bool HasDocument() const { return eRole != LintRole::Checks; }
    /// Several records make a report, with a head and a trailer.
    bool IsMulti() const { return info.procId == SpreadProcedure::PROC_ID; }
    /// Records that a CSV file may have.
    long MaxRecord() const;
};

/// A procedure of the Finance or CrossBorder family.
struct LintProcedure
{
    const LintFile* pChecks = nullptr;    ///< null if the file isn't there
    const LintFile* pDocument = nullptr;  ///< the same
};

struct LintBundle
{
    std::string strPath;
    std::vector<std::unique_ptr<LintFile>> vecFile;  ///< that could be read
    std::vector<LintProcedure> vecProcedure;
    XmlFile offices;
};

/// Reads the folder, and reports files that are missing, ambiguous, never read or no XML.
/// \param vecTypeId  Only these type ids count; empty for all.
LintBundle ReadLintBundle(const std::string& strPath,
                          const std::vector<std::string>& vecTypeId,
                          LintReport& report);

/// Hangs the items of a form below their parents as the library does, and reports what can't be
/// hung.
void PlaceItems(const LintFile& file, LintForm& form, LintReport& report);

/// The number of an attribute as the library reads it, but within a thousand million.
long ReadNumber(const XmlElement& element, const char* szAttribute);

/// The columns of a record (both from 1) in a file of so many records; 0 if no form is for it.
long ColumnsOfRecord(const LintFile& checks, long lRecord, long lCount);
/// The form by which a record is checked, or null.
const LintForm* FormOfRecord(const LintFile& checks, long lRecord, long lCount);

/// A name of the list that differs from this one by few letters, or the empty text.
std::string Resembling(const std::string& strName, const std::vector<std::string>& vecName);

}  // namespace host
