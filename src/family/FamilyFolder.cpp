#include "family/FamilyFolder.h"

#include "KZCEkaCommon.h"
#include "KZCMacOSNative.h"
#include "fault/Fault.h"

namespace FamilyFolder {

namespace {

const char* FolderName(CALL_TYPE eType, const char* szFunction)
{
    switch (eType) {
        case CALL_TYPE_FINANCE:
            return "/Finance";
        case CALL_TYPE_CROSSBORDER:
            return "/CrossBorder";
    }
    RaiseFault(szFunction, "想定外動作モード");
}

}  // namespace

std::string FindDefinition(CALL_TYPE eType,
                           const std::string& strProcId,
                           const char* szFile,
                           const char* szFunction)
{
    return FindDefinitionBelow(KZCMacOSNative::getBundlePath(), eType, strProcId, szFile,
                               szFunction);
}

std::string FindDefinitionBelow(const std::string& strBundle,
                                CALL_TYPE eType,
                                const std::string& strProcId,
                                const char* szFile,
                                const char* szFunction)
{
    const std::string strFolder = FolderName(eType, szFunction);
    if (strBundle.empty())
        return {};  // not a folder of that name in the root of the file system
    return KZCEkaCommon::searchProperties(strBundle + strFolder, strProcId, szFile);
}

}  // namespace FamilyFolder
