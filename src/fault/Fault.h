// The one way in which a fault of the installation or the program is logged and raised.
#pragma once

#include "fault/Status.h"

/// The message of the places that catch what nobody expected.
inline constexpr const char* UNEXPECTED_ERROR = "想定外エラーが発生しました。";

/// Logs the message (null for none) under szFunction and throws FAULT.
[[noreturn]] void RaiseFault(const char* szFunction,
                             const char* szMessage,
                             const char* szFile = __builtin_FILE(),
                             long lLine = __builtin_LINE());
