#include "KZCConvertInfoFinance.h"

#include "KZCEkaCsvFileFinance.h"
#include "KZCEkaITDataFinance.h"
#include "definition/KZCEkaDefinitionFinance.h"

KZCConvertInfo* KZCConvertInfoFinance::instance_finance()
{
    if (!m_pInstance)
        m_pInstance.reset(new KZCConvertInfoFinance);  // the constructor is open to families only
    return m_pInstance.get();
}

int KZCConvertInfoFinance::ReloadCsvFile(long lCsvDistKey, const std::string& strPath)
{
    return ReadAgain(lCsvDistKey, strPath,
                     MAKERS_OF<KZCEkaCsvFileFinance, KZCEkaDefinitionFinance, KZCEkaITDataFinance>);
}

_ConvertTable KZCConvertInfoFinance::GetConvertTable(long lCsvDistKey)
{
    return FindOrMake(
        lCsvDistKey, MAKERS_OF<KZCEkaCsvFileFinance, KZCEkaDefinitionFinance, KZCEkaITDataFinance>);
}
