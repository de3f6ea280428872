#include "KZCEkaITDataFinance.h"

#include "family/ITDataTables.h"

void KZCEkaITDataFinance::Initialize(bool bPublic)
{
    InitializeRows(ITDataTableFINANCE, bPublic);
}

std::string KZCEkaITDataFinance::GetXml() const
{
    return MakeXml(ITDataTableFINANCE);
}

int KZCEkaITDataFinance::SetITDataFinance(KZCEkaITDataFinance_t eId, const char* szValue)
{
    return SetValue(ITDataTableFINANCE, static_cast<int>(eId), szValue);
}
