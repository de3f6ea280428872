// A document that appears under its name whole or not at all.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>

namespace host {

/// The library empties an existing document that it can't replace. So it writes to a file with a
/// name of its own in the same folder, which gets the document's name only when it is whole.
///
/// A link stays, and what it leads to is replaced. A device or a pipe can't be replaced and is
/// written to itself. The file under the temporary name is for its owner alone, and is removed when
/// the object ends and when the process is interrupted; one at a time.
class PendingDocument
{
public:
    /// \param strPath  The document's, absolute.
    explicit PendingDocument(const std::string& strPath);
    ~PendingDocument();
    PendingDocument(const PendingDocument&) = delete;
    PendingDocument& operator=(const PendingDocument&) = delete;

    /// Makes the file under the temporary name.
    /// \return The empty text, or why the document can't be written, as the system puts it. That
    ///     its folder doesn't exist is left to the library to tell.
    std::string Open();
    /// Where the library has to write.
    const std::string& Path() const { return m_strTemporary; }
    /// Bytes that have been written; 0 for a device or a pipe.
    std::uintmax_t Size() const;
    /// Gives the file the document's name, and the rights of the document that it replaces, else
    /// those of a new file.
    /// \return The empty text, or why that failed; then what stood there stays.
    std::string Keep();

private:
    std::string OpenTemporary(mode_t mode);

    std::string m_strPath;       ///< behind all links
    std::string m_strTemporary;  ///< m_strPath itself for a device or a pipe
    mode_t m_mode = 0;
    int m_nFile = -1;  ///< of the temporary file; -1 if there is none
};

}  // namespace host
