// What a worker process of a batch does with a file.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "batch/FileList.h"
#include "batch/WorkerPool.h"
#include "form/Family.h"
#include "report/Report.h"
#include "request/FileReport.h"
#include "request/FilerFields.h"

namespace host {

struct BatchSettings
{
    std::string strOutput;  ///< folder of the documents and the report
    std::size_t nWorkers = 1;
    double dTimeout = 0;        ///< most seconds for a file; 0 for no limit
    std::uint64_t nMemory = 0;  ///< most mebibytes of a worker; 0 for no limit
    bool bShareReport = false;  ///< report and page have the rights that the umask leaves
    bool bCheckOnly = false;
    bool bFresh = false;  ///< results of earlier runs don't count
    bool bQuiet = false;  ///< no progress
    ReportStyle style;
    FilerFields fields;
    std::optional<Family> family;  ///< nothing: found from each file
};

/// What a worker tells of a file.
struct FileAnswer
{
    Outcome eOutcome = Outcome::NotChecked;
    ExitStatus eStatus = ExitStatus::NotChecked;
    std::string strProblem;  ///< that of the report, with what to do about it
    std::string strReport;   ///< the report as JSON on one line
};

/// The report lists fewer errors than the style says if it would be longer than a line of the
/// journal may be.
FileAnswer MakeAnswer(const FileReport& report, const ReportStyle& style);
std::string Pack(const FileAnswer& answer);
FileAnswer Unpack(const std::string& strPacked);

/// The profile that counts for one file alone: NAME.toml beside NAME.csv, whether or not it is
/// there.
std::string ProfileBeside(const std::string& strFile);

/// \param settings, vecFile  Have to live as long as the work.
/// \param nOutput  The folder of the documents, open.
std::unique_ptr<Work> MakeFileWork(const BatchSettings& settings,
                                   const std::vector<BatchFile>& vecFile,
                                   int nOutput);

}  // namespace host
