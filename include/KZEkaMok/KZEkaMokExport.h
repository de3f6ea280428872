/// Marks what the shared library hands out. For C and C++.
#pragma once

#define KZEKAMOK_EXPORT __attribute__((visibility("default")))

#ifdef __cplusplus
#define KZEKAMOK_NOEXCEPT noexcept
#else
#define KZEKAMOK_NOEXCEPT
#endif
