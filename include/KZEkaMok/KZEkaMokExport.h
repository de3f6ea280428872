/// \file
/// Marks what the shared library hands out. For C and C++.
#pragma once

/// Makes a symbol visible outside the shared library, which hides all others.
#define KZEKAMOK_EXPORT __attribute__((visibility("default")))

/// \def KZEKAMOK_NOEXCEPT
/// Tells a C++ compiler that an operation doesn't throw; nothing in C.
#ifdef __cplusplus
#define KZEKAMOK_NOEXCEPT noexcept
#else
#define KZEKAMOK_NOEXCEPT
#endif
