#include "form/Family.h"

#include "KZCDefinitionManager.h"

namespace host {

const char* FamilyName(Family eFamily)
{
    switch (eFamily) {
        case Family::Base:
            return "base";
        case Family::Finance:
            return "finance";
        case Family::CrossBorder:
            return "crossborder";
    }
    return "base";
}

std::optional<Family> FindFamily(std::string_view strName)
{
    for (const Family eFamily : {Family::Base, Family::Finance, Family::CrossBorder})
        if (strName == FamilyName(eFamily))
            return eFamily;
    return std::nullopt;
}

Family FamilyOfTypeId(const std::string& strTypeId)
{
    PROC_INFO info;
    if (KZCDefinitionManager::getProcInfo(strTypeId, info, CALL_TYPE_FINANCE))
        return Family::Finance;
    if (KZCDefinitionManager::getProcInfo(strTypeId, info, CALL_TYPE_CROSSBORDER))
        return Family::CrossBorder;
    return Family::Base;
}

}  // namespace host
