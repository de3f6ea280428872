// A disk that fills up.
#pragma once

#include <sys/resource.h>

#include <csignal>

/// No file of the process grows beyond a size for as long as the object lives: writing further
/// fails.
class FileSizeLimit
{
public:
    /// \param nSize  Bytes.
    explicit FileSizeLimit(rlim_t nSize) : m_pHandlerBefore(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_limitBefore);
        const rlimit limit = {nSize, m_limitBefore.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_limitBefore);
        std::signal(SIGXFSZ, m_pHandlerBefore);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    void (*m_pHandlerBefore)(int);
    rlimit m_limitBefore = {};
};
