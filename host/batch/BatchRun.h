// A batch from the list of files to the report.
#pragma once

#include <sys/types.h>

#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "base/ExitStatus.h"
#include "batch/BatchLock.h"
#include "batch/BatchTotals.h"
#include "batch/FileList.h"
#include "batch/FileWork.h"
#include "batch/Journal.h"
#include "batch/Progress.h"
#include "batch/WorkerPool.h"
#include "file/Descriptor.h"

namespace host {

class BatchRun
{
public:
    BatchRun(const BatchSettings& settings, FileList list);
    ~BatchRun() = default;
    BatchRun(const BatchRun&) = delete;
    BatchRun& operator=(const BatchRun&) = delete;

    /// Throws UsageError for an output folder that holds something else, or that another batch is
    /// at work in.
    ExitStatus Run();

    static constexpr const char* REPORT_NAME = "report.json";
    static constexpr const char* PAGE_NAME = "index.html";

private:
    /// What was found before a file was given to a worker.
    struct Before
    {
        std::optional<FileState> state;
        std::string strOptions;
    };

    bool PrepareOutput();
    void LockOutput();
    void RequireOwnReport();
    void FindWork();
    Before Look(const BatchFile& file) const;
    bool IsDone(const BatchFile& file, const Before& before, const EarlierResult& earlier) const;
    void RemoveOutdatedDocuments();
    void RemoveLeftovers();
    void TellNotes() const;
    void WorkOn();
    std::unique_ptr<Work> MakeWorkInChild() const;
    std::optional<std::size_t> NextJob();
    void RecordStrangersLink(std::size_t nFile);
    void Settle(const JobResult& result);
    FileAnswer AnswerFor(const JobResult& result) const;
    FileAnswer AnswerWithout(const std::string& strFile, const JobResult& result) const;
    void Record(std::size_t nFile, const FileAnswer& answer, double dSeconds);
    void ShowProgress();
    void HideProgress();
    ExitStatus Finish();
    std::string JournalProblem() const;
    std::string WritePage() const;
    mode_t ReportMode() const;
    void WriteSummary() const;
    void TellEnd() const;
    std::string OutputPath(const std::string& strName) const;

    const BatchSettings& m_settings;
    FileList m_list;
    std::unordered_set<std::string> m_setDocument;  ///< of all the files
    std::string m_strOptions;          ///< hash of all that results depend on beside the files
    Descriptor m_output;               ///< the output folder
    BatchLock m_lock;                  ///< of the output folder
    std::optional<Journal> m_journal;  ///< once there is an output folder
    std::vector<Before> m_vecBefore;   ///< by index into m_list.vecFile
    std::unordered_set<std::string> m_setKept;  ///< keys of files whose earlier result counts
    std::size_t m_nKnown = 0;                   ///< files that have an earlier result
    std::vector<std::size_t> m_vecToDo;         ///< indices into m_list.vecFile
    std::size_t m_nNext = 0;                    ///< into m_vecToDo
    BatchTotals m_totals;
    bool m_bWorkerDied = false;
    std::size_t m_nStrange = 0;       ///< documents of earlier runs that are no more what they were
    std::size_t m_nLeftOver = 0;      ///< unfinished files of runs that were ended
    std::string m_strJournalProblem;  ///< empty as long as results can be recorded
    std::optional<Progress> m_progress;
    double m_dStart = 0;
    double m_dShown = 0;  ///< when progress was last shown
    bool m_bShowProgress = false;
};

}  // namespace host
