// How the files of a batch ended, counted.
#pragma once

#include <array>
#include <cstddef>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "base/ExitStatus.h"
#include "base/Outcome.h"

namespace host {

/// Those that a file of a batch can have, in the order in which they are told.
inline constexpr std::array BATCH_OUTCOMES = {
    Outcome::Converted,    Outcome::Passed,     Outcome::Refused,
    Outcome::NotConverted, Outcome::NotChecked, Outcome::NotWritten,
};

class BatchTotals
{
public:
    void Add(Outcome eOutcome, ExitStatus eStatus);
    /// Notes a file that needs somebody to look at the machine and not at the file.
    void AddProblem(const std::string& strFile, const std::string& strProblem);

    std::size_t Files() const { return m_nFiles; }
    std::size_t Of(Outcome eOutcome) const;
    ExitStatus Worst() const { return m_eWorst; }
    /// "12 files: 10 converted, 2 refused".
    std::string Line() const;
    /// The problems, a line each, those beyond the first PROBLEMS_SHOWN as a number.
    void WriteProblems(std::ostream& out) const;

    static constexpr std::size_t PROBLEMS_SHOWN = 10;

private:
    std::map<Outcome, std::size_t> m_mapCount;
    std::size_t m_nFiles = 0;
    ExitStatus m_eWorst = ExitStatus::Passed;
    std::vector<std::string> m_vecProblem;  ///< at most PROBLEMS_SHOWN lines
    std::size_t m_nProblems = 0;
};

}  // namespace host
