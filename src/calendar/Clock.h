// The clock of the library. Tests can set it; nothing outside the library can.
#pragma once

#include <ctime>
#include <optional>

namespace Clock {

/// Seconds since the epoch: the set time if there is one, otherwise the system's.
std::time_t Now();

/// Sets the time that Now gives from now on, or gives the system's clock back (nothing).
/// For tests only: documents and logs carry the day they were made.
void Set(std::optional<std::time_t> time);

}  // namespace Clock
