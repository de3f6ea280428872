// What steps return, and what they throw for a fault of the installation or the program.
#pragma once

inline constexpr int STATUS_OK = 0;
inline constexpr int STATUS_NG = -1;

/// Thrown for a fault of the installation or the program, never for an error in a filer's data.
/// Fault.h tells how it is logged and thrown; what the log itself is made of throws it as it is.
inline constexpr int FAULT = -1;
