// The platform, watched and made to fail. Replaces fsync and readdir of the whole program.
#pragma once

#include <cstddef>

namespace PlatformFault {

/// How often a file was flushed to the disk since the program began.
std::size_t Flushes();

/// Lets a listing break off behind that many entries, for as long as the object lives.
class Listing
{
public:
    explicit Listing(std::size_t nEntries);
    ~Listing();
    Listing(const Listing&) = delete;
    Listing& operator=(const Listing&) = delete;
};

}  // namespace PlatformFault
