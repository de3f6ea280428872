// What the definition file says about a form, for display: ids, column count, column labels.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

class KZCEkaXDOM;

namespace host {

/// Labels of a form's columns, counted from 1.
class ColumnLabels
{
public:
    /// Notes the label of an item that has this column itself. Several items may share a column.
    void AddItem(long lColumn, const std::string& strLabel);
    /// Notes the label of an item that checks this column without having it, such as a date item
    /// over its parts.
    void AddChecked(long lColumn, const std::string& strLabel);

    /// Empty if nothing is known. \param lColumnEnd  SINGLE_COLUMN, or the last column of a range:
    /// then the item over the range comes first, after that the labels of its two ends.
    std::string Find(long lColumn, long lColumnEnd) const;

private:
    std::string FindColumn(long lColumn) const;

    std::map<long, std::string> m_mapItem;
    std::map<long, std::string> m_mapChecked;
};

struct FormDefinition
{
    std::string strTypeId;
    std::string strProcId;
    long lColumnNum = 0;
    ColumnLabels labels;
};

/// The forms of a definition file in its order; the first of two with the same type id counts.
class FormDefinitions
{
public:
    /// Reads KZEkaDefine.xml from where the library finds it.
    /// \return Nothing if the file is missing or can't be parsed.
    static std::optional<FormDefinitions> Read();
    /// \param strPath  A definition file.
    static std::optional<FormDefinitions> Read(const std::string& strPath);

    const FormDefinition* Find(const std::string& strTypeId) const;
    /// Each type id once, joined by ", ".
    std::string TypeIds() const;

private:
    std::vector<FormDefinition> m_vecForm;
};

}  // namespace host
