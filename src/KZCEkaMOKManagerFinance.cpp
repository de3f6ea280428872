#include "KZCEkaMOKManagerFinance.h"

#include <typeinfo>

#include "DocumentParts.h"
#include "FamilyTraits.h"
#include "Fault.h"
#include "KZCConvertInfoFinance.h"
#include "KZCEkaCsvFileFinance.h"
#include "KZCValidResult.h"
#include "definition/KZCEkaDefinitionFinance.h"

namespace {

/// The IT section of a store of this family or of one derived from it.
const KZCEkaITDataFinance& AsFinance(const KZCEkaITData& it)
{
    return dynamic_cast<const KZCEkaITDataFinance&>(it);
}

}  // namespace

void KZCEkaMOKManagerFinance::TerminateDifferentData()
{
    const KZCConvertInfo& store = *KZCConvertInfoFinance::instance_finance();
    // A CrossBorder store is another family's, although it derives from this one.
    if (typeid(store) != typeid(KZCConvertInfoFinance))
        TerminateAll();
}

int KZCEkaMOKManagerFinance::SetITDataFinance(KZCEkaITDataFinance_t eId, const char* szValue)
{
    return StoreITValue("SetITDataFinance", szValue, [&](const char* szTrimmed) {
        return dynamic_cast<KZCEkaITDataFinance&>(ITData()).SetITDataFinance(eId, szTrimmed);
    });
}

int KZCEkaMOKManagerFinance::LoadCsvWithDefinitionFinance_Check()
{
    return LoadForCheck("LoadCsvWithDefinitionFinance_Check");
}

int KZCEkaMOKManagerFinance::LoadCsvWithDefinitionFinance_Conv(bool bRead)
{
    return LoadForConversion("LoadCsvWithDefinitionFinance_Conv", bRead);
}

int KZCEkaMOKManagerFinance::LoadForCheck(const char* szOperation) const
{
    return RunStep(szOperation, [this] {
        const int nStatus = ReadAndTest();
        if (nStatus == STATUS_OK)
            LoadDefinition(true);
        return nStatus;
    });
}

int KZCEkaMOKManagerFinance::LoadForConversion(const char* szOperation, bool bRead) const
{
    return RunStep(szOperation, [this, bRead] {
        const int nStatus = bRead ? ReadAndTest() : STATUS_OK;
        if (nStatus == STATUS_OK)
            LoadDefinition(false);
        return nStatus;
    });
}

int KZCEkaMOKManagerFinance::ReadAndTest() const
{
    const int nStatus = ReadCsvFile();
    if (nStatus != STATUS_OK) {
        RecordRefusedFile();
        return nStatus;
    }
    return dynamic_cast<const KZCEkaCsvFileFinance&>(CsvFile()).checkMaxRecord();
}

void KZCEkaMOKManagerFinance::RecordRefusedFile() const
{
    KZCValidResult::instance()->SetResult(HE70019E, 0, 0, SINGLE_COLUMN);
}

std::string KZCEkaMOKManagerFinance::MakeDocumentText(const _ConvertTable& table) const
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
            : MakeReports(definition, csv, it);
    strText += createCATALOGXML(definition.GetReportIDList());
    strText += DocumentParts::ContentsStart();
    strText += it.GetXml();
    strText += strReports;
    strText += DocumentParts::ContentsEnd();
    strText += DocumentParts::ProcedureAndRootEnd(definition.GetProcId());
    return strText;
}

std::string KZCEkaMOKManagerFinance::MakeReports(KZCEkaDefinitionFinance& definition,
                                                 const KZCEkaCsvFileFinance& csv,
                                                 KZCEkaITDataFinance& it) const
{
    return definition.MakeReportToCsvFinance(&csv, &it);
}

std::string KZCEkaMOKManagerFinance::createCATALOGXML(const std::vector<std::string>& listReportId)
{
    std::string strCatalogue = DocumentParts::CatalogueHead();
    for (const std::string& strReportId : listReportId)
        strCatalogue += DocumentParts::CatalogueItem(strReportId);
    return strCatalogue + DocumentParts::CatalogueTail();
}

const FamilyTraits& KZCEkaMOKManagerFinance::Traits() const
{
    return FINANCE_FAMILY;
}

const char* KZCEkaMOKManagerFinance::ClassName() const
{
    return "KZCEkaMOKManagerFinance";
}

std::string KZCEkaMOKManagerFinance::MismatchName() const
{
    return "MakeMok";
}

KZCConvertInfo* KZCEkaMOKManagerFinance::Store() const
{
    return KZCConvertInfoFinance::instance_finance();
}

std::string KZCEkaMOKManagerFinance::HostProcedure(const KZCEkaITData& it) const
{
    return AsFinance(it).GetITDataFinance(KZCEkaITDataFinance_t::IT_PROCEDURE_CD);
}

std::string KZCEkaMOKManagerFinance::DocumentName(const KZCEkaITData& it) const
{
    return AsFinance(it).GetITDataFinance(KZCEkaITDataFinance_t::IT_SOFT_NAME);
}
