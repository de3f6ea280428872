// A request that can't be carried out as it was given.
#pragma once

#include <stdexcept>

namespace host {

/// what() is a whole message for the user, in UTF-8.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

}  // namespace host
