#include "rules/CatalogueText.h"

#include <algorithm>

#include "base/Language.h"
#include "validator/ItemCatalogue.h"

namespace host {
namespace {

constexpr Text ALL_RECORDS = {"all records", "すべてのレコード"};
constexpr Text LAST_RECORD = {"the last record", "最後のレコード"};
constexpr Text ONE_RECORD = {"record {1}", "{1}レコード目"};
constexpr Text RANGE = {"records {1} to {2}", "{1}～{2}レコード目"};
constexpr Text TO_LAST = {"records {1} to the last", "{1}レコード目から最後まで"};
constexpr Text TO_LAST_BUT_ONE = {"records {1} to the last but one",
                                  "{1}レコード目から最後の1つ前まで"};

}  // namespace

std::string KeywordsThatReport(KZCEkaMessage_t eMessage)
{
    std::string strKeywords;
    for (const CatalogueItem& item : ItemCatalogue()) {
        if (std::ranges::find(item.messages, eMessage) == item.messages.end())
            continue;
        if (!strKeywords.empty())
            strKeywords += ", ";
        strKeywords += item.strKeyword;
    }
    return strKeywords;
}

std::string CodeOfCheck(const CheckDefinition& check)
{
    if (FindEkaMessage(check.strMessage) != MSG_NONE)
        return check.strMessage;
    const CatalogueItem* pItem = FindCatalogueItem(check.strKeyword);
    return pItem != nullptr && pItem->messages.size() == 1
               ? EkaMsgTable[pItem->messages.front()].szCode
               : std::string();
}

std::string RecordsOfForm(const ProcedureDefinition& procedure, const FormDefinition& form)
{
    if (procedure.vecForm.size() == 1)
        return Say(ALL_RECORDS);
    if (form.bLastRecord)
        return Say(LAST_RECORD);
    const std::string strFirst = std::to_string(std::max(1L, form.lStartRow));
    if (form.lEndRow == form.lStartRow)
        return Say(ONE_RECORD, {strFirst});
    if (form.lEndRow > 0)
        return Say(RANGE, {strFirst, std::to_string(form.lEndRow)});
    return Say(procedure.vecForm.back().bLastRecord ? TO_LAST_BUT_ONE : TO_LAST, {strFirst});
}

}  // namespace host
