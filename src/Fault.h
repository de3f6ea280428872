// Status values and the one way in which a fault of the installation or the program is raised.
#pragma once

inline constexpr int STATUS_OK = 0;
inline constexpr int STATUS_NG = -1;

/// Thrown for a fault of the installation or the program, never for an error in a filer's data.
inline constexpr int FAULT = -1;

/// The message of the places that catch what nobody expected.
inline constexpr const char* UNEXPECTED_ERROR = "想定外エラーが発生しました。";

/// Logs the message (null for none) under szFunction and throws FAULT.
[[noreturn]] void RaiseFault(const char* szFunction,
                             const char* szMessage,
                             const char* szFile = __builtin_FILE(),
                             long lLine = __builtin_LINE());
