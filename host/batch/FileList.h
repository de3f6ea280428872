// Which files a batch is made of, and what their documents are called.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <unordered_set>
#include <vector>

namespace host {

struct BatchFile
{
    std::string strPath;      ///< as it is opened and shown; not always UTF-8
    std::string strKey;       ///< the same from the root of the file system, without "." and ".."
    std::string strRelative;  ///< where it stands in the tree that is mirrored
    std::string strDocument;  ///< below the output folder; empty until NameDocuments
    std::string strProblem;   ///< why a folder, for which the entry stands, could not be read
    /// A stranger's link in a folder that others may write in: it could lead to a file that only
    /// this user may read, whose values would come out in report and document.
    bool bStrangersLink = false;
};

struct FileList
{
    std::vector<BatchFile> vecFile;  ///< sorted by their path
    std::size_t nLinks = 0;          ///< links to folders, which aren't followed
    std::size_t nTexts = 0;          ///< files ending in .txt that were left aside
    std::size_t nRepeated = 0;       ///< entries of a list that name a file once more
};

enum class TextFiles
{
    LeftAside,
    Taken,
};

/// The files below a folder that end in .csv, whatever the case of its letters. Links to files are
/// followed, but for strangers', links to folders are not, so that no loop is possible. A folder
/// that can't be read gives an entry with a problem. \param strOutput  A folder that isn't looked
/// into, unless it is strFolder itself; may be absent. \param eTexts  Whether files ending in .txt
/// are taken, too.
FileList FilesBelow(const std::string& strFolder, const std::string& strOutput, TextFiles eTexts);

enum class ListForm
{
    Lines,  ///< a line each; a carriage return before the line feed and empty lines don't count
    Nul,    ///< each ended by a NUL byte, taken as it is
};

/// The files that a list names. Those below the present folder are mirrored as they stand there,
/// others below a folder OUTSIDE_FOLDER by their whole path.
FileList FilesOfList(std::istream& in, ListForm eForm);
inline constexpr const char* OUTSIDE_FOLDER = "_outside";

/// Gives each file a document of its own: the file's name with .mok in place of its ending. Where
/// several would get the same name each of them keeps its ending before .mok. The names depend on
/// the set of files alone.
/// \return All the names.
std::unordered_set<std::string> NameDocuments(std::vector<BatchFile>& vecFile);

}  // namespace host
