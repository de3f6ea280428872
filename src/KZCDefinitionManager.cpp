#include "KZCDefinitionManager.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "family/SpreadProcedure.h"
#include "fault/Fault.h"

namespace {

struct Form
{
    const char* szReportId;
    const char* szVR;
};

struct Procedure
{
    std::string_view strTypeId;
    const char* szProcId;
    const char* szVR;
    std::int64_t lMaxRecord;
    std::int32_t nNumberA;
    std::int32_t nNumberB;
    Form first;
    Form second = {nullptr, nullptr};  ///< without a report id for procedures of one form
};

constexpr const char* FINANCE_VR = "231.0";
constexpr const char* CROSSBORDER_VR = "240.0";

// Both by type id, in its order.
constexpr std::array<Procedure, 18> PROC_INFO_LIST = {{
    {"101", "PGE2015", FINANCE_VR, 1000, 206, 243, {"GEZ035", "1.0"}},
    {"102", "PGE2025", FINANCE_VR, 1000, 207, 238, {"GEZ045", "1.0"}},
    {"103", "PGE2030", FINANCE_VR, 1000, 208, 225, {"GEZ050", "5.0"}, {"GEZ051", "5.0"}},
    {"104", "PGE2040", FINANCE_VR, 1000, 209, 237, {"GEZ060", "3.0"}},
    {"105", "PGE2055", FINANCE_VR, 1000, 210, 236, {"GEZ075", "1.0"}},
    {"106", "PGE2065", FINANCE_VR, 1000, 211, 235, {"GEZ085", "1.0"}},
    {"107", "PGE2070", FINANCE_VR, 1000, 212, 234, {"GEZ090", "4.0"}},
    {"108", "PGE2080", FINANCE_VR, 1, 213, 233, {"GEZ100", "2.0"}},
    {"109", "PGE2095", FINANCE_VR, 1000, 214, 232, {"GEZ555", "1.0"}},
    {"110", "PGE2105", FINANCE_VR, 1000, 215, 231, {"GEZ565", "1.0"}},
    {"111", "PGE2115", FINANCE_VR, 1000, 216, 224, {"GEZ620", "1.0"}, {"GEZ621", "5.0"}},
    {"112", "PGE2125", FINANCE_VR, 1000, 217, 230, {"GEZ585", "1.0"}},
    {"113", "PGE2135", FINANCE_VR, 1000, 218, 229, {"GEZ595", "1.0"}},
    {"114", "PGE2140", FINANCE_VR, 1000, 219, 228, {"GEZ600", "3.0"}},
    {"115", "PGE2150", FINANCE_VR, 1000, 220, 227, {"GEZ610", "4.0"}},
    {"116", "PGE2160", FINANCE_VR, 1, 221, 226, {"GEZ100", "2.0"}},
    {"201", "PGE1630", FINANCE_VR, 1, 204, 222, {"GEZ740", "1.0"}},
    {SpreadProcedure::TYPE_ID,
     SpreadProcedure::PROC_ID,
     FINANCE_VR,
     1000,
     205,
     223,
     {"GEZ750", "1.0"}},
}};

constexpr std::array<Procedure, 2> PROC_INFO_LIST_CROSSBORDER = {{
    {"301", "PGE1650", CROSSBORDER_VR, 1000, 245, 244, {"GEZ850", "1.0"}},
    {"302", "PGE1660", CROSSBORDER_VR, 1000, 247, 246, {"GEZ860", "1.0"}},
}};

static_assert(std::ranges::is_sorted(PROC_INFO_LIST, {}, &Procedure::strTypeId));
static_assert(std::ranges::is_sorted(PROC_INFO_LIST_CROSSBORDER, {}, &Procedure::strTypeId));

std::span<const Procedure> Catalogue(CALL_TYPE eType)
{
    switch (eType) {
        case CALL_TYPE_FINANCE:
            return PROC_INFO_LIST;
        case CALL_TYPE_CROSSBORDER:
            return PROC_INFO_LIST_CROSSBORDER;
    }
    RaiseFault("getProcInfo", "想定外動作モード");
}

}  // namespace

bool KZCDefinitionManager::getProcInfo(const std::string& strTypeId,
                                       PROC_INFO& out,
                                       CALL_TYPE eType)
{
    const std::span<const Procedure> catalogue = Catalogue(eType);
    const auto pFound =
        std::ranges::lower_bound(catalogue, std::string_view(strTypeId), {}, &Procedure::strTypeId);
    if (pFound == catalogue.end() || pFound->strTypeId != strTypeId)
        return false;
    out = {pFound->szProcId, pFound->szVR,     pFound->lMaxRecord,
           pFound->nNumberA, pFound->nNumberB, {}};
    for (const Form& form : {pFound->first, pFound->second})
        if (form.szReportId != nullptr)
            out.listReport.push_back({form.szReportId, form.szVR});
    return true;
}
