#include "generate/FormRules.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "rules/CheckShape.h"

namespace host {

namespace {

void AddSpans(std::set<long>& setColumn, const std::vector<CellSpan>& vecSpan)
{
    for (const CellSpan& span : vecSpan)
        if (span.lRecord == 0 && 1 <= span.lColumn && span.lColumn <= COLUMNS_MAX)
            for (long lColumn = span.lColumn; lColumn <= span.Last(); ++lColumn)
                setColumn.insert(lColumn);
}

/// Turns the elements of a form into its rules.
class FormReader
{
public:
    FormReader(const ProcedureDefinition& procedure, const FormDefinition& definition)
    {
        m_form.strTypeId = procedure.strTypeId;
        m_form.strProcId = procedure.strProcId;
        m_form.strReportId = definition.strReportId;
        m_form.lColumnCount = definition.lColumnNum;
        m_form.lStartRow = definition.lStartRow;
        m_form.lEndRow = definition.lEndRow;
        m_form.bLastRecord = definition.bLastRecord;
        for (const ItemDefinition& item : definition.vecItem)
            AddItem(item);
        for (CheckRule& rule : m_form.vecCheck)
            Resolve(rule);
    }

    FormRules Take() { return std::move(m_form); }

private:
    void AddItem(const ItemDefinition& definition)
    {
        ItemRule item;
        item.strType = definition.strType;
        item.strId = definition.strId;
        item.strParent = definition.strParent;
        item.strGeneration = definition.strGeneration;
        item.lColumn = definition.lColumn;
        item.nParent = m_form.vecItem.size();
        FindParent(item);
        m_form.vecItem.push_back(item);
        for (const CheckDefinition& check : definition.vecCheck) {
            CheckRule rule = MakeRule(check);
            rule.nItem = m_form.vecItem.size() - 1;
            for (const CheckDefinition& condition : check.vecCondition)
                if (condition.lColumn > 0)
                    rule.vecConditionRule.push_back(MakeRule(condition));
            m_form.vecCheck.push_back(std::move(rule));
        }
    }

    void FindParent(ItemRule& item) const
    {
        const bool bTop = item.strParent == m_form.strReportId || item.strParent.empty();
        bool bJunior = bTop;
        bool bSenior = bTop;
        for (std::size_t n = m_form.vecItem.size(); n-- > 0;) {
            const ItemRule& other = m_form.vecItem[n];
            if (other.strId != item.strParent)
                continue;
            item.nParent = n;
            bJunior = bJunior || other.bJunior;
            bSenior = bSenior || other.bSenior;
        }
        item.bJunior = bJunior && (item.strGeneration.empty() || item.strGeneration == JUNIOR);
        item.bSenior = bSenior && (item.strGeneration.empty() || item.strGeneration == SENIOR);
    }

    static CheckRule MakeRule(const CheckDefinition& check)
    {
        CheckRule rule;
        static_cast<CheckDefinition&>(rule) = check;
        rule.lColumn = std::max(0L, check.lColumn);
        return rule;
    }

    void Resolve(CheckRule& rule)
    {
        Finish(rule);
        for (CheckRule& condition : rule.vecConditionRule)
            Finish(condition);
        if (!HasErrorRecord(*rule.pRow, rule))
            AddSpans(rule.setReported, CellsReported(*rule.pRow, rule, m_form.strTypeId));
    }

    void Finish(CheckRule& rule)
    {
        rule.pRow = FindCatalogueItem(rule.strKeyword);
        rule.pItem = KZCEkaValidItem::CreateItem(rule.lColumn - 1, rule.strKeyword.c_str(),
                                                 rule.strValue.c_str(), rule.strMin.c_str(),
                                                 rule.strMax.c_str(), MSG_NONE);
        if (rule.pRow == nullptr || !rule.pItem)
            throw std::runtime_error("form " + m_form.strTypeId + ": unknown keyword " +
                                     rule.strKeyword);
        AddSpans(rule.setReads, CellsRead(*rule.pRow, rule, m_form.strTypeId));
        rule.pItem->SetErrOutput(false);
    }

    FormRules m_form;
};

}  // namespace

std::string CheckRule::Description() const
{
    std::ostringstream stream;
    stream << "column " << lColumn << ", " << strKeyword << "(value=\"" << strValue << "\" min=\""
           << strMin << "\" max=\"" << strMax << "\")";
    return stream.str();
}

std::vector<std::string> FormRules::Generations() const
{
    if (!bHasGenerations)
        return {""};
    const GenerationRules::Rule* pRule = GenerationRules::Find(strTypeId);
    if (pRule != nullptr && pRule->HasBoth())
        return {SENIOR, JUNIOR};
    return {SENIOR};
}

std::vector<std::string> SplitTokens(const std::string& strList, char cDelimiter)
{
    std::vector<std::string> vecToken;
    std::istringstream stream(strList);
    for (std::string strToken; std::getline(stream, strToken, cDelimiter);)
        if (!strToken.empty())
            vecToken.push_back(strToken);
    return vecToken;
}

long NumberOf(const std::string& strText)
{
    return std::strtol(strText.c_str(), nullptr, 10);
}

FormRules MakeFormRules(const ProcedureDefinition& procedure, const FormDefinition& form)
{
    return FormReader(procedure, form).Take();
}

}  // namespace host
