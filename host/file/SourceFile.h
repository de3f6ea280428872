// A CSV file as a user's mistake may have left it: what the library doesn't tell about it.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "file/CsvCells.h"

namespace host {

/// The path from the root of the file system, or the path itself if that can't be told.
std::string AbsolutePath(const std::string& strPath);

/// The file, read once for display and diagnosis. The library reads it by itself.
class SourceFile
{
public:
    /// \param strPath  As the user gave it.
    /// \param family  Nothing: the one that the first record's type id belongs to.
    explicit SourceFile(const std::string& strPath, std::optional<Family> family = std::nullopt);

    /// The path for the library: absolute, so that it begins with no white space.
    const std::string& LibraryPath() const { return m_strLibraryPath; }
    /// Whose operations take the file. Base if that can't be told.
    Family OfFamily() const { return m_pCells->FamilyOfCells(); }
    /// Cells in UTF-8; none that isn't empty if the file can't be read as Shift_JIS.
    const CsvCells& Cells() const { return *m_pCells; }
    std::shared_ptr<const CsvCells> SharedCells() const { return m_pCells; }

    /// The file as it is.
    const std::string& Bytes() const { return m_strBytes; }

    /// A reason why the library would look at another file than this, or nothing.
    std::optional<std::string> PathProblem() const;
    /// A reason why the file can't be read as Shift_JIS, or nothing. Only for a file that is there.
    std::optional<std::string> TextProblem() const;
    /// A NUL byte ends the text for the library: a reason why what follows wasn't checked, or
    /// nothing.
    std::optional<std::string> NulProblem() const;
    /// The bytes are Shift_JIS, but they are UTF-8 as well, which Japanese text hardly ever is by
    /// chance.
    bool LooksLikeUtf8() const;

private:
    std::string m_strLibraryPath;
    bool m_bRead = false;
    std::string m_strBytes;
    bool m_bShiftJis = false;
    std::shared_ptr<const CsvCells> m_pCells;  ///< never null
};

}  // namespace host
