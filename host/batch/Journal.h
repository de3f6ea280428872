// The report of a batch, a line of JSON for each file, by which a later run knows what is done.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "base/ExitStatus.h"
#include "batch/FileState.h"
#include "file/FilePlace.h"
#include "file/PendingFile.h"
#include "request/FileReport.h"

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

/// What a line says, or nothing if it is torn, of another kind, or nested as no line of a batch is.
/// The place isn't set.
std::optional<EarlierResult> ReadJournalLine(std::string_view strLine);

/// Whether a text of JSON nests deeper than any line of a batch: what reads it may recurse.
bool NestsTooDeep(std::string_view strLine);

/// Whoever may write in the output folder can have made the file, so nothing in it is believed that
/// couldn't be, and what would cost too much isn't read.
class Journal
{
public:
    static constexpr std::size_t LINE_LONGEST = std::size_t{16} * 1024 * 1024;  ///< bytes
    static constexpr std::uint64_t BYTES_MOST = std::uint64_t{4} * 1024 * 1024 * 1024;

    /// \param place  Of the report; nothing is done with it yet. \param mode  Rights of the report.
    explicit Journal(FilePlace place, mode_t mode = OWNERS_FILE);
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    /// Reads the results of earlier runs; of several for a file the last counts. A last line that
    /// isn't whole is passed over.
    /// \return The empty text, or why what stands at the place isn't a report that can be gone on
    /// with: the end of a sentence.
    std::string Load();
    /// By the key of the file, as Load found them.
    const std::unordered_map<std::string, EarlierResult>& Earlier() const { return m_mapEarlier; }
    /// Lines that Load could not make out, but for a torn last one.
    std::size_t BadLines() const { return m_nBad; }
    /// Results that Load left out as they name a document that can't be one below the output
    /// folder.
    std::size_t ForeignLines() const { return m_nForeign; }

    /// Makes the file anew with those lines alone that are to stay, and opens it for Append. The
    /// file before it stays until the new one is whole.
    /// \return The empty text, or why it can't be written.
    std::string Begin(const std::function<bool(const EarlierResult&)>& stays);
    /// Adds a line by one write. If that fails, the file ends with the line before it.
    /// \return The empty text, or why it can't be written.
    std::string Append(const std::string& strLine);

    /// Gives all whole lines of the file that Begin made, or that Load read. What stands at the
    /// place by now doesn't count. \return The empty text, or why not all could be read.
    std::string Read(const std::function<void(const std::string&)>& take) const;
    /// Whether the file that Begin made still stands at the place.
    bool IsInPlace() const;

private:
    std::string Open();
    std::string CopyLines(int nTo, const std::function<bool(const EarlierResult&)>& stays) const;

    FilePlace m_place;
    mode_t m_mode;
    Descriptor m_file;
    std::unordered_map<std::string, EarlierResult> m_mapEarlier;
    std::size_t m_nBad = 0;
    std::size_t m_nForeign = 0;
};

}  // namespace host
