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

std::unique_ptr<KZCEkaCsvFile> KZCConvertInfoFinance::MakeCsvFile() const
{
    return std::make_unique<KZCEkaCsvFileFinance>();
}

std::unique_ptr<KZCEkaDefinition> KZCConvertInfoFinance::MakeDefinition() const
{
    return std::make_unique<KZCEkaDefinitionFinance>();
}

std::unique_ptr<KZCEkaITData> KZCConvertInfoFinance::MakeITData() const
{
    return std::make_unique<KZCEkaITDataFinance>();
}
