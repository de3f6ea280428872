#include "KZCEkaMOKManagerCrossBorder.h"

#include <typeinfo>

#include "KZCConvertInfoCrossBorder.h"
#include "KZCEkaCsvFileFinance.h"
#include "KZCValidResult.h"
#include "definition/KZCEkaDefinitionCrossBorder.h"
#include "family/FamilyTraits.h"
#include "family/ManagerFamily.h"

namespace {

const char* HostProcedure(const KZCEkaITData& it)
{
    return dynamic_cast<const KZCEkaITDataCrossBorder&>(it).GetITDataCrossBorder(
        KZCEkaITDataCrossBorder_t::IT_PROCEDURE_CD);
}

const char* DocumentName(const KZCEkaITData& it)
{
    return dynamic_cast<const KZCEkaITDataCrossBorder&>(it).GetITDataCrossBorder(
        KZCEkaITDataCrossBorder_t::IT_SOFT_NAME);
}

std::string WriteReports(KZCEkaDefinitionFinance& definition,
                         const KZCEkaCsvFileFinance& csv,
                         KZCEkaITDataFinance& it)
{
    return dynamic_cast<KZCEkaDefinitionCrossBorder&>(definition)
        .MakeReportToCsvCrossBorder(&csv, &dynamic_cast<KZCEkaITDataCrossBorder&>(it));
}

}  // namespace

constexpr ManagerFamily KZCEkaMOKManagerCrossBorder::FAMILY = {
    .traits = CROSSBORDER_FAMILY,
    .pStore = &KZCConvertInfoCrossBorder::instance_crossborder,
    .szInitForCheck = "KZCEkaMOKManagerCrossBorder::InitForCheck",
    .szInitForMok = "KZCEkaMOKManagerCrossBorder::InitForMok",
    .szValidateCsv = "KZCEkaMOKManagerCrossBorder::ValidateCsv",
    .szMakeMok = "MakeMok",  // without the class, everywhere in it: wanted
    .szMismatch = "MakeMok",
    .pHostProcedure = &HostProcedure,
    .pDocumentName = &DocumentName,
    .pMakeText = &KZCEkaMOKManagerCrossBorder::MakeText,
};

constexpr KZCEkaMOKManagerFinance::Reading KZCEkaMOKManagerCrossBorder::READING = {
    .pStore = &KZCConvertInfoCrossBorder::instance_crossborder,
    .pRecordRefused = &KZCEkaMOKManagerCrossBorder::RecordRefusedFile,
};

int KZCEkaMOKManagerCrossBorder::InitForCheck(bool bPublic,
                                              const char* szCsvPathName,
                                              long lCsvDistKey)
{
    return RunInitForCheck(FAMILY, bPublic, szCsvPathName, lCsvDistKey);
}

int KZCEkaMOKManagerCrossBorder::InitForMok(bool bPublic,
                                            const char* szCsvPathName,
                                            const char* szMokPathName,
                                            long lCsvDistKey)
{
    return RunInitForMok(FAMILY, bPublic, szCsvPathName, szMokPathName, lCsvDistKey);
}

int KZCEkaMOKManagerCrossBorder::ValidateCsv()
{
    return RunValidateCsv(FAMILY);
}

int KZCEkaMOKManagerCrossBorder::MakeMok()
{
    return RunMakeMok(FAMILY);
}

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
    constexpr const char* FUNCTION = "KZCEkaMOKManagerCrossBorder::SetITDataCrossBorder";
    return StoreITValue(FUNCTION, szValue, [&](const char* szTrimmed) {
        KZCEkaITData* pITData = Table(*KZCConvertInfoCrossBorder::instance_crossborder()).pITData;
        return dynamic_cast<KZCEkaITDataCrossBorder&>(*pITData).SetITDataCrossBorder(eId,
                                                                                     szTrimmed);
    });
}

int KZCEkaMOKManagerCrossBorder::LoadCsvWithDefinitionCrossBorder_Check()
{
    return RunLoad("KZCEkaMOKManagerCrossBorder::LoadCsvWithDefinitionCrossBorder_Check", READING,
                   true, true);
}

int KZCEkaMOKManagerCrossBorder::LoadCsvWithDefinitionCrossBorder_Conv(bool bRead)
{
    return RunLoad("KZCEkaMOKManagerCrossBorder::LoadCsvWithDefinitionCrossBorder_Conv", READING,
                   bRead, false);
}

std::string KZCEkaMOKManagerCrossBorder::MakeText(const _ConvertTable& table)
{
    return MakeDocumentText(table, &WriteReports);
}

void KZCEkaMOKManagerCrossBorder::RecordRefusedFile()
{
    if (KZCValidResult::instance()->IsEmpty())
        KZCEkaMOKManagerFinance::RecordRefusedFile();
}
