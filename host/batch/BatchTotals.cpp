#include "batch/BatchTotals.h"

#include <ostream>

#include "ReportWords.h"
#include "SafeText.h"

namespace host {

Text OutcomeText(Outcome eOutcome)
{
    switch (eOutcome) {
        case Outcome::Passed:
            return {"passed", "合格"};
        case Outcome::Refused:
            return {"refused", "エラーあり"};
        case Outcome::NotChecked:
            return {"not checked", "未チェック"};
        case Outcome::Converted:
            return {"converted", "変換済み"};
        case Outcome::Convertible:
            return {"convertible", "変換可能"};
        case Outcome::NotConverted:
            return {"not converted", "変換できず"};
        case Outcome::NotWritten:
            return {"not written", "書き込めず"};
    }
    return {"not checked", "未チェック"};
}

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
        strLine += szBefore + Say({"{1} {2}", "{2} {1}件"},
                                  {Grouped(Of(eOutcome)), Say(OutcomeText(eOutcome))});
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
