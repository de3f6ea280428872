// The exported constants.
#include <KZEkaMok/KZEkaMok.h>

const double KZEkaMokVersionNumber = 2.0;
const char KZEkaMokVersionString[] = "@(#)PROGRAM:KZEkaMok  PROJECT:KZEkaMok-2.0.0.0\n";

const char* const PROCESS_OK = "S_OK";
const char* const PROCESS_FAIL = "E_FAIL";
