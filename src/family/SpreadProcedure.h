// The one procedure whose report spreads over all records of a file.
#pragma once

/// Its records follow a head and end in a trailer; the first column of those behind the first may
/// be empty.
namespace SpreadProcedure {

inline constexpr const char* TYPE_ID = "202";
inline constexpr const char* PROC_ID = "PGE1640";

}  // namespace SpreadProcedure
