#include "file/LineReader.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace host {
namespace {

constexpr std::size_t READ_AT_ONCE = 65536;

}  // namespace

LineReader::Got LineReader::Next(std::string& strLine)
{
    m_nPlace = m_nNext;
    strLine.clear();
    for (;;) {
        const std::size_t nEnd = m_strRead.find('\n', m_nGiven);
        const std::size_t nStop = std::min(nEnd, m_strRead.size());
        if (strLine.size() + (nStop - m_nGiven) > m_nLongest)
            return Got::TooLong;
        strLine.append(m_strRead, m_nGiven, nStop - m_nGiven);
        if (nEnd != std::string::npos) {
            m_nGiven = nEnd + 1;
            m_nNext = m_nPlace + strLine.size() + 1;
            return Got::Line;
        }
        m_nGiven = m_strRead.size();
        if (!Fill())
            break;
    }
    if (m_bFailed)
        return Got::Failed;
    m_nNext = m_nPlace + strLine.size();
    return strLine.empty() ? Got::End : Got::Torn;
}

/// \return false at the end of the file.
bool LineReader::Fill()
{
    m_strRead.resize(READ_AT_ONCE);
    m_nGiven = 0;
    ssize_t nRead = -1;
    do
        nRead = pread(m_nFile, m_strRead.data(), m_strRead.size(), static_cast<off_t>(m_nOffset));
    while (nRead < 0 && errno == EINTR);
    m_bFailed = nRead < 0;
    m_strRead.resize(static_cast<std::size_t>(std::max<ssize_t>(nRead, 0)));
    m_nOffset += m_strRead.size();
    return nRead > 0;
}

int ReadToEnd(int nFile, std::size_t nMost, std::string& strBytes)
{
    std::array<char, READ_AT_ONCE> bytes;
    for (;;) {
        const ssize_t nRead = read(nFile, bytes.data(), bytes.size());
        if (nRead == 0)
            return 0;
        if (nRead < 0 && errno != EINTR)
            return errno;
        if (nRead < 0)
            continue;
        if (strBytes.size() + static_cast<std::size_t>(nRead) > nMost)
            return EFBIG;
        strBytes.append(bytes.data(), static_cast<std::size_t>(nRead));
    }
}

}  // namespace host
