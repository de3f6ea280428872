#include "KZCEkaMOKManagerCrossBorder.h"

#include <typeinfo>

#include "FamilyTraits.h"
#include "KZCConvertInfoCrossBorder.h"
#include "KZCEkaCsvFileFinance.h"
#include "KZCValidResult.h"
#include "definition/KZCEkaDefinitionCrossBorder.h"

void KZCEkaMOKManagerCrossBorder::TerminateDifferentData()
{
    // By the Finance accessor: without any store this makes a Finance one, which goes at once and
    // takes the result store with it. Wanted.
    const KZCConvertInfo& store = *KZCConvertInfoFinance::instance_finance();
    if (typeid(store) != typeid(KZCConvertInfoCrossBorder))
        TerminateAll();
}

int KZCEkaMOKManagerCrossBorder::SetITDataCrossBorder(KZCEkaITDataCrossBorder_t eId,
                                                      const char* szValue)
{
    return StoreITValue("SetITDataCrossBorder", szValue, [&](const char* szTrimmed) {
        return dynamic_cast<KZCEkaITDataCrossBorder&>(ITData()).SetITDataCrossBorder(eId,
                                                                                     szTrimmed);
    });
}

int KZCEkaMOKManagerCrossBorder::LoadCsvWithDefinitionCrossBorder_Check()
{
    return LoadForCheck("LoadCsvWithDefinitionCrossBorder_Check");
}

int KZCEkaMOKManagerCrossBorder::LoadCsvWithDefinitionCrossBorder_Conv(bool bRead)
{
    return LoadForConversion("LoadCsvWithDefinitionCrossBorder_Conv", bRead);
}

const FamilyTraits& KZCEkaMOKManagerCrossBorder::Traits() const
{
    return CROSSBORDER_FAMILY;
}

const char* KZCEkaMOKManagerCrossBorder::ClassName() const
{
    return "KZCEkaMOKManagerCrossBorder";
}

std::string KZCEkaMOKManagerCrossBorder::MakeMokName() const
{
    return "MakeMok";
}

KZCConvertInfo* KZCEkaMOKManagerCrossBorder::Store() const
{
    return KZCConvertInfoCrossBorder::instance_crossborder();
}

void KZCEkaMOKManagerCrossBorder::RecordRefusedFile() const
{
    if (KZCValidResult::instance()->IsEmpty())
        KZCEkaMOKManagerFinance::RecordRefusedFile();
}

std::string KZCEkaMOKManagerCrossBorder::MakeReports(KZCEkaDefinitionFinance& definition,
                                                     const KZCEkaCsvFileFinance& csv,
                                                     KZCEkaITDataFinance& it) const
{
    return dynamic_cast<KZCEkaDefinitionCrossBorder&>(definition)
        .MakeReportToCsvCrossBorder(&csv, &dynamic_cast<KZCEkaITDataCrossBorder&>(it));
}
