#include "CheckWords.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "CText.h"
#include "CheckShape.h"
#include "JoinedText.h"
#include "Language.h"
#include "WordKinds.h"

namespace host {
namespace {

constexpr Text NOT_GIVEN = {"(not given)", "（指定なし）"};
constexpr Text ALTERNATIVE = {"; or ", "／"};

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

bool ReportsAt(const CatalogueItem& item, const CheckDefinition& check, const DetailEntry& entry)
{
    if (HasErrorRecord(item, check) && CText::ReadLong(check.strErrRow.c_str()) != entry.lRecord)
        return false;
    const long lLast = entry.lColumnEnd == SINGLE_COLUMN ? entry.lColumn : entry.lColumnEnd;
    return std::ranges::any_of(CellsReported(item, check, ""), [&](const CellSpan& span) {
        return span.lColumn == entry.lColumn && span.Last() == lLast;
    });
}

bool ReportsCode(const CatalogueItem& item, const CheckDefinition& check, KZCEkaMessage_t eMessage)
{
    const KZCEkaMessage_t eOverride = FindEkaMessage(check.strMessage);
    // A group of a date keeps its code in the forms that it knows.
    const bool bOwn = eOverride == MSG_NONE || !ReadsMessage(item.shape.ePlace);
    return (eOverride != MSG_NONE && eMessage == eOverride) ||
           (bOwn && std::ranges::find(item.messages, eMessage) != item.messages.end());
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

/// Adds the words of the checks that report such an error there, each once.
/// \param bOwnForm  The form is that of the error's record.
void AddRules(std::vector<std::string>& vecWords,
              const FormDefinition& form,
              const DetailEntry& entry,
              bool bOwnForm)
{
    if (entry.lRecord == FILE_RECORD || entry.lRecord == ARGUMENT_RECORD ||
        entry.eMessage == MSG_NONE)
        return;
    for (const ItemDefinition& item : form.vecItem) {
        for (const CheckDefinition& check : item.vecCheck) {
            const CatalogueItem* pItem = FindCatalogueItem(check.strKeyword);
            if (pItem == nullptr || !(bOwnForm || HasErrorRecord(*pItem, check)) ||
                !ReportsCode(*pItem, check, entry.eMessage) || !ReportsAt(*pItem, check, entry))
                continue;
            std::string strWords = WholeWords(check, form, false);
            if (std::ranges::find(vecWords, strWords) == vecWords.end())
                vecWords.push_back(std::move(strWords));
        }
    }
}

}  // namespace

std::string CheckWords(const CheckDefinition& check, const FormDefinition& form)
{
    return WholeWords(check, form, true);
}

std::string RuleOf(const FormDefinition& form, const DetailEntry& entry)
{
    std::vector<std::string> vecWords;
    AddRules(vecWords, form, entry, true);
    return JoinedText(vecWords, Say(ALTERNATIVE));
}

std::string RuleOf(const ProcedureDefinition& procedure,
                   const DetailEntry& entry,
                   std::size_t nRecordCount)
{
    if (entry.lRecord <= FILE_RECORD)
        return {};
    const FormDefinition* pOwn =
        procedure.FormAt(static_cast<std::size_t>(entry.lRecord), nRecordCount);
    std::vector<std::string> vecWords;
    for (const FormDefinition& form : procedure.vecForm)
        AddRules(vecWords, form, entry, &form == pOwn);
    return JoinedText(vecWords, Say(ALTERNATIVE));
}

}  // namespace host
