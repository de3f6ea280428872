#include "FormRules.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace host {

namespace {

constexpr long DATE_COLUMNS = 4;
constexpr long YEAR_COLUMNS = 2;

constexpr std::array<std::string_view, 9> DATE_KEYWORDS = {
    "compdate",  "existdate",   "existdate_2", "onward",         "rangebasedate",
    "rangedate", "rangedate_3", "rangedate_4", "rangebasedate_2"};

void AddSpan(std::set<long>& setColumn, long lFirst, long lCount)
{
    if (lFirst < 1 || lFirst > COLUMNS_MAX)
        return;
    for (long lColumn = lFirst; lColumn < lFirst + lCount; ++lColumn)
        setColumn.insert(lColumn);
}

void AddList(std::set<long>& setColumn, const std::string& strList)
{
    for (const std::string& strToken : SplitTokens(strList))
        AddSpan(setColumn, NumberOf(strToken), 1);
}

/// Columns in which exist_2 looks, by the kind of the record.
long DateGroupColumns(const std::string& strTypeId)
{
    return strTypeId >= "003" && strTypeId <= "005" ? DATE_COLUMNS : YEAR_COLUMNS;
}

/// Columns that the check reads, its conditions left aside.
void AddReads(const CheckRule& rule, const std::string& strTypeId, std::set<long>& setColumn)
{
    const std::string& strKeyword = rule.strKeyword;
    if (strKeyword == "existdateYYYYMMDD" || strKeyword == "anyexist" ||
        strKeyword == "anycontain") {
        AddList(setColumn, rule.strValue);
        return;
    }
    if (strKeyword == "age") {
        const auto vecToken = SplitTokens(rule.strValue);
        if (vecToken.size() > 1) {
            AddSpan(setColumn, NumberOf(vecToken[0]), DATE_COLUMNS);
            AddSpan(setColumn, NumberOf(vecToken[1]), YEAR_COLUMNS);
        }
        return;
    }
    if (strKeyword == "nonerr")
        return;
    if (IsDateKeyword(strKeyword) || strKeyword == "rangedate_2") {
        AddSpan(setColumn, rule.lColumn, DATE_COLUMNS);
        if (strKeyword == "rangedate_2")
            AddSpan(setColumn, NumberOf(rule.strMax), YEAR_COLUMNS);
        if (strKeyword == "rangedate_3")
            AddSpan(setColumn, NumberOf(rule.strValue), YEAR_COLUMNS);
        if (strKeyword == "rangebasedate_2" ||
            (strKeyword == "rangebasedate" && rule.strValue.empty())) {
            for (const std::string& strBound : {rule.strMin, rule.strMax})
                if (ReferenceOf(strBound).first == 0)
                    AddSpan(setColumn, NumberOf(strBound), DATE_COLUMNS);
        }
        return;
    }
    if (strKeyword == "equalyear" || strKeyword == "containyear" || strKeyword == "taxofficenm") {
        AddSpan(setColumn, rule.lColumn, YEAR_COLUMNS);
        if (strKeyword == "equalyear")
            AddSpan(setColumn, NumberOf(rule.strValue), YEAR_COLUMNS);
        return;
    }
    if (strKeyword == "exist_2") {
        AddSpan(setColumn, rule.lColumn, DateGroupColumns(strTypeId));
        return;
    }
    AddSpan(setColumn, rule.lColumn, 1);
    if (strKeyword == "containcolumn" || strKeyword == "exceptcolumn")
        AddSpan(setColumn, NumberOf(rule.strValue), 1);
}

void SetReported(CheckRule& rule, const std::string& strTypeId)
{
    const std::string& strKeyword = rule.strKeyword;
    if (strKeyword == "nonerr" || !rule.strErrRow.empty())
        return;
    const bool bMovable = strKeyword == "containyear" || strKeyword == "rangebasedate" ||
                          strKeyword == "rangebasedate_2";
    if (bMovable && !rule.strErrColumn.empty()) {
        AddSpan(rule.setReported, NumberOf(rule.strErrColumn), DATE_COLUMNS);
    } else if (strKeyword == "rangedate_2") {
        AddSpan(rule.setReported, NumberOf(rule.strMax), YEAR_COLUMNS);
    } else if (strKeyword == "age") {
        const auto vecToken = SplitTokens(rule.strValue);
        const bool bDays = vecToken.size() > 5 && vecToken[5] == "days";
        AddSpan(rule.setReported, rule.lColumn, bDays ? DATE_COLUMNS : 1);
    } else if (IsDateKeyword(strKeyword)) {
        AddSpan(rule.setReported, rule.lColumn, DATE_COLUMNS);
    } else if (strKeyword == "equalyear" || strKeyword == "containyear") {
        AddSpan(rule.setReported, rule.lColumn, YEAR_COLUMNS);
    } else if (strKeyword == "containcolumn" || strKeyword == "exceptcolumn" ||
               strKeyword == "anyexist" || strKeyword == "anycontain") {
        AddSpan(rule.setReported, rule.lColumn, 1);
    } else {
        AddReads(rule, strTypeId, rule.setReported);
    }
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
                    rule.vecCondition.push_back(MakeRule(condition));
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
        rule.strKeyword = check.strKeyword;
        rule.strValue = check.strValue;
        rule.strMin = check.strMin;
        rule.strMax = check.strMax;
        rule.strErrColumn = check.strErrColumn;
        rule.strErrRow = check.strErrRow;
        rule.lColumn = std::max(0L, check.lColumn);
        return rule;
    }

    void Resolve(CheckRule& rule)
    {
        Finish(rule);
        for (CheckRule& condition : rule.vecCondition)
            Finish(condition);
        SetReported(rule, m_form.strTypeId);
    }

    void Finish(CheckRule& rule)
    {
        AddReads(rule, m_form.strTypeId, rule.setReads);
        rule.pItem = KZCEkaValidItem::CreateItem(rule.lColumn - 1, rule.strKeyword.c_str(),
                                                 rule.strValue.c_str(), rule.strMin.c_str(),
                                                 rule.strMax.c_str(), MSG_NONE);
        if (!rule.pItem)
            throw std::runtime_error("form " + m_form.strTypeId + ": unknown keyword " +
                                     rule.strKeyword);
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
    constexpr std::array<std::string_view, 4> TWO_GENERATIONS = {"001", "002", "007", "008"};
    if (std::ranges::find(TWO_GENERATIONS, strTypeId) != TWO_GENERATIONS.end())
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

std::pair<long, long> ReferenceOf(const std::string& strText)
{
    const auto vecPiece = SplitTokens(strText, '_');
    if (vecPiece.size() != 2)
        return {0, 0};
    return {NumberOf(vecPiece[0]), NumberOf(vecPiece[1])};
}

bool IsDateKeyword(std::string_view strKeyword)
{
    return std::ranges::find(DATE_KEYWORDS, strKeyword) != DATE_KEYWORDS.end();
}

FormRules MakeFormRules(const ProcedureDefinition& procedure, const FormDefinition& form)
{
    return FormReader(procedure, form).Take();
}

}  // namespace host
