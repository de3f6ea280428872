// The catalogue of the Finance and CrossBorder procedures, by type id.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Selects one of the two catalogues, and the family with it.
enum CALL_TYPE : int
{
    CALL_TYPE_FINANCE = 1,
    CALL_TYPE_CROSSBORDER = 2,
};

/// One form of a procedure.
struct REPORT_INFO
{
    std::string strReportId;  ///< element name of the report in the document
    std::string strVR;        ///< its version

    bool operator==(const REPORT_INFO&) const = default;
};

/// One procedure.
struct PROC_INFO
{
    std::string procId;
    std::string strVR;
    std::int64_t lMaxRecord = 0;  ///< records that a file may have, without the empty ones
    std::int32_t nNumberA = 0;    ///< carried in the catalogue; nothing reads it
    std::int32_t nNumberB = 0;    ///< the same
    std::vector<REPORT_INFO> listReport;

    bool operator==(const PROC_INFO&) const = default;
};

class KZCDefinitionManager
{
public:
    /// Looks a type id up, the whole text.
    /// \param out  Stays as it is when the type id isn't there.
    /// \return false if the catalogue doesn't have it. Throws FAULT for another call type.
    static bool getProcInfo(const std::string& strTypeId, PROC_INFO& out, CALL_TYPE eType);
};
