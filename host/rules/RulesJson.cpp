#include "rules/RulesJson.h"

#include <nlohmann/json.hpp>

#include <functional>

#include "EkaMsgTable.h"
#include "base/Language.h"
#include "rules/Advice.h"
#include "rules/CatalogueText.h"
#include "rules/CheckShape.h"
#include "rules/CheckWords.h"
#include "rules/ItemCatalogueText.h"
#include "validator/ItemCatalogue.h"

namespace host {
namespace {

using Json = nlohmann::ordered_json;

/// A text in both languages; the current one stays.
Json InBothLanguages(const std::function<std::string()>& say)
{
    const Language eBefore = CurrentLanguage();
    SetLanguage(Language::English);
    Json texts = {{"en", say()}};
    SetLanguage(Language::Japanese);
    texts["ja"] = say();
    SetLanguage(eBefore);
    return texts;
}

/// Null for the empty text.
Json TextOrNull(const std::string& strText)
{
    return strText.empty() ? Json() : Json(strText);
}

/// Null for 0, which is no column and no record.
Json NumberOrNull(long lNumber)
{
    return lNumber > 0 ? Json(lNumber) : Json();
}

Json CheckToJson(const CheckDefinition& check, const FormDefinition& form)
{
    Json value = {
        {"keyword", check.strKeyword},
        {"column", NumberOrNull(check.lColumn)},
        {"value", TextOrNull(check.strValue)},
        {"min", TextOrNull(check.strMin)},
        {"max", TextOrNull(check.strMax)},
        {"code", TextOrNull(CodeOfCheck(check))},
        {"errorColumn", TextOrNull(check.strErrColumn)},
        {"errorRow", TextOrNull(check.strErrRow)},
        {"words", InBothLanguages([&] { return CheckWords(check, form); })},
        {"conditions", Json::array()},
        {"line", check.lLine},
    };
    for (const CheckDefinition& condition : check.vecCondition)
        value["conditions"].push_back({{"keyword", condition.strKeyword},
                                       {"column", NumberOrNull(condition.lColumn)},
                                       {"value", TextOrNull(condition.strValue)},
                                       {"min", TextOrNull(condition.strMin)},
                                       {"max", TextOrNull(condition.strMax)}});
    return value;
}

Json ItemToJson(const ItemDefinition& item, const FormDefinition& form)
{
    Json checks = Json::array();
    for (const CheckDefinition& check : item.vecCheck)
        checks.push_back(CheckToJson(check, form));
    return {
        {"tag", item.strId},
        {"type", item.strType},
        {"parent", TextOrNull(item.strParent)},
        {"column", NumberOrNull(item.lColumn)},
        {"label", TextOrNull(item.strLabel)},
        {"generation", TextOrNull(item.strGeneration)},
        {"checks", std::move(checks)},
        {"line", item.lLine},
    };
}

Json FormToJson(const ProcedureDefinition& procedure, const FormDefinition& form)
{
    Json items = Json::array();
    for (const ItemDefinition& item : form.vecItem)
        items.push_back(ItemToJson(item, form));
    return {
        {"report", form.strReportId},
        {"reportVersion", form.strReportVR},
        {"label", TextOrNull(form.strLabel)},
        {"records", InBothLanguages([&] { return RecordsOfForm(procedure, form); })},
        {"columns", form.lColumnNum},
        {"items", std::move(items)},
    };
}

}  // namespace

Json CheckItemsToJson()
{
    Json items = Json::array();
    for (const CatalogueItem& item : ItemCatalogue()) {
        Json attributes = Json::array();
        for (const Attribute eAttribute : ATTRIBUTES)
            if (ShapeOf(item, eAttribute).IsRead())
                attributes.push_back(AttributeName(eAttribute));
        Json codes = Json::array();
        for (const KZCEkaMessage_t eMessage : item.messages)
            codes.push_back(EkaMsgTable[eMessage].szCode);
        items.push_back({
            {"keyword", item.strKeyword},
            {"attributes", std::move(attributes)},
            {"codes", std::move(codes)},
            {"columns", InBothLanguages([&] { return ItemPlace(item); })},
            {"description", InBothLanguages([&] { return ItemDescription(item); })},
        });
    }
    return items;
}

Json MessagesToJson()
{
    Json messages = Json::array();
    for (const EkaMsgRow& row : EkaMsgTable)
        if (row.eMessage != MSG_NONE)
            messages.push_back({
                {"code", row.szCode},
                {"text", row.szText},
                {"advice", InBothLanguages([&] { return std::string(AdviceFor(row.eMessage)); })},
            });
    return messages;
}

Json ProcedureToJson(const ProcedureDefinition& procedure)
{
    Json forms = Json::array();
    for (const FormDefinition& form : procedure.vecForm)
        forms.push_back(FormToJson(procedure, form));
    return {
        {"typeId", procedure.strTypeId},
        {"family", FamilyName(procedure.eFamily)},
        {"procedure", procedure.strProcId},
        {"procedureVersion", procedure.vecForm.front().strProcVR},
        {"maxRecords", procedure.lMaxRecord},
        {"forms", std::move(forms)},
    };
}

}  // namespace host
