// A definition file as plain rows: which check watches which columns of which form.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "family/GenerationRules.h"
#include "form/FormDefinition.h"
#include "validator/ItemCatalogue.h"
#include "validator/KZCEkaValidItem.h"

namespace host {

using GenerationRules::JUNIOR;
using GenerationRules::SENIOR;

/// A check with the library's item for it. Its column counts from 1; 0 is no column.
struct CheckRule : CheckDefinition
{
    const CatalogueItem* pRow = nullptr;      ///< its keyword's; never null
    std::vector<CheckRule> vecConditionRule;  ///< of its conditions that have a column
    std::size_t nItem = 0;                    ///< place of its node in FormRules::vecItem

    /// Columns of its own record that the check reads, its conditions left aside.
    std::set<long> setReads;
    /// Columns of its own record of which an error is recorded; empty for a check that records
    /// nothing, or at another record.
    std::set<long> setReported;

    /// The library's item without its conditions, which records nothing where its class allows it.
    std::shared_ptr<KZCEkaValidItem> pItem;

    /// "column 12, rangedate(value="" min="..." max="...")"
    std::string Description() const;
};

/// One item element.
struct ItemRule
{
    std::string strType;
    std::string strId;
    std::string strParent;
    std::string strGeneration;
    long lColumn = 0;
    bool bJunior = false;  ///< hangs in the tree of junior records
    bool bSenior = false;
    std::size_t nParent = 0;  ///< place of its (first) parent; its own for a top node

    bool FitsGeneration(const std::string& strOther) const
    {
        return strOther == JUNIOR ? bJunior : bSenior;
    }
    /// A group whose own checks wait for those of its children.
    bool IsGroup() const { return strType == "Date" || strType == "Zeimusho"; }
};

/// One report element.
struct FormRules
{
    std::string strTypeId;
    std::string strProcId;
    std::string strReportId;
    long lColumnCount = 0;
    long lStartRow = 0;           ///< first record that the form checks, from 1; 0: the first
    long lEndRow = 0;             ///< last one; 0 and -1: the file's last
    bool bLastRecord = false;     ///< checks the file's last record alone
    bool bTypeIdFirst = true;     ///< its records begin with the type id
    bool bHasGenerations = true;  ///< its records are of a generation
    bool bQuoted = false;         ///< cells may stand in quotes and hold commas and line ends
    FormRange Range() const { return {lStartRow, lEndRow, bLastRecord}; }
    std::vector<ItemRule> vecItem;
    std::vector<CheckRule> vecCheck;  ///< in document order

    /// The generations of which records of the type id can be; the empty text where there are none.
    std::vector<std::string> Generations() const;
    /// The first column (from 1) whose cells aren't fixed.
    long FirstFreeColumn() const { return bTypeIdFirst ? 2 : 1; }
};

/// Numbers or texts that are parted by single characters.
std::vector<std::string> SplitTokens(const std::string& strList, char cDelimiter = ' ');
/// The number at the head of a text, or 0.
long NumberOf(const std::string& strText);

/// The rules of a form of a procedure. Throws std::runtime_error for an unknown keyword.
FormRules MakeFormRules(const ProcedureDefinition& procedure, const FormDefinition& form);

}  // namespace host
