/// The constants of the library, for C and C++. Hosts include KZEkaMok.h or KZEkaMokC.h.
#pragma once

#include <KZEkaMok/KZEkaMokExport.h>

#ifdef __cplusplus
extern "C"
{
#endif

    /// 2.0
    KZEKAMOK_EXPORT extern const double KZEkaMokVersionNumber;
    /// One line of text, a line feed included.
    KZEKAMOK_EXPORT extern const char KZEkaMokVersionString[];

    /// "S_OK"
    KZEKAMOK_EXPORT extern const char* const PROCESS_OK;
    /// "E_FAIL"
    KZEKAMOK_EXPORT extern const char* const PROCESS_FAIL;

#ifdef __cplusplus
}
#endif
