#include "FormDefinition.h"

#include <algorithm>

#include "CText.h"
#include "DetailTable.h"
#include "KZCEkaXDOM.h"
#include "KZCLoadResource.h"

namespace host {
namespace {

constexpr const char* DEFINITION_FILE = "KZEkaDefine.xml";
constexpr const char* LABEL_SEPARATOR = " / ";

/// Calls the function with the cursor on each child element of that name, and brings it back.
template <class Function>
void ForEachChild(KZCEkaXDOM& dom, const char* szName, Function function)
{
    if (dom.MoveFirstChild() != 0)
        return;
    do {
        if (dom.GetNodeName() == szName)
            function();
    } while (dom.MoveNextSibling() == 0);
    dom.MoveParent();
}

long ReadColumn(const KZCEkaXDOM& dom, const char* szAttribute)
{
    return CText::ReadLong(dom.GetAttribute(szAttribute).c_str());
}

void AppendLabel(std::string& strLabels, const std::string& strLabel)
{
    if (strLabel.empty() || strLabels == strLabel ||
        strLabels.ends_with(LABEL_SEPARATOR + strLabel) ||
        strLabels.starts_with(strLabel + LABEL_SEPARATOR))
        return;
    if (!strLabels.empty())
        strLabels += LABEL_SEPARATOR;
    strLabels += strLabel;
}

void ReadItem(KZCEkaXDOM& dom, ColumnLabels& labels)
{
    const std::string strLabel = dom.GetAttribute("label");
    const long lItemColumn = ReadColumn(dom, "column");
    labels.AddItem(lItemColumn, strLabel);
    ForEachChild(dom, "valid", [&] {
        const long lColumn = ReadColumn(dom, "column");
        if (lColumn != lItemColumn)
            labels.AddChecked(lColumn, strLabel);
    });
}

FormDefinition ReadForm(KZCEkaXDOM& dom)
{
    FormDefinition form;
    form.strTypeId = dom.GetAttribute("id");
    form.strProcId = dom.GetAttribute("procId");
    form.lColumnNum = ReadColumn(dom, "columnNum");
    ForEachChild(dom, "item", [&] { ReadItem(dom, form.labels); });
    return form;
}

std::string Find(const std::map<long, std::string>& mapLabel, long lColumn)
{
    const auto it = mapLabel.find(lColumn);
    return it != mapLabel.end() ? it->second : std::string();
}

}  // namespace

void ColumnLabels::AddItem(long lColumn, const std::string& strLabel)
{
    if (lColumn > 0)
        AppendLabel(m_mapItem[lColumn], strLabel);
}

void ColumnLabels::AddChecked(long lColumn, const std::string& strLabel)
{
    if (lColumn > 0)
        AppendLabel(m_mapChecked[lColumn], strLabel);
}

std::string ColumnLabels::Find(long lColumn, long lColumnEnd) const
{
    if (lColumnEnd == SINGLE_COLUMN || lColumnEnd == lColumn)
        return FindColumn(lColumn);
    if (std::string strOver = host::Find(m_mapChecked, lColumn); !strOver.empty())
        return strOver;
    const std::string strFirst = FindColumn(lColumn);
    const std::string strLast = FindColumn(lColumnEnd);
    if (strFirst.empty() || strLast.empty() || strFirst == strLast)
        return strFirst.empty() ? strLast : strFirst;
    return strFirst + "～" + strLast;
}

std::string ColumnLabels::FindColumn(long lColumn) const
{
    const std::string strItem = host::Find(m_mapItem, lColumn);
    return !strItem.empty() ? strItem : host::Find(m_mapChecked, lColumn);
}

std::optional<FormDefinitions> FormDefinitions::Read()
{
    return Read(KZCLoadResource::getPathName(DEFINITION_FILE));
}

std::optional<FormDefinitions> FormDefinitions::Read(const std::string& strPath)
{
    KZCEkaXDOM dom;
    if (strPath.empty() || !dom.Initialize() || !dom.Parse(strPath.c_str()) || dom.MoveRoot() != 0)
        return std::nullopt;
    FormDefinitions definitions;
    ForEachChild(dom, "report", [&] { definitions.m_vecForm.push_back(ReadForm(dom)); });
    return definitions;
}

const FormDefinition* FormDefinitions::Find(const std::string& strTypeId) const
{
    const auto it = std::ranges::find(m_vecForm, strTypeId, &FormDefinition::strTypeId);
    return it != m_vecForm.end() ? &*it : nullptr;
}

std::string FormDefinitions::TypeIds() const
{
    std::string strIds;
    for (const FormDefinition& form : m_vecForm) {
        if (Find(form.strTypeId) != &form)
            continue;
        if (!strIds.empty())
            strIds += ", ";
        strIds += form.strTypeId;
    }
    return strIds;
}

}  // namespace host
