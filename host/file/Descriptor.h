// An open file or folder.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace host {

/// Owns a descriptor of the system and closes it.
class Descriptor
{
public:
    Descriptor() = default;
    /// \param nFile  Negative for none.
    explicit Descriptor(int nFile) : m_nFile(nFile) {}
    ~Descriptor() { Close(); }
    Descriptor(Descriptor&& other) noexcept : m_nFile(std::exchange(other.m_nFile, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_nFile, other.m_nFile);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    /// Negative if nothing is open.
    int Get() const { return m_nFile; }
    bool IsOpen() const { return m_nFile >= 0; }

    /// \return 0, or the error that a late write ended with.
    int Close()
    {
        const int nFile = std::exchange(m_nFile, -1);
        return nFile >= 0 && close(nFile) != 0 ? errno : 0;
    }

private:
    int m_nFile = -1;
};

}  // namespace host
