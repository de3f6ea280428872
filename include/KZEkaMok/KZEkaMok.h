/// Everything that a C++ host of the library needs.
#pragma once

#include <KZEkaMok/KZEkaMokExport.h>
#include <KZEkaMok/KZIConvertResultEka.h>
#include <KZEkaMok/KZICsvConvMokEka.h>

extern "C"
{
    /// 2.0
    KZEKAMOK_EXPORT extern const double KZEkaMokVersionNumber;
    /// One line of text, a line feed included.
    KZEKAMOK_EXPORT extern const char KZEkaMokVersionString[];

    /// "S_OK"
    KZEKAMOK_EXPORT extern const char* const PROCESS_OK;
    /// "E_FAIL"
    KZEKAMOK_EXPORT extern const char* const PROCESS_FAIL;
}
