// How many records a file may have where the catalogue of procedures doesn't tell.
#pragma once

#include <cstdint>

/// Of the base family; a blank record behind the last line end doesn't count.
inline constexpr std::int64_t BASE_RECORDS_MAX = 5000;
