#include "form/FormDefinition.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "KZCDefinitionManager.h"
#include "KZCLoadResource.h"
#include "family/BundleFiles.h"
#include "family/FamilyFolder.h"
#include "family/RecordLimit.h"
#include "form/DetailTable.h"
#include "text/CText.h"

namespace host {
namespace {

constexpr const char* LABEL_SEPARATOR = " / ";
constexpr const char* ELLIPSIS = "…";
constexpr std::size_t LABELS_MAX_BYTES = 1000;
constexpr int TYPE_ID_MAX = 999;

long ReadNumber(const XmlElement& element, const char* szAttribute)
{
    return CText::ReadLong(element.Attribute(szAttribute).c_str());
}

/// 0 if there is none.
long ReadColumn(const XmlElement& element, const char* szAttribute)
{
    return std::clamp(ReadNumber(element, szAttribute), 0L, COLUMNS_MAX);
}

/// Joins the labels of a column. They are repeated at each error there: what goes beyond
/// LABELS_MAX_BYTES, which no real form reaches, becomes an ellipsis.
void AppendLabel(std::string& strLabels, const std::string& strLabel)
{
    if (strLabels.size() > LABELS_MAX_BYTES)
        return;
    if (strLabel.empty() || strLabels == strLabel ||
        strLabels.ends_with(LABEL_SEPARATOR + strLabel) ||
        strLabels.starts_with(strLabel + LABEL_SEPARATOR))
        return;
    if (!strLabels.empty())
        strLabels += LABEL_SEPARATOR;
    strLabels += strLabel;
    if (strLabels.size() <= LABELS_MAX_BYTES)
        return;
    std::size_t nEnd = LABELS_MAX_BYTES;
    while ((static_cast<unsigned char>(strLabels[nEnd]) & 0xc0) == 0x80)
        --nEnd;
    strLabels.replace(nEnd, std::string::npos, ELLIPSIS);
}

}  // namespace

CheckDefinition ReadCheck(const XmlElement& element, long lItemColumn)
{
    CheckDefinition check;
    check.strKeyword = element.Attribute("id");
    check.strValue = element.Attribute("value");
    check.strMin = element.Attribute("min");
    check.strMax = element.Attribute("max");
    check.strMessage = element.Attribute("message");
    check.strErrColumn = element.Attribute("errcolumn");
    check.strErrRow = element.Attribute("errrow");
    check.lColumn = ReadColumn(element, "column");
    if (check.lColumn == 0)
        check.lColumn = lItemColumn;
    check.lLine = element.lLine;
    for (const XmlElement& child : element.vecChild)
        if (child.strName == "outer")
            check.vecCondition.push_back(ReadCheck(child, 0));
    return check;
}

namespace {

ItemDefinition ReadItem(const XmlElement& element)
{
    ItemDefinition item;
    item.strType = element.Attribute("type");
    item.strId = element.Attribute("id");
    item.strParent = element.Attribute("parent");
    item.strLabel = element.Attribute("label");
    item.strGeneration = element.Attribute("generation");
    item.lColumn = ReadColumn(element, "column");
    item.lLine = element.lLine;
    for (const XmlElement& child : element.vecChild)
        if (child.strName == "valid")
            item.vecCheck.push_back(ReadCheck(child, item.lColumn));
    return item;
}

/// A group without a column checks from the column of its first child on.
void TakeColumnOfChild(std::vector<ItemDefinition>& vecItem)
{
    std::map<std::string, long, std::less<>> mapColumn;  // of the first child, by parent
    for (const ItemDefinition& item : vecItem)
        mapColumn.try_emplace(item.strParent, item.lColumn);
    for (ItemDefinition& item : vecItem) {
        if (item.lColumn > 0 || !item.IsGroup())
            continue;
        const auto child = mapColumn.find(item.strId);
        if (child == mapColumn.end())
            continue;
        for (CheckDefinition& check : item.vecCheck)
            if (check.lColumn <= 0)
                check.lColumn = child->second;
    }
}

ColumnLabels ReadLabels(const std::vector<ItemDefinition>& vecItem)
{
    ColumnLabels labels;
    for (const ItemDefinition& item : vecItem) {
        labels.AddItem(item.lColumn, item.strLabel);
        for (const CheckDefinition& check : item.vecCheck)
            if (check.lColumn != item.lColumn)
                labels.AddChecked(check.lColumn, item.strLabel, item.lColumn == 0);
    }
    return labels;
}

FormDefinition ReadForm(const XmlElement& element)
{
    FormDefinition form;
    form.strProcVR = element.Attribute("procVR");
    form.strReportId = element.Attribute("reportId");
    form.strReportVR = element.Attribute("reportVR");
    form.strLabel = element.Attribute("label");
    form.lColumnNum = ReadColumn(element, "columnNum");
    form.lStartRow = ReadNumber(element, "startRow");
    form.lEndRow = ReadNumber(element, "endRow");
    form.bLastRecord = ReadNumber(element, "lastRecord") != 0;
    form.lLine = element.lLine;
    for (const XmlElement& child : element.vecChild)
        if (child.strName == "item")
            form.vecItem.push_back(ReadItem(child));
    TakeColumnOfChild(form.vecItem);
    form.labels = ReadLabels(form.vecItem);
    return form;
}

std::string Find(const std::map<long, std::string>& mapLabel, long lColumn)
{
    const auto it = mapLabel.find(lColumn);
    return it != mapLabel.end() ? it->second : std::string();
}

std::string TypeIdText(int nTypeId)
{
    const std::string strDigits = std::to_string(nTypeId);
    return std::string(3 - strDigits.size(), '0') + strDigits;
}

CALL_TYPE CallType(Family eFamily)
{
    return eFamily == Family::Finance ? CALL_TYPE_FINANCE : CALL_TYPE_CROSSBORDER;
}

/// A definition file as the library looks for it, or the empty text.
std::string FindFile(const std::string& strBundle,
                     Family eFamily,
                     const std::string& strProcId,
                     const char* szEnd)
{
    return FamilyFolder::FindDefinitionBelow(strBundle, CallType(eFamily), strProcId, szEnd,
                                             "Definitions::Find");
}

}  // namespace

void ColumnLabels::AddItem(long lColumn, const std::string& strLabel)
{
    if (lColumn > 0)
        AppendLabel(m_mapItem[lColumn], strLabel);
}

void ColumnLabels::AddChecked(long lColumn, const std::string& strLabel, bool bOver)
{
    if (lColumn <= 0)
        return;
    AppendLabel(m_mapChecked[lColumn], strLabel);
    if (bOver)
        AppendLabel(m_mapOver[lColumn], strLabel);
}

std::string ColumnLabels::Find(long lColumn, long lColumnEnd) const
{
    if (lColumnEnd == SINGLE_COLUMN || lColumnEnd == lColumn)
        return FindColumn(lColumn);
    if (std::string strOver = host::Find(m_mapOver, lColumn); !strOver.empty())
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

const FormDefinition* ProcedureDefinition::FormAt(std::size_t nRecord,
                                                  std::size_t nRecordCount) const
{
    const auto nForm = FormOfRecord(vecForm, static_cast<std::int64_t>(nRecord),
                                    static_cast<std::int64_t>(nRecordCount));
    return nForm ? &vecForm[*nForm] : nullptr;
}

struct Definitions::Cache
{
    bool bBaseRead = false;
    bool bHasBase = false;
    std::vector<ProcedureDefinition> vecBase;
    std::map<std::string, std::size_t, std::less<>> mapBase;  ///< places in vecBase by type id
    std::map<std::pair<Family, std::string>, std::optional<ProcedureDefinition>> mapFamily;

    void ReadBase(const std::string& strBundle);
    const ProcedureDefinition* FindFamily(const std::string& strBundle,
                                          Family eFamily,
                                          const std::string& strTypeId);
};

void Definitions::Cache::ReadBase(const std::string& strBundle)
{
    if (std::exchange(bBaseRead, true) || strBundle.empty())
        return;
    const std::string strPath = strBundle + "/" + BundleFiles::BASE_DEFINITION;
    const XmlFile file = ReadXmlFile(strPath);
    bHasBase = file.root.has_value();
    if (!bHasBase)
        return;
    for (const XmlElement& element : file.root->vecChild) {
        const std::string& strTypeId = element.Attribute("id");
        // The first of two with one type id counts.
        if (element.strName != "report" || !mapBase.try_emplace(strTypeId, vecBase.size()).second)
            continue;
        vecBase.push_back({Family::Base,
                           strTypeId,
                           element.Attribute("procId"),
                           BASE_RECORDS_MAX,
                           strPath,
                           strPath,
                           {ReadForm(element)}});
    }
}

const ProcedureDefinition* Definitions::Cache::FindFamily(const std::string& strBundle,
                                                          Family eFamily,
                                                          const std::string& strTypeId)
{
    const auto [it, bNew] = mapFamily.try_emplace({eFamily, strTypeId});
    PROC_INFO info;
    if (bNew && !strBundle.empty() &&
        KZCDefinitionManager::getProcInfo(strTypeId, info, CallType(eFamily))) {
        ProcedureDefinition procedure = {
            eFamily,
            strTypeId,
            info.procId,
            info.lMaxRecord,
            FindFile(strBundle, eFamily, info.procId, FamilyFolder::VALIDATION_FILE),
            FindFile(strBundle, eFamily, info.procId, FamilyFolder::TEMPLATE_FILE),
            {}};
        if (const XmlFile file = ReadXmlFile(procedure.strPath); file.root)
            for (const XmlElement& element : file.root->vecChild)
                if (element.strName == "report")
                    procedure.vecForm.push_back(ReadForm(element));
        if (!procedure.vecForm.empty())
            it->second = std::move(procedure);
    }
    return it->second ? &*it->second : nullptr;
}

Definitions::Definitions() : Definitions(KZCLoadResource::getBundlePath()) {}

Definitions::Definitions(std::string strBundle)
    : m_strBundle(std::move(strBundle)), m_pCache(std::make_unique<Cache>())
{
}

Definitions::~Definitions() = default;

const ProcedureDefinition* Definitions::Find(const std::string& strTypeId) const
{
    return Find(FamilyOfTypeId(strTypeId), strTypeId);
}

const ProcedureDefinition* Definitions::Find(Family eFamily, const std::string& strTypeId) const
{
    if (eFamily != Family::Base)
        return m_pCache->FindFamily(m_strBundle, eFamily, strTypeId);
    m_pCache->ReadBase(m_strBundle);
    const auto it = m_pCache->mapBase.find(strTypeId);
    return it != m_pCache->mapBase.end() ? &m_pCache->vecBase[it->second] : nullptr;
}

std::vector<std::string> Definitions::TypeIds(Family eFamily) const
{
    std::vector<std::string> vecTypeId;
    if (eFamily == Family::Base) {
        m_pCache->ReadBase(m_strBundle);
        for (const ProcedureDefinition& procedure : m_pCache->vecBase)
            vecTypeId.push_back(procedure.strTypeId);
        return vecTypeId;
    }
    for (int nTypeId = 0; nTypeId <= TYPE_ID_MAX; ++nTypeId)
        if (FamilyOfTypeId(TypeIdText(nTypeId)) == eFamily)
            vecTypeId.push_back(TypeIdText(nTypeId));
    return vecTypeId;
}

bool Definitions::HasBase() const
{
    m_pCache->ReadBase(m_strBundle);
    return m_pCache->bHasBase;
}

}  // namespace host
