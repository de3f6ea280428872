// The report of a batch, a line of JSON for each file, by which a later run knows what is done.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "ExitStatus.h"
#include "FileReport.h"
#include "batch/FileState.h"

namespace host {

/// What a line says beside the report of the file.
struct JournalEntry
{
    std::string strKey;              ///< of the file, see BatchFile
    std::optional<FileState> state;  ///< of the file before it was worked on
    std::string strOptions;          ///< all that the result depends on beside the file, as a hash
    std::string strDocument;  ///< name that the document has or would have below the output folder
    double dSeconds = 0;      ///< that the file took
};

/// What is known of a file from an earlier run.
struct EarlierResult
{
    JournalEntry entry;
    Outcome eOutcome = Outcome::NotChecked;
    ExitStatus eStatus = ExitStatus::NotChecked;
    std::uintmax_t nDocumentBytes = 0;  ///< if it was converted
    std::uint64_t nPlace = 0;           ///< of the line in the file
    std::size_t nLength = 0;            ///< with its line end
};

/// The line of a file.
/// \param strReport  The report as an object of JSON on one line.
std::string JournalLine(const std::string& strReport, const JournalEntry& entry);

/// What a line says, or nothing if it is torn or of another kind. The place isn't set.
std::optional<EarlierResult> ReadJournalLine(std::string_view strLine);

class Journal
{
public:
    /// \param strPath  Path of the report; nothing is done with it yet.
    explicit Journal(const std::string& strPath);
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    /// Reads the results of earlier runs; of several for a file the last counts. A last line that
    /// isn't whole is passed over.
    /// \return false if the file is there and holds something else than results, or can't be read.
    bool Load();
    /// By the key of the file, as Load found them.
    const std::unordered_map<std::string, EarlierResult>& Earlier() const { return m_mapEarlier; }

    /// Makes the file anew with those lines alone that are to stay, and opens it for Append. The
    /// file before it stays until the new one is whole.
    /// \return The empty text, or why it can't be written.
    std::string Begin(const std::function<bool(const EarlierResult&)>& stays);
    /// Adds a line by one write. If that fails, the file ends with the line before it.
    /// \return The empty text, or why it can't be written.
    std::string Append(const std::string& strLine);

private:
    std::string CopyLines(int nTo, const std::function<bool(const EarlierResult&)>& stays);

    std::string m_strPath;
    int m_nFile = -1;
    std::unordered_map<std::string, EarlierResult> m_mapEarlier;
};

}  // namespace host
