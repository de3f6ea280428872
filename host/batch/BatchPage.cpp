#include "batch/BatchPage.h"

#include <KZEkaMok/KZEkaMok.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <nlohmann/json.hpp>
#include <set>
#include <tuple>

#include "base/Language.h"
#include "base/SafeText.h"
#include "batch/FileState.h"
#include "batch/Journal.h"
#include "file/FilePlace.h"
#include "form/DetailTable.h"
#include "report/HtmlAssets.h"
#include "report/HtmlText.h"

namespace host {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t MARK_WITHIN = 1024;
constexpr std::size_t VALUE_SHOWN = 40;
constexpr std::size_t CODES_SHOWN = 4;
/// Marks a page as one of a batch, so that it may be replaced. Stands near its beginning.
constexpr const char* PAGE_MARK = R"(<meta name="generator" content="kzekamok batch">)";

/// A page may load nothing at all and use nothing but its own style and script.
std::string Policy()
{
    return "default-src 'none'; style-src 'sha256-" + std::string(BATCH_STYLE_DIGEST) +
           "'; script-src 'sha256-" + std::string(BATCH_SCRIPT_DIGEST) +
           "'; base-uri 'none'; form-action 'none'";
}

/// A link to a file below the page's folder.
std::string Link(const std::string& strRelative)
{
    constexpr std::string_view PLAIN =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    std::string strLink;
    for (const char c : strRelative) {
        if (PLAIN.find(c) != std::string_view::npos) {
            strLink += c;
            continue;
        }
        std::array<char, sizeof "%FF"> szByte{};
        std::snprintf(szByte.data(), szByte.size(), "%%%02X",
                      static_cast<unsigned>(static_cast<unsigned char>(c)));
        strLink += szByte.data();
    }
    return strLink;
}

std::string Number(std::uint64_t nNumber)
{
    return std::to_string(nNumber);
}

std::string Seconds(double dSeconds)
{
    std::array<char, 32> szText{};
    std::snprintf(szText.data(), szText.size(), "%.3f", dSeconds);
    return szText.data();
}

/// What somebody has to look at first comes first.
int Rank(Outcome eOutcome)
{
    const auto* pOutcome = std::ranges::find(BATCH_OUTCOMES, eOutcome);
    return static_cast<int>(BATCH_OUTCOMES.end() - pOutcome);
}

std::string TextOf(const Json& object, const char* szMember)
{
    const auto it = object.find(szMember);
    return it != object.end() && it->is_string() ? it->get<std::string>() : std::string();
}

const char* MessageOf(const std::string& strCode)
{
    const auto* pRow = std::ranges::find_if(
        EkaMsgTable, [&](const EkaMsgRow& row) { return strCode == row.szCode; });
    return pRow != std::end(EkaMsgTable) ? pRow->szText : "";
}

std::string CodesOf(const Json& byCode)
{
    std::vector<std::pair<std::string, std::uint64_t>> vecCode;
    for (const auto& [strCode, count] : byCode.items())
        vecCode.emplace_back(strCode, count.get<std::uint64_t>());
    std::ranges::stable_sort(vecCode, std::greater<>(),
                             &std::pair<std::string, std::uint64_t>::second);
    std::string strCodes;
    for (std::size_t n = 0; n < std::min(vecCode.size(), CODES_SHOWN); ++n)
        strCodes += (n > 0 ? ", " : "") + vecCode[n].first + " ×" + Number(vecCode[n].second);
    return vecCode.size() > CODES_SHOWN ? strCodes + ", …" : strCodes;
}

std::string ErrorHtml(const Json& error)
{
    const long lRecord = error.at("record");
    const long lColumn = error.at("column");
    std::string strPlace;
    if (TextOf(error, "scope") == "cell")
        strPlace = Say({"record {1}, column {2}", "レコード{1}、項目{2}"},
                       {std::to_string(lRecord), std::to_string(lColumn)});
    else if (TextOf(error, "scope") == "record")
        strPlace = Say({"record {1}", "レコード{1}"}, {std::to_string(lRecord)});
    else if (TextOf(error, "scope") == "argument")
        strPlace = TextOf(error, "argument");
    else
        strPlace = Say({"the file", "ファイル全体"});
    std::string strHtml = "<li>" + HtmlText(strPlace);
    if (const std::string strLabel = TextOf(error, "label"); !strLabel.empty())
        strHtml += " " + HtmlText(strLabel);
    if (error.at("value").is_string())
        strHtml +=
            " <code>" +
            HtmlOwnText(MakeSafeAndShort(error.at("value").get<std::string>(), VALUE_SHOWN)) +
            "</code>";
    return strHtml + ": " + HtmlText(TextOf(error, "code")) + " " +
           HtmlText(TextOf(error, "message")) + "</li>";
}

std::string TableHead(std::initializer_list<Text> listTitle)
{
    std::string strHtml = "<thead><tr>";
    for (const Text& text : listTitle)
        strHtml += std::string("<th scope=\"col\">") + Say(text) + "</th>";
    return strHtml + "</tr></thead>\n";
}

std::string NumberCell(const std::string& strKey, const std::string& strShown)
{
    return R"(<td class="n" data-key=")" + strKey + R"(">)" + strShown + "</td>";
}

}  // namespace

std::string BatchPage::ProblemOf(int nFolder, const char* szName)
{
    Descriptor file;
    const int nError = OpenRegularFile(nFolder, szName, file);
    if (nError == ENOENT)
        return {};
    if (nError == EACCES)
        return std::strerror(nError);
    std::string strBegin(MARK_WITHIN, '\0');
    if (nError == 0 && pread(file.Get(), strBegin.data(), strBegin.size(), 0) > 0 &&
        strBegin.find(PAGE_MARK) != std::string::npos)
        return {};
    return Say({"it wasn't written by a batch", "バッチが作成したものではありません"});
}

BatchPage::BatchPage(std::size_t nFiles) : m_nFiles(nFiles) {}

void BatchPage::Add(std::string_view strLine)
{
    if (NestsTooDeep(strLine))
        return;
    const Json line = Json::parse(strLine, nullptr, /*allow_exceptions=*/false);
    if (!line.is_object())
        return;
    try {
        AddFile(line);
    } catch (const Json::exception&) {  // a member is missing or of another type
        return;
    }
}

void BatchPage::AddFile(const Json& line)
{
    // All that may throw comes first, so that a line counts as a whole or not at all.
    const auto eStatus = static_cast<ExitStatus>(line.at("status").get<int>());
    const auto mapCode = line.at("counts").at("byCode").get<std::map<std::string, std::uint64_t>>();
    Row row = ReadRow(line);
    if (!row.strErrors.empty())
        ++m_nFilesWithErrors;

    m_totals.Add(row.eOutcome, eStatus);
    for (const auto& [strCode, nErrors] : mapCode) {
        m_mapCode[strCode].nErrors += nErrors;
        ++m_mapCode[strCode].nFiles;
    }
    ProcedureTotal& procedure = m_mapProcedure[row.strProcedure];
    ++procedure.nFiles;
    ++procedure.mapOutcome[row.eOutcome];
    m_vecRow.push_back(std::move(row));
}

BatchPage::Row BatchPage::ReadRow(const Json& line) const
{
    Row row;
    row.strFile = line.at("file");
    row.strProcedure = TextOf(line, "procedure");
    row.strProblem = TextOf(line, "problem");
    if (const std::string strAdvice = TextOf(line, "advice"); !strAdvice.empty())
        row.strProblem += " " + strAdvice;
    row.eOutcome =
        OutcomeOfName(line.at("result").get<std::string>()).value_or(Outcome::NotChecked);
    row.nErrors = line.at("counts").at("errors");
    row.bMoreErrors = line.at("counts").at("moreErrors");
    row.strCodes = CodesOf(line.at("counts").at("byCode"));
    row.dSeconds = line.at("batch").at("seconds");
    if (row.eOutcome == Outcome::Converted)
        row.strDocument = TextOf(line.at("batch"), "document");
    const Json& errors = line.at("errors");
    if (m_nFilesWithErrors < FILES_WITH_ERRORS_SHOWN)
        for (std::size_t n = 0; n < std::min(errors.size(), ERRORS_SHOWN); ++n)
            row.strErrors += ErrorHtml(errors[n]);
    return row;
}

std::string BatchPage::Html()
{
    std::ranges::sort(m_vecRow, {}, [](const Row& row) {
        return std::tuple(Rank(row.eOutcome), std::string_view(row.strFile));
    });
    std::string strHtml = "<!DOCTYPE html>\n<html lang=\"";
    strHtml += Say({"en", "ja"});
    strHtml += std::string("\">\n<head>\n<meta charset=\"utf-8\">\n") + PAGE_MARK +
               "\n<meta http-equiv=\"Content-Security-Policy\" content=\"" + Policy() +
               "\">\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
               "<title>" +
               Say({"Batch: ", "バッチ："}) + HtmlOwnText(m_totals.Line()) + "</title>\n<style>";
    strHtml += BATCH_STYLE;
    strHtml += "</style>\n</head>\n<body>\n<main>\n";
    AppendSummary(strHtml);
    strHtml += "<div class=\"side\">\n";
    AppendCodes(strHtml);
    AppendProcedures(strHtml);
    AppendSlowest(strHtml);
    strHtml += "</div>\n";
    AppendFiles(strHtml);
    strHtml += "</main>\n<script>";
    strHtml += BATCH_SCRIPT;
    strHtml += "</script>\n</body>\n</html>\n";
    return strHtml;
}

void BatchPage::AppendSummary(std::string& strHtml) const
{
    strHtml += std::string("<h1>") + Say({"Batch", "バッチ処理の結果"}) +
               "</h1>\n<p class=\"soft\">kzekamok " + KZEKAMOK_VERSION + ", " + TimeStamp() +
               "</p>\n";
    if (m_totals.Files() < m_nFiles)
        strHtml += "<p class=\"doubt\"><strong>" +
                   Say({"Broken off: {1} of {2} files are done. The same command goes on from "
                        "there.",
                        "中断：{2}件中{1}件を処理済み。同じコマンドで続きから再開します。"},
                       {Number(m_totals.Files()), Number(m_nFiles)}) +
                   "</strong></p>\n";
    strHtml += "<ul class=\"counts\">\n<li><b>" + Number(m_totals.Files()) + "</b>" +
               Say({"files", "ファイル"}) + "</li>\n";
    // No style of its own at an element: the policy lets no such through.
    std::string strBar;
    std::size_t nBefore = 0;
    for (const Outcome eOutcome : BATCH_OUTCOMES) {
        const std::size_t nFiles = m_totals.Of(eOutcome);
        if (nFiles == 0)
            continue;
        strHtml += std::string("<li><b class=\"") + OutcomeStyle(eOutcome) + "\">" +
                   Number(nFiles) + "</b>" + OutcomeWord(eOutcome) + "</li>\n";
        strBar += std::string("<rect class=\"") + OutcomeStyle(eOutcome) + "\" x=\"" +
                  Number(nBefore) + "\" width=\"" + Number(nFiles) + R"(" height="1"/>)";
        nBefore += nFiles;
    }
    strHtml += R"(</ul>
<svg class="bar" aria-hidden="true" preserveAspectRatio="none" viewBox="0 0 )" +
               Number(nBefore) + " 1\">" + strBar + "</svg>\n";
}

void BatchPage::AppendCodes(std::string& strHtml) const
{
    if (m_mapCode.empty())
        return;
    std::vector<std::pair<std::string, CodeTotal>> vecCode(m_mapCode.begin(), m_mapCode.end());
    std::ranges::stable_sort(vecCode, std::greater<>(),
                             [](const auto& code) { return code.second.nErrors; });
    strHtml += std::string("<section><h2>") + Say({"Errors by code", "コード別のエラー"}) +
               "</h2>\n<div class=\"scroll\"><table>\n" +
               TableHead({{"Code", "コード"},
                          {"Message", "メッセージ"},
                          {"Errors", "エラー数"},
                          {"Files", "ファイル数"}}) +
               "<tbody>\n";
    for (const auto& [strCode, total] : vecCode)
        strHtml += "<tr><td class=\"k\">" + HtmlText(strCode) + "</td><td lang=\"ja\">" +
                   HtmlOwnText(MessageOf(strCode)) + "</td><td class=\"n\">" +
                   Number(total.nErrors) + "</td><td class=\"n\">" + Number(total.nFiles) +
                   "</td></tr>\n";
    strHtml += "</tbody></table></div></section>\n";
}

void BatchPage::AppendProcedures(std::string& strHtml) const
{
    if (m_mapProcedure.empty())
        return;
    std::vector<Outcome> vecSeen;
    std::ranges::copy_if(BATCH_OUTCOMES, std::back_inserter(vecSeen),
                         [this](Outcome eOutcome) { return m_totals.Of(eOutcome) > 0; });
    strHtml += std::string("<section><h2>") + Say({"Procedures", "手続別"}) +
               "</h2>\n<div class=\"scroll\"><table>\n<thead><tr><th scope=\"col\">" +
               Say({"Procedure", "手続"}) + "</th><th scope=\"col\">" +
               Say({"Files", "ファイル数"}) + "</th>";
    for (const Outcome eOutcome : vecSeen)
        strHtml += std::string("<th scope=\"col\">") + OutcomeWord(eOutcome) + "</th>";
    strHtml += "</tr></thead>\n<tbody>\n";
    for (const auto& [strProcedure, total] : m_mapProcedure) {
        strHtml += "<tr><td class=\"k\">" +
                   (strProcedure.empty() ? std::string(Say({"(unknown)", "（不明）"}))
                                         : HtmlText(strProcedure)) +
                   "</td><td class=\"n\">" + Number(total.nFiles) + "</td>";
        for (const Outcome eOutcome : vecSeen) {
            const auto it = total.mapOutcome.find(eOutcome);
            strHtml += "<td class=\"n\">" +
                       (it != total.mapOutcome.end() ? Number(it->second) : std::string()) +
                       "</td>";
        }
        strHtml += "</tr>\n";
    }
    strHtml += "</tbody></table></div></section>\n";
}

void BatchPage::AppendSlowest(std::string& strHtml) const
{
    if (m_vecRow.empty())
        return;
    std::vector<const Row*> vecRow;
    for (const Row& row : m_vecRow)
        vecRow.push_back(&row);
    const std::size_t nShown = std::min(vecRow.size(), SLOWEST_SHOWN);
    std::ranges::partial_sort(vecRow, vecRow.begin() + static_cast<std::ptrdiff_t>(nShown),
                              std::greater<>(), [](const Row* pRow) { return pRow->dSeconds; });
    strHtml += std::string("<section><h2>") + Say({"Slowest files", "時間のかかったファイル"}) +
               "</h2>\n<div class=\"scroll\"><table>\n" +
               TableHead({{"File", "ファイル"}, {"Seconds", "秒"}}) + "<tbody>\n";
    for (std::size_t n = 0; n < nShown; ++n)
        strHtml += "<tr><td>" + HtmlText(vecRow[n]->strFile) + "</td><td class=\"n\">" +
                   Seconds(vecRow[n]->dSeconds) + "</td></tr>\n";
    strHtml += "</tbody></table></div></section>\n";
}

void BatchPage::AppendFiles(std::string& strHtml) const
{
    const std::size_t nShown = std::min(m_vecRow.size(), ROWS_MAX);
    strHtml += std::string("<section><h2>") + Say({"Files", "ファイル一覧"}) + "</h2>\n";
    if (nShown < m_vecRow.size())
        strHtml += "<p>" +
                   Say({"The first {1} of {2} files are shown, those with problems first. "
                        "report.json has all of them.",
                        "{2}件のうち{1}件を、問題のあるものから順に表示しています。全件は "
                        "report.json にあります。"},
                       {Number(nShown), Number(m_vecRow.size())}) +
                   "</p>\n";
    AppendFilter(strHtml);
    strHtml += R"(<div class="scroll wide"><table id="files">)"
               "\n" +
               TableHead({{"File", "ファイル"},
                          {"Result", "結果"},
                          {"Procedure", "手続"},
                          {"Errors", "エラー数"},
                          {"Details", "詳細"},
                          {"Seconds", "秒"}}) +
               "<tbody>\n";
    for (std::size_t n = 0; n < nShown; ++n)
        AppendRow(strHtml, m_vecRow[n]);
    strHtml += "</tbody></table></div></section>\n";
}

void BatchPage::AppendFilter(std::string& strHtml) const
{
    strHtml += std::string(R"(<form id="filter" role="search" hidden><label>)") +
               Say({"Filter", "絞り込み"}) +
               R"( <input type="search" name="words"></label><label>)" + Say({"Result", "結果"}) +
               R"( <select name="outcome"><option value="">)" + Say({"all", "すべて"}) +
               "</option>";
    for (const Outcome eOutcome : BATCH_OUTCOMES)
        if (m_totals.Of(eOutcome) > 0)
            strHtml += std::string("<option value=\"") + OutcomeName(eOutcome) + "\">" +
                       OutcomeWord(eOutcome) + "</option>";
    strHtml += R"(</select></label><output id="shown" class="soft"></output></form>)";
    strHtml += '\n';
}

void BatchPage::AppendRow(std::string& strHtml, const Row& row)
{
    strHtml += std::string("<tr data-outcome=\"") + OutcomeName(row.eOutcome) + "\"><td>" +
               HtmlText(row.strFile) + "</td><td class=\"o " + OutcomeStyle(row.eOutcome) + "\">" +
               OutcomeWord(row.eOutcome) + "</td><td>" + HtmlText(row.strProcedure) + "</td>" +
               NumberCell(Number(row.nErrors),
                          row.nErrors > 0 ? Number(row.nErrors) + (row.bMoreErrors ? "+" : "")
                                          : std::string()) +
               "<td>";
    if (!row.strDocument.empty())
        strHtml +=
            "<a href=\"" + Link(row.strDocument) + "\">" + HtmlText(row.strDocument) + "</a>";
    if (!row.strProblem.empty())
        strHtml += "<p>" + HtmlOwnText(row.strProblem) + "</p>";
    if (!row.strErrors.empty())
        strHtml += "<details><summary>" + HtmlText(row.strCodes) + "</summary><ul>" +
                   row.strErrors + "</ul></details>";
    else
        strHtml += HtmlText(row.strCodes);
    strHtml += "</td>" + NumberCell(Seconds(row.dSeconds), Seconds(row.dSeconds)) + "</tr>\n";
}

}  // namespace host
