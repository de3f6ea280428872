#include "KZCConvertInfoCrossBorder.h"

#include "KZCEkaCsvFileCrossBorder.h"
#include "KZCEkaITDataCrossBorder.h"
#include "definition/KZCEkaDefinitionCrossBorder.h"

KZCConvertInfo* KZCConvertInfoCrossBorder::instance_crossborder()
{
    if (!m_pInstance)
        m_pInstance.reset(new KZCConvertInfoCrossBorder);  // open to the class only
    return m_pInstance.get();
}

int KZCConvertInfoCrossBorder::ReloadCsvFile(long lCsvDistKey, const std::string& strPath)
{
    return ReadAgain(
        lCsvDistKey, strPath,
        MAKERS_OF<KZCEkaCsvFileCrossBorder, KZCEkaDefinitionCrossBorder, KZCEkaITDataCrossBorder>);
}

_ConvertTable KZCConvertInfoCrossBorder::GetConvertTable(long lCsvDistKey)
{
    return FindOrMake(
        lCsvDistKey,
        MAKERS_OF<KZCEkaCsvFileCrossBorder, KZCEkaDefinitionCrossBorder, KZCEkaITDataCrossBorder>);
}
