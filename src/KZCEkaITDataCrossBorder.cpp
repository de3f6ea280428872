#include "KZCEkaITDataCrossBorder.h"

#include "family/ITDataTables.h"

void KZCEkaITDataCrossBorder::Initialize(bool bPublic)
{
    InitializeRows(ITDataTableCROSSBORDER, bPublic);
}

std::string KZCEkaITDataCrossBorder::GetXml() const
{
    return MakeXml(ITDataTableCROSSBORDER);
}

int KZCEkaITDataCrossBorder::SetITDataCrossBorder(KZCEkaITDataCrossBorder_t eId,
                                                  const char* szValue)
{
    return SetValue(ITDataTableCROSSBORDER, static_cast<int>(eId), szValue);
}
