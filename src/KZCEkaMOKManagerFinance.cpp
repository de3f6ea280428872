#include "KZCEkaMOKManagerFinance.h"

#include <typeinfo>

#include "KZCConvertInfoFinance.h"
#include "KZCEkaCsvFileFinance.h"
#include "KZCValidResult.h"
#include "definition/KZCEkaDefinitionFinance.h"
#include "document/DocumentParts.h"
#include "family/FamilyTraits.h"
#include "family/ManagerFamily.h"

namespace {

const char* HostProcedure(const KZCEkaITData& it)
{
    return dynamic_cast<const KZCEkaITDataFinance&>(it).GetITDataFinance(
        KZCEkaITDataFinance_t::IT_PROCEDURE_CD);
}

const char* DocumentName(const KZCEkaITData& it)
{
    return dynamic_cast<const KZCEkaITDataFinance&>(it).GetITDataFinance(
        KZCEkaITDataFinance_t::IT_SOFT_NAME);
}

std::string WriteReports(KZCEkaDefinitionFinance& definition,
                         const KZCEkaCsvFileFinance& csv,
                         KZCEkaITDataFinance& it)
{
    return definition.MakeReportToCsvFinance(&csv, &it);
}

}  // namespace

constexpr ManagerFamily KZCEkaMOKManagerFinance::FAMILY = {
    .traits = FINANCE_FAMILY,
    .pStore = &KZCConvertInfoFinance::instance_finance,
    .szInitForCheck = "KZCEkaMOKManagerFinance::InitForCheck",
    .szInitForMok = "KZCEkaMOKManagerFinance::InitForMok",
    .szValidateCsv = "KZCEkaMOKManagerFinance::ValidateCsv",
    .szMakeMok = "KZCEkaMOKManagerFinance::MakeMok",
    .szMismatch = "MakeMok",  // without the class: wanted
    .pHostProcedure = &HostProcedure,
    .pDocumentName = &DocumentName,
    .pMakeText = &KZCEkaMOKManagerFinance::MakeText,
};

constexpr KZCEkaMOKManagerFinance::Reading KZCEkaMOKManagerFinance::READING = {
    .pStore = &KZCConvertInfoFinance::instance_finance,
    .pRecordRefused = &KZCEkaMOKManagerFinance::RecordRefusedFile,
};

int KZCEkaMOKManagerFinance::InitForCheck(bool bPublic, const char* szCsvPathName, long lCsvDistKey)
{
    return RunInitForCheck(FAMILY, bPublic, szCsvPathName, lCsvDistKey);
}

int KZCEkaMOKManagerFinance::InitForMok(bool bPublic,
                                        const char* szCsvPathName,
                                        const char* szMokPathName,
                                        long lCsvDistKey)
{
    return RunInitForMok(FAMILY, bPublic, szCsvPathName, szMokPathName, lCsvDistKey);
}

int KZCEkaMOKManagerFinance::ValidateCsv()
{
    return RunValidateCsv(FAMILY);
}

int KZCEkaMOKManagerFinance::MakeMok()
{
    return RunMakeMok(FAMILY);
}

void KZCEkaMOKManagerFinance::TerminateDifferentData()
{
    const KZCConvertInfo& store = *KZCConvertInfoFinance::instance_finance();
    // A CrossBorder store is another family's, although it derives from this one.
    if (typeid(store) != typeid(KZCConvertInfoFinance))
        TerminateAll();
}

int KZCEkaMOKManagerFinance::SetITDataFinance(KZCEkaITDataFinance_t eId, const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaMOKManagerFinance::SetITDataFinance";
    return StoreITValue(FUNCTION, szValue, [&](const char* szTrimmed) {
        KZCEkaITData* pITData = Table(*KZCConvertInfoFinance::instance_finance()).pITData;
        return dynamic_cast<KZCEkaITDataFinance&>(*pITData).SetITDataFinance(eId, szTrimmed);
    });
}

int KZCEkaMOKManagerFinance::LoadCsvWithDefinitionFinance_Check()
{
    return RunLoad("KZCEkaMOKManagerFinance::LoadCsvWithDefinitionFinance_Check", READING, true,
                   true);
}

int KZCEkaMOKManagerFinance::LoadCsvWithDefinitionFinance_Conv(bool bRead)
{
    return RunLoad("KZCEkaMOKManagerFinance::LoadCsvWithDefinitionFinance_Conv", READING, bRead,
                   false);
}

std::string KZCEkaMOKManagerFinance::createCATALOGXML(const std::vector<std::string>& listReportId)
{
    std::string strCatalogue = DocumentParts::CatalogueHead();
    for (const std::string& strReportId : listReportId)
        strCatalogue += DocumentParts::CatalogueItem(strReportId);
    return strCatalogue + DocumentParts::CatalogueTail();
}

int KZCEkaMOKManagerFinance::RunLoad(const char* szFunction,
                                     const Reading& reading,
                                     bool bRead,
                                     bool bIsCheck) const
{
    return RunStep(szFunction, [&] {
        const int nStatus = bRead ? ReadAndTest(reading) : STATUS_OK;
        if (nStatus == STATUS_OK)
            LoadDefinition(*reading.pStore(), bIsCheck);
        return nStatus;
    });
}

int KZCEkaMOKManagerFinance::ReadAndTest(const Reading& reading) const
{
    KZCConvertInfo& store = *reading.pStore();
    const int nStatus = ReadCsvFile(store);
    if (nStatus != STATUS_OK) {
        reading.pRecordRefused();
        return nStatus;
    }
    return dynamic_cast<const KZCEkaCsvFileFinance&>(*Table(store).pCsvFile).checkMaxRecord();
}

void KZCEkaMOKManagerFinance::RecordRefusedFile()
{
    KZCValidResult::instance()->SetResult(HE70019E, 0, 0, SINGLE_COLUMN);
}

std::string KZCEkaMOKManagerFinance::MakeText(const _ConvertTable& table)
{
    return MakeDocumentText(table, &WriteReports);
}

std::string KZCEkaMOKManagerFinance::MakeDocumentText(const _ConvertTable& table,
                                                      ReportWriter pWriteReports)
{
    auto& definition = dynamic_cast<KZCEkaDefinitionFinance&>(*table.pDefinition);
    auto& csv = dynamic_cast<KZCEkaCsvFileFinance&>(*table.pCsvFile);
    auto& it = dynamic_cast<KZCEkaITDataFinance&>(*table.pITData);
    std::string strText =
        DocumentParts::Declaration() + DocumentParts::RootStart() +
        DocumentParts::ProcedureStart(definition.GetProcId(), definition.GetProcVR());
    // For the references of the reports. It stays there behind the request: wanted.
    KZCValidResult::instance()->SetITData(it.GetXml());
    const std::string strReports =
        definition.getCsvRecordType() == KZCEkaDefinitionFinance::CSV_RECORD_MULTI
            ? definition.MakeSingleTypeReportFromCsvMultiRecord(&csv, &it)
            : pWriteReports(definition, csv, it);
    strText += createCATALOGXML(definition.GetReportIDList());
    strText += DocumentParts::ContentsStart();
    strText += it.GetXml();
    strText += strReports;
    strText += DocumentParts::ContentsEnd();
    strText += DocumentParts::ProcedureAndRootEnd(definition.GetProcId());
    return strText;
}
