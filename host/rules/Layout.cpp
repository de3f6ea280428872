#include "rules/Layout.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <set>

#include "base/JoinedText.h"
#include "base/Language.h"
#include "base/SafeText.h"
#include "form/DetailTable.h"
#include "rules/CatalogueText.h"
#include "rules/CheckWords.h"

namespace host {
namespace {

using Procedures = std::vector<const ProcedureDefinition*>;

constexpr Text TITLE = {"Type {1}: {2}", "申請区分{1}：{2}"};
constexpr Text ABOUT = {"Procedure {1} (version {2}), at most {3} records.",
                        "手続{1}（バージョン{2}）、{3}レコードまで。"};
constexpr Text FORM = {"{1} ({2}), {3}, {4} columns", "{1}（{2}）、{3}、{4}項目"};
constexpr Text COLUMN = {"Column", "項目"};
constexpr Text LABEL = {"Label", "名称"};
constexpr Text TAG = {"Tag", "タグ"};
constexpr Text CHECKS = {"Checks", "チェック"};
constexpr Text TYPE_ID = {"Type id", "申請区分"};
constexpr Text REPORT = {"Report", "様式"};
constexpr Text GENERATION = {"{1} records: {2}", "{1}のレコード：{2}"};
constexpr Text NO_LABEL = {"(no name)", "（名称なし）"};

std::string TitleOf(const ProcedureDefinition& procedure)
{
    const std::string& strLabel = procedure.vecForm.front().strLabel;
    return Say(TITLE, {procedure.strTypeId, strLabel.empty() ? procedure.strProcId : strLabel});
}

std::string AboutOf(const ProcedureDefinition& procedure)
{
    return Say(ABOUT, {procedure.strProcId, procedure.vecForm.front().strProcVR,
                       std::to_string(procedure.lMaxRecord)});
}

std::string FormTitle(const ProcedureDefinition& procedure, const FormDefinition& form)
{
    return Say(FORM,
               {form.strLabel.empty() ? Say(NO_LABEL) : form.strLabel.c_str(), form.strReportId,
                RecordsOfForm(procedure, form), std::to_string(form.lColumnNum)});
}

/// Adds texts to lists of which each holds a text once.
class AddOnce
{
public:
    void operator()(std::vector<std::string>& vecText, const std::string& strText)
    {
        if (!strText.empty() && m_mapSeen[&vecText].insert(strText).second)
            vecText.push_back(strText);
    }

private:
    std::map<const std::vector<std::string>*, std::set<std::string>> m_mapSeen;
};

/// The text for an element of HTML and for a table of Markdown: nothing in it is markup or hidden.
/// Quotes stay, as they mean nothing there.
std::string Escaped(const std::string& strText)
{
    std::string strEscaped;
    for (const char c : MakeSafe(strText)) {
        switch (c) {
            case '&':
                strEscaped += "&amp;";
                break;
            case '<':
                strEscaped += "&lt;";
                break;
            case '>':
                strEscaped += "&gt;";
                break;
            case '|':
                strEscaped += "&#124;";
                break;
            default:
                strEscaped += c;
        }
    }
    return strEscaped;
}

std::vector<std::string> EscapedAll(const std::vector<std::string>& vecText)
{
    std::vector<std::string> vecEscaped;
    vecEscaped.reserve(vecText.size());
    for (const std::string& strText : vecText)
        vecEscaped.push_back(Escaped(strText));
    return vecEscaped;
}

/// The texts as lines of one cell, with nothing hidden in them.
std::string SafeLines(const std::vector<std::string>& vecText)
{
    return JoinedText(vecText, "\n", [](const std::string& strText) { return MakeSafe(strText); });
}

/// A check in words, with what its item adds to it.
std::string Words(const ItemDefinition& item,
                  const CheckDefinition& check,
                  const FormDefinition& form)
{
    std::string strWords = CheckWords(check, form);
    // A group's rule is about more than the column where it stands.
    if (check.lColumn != item.lColumn && !item.strLabel.empty())
        strWords = item.strLabel + ": " + strWords;
    if (!item.strGeneration.empty())
        strWords = Say(GENERATION, {item.strGeneration, strWords});
    return strWords;
}

constexpr const char* STYLE = R"(
:root { color-scheme: light dark; }
body { font: 16px/1.5 system-ui, "Hiragino Sans", "Noto Sans CJK JP", sans-serif;
  margin: 2rem auto; max-width: 70rem; padding: 0 1rem; }
.scroll { overflow-x: auto; }
table { border-collapse: collapse; width: 100%; }
th, td { border-bottom: 1px solid #8886; padding: .3rem .6rem; text-align: left;
  vertical-align: top; }
td:first-child { text-align: right; font-variant-numeric: tabular-nums; }
)";

}  // namespace

std::vector<LayoutColumn> LayoutOf(const FormDefinition& form)
{
    std::vector<LayoutColumn> vecColumn(static_cast<std::size_t>(std::max(0L, form.lColumnNum)));
    for (std::size_t n = 0; n < vecColumn.size(); ++n) {
        vecColumn[n].lColumn = static_cast<long>(n) + 1;
        vecColumn[n].strLabel = form.labels.Find(vecColumn[n].lColumn, SINGLE_COLUMN);
    }
    const auto at = [&vecColumn](long lColumn) -> LayoutColumn* {
        const auto nColumn = static_cast<std::size_t>(lColumn);
        return lColumn > 0 && nColumn <= vecColumn.size() ? &vecColumn[nColumn - 1] : nullptr;
    };
    AddOnce addOnce;
    const auto addChecks = [&](const ItemDefinition& item) {
        for (const CheckDefinition& check : item.vecCheck)
            if (LayoutColumn* pColumn = at(check.lColumn))
                addOnce(pColumn->vecCheck, Words(item, check, form));
    };
    for (const ItemDefinition& item : form.vecItem) {
        if (LayoutColumn* pColumn = at(item.lColumn))
            addOnce(pColumn->vecTag, item.strId);
        if (!item.IsGroup())
            addChecks(item);
    }
    // They wait for the checks of their columns.
    for (const ItemDefinition& item : form.vecItem)
        if (item.IsGroup())
            addChecks(item);
    return vecColumn;
}

void WriteLayoutMarkdown(std::ostream& out, const Procedures& vecProcedure)
{
    bool bFirst = true;
    for (const ProcedureDefinition* pProcedure : vecProcedure) {
        out << (bFirst ? "" : "\n") << "# " << Escaped(TitleOf(*pProcedure)) << "\n\n"
            << Escaped(AboutOf(*pProcedure)) << '\n';
        bFirst = false;
        for (const FormDefinition& form : pProcedure->vecForm) {
            out << "\n## " << Escaped(FormTitle(*pProcedure, form)) << "\n\n| " << Say(COLUMN)
                << " | " << Say(LABEL) << " | " << Say(TAG) << " | " << Say(CHECKS)
                << " |\n|---:|---|---|---|\n";
            for (const LayoutColumn& column : LayoutOf(form))
                out << "| " << column.lColumn << " | " << Escaped(column.strLabel) << " | "
                    << JoinedText(EscapedAll(column.vecTag), "<br>") << " | "
                    << JoinedText(EscapedAll(column.vecCheck), "<br>") << " |\n";
        }
    }
}

void WriteLayoutHtml(std::ostream& out, const Procedures& vecProcedure)
{
    const char* szLanguage = CurrentLanguage() == Language::Japanese ? "ja" : "en";
    const std::string strTitle =
        vecProcedure.empty() ? std::string() : Escaped(TitleOf(*vecProcedure.front()));
    out << "<!DOCTYPE html>\n<html lang=\"" << szLanguage
        << "\">\n<head>\n<meta charset=\"utf-8\">\n<meta name=\"viewport\" "
           "content=\"width=device-width, initial-scale=1\">\n<title>"
        << strTitle << "</title>\n<style>" << STYLE << "</style>\n</head>\n<body>\n";
    for (const ProcedureDefinition* pProcedure : vecProcedure) {
        out << "<h1>" << Escaped(TitleOf(*pProcedure)) << "</h1>\n<p>"
            << Escaped(AboutOf(*pProcedure)) << "</p>\n";
        for (const FormDefinition& form : pProcedure->vecForm) {
            out << "<h2>" << Escaped(FormTitle(*pProcedure, form))
                << "</h2>\n<div class=\"scroll\">\n<table>\n<thead><tr><th scope=\"col\">"
                << Say(COLUMN) << "</th><th scope=\"col\">" << Say(LABEL)
                << "</th><th scope=\"col\">" << Say(TAG) << "</th><th scope=\"col\">" << Say(CHECKS)
                << "</th></tr></thead>\n<tbody>\n";
            for (const LayoutColumn& column : LayoutOf(form))
                out << "<tr><td>" << column.lColumn << "</td><td>" << Escaped(column.strLabel)
                    << "</td><td>" << JoinedText(EscapedAll(column.vecTag), "<br>") << "</td><td>"
                    << JoinedText(EscapedAll(column.vecCheck), "<br>") << "</td></tr>\n";
            out << "</tbody>\n</table>\n</div>\n";
        }
    }
    out << "</body>\n</html>\n";
}

void WriteLayoutCsv(std::ostream& out, const Procedures& vecProcedure)
{
    const auto writeLine = [&out](const std::vector<std::string>& vecCell) {
        for (std::size_t n = 0; n < vecCell.size(); ++n)
            out << (n == 0 ? "" : ",") << CsvCell(vecCell[n]);
        out << "\r\n";
    };
    writeLine({Say(TYPE_ID), Say(REPORT), Say(COLUMN), Say(LABEL), Say(TAG), Say(CHECKS)});
    for (const ProcedureDefinition* pProcedure : vecProcedure)
        for (const FormDefinition& form : pProcedure->vecForm)
            for (const LayoutColumn& column : LayoutOf(form))
                writeLine({MakeSafe(pProcedure->strTypeId), MakeSafe(form.strReportId),
                           std::to_string(column.lColumn), MakeSafe(column.strLabel),
                           SafeLines(column.vecTag), SafeLines(column.vecCheck)});
}

void WriteProcedureList(std::ostream& out, const Procedures& vecProcedure)
{
    for (const ProcedureDefinition* pProcedure : vecProcedure)
        out << MakeSafe(pProcedure->strTypeId) << "  " << MakeSafe(pProcedure->strProcId) << "  "
            << FamilyName(pProcedure->eFamily) << "  "
            << MakeSafe(pProcedure->vecForm.front().strLabel) << '\n';
}

}  // namespace host
