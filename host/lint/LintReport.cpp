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
    if (row.eSeverity == LintSeverity::Error)
        m_mapErrorLine[place.strFile].insert(place.lLine);
    m_vecFinding.push_back({row.szId, row.eSeverity, place.strFile, place.lLine,
                            std::move(strMessage), std::move(strAdvice)});
}

bool LintReport::HasError(const std::string& strFile, long lFirstLine, long lLastLine) const
{
    const auto file = m_mapErrorLine.find(strFile);
    if (file == m_mapErrorLine.end())
        return false;
    const auto line = file->second.lower_bound(lFirstLine);
    return file->second.contains(0) || (line != file->second.end() && *line <= lLastLine);
}

std::vector<LintFinding> LintReport::Take()
{
    std::ranges::stable_sort(m_vecFinding, {}, [](const LintFinding& finding) {
        return std::tie(finding.strFile, finding.lLine);
    });
    m_mapErrorLine.clear();
    return std::exchange(m_vecFinding, {});
}

}  // namespace host
