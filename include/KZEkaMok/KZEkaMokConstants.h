/// \file
/// The constants of the library, for C and C++. Hosts include KZEkaMok.h or KZEkaMokC.h.
#pragma once

#include <KZEkaMok/KZEkaMokExport.h>

#ifdef __cplusplus
extern "C"
{
#endif

    /// The library's major and minor version: 2.0.
    KZEKAMOK_EXPORT extern const double KZEkaMokVersionNumber;
    /// The version in words: one line of text, a line feed included. Static, never null.
    KZEKAMOK_EXPORT extern const char KZEkaMokVersionString[];

    /// Text of a result that passed: "S_OK". Static, never null.
    KZEKAMOK_EXPORT extern const char* const PROCESS_OK;
    /// Text of a result that failed: "E_FAIL". Static, never null.
    KZEKAMOK_EXPORT extern const char* const PROCESS_FAIL;

#ifdef __cplusplus
}
#endif
