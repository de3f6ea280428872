#include "batch/BatchTotals.h"

#include <ostream>

#include "base/SafeText.h"
#include "report/ReportWords.h"

namespace host {

void BatchTotals::Add(Outcome eOutcome, ExitStatus eStatus)
{
    ++m_nFiles;
    ++m_mapCount[eOutcome];
    m_eWorst = Worse(m_eWorst, eStatus);
}

void BatchTotals::AddProblem(const std::string& strFile, const std::string& strProblem)
{
    ++m_nProblems;
    if (m_vecProblem.size() < PROBLEMS_SHOWN)
        m_vecProblem.push_back(MakeSafe(strFile) + ": " + strProblem);
}

std::size_t BatchTotals::Of(Outcome eOutcome) const
{
    const auto it = m_mapCount.find(eOutcome);
    return it != m_mapCount.end() ? it->second : 0;
}

std::string BatchTotals::Line() const
{
    std::string strLine = Count(m_nFiles, FILES);
    const char* szBefore = Say({": ", "："});
    for (const Outcome eOutcome : BATCH_OUTCOMES) {
        if (Of(eOutcome) == 0)
            continue;
        strLine += szBefore +
                   Say({"{1} {2}", "{2} {1}件"}, {Grouped(Of(eOutcome)), OutcomeWord(eOutcome)});
        szBefore = Say({", ", "、"});
    }
    return strLine;
}

void BatchTotals::WriteProblems(std::ostream& out) const
{
    for (const std::string& strProblem : m_vecProblem)
        out << "  " << strProblem << '\n';
    if (m_nProblems > m_vecProblem.size())
        out << "  "
            << Say({"and {1} more, see the report", "ほか{1}件（レポートをご覧ください）"},
                   {std::to_string(m_nProblems - m_vecProblem.size())})
            << '\n';
}

}  // namespace host
