#include "fault/Fault.h"

#include "KZCDebugDump.h"

void RaiseFault(const char* szFunction, const char* szMessage, const char* szFile, long lLine)
{
    KZCDebugDump::OutputLog(szFile, lLine, szFunction, szMessage);
    throw FAULT;
}
