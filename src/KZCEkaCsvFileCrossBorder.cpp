#include "KZCEkaCsvFileCrossBorder.h"

#include "Fault.h"

int KZCEkaCsvFileCrossBorder::ReadFile(const std::string& strPath)
{
    constexpr const char* FUNCTION = "KZCEkaCsvFileCrossBorder::ReadFile";
    try {
        const int nStatus = ReadAndParse(strPath, true, FUNCTION);
        if (nStatus != STATUS_OK)
            m_vecRecord.clear();
        return nStatus;
    } catch (...) {
        RaiseFault(FUNCTION, UNEXPECTED_ERROR);
    }
}
