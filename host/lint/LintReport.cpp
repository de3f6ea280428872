#include "lint/LintReport.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace host {

void LintReport::Add(LintRule eRule,
                     const LintPlace& place,
                     const LintTexts& texts,
                     std::initializer_list<std::string_view> listArgument)
{
    Add(eRule, place, Say(texts.message, listArgument), Say(texts.advice, listArgument));
}

void LintReport::Add(LintRule eRule,
                     const LintPlace& place,
                     std::string strMessage,
                     std::string strAdvice)
{
    const LintRuleRow& row = RowOf(eRule);
    m_vecFinding.push_back({row.szId, row.eSeverity, place.strFile, place.lLine,
                            std::move(strMessage), std::move(strAdvice)});
}

bool LintReport::HasError(const std::string& strFile, long lFirstLine, long lLastLine) const
{
    return std::ranges::any_of(m_vecFinding, [&](const LintFinding& finding) {
        const bool bThere =
            finding.lLine == 0 || (lFirstLine <= finding.lLine && finding.lLine <= lLastLine);
        return finding.eSeverity == LintSeverity::Error && finding.strFile == strFile && bThere;
    });
}

std::vector<LintFinding> LintReport::Take()
{
    std::ranges::stable_sort(m_vecFinding, {}, [](const LintFinding& finding) {
        return std::tie(finding.strFile, finding.lLine);
    });
    return std::exchange(m_vecFinding, {});
}

}  // namespace host
