#include "KZCEkaCsvFileCrossBorder.h"

#include "fault/Fault.h"

int KZCEkaCsvFileCrossBorder::ReadFile(const std::string& strPath)
{
    constexpr const char* FUNCTION = "KZCEkaCsvFileCrossBorder::ReadFile";
    try {
        const int nStatus = ReadAndParse(strPath, true, FUNCTION);
        if (nStatus != STATUS_OK)
            m_table.Clear();
        return nStatus;
    } catch (...) {
        RaiseFault(FUNCTION, UNEXPECTED_ERROR);
    }
}
