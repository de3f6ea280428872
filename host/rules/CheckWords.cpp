#include "rules/CheckWords.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/Language.h"
#include "rules/CheckShape.h"
#include "rules/WordKinds.h"

namespace host {
namespace {

constexpr Text NOT_GIVEN = {"(not given)", "（指定なし）"};

/// How many columns an item is said to look at from its own.
long OwnColumns(const CatalogueItem& item)
{
    switch (item.shape.eCells) {
        case OwnCells::None:
        case OwnCells::Cell:
        case OwnCells::GroupOfKind:
            break;
        case OwnCells::Year:
        case OwnCells::OfficeName:
            return YEAR_CELLS;
        case OwnCells::Date:
            return DATE_CELLS;
    }
    return 1;
}

/// Fills the templates of a check item with the parameters of a check.
class Template
{
public:
    Template(const CatalogueItem& item, const CheckDefinition& check, const FormDefinition& form)
        : m_item(item), m_context{check, form, OwnColumns(item)}
    {
    }

    std::string Fill(const ItemWords& words)
    {
        return FillText(Say({words.szEnglish, words.szJapanese}));
    }

private:
    std::string FillText(std::string_view strTemplate)
    {
        std::string strText;
        while (!strTemplate.empty()) {
            const std::size_t nMark = strTemplate.find_first_of("{[");
            strText += strTemplate.substr(0, nMark);
            if (nMark == std::string_view::npos)
                break;
            strTemplate.remove_prefix(nMark);
            const bool bChoice = strTemplate.front() == '[';
            const std::size_t nEnd = strTemplate.find(bChoice ? ']' : '}');
            const std::string_view strInner = strTemplate.substr(1, nEnd - 1);
            strText += bChoice ? Choose(strInner) : FillPlace(strInner);
            strTemplate.remove_prefix(std::min(nEnd, strTemplate.size() - 1) + 1);
        }
        return strText;
    }

    /// The first alternative that can be used.
    std::string Choose(std::string_view strAlternatives)
    {
        while (true) {
            const std::size_t nEnd = strAlternatives.find('|');
            m_bUsable = true;
            std::string strText = FillText(strAlternatives.substr(0, nEnd));
            if (m_bUsable)
                return strText;
            if (nEnd == std::string_view::npos)
                return {};
            strAlternatives.remove_prefix(nEnd + 1);
        }
    }

    std::string FillPlace(std::string_view strPlace)
    {
        const std::size_t nName = strPlace.find_first_of(":=");
        const std::string strParameter = Parameter(strPlace.substr(0, nName));
        if (nName == std::string_view::npos)
            return Note(strParameter.empty() ? std::nullopt : std::optional(strParameter),
                        strParameter);
        const std::string_view strRest = strPlace.substr(nName + 1);
        if (strPlace[nName] == '=')
            return Note(strParameter == strRest ? std::optional<std::string>("") : std::nullopt,
                        "");
        return Note(WriteKind(strRest, strParameter, m_context), strParameter);
    }

    /// The words, or what is written in the definition in place of words.
    std::string Note(const std::optional<std::string>& words, const std::string& strParameter)
    {
        if (words)
            return *words;
        m_bUsable = false;
        return strParameter.empty() ? Say(NOT_GIVEN) : strParameter;
    }

    /// Empty for an attribute that the item doesn't read.
    std::string Parameter(std::string_view strName) const
    {
        const CheckDefinition& check = m_context.check;
        if (strName == "column")
            return std::to_string(check.lColumn);
        for (const Attribute eAttribute : ATTRIBUTES)
            if (strName == AttributeName(eAttribute) && ShapeOf(m_item, eAttribute).IsRead())
                return AttributeText(check, eAttribute);
        return {};
    }

    const CatalogueItem& m_item;
    const WordContext m_context;
    bool m_bUsable = true;  ///< every placeholder of the current alternative
};

/// The check without its conditions.
std::string RuleWords(const CheckDefinition& check, const FormDefinition& form)
{
    const CatalogueItem* pItem = FindCatalogueItem(check.strKeyword);
    const std::string strRule =
        pItem != nullptr ? Template(*pItem, check, form).Fill(pItem->rule) : std::string();
    return !strRule.empty() ? strRule : check.strKeyword;
}

std::string ConditionWords(const CheckDefinition& check, const FormDefinition& form)
{
    const CatalogueItem* pItem = FindCatalogueItem(check.strKeyword);
    if (pItem != nullptr && *pItem->condition.szEnglish != '\0')
        if (std::string strCondition = Template(*pItem, check, form).Fill(pItem->condition);
            !strCondition.empty())
            return strCondition;
    const long lColumns = pItem != nullptr ? OwnColumns(*pItem) : 1;
    const WordContext context{check, form, lColumns};
    const std::string strColumns =
        WriteKind("own", std::to_string(check.lColumn), context).value_or("");
    return Say(lColumns == 1 ? Text{"{1} holds {2}", "{1}が{2}である"}
                             : Text{"{1} hold {2}", "{1}が{2}である"},
               {strColumns, RuleWords(check, form)});
}

/// The condition looks at errors, not at what is written.
bool IsOnErrors(const CheckDefinition& condition)
{
    const CatalogueItem* pItem = FindCatalogueItem(condition.strKeyword);
    return pItem != nullptr && pItem->shape.ePlace == ErrorPlace::None;
}

std::string WholeWords(const CheckDefinition& check, const FormDefinition& form, bool bOnErrors)
{
    std::string strConditions;
    for (const CheckDefinition& condition : check.vecCondition) {
        // A condition without a column of its own is dropped.
        if (condition.lColumn <= 0 || (!bOnErrors && IsOnErrors(condition)))
            continue;
        if (!strConditions.empty())
            strConditions += Say({" and ", "、かつ"});
        strConditions += ConditionWords(condition, form);
    }
    const std::string strRule = RuleWords(check, form);
    return strConditions.empty() ? strRule
                                 : Say({"if {1}: {2}", "{1}場合：{2}"}, {strConditions, strRule});
}

}  // namespace

std::string CheckWords(const CheckDefinition& check, const FormDefinition& form)
{
    return WholeWords(check, form, true);
}

std::string RefusedCheckWords(const CheckDefinition& check, const FormDefinition& form)
{
    return WholeWords(check, form, false);
}

}  // namespace host
