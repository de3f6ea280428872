// Lines of a file that somebody else may have written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace host {

class LineReader
{
public:
    enum class Got
    {
        Line,
        Torn,  ///< the last one, without a line end
        End,
        TooLong,  ///< nothing behind it is read
        Failed,
    };

    /// \param nFile  A regular file, read from its beginning wherever it stands. \param nLongest
    /// Most bytes of a line without its end: as many are held in memory.
    LineReader(int nFile, std::size_t nLongest) : m_nFile(nFile), m_nLongest(nLongest) {}

    /// \param strLine  Gets the line without its end.
    Got Next(std::string& strLine);
    /// Bytes before the line that was read last.
    std::uint64_t Place() const { return m_nPlace; }

private:
    bool Fill();

    int m_nFile;
    std::size_t m_nLongest;
    std::string m_strRead;  ///< read and not yet given out, from m_nGiven on
    std::size_t m_nGiven = 0;
    std::uint64_t m_nOffset = 0;  ///< of what comes behind m_strRead
    std::uint64_t m_nPlace = 0;
    std::uint64_t m_nNext = 0;
    bool m_bFailed = false;
};

/// Reads to the end of any file, a pipe or a terminal included, but no more than so many bytes.
/// \return 0 or an error number; EFBIG if there is more.
int ReadToEnd(int nFile, std::size_t nMost, std::string& strBytes);

}  // namespace host
