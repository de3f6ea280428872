#include "KZCEkaMOKManager.h"

#include <string_view>
#include <typeinfo>

#include "KZCConvertInfo.h"
#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaTaxOffices.h"
#include "KZCValidResult.h"
#include "document/DocumentParts.h"
#include "family/FamilyTraits.h"
#include "family/ManagerFamily.h"
#include "text/LostText.h"

namespace {

constexpr long MAX_DOCUMENT_SIZE = 10485760;
constexpr const char* DOCUMENT_NAME = "eka_orbclient_ZEKA";

constexpr long CSV_PATH_ARGUMENT = 1;
constexpr long MOK_PATH_ARGUMENT = 2;
/// The key is the second argument of a check and the first of a conversion.
constexpr long CHECK_KEY_ARGUMENT = 2;
constexpr long CONVERSION_KEY_ARGUMENT = 1;

// ---- the base family ---------------------------------------------------------------------------

const char* HostProcedure(const KZCEkaITData& it)
{
    return it.GetITData(IT_PROCEDURE_CD);
}

const char* DocumentName(const KZCEkaITData& /*it*/)
{
    return DOCUMENT_NAME;
}

std::string MakeDocumentText(const _ConvertTable& table)
{
    const KZCEkaDefinition& definition = *table.pDefinition;
    std::string strText =
        DocumentParts::Declaration() + DocumentParts::RootStart() +
        DocumentParts::ProcedureStart(definition.GetProcId(), definition.GetProcVR());
    // One item a record, even if the record turns out to have no report.
    strText += DocumentParts::CatalogueHead();
    for (std::int64_t nNumber = 1; nNumber <= table.pCsvFile->GetRecordCount(); ++nNumber)
        strText += DocumentParts::CutCatalogueItem(std::string(definition.GetReportId()) + "-" +
                                                   std::to_string(nNumber));
    strText += DocumentParts::CatalogueTail();
    strText += DocumentParts::ContentsStart();
    strText += table.pITData->GetXml();
    strText += table.pDefinition->MakeReportToCsv(table.pCsvFile, table.pITData);
    strText += DocumentParts::ContentsEnd();
    strText += DocumentParts::ProcedureAndRootEnd(definition.GetProcId());
    return strText;
}

constexpr ManagerFamily FAMILY = {
    .traits = BASE_FAMILY,
    .pStore = &KZCConvertInfo::instance,
    .szInitForCheck = "KZCEkaMOKManager::InitForCheck",
    .szInitForMok = "KZCEkaMOKManager::InitForMok",
    .szValidateCsv = "KZCEkaMOKManager::ValidateCsv",
    .szMakeMok = "KZCEkaMOKManager::MakeMok",
    .szMismatch = "KZCEkaMOKManager::MakeMok",
    .pHostProcedure = &HostProcedure,
    .pDocumentName = &DocumentName,
    .pMakeText = &MakeDocumentText,
};

// ---- the steps ---------------------------------------------------------------------------------

/// Runs the argument checks of a type on a value. \return what the checks returned.
int CheckArgument(KZCEkaValidator& validator,
                  KZCArgValid_t eType,
                  const std::string& strValue,
                  long lArgument)
{
    static_cast<void>(validator.Initialize(eType, true));
    return validator.Validate(strValue.c_str(), ARGUMENT_RECORD, lArgument);
}

/// The key is within its limits and holds records.
void CheckKeptFile(const ManagerFamily& family, KZCEkaValidator& validator, long lCsvDistKey)
{
    const int nStatus = CheckArgument(validator, family.traits.eKeyCheck,
                                      std::to_string(lCsvDistKey), CONVERSION_KEY_ARGUMENT);
    if (nStatus == STATUS_NG || family.pStore()->GetCsvFile(lCsvDistKey)->GetRecordCount() != 0)
        return;
    KZCValidResult::instance()->SetResult(HE70013E, ARGUMENT_RECORD, CONVERSION_KEY_ARGUMENT,
                                          SINGLE_COLUMN);
    KZCDebugDump::Log(family.szInitForMok,
                      "指定された識別キーのCSVデータが存在しません。（HE70013E）");
    KZCDebugDump::OutputValid(HE70013E, ARGUMENT_RECORD, CONVERSION_KEY_ARGUMENT, "", true);
}

/// Records an error that ends the making of the document. \return STATUS_NG.
int RefuseDocument(KZCEkaMessage_t eMessage,
                   long lRecord,
                   long lColumn,
                   const char* szFunction,
                   const char* szMessage,
                   const char* szValue)
{
    KZCValidResult::instance()->SetResult(eMessage, lRecord, lColumn, SINGLE_COLUMN);
    KZCDebugDump::Log(szFunction, szMessage);
    KZCDebugDump::OutputValid(eMessage, lRecord, lColumn, szValue, true);
    return STATUS_NG;
}

}  // namespace

KZCEkaMOKManager::~KZCEkaMOKManager()
{
    if (m_pXDom)
        m_pXDom->Terminate();
}

int KZCEkaMOKManager::InitForCheck(bool bPublic, const char* szCsvPathName, long lCsvDistKey)
{
    return RunInitForCheck(FAMILY, bPublic, szCsvPathName, lCsvDistKey);
}

int KZCEkaMOKManager::InitForMok(bool bPublic,
                                 const char* szCsvPathName,
                                 const char* szMokPathName,
                                 long lCsvDistKey)
{
    return RunInitForMok(FAMILY, bPublic, szCsvPathName, szMokPathName, lCsvDistKey);
}

int KZCEkaMOKManager::LoadCsvWithDefinition(bool bIsCheck)
{
    return RunStep("KZCEkaMOKManager::LoadCsvWithDefinition", [&] {
        KZCConvertInfo& store = *KZCConvertInfo::instance();
        const int nStatus = ReadCsvFile(store);
        if (nStatus == STATUS_OK)
            LoadDefinition(store, bIsCheck);
        return nStatus;
    });
}

int KZCEkaMOKManager::ValidateCsv()
{
    return RunValidateCsv(FAMILY);
}

int KZCEkaMOKManager::MakeMok()
{
    return RunMakeMok(FAMILY);
}

void KZCEkaMOKManager::TerminateDifferentData()
{
    const KZCConvertInfo& store = *KZCConvertInfo::instance();
    if (typeid(store) != typeid(KZCConvertInfo))
        TerminateAll();
}

int KZCEkaMOKManager::SetITData(KZCEkaITData_t eId, const char* szValue)
{
    return StoreITValue("KZCEkaMOKManager::SetITData", szValue, [&](const char* szTrimmed) {
        return Table(*KZCConvertInfo::instance()).pITData->SetITData(eId, szTrimmed);
    });
}

int KZCEkaMOKManager::SaveMok()
{
    if (m_pXDom && m_pXDom->Save(m_strMokPathName.c_str()) == STATUS_OK)
        return STATUS_OK;
    return RecordFatalError("KZCEkaMOKManager::SaveMok");
}

int KZCEkaMOKManager::GetMok(std::string& strOut)
{
    return RunStep("KZCEkaMOKManager::GetMok", [&] {
        std::string strText;
        if (!m_pXDom || m_pXDom->SaveXml(strText) != STATUS_OK)
            throw FAULT;
        strOut = std::move(strText);
        return STATUS_OK;
    });
}

std::string KZCEkaMOKManager::GetProcID()
{
    return Table(*KZCConvertInfo::instance()).pDefinition->GetProcId();
}

std::string KZCEkaMOKManager::GetRecodeCount()
{
    return std::to_string(Table(*KZCConvertInfo::instance()).pCsvFile->GetNonCRLFRecordCount());
}

bool KZCEkaMOKManager::HasErrorMsg()
{
    try {
        return !KZCValidResult::instance()->IsEmpty();
    } catch (...) {
        RecordFatalError("KZCEkaMOKManager::HasErrorMsg");
        return true;
    }
}

std::string KZCEkaMOKManager::GetErrorMsg()
{
    return KZCValidResult::instance()->MakeResult();
}

void KZCEkaMOKManager::Terminate(bool bDestroyResult, bool bDestroyStore, bool bClearKey)
{
    if (bDestroyResult)
        KZCValidResult::destroy();
    if (bDestroyStore) {
        KZCConvertInfo::destroy();
        KZCEkaTaxOffices::destroy();
        return;
    }
    // By the base accessor, whatever the family: without a store this makes a base one. Wanted.
    if (bClearKey)
        KZCConvertInfo::instance()->ClearInfo(m_lCsvDistKey);
}

void KZCEkaMOKManager::ReloadCsvFile(long lCsvDistKey, const char* szPath)
{
    if (szPath != nullptr && *szPath != '\0')
        KZCConvertInfo::instance()->ReloadCsvFile(lCsvDistKey, KZCEkaCommon::StringTrim(szPath));
}

int KZCEkaMOKManager::RunInitForCheck(const ManagerFamily& family,
                                      bool bPublic,
                                      const char* szCsvPathName,
                                      long lCsvDistKey)
{
    KZCValidResult::instance()->ClearResult();
    return RunStep(family.szInitForCheck, [&] {
        KZCEkaValidator validator;
        KZCEkaTaxOffices::instance()->Initialize();
        std::string strPath = TrimOrEmpty(szCsvPathName);
        CheckArgument(validator, ARG_CSV_PATH, strPath, CSV_PATH_ARGUMENT);
        if (!bPublic)
            CheckArgument(validator, family.traits.eKeyCheck, std::to_string(lCsvDistKey),
                          CHECK_KEY_ARGUMENT);
        if (!KZCValidResult::instance()->IsEmpty())
            return STATUS_NG;
        m_lCsvDistKey = lCsvDistKey;
        m_strCsvPathName = std::move(strPath);
        return STATUS_OK;
    });
}

int KZCEkaMOKManager::RunInitForMok(const ManagerFamily& family,
                                    bool bPublic,
                                    const char* szCsvPathName,
                                    const char* szMokPathName,
                                    long lCsvDistKey)
{
    KZCValidResult::instance()->ClearResult();
    return RunStep(family.szInitForMok, [&] {
        KZCEkaValidator validator;
        KZCEkaTaxOffices::instance()->Initialize();
        family.pStore()->GetITData(lCsvDistKey)->Initialize(bPublic);
        std::string strCsvPath = TrimOrEmpty(szCsvPathName);
        std::string strMokPath = TrimOrEmpty(szMokPathName);
        if (bPublic) {
            CheckArgument(validator, ARG_CSV_PATH, strCsvPath, CSV_PATH_ARGUMENT);
            CheckArgument(validator, ARG_MOK_PATH, strMokPath, MOK_PATH_ARGUMENT);
        } else {
            CheckKeptFile(family, validator, lCsvDistKey);
        }
        m_lCsvDistKey = lCsvDistKey;
        m_strCsvPathName = std::move(strCsvPath);
        m_strMokPathName = std::move(strMokPath);
        return STATUS_OK;
    });
}

int KZCEkaMOKManager::RunValidateCsv(const ManagerFamily& family) const
{
    return RunStep(family.szValidateCsv, [&] {
        const _ConvertTable table = Table(*family.pStore());
        return table.pDefinition->ValidateCsv(table.pCsvFile) == 0 ? STATUS_OK : STATUS_NG;
    });
}

int KZCEkaMOKManager::RunMakeMok(const ManagerFamily& family)
{
    try {
        LostText::Forget();
        const _ConvertTable table = Table(*family.pStore());
        const char* szProcedure = family.pHostProcedure(*table.pITData);
        if (std::string_view(szProcedure) != table.pDefinition->GetProcId()) {
            const long lPath = table.pITData->IsPublic() ? 1 : 0;
            return RefuseDocument(HE70010E, ARGUMENT_RECORD,
                                  lPath | family.traits.lProcedureArgument, family.szMismatch,
                                  "引数の手続きIDが不正です。（HE70010E）", szProcedure);
        }
        table.pCsvFile->DeleteEmptyRecord();
        m_pXDom = std::make_unique<KZCEkaXDOM>();
        if (!m_pXDom->Initialize())
            throw FAULT;
        const std::string strText = family.pMakeText(table);
        LostText::Check();
        if (!m_pXDom->Parse(strText.c_str(), family.pDocumentName(*table.pITData), "UTF-8"))
            RaiseFault(family.szMakeMok, "MOKファイルの読み込みに失敗。");
        const long lSize = m_pXDom->GetSerialisedSize();
        if (lSize < 0)
            RaiseFault(family.szMakeMok, "MOKファイルの保存に失敗。");
        if (lSize <= MAX_DOCUMENT_SIZE)
            return STATUS_OK;
        KZCValidResult::instance()->SetResult(HE70023E, 0, 0, SINGLE_COLUMN);
        KZCDebugDump::Log(family.szMakeMok, "MOKファイルが10MBを超えています。（HE70023E）");
        KZCDebugDump::OutputValid(HE70023E, 0, 0, lSize);
        return STATUS_NG;
    } catch (...) {
        return RefuseDocument(HE70016E, 0, 0, family.szMakeMok,
                              "想定外の事象によりMOKファイルの作成に失敗しました。（HE70016E）",
                              "");
    }
}

_ConvertTable KZCEkaMOKManager::Table(KZCConvertInfo& store) const
{
    return store.GetConvertTable(m_lCsvDistKey);
}

int KZCEkaMOKManager::ReadCsvFile(KZCConvertInfo& store) const
{
    return store.GetCsvFile(m_lCsvDistKey)->ReadFile(m_strCsvPathName);
}

void KZCEkaMOKManager::LoadDefinition(KZCConvertInfo& store, bool bIsCheck) const
{
    const _ConvertTable table = Table(store);
    if (table.pDefinition->CreateDefinition(table.pCsvFile->GetTypeId(), bIsCheck) != STATUS_OK)
        throw FAULT;
}

std::string KZCEkaMOKManager::TrimOrEmpty(const char* szText)
{
    return szText != nullptr ? KZCEkaCommon::StringTrim(szText) : std::string();
}

/// A fault of a step: everything found before gives way to the one fatal error. \return STATUS_NG.
int KZCEkaMOKManager::RecordFatalError(const char* szFunction)
{
    KZCValidResult::instance()->SetFatalError();
    KZCDebugDump::Log(szFunction, UNEXPECTED_ERROR);
    return STATUS_NG;
}
