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

std::unique_ptr<KZCEkaCsvFile> KZCConvertInfoCrossBorder::MakeCsvFile() const
{
    return std::make_unique<KZCEkaCsvFileCrossBorder>();
}

std::unique_ptr<KZCEkaDefinition> KZCConvertInfoCrossBorder::MakeDefinition() const
{
    return std::make_unique<KZCEkaDefinitionCrossBorder>();
}

std::unique_ptr<KZCEkaITData> KZCConvertInfoCrossBorder::MakeITData() const
{
    return std::make_unique<KZCEkaITDataCrossBorder>();
}
