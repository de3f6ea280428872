// What the definition files say about the procedures, for display: ids, columns, labels, checks.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "family/FormRange.h"
#include "form/Family.h"
#include "form/XmlTree.h"

namespace host {

/// Of a form; what a definition says beyond that is a mistake that must not cost all memory.
inline constexpr long COLUMNS_MAX = 10'000;

/// A `valid` or an `outer` element.
struct CheckDefinition
{
    std::string strKeyword;
    std::string strValue;
    std::string strMin;
    std::string strMax;
    std::string strMessage;    ///< code in place of the keyword's own; empty for none
    std::string strErrColumn;  ///< as it stands; empty for none
    std::string strErrRow;     ///< as it stands; empty for none
    long lColumn = 0;  ///< from 1: its own, else its item's, else the first of the item's group; 0
                       ///< for none
    std::vector<CheckDefinition> vecCondition;  ///< its `outer` elements
    long lLine = 0;
};

/// \param lItemColumn  Column of its item, from 1; 0 for none.
CheckDefinition ReadCheck(const XmlElement& element, long lItemColumn);

/// An `item` element.
struct ItemDefinition
{
    std::string strType;
    std::string strId;
    std::string strParent;
    std::string strLabel;
    std::string strGeneration;
    long lColumn = 0;  ///< from 1; 0 for none
    std::vector<CheckDefinition> vecCheck;
    long lLine = 0;

    /// Its own checks wait for those of its children, whose first column is theirs.
    bool IsGroup() const { return strType == "Date" || strType == "Zeimusho"; }
};

/// Labels of a form's columns, counted from 1.
class ColumnLabels
{
public:
    /// Notes the label of an item that has this column itself. Several items may share a column.
    void AddItem(long lColumn, const std::string& strLabel);
    /// Notes the label of an item that checks this column without having it.
    /// \param bOver  The item has no column, such as a date over its parts: the label is that of
    /// the columns that begin here.
    void AddChecked(long lColumn, const std::string& strLabel, bool bOver);

    /// Empty if nothing is known. \param lColumnEnd  SINGLE_COLUMN, or the last column of a range:
    /// then the item over the range comes first, after that the labels of its two ends.
    std::string Find(long lColumn, long lColumnEnd) const;

private:
    std::string FindColumn(long lColumn) const;

    std::map<long, std::string> m_mapItem;
    std::map<long, std::string> m_mapChecked;
    std::map<long, std::string> m_mapOver;
};

/// A `report` element.
struct FormDefinition
{
    std::string strProcVR;
    std::string strReportId;
    std::string strReportVR;
    std::string strLabel;
    long lColumnNum = 0;
    long lStartRow = 0;        ///< first record of the form, from 1; 0: the first
    long lEndRow = 0;          ///< last one; 0 and -1: the file's last
    bool bLastRecord = false;  ///< the form is the file's last record alone
    std::vector<ItemDefinition> vecItem;
    ColumnLabels labels;
    long lLine = 0;

    FormRange Range() const { return {lStartRow, lEndRow, bLastRecord}; }
};

/// A procedure: what a file of one type id is checked by.
struct ProcedureDefinition
{
    Family eFamily = Family::Base;
    std::string strTypeId;
    std::string strProcId;
    long lMaxRecord = 0;          ///< records that a file may have
    std::string strPath;          ///< definition file of the checks
    std::string strTemplatePath;  ///< definition file of the document; the same in the base family
    std::vector<FormDefinition> vecForm;  ///< in the order of the file; never empty

    /// The form of a record (from 1) of a file of so many records, or null if none is for it.
    const FormDefinition* FormAt(std::size_t nRecord, std::size_t nRecordCount) const;
};

/// The procedures of the resource folder. A file is read when one of its procedures is first asked
/// for.
class Definitions
{
public:
    /// The resource folder that the library finds.
    Definitions();
    /// \param strBundle  A resource folder; empty for none.
    explicit Definitions(std::string strBundle);
    ~Definitions();
    Definitions(const Definitions&) = delete;
    Definitions& operator=(const Definitions&) = delete;

    /// \return Null for an unknown type id, and for one whose file is missing or can't be parsed.
    const ProcedureDefinition* Find(const std::string& strTypeId) const;
    /// The same among the procedures of one family.
    const ProcedureDefinition* Find(Family eFamily, const std::string& strTypeId) const;
    /// The known type ids of a family in their order, whether their files can be read or not; of
    /// the base family those of its one file.
    std::vector<std::string> TypeIds(Family eFamily) const;
    /// KZEkaDefine.xml could be read.
    bool HasBase() const;
    const std::string& Bundle() const { return m_strBundle; }

private:
    struct Cache;

    std::string m_strBundle;
    std::unique_ptr<Cache> m_pCache;
};

}  // namespace host
