#include "rules/RuleBook.h"

#include <algorithm>
#include <utility>

#include "base/JoinedText.h"
#include "base/Language.h"
#include "rules/CheckShape.h"
#include "rules/CheckWords.h"
#include "text/CText.h"

namespace host {
namespace {

constexpr Text ALTERNATIVE = {"; or ", "／"};
constexpr const char* ELLIPSIS = "…";

/// The error is in a record where the check reports.
/// \param bOwnForm  The form of the check is that of the error's record.
bool ReportsIn(const CatalogueItem& item,
               const CheckDefinition& check,
               const DetailEntry& entry,
               bool bOwnForm)
{
    return HasErrorRecord(item, check) ? CText::ReadLong(check.strErrRow.c_str()) == entry.lRecord
                                       : bOwnForm;
}

bool ReportsCode(const CatalogueItem& item, const CheckDefinition& check, KZCEkaMessage_t eMessage)
{
    const KZCEkaMessage_t eOverride = FindEkaMessage(check.strMessage);
    // A group of a date keeps its code in the forms that it knows.
    const bool bOwn = eOverride == MSG_NONE || !ReadsMessage(item.shape.ePlace);
    return (eOverride != MSG_NONE && eMessage == eOverride) ||
           (bOwn && std::ranges::find(item.messages, eMessage) != item.messages.end());
}

/// At most RULE_BYTES_MAX bytes, and no half character.
std::string Shortened(std::string strWords)
{
    if (strWords.size() <= RuleBook::RULE_BYTES_MAX)
        return strWords;
    std::size_t nEnd = RuleBook::RULE_BYTES_MAX;
    while ((static_cast<unsigned char>(strWords[nEnd]) & 0xc0) == 0x80)
        --nEnd;
    strWords.resize(nEnd);
    return strWords + ELLIPSIS;
}

}  // namespace

RuleBook::RuleBook(const ProcedureDefinition& procedure) : m_procedure(procedure)
{
    for (const FormDefinition& form : procedure.vecForm)
        for (const ItemDefinition& item : form.vecItem)
            for (const CheckDefinition& check : item.vecCheck) {
                const CatalogueItem* pItem = FindCatalogueItem(check.strKeyword);
                if (pItem == nullptr)
                    continue;
                m_bNamesRecords = m_bNamesRecords || HasErrorRecord(*pItem, check);
                for (const CellSpan& span : CellsReported(*pItem, check, "")) {
                    auto& vecCheck = m_mapCheck[{span.lColumn, span.Last()}];
                    if (vecCheck.empty() || vecCheck.back().pCheck != &check)
                        vecCheck.push_back({&form, &check});
                }
            }
}

const std::string& RuleBook::RuleOf(const DetailEntry& entry, std::size_t nRecordCount)
{
    static const std::string NONE;
    if (entry.lRecord <= FILE_RECORD || entry.lRecord == ARGUMENT_RECORD ||
        entry.eMessage == MSG_NONE)
        return NONE;
    const long lLast = entry.lColumnEnd == SINGLE_COLUMN ? entry.lColumn : entry.lColumnEnd;
    const auto checks = m_mapCheck.find({entry.lColumn, lLast});
    if (checks == m_mapCheck.end())
        return NONE;
    const FormDefinition* pOwn =
        m_procedure.FormAt(static_cast<std::size_t>(entry.lRecord), nRecordCount);
    const auto [known, bNew] =
        m_mapKnown.try_emplace({pOwn, entry.lColumn, lLast, entry.eMessage,
                                m_bNamesRecords ? entry.lRecord : FILE_RECORD});
    if (bNew)
        known->second = Words(checks->second, entry, pOwn);
    return known->second;
}

std::string RuleBook::Words(const std::vector<PlacedCheck>& vecCheck,
                            const DetailEntry& entry,
                            const FormDefinition* pOwn) const
{
    std::vector<std::string> vecWords;
    for (const PlacedCheck& placed : vecCheck) {
        const CatalogueItem& item = *FindCatalogueItem(placed.pCheck->strKeyword);
        if (!ReportsIn(item, *placed.pCheck, entry, placed.pForm == pOwn) ||
            !ReportsCode(item, *placed.pCheck, entry.eMessage))
            continue;
        std::string strWords = Shortened(RefusedCheckWords(*placed.pCheck, *placed.pForm));
        if (std::ranges::find(vecWords, strWords) != vecWords.end())
            continue;
        if (vecWords.size() == RULES_MAX) {
            vecWords.emplace_back(ELLIPSIS);
            break;
        }
        vecWords.push_back(std::move(strWords));
    }
    return JoinedText(vecWords, Say(ALTERNATIVE));
}

std::string RuleOf(const ProcedureDefinition& procedure,
                   const DetailEntry& entry,
                   std::size_t nRecordCount)
{
    return RuleBook(procedure).RuleOf(entry, nRecordCount);
}

std::string RuleOf(const FormDefinition& form, const DetailEntry& entry)
{
    ProcedureDefinition procedure;
    procedure.vecForm = {form};
    return RuleOf(procedure, entry, 1);
}

}  // namespace host
