#include "lint/LintOutput.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

#include "base/Language.h"
#include "base/SafeText.h"
#include "report/JsonReport.h"

namespace host {
namespace {

using Json = nlohmann::ordered_json;

constexpr int INDENT = 2;

constexpr Text SEVERITIES[] = {{"warning", "警告"}, {"error", "エラー"}};
constexpr Text COUNTS = {"{1} {2}, {3} {4}", "エラー{1}件、警告{3}件"};

const char* Plural(std::size_t nCount, const char* szOne, const char* szMany)
{
    return nCount == 1 ? szOne : szMany;
}

std::string Where(const std::string& strBundle, const LintFinding& finding)
{
    std::string strWhere = MakeSafe(strBundle + "/" + finding.strFile);
    if (finding.lLine > 0)
        strWhere += ":" + std::to_string(finding.lLine);
    return strWhere;
}

}  // namespace

LintCounts CountFindings(std::span<const LintFinding> findings)
{
    const auto nErrors = static_cast<std::size_t>(
        std::ranges::count(findings, LintSeverity::Error, &LintFinding::eSeverity));
    return {nErrors, findings.size() - nErrors};
}

void WriteLintText(std::ostream& out,
                   const std::string& strBundle,
                   std::span<const LintFinding> findings)
{
    for (const LintFinding& finding : findings)
        out << Where(strBundle, finding) << ": "
            << Say(SEVERITIES[static_cast<std::size_t>(finding.eSeverity)]) << ": "
            << MakeSafe(finding.strMessage) << " [" << finding.strRule << "]\n    "
            << MakeSafe(finding.strAdvice) << '\n';
    const LintCounts counts = CountFindings(findings);
    out << Say(COUNTS,
               {std::to_string(counts.nErrors), Plural(counts.nErrors, "error", "errors"),
                std::to_string(counts.nWarnings), Plural(counts.nWarnings, "warning", "warnings")})
        << '\n';
}

void WriteLintJson(std::ostream& out,
                   const std::string& strBundle,
                   std::span<const LintFinding> findings,
                   ExitStatus eStatus)
{
    Json list = Json::array();
    for (const LintFinding& finding : findings)
        list.push_back({{"rule", finding.strRule},
                        {"severity", SeverityName(finding.eSeverity)},
                        {"file", finding.strFile},
                        {"line", finding.lLine > 0 ? Json(finding.lLine) : Json()},
                        {"message", finding.strMessage},
                        {"advice", finding.strAdvice}});
    const LintCounts counts = CountFindings(findings);
    const Json document = {
        {"tool", "kzekamok"},
        {"version", KZEKAMOK_VERSION},
        {"command", "lint"},
        {"status", static_cast<int>(eStatus)},
        {"bundle", strBundle},
        {"counts", {{"errors", counts.nErrors}, {"warnings", counts.nWarnings}}},
        {"findings", std::move(list)},
    };
    // Names and values come from outside: what isn't UTF-8 becomes U+FFFD.
    out << JsonText(document, INDENT) << '\n';
}

}  // namespace host
