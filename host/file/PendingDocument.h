// A document that appears under its name whole or not at all.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>

#include "file/FilePlace.h"
#include "file/PendingFile.h"
#include "file/PrivateFolder.h"

namespace host {

/// The library writes by path and empties an existing document that it can't replace. So it gets a
/// path that leads to one file alone, which gets the document's name only when it is whole: a link
/// in a private folder to a descriptor of this process. Nobody else can change where that leads.
///
/// A link at the document's path stays, and what it leads to is replaced; see FindPlace for links
/// that aren't followed. A device or a pipe can't be replaced and is written to itself.
class PendingDocument
{
public:
    /// \param strPath  The document's, absolute.
    explicit PendingDocument(const std::string& strPath);
    /// For a folder in which nothing is expected but this program's files: a link that has the name
    /// is replaced itself, and a device or a pipe is refused.
    explicit PendingDocument(FilePlace place);
    ~PendingDocument() = default;
    PendingDocument(const PendingDocument&) = delete;
    PendingDocument& operator=(const PendingDocument&) = delete;

    /// Makes the file.
    /// \return The empty text, or why the document can't be written, as the system puts it. That
    ///     its folder doesn't exist is left to the library to tell. A pipe without a reader can't
    ///     be written.
    std::string Open();
    /// Where the library has to write. Ends in ".mok".
    const std::string& Path() const { return m_strPath; }
    /// Open for writing; negative before Open, or if the document's folder doesn't exist.
    int Get() const { return m_file ? m_file->Get() : m_device.Get(); }
    /// A device or a pipe, which is written to itself.
    bool IsDevice() const { return m_device.IsOpen(); }
    /// Bytes that have been written; 0 for a device or a pipe.
    std::uintmax_t Size() const { return m_file ? m_file->Size() : 0; }
    /// Gives the file the document's name, and the rights of a new file. Those that it replaces
    /// keep theirs; of another user's the new one has no more than both. \return The empty text, or
    /// why that failed; then what stood there stays.
    std::string Keep(Existing eExisting = Existing::Replaced);

private:
    std::string OpenFile(mode_t mode);
    std::string OpenDevice(const struct stat& info);
    std::string MakePath(const PrivateFolder& folder);

    FilePlace m_place;
    int m_nError = 0;            ///< of the search for the place
    bool m_bFilesAlone = false;  ///< no device, no pipe
    std::optional<PendingFile> m_file;
    PrivateFolder m_deviceFolder;
    Descriptor m_device;
    mode_t m_mode = 0;
    std::string m_strPath;
};

}  // namespace host
