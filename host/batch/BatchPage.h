// The report of a batch as a page.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "batch/BatchTotals.h"

namespace host {

/// One page that needs nothing beside it: counts, codes, procedures, slowest files, and the files
/// with links to their documents. It can be read without scripts; with them its table is filtered
/// and sorted.
class BatchPage
{
public:
    /// Looks at what stands where the page will. \param nFolder  Open.
    /// \return The empty text if there is nothing, or a page of this kind, else why it isn't one:
    /// the end of a sentence.
    static std::string ProblemOf(int nFolder, const char* szName);

    /// \param nFiles  Files of the batch, of which not all may be in the report.
    explicit BatchPage(std::size_t nFiles);
    /// Takes a line of the report. What can't be read is left out.
    void Add(std::string_view strLine);
    /// The whole page in UTF-8.
    std::string Html();

    /// Rows that the table holds; those that matter most come first.
    static constexpr std::size_t ROWS_MAX = 20'000;
    static constexpr std::size_t SLOWEST_SHOWN = 10;
    /// Errors of a file that are shown, and files of which errors are shown.
    static constexpr std::size_t ERRORS_SHOWN = 5;
    static constexpr std::size_t FILES_WITH_ERRORS_SHOWN = 2'000;

private:
    struct Row
    {
        std::string strFile;
        std::string strDocument;  ///< below the page's folder; empty if there is none
        std::string strProcedure;
        std::string strProblem;  ///< with what to do about it
        std::string strCodes;    ///< "HE70001E ×3, HE70003E"
        std::string strErrors;   ///< the first ones as HTML; may be empty
        Outcome eOutcome = Outcome::NotChecked;
        std::uint64_t nErrors = 0;
        bool bMoreErrors = false;
        double dSeconds = 0;
    };
    struct CodeTotal
    {
        std::uint64_t nErrors = 0;
        std::size_t nFiles = 0;
    };
    struct ProcedureTotal
    {
        std::size_t nFiles = 0;
        std::map<Outcome, std::size_t> mapOutcome;
    };

    void AddFile(const nlohmann::ordered_json& line);
    Row ReadRow(const nlohmann::ordered_json& line) const;
    void AppendSummary(std::string& strHtml) const;
    void AppendCodes(std::string& strHtml) const;
    void AppendProcedures(std::string& strHtml) const;
    void AppendSlowest(std::string& strHtml) const;
    void AppendFiles(std::string& strHtml) const;
    void AppendFilter(std::string& strHtml) const;
    static void AppendRow(std::string& strHtml, const Row& row);

    std::size_t m_nFiles;
    BatchTotals m_totals;
    std::map<std::string, CodeTotal> m_mapCode;
    std::map<std::string, ProcedureTotal> m_mapProcedure;
    std::vector<Row> m_vecRow;
    std::size_t m_nFilesWithErrors = 0;
};

}  // namespace host
